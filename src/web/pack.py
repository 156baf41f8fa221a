#!/usr/bin/env python3
"""Makes one self-contained page: pack.py PROGRAM.wasm ICON.png PAGE.html OUT.html

The scripts and styles that PAGE.html names are inlined. The content security policy of the page
allows these alone, by their hashes."""

import base64
import gzip
import hashlib
import pathlib
import re
import sys


def base64_of(data):
    return base64.b64encode(data).decode()


def main():
    program, icon, page, out = map(pathlib.Path, sys.argv[1:])
    digests = {"script": "", "style": ""}

    def inline(reference):
        file, tag = (reference[1], "style") if reference[1] else (reference[2], "script")
        text = (page.parent / file).read_text("utf-8")
        digests[tag] += f" 'sha256-{base64_of(hashlib.sha256(text.encode('utf-8')).digest())}'"
        return f"<{tag}>{text}</{tag}>"

    text = re.sub(
        r'<link rel="stylesheet" href="(.+)">|<script src="(.+)"></script>',
        inline,
        page.read_text("utf-8"),
    )
    policy = (
        "default-src 'none'; base-uri 'none'; form-action 'none'; img-src data:; "
        f"script-src 'wasm-unsafe-eval'{digests['script']}; style-src{digests['style']}"
    )
    parts = {
        "POLICY": policy,
        "ICON": base64_of(icon.read_bytes()),
        "PROGRAM": base64_of(gzip.compress(program.read_bytes(), mtime=0)),
    }
    for name, part in parts.items():
        text = text.replace(f"@{name}@", part)
    out.write_text(text, "utf-8")


if __name__ == "__main__":
    main()

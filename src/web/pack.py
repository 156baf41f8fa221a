#!/usr/bin/env python3
"""Makes one page that needs nothing beside itself: pack.py PROGRAM.wasm SOURCES PAGE.html

SOURCES is the folder of page.html, page.css and page.js. The policy of the page lets it run its own
script and style alone."""

import base64
import gzip
import hashlib
import pathlib
import sys


def main():
    program, sources, out = map(pathlib.Path, sys.argv[1:])
    style = (sources / "page.css").read_text()
    script = (sources / "page.js").read_text()

    def digest(text):
        return "'sha256-" + base64.b64encode(hashlib.sha256(text.encode()).digest()).decode() + "'"

    policy = ("default-src 'none'; base-uri 'none'; form-action 'none'; img-src data:; "
              f"script-src 'wasm-unsafe-eval' {digest(script)}; style-src {digest(style)}")
    packed = base64.b64encode(gzip.compress(program.read_bytes(), mtime=0)).decode()
    page = (sources / "page.html").read_text()
    for name, text in {"POLICY": policy, "STYLE": style, "PROGRAM": packed,
                       "SCRIPT": script}.items():
        page = page.replace(f"@{name}@", text)
    out.write_text(page)


if __name__ == "__main__":
    main()

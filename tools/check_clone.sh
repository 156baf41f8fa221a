#!/usr/bin/env bash
# Tries what ./play and ./test do before they build, as in clones that are moved, cannot be written
# to, or belong to somebody who may install nothing. Takes seconds, and builds nothing.
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."

scratch=$(mktemp -d)
trap 'rm -rf -- "$scratch"' EXIT
chmod 755 "$scratch"

fail() {
  echo "clone: $*" >&2
  exit 1
}

# Runs a command with what the scripts share.
shared() { bash -c "set -euo pipefail; . tools/packages.sh; $1" shared; }

git clone --quiet . "$scratch/first"
mkdir "$scratch/tools"
ln -s "$(command -v bash)" "$scratch/tools/"
cd "$scratch/first"
shared "configure VELMORAN_DESKTOP=OFF" >/dev/null
mv "$scratch/first" "$scratch/renamed"
cd "$scratch/renamed"
shared "configure VELMORAN_DESKTOP=OFF" >/dev/null || fail "a renamed folder cannot be configured"
[[ -z $(shared "configure VELMORAN_DESKTOP=OFF") ]] || fail "it is configured again for nothing"

# Not even root can write there.
! BUILD=/proc/build shared configure 2>"$scratch/told" || fail "a build was configured in /proc"
grep -q BUILD= "$scratch/told" || fail "nothing tells how to build elsewhere: $(cat "$scratch/told")"

PATH=$scratch/tools shared "install_missing no-such-package" || fail "apt-get was missed"
if command -v apt-get >/dev/null; then
  ln -s "$(command -v apt-get)" "$(command -v dpkg-query)" "$(command -v grep)" "$scratch/tools/"
  as_user=()
  ((EUID)) || as_user=(setpriv --reuid 65534 --regid 65534 --clear-groups)
  ! "${as_user[@]}" env PATH="$scratch/tools" bash -c \
    '. tools/packages.sh; install_missing no-such-package' 2>"$scratch/told" >/dev/null ||
    fail "a package that does not exist was installed"
  grep -q "apt-get install.* no-such-package" "$scratch/told" ||
    fail "nothing tells what to install: $(cat "$scratch/told")"
fi

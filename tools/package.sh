#!/usr/bin/env bash
# Makes the Debian package of the last commit, in build/package or the folder given, and checks it:
# the same bytes from two folders, nothing for lintian to complain about, and a game that installs,
# plays and goes without a trace. The machine itself stays as it is.
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."
. tools/packages.sh

target=${1:-build/package}
scratch=$(mktemp -d)
trap 'rm -rf -- "$scratch"' EXIT

fail() {
  echo "package: $*" >&2
  exit 1
}

# Does it quietly, and prints what was said if it fails.
quietly() {
  "$@" >"$scratch/log" 2>&1 || fail "$(tail -n 40 "$scratch/log")"
}

# Makes the package of the last commit in the folder given.
make_package() {
  git clone --quiet . "$1/velmoran"
  (cd "$1/velmoran" && DEB_BUILD_OPTIONS=terse quietly dpkg-buildpackage -b -us -uc)
}

# The changelog of the package has the version. All else that names it has to follow.
check_version() {
  local version
  version=$(dpkg-parsechangelog --show-field Version)
  grep -qF "(velmoran VERSION $version " CMakeLists.txt || fail "CMakeLists.txt is not of $version"
  grep -m1 '<release ' packaging/velmoran.metainfo.xml | grep -qF "\"$version\"" ||
    fail "the metainfo is not of $version"
  grep -m1 '^## ' CHANGELOG.md | grep -qF " $version," || fail "CHANGELOG.md is not of $version"
}

# Installs or removes in a root of its own. What the game depends on is not there: apt-get tells
# whether it could be.
in_scratch_root() {
  PATH=$PATH:/usr/sbin:/sbin quietly \
    dpkg --root="$scratch/root" --force-not-root --force-depends --log=/dev/null "$@"
}

install_missing "${package_packages[@]}"
check_version
make_package "$scratch/one"
(umask 002 && TZ=Pacific/Auckland make_package "$scratch/another/long/way/off")
cmp "$scratch"/one/velmoran_*.deb "$scratch"/another/long/way/off/velmoran_*.deb
mkdir -p "$target"
cp "$scratch"/one/velmoran_*.deb "$target"
deb=$(realpath "$target"/velmoran_*.deb)

lintian --allow-root --fail-on error,warning "$deb"

mkdir -p "$scratch"/root/var/lib/dpkg/{info,updates}
touch "$scratch/root/var/lib/dpkg/status"
quietly apt-get install --simulate "$deb"
in_scratch_root --install "$deb"
game=$scratch/root/usr/games/velmoran
python3 -B tests/desktop/real_window_test.py "$game" exited_by_menu_at_turn
in_scratch_root --purge velmoran
left=$(find "$scratch/root" -mindepth 1 -not -path "$scratch/root/var*")
[[ ! $left ]] || fail "files were left: $left"
sha256sum "$deb"

#!/usr/bin/env bash
# Makes the Debian package of the last commit, in build/package or in the given folder. Checks it:
# two folders give the same bytes, lintian finds nothing, the game installs and plays, and a purge
# leaves no file. Nothing is installed on the machine itself.
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

# Runs a command and prints its output only if it fails.
quietly() {
  "$@" >"$scratch/log" 2>&1 || fail "$(tail -n 40 "$scratch/log")"
}

# Makes the package of the last commit in a folder.
make_package() {
  git clone --quiet . "$1/velmoran"
  (cd "$1/velmoran" && DEB_BUILD_OPTIONS=terse quietly dpkg-buildpackage -b -us -uc)
}

# The version comes from debian/changelog. The other files that name it must agree.
check_version() {
  local version
  version=$(dpkg-parsechangelog --show-field Version)
  grep -qF "(velmoran VERSION $version " CMakeLists.txt || fail "CMakeLists.txt is not of $version"
  grep -m1 '<release ' packaging/velmoran.metainfo.xml | grep -qF "\"$version\"" ||
    fail "the metainfo is not of $version"
  grep -m1 '^## ' CHANGELOG.md | grep -qF " $version," || fail "CHANGELOG.md is not of $version"
}

# Runs dpkg in a root of its own, without the game's dependencies. Whether they can be installed is
# for apt-get to say.
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

# There is no homepage: some versions of appstreamcli warn of that, and lintian passes it on.
told=$(lintian --allow-root "$deb") || fail "$told"
told+=$'\n'$(appstreamcli validate --no-net packaging/velmoran.metainfo.xml) || true
told=$(sed -n '/url-homepage-missing\|metadata-validation-failed/d; /^[EW]:/p' <<<"$told")
[[ ! $told ]] || fail "$told"

mkdir -p "$scratch"/root/var/lib/dpkg/{info,updates}
touch "$scratch/root/var/lib/dpkg/status"
quietly apt-get install --simulate "$deb"
in_scratch_root --install "$deb"
game=$scratch/root/usr/games/velmoran
python3 -B tests/desktop/real_window_test.py "$game" rules
in_scratch_root --purge velmoran
left=$(find "$scratch/root" -mindepth 1 -not -path "$scratch/root/var*")
[[ ! $left ]] || fail "files were left: $left"
sha256sum "$deb"

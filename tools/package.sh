#!/usr/bin/env bash
# Makes the Debian package of the last commit, in build/package or the folder given, and checks it:
# the same bytes from two folders, nothing to complain about, and a game that installs, opens its
# windows and goes without a trace. The machine itself stays as it is.
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."
. tools/packages.sh

# The one habit that cpack lets into the package: the modes of its outermost archive.
umask 022

target=${1:-build/package}
scratch=$(mktemp -d)
game= display_PID=
clean_up() {
  for process in $game $display_PID; do kill "$process" 2>/dev/null || true; done
  rm -rf -- "$scratch"
}
trap clean_up EXIT

fail() {
  echo "package: $*" >&2
  exit 1
}

# Makes the package of the last commit in the folder given, which must not exist yet.
make_package() {
  git clone --quiet . "$1/source"
  cmake -S "$1/source" -B "$1/build" -G Ninja -DVELMORAN_WERROR=ON >/dev/null
  cmake --build "$1/build" -- --quiet
  cpack --config "$1/build/CPackConfig.cmake" -G DEB -B "$1" >/dev/null 2>"$1/cpack.log" ||
    fail "$(cat "$1/cpack.log")"
}

# Twice, as two people far from each other would.
make_same_package_twice() {
  make_package "$scratch/one"
  (TZ=Pacific/Auckland LC_ALL=C make_package "$scratch/another/long/way/off")
  local package=("$scratch"/one/*.deb)
  cmp "${package[0]}" "$scratch"/another/long/way/off/*.deb
  mkdir -p "$target"
  cp "${package[0]}" "$target"
  deb=$(realpath "$target/${package[0]##*/}")
}

# What no tool can see in the program: whether each file of it was compiled with these.
check_flags() {
  local flag flags=(-D_FORTIFY_SOURCE=2 -fstack-protector-strong -fstack-clash-protection)
  [[ $(uname -m) != x86_64 ]] || flags+=(-fcf-protection)
  for flag in "${flags[@]}"; do
    if grep '"command":' "$scratch/one/build/compile_commands.json" | grep -vF -e "$flag"; then
      fail "compiled without $flag"
    fi
  done
}

check_files() {
  local root=$scratch/files
  dpkg-deb -x "$deb" "$root"
  lintian --allow-root --fail-on error,warning "$deb"
  desktop-file-validate "$root/usr/share/applications/velmoran.desktop"
  appstreamcli validate --no-net --pedantic "$root"/usr/share/metainfo/*.xml
  zcat "$root/usr/share/man/man6/velmoran.6.gz" | mandoc -T lint
  # No two of the tool's questions fit here. The game calls no function that can be fortified where
  # the compiler knows the size; and the start files of Debian 12 bear no mark of protected control
  # flow, so no program built there does.
  hardening-check --nofortify --nocfprotection "$root/usr/games/velmoran"
  check_flags
}

# Installs or removes in a root of its own. What the game depends on is not there: apt-get tells
# whether it could be.
in_scratch_root() {
  PATH=$PATH:/usr/sbin:/sbin dpkg --root="$scratch/root" --force-not-root --force-depends \
    --log=/dev/null "$@" >"$scratch/dpkg.log" 2>&1 || fail "$(cat "$scratch/dpkg.log")"
}

check_window() {
  local root=$scratch/root class
  coproc display { exec Xvfb -displayfd 1 -screen 0 1024x768x24 2>/dev/null; }
  read -r number <&"${display[0]}"
  export DISPLAY=:$number
  mkdir "$scratch/home"
  HOME=$scratch/home XDG_CURRENT_DESKTOP='' "$root/usr/games/velmoran" &
  game=$!

  # The first message opens over the main window, which has then taken the place of the splash.
  for ((tries = 0; tries < 300; ++tries)); do
    kill -0 "$game" 2>/dev/null || fail "the game has ended by itself"
    ! xwininfo -name "Velmoran Game Controls" >/dev/null 2>&1 || break
    sleep 0.1
  done
  class=$(sed -n 's/^StartupWMClass=//p' "$root/usr/share/applications/velmoran.desktop")
  xprop -name " Velmoran" -notype WM_CLASS | grep -qF "\"$class\"" || fail "wrong window class"
  xprop -name " Velmoran" -notype 32c _NET_WM_ICON | grep -q "= 16, 16, " || fail "no window icon"

  kill "$game"
  wait "$game" 2>/dev/null || true
  game=
  [[ -z $(find "$scratch/home" -mindepth 1) ]] || fail "the game has left files behind"
}

check_installed() {
  local root=$scratch/root
  mkdir -p "$root"/var/lib/dpkg/{info,updates}
  touch "$root/var/lib/dpkg/status"
  apt-get install --simulate --quiet=2 "$deb" >/dev/null
  in_scratch_root --install "$deb"
  check_window
  in_scratch_root --purge velmoran
  [[ -z $(find "$root" -mindepth 1 -not -path "$root/var*") ]] || fail "not all was removed"
}

install_missing "${package_packages[@]}"
make_same_package_twice
check_files
check_installed
sha256sum "$deb"

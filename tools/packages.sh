# shellcheck shell=bash disable=SC2034 # the lists are used where this file is sourced
# Shared by play, test, web and .ci/run: the packages that each needs, and how to configure a build.

build=${BUILD:-build}

# The fonts are those of the splash window. The xcb plugin comes with Qt itself.
play_packages=(g++ cmake ninja-build qt6-base-dev
  fonts-liberation fonts-comic-neue fonts-dejavu-core)
demo_packages=(python3 xvfb openbox xdotool x11-utils imagemagick)
test_packages=("${play_packages[@]}" libgtest-dev
  python3 xvfb openbox xdotool wmctrl x11-utils libfaketime xsettingsd)
# The page needs clang 19 or later with a C++ library for WebAssembly. The newest installed one is
# taken, or else the newest one that Debian has.
clang=$({ dpkg-query --show 'libc++-*-dev-wasm32' || apt-cache pkgnames libc++-; } 2>/dev/null |
  sed -n 's/^libc++-\(19\|[2-9][0-9]\)-dev-wasm32.*/\1/p' | sort -n | tail -n 1) || true
: "${clang:=19}"
web_packages=(cmake ninja-build python3 wasi-libc binaryen llvm librsvg2-bin "clang-$clang"
  "lld-$clang" "libc++-$clang-dev-wasm32" "libc++abi-$clang-dev-wasm32"
  "libclang-rt-$clang-dev-wasm32")
browser_packages=(chromium firefox-esr webkit2gtk-driver xvfb)
package_packages=("${test_packages[@]}" git build-essential debhelper lintian appstream)

# Installs the given packages, unless they are installed. Without apt-get it installs nothing; CMake
# then says what is missing.
install_missing() {
  local installed package missing=() as_root=()
  { command -v apt-get && command -v dpkg-query; } >/dev/null || return 0
  # dpkg-query fails if one of the names is unknown to it, but its output is still right.
  installed=$(dpkg-query --showformat='${db:Status-Status} ${Package}\n' --show "$@" 2>/dev/null) ||
    true
  for package; do
    grep -qxF "installed $package" <<<"$installed" || missing+=("$package")
  done
  ((${#missing[@]})) || return 0

  echo "Installing with apt-get: ${missing[*]}"
  ((EUID == 0)) || as_root=(sudo)
  command -v "${as_root[0]:-apt-get}" >/dev/null &&
    "${as_root[@]}" apt-get -qq update &&
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
      apt-get -qq install --yes --no-install-recommends "${missing[@]}" && return
  echo "Not installed. As root it is this, and then $0 again:" >&2
  echo "    apt-get update && apt-get install --no-install-recommends ${missing[*]}" >&2
  return 1
}

# Installs the packages of tests/web/package.json in $build, if the list has changed.
install_npm_packages() {
  local lists=(tests/web/package.json tests/web/package-lock.json)
  command -v npm >/dev/null || install_missing nodejs npm
  mkdir -p "$build"
  if ! cmp -s "${lists[1]}" "$build/package-lock.json" || [[ ! -d $build/node_modules ]]; then
    cp "${lists[@]}" "$build"
    npm ci --prefix "$build" --ignore-scripts --no-audit --no-fund
  fi
}

# Configures $build with a preset of CMakePresets.json and further options of cmake. If the sources
# have been moved, it starts from scratch.
configure() {
  local sources cache=$build/CMakeCache.txt fresh=()
  if ! mkdir -p "$build" 2>/dev/null || [[ ! -w $build ]]; then
    echo "Nothing can be written to $build. To build elsewhere: BUILD=FOLDER $0" >&2
    return 1
  fi
  sources=$(sed -n 's/^CMAKE_HOME_DIRECTORY:INTERNAL=//p' "$cache" 2>/dev/null) || true
  [[ ! $sources || $sources -ef . ]] || fresh=(--fresh)
  ! command -v ninja >/dev/null || export CMAKE_GENERATOR=Ninja
  cmake --no-warn-unused-cli --preset "$1" -B "$build" "${fresh[@]}" "${@:2}" >/dev/null
}

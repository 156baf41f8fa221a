# Sourced by ../play, ../test and ../web: what each needs from Debian, and how the game is configured.

build=${BUILD:-build}

# The fonts are those of the splash window. The xcb plugin comes with Qt itself.
play_packages=(g++ cmake ninja-build qt6-base-dev fonts-liberation fonts-comic-neue fonts-dejavu-core)
demo_packages=(python3 xvfb openbox xdotool x11-utils imagemagick)
test_packages=("${play_packages[@]}" libgtest-dev
  python3 xvfb openbox xdotool wmctrl x11-utils libfaketime)
check_packages=("${test_packages[@]}" libbenchmark-dev clang clang-format clang-tidy gcovr valgrind)
# The compiler of the page, its C and C++ libraries, and what lays its stack aside.
web_packages=(cmake ninja-build python3 clang-19 lld-19 libc++-19-dev-wasm32 libc++abi-19-dev-wasm32
  libclang-rt-19-dev-wasm32 wasi-libc binaryen llvm)
browser_packages=(chromium firefox-esr webkit2gtk-driver xvfb)
package_packages=("${test_packages[@]}" git debhelper lintian appstream)

# Installs those of the given packages that are not there yet. Where there is no apt-get nothing is
# installed, and CMake tells what is missing.
install_missing() {
  local installed package missing=() as_root=()
  { command -v apt-get && command -v dpkg-query; } >/dev/null || return 0
  # dpkg-query fails where it knows one of the names not at all; what it prints still counts.
  installed=$(dpkg-query --show --showformat='${db:Status-Status} ${Package}\n' "$@" 2>/dev/null || true)
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

# What the build folder remembers under that name.
cached() { sed -n "s/^$1:[A-Z]*=//p" "$build/CMakeCache.txt" 2>/dev/null; }

# Configures where there is no build yet, one of the given options (NAME=VALUE) stands otherwise, or
# either folder has been moved.
configure() {
  local option changed= fresh=()
  if ! mkdir -p "$build" 2>/dev/null || [[ ! -w $build ]]; then
    echo "Nothing can be written to $build. To build elsewhere: BUILD=FOLDER $0" >&2
    return 1
  fi
  if [[ ! $(cached CMAKE_HOME_DIRECTORY) -ef . || ! $(cached CMAKE_CACHEFILE_DIR) -ef $build ]]; then
    fresh=(--fresh)
    ! command -v ninja >/dev/null || fresh+=(-G Ninja)
  fi
  for option; do
    [[ $(cached "${option%%=*}") == "${option#*=}" ]] || changed=yes
  done
  if [[ $changed || ${fresh[*]} || ! (-f $build/build.ninja || -f $build/Makefile) ]]; then
    cmake "${fresh[@]}" -S . -B "$build" "${@/#/-D}"
  fi
}

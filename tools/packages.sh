# Sourced by ../play and ../test: what either needs from Debian, and how the game is configured.

build=${BUILD:-build}

# The fonts are those of the splash window. The xcb plugin comes with Qt itself.
play_packages=(g++ cmake ninja-build qt6-base-dev fonts-liberation fonts-comic-neue fonts-dejavu-core)
demo_packages=(python3 xvfb openbox xdotool x11-utils imagemagick)
test_packages=("${play_packages[@]}" libgtest-dev libbenchmark-dev
  python3 xvfb openbox xdotool wmctrl x11-utils libfaketime)
check_packages=("${test_packages[@]}" clang clang-format clang-tidy libclang-rt-14-dev gcovr valgrind)
package_packages=("${play_packages[@]}" git dpkg-dev devscripts lintian desktop-file-utils appstream
  mandoc xvfb x11-utils)

# Installs those of the given packages that are not there yet.
install_missing() {
  local installed package missing=() as_root=()
  # dpkg-query fails where it knows one of the names not at all; what it prints still counts.
  installed=$(dpkg-query --show --showformat='${db:Status-Status} ${Package}\n' "$@" 2>/dev/null || true)
  for package; do
    grep -qxF "installed $package" <<<"$installed" || missing+=("$package")
  done
  ((${#missing[@]})) || return 0

  echo "Installing with apt-get: ${missing[*]}"
  ((EUID == 0)) || as_root=(sudo)
  "${as_root[@]}" apt-get -qq update
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get -qq install --yes --no-install-recommends "${missing[@]}"
}

# Configures where there is no build yet or one of the given options (NAME=VALUE) stands otherwise.
configure() {
  local option changed=
  for option; do
    grep -qs "^${option%%=*}:[A-Z]*=${option#*=}$" "$build/CMakeCache.txt" || changed=yes
  done
  if [[ $changed || ! -f $build/build.ninja ]]; then
    cmake -S . -B "$build" -G Ninja "${@/#/-D}"
  fi
}

#!/usr/bin/env bash
# Fuzzes the game on the virtual host for so many seconds, 60 if not told, under address and
# undefined-behaviour sanitizers. Needs clang and libFuzzer. The corpus in the repository is only
# read; what the run finds stays in the build folder.
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/../.."
. tools/packages.sh
build=${BUILD:-build-fuzz}

CXX=${CXX:-clang++} configure \
  CMAKE_BUILD_TYPE=Release VELMORAN_DESKTOP=OFF VELMORAN_TESTS=ON VELMORAN_FUZZ=ON
cmake --build "$build" --target fuzz
mkdir -p "$build/corpus"
exec "$build/tests/soak/fuzz" "$build/corpus" tests/soak/corpus -max_total_time="${1:-60}" -max_len=1000 \
  -timeout=10 -entropic=0 -print_final_stats=1 -artifact_prefix="$build/"

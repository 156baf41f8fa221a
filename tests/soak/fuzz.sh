#!/usr/bin/env bash
# Fuzzes the game on the virtual host for so many seconds, 60 if not told, under address and
# undefined-behaviour sanitizers. Needs clang and libFuzzer. The corpus in the repository is only
# read; what the run finds stays in the build folder.
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/../.."
build=${BUILD:-build-fuzz}

cmake -S . -B "$build" -D CMAKE_CXX_COMPILER="${CXX:-clang++}" -D CMAKE_BUILD_TYPE=Release \
  -D VELMORAN_DESKTOP=OFF -D VELMORAN_TESTS=ON -D VELMORAN_FUZZ=ON >/dev/null
cmake --build "$build" --target fuzz
mkdir -p "$build/corpus"
exec "$build/tests/soak/fuzz" "$build/corpus" tests/soak/corpus -max_total_time="${1:-60}" -max_len=1000 \
  -timeout=10 -entropic=0 -print_final_stats=1 -artifact_prefix="$build/"

#!/usr/bin/env bash
# Builds the benchmarks as they are shipped, runs them and prints a table of ratios for each room.
#
#     benchmarks/run.sh [--room=ROOM] [--avx2] [Google Benchmark's own arguments]
#
# --avx2 leaves wider vectors unused, for a look at what most machines give. Peers are those that are
# installed.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
rooms=(arrays strings encoding calendar filesystem units charts)
if [[ "${1:-}" == --room=* ]]; then
    rooms=("${1#--room=}")
    shift
fi
build=build/benchmarks
cmake --preset release -B $build -DZEB_BUILD_BENCHMARKS=ON -DZEB_BUILD_TESTS=OFF -DZEB_BUILD_EXAMPLES=ON >&2
cmake --build $build --target "${rooms[@]/%/_benchmarks}" >&2
# One processor for all of a run, where the system can be told so. Memory that was freed stays at hand, so
# that no contender pays for fresh pages.
pin=()
command -v taskset >/dev/null && pin=(taskset -c $(($(nproc) - 1)))
export GLIBC_TUNABLES=glibc.malloc.trim_threshold=4294967296:glibc.malloc.mmap_threshold=4294967296
for room in "${rooms[@]}"; do
    printf '\n## %s\n\n' "$room"
    "${pin[@]}" "$build/benchmarks/${room}_benchmarks" "$@"
done

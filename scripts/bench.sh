#!/usr/bin/env bash
# Builds (Release) and runs the benchmarks; arguments go to Google Benchmark.
# Usage: scripts/bench.sh [--only=bench_name] [benchmark options ...]
set -euo pipefail
cd "$(dirname "$0")/.."
only=""
args=()
for a in "$@"; do
    case "$a" in
        --only=*) only="${a#--only=}" ;;
        *) args+=("$a") ;;
    esac
done
scripts/deps.sh libbenchmark-dev
cmake -S . -B build-bench -DCMAKE_BUILD_TYPE=Release -DLCDWIDGETS_BUILD_BENCH=ON -DLCDWIDGETS_BUILD_TESTS=OFF -DLCDWIDGETS_BUILD_GALLERY=OFF >/dev/null
if [ -n "$only" ]; then
    cmake --build build-bench -j"$(nproc)" --target "$only"
    QT_QPA_PLATFORM=offscreen build-bench/bin/"$only" ${args[@]+"${args[@]}"}
    exit
fi
cmake --build build-bench -j"$(nproc)"
for b in build-bench/bin/bench_*; do
    echo "== $(basename "$b")"
    QT_QPA_PLATFORM=offscreen "$b" ${args[@]+"${args[@]}"}
done

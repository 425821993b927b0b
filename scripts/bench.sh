#!/usr/bin/env bash
# Builds (Release) and runs the knob-step benchmark; arguments go to Google Benchmark.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/deps.sh libbenchmark-dev
cmake -S . -B build-bench -DCMAKE_BUILD_TYPE=Release -DLCDWIDGETS_BUILD_BENCH=ON -DLCDWIDGETS_BUILD_TESTS=OFF -DLCDWIDGETS_BUILD_GALLERY=OFF >/dev/null
cmake --build build-bench -j"$(nproc)" --target bench_knobstep
QT_QPA_PLATFORM=offscreen exec build-bench/bin/bench_knobstep "$@"

#!/usr/bin/env bash
# Builds and runs every test twice: in a plain build and in an AddressSanitizer +
# UndefinedBehaviorSanitizer build. The plain build also installs the package and
# builds a host project against it (tests/package). Both run the monkey (CTest
# "monkey": lcdmonkey with a fixed seed; see README, "The monkey").
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/deps.sh
jobs=$(nproc)
export QT_QPA_PLATFORM=offscreen

echo "== plain build"
cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo -DLCDWIDGETS_BUILD_TESTS=ON >/dev/null
cmake --build build -j"$jobs"
(cd build && ctest -j"$jobs" --output-on-failure)

echo "== AddressSanitizer + UBSan build"
cmake -S . -B build-asan -DCMAKE_BUILD_TYPE=Debug -DLCDWIDGETS_SANITIZE=ON -DLCDWIDGETS_BUILD_TESTS=ON >/dev/null
cmake --build build-asan -j"$jobs"
(cd build-asan && ctest -j"$jobs" --output-on-failure -E '^package_')

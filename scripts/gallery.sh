#!/usr/bin/env bash
# Builds the library and runs the lcdgallery demo host. Without a display it renders
# every page to gallery-screenshots/ (or the folder given with --screenshots DIR).
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/deps.sh
cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build build -j"$(nproc)" --target lcdgallery theme
if [ $# -eq 0 ] && [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    set -- --screenshots "$PWD/gallery-screenshots"
fi
exec build/bin/lcdgallery "$@"

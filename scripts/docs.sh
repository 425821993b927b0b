#!/usr/bin/env bash
# Builds the API reference: HTML generated from the public headers by Doxygen into
# build/docs/html, each class's page with its subsystem and its gallery picture.
# Prints the number of public members without documentation (they are warnings, not
# errors) and the path of index.html. Fails only when Doxygen itself fails.
#
# Usage: scripts/docs.sh [--shots DIR]
#   --shots DIR  use the pictures and DIR/classes.txt that `lcdgallery --screenshots DIR`
#                wrote; by default the gallery is built (if needed) and renders them to
#                build/docs/shots. Without a gallery the pages go without pictures.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/deps.sh doxygen python3

out=build/docs
shots=
while [ $# -gt 0 ]; do
    case "$1" in
    --shots) shots="$2"; shift 2 ;;
    *) echo "usage: scripts/docs.sh [--shots DIR]" >&2; exit 2 ;;
    esac
done
mkdir -p "$out/gen"

if [ -z "$shots" ]; then
    shots="$out/shots"
    # The gallery's pictures, rendered again only when the gallery has changed.
    if cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null &&
        cmake --build build -j"$(nproc)" --target lcdgallery theme >/dev/null; then
        if [ ! -f "$shots/classes.txt" ] || [ build/bin/lcdgallery -nt "$shots/classes.txt" ] ||
            [ -n "$(find share/themes -newer "$shots/classes.txt" -print -quit)" ]; then
            rm -rf "$shots"
            QT_QPA_PLATFORM=offscreen build/bin/lcdgallery --screenshots "$PWD/$shots" >"$out/gallery.log" 2>&1 ||
                echo "docs: the gallery did not render every page (see $out/gallery.log)" >&2
        fi
    else
        echo "docs: the gallery could not be built; class pages go without pictures" >&2
    fi
fi
[ -f "$shots/classes.txt" ] || echo "docs: no $shots/classes.txt; class pages go without pictures" >&2

# The fastest Python at hand for the header filter (it runs once per header).
python=$(command -v python3)
[ -x /usr/bin/python3 ] && python=/usr/bin/python3
"$python" docs/gendox.py pages "$shots/classes.txt" docs/classgroups.txt "$out/gen/classes.dox"

version=$(sed -n 's/^project(lcdwidgets VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
rm -rf "$out/html"
{
    cat docs/Doxyfile
    echo "PROJECT_NUMBER = $version"
    echo "INPUT += $out/gen"
    echo "IMAGE_PATH = \"$shots\" docs/screenshots"
    echo "FILTER_PATTERNS = \"*.h=$python docs/doxyfilter.py\""
} | doxygen -

"$python" docs/gendox.py count "$out/warnings.log"
echo "warnings: $out/warnings.log"
echo "$PWD/$out/html/index.html"

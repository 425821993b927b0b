#!/usr/bin/env bash
# Renders every gallery page (English and Chinese) and refreshes the pictures under
# docs/screenshots that the README and the API reference show. Only pictures that
# already exist there are replaced: adding one is a choice made by hand.
#
# Usage: scripts/screenshots.sh
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/deps.sh >/dev/null
cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build build -j"$(nproc)" --target lcdgallery theme translations >/dev/null
out=$(mktemp -d)
trap 'rm -rf "$out"' EXIT
(cd build/bin && QT_QPA_PLATFORM=offscreen ./lcdgallery --screenshots "$out/en" >/dev/null 2>&1)
(cd build/bin && QT_QPA_PLATFORM=offscreen ./lcdgallery --language zh_CN --screenshots "$out/zh_CN" >/dev/null 2>&1)

# The gallery names its pictures "NN-page[-variant].png"; docs/screenshots drops the
# number, keeps the English dialogs and system pictures in folders of their own, and
# calls the knob menu of the lists page "lists-menu".
target_of() {
    local name=${1#[0-9][0-9]-}
    case "$name" in
    lists.png) echo lists-menu.png ;;
    dialog-*) echo "dialogs/${name#dialog-}" ;;
    system-*) echo "system/${name#system-}" ;;
    *) echo "$name" ;;
    esac
}
changed=0
for lang in en zh_CN; do
    dir=docs/screenshots
    [ "$lang" = en ] || dir="docs/screenshots/$lang"
    for shot in "$out/$lang"/*.png; do
        if [ "$lang" = en ]; then
            target="$dir/$(target_of "$(basename "$shot")")"
        else
            # The Chinese pictures keep the gallery's names, without the number.
            target="$dir/$(basename "$shot" | sed 's/^[0-9][0-9]-//')"
        fi
        [ -f "$target" ] || continue
        if ! cmp -s "$shot" "$target"; then
            cp "$shot" "$target"
            echo "updated $target"
            changed=$((changed + 1))
        fi
    done
done
echo "screenshots: $changed picture(s) updated"

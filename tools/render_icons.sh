#!/bin/sh
# Renders the program's logo into the PNG sizes of the hicolor icon theme.
# Run it after a change of the logo and commit the pictures: the build does not need it.
set -eu
cd "$(dirname "$0")/.."
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
# shellcheck disable=SC2046
${CXX:-c++} -std=c++20 -fPIC tools/render_icon.cpp -o "$work/render_icon" $(pkg-config --cflags --libs Qt6Svg Qt6Gui)
for size in 16 32 48 64 128 256; do
    folder=packaging/icons/hicolor/${size}x${size}/apps
    mkdir -p "$folder"
    QT_QPA_PLATFORM=offscreen "$work/render_icon" src/frame/symbole/tafelquell.svg "$size" \
        "$folder/de.tafelquell.Tafelquell.png"
done

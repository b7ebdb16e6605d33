#!/bin/sh
# Renders the logo into the PNG sizes of the hicolor icon theme, and all pictures of the program for single, double and triple
# scale. Run it after a change of a picture and commit the result: the build does not need it.
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

# The program shows these: reading them costs the start a tenth of what loading the SVG plug-in does.
for picture in src/frame/symbole/*.svg; do
    name=${picture%.svg}
    width=24
    [ "$name" = src/frame/symbole/tafelquell ] && width=96
    for scale in 1 2 3; do
        suffix=@${scale}x
        [ "$scale" = 1 ] && suffix=
        QT_QPA_PLATFORM=offscreen "$work/render_icon" "$picture" $((width * scale)) "$name$suffix.png"
    done
done

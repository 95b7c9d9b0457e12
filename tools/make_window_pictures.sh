#!/usr/bin/env bash
# Draws each window of the program from a sample: light and dark, at the scales 1 and 2, in its usual and in its smallest size.
#
#   tools/make_window_pictures.sh              everything, some minutes
#   tools/make_window_pictures.sh documents    what the documents show: scale 1, usual size
#
# All pictures go to build/dev/window-pictures; those of docs/pictures are made anew. Look at them before you commit them.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source packaging/common.sh

what=${1:-all}
[[ $what == all || $what == documents ]] || die "usage: tools/make_window_pictures.sh [documents]"

# What the documents show.
in_documents=(splash main main-empty list contact contact-new notes move-contact-chosen move-category ask
    search-contacts search-properties search-value search-date search-amount
    alerts alerts-editing alerts-menu-gridalerts alert-contacts calendar
    feedback feedback-review
    property-list property property-date property-new
    letters letters-writing labels
    report
    box-question box-information)

need build run screen test
build dev make_window_pictures make_sample orvantine_data
pictures=build/dev/window-pictures
rm -rf "$pictures"
mkdir -p "$pictures"

sample=$pictures/Sample.mdb
cat build/dev/data/Delivered.mdb > "$sample"
build/dev/tools/make_sample --contacts 2000 --seed 1 --today 2026-05-12 --database "$sample"

# A laptop's screen; its pixels grow with the scale.
screen() { # SCALE
    local file=$pictures/screen-$1.json
    printf '{"screens":[{"name":"laptop","x":0,"y":0,"width":%d,"height":%d,"logicalDpi":96,"logicalBaseDpi":96,"dpr":1}]}\n' \
        $((1366 * $1)) $((768 * $1)) > "$file"
    printf 'offscreen:configfile=%s' "$PWD/$file"
}

draw() { # SCALE SCHEME FOLDER [--smallest]
    QT_QPA_PLATFORM=$(screen "$1") QT_SCALE_FACTOR=$1 QT_LOGGING_RULES="qt.qpa.*=false" \
        build/dev/tools/make_window_pictures/make_window_pictures \
        --database "$sample" --empty build/dev/data/Delivered.mdb --images build/dev/data/Images \
        --scheme "$2" --into "$pictures/$3" "${@:4}"
}

for scheme in light dark; do
    say "Drawing the windows, $scheme"
    draw 1 $scheme scale-1
    [ "$what" = all ] || continue
    draw 1 $scheme scale-1-smallest --smallest
    draw 2 $scheme scale-2
    draw 2 $scheme scale-2-smallest --smallest
done

# Small enough for the repository.
keep() { # FROM TO
    convert "$1" -strip +dither -colors 255 -define png:compression-level=9 PNG8:"$2"
}

rm -f docs/pictures/*.png
mkdir -p docs/pictures
for name in "${in_documents[@]}"; do
    for scheme in light dark; do
        keep "$pictures/scale-1/$name-$scheme.png" "docs/pictures/$name-$scheme.png"
    done
done
# Documents, as the word processor renders their first page.
for name in letters-page labels-sheet report-page report-properties-page; do
    soffice -env:UserInstallation="file://$PWD/$pictures/office-profile" --headless --convert-to pdf \
        --outdir "$pictures" "$pictures/scale-1/$name.docx" > /dev/null
    pdftoppm -r 72 -png -singlefile "$pictures/$name.pdf" "$pictures/$name"
    convert "$pictures/$name.png" -bordercolor '#999' -border 1 "$pictures/$name.png"
    keep "$pictures/$name.png" "docs/pictures/$name.png"
done
cp "$pictures/scale-1/main-window-light.png" docs/pictures/main-window.png
say "All pictures: $pictures; those of the documents: docs/pictures"

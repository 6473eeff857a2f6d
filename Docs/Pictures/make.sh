#!/usr/bin/env bash
# Makes the README's pictures anew from the program as it is, on a copy of the demo project. Look at each before committing it.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
# The look builder shows where a look's file lies, so the folder has a name that may be seen.
work=${TMPDIR:-/tmp}/tintmill-pictures
rm -rf "$work"
mkdir -p "$work"
trap 'rm -rf "$work"' EXIT
cp -r Host/DemoProject "$work/DemoProject"
./run --headless --size 960x540 --project "$work/DemoProject" --tour Docs/Pictures/pictures.tour --out "$work/out"
for picture in Panes Editor Menu Builder Broken; do
    cp "$work/out/$picture.png" Docs/Pictures/
done

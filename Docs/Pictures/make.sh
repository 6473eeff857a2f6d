#!/usr/bin/env bash
# Makes the README's pictures anew from the program as it is. Look at each before committing it.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
./run --headless --size 960x540 --tour Docs/Pictures/pictures.tour --out "$work"
for picture in Panes Editor Menu Builder Broken; do
    cp "$work/$picture.png" Docs/Pictures/
done

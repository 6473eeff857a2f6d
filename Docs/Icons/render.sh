#!/usr/bin/env bash
# Renders the icons that the plug-in ships from their drawings. Needs rsvg-convert (Debian: librsvg2-bin).
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
for size in 20 64; do
    rsvg-convert --width "$size" --height "$size" "TintmillIcon_${size}x.svg" --output "../../Editor/Icons/TintmillIcon_${size}x.png"
done

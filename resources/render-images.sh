#!/bin/sh
# Renders every drawing in images-src/ to image/, at the size that the drawing itself states.
set -eu
cd "$(dirname "$0")"
mkdir -p image
for drawing in images-src/*.svg; do
    rsvg-convert --output "image/$(basename "$drawing" .svg).png" "$drawing"
done

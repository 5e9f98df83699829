#!/bin/sh
# SPDX-FileCopyrightText: 2026 the my_classes authors
# SPDX-License-Identifier: MIT

# Renders icons/NAME.png from every icons/svg/NAME.svg. 32 pixels: a 16-pixel tool bar uses all of them
# on a 200% screen and exactly a half in each direction on a 100% one.
#
# The drawings keep to a grid of 16 by 16 with a margin of 1; strokes are 2 wide (1 for small letters and
# lines of text), parts lie 1 apart. Grey #7a8592, blue #1c84ed, green #1b9844 and red #e55147 have the same
# luminance, 0.23: the one that stands out equally from light and dark tool bars.

set -eu

if ! command -v rsvg-convert >/dev/null; then
    echo "render_icons.sh: rsvg-convert is missing (Debian: apt-get install librsvg2-bin)" >&2
    exit 1
fi

cd "$(dirname "$0")/../icons"
rm -f -- *.png
for svg in svg/*.svg; do
    rsvg-convert --width 32 --height 32 --output "$(basename "$svg" .svg).png" "$svg"
done

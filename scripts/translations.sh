#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 the my_classes authors
# SPDX-License-Identifier: MIT

# Brings the catalogues in translations/ up to the texts of the sources; what is new is translated with Qt Linguist or by
# hand. "scripts/translations.sh --check" only says whether they are complete, and fails if not.
source "$(dirname "${BASH_SOURCE[0]}")/setup.sh"

need build
cd "$repository"
mkdir -p build
cmake --preset dev >build/configure.log 2>&1 || { cat build/configure.log >&2; exit 1; }

if [[ ${1:-} == --check ]]; then
    kept=$(mktemp -d)
    cp translations/*.ts "$kept"
    trap 'cp "$kept"/*.ts translations; rm -rf "$kept"' EXIT
fi
cmake --build --preset dev --target my_classes_update_translations >/dev/null

# A text that is new has no translation yet.
if grep -A3 --with-filename 'type="unfinished"' translations/*.ts; then
    echo "The catalogues lack translations." >&2
    exit 1
fi
if [[ ${1:-} == --check ]]; then
    for catalogue in translations/*.ts; do
        diff "$kept/${catalogue##*/}" "$catalogue" || { echo "$catalogue does not fit the sources." >&2; exit 1; }
    done
fi

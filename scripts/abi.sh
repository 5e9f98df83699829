#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 the my_classes authors
# SPDX-License-Identifier: MIT

# Looks at what the shared library (build/dev, made by scripts/test.sh) offers to programs: no symbol outside its own
# namespaces, no private Qt header among its includes, less than 1.5 MB without debug information.
source "$(dirname "${BASH_SOURCE[0]}")/setup.sh"

cd "$repository"
library=build/dev/lib/libmy_classes.so
[[ -e $library ]] || { cmake --preset dev >/dev/null && cmake --build --preset dev --target my_classes >/dev/null; }

fail() {
    echo "$@" >&2
    exit 1
}

foreign=$(nm --dynamic --demangle --defined-only "$library" | cut -d' ' -f3- |
    grep --invert-match --extended-regexp \
        '^(non-virtual thunk to |typeinfo (name )?for |vtable for )?my_(classes|utils|msgboxes|spellchecker)::' || true)
[[ -z $foreign ]] || fail "Exported without need:" "$foreign"

private=$(grep --recursive --extended-regexp '#include.*(/private/|_p\.h)' src include designer || true)
[[ -z $private ]] || fail "Private headers of Qt:" "$private"

stripped=$(mktemp)
trap 'rm -f "$stripped"' EXIT
strip -o "$stripped" "$library"
size=$(stat --format %s "$stripped")
[[ $size -lt 1500000 ]] || fail "The stripped library has $size bytes."
echo "$(nm --dynamic --defined-only "$library" | wc -l) symbols, $size bytes stripped"

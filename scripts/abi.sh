#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 the my_classes authors
# SPDX-License-Identifier: MIT

# Looks at what the shared library of the packages offers to programs: no symbol outside its own namespaces, no private
# Qt header among its includes, less than 1.5 MB without debug information; and nothing changed or gone of the binary
# interface that packaging/ keeps under the library's SOVERSION. "scripts/abi.sh --update" writes that down anew:
# below 1.0 until the version is released, afterwards for additions only.
source "$(dirname "${BASH_SOURCE[0]}")/setup.sh"

need build ci
cd "$repository"
export LC_ALL=C # one order for all
mkdir -p build
build=build/packages
cmake --preset packages >build/configure.log
cmake --build --preset packages --target my_classes >build/build.log || { cat build/build.log >&2; exit 1; }
library=$(realpath $build/lib/libmy_classes.so)
soname=$(objdump -p "$library" | sed -n 's/^ *SONAME *//p')
kept=packaging/$soname.abi
found=$build/$soname.abi

fail() {
    printf '%s\n' "$@" >&2
    exit 1
}

foreign=$(nm --dynamic --demangle --defined-only "$library" | cut -d' ' -f3- |
    grep --invert-match --extended-regexp \
        '^(non-virtual thunk to |typeinfo (name )?for |vtable for )?my_(classes|utils|msgboxes|spellchecker)::' || true)
[[ -z $foreign ]] || fail "Exported without need:" "$foreign"

private=$(grep --recursive --extended-regexp '#include.*(/private/|_p\.h)' src include designer || true)
[[ -z $private ]] || fail "Private headers of Qt:" "$private"

strip -o $build/stripped.so "$library"
size=$(stat --format %s $build/stripped.so)
[[ $size -lt 1500000 ]] || fail "The stripped library has $size bytes."

abidw --headers-dir include --headers-dir $build/include --drop-private-types --no-show-locs --no-corpus-path \
    --no-comp-dir-path --out-file $build/abi.xml "$library"
scripts/abi_dump.py $build/abi.xml "$library" >"$found"
[[ ${1:-} != --update ]] || cp "$found" "$kept"
[[ -e $kept ]] || fail "No interface is kept for $soname. \"scripts/abi.sh --update\" writes it."

# A new virtual function in a class that there was moves those behind it, in the classes of hosts too.
gone=$(comm -23 "$kept" "$found")
added=$(comm -13 "$kept" "$found")
moving=$(grep --fixed-strings "$(sed -n 's/: *[0-9]* bytes.*/: virtual /p' "$kept")" <<<"$added" || true)
[[ -z $gone$moving ]] || fail "Programs that were built against $soname no longer fit: it needs another minor version." \
    "(As long as this one is not released, \"scripts/abi.sh --update\" will do.)" \
    "Changed or gone:" "$gone" "New:" "$added"
[[ -z $added ]] || printf '%s\n' "New (\"scripts/abi.sh --update\" keeps it):" "$added"
echo "$(wc -l <"$kept") facts of the binary interface hold, $size bytes stripped"

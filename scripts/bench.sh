#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 the my_classes authors
# SPDX-License-Identifier: MIT

# Installs what is missing, builds a release and prints the tables of all benchmarks, or of those named:
# "scripts/bench.sh editor startup". Ratios are measured in one run; the times beside them depend on the machine.
source "$(dirname "${BASH_SOURCE[0]}")/setup.sh"

need build test
continue_as_owner "$repository/scripts/bench.sh" "$@"

cd "$repository"
mkdir -p build
cmake --preset release >build/configure.log 2>&1 || { cat build/configure.log >&2; exit 1; }
cmake --build --preset release >build/build.log 2>&1 || { cat build/build.log >&2; exit 1; }

export QT_QPA_PLATFORM=offscreen
[[ $# -gt 0 ]] || set -- startup editor insertion search
for name in "$@"; do
    printf '\n## %s\n\n' "$name"
    # The benchmarks work the editor, which traces what it does on the same output.
    "build/release/bin/bench_$name" 2>/dev/null | grep '^|'
done

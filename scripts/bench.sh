#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 the my_classes authors
# SPDX-License-Identifier: MIT

# Installs what is missing, builds a release and prints the tables of all benchmarks, or of those named:
# "scripts/bench.sh editor startup". Ratios are measured in one run; the times beside them depend on the machine.
source "$(dirname "${BASH_SOURCE[0]}")/setup.sh"

need build headless test bench
continue_as_owner "$repository/scripts/bench.sh" "$@"

cd "$repository"
mkdir -p build
cmake --preset release >build/configure.log 2>&1 || { cat build/configure.log >&2; exit 1; }
cmake --build --preset release >build/build.log 2>&1 || { cat build/build.log >&2; exit 1; }

# A real window has to be opened on a display; one without a screen will do.
open_display() {
    Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3>build/display 2>/dev/null &
    trap 'kill %1' EXIT
    until [[ -s build/display ]]; do sleep 0.1; done
    DISPLAY=:$(<build/display)
    export DISPLAY
}

# The editor traces what it does on the same output.
run() {
    QT_QPA_PLATFORM=${2:-offscreen} "build/release/bin/bench_$1" 2>/dev/null | grep '^|'
}

[[ $# -gt 0 ]] || set -- long document_editor startup editor insertion search download
for name in "$@"; do
    printf '\n## %s\n\n' "$name"
    case $name in
        startup)
            open_display
            run startup xcb
            ;;
        download) scripts/bench_download.sh build/release ;;
        *) run "$name" ;;
    esac
done

#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 the my_classes authors
# SPDX-License-Identifier: MIT

#   run.sh                           the demonstration program: one editor in a window
#   run.sh document_editor [FILE]... the document editor of examples/
#
# Installs what is missing, builds a release and opens the program. On a machine without a display the program is opened
# on a virtual one, photographed and closed again.
source "$(dirname "${BASH_SOURCE[0]}")/setup.sh"

target=my_classes_program
program=$repository/build/release/bin/my_classes
screenshot=$repository/build/screenshot.png
window_name='MainWindow with CustomTextEditor'
arguments=() # files
if [[ ${1:-} == document_editor ]]; then
    target=document_editor
    program=$repository/build/release/bin/my_classes_document_editor
    window_name='Document Editor'
    for file in "${@:2}"; do
        arguments+=("$(realpath -- "$file")")
    done
elif [[ $# -gt 0 ]]; then
    sed -n '4,8s/^# \?//p' "$0" >&2
    exit 2
fi

# wait_until SECONDS COMMAND...
wait_until() {
    local end=$((SECONDS + $1))
    shift
    until "$@"; do
        [[ $SECONDS -lt $end ]] || return 1
        sleep 0.2
    done
}

has_ended() {
    ! kill -0 "$1" 2>/dev/null
}

has_display() {
    [[ -s $scratch/display ]]
}

has_window() {
    window=$(xdotool search --onlyvisible --name "$window_name") || has_ended "$program_id"
}

# An empty window has a colour or two.
has_photograph() {
    has_ended "$program_id" && return
    import -window "$window" "$screenshot" 2>/dev/null && [[ $(identify -format %k "$screenshot") -gt 16 ]]
}

# Asks the way a person does; only a window manager can. It starts late, so that it finds the window complete.
close_window() {
    openbox --sm-disable >/dev/null 2>&1 &
    wait_until 30 has_taken_key alt+F4
}

has_taken_key() {
    has_ended "$program_id" && return
    xdotool windowactivate "$window" 2>/dev/null
    [[ $(xdotool getactivewindow 2>/dev/null) == "$window" ]] || return
    xdotool key "$1"
    wait_until 5 has_ended "$program_id"
}

run_on_virtual_display() {
    scratch=$(mktemp -d)
    trap 'kill $(jobs -p) 2>/dev/null; rm -rf "$scratch"' EXIT

    Xvfb -displayfd 1 -screen 0 1280x1024x24 -noreset -nolisten tcp >"$scratch/display" 2>"$scratch/log" &
    if ! wait_until 30 has_display; then
        cat "$scratch/log" >&2
        return 1
    fi
    DISPLAY=:$(<"$scratch/display")
    export DISPLAY

    local status=0
    "$program" "${arguments[@]}" &
    program_id=$!
    if wait_until 60 has_window && wait_until 30 has_photograph && close_window; then
        wait "$program_id" || status=$?
        [[ $status -ne 0 ]] || echo "No display here: the program ran on a virtual one, its picture is $screenshot"
    else
        echo "The program did not open, show and close its window in time." >&2
        kill "$program_id"
        status=1
    fi
    return $status
}

need build
[[ -n ${DISPLAY:-}${WAYLAND_DISPLAY:-} ]] || need headless
continue_as_owner "$repository/scripts/run.sh" "$@"

cd "$repository"
mkdir -p build
cmake --preset release >build/configure.log 2>&1 || { cat build/configure.log >&2; exit 1; }
cmake --build --preset release --target "$target"

status=0
if [[ -n ${DISPLAY:-}${WAYLAND_DISPLAY:-} ]]; then
    "$program" "${arguments[@]}" || status=$?
else
    run_on_virtual_display || status=$?
fi
[[ $status -eq 0 ]] || echo "The program failed with status $status." >&2
exit $status

#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 the my_classes authors
# SPDX-License-Identifier: MIT

# Takes the pictures of the documentation: starts the real programs, light and dark, on a display of its own, and writes
# into them as a person would. They go to docs/images.
source "$(dirname "${BASH_SOURCE[0]}")/setup.sh"

images=$repository/docs/images
build=$repository/build/release

# A person of our own, with the colours wanted.
private=$(mktemp -d)
jobs_of_mine=()
finish() {
    local id
    for id in "${jobs_of_mine[@]}"; do kill "$id" 2>/dev/null || true; done
    rm -rf "$private"
}
trap finish EXIT

start_display() {
    Xvfb -displayfd 1 -screen 0 1280x1024x24 -noreset -nolisten tcp >"$private/display" 2>/dev/null &
    jobs_of_mine+=($!)
    until [[ -s $private/display ]]; do sleep 0.1; done
    export DISPLAY=:$(<"$private/display") QT_QPA_PLATFORM=xcb
    unset WAYLAND_DISPLAY
    openbox --sm-disable >/dev/null 2>&1 &
    jobs_of_mine+=($!)
    sleep 0.5
}

# $1: light or dark
choose_colours() {
    local person=$private/$1 text=000000 window=efefef base=ffffff disabled=8f8f8f
    [[ $1 == light ]] || { text=ffffff window=353535 base=232323 disabled=7f7f7f; }
    export HOME=$person XDG_CONFIG_HOME=$person/config XDG_CACHE_HOME=$person/cache XDG_DATA_HOME=$person/data
    export ENCHANT_CONFIG_DIR=$person/enchant XDG_RUNTIME_DIR=$person/run QT_QPA_PLATFORMTHEME=qt6ct
    mkdir -p "$XDG_CONFIG_HOME/qt6ct" "$XDG_CACHE_HOME" "$XDG_DATA_HOME" "$ENCHANT_CONFIG_DIR"
    mkdir -p -m 700 "$XDG_RUNTIME_DIR"
    # WindowText Button Light Midlight Dark Mid Text BrightText ButtonText Base Window Shadow Highlight HighlightedText
    # Link LinkVisited AlternateBase NoRole ToolTipBase ToolTipText PlaceholderText
    colours() {
        local list name
        for name in "$1" "$window" "$base" "$base" 7f7f7f 9f9f9f "$1" ffffff "$1" "$base" "$window" 000000 2a82da ffffff \
            2a82da a070d0 "$window" 000000 "$window" "$text" 808080; do
            list+="${list:+, }#ff$name"
        done
        echo "$list"
    }
    printf '[ColorScheme]\nactive_colors=%s\ninactive_colors=%s\ndisabled_colors=%s\n' \
        "$(colours $text)" "$(colours $text)" "$(colours $disabled)" >"$XDG_CONFIG_HOME/qt6ct/colours.conf"
    printf '[Appearance]\ncolor_scheme_path=%s\ncustom_palette=true\nstyle=Fusion\n' \
        "$XDG_CONFIG_HOME/qt6ct/colours.conf" >"$XDG_CONFIG_HOME/qt6ct/qt6ct.conf"
}

write() { xdotool type --delay 15 -- "$1"; }
press() { xdotool key --delay 60 "$@"; }

write_a_page() {
    press ctrl+b
    write "Chapter 1"
    press ctrl+b Return
    write "It was a drak and stormy night. The rain fell in torrents, except at occasional intervals, when it was "
    write "checked by a violent gust of wind."
    press F7
    sleep 1
}

# take NAME PROGRAM: one picture of its window after a page was written.
take() {
    "$build/bin/$2" >/dev/null 2>&1 &
    local program=$! window=
    jobs_of_mine+=("$program")
    until window=$(xdotool search --onlyvisible --pid "$program" 2>/dev/null | tail -1) && [[ $window ]]; do sleep 0.2; done
    sleep 1
    write_a_page
    import -window "$window" "$images/$1.png"
    kill "$program"
    wait "$program" 2>/dev/null || true
}

need build headless docs
cd "$repository"
cmake --preset release >/dev/null
cmake --build --preset release >/dev/null
start_display
for colours in light dark; do
    choose_colours $colours
    take "editor_$colours" my_classes
    [[ ! -x $build/bin/my_classes_document_editor ]] || take "document_editor_$colours" my_classes_document_editor
done
ls -l "$images"

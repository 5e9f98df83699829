#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 the my_classes authors
# SPDX-License-Identifier: MIT

# Takes the pictures of the documentation: starts the real programs, light and dark, on a display of its own, and does
# in them what a person would. They go to docs/images; look at them before they are committed.
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
    Xvfb -displayfd 1 -br -screen 0 1600x1024x24 -noreset -nolisten tcp >"$private/display" 2>/dev/null &
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
line() { write "$1" && press Return; }

# paste TYPE FILE: from the clipboard.
paste() {
    xclip -selection clipboard -t "$1" -i "$2"
    press ctrl+v
    sleep 0.5
}

# start WIDTH HEIGHT PROGRAM [ARGUMENT...]: when its window is up and has been given that size.
start() {
    local window= path=$3
    [[ $path == /* ]] || path=$build/bin/$path
    "$path" "${@:4}" >/dev/null 2>&1 &
    program=$!
    jobs_of_mine+=("$program")
    until window=$(xdotool search --onlyvisible --pid "$program" 2>/dev/null | tail -1) && [[ $window ]]; do
        kill -0 "$program" || exit 1
        sleep 0.2
    done
    sleep 1
    xdotool windowsize --sync "$window" "$1" "$2"
    sleep 0.5
}

# What stands on the display, and nothing of the display around it, in few colours.
shoot() {
    sleep 1
    xdotool mousemove 1599 1023
    import -window root -trim +repage -dither None -colors 255 -define png:compression-level=9 "PNG8:$images/$1_$colours.png"
}

stop() {
    kill "$program"
    wait "$program" 2>/dev/null || true
}

draw_hills() {
    convert -size 320x140 gradient:'#7fb2e5-#e8f1fa' -fill '#377d43' -draw 'polygon 0,140 90,45 180,140' \
        -fill '#5c8d5c' -draw 'polygon 90,140 205,25 320,140' "$private/hills.png"
}

name_section() {
    press F2
    line "$1"
}

write_a_page() {
    press ctrl+b
    write "Chapter 1"
    press ctrl+b Return
    write "It was a drak and stormy night. The rain fell in torrents, except at occasional intervals, when it was "
    write "checked by a violent gust of wind."
    press F7
}

write_of_a_journey() {
    cat >"$private/journey.html" <<'HTML'
<p>To pack</p>
<ol><li>Boots</li><li>Maps</li></ol>
<table border="1" cellspacing="0" cellpadding="6" style="border-collapse: collapse">
<tr><td>Day</td><td>Way</td><td>Hours</td></tr><tr><td>Monday</td><td>over the hills</td><td>7</td></tr></table>
HTML
    paste text/html "$private/journey.html"
    press ctrl+End
    paste image/png "$private/hills.png"
}

write_of_the_weather() {
    press ctrl+alt+1
    line "A year at the weather station"
    line "The station on the hill has been read every morning at seven. This section tells what was seen, and how often the instruments were wrong."
    press ctrl+alt+2
    line "What was measured"
    line "Three things, none of them twice:"
    press alt+o l d # a list with discs
    line "rain, in the copper gauge"
    line "wind, by the old anemometer"
    line "temprature, in the shade of the hut"
    press Return
    paste image/png "$private/hills.png"
    press Return
    cat >"$private/weather.html" <<'HTML'
<table border="1" cellspacing="0" cellpadding="4" style="border-collapse: collapse">
<tr><td>Month</td><td>Rain</td><td>Wind</td></tr><tr><td>March</td><td>48 mm</td><td>from the west</td></tr></table>
HTML
    paste text/html "$private/weather.html"
    press F7
}

editor() {
    start 800 520 my_classes
    write_a_page
    shoot editor
    stop
    start 800 700 my_classes
    write_of_a_journey
    shoot lists_tables_images
    stop
}

document_editor() {
    start 1000 760 my_classes_document_editor
    name_section Observations
    press ctrl+t
    name_section Instruments
    press ctrl+t
    name_section Conclusions
    press ctrl+Prior ctrl+Prior
    write_of_the_weather
    shoot document_editor
    press ctrl+Home ctrl+f
    sleep 0.5
    write "station"
    press Return
    shoot find_and_replace
    press Escape
    press ctrl+End alt+i t
    shoot table_size
    press Escape
    press alt+i p
    sleep 0.5
    write "$private/hills.png"
    press Return
    shoot image_size
    press Escape
    press F2
    write "The weather"
    shoot rename_tab
    stop
}

# A file of which the second half never comes.
serve_slowly() {
    python3 - >"$private/port" <<'PYTHON' &
import http.server, time
class Slow(http.server.BaseHTTPRequestHandler):
    def do_GET(self):
        self.send_response(200)
        self.send_header("Content-Length", "100000")
        self.end_headers()
        for _ in range(21):
            self.wfile.write(bytes(2000))
            self.wfile.flush()
            time.sleep(0.03)
        time.sleep(600)
    def log_message(self, *arguments):
        pass
server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), Slow)
print(server.server_port, flush=True)
server.serve_forever()
PYTHON
    jobs_of_mine+=($!)
    until [[ -s $private/port ]]; do sleep 0.1; done
}

download() {
    start 900 420 tabs_and_download
    press alt+f d
    line "http://127.0.0.1:$(<"$private/port")/maps.zip"
    sleep 0.5
    line "$private/maps.zip"
    sleep 1
    shoot download
    stop
}

# Qt Designer with what it is offered, and a form that holds some of it.
designer() {
    cat >"$private/form.ui" <<'UI'
<ui version="4.0">
 <class>Form</class>
 <widget class="QWidget" name="Form">
  <property name="geometry"><rect><x>0</x><y>0</y><width>580</width><height>560</height></rect></property>
  <layout class="QVBoxLayout"><item><widget class="my_classes::EditableTabWidget" name="tab_widget">
   <widget class="my_classes::CustomTab" name="chapter">
    <attribute name="title"><string>Chapter</string></attribute>
   </widget>
   <widget class="my_classes::CustomTab" name="appendix">
    <attribute name="title"><string>Appendix</string></attribute>
   </widget>
  </widget></item></layout>
 </widget>
</ui>
UI
    QT_PLUGIN_PATH=$build/lib start 1500 760 "$(qmake6 -query QT_INSTALL_BINS)/designer" "$private/form.ui"
    sleep 3
    xdotool mousemove 450 94 mousedown 1 mousemove 600 94 mousemove 760 94 mouseup 1 # the form, half hidden at first
    xdotool mousemove 100 120 click 1 # the filter of the widget box
    write "Tab"
    shoot designer
    stop
}

need build headless pictures
cd "$repository"
cmake --preset release >/dev/null
cmake --build --preset release --target my_classes_program document_editor tabs_and_download my_classes_designer >/dev/null
start_display
draw_hills
serve_slowly
for colours in light dark; do
    choose_colours $colours
    editor
    document_editor
    download
    designer
done
ls -l "$images"

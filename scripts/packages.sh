#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 the my_classes authors
# SPDX-License-Identifier: MIT

# Makes the Debian packages in build/packages/debs and has them checked. "scripts/packages.sh --install" goes on: in a
# Debian of its own below build/packages, which it fetches, it installs them, builds and starts the program of the
# README, and removes them again. That takes root, the network and some minutes.
source "$(dirname "${BASH_SOURCE[0]}")/setup.sh"

build=$repository/build/packages
debs=$build/debs
clean=$build/clean

make_packages() {
    rm -rf "$debs"
    cmake --preset packages >"$repository/build/configure.log"
    cmake --build --preset packages
    (cd "$build" && cpack -B "$debs") >"$build/cpack.log" 2>&1 || { cat "$build/cpack.log" >&2; exit 1; }
}

check_packages() {
    lintian --allow-root --fail-on error --suppress-tags initial-upload-closes-no-bugs,maintscript-calls-ldconfig "$debs"/*.deb
    desktop-file-validate packaging/*.desktop
    # The project has no domain, from which the identifier would otherwise be made.
    appstreamcli validate --no-net --override=cid-desktopapp-is-not-rdns=info packaging/*.metainfo.xml
    for page in packaging/*.1; do
        [[ -z $(man --warnings --encoding=UTF-8 --local-file "$page" 2>&1 >/dev/null) ]]
    done
    ls -l "$debs"
}

inside() {
    chroot "$clean" env DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8 HOME=/root PATH=/usr/sbin:/usr/bin:/sbin:/bin "$@"
}

quietly() {
    inside "$@" >"$build/apt.log" 2>&1 || { cat "$build/apt.log" >&2; exit 1; }
}

install_quietly() {
    quietly apt-get install -qq --yes --no-install-recommends "$@"
}

make_clean_place() {
    [[ ! -e $clean ]] || rm -rf --one-file-system "$clean"
    debootstrap --variant=minbase "$(. /etc/os-release && echo "$VERSION_CODENAME")" "$clean" >"$build/debootstrap.log" 2>&1 ||
        { tail -20 "$build/debootstrap.log" >&2; exit 1; }
    install_quietly cmake g++ make hunspell-en-us fonts-liberation
}

# $1: "cpp" or "cmake"; the first such block of the README.
readme_block() {
    awk -v language="$1" '$0 == "```" language && !seen { inside = seen = 1; next }
                          inside && $0 == "```" { exit }
                          inside' README.md
}

jobs_of_mine=()
finish() {
    local id
    for id in "${jobs_of_mine[@]}"; do kill "$id" 2>/dev/null || true; done
}
trap finish EXIT

# The window of the program in the clean place opens on a display of this machine.
see_window() {
    local name tries=0
    name=$(basename "$1")
    rm -f "$build/display"
    Xvfb -displayfd 3 -screen 0 1280x1024x24 3>"$build/display" 2>/dev/null &
    jobs_of_mine+=($!)
    until [[ -s $build/display ]]; do sleep 0.2; done
    export DISPLAY=:$(<"$build/display")
    inside timeout 120 "$1" >"$build/program.log" 2>&1 &
    jobs_of_mine+=($!)
    until xdotool search --onlyvisible --class "$name" >/dev/null 2>&1; do
        sleep 0.5
        ((++tries < 100)) || { echo "no window" >&2; cat "$build/program.log" >&2; exit 1; }
    done
    sleep 3
    import -window root "$build/$name.png"
}

try_in_clean_place() {
    make_clean_place
    mkdir "$clean/debs" "$clean/notes"
    cp "$debs"/*.deb "$clean/debs"
    readme_block cpp >"$clean/notes/main.cpp"
    readme_block cmake >"$clean/notes/CMakeLists.txt"
    quietly sh -c 'apt-get install -qq --yes --no-install-recommends /debs/*.deb'
    inside sh -c 'cd /notes && cmake -B build >/dev/null && cmake --build build'
    see_window /notes/build/notes
    finish
    quietly sh -c 'apt-get purge -qq --yes $(dpkg-query -f "\${Package}\n" -W "*my-classes*")'
    if find "$clean/usr" "$clean/etc" "$clean/var/lib/dpkg/info" -name '*my[-_]classes*' | grep .; then
        echo "The packages leave these files behind." >&2
        exit 1
    fi
    rm -rf --one-file-system "$clean"
    echo "Installed, the program of the README built and seen ($build/notes.png), removed without a rest."
}

need build headless packages
cd "$repository"
mkdir -p build
make_packages
check_packages
if [[ ${1:-} == --install ]]; then
    [[ $EUID -eq 0 ]] || { echo "Installing in a clean place takes root." >&2; exit 1; }
    try_in_clean_place
fi

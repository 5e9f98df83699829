# SPDX-FileCopyrightText: 2026 the my_classes authors
# SPDX-License-Identifier: MIT

# Shared by the other scripts, which source it: installs the Debian packages that a task needs, and sets the leak checker up.
set -euo pipefail
repository=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

# For what is built with the sanitizers. The leak checker of GCC 12 takes the thread-local memory of a library that was
# loaded late (Hunspell's 16 bytes) for that of an older libc when it lies at the start of a page, as one block of that
# size in 128 does: the two words before it become a range to search, and the checker crashes. Elsewhere it leaves that
# memory out anyway, so that nothing is missed by not looking for it.
export LSAN_OPTIONS=suppressions=$repository/tests/support/leaks_of_others.txt:print_suppressions=0:intercept_tls_get_addr=0

build_packages=(cmake ninja-build g++ pkg-config qt6-base-dev qt6-tools-dev qt6-l10n-tools libenchant-2-dev hunspell-en-us fonts-liberation)
headless_packages=(xvfb openbox xdotool xclip imagemagick) # an X server without a screen, and hands and eyes for it
test_packages=(hunspell-es openssl nginx-light libqt6opengl6-dev poppler-utils)
ci_packages=(git clang clang-format clang-tidy clazy reuse python3 abigail-tools)
packages_packages=(dpkg-dev lintian desktop-file-utils appstream man-db debootstrap)
docs_packages=(doxygen graphviz)
pictures_packages=(qt6ct designer-qt6 python3)
bench_packages=(nginx-light curl python3)

# What stands for the packages on a system that has other ones: commands and pkg-config modules.
build_commands=(cmake ninja c++ pkg-config)
build_modules=(Qt6PrintSupport enchant-2)
headless_commands=(Xvfb openbox xdotool xclip import)
test_commands=(openssl nginx pdftotext)
ci_commands=(git clang++ clang-format clang-tidy clazy reuse python3 abidw)
packages_commands=(dpkg-shlibdeps lintian desktop-file-validate appstreamcli man debootstrap)
docs_commands=(doxygen dot)
pictures_commands=(qt6ct python3)
bench_commands=(nginx curl python3)

as_root() {
    if [[ $EUID -eq 0 ]]; then
        env DEBIAN_FRONTEND=noninteractive "$@"
    else
        sudo env DEBIAN_FRONTEND=noninteractive "$@"
    fi
}

# need GROUP...: installs what the groups (build, headless, test, ci, packages, docs, pictures, bench) lack. Quick when that is nothing.
need() {
    local group list missing=()
    if ! command -v apt-get >/dev/null || ! command -v dpkg-query >/dev/null; then
        need_commands "$@"
        return
    fi

    local -A installed=()
    while read -r name state; do
        [[ $state == installed ]] && installed[$name]=yes
    done < <(dpkg-query --show --showformat '${Package} ${db:Status-Status}\n')
    for group in "$@"; do
        list="${group}_packages[@]"
        for name in "${!list}"; do
            [[ -v installed[$name] ]] || missing+=("$name")
        done
    done
    [[ ${#missing[@]} -gt 0 ]] || return 0

    if [[ $EUID -ne 0 ]] && ! command -v sudo >/dev/null; then
        echo "my_classes needs root or sudo to install: ${missing[*]}" >&2
        exit 1
    fi
    echo "Installing ${missing[*]}"
    as_root apt-get update -qq
    as_root apt-get install -qq --yes --no-install-recommends -o DPkg::Lock::Timeout=300 "${missing[@]}" >/dev/null
}

need_commands() {
    local group list name missing=()
    for group in "$@"; do
        list="${group}_commands[@]"
        for name in "${!list}"; do
            command -v "$name" >/dev/null || missing+=("$name")
        done
    done
    for name in "${build_modules[@]}"; do
        pkg-config --exists "$name" 2>/dev/null || missing+=("$name")
    done
    if [[ ${#missing[@]} -gt 0 ]]; then
        echo "This system has no apt-get. Please install by its own means what my_classes lacks: ${missing[*]}" >&2
        exit 1
    fi
}

# continue_as_owner SCRIPT ARGUMENT...: started through sudo, goes on as the person whose tree this is, so that the tree
# does not fill with files of root's.
continue_as_owner() {
    if [[ $EUID -eq 0 && ${SUDO_UID:-0} -ne 0 && $(stat --format %u "$repository") == "$SUDO_UID" ]]; then
        exec sudo --user "$SUDO_USER" --set-home \
            --preserve-env=DISPLAY,WAYLAND_DISPLAY,XAUTHORITY,XDG_RUNTIME_DIR,CI -- "$@"
    fi
}

#!/bin/sh
# SPDX-FileCopyrightText: 2026 the my_classes authors
# SPDX-License-Identifier: MIT
#
# Runs the tests of the download worker under the thread sanitizer.
#   scripts/tsan.sh [BUILD_DIRECTORY] [TEST_FUNCTION...]
# A distribution's Qt is not instrumented: its locks and queues are invisible to the sanitizer, so whatever happens in
# its frames is suppressed. What remains are races between the library's own accesses.
set -eu

source=$(cd "$(dirname "$0")/.." && pwd)
build=${1:-$source/build/tsan}
[ $# -eq 0 ] || shift
cmake -S "$source" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DMY_CLASSES_BUILD_BENCHMARKS=OFF \
    -DMY_CLASSES_BUILD_EXAMPLES=OFF -DCMAKE_CXX_FLAGS="-O1 -fsanitize=thread -fno-omit-frame-pointer" >/dev/null
cmake --build "$build" --target tst_download

cat >"$build/tsan.supp" <<'SUPP'
called_from_lib:libQt6Core.so
called_from_lib:libQt6Gui.so
called_from_lib:libQt6Network.so
called_from_lib:libQt6Widgets.so
called_from_lib:libQt6Test.so
race:libQt6
mutex:libQt6
deadlock:libQt6
thread:libQt6
SUPP
TSAN_OPTIONS="suppressions=$build/tsan.supp halt_on_error=0 exitcode=66" QT_QPA_PLATFORM=offscreen \
    "$build/bin/tst_download" "$@"

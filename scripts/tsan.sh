#!/bin/sh
# SPDX-FileCopyrightText: 2026 the my_classes authors
# SPDX-License-Identifier: MIT
#
# Runs the tests of the download worker under the thread sanitizer.
#   scripts/tsan.sh [BUILD_DIRECTORY] [TEST_FUNCTION...]
# A distribution's Qt is not instrumented: the sanitizer does not see its locks and queues, and takes everything that
# passes through them for a race. So a report counts if both accesses are made by the library's own code, which shares
# its data by what the sanitizer does see (std::mutex, atomics).
set -eu

source=$(cd "$(dirname "$0")/.." && pwd)
build=${1:-$source/build/tsan}
[ $# -eq 0 ] || shift
cmake -S "$source" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DMY_CLASSES_BUILD_BENCHMARKS=OFF \
    -DMY_CLASSES_BUILD_EXAMPLES=OFF -DCMAKE_CXX_FLAGS="-O1 -fsanitize=thread -fno-omit-frame-pointer" >/dev/null
cmake --build "$build" --target tst_download

rm -f "$build"/tsan.log.*
# die_after_fork: the test starts openssl while Qt's threads run.
TSAN_OPTIONS="log_path=$build/tsan.log die_after_fork=0 exitcode=0" QT_QPA_PLATFORM=offscreen \
    "$build/bin/tst_download" "$@"

python3 - "$source" "$build"/tsan.log.* <<'PY'
import os, re, sys

source, logs = sys.argv[1], [path for path in sys.argv[2:] if os.path.exists(path)]
own = tuple(os.path.join(source, directory) for directory in ("src/", "include/"))
not_telling = re.compile(r" (/usr/include/|\.\./\.\./\.\./\.\./src/libsanitizer/)")

def is_own(stack):
    frames = [frame for frame in stack.splitlines() if not not_telling.search(frame)]
    return bool(frames) and any(" " + directory in frames[0] for directory in own)

reports = [report for log in logs for report in open(log).read().split("WARNING: ThreadSanitizer: ")[1:]]
counted = []
for report in reports:
    accesses = re.findall(r"(?:[Rr]ead|[Ww]rite) of size[^\n]*:\n((?: +#\d[^\n]*\n)+)", report)
    if not report.startswith("data race") or (len(accesses) == 2 and all(map(is_own, accesses))):
        counted.append(report)
print("\n".join(counted))
print(f"{len(reports)} reports, {len(counted)} of the library's own code")
sys.exit(bool(counted))
PY

#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 the my_classes authors
# SPDX-License-Identifier: MIT

# Random operations under the sanitizers, another walk each time, until the time is over:
#   scripts/random_operations.sh [MINUTES] [FIRST_SEED]
# Says how many were done, and keeps the output of every walk that failed in build/random_operations.
source "$(dirname "${BASH_SOURCE[0]}")/setup.sh"

minutes=${1:-60} seed=${2:-1}
operations=1000
need build ci
cd "$repository"
cmake --preset asan >/dev/null
cmake --build --preset asan --target tst_random_operations
kept=build/random_operations
mkdir -p "$kept"

walk() {
    MY_CLASSES_SEED=$seed MY_CLASSES_OPERATIONS=$operations QT_QPA_PLATFORM=offscreen QTEST_FUNCTION_TIMEOUT=600000 \
        build/asan/bin/tst_random_operations >"$kept/seed_$seed.log" 2>&1
}

end=$((SECONDS + minutes * 60)) walks=0 failed=0
while [[ $SECONDS -lt $end ]]; do
    if walk; then
        rm "$kept/seed_$seed.log"
    else
        failed=$((failed + 1))
        echo "seed $seed failed, see $kept/seed_$seed.log"
    fi
    walks=$((walks + 1)) seed=$((seed + 1))
done
echo "$walks walks of 3 times $operations operations, $failed failed"
exit $((failed > 0))

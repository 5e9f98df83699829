#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 the my_classes authors
# SPDX-License-Identifier: MIT

# Compares the layout of documents with Qt's over many random edits, and names the seeds that show a difference:
# "scripts/layout_comparison.sh [rounds] [preset] [first seed]", by default 10,000 rounds with the preset "dev". The
# preset "asan" runs it under the sanitizers. A seed stands for 100 rounds.
source "$(dirname "${BASH_SOURCE[0]}")/setup.sh"

need build headless test
continue_as_owner "$repository/scripts/layout_comparison.sh" "$@"

rounds=${1:-10000}
preset=${2:-dev}
first=${3:-0}
cd "$repository"
cmake --preset "$preset" >/dev/null
cmake --build --preset "$preset" --target tst_layout >/dev/null

failed=0
for ((seed = first; seed < first + rounds / 100; ++seed)); do
    output=$(QT_QPA_PLATFORM=offscreen MY_CLASSES_LAYOUT_ROUNDS=100 MY_CLASSES_LAYOUT_SEED=$seed \
        "build/$preset/bin/tst_layout" equals_qt 2>&1) && continue
    failed=$((failed + 1))
    grep -aE '^FAIL|ERROR: |runtime error' <<<"$output" || printf 'seed %s: ended early\n' "$seed"
done
printf '%s rounds, %s of %s seeds with a difference\n' "$rounds" "$failed" "$((rounds / 100))"
[[ $failed -eq 0 ]]

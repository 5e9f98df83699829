#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 the my_classes authors
# SPDX-License-Identifier: MIT

# Formats every source file; "scripts/format.sh --check" only says which ones it would change, and fails on any.
source "$(dirname "${BASH_SOURCE[0]}")/setup.sh"

need ci
cd "$repository"
if [[ ${1:-} == --check ]]; then
    git ls-files -z '*.cpp' '*.h' | xargs -0 clang-format --dry-run -Werror
else
    git ls-files -z '*.cpp' '*.h' | xargs -0 clang-format -i
fi

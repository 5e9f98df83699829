#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 the my_classes authors
# SPDX-License-Identifier: MIT

# Installs what is missing, builds with warnings as errors and runs every test, offscreen. Arguments go to ctest:
# "scripts/test.sh -R search" runs the tests with "search" in their names.
source "$(dirname "${BASH_SOURCE[0]}")/setup.sh"

need build headless test
continue_as_owner "$repository/scripts/test.sh" "$@"

cd "$repository"
cmake --preset dev
cmake --build --preset dev
ctest --test-dir build/dev --output-on-failure --parallel 2 "$@"

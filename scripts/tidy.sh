#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 the my_classes authors
# SPDX-License-Identifier: MIT

# Runs clang-tidy with the checks of .clang-tidy over the library; fails on any finding. Several sources are read as one
# file, which takes a fifth of the time; that file includes .cpp files, of course.
source "$(dirname "${BASH_SOURCE[0]}")/setup.sh"

need build ci
cd "$repository"
mkdir -p build
cmake -S . -B build/tidy -G Ninja -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_UNITY_BUILD=ON -DCMAKE_EXPORT_COMPILE_COMMANDS=ON \
    -DMY_CLASSES_BUILD_TESTS=OFF -DMY_CLASSES_BUILD_BENCHMARKS=OFF -DMY_CLASSES_BUILD_EXAMPLES=OFF \
    -DMY_CLASSES_BUILD_PROGRAM=OFF -DMY_CLASSES_BUILD_DOCUMENT_EDITOR=OFF >build/tidy.log
cmake --build build/tidy --target my_classes_autogen >>build/tidy.log
printf '%s\0' build/tidy/src/CMakeFiles/my_classes.dir/Unity/*.cxx |
    xargs -0 -n1 -P2 clang-tidy --quiet --checks=-bugprone-suspicious-include --warnings-as-errors='*' -p build/tidy 2>>build/tidy.log

#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 the my_classes authors
# SPDX-License-Identifier: MIT

# Makes the documentation of the public interface in build/docs/html; fails on any warning, a public name without
# documentation among them.
source "$(dirname "${BASH_SOURCE[0]}")/setup.sh"

need build docs
cd "$repository"
BUILD_DIRECTORY=build/docs
VERSION=$(sed -n 's/^project(my_classes VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
export BUILD_DIRECTORY VERSION
mkdir -p "$BUILD_DIRECTORY"
sed "s/@PROJECT_VERSION@/$VERSION/; s/@PROJECT_VERSION_[A-Z]*@/0/" src/version.h.in >"$BUILD_DIRECTORY/version.h"
doxygen docs/Doxyfile
echo "$repository/$BUILD_DIRECTORY/html/index.html"

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

# The files that the way of a key press leads through.
grep -o '`[a-z]*/[a-z_]*\.\(cpp\|h\)`' docs/pages/architecture.md | tr -d '`' | while read -r file; do
    [[ -e src/$file ]] || { echo "docs/pages/architecture.md: there is no src/$file" >&2; exit 1; }
done
echo "$repository/$BUILD_DIRECTORY/html/index.html"

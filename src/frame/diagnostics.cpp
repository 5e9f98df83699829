// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include <my_classes/diagnostic_output.h>

#include <atomic>

namespace my_classes {

namespace {
std::atomic<bool> is_on = true;
} // namespace

void set_diagnostic_output(bool on)
{
    is_on = on;
}

bool diagnostic_output()
{
    return is_on;
}

} // namespace my_classes

// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QString>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <vector>

namespace bench {

/// Milliseconds on the clock, or of the processor's work where MY_CLASSES_BENCH_CLOCK is "processor": these do not
/// depend on what else the machine does, or not as much.
inline double now()
{
    static const bool of_processor = qgetenv("MY_CLASSES_BENCH_CLOCK") == "processor";
    timespec time{};
    clock_gettime(of_processor ? CLOCK_PROCESS_CPUTIME_ID : CLOCK_MONOTONIC, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

/// Milliseconds that `work` takes.
template<typename Work>
double milliseconds(const Work &work)
{
    const double start = now();
    work();
    return now() - start;
}

inline double median(std::vector<double> values)
{
    std::nth_element(values.begin(), values.begin() + static_cast<long>(values.size() / 2), values.end());
    return values[values.size() / 2];
}

/// Medians of `rounds` runs of both, taken turn by turn so that a noisy machine disturbs both alike.
struct Pair
{
    double ours;
    double plain;
};

template<typename Ours, typename Plain>
Pair alternate(int rounds, const Ours &ours, const Plain &plain)
{
    std::vector<double> our_times;
    std::vector<double> plain_times;
    for (int i = 0; i < rounds; ++i) {
        our_times.push_back(milliseconds(ours));
        plain_times.push_back(milliseconds(plain));
    }
    return {median(our_times), median(plain_times)};
}

/// One row of the table: what was measured, both times, their ratio and how much it may be.
inline void print_row(const QString &what, Pair times, double limit)
{
    const double ratio = times.ours / times.plain;
    std::printf("| %-62s | %10.3f | %10.3f | %6.2f | %6.2f | %s |\n", qUtf8Printable(what), times.ours, times.plain,
                ratio, limit, ratio <= limit ? "yes" : "NO");
    std::fflush(stdout);
}

inline void print_header(const char *ours, const char *plain)
{
    std::printf("| %-62s | %10s | %10s | %6s | %6s | met |\n", "what", ours, plain, "ratio", "limit");
    std::printf("|%s|---|---|---|---|---|\n", std::string(64, '-').c_str());
}

} // namespace bench

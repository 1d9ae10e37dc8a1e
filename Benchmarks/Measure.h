// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <cstddef>
#include <ctime>
#include <type_traits>
#include <vector>

#include <benchmark/benchmark.h>

#include <fcntl.h>
#include <unistd.h>

namespace quorvan::benchmarks {

/// Sends what the program logs to /dev/null for its own lifetime; the cost of a log file is not measured.
class QuietLog {
public:
    QuietLog()
        : standardError_(dup(STDERR_FILENO)) {
        const int null = open("/dev/null", O_WRONLY | O_CLOEXEC);
        dup2(null, STDERR_FILENO);
        close(null);
    }
    ~QuietLog() {
        dup2(standardError_, STDERR_FILENO);
        close(standardError_);
    }
    QuietLog(const QuietLog&) = delete;
    QuietLog& operator=(const QuietLog&) = delete;

private:
    int standardError_;
};

/// Processor time of this thread: what another program does meanwhile is not in it.
inline double threadSeconds() {
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + 1e-9 * static_cast<double>(now.tv_nsec);
}

inline double median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// Runs a baseline and our own work in turn. What the work returns is its user's, so its end is not timed.
/// The time of the benchmark is the processor time of our work, or that of another clock; the counter "ratio"
/// is its median over the baseline's.
template <class Baseline, class Work>
void compare(benchmark::State& state, std::size_t bytes, Baseline&& baseline, Work&& work,
             double (*now)() = threadSeconds) {
    const auto seconds = [now](auto&& what) {
        const double begin = now();
        if constexpr (std::is_void_v<decltype(what())>) {
            what();
            return now() - begin;
        } else {
            const auto result = what();
            return now() - begin;
        }
    };
    std::vector<double> baselines;
    std::vector<double> works;
    for ([[maybe_unused]] auto _ : state) {
        baselines.push_back(seconds(baseline));
        works.push_back(seconds(work));
        state.SetIterationTime(works.back());
    }
    state.counters["ratio"] = median(works) / median(baselines);
    state.counters["baseline_ms"] = 1e3 * median(baselines);
    state.SetBytesProcessed(static_cast<std::int64_t>(bytes) * state.iterations());
}

} // namespace quorvan::benchmarks

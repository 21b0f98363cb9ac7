#pragma once
// Wall-clock time of a piece of work, for the benchmarks' comparisons within one run.
#include <chrono>
#include <functional>

namespace sonarium::bench {

inline double timeMs(const std::function<void()>& work) {
    const auto t0 = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - t0).count();
}

}  // namespace sonarium::bench

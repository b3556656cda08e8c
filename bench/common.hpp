// Shared setup of the benchmarks: image sizes, thread counts, byte counters.
// Every benchmark takes the thread count as its last argument (1 or 2) and sets
// both the library's and OpenCV's thread count to it.
#pragma once

#include <benchmark/benchmark.h>
#include <zelip8.h>

#ifdef ZEL_HAVE_OPENCV
#include <opencv2/core.hpp>
#endif

namespace zb {

constexpr int kW = 1920, kH = 1080;

inline void set_threads(int n) {
    zelSetNumThreads(n);
#ifdef ZEL_HAVE_OPENCV
    cv::setNumThreads(n);
#endif
}

// Reports bytes moved per iteration as GB/s ("bytes_per_second").
inline void bytes(benchmark::State& st, double perIteration) {
    st.SetBytesProcessed(int64_t(double(st.iterations()) * perIteration));
}

} // namespace zb

// Registers a benchmark at 1 and 2 threads.
#define ZB_THREADS(fn) BENCHMARK(fn)->Arg(1)->Arg(2)->Unit(benchmark::kMicrosecond)->UseRealTime()

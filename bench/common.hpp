// Shared setup of the benchmarks: image sizes, thread counts, byte counters.
// Every benchmark takes the thread count as its last argument (1 or 2) and sets
// both the library's and OpenCV's thread count to it.
#pragma once

#include <benchmark/benchmark.h>
#include <random>
#include <type_traits>
#include <vector>
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

// A 1920x1080 image of `channels` samples a pixel, uniform integers in
// [lo, hi]; float images get a quarter added so that they are not integral.
template <class T>
std::vector<T> random_image(int channels, unsigned seed, long long lo, long long hi) {
    std::vector<T> v(std::size_t(kW) * kH * channels);
    std::mt19937 rng(seed);
    std::uniform_int_distribution<long long> d(lo, hi);
    for (T& x : v) x = std::is_floating_point<T>::value ? T(double(d(rng)) + 0.25) : T(d(rng));
    return v;
}

} // namespace zb

// Names: <library>/<case>/threads:<n>, with `zeli` for ours and `opencv` for
// OpenCV's nearest equivalent of the same case (and `libc` for memcpy and
// memset baselines), so that bench/run_bench.py can pair them. Extra
// arguments are named too (size:1, axis:2) and belong to the case.
#define ZB_NAMED(lib, name, reg) reg->Name(lib "/" name)->Unit(benchmark::kMicrosecond)->UseRealTime()
// Registers `fn` as <lib>/<name> at 1 and 2 threads.
#define ZB_CASE(lib, name, fn) ZB_NAMED(lib, name, BENCHMARK(fn))->ArgName("threads")->Arg(1)->Arg(2)
#define ZB_ZELI(name, fn) ZB_CASE("zeli", name, fn)
#define ZB_OPENCV(name, fn) ZB_CASE("opencv", name, fn)
// A benchmark without a case name yet: listed by bench/run_bench.py under "unpaired".
#define ZB_THREADS(fn) ZB_CASE("unpaired", #fn, fn)

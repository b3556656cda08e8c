// Unary mathematics, bitwise operations and shifts at 1920x1080, beside
// OpenCV's equivalents, and a memory copy of the same bytes as the bandwidth
// bound of the bitwise rows and the shifts.
#include "common.hpp"

#include <cstring>

namespace {

using zb::kH;
using zb::kW;

template <class T>
struct Img {
    std::vector<T> v;
    Img(unsigned seed, long long lo, long long hi) : v(zb::random_image<T>(1, seed, lo, hi)) {}
    T* p() { return v.data(); }
    static int step() { return int(kW * sizeof(T)); }
};
constexpr ZeliSize kRoi = {kW, kH};

// Runs f() and counts `bytes` bytes a pixel moved (sources read plus destination written).
template <class F>
void run(benchmark::State& st, double bytes, F&& f) {
    zb::set_threads(int(st.range(0)));
    for (auto _ : st) f();
    zb::bytes(st, bytes * kW * kH);
}

void And_8u_C1R(benchmark::State& st) {
    Img<Zel8u> a(1, 0, 255), b(2, 0, 255), d(3, 0, 255);
    run(st, 3, [&] { zeliAnd_8u_C1R(a.p(), a.step(), b.p(), b.step(), d.p(), d.step(), kRoi); });
}
void Abs_16s_C1R(benchmark::State& st) {
    Img<Zel16s> a(1, -32768, 32767), d(3, 0, 0);
    run(st, 4, [&] { zeliAbs_16s_C1R(a.p(), a.step(), d.p(), d.step(), kRoi); });
}
void Sqrt_32f_C1R(benchmark::State& st) {
    Img<Zel32f> a(1, 0, 1000), d(3, 0, 0);
    run(st, 8, [&] { zeliSqrt_32f_C1R(a.p(), a.step(), d.p(), d.step(), kRoi); });
}
void Ln_32f_C1R(benchmark::State& st) {
    Img<Zel32f> a(1, 0, 1000), d(3, 0, 0);
    run(st, 8, [&] { zeliLn_32f_C1R(a.p(), a.step(), d.p(), d.step(), kRoi); });
}
void Exp_32f_C1R(benchmark::State& st) {
    Img<Zel32f> a(1, -20, 19), d(3, 0, 0);
    run(st, 8, [&] { zeliExp_32f_C1R(a.p(), a.step(), d.p(), d.step(), kRoi); });
}
void RShiftC_16u_C1R(benchmark::State& st) {
    Img<Zel16u> a(1, 0, 65535), d(3, 0, 0);
    run(st, 4, [&] { zeliRShiftC_16u_C1R(a.p(), a.step(), 3, d.p(), d.step(), kRoi); });
}
// The bandwidth bound: a copy of 1 and of 2 bytes a pixel.
template <class T>
void Bound_memcpy(benchmark::State& st) {
    Img<T> a(1, 0, 100), d(3, 0, 0);
    run(st, 2 * sizeof(T), [&] {
        std::memcpy(d.p(), a.p(), a.v.size() * sizeof(T));
        benchmark::ClobberMemory();
    });
}

ZB_ZELI("And_8u_C1R", And_8u_C1R);
ZB_ZELI("Abs_16s_C1R", Abs_16s_C1R);
ZB_ZELI("Sqrt_32f_C1R", Sqrt_32f_C1R);
ZB_ZELI("Ln_32f_C1R", Ln_32f_C1R);
ZB_ZELI("Exp_32f_C1R", Exp_32f_C1R);
ZB_ZELI("RShiftC_16u_C1R", RShiftC_16u_C1R);
ZB_CASE("libc", "And_8u_C1R", Bound_memcpy<Zel8u>);
ZB_CASE("libc", "RShiftC_16u_C1R", Bound_memcpy<Zel16u>);

#ifdef ZEL_HAVE_OPENCV
template <int Type, class F>
void cv_run(benchmark::State& st, double bytes, double lo, double hi, F f) {
    cv::Mat a(kH, kW, Type), b(kH, kW, Type), d(kH, kW, Type);
    cv::randu(a, lo, hi);
    cv::randu(b, lo, hi);
    run(st, bytes, [&] { f(a, b, d); });
}
void CV_bitwise_and_8u(benchmark::State& st) {
    cv_run<CV_8UC1>(st, 3, 0, 256, [](auto& a, auto& b, auto& d) { cv::bitwise_and(a, b, d); });
}
void CV_abs_16s(benchmark::State& st) {
    cv_run<CV_16SC1>(st, 4, -32768, 32768, [](auto& a, auto&, auto& d) { d = cv::abs(a); });
}
void CV_sqrt_32f(benchmark::State& st) {
    cv_run<CV_32FC1>(st, 8, 0, 1000, [](auto& a, auto&, auto& d) { cv::sqrt(a, d); });
}
void CV_log_32f(benchmark::State& st) {
    cv_run<CV_32FC1>(st, 8, 0.25, 1000, [](auto& a, auto&, auto& d) { cv::log(a, d); });
}
void CV_exp_32f(benchmark::State& st) {
    cv_run<CV_32FC1>(st, 8, -20, 20, [](auto& a, auto&, auto& d) { cv::exp(a, d); });
}
ZB_OPENCV("And_8u_C1R", CV_bitwise_and_8u);
ZB_OPENCV("Abs_16s_C1R", CV_abs_16s);
ZB_OPENCV("Sqrt_32f_C1R", CV_sqrt_32f);
ZB_OPENCV("Ln_32f_C1R", CV_log_32f);
ZB_OPENCV("Exp_32f_C1R", CV_exp_32f);
#endif

} // namespace
BENCHMARK_MAIN();

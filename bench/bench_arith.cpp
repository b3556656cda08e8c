// Add, subtract, multiply and divide at 1920x1080, beside OpenCV's equivalents.
#include "common.hpp"

#include <cstdint>
#include <random>
#include <vector>

namespace {

template <class T>
struct Img {
    int w, h, ch;
    std::vector<T> v;
    Img(int w_, int h_, int ch_, unsigned seed, int lo = 0, int hi = 255) : w(w_), h(h_), ch(ch_), v(std::size_t(w_) * h_ * ch_) {
        std::mt19937 rng(seed);
        for (auto& x : v) x = T(lo + int(rng() % unsigned(hi - lo + 1)));
    }
    T* p() { return v.data(); }
    int step() const { return int(w * ch * sizeof(T)); }
    ZeliSize size() const { return {w, h}; }
};

using zb::kH;
using zb::kW;

template <int N>
void Add_8u_C1RSfs(benchmark::State& st) {
    zb::set_threads(int(st.range(0)));
    Img<Zel8u> a(kW, kH, 1, 1), b(kW, kH, 1, 2), d(kW, kH, 1, 3);
    for (auto _ : st) zeliAdd_8u_C1RSfs(a.p(), a.step(), b.p(), b.step(), d.p(), d.step(), a.size(), N);
    zb::bytes(st, 3.0 * kW * kH);
}
void Add_32f_C1R(benchmark::State& st) {
    zb::set_threads(int(st.range(0)));
    Img<Zel32f> a(kW, kH, 1, 1), b(kW, kH, 1, 2), d(kW, kH, 1, 3);
    for (auto _ : st) zeliAdd_32f_C1R(a.p(), a.step(), b.p(), b.step(), d.p(), d.step(), a.size());
    zb::bytes(st, 12.0 * kW * kH);
}
void Sub_16s_C1RSfs(benchmark::State& st) {
    zb::set_threads(int(st.range(0)));
    Img<Zel16s> a(kW, kH, 1, 1, -32768, 32767), b(kW, kH, 1, 2, -32768, 32767), d(kW, kH, 1, 3);
    for (auto _ : st) zeliSub_16s_C1RSfs(a.p(), a.step(), b.p(), b.step(), d.p(), d.step(), a.size(), 0);
    zb::bytes(st, 6.0 * kW * kH);
}
void Mul_8u_C1RSfs(benchmark::State& st) {
    zb::set_threads(int(st.range(0)));
    Img<Zel8u> a(kW, kH, 1, 1), b(kW, kH, 1, 2), d(kW, kH, 1, 3);
    for (auto _ : st) zeliMul_8u_C1RSfs(a.p(), a.step(), b.p(), b.step(), d.p(), d.step(), a.size(), 0);
    zb::bytes(st, 3.0 * kW * kH);
}
void MulScale_8u_C1R(benchmark::State& st) {
    zb::set_threads(int(st.range(0)));
    Img<Zel8u> a(kW, kH, 1, 1), b(kW, kH, 1, 2), d(kW, kH, 1, 3);
    for (auto _ : st) zeliMulScale_8u_C1R(a.p(), a.step(), b.p(), b.step(), d.p(), d.step(), a.size());
    zb::bytes(st, 3.0 * kW * kH);
}
void Div_32f_C1R(benchmark::State& st) {
    zb::set_threads(int(st.range(0)));
    Img<Zel32f> a(kW, kH, 1, 1, 1, 1000), b(kW, kH, 1, 2), d(kW, kH, 1, 3);
    for (auto _ : st) zeliDiv_32f_C1R(a.p(), a.step(), b.p(), b.step(), d.p(), d.step(), a.size());
    zb::bytes(st, 12.0 * kW * kH);
}
void AddC_8u_C3RSfs(benchmark::State& st) {
    zb::set_threads(int(st.range(0)));
    Img<Zel8u> a(kW, kH, 3, 1), d(kW, kH, 3, 3);
    const Zel8u v[3] = {10, 20, 30};
    for (auto _ : st) zeliAddC_8u_C3RSfs(a.p(), a.step(), v, d.p(), d.step(), a.size(), 0);
    zb::bytes(st, 6.0 * kW * kH);
}

ZB_ZELI("Add_8u_C1RSfs_scale0", Add_8u_C1RSfs<0>);
ZB_ZELI("Add_8u_C1RSfs_scale1", Add_8u_C1RSfs<1>);
ZB_ZELI("Add_32f_C1R", Add_32f_C1R);
ZB_ZELI("Sub_16s_C1RSfs", Sub_16s_C1RSfs);
ZB_ZELI("Mul_8u_C1RSfs", Mul_8u_C1RSfs);
ZB_ZELI("MulScale_8u_C1R", MulScale_8u_C1R);
ZB_ZELI("Div_32f_C1R", Div_32f_C1R);
ZB_ZELI("AddC_8u_C3RSfs", AddC_8u_C3RSfs);

#ifdef ZEL_HAVE_OPENCV
template <int Type, class F>
void cv_run(benchmark::State& st, double bytes, F f, bool nonzero = false) {
    zb::set_threads(int(st.range(0)));
    cv::Mat a(kH, kW, Type), b(kH, kW, Type), d(kH, kW, Type);
    cv::randu(a, 0, 255);
    cv::randu(b, nonzero ? 1 : 0, 255);
    for (auto _ : st) f(a, b, d);
    zb::bytes(st, bytes * kW * kH);
}
void CV_add_8u(benchmark::State& st) { cv_run<CV_8UC1>(st, 3, [](auto& a, auto& b, auto& d) { cv::add(a, b, d); }); }
void CV_add_32f(benchmark::State& st) { cv_run<CV_32FC1>(st, 12, [](auto& a, auto& b, auto& d) { cv::add(a, b, d); }); }
void CV_subtract_16s(benchmark::State& st) { cv_run<CV_16SC1>(st, 6, [](auto& a, auto& b, auto& d) { cv::subtract(b, a, d); }); }
void CV_multiply_8u(benchmark::State& st) { cv_run<CV_8UC1>(st, 3, [](auto& a, auto& b, auto& d) { cv::multiply(a, b, d); }); }
void CV_multiply_8u_scale(benchmark::State& st) {
    cv_run<CV_8UC1>(st, 3, [](auto& a, auto& b, auto& d) { cv::multiply(a, b, d, 1 / 255.); });
}
void CV_divide_32f(benchmark::State& st) { cv_run<CV_32FC1>(st, 12, [](auto& a, auto& b, auto& d) { cv::divide(b, a, d); }, true); }
void CV_add_8uC3_scalar(benchmark::State& st) {
    cv_run<CV_8UC3>(st, 6, [](auto& a, auto&, auto& d) { cv::add(a, cv::Scalar(10, 20, 30), d); });
}
ZB_OPENCV("Add_8u_C1RSfs_scale0", CV_add_8u);
ZB_OPENCV("Add_32f_C1R", CV_add_32f);
ZB_OPENCV("Sub_16s_C1RSfs", CV_subtract_16s);
ZB_OPENCV("Mul_8u_C1RSfs", CV_multiply_8u);
ZB_OPENCV("MulScale_8u_C1R", CV_multiply_8u_scale);
ZB_OPENCV("Div_32f_C1R", CV_divide_32f);
ZB_OPENCV("AddC_8u_C3RSfs", CV_add_8uC3_scalar);
#endif

} // namespace
BENCHMARK_MAIN();

// Box, separable and general filters at 1920x1080, beside OpenCV's
// boxFilter, sepFilter2D and filter2D. Our calls read a source frame around
// the region (nothing pads); OpenCV's replicate the border of an image of the
// region's size.
#include "common.hpp"

#include <vector>

#ifdef ZEL_HAVE_OPENCV
#include <opencv2/imgproc.hpp>
#endif

namespace {

using zb::kH;
using zb::kW;

// A source frame for a mask of m x m centred pixels around a kW x kH region.
template <class T>
struct Frame {
    int m, ch;
    std::vector<T> v;
    Frame(int m_, int ch_) : m(m_), ch(ch_), v(std::size_t(kW + m_ - 1) * (kH + m_ - 1) * ch_) {
        unsigned x = 12345;
        for (auto& s : v) s = T((x = x * 1103515245u + 12345u) >> 24);
    }
    int step() const { return int((kW + m - 1) * ch * sizeof(T)); }
    const T* roi() const { return v.data() + std::size_t(m / 2) * (kW + m - 1) * ch + std::size_t(m / 2) * ch; }
};

template <class T, int M, int CH>
void Box(benchmark::State& st) {
    zb::set_threads(int(st.range(0)));
    Frame<T> f(M, CH);
    std::vector<T> d(std::size_t(kW) * kH * CH);
    const int ds = int(kW * CH * sizeof(T));
    for (auto _ : st) {
        if constexpr (std::is_same<T, Zel8u>::value && CH == 1)
            zeliFilterBox_8u_C1R(f.roi(), f.step(), d.data(), ds, {kW, kH}, {M, M}, {M / 2, M / 2});
        else if constexpr (std::is_same<T, Zel8u>::value)
            zeliFilterBox_8u_C3R(f.roi(), f.step(), d.data(), ds, {kW, kH}, {M, M}, {M / 2, M / 2});
        else
            zeliFilterBox_32f_C1R(f.roi(), f.step(), d.data(), ds, {kW, kH}, {M, M}, {M / 2, M / 2});
    }
    zb::bytes(st, 2.0 * kW * kH * CH * sizeof(T));
}

// 9-tap Gaussian-like kernel, row then column through an intermediate image.
const float kTaps9[9] = {0.02f, 0.06f, 0.12f, 0.18f, 0.24f, 0.18f, 0.12f, 0.06f, 0.02f};

// The caller's intermediate image whole (Rows = kH), or in strips of Rows
// destination rows whose intermediate rows stay in the cache.
template <int Rows>
void Sep9_32f(benchmark::State& st) {
    zb::set_threads(int(st.range(0)));
    Frame<Zel32f> f(9, 1);
    const int fs = f.step();
    std::vector<Zel32f> mid(std::size_t(kW) * (Rows + 8)), d(std::size_t(kW) * kH);
    for (auto _ : st) {
        for (int y = 0; y < kH; y += Rows) {
            const int h = kH - y < Rows ? kH - y : Rows;
            const Zel32f* top = f.v.data() + std::size_t(y) * (kW + 8) + 4; // frame row y, four pixels in
            zeliFilterRow_32f_C1R(top, fs, mid.data(), kW * 4, {kW, h + 8}, kTaps9, 9, 4);
            zeliFilterColumn_32f_C1R(mid.data() + 4 * kW, kW * 4, d.data() + std::size_t(y) * kW, kW * 4, {kW, h}, kTaps9, 9, 4);
        }
    }
    zb::bytes(st, 8.0 * kW * kH);
}

void Filter7_32f(benchmark::State& st) {
    zb::set_threads(int(st.range(0)));
    Frame<Zel32f> f(7, 1);
    std::vector<Zel32f> k(49), d(std::size_t(kW) * kH);
    for (int i = 0; i < 49; ++i) k[i] = float(1 + (i * 7) % 11) / 100.0f;
    for (auto _ : st) zeliFilter_32f_C1R(f.roi(), f.step(), d.data(), kW * 4, {kW, kH}, k.data(), {7, 7}, {3, 3});
    zb::bytes(st, 8.0 * kW * kH);
}

ZB_ZELI("FilterBox_8u_C1R_3x3", (Box<Zel8u, 3, 1>));
ZB_ZELI("FilterBox_8u_C1R_5x5", (Box<Zel8u, 5, 1>));
ZB_ZELI("FilterBox_8u_C1R_15x15", (Box<Zel8u, 15, 1>));
ZB_ZELI("FilterBox_8u_C3R_5x5", (Box<Zel8u, 5, 3>));
ZB_ZELI("FilterBox_32f_C1R_5x5", (Box<Zel32f, 5, 1>));
ZB_ZELI("FilterRowColumn_32f_C1R_9tap", Sep9_32f<kH>);
ZB_ZELI("FilterRowColumn_32f_C1R_9tap_strips64", Sep9_32f<64>);
ZB_ZELI("Filter_32f_C1R_7x7", Filter7_32f);

#ifdef ZEL_HAVE_OPENCV
template <int Type, class F>
void cv_run(benchmark::State& st, double bytes, F f) {
    zb::set_threads(int(st.range(0)));
    cv::Mat a(kH, kW, Type), d(kH, kW, Type);
    cv::randu(a, 0, 255);
    for (auto _ : st) f(a, d);
    zb::bytes(st, bytes * kW * kH);
}
template <int M>
void CV_box_8u(benchmark::State& st) {
    cv_run<CV_8UC1>(st, 2, [](auto& a, auto& d) { cv::boxFilter(a, d, -1, cv::Size(M, M), cv::Point(-1, -1), true, cv::BORDER_REPLICATE); });
}
void CV_box_8uC3(benchmark::State& st) {
    cv_run<CV_8UC3>(st, 6, [](auto& a, auto& d) { cv::boxFilter(a, d, -1, cv::Size(5, 5), cv::Point(-1, -1), true, cv::BORDER_REPLICATE); });
}
void CV_box_32f(benchmark::State& st) {
    cv_run<CV_32FC1>(st, 8, [](auto& a, auto& d) { cv::boxFilter(a, d, -1, cv::Size(5, 5), cv::Point(-1, -1), true, cv::BORDER_REPLICATE); });
}
void CV_sep9_32f(benchmark::State& st) {
    const cv::Mat k(9, 1, CV_32F, const_cast<float*>(kTaps9));
    cv_run<CV_32FC1>(st, 8, [&](auto& a, auto& d) { cv::sepFilter2D(a, d, CV_32F, k, k, cv::Point(-1, -1), 0, cv::BORDER_REPLICATE); });
}
void CV_filter7_32f(benchmark::State& st) {
    cv::Mat k(7, 7, CV_32F);
    for (int i = 0; i < 49; ++i) k.at<float>(i / 7, i % 7) = float(1 + (i * 7) % 11) / 100.0f;
    cv_run<CV_32FC1>(st, 8, [&](auto& a, auto& d) { cv::filter2D(a, d, CV_32F, k, cv::Point(-1, -1), 0, cv::BORDER_REPLICATE); });
}
ZB_OPENCV("FilterBox_8u_C1R_3x3", CV_box_8u<3>);
ZB_OPENCV("FilterBox_8u_C1R_5x5", CV_box_8u<5>);
ZB_OPENCV("FilterBox_8u_C1R_15x15", CV_box_8u<15>);
ZB_OPENCV("FilterBox_8u_C3R_5x5", CV_box_8uC3);
ZB_OPENCV("FilterBox_32f_C1R_5x5", CV_box_32f);
ZB_OPENCV("FilterRowColumn_32f_C1R_9tap", CV_sep9_32f);
ZB_OPENCV("FilterRowColumn_32f_C1R_9tap_strips64", CV_sep9_32f);
ZB_OPENCV("Filter_32f_C1R_7x7", CV_filter7_32f);
#endif

} // namespace
BENCHMARK_MAIN();

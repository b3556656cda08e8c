// Conversions, scaling and border copies at 1920x1080, beside OpenCV's
// convertTo and copyMakeBorder.
#include "common.hpp"

#include <vector>

#ifdef ZEL_HAVE_OPENCV
#include <opencv2/core.hpp>
#endif

namespace {

using zb::kH;
using zb::kW;

template <class T>
std::vector<T> image(int channels, unsigned seed) {
    return zb::random_image<T>(channels, seed, 0, sizeof(T) == 1 ? 255 : 65535);
}

// Floats across the 8u range and beyond it, with halves.
std::vector<Zel32f> ramp() {
    std::vector<Zel32f> v(std::size_t(kW) * kH);
    for (std::size_t i = 0; i < v.size(); ++i) v[i] = float(i % 600) * 0.5f - 20.0f;
    return v;
}

// ---- 8u to 32f --------------------------------------------------------------------
void BM_zel_Convert_8u32f_C1R(benchmark::State& st) {
    zb::set_threads(int(st.range(0)));
    auto src = image<Zel8u>(1, 1);
    std::vector<Zel32f> dst(src.size());
    for (auto _ : st) zeliConvert_8u32f_C1R(src.data(), kW, dst.data(), kW * 4, {kW, kH});
    zb::bytes(st, 5.0 * kW * kH);
}
ZB_ZELI("Convert_8u32f_C1R", BM_zel_Convert_8u32f_C1R);

// ---- 32f to 8u, round to nearest ------------------------------------------------------
void BM_zel_Convert_32f8u_C1R(benchmark::State& st) {
    zb::set_threads(int(st.range(0)));
    const auto src = ramp();
    std::vector<Zel8u> dst(src.size());
    for (auto _ : st) zeliConvert_32f8u_C1R(src.data(), kW * 4, dst.data(), kW, {kW, kH}, 1);
    zb::bytes(st, 5.0 * kW * kH);
}
ZB_ZELI("Convert_32f8u_C1R", BM_zel_Convert_32f8u_C1R);

// ---- 16u to 8u, saturating ----------------------------------------------------------------
void BM_zel_Convert_16u8u_C1R(benchmark::State& st) {
    zb::set_threads(int(st.range(0)));
    auto src = image<Zel16u>(1, 3);
    std::vector<Zel8u> dst(src.size());
    for (auto _ : st) zeliConvert_16u8u_C1R(src.data(), kW * 2, dst.data(), kW, {kW, kH});
    zb::bytes(st, 3.0 * kW * kH);
}
ZB_ZELI("Convert_16u8u_C1R", BM_zel_Convert_16u8u_C1R);

// ---- zeliScale 16u to 8u, fast and accurate hints -------------------------------------------
template <int Hint>
void BM_zel_Scale_16u8u_C1R(benchmark::State& st) {
    zb::set_threads(int(st.range(0)));
    auto src = image<Zel16u>(1, 4);
    std::vector<Zel8u> dst(src.size());
    for (auto _ : st) zeliScale_16u8u_C1R(src.data(), kW * 2, dst.data(), kW, {kW, kH}, Hint);
    zb::bytes(st, 3.0 * kW * kH);
}
ZB_NAMED("zeli", "Scale_16u8u_C1R_fast", BENCHMARK_TEMPLATE(BM_zel_Scale_16u8u_C1R, 1))->ArgName("threads")->Arg(1)->Arg(2);
ZB_NAMED("zeli", "Scale_16u8u_C1R_accurate", BENCHMARK_TEMPLATE(BM_zel_Scale_16u8u_C1R, 2))->ArgName("threads")->Arg(1)->Arg(2);

// ---- Borders, 16-pixel frames ---------------------------------------------------------------
constexpr int kB = 16;

void BM_zel_CopyReplicateBorder_8u_C3R(benchmark::State& st) {
    zb::set_threads(int(st.range(0)));
    auto src = image<Zel8u>(3, 5);
    const int dw = kW + 2 * kB, dh = kH + 2 * kB;
    std::vector<Zel8u> dst(std::size_t(dw) * dh * 3);
    for (auto _ : st)
        zeliCopyReplicateBorder_8u_C3R(src.data(), kW * 3, {kW, kH}, dst.data(), dw * 3, {dw, dh}, kB, kB);
    zb::bytes(st, 3.0 * (double(kW) * kH + double(dw) * dh));
}
ZB_ZELI("CopyReplicateBorder_8u_C3R", BM_zel_CopyReplicateBorder_8u_C3R);

void BM_zel_CopyConstBorder_8u_C1R(benchmark::State& st) {
    zb::set_threads(int(st.range(0)));
    auto src = image<Zel8u>(1, 6);
    const int dw = kW + 2 * kB, dh = kH + 2 * kB;
    std::vector<Zel8u> dst(std::size_t(dw) * dh);
    for (auto _ : st)
        zeliCopyConstBorder_8u_C1R(src.data(), kW, {kW, kH}, dst.data(), dw, {dw, dh}, kB, kB, 77);
    zb::bytes(st, double(kW) * kH + double(dw) * dh);
}
ZB_ZELI("CopyConstBorder_8u_C1R", BM_zel_CopyConstBorder_8u_C1R);

#ifdef ZEL_HAVE_OPENCV
// ---- OpenCV's equivalents ---------------------------------------------------------------------
// src.convertTo(dst, dstType, scale) on the same data as ours.
template <class S>
void cv_convert(benchmark::State& st, int srcType, int dstType, double scale, const std::vector<S>& v, double bytes) {
    zb::set_threads(int(st.range(0)));
    cv::Mat src(kH, kW, srcType, const_cast<S*>(v.data())), dst(kH, kW, dstType);
    for (auto _ : st) src.convertTo(dst, dstType, scale);
    zb::bytes(st, bytes);
}
void BM_cv_convertTo_8u32f(benchmark::State& st) { cv_convert(st, CV_8UC1, CV_32FC1, 1.0, image<Zel8u>(1, 1), 5.0 * kW * kH); }
ZB_OPENCV("Convert_8u32f_C1R", BM_cv_convertTo_8u32f);
void BM_cv_convertTo_32f8u(benchmark::State& st) { cv_convert(st, CV_32FC1, CV_8UC1, 1.0, ramp(), 5.0 * kW * kH); }
ZB_OPENCV("Convert_32f8u_C1R", BM_cv_convertTo_32f8u);
void BM_cv_convertTo_16u8u(benchmark::State& st) { cv_convert(st, CV_16UC1, CV_8UC1, 1.0, image<Zel16u>(1, 3), 3.0 * kW * kH); }
ZB_OPENCV("Convert_16u8u_C1R", BM_cv_convertTo_16u8u);
void BM_cv_convertTo_16u8u_scaled(benchmark::State& st) {
    cv_convert(st, CV_16UC1, CV_8UC1, 255.0 / 65535.0, image<Zel16u>(1, 4), 3.0 * kW * kH);
}
ZB_OPENCV("Scale_16u8u_C1R_fast", BM_cv_convertTo_16u8u_scaled);

// copyMakeBorder with 16-pixel frames on all sides.
void cv_border(benchmark::State& st, int type, int channels, int border, int seed) {
    zb::set_threads(int(st.range(0)));
    auto v = image<Zel8u>(channels, seed);
    cv::Mat src(kH, kW, type, v.data()), dst(kH + 2 * kB, kW + 2 * kB, type);
    for (auto _ : st) cv::copyMakeBorder(src, dst, kB, kB, kB, kB, border, cv::Scalar::all(77));
    zb::bytes(st, channels * (double(kW) * kH + double(kW + 2 * kB) * (kH + 2 * kB)));
}
void BM_cv_copyMakeBorder_replicate_8uC3(benchmark::State& st) { cv_border(st, CV_8UC3, 3, cv::BORDER_REPLICATE, 5); }
ZB_OPENCV("CopyReplicateBorder_8u_C3R", BM_cv_copyMakeBorder_replicate_8uC3);
void BM_cv_copyMakeBorder_const_8uC1(benchmark::State& st) { cv_border(st, CV_8UC1, 1, cv::BORDER_CONSTANT, 6); }
ZB_OPENCV("CopyConstBorder_8u_C1R", BM_cv_copyMakeBorder_const_8uC1);
#endif

} // namespace

BENCHMARK_MAIN();

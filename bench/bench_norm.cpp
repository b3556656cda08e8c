// Norms, histograms and range counts at 1920x1080, beside OpenCV's equivalents.
#include "common.hpp"

#include <random>
#include <vector>

#ifdef ZEL_HAVE_OPENCV
#include <opencv2/imgproc.hpp>
#endif

namespace {

using zb::kH;
using zb::kW;

template <class T>
std::vector<T> image(unsigned seed, int lo, int hi) {
    return zb::random_image<T>(1, seed, lo, hi);
}

const ZeliSize kRoi{kW, kH};

void Zel_Norm_L2_32f(benchmark::State& st) {
    zb::set_threads(int(st.range(0)));
    auto a = image<Zel32f>(1, -1000, 1000);
    double v = 0;
    for (auto _ : st) {
        zeliNorm_L2_32f_C1R(a.data(), kW * 4, kRoi, &v, 0);
        benchmark::DoNotOptimize(v);
    }
    zb::bytes(st, double(a.size()) * 4);
}
ZB_ZELI("Norm_L2_32f_C1R", Zel_Norm_L2_32f);

void Zel_NormDiff_L1_8u(benchmark::State& st) {
    zb::set_threads(int(st.range(0)));
    auto a = image<Zel8u>(1, 0, 255), b = image<Zel8u>(2, 0, 255);
    double v = 0;
    for (auto _ : st) {
        zeliNormDiff_L1_8u_C1R(a.data(), kW, b.data(), kW, kRoi, &v);
        benchmark::DoNotOptimize(v);
    }
    zb::bytes(st, double(a.size()) * 2);
}
ZB_ZELI("NormDiff_L1_8u_C1R", Zel_NormDiff_L1_8u);

void Zel_Norm_Inf_16s(benchmark::State& st) {
    zb::set_threads(int(st.range(0)));
    auto a = image<Zel16s>(3, -30000, 30000);
    double v = 0;
    for (auto _ : st) {
        zeliNorm_Inf_16s_C1R(a.data(), kW * 2, kRoi, &v);
        benchmark::DoNotOptimize(v);
    }
    zb::bytes(st, double(a.size()) * 2);
}
ZB_ZELI("Norm_Inf_16s_C1R", Zel_Norm_Inf_16s);

void Zel_HistogramEven_8u_256(benchmark::State& st) {
    zb::set_threads(int(st.range(0)));
    auto a = image<Zel8u>(4, 0, 255);
    Zel32s hist[256], levels[257];
    for (auto _ : st) {
        zeliHistogramEven_8u_C1R(a.data(), kW, kRoi, hist, levels, 257, 0, 256);
        benchmark::DoNotOptimize(hist);
    }
    zb::bytes(st, double(a.size()));
}
ZB_ZELI("HistogramEven_8u_C1R_256", Zel_HistogramEven_8u_256);

void Zel_HistogramRange_16u_64(benchmark::State& st) {
    zb::set_threads(int(st.range(0)));
    auto a = image<Zel16u>(5, 0, 65535);
    Zel32s hist[63], levels[64];
    for (int k = 0; k < 64; ++k) levels[k] = k * 1024;
    for (auto _ : st) {
        zeliHistogramRange_16u_C1R(a.data(), kW * 2, kRoi, hist, levels, 64);
        benchmark::DoNotOptimize(hist);
    }
    zb::bytes(st, double(a.size()) * 2);
}
ZB_ZELI("HistogramRange_16u_C1R_64", Zel_HistogramRange_16u_64);

void Zel_CountInRange_8u(benchmark::State& st) {
    zb::set_threads(int(st.range(0)));
    auto a = image<Zel8u>(6, 0, 255);
    int n = 0;
    for (auto _ : st) {
        zeliCountInRange_8u_C1R(a.data(), kW, kRoi, &n, 50, 180);
        benchmark::DoNotOptimize(n);
    }
    zb::bytes(st, double(a.size()));
}
ZB_ZELI("CountInRange_8u_C1R", Zel_CountInRange_8u);

#ifdef ZEL_HAVE_OPENCV
void Cv_Norm_L2_32f(benchmark::State& st) {
    zb::set_threads(int(st.range(0)));
    auto a = image<Zel32f>(1, -1000, 1000);
    cv::Mat m(kH, kW, CV_32F, a.data());
    for (auto _ : st) benchmark::DoNotOptimize(cv::norm(m, cv::NORM_L2));
    zb::bytes(st, double(a.size()) * 4);
}
ZB_OPENCV("Norm_L2_32f_C1R", Cv_Norm_L2_32f);

void Cv_NormDiff_L1_8u(benchmark::State& st) {
    zb::set_threads(int(st.range(0)));
    auto a = image<Zel8u>(1, 0, 255), b = image<Zel8u>(2, 0, 255);
    cv::Mat ma(kH, kW, CV_8U, a.data()), mb(kH, kW, CV_8U, b.data());
    for (auto _ : st) benchmark::DoNotOptimize(cv::norm(ma, mb, cv::NORM_L1));
    zb::bytes(st, double(a.size()) * 2);
}
ZB_OPENCV("NormDiff_L1_8u_C1R", Cv_NormDiff_L1_8u);

void Cv_Norm_Inf_16s(benchmark::State& st) {
    zb::set_threads(int(st.range(0)));
    auto a = image<Zel16s>(3, -30000, 30000);
    cv::Mat m(kH, kW, CV_16S, a.data());
    for (auto _ : st) benchmark::DoNotOptimize(cv::norm(m, cv::NORM_INF));
    zb::bytes(st, double(a.size()) * 2);
}
ZB_OPENCV("Norm_Inf_16s_C1R", Cv_Norm_Inf_16s);

void Cv_CalcHist_8u_256(benchmark::State& st) {
    zb::set_threads(int(st.range(0)));
    auto a = image<Zel8u>(4, 0, 255);
    cv::Mat m(kH, kW, CV_8U, a.data()), hist;
    const int channels[] = {0}, size[] = {256};
    const float range[] = {0, 256};
    const float* ranges[] = {range};
    for (auto _ : st) {
        cv::calcHist(&m, 1, channels, cv::Mat(), hist, 1, size, ranges);
        benchmark::DoNotOptimize(hist.data);
    }
    zb::bytes(st, double(a.size()));
}
ZB_OPENCV("HistogramEven_8u_C1R_256", Cv_CalcHist_8u_256);

void Cv_CalcHist_16u_63(benchmark::State& st) {
    zb::set_threads(int(st.range(0)));
    auto a = image<Zel16u>(5, 0, 65535);
    cv::Mat m(kH, kW, CV_16U, a.data()), hist;
    const int channels[] = {0}, size[] = {63};
    const float range[] = {0, 63 * 1024};
    const float* ranges[] = {range};
    for (auto _ : st) {
        cv::calcHist(&m, 1, channels, cv::Mat(), hist, 1, size, ranges);
        benchmark::DoNotOptimize(hist.data);
    }
    zb::bytes(st, double(a.size()) * 2);
}
ZB_OPENCV("HistogramRange_16u_C1R_64", Cv_CalcHist_16u_63);

void Cv_InRangeCount_8u(benchmark::State& st) {
    zb::set_threads(int(st.range(0)));
    auto a = image<Zel8u>(6, 0, 255);
    cv::Mat m(kH, kW, CV_8U, a.data()), mask;
    for (auto _ : st) {
        cv::inRange(m, cv::Scalar(50), cv::Scalar(180), mask);
        benchmark::DoNotOptimize(cv::countNonZero(mask));
    }
    zb::bytes(st, double(a.size()));
}
ZB_OPENCV("CountInRange_8u_C1R", Cv_InRangeCount_8u);
#endif

} // namespace

BENCHMARK_MAIN();

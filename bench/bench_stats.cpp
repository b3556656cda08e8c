// Sums, means, extremes and dot products at 1920x1080, beside OpenCV.
#include "common.hpp"

#include <random>
#include <vector>

#ifdef ZEL_HAVE_OPENCV
#include <opencv2/core.hpp>
#endif

namespace {

template <class T>
std::vector<T> image(int channels, unsigned seed) {
    return zb::random_image<T>(channels, seed, 0, 250);
}

const ZeliSize kRoi{zb::kW, zb::kH};

void Zel_Sum_8u_C1R(benchmark::State& st) {
    zb::set_threads(int(st.range(0)));
    auto src = image<Zel8u>(1, 1);
    Zel64f s;
    for (auto _ : st) {
        zeliSum_8u_C1R(src.data(), zb::kW, kRoi, &s);
        benchmark::DoNotOptimize(s);
    }
    zb::bytes(st, double(src.size()));
}
ZB_ZELI("Sum_8u_C1R", Zel_Sum_8u_C1R);

void Zel_Sum_32f_C1R(benchmark::State& st) {
    zb::set_threads(int(st.range(0)));
    auto src = image<Zel32f>(1, 2);
    Zel64f s;
    for (auto _ : st) {
        zeliSum_32f_C1R(src.data(), zb::kW * 4, kRoi, &s, zelAlgHintNone);
        benchmark::DoNotOptimize(s);
    }
    zb::bytes(st, double(src.size() * 4));
}
ZB_ZELI("Sum_32f_C1R", Zel_Sum_32f_C1R);

void Zel_Mean_8u_C3R(benchmark::State& st) {
    zb::set_threads(int(st.range(0)));
    auto src = image<Zel8u>(3, 3);
    Zel64f m[3];
    for (auto _ : st) {
        zeliMean_8u_C3R(src.data(), zb::kW * 3, kRoi, m);
        benchmark::DoNotOptimize(m);
    }
    zb::bytes(st, double(src.size()));
}
ZB_ZELI("Mean_8u_C3R", Zel_Mean_8u_C3R);

void Zel_MinMax_8u_C1R(benchmark::State& st) {
    zb::set_threads(int(st.range(0)));
    auto src = image<Zel8u>(1, 4);
    Zel8u lo, hi;
    for (auto _ : st) {
        zeliMinMax_8u_C1R(src.data(), zb::kW, kRoi, &lo, &hi);
        benchmark::DoNotOptimize(lo);
        benchmark::DoNotOptimize(hi);
    }
    zb::bytes(st, double(src.size()));
}
ZB_ZELI("MinMax_8u_C1R", Zel_MinMax_8u_C1R);

void Zel_MinIndx_32f_C1R(benchmark::State& st) {
    zb::set_threads(int(st.range(0)));
    auto src = image<Zel32f>(1, 5);
    Zel32f lo;
    int x, y;
    for (auto _ : st) {
        zeliMinIndx_32f_C1R(src.data(), zb::kW * 4, kRoi, &lo, &x, &y);
        benchmark::DoNotOptimize(x);
    }
    zb::bytes(st, double(src.size() * 4));
}
ZB_ZELI("MinIndx_32f_C1R", Zel_MinIndx_32f_C1R);

void Zel_DotProd_32f64f_C1R(benchmark::State& st) {
    zb::set_threads(int(st.range(0)));
    auto a = image<Zel32f>(1, 6), b = image<Zel32f>(1, 7);
    Zel64f d;
    for (auto _ : st) {
        zeliDotProd_32f64f_C1R(a.data(), zb::kW * 4, b.data(), zb::kW * 4, kRoi, &d);
        benchmark::DoNotOptimize(d);
    }
    zb::bytes(st, double(a.size() * 8));
}
ZB_ZELI("DotProd_32f64f_C1R", Zel_DotProd_32f64f_C1R);

#ifdef ZEL_HAVE_OPENCV
template <class T>
cv::Mat mat(std::vector<T>& v, int type) { return cv::Mat(zb::kH, zb::kW, type, v.data()); }

void Cv_Sum_8u_C1(benchmark::State& st) {
    zb::set_threads(int(st.range(0)));
    auto src = image<Zel8u>(1, 1);
    cv::Mat m = mat(src, CV_8UC1);
    for (auto _ : st) benchmark::DoNotOptimize(cv::sum(m));
    zb::bytes(st, double(src.size()));
}
ZB_OPENCV("Sum_8u_C1R", Cv_Sum_8u_C1);

void Cv_Sum_32f_C1(benchmark::State& st) {
    zb::set_threads(int(st.range(0)));
    auto src = image<Zel32f>(1, 2);
    cv::Mat m = mat(src, CV_32FC1);
    for (auto _ : st) benchmark::DoNotOptimize(cv::sum(m));
    zb::bytes(st, double(src.size() * 4));
}
ZB_OPENCV("Sum_32f_C1R", Cv_Sum_32f_C1);

void Cv_Mean_8u_C3(benchmark::State& st) {
    zb::set_threads(int(st.range(0)));
    auto src = image<Zel8u>(3, 3);
    cv::Mat m = mat(src, CV_8UC3);
    for (auto _ : st) benchmark::DoNotOptimize(cv::mean(m));
    zb::bytes(st, double(src.size()));
}
ZB_OPENCV("Mean_8u_C3R", Cv_Mean_8u_C3);

void Cv_MinMaxLoc_8u_C1(benchmark::State& st) {
    zb::set_threads(int(st.range(0)));
    auto src = image<Zel8u>(1, 4);
    cv::Mat m = mat(src, CV_8UC1);
    double lo, hi;
    for (auto _ : st) {
        cv::minMaxLoc(m, &lo, &hi);
        benchmark::DoNotOptimize(lo);
    }
    zb::bytes(st, double(src.size()));
}
ZB_OPENCV("MinMax_8u_C1R", Cv_MinMaxLoc_8u_C1);

void Cv_MinMaxLoc_32f_C1_Loc(benchmark::State& st) {
    zb::set_threads(int(st.range(0)));
    auto src = image<Zel32f>(1, 5);
    cv::Mat m = mat(src, CV_32FC1);
    double lo;
    cv::Point at;
    for (auto _ : st) {
        cv::minMaxLoc(m, &lo, nullptr, &at);
        benchmark::DoNotOptimize(at);
    }
    zb::bytes(st, double(src.size() * 4));
}
ZB_OPENCV("MinIndx_32f_C1R", Cv_MinMaxLoc_32f_C1_Loc);

void Cv_Dot_32f_C1(benchmark::State& st) {
    zb::set_threads(int(st.range(0)));
    auto a = image<Zel32f>(1, 6), b = image<Zel32f>(1, 7);
    cv::Mat ma = mat(a, CV_32FC1), mb = mat(b, CV_32FC1);
    for (auto _ : st) benchmark::DoNotOptimize(ma.dot(mb));
    zb::bytes(st, double(a.size() * 8));
}
ZB_OPENCV("DotProd_32f64f_C1R", Cv_Dot_32f_C1);
#endif

} // namespace

BENCHMARK_MAIN();

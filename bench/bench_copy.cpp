// Copy and set beside memcpy/memset and OpenCV (copyTo, split, setTo), at
// 1920x1080 and at images of 64 MiB. Arguments: size (0: 1920x1080, 1: 64 MiB,
// 2: 64 MiB with the cache size set to 32 MiB, so that our calls take their
// non-temporal paths where the detected cache is larger than the image),
// threads. Copies count the bytes read and written, fills the bytes written.
#include "common.hpp"

#include <cstring>
#include <vector>

namespace {

// Width and height of a one-channel 8-bit image of the size class.
ZeliSize dims(int sizeClass, int pixelBytes) {
    zelSetMaxCacheSizeB(sizeClass == 2 ? 32 << 20 : 0);
    if (sizeClass == 0) return {zb::kW, zb::kH};
    const int w = 8192 / (pixelBytes == 3 ? 1 : pixelBytes);
    return {w, int((64ll << 20) / (std::int64_t(w) * pixelBytes))};
}

struct Buffers {
    ZeliSize roi;
    int step;
    std::vector<Zel8u> a, b;
    Buffers(int sizeClass, int pixelBytes) : roi(dims(sizeClass, pixelBytes)) {
        step = roi.width * pixelBytes;
        a.assign(std::size_t(step) * roi.height, 7);
        b.assign(std::size_t(step) * roi.height, 9);
    }
    double bytes() const { return double(step) * roi.height; }
};

#define ZB_SIZES(lib, name, fn) ZB_NAMED(lib, name, BENCHMARK(fn))->ArgNames({"size", "threads"})->ArgsProduct({{0, 1}, {1, 2}})
#define ZB_OURS(name, fn) ZB_NAMED("zeli", name, BENCHMARK(fn))->ArgNames({"size", "threads"})->ArgsProduct({{0, 1, 2}, {1, 2}})

// ---- zeliCopy_8u_C1R ----------------------------------------------------------
void Copy_8u_C1R(benchmark::State& st) {
    zb::set_threads(int(st.range(1)));
    Buffers m(int(st.range(0)), 1);
    for (auto _ : st) zeliCopy_8u_C1R(m.a.data(), m.step, m.b.data(), m.step, m.roi);
    zb::bytes(st, 2 * m.bytes());
}
ZB_OURS("Copy_8u_C1R", Copy_8u_C1R);

void Memcpy_8u_C1(benchmark::State& st) {
    zb::set_threads(int(st.range(1)));
    Buffers m(int(st.range(0)), 1);
    for (auto _ : st) {
        std::memcpy(m.b.data(), m.a.data(), m.a.size());
        benchmark::ClobberMemory();
    }
    zb::bytes(st, 2 * m.bytes());
}
ZB_SIZES("libc", "Copy_8u_C1R", Memcpy_8u_C1);

// ---- zeliCopy_8u_C3P3R ----------------------------------------------------------
void Copy_8u_C3P3R(benchmark::State& st) {
    zb::set_threads(int(st.range(1)));
    Buffers m(int(st.range(0)), 3);
    const std::size_t plane = std::size_t(m.roi.width) * m.roi.height;
    Zel8u* planes[3] = {m.b.data(), m.b.data() + plane, m.b.data() + 2 * plane};
    for (auto _ : st) zeliCopy_8u_C3P3R(m.a.data(), m.step, planes, m.roi.width, m.roi);
    zb::bytes(st, 2 * m.bytes());
}
ZB_OURS("Copy_8u_C3P3R", Copy_8u_C3P3R);

// ---- zeliSet_8u_C3R, zeliSet_32f_C1R ----------------------------------------------
void Set_8u_C3R(benchmark::State& st) {
    zb::set_threads(int(st.range(1)));
    Buffers m(int(st.range(0)), 3);
    const Zel8u v[3] = {1, 2, 3};
    for (auto _ : st) zeliSet_8u_C3R(v, m.b.data(), m.step, m.roi);
    zb::bytes(st, m.bytes());
}
ZB_OURS("Set_8u_C3R", Set_8u_C3R);

void Set_32f_C1R(benchmark::State& st) {
    zb::set_threads(int(st.range(1)));
    Buffers m(int(st.range(0)), 4);
    for (auto _ : st) zeliSet_32f_C1R(1.5f, reinterpret_cast<Zel32f*>(m.b.data()), m.step, m.roi);
    zb::bytes(st, m.bytes());
}
ZB_OURS("Set_32f_C1R", Set_32f_C1R);

// memset of the same bytes as the 8u C3 (3 bytes a pixel) and 32f C1 (4) fills.
template <int PixelBytes>
void Memset(benchmark::State& st) {
    zb::set_threads(int(st.range(1)));
    Buffers m(int(st.range(0)), PixelBytes);
    for (auto _ : st) {
        std::memset(m.b.data(), 3, m.b.size());
        benchmark::ClobberMemory();
    }
    zb::bytes(st, m.bytes());
}
ZB_SIZES("libc", "Set_8u_C3R", Memset<3>);
ZB_SIZES("libc", "Set_32f_C1R", Memset<4>);

#ifdef ZEL_HAVE_OPENCV
void OpenCV_copyTo_8u_C1(benchmark::State& st) {
    zb::set_threads(int(st.range(1)));
    Buffers m(int(st.range(0)), 1);
    cv::Mat a(m.roi.height, m.roi.width, CV_8UC1, m.a.data()), b(m.roi.height, m.roi.width, CV_8UC1, m.b.data());
    for (auto _ : st) a.copyTo(b);
    zb::bytes(st, 2 * m.bytes());
}
ZB_SIZES("opencv", "Copy_8u_C1R", OpenCV_copyTo_8u_C1);

void OpenCV_split_8u_C3(benchmark::State& st) {
    zb::set_threads(int(st.range(1)));
    Buffers m(int(st.range(0)), 3);
    const std::size_t plane = std::size_t(m.roi.width) * m.roi.height;
    cv::Mat a(m.roi.height, m.roi.width, CV_8UC3, m.a.data());
    cv::Mat planes[3];
    for (int c = 0; c < 3; ++c) planes[c] = cv::Mat(m.roi.height, m.roi.width, CV_8UC1, m.b.data() + c * plane);
    for (auto _ : st) cv::split(a, planes);
    zb::bytes(st, 2 * m.bytes());
}
ZB_SIZES("opencv", "Copy_8u_C3P3R", OpenCV_split_8u_C3);

void OpenCV_setTo_8u_C3(benchmark::State& st) {
    zb::set_threads(int(st.range(1)));
    Buffers m(int(st.range(0)), 3);
    cv::Mat b(m.roi.height, m.roi.width, CV_8UC3, m.b.data());
    for (auto _ : st) b.setTo(cv::Scalar(1, 2, 3));
    zb::bytes(st, m.bytes());
}
ZB_SIZES("opencv", "Set_8u_C3R", OpenCV_setTo_8u_C3);

void OpenCV_setTo_32f_C1(benchmark::State& st) {
    zb::set_threads(int(st.range(1)));
    Buffers m(int(st.range(0)), 4);
    cv::Mat b(m.roi.height, m.roi.width, CV_32FC1, m.b.data());
    for (auto _ : st) b.setTo(cv::Scalar(1.5));
    zb::bytes(st, m.bytes());
}
ZB_SIZES("opencv", "Set_32f_C1R", OpenCV_setTo_32f_C1);
#endif

} // namespace

BENCHMARK_MAIN();

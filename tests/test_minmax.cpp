// Minimum and maximum families against plain references: extreme values,
// the top-most then left-most position of each channel's extreme, the lane
// model of Zel32f NaN, and the pixelwise in-place forms.
#include "family_util.hpp"

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <cstring>
#include <limits>
#include <random>
#include <type_traits>
#include <vector>

namespace {

using zt::Form;
using zt::Shape;

const float kNaN = std::numeric_limits<float>::quiet_NaN();

// Random samples; `narrow` draws from a handful of values so that the
// extremes repeat at many positions; `nan`: one sample in eight is NaN.
template <class T>
void fill(zt::Image<T>& im, std::uint32_t seed, bool narrow, bool nan = false) {
    std::mt19937 rng(seed);
    for (int y = 0; y < im.height(); ++y)
        for (int x = 0; x < im.width() * im.channels(); ++x) {
            const std::uint32_t r = rng();
            T v;
            if constexpr (std::is_floating_point<T>::value)
                v = nan && r % 8 == 0 ? kNaN : narrow ? T(int(r % 4) - 1) : T((double(r) / 4294967296.0 - 0.5) * 1e6);
            else
                v = narrow ? T(std::numeric_limits<T>::lowest() + T(r % 3)) : T(r);
            im.row(y)[x] = v;
        }
}


// ---- References ------------------------------------------------------------

// Extreme and its position per channel: the first strictly better sample in
// row-major order is the top-most row's left-most one; NaN never wins.
template <class T>
struct Found { T v; int x, y; };

template <class T, bool Min>
Found<T> ref_indx(const zt::Image<T>& im, int c) {
    Found<T> f{Min ? std::numeric_limits<T>::max() : std::numeric_limits<T>::lowest(), 0, 0};
    if (std::is_floating_point<T>::value) f.v = Min ? FLT_MAX : -FLT_MAX;
    for (int y = 0; y < im.height(); ++y)
        for (int x = 0; x < im.width(); ++x) {
            const T v = im.at(x, y, c);
            if (Min ? v < f.v : v > f.v) f = {v, x, y};
        }
    return f;
}

// The lane model of the Zel32f value scans: sample i of a row to lane i % P
// (16, or 48 for three channels), lanes start at the row's first pixel,
// op(lane, sample) returns the sample unless the lane is strictly better;
// lanes fold per channel in ascending order, rows merge the same way. For
// integers (and images without NaN) this is the plain extreme.
template <bool Min, class T>
T ref_scan(const zt::Image<T>& im, Form f, int c) {
    const int P = f.mc == 3 ? 48 : 16;
    auto op = [](T a, T b) { return (Min ? a < b : a > b) ? a : b; };
    T total = 0;
    for (int y = 0; y < im.height(); ++y) {
        std::vector<T> lane(P);
        for (int l = 0; l < P; ++l) lane[l] = im.at(0, y, l % f.mc);
        for (int i = 0; i < im.width() * f.mc; ++i) lane[i % P] = op(lane[i % P], im.row(y)[i]);
        T r = lane[c];
        for (int l = c + f.mc; l < P; l += f.mc) r = op(r, lane[l]);
        total = y == 0 ? r : op(total, r);
    }
    return total;
}

// ---- Value and index scans ---------------------------------------------------

template <class T>
struct Members {
    ZelStatus (*min)(const T*, int, ZeliSize, T*);
    ZelStatus (*max)(const T*, int, ZeliSize, T*);
    ZelStatus (*minmax)(const T*, int, ZeliSize, T*, T*);
    ZelStatus (*minIndx)(const T*, int, ZeliSize, T*, int*, int*);
    ZelStatus (*maxIndx)(const T*, int, ZeliSize, T*, int*, int*);
    Form f;
};

template <class T>
void check_scans_on(const Members<T>& m, const zt::Image<T>& im) {
    const Form f = m.f;
    T lo[5], hi[5], lo2[5], hi2[5], vi[5], va[5];
    int xi[5], yi[5], xa[5], ya[5];
    for (int c = 0; c < 5; ++c) lo[c] = hi[c] = lo2[c] = hi2[c] = vi[c] = va[c] = T(77), xi[c] = ya[c] = -9;
    ASSERT_EQ(m.min(im.ptr(), im.step(), im.size(), lo), zelStatusOk);
    ASSERT_EQ(m.max(im.ptr(), im.step(), im.size(), hi), zelStatusOk);
    ASSERT_EQ(m.minmax(im.ptr(), im.step(), im.size(), lo2, hi2), zelStatusOk);
    ASSERT_EQ(m.minIndx(im.ptr(), im.step(), im.size(), vi, xi, yi), zelStatusOk);
    ASSERT_EQ(m.maxIndx(im.ptr(), im.step(), im.size(), va, xa, ya), zelStatusOk);
    for (int c = 0; c < f.ac; ++c) {
        const auto rmin = ref_indx<T, true>(im, c), rmax = ref_indx<T, false>(im, c);
        SCOPED_TRACE(testing::Message() << "w " << im.width() << " h " << im.height() << " c " << c);
        EXPECT_TRUE(zt::same_bits(lo[c], ref_scan<true>(im, f, c)) && zt::same_bits(lo2[c], lo[c])) << double(lo[c]) << " " << double(lo2[c]);
        EXPECT_TRUE(zt::same_bits(hi[c], ref_scan<false>(im, f, c)) && zt::same_bits(hi2[c], hi[c])) << double(hi[c]) << " " << double(hi2[c]);
        EXPECT_TRUE(zt::same_bits(vi[c], rmin.v) && xi[c] == rmin.x && yi[c] == rmin.y) << double(vi[c]) << " at " << xi[c] << "," << yi[c];
        EXPECT_TRUE(zt::same_bits(va[c], rmax.v) && xa[c] == rmax.x && ya[c] == rmax.y) << double(va[c]) << " at " << xa[c] << "," << ya[c];
    }
    for (int c = f.ac; c < 5; ++c)
        EXPECT_TRUE(lo[c] == T(77) && hi2[c] == T(77) && xi[c] == -9 && ya[c] == -9) << "wrote past the channels";
}

template <class T>
void check_scans(const Members<T>& m) {
    for (const Shape& s : zt::sweep_shapes({1, 4}, 3))
        for (int kind = 0; kind < (std::is_floating_point<T>::value ? 3 : 2); ++kind) {
            auto im = zt::make_image<T>(s, m.f.mc);
            fill(im, std::uint32_t(s.w * 3 + s.h + kind), kind == 1, kind == 2);
            check_scans_on(m, im);
        }
    // Minimum at (5, 2) and at (1, 3): the upper row wins though further right;
    // per channel, different positions.
    zt::Image<T> im(9, 5, m.f.mc, 0);
    for (int i = 0; i < 9 * 5 * m.f.mc; ++i) im.ptr()[i] = T(10);
    im.at(5, 2, 0) = im.at(1, 3, 0) = T(1);
    im.at(8, 4, m.f.ac - 1) = im.at(0, 4, m.f.ac - 1) = T(2);
    if (m.f.ac < m.f.mc) im.at(3, 0, 3) = T(0); // the alpha of AC4 is ignored
    check_scans_on(m, im);
    // Order of checks: null before size; steps are not checked.
    T r[4] = {}, r2[4] = {};
    int ix[4], iy[4];
    const T* p = im.ptr();
    EXPECT_EQ(m.min(nullptr, 4, ZeliSize{0, 0}, r), zelStatusNullPointer);
    EXPECT_EQ(m.minmax(p, 4, ZeliSize{0, 1}, r, nullptr), zelStatusNullPointer);
    EXPECT_EQ(m.minmax(p, 4, ZeliSize{0, 1}, r, r2), zelStatusBadSize);
    EXPECT_EQ(m.minIndx(p, 4, ZeliSize{0, 0}, r, ix, nullptr), zelStatusNullPointer);
    EXPECT_EQ(m.maxIndx(p, 4, ZeliSize{1, -3}, r, ix, iy), zelStatusBadSize);
    EXPECT_EQ(m.minIndx(p, -5, ZeliSize{1, 1}, r, ix, iy), zelStatusOk);
}

#define SCAN_MEMBERS(T, L, F)                                                                              \
    check_scans<Zel##T>({zeliMin_##T##_##L##R, zeliMax_##T##_##L##R, zeliMinMax_##T##_##L##R,             \
                         zeliMinIndx_##T##_##L##R, zeliMaxIndx_##T##_##L##R, zt::F});
#define SCAN_TYPE(T) SCAN_MEMBERS(T, C1, kC1) SCAN_MEMBERS(T, C3, kC3) SCAN_MEMBERS(T, C4, kC4) SCAN_MEMBERS(T, AC4, kAC4)

TEST(MinMax, ValuesAndIndices) { SCAN_TYPE(8u) SCAN_TYPE(16u) SCAN_TYPE(16s) SCAN_TYPE(32f) }

// Only +inf or only NaN: the index scans report the largest finite value at
// 0, 0 (a search that finds nothing).
TEST(MinMax, FloatInfinityAndNaNOnly) {
    for (float fillv : {std::numeric_limits<float>::infinity(), kNaN}) {
        std::vector<float> img(3 * 17 * 4, fillv);
        float r[3];
        int x[3], y[3];
        ASSERT_EQ(zeliMinIndx_32f_C3R(img.data(), 17 * 12, ZeliSize{17, 4}, r, x, y), zelStatusOk);
        for (int c = 0; c < 3; ++c) {
            EXPECT_EQ(r[c], FLT_MAX);
            EXPECT_EQ(x[c] + y[c], 0);
        }
        ASSERT_EQ(zeliMaxIndx_32f_C1R(img.data(), 17 * 12, ZeliSize{51, 4}, r, x, y), zelStatusOk);
        EXPECT_EQ(r[0], std::isnan(fillv) ? -FLT_MAX : fillv);
    }
}

// ---- Pixelwise minimum and maximum ---------------------------------------------

template <class T>
using EveryFn = ZelStatus (*)(const T*, int, T*, int, ZeliSize);

template <class T, bool Min>
void check_every(EveryFn<T> fn, Form f) {
    for (const Shape& s : zt::sweep_shapes({1, 4}, 3))
        for (bool packed : {false, true}) { // packed rows run as one
            auto src = zt::make_image<T>(Shape{s.w, s.h, packed ? 0 : s.extra, s.flush, s.offset}, f.mc);
            auto dst = zt::make_image<T>(Shape{s.w, s.h, packed ? 0 : s.extra + 2, zt::Flush::Tail, 0}, f.mc);
            fill(src, std::uint32_t(s.w + 1), s.w % 2, true);
            fill(dst, std::uint32_t(s.w + 2), s.w % 2, true);
            auto want = dst.bytes();
            for (int y = 0; y < s.h; ++y)
                for (int i = 0; i < s.w * f.mc; ++i) {
                    // The destination sample is the first operand; AC4 alpha stays.
                    const T d = dst.row(y)[i], v = src.row(y)[i];
                    const T r = f.ac < f.mc && i % 4 == 3 ? d : (Min ? d < v : d > v) ? d : v;
                    std::memcpy(want.data() + std::size_t(y) * dst.step() + i * sizeof(T), &r, sizeof r);
                }
            ASSERT_EQ(fn(src.ptr(), src.step(), dst.ptr(), dst.step(), dst.size()), zelStatusOk);
            ASSERT_EQ(dst.bytes(), want) << "w " << s.w << " h " << s.h << " packed " << packed; // padding too
        }
    T a[4] = {}, b[4] = {};
    EXPECT_EQ(fn(nullptr, 4, b, 4, ZeliSize{0, 0}), zelStatusNullPointer);
    EXPECT_EQ(fn(a, 0, b, 0, ZeliSize{0, 1}), zelStatusBadSize);
    EXPECT_EQ(fn(a, 0, b, 64, ZeliSize{1, 1}), zelStatusBadStep);
    EXPECT_EQ(fn(a, 64, b, -64, ZeliSize{1, 1}), zelStatusBadStep);
}

#define EVERY_OP(T, Op, M)                                                                          \
    check_every<Zel##T, M>(zeli##Op##Every_##T##_C1IR, zt::kC1);                                     \
    check_every<Zel##T, M>(zeli##Op##Every_##T##_C3IR, zt::kC3);                                     \
    check_every<Zel##T, M>(zeli##Op##Every_##T##_C4IR, zt::kC4);                                     \
    check_every<Zel##T, M>(zeli##Op##Every_##T##_AC4IR, zt::kAC4);
#define EVERY_MEMBERS(T) EVERY_OP(T, Min, true) EVERY_OP(T, Max, false)

TEST(MinMaxEvery, AllMembers) { EVERY_MEMBERS(8u) EVERY_MEMBERS(16u) EVERY_MEMBERS(16s) EVERY_MEMBERS(32f) }

} // namespace

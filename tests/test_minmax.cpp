// Minimum and maximum families against plain references: extreme values,
// the top-most then left-most position of each channel's extreme, the lane
// behaviour of Zel32f NaN, and the pixelwise in-place forms.
#include "guard.hpp"

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
using zt::kAC4;
using zt::kC1;
using zt::kC3;
using zt::kC4;
using zt::Shape;

std::vector<Shape> shapes() {
    auto v = zt::sweep_shapes({1, 4}, 3);
    return v;
}

template <class T>
zt::Image<T> make(const Shape& s, int mc) {
    return zt::make_image<T>(s, mc);
}

// Random samples; `narrow` draws from a handful of values so that the
// extremes repeat at many positions.
template <class T>
void fill(zt::Image<T>& im, std::uint32_t seed, bool narrow) {
    std::mt19937 rng(seed);
    for (int y = 0; y < im.height(); ++y)
        for (int x = 0; x < im.width() * im.channels(); ++x) {
            const std::uint32_t r = rng();
            T v;
            if constexpr (std::is_floating_point<T>::value)
                v = narrow ? T(int(r % 4) - 1) : T((double(r) / 4294967296.0 - 0.5) * 1e6);
            else
                v = narrow ? T(std::numeric_limits<T>::lowest() + T(r % 3)) : T(r);
            im.row(y)[x] = v;
        }
}

template <class T>
bool same(T a, T b) { return std::memcmp(&a, &b, sizeof a) == 0; }

// ---- References ------------------------------------------------------------

// Extreme and its position per channel: the first strictly better sample in
// row-major order is the top-most row's left-most one.
template <class T>
struct Found { T v; int x, y; };

template <class T, bool Min>
Found<T> ref_indx(const zt::Image<T>& im, int c) {
    Found<T> f{im.at(0, 0, c), 0, 0};
    for (int y = 0; y < im.height(); ++y)
        for (int x = 0; x < im.width(); ++x) {
            const T v = im.at(x, y, c);
            if (Min ? v < f.v : v > f.v) f = {v, x, y};
        }
    return f;
}

// The lane model of the Zel32f value scans: sample i of a row to lane i % P
// (8 for one and four channels, 12 for three), lanes start at the row's first
// pixel, op(lane, sample) returns the sample unless the lane is strictly
// better; lanes fold per channel in ascending order, rows merge the same way.
template <bool Min>
float ref_lane_scan(const zt::Image<float>& im, Form f, int c) {
    const int P = f.mc == 3 ? 48 : 16;
    auto op = [](float a, float b) { return (Min ? a < b : a > b) ? a : b; };
    float total = 0;
    for (int y = 0; y < im.height(); ++y) {
        std::vector<float> lane(P);
        for (int l = 0; l < P; ++l) lane[l] = im.at(0, y, l % f.mc);
        for (int i = 0; i < im.width() * f.mc; ++i) lane[i % P] = op(lane[i % P], im.row(y)[i]);
        float r = lane[c];
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
    const T guard = T(77);
    T lo[5], hi[5], lo2[5], hi2[5], vi[5], va[5];
    int xi[5], yi[5], xa[5], ya[5];
    for (int c = 0; c < 5; ++c) lo[c] = hi[c] = lo2[c] = hi2[c] = vi[c] = va[c] = guard, xi[c] = yi[c] = xa[c] = ya[c] = -9;
    const auto before = im.bytes();
    ASSERT_EQ(m.min(im.ptr(), im.step(), im.size(), lo), zelStatusOk);
    ASSERT_EQ(m.max(im.ptr(), im.step(), im.size(), hi), zelStatusOk);
    ASSERT_EQ(m.minmax(im.ptr(), im.step(), im.size(), lo2, hi2), zelStatusOk);
    ASSERT_EQ(m.minIndx(im.ptr(), im.step(), im.size(), vi, xi, yi), zelStatusOk);
    ASSERT_EQ(m.maxIndx(im.ptr(), im.step(), im.size(), va, xa, ya), zelStatusOk);
    EXPECT_EQ(im.bytes(), before);
    for (int c = 0; c < f.ac; ++c) {
        const auto rmin = ref_indx<T, true>(im, c), rmax = ref_indx<T, false>(im, c);
        SCOPED_TRACE(testing::Message() << "w " << im.width() << " h " << im.height() << " c " << c);
        EXPECT_TRUE(same(lo[c], rmin.v));
        EXPECT_TRUE(same(hi[c], rmax.v));
        EXPECT_TRUE(same(lo2[c], rmin.v));
        EXPECT_TRUE(same(hi2[c], rmax.v));
        EXPECT_TRUE(same(vi[c], rmin.v));
        EXPECT_TRUE(same(va[c], rmax.v));
        EXPECT_EQ(xi[c], rmin.x);
        EXPECT_EQ(yi[c], rmin.y);
        EXPECT_EQ(xa[c], rmax.x);
        EXPECT_EQ(ya[c], rmax.y);
    }
    for (int c = f.ac; c < 5; ++c) {
        EXPECT_EQ(lo[c], guard);
        EXPECT_EQ(hi2[c], guard);
        EXPECT_EQ(xi[c], -9);
        EXPECT_EQ(ya[c], -9);
    }
}

template <class T>
void check_scans(const Members<T>& m) {
    for (const Shape& s : shapes())
        for (bool narrow : {false, true}) {
            auto im = make<T>(s, m.f.mc);
            fill(im, std::uint32_t(s.w * 3 + s.h + narrow), narrow);
            check_scans_on(m, im);
        }
    // Minimum at (5, 2) and at (1, 3): the upper row wins though further right;
    // per channel, different positions.
    zt::Image<T> im(9, 5, m.f.mc, 0);
    for (int y = 0; y < 5; ++y)
        for (int x = 0; x < 9; ++x)
            for (int c = 0; c < m.f.mc; ++c) im.at(x, y, c) = T(10);
    im.at(5, 2, 0) = T(1);
    im.at(1, 3, 0) = T(1);
    im.at(8, 4, m.f.ac - 1) = T(2);
    im.at(0, 4, m.f.ac - 1) = T(2);
    if (m.f.ac < m.f.mc) im.at(3, 0, 3) = T(0); // the alpha of AC4 is ignored
    check_scans_on(m, im);
    T v[4];
    int x[4], y[4];
    ASSERT_EQ(m.minIndx(im.ptr(), im.step(), im.size(), v, x, y), zelStatusOk);
    EXPECT_EQ(x[0], 5);
    EXPECT_EQ(y[0], 2);
    if (m.f.ac > 1) {
        EXPECT_EQ(x[m.f.ac - 1], 0);
        EXPECT_EQ(y[m.f.ac - 1], 4);
    }
    // One pixel: index 0, 0.
    zt::Image<T> one(1, 1, m.f.mc, 0, zt::Flush::Head, sizeof(T));
    fill(one, 3, false);
    check_scans_on(m, one);
    // Order of checks: null before size; steps are not checked.
    T r[4] = {}, r2[4] = {};
    int ix[4], iy[4];
    const T* p = one.ptr();
    EXPECT_EQ(m.min(nullptr, 4, ZeliSize{0, 0}, r), zelStatusNullPointer);
    EXPECT_EQ(m.max(p, 4, ZeliSize{1, 1}, nullptr), zelStatusNullPointer);
    EXPECT_EQ(m.minmax(p, 4, ZeliSize{0, 1}, r, nullptr), zelStatusNullPointer);
    EXPECT_EQ(m.minmax(p, 4, ZeliSize{0, 1}, r, r2), zelStatusBadSize);
    EXPECT_EQ(m.minIndx(p, 4, ZeliSize{0, 0}, r, ix, nullptr), zelStatusNullPointer);
    EXPECT_EQ(m.maxIndx(p, 4, ZeliSize{1, 0}, r, nullptr, iy), zelStatusNullPointer);
    EXPECT_EQ(m.maxIndx(p, 4, ZeliSize{1, -3}, r, ix, iy), zelStatusBadSize);
    EXPECT_EQ(m.min(p, 0, ZeliSize{1, 1}, r), zelStatusOk);
    EXPECT_EQ(m.minIndx(p, -5, ZeliSize{1, 1}, r, ix, iy), zelStatusOk);
}

#define SCAN_MEMBERS(T, L, F)                                                                              \
    check_scans<Zel##T>({zeliMin_##T##_##L##R, zeliMax_##T##_##L##R, zeliMinMax_##T##_##L##R,             \
                         zeliMinIndx_##T##_##L##R, zeliMaxIndx_##T##_##L##R, F});
#define SCAN_TYPE(T) SCAN_MEMBERS(T, C1, kC1) SCAN_MEMBERS(T, C3, kC3) SCAN_MEMBERS(T, C4, kC4) SCAN_MEMBERS(T, AC4, kAC4)

TEST(MinMax, ValuesAndIndices) {
    SCAN_TYPE(8u)
    SCAN_TYPE(16u)
    SCAN_TYPE(16s)
    SCAN_TYPE(32f)
}

// ---- Zel32f NaN and infinities ----------------------------------------------

TEST(MinMax, FloatNaNFollowsTheLanes) {
    const Members<float> all[] = {
        {zeliMin_32f_C1R, zeliMax_32f_C1R, zeliMinMax_32f_C1R, zeliMinIndx_32f_C1R, zeliMaxIndx_32f_C1R, kC1},
        {zeliMin_32f_C3R, zeliMax_32f_C3R, zeliMinMax_32f_C3R, zeliMinIndx_32f_C3R, zeliMaxIndx_32f_C3R, kC3},
        {zeliMin_32f_C4R, zeliMax_32f_C4R, zeliMinMax_32f_C4R, zeliMinIndx_32f_C4R, zeliMaxIndx_32f_C4R, kC4},
        {zeliMin_32f_AC4R, zeliMax_32f_AC4R, zeliMinMax_32f_AC4R, zeliMinIndx_32f_AC4R, zeliMaxIndx_32f_AC4R, kAC4}};
    const float nan = std::numeric_limits<float>::quiet_NaN(), inf = std::numeric_limits<float>::infinity();
    std::mt19937 rng(11);
    for (const auto& m : all)
        for (const Shape& s : shapes()) {
            auto im = make<float>(s, m.f.mc);
            fill(im, std::uint32_t(s.w), false);
            for (int i = 0; i < 1 + s.w / 8; ++i) im.at(int(rng() % s.w), int(rng() % s.h), int(rng() % m.f.mc)) = nan;
            float lo[4], hi[4], lo2[4], hi2[4], vi[4], va[4];
            int xi[4], yi[4], xa[4], ya[4];
            ASSERT_EQ(m.min(im.ptr(), im.step(), im.size(), lo), zelStatusOk);
            ASSERT_EQ(m.max(im.ptr(), im.step(), im.size(), hi), zelStatusOk);
            ASSERT_EQ(m.minmax(im.ptr(), im.step(), im.size(), lo2, hi2), zelStatusOk);
            ASSERT_EQ(m.minIndx(im.ptr(), im.step(), im.size(), vi, xi, yi), zelStatusOk);
            ASSERT_EQ(m.maxIndx(im.ptr(), im.step(), im.size(), va, xa, ya), zelStatusOk);
            for (int c = 0; c < m.f.ac; ++c) {
                SCOPED_TRACE(testing::Message() << "w " << s.w << " h " << s.h << " c " << c);
                EXPECT_TRUE(same(lo[c], ref_lane_scan<true>(im, m.f, c)));
                EXPECT_TRUE(same(hi[c], ref_lane_scan<false>(im, m.f, c)));
                EXPECT_TRUE(same(lo2[c], lo[c]));
                EXPECT_TRUE(same(hi2[c], hi[c]));
                // The index scans never let a NaN in: the extreme of the numbers.
                float rmin = FLT_MAX, rmax = -FLT_MAX;
                int x0 = 0, y0 = 0, x1 = 0, y1 = 0;
                for (int y = 0; y < s.h; ++y)
                    for (int x = 0; x < s.w; ++x) {
                        const float v = im.at(x, y, c);
                        if (v < rmin) rmin = v, x0 = x, y0 = y;
                        if (v > rmax) rmax = v, x1 = x, y1 = y;
                    }
                EXPECT_EQ(vi[c], rmin);
                EXPECT_EQ(va[c], rmax);
                EXPECT_EQ(xi[c], x0);
                EXPECT_EQ(yi[c], y0);
                EXPECT_EQ(xa[c], x1);
                EXPECT_EQ(ya[c], y1);
            }
        }
    // A NaN that is not the last sample of its lane does not stick.
    std::vector<float> row(40, 5.0f);
    row[3] = nan;
    row[20] = 1.0f;
    float v = 0;
    ASSERT_EQ(zeliMin_32f_C1R(row.data(), 160, ZeliSize{40, 1}, &v), zelStatusOk);
    EXPECT_EQ(v, 1.0f);
    row[31] = nan; // the last sample of lane 15: folded last, it wins
    ASSERT_EQ(zeliMin_32f_C1R(row.data(), 160, ZeliSize{40, 1}, &v), zelStatusOk);
    EXPECT_TRUE(std::isnan(v));
    // Only +inf or only NaN: the index scans report the largest finite value
    // and the position 0, 0 of a search that finds nothing.
    for (float fillv : {inf, nan}) {
        std::vector<float> img(3 * 17 * 4, fillv);
        float r[3];
        int x[3], y[3];
        ASSERT_EQ(zeliMinIndx_32f_C3R(img.data(), 17 * 12, ZeliSize{17, 4}, r, x, y), zelStatusOk);
        for (int c = 0; c < 3; ++c) {
            EXPECT_EQ(r[c], FLT_MAX);
            EXPECT_EQ(x[c], 0);
            EXPECT_EQ(y[c], 0);
        }
        ASSERT_EQ(zeliMaxIndx_32f_C1R(img.data(), 17 * 12, ZeliSize{51, 4}, r, x, y), zelStatusOk);
        if (std::isnan(fillv)) EXPECT_EQ(r[0], -FLT_MAX);
        else EXPECT_EQ(r[0], inf);
        float lo = 0;
        ASSERT_EQ(zeliMin_32f_C1R(img.data(), 17 * 12, ZeliSize{51, 4}, &lo), zelStatusOk);
        EXPECT_TRUE(same(lo, fillv));
    }
}

// ---- Pixelwise minimum and maximum ---------------------------------------------

template <class T>
using EveryFn = ZelStatus (*)(const T*, int, T*, int, ZeliSize);

template <class T, bool Min>
void check_every(EveryFn<T> fn, Form f) {
    const float nan = std::numeric_limits<float>::quiet_NaN();
    for (const Shape& s : shapes())
        for (bool packed : {false, true}) {
            auto src = make<T>(Shape{s.w, s.h, packed ? 0 : s.extra, s.flush, s.offset}, f.mc);
            auto dst = make<T>(Shape{s.w, s.h, packed ? 0 : s.extra + 2, zt::Flush::Tail, 0}, f.mc);
            fill(src, std::uint32_t(s.w + 1), s.w % 2);
            fill(dst, std::uint32_t(s.w + 2), s.w % 2);
            if constexpr (std::is_floating_point<T>::value) {
                src.at(0, 0, 0) = nan;
                dst.at(s.w - 1, s.h - 1, 0) = nan;
            }
            const auto before = dst.bytes();
            std::vector<T> want;
            for (int y = 0; y < s.h; ++y)
                for (int i = 0; i < s.w * f.mc; ++i) {
                    const T d = dst.row(y)[i], v = src.row(y)[i];
                    // The destination sample is the first operand.
                    want.push_back(f.ac == 3 && f.mc == 4 && i % 4 == 3 ? d : ((Min ? d < v : d > v) ? d : v));
                }
            ASSERT_EQ(fn(src.ptr(), src.step(), dst.ptr(), dst.step(), dst.size()), zelStatusOk);
            std::size_t k = 0;
            for (int y = 0; y < s.h; ++y)
                for (int i = 0; i < s.w * f.mc; ++i, ++k)
                    ASSERT_TRUE(same(dst.row(y)[i], want[k])) << "w " << s.w << " y " << y << " i " << i;
            // Padding between rows is untouched.
            const auto after = dst.bytes();
            const std::size_t rowBytes = std::size_t(s.w) * f.mc * sizeof(T);
            for (std::size_t b = 0; b < after.size(); ++b)
                if (b % dst.step() >= rowBytes) {
                    ASSERT_EQ(after[b], before[b]);
                }
        }
    T a[4] = {}, b[4] = {};
    EXPECT_EQ(fn(nullptr, 4, b, 4, ZeliSize{0, 0}), zelStatusNullPointer);
    EXPECT_EQ(fn(a, 4, nullptr, 0, ZeliSize{1, 1}), zelStatusNullPointer);
    EXPECT_EQ(fn(a, 0, b, 0, ZeliSize{0, 1}), zelStatusBadSize);
    EXPECT_EQ(fn(a, 0, b, 64, ZeliSize{1, 1}), zelStatusBadStep);
    EXPECT_EQ(fn(a, 64, b, -64, ZeliSize{1, 1}), zelStatusBadStep);
}

#define EVERY_MEMBERS(T)                                                   \
    check_every<Zel##T, true>(zeliMinEvery_##T##_C1IR, kC1);                  \
    check_every<Zel##T, true>(zeliMinEvery_##T##_C3IR, kC3);                  \
    check_every<Zel##T, true>(zeliMinEvery_##T##_C4IR, kC4);                  \
    check_every<Zel##T, true>(zeliMinEvery_##T##_AC4IR, kAC4);                \
    check_every<Zel##T, false>(zeliMaxEvery_##T##_C1IR, kC1);                 \
    check_every<Zel##T, false>(zeliMaxEvery_##T##_C3IR, kC3);                 \
    check_every<Zel##T, false>(zeliMaxEvery_##T##_C4IR, kC4);                 \
    check_every<Zel##T, false>(zeliMaxEvery_##T##_AC4IR, kAC4);

TEST(MinMaxEvery, AllMembers) {
    EVERY_MEMBERS(8u)
    EVERY_MEMBERS(16u)
    EVERY_MEMBERS(16s)
    EVERY_MEMBERS(32f)
}

} // namespace

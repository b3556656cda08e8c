// Compare, CompareC and the tolerance compares against references written
// from their rules: every operator, every layout, NaN, the 8u shortcuts that
// never read the source, and the order of status checks.
#include "guard.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <random>

namespace {

// Layout index: 0 C1, 1 C3, 2 C4, 3 AC4.
constexpr int kChans[4] = {1, 3, 4, 4}, kActive[4] = {1, 3, 4, 3};

template <class T>
struct Fns;
#define ZT_FNS(T)                                                                                          \
    template <>                                                                                             \
    struct Fns<Zel##T> {                                                                                    \
        static constexpr decltype(zeliCompare_##T##_C1R) * cmp[4] = {zeliCompare_##T##_C1R, zeliCompare_##T##_C3R, \
                                                                      zeliCompare_##T##_C4R, zeliCompare_##T##_AC4R}; \
        static constexpr auto cmpC1 = zeliCompareC_##T##_C1R;                                               \
        static constexpr decltype(zeliCompareC_##T##_C3R) * cmpC[4] = {nullptr, zeliCompareC_##T##_C3R,     \
                                                                        zeliCompareC_##T##_C4R, zeliCompareC_##T##_AC4R}; \
    };
ZT_FNS(8u)
ZT_FNS(16u)
ZT_FNS(16s)
ZT_FNS(32f)
#undef ZT_FNS

template <class T>
bool rel(int op, T a, T b) {
    switch (op) {
    case 0: return a < b;
    case 1: return a <= b;
    case 2: return a == b;
    case 3: return a >= b;
    default: return a > b;
    }
}

// Random samples from a small set, so that equal pairs occur; floats get NaN too.
template <class T>
void fill_small(zt::Image<T>& img, std::mt19937& rng) {
    for (int y = 0; y < img.height(); ++y)
        for (int x = 0; x < img.width() * img.channels(); ++x) {
            int v = int(rng() % 5);
            T s = T(v);
            if (std::is_floating_point<T>::value && v == 4) s = std::numeric_limits<T>::quiet_NaN();
            img.row(y)[x] = s;
        }
}

template <class T>
class Compare : public ::testing::Test {};
using Types = ::testing::Types<Zel8u, Zel16u, Zel16s, Zel32f>;
TYPED_TEST_SUITE(Compare, Types);

TYPED_TEST(Compare, ImagesAndConstants) {
    using T = TypeParam;
    using F = Fns<T>;
    std::mt19937 rng(21);
    for (int li = 0; li < 4; ++li)
        for (int w : {1, 3, 15, 16, 17, 33, 64, 100})
            for (int op = 0; op < 5; ++op) {
                const int C = kChans[li], A = kActive[li], h = 3;
                zt::Image<T> a(w, h, C, 2 * sizeof(T), zt::Flush::Head, sizeof(T)), b(w, h, C);
                zt::Image<Zel8u> d(w, h, 1, 3, zt::Flush::Head, 1);
                fill_small(a, rng), fill_small(b, rng);
                ASSERT_EQ(F::cmp[li](a.ptr(), a.step(), b.ptr(), b.step(), d.ptr(), d.step(), a.size(), op), zelStatusOk);
                for (int y = 0; y < h; ++y)
                    for (int x = 0; x < w; ++x) {
                        bool all = true;
                        for (int c = 0; c < A; ++c) all = all && rel(op, a.at(x, y, c), b.at(x, y, c));
                        ASSERT_EQ(d.at(x, y), all ? 255 : 0) << li << " " << w << " op " << op;
                    }
                T k[4] = {T(1), T(2), T(3), T(2)};
                if (li == 0) ASSERT_EQ(F::cmpC1(a.ptr(), a.step(), k[1], d.ptr(), d.step(), a.size(), op), zelStatusOk);
                else ASSERT_EQ(F::cmpC[li](a.ptr(), a.step(), k, d.ptr(), d.step(), a.size(), op), zelStatusOk);
                for (int y = 0; y < h; ++y)
                    for (int x = 0; x < w; ++x) {
                        bool all = true;
                        for (int c = 0; c < A; ++c) all = all && rel(op, a.at(x, y, c), li == 0 ? k[1] : k[c]);
                        ASSERT_EQ(d.at(x, y), all ? 255 : 0) << "const " << li << " " << w << " op " << op;
                    }
            }
}

TYPED_TEST(Compare, OperatorAboveFourAndStatusOrder) {
    using T = TypeParam;
    using F = Fns<T>;
    zt::Image<T> a(8, 2, 1);
    zt::Image<Zel8u> d(8, 2, 1);
    a.fill_random(1), d.fill_random(2);
    const auto before = d.bytes();
    EXPECT_EQ(F::cmp[0](a.ptr(), a.step(), a.ptr(), a.step(), d.ptr(), d.step(), a.size(), 5), zelStatusOk);
    EXPECT_EQ(F::cmpC1(a.ptr(), a.step(), T(0), d.ptr(), d.step(), a.size(), 7), zelStatusOk);
    EXPECT_EQ(d.bytes(), before);
    // null, steps, size
    EXPECT_EQ(F::cmp[0](a.ptr(), 0, nullptr, 0, d.ptr(), 0, {0, 0}, 0), zelStatusNullPointer);
    EXPECT_EQ(F::cmp[0](a.ptr(), a.step(), a.ptr(), 0, d.ptr(), d.step(), {0, 0}, 0), zelStatusBadStep);
    EXPECT_EQ(F::cmp[0](a.ptr(), a.step(), a.ptr(), a.step(), d.ptr(), d.step(), {8, 0}, 0), zelStatusBadSize);
    EXPECT_EQ(F::cmpC[1](a.ptr(), a.step(), nullptr, d.ptr(), d.step(), {0, 0}, 0), zelStatusNullPointer);
    EXPECT_EQ(F::cmpC1(a.ptr(), -1, T(0), d.ptr(), d.step(), {0, 0}, 0), zelStatusBadStep);
    EXPECT_EQ(F::cmpC1(a.ptr(), a.step(), T(0), d.ptr(), d.step(), {0, 2}, 0), zelStatusBadSize);
}

// Greater than 255 and less than 0 never hold on 8u: the source is not read.
TEST(CompareShortcut, NeverReadsSource) {
    zt::Image<Zel8u> guard(16, 1, 1), d(16, 4, 1, 3, zt::Flush::Head, 1);
    const Zel8u* unreadable = guard.ptr() + 16; // the guard page after the region
    for (auto [op, v] : {std::pair<int, Zel8u>{zelCmpGreater, 255}, {zelCmpLess, 0}}) {
        d.fill_bytes(7);
        ASSERT_EQ(zeliCompareC_8u_C1R(unreadable, 64, v, d.ptr(), d.step(), {16, 4}, op), zelStatusOk);
        for (int y = 0; y < 4; ++y)
            for (int x = 0; x < 16; ++x) ASSERT_EQ(d.at(x, y), 0);
    }
    // The source is read otherwise: 255 > 254 everywhere.
    zt::Image<Zel8u> s(16, 4, 1);
    s.fill_bytes(255);
    ASSERT_EQ(zeliCompareC_8u_C1R(s.ptr(), s.step(), 254, d.ptr(), d.step(), {16, 4}, zelCmpGreater), zelStatusOk);
    EXPECT_EQ(d.at(15, 3), 255);
}

TEST(CompareEps, AllLayoutsNaNAndStatus) {
    decltype(zeliCompareEqualEps_32f_C1R)* img[4] = {zeliCompareEqualEps_32f_C1R, zeliCompareEqualEps_32f_C3R,
                                                     zeliCompareEqualEps_32f_C4R, zeliCompareEqualEps_32f_AC4R};
    decltype(zeliCompareEqualEpsC_32f_C3R)* cst[4] = {nullptr, zeliCompareEqualEpsC_32f_C3R, zeliCompareEqualEpsC_32f_C4R,
                                                      zeliCompareEqualEpsC_32f_AC4R};
    std::mt19937 rng(5);
    const float nan = std::numeric_limits<float>::quiet_NaN();
    for (int li = 0; li < 4; ++li)
        for (int w : {1, 4, 17, 33}) {
            const int C = kChans[li], A = kActive[li], h = 2;
            zt::Image<Zel32f> a(w, h, C, 4, zt::Flush::Head, 4), b(w, h, C);
            zt::Image<Zel8u> d(w, h, 1);
            for (int y = 0; y < h; ++y)
                for (int x = 0; x < w * C; ++x) {
                    a.row(y)[x] = float(rng() % 8) * 0.25f;
                    b.row(y)[x] = rng() % 9 == 0 ? nan : float(rng() % 8) * 0.25f;
                }
            const float eps = 0.25f, k[4] = {0.5f, 1.0f, 0.25f, 0.75f};
            ASSERT_EQ(img[li](a.ptr(), a.step(), b.ptr(), b.step(), d.ptr(), d.step(), a.size(), eps), zelStatusOk);
            for (int y = 0; y < h; ++y)
                for (int x = 0; x < w; ++x) {
                    bool all = true;
                    for (int c = 0; c < A; ++c) all = all && std::fabs(a.at(x, y, c) - b.at(x, y, c)) <= eps;
                    ASSERT_EQ(d.at(x, y), all ? 255 : 0);
                }
            const ZelStatus st = li == 0 ? zeliCompareEqualEpsC_32f_C1R(a.ptr(), a.step(), k[0], d.ptr(), d.step(), a.size(), eps)
                                         : cst[li](a.ptr(), a.step(), k, d.ptr(), d.step(), a.size(), eps);
            ASSERT_EQ(st, zelStatusOk);
            for (int y = 0; y < h; ++y)
                for (int x = 0; x < w; ++x) {
                    bool all = true;
                    for (int c = 0; c < A; ++c) all = all && std::fabs(a.at(x, y, c) - k[c]) <= eps;
                    ASSERT_EQ(d.at(x, y), all ? 255 : 0);
                }
        }
    zt::Image<Zel32f> a(4, 1, 1);
    zt::Image<Zel8u> d(4, 1, 1);
    // null, step, size, eps
    EXPECT_EQ(zeliCompareEqualEps_32f_C1R(nullptr, 0, a.ptr(), 0, d.ptr(), 0, {0, 0}, -1.f), zelStatusNullPointer);
    EXPECT_EQ(zeliCompareEqualEps_32f_C1R(a.ptr(), 0, a.ptr(), 16, d.ptr(), 4, {0, 0}, -1.f), zelStatusBadStep);
    EXPECT_EQ(zeliCompareEqualEps_32f_C1R(a.ptr(), 16, a.ptr(), 16, d.ptr(), 4, {0, 1}, -1.f), zelStatusBadSize);
    EXPECT_EQ(zeliCompareEqualEps_32f_C1R(a.ptr(), 16, a.ptr(), 16, d.ptr(), 4, {4, 1}, -1.f), zelStatusBadEpsilon);
    EXPECT_EQ(zeliCompareEqualEpsC_32f_C1R(a.ptr(), 16, 0.f, d.ptr(), 4, {4, 1}, -0.5f), zelStatusBadEpsilon);
    EXPECT_EQ(zeliCompareEqualEpsC_32f_C3R(a.ptr(), 16, nullptr, d.ptr(), 4, {4, 1}, -0.5f), zelStatusNullPointer);
}

TEST(CompareExamples, TwoOfThreeChannelsAndNaN) {
    const Zel8u p[3] = {1, 2, 3}, q[3] = {1, 2, 4};
    Zel8u d = 7;
    ASSERT_EQ(zeliCompare_8u_C3R(p, 3, q, 3, &d, 1, {1, 1}, zelCmpEq), zelStatusOk);
    EXPECT_EQ(d, 0);
    const float n = std::numeric_limits<float>::quiet_NaN(), one = 1.f;
    for (int op = 0; op < 5; ++op) {
        ASSERT_EQ(zeliCompare_32f_C1R(&n, 4, &one, 4, &d, 1, {1, 1}, op), zelStatusOk);
        EXPECT_EQ(d, 0) << op;
        ASSERT_EQ(zeliCompareC_32f_C1R(&n, 4, n, &d, 1, {1, 1}, op), zelStatusOk);
        EXPECT_EQ(d, 0) << op;
    }
}

} // namespace

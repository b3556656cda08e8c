// Histograms and range counts against a brute reference: a sample is counted
// in every bin k with level[k] <= v < level[k + 1]; a count takes
// lower <= v <= upper. Sizes and level counts around the method limits of the
// 16-bit forms make sure that every method gives the same counts.
#include "guard.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <string>
#include <vector>

namespace {

using RangeFn = std::function<ZelStatus(const void*, int, ZeliSize, Zel32s**, const void**, int*)>;
using EvenFn = std::function<ZelStatus(const void*, int, ZeliSize, Zel32s**, Zel32s**, int*, Zel32s*, Zel32s*)>;
using CountFn = std::function<ZelStatus(const void*, int, ZeliSize, int*, const void*, const void*)>;

struct Member {
    std::string name;
    int type; // 0 8u, 1 16u, 2 16s, 3 32f
    int ch, active;
    RangeFn range;
    EvenFn even;
    CountFn count;
};

template <class T> constexpr int type_id();
template <> constexpr int type_id<Zel8u>() { return 0; }
template <> constexpr int type_id<Zel16u>() { return 1; }
template <> constexpr int type_id<Zel16s>() { return 2; }
template <> constexpr int type_id<Zel32f>() { return 3; }

#define CH_C1 1, 1
#define CH_C3 3, 3
#define CH_C4 4, 4
#define CH_AC4 4, 3
#define RANGE1(T, LV)                                                                                     \
    Member{"zeliHistogramRange_" #T "_C1R", type_id<Zel##T>(), 1, 1,                                      \
           [](const void* s, int st, ZeliSize r, Zel32s** h, const void** l, int* n) {                    \
               return zeliHistogramRange_##T##_C1R((const Zel##T*)s, st, r, h[0], (const Zel##LV*)l[0], n[0]); \
           }, nullptr, nullptr},
#define RANGE(T, LV, L)                                                                                   \
    Member{"zeliHistogramRange_" #T "_" #L "R", type_id<Zel##T>(), CH_##L,                                \
           [](const void* s, int st, ZeliSize r, Zel32s** h, const void** l, int* n) {                    \
               return zeliHistogramRange_##T##_##L##R((const Zel##T*)s, st, r, h, (const Zel##LV**)l, n); \
           }, nullptr, nullptr},
#define EVEN1(T)                                                                                          \
    Member{"zeliHistogramEven_" #T "_C1R", type_id<Zel##T>(), 1, 1, nullptr,                              \
           [](const void* s, int st, ZeliSize r, Zel32s** h, Zel32s** l, int* n, Zel32s* lo, Zel32s* hi) { \
               return zeliHistogramEven_##T##_C1R((const Zel##T*)s, st, r, h[0], l[0], n[0], lo[0], hi[0]); \
           }, nullptr},
#define EVEN(T, L)                                                                                        \
    Member{"zeliHistogramEven_" #T "_" #L "R", type_id<Zel##T>(), CH_##L, nullptr,                        \
           [](const void* s, int st, ZeliSize r, Zel32s** h, Zel32s** l, int* n, Zel32s* lo, Zel32s* hi) { \
               return zeliHistogramEven_##T##_##L##R((const Zel##T*)s, st, r, h, l, n, lo, hi);          \
           }, nullptr},
#define COUNT1(T)                                                                                         \
    Member{"zeliCountInRange_" #T "_C1R", type_id<Zel##T>(), 1, 1, nullptr, nullptr,                      \
           [](const void* s, int st, ZeliSize r, int* c, const void* lo, const void* hi) {                \
               return zeliCountInRange_##T##_C1R((const Zel##T*)s, st, r, c, *(const Zel##T*)lo, *(const Zel##T*)hi); \
           }},
#define COUNT(T, L)                                                                                       \
    Member{"zeliCountInRange_" #T "_" #L "R", type_id<Zel##T>(), CH_##L, nullptr, nullptr,                \
           [](const void* s, int st, ZeliSize r, int* c, const void* lo, const void* hi) {                \
               return zeliCountInRange_##T##_##L##R((const Zel##T*)s, st, r, c, (Zel##T*)lo, (Zel##T*)hi); \
           }},
#define RANGE_ALL(T, LV) RANGE1(T, LV) RANGE(T, LV, C3) RANGE(T, LV, C4) RANGE(T, LV, AC4)
#define EVEN_ALL(T) EVEN1(T) EVEN(T, C3) EVEN(T, C4) EVEN(T, AC4)

const std::vector<Member>& members() {
    static const std::vector<Member> m = {RANGE_ALL(8u, 32s) RANGE_ALL(16u, 32s) RANGE_ALL(16s, 32s)
                                              RANGE_ALL(32f, 32f) EVEN_ALL(8u) EVEN_ALL(16u) EVEN_ALL(16s)
                                                  COUNT1(8u) COUNT(8u, C3) COUNT(8u, AC4) COUNT1(32f)
                                                      COUNT(32f, C3) COUNT(32f, AC4)};
    return m;
}

template <class T, class LV>
std::vector<Zel32s> ref_hist(const zt::Image<T>& img, int c, const std::vector<LV>& lv) {
    std::vector<Zel32s> h(lv.size() - 1, 0);
    for (int y = 0; y < img.height(); ++y)
        for (int x = 0; x < img.width(); ++x) {
            const T v = img.at(x, y, c);
            for (std::size_t k = 0; k + 1 < lv.size(); ++k)
                if (LV(lv[k]) <= v && v < LV(lv[k + 1])) ++h[k];
        }
    return h;
}

template <class T>
void fill(zt::Image<T>& img, std::mt19937& rng) {
    for (int y = 0; y < img.height(); ++y)
        for (int i = 0; i < img.width() * img.channels(); ++i) {
            if (std::is_same<T, Zel32f>::value) {
                const unsigned r = rng() % 64;
                img.row(y)[i] = r == 0 ? std::nanf("") : T(double(int(r) - 20) * 0.5);
            } else {
                img.row(y)[i] = T(rng());
            }
        }
}

// Level sets: sorted beyond the sample range, sorted within it, unsorted
// with overlaps and reversed pairs, a single bin, many sorted levels.
template <class T, class LV>
std::vector<std::vector<LV>> level_sets(std::mt19937& rng) {
    const double lo = std::is_same<T, Zel32f>::value ? -12 : double(std::numeric_limits<T>::lowest());
    const double hi = std::is_same<T, Zel32f>::value ? 24 : double(std::numeric_limits<T>::max());
    auto pick = [&](double a, double b) {
        const double u = double(rng() % 100000) / 100000;
        return std::is_same<LV, Zel32f>::value ? LV(std::floor((a + (b - a) * u) * 2) / 2) : LV(std::floor(a + (b - a) * u));
    };
    std::vector<std::vector<LV>> sets;
    for (int n : {2, 5, 33, 120, 200}) {
        std::vector<LV> s;
        for (int k = 0; k < n; ++k) s.push_back(pick(lo - 10, hi + 10));
        std::vector<LV> u = s;
        std::sort(s.begin(), s.end());
        s.erase(std::unique(s.begin(), s.end()), s.end());
        if (s.size() >= 2) sets.push_back(s);
        sets.push_back(u); // unsorted
    }
    sets.push_back({LV(lo), LV(hi)}); // the top value sits on the last level
    return sets;
}

template <class T>
void check_range(const Member& m) {
    using LV = typename std::conditional<std::is_same<T, Zel32f>::value, Zel32f, Zel32s>::type;
    std::mt19937 rng(11);
    const auto sets = level_sets<T, LV>(rng);
    for (int w : {1, 3, 16, 17, 33, 100}) {
        for (int variant = 0; variant < 3; ++variant) {
            const int h = variant == 0 ? 1 : 3;
            zt::Image<T> img(w, h, m.ch, variant == 1 ? 2 * int(sizeof(T)) : 0,
                             variant == 2 ? zt::Flush::Head : zt::Flush::Tail, variant == 2 ? sizeof(T) : 0);
            fill(img, rng);
            for (std::size_t s = 0; s < sets.size(); ++s) {
                std::vector<LV> lv[4];
                std::vector<Zel32s> hist[4];
                const void* lp[4];
                Zel32s* hp[4];
                int n[4];
                for (int c = 0; c < m.active; ++c) {
                    lv[c] = sets[(s + c) % sets.size()];
                    hist[c].assign(lv[c].size(), -7);
                    lp[c] = lv[c].data();
                    hp[c] = hist[c].data();
                    n[c] = int(lv[c].size());
                }
                ASSERT_EQ(m.range(img.ptr(), img.step(), img.size(), hp, lp, n), zelStatusOk) << m.name;
                for (int c = 0; c < m.active; ++c) {
                    const std::vector<Zel32s> want = ref_hist(img, c, lv[c]);
                    ASSERT_EQ(std::vector<Zel32s>(hist[c].begin(), hist[c].end() - 1), want)
                        << m.name << " w " << w << " variant " << variant << " set " << s << " c " << c;
                    EXPECT_EQ(hist[c].back(), -7) << m.name << ": wrote past the bins";
                }
            }
        }
    }
}

// The rule for the even levels, for the reference.
std::vector<Zel32s> even_ref(int nLevels, Zel32s lower, Zel32s upper) {
    std::vector<Zel32s> lv(nLevels);
    const long long n = nLevels - 1, diff = (long long)upper - lower, d = diff / n, r = diff % n;
    lv[0] = lower;
    for (int k = 0; k < n; ++k) lv[k + 1] = Zel32s(lv[k] + d + (diff >= 0 ? (r - k > 0) : -(r + k < 0)));
    return lv;
}

template <class T>
void check_even(const Member& m) {
    std::mt19937 rng(5);
    const Zel32s lo = Zel32s(std::numeric_limits<T>::lowest()), hi = Zel32s(std::numeric_limits<T>::max());
    const struct { int n; Zel32s a, b; } cases[] = {{5, 0, 10},       {2, lo, hi + 1}, {257, lo, hi + 1},
                                                    {7, hi, lo},      {40, 3, 250},    {4, 0, 3},
                                                    {6, 100, 97},     {3, lo - 50, hi + 99}};
    for (int w : {1, 17, 64}) {
        zt::Image<T> img(w, 3, m.ch, 0, zt::Flush::Head, sizeof(T));
        fill(img, rng);
        for (std::size_t i = 0; i < sizeof(cases) / sizeof(cases[0]); ++i) {
            std::vector<Zel32s> lv[4], hist[4];
            Zel32s *lp[4], *hp[4], a[4], b[4];
            int n[4];
            for (int c = 0; c < m.active; ++c) {
                const auto& cs = cases[(i + c) % (sizeof(cases) / sizeof(cases[0]))];
                n[c] = cs.n;
                a[c] = cs.a;
                b[c] = cs.b;
                lv[c].assign(n[c], -9);
                hist[c].assign(n[c] - 1, -9);
                lp[c] = lv[c].data();
                hp[c] = hist[c].data();
            }
            ASSERT_EQ(m.even(img.ptr(), img.step(), img.size(), hp, lp, n, a, b), zelStatusOk) << m.name;
            for (int c = 0; c < m.active; ++c) {
                const std::vector<Zel32s> want = even_ref(n[c], a[c], b[c]);
                ASSERT_EQ(lv[c], want) << m.name << " case " << i << " c " << c;
                EXPECT_EQ(lv[c].back(), b[c]);
                ASSERT_EQ(hist[c], ref_hist(img, c, want)) << m.name << " case " << i << " c " << c;
            }
        }
    }
}

template <class T>
void check_count(const Member& m) {
    std::mt19937 rng(9);
    for (int w : zt::sweep_widths()) {
        for (int variant = 0; variant < 3; ++variant) {
            zt::Image<T> img(w, 2, m.ch, variant == 1 ? int(sizeof(T)) : 0,
                             variant == 2 ? zt::Flush::Head : zt::Flush::Tail, variant == 2 ? (sizeof(T) == 1 ? 3 : sizeof(T)) : 0);
            fill(img, rng);
            for (int trial = 0; trial < 4; ++trial) {
                T lo[3], hi[3];
                for (int c = 0; c < 3; ++c) {
                    T a, b;
                    if (std::is_same<T, Zel32f>::value) {
                        a = T(double(int(rng() % 60) - 25) * 0.5);
                        b = trial == 0 ? a : T(double(int(rng() % 60) - 25) * 0.5); // equal bounds: exact matches
                    } else {
                        a = T(rng());
                        b = trial == 0 ? a : T(rng());
                    }
                    lo[c] = std::min(a, b);
                    hi[c] = std::max(a, b);
                }
                int got[4] = {-1, -1, -1, -1};
                ASSERT_EQ(m.count(img.ptr(), img.step(), img.size(), got, lo, hi), zelStatusOk);
                for (int c = 0; c < m.active; ++c) {
                    int want = 0;
                    for (int y = 0; y < img.height(); ++y)
                        for (int x = 0; x < w; ++x) {
                            const T v = img.at(x, y, c);
                            want += (v >= lo[c] && v <= hi[c]); // false for NaN
                        }
                    ASSERT_EQ(got[c], want) << m.name << " w " << w << " variant " << variant << " c " << c;
                }
                EXPECT_EQ(got[m.active], -1) << m.name;
            }
        }
    }
}

template <class T>
void check(const Member& m) {
    if (m.range) check_range<T>(m);
    if constexpr (!std::is_same<T, Zel32f>::value)
        if (m.even) check_even<T>(m);
    if constexpr (std::is_same<T, Zel8u>::value || std::is_same<T, Zel32f>::value)
        if (m.count) check_count<T>(m);
}

TEST(Hist, EveryMemberMatchesReference) {
    ASSERT_EQ(members().size(), 34u);
    for (const Member& m : members()) {
        switch (m.type) {
        case 0: check<Zel8u>(m); break;
        case 1: check<Zel16u>(m); break;
        case 2: check<Zel16s>(m); break;
        default: check<Zel32f>(m); break;
        }
    }
}

// Image sizes and level counts on both sides of every limit of the 16-bit
// method choice: the counts must not depend on the method taken.
template <class T>
void method_limits(bool sorted) {
    std::mt19937 rng(sorted ? 1 : 2);
    const std::vector<int> sizes = sorted ? std::vector<int>{6400, 9216, 12544, 16384, 20736, 25600, 36864}
                                          : std::vector<int>{1024, 2304, 4096, 6400, 9216, 12544, 16384, 20736,
                                                             25600, 30976, 43264};
    const std::vector<int> limits = sorted ? std::vector<int>{171, 134, 78, 50, 34, 22, 6, 2}
                                           : std::vector<int>{434, 434, 222, 126, 78, 50, 34, 22, 14, 10, 6, 2};
    for (std::size_t i = 0; i <= sizes.size(); ++i) {
        for (int pixels : {i == 0 ? 1000 : sizes[i - 1], i < sizes.size() ? sizes[i] - 1 : 50000}) {
            const int lim = limits[i];
            for (int nl : {lim - 1, lim, lim + 1, 2, 3}) {
                if (nl < 2) continue;
                const int w = pixels % 2 ? pixels : pixels / 2, h = pixels % 2 ? 1 : 2;
                zt::Image<T> img(w, h, 1);
                fill(img, rng);
                std::vector<Zel32s> lv;
                for (int k = 0; k < nl; ++k)
                    lv.push_back(Zel32s(int(rng() % 70000) - 35000 + (std::is_signed<T>::value ? 0 : 32768)));
                if (sorted) {
                    std::sort(lv.begin(), lv.end());
                    for (int k = 1; k < nl; ++k) lv[k] = std::max(lv[k], lv[k - 1] + 1);
                }
                std::vector<Zel32s> hist(nl - 1, -3);
                ZelStatus st;
                if (std::is_same<T, Zel16u>::value)
                    st = zeliHistogramRange_16u_C1R((const Zel16u*)img.ptr(), img.step(), img.size(), hist.data(), lv.data(), nl);
                else
                    st = zeliHistogramRange_16s_C1R((const Zel16s*)img.ptr(), img.step(), img.size(), hist.data(), lv.data(), nl);
                ASSERT_EQ(st, zelStatusOk);
                ASSERT_EQ(hist, ref_hist(img, 0, lv)) << "pixels " << pixels << " levels " << nl << " sorted " << sorted;
            }
        }
    }
}

// Interleaved 16-bit images big enough for the full table on every channel.
template <class T, class F>
void table_layouts(F fn, int ch, int active) {
    std::mt19937 rng(4);
    zt::Image<T> img(200, 200, ch, 2 * int(sizeof(T)));
    fill(img, rng);
    const auto sets = level_sets<T, Zel32s>(rng);
    std::vector<Zel32s> hist[4];
    const Zel32s* lp[4];
    Zel32s* hp[4];
    int n[4];
    for (int c = 0; c < active; ++c) {
        const auto& lv = sets[(3 * c + 2) % sets.size()];
        hist[c].assign(lv.size() - 1, -1);
        lp[c] = lv.data();
        hp[c] = hist[c].data();
        n[c] = int(lv.size());
    }
    ASSERT_EQ(fn((const T*)img.ptr(), img.step(), img.size(), hp, lp, n), zelStatusOk);
    for (int c = 0; c < active; ++c)
        EXPECT_EQ(hist[c], ref_hist(img, c, sets[(3 * c + 2) % sets.size()])) << "channel " << c;
}

TEST(Hist, TableMethodOnInterleavedImages) {
    table_layouts<Zel16u>(zeliHistogramRange_16u_C3R, 3, 3);
    table_layouts<Zel16u>(zeliHistogramRange_16u_AC4R, 4, 3);
    table_layouts<Zel16s>(zeliHistogramRange_16s_C4R, 4, 4);
    table_layouts<Zel16s>(zeliHistogramRange_16s_C3R, 3, 3);
}

TEST(Hist, SixteenBitMethodsAgreeAroundTheirLimits) {
    method_limits<Zel16u>(true);
    method_limits<Zel16u>(false);
    method_limits<Zel16s>(true);
    method_limits<Zel16s>(false);
}

TEST(Hist, EdgeCases) {
    zt::Image<Zel8u> img(8, 1, 1);
    for (int x = 0; x < 8; ++x) img.at(x, 0) = Zel8u(x * 10);
    const Zel32s lv[] = {0, 30, 10, 70, 300};
    Zel32s h[4];
    ASSERT_EQ(zeliHistogramRange_8u_C1R(img.ptr(), img.step(), img.size(), h, lv, 5), zelStatusOk);
    EXPECT_EQ(h[0], 3); // 0, 10, 20
    EXPECT_EQ(h[1], 0); // reversed pair
    EXPECT_EQ(h[2], 6); // 10..60
    EXPECT_EQ(h[3], 1); // 70
    Zel32s lv5[5];
    ASSERT_EQ(zeliHistogramEven_8u_C1R(img.ptr(), img.step(), img.size(), h, lv5, 5, 0, 10), zelStatusOk);
    EXPECT_EQ(std::vector<Zel32s>(lv5, lv5 + 5), (std::vector<Zel32s>{0, 3, 6, 8, 10}));
    zt::Image<Zel32f> f(4, 1, 1);
    f.at(0, 0) = 1.0f;
    f.at(1, 0) = std::nanf("");
    f.at(2, 0) = 2.0f; // on the last level
    f.at(3, 0) = -std::numeric_limits<float>::infinity();
    const Zel32f flv[] = {-std::numeric_limits<float>::infinity(), 1.0f, 2.0f};
    ASSERT_EQ(zeliHistogramRange_32f_C1R(f.ptr(), f.step(), f.size(), h, flv, 3), zelStatusOk);
    EXPECT_EQ(h[0], 1);
    EXPECT_EQ(h[1], 1);
}

TEST(Hist, StatusOrders) {
    zt::Image<Zel16u> img(4, 2, 1);
    Zel32s h[4] = {5, 5, 5, 5}, lv[4] = {0, 1, 2, 3};
    const ZeliSize bad{4, 0}, ok{4, 2};
    // Range: pointers, levels, size, step
    EXPECT_EQ(zeliHistogramRange_16u_C1R(nullptr, 0, bad, h, lv, 1), zelStatusNullPointer);
    EXPECT_EQ(zeliHistogramRange_16u_C1R(img.ptr(), 0, bad, h, nullptr, 1), zelStatusNullPointer);
    EXPECT_EQ(zeliHistogramRange_16u_C1R(img.ptr(), 0, bad, h, lv, 1), zelStatusBadHistogramLevels);
    EXPECT_EQ(zeliHistogramRange_16u_C1R(img.ptr(), 0, bad, h, lv, 4), zelStatusBadSize);
    EXPECT_EQ(zeliHistogramRange_16u_C1R(img.ptr(), 0, ok, h, lv, 4), zelStatusBadStep);
    // Even: pointers, size, step, levels
    EXPECT_EQ(zeliHistogramEven_16u_C1R(img.ptr(), 0, bad, nullptr, lv, 1, 0, 9), zelStatusNullPointer);
    EXPECT_EQ(zeliHistogramEven_16u_C1R(img.ptr(), 0, bad, h, lv, 1, 0, 9), zelStatusBadSize);
    EXPECT_EQ(zeliHistogramEven_16u_C1R(img.ptr(), 0, ok, h, lv, 1, 0, 9), zelStatusBadStep);
    EXPECT_EQ(zeliHistogramEven_16u_C1R(img.ptr(), img.step(), ok, h, lv, 1, 0, 9), zelStatusBadHistogramLevels);
    Zel32s* hp[3] = {h, h, nullptr};
    const Zel32s* lp[3] = {lv, lv, lv};
    int n[3] = {4, 1, 4};
    EXPECT_EQ(zeliHistogramRange_16u_C3R(img.ptr(), 0, bad, hp, lp, n), zelStatusNullPointer);
    hp[2] = h;
    EXPECT_EQ(zeliHistogramRange_16u_C3R(img.ptr(), 0, bad, hp, lp, n), zelStatusBadHistogramLevels);
    for (Zel32s v : h) EXPECT_EQ(v, 5);
    // CountInRange: pointers, step, size, range
    zt::Image<Zel8u> b(4, 2, 1);
    int cnt = 77;
    EXPECT_EQ(zeliCountInRange_8u_C1R(nullptr, 0, bad, &cnt, 3, 1), zelStatusNullPointer);
    EXPECT_EQ(zeliCountInRange_8u_C1R(b.ptr(), 0, bad, &cnt, 3, 1), zelStatusBadStep);
    EXPECT_EQ(zeliCountInRange_8u_C1R(b.ptr(), 4, bad, &cnt, 3, 1), zelStatusBadSize);
    EXPECT_EQ(zeliCountInRange_8u_C1R(b.ptr(), 4, ok, &cnt, 3, 1), zelStatusBadRange);
    Zel32f flo[3] = {0, 2, 0}, fhi[3] = {1, 1, 1};
    int c3[3] = {77, 77, 77};
    zt::Image<Zel32f> f(4, 2, 4);
    EXPECT_EQ(zeliCountInRange_32f_AC4R(f.ptr(), f.step(), ok, c3, flo, fhi), zelStatusBadRange);
    EXPECT_EQ(cnt, 77);
    EXPECT_EQ(c3[0], 77);
}

} // namespace

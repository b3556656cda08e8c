// Histograms and range counts against a brute reference: a sample is counted
// in every bin k with level[k] <= v < level[k + 1]; a count takes
// lower <= v <= upper. Large 16-bit images with few and many, sorted and
// unsorted levels reach every counting method. The members come from the
// declaration lists.
#include "members.hpp"
#include "named_args.hpp"

#include <gtest/gtest.h>

#include <dlfcn.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <limits>
#include <string>
#include <vector>

// Allocations fail while this is set: the library's one allocator is
// zelMalloc of libzelcore, which this definition stands in front of.
static bool g_failAlloc = false;
extern "C" void* zelMalloc(size_t n) {
    static auto real = reinterpret_cast<void* (*)(size_t)>(dlsym(RTLD_NEXT, "zelMalloc"));
    return g_failAlloc ? nullptr : real(n);
}

namespace {

// A member with the parts of its name.
struct Hist {
    const zt::Member* m;
    zt::NameParts n;
    template <class F> F fn() const { return reinterpret_cast<F>(m->fn); }
};

std::vector<Hist> hists() {
    std::vector<Hist> v;
    for (const zt::Member& m : zt::members())
        if (m.name.rfind("zeliHistogram", 0) == 0 || m.name.rfind("zeliCountInRange", 0) == 0) v.push_back({&m, zt::name_parts(m.name)});
    return v;
}

template <class T>
using LevelOf = typename std::conditional<std::is_same<T, Zel32f>::value, Zel32f, Zel32s>::type;

template <class T, class LV>
std::vector<Zel32s> ref_hist(const zt::Image<T>& img, int c, const std::vector<LV>& lv) {
    std::vector<Zel32s> h(lv.size() - 1, 0);
    for (int y = 0; y < img.height(); ++y)
        for (int x = 0; x < img.width(); ++x)
            for (std::size_t k = 0; k + 1 < lv.size(); ++k) h[k] += LV(lv[k]) <= img.at(x, y, c) && img.at(x, y, c) < LV(lv[k + 1]);
    return h;
}

template <class T>
void fill(zt::Image<T>& img, std::mt19937& rng) {
    for (int y = 0; y < img.height(); ++y)
        for (int i = 0; i < img.width() * img.channels(); ++i) {
            const unsigned r = rng() % 64;
            img.row(y)[i] = !std::is_same<T, Zel32f>::value ? T(rng()) : r == 0 ? T(std::nanf("")) : T(double(int(r) - 20) * 0.5);
        }
}

// Level sets: sorted, unsorted with overlaps and reversed pairs (2 to 200
// levels, beyond the sample range), and the full range with the top value
// on the last level.
template <class T, class LV>
std::vector<std::vector<LV>> level_sets(std::mt19937& rng) {
    const bool f = std::is_same<T, Zel32f>::value;
    const double lo = f ? -12 : double(std::numeric_limits<T>::lowest()), hi = f ? 24 : double(std::numeric_limits<T>::max());
    std::vector<std::vector<LV>> sets;
    for (int n : {2, 5, 33, 120, 200}) {
        std::vector<LV> s;
        for (int k = 0; k < n; ++k) s.push_back(LV(std::floor((lo - 10 + (hi - lo + 20) * double(rng() % 100000) / 1e5) * 2) / 2));
        sets.push_back(s); // unsorted
        std::sort(s.begin(), s.end());
        s.erase(std::unique(s.begin(), s.end()), s.end());
        if (s.size() >= 2) sets.push_back(s);
    }
    sets.push_back({LV(lo), LV(hi)});
    return sets;
}

// Range: every level set on each channel in turn; Even: levels from the rule.
template <class T>
void check_hist(const Hist& m) {
    using LV = LevelOf<T>;
    std::mt19937 rng(11);
    const auto sets = level_sets<T, LV>(rng);
    const Zel32s tlo = Zel32s(std::numeric_limits<T>::lowest()), thi = Zel32s(std::numeric_limits<T>::max());
    const struct { int n; Zel32s a, b; } even[] = {{5, 0, 10},  {2, tlo, thi + 1}, {257, tlo, thi + 1}, {7, thi, tlo},
                                                   {40, 3, 250}, {6, 100, 97},      {3, tlo - 50, thi + 99}};
    const bool isEven = m.n.family == "HistogramEven";
    const std::size_t cases = isEven ? sizeof(even) / sizeof(even[0]) : sets.size();
    for (const zt::Shape& sh : zt::sweep_shapes({1, 3}, 2)) {
        zt::Image<T> img = zt::make_image<T>(sh, m.n.channels);
        fill(img, rng);
        for (std::size_t s = 0; s < cases; ++s) {
            std::vector<LV> lv[4];
            std::vector<Zel32s> hist[4];
            LV* lp[4];
            Zel32s* hp[4];
            int n[4];
            Zel32s a[4], b[4];
            for (int c = 0; c < m.n.active; ++c) {
                const auto& e = even[(s + c) % (sizeof(even) / sizeof(even[0]))];
                lv[c] = isEven ? std::vector<LV>(e.n, LV(-9)) : sets[(s + c) % sets.size()];
                hist[c].assign(lv[c].size(), -7);
                lp[c] = lv[c].data(), hp[c] = hist[c].data(), n[c] = int(lv[c].size()), a[c] = e.a, b[c] = e.b;
            }
            using H = Zel32s*;
            ZelStatus st;
            if (isEven && m.n.channels == 1)
                st = m.fn<ZelStatus (*)(const T*, int, ZeliSize, H, H, int, Zel32s, Zel32s)>()(
                    img.ptr(), img.step(), img.size(), hp[0], (H)lp[0], n[0], a[0], b[0]);
            else if (isEven)
                st = m.fn<ZelStatus (*)(const T*, int, ZeliSize, H*, H*, int*, Zel32s*, Zel32s*)>()(
                    img.ptr(), img.step(), img.size(), hp, (H*)lp, n, a, b);
            else if (m.n.channels == 1)
                st = m.fn<ZelStatus (*)(const T*, int, ZeliSize, H, const LV*, int)>()(img.ptr(), img.step(), img.size(),
                                                                                        hp[0], lp[0], n[0]);
            else
                st = m.fn<ZelStatus (*)(const T*, int, ZeliSize, H*, const LV**, int*)>()(
                    img.ptr(), img.step(), img.size(), hp, (const LV**)lp, n);
            ASSERT_EQ(st, zelStatusOk) << m.m->name;
            for (int c = 0; c < m.n.active; ++c) {
                if (isEven) { // the rule: the first |remainder| bins one unit wider (narrower)
                    const long long d = ((long long)b[c] - a[c]) / (n[c] - 1), r = ((long long)b[c] - a[c]) % (n[c] - 1);
                    for (int k = 0; k < n[c]; ++k)
                        ASSERT_EQ(lv[c][k], a[c] + k * d + (r >= 0 ? std::min<long long>(k, r) : -std::min<long long>(k, -r)))
                            << m.m->name << " case " << s << " level " << k;
                }
                ASSERT_EQ(std::vector<Zel32s>(hist[c].begin(), hist[c].end() - 1), ref_hist(img, c, lv[c]))
                    << m.m->name << " " << sh.w << "x" << sh.h << " set " << s << " c " << c;
                EXPECT_EQ(hist[c].back(), -7) << m.m->name << ": wrote past the bins";
            }
        }
    }
}

template <class T>
void check_count(const Hist& m) {
    std::mt19937 rng(9);
    for (const zt::Shape& sh : zt::sweep_shapes({2, 3}, 1)) {
        zt::Image<T> img = zt::make_image<T>(sh, m.n.channels);
        fill(img, rng);
        for (int trial = 0; trial < 4; ++trial) {
            T lo[3], hi[3];
            for (int c = 0; c < 3; ++c) {
                const bool f = std::is_same<T, Zel32f>::value;
                const T x = f ? T(double(int(rng() % 60) - 25) * 0.5) : T(rng());
                const T y = trial == 0 ? x : f ? T(double(int(rng() % 60) - 25) * 0.5) : T(rng()); // equal bounds: exact matches
                lo[c] = std::min(x, y), hi[c] = std::max(x, y);
            }
            int got[4] = {-1, -1, -1, -1};
            ZelStatus st = m.n.channels == 1 ? m.fn<ZelStatus (*)(const T*, int, ZeliSize, int*, T, T)>()(
                                           img.ptr(), img.step(), img.size(), got, lo[0], hi[0])
                                     : m.fn<ZelStatus (*)(const T*, int, ZeliSize, int*, T*, T*)>()(
                                           img.ptr(), img.step(), img.size(), got, lo, hi);
            ASSERT_EQ(st, zelStatusOk);
            for (int c = 0; c < m.n.active; ++c) {
                int want = 0;
                for (int y = 0; y < img.height(); ++y)
                    for (int x = 0; x < sh.w; ++x) want += img.at(x, y, c) >= lo[c] && img.at(x, y, c) <= hi[c]; // not NaN
                ASSERT_EQ(got[c], want) << m.m->name << " " << sh.w << "x" << sh.h << " c " << c;
            }
            EXPECT_EQ(got[m.n.active], -1) << m.m->name;
        }
    }
}

TEST(Hist, EveryMemberMatchesReference) {
    const auto all = hists();
    ASSERT_EQ(all.size(), 34u);
    for (const Hist& m : all) {
        if (m.n.type == "8u") m.n.family == "CountInRange" ? check_count<Zel8u>(m) : check_hist<Zel8u>(m);
        else if (m.n.type == "16u") check_hist<Zel16u>(m);
        else if (m.n.type == "16s") check_hist<Zel16s>(m);
        else m.n.family == "CountInRange" ? check_count<Zel32f>(m) : check_hist<Zel32f>(m);
    }
}

// Large 16-bit images with few and many levels, sorted and not: the counts
// do not depend on the way they are made (scans, searches, a full table).
template <class T>
void large_images(bool sorted) {
    std::mt19937 rng(sorted ? 1 : 2);
    for (int pixels : {1000, 9001, 50000})
        for (int nl : {3, 20, 60, 200, 500}) {
            const int ch = nl == 20 ? 3 : 1, w = pixels % 2 ? pixels : pixels / 2, h = pixels % 2 ? 1 : 2;
            zt::Image<T> img(w, h, ch);
            fill(img, rng);
            std::vector<Zel32s> lv;
            for (int k = 0; k < nl; ++k) lv.push_back(Zel32s(int(rng() % 70000) - 35000 + (std::is_signed<T>::value ? 0 : 32768)));
            if (sorted) {
                std::sort(lv.begin(), lv.end());
                for (int k = 1; k < nl; ++k) lv[k] = std::max(lv[k], lv[k - 1] + 1);
            }
            std::vector<Zel32s> hist[3] = {std::vector<Zel32s>(nl - 1), std::vector<Zel32s>(nl - 1), std::vector<Zel32s>(nl - 1)};
            Zel32s* hp[3] = {hist[0].data(), hist[1].data(), hist[2].data()};
            const Zel32s* lp[3] = {lv.data(), lv.data(), lv.data()};
            int n[3] = {nl, nl, nl};
            const bool u = std::is_same<T, Zel16u>::value;
            const auto* s = reinterpret_cast<const void*>(img.ptr());
            ASSERT_EQ(ch == 1 ? u ? zeliHistogramRange_16u_C1R((const Zel16u*)s, img.step(), img.size(), hp[0], lp[0], nl)
                                  : zeliHistogramRange_16s_C1R((const Zel16s*)s, img.step(), img.size(), hp[0], lp[0], nl)
                              : u ? zeliHistogramRange_16u_C3R((const Zel16u*)s, img.step(), img.size(), hp, lp, n)
                                  : zeliHistogramRange_16s_C3R((const Zel16s*)s, img.step(), img.size(), hp, lp, n),
                      zelStatusOk);
            for (int c = 0; c < ch; ++c)
                ASSERT_EQ(hist[c], ref_hist(img, c, lv)) << "pixels " << pixels << " levels " << nl << " sorted " << sorted;
        }
}

TEST(Hist, SixteenBitLargeImages) {
    for (bool sorted : {true, false}) large_images<Zel16u>(sorted), large_images<Zel16s>(sorted);
}

// More than 2^31 samples (rows one byte apart): counts stop at the largest
// Zel32s instead of wrapping.
TEST(Hist, CountsBeyond2To31Saturate) {
    std::vector<Zel8u> b(65536 + 32768);
    for (std::size_t i = 0; i < b.size(); ++i) b[i] = Zel8u(i);
    const ZeliSize big{65536, 32769};
    int n = 0;
    ASSERT_EQ(zeliCountInRange_8u_C1R(b.data(), 1, big, &n, 0, 255), zelStatusOk);
    EXPECT_EQ(n, INT_MAX);
    Zel32s h[2], lv[3];
    ASSERT_EQ(zeliHistogramEven_8u_C1R(b.data(), 1, big, h, lv, 3, 0, 512), zelStatusOk);
    EXPECT_EQ(h[0], INT_MAX);
    EXPECT_EQ(h[1], 0);
}

// A failed table leaves every output as it was, the even levels included.
TEST(Hist, FailedAllocationWritesNothing) {
    zt::Image<Zel16s> img(200, 200, 3);
    img.fill_bytes(1);
    Zel32s lv[3][5], hist[3][4];
    std::fill(&lv[0][0], &lv[0][0] + 15, -5);
    std::fill(&hist[0][0], &hist[0][0] + 12, -6);
    Zel32s* lp[3] = {lv[0], lv[1], lv[2]};
    Zel32s* hp[3] = {hist[0], hist[1], hist[2]};
    int n[3] = {5, 5, 5};
    Zel32s lo[3] = {0, 0, 0}, hi[3] = {100, 100, 100};
    g_failAlloc = true;
    EXPECT_EQ(zeliHistogramEven_16s_C1R(img.ptr(), img.step(), img.size(), hp[0], lp[0], 5, 0, 100), zelStatusMemAlloc);
    EXPECT_EQ(zeliHistogramEven_16s_C3R(img.ptr(), img.step(), img.size(), hp, lp, n, lo, hi), zelStatusMemAlloc);
    g_failAlloc = false;
    EXPECT_EQ(std::count(&lv[0][0], &lv[0][0] + 15, -5), 15);
    EXPECT_EQ(std::count(&hist[0][0], &hist[0][0] + 12, -6), 12);
    EXPECT_EQ(zeliHistogramEven_16s_C3R(img.ptr(), img.step(), img.size(), hp, lp, n, lo, hi), zelStatusOk);
    EXPECT_EQ(lv[2][1], 25);
}

TEST(Hist, StatusOrders) {
    zt::Image<Zel8u> img(8, 1, 1);
    Zel32s h[4] = {5, 5, 5, 5};
    zt::Image<Zel16u> u(4, 2, 1);
    Zel32s l4[4] = {0, 1, 2, 3};
    const ZeliSize bad{4, 0}, ok{4, 2};
    // Range: pointers, levels, size, step; Even: pointers, size, step, levels
    EXPECT_EQ(zeliHistogramRange_16u_C1R(u.ptr(), 0, bad, h, nullptr, 1), zelStatusNullPointer);
    EXPECT_EQ(zeliHistogramRange_16u_C1R(u.ptr(), 0, bad, h, l4, 1), zelStatusBadHistogramLevels);
    EXPECT_EQ(zeliHistogramRange_16u_C1R(u.ptr(), 0, bad, h, l4, 4), zelStatusBadSize);
    EXPECT_EQ(zeliHistogramRange_16u_C1R(u.ptr(), 0, ok, h, l4, 4), zelStatusBadStep);
    EXPECT_EQ(zeliHistogramEven_16u_C1R(u.ptr(), 0, bad, nullptr, l4, 1, 0, 9), zelStatusNullPointer);
    EXPECT_EQ(zeliHistogramEven_16u_C1R(u.ptr(), 0, bad, h, l4, 1, 0, 9), zelStatusBadSize);
    EXPECT_EQ(zeliHistogramEven_16u_C1R(u.ptr(), 0, ok, h, l4, 1, 0, 9), zelStatusBadStep);
    EXPECT_EQ(zeliHistogramEven_16u_C1R(u.ptr(), u.step(), ok, h, l4, 1, 0, 9), zelStatusBadHistogramLevels);
    Zel32s* hp[3] = {h, h, nullptr};
    const Zel32s* lp[3] = {l4, l4, l4};
    int n[3] = {4, 1, 4};
    EXPECT_EQ(zeliHistogramRange_16u_C3R(u.ptr(), 0, bad, hp, lp, n), zelStatusNullPointer);
    hp[2] = h;
    EXPECT_EQ(zeliHistogramRange_16u_C3R(u.ptr(), 0, bad, hp, lp, n), zelStatusBadHistogramLevels);
    EXPECT_EQ(std::count(h, h + 4, 5), 4);
    // CountInRange: pointers, step, size, range
    int cnt = 77;
    EXPECT_EQ(zeliCountInRange_8u_C1R(nullptr, 0, bad, &cnt, 3, 1), zelStatusNullPointer);
    EXPECT_EQ(zeliCountInRange_8u_C1R(img.ptr(), 0, bad, &cnt, 3, 1), zelStatusBadStep);
    EXPECT_EQ(zeliCountInRange_8u_C1R(img.ptr(), 8, bad, &cnt, 3, 1), zelStatusBadSize);
    EXPECT_EQ(zeliCountInRange_8u_C1R(img.ptr(), 8, ZeliSize{8, 1}, &cnt, 3, 1), zelStatusBadRange);
    EXPECT_EQ(cnt, 77);
}

} // namespace

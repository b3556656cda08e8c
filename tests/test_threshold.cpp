// Every threshold member, taken from its declaration list, against its rule
// written here: the sweep shapes, in place and not, AC4 alpha and NaN samples
// kept, large 16u images at two threads with streamed rows; the order of
// status checks; Otsu's level against a direct search.
#include "family_util.hpp"
#include "named_args.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

namespace {

const std::vector<zt::Named> kMembers = {
#define ZEL_FN(ret, name, params, args, impl) ZT_NAMED(name, args)
#include "zelip8/fn_threshold.h"
#undef ZEL_FN
};

// Levels t, t2 (t2 not below t) and values v, v2 of four channels.
template <class T>
struct Params {
    T t[4], v[4], t2[4], v2[4];
};

// The rule of a member (variant as in the name, op for the plain and Val forms).
template <class T>
T rule(const std::string& variant, int op, T x, const Params<T>& p, int c) {
    const std::string k = variant == "" ? (op == zelCmpGreater ? "GT" : "LT") : variant == "Val" ? (op == zelCmpGreater ? "GTVal" : "LTVal") : variant;
    if (k == "GT") return x > p.t[c] ? p.t[c] : x;
    if (k == "LT") return x < p.t[c] ? p.t[c] : x;
    if (k == "GTVal") return x > p.t[c] ? p.v[c] : x;
    if (k == "LTVal") return x < p.t[c] ? p.v[c] : x;
    return x < p.t[c] ? p.v[c] : x > p.t2[c] ? p.v2[c] : x;
}

template <class T>
T sample(std::mt19937& rng) {
    if (std::is_floating_point<T>::value && rng() % 11 == 0) return std::numeric_limits<T>::quiet_NaN();
    const int v = int(rng() % 16) * 16;
    return std::is_same<T, Zel16s>::value ? T(v - 128) : std::is_same<T, Zel16u>::value ? T(v * 200) : T(v);
}

// One call of member m on fresh images of shape sh, every sample checked.
template <class T>
void check(const zt::Named& m, const zt::Shape& sh, int op, std::mt19937& rng) {
    const zt::NameParts n = zt::name_parts(m.name);
    const int C = n.channels, row = sh.w * C;
    zt::Image<T> s = zt::make_image<T>(sh, C), d = zt::make_image<T>(sh, C);
    std::vector<T> src, old; // the source and the destination before the call
    for (int y = 0; y < sh.h; ++y)
        for (int x = 0; x < row; ++x) {
            old.push_back(d.row(y)[x] = sample<T>(rng));
            src.push_back(n.inPlace ? old.back() : (s.row(y)[x] = sample<T>(rng)));
        }
    Params<T> p;
    for (int c = 0; c < 4; ++c) {
        const T a = sample<T>(rng), b = sample<T>(rng);
        const bool nan = a != a || b != b; // levels are numbers
        p.t[c] = nan ? T(16) : std::min(a, b), p.t2[c] = nan ? T(32) : std::max(a, b);
        p.v[c] = sample<T>(rng), p.v2[c] = sample<T>(rng);
    }
    zt::Args a;
    a.pSrc.p = s.ptr(), a.srcStep = s.step(), a.pDst.p = a.pSrcDst.p = d.ptr(), a.dstStep = a.srcDstStep = d.step();
    a.roiSize = {sh.w, sh.h}, a.zelCmpOp = ZelCmpOp(op);
    a.threshold.set(p.t), a.value.set(p.v), a.thresholdLT.set(p.t), a.valueLT.set(p.v), a.thresholdGT.set(p.t2), a.valueGT.set(p.v2);
    ASSERT_EQ(m.call(a), zelStatusOk) << m.name;
    for (std::size_t k = 0; k < src.size(); ++k) {
        const T want = int(k % C) < n.active ? rule(n.variant, op, src[k], p, int(k % C)) : old[k];
        ASSERT_TRUE(zt::same_bits(d.row(int(k / row))[k % row], want)) << m.name << " " << sh.w << "x" << sh.h << " sample " << k;
    }
}

// Every member of the types in `types` on every shape, with both operators
// where the member takes one.
void check_all(const std::vector<zt::Shape>& shapes, const std::string& types, std::mt19937& rng) {
    for (const zt::Named& m : kMembers) {
        const zt::NameParts n = zt::name_parts(m.name);
        if (n.family != "Threshold" || types.find(n.type) == std::string::npos) continue;
        for (const zt::Shape& s : shapes)
            for (int op : {zelCmpLess, zelCmpGreater}) {
                ASSERT_TRUE(zt::with_type(n.type, [&](auto t) { check<decltype(t)>(m, s, op, rng); })) << m.name;
                if (n.variant != "" && n.variant != "Val") break;
            }
    }
}

TEST(Threshold, EveryMemberAgainstItsRule) {
    std::mt19937 rng(17);
    check_all(zt::sweep_shapes({1, 3}, 3), "8u 16u 16s 32f", rng);
}

// Large enough for every 16u thread gate, at two threads, with a cache small
// enough that the rows are streamed (never in place).
TEST(Threshold, StreamedRowsAtTwoThreads) {
    std::mt19937 rng(29);
    zelSetMaxCacheSizeB(0x10000);
    zelSetNumThreads(2);
    check_all({{400, 331, 3, zt::Flush::Head, 1}}, "16u", rng);
    zelSetNumThreads(0);
    zelSetMaxCacheSizeB(0);
}

TEST(ThresholdStatus, OrderOfChecks) {
    zt::Image<Zel16u> a(4, 2, 4);
    Zel16u* p = a.ptr();
    const Zel16u t[4] = {1, 2, 3, 4}, lo[4] = {5, 5, 5, 5}, hi[4] = {9, 9, 4, 9}, hiA[4] = {9, 9, 9, 0};
    // plain: null, size, step, null level array, operator
    EXPECT_EQ(zeliThreshold_8u_C1R(nullptr, 0, nullptr, 0, {0, 0}, 1, 1), zelStatusNullPointer);
    EXPECT_EQ(zeliThreshold_16u_C1R(p, 0, p, 0, {0, 1}, 1, 1), zelStatusBadSize);
    EXPECT_EQ(zeliThreshold_16u_C1R(p, 0, p, 8, {4, 1}, 1, 1), zelStatusBadStep);
    EXPECT_EQ(zeliThreshold_16u_C1R(p, 8, p, 8, {4, 1}, 1, 1), zelStatusBadMode);
    EXPECT_EQ(zeliThreshold_16s_C3R(nullptr, 0, nullptr, 0, {0, 1}, nullptr, 1), zelStatusNullPointer);
    EXPECT_EQ(zeliThreshold_16u_C3IR(p, 0, {4, 1}, nullptr, 1), zelStatusBadStep);
    EXPECT_EQ(zeliThreshold_16u_C3IR(p, 24, {4, 1}, nullptr, 1), zelStatusNullPointer);
    EXPECT_EQ(zeliThreshold_16u_C3IR(p, 24, {4, 1}, t, 3), zelStatusBadMode);
    // 16u C3R and AC4R: size and step before null
    EXPECT_EQ(zeliThreshold_16u_C3R(nullptr, 0, p, 24, {0, 1}, t, 0), zelStatusBadSize);
    EXPECT_EQ(zeliThreshold_16u_AC4R(nullptr, 0, p, 32, {4, 1}, t, 0), zelStatusBadStep);
    EXPECT_EQ(zeliThreshold_16u_AC4R(nullptr, 32, p, 32, {4, 1}, t, 0), zelStatusNullPointer);
    EXPECT_EQ(zeliThreshold_GT_16u_C3R(nullptr, 24, p, 24, {0, 1}, t), zelStatusBadSize);
    // Val: operator first of all
    EXPECT_EQ(zeliThreshold_Val_8u_C1R(nullptr, 0, nullptr, 0, {0, 0}, 1, 2, 2), zelStatusBadMode);
    EXPECT_EQ(zeliThreshold_Val_16u_C3R(nullptr, 0, p, 0, {0, 0}, t, t, 4), zelStatusNullPointer);
    EXPECT_EQ(zeliThreshold_Val_16u_C3R(p, 24, p, 24, {4, 1}, t, nullptr, 4), zelStatusNullPointer);
    EXPECT_EQ(zeliThreshold_Val_16u_C1R(p, 8, p, 8, {0, 1}, 1, 2, 0), zelStatusBadSize);
    EXPECT_EQ(zeliThreshold_GTVal_16u_C4R(p, 32, p, 0, {4, 1}, t, t), zelStatusBadStep);
    // LTValGTVal: null, size, step, then the levels, in any active channel
    EXPECT_EQ(zeliThreshold_LTValGTVal_16u_C1R(p, 0, p, 8, {4, 1}, 5, 0, 4, 0), zelStatusBadStep);
    EXPECT_EQ(zeliThreshold_LTValGTVal_16u_C1R(p, 8, p, 8, {4, 1}, 5, 0, 4, 0), zelStatusBadThreshold);
    EXPECT_EQ(zeliThreshold_LTValGTVal_16u_C3R(p, 24, p, 24, {4, 1}, lo, t, hi, t), zelStatusBadThreshold);
    EXPECT_EQ(zeliThreshold_LTValGTVal_16u_AC4R(p, 32, p, 32, {4, 1}, lo, t, hiA, t), zelStatusOk); // channel 3 not looked at
    EXPECT_EQ(zeliThreshold_LTValGTVal_16u_C3R(p, 24, p, 24, {4, 1}, lo, nullptr, hi, t), zelStatusNullPointer);
}

// ---------------------------------------------------------------------------
// Otsu
// ---------------------------------------------------------------------------
// Otsu's level of an image holding the given counts of grey values, row by row.
int otsu(const std::vector<std::pair<int, int>>& counts, int w) {
    int n = 0, k = 0;
    for (auto& c : counts) n += c.second;
    zt::Image<Zel8u> img(w, (n + w - 1) / w, 1, 5, zt::Flush::Head, 1);
    for (auto& c : counts)
        for (int i = 0; i < c.second; ++i, ++k) img.at(k % w, k / w) = Zel8u(c.first);
    EXPECT_EQ(k, w * img.height()) << "counts must fill the image";
    Zel8u t = 77;
    EXPECT_EQ(zeliComputeThreshold_Otsu_8u_C1R(img.ptr(), img.step(), img.size(), &t), zelStatusOk);
    return t;
}

// The level that maximises the between-class variance w0 w1 (m0 - m1)^2,
// searched directly over all splits; the first of equal maxima wins.
int brute_force_level(const std::vector<std::pair<int, int>>& counts) {
    double h[256] = {}, n = 0, bestV = 0;
    for (auto& c : counts) h[c.first] += c.second, n += c.second;
    int best = 0;
    for (int t = 0; t < 256; ++t) {
        double n0 = 0, s0 = 0, n1 = 0, s1 = 0;
        for (int i = 0; i < 256; ++i) (i <= t ? n0 : n1) += h[i], (i <= t ? s0 : s1) += h[i] * i;
        if (n0 == 0 || n1 == 0) continue;
        const double d = s0 / n0 - s1 / n1, v = n0 / n * n1 / n * d * d;
        if (v > bestV * (1 + 1e-12)) best = t, bestV = v;
    }
    return best;
}

TEST(Otsu, CraftedAndRandomHistograms) {
    EXPECT_EQ(otsu({{50, 64}, {200, 64}}, 16), 50);             // two values: the lower one
    EXPECT_EQ(otsu({{123, 60}}, 6), 0);                         // one grey value: no split
    EXPECT_EQ(otsu({{0, 30}, {255, 30}}, 10), 0);               // the extremes
    EXPECT_EQ(otsu({{10, 20}, {100, 20}, {190, 20}}, 20), 10);  // equal variances: the first stays
    std::mt19937 rng(31);
    for (int trial = 0; trial < 20; ++trial) {
        std::vector<std::pair<int, int>> c;
        int n = 0;
        for (int k = 0; k < 6; ++k) c.push_back({int(rng() % 256), int(rng() % 50) + 1}), n += c.back().second;
        c.push_back({int(rng() % 256), 7 - n % 7});
        EXPECT_EQ(otsu(c, 7), brute_force_level(c)) << trial;
    }
}

TEST(Otsu, Status) {
    zt::Image<Zel8u> img(8, 2, 1);
    Zel8u t = 5;
    EXPECT_EQ(zeliComputeThreshold_Otsu_8u_C1R(nullptr, 0, {0, 0}, &t), zelStatusNullPointer);
    EXPECT_EQ(zeliComputeThreshold_Otsu_8u_C1R(img.ptr(), 8, {8, 2}, nullptr), zelStatusNullPointer);
    EXPECT_EQ(zeliComputeThreshold_Otsu_8u_C1R(img.ptr(), 0, {0, 2}, &t), zelStatusBadSize);
    EXPECT_EQ(zeliComputeThreshold_Otsu_8u_C1R(img.ptr(), 7, {8, 2}, &t), zelStatusBadStep);
    EXPECT_EQ(t, 5);
}

} // namespace

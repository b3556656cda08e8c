// Every threshold member against a reference of its rule, in place and not,
// with AC4 alpha kept and NaN samples kept; the 16u thread gates and the
// streaming choice change no pixel; the order of status checks; Otsu's level.
#include "guard.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <functional>
#include <limits>
#include <random>
#include <string>

namespace {

enum Kind { PlainGT, PlainLT, GT, LT, ValGT, ValLT, GTVal, LTVal, LTGT };

template <class T>
struct Params {
    T t[4], v[4], t2[4], v2[4];
};

template <class T>
struct Member {
    std::string name;
    int layout; // 0 C1, 1 C3, 2 C4, 3 AC4
    Kind kind;
    bool inPlace;
    int gate; // thread gate in width and height, 0 when the member never forks
    std::function<ZelStatus(const T*, int, T*, int, ZeliSize, const Params<T>&)> call;
};

constexpr int kChans[4] = {1, 3, 4, 4}, kActive[4] = {1, 3, 4, 3};

#define ZT_A1(x) x[0]
#define ZT_AN(x) x
#define ZT_R(T, NAME, LI, KIND, G, ...)                                                                 \
    {#NAME, LI, KIND, false, G, [](const Zel##T* s, int ss, Zel##T* d, int ds, ZeliSize r, const Params<Zel##T>& p) { \
         return NAME(s, ss, d, ds, r, __VA_ARGS__);                                                        \
     }}
#define ZT_I(T, NAME, LI, KIND, G, ...)                                                                 \
    {#NAME, LI, KIND, true, G, [](const Zel##T*, int, Zel##T* d, int ds, ZeliSize r, const Params<Zel##T>& p) { \
         return NAME(d, ds, r, __VA_ARGS__);                                                               \
     }}
// R and IR forms of one layout; GP, GV, GL: gates of the plain, Val and LTValGTVal R forms.
#define ZT_LAYOUT(T, L, LI, A, GP, GV, GL)                                                                              \
    ZT_R(T, zeliThreshold_##T##_##L##R, LI, PlainGT, GP, A(p.t), zelCmpGreater),                                        \
    ZT_R(T, zeliThreshold_##T##_##L##R, LI, PlainLT, GP, A(p.t), zelCmpLess),                                           \
    ZT_R(T, zeliThreshold_GT_##T##_##L##R, LI, GT, GP, A(p.t)), ZT_R(T, zeliThreshold_LT_##T##_##L##R, LI, LT, GP, A(p.t)), \
    ZT_R(T, zeliThreshold_Val_##T##_##L##R, LI, ValGT, GV, A(p.t), A(p.v), zelCmpGreater),                               \
    ZT_R(T, zeliThreshold_Val_##T##_##L##R, LI, ValLT, GV, A(p.t), A(p.v), zelCmpLess),                                  \
    ZT_R(T, zeliThreshold_GTVal_##T##_##L##R, LI, GTVal, GV, A(p.t), A(p.v)),                                             \
    ZT_R(T, zeliThreshold_LTVal_##T##_##L##R, LI, LTVal, GV, A(p.t), A(p.v)),                                             \
    ZT_R(T, zeliThreshold_LTValGTVal_##T##_##L##R, LI, LTGT, GL, A(p.t), A(p.v), A(p.t2), A(p.v2)),                       \
    ZT_I(T, zeliThreshold_##T##_##L##IR, LI, PlainGT, 0, A(p.t), zelCmpGreater),                                        \
    ZT_I(T, zeliThreshold_##T##_##L##IR, LI, PlainLT, 0, A(p.t), zelCmpLess),                                           \
    ZT_I(T, zeliThreshold_GT_##T##_##L##IR, LI, GT, 0, A(p.t)), ZT_I(T, zeliThreshold_LT_##T##_##L##IR, LI, LT, 0, A(p.t)), \
    ZT_I(T, zeliThreshold_Val_##T##_##L##IR, LI, ValGT, 0, A(p.t), A(p.v), zelCmpGreater),                               \
    ZT_I(T, zeliThreshold_Val_##T##_##L##IR, LI, ValLT, 0, A(p.t), A(p.v), zelCmpLess),                                  \
    ZT_I(T, zeliThreshold_GTVal_##T##_##L##IR, LI, GTVal, 0, A(p.t), A(p.v)),                                             \
    ZT_I(T, zeliThreshold_LTVal_##T##_##L##IR, LI, LTVal, 0, A(p.t), A(p.v)),                                             \
    ZT_I(T, zeliThreshold_LTValGTVal_##T##_##L##IR, LI, LTGT, 0, A(p.t), A(p.v), A(p.t2), A(p.v2))
#define ZT_TYPE(T, GP1, GP3, GV1, GV3, GL1, GL3, G4)                                                                    \
    template <>                                                                                                           \
    std::vector<Member<Zel##T>> members<Zel##T>() {                                                                       \
        return {ZT_LAYOUT(T, C1, 0, ZT_A1, GP1, GV1, GL1), ZT_LAYOUT(T, C3, 1, ZT_AN, GP3, GV3, GL3),                      \
                ZT_LAYOUT(T, AC4, 3, ZT_AN, GP3, GV3, GL3),                                                               \
                ZT_R(T, zeliThreshold_GTVal_##T##_C4R, 2, GTVal, G4, p.t, p.v),                                           \
                ZT_R(T, zeliThreshold_LTVal_##T##_C4R, 2, LTVal, G4, p.t, p.v),                                           \
                ZT_I(T, zeliThreshold_GTVal_##T##_C4IR, 2, GTVal, G4, p.t, p.v),                                          \
                ZT_I(T, zeliThreshold_LTVal_##T##_C4IR, 2, LTVal, G4, p.t, p.v)};                                         \
    }
template <class T>
std::vector<Member<T>> members();
ZT_TYPE(8u, 0, 0, 0, 0, 0, 0, 0)
ZT_TYPE(16u, 192, 128, 192, 64, 128, 64, 64)
ZT_TYPE(16s, 0, 0, 0, 0, 0, 0, 0)
ZT_TYPE(32f, 0, 0, 0, 0, 0, 0, 0)

template <class T>
T rule(Kind k, T x, const Params<T>& p, int c) {
    switch (k) {
    case PlainGT:
    case GT: return x > p.t[c] ? p.t[c] : x;
    case PlainLT:
    case LT: return x < p.t[c] ? p.t[c] : x;
    case ValGT:
    case GTVal: return x > p.t[c] ? p.v[c] : x;
    case ValLT:
    case LTVal: return x < p.t[c] ? p.v[c] : x;
    default: return x < p.t[c] ? p.v[c] : x > p.t2[c] ? p.v2[c] : x;
    }
}

template <class T>
bool same(T a, T b) { return std::memcmp(&a, &b, sizeof(T)) == 0; }

template <class T>
T sample(std::mt19937& rng) {
    const int v = int(rng() % 16) * 16;
    if (std::is_floating_point<T>::value && rng() % 11 == 0) return std::numeric_limits<T>::quiet_NaN();
    return std::is_same<T, Zel16s>::value ? T(v - 128) : std::is_same<T, Zel16u>::value ? T(v * 200) : T(v);
}

template <class T>
Params<T> params(std::mt19937& rng) {
    Params<T> p;
    for (int c = 0; c < 4; ++c) {
        T a = sample<T>(rng), b = sample<T>(rng);
        if (std::is_floating_point<T>::value) a = std::isnan(double(a)) ? T(1) : a, b = std::isnan(double(b)) ? T(2) : b;
        p.t[c] = std::min(a, b), p.t2[c] = std::max(a, b);
        p.v[c] = sample<T>(rng), p.v2[c] = sample<T>(rng);
    }
    return p;
}

// Runs one member on a fresh guarded image and checks every sample.
template <class T>
void check(const Member<T>& m, int w, int h, std::mt19937& rng, int extra, zt::Flush flush, std::size_t offset) {
    const int C = kChans[m.layout], A = kActive[m.layout];
    zt::Image<T> s(w, h, C, extra, flush, offset), d(w, h, C, extra, flush, offset), before(w, h, C, extra);
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w * C; ++x) s.row(y)[x] = sample<T>(rng), d.row(y)[x] = sample<T>(rng);
    if (m.inPlace)
        for (int y = 0; y < h; ++y) std::memcpy(d.row(y), s.row(y), std::size_t(w) * C * sizeof(T));
    for (int y = 0; y < h; ++y) std::memcpy(before.row(y), d.row(y), std::size_t(w) * C * sizeof(T));
    const Params<T> p = params<T>(rng);
    ASSERT_EQ(m.call(s.ptr(), s.step(), d.ptr(), d.step(), s.size(), p), zelStatusOk) << m.name;
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x)
            for (int c = 0; c < C; ++c) {
                const T want = c < A ? rule(m.kind, s.at(x, y, c), p, c) : before.at(x, y, c);
                ASSERT_TRUE(same(d.at(x, y, c), want)) << m.name << " " << w << "x" << h << " at " << x << "," << y << "," << c;
            }
}

template <class T>
class Threshold : public ::testing::Test {};
using Types = ::testing::Types<Zel8u, Zel16u, Zel16s, Zel32f>;
TYPED_TEST_SUITE(Threshold, Types);

TYPED_TEST(Threshold, EveryMemberAgainstReference) {
    using T = TypeParam;
    std::mt19937 rng(17);
    for (const auto& m : members<T>())
        for (int w : {1, 3, 7, 16, 17, 33, 100}) {
            check(m, w, 3, rng, 0, zt::Flush::Tail, 0);
            check(m, w, 2, rng, 3 * sizeof(T), zt::Flush::Head, sizeof(T));
        }
}

// The team size never changes a pixel: at 1 and 2 threads, just below the gate
// in either side, and at the gate with an odd height (the last band takes the
// remainder).
TEST(ThresholdGates, SameAtOneAndTwoThreads) {
    std::mt19937 rng(23);
    for (const auto& m : members<Zel16u>()) {
        if (!m.gate) continue;
        for (auto [w, h] : {std::pair<int, int>{m.gate - 1, m.gate + 1}, {m.gate + 1, m.gate - 1}, {m.gate, m.gate + 1}})
            for (int threads : {1, 2}) {
                zelSetNumThreads(threads);
                check(m, w, h, rng, 0, zt::Flush::Tail, 0);
            }
    }
    zelSetNumThreads(0);
}

// Past half the cache the 16u rows are streamed; the pixels are the same,
// AC4 alpha included.
TEST(ThresholdGates, NonTemporalRows) {
    std::mt19937 rng(29);
    zelSetMaxCacheSizeB(0x10000);
    for (const auto& m : members<Zel16u>()) {
        if (!m.gate || m.inPlace) continue;
        zelSetNumThreads(2);
        check(m, 400, 330, rng, 6, zt::Flush::Head, 2); // 400 x 330 x 2 > 0x40000 bytes in every layout
    }
    zelSetMaxCacheSizeB(0);
    zelSetNumThreads(0);
}

TEST(ThresholdStatus, OrderOfChecks) {
    zt::Image<Zel16u> a(4, 2, 4);
    Zel16u* p = a.ptr();
    const Zel16u t[4] = {1, 2, 3, 4}, lo[4] = {5, 5, 5, 5}, hi[4] = {9, 9, 4, 9}, hiA[4] = {9, 9, 9, 0};
    // plain: null, size, step, null level, operator
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

TEST(ThresholdExamples, EqualLevelsAndNaN) {
    Zel8u v[5] = {3, 4, 5, 6, 7};
    ASSERT_EQ(zeliThreshold_LTValGTVal_8u_C1IR(v, 5, {5, 1}, 5, 0, 5, 255), zelStatusOk);
    const Zel8u want[5] = {0, 0, 5, 255, 255};
    for (int i = 0; i < 5; ++i) EXPECT_EQ(v[i], want[i]) << i;
    float f[2] = {std::numeric_limits<float>::quiet_NaN(), 3.f};
    ASSERT_EQ(zeliThreshold_GT_32f_C1IR(f, 8, {2, 1}, 1.f), zelStatusOk);
    EXPECT_TRUE(std::isnan(f[0]));
    EXPECT_EQ(f[1], 1.f);
}

// ---------------------------------------------------------------------------
// Otsu
// ---------------------------------------------------------------------------
// Image of the given counts per grey value, laid out row by row.
zt::Image<Zel8u> image_of(const std::vector<std::pair<int, int>>& counts, int w) {
    int n = 0;
    for (auto& c : counts) n += c.second;
    const int h = (n + w - 1) / w;
    zt::Image<Zel8u> img(w, h, 1, 5, zt::Flush::Head, 1);
    int k = 0;
    for (auto& c : counts)
        for (int i = 0; i < c.second; ++i, ++k) img.at(k % w, k / w) = Zel8u(c.first);
    EXPECT_EQ(k, w * h) << "counts must fill the image";
    return img;
}

Zel8u otsu(const zt::Image<Zel8u>& img) {
    Zel8u t = 77;
    EXPECT_EQ(zeliComputeThreshold_Otsu_8u_C1R(img.ptr(), img.step(), img.size(), &t), zelStatusOk);
    return t;
}

// The level that maximises the between-class variance w0 w1 (m0 - m1)^2,
// searched directly over all splits; the first of equal maxima wins.
int brute_force_level(const std::vector<std::pair<int, int>>& counts) {
    double h[256] = {};
    double n = 0;
    for (auto& c : counts) h[c.first] += c.second, n += c.second;
    int best = 0;
    double bestV = 0;
    for (int t = 0; t < 256; ++t) {
        double n0 = 0, s0 = 0, n1 = 0, s1 = 0;
        for (int i = 0; i < 256; ++i) (i <= t ? n0 : n1) += h[i], (i <= t ? s0 : s1) += h[i] * i;
        if (n0 == 0 || n1 == 0) continue;
        const double d = s0 / n0 - s1 / n1, v = n0 / n * n1 / n * d * d;
        if (v > bestV * (1 + 1e-12)) best = t, bestV = v;
    }
    return best;
}

TEST(Otsu, CraftedHistograms) {
    EXPECT_EQ(otsu(image_of({{50, 64}, {200, 64}}, 16)), 50);     // two values: the lower one
    EXPECT_EQ(otsu(image_of({{123, 60}}, 6)), 0);                  // one grey value: no split
    EXPECT_EQ(otsu(image_of({{0, 30}, {255, 30}}, 10)), 0);        // the extremes
    const std::vector<std::pair<int, int>> three = {{10, 40}, {20, 30}, {120, 50}, {130, 20}, {240, 60}};
    EXPECT_EQ(otsu(image_of(three, 20)), brute_force_level(three));
    const std::vector<std::pair<int, int>> skew = {{5, 3}, {6, 90}, {7, 4}, {60, 2}, {61, 1}};
    EXPECT_EQ(otsu(image_of(skew, 20)), brute_force_level(skew));
    // Symmetric three peaks: both splits give the same variance, the first stays.
    EXPECT_EQ(otsu(image_of({{10, 20}, {100, 20}, {190, 20}}, 20)), 10);
    // Random images agree with the direct search.
    std::mt19937 rng(31);
    for (int trial = 0; trial < 20; ++trial) {
        std::vector<std::pair<int, int>> c;
        for (int k = 0; k < 6; ++k) c.push_back({int(rng() % 256), int(rng() % 50) + 1});
        int n = 0;
        for (auto& e : c) n += e.second;
        c.push_back({int(rng() % 256), 7 - n % 7});
        EXPECT_EQ(otsu(image_of(c, 7)), brute_force_level(c)) << trial;
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

// Norms against references written from the accumulation rules: exact
// integer sums, the Zel32f lane sums of the fast path, the eight Zel64f
// accumulators of the accurate path.
#include "guard.hpp"

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <cstring>
#include <functional>
#include <limits>
#include <string>
#include <vector>

namespace {

enum Kind { Inf, L1, L2 };
enum Form { Single, Diff, Rel };
using Fn = std::function<ZelStatus(const void*, int, const void*, int, ZeliSize, Zel64f*, int)>;

struct Member {
    std::string name;
    int type; // 0 8u, 1 16u, 2 16s, 3 32f, 4 32s
    int ch, active;
    Kind kind;
    Form form;
    Fn fn;
};

template <class T> constexpr int type_id();
template <> constexpr int type_id<Zel8u>() { return 0; }
template <> constexpr int type_id<Zel16u>() { return 1; }
template <> constexpr int type_id<Zel16s>() { return 2; }
template <> constexpr int type_id<Zel32f>() { return 3; }
template <> constexpr int type_id<Zel32s>() { return 4; }

#define CH_C1 1, 1
#define CH_C3 3, 3
#define CH_C4 4, 4
#define CH_AC4 4, 3
#define ONE(K, T, L)                                                                                   \
    Member{"zeliNorm_" #K "_" #T "_" #L "R", type_id<Zel##T>(), CH_##L, K, Single,                     \
           [](const void* a, int sa, const void*, int, ZeliSize r, Zel64f* v, int) {                  \
               return zeliNorm_##K##_##T##_##L##R((const Zel##T*)a, sa, r, v);                        \
           }},
#define ONE_H(K, T, L)                                                                                 \
    Member{"zeliNorm_" #K "_" #T "_" #L "R", type_id<Zel##T>(), CH_##L, K, Single,                     \
           [](const void* a, int sa, const void*, int, ZeliSize r, Zel64f* v, int h) {                \
               return zeliNorm_##K##_##T##_##L##R((const Zel##T*)a, sa, r, v, h);                     \
           }},
#define TWO(F, FE, K, T, L)                                                                            \
    Member{"zeli" #F "_" #K "_" #T "_" #L "R", type_id<Zel##T>(), CH_##L, K, FE,                       \
           [](const void* a, int sa, const void* b, int sb, ZeliSize r, Zel64f* v, int) {             \
               return zeli##F##_##K##_##T##_##L##R((const Zel##T*)a, sa, (const Zel##T*)b, sb, r, v); \
           }},
#define TWO_H(F, FE, K, T, L)                                                                              \
    Member{"zeli" #F "_" #K "_" #T "_" #L "R", type_id<Zel##T>(), CH_##L, K, FE,                           \
           [](const void* a, int sa, const void* b, int sb, ZeliSize r, Zel64f* v, int h) {               \
               return zeli##F##_##K##_##T##_##L##R((const Zel##T*)a, sa, (const Zel##T*)b, sb, r, v, h);  \
           }},
#define LAYOUTS(M, ...) M(__VA_ARGS__, C1) M(__VA_ARGS__, C3) M(__VA_ARGS__, C4) M(__VA_ARGS__, AC4)
#define TYPES1(K, M, MH) LAYOUTS(M, K, 8u) LAYOUTS(M, K, 16u) LAYOUTS(M, K, 16s) LAYOUTS(MH, K, 32f)
#define TYPES2(F, FE, K, M, MH) \
    LAYOUTS(M, F, FE, K, 8u) LAYOUTS(M, F, FE, K, 16u) LAYOUTS(M, F, FE, K, 16s) LAYOUTS(MH, F, FE, K, 32f)

const std::vector<Member>& members() {
    static const std::vector<Member> m = {
        TYPES1(Inf, ONE, ONE) TYPES1(L1, ONE, ONE_H) TYPES1(L2, ONE, ONE_H) ONE(Inf, 32s, C1)
        TYPES2(NormDiff, Diff, Inf, TWO, TWO) TYPES2(NormDiff, Diff, L1, TWO, TWO_H)
        TYPES2(NormDiff, Diff, L2, TWO, TWO_H) TYPES2(NormRel, Rel, Inf, TWO, TWO)
        TYPES2(NormRel, Rel, L1, TWO, TWO_H) TYPES2(NormRel, Rel, L2, TWO, TWO_H)};
    return m;
}

// ---- references -------------------------------------------------------------
// One accumulation (numerator or denominator) of channel c.
template <class T>
double accumulate(const zt::Image<T>& a, const zt::Image<T>* b, int c, Kind k, int hint) {
    const int w = a.width(), ch = a.channels();
    if (k == Inf) {
        double m = 0;
        for (int y = 0; y < a.height(); ++y)
            for (int x = 0; x < w; ++x) {
                double v;
                if (std::is_same<T, Zel32f>::value)
                    v = std::fabs(double(b ? Zel32f(a.at(x, y, c) - b->at(x, y, c)) : a.at(x, y, c)));
                else
                    v = std::fabs(double(a.at(x, y, c)) - (b ? double(b->at(x, y, c)) : 0.0));
                if (std::is_same<T, Zel16s>::value && !b && v > 32767) v = 32767;
                if (v > m) m = v; // NaN is passed over
            }
        return m;
    }
    if (!std::is_same<T, Zel32f>::value) {
        long long s = 0;
        for (int y = 0; y < a.height(); ++y)
            for (int x = 0; x < w; ++x) {
                const long long d = (long long)a.at(x, y, c) - (b ? (long long)b->at(x, y, c) : 0);
                s += k == L1 ? (d < 0 ? -d : d) : d * d;
            }
        return double(s);
    }
    if (hint == 2) { // eight accumulators per channel for rows of 16 or more
        double even = 0, odd = 0;
        for (int y = 0; y < a.height(); ++y) {
            double acc[8] = {};
            auto t = [&](int x) {
                const double d = double(a.at(x, y, c)) - (b ? double(b->at(x, y, c)) : 0.0);
                return k == L1 ? std::fabs(d) : d * d;
            };
            for (int x = 0; x < w / 2 * 2; ++x) {
                if (w < 16) (x % 2 ? odd : even) += t(x);
                else acc[x < w / 8 * 8 ? x % 8 : x % 2] += t(x);
            }
            if (w >= 16) {
                even += (acc[0] + acc[2]) + (acc[4] + acc[6]);
                odd += (acc[1] + acc[3]) + (acc[5] + acc[7]);
            }
            if (w % 2) even += t(w - 1);
        }
        return even + odd;
    }
    const int P = ch == 3 ? 12 : 16;
    double tot = 0;
    for (int y = 0; y < a.height(); ++y) {
        std::vector<float> lane(P, 0.0f);
        for (int i = 0; i < w * ch; ++i) {
            const float d = b ? float(a.row(y)[i] - b->row(y)[i]) : float(a.row(y)[i]);
            lane[i % P] += k == L1 ? std::fabs(d) : d * d;
        }
        for (int j = c; j < P; j += ch) tot += double(lane[j]);
    }
    return tot;
}

template <class T>
ZelStatus reference(const Member& m, const zt::Image<T>& a, const zt::Image<T>& b, int hint, double* out) {
    ZelStatus st = zelStatusOk;
    for (int c = 0; c < m.active; ++c) {
        const double num = accumulate<T>(a, m.form == Single ? nullptr : &b, c, m.kind, hint);
        double v = num;
        if (m.form == Rel) {
            const double den = accumulate<T>(b, nullptr, c, m.kind, hint);
            if (den < DBL_MIN) st = zelStatusDivisionByZeroWarning;
            else v = num / den;
        }
        out[c] = m.kind == L2 ? std::sqrt(v) : v;
    }
    return st;
}

template <class T>
void fill(zt::Image<T>& img, std::mt19937& rng, int mode) {
    for (int y = 0; y < img.height(); ++y)
        for (int i = 0; i < img.width() * img.channels(); ++i) {
            T& v = img.row(y)[i];
            if (std::is_same<T, Zel32f>::value)
                v = T(mode ? std::ldexp(double(rng() % 2001) - 1000.0, int(rng() % 40) - 20) : double(rng() % 512) / 8);
            else if (mode) // the extremes of the type
                v = rng() & 1 ? std::numeric_limits<T>::max() : std::numeric_limits<T>::lowest();
            else
                v = T(rng());
        }
}

template <class T>
void check_member(const Member& m) {
    std::mt19937 rng(7);
    const int heights[] = {1, 3};
    for (int w : {1, 3, 15, 16, 17, 31, 33, 64, 100}) {
        for (int h : heights) {
            for (int variant = 0; variant < 3; ++variant) {
                const int extra = variant == 1 ? 3 * int(sizeof(T)) : 0;
                const zt::Flush fl = variant == 2 ? zt::Flush::Head : zt::Flush::Tail;
                const std::size_t off = variant == 2 ? sizeof(T) : 0;
                zt::Image<T> a(w, h, m.ch, extra, fl, off), b(w, h, m.ch, extra + int(sizeof(T)), fl, off);
                fill(a, rng, variant == 1);
                fill(b, rng, variant == 1 && m.form != Rel);
                for (int hint : {0, 2}) {
                    double got[5] = {-1, -1, -1, -1, -1}, want[4] = {};
                    const ZelStatus st = m.fn(a.ptr(), a.step(), b.ptr(), b.step(), a.size(), got, hint);
                    EXPECT_EQ(st, reference(m, a, b, hint, want)) << m.name;
                    for (int c = 0; c < m.active; ++c)
                        ASSERT_EQ(got[c], want[c]) << m.name << " w " << w << " h " << h << " c " << c << " v " << variant
                                                   << " hint " << hint;
                    EXPECT_EQ(got[m.active], -1) << m.name << ": wrote past its channels";
                    if (m.type != 3 || m.kind == Inf) break;
                }
            }
        }
    }
}

TEST(Norm, EveryMemberMatchesReference) {
    ASSERT_EQ(members().size(), 145u);
    for (const Member& m : members()) {
        switch (m.type) {
        case 0: check_member<Zel8u>(m); break;
        case 1: check_member<Zel16u>(m); break;
        case 2: check_member<Zel16s>(m); break;
        case 3: check_member<Zel32f>(m); break;
        default: check_member<Zel32s>(m); break;
        }
    }
}

TEST(Norm, WideRowsOverSeveralBlocks) {
    // 255^2 over more than 32768 samples a row overflows one 32-bit block.
    for (int w : {32768, 32769, 70001}) {
        zt::Image<Zel8u> a(w, 2, 1), z(w, 2, 1);
        a.fill_bytes(255);
        z.fill_bytes(0);
        double v = 0;
        ASSERT_EQ(zeliNorm_L2_8u_C1R(a.ptr(), a.step(), a.size(), &v), zelStatusOk);
        EXPECT_EQ(v, std::sqrt(65025.0 * 2 * w));
        ASSERT_EQ(zeliNormDiff_L1_8u_C1R(a.ptr(), a.step(), z.ptr(), z.step(), a.size(), &v), zelStatusOk);
        EXPECT_EQ(v, 255.0 * 2 * w);
        zt::Image<Zel16u> s(w, 1, 3);
        for (int i = 0; i < 3 * w; ++i) s.row(0)[i] = 65535;
        double v3[3];
        ASSERT_EQ(zeliNorm_L2_16u_C3R(s.ptr(), s.step(), s.size(), v3), zelStatusOk);
        EXPECT_EQ(v3[2], std::sqrt(65535.0 * 65535.0 * w));
        ASSERT_EQ(zeliNorm_L1_16u_C3R(s.ptr(), s.step(), s.size(), v3), zelStatusOk);
        EXPECT_EQ(v3[1], 65535.0 * w);
    }
}

TEST(Norm, Inf16sSaturates) {
    zt::Image<Zel16s> a(40, 5, 1);
    a.fill_bytes(0);
    a.at(17, 2) = -32768;
    double v = 0;
    EXPECT_EQ(zeliNorm_Inf_16s_C1R(a.ptr(), a.step(), a.size(), &v), zelStatusOk);
    EXPECT_EQ(v, 32767.0);
    // The scan stops at the row that reaches 32767: the rows below it lie
    // past the guard page here and must not be read.
    zt::Image<Zel16s> one(40, 1, 1);
    one.fill_bytes(0);
    one.at(39, 0) = -32768;
    EXPECT_EQ(zeliNorm_Inf_16s_C1R(one.ptr(), one.step(), ZeliSize{40, 1000}, &v), zelStatusOk);
    EXPECT_EQ(v, 32767.0);
    zt::Image<Zel16s> b(40, 5, 1);
    b.fill_bytes(0);
    b.at(3, 4) = 32767; // differences are not saturated
    EXPECT_EQ(zeliNormDiff_Inf_16s_C1R(a.ptr(), a.step(), b.ptr(), b.step(), a.size(), &v), zelStatusOk);
    EXPECT_EQ(v, 32768.0);
    a.at(3, 4) = -32768;
    EXPECT_EQ(zeliNormDiff_Inf_16s_C1R(a.ptr(), a.step(), b.ptr(), b.step(), a.size(), &v), zelStatusOk);
    EXPECT_EQ(v, 65535.0);
}

TEST(Norm, RelZeroDenominatorWarnsPerChannel) {
    zt::Image<Zel8u> a(20, 3, 1), b(20, 3, 1);
    a.fill_random(3);
    b.fill_bytes(0);
    double ss = 0;
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 20; ++x) ss += double(a.at(x, y)) * a.at(x, y);
    double v = 0;
    EXPECT_EQ(zeliNormRel_L2_8u_C1R(a.ptr(), a.step(), b.ptr(), b.step(), a.size(), &v), zelStatusDivisionByZeroWarning);
    EXPECT_EQ(v, std::sqrt(ss));
    zt::Image<Zel32f> p(9, 2, 3), q(9, 2, 3);
    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < 9; ++x)
            for (int c = 0; c < 3; ++c) {
                p.at(x, y, c) = 2.0f;
                q.at(x, y, c) = c == 1 ? 0.0f : 1.0f;
            }
    double v3[3];
    EXPECT_EQ(zeliNormRel_L1_32f_C3R(p.ptr(), p.step(), q.ptr(), q.step(), p.size(), v3, 0),
              zelStatusDivisionByZeroWarning);
    EXPECT_EQ(v3[0], 1.0);
    EXPECT_EQ(v3[1], 36.0);
    EXPECT_EQ(v3[2], 1.0);
    EXPECT_EQ(zeliNormRel_Inf_32f_C3R(p.ptr(), p.step(), q.ptr(), q.step(), p.size(), v3),
              zelStatusDivisionByZeroWarning);
    EXPECT_EQ(v3[1], 2.0);
}

TEST(Norm, HintChangesLargeDynamicRange) {
    zt::Image<Zel32f> a(64, 1, 1);
    for (int x = 0; x < 64; ++x) a.at(x, 0) = x < 8 ? 4096.0f : 1.0f / 4096;
    double fast = 0, accurate = 0;
    ASSERT_EQ(zeliNorm_L2_32f_C1R(a.ptr(), a.step(), a.size(), &fast, 0), zelStatusOk);
    ASSERT_EQ(zeliNorm_L2_32f_C1R(a.ptr(), a.step(), a.size(), &accurate, 2), zelStatusOk);
    EXPECT_NE(fast, accurate);
    EXPECT_NEAR(fast, accurate, 1e-6 * accurate);
}

TEST(Norm, StatusOrderPointersSizesSteps) {
    zt::Image<Zel16u> a(4, 2, 4);
    double v[4] = {9, 9, 9, 9};
    const ZeliSize bad{0, 2}, ok{4, 2};
    EXPECT_EQ(zeliNorm_L1_16u_AC4R(nullptr, 0, bad, v), zelStatusNullPointer);
    EXPECT_EQ(zeliNorm_L1_16u_AC4R(a.ptr(), 0, bad, nullptr), zelStatusNullPointer);
    EXPECT_EQ(zeliNorm_L1_16u_AC4R(a.ptr(), 0, bad, v), zelStatusBadSize);
    EXPECT_EQ(zeliNorm_L1_16u_AC4R(a.ptr(), 0, ZeliSize{4, -1}, v), zelStatusBadSize);
    EXPECT_EQ(zeliNorm_L1_16u_AC4R(a.ptr(), 0, ok, v), zelStatusBadStep);
    EXPECT_EQ(zeliNormDiff_L2_16u_C4R(a.ptr(), a.step(), nullptr, 0, bad, v), zelStatusNullPointer);
    EXPECT_EQ(zeliNormDiff_L2_16u_C4R(a.ptr(), a.step(), a.ptr(), 0, bad, v), zelStatusBadSize);
    EXPECT_EQ(zeliNormRel_Inf_16u_C4R(a.ptr(), -4, a.ptr(), a.step(), ok, v), zelStatusBadStep);
    EXPECT_EQ(zeliNormRel_L2_32f_C1R(nullptr, 4, nullptr, 4, ok, v, 2), zelStatusNullPointer);
    for (double x : v) EXPECT_EQ(x, 9);
}

} // namespace

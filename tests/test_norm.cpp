// Norms against references written from the accumulation rules: exact
// integer sums, the Zel32f lane sums of the fast path, the eight Zel64f
// accumulators of the accurate path. The members come from the declaration
// lists.
#include "family_util.hpp"
#include "members.hpp"
#include "named_args.hpp"

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <cstring>
#include <limits>
#include <random>
#include <string>
#include <vector>

namespace {

enum Kind { Inf, L1, L2 };
enum Form { Single, Diff, Rel };

// A member read from its name: zeli<Norm|NormDiff|NormRel>_<Kind>_<type>_<layout>R.
struct Norm {
    const zt::Member* m;
    Form form;
    Kind kind;
    std::string type;
    int ch, active;
    bool hint;

    template <class T>
    ZelStatus call(const zt::Image<T>& a, const zt::Image<T>& b, Zel64f* v, int h) const {
        using H = ZelHintAlgorithm;
        if (form == Single && hint)
            return reinterpret_cast<ZelStatus (*)(const T*, int, ZeliSize, Zel64f*, H)>(m->fn)(a.ptr(), a.step(), a.size(), v, H(h));
        if (form == Single)
            return reinterpret_cast<ZelStatus (*)(const T*, int, ZeliSize, Zel64f*)>(m->fn)(a.ptr(), a.step(), a.size(), v);
        if (hint)
            return reinterpret_cast<ZelStatus (*)(const T*, int, const T*, int, ZeliSize, Zel64f*, H)>(m->fn)(
                a.ptr(), a.step(), b.ptr(), b.step(), a.size(), v, H(h));
        return reinterpret_cast<ZelStatus (*)(const T*, int, const T*, int, ZeliSize, Zel64f*)>(m->fn)(
            a.ptr(), a.step(), b.ptr(), b.step(), a.size(), v);
    }
};

std::vector<Norm> norms() {
    std::vector<Norm> v;
    for (const zt::Member& m : zt::members()) {
        if (m.name.compare(0, 8, "zeliNorm") != 0) continue; // name parts of this family's names only
        const zt::NameParts n = zt::name_parts(m.name);
        v.push_back({&m, n.family == "Norm" ? Single : n.family == "NormDiff" ? Diff : Rel,
                     n.variant == "Inf" ? Inf : n.variant == "L1" ? L1 : L2, n.type, n.channels, n.active,
                     m.params.back().name == "hint"});
    }
    return v;
}

// ---- references -------------------------------------------------------------
// One accumulation (numerator or denominator) of channel c.
template <class T>
double accumulate(const zt::Image<T>& a, const zt::Image<T>* b, int c, Kind k, int hint) {
    const int w = a.width(), ch = a.channels();
    const bool f32 = std::is_same<T, Zel32f>::value;
    double s = 0, even = 0, odd = 0;
    for (int y = 0; y < a.height(); ++y) {
        std::vector<float> lane(16, 0.0f);
        double acc[8] = {};
        for (int x = 0; x < w; ++x) {
            const double d = double(a.at(x, y, c)) - (b ? double(b->at(x, y, c)) : 0.0);
            if (k == Inf) {
                double m = f32 ? std::fabs(double(Zel32f(b ? a.at(x, y, c) - b->at(x, y, c) : a.at(x, y, c)))) : std::fabs(d);
                if (std::is_same<T, Zel16s>::value && !b && m > 32767) m = 32767; // -32768 counts as 32767
                s = m > s ? m : s;                                                 // NaN is passed over
            } else if (!f32) {
                s += k == L1 ? std::fabs(d) : d * d; // exact in double for these sizes
            } else if (hint == 2) { // eight accumulators on rows of 16 or more
                const double t = k == L1 ? std::fabs(d) : d * d;
                if (w % 2 && x == w - 1) continue;
                if (w < 16) (x % 2 ? odd : even) += t;
                else acc[x < w / 8 * 8 ? x % 8 : x % 2] += t;
            } else { // float lanes: term i of the row (all channels) to lane i % P
                const float e = b ? Zel32f(a.at(x, y, c) - b->at(x, y, c)) : a.at(x, y, c);
                const int i = x * ch + c, P = ch == 3 ? 12 : 16;
                lane[i % P] += k == L1 ? std::fabs(e) : e * e;
            }
        }
        if (f32 && k != Inf && hint == 2) {
            if (w >= 16) even += (acc[0] + acc[2]) + (acc[4] + acc[6]), odd += (acc[1] + acc[3]) + (acc[5] + acc[7]);
            if (w % 2) {
                const double d = double(a.at(w - 1, y, c)) - (b ? double(b->at(w - 1, y, c)) : 0.0);
                even += k == L1 ? std::fabs(d) : d * d;
            }
        } else if (f32 && k != Inf) {
            for (int j = c; j < (ch == 3 ? 12 : 16); j += ch) s += double(lane[j]);
        }
    }
    return f32 && k != Inf && hint == 2 ? even + odd : s;
}

template <class T>
ZelStatus reference(const Norm& m, const zt::Image<T>& a, const zt::Image<T>& b, int hint, double* out) {
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
void check_member(const Norm& m) {
    std::mt19937 rng(7);
    for (const zt::Shape& s : zt::sweep_shapes({1, 3}, 3)) {
        const bool extremes = s.extra == 3; // on a third of the shapes
        zt::Image<T> a = zt::make_image<T>(s, m.ch), b = zt::make_image<T>({s.w, s.h, s.extra + 1, s.flush, s.offset}, m.ch);
        fill(a, rng, extremes);
        fill(b, rng, extremes && m.form != Rel);
        for (int hint : {0, 2}) {
            double got[5] = {-1, -1, -1, -1, -1}, want[4] = {};
            EXPECT_EQ(m.call(a, b, got, hint), reference(m, a, b, hint, want)) << m.m->name;
            for (int c = 0; c < m.active; ++c)
                ASSERT_EQ(got[c], want[c]) << m.m->name << " " << s.w << "x" << s.h << " c " << c << " hint " << hint;
            EXPECT_EQ(got[m.active], -1) << m.m->name << ": wrote past its channels";
            if (!m.hint) break;
        }
    }
}

TEST(Norm, EveryMemberMatchesReference) {
    const auto all = norms();
    ASSERT_EQ(all.size(), 145u);
    for (const Norm& m : all) EXPECT_TRUE(zt::with_type(m.type, [&](auto t) { check_member<decltype(t)>(m); })) << m.m->name;
}

// Sums of squares beyond 32 bits in one row; 16s Inf stops at 32767.
TEST(Norm, WideRowsAndSaturation) {
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
    }
    // The scan stops at the row that reaches 32767: the rows below it lie
    // past the guard page here and must not be read.
    zt::Image<Zel16s> one(40, 1, 1);
    one.fill_bytes(0);
    one.at(39, 0) = -32768;
    double v = 0;
    EXPECT_EQ(zeliNorm_Inf_16s_C1R(one.ptr(), one.step(), ZeliSize{40, 1000}, &v), zelStatusOk);
    EXPECT_EQ(v, 32767.0);
}

TEST(Norm, RelZeroDenominatorWarnsPerChannel) {
    zt::Image<Zel32f> p(9, 2, 3), q(9, 2, 3);
    for (int i = 0; i < 9 * 2 * 3; ++i) {
        p.ptr()[i] = 2.0f;
        q.ptr()[i] = i % 3 == 1 ? 0.0f : 1.0f;
    }
    double v3[3];
    EXPECT_EQ(zeliNormRel_L1_32f_C3R(p.ptr(), p.step(), q.ptr(), q.step(), p.size(), v3, 0),
              zelStatusDivisionByZeroWarning);
    EXPECT_EQ(v3[0], 1.0);
    EXPECT_EQ(v3[1], 36.0); // the numerator alone
    EXPECT_EQ(v3[2], 1.0);
    EXPECT_EQ(zeliNormRel_L2_32f_C3R(p.ptr(), p.step(), q.ptr(), q.step(), p.size(), v3, 2),
              zelStatusDivisionByZeroWarning);
    EXPECT_EQ(v3[1], std::sqrt(72.0)); // one root of the numerator
}

TEST(Norm, StatusOrderPointersSizesSteps) {
    zt::Image<Zel16u> a(4, 2, 4);
    double v[4] = {9, 9, 9, 9};
    const ZeliSize bad{0, 2}, ok{4, 2};
    EXPECT_EQ(zeliNorm_L1_16u_AC4R(nullptr, 0, bad, v), zelStatusNullPointer);
    EXPECT_EQ(zeliNorm_L1_16u_AC4R(a.ptr(), 0, bad, nullptr), zelStatusNullPointer);
    EXPECT_EQ(zeliNorm_L1_16u_AC4R(a.ptr(), 0, bad, v), zelStatusBadSize);
    EXPECT_EQ(zeliNorm_L1_16u_AC4R(a.ptr(), 0, ok, v), zelStatusBadStep);
    EXPECT_EQ(zeliNormDiff_L2_16u_C4R(a.ptr(), a.step(), a.ptr(), 0, bad, v), zelStatusBadSize);
    EXPECT_EQ(zeliNormRel_Inf_16u_C4R(a.ptr(), -4, a.ptr(), a.step(), ok, v), zelStatusBadStep);
    EXPECT_EQ(zeliNormRel_L2_32f_C1R(nullptr, 4, nullptr, 4, ok, v, 2), zelStatusNullPointer);
    for (double x : v) EXPECT_EQ(x, 9);
}

} // namespace

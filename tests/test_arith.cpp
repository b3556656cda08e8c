// Add, subtract, multiply and divide against small references written from
// the arithmetic rules: exact rounding of s / 2^n with ties to even and
// saturation, unsigned differences clamped first, the refined reciprocal of
// the division. Every member of the lists is called through the member
// harness (arguments from its parameter names) over widths around the vector
// blocks, padded steps, in-place forms, alpha preservation and scale factors
// across all cases; the results are checked pixel by pixel.
#include "family_util.hpp"
#include "members.hpp"

#include <gtest/gtest.h>
#include <smmintrin.h>

#include <climits>
#include <cmath>
#include <cstring>
#include <limits>
#include <string>
#include <vector>

namespace {

// ---- Exact integers --------------------------------------------------------------
// A sign and a 64-bit magnitude: every exact sum, difference or product of two
// 32-bit parts, and the sum of two such products, fits.
struct Wide {
    bool neg = false;
    unsigned long long mag = 0;
    Wide() = default;
    Wide(long long v) : neg(v < 0), mag(v < 0 ? 0ull - (unsigned long long)v : (unsigned long long)v) {}
};
Wide operator-(Wide a) { a.neg = a.mag != 0 && !a.neg; return a; }
Wide operator+(Wide a, Wide b) {
    Wide r;
    if (a.neg == b.neg) r.neg = a.neg, r.mag = a.mag + b.mag;
    else if (a.mag >= b.mag) r.neg = a.neg, r.mag = a.mag - b.mag;
    else r.neg = b.neg, r.mag = b.mag - a.mag;
    if (r.mag == 0) r.neg = false;
    return r;
}
Wide mul(long long a, long long b) {
    Wide r(a), s(b);
    r.mag *= s.mag;
    r.neg = r.mag != 0 && (r.neg != s.neg);
    return r;
}

template <class P>
P saturate(bool neg, unsigned long long mag) {
    const long long lo = (long long)std::numeric_limits<P>::min(), hi = (long long)std::numeric_limits<P>::max();
    if (neg) return mag > (unsigned long long)(-(lo + 1)) + 1 ? P(lo) : P(-(long long)(mag - 1) - 1);
    return mag > (unsigned long long)hi ? P(hi) : P(mag);
}

// s / 2^n rounded to nearest, ties to even, saturated.
template <class P>
P ref_scale(Wide s, int n) {
    if (n <= 0) {
        if (s.mag == 0) return 0;
        if (-n >= 40 || (s.mag >> (63 + n)) != 0) return saturate<P>(s.neg, ~0ull);
        return saturate<P>(s.neg, s.mag << -n);
    }
    if (n >= 64) return 0;
    unsigned long long q = s.mag >> n;
    const unsigned long long r = s.mag & ((1ull << n) - 1), half = 1ull << (n - 1);
    if (r > half || (r == half && (q & 1))) ++q;
    return saturate<P>(s.neg, q);
}

// ---- References of one element -------------------------------------------------------
enum class R { Add, Sub, SubR, Mul, MulScale, Div, DivR };

float rdiv(float a, float b) {
    const float r = _mm_cvtss_f32(_mm_rcp_ss(_mm_set_ss(b)));
    const float e = 1.0f - b * r, q = a * r;
    return q + (q + e * q) * e;
}

template <class P>
struct Ref {
    R op;
    int mode = -1;        // round mode of Div_Round, -1 the current one
    bool complex = false; // complex product or quotient (else part by part)
    bool exact = false;   // true division (a block of divisors holds a zero)
    bool constant = false;

    // o = x op y for an element of k parts; true when the divisor was zero.
    bool operator()(const P* x, const P* y, P* o, int n, int k) const {
        if (complex) {
            if constexpr (std::is_floating_point<P>::value) return cflt(x, y, o);
            else return cint(x, y, o, n);
        }
        bool zero = false;
        for (int p = 0; p < k; ++p) {
            if constexpr (std::is_floating_point<P>::value) zero |= flt(x[p], y[p], o + p);
            else zero |= integ(x[p], y[p], o + p, n);
        }
        return zero;
    }
    bool flt(float x, float y, P* o) const {
        switch (op) {
        case R::Add: o[0] = x + y; return false;
        case R::Sub: o[0] = y - x; return false;
        case R::SubR: o[0] = x - y; return false;
        case R::Mul: o[0] = x * y; return false;
        case R::DivR: o[0] = x / y; return false;
        default:
            if (x == 0) {
                o[0] = y > 0 ? INFINITY : y < 0 ? -INFINITY : NAN;
                return true;
            }
            o[0] = exact ? y / x : rdiv(y, x);
            return false;
        }
    }
    bool cflt(const P* x, const P* y, P* o) const {
        if (op == R::Mul) {
            o[0] = x[0] * y[0] - x[1] * y[1];
            o[1] = x[0] * y[1] + x[1] * y[0];
            return false;
        }
        const P* num = op == R::Div ? y : x;
        const P* den = op == R::Div ? x : y;
        const float inv = 1.0f / (den[0] * den[0] + den[1] * den[1]);
        o[0] = (num[0] * den[0] + num[1] * den[1]) * inv;
        o[1] = (num[1] * den[0] - num[0] * den[1]) * inv;
        return den[0] == 0 && den[1] == 0;
    }
    bool cint(const P* x, const P* y, P* o, int n) const {
        if (op == R::Mul) {
            o[0] = ref_scale<P>(mul(x[0], y[0]) + -mul(x[1], y[1]), n);
            o[1] = ref_scale<P>(mul(x[0], y[1]) + mul(x[1], y[0]), n);
            return false;
        }
        const P* num = op == R::Div ? y : x;
        const P* den = op == R::Div ? x : y;
        if (den[0] == 0 && den[1] == 0) {
            for (int p = 0; p < 2; ++p) o[p] = ref_scale<P>(Wide(num[p]), -60);
            return true;
        }
        const double c = den[0], d = den[1], d2 = c * c + d * d;
        const double re = (double(num[0]) * c + double(num[1]) * d) / d2, im = (double(num[1]) * c - double(num[0]) * d) / d2;
        for (int p = 0; p < 2; ++p) {
            const double v = std::nearbyint(std::ldexp(p ? im : re, -n));
            const double lo = std::numeric_limits<P>::min(), hi = std::numeric_limits<P>::max();
            o[p] = P(v < lo ? lo : v > hi ? hi : v);
        }
        return false;
    }
    bool integ(long long x, long long y, P* o, int n) const {
        const bool u = !std::is_signed<P>::value;
        switch (op) {
        case R::Add: o[0] = ref_scale<P>(Wide(x + y), n); return false;
        case R::Sub: o[0] = ref_scale<P>(Wide(u && y < x ? 0 : y - x), n); return false;
        case R::SubR: o[0] = ref_scale<P>(Wide(u && x < y ? 0 : x - y), n); return false;
        case R::Mul: o[0] = ref_scale<P>(mul(x, y), n); return false;
        case R::MulScale: {
            const unsigned long long p = (unsigned long long)x * (unsigned long long)y, bits = sizeof(P) * 8;
            o[0] = P((p + 1 + (p >> bits)) >> bits);
            return false;
        }
        default: break;
        }
        const long long a = op == R::Div ? y : x, b = op == R::Div ? x : y;
        const int lo = sizeof(P) == 1 ? -15 : std::is_signed<P>::value ? -30 : -31;
        const int hi = sizeof(P) == 1 ? 8 : std::is_signed<P>::value ? 15 : 16;
        if (b == 0) {
            o[0] = ref_scale<P>(Wide(a), -60);
            return true;
        }
        if (n < lo) return o[0] = ref_scale<P>(Wide(b < 0 ? -a : a), -60), false;
        if (n > hi) return o[0] = 0, false;
        const float p2 = std::ldexp(1.0f, -n);
        float q = constant ? float(a) * (p2 * (1.0f / float(b))) : exact ? float(a) * p2 / float(b) : rdiv(float(a) * p2, float(b));
        const float fl = float(std::numeric_limits<P>::min()), fh = float(std::numeric_limits<P>::max());
        q = q < fl ? fl : q > fh ? fh : q;
        o[0] = P(mode == 0 ? std::trunc(q) : mode == 2 ? std::round(q) : std::nearbyint(q));
        return false;
    }
};

// ---- A member from its name -------------------------------------------------------------
struct Kind {
    R op;
    bool constant = false, inPlace = false, round = false, complex = false;
    int parts = 1;
};

bool kind_of(const std::string& name, Kind& k) {
    const std::string fam = name.substr(4, name.find('_') - 4);
    const std::string desc = name.substr(name.rfind('_') + 1);
    const bool cplx = name.find("sc_") != std::string::npos || name.find("fc_") != std::string::npos;
    k.inPlace = desc.find('I') != std::string::npos;
    k.round = name.find("_Round_") != std::string::npos;
    k.parts = cplx ? 2 : 1;
    k.constant = fam == "AddC" || fam == "SubC" || fam == "MulC" || fam == "DivC" || fam == "MulCScale";
    if (fam == "Add" || fam == "AddC") k.op = R::Add;
    else if (fam == "Sub") k.op = R::Sub;
    else if (fam == "SubC") k.op = R::SubR;
    else if (fam == "Mul" || fam == "MulC") k.op = R::Mul, k.complex = cplx;
    else if (fam == "MulScale" || fam == "MulCScale") k.op = R::MulScale;
    else if (fam == "Div") k.op = R::Div, k.complex = cplx;
    else if (fam == "DivC") k.op = R::DivR, k.complex = cplx;
    else return false;
    return true;
}

// Scale factors from below the lower limit to above the upper one.
template <class P>
std::vector<int> scales(const Kind& k) {
    if (std::is_floating_point<P>::value || k.op == R::MulScale) return {0};
    if (sizeof(P) == 4) return {-40, -32, -31, -1, 0, 1, 2, 31, 32, 33, 62, 63, 64};
    if (k.op == R::Div || k.op == R::DivR) return {-33, -31, -30, -16, -15, -1, 0, 1, 7, 8, 9, 15, 16, 17};
    if (sizeof(P) == 1) return {-10, -9, -8, -7, -1, 0, 1, 2, 7, 8, 9, 10, 16, 17};
    return {-18, -17, -16, -15, -8, -1, 0, 1, 3, 15, 16, 17, 18, 29, 30, 31, 32, 33};
}

// Single-precision quotients run in blocks of eight from the start of a run,
// then a block of four, then single samples; a block with a zero divisor and
// the single samples take true division, the other blocks the refined
// reciprocal. A row of 4096 samples or more is split into two halves at two
// threads, each half a run of its own.
void ref_div32f_run(const float* x, const float* y, float* d, int n) {
    auto lane = [](float a, float b) {
        if (b == 0.0f) return a > 0 ? INFINITY : a < 0 ? -INFINITY : NAN;
        return a / b;
    };
    int i = 0;
    for (int w : {8, 4}) {
        for (; i + w <= n; i += w) {
            bool zero = false;
            for (int j = 0; j < w; ++j) zero |= x[i + j] == 0.0f;
            for (int j = 0; j < w; ++j) d[i + j] = zero ? lane(y[i + j], x[i + j]) : rdiv(y[i + j], x[i + j]);
            if (w == 4) { i += 4; break; }
        }
    }
    for (; i < n; ++i) d[i] = lane(y[i], x[i]);
}

struct Size { int w, h, threads; };
// Two threads (at scale factor 0 only) split rows of 1024 or 4096 samples and more.
const std::vector<Size> kSizes = {{1, 1, 1},    {3, 2, 1},    {15, 1, 1},   {16, 2, 1},  {17, 3, 1},  {31, 1, 1},
                                  {33, 2, 1},   {64, 1, 1},   {100, 2, 1},  {150, 120, 2}, {1400, 2, 2}, {1367, 1, 2},
                                  {4097, 1, 2}};

// Runs one member over the sizes and scales and compares every element.
template <class P>
void check_member(const zt::Member& m, const Kind& k) {
    const int act = m.name.find("AC4") != std::string::npos ? 3 : -1;
    const char* x = k.inPlace ? (k.constant ? "pSrcDst" : "pSrc") : (k.constant ? "pSrc" : "pSrc1");
    const char* y = k.inPlace && !k.constant ? "pSrcDst" : "pSrc2";
    const char* d = k.inPlace ? "pSrcDst" : "pDst";
    std::uint32_t seed = 1;
    for (int n : scales<P>(k))
        for (int mode = k.round ? 0 : -1; mode <= (k.round ? 2 : -1); ++mode)
            for (const Size& sz : kSizes) {
                if (sz.threads > 1 && n != 0) continue;
                zelSetNumThreads(sz.threads);
                zt::Call call(m, {sz.w, sz.h}, seed++, n);
                ASSERT_TRUE(call.supported()) << m.name << ": " << call.why();
                if (k.round) call.set_value("rndMode", mode);
                const ZelStatus st = call.run();
                const zt::Call::View a = call.view(x), out = call.view(d);
                const zt::Call::View b = k.constant ? zt::Call::View{} : call.view(y);
                const int ch = out.channels, count = sz.w * ch * k.parts, active = act > 0 ? act : ch;
                // a zero constant divisor is refused and nothing is written
                bool constZero = false;
                for (int c = 0; k.constant && k.op == R::DivR && c < active; ++c) {
                    bool z = true;
                    for (int p = 0; p < k.parts; ++p) z &= call.element<P>("value", c * k.parts + p) == 0;
                    constZero |= z;
                }
                if (constZero) {
                    ASSERT_EQ(st, zelStatusDivisionByZero) << m.name;
                    for (int row = 0; row < sz.h; ++row)
                        ASSERT_EQ(std::memcmp(out.now + std::size_t(row) * out.step, out.first + std::size_t(row) * out.step,
                                              std::size_t(count) * sizeof(P)), 0) << m.name;
                    continue;
                }
                const Ref<P> ref{k.op, mode, k.complex, false, k.constant};
                const bool blocks = std::is_floating_point<P>::value && k.op == R::Div && !k.complex && act < 0;
                bool zero = false;
                for (int row = 0; row < sz.h; ++row) {
                    std::vector<float> xr(count), yr(count), want(count);
                    const int half = sz.threads > 1 && count >= 4096 ? count / 2 : count;
                    for (int i = 0; blocks && i < count; ++i) xr[i] = float(a.s0<P>(i, row)), yr[i] = float(b.s0<P>(i, row));
                    if (blocks) {
                        ref_div32f_run(xr.data(), yr.data(), want.data(), half);
                        ref_div32f_run(xr.data() + half, yr.data() + half, want.data() + half, count - half);
                    }
                    // An integer quotient may take true division where its block
                    // of eight divisors holds a zero and at the end of a run; a
                    // float alpha form takes it everywhere.
                    auto truly = [&](int i) {
                        if (k.op != R::Div || k.complex) return false;
                        if (std::is_floating_point<P>::value) return true;
                        for (int j = std::max(0, i - 7); j <= std::min(count - 1, i + 7); ++j)
                            if (a.s0<P>(j, row) == 0) return true;
                        const int mid = sz.threads > 1 && count >= 1024 ? count / 2 : count;
                        return (i >= mid - 7 && i < mid) || i >= count - 7;
                    };
                    for (int px = 0; px < sz.w; ++px)
                        for (int c = 0; c < ch; ++c) {
                            const int i = (px * ch + c) * k.parts;
                            P xs[2], ys[2], o[2] = {}, alt[2] = {};
                            for (int p = 0; p < k.parts; ++p) {
                                xs[p] = a.s0<P>(i + p, row);
                                ys[p] = k.constant ? call.element<P>("value", c * k.parts + p) : b.s0<P>(i + p, row);
                            }
                            const bool on = c < active;
                            if (on) {
                                zero |= ref(xs, ys, o, n, k.parts);
                                Ref<P> ex = ref;
                                ex.exact = truly(i);
                                ex(xs, ys, alt, n, k.parts);
                                if (blocks) o[0] = alt[0] = P(want[i]);
                            }
                            for (int p = 0; p < k.parts; ++p) {
                                const P got = out.s<P>(i + p, row), before = out.s0<P>(i + p, row);
                                const bool ok = on ? zt::same_bits(got, o[p], true) || zt::same_bits(got, alt[p], true) : zt::same_bits(got, before, true);
                                ASSERT_TRUE(ok) << m.name << " " << sz.w << "x" << sz.h << " n=" << n << " mode=" << mode
                                                << " threads=" << sz.threads << " at x=" << px << " y=" << row << " c=" << c
                                                << ": " << double(xs[p]) << ", " << double(ys[p]) << " got " << double(got)
                                                << " want " << double(on ? o[p] : before);
                            }
                        }
                }
                ASSERT_EQ(st, k.op == R::Div && zero ? zelStatusDivisionByZeroWarning : zelStatusOk) << m.name << " n=" << n;
            }
    zelSetNumThreads(0);
}

// Every member whose name starts with prefix, against the reference of its sample type.
void check_members(const char* prefix) {
    int seen = 0;
    for (const zt::Member& m : zt::members()) {
        Kind k;
        if (m.name.compare(0, std::strlen(prefix), prefix) != 0 || !kind_of(m.name, k)) continue;
        ++seen;
        const std::string t = m.name.substr(m.name.find('_') + 1);
        const std::string type = k.round ? t.substr(6, t.find('_', 6) - 6) : t.substr(0, t.find('_'));
        if (!zt::with_type(type, [&](auto tag) { check_member<decltype(tag)>(m, k); })) ADD_FAILURE() << "no reference for " << m.name;
    }
    EXPECT_GT(seen, 0) << prefix;
}

} // namespace

TEST(AddSub, EveryMember) { check_members("zeliAdd"); check_members("zeliSub"); }
TEST(Mul, EveryMember) { check_members("zeliMul"); }
TEST(Div, EveryMember) { check_members("zeliDiv"); }

// ---- Stated values and the order of checks -------------------------------------------
TEST(Arith, StatedValues) {
    // 8u sums: a, b, scale, result
    const int adds[][4] = {{200, 100, 0, 255}, {200, 100, 1, 150}, {1, 2, 1, 2},   {0, 1, 1, 0},   {255, 255, 9, 1},
                           {128, 128, 9, 0},  {255, 255, 10, 0}, {1, 0, -8, 255}, {1, 1, -7, 255}};
    for (const auto& t : adds) {
        Zel8u a = Zel8u(t[0]), b = Zel8u(t[1]), d = 0;
        zeliAdd_8u_C1RSfs(&a, 1, &b, 1, &d, 1, {1, 1}, t[2]);
        EXPECT_EQ(d, t[3]) << t[0] << " + " << t[1] << " n " << t[2];
    }
    // 8u quotients: numerator, divisor, round mode (-1: plain Div), result (+1000: the warning)
    const int divs[][4] = {{7, 2, -1, 4}, {5, 2, -1, 2}, {5, 0, -1, 1255}, {0, 0, -1, 1000}, {7, 2, 0, 3},
                           {7, 2, 1, 4},  {7, 2, 2, 4},  {5, 2, 0, 2},     {5, 2, 1, 2},     {5, 2, 2, 3}};
    for (const auto& t : divs) {
        Zel8u num = Zel8u(t[0]), den = Zel8u(t[1]), d = 0;
        const ZelStatus st = t[2] < 0 ? zeliDiv_8u_C1RSfs(&den, 1, &num, 1, &d, 1, {1, 1}, 0)
                                      : zeliDiv_Round_8u_C1RSfs(&den, 1, &num, 1, &d, 1, {1, 1}, t[2], 0);
        EXPECT_EQ(int(d) + (st == zelStatusDivisionByZeroWarning ? 1000 : 0), t[3]) << t[0] << " / " << t[1] << " mode " << t[2];
    }
    Zel8u s1 = 10, s2 = 3, d8 = 9;
    zeliSub_8u_C1RSfs(&s1, 1, &s2, 1, &d8, 1, {1, 1}, 0);
    EXPECT_EQ(d8, 0);
    zeliSub_8u_C1RSfs(&s2, 1, &s1, 1, &d8, 1, {1, 1}, 0);
    EXPECT_EQ(d8, 7);
    Zel16s a = -32768, b = 32767, d16 = 0;
    zeliSub_16s_C1RSfs(&a, 2, &b, 2, &d16, 2, {1, 1}, 1);
    EXPECT_EQ(d16, 32767);
    zeliMul_16s_C1RSfs(&a, 2, &a, 2, &d16, 2, {1, 1}, 30);
    EXPECT_EQ(d16, 1);
    zeliMul_16s_C1RSfs(&a, 2, &a, 2, &d16, 2, {1, 1}, 31);
    EXPECT_EQ(d16, 0);
    Zel16sc c = {-32768, -32768}, dc = {1, 1};
    zeliMul_16sc_C1RSfs(&c, 4, &c, 4, &dc, 4, {1, 1}, 0);
    EXPECT_EQ(dc.re, 0);
    EXPECT_EQ(dc.im, 32767);
    Zel16u z0 = 0, d16u = 5;
    EXPECT_EQ(zeliAddC_16u_C1RSfs(&z0, 2, 0, &d16u, 2, {1, 1}, -20), zelStatusOk);
    EXPECT_EQ(d16u, 0);
    float num[3] = {1.0f, -1.0f, 0.0f}, den[3] = {-0.0f, 0.0f, 0.0f}, q[3];
    EXPECT_EQ(zeliDiv_32f_C1R(den, 12, num, 12, q, 12, {3, 1}), zelStatusDivisionByZeroWarning);
    EXPECT_EQ(q[0], INFINITY);
    EXPECT_EQ(q[1], -INFINITY);
    EXPECT_TRUE(std::isnan(q[2]));
    // a zero divisor in the alpha channel is no divisor
    Zel16s da[8] = {2, 2, 2, 0, 2, 2, 2, 0}, na[8] = {8, 8, 8, 8, 8, 8, 8, 8}, qa[8];
    EXPECT_EQ(zeliDiv_16s_AC4RSfs(da, 16, na, 16, qa, 16, {2, 1}, 0), zelStatusOk);
}

// Any scale factor, however extreme, follows the bound cases of the rule.
TEST(Arith, ExtremeScaleFactors) {
    const Zel16sc a = {1, 0}, b = {32767, 0};
    Zel16sc d = {5, 5};
    EXPECT_EQ(zeliDiv_16sc_C1RSfs(&a, 4, &b, 4, &d, 4, {1, 1}, INT_MIN), zelStatusOk);
    EXPECT_EQ(d.re, 32767);
    EXPECT_EQ(d.im, 0);
    EXPECT_EQ(zeliDiv_16sc_C1RSfs(&a, 4, &b, 4, &d, 4, {1, 1}, INT_MAX), zelStatusOk);
    EXPECT_EQ(d.re, 0);
    Zel8u x = 3, y = 4, z = 0;
    EXPECT_EQ(zeliAdd_8u_C1RSfs(&x, 1, &y, 1, &z, 1, {1, 1}, INT_MIN), zelStatusOk);
    EXPECT_EQ(z, 255);
    EXPECT_EQ(zeliMul_8u_C1RSfs(&x, 1, &y, 1, &z, 1, {1, 1}, INT_MAX), zelStatusOk);
    EXPECT_EQ(z, 0);
    EXPECT_EQ(zeliDiv_8u_C1RSfs(&x, 1, &y, 1, &z, 1, {1, 1}, INT_MIN), zelStatusOk);
    EXPECT_EQ(z, 255);
}

TEST(Arith, OrderOfChecks) {
    Zel8u p[64] = {};
    Zel16sc c[16] = {};
    const Zel8u v3[4] = {1, 2, 3, 4}, z3[4] = {1, 0, 3, 4};
    // null before size in C1, width before null in C3 and C4
    EXPECT_EQ(zeliAdd_8u_C1RSfs(nullptr, 1, p, 1, p, 1, {0, 1}, 0), zelStatusNullPointer);
    EXPECT_EQ(zeliAdd_8u_C3RSfs(nullptr, 1, p, 1, p, 1, {0, 1}, 0), zelStatusBadSize);
    EXPECT_EQ(zeliAdd_8u_C3RSfs(nullptr, 1, p, 1, p, 1, {1, 0}, 0), zelStatusNullPointer);
    EXPECT_EQ(zeliMul_8u_C4RSfs(nullptr, 1, p, 1, p, 1, {0, 1}, 0), zelStatusBadSize);
    EXPECT_EQ(zeliAdd_8u_AC4RSfs(nullptr, 1, p, 1, p, 1, {0, 1}, 0), zelStatusNullPointer);
    EXPECT_EQ(zeliAddC_8u_C3RSfs(p, 3, v3, p, 3, {0, 1}, 0), zelStatusBadSize);
    // no step check in real forms; complex forms check steps last
    EXPECT_EQ(zeliAdd_8u_C1RSfs(p, 0, p, -5, p, 0, {1, 1}, 0), zelStatusOk);
    EXPECT_EQ(zeliAdd_16sc_C1RSfs(c, 0, c, 4, c, 4, {1, 1}, 0), zelStatusBadStep);
    EXPECT_EQ(zeliAdd_16sc_C1RSfs(c, 0, c, 4, c, 4, {1, 0}, 0), zelStatusBadSize);
    EXPECT_EQ(zeliAdd_16sc_C1RSfs(nullptr, 0, c, 4, c, 4, {1, 0}, 0), zelStatusNullPointer);
    // full-scale products: null, step, size
    EXPECT_EQ(zeliMulScale_8u_C1R(p, 0, p, 1, p, 1, {0, 1}), zelStatusBadStep);
    EXPECT_EQ(zeliMulScale_8u_C1R(nullptr, 0, p, 1, p, 1, {0, 1}), zelStatusNullPointer);
    // division: null, size, step, then round mode or zero constant
    EXPECT_EQ(zeliDiv_8u_C1RSfs(p, 0, p, 1, p, 1, {0, 1}, 0), zelStatusBadSize);
    EXPECT_EQ(zeliDiv_8u_C1RSfs(p, 0, p, 1, p, 1, {1, 1}, 0), zelStatusBadStep);
    EXPECT_EQ(zeliDiv_Round_8u_C1RSfs(p, 0, p, 1, p, 1, {1, 1}, 3, 0), zelStatusBadStep);
    EXPECT_EQ(zeliDiv_Round_8u_C1RSfs(p, 1, p, 1, p, 1, {1, 1}, 3, 0), zelStatusBadRoundMode);
    EXPECT_EQ(zeliDiv_Round_8u_C1RSfs(p, 1, p, 1, p, 1, {1, 1}, -1, 0), zelStatusBadRoundMode);
    EXPECT_EQ(zeliDivC_8u_C1RSfs(p, 0, 0, p, 1, {1, 1}, 0), zelStatusBadStep);
    p[0] = 9;
    Zel8u before[8];
    std::memcpy(before, p, 8);
    EXPECT_EQ(zeliDivC_8u_C1RSfs(p, 1, 0, p + 4, 1, {4, 1}, 0), zelStatusDivisionByZero);
    EXPECT_EQ(zeliDivC_8u_C3RSfs(p, 3, z3, p + 3, 3, {1, 1}, 0), zelStatusDivisionByZero);
    EXPECT_EQ(std::memcmp(before, p, 8), 0);
    const Zel32fc zc = {0.0f, 0.0f};
    Zel32fc fc[2] = {};
    EXPECT_EQ(zeliDivC_32fc_C1R(fc, 8, zc, fc + 1, 8, {1, 1}), zelStatusDivisionByZero);
}

// Complex 32-bit products at the extremes of the sample range, where a part of
// the exact product needs 64 bits of magnitude before scaling.
TEST(Mul, Complex32sExtremePartsAtEveryScale) {
    const Zel32s lo = std::numeric_limits<Zel32s>::min(), hi = std::numeric_limits<Zel32s>::max();
    const Zel32s vals[] = {lo, lo + 1, -1, 0, 1, hi - 1, hi};
    const int n = int(sizeof vals / sizeof vals[0]), count = n * n * n * n;
    zt::Image<Zel32sc> a(count, 1, 1), b(count, 1, 1), d(count, 1, 1);
    int k = 0;
    for (Zel32s ar : vals)
        for (Zel32s ai : vals)
            for (Zel32s br : vals)
                for (Zel32s bi : vals) a.at(k, 0) = {ar, ai}, b.at(k, 0) = {br, bi}, ++k;
    for (int sf : {-33, -32, -31, -1, 0, 1, 2, 31, 32, 33, 61, 62, 63, 64}) {
        ASSERT_EQ(zeliMul_32sc_C1RSfs(a.ptr(), a.step(), b.ptr(), b.step(), d.ptr(), d.step(), {count, 1}, sf), zelStatusOk);
        for (int i = 0; i < count; ++i) {
            const Zel32sc x = a.at(i, 0), y = b.at(i, 0);
            ASSERT_EQ(d.at(i, 0).re, ref_scale<Zel32s>(mul(x.re, y.re) + -mul(x.im, y.im), sf)) << i << " " << sf;
            ASSERT_EQ(d.at(i, 0).im, ref_scale<Zel32s>(mul(x.re, y.im) + mul(x.im, y.re), sf)) << i << " " << sf;
        }
    }
}

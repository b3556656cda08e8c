// Add, subtract, multiply and divide against small references written from
// the arithmetic rules: exact rounding of s / 2^n with ties to even and
// saturation, unsigned differences clamped first, the refined reciprocal of
// the division. Every member is run over widths around the vector blocks,
// padded steps, unaligned rows, in-place forms, alpha preservation, scale
// factors across all cases, and at one and two threads.
#include "guard.hpp"

#include <gtest/gtest.h>
#include <smmintrin.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <functional>
#include <limits>
#include <string>
#include <vector>

namespace {

// ---- References -------------------------------------------------------------
using i128 = __int128;

template <class P>
P sat(i128 v) {
    const i128 lo = std::numeric_limits<P>::min(), hi = std::numeric_limits<P>::max();
    return P(v < lo ? lo : v > hi ? hi : v);
}

// s / 2^n rounded to nearest, ties to even, saturated.
template <class P>
P ref_scale(i128 s, int n) {
    if (n <= 0) {
        if (s == 0) return 0;
        if (-n > 60) return sat<P>(s > 0 ? i128(1) << 100 : -(i128(1) << 100));
        return sat<P>(s * (i128(1) << -n));
    }
    if (n > 100) return 0;
    const i128 d = i128(1) << n;
    i128 q = s / d, r = s % d;
    if (r < 0) r += d, q -= 1; // floor
    if (2 * r > d || (2 * r == d && (q & 1))) q += 1;
    return sat<P>(q);
}

enum class R { Add, Sub, SubR, Mul, MulScale, Div, DivR, DivC };

// One element (k parts) of an integer or float result. `mode` -1: plain division.
template <class P>
struct Ref {
    R op;
    int mode = -1;
    bool complex = false;
    bool exact = false; // true division where a block of divisors holds a zero
    // returns true when the divisor was zero
    bool operator()(const P* x, const P* y, P* o, int n, int k) const {
        if (!complex && k == 2) return one(x, y, o, n) | one(x + 1, y + 1, o + 1, n);
        return one(x, y, o, n);
    }
    bool one(const P* x, const P* y, P* o, int n) const {
        if constexpr (std::is_floating_point<P>::value) return flt(x, y, o);
        else return integ(x, y, o, n);
    }
    static float rdiv(float a, float b) {
        const float r = _mm_cvtss_f32(_mm_rcp_ss(_mm_set_ss(b)));
        const float e = 1.0f - b * r, q = a * r;
        return q + (q + e * q) * e;
    }
    bool flt(const P* x, const P* y, P* o) const {
        if (complex && (op == R::Mul)) {
            o[0] = x[0] * y[0] - x[1] * y[1];
            o[1] = x[0] * y[1] + x[1] * y[0];
            return false;
        }
        if (complex && (op == R::Div || op == R::DivR || op == R::DivC)) {
            const P* num = op == R::Div ? y : x;
            const P* den = op == R::Div ? x : y;
            const float inv = 1.0f / (den[0] * den[0] + den[1] * den[1]);
            o[0] = (num[0] * den[0] + num[1] * den[1]) * inv;
            o[1] = (num[1] * den[0] - num[0] * den[1]) * inv;
            return den[0] == 0 && den[1] == 0;
        }
        switch (op) {
        case R::Add: o[0] = x[0] + y[0]; return false;
        case R::Sub: o[0] = y[0] - x[0]; return false;
        case R::SubR: o[0] = x[0] - y[0]; return false;
        case R::Mul: o[0] = x[0] * y[0]; return false;
        case R::DivC: o[0] = x[0] / y[0]; return false;
        default: {
            const float a = op == R::Div ? y[0] : x[0], b = op == R::Div ? x[0] : y[0];
            if (b == 0) {
                o[0] = a > 0 ? INFINITY : a < 0 ? -INFINITY : NAN;
                return true;
            }
            o[0] = exact ? a / b : rdiv(a, b);
            return false;
        }
        }
    }
    static int sgn(i128 v) { return v > 0 ? 1 : v < 0 ? -1 : 0; }
    bool integ(const P* x, const P* y, P* o, int n) const {
        const bool u = !std::is_signed<P>::value;
        if (complex && op == R::Mul) {
            o[0] = ref_scale<P>(i128(x[0]) * y[0] - i128(x[1]) * y[1], n);
            o[1] = ref_scale<P>(i128(x[0]) * y[1] + i128(x[1]) * y[0], n);
            return false;
        }
        if (complex && op != R::Add && op != R::Sub && op != R::SubR) {
            const P* num = op == R::Div ? y : x;
            const P* den = op == R::Div ? x : y;
            if (den[0] == 0 && den[1] == 0) {
                o[0] = sat<P>(sgn(num[0]) * (i128(1) << 40));
                o[1] = sat<P>(sgn(num[1]) * (i128(1) << 40));
                return true;
            }
            const double c = den[0], d = den[1], d2 = c * c + d * d;
            const double re = (double(num[0]) * c + double(num[1]) * d) / d2, im = (double(num[1]) * c - double(num[0]) * d) / d2;
            auto part = [&](double v) { v = std::nearbyint(std::ldexp(v, -n)); return v < -4e18 ? sat<P>(-(i128(1) << 80)) : v > 4e18 ? sat<P>(i128(1) << 80) : sat<P>(i128((long long)v)); };
            o[0] = part(re);
            o[1] = part(im);
            return false;
        }
        switch (op) {
        case R::Add: o[0] = ref_scale<P>(i128(x[0]) + y[0], n); return false;
        case R::Sub: o[0] = ref_scale<P>(u && y[0] < x[0] ? 0 : i128(y[0]) - x[0], n); return false;
        case R::SubR: o[0] = ref_scale<P>(u && x[0] < y[0] ? 0 : i128(x[0]) - y[0], n); return false;
        case R::Mul: o[0] = ref_scale<P>(i128(x[0]) * y[0], n); return false;
        case R::MulScale: {
            // the stated rule: (p + 1 + (p >> bits)) >> bits on the exact product
            const unsigned long long p = (unsigned long long)x[0] * y[0], bits = sizeof(P) * 8;
            o[0] = P((p + 1 + (p >> bits)) >> bits);
            return false;
        }
        default: break;
        }
        // Integer quotients.
        const int a = op == R::Div ? y[0] : x[0], b = op == R::Div ? x[0] : y[0];
        const int lo = std::is_same<P, std::uint8_t>::value ? -15 : std::is_same<P, std::int16_t>::value ? -30 : -31;
        const int hi = std::is_same<P, std::uint8_t>::value ? 8 : std::is_same<P, std::int16_t>::value ? 15 : 16;
        if (b == 0) {
            o[0] = sat<P>(sgn(a) * (i128(1) << 40));
            return true;
        }
        if (n < lo) { o[0] = sat<P>(sgn(a) * sgn(b) * (i128(1) << 40)); return false; }
        if (n > hi) { o[0] = 0; return false; }
        const float p2 = std::ldexp(1.0f, -n);
        float q = op == R::DivC ? float(a) * (p2 * (1.0f / float(b)))
                  : exact         ? float(a) * p2 / float(b)
                                  : rdiv(float(a) * p2, float(b));
        const float fl = float(std::numeric_limits<P>::min()), fh = float(std::numeric_limits<P>::max());
        q = q < fl ? fl : q > fh ? fh : q;
        double v = mode == 0 ? std::trunc(q) : mode == 2 ? std::round(q) : std::nearbyint(q);
        o[0] = P(v);
        return false;
    }
};

// ---- Image harness ----------------------------------------------------------------
struct Shape { int ch, act, k; }; // elements a pixel, worked elements, parts an element

template <class P>
using BinCall = std::function<ZelStatus(const P*, int, const P*, int, P*, int, ZeliSize, int)>;
template <class P>
using BinICall = std::function<ZelStatus(const P*, int, P*, int, ZeliSize, int)>;
template <class P>
using CstCall = std::function<ZelStatus(const P*, int, const P*, P*, int, ZeliSize, int)>;
template <class P>
using CstICall = std::function<ZelStatus(const P*, P*, int, ZeliSize, int)>;

template <class P>
bool same_bits(P a, P b) {
    if constexpr (std::is_floating_point<P>::value) {
        if (std::isnan(a) && std::isnan(b)) return true;
        return std::memcmp(&a, &b, sizeof a) == 0;
    } else {
        return a == b;
    }
}

struct Size { int w, h; };
const std::vector<Size>& sizes() {
    static const std::vector<Size> s = [] {
        std::vector<Size> v;
        for (int w : {1, 3, 7, 15, 16, 17, 31, 33, 64, 100}) v.push_back({w, 2});
        v.push_back({150, 120}); // width plus height above the thread gates
        v.push_back({1400, 3});  // a row long enough to split a division
        return v;
    }();
    return s;
}

template <class P>
void fill(zt::Image<P>& img, std::uint32_t seed, int zeroEvery) {
    img.fill_random(seed);
    std::mt19937 rng(seed * 7 + 1);
    const int spp = img.channels();
    for (int y = 0; y < img.height(); ++y)
        for (int x = 0; x < img.width() * spp; ++x) {
            P& v = img.row(y)[x];
            if constexpr (std::is_floating_point<P>::value) v = P(int(rng() % 2001) - 1000) / P(8);
            if (zeroEvery && rng() % zeroEvery == 0) v = 0;
        }
}

// Runs out-of-place and in-place forms of a binary member and compares with
// the reference at scale n, at 1 and 2 threads.
template <class P>
void check_bin(const std::string& name, Shape s, const BinCall<P>& call, const BinICall<P>& calli, const Ref<P>& ref,
               const std::vector<int>& ns, int zeroEvery = 0) {
    const int spp = s.ch * s.k;
    unsigned seed = 1;
    for (int threads : {1, 2}) {
        zelSetNumThreads(threads);
        for (int n : ns) {
            for (int j = 0; j < 3; ++j) {
                // two threads: only the sizes that pass the thread gates
                const Size& sz = threads == 1 ? sizes()[(seed++) % sizes().size()] : sizes()[sizes().size() - 1 - (seed++) % 2];
                if (threads == 2 && (j > 0 || seed % 5)) continue;
                const int extra = (seed % 3) * int(sizeof(P)) * 3;
                zt::Image<P> a(sz.w, sz.h, spp, extra, zt::Flush::Head, sizeof(P) * (seed % 4));
                zt::Image<P> b(sz.w, sz.h, spp, 0, zt::Flush::Tail);
                zt::Image<P> d(sz.w, sz.h, spp, extra + int(sizeof(P)), zt::Flush::Tail);
                fill(a, seed, zeroEvery);
                fill(b, seed + 100, 0);
                d.fill_random(seed + 200);
                const auto before = d.bytes();
                zt::Image<P> ib(sz.w, sz.h, spp, extra, zt::Flush::Head, sizeof(P));
                for (int y = 0; y < sz.h; ++y) std::memcpy(ib.row(y), b.row(y), sizeof(P) * sz.w * spp);
                // in place: srcDst holds the second operand, alpha of b stays
                const ZelStatus st = call(a.ptr(), a.step(), b.ptr(), b.step(), d.ptr(), d.step(), {sz.w, sz.h}, n);
                const ZelStatus sti = calli(a.ptr(), a.step(), ib.ptr(), ib.step(), {sz.w, sz.h}, n);
                bool zero = false;
                const int count = sz.w * spp;
                auto truly = [&](int y, int i, int threads) {
                    constexpr bool flt = std::is_floating_point<P>::value;
                    if (flt && s.act < s.ch) return true;
                    const int reach = flt ? 7 : 15; // a block of 8 floats, of 16 bytes otherwise
                    for (int j = std::max(0, i - reach); j <= std::min(count - 1, i + reach); ++j)
                        if (a.row(y)[j] == 0) return true;
                    const int half = threads > 1 && count >= 4096 ? count / 2 : count;
                    return flt && ((i >= half - 7 && i < half) || i >= count - 7);
                };
                for (int y = 0; y < sz.h; ++y)
                    for (int x = 0; x < sz.w; ++x)
                        for (int c = 0; c < s.ch; ++c) {
                            const int i = (x * s.ch + c) * s.k;
                            P o[2], alt[2];
                            const P* da = a.row(y) + i;
                            const P* db = b.row(y) + i;
                            for (int p = 0; p < s.k; ++p) {
                                if (c < s.act) {
                                    if (p == 0) {
                                        zero |= ref(da, db, o, n, s.k);
                                        // A quotient may take true division when its
                                        // block of divisors holds a zero, and a float
                                        // one also at the end of a run or in an alpha
                                        // form; Div.BlocksOfQuotients checks the exact
                                        // float blocks.
                                        Ref<P> ex = ref;
                                        ex.exact = ref.op == R::Div && !ref.complex && truly(y, i, threads);
                                        ex(da, db, alt, n, s.k);
                                    }
                                } else {
                                    o[p] = alt[p] = reinterpret_cast<const P*>(before.data() + std::size_t(y) * d.step())[i + p];
                                }
                                const P want = o[p];
                                auto ok = [&](P got, P w) { return same_bits(got, w) || (c < s.act && same_bits(got, alt[p])); };
                                if (!ok(d.row(y)[i + p], want) || !ok(ib.row(y)[i + p], c < s.act ? want : b.row(y)[i + p])) {
                                    ADD_FAILURE() << name << " w=" << sz.w << " h=" << sz.h << " n=" << n << " threads=" << threads
                                                  << " at x=" << x << " y=" << y << " c=" << c << " part=" << p << ": a="
                                                  << double(da[p]) << " b=" << double(db[p]) << " got " << double(d.row(y)[i + p])
                                                  << " / " << double(ib.row(y)[i + p]) << " want " << double(want);
                                    return;
                                }
                            }
                        }
                const ZelStatus want = zero ? zelStatusDivisionByZeroWarning : zelStatusOk;
                ASSERT_EQ(st, want) << name << " n=" << n << " w=" << sz.w;
                ASSERT_EQ(sti, want) << name << " in place n=" << n << " w=" << sz.w;
            }
        }
    }
    zelSetNumThreads(0);
}

// The same for a constant form: the constant is `vals` (act elements of k parts).
template <class P>
void check_cst(const std::string& name, Shape s, const CstCall<P>& call, const CstICall<P>& calli, const Ref<P>& ref,
               const std::vector<int>& ns, const std::vector<std::vector<P>>& constants) {
    const int spp = s.ch * s.k;
    unsigned seed = 7;
    for (int threads : {1, 2}) {
        zelSetNumThreads(threads);
        for (const auto& vals : constants)
            for (int n : ns) {
                for (int j = 0; j < 3; ++j) {
                    // two threads: only the sizes that pass the thread gates
                const Size& sz = threads == 1 ? sizes()[(seed++) % sizes().size()] : sizes()[sizes().size() - 1 - (seed++) % 2];
                if (threads == 2 && (j > 0 || seed % 5)) continue;
                    const int extra = (seed % 3) * int(sizeof(P)) * 5;
                    zt::Image<P> a(sz.w, sz.h, spp, extra, zt::Flush::Head, sizeof(P) * (seed % 4));
                    zt::Image<P> d(sz.w, sz.h, spp, 0, zt::Flush::Tail);
                    zt::Image<P> id(sz.w, sz.h, spp, extra, zt::Flush::Tail);
                    fill(a, seed, 0);
                    d.fill_random(seed + 1);
                    const auto before = d.bytes();
                    for (int y = 0; y < sz.h; ++y) std::memcpy(id.row(y), a.row(y), sizeof(P) * sz.w * spp);
                    ASSERT_EQ(call(a.ptr(), a.step(), vals.data(), d.ptr(), d.step(), {sz.w, sz.h}, n), zelStatusOk) << name;
                    ASSERT_EQ(calli(vals.data(), id.ptr(), id.step(), {sz.w, sz.h}, n), zelStatusOk) << name;
                    for (int y = 0; y < sz.h; ++y)
                        for (int x = 0; x < sz.w; ++x)
                            for (int c = 0; c < s.ch; ++c) {
                                const int i = (x * s.ch + c) * s.k;
                                P o[2];
                                if (c < s.act) ref(a.row(y) + i, vals.data() + c * s.k, o, n, s.k);
                                for (int p = 0; p < s.k; ++p) {
                                    const P old = reinterpret_cast<const P*>(before.data() + std::size_t(y) * d.step())[i + p];
                                    const P want = c < s.act ? o[p] : old;
                                    const P wanti = c < s.act ? o[p] : a.row(y)[i + p];
                                    if (!same_bits(d.row(y)[i + p], want) || !same_bits(id.row(y)[i + p], wanti)) {
                                        ADD_FAILURE() << name << " w=" << sz.w << " n=" << n << " threads=" << threads << " x=" << x
                                                      << " y=" << y << " c=" << c << " a=" << double(a.row(y)[i + p]) << " v="
                                                      << double(vals[c * s.k + p]) << " got " << double(d.row(y)[i + p]) << " / "
                                                      << double(id.row(y)[i + p]) << " want " << double(want);
                                        return;
                                    }
                                }
                            }
                }
            }
    }
    zelSetNumThreads(0);
}


// Scale factors from below the lower limit to above the upper one.
template <class P> std::vector<int> scales(bool complex, R op) {
    if (std::is_floating_point<P>::value) return {0};
    if (sizeof(P) == 4) return {-40, -32, -31, -30, -2, -1, 0, 1, 2, 17, 31, 32, 33, 62, 63, 64, 65};
    if (op == R::Div || op == R::DivR || op == R::DivC) return {-33, -31, -30, -16, -15, -14, -1, 0, 1, 2, 7, 8, 9, 15, 16, 17};
    if (sizeof(P) == 1) return {-10, -9, -8, -7, -2, -1, 0, 1, 2, 3, 7, 8, 9, 10, 16, 17, 18};
    return {-18, -17, -16, -15, -14, -8, -1, 0, 1, 2, 3, 8, 15, 16, 17, 18, 29, 30, 31, 32, 33, 34};
}

// ---- Members ---------------------------------------------------------------------
#define SHAPE_C1 (Shape{1, 1, 1})
#define SHAPE_C3 (Shape{3, 3, 1})
#define SHAPE_C4 (Shape{4, 4, 1})
#define SHAPE_AC4 (Shape{4, 3, 1})

// Binary and constant members over one part type P; E is the exported element type.
#define BIN_CASE(F, T, L, P, E, K, SH, REF)                                                                          \
    check_bin<P>(#F "_" #T "_" #L, Shape{SH.ch, SH.act, K},                                                      \
                 [](const P* a, int as, const P* b, int bs, P* d, int ds, ZeliSize r, int n) {                     \
                     return zeli##F##_##T##_##L##RSfs((const E*)a, as, (const E*)b, bs, (E*)d, ds, r, n);           \
                 },                                                                                                \
                 [](const P* a, int as, P* d, int ds, ZeliSize r, int n) {                                         \
                     return zeli##F##_##T##_##L##IRSfs((const E*)a, as, (E*)d, ds, r, n);                           \
                 },                                                                                                \
                 REF, scales<P>(K == 2, REF.op), REF.op == R::Div ? 9 : 0)
#define BINF_CASE(F, T, L, P, E, K, SH, REF)                                                                         \
    check_bin<P>(#F "_" #T "_" #L, Shape{SH.ch, SH.act, K},                                                      \
                 [](const P* a, int as, const P* b, int bs, P* d, int ds, ZeliSize r, int) {                       \
                     return zeli##F##_##T##_##L##R((const E*)a, as, (const E*)b, bs, (E*)d, ds, r);                 \
                 },                                                                                                \
                 [](const P* a, int as, P* d, int ds, ZeliSize r, int) { return zeli##F##_##T##_##L##IR((const E*)a, as, (E*)d, ds, r); }, \
                 REF, {0}, REF.op == R::Div ? 9 : 0)
#define CST_CASE(F, T, L, P, E, K, SH, REF, VALS)                                                                    \
    check_cst<P>(#F "_" #T "_" #L, Shape{SH.ch, SH.act, K},                                                      \
                 [](const P* a, int as, const P* v, P* d, int ds, ZeliSize r, int n) {                             \
                     return zeli##F##_##T##_##L##RSfs((const E*)a, as, (const E*)v, (E*)d, ds, r, n);               \
                 },                                                                                                \
                 [](const P* v, P* d, int ds, ZeliSize r, int n) { return zeli##F##_##T##_##L##IRSfs((const E*)v, (E*)d, ds, r, n); }, \
                 REF, scales<P>(K == 2, REF.op), VALS)
#define CST1_CASE(F, T, P, E, K, REF, VALS)                                                                          \
    check_cst<P>(#F "_" #T "_C1", Shape{1, 1, K},                                                                \
                 [](const P* a, int as, const P* v, P* d, int ds, ZeliSize r, int n) {                             \
                     return zeli##F##_##T##_C1RSfs((const E*)a, as, *(const E*)v, (E*)d, ds, r, n);                 \
                 },                                                                                                \
                 [](const P* v, P* d, int ds, ZeliSize r, int n) { return zeli##F##_##T##_C1IRSfs(*(const E*)v, (E*)d, ds, r, n); }, \
                 REF, scales<P>(K == 2, REF.op), VALS)
#define CSTF_CASE(F, T, L, P, E, K, SH, REF, VALS)                                                                   \
    check_cst<P>(#F "_" #T "_" #L, Shape{SH.ch, SH.act, K},                                                      \
                 [](const P* a, int as, const P* v, P* d, int ds, ZeliSize r, int) {                               \
                     return zeli##F##_##T##_##L##R((const E*)a, as, (const E*)v, (E*)d, ds, r);                     \
                 },                                                                                                \
                 [](const P* v, P* d, int ds, ZeliSize r, int) { return zeli##F##_##T##_##L##IR((const E*)v, (E*)d, ds, r); }, \
                 REF, {0}, VALS)
#define CST1F_CASE(F, T, P, E, K, REF, VALS)                                                                         \
    check_cst<P>(#F "_" #T "_C1", Shape{1, 1, K},                                                                \
                 [](const P* a, int as, const P* v, P* d, int ds, ZeliSize r, int) {                               \
                     return zeli##F##_##T##_C1R((const E*)a, as, *(const E*)v, (E*)d, ds, r);                       \
                 },                                                                                                \
                 [](const P* v, P* d, int ds, ZeliSize r, int) { return zeli##F##_##T##_C1IR(*(const E*)v, (E*)d, ds, r); }, \
                 REF, {0}, VALS)

// Real members in their four layouts.
#define BIN_LAYOUTS(CASE, F, T, REF)                                                                                 \
    CASE(F, T, C1, Zel##T, Zel##T, 1, SHAPE_C1, Ref<Zel##T>{REF});                                                   \
    CASE(F, T, C3, Zel##T, Zel##T, 1, SHAPE_C3, Ref<Zel##T>{REF});                                                   \
    CASE(F, T, C4, Zel##T, Zel##T, 1, SHAPE_C4, Ref<Zel##T>{REF});                                                   \
    CASE(F, T, AC4, Zel##T, Zel##T, 1, SHAPE_AC4, Ref<Zel##T>{REF})
#define PW_BIN_SET(F, REF)                                                                                           \
    BIN_LAYOUTS(BIN_CASE, F, 8u, REF);                                                                               \
    BIN_LAYOUTS(BIN_CASE, F, 16u, REF);                                                                              \
    BIN_LAYOUTS(BIN_CASE, F, 16s, REF);                                                                              \
    BIN_LAYOUTS(BINF_CASE, F, 32f, REF)

// Complex members: two parts an element; CPLX false for part-wise operations
// (add, subtract), true for complex products and quotients.
#define CPLX_LAYOUTS(CASE, F, T, P, REF, CPLX)                                                                       \
    CASE(F, T, C1, P, Zel##T, 2, SHAPE_C1, (Ref<P>{REF, -1, CPLX}));                                                 \
    CASE(F, T, C3, P, Zel##T, 2, SHAPE_C3, (Ref<P>{REF, -1, CPLX}));                                                 \
    CASE(F, T, AC4, P, Zel##T, 2, SHAPE_AC4, (Ref<P>{REF, -1, CPLX}))
#define CPLX_BIN_SET(F, REF, CPLX)                                                                                   \
    CPLX_LAYOUTS(BIN_CASE, F, 16sc, Zel16s, REF, CPLX);                                                              \
    CPLX_LAYOUTS(BIN_CASE, F, 32sc, Zel32s, REF, CPLX);                                                              \
    CPLX_LAYOUTS(BINF_CASE, F, 32fc, Zel32f, REF, CPLX)

template <class P> std::vector<std::vector<P>> consts_real() {
    if (std::is_floating_point<P>::value) return {{P(1.5), P(-2.25), P(0.0), P(7)}, {P(0), P(0), P(0), P(0)}};
    if (std::is_signed<P>::value) return {{P(0), P(0), P(0), P(0)}, {P(1), P(1), P(1), P(1)}, {P(-3), P(7), P(-32768), P(300)}, {P(5), P(5), P(5), P(5)}};
    return {{P(0), P(0), P(0), P(0)}, {P(1), P(1), P(1), P(1)}, {P(3), P(0), P(200), P(255)}, {P(7), P(7), P(7), P(7)}};
}
template <class P> std::vector<std::vector<P>> consts_nonzero() {
    if (std::is_floating_point<P>::value) return {{P(1.5), P(-2.25), P(3), P(7)}};
    if (std::is_signed<P>::value) return {{P(-3), P(7), P(2), P(300)}, {P(1), P(1), P(1), P(1)}};
    return {{P(3), P(1), P(200), P(255)}, {P(2), P(2), P(2), P(2)}};
}
template <class P> std::vector<std::vector<P>> consts_cplx() {
    if (std::is_floating_point<P>::value) return {{P(1.5), P(-2), P(0), P(3), P(-1), P(0.5), P(2), P(2)}};
    return {{P(3), P(-2), P(-32768), P(-32768), P(0), P(1), P(5), P(0)}, {P(-1), P(4), P(2), P(0), P(7), P(-7), P(1), P(1)}};
}

#define CST_SET_REAL(F, REF, CS)                                                                                     \
    CST1_CASE(F, 8u, Zel8u, Zel8u, 1, Ref<Zel8u>{REF}, CS<Zel8u>());                                                   \
    CST_CASE(F, 8u, C3, Zel8u, Zel8u, 1, SHAPE_C3, Ref<Zel8u>{REF}, CS<Zel8u>());                                      \
    CST_CASE(F, 8u, C4, Zel8u, Zel8u, 1, SHAPE_C4, Ref<Zel8u>{REF}, CS<Zel8u>());                                      \
    CST_CASE(F, 8u, AC4, Zel8u, Zel8u, 1, SHAPE_AC4, Ref<Zel8u>{REF}, CS<Zel8u>());                                    \
    CST1_CASE(F, 16u, Zel16u, Zel16u, 1, Ref<Zel16u>{REF}, CS<Zel16u>());                                              \
    CST_CASE(F, 16u, C3, Zel16u, Zel16u, 1, SHAPE_C3, Ref<Zel16u>{REF}, CS<Zel16u>());                                 \
    CST_CASE(F, 16u, C4, Zel16u, Zel16u, 1, SHAPE_C4, Ref<Zel16u>{REF}, CS<Zel16u>());                                 \
    CST_CASE(F, 16u, AC4, Zel16u, Zel16u, 1, SHAPE_AC4, Ref<Zel16u>{REF}, CS<Zel16u>());                               \
    CST1_CASE(F, 16s, Zel16s, Zel16s, 1, Ref<Zel16s>{REF}, CS<Zel16s>());                                              \
    CST_CASE(F, 16s, C3, Zel16s, Zel16s, 1, SHAPE_C3, Ref<Zel16s>{REF}, CS<Zel16s>());                                 \
    CST_CASE(F, 16s, C4, Zel16s, Zel16s, 1, SHAPE_C4, Ref<Zel16s>{REF}, CS<Zel16s>());                                 \
    CST_CASE(F, 16s, AC4, Zel16s, Zel16s, 1, SHAPE_AC4, Ref<Zel16s>{REF}, CS<Zel16s>());                               \
    CST1F_CASE(F, 32f, Zel32f, Zel32f, 1, Ref<Zel32f>{REF}, CS<Zel32f>());                                             \
    CSTF_CASE(F, 32f, C3, Zel32f, Zel32f, 1, SHAPE_C3, Ref<Zel32f>{REF}, CS<Zel32f>());                                \
    CSTF_CASE(F, 32f, C4, Zel32f, Zel32f, 1, SHAPE_C4, Ref<Zel32f>{REF}, CS<Zel32f>());                                \
    CSTF_CASE(F, 32f, AC4, Zel32f, Zel32f, 1, SHAPE_AC4, Ref<Zel32f>{REF}, CS<Zel32f>())

#define CST_SET_CPLX(F, REF, K, CPLX)                                                                                \
    CST1_CASE(F, 16sc, Zel16s, Zel16sc, K, (Ref<Zel16s>{REF, -1, CPLX}), consts_cplx<Zel16s>());                      \
    CST_CASE(F, 16sc, C3, Zel16s, Zel16sc, K, SHAPE_C3, (Ref<Zel16s>{REF, -1, CPLX}), consts_cplx<Zel16s>());         \
    CST_CASE(F, 16sc, AC4, Zel16s, Zel16sc, K, SHAPE_AC4, (Ref<Zel16s>{REF, -1, CPLX}), consts_cplx<Zel16s>());       \
    CST1_CASE(F, 32sc, Zel32s, Zel32sc, K, (Ref<Zel32s>{REF, -1, CPLX}), consts_cplx<Zel32s>());                      \
    CST_CASE(F, 32sc, C3, Zel32s, Zel32sc, K, SHAPE_C3, (Ref<Zel32s>{REF, -1, CPLX}), consts_cplx<Zel32s>());         \
    CST_CASE(F, 32sc, AC4, Zel32s, Zel32sc, K, SHAPE_AC4, (Ref<Zel32s>{REF, -1, CPLX}), consts_cplx<Zel32s>());       \
    CST1F_CASE(F, 32fc, Zel32f, Zel32fc, K, (Ref<Zel32f>{REF, -1, CPLX}), consts_cplx<Zel32f>());                     \
    CSTF_CASE(F, 32fc, C3, Zel32f, Zel32fc, K, SHAPE_C3, (Ref<Zel32f>{REF, -1, CPLX}), consts_cplx<Zel32f>());        \
    CSTF_CASE(F, 32fc, AC4, Zel32f, Zel32fc, K, SHAPE_AC4, (Ref<Zel32f>{REF, -1, CPLX}), consts_cplx<Zel32f>())

} // namespace

TEST(AddSub, Binary) {
    PW_BIN_SET(Add, R::Add);
    CPLX_BIN_SET(Add, R::Add, false);
    PW_BIN_SET(Sub, R::Sub);
    CPLX_BIN_SET(Sub, R::Sub, false);
}

TEST(AddSub, Constant) {
    CST_SET_REAL(AddC, R::Add, consts_real);
    CST_SET_CPLX(AddC, R::Add, 2, false);
    CST_SET_REAL(SubC, R::SubR, consts_real);
    CST_SET_CPLX(SubC, R::SubR, 2, false);
}

TEST(Mul, Binary) {
    PW_BIN_SET(Mul, R::Mul);
    CPLX_BIN_SET(Mul, R::Mul, true);
}

TEST(Mul, Constant) {
    CST_SET_REAL(MulC, R::Mul, consts_real);
    CST_SET_CPLX(MulC, R::Mul, 2, true);
}

#define MULSCALE_SET(T)                                                                                              \
    BINF_CASE(MulScale, T, C1, Zel##T, Zel##T, 1, SHAPE_C1, Ref<Zel##T>{R::MulScale});                                 \
    BINF_CASE(MulScale, T, C3, Zel##T, Zel##T, 1, SHAPE_C3, Ref<Zel##T>{R::MulScale});                                 \
    BINF_CASE(MulScale, T, C4, Zel##T, Zel##T, 1, SHAPE_C4, Ref<Zel##T>{R::MulScale});                                 \
    BINF_CASE(MulScale, T, AC4, Zel##T, Zel##T, 1, SHAPE_AC4, Ref<Zel##T>{R::MulScale});                               \
    CST1F_CASE(MulCScale, T, Zel##T, Zel##T, 1, Ref<Zel##T>{R::MulScale}, consts_real<Zel##T>());                      \
    CSTF_CASE(MulCScale, T, C3, Zel##T, Zel##T, 1, SHAPE_C3, Ref<Zel##T>{R::MulScale}, consts_real<Zel##T>());         \
    CSTF_CASE(MulCScale, T, C4, Zel##T, Zel##T, 1, SHAPE_C4, Ref<Zel##T>{R::MulScale}, consts_real<Zel##T>());         \
    CSTF_CASE(MulCScale, T, AC4, Zel##T, Zel##T, 1, SHAPE_AC4, Ref<Zel##T>{R::MulScale}, consts_real<Zel##T>())

TEST(Mul, FullScale) {
    MULSCALE_SET(8u);
    MULSCALE_SET(16u);
}

TEST(Div, Binary) {
    PW_BIN_SET(Div, R::Div);
    CPLX_BIN_SET(Div, R::Div, true);
}

TEST(Div, Constant) {
    CST_SET_REAL(DivC, R::DivC, consts_nonzero);
    CST_SET_CPLX(DivC, R::DivC, 2, true);
}

#define RND_CASE(T, L, SH)                                                                                           \
    for (int m = 0; m < 3; ++m)                                                                                      \
        check_bin<Zel##T>("Div_Round_" #T "_" #L, SH,                                                                \
                          [m](const Zel##T* a, int as, const Zel##T* b, int bs, Zel##T* d, int ds, ZeliSize r, int n) { \
                              return zeliDiv_Round_##T##_##L##RSfs(a, as, b, bs, d, ds, r, m, n);                   \
                          },                                                                                         \
                          [m](const Zel##T* a, int as, Zel##T* d, int ds, ZeliSize r, int n) {                      \
                              return zeliDiv_Round_##T##_##L##IRSfs(a, as, d, ds, r, m, n);                         \
                          },                                                                                         \
                          Ref<Zel##T>{R::Div, m}, scales<Zel##T>(false, R::Div), 9)
#define RND_SET(T) RND_CASE(T, C1, SHAPE_C1); RND_CASE(T, C3, SHAPE_C3); RND_CASE(T, C4, SHAPE_C4); RND_CASE(T, AC4, SHAPE_AC4)

TEST(Div, Round) {
    RND_SET(8u);
    RND_SET(16u);
    RND_SET(16s);
}

// ---- Stated values and the order of checks -------------------------------------------
TEST(Arith, StatedValues) {
    auto add8 = [](Zel8u a, Zel8u b, int n) {
        Zel8u d = 0;
        zeliAdd_8u_C1RSfs(&a, 1, &b, 1, &d, 1, {1, 1}, n);
        return int(d);
    };
    EXPECT_EQ(add8(200, 100, 0), 255);
    EXPECT_EQ(add8(200, 100, 1), 150);
    EXPECT_EQ(add8(1, 2, 1), 2);
    EXPECT_EQ(add8(0, 1, 1), 0);
    EXPECT_EQ(add8(255, 255, 9), 1);
    EXPECT_EQ(add8(128, 128, 9), 0);
    EXPECT_EQ(add8(255, 255, 10), 0);
    EXPECT_EQ(add8(1, 0, -8), 255);
    EXPECT_EQ(add8(1, 1, -7), 255);
    Zel8u s1 = 10, s2 = 3, d8 = 9;
    zeliSub_8u_C1RSfs(&s1, 1, &s2, 1, &d8, 1, {1, 1}, 0);
    EXPECT_EQ(d8, 0);
    zeliSub_8u_C1RSfs(&s2, 1, &s1, 1, &d8, 1, {1, 1}, 0);
    EXPECT_EQ(d8, 7);
    Zel16s a = -32768, b = 32767, d16 = 0;
    zeliSub_16s_C1RSfs(&a, 2, &b, 2, &d16, 2, {1, 1}, 1);
    EXPECT_EQ(d16, 32767);
    Zel16s m = -32768;
    zeliMul_16s_C1RSfs(&m, 2, &m, 2, &d16, 2, {1, 1}, 30);
    EXPECT_EQ(d16, 1);
    zeliMul_16s_C1RSfs(&m, 2, &m, 2, &d16, 2, {1, 1}, 31);
    EXPECT_EQ(d16, 0);
    Zel16sc c = {-32768, -32768}, dc = {1, 1};
    zeliMul_16sc_C1RSfs(&c, 4, &c, 4, &dc, 4, {1, 1}, 0);
    EXPECT_EQ(dc.re, 0);
    EXPECT_EQ(dc.im, 32767);
    Zel16u z0 = 0, d16u = 5;
    EXPECT_EQ(zeliAddC_16u_C1RSfs(&z0, 2, 0, &d16u, 2, {1, 1}, -20), zelStatusOk);
    EXPECT_EQ(d16u, 0);
    auto div8 = [](Zel8u num, Zel8u den, int mode) {
        Zel8u d = 0;
        const ZelStatus st = mode < 0 ? zeliDiv_8u_C1RSfs(&den, 1, &num, 1, &d, 1, {1, 1}, 0)
                                      : zeliDiv_Round_8u_C1RSfs(&den, 1, &num, 1, &d, 1, {1, 1}, mode, 0);
        return int(d) + (st == zelStatusDivisionByZeroWarning ? 1000 : 0);
    };
    EXPECT_EQ(div8(7, 2, -1), 4);
    EXPECT_EQ(div8(5, 2, -1), 2);
    EXPECT_EQ(div8(5, 0, -1), 1255);
    EXPECT_EQ(div8(0, 0, -1), 1000);
    EXPECT_EQ(div8(7, 2, 0), 3);
    EXPECT_EQ(div8(7, 2, 1), 4);
    EXPECT_EQ(div8(7, 2, 2), 4);
    EXPECT_EQ(div8(5, 2, 0), 2);
    EXPECT_EQ(div8(5, 2, 1), 2);
    EXPECT_EQ(div8(5, 2, 2), 3);
    float num[3] = {1.0f, -1.0f, 0.0f}, den[3] = {-0.0f, 0.0f, 0.0f}, q[3];
    EXPECT_EQ(zeliDiv_32f_C1R(den, 12, num, 12, q, 12, {3, 1}), zelStatusDivisionByZeroWarning);
    EXPECT_EQ(q[0], INFINITY);
    EXPECT_EQ(q[1], -INFINITY);
    EXPECT_TRUE(std::isnan(q[2]));
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
    Zel8u before[8];
    std::memcpy(before, p, 8);
    p[0] = 9;
    std::memcpy(before, p, 8);
    EXPECT_EQ(zeliDivC_8u_C1RSfs(p, 1, 0, p + 4, 1, {4, 1}, 0), zelStatusDivisionByZero);
    EXPECT_EQ(zeliDivC_8u_C3RSfs(p, 3, z3, p + 3, 3, {1, 1}, 0), zelStatusDivisionByZero);
    EXPECT_EQ(std::memcmp(before, p, 8), 0);
    const Zel32fc zc = {0.0f, 0.0f};
    Zel32fc fc[2] = {};
    EXPECT_EQ(zeliDivC_32fc_C1R(fc, 8, zc, fc + 1, 8, {1, 1}), zelStatusDivisionByZero);
}

// A warning of one row does not stop the others; divisors in the alpha channel
// are not divisors.
TEST(Div, ZeroDivisorPlacement) {
    for (int w : {8, 16, 17, 33, 40}) {
        for (int at : {0, 5, w - 1}) {
            zt::Image<Zel8u> a(w, 3, 1), b(w, 3, 1), d(w, 3, 1);
            for (int y = 0; y < 3; ++y)
                for (int x = 0; x < w; ++x) a.at(x, y) = 3, b.at(x, y) = Zel8u(x + 1);
            a.at(at, 1) = 0;
            ASSERT_EQ(zeliDiv_8u_C1RSfs(a.ptr(), a.step(), b.ptr(), b.step(), d.ptr(), d.step(), a.size(), 0),
                      zelStatusDivisionByZeroWarning);
            EXPECT_EQ(d.at(at, 1), 255);
            EXPECT_EQ(d.at(w - 1, 2), Zel8u(std::nearbyint(w / 3.0)));
        }
    }
    zt::Image<Zel16s> a(5, 1, 4), b(5, 1, 4), d(5, 1, 4);
    for (int x = 0; x < 5; ++x)
        for (int c = 0; c < 4; ++c) a.at(x, 0, c) = c == 3 ? 0 : 2, b.at(x, 0, c) = 8;
    EXPECT_EQ(zeliDiv_16s_AC4RSfs(a.ptr(), a.step(), b.ptr(), b.step(), d.ptr(), d.step(), a.size(), 0), zelStatusOk);
}

// Single-precision quotients run in blocks of eight from the start of a run,
// then a block of four, then single samples; a block with a zero divisor and
// the single samples take true division, the other blocks the refined
// reciprocal. A row of 4096 samples or more is split into two halves at two
// threads, each half a run of its own.
namespace {

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
            for (int j = 0; j < w; ++j) d[i + j] = zero ? lane(y[i + j], x[i + j]) : Ref<float>::rdiv(y[i + j], x[i + j]);
            if (w == 4) { i += 4; break; }
        }
    }
    for (; i < n; ++i) d[i] = lane(y[i], x[i]);
}

} // namespace

TEST(Div, BlocksOfQuotients) {
    std::mt19937 rng(11);
    for (int threads : {1, 2}) {
        zelSetNumThreads(threads);
        for (int w : {1, 3, 4, 5, 7, 8, 9, 11, 12, 15, 16, 17, 31, 33, 100, 1365, 1366, 4095, 4096, 4097, 5003}) {
            for (int ch : {1, 3, 4}) {
                const int count = w * ch;
                zt::Image<float> a(w, 2, ch, 4, zt::Flush::Tail, 4), b(w, 2, ch), d(w, 2, ch), ib(w, 2, ch);
                for (int y = 0; y < 2; ++y)
                    for (int i = 0; i < count; ++i) {
                        // quotients with many non-exact results, zeros now and then
                        a.row(y)[i] = rng() % 13 == 0 ? 0.0f : float(int(rng() % 2001) - 1000) / 7.0f + 0.01f;
                        b.row(y)[i] = float(int(rng() % 20001) - 10000) / 3.0f;
                        ib.row(y)[i] = b.row(y)[i];
                    }
                ZelStatus st, sti;
                const ZeliSize r = {w, 2};
                if (ch == 1) {
                    st = zeliDiv_32f_C1R(a.ptr(), a.step(), b.ptr(), b.step(), d.ptr(), d.step(), r);
                    sti = zeliDiv_32f_C1IR(a.ptr(), a.step(), ib.ptr(), ib.step(), r);
                } else if (ch == 3) {
                    st = zeliDiv_32f_C3R(a.ptr(), a.step(), b.ptr(), b.step(), d.ptr(), d.step(), r);
                    sti = zeliDiv_32f_C3IR(a.ptr(), a.step(), ib.ptr(), ib.step(), r);
                } else {
                    st = zeliDiv_32f_C4R(a.ptr(), a.step(), b.ptr(), b.step(), d.ptr(), d.step(), r);
                    sti = zeliDiv_32f_C4IR(a.ptr(), a.step(), ib.ptr(), ib.step(), r);
                }
                bool zero = false;
                for (int y = 0; y < 2; ++y) {
                    std::vector<float> want(count);
                    const int half = threads > 1 && count >= 4096 ? count / 2 : count;
                    ref_div32f_run(a.row(y), b.row(y), want.data(), half);
                    ref_div32f_run(a.row(y) + half, b.row(y) + half, want.data() + half, count - half);
                    for (int i = 0; i < count; ++i) {
                        zero |= a.row(y)[i] == 0.0f;
                        ASSERT_TRUE(same_bits(d.row(y)[i], want[i]) && same_bits(ib.row(y)[i], want[i]))
                            << "threads " << threads << " w " << w << " ch " << ch << " at " << i << ": " << b.row(y)[i]
                            << " / " << a.row(y)[i] << " got " << d.row(y)[i] << " / " << ib.row(y)[i] << " want " << want[i];
                    }
                }
                const ZelStatus ws = zero ? zelStatusDivisionByZeroWarning : zelStatusOk;
                ASSERT_EQ(st, ws);
                ASSERT_EQ(sti, ws);
            }
        }
    }
    zelSetNumThreads(0);
}

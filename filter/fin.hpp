// How a filter turns a window's sum into a destination sample: the rules of
// the box means, the divisors and round modes of the kernel filters, and the
// plain float forms. The entries choose a Rule and fill a FinP; the vector
// forms are in fin_kernels.hpp (per level), the 64-bit integer forms here.
#pragma once

#include "core/frame.hpp"

#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>

namespace zel {
namespace filt {

enum class Rule {
    // Box means of a 32-bit unsigned sum S.
    MulShift,   // (S * mul + add) >> shift, unsigned 32-bit
    TruncF,     // truncate(float(S) * f)
    Bias16Near, // roundNearest(float(S) * f) - 32768, S biased by 32768 a sample
    Bias16Trunc,// truncate(float(S) * f) - 32768
    Near16Tail, // S signed: roundNearest(float(S) * f) below sample `body`, truncate(...) from there
    Near32s,    // S read as signed 32-bit: roundNearest(float(S) * f)
    Scale,      // float sums: S * f (f, or fd for double)
    ToFloat,    // float(S), S signed 32-bit (the sliding sums)
    // Kernel filters.
    Div,        // integer sum with a divisor without round mode
    Near,       // float sum: nearest, ties to even
    RoundI,     // integer sum with a divisor and a round mode
    RoundF,     // float sum with a round mode
    Same,       // float sum stored as it is
};

// Divisor classes: one, a positive power of two, anything else.
enum Dcls : int { kDivOne = 0, kDivPow2 = 1, kDivOther = 2 };

struct FinP {
    std::uint32_t mul = 0, add = 0; // MulShift
    int shift = 0;                  // MulShift
    float f = 1.0f;                 // scale of a float sum, or 1 / divisor
    double fd = 1.0;                // scale of a double sum
    int cls = kDivOne, k = 0, d = 1;// divisor: class, log2 of a power of two, value
    int mode = 1;                   // round mode: 0 towards zero, 1 ties to even, 2 ties away
    bool dquot = false;             // quotient y = double(s) / double(d) (else float(s) * f)
    int body = 0;                   // Near16Tail: samples of a row with the rounding rule
};

// The divisor's class by the test (d - 1) & (d | sign bit), zero for powers of two.
inline FinP divisor_of(int d) {
    FinP p;
    p.d = d;
    const std::uint32_t u = std::uint32_t(d);
    if (d == 1) p.cls = kDivOne;
    else if (((u - 1u) & (u | 0x80000000u)) == 0) {
        p.cls = kDivPow2;
        while ((1ull << p.k) < u) ++p.k;
    } else {
        p.cls = kDivOther;
        p.f = 1.0f / float(d);
    }
    return p;
}

// ---- Scalar rounding, independent of the processor's rounding mode ------------------------------
template <class F>
inline F round_even(F y) {
    const F t = std::trunc(y), r = y - t; // exact
    const F a = std::fabs(r);
    if (a > F(0.5) || (a == F(0.5) && std::fmod(t, F(2)) != 0)) return t + std::copysign(F(1), y);
    return t;
}
template <class F>
inline F round_away(F y) {
    const F t = std::trunc(y);
    return std::fabs(y - t) >= F(0.5) ? t + std::copysign(F(1), y) : t;
}
template <class F>
inline F round_by(F y, int mode) {
    return mode == 0 ? std::trunc(y) : mode == 1 ? round_even(y) : round_away(y);
}

template <class D>
inline D sat_ll(long long v) {
    constexpr long long lo = (long long)std::numeric_limits<D>::min(), hi = (long long)std::numeric_limits<D>::max();
    return D(v < lo ? lo : v > hi ? hi : v);
}
// A float or double result rounded by `mode` and saturated; NaN gives the minimum.
template <class D, class F>
inline D sat_round(F y, int mode) {
    const F lo = F(std::numeric_limits<D>::min()), hi = F(std::numeric_limits<D>::max());
    if (!(y > lo)) return std::numeric_limits<D>::min();
    if (y >= hi) return std::numeric_limits<D>::max();
    return D((long long)round_by(y, mode));
}

// s / 2^k rounded by mode (k >= 1), in 64 bits.
inline long long shift_round(long long s, int k, int mode) {
    const long long q = s >> k, r = s & ((1ll << k) - 1), half = 1ll << (k - 1);
    if (mode == 0) return s < 0 && r ? q + 1 : q;
    if (mode == 1) return q + ((r > half || (r == half && (q & 1))) ? 1 : 0);
    return s < 0 ? q + (r > half ? 1 : 0) : q + (r >= half ? 1 : 0);
}

// The 64-bit integer forms of Div and RoundI (sums that do not fit 32 bits).
template <class D>
inline D fin_i64(Rule r, const FinP& p, long long s) {
    const int mode = r == Rule::Div ? 1 : p.mode;
    if (p.cls == kDivOne) return sat_ll<D>(s);
    if (p.cls == kDivPow2) return sat_ll<D>(shift_round(s, p.k, mode));
    if (r == Rule::RoundI && mode == 0) return sat_ll<D>(s / p.d);
    if (p.dquot) return sat_round<D>(double(s) / double(p.d), mode);
    return sat_round<D>(float(s) * p.f, mode);
}

} // namespace filt
} // namespace zel

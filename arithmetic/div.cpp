// Divide: quotients by the processor's reciprocal estimate refined once,
// a zero divisor giving a fixed result and a warning, integer quotients in
// single precision, the constant forms by a prepared reciprocal.
#include "arithmetic/arith.hpp"

namespace zel {

// a / b as r = rcp(b), e = 1 - b r, q = a r, q + (q + e q) e.
inline __m128 refined_div(__m128 a, __m128 b) {
    const __m128 r = _mm_rcp_ps(b);
    const __m128 e = _mm_sub_ps(_mm_set1_ps(1.0f), _mm_mul_ps(b, r));
    const __m128 q = _mm_mul_ps(a, r);
    return _mm_add_ps(q, _mm_mul_ps(_mm_add_ps(q, _mm_mul_ps(e, q)), e));
}

// Float to integer by mode: -1 the current rounding mode, 0 towards zero,
// 1 to nearest with ties to even, 2 to nearest with ties away from zero.
template <int R>
inline __m128i to_int(__m128 q) {
    if constexpr (R < 0) return _mm_cvtps_epi32(q);
    if constexpr (R == 0) return _mm_cvttps_epi32(q);
    if constexpr (R == 1) return _mm_cvttps_epi32(_mm_round_ps(q, _MM_FROUND_TO_NEAREST_INT | _MM_FROUND_NO_EXC));
    const __m128 t = _mm_round_ps(q, _MM_FROUND_TO_ZERO | _MM_FROUND_NO_EXC);
    const __m128 sign = _mm_and_ps(q, _mm_set1_ps(-0.0f));
    const __m128 away = _mm_cmpge_ps(_mm_andnot_ps(_mm_set1_ps(-0.0f), _mm_sub_ps(q, t)), _mm_set1_ps(0.5f));
    return _mm_cvttps_epi32(_mm_add_ps(t, _mm_and_ps(away, _mm_or_ps(sign, _mm_set1_ps(1.0f)))));
}

// Where a scale factor puts an integer quotient: inside the float path, below
// it (every non-zero quotient saturates) or above it (every quotient is 0).
enum class Dc { In, Below, Above };

// Integer quotient of P. REV: x / y (constant and in-place-free forms), else
// y / x. CST: the divisor is a non-zero constant, whose float reciprocal
// multiplies the dividend. A vector block of divisors holding a zero takes true
// float division for its other lanes instead of the refined reciprocal.
template <class P, int R, Dc D, bool REV, bool CST>
struct IntDivOp {
    using V = __m128i;
    static constexpr bool kVec = true;
    __m128 f; // two to the minus n
    // exact: the block holds a zero divisor, so the others divide truly
    __m128i quad(__m128i num, __m128i den, int& z, bool exact) const {
        __m128i res;
        if constexpr (D == Dc::In) {
            __m128 q;
            if constexpr (CST) // the constant's reciprocal, prepared in float, scaled exactly
                q = _mm_mul_ps(_mm_cvtepi32_ps(num), _mm_mul_ps(f, _mm_div_ps(_mm_set1_ps(1.0f), _mm_cvtepi32_ps(den))));
            else if (exact)
                q = _mm_div_ps(_mm_mul_ps(_mm_cvtepi32_ps(num), f), _mm_cvtepi32_ps(den));
            else
                q = refined_div(_mm_mul_ps(_mm_cvtepi32_ps(num), f), _mm_cvtepi32_ps(den));
            q = _mm_min_ps(_mm_max_ps(q, _mm_set1_ps(float(std::numeric_limits<P>::min()))),
                           _mm_set1_ps(float(std::numeric_limits<P>::max())));
            res = to_int<R>(q);
        } else if constexpr (D == Dc::Below) {
            res = vbound<P>(_mm_sign_epi32(num, den));
        } else {
            res = _mm_setzero_si128();
        }
        if constexpr (!CST) {
            const __m128i zm = _mm_cmpeq_epi32(den, _mm_setzero_si128());
            if (_mm_movemask_epi8(zm)) {
                z = 1;
                res = _mm_blendv_epi8(res, vbound<P>(num), zm);
            }
        }
        return res;
    }
    P operator()(P x, P y, int& z) const {
        const __m128i vx = _mm_set1_epi32(x), vy = _mm_set1_epi32(y);
        return P(_mm_cvtsi128_si32(REV ? quad(vx, vy, z, false) : quad(vy, vx, z, false)));
    }
    V vec(V x, V y, int& z) const {
        __m128i qx[4], qy[4];
        const V den = REV ? y : x;
        const __m128i zeros = sizeof(P) == 1 ? _mm_cmpeq_epi8(den, _mm_setzero_si128()) : _mm_cmpeq_epi16(den, _mm_setzero_si128());
        const bool exact = !CST && _mm_movemask_epi8(zeros) != 0;
        Quads<P>::widen(x, qx);
        Quads<P>::widen(y, qy);
        for (int q = 0; q < Quads<P>::n; ++q) qx[q] = REV ? quad(qx[q], qy[q], z, exact) : quad(qy[q], qx[q], z, exact);
        return Quads<P>::narrow(qx);
    }
};

// One single-precision quotient by true division. A zero divisor (of either
// sign) gives +inf or -inf by the dividend's sign, NaN for a zero or NaN
// dividend, and counts in z.
inline float div_lane(float a, float b, int& z) {
    if (b == 0.0f) {
        z = 1;
        constexpr float inf = std::numeric_limits<float>::infinity();
        return a > 0.0f ? inf : a < 0.0f ? -inf : std::numeric_limits<float>::quiet_NaN();
    }
    return a / b;
}

// A block of W single-precision quotients d = y / x: the refined reciprocal
// when no divisor of the block is zero, else lane by lane by true division.
template <int W>
inline void div32f_block(const float* x, const float* y, float* d, int& z) {
    __m128 b[W / 4];
    int zero = 0;
    for (int k = 0; k < W / 4; ++k) {
        b[k] = _mm_loadu_ps(x + 4 * k);
        zero |= _mm_movemask_ps(_mm_cmpeq_ps(b[k], _mm_setzero_ps()));
    }
    if (!zero) {
        __m128 q[W / 4];
        for (int k = 0; k < W / 4; ++k) q[k] = refined_div(_mm_loadu_ps(y + 4 * k), b[k]);
        for (int k = 0; k < W / 4; ++k) _mm_storeu_ps(d + 4 * k, q[k]);
    } else {
        for (int j = 0; j < W; ++j) d[j] = div_lane(y[j], x[j], z);
    }
}

// Single-precision quotient of two images: blocks of eight from the start of
// the run, a block of four for a tail of four to seven, true division for the
// last up to three. Which samples take the refined reciprocal therefore
// depends only on their place in the run, not on alignment.
struct F32DivOp {
    using V = __m128;
    static constexpr bool kVec = false; // whole runs go through run()
    Zel32f operator()(Zel32f x, Zel32f y, int& z) const { return div_lane(y, x, z); }
    V vec(V x, V, int&) const { return x; }
    static int run(const float* x, const float* y, float* d, int n) {
        int z = 0, i = 0;
        for (; i + 8 <= n; i += 8) div32f_block<8>(x + i, y + i, d + i, z);
        if (n - i >= 4) {
            div32f_block<4>(x + i, y + i, d + i, z);
            i += 4;
        }
        for (; i < n; ++i) d[i] = div_lane(y[i], x[i], z);
        return z;
    }
};

// Single-precision quotient by a non-zero constant: the IEEE division.
struct F32DivCOp {
    using V = __m128;
    static constexpr bool kVec = true;
    V vec(V x, V y, int&) const { return _mm_div_ps(x, y); }
    Zel32f operator()(Zel32f x, Zel32f y, int&) const { return x / y; }
};

// Complex single quotient by the conjugate: (a + bi)(c - di) / (c^2 + d^2).
template <bool REV>
struct C32fDivOp {
    using V = __m128;
    static constexpr bool kVec = false;
    Zel32fc operator()(Zel32fc x, Zel32fc y, int& z) const {
        const Zel32fc num = REV ? x : y, den = REV ? y : x;
        if (den.re == 0.0f && den.im == 0.0f) z = 1;
        const float inv = 1.0f / (den.re * den.re + den.im * den.im);
        return Zel32fc{(num.re * den.re + num.im * den.im) * inv, (num.im * den.re - num.re * den.im) * inv};
    }
    V vec(V x, V, int&) const { return x; }
};

// Complex integer quotient in double, scaled, rounded to nearest and clamped
// per part; a zero divisor saturates each part by the dividend's sign.
template <class E, bool REV>
struct CIntDivOp {
    using P = typename Parts<E>::P;
    using V = __m128i;
    static constexpr bool kVec = false;
    int n;
    static P part(double v, int n) {
        v = std::nearbyint(std::ldexp(v, -n));
        const double lo = std::numeric_limits<P>::min(), hi = std::numeric_limits<P>::max();
        return P(v < lo ? lo : v > hi ? hi : v);
    }
    E operator()(E x, E y, int& z) const {
        const E num = REV ? x : y, den = REV ? y : x;
        if (den.re == 0 && den.im == 0) {
            z = 1;
            return E{scale<Sc::Bound, P>((long long)num.re, 0), scale<Sc::Bound, P>((long long)num.im, 0)};
        }
        const double c = den.re, d = den.im, d2 = c * c + d * d;
        return E{part((double(num.re) * c + double(num.im) * d) / d2, n), part((double(num.im) * c - double(num.re) * d) / d2, n)};
    }
    V vec(V x, V, int&) const { return x; }
};

// Rows of a quotient. `bands`: the rows are split into bands over the team.
// `splitFrom`: a row of at least that many samples is split in two halves.
// Returns non-zero when any divisor was zero.
template <class Op, class E, int SP, int AP, bool CONST>
int div_rows(const Op& op, const E* a, int as, const E* b, int bs, E* d, int ds, ZeliSize roi, int splitFrom, bool bands) {
    const int w = roi.width, h = roi.height, threads = thread_count();
    const unsigned mode = _mm_getcsr() & kRoundField; // workers round as the caller does
    auto run = [&](const E* x, const E* y, E* dst, int n) -> int {
        if constexpr (std::is_same<Op, F32DivOp>::value) return Op::run(x, y, dst, n);
        else return row_run<Op, E, SP, CONST>(op, x, y, dst, n);
    };
    auto one_row = [&](int r) -> int {
        const E* ra = row(a, as, r);
        const E* rb = CONST ? b : row(b, bs, r);
        E* rd = row(d, ds, r);
        if constexpr (AP < SP) {
            return row_alpha<Op, E, SP, AP, CONST>(op, ra, rb, rd, w);
        } else {
            const int count = w * SP;
            if (splitFrom > 0 && threads > 1 && count >= splitFrom && count >= threads)
                return bands_frame(count, threads < 2 ? threads : 2, [&](int first, int n, int) {
                    const RoundingScope rs(mode);
                    return run(ra + first, CONST ? rb + first % SP : rb + first, rd + first, n);
                });
            return run(ra, rb, rd, count);
        }
    };
    if (bands && threads > 1 && w >= 128 && h >= 128)
        return bands_frame(h, threads, [&](int first, int n, int) {
            const RoundingScope rs(mode);
            int z = 0;
            for (int r = first; r < first + n; ++r) z |= one_row(r);
            return z;
        });
    int z = 0;
    for (int r = 0; r < h; ++r) z |= one_row(r);
    return z;
}

template <class Op, class E, int SP, int AP, bool CONST>
ZelStatus div_apply(const Op& op, const E* a, int as, const E* b, int bs, E* d, int ds, ZeliSize roi, int splitFrom,
                    bool bands) {
    int z;
    if constexpr (CONST && AP == SP) {
        const Pattern<E> pat(b, SP);
        z = div_rows<Op, E, SP, AP, CONST>(op, a, as, pat.v, bs, d, ds, roi, splitFrom, bands);
    } else {
        z = div_rows<Op, E, SP, AP, CONST>(op, a, as, b, bs, d, ds, roi, splitFrom, bands);
    }
    return z ? zelStatusDivisionByZeroWarning : zelStatusOk;
}

// Float path range of the scale factor per integer type.
template <class P> constexpr int kDivLow = same<P, Zel8u> ? -15 : same<P, Zel16s> ? -30 : -31;
template <class P> constexpr int kDivHigh = same<P, Zel8u> ? 8 : same<P, Zel16s> ? 15 : 16;

inline float pow2_neg(int n) {
    // exact for the scale factors of the float path; others never use it
    const unsigned bits = 0x3f800000u - (unsigned(n) << 23);
    float f;
    std::memcpy(&f, &bits, sizeof f);
    return f;
}

template <Op O, class E, Layout L, bool CONST, bool IP>
ZelStatus div_entry(const E* a, int as, const E* b, int bs, E* d, int ds, ZeliSize roi, int n, int mode) {
    using T = Parts<E>;
    using P = typename T::P;
    constexpr bool REV = O == Op::DivR;
    constexpr int SP = channels(L), AP = active(L);
    if (any_null(a, b, d)) return zelStatusNullPointer;
    if (bad_size(roi)) return zelStatusBadSize;
    if (CONST ? any_bad_step(as, ds) : any_bad_step(as, bs, ds)) return zelStatusBadStep;
    if (mode != kNoRound && (mode < 0 || mode > 2)) return zelStatusBadRoundMode;
    if constexpr (CONST) {
        for (int i = 0; i < AP; ++i) {
            if constexpr (T::complex) {
                if (b[i].re == 0 && b[i].im == 0) return zelStatusDivisionByZero;
            } else if (b[i] == 0) {
                return zelStatusDivisionByZero;
            }
        }
    }
    if constexpr (same<E, Zel32f>) {
        if constexpr (CONST) return div_apply<F32DivCOp, E, SP, AP, true>(F32DivCOp{}, a, as, b, bs, d, ds, roi, 0, false);
        else return div_apply<F32DivOp, E, SP, AP, false>(F32DivOp{}, a, as, b, bs, d, ds, roi, 4096, false);
    } else if constexpr (same<E, Zel32fc>) {
        return div_apply<C32fDivOp<REV>, E, SP, AP, CONST>(C32fDivOp<REV>{}, a, as, b, bs, d, ds, roi, 0, false);
    } else if constexpr (T::complex) {
        return div_apply<CIntDivOp<E, REV>, E, SP, AP, CONST>(CIntDivOp<E, REV>{n}, a, as, b, bs, d, ds, roi, 0, false);
    } else {
        const int split = same<P, Zel16u> ? 0 : CONST ? 4096 : 1024;
        const bool bands = mode != kNoRound && !same<P, Zel16s>;
        auto go = [&](auto rtag, auto dtag) -> ZelStatus {
            constexpr int R = decltype(rtag)::value;
            constexpr Dc D = decltype(dtag)::value;
            if constexpr (CONST) {
                using Op_ = IntDivOp<P, R, D, true, true>;
                return div_apply<Op_, E, SP, AP, true>(Op_{_mm_set1_ps(pow2_neg(n))}, a, as, b, bs, d, ds, roi, split, bands);
            } else {
                using Op_ = IntDivOp<P, R, D, false, false>;
                return div_apply<Op_, E, SP, AP, false>(Op_{_mm_set1_ps(pow2_neg(n))}, a, as, b, bs, d, ds, roi, split, bands);
            }
        };
        auto by_range = [&](auto rtag) {
            if (n < kDivLow<P>) return go(rtag, std::integral_constant<Dc, Dc::Below>{});
            if (n > kDivHigh<P>) return go(rtag, std::integral_constant<Dc, Dc::Above>{});
            return go(rtag, std::integral_constant<Dc, Dc::In>{});
        };
        switch (mode) {
        case 0: return by_range(std::integral_constant<int, 0>{});
        case 1: return by_range(std::integral_constant<int, 1>{});
        case 2: return by_range(std::integral_constant<int, 2>{});
        default: return by_range(std::integral_constant<int, -1>{});
        }
    }
}

} // namespace zel

#define ZEL_LIST "zelip8/fn_div.h"
#include "core/define_list.hpp"

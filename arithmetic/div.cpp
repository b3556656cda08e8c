// Divide: quotients by the processor's reciprocal estimate refined once,
// a zero divisor giving a fixed result and a warning, integer quotients in
// single precision, the constant forms by a prepared reciprocal. The vector
// runs are in div_kernels.hpp; the alpha and complex forms work sample by
// sample here.
#define ZEL_KERNELS_2 "arithmetic/div_kernels.hpp"
#include "arithmetic/arith.hpp"

namespace zel {
namespace {

// Scalar forms of the quotient rules for the alpha rows (one sample is one
// block of its own) and the complex forms.

// a / b by the refined reciprocal of b.
inline float refined_div1(float a, float b) {
    const float r = _mm_cvtss_f32(_mm_rcp_ss(_mm_set_ss(b)));
    const float e = 1.0f - b * r, q = a * r;
    return q + (q + e * q) * e;
}

// Float to integer by mode, as the vector kernels do it: -1 the current
// rounding mode, 0 towards zero, 1 ties to even, 2 ties away from zero.
template <int R>
inline int to_int1(float q) {
    if constexpr (R < 0) return _mm_cvtss_si32(_mm_set_ss(q));
    if constexpr (R == 0) return int(q);
    if constexpr (R == 1) return int(_mm_cvtss_f32(_mm_round_ss(_mm_setzero_ps(), _mm_set_ss(q), _MM_FROUND_TO_NEAREST_INT | _MM_FROUND_NO_EXC)));
    const float t = std::trunc(q);
    return int(std::fabs(q - t) >= 0.5f ? t + std::copysign(1.0f, q) : t);
}

template <class P>
inline P bound1(long long s) {
    return s > 0 ? std::numeric_limits<P>::max() : s < 0 ? std::numeric_limits<P>::min() : P(0);
}

// Integer quotient of one sample: x / y with REV, else y / x.
template <class P, int R, Dc D, bool REV, bool CST>
struct IntDivOp {
    float f; // two to the minus n
    P operator()(P x, P y, int& z) const {
        const int num = REV ? x : y, den = REV ? y : x;
        if (!CST && den == 0) {
            z = 1;
            return bound1<P>(num);
        }
        if constexpr (D == Dc::Below) return bound1<P>(den < 0 ? -(long long)num : (long long)num);
        if constexpr (D == Dc::Above) return P(0);
        float q = CST ? float(num) * (f * (1.0f / float(den))) : refined_div1(float(num) * f, float(den));
        q = std::min(std::max(q, float(std::numeric_limits<P>::min())), float(std::numeric_limits<P>::max()));
        return P(to_int1<R>(q));
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

// Single-precision quotient, true division (the alpha rows).
template <bool REV>
struct F32DivOp {
    Zel32f operator()(Zel32f x, Zel32f y, int& z) const { return REV ? div_lane(x, y, z) : div_lane(y, x, z); }
};

// Complex single quotient by the conjugate: (a + bi)(c - di) / (c^2 + d^2).
template <bool REV>
struct C32fDivOp {
    Zel32fc operator()(Zel32fc x, Zel32fc y, int& z) const {
        const Zel32fc num = REV ? x : y, den = REV ? y : x;
        if (den.re == 0.0f && den.im == 0.0f) z = 1;
        const float inv = 1.0f / (den.re * den.re + den.im * den.im);
        return Zel32fc{(num.re * den.re + num.im * den.im) * inv, (num.im * den.re - num.re * den.im) * inv};
    }
};

// Complex integer quotient in double, scaled, rounded to nearest and clamped
// per part; a zero divisor saturates each part by the dividend's sign.
template <class E, bool REV>
struct CIntDivOp {
    using P = typename Parts<E>::P;
    int n;
    static P part(double v, int n) {
        // beyond +-400 every non-zero quotient saturates or becomes 0 already
        v = std::nearbyint(std::ldexp(v, n < -400 ? 400 : n > 400 ? -400 : -n));
        const double lo = std::numeric_limits<P>::min(), hi = std::numeric_limits<P>::max();
        return P(v < lo ? lo : v > hi ? hi : v);
    }
    E operator()(E x, E y, int& z) const {
        const E num = REV ? x : y, den = REV ? y : x;
        if (den.re == 0 && den.im == 0) {
            z = 1;
            return E{bound1<P>(num.re), bound1<P>(num.im)};
        }
        const double c = den.re, d = den.im, d2 = c * c + d * d;
        return E{part((double(num.re) * c + double(num.im) * d) / d2, n), part((double(num.im) * c - double(num.re) * d) / d2, n)};
    }
};

// Rows of a quotient through run(a, b, d, first, count), which returns
// non-zero when a divisor was zero (b is the row of the second image, or the
// constant pattern). `bands`: the rows are split into bands over the team.
// `splitFrom`: a row of at least that many samples is split in two halves,
// each a run of its own. Returns non-zero when any divisor was zero.
template <class E, bool CONST, class Run>
int div_rows(const E* a, int as, const E* b, int bs, E* d, int ds, ZeliSize roi, int count, int splitFrom, bool bands,
             Run&& run) {
    const int h = roi.height, threads = thread_count();
    auto one_row = [&](int r) -> int {
        const E* ra = row(a, as, r);
        const E* rb = CONST ? b : row(b, bs, r);
        E* rd = row(d, ds, r);
        if (splitFrom > 0 && threads > 1 && count >= splitFrom && count >= threads)
            return bands_frame(count, threads < 2 ? threads : 2,
                               [&](int first, int n, int) { return run(ra, rb, rd, first, n); });
        return run(ra, rb, rd, 0, count);
    };
    if (bands && threads > 1 && roi.width >= 128 && h >= 128)
        return bands_frame(h, threads, [&](int first, int n, int) {
            int z = 0;
            for (int r = first; r < first + n; ++r) z |= one_row(r);
            return z;
        });
    int z = 0;
    for (int r = 0; r < h; ++r) z |= one_row(r);
    return z;
}

// The alpha and complex forms: a scalar operation, sample by sample.
template <class Op, class E, int SP, int AP, bool CONST>
int div_scalar(const Op& op, const E* a, int as, const E* b, int bs, E* d, int ds, ZeliSize roi) {
    if constexpr (CONST && AP == SP) {
        const Pattern<E> pat(b, SP);
        return div_rows<E, true>(a, as, pat.v, bs, d, ds, roi, roi.width * SP, 0, false,
                                 [&](const E* x, const E* y, E* o, int first, int n) {
                                     return row_scalar<Op, E, SP, true>(op, x + first, y + first % SP, o + first, n);
                                 });
    } else {
        return div_rows<E, CONST>(a, as, b, bs, d, ds, roi, roi.width, 0, false,
                                  [&](const E* x, const E* y, E* o, int, int n) {
                                      return row_any<Op, E, SP, AP, CONST>(op, x, y, o, n);
                                  });
    }
}

inline ZelStatus div_status(int z) { return z ? zelStatusDivisionByZeroWarning : zelStatusOk; }

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

// Integer quotients of 8- and 16-bit images with round mode R and range D.
template <class P, int R, Dc D, Layout L, bool CONST, bool REV>
ZelStatus div_int(const P* a, int as, const P* b, int bs, P* d, int ds, ZeliSize roi, float f, bool bands) {
    constexpr int SP = channels(L), AP = active(L);
    const int split = same<P, Zel16u> ? 0 : CONST ? 4096 : 1024;
    if constexpr (AP < SP) {
        return div_status(div_scalar<IntDivOp<P, R, D, REV, CONST>, P, SP, AP, CONST>(IntDivOp<P, R, D, REV, CONST>{f}, a,
                                                                                   as, b, bs, d, ds, roi));
    } else if constexpr (CONST) {
        const Pattern<P> pat(b, SP);
        const auto k = ZEL_PICK(div_int_const_row<P, R, D, SP>);
        return div_status(div_rows<P, true>(a, as, pat.v, bs, d, ds, roi, roi.width * SP, split, bands,
                                            [&](const P* x, const P* y, P* o, int first, int n) {
                                                k(x + first, y + first % SP, o + first, n, f);
                                                return 0;
                                            }));
    } else {
        const auto k = ZEL_PICK(div_int_run<P, R, D, REV>);
        return div_status(div_rows<P, false>(a, as, b, bs, d, ds, roi, roi.width * SP, split, bands,
                                             [&](const P* x, const P* y, P* o, int first, int n) {
                                                 return k(x + first, y + first, o + first, n, f);
                                             }));
    }
}

} // namespace

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
        if constexpr (AP < SP) {
            return div_status(div_scalar<F32DivOp<REV>, E, SP, AP, CONST>(F32DivOp<REV>{}, a, as, b, bs, d, ds, roi));
        } else if constexpr (CONST) {
            const Pattern<E> pat(b, SP);
            const auto k = ZEL_PICK(div32f_const_row<SP>);
            div_rows<E, true>(a, as, pat.v, bs, d, ds, roi, roi.width * SP, 0, false,
                              [&](const E* x, const E* y, E* o, int first, int cnt) {
                                  k(x + first, y + first % SP, o + first, cnt);
                                  return 0;
                              });
            return zelStatusOk;
        } else {
            const auto k = ZEL_PICK(div32f_run);
            return div_status(div_rows<E, false>(a, as, b, bs, d, ds, roi, roi.width * SP, 4096, false,
                                                 [&](const E* x, const E* y, E* o, int first, int cnt) {
                                                     return k(x + first, y + first, o + first, cnt);
                                                 }));
        }
    } else if constexpr (same<E, Zel32fc>) {
        return div_status(div_scalar<C32fDivOp<REV>, E, SP, AP, CONST>(C32fDivOp<REV>{}, a, as, b, bs, d, ds, roi));
    } else if constexpr (T::complex) {
        return div_status(div_scalar<CIntDivOp<E, REV>, E, SP, AP, CONST>(CIntDivOp<E, REV>{n}, a, as, b, bs, d, ds, roi));
    } else {
        const bool bands = mode != kNoRound && !same<P, Zel16s>;
        const float f = pow2_neg(n);
        auto by_range = [&](auto rtag) {
            constexpr int R = decltype(rtag)::value;
            if (n < kDivLow<P>) return div_int<P, R, Dc::Below, L, CONST, REV>(a, as, b, bs, d, ds, roi, f, bands);
            if (n > kDivHigh<P>) return div_int<P, R, Dc::Above, L, CONST, REV>(a, as, b, bs, d, ds, roi, f, bands);
            return div_int<P, R, Dc::In, L, CONST, REV>(a, as, b, bs, d, ds, roi, f, bands);
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

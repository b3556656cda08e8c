// Pixelwise arithmetic of two images or an image and a constant: the scale
// factor rule in scalar form, the entry templates that check arguments, pick
// the scale case, decide on threads and walk the rows, and the rows that stay
// scalar (alpha forms, complex products, 32-bit parts). The vector rows are in
// arith_kernels.hpp (and div_kernels.hpp), compiled once per level.
#pragma once

#include "core/frame.hpp"

#include <cmath>
#include <cstring>
#include <limits>
#include <type_traits>

namespace zel {

// Operations. Sub is b - a (the first operand is what is taken away), SubR is
// a - b (a constant taken from the image). Div is b / a, DivR is a / b.
enum class Op { Add, Sub, SubR, Mul, MulScale, Div, DivR };

// Cases of the scale factor n: each has a kernel of its own.
enum class Sc { Plain, One, Pos, Neg, Bound, Zero };

// A complex sample is worked part by part where the operation allows.
template <class E> struct Parts { using P = E; static constexpr int k = 1; static constexpr bool complex = false; };
template <> struct Parts<Zel16sc> { using P = Zel16s; static constexpr int k = 2; static constexpr bool complex = true; };
template <> struct Parts<Zel32sc> { using P = Zel32s; static constexpr int k = 2; static constexpr bool complex = true; };
template <> struct Parts<Zel32fc> { using P = Zel32f; static constexpr int k = 2; static constexpr bool complex = true; };

template <class P> constexpr bool is_f = std::is_floating_point<P>::value;
template <class A, class B> constexpr bool same = std::is_same<A, B>::value;

// ---- The scale factor rule -------------------------------------------------
// Limits per operation and type: the destination is zero when n is above
// `upper`; every non-zero result saturates when n is at or below `bound`.
struct Limits { int upper, bound; };
template <Op O, class E>
constexpr Limits limits() {
    constexpr bool mul = O == Op::Mul, sub = O == Op::Sub || O == Op::SubR;
    if (same<E, Zel8u>) return mul ? Limits{16, -8} : sub ? Limits{8, -8} : Limits{9, -8};
    if (same<E, Zel16u>) return mul ? Limits{32, -16} : sub ? Limits{16, -16} : Limits{17, -16};
    if (same<E, Zel16s>) return mul ? Limits{30, -15} : Limits{16, -16};
    if (same<E, Zel16sc>) return mul ? Limits{31, -16} : Limits{16, -16};
    return mul ? Limits{63, -32} : Limits{32, -31}; // Zel32sc
}

template <Op O, class E>
inline Sc scale_case(int n) {
    constexpr Limits l = limits<O, E>();
    if (n > l.upper) return Sc::Zero;
    if (n <= l.bound) return Sc::Bound;
    return n == 0 ? Sc::Plain : n == 1 ? Sc::One : n > 1 ? Sc::Pos : Sc::Neg;
}

// Wide integer holding an exact sum, difference or product of two parts.
template <Op O, class P>
using wide_t = std::conditional_t<(sizeof(P) == 4) || (O == Op::Mul && same<P, Zel16u>), long long, int>;

template <class P, class W>
inline W clampw(W s) {
    constexpr W lo = W(std::numeric_limits<P>::min()), hi = W(std::numeric_limits<P>::max());
    return s < lo ? lo : s > hi ? hi : s;
}

// s times two to the minus n, ties to the even quotient, saturated to P.
template <Sc C, class P, class W>
inline P scale(W s, int n) {
    if constexpr (C == Sc::One) s = (s + ((s >> 1) & 1)) >> 1;
    if constexpr (C == Sc::Pos) s = (s + (W(1) << (n - 1)) - 1 + ((s >> n) & 1)) >> n;
    if constexpr (C == Sc::Neg) s = clampw<P>(s) * (W(1) << -n); // clamping first changes nothing
    if constexpr (C == Sc::Bound) s = s > 0 ? W(std::numeric_limits<P>::max()) : s < 0 ? W(std::numeric_limits<P>::min()) : 0;
    if constexpr (C == Sc::Zero) s = 0;
    return P(clampw<P>(s));
}

// Exact sum, difference or product; an unsigned difference clamps at 0 first.
template <Op O, class W, class P>
inline W raw(P x, P y) {
    constexpr bool u = !std::is_signed<P>::value;
    if constexpr (O == Op::Add) return W(x) + W(y);
    if constexpr (O == Op::Sub) return u && y < x ? W(0) : W(y) - W(x);
    if constexpr (O == Op::SubR) return u && x < y ? W(0) : W(x) - W(y);
    if constexpr (O == Op::Mul) return W(x) * W(y);
    return 0;
}

// Where a scale factor puts an integer quotient: inside the float path, below
// it (every non-zero quotient saturates) or above it (every quotient is 0).
enum class Dc { In, Below, Above };

} // namespace zel

#define ZEL_KERNELS "arithmetic/arith_kernels.hpp"
#include "core/simd/levels.hpp"

namespace zel {

// ---- Scalar operation objects ------------------------------------------------
// operator()(x, y, z) is the scalar form of an operation, for the rows that
// have no vector kernel; z is raised for a zero divisor.

// Integer add, subtract, multiply with the scale rule of case C.
template <Op O, class P, Sc C>
struct IntOp {
    using W = wide_t<O, P>;
    int n;
    P operator()(P x, P y, int&) const { return scale<C, P>(raw<O, W>(x, y), n); }
};

// IEEE single add, subtract, multiply in the current rounding mode.
template <Op O>
struct FloatOp {
    Zel32f operator()(Zel32f x, Zel32f y, int&) const {
        if constexpr (O == Op::Add) return x + y;
        if constexpr (O == Op::Sub) return y - x;
        if constexpr (O == Op::SubR) return x - y;
        return x * y;
    }
};

// Product of two fractions of full scale: (p + 1 + (p >> bits)) >> bits.
template <class P>
struct MulScaleOp {
    static constexpr unsigned bits = sizeof(P) * 8;
    P operator()(P x, P y, int&) const {
        const unsigned p = unsigned(x) * unsigned(y);
        return P((p + 1u + (p >> bits)) >> bits);
    }
};

// The scale rule on the exact sum a + b of two 64-bit values, which itself may
// need 65 bits: the floor quotients and the remainders of the two terms are
// added separately, so no wider type is needed (32-bit targets have none).
template <Sc C, class P>
inline P scale_sum(long long a, long long b, int n) {
    if constexpr (C == Sc::One || C == Sc::Pos) {
        const int k = C == Sc::One ? 1 : n;
        const unsigned long long m = (1ull << k) - 1, half = 1ull << (k - 1);
        long long q = (a >> k) + (b >> k);
        unsigned long long r = (static_cast<unsigned long long>(a) & m) + (static_cast<unsigned long long>(b) & m);
        q += static_cast<long long>(r >> k);
        r &= m;
        if (r > half || (r == half && (q & 1))) ++q;
        return P(clampw<P>(q));
    } else {
        long long s; // saturating: only its sign and whether it exceeds P matter
        if (__builtin_add_overflow(a, b, &s)) s = a > 0 ? std::numeric_limits<long long>::max() : std::numeric_limits<long long>::min();
        return scale<C, P>(s, n);
    }
}

// Complex integer product with the scale rule on each part, exact: each part
// is the sum of two products that fit 64 bits.
template <class E, Sc C>
struct CplxMulOp {
    using P = typename Parts<E>::P;
    int n;
    E operator()(E x, E y, int&) const {
        using W = long long;
        return E{scale_sum<C, P>(W(x.re) * y.re, -(W(x.im) * y.im), n),
                 scale_sum<C, P>(W(x.re) * y.im, W(x.im) * y.re, n)};
    }
};

// Complex single product, no special case for infinities or NaN.
struct CplxMulFOp {
    Zel32fc operator()(Zel32fc x, Zel32fc y, int&) const {
        return Zel32fc{x.re * y.re - x.im * y.im, x.re * y.im + x.im * y.re};
    }
};

// ---- Rows ------------------------------------------------------------------------
// A constant is passed to the rows as a pattern: pattern[j] = value[j % PER],
// long enough for any phase plus the widest vector of the smallest sample.
constexpr int kPattern = 256;
template <class E>
struct Pattern {
    alignas(64) E v[kPattern];
    Pattern(const E* values, int per) {
        for (int j = 0; j < kPattern; ++j) v[j] = values[j % per];
    }
};

// Whether (O, P, C) has a vector kernel: the float operations, the products
// of fractions, and the 8- and 16-bit integer operations whose exact
// intermediate fits 32 bits.
template <Op O, class P>
constexpr bool has_kernel() {
    if constexpr (O == Op::MulScale || is_f<P>) return true;
    else return sizeof(P) <= 2 && same<wide_t<O, P>, int>;
}

// One row of `count` elements through a scalar operation. With CONST, b is a
// pattern of period PER.
template <class Op, class E, int PER, bool CONST>
inline int row_scalar(const Op& op, const E* a, const E* b, E* d, int count) {
    int z = 0;
    for (int i = 0; i < count; ++i) d[i] = op(a[i], CONST ? b[i % PER] : b[i], z);
    return z;
}

// Alpha forms: SP elements a pixel, the first AP of them worked, the rest of
// the destination pixel neither read nor written.
template <class Op, class E, int SP, int AP, bool CONST>
inline int row_alpha(const Op& op, const E* a, const E* b, E* d, int width) {
    int z = 0;
    for (int x = 0; x < width; ++x, a += SP, d += SP) {
        for (int c = 0; c < AP; ++c) d[c] = op(a[c], CONST ? b[c] : b[c], z);
        if constexpr (!CONST) b += SP;
    }
    return z;
}

template <class Op, class E, int SP, int AP, bool CONST>
inline int row_any(const Op& op, const E* a, const E* b, E* d, int width) {
    if constexpr (AP < SP) return row_alpha<Op, E, SP, AP, CONST>(op, a, b, d, width);
    else return row_scalar<Op, E, SP, CONST>(op, a, b, d, width * SP);
}

// Fills the worked elements of each pixel with vals[0..AP).
template <class E, int SP, int AP>
inline void fill_rows(E* d, int ds, int w, int h, const E* vals) {
    for (int r = 0; r < h; ++r) {
        E* p = row(d, ds, r);
        for (int x = 0; x < w; ++x, p += SP)
            for (int c = 0; c < AP; ++c) p[c] = vals[c];
    }
}

// Copies the worked elements of each pixel.
template <class E, int SP, int AP>
inline void copy_rows(const E* s, int ss, E* d, int ds, int w, int h) {
    if (s == d && ss == ds) return;
    for (int r = 0; r < h; ++r) {
        const E* q = row(s, ss, r);
        E* p = row(d, ds, r);
        if constexpr (AP == SP) {
            std::memcpy(p, q, std::size_t(w) * SP * sizeof(E));
        } else {
            for (int x = 0; x < w; ++x, p += SP, q += SP)
                for (int c = 0; c < AP; ++c) p[c] = q[c];
        }
    }
}

// Rows of an image through one operation, in the rows frame.
template <class Op, class E, int SP, int AP, bool CONST>
inline void run_rows(const Op& op, const E* a, int as, const E* b, int bs, E* d, int ds, int w, int h, bool fork) {
    rows_frame(h, fork, [&](int r0, int r1) {
        for (int r = r0; r < r1; ++r)
            row_any<Op, E, SP, AP, CONST>(op, row(a, as, r), CONST ? b : row(b, bs, r), row(d, ds, r), w);
    });
}

// ---- Thread gates -----------------------------------------------------------------
// -1: the calling thread only; 0: always a team; g > 0: a team when width plus
// height is at least g. Folded C3 and C4 calls arrive here as C1.
template <Op O, class E, Layout L, bool CONST, bool IP>
inline int gate(Sc c) {
    constexpr bool u8 = same<E, Zel8u>, s16 = same<E, Zel16s>, f32 = same<E, Zel32f>;
    const bool one = c == Sc::One, pos = c == Sc::Pos, plain = c == Sc::Plain;
    if (!(u8 || s16 || f32)) return -1;
    if constexpr (!CONST) {
        if (L != C1) return -1;
        if constexpr (O == Op::Add || O == Op::Sub) {
            if (f32) return IP ? 0 : 256;
            if (u8) return IP && pos ? 256 : 0;
            if (!IP) return plain || one || pos ? 256 : 0;
            if (O == Op::Add) return 0;
            return one ? 256 : pos ? 128 : 0;
        }
        if constexpr (O == Op::Mul) {
            if (f32) return 0;
            if (u8) return IP ? (one || pos ? 256 : 0) : (pos ? 256 : one ? 128 : 0);
            return IP ? (one ? 256 : 0) : (one || pos ? 128 : 0);
        }
        return -1;
    } else {
        if (L == AC4) return f32 && IP ? 0 : -1;
        if (L == C4) return -1;
        if (L == C3) return 0;
        if constexpr (O == Op::Add || O == Op::SubR) {
            if (f32) return IP ? 0 : 256;
            if (u8) return IP && (one || pos) ? 256 : 0;
            if (!IP) return plain || one || pos ? 256 : 0;
            if (O == Op::Add) return one || pos ? 256 : 0;
            return one ? 256 : 0;
        }
        if constexpr (O == Op::Mul) {
            if (f32) return 0;
            if (u8) return IP && pos ? 128 : 0;
            return IP && (one || pos) ? 256 : 0;
        }
        return -1;
    }
}

inline bool fork_by(int g, ZeliSize roi) { return g == 0 || (g > 0 && roi.width + roi.height >= g); }

// ---- Entry: add, subtract, multiply ------------------------------------------------
// Calls go(std::integral_constant<Sc, c>) for a scale case other than Zero,
// so that each case compiles its own rows.
template <class F>
inline void with_case(Sc c, F&& go) {
    switch (c) {
    case Sc::Plain: go(std::integral_constant<Sc, Sc::Plain>{}); break;
    case Sc::One: go(std::integral_constant<Sc, Sc::One>{}); break;
    case Sc::Pos: go(std::integral_constant<Sc, Sc::Pos>{}); break;
    case Sc::Neg: go(std::integral_constant<Sc, Sc::Neg>{}); break;
    default: go(std::integral_constant<Sc, Sc::Bound>{}); break;
    }
}

// Runs scalar operation Op over the image with the element type E and pixel shape.
template <class Op, class E, int SP, int AP, bool CONST>
inline void apply(const Op& op, const E* a, int as, const E* b, int bs, E* d, int ds, ZeliSize roi, bool fork) {
    if constexpr (CONST && AP == SP) {
        const Pattern<E> pat(b, SP);
        run_rows<Op, E, SP, AP, true>(op, a, as, pat.v, bs, d, ds, roi.width, roi.height, fork);
    } else {
        run_rows<Op, E, SP, AP, CONST>(op, a, as, b, bs, d, ds, roi.width, roi.height, fork);
    }
}

// Runs (O, P, C) over the image: the level's vector kernel for whole-pixel
// rows where one exists, the scalar operation otherwise.
template <Op O, class P, Sc C, int SP, int AP, bool CONST, class Scalar>
inline void apply_op(const Scalar& op, const P* a, int as, const P* b, int bs, P* d, int ds, ZeliSize roi, int n,
                     bool fork) {
    if constexpr (AP == SP && has_kernel<O, P>()) {
        const auto k = ZEL_PICK(arith_row<O, P, C, SP, CONST>);
        auto rows = [&](const P* pb) {
            rows_frame(roi.height, fork, [&](int r0, int r1) {
                for (int r = r0; r < r1; ++r)
                    k(row(a, as, r), CONST ? pb : row(pb, bs, r), row(d, ds, r), roi.width * SP, n);
            });
        };
        if constexpr (CONST) {
            const Pattern<P> pat(b, SP);
            rows(pat.v);
        } else {
            rows(b);
        }
    } else {
        apply<Scalar, P, SP, AP, CONST>(op, a, as, b, bs, d, ds, roi, fork);
    }
}

template <Op O, class E, Layout L, bool CONST, bool IP>
ZelStatus sfs_entry(const E* a, int as, const E* b, int bs, E* d, int ds, ZeliSize roi, int n) {
    using T = Parts<E>;
    using P = typename T::P;
    // C3 and C4 forms look at the width first: they fold the channels into it.
    if constexpr ((L == C3 || L == C4) && !(T::complex && CONST))
        if (roi.width < 1) return zelStatusBadSize;
    if (any_null(a, b, d)) return zelStatusNullPointer;
    if (bad_size(roi)) return zelStatusBadSize;
    if constexpr (T::complex)
        if (CONST ? any_bad_step(as, ds) : any_bad_step(as, bs, ds)) return zelStatusBadStep;

    constexpr bool partwise = O != Op::Mul || !T::complex;
    constexpr int k = partwise ? T::k : 1;
    constexpr int SP = channels(L) * k, AP = active(L) * k;
    // Binary C3 and C4 forms are the C1 form on a row of width times channels.
    constexpr Layout GL = (!CONST && (L == C3 || L == C4)) ? C1 : L;

    if constexpr (is_f<P>) {
        const bool fork = fork_by(gate<O, E, GL, CONST, IP>(Sc::Plain), roi);
        if constexpr (partwise)
            apply_op<O, P, Sc::Plain, SP, AP, CONST>(FloatOp<O>{}, reinterpret_cast<const P*>(a), as,
                                                     reinterpret_cast<const P*>(b), bs, reinterpret_cast<P*>(d), ds, roi,
                                                     0, fork);
        else
            apply<CplxMulFOp, E, SP, AP, CONST>(CplxMulFOp{}, a, as, b, bs, d, ds, roi, fork);
        return zelStatusOk;
    } else {
        using EW = std::conditional_t<partwise, P, E>;
        const EW* wa = reinterpret_cast<const EW*>(a);
        const EW* wb = reinterpret_cast<const EW*>(b);
        EW* wd = reinterpret_cast<EW*>(d);
        const Sc c = scale_case<O, E>(n);
        if (c == Sc::Zero) {
            const EW zero[8] = {};
            fill_rows<EW, SP, AP>(wd, ds, roi.width, roi.height, zero);
            return zelStatusOk;
        }
        if constexpr (CONST && !T::complex) {
            // Constant shortcuts: a copy or a fill gives the same pixels.
            bool all0 = true, all1 = true;
            for (int i = 0; i < active(L); ++i) all0 &= b[i] == 0, all1 &= b[i] == 1;
            if (n == 0 && ((all0 && O != Op::Mul) || (all1 && O == Op::Mul))) {
                copy_rows<E, SP, AP>(a, as, d, ds, roi.width, roi.height);
                return zelStatusOk;
            }
            if (all0 && O == Op::Mul) {
                const E zero[4] = {};
                fill_rows<E, SP, AP>(d, ds, roi.width, roi.height, zero);
                return zelStatusOk;
            }
            bool none0 = true;
            for (int i = 0; i < active(L); ++i) none0 &= b[i] != 0;
            if (O == Op::Add && same<E, Zel16u> && n < -15 && none0) {
                const E m = std::numeric_limits<E>::max(), full[4] = {m, m, m, m};
                fill_rows<E, SP, AP>(d, ds, roi.width, roi.height, full);
                return zelStatusOk;
            }
        }
        const bool fork = fork_by(gate<O, E, GL, CONST, IP>(c), roi);
        auto go = [&](auto tag) {
            constexpr Sc C = decltype(tag)::value;
            if constexpr (partwise)
                apply_op<O, P, C, SP, AP, CONST>(IntOp<O, P, C>{n}, wa, as, wb, bs, wd, ds, roi, n, fork);
            else
                apply<CplxMulOp<E, C>, EW, SP, AP, CONST>(CplxMulOp<E, C>{n}, wa, as, wb, bs, wd, ds, roi, fork);
        };
        with_case(c, go);
        return zelStatusOk;
    }
}

// Products of fractions of full scale: null, step, then size.
template <class E, Layout L, bool CONST>
ZelStatus mulscale_entry(const E* a, int as, const E* b, int bs, E* d, int ds, ZeliSize roi) {
    if (any_null(a, b, d)) return zelStatusNullPointer;
    if (CONST ? any_bad_step(as, ds) : any_bad_step(as, bs, ds)) return zelStatusBadStep;
    if (bad_size(roi)) return zelStatusBadSize;
    constexpr int SP = channels(L), AP = active(L);
    apply_op<Op::MulScale, E, Sc::Plain, SP, AP, CONST>(MulScaleOp<E>{}, a, as, b, bs, d, ds, roi, 0, false);
    return zelStatusOk;
}

// ---- Entry shapes of the exported names -----------------------------------------
// All forms reach run(): a is the first source (or the image of a constant
// form), b the second source or the constant values, d the destination.
// The round mode argument of the forms that take none.
constexpr int kNoRound = std::numeric_limits<int>::min();

template <Op O, class E, Layout L, bool CONST, bool IP>
ZelStatus div_entry(const E* a, int as, const E* b, int bs, E* d, int ds, ZeliSize roi, int n, int mode);

template <Op O, class E, Layout L, bool CONST, bool IP>
ZelStatus run(const E* a, int as, const E* b, int bs, E* d, int ds, ZeliSize roi, int n, int mode) {
    if constexpr (O == Op::Div || O == Op::DivR) return div_entry<O, E, L, CONST, IP>(a, as, b, bs, d, ds, roi, n, mode);
    else if constexpr (O == Op::MulScale) return mulscale_entry<E, L, CONST>(a, as, b, bs, d, ds, roi);
    else return sfs_entry<O, E, L, CONST, IP>(a, as, b, bs, d, ds, roi, n);
}

template <Op O, class E, Layout L>
ZelStatus bin(const E* a, int as, const E* b, int bs, E* d, int ds, ZeliSize roi, int n) {
    return run<O, E, L, false, false>(a, as, b, bs, d, ds, roi, n, kNoRound);
}
template <Op O, class E, Layout L>
ZelStatus bin_i(const E* a, int as, E* sd, int sds, ZeliSize roi, int n) {
    return run<O, E, L, false, true>(a, as, sd, sds, sd, sds, roi, n, kNoRound);
}
template <Op O, class E, Layout L>
ZelStatus bin_f(const E* a, int as, const E* b, int bs, E* d, int ds, ZeliSize roi) {
    return run<O, E, L, false, false>(a, as, b, bs, d, ds, roi, 0, kNoRound);
}
template <Op O, class E, Layout L>
ZelStatus bin_fi(const E* a, int as, E* sd, int sds, ZeliSize roi) {
    return run<O, E, L, false, true>(a, as, sd, sds, sd, sds, roi, 0, kNoRound);
}
template <Op O, class E, Layout L>
ZelStatus rnd(const E* a, int as, const E* b, int bs, E* d, int ds, ZeliSize roi, ZelRoundMode mode, int n) {
    return run<O, E, L, false, false>(a, as, b, bs, d, ds, roi, n, mode);
}
template <Op O, class E, Layout L>
ZelStatus rnd_i(const E* a, int as, E* sd, int sds, ZeliSize roi, ZelRoundMode mode, int n) {
    return run<O, E, L, false, true>(a, as, sd, sds, sd, sds, roi, n, mode);
}
template <Op O, class E, Layout L>
ZelStatus cst(const E* s, int ss, const E* v, E* d, int ds, ZeliSize roi, int n) {
    return run<O, E, L, true, false>(s, ss, v, 0, d, ds, roi, n, kNoRound);
}
template <Op O, class E, Layout L>
ZelStatus cst_i(const E* v, E* sd, int sds, ZeliSize roi, int n) {
    return run<O, E, L, true, true>(sd, sds, v, 0, sd, sds, roi, n, kNoRound);
}
template <Op O, class E, Layout L>
ZelStatus cst_f(const E* s, int ss, const E* v, E* d, int ds, ZeliSize roi) {
    return run<O, E, L, true, false>(s, ss, v, 0, d, ds, roi, 0, kNoRound);
}
template <Op O, class E, Layout L>
ZelStatus cst_fi(const E* v, E* sd, int sds, ZeliSize roi) {
    return run<O, E, L, true, true>(sd, sds, v, 0, sd, sds, roi, 0, kNoRound);
}
template <Op O, class E, Layout L>
ZelStatus cst1(const E* s, int ss, E v, E* d, int ds, ZeliSize roi, int n) { return cst<O, E, L>(s, ss, &v, d, ds, roi, n); }
template <Op O, class E, Layout L>
ZelStatus cst1_i(E v, E* sd, int sds, ZeliSize roi, int n) { return cst_i<O, E, L>(&v, sd, sds, roi, n); }
template <Op O, class E, Layout L>
ZelStatus cst1_f(const E* s, int ss, E v, E* d, int ds, ZeliSize roi) { return cst_f<O, E, L>(s, ss, &v, d, ds, roi); }
template <Op O, class E, Layout L>
ZelStatus cst1_fi(E v, E* sd, int sds, ZeliSize roi) { return cst_fi<O, E, L>(&v, sd, sds, roi); }

} // namespace zel

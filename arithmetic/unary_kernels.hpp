// Row kernels of the unary mathematics (absolute value, square root,
// logarithm, exponential), compiled once per level (read by
// core/simd/levels.hpp inside each level's namespace; includes nothing).
// The square is the product kernel of arith_kernels.hpp.
//
// Every function is one vector operation on lanes of the sample type, used
// for the whole vectors of a row and for its partial head and tail alike.
// Float results are IEEE operations in one fixed order (no contraction, no
// estimates), so every level gives the same bits.

#if ZEL_LEVEL == 3
// As in level.hpp: the 512-bit rounding and conversion intrinsics start from
// deliberately undefined registers (undone by level.hpp's pop).
#pragma GCC diagnostic ignored "-Wuninitialized"
#endif

// ---- Single-precision logarithm --------------------------------------------------
// Natural logarithm of positive finite lanes (denormals included), within
// 0.86 ulp (checked against a double logarithm over every positive float).
// With x = 2^k m, m in [sqrt(1/2), sqrt(2)), f = m - 1 and s = f / (2 + f):
//   ln(1 + f) = 2 atanh(s) = f - (f^2/2 - s (f^2/2 + R)),
//   R = 2/3 s^2 + 2/5 s^4 + 2/7 s^6 + 2/9 s^8,
// and k ln 2 in a high part with trailing zeros (k times it is exact) and
// a low part. Lanes that are not positive and finite give garbage.
template <int B>
[[gnu::always_inline]] inline Vec<float, B> ln_positive(Vec<float, B> x) {
    using F = Vec<float, B>;
    using I = Vec<std::int32_t, B>;
    using U = Vec<std::uint32_t, B>;
    const F dn = lt(x, set1<F>(0x1p-126f)); // denormals are scaled into the normal range first
    const U bits = bitcast<std::uint32_t>(select(dn, x * set1<F>(0x1p25f), x));
    const I k0 = shr<23>(bitcast<std::int32_t>(bits - set1<U>(0x3f3504f3u))); // 0x3f3504f3: sqrt(1/2)
    const F m = bitcast<float>(bits - shl<23>(bitcast<std::uint32_t>(k0)));
    const F kf = to_float(k0 - (bitcast<std::int32_t>(dn) & set1<I>(25)));
    const F f = m - set1<F>(1.0f);
    const F s = f / (set1<F>(2.0f) + f);
    const F z = s * s;
    const F r = z * (set1<F>(2.0f / 3) + z * (set1<F>(2.0f / 5) + z * (set1<F>(2.0f / 7) + z * set1<F>(2.0f / 9))));
    const F hfsq = set1<F>(0.5f) * f * f;
    return kf * set1<F>(0x1.62e4p-1f) - ((hfsq - (s * (hfsq + r) + kf * set1<F>(0x1.7f7d1cp-20f))) - f);
}

// ---- Exponential in double lanes ----------------------------------------------------
// e^d for d in [-104, 89] to about 2^-34 relative: k = round(d / ln 2),
// r = d - k ln 2 in [-ln 2 / 2, ln 2 / 2], e^r by a degree-7 polynomial close
// to the best one on that interval, and k added to the exponent. Rounded to
// single precision this is within 0.51 ulp (checked over every float).
template <int B>
[[gnu::always_inline]] inline Vec<double, B> exp_bounded(Vec<double, B> d) {
    using D = Vec<double, B>;
    using Q = Vec<std::uint64_t, B>;
    static constexpr double c[8] = {0x1.a17e052cd2c8fp-13, 0x1.6da767a4988a9p-10, 0x1.1110a6173845ep-7,
                                    0x1.555464884204ep-5,  0x1.5555557e7777ep-3,  0x1.0000005c981fcp-1,
                                    0x1.fffffffff61ddp-1,  0x1.ffffffffa7011p-1};
    const D k = round_to<_MM_FROUND_TO_NEAREST_INT>(d * set1<D>(0x1.71547652b82fep+0));
    const D r = d - k * set1<D>(0x1.62e42fefa39efp-1);
    D p = set1<D>(c[0]);
    for (int j = 1; j < 8; ++j) p = p * r + set1<D>(c[j]);
    const Q kb = bitcast<std::uint64_t>(k + set1<D>(0x1.8p52)); // k in the low bits
    return bitcast<double>(bitcast<std::uint64_t>(p) + shl<52>(kb));
}

// ---- Integer lanes through 32 bits --------------------------------------------------
// The lanes of an integer vector as 32-bit lanes: 4, 2 or 1 vectors in lane order.
template <class T, int B>
[[gnu::always_inline]] inline void to_i32(Vec<T, B> x, Vec<std::int32_t, B>* w) {
    if constexpr (sizeof(T) == 1) {
        const auto lo = widen_lo<std::int16_t>(x), hi = widen_hi<std::int16_t>(x);
        w[0] = widen_lo<std::int32_t>(lo), w[1] = widen_hi<std::int32_t>(lo);
        w[2] = widen_lo<std::int32_t>(hi), w[3] = widen_hi<std::int32_t>(hi);
    } else if constexpr (sizeof(T) == 2) {
        w[0] = widen_lo<std::int32_t>(x), w[1] = widen_hi<std::int32_t>(x);
    } else {
        w[0] = bitcast<std::int32_t>(x);
    }
}
// And back, saturated to T.
template <class T, int B>
[[gnu::always_inline]] inline Vec<T, B> from_i32(const Vec<std::int32_t, B>* w) {
    if constexpr (sizeof(T) == 1) return narrow<T>(w[0], w[1], w[2], w[3]);
    else if constexpr (sizeof(T) == 2) return narrow<T>(w[0], w[1]);
    else return bitcast<T>(w[0]);
}

// ---- The operations ------------------------------------------------------------------
// op(x, neg, zero): the results of one vector of samples; `neg` and `zero`
// receive the lanes that raise the negative and the zero warnings. Everything
// that takes a vector by value is forced inline: GCC 12 splits a large
// out-of-line vector function into a clone (IPA-SRA) that returned wrong
// lanes at the 256-bit level.
template <Un F, class T, bool FLT = std::is_floating_point<T>::value>
struct UnVec;

// |x|; -32768 is raised to -32767 first, a float loses its sign bit.
template <class T, bool FLT>
struct UnVec<Un::Abs, T, FLT> {
    using V = Vec<T>;
    explicit UnVec(const UnArgs&) {}
    [[gnu::always_inline]] V operator()(V x, V&, V&) const {
        if constexpr (FLT) return abs(x);
        else return abs(max(x, set1<V>(-32767)));
    }
};

// IEEE square root; a negative sample gives NaN and a warning.
template <>
struct UnVec<Un::Sqrt, float, true> {
    using V = Vec<float>;
    explicit UnVec(const UnArgs&) {}
    [[gnu::always_inline]] V operator()(V x, V& neg, V&) const {
        neg = lt(x, zero<V>());
        return sqrt(x);
    }
};

// sqrt(x) 2^-n rounded to nearest, ties to even, saturated. 8-bit samples in
// single precision, 16-bit ones in double: enough that a root is never
// rounded across a half (the exact halves are representable and kept). A
// negative sample gives 0 and a warning.
template <class T>
struct UnVec<Un::Sqrt, T, false> {
    using V = Vec<T>;
    using I = Vec<std::int32_t>;
    using F = Vec<float>;
    using D = Vec<double>;
    float f;
    double fd;
    explicit UnVec(const UnArgs& a) : f(a.f), fd(a.fd) {}
    [[gnu::always_inline]] I root(I x) const {
        constexpr double hi = std::numeric_limits<T>::max();
        if constexpr (sizeof(T) == 1) {
            const F q = round_to<_MM_FROUND_TO_NEAREST_INT>(sqrt(to_float(x)) * set1<F>(f));
            return trunc_int(min(q, set1<F>(float(hi))));
        } else {
            auto one = [&](D v) { return min(round_to<_MM_FROUND_TO_NEAREST_INT>(sqrt(v) * set1<D>(fd)), set1<D>(hi)); };
            return trunc_int(one(widen_lo<double>(x)), one(widen_hi<double>(x)));
        }
    }
    [[gnu::always_inline]] V operator()(V x, V& neg, V&) const {
        if constexpr (std::is_signed<T>::value) {
            neg = lt(x, zero<V>());
            x = max(x, zero<V>());
        }
        I w[4];
        to_i32(x, w);
        for (int j = 0; j < int(sizeof(std::int32_t) / sizeof(T)); ++j) w[j] = root(w[j]);
        return from_i32<T>(w);
    }
};

// Natural logarithm: -inf for a zero (zero warning), NaN for a negative
// sample or -inf (negative warning), NaN and +inf unchanged.
template <>
struct UnVec<Un::Ln, float, true> {
    using V = Vec<float>;
    explicit UnVec(const UnArgs&) {}
    [[gnu::always_inline]] V operator()(V x, V& neg, V& zer) const {
        const V z = zero<V>(), inf = set1<V>(std::numeric_limits<float>::infinity());
        neg = lt(x, z);
        zer = eq(x, z);
        V r = select(ne(x, x) | eq(x, inf), x, ln_positive(x));
        r = select(zer, -inf, r);
        return select(neg, set1<V>(std::numeric_limits<float>::quiet_NaN()), r);
    }
};

// The lanes of `mask`: ln(x) 2^-n from the double logarithm, to nearest,
// saturated at hi (x at least 1). Kept out of line: a cold path with plain
// arguments.
[[gnu::noinline]] inline void ln_nearest(const std::int32_t* x, std::int32_t* r, std::uint64_t mask, int lanes, int n, float hi) {
    for (int j = 0; j < lanes; ++j)
        if (mask >> j & 1) {
            const double e = std::floor(std::ldexp(std::log(double(x[j])), -n) + 0.5);
            r[j] = std::int32_t(e < double(hi) ? e : double(hi));
        }
}

// ln(x) 2^-n rounded to nearest and saturated; a sample at or below zero gives
// the type's lowest value and a warning. The single-precision logarithm
// decides every lane whose scaled value lies clearly off a half; the few that
// lie within its error bound of a half are taken again from the double
// logarithm, so the result is the nearest integer to ln(x) 2^-n.
template <class T>
struct UnVec<Un::Ln, T, false> {
    using V = Vec<T>;
    using I = Vec<std::int32_t>;
    using F = Vec<float>;
    static constexpr int L = I::kLanes;
    const UnArgs& a;
    explicit UnVec(const UnArgs& args) : a(args) {}
    [[gnu::always_inline]] I log_scaled(I x) const {
        constexpr float hi = float(std::numeric_limits<T>::max());
        const I lowest = set1<I>(std::numeric_limits<T>::min());
        const F v = ln_positive(to_float(max(x, set1<I>(1)))) * set1<F>(a.f);
        const F half = abs(v - round_to<_MM_FROUND_TO_NEG_INF>(v) - set1<F>(0.5f));
        const F near = lt(half, v * set1<F>(0x1p-21f) + set1<F>(0x1p-30f)) & lt(v, set1<F>(hi + 1.0f)) &
                       bitcast<float>(gt(x, zero<I>()));
        I r = select(gt(x, zero<I>()), trunc_int(min(round_to<_MM_FROUND_TO_NEAREST_INT>(v), set1<F>(hi))), lowest);
        if (any(near)) {
            alignas(64) std::int32_t xs[L], rs[L];
            store_a(xs, x);
            store_a(rs, r);
            ln_nearest(xs, rs, bits(near), L, a.n, hi);
            r = load_a<I>(rs);
        }
        return r;
    }
    [[gnu::always_inline]] V operator()(V x, V& neg, V& zer) const {
        zer = eq(x, zero<V>());
        if constexpr (std::is_signed<T>::value) neg = lt(x, zero<V>());
        I w[4];
        to_i32(x, w);
        for (int j = 0; j < int(sizeof(std::int32_t) / sizeof(T)); ++j) w[j] = log_scaled(w[j]);
        return from_i32<T>(w);
    }
};

// e^x, through double lanes; NaN stays, +inf and -inf give +inf and 0.
template <>
struct UnVec<Un::Exp, float, true> {
    using V = Vec<float>;
    explicit UnVec(const UnArgs&) {}
    [[gnu::always_inline]] V operator()(V x, V&, V&) const {
        const V c = min(max(x, set1<V>(-104.0f)), set1<V>(89.0f));
        const V r = to_float(exp_bounded(widen_lo<double>(c)), exp_bounded(widen_hi<double>(c)));
        return select(ne(x, x), x, r);
    }
};

// e^x 2^-n truncated and saturated: a step function of the integer x, summed
// from the steps the entry found (every sample at or above thr[j] gains
// delta[j]).
template <class T>
struct UnVec<Un::Exp, T, false> {
    using V = Vec<T>;
    int m;
    V thr[kExpSteps], delta[kExpSteps];
    explicit UnVec(const UnArgs& a) : m(a.m) {
        for (int j = 0; j < m; ++j) thr[j] = set1<V>(T(a.thr[j])), delta[j] = set1<V>(T(a.delta[j]));
    }
    [[gnu::always_inline]] V operator()(V x, V&, V&) const {
        V r = zero<V>();
        for (int j = 0; j < m; ++j) r = r + (ge(x, thr[j]) & delta[j]);
        return r;
    }
};

// One row of `count` samples, d = op(s). ALPHA: `keep` is a pattern of period
// four whose zero lanes keep the destination's sample. Returns the warning
// lanes seen: bit 0 negative, bit 1 zero.
template <Un F, class T, bool ALPHA>
int unary_row(const T* s, T* d, int count, const UnArgs& a, const T* keep) {
    using V = Vec<T>;
    const UnVec<F, T> op(a);
    int seen = 0;
    walk<V>(count, d, [&](int i, auto io) {
        V neg = zero<V>(), zer = zero<V>();
        V y = op(io.template get<V>(s + i), neg, zer);
        std::uint64_t live = lane_mask(io.count(V::kLanes), V::kLanes);
        if constexpr (ALPHA) {
            const V k = load<V>(keep + (i & 3));
            y = select(k, y, io.template get<V>(d + i));
            live &= bits(k);
        }
        io.put(d + i, y);
        seen |= ((bits(neg) & live) ? 1 : 0) | ((bits(zer) & live) ? 2 : 0);
    });
    return seen;
}

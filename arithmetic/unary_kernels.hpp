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
// Natural logarithm of positive normal lanes, within 0.86 ulp (checked
// against a double logarithm over every positive float). With x = 2^k m,
// m in [sqrt(1/2), sqrt(2)), f = m - 1 and s = f / (2 + f):
//   ln(1 + f) = 2 atanh(s) = f - (f^2/2 - s (f^2/2 + R)),
//   R = 2/3 s^2 + 2/5 s^4 + 2/7 s^6 + 2/9 s^8,
// and k ln 2 in a high part with trailing zeros (k times it is exact) and
// a low part. `kadj` is taken from k (a denormal comes scaled by 2^25).
template <int B>
ZEL_VI Vec<float, B> ln_normal(Vec<float, B> x, Vec<std::int32_t, B> kadj) {
    using F = Vec<float, B>;
    using U = Vec<std::uint32_t, B>;
    const U bits = bitcast<std::uint32_t>(x);
    const auto k0 = shr<23>(bitcast<std::int32_t>(bits - set1<U>(0x3f3504f3u))); // 0x3f3504f3: sqrt(1/2)
    const F m = bitcast<float>(bits - shl<23>(bitcast<std::uint32_t>(k0)));
    const F kf = to_float(k0 - kadj);
    const F f = m - set1<F>(1.0f);
    const F s = f / (set1<F>(2.0f) + f);
    const F z = s * s;
    const F r = z * (set1<F>(2.0f / 3) + z * (set1<F>(2.0f / 5) + z * (set1<F>(2.0f / 7) + z * set1<F>(2.0f / 9))));
    const F hfsq = set1<F>(0.5f) * f * f;
    return kf * set1<F>(0x1.62e4p-1f) - ((hfsq - (s * (hfsq + r) + kf * set1<F>(0x1.7f7d1cp-20f))) - f);
}

// Whether every lane is a positive normal float.
template <int B>
ZEL_VI bool all_positive_normal(Vec<float, B> x) {
    using U = Vec<std::uint32_t, B>;
    return none(ge(bitcast<std::uint32_t>(x) - set1<U>(0x00800000u), set1<U>(0x7f000000u)));
}

// ---- Single-precision exponential ---------------------------------------------------
// e^x within 0.77 ulp (0.52 where the result is normal; checked against a
// double exponential over every float). k = round(8 x / ln 2), r = x - k ln 2 / 8
// (ln 2 / 8 in two parts, k times the first exact), e^r - 1 = r + r^2 Q(r)
// with Q close to the best quadratic on |r| <= ln 2 / 16, and
//   e^x = 2^(k >> 3) (T + (T (e^r - 1) + t)),  T + t = 2^((k & 7) / 8)
// from an eight-entry table in two parts. Lanes in [-86.5, 88] give normal
// results and take 2^(k >> 3) into the exponent; others are clamped to
// [-104, 89] and scaled by two exact powers of two, so that overflow,
// denormal results and underflow round once. NaN stays NaN.
template <int B>
ZEL_VI Vec<float, B> exp_float(Vec<float, B> x) {
    using F = Vec<float, B>;
    using I = Vec<std::int32_t, B>;
    static constexpr float hi[8] = {0x1p+0f,        0x1.172b84p+0f, 0x1.306fep+0f,  0x1.4bfdaep+0f,
                                    0x1.6a09e6p+0f, 0x1.8ace54p+0f, 0x1.ae89fap+0f, 0x1.d5818ep+0f};
    static constexpr float lo[8] = {0.0f,           -0x1.c15742p-27f, 0x1.4636e2p-25f,  -0x1.593abcp-25f,
                                    0x1.9fcef4p-26f, 0x1.15506ep-27f,  -0x1.a94b14p-26f, -0x1.822dbcp-27f};
    const bool inner = none(lt(x, set1<F>(-86.5f)) | ~le(x, set1<F>(88.0f))); // NaN is not inner
    const F c = inner ? x : min(max(x, set1<F>(-104.0f)), set1<F>(89.0f));
    const F kf = round_to<_MM_FROUND_TO_NEAREST_INT>(c * set1<F>(0x1.715476p+3f));
    const I k = trunc_int(kf);
    const F r = (c - kf * set1<F>(0x1.62ep-4f)) - kf * set1<F>(0x1.0bfbe8p-18f);
    const F q = r + r * r * (set1<F>(0.5f) + r * (set1<F>(0x1.555b9p-3f) + r * set1<F>(0x1.55597cp-5f)));
    const I j = k & set1<I>(7), m = shr<3>(k);
    const F t = lookup8(hi, j);
    const F y = t + (t * q + lookup8(lo, j));
    if (inner) return bitcast<float>(bitcast<std::uint32_t>(y) + shl<23>(bitcast<std::uint32_t>(m)));
    const I m1 = shr<1>(m), m2 = m - m1;
    const F p1 = bitcast<float>(shl<23>(bitcast<std::uint32_t>(m1 + set1<I>(127))));
    const F p2 = bitcast<float>(shl<23>(bitcast<std::uint32_t>(m2 + set1<I>(127))));
    return select(ne(x, x), x, (y * p1) * p2);
}

// ---- Integer lanes through 32 bits --------------------------------------------------
// The lanes of an integer vector as 32-bit lanes: 4, 2 or 1 vectors in lane order.
template <class T, int B>
ZEL_VI void to_i32(Vec<T, B> x, Vec<std::int32_t, B>* w) {
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
ZEL_VI Vec<T, B> from_i32(const Vec<std::int32_t, B>* w) {
    if constexpr (sizeof(T) == 1) return narrow<T>(w[0], w[1], w[2], w[3]);
    else if constexpr (sizeof(T) == 2) return narrow<T>(w[0], w[1]);
    else return bitcast<T>(w[0]);
}
// op.lanes() on the samples of x as 32-bit lanes, saturated back to T.
template <class T, class Op>
ZEL_VI Vec<T> through_i32(const Op& op, Vec<T> x) {
    Vec<std::int32_t> w[4];
    to_i32(x, w);
    for (int j = 0; j < int(sizeof(std::int32_t) / sizeof(T)); ++j) w[j] = op.lanes(w[j]);
    return from_i32<T>(w);
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
    ZEL_VI V operator()(V x, V&, V&) const {
        if constexpr (FLT) return abs(x);
        else return abs(max(x, set1<V>(-32767)));
    }
};

// IEEE square root; a negative sample gives NaN and a warning.
template <>
struct UnVec<Un::Sqrt, float, true> {
    using V = Vec<float>;
    explicit UnVec(const UnArgs&) {}
    ZEL_VI V operator()(V x, V& neg, V&) const {
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
    ZEL_VI I lanes(I x) const {
        constexpr double hi = std::numeric_limits<T>::max();
        if constexpr (sizeof(T) == 1) {
            const F q = round_to<_MM_FROUND_TO_NEAREST_INT>(sqrt(to_float(x)) * set1<F>(f));
            return trunc_int(min(q, set1<F>(float(hi))));
        } else {
            auto one = [&](D v) ZEL_VL { return min(round_to<_MM_FROUND_TO_NEAREST_INT>(sqrt(v) * set1<D>(fd)), set1<D>(hi)); };
            return trunc_int(one(widen_lo<double>(x)), one(widen_hi<double>(x)));
        }
    }
    ZEL_VI V operator()(V x, V& neg, V&) const {
        if constexpr (std::is_signed<T>::value) {
            neg = lt(x, zero<V>());
            x = max(x, zero<V>());
        }
        return through_i32(*this, x);
    }
};

// Natural logarithm: -inf for a zero (zero warning), NaN for a negative
// sample or -inf (negative warning), NaN and +inf unchanged; denormals are
// scaled into the normal range. A vector of positive normal samples only
// takes the plain path, which gives the same bits.
template <>
struct UnVec<Un::Ln, float, true> {
    using V = Vec<float>;
    using I = Vec<std::int32_t>;
    explicit UnVec(const UnArgs&) {}
    ZEL_VI V operator()(V x, V& neg, V& zer) const {
        if (all_positive_normal(x)) return ln_normal(x, zero<I>());
        const V z = zero<V>(), inf = set1<V>(std::numeric_limits<float>::infinity());
        const V dn = lt(x, set1<V>(0x1p-126f));
        neg = lt(x, z);
        zer = eq(x, z);
        V r = ln_normal(select(dn, x * set1<V>(0x1p25f), x), bitcast<std::int32_t>(dn) & set1<I>(25));
        r = select(ne(x, x) | eq(x, inf), x, r);
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
    ZEL_VI I lanes(I x) const {
        constexpr float hi = float(std::numeric_limits<T>::max());
        const I lowest = set1<I>(std::numeric_limits<T>::min());
        const F v = ln_normal(to_float(max(x, set1<I>(1))), zero<I>()) * set1<F>(a.f);
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
    ZEL_VI V operator()(V x, V& neg, V& zer) const {
        zer = eq(x, zero<V>());
        if constexpr (std::is_signed<T>::value) neg = lt(x, zero<V>());
        return through_i32(*this, x);
    }
};

// e^x; NaN stays, +inf and -inf give +inf and 0.
template <>
struct UnVec<Un::Exp, float, true> {
    using V = Vec<float>;
    explicit UnVec(const UnArgs&) {}
    ZEL_VI V operator()(V x, V&, V&) const { return exp_float(x); }
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
    ZEL_VI V operator()(V x, V&, V&) const {
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

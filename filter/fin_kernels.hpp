// From sums to destination samples, compiled once per level (read by
// core/simd/levels.hpp inside each level's namespace; includes nothing).
//
// fin<R, D>() turns one vector of sums into 32-bit integer results (already
// in D's range, or saturated by the narrowing that stores them), or into
// float or double samples. Every rule is element-wise with an explicit
// rounding, never the processor's rounding field, so a lane gives the same
// bits at every width and wherever it sits. put_block() stores four such
// vectors as D samples, the last block of a row partially, and with AC keeps
// the alpha sample of every destination pixel.

using filt::FinP;
using filt::Rule;
using filt::kDivOne;
using filt::kDivPow2;

// V::kLanes samples of T converted by value to V's lanes: a widening load for
// 8- and 16-bit samples into 32-bit lanes.
template <class V, class T>
ZEL_VI V load_conv(const T* p) {
    if constexpr (sizeof(T) <= 2 && sizeof(typename V::Lane) == 4) return load_widen<V>(p);
    else return load_as<V>(p);
}

// Unsigned 32-bit lanes to float, correctly rounded at every width: values
// from 2^31 are halved with their lowest bit kept as a sticky bit first.
template <int B>
ZEL_VI Vec<float, B> u32_to_float(Vec<std::uint32_t, B> s) {
    using I = Vec<std::int32_t, B>;
    using F = Vec<float, B>;
    const I big = lt(bitcast<std::int32_t>(s), zero<I>());
    const Vec<std::uint32_t, B> half = shr<1>(s) | (s & set1<Vec<std::uint32_t, B>>(1u));
    const F lo = to_float(bitcast<std::int32_t>(s));
    const F hi = to_float(bitcast<std::int32_t>(half));
    return select(bitcast<float>(big), hi + hi, lo);
}

// Float lanes rounded by mode 0 (towards zero), 1 (ties to even), 2 (ties away).
template <class V>
ZEL_VI V round_mode(V y, int mode) {
    if (mode == 0) return round_to<_MM_FROUND_TO_ZERO>(y);
    if (mode == 1) return round_to<_MM_FROUND_TO_NEAREST_INT>(y);
    using T = typename V::Lane;
    const V t = round_to<_MM_FROUND_TO_ZERO>(y);
    const V away = ge(abs(y - t), set1<V>(T(0.5)));
    return t + (away & ((y & set1<V>(T(-0.0))) | set1<V>(T(1))));
}

// Float lanes clamped to D's range (NaN gives the minimum) and rounded by mode.
template <class D, class V>
ZEL_VI V clamp_round(V y, int mode) {
    using T = typename V::Lane;
    const V lo = set1<V>(T(std::numeric_limits<D>::min())), hi = set1<V>(T(std::numeric_limits<D>::max()));
    return round_mode(min(max(y, lo), hi), mode);
}

// Integral double lanes of a split 32-bit vector back into one 32-bit vector.
template <int B>
ZEL_VI Vec<std::int32_t, B> join_ints(Vec<double, B> lo, Vec<double, B> hi) {
    return concat(convert<std::int32_t>(lo), convert<std::int32_t>(hi));
}

// s / 2^k rounded by mode (k >= 1) for signed 32-bit lanes.
template <int B>
ZEL_VI Vec<std::int32_t, B> shift_round(Vec<std::int32_t, B> s, int k, int mode) {
    using I = Vec<std::int32_t, B>;
    using U = Vec<std::uint32_t, B>;
    const I q = shr(s, k);
    const U r = bitcast<std::uint32_t>(s & set1<I>(std::int32_t((1u << k) - 1u)));
    const U half = set1<U>(1u << (k - 1));
    const I neg = lt(s, zero<I>());
    U up;
    if (mode == 0) up = bitcast<std::uint32_t>(neg) & ne(r, zero<U>());
    else if (mode == 1) up = shr(r + half - set1<U>(1u) + bitcast<std::uint32_t>(q & set1<I>(1)), k);
    else up = select(bitcast<std::uint32_t>(neg), gt(r, half), ge(r, half));
    if (mode != 1) up = up & set1<U>(1u);
    return q + bitcast<std::int32_t>(up);
}

// One vector of sums s (lanes k, k + 1, ... of the row) to results for D.
template <Rule R, class D, class V>
ZEL_VI auto fin(const FinP& p, V s, int k) {
    constexpr int B = V::kWidth;
    using I = Vec<std::int32_t, B>;
    using U = Vec<std::uint32_t, B>;
    using F = Vec<float, B>;
    constexpr int N = _MM_FROUND_TO_NEAREST_INT;
    if constexpr (R == Rule::MulShift) {
        const U u = bitcast<std::uint32_t>(s);
        return bitcast<std::int32_t>(shr(u * set1<U>(p.mul) + set1<U>(p.add), p.shift));
    } else if constexpr (R == Rule::TruncF) {
        return trunc_int(u32_to_float(bitcast<std::uint32_t>(s)) * set1<F>(p.f));
    } else if constexpr (R == Rule::Bias16Near) {
        return trunc_int(round_to<N>(u32_to_float(bitcast<std::uint32_t>(s)) * set1<F>(p.f))) - set1<I>(32768);
    } else if constexpr (R == Rule::Bias16Trunc) {
        return trunc_int(u32_to_float(bitcast<std::uint32_t>(s)) * set1<F>(p.f)) - set1<I>(32768);
    } else if constexpr (R == Rule::Near16Tail) {
        const F y = to_float(bitcast<std::int32_t>(s)) * set1<F>(p.f);
        return select(lt(iota<I>(k), set1<I>(p.body)), trunc_int(round_to<N>(y)), trunc_int(y));
    } else if constexpr (R == Rule::Near32s) {
        return trunc_int(round_to<N>(to_float(bitcast<std::int32_t>(s)) * set1<F>(p.f)));
    } else if constexpr (R == Rule::Scale) {
        using T = typename V::Lane;
        if constexpr (std::is_same<T, double>::value) return s * set1<V>(p.fd);
        else return s * set1<V>(p.f);
    } else if constexpr (R == Rule::ToFloat) {
        return to_float(bitcast<std::int32_t>(s));
    } else if constexpr (R == Rule::Div || R == Rule::RoundI) {
        const I v = bitcast<std::int32_t>(s);
        const int mode = R == Rule::Div ? 1 : p.mode;
        if (p.cls == kDivOne) return v;
        if (p.cls == kDivPow2) return shift_round(v, p.k, mode);
        if (R == Rule::RoundI && (mode == 0 || p.dquot)) {
            // exact quotients in double: truncated, or rounded by mode
            using Dv = Vec<double, B>;
            const Dv dd = set1<Dv>(double(p.d));
            auto one = [&](Dv y) ZEL_VL { return mode == 0 ? round_to<_MM_FROUND_TO_ZERO>(y / dd) : clamp_round<D>(y / dd, mode); };
            return join_ints(one(convert<double>(half_lo(v))), one(convert<double>(half_hi(v))));
        }
        return trunc_int(clamp_round<D>(to_float(v) * set1<F>(p.f), mode));
    } else if constexpr (R == Rule::Near || R == Rule::RoundF) {
        const int mode = R == Rule::Near ? 1 : p.mode;
        if constexpr (std::is_same<D, float>::value || std::is_same<D, double>::value) {
            return s;
        } else if constexpr (std::is_same<D, std::int32_t>::value) {
            const I r = trunc_int(round_mode(s, mode));
            return select(bitcast<std::int32_t>(ge(s, set1<F>(2147483648.0f))), set1<I>(std::numeric_limits<std::int32_t>::max()), r);
        } else {
            return trunc_int(clamp_round<D>(s, mode));
        }
    } else {
        return s;
    }
}

// Lanes of a destination vector that hold alpha: every fourth sample.
template <class V>
ZEL_VI V alpha_lanes() {
    using I = typename IntOfSize<sizeof(typename V::Lane)>::type;
    typename RawOf<I, V::kWidth>::type m;
    for (int i = 0; i < V::kLanes; ++i) m[i] = (i & 3) == 3 ? I(-1) : I(0);
    return V{(typename V::Raw)m};
}

// Stores the first n lanes of v (all when n >= lanes); with AC the alpha
// lanes keep the destination's samples.
template <bool AC, class T, int B>
ZEL_VI void put(T* p, Vec<T, B> v, int n) {
    using V = Vec<T, B>;
    if (n >= V::kLanes) {
        if constexpr (AC) v = select(alpha_lanes<V>(), load<V>(p), v);
        store(p, v);
    } else if (n > 0) {
        if constexpr (AC) v = select(alpha_lanes<V>(), load_n<V>(p, n), v);
        store_n(p, v, n);
    }
}

// Four vectors of results as D samples at d, the first n of them.
template <class D, bool AC, class R>
inline void put_block(D* d, const R (&r)[4], int n) {
    constexpr int L = R::kLanes, B = R::kWidth;
    using T = typename R::Lane;
    if constexpr (!std::is_same<T, D>::value && sizeof(D) == 1) {
        put<AC>(d, narrow<D>(r[0], r[1], r[2], r[3]), n);
    } else if constexpr (!std::is_same<T, D>::value && sizeof(D) == 2) {
        put<AC>(d, narrow<D>(r[0], r[1]), n);
        put<AC>(d + 2 * L, narrow<D>(r[2], r[3]), n - 2 * L);
    } else {
        for (int u = 0; u < 4; ++u) put<AC>(d + u * L, bitcast<D>(Vec<T, B>(r[u])), n - u * L);
    }
}

// One destination row of n samples from a row of sums: sum(i) gives the
// vector of sums of samples i, i + 1, ... (it may read past n: the block
// around a row's end is computed whole and stored in part).
template <Rule R, class D, bool AC, class V, class Sum>
inline void finish_row(D* d, int n, const FinP& p, Sum&& sum) {
    constexpr int L = V::kLanes;
    using Res = decltype(fin<R, D>(p, V{}, 0));
    for (int i = 0; i < n; i += 4 * L) {
        Res r[4];
        for (int u = 0; u < 4; ++u) r[u] = fin<R, D>(p, V(sum(i + u * L)), i + u * L);
        put_block<D, AC>(d + i, r, n - i);
    }
}

// Row kernels of the sample-type conversions and range scalings, compiled once
// per level (read by core/simd/levels.hpp inside each level's namespace;
// includes nothing).
//
// An operation (CvtOp) maps a vector of source samples, widened by value into
// lanes of L, to a vector of lanes of R: 32-bit integer or float lanes, or
// 16-bit lanes where the rule stays exact in them. cvt_row() walks a row in
// units that fill one destination vector, narrowing the R lanes into D with
// saturation. The head up to the destination's vector alignment and the tail
// run the same unit on a staged copy, so every sample gets the same bits
// whatever its place and the level. AC4 units keep the destination's alpha
// lanes.

template <cvt::Kind K, class S, class D, bool Scaled>
struct CvtOp;

// Lane types of an operation without parameters.
template <class Lane, class Result>
struct Lanes {
    using L = Lane;
    using R = Result;
    explicit Lanes(const cvt::Params&) {}
};

template <class S, class D>
constexpr bool cvt16 = (sizeof(S) == 1 && sizeof(D) == 2) || (sizeof(S) == 2 && sizeof(D) == 1);

// Widening copies and saturating narrowing between integer types, integers
// to float by the processor's conversion in the current rounding mode.
template <class S, class D, bool Scaled>
struct CvtOp<cvt::Kind::Plain, S, D, Scaled> {
    static constexpr bool kFloat = std::is_floating_point<D>::value;
    // 8-bit to 16-bit and 16-bit to 8-bit in 16-bit lanes; 16u keeps its
    // value below 32768 by the unsigned minimum first.
    using L = std::conditional_t<kFloat || !cvt16<S, D>, std::int32_t,
                                 std::conditional_t<std::is_same<S, Zel16u>::value, std::uint16_t, std::int16_t>>;
    using R = std::conditional_t<kFloat, float, std::conditional_t<sizeof(L) == 2, std::int16_t, std::int32_t>>;
    explicit CvtOp(const cvt::Params&) {}
    ZEL_VI Vec<R> operator()(Vec<L> x) const {
        if constexpr (std::is_same<S, Zel32u>::value && kFloat) {
            // Unsigned: both 16-bit halves convert exactly; the sum rounds once.
            const auto u = bitcast<std::uint32_t>(x);
            const Vec<float> hi = to_float(bitcast<std::int32_t>(shr<16>(u)));
            const Vec<float> lo = to_float(bitcast<std::int32_t>(u & set1<Vec<std::uint32_t>>(0xffffu)));
            return hi * set1<Vec<float>>(65536.0f) + lo;
        } else if constexpr (kFloat) {
            return to_float(x);
        } else if constexpr (std::is_same<L, std::uint16_t>::value && sizeof(D) == 1) {
            return bitcast<std::int16_t>(min(x, set1<Vec<L>>(255)));
        } else {
            return bitcast<R>(x);
        }
    }
};

// Signed to unsigned: negative samples become 0.
template <class S, class D, bool Scaled>
struct CvtOp<cvt::Kind::NonNegative, S, D, Scaled> : Lanes<std::int32_t, std::int32_t> {
    using Lanes::Lanes;
    ZEL_VI Vec<R> operator()(Vec<L> x) const { return max(x, zero<Vec<L>>()); }
};

// Float to integer: the multiplier when scaled, the upper clamp (a NaN fails
// "below the bound" and becomes the bound), then the processor's conversion
// in the current rounding mode or, financial, the addition of 0.5 with the
// value's sign and a truncation (the caller sets the rounding field towards
// zero, so the sum never rounds up across an integer). Values below the lower
// bound convert to it or below it (or to 0x80000000), which the saturating
// narrowing takes to the bound. The upper bound of a 32-bit destination is
// 2^31 as a float and gives INT_MAX.
template <class S, class D, bool Scaled, bool Financial>
struct FloatToInt {
    using L = float;
    using R = std::int32_t;
    static constexpr float kHi = float(std::numeric_limits<D>::max());
    Vec<float> m;
    explicit FloatToInt(const cvt::Params& p) : m(set1<Vec<float>>(p.m)) {}
    ZEL_VI Vec<R> operator()(Vec<float> x) const {
        if constexpr (Scaled) x = x * m;
        const Vec<float> v = min(x, set1<Vec<float>>(kHi));
        Vec<R> r;
        if constexpr (Financial) r = trunc_int(v + ((v & set1<Vec<float>>(-0.0f)) | set1<Vec<float>>(0.5f)));
        else r = round_int(v);
        if constexpr (std::is_same<D, Zel32s>::value)
            r = select(bitcast<R>(ge(v, set1<Vec<float>>(2147483648.0f))), set1<Vec<R>>(INT_MAX), r);
        return r;
    }
};
template <class S, class D, bool Scaled>
struct CvtOp<cvt::Kind::Round, S, D, Scaled> : FloatToInt<S, D, Scaled, false> {
    using FloatToInt<S, D, Scaled, false>::FloatToInt;
};
template <class S, class D, bool Scaled>
struct CvtOp<cvt::Kind::RoundFinancial, S, D, Scaled> : FloatToInt<S, D, Scaled, true> {
    using FloatToInt<S, D, Scaled, true>::FloatToInt;
};

// 8u onto the full range of a wider integer: the byte replicated (x * 257,
// x * 16843009), signed destinations offset by half their range.
template <class S, class D, bool Scaled>
struct CvtOp<cvt::Kind::Replicate, S, D, Scaled> : Lanes<std::int32_t, std::int32_t> {
    using Lanes::Lanes;
    ZEL_VI Vec<R> operator()(Vec<L> x) const {
        const Vec<R> v2 = x | shl<8>(x);
        if constexpr (std::is_same<D, Zel16u>::value) return v2;
        else if constexpr (std::is_same<D, Zel16s>::value) return v2 - set1<Vec<R>>(32768);
        else return (v2 | shl<16>(v2)) ^ set1<Vec<R>>(INT_MIN);
    }
};

// 16u, 16s to 8u, accurate: round to nearest of (x + offset) * 255/65535 in
// single precision (the caller sets the rounding field to nearest).
template <class S, class D, bool Scaled>
struct CvtOp<cvt::Kind::Scale16Accurate, S, D, Scaled> : Lanes<std::int32_t, std::int32_t> {
    static constexpr int kOffset = std::is_same<S, Zel16s>::value ? 32768 : 0;
    using Lanes::Lanes;
    ZEL_VI Vec<R> operator()(Vec<L> x) const {
        return round_int(to_float(x + set1<Vec<L>>(kOffset)) * set1<Vec<float>>(255.0f / 65535.0f));
    }
};

// 16u, 16s to 8u, fast, in 16-bit lanes: y the sample as a signed 16-bit
// value (16u offset by -32768), ((y - (y >> 8)) >> 8) + 128; y - (y >> 8)
// stays within +-32640.
template <class S, class D, bool Scaled>
struct CvtOp<cvt::Kind::Scale16Fast, S, D, Scaled> : Lanes<std::int16_t, std::int16_t> {
    using Lanes::Lanes;
    ZEL_VI Vec<R> operator()(Vec<L> x) const {
        const Vec<R> y = std::is_same<S, Zel16u>::value ? x ^ set1<Vec<R>>(std::int16_t(-32768)) : x;
        return shr<8>(y - shr<8>(y)) + set1<Vec<R>>(128);
    }
};

// 32s to 8u, accurate: x * c + d in double precision, rounded to nearest,
// c = 255 / (2^32 - 1) and d = 2^31 * c placing -2^31 at 0 and 2^31 - 1 at 255.
template <class S, class D, bool Scaled>
struct CvtOp<cvt::Kind::Scale32Accurate, S, D, Scaled> : Lanes<std::int32_t, std::int32_t> {
    static constexpr double kC = 255.0 / 4294967295.0;
    static constexpr double kD = 2147483648.0 * kC;
    using Lanes::Lanes;
    ZEL_VI Vec<R> operator()(Vec<L> x) const {
        const Vec<double> c = set1<Vec<double>>(kC), d = set1<Vec<double>>(kD);
        return concat(round_int(widen_lo<double>(x) * c + d), round_int(widen_hi<double>(x) * c + d));
    }
};

// 32s to 8u, fast: ((x - (x >> 8)) >> 24) + 128, arithmetic shifts.
template <class S, class D, bool Scaled>
struct CvtOp<cvt::Kind::Scale32Fast, S, D, Scaled> : Lanes<std::int32_t, std::int32_t> {
    using Lanes::Lanes;
    ZEL_VI Vec<R> operator()(Vec<L> x) const { return shr<24>(x - shr<8>(x)) + set1<Vec<R>>(128); }
};

// 8u to 32f: x * k + b in single precision, k = (vMax - vMin) / 255, b = vMin.
template <class S, class D, bool Scaled>
struct CvtOp<cvt::Kind::Scale8uTo32f, S, D, Scaled> {
    using L = std::int32_t;
    using R = float;
    Vec<float> k, b;
    explicit CvtOp(const cvt::Params& p) : k(set1<Vec<float>>(p.k)), b(set1<Vec<float>>(p.b)) {}
    ZEL_VI Vec<R> operator()(Vec<L> x) const { return to_float(x) * k + b; }
};

// 32f to 8u: clamped into [lo, hi] (NaN to hi), then x * k + b rounded to
// nearest (the caller sets the rounding field).
template <class S, class D, bool Scaled>
struct CvtOp<cvt::Kind::Scale32fTo8u, S, D, Scaled> {
    using L = float;
    using R = std::int32_t;
    Vec<float> lo, hi, k, b;
    explicit CvtOp(const cvt::Params& p)
        : lo(set1<Vec<float>>(p.lo)), hi(set1<Vec<float>>(p.hi)), k(set1<Vec<float>>(p.k)), b(set1<Vec<float>>(p.b)) {}
    ZEL_VI Vec<R> operator()(Vec<float> x) const { return round_int(max(min(x, hi), lo) * k + b); }
};

// ---- The row walk ---------------------------------------------------------------------
// R lanes of one, two or four vectors into one vector of D, saturating where
// D is narrower.
template <class D, class R>
ZEL_VI Vec<D> pack(Vec<R> a) { return bitcast<D>(a); }
template <class D, class R>
ZEL_VI Vec<D> pack(Vec<R> a, Vec<R> b) { return narrow<D>(a, b); }
template <class D, class R>
ZEL_VI Vec<D> pack(Vec<R> a, Vec<R> b, Vec<R> c, Vec<R> e) { return narrow<D>(a, b, c, e); }

// One destination vector from the groups of G samples at s. Always inlined:
// GCC 12 with the address sanitizer puts a vzeroupper before the return of an
// out-of-line copy, which clears the upper half of a 256-bit result.
template <class D, class L, int G, class Op, class S, int... I>
ZEL_VI Vec<D> cvt_unit(const Op& op, const S* s, std::integer_sequence<int, I...>) {
    return pack<D>(op(load_widen<Vec<L>>(s + I * G))...);
}

// One row of n samples. AC4 rows keep every fourth destination sample. With
// nt the aligned whole units go out by streaming stores (the caller fences).
template <cvt::Kind K, class S, class D, bool AC4, bool Scaled>
void cvt_row(const S* s, D* d, int n, const cvt::Params& prm, bool nt) {
    using Op = CvtOp<K, S, D, Scaled>;
    using L = typename Op::L;
    using R = typename Op::R;
    using I = typename IntOfSize<sizeof(D)>::type;
    static_assert(sizeof(L) == sizeof(R), "lanes of one size");
    constexpr int G = lanes<R>;                                           // samples a group
    constexpr int Gn = sizeof(D) < sizeof(R) ? int(sizeof(R) / sizeof(D)) : 1; // groups a unit
    constexpr int N = G * Gn;                                             // samples a unit
    const Op op(prm);
    auto unit = [&](const S* sp, D* dp, auto put) {
        Vec<D> out = cvt_unit<D, L, G>(op, sp, std::make_integer_sequence<int, Gn>{});
        if constexpr (AC4) out = select(bitcast<D>(eq(iota<Vec<I>>(0) & set1<Vec<I>>(3), set1<Vec<I>>(3))), load<Vec<D>>(dp), out);
        if constexpr (decltype(put)::value == 0) store(dp, out);
        else if constexpr (decltype(put)::value == 1) store_a(dp, out);
        else stream(dp, out);
    };
    // How a unit stores: unaligned, aligned, streamed.
    const std::integral_constant<int, 0> plain;
    const std::integral_constant<int, 1> aligned;
    const std::integral_constant<int, 2> streamed;
    // A partial unit through staging buffers.
    auto part = [&](int i, int count) {
        alignas(64) S sb[N] = {};
        alignas(64) D db[N] = {};
        __builtin_memcpy(sb, s + i, std::size_t(count) * sizeof(S));
        if constexpr (AC4) __builtin_memcpy(db, d + i, std::size_t(count) * sizeof(D));
        unit(sb, db, aligned);
        __builtin_memcpy(d + i, db, std::size_t(count) * sizeof(D));
    };
    int i = 0;
    // AC4 units start at whole pixels, so they do not align on the destination.
    const int head = !AC4 && n >= 2 * N ? head_lanes<Vec<D>>(d) : -1;
    if (head >= 0) {
        if (head) part(0, head);
        i = head;
        if (nt)
            for (; i + N <= n; i += N) unit(s + i, d + i, streamed);
        else
            for (; i + N <= n; i += N) unit(s + i, d + i, aligned);
    } else {
        for (; i + N <= n; i += N) unit(s + i, d + i, plain);
    }
    if (i < n) part(i, n - i);
}

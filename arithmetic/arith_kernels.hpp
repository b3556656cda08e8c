// Row kernels of add, subtract and multiply, compiled once per level (read by
// core/simd/levels.hpp inside each level's namespace; includes nothing).
//
// Each operation is the vector form of a scalar rule of arith.hpp (raw() and
// scale<C>() there): the integer rules in lanes wide enough to hold the exact
// intermediate, the float ones in their own lanes.

// Integer sum, difference or product of 8- and 16-bit samples with the scale
// rule of case C.
template <Op O, class P, Sc C>
struct IntVec {
    using V = Vec<P>;
    int n;

    // 8u in 16-bit lanes: sums and differences fit signed, products unsigned.
    template <class W>
    ZEL_VI W lanes16(W x, W y) const {
        using U = Vec<std::uint16_t>;
        using S = Vec<std::int16_t>;
        if constexpr (O == Op::Mul) {
            U p = bitcast<std::uint16_t>(x) * bitcast<std::uint16_t>(y);
            const U one = set1<U>(1), top = set1<U>(255);
            if constexpr (C == Sc::One) p = shr<1>(p + (shr<1>(p) & one));
            if constexpr (C == Sc::Neg) p = shl(min(p, top), -n);
            if constexpr (C == Sc::Bound) p = andnot(eq(p, zero<U>()), top);
            return bitcast<std::int16_t>(min(p, top));
        } else {
            S a = bitcast<std::int16_t>(x), b = bitcast<std::int16_t>(y), s;
            const S z = zero<S>(), one = set1<S>(1), top = set1<S>(255);
            if constexpr (O == Op::Add) s = a + b;
            else if constexpr (O == Op::Sub) s = max(b - a, z);
            else s = max(a - b, z);
            if constexpr (C == Sc::One) s = shr<1>(s + (shr<1>(s) & one));
            if constexpr (C == Sc::Pos) s = shr(s + set1<S>(std::int16_t((1 << (n - 1)) - 1)) + (shr(s, n) & one), n);
            if constexpr (C == Sc::Neg) s = shl(min(s, top), -n);
            if constexpr (C == Sc::Bound) s = gt(s, z) & top;
            return s;
        }
    }

    // 32-bit lanes: exact for every 8- and 16-bit operation.
    using I = Vec<std::int32_t>;
    ZEL_VI I lanes32(I x, I y) const {
        constexpr bool u = !std::is_signed<P>::value;
        const I z = zero<I>();
        I s;
        if constexpr (O == Op::Add) s = x + y;
        else if constexpr (O == Op::Sub) s = u ? max(y - x, z) : y - x;
        else if constexpr (O == Op::SubR) s = u ? max(x - y, z) : x - y;
        else s = x * y;
        const I one = set1<I>(1);
        const I lo = set1<I>(std::numeric_limits<P>::min()), hi = set1<I>(std::numeric_limits<P>::max());
        if constexpr (C == Sc::One) s = shr<1>(s + (shr<1>(s) & one));
        if constexpr (C == Sc::Pos) s = shr(s + set1<I>((1 << (n - 1)) - 1) + (shr(s, n) & one), n);
        if constexpr (C == Sc::Neg) s = shl(clamp(s, lo, hi), -n);
        if constexpr (C == Sc::Bound) s = (gt(s, z) & hi) | (lt(s, z) & lo);
        return s;
    }

    ZEL_VI V operator()(V x, V y) const {
        if constexpr (C == Sc::Plain && O != Op::Mul) {
            if constexpr (O == Op::Add) return adds(x, y);
            else if constexpr (O == Op::Sub) return subs(y, x);
            else return subs(x, y);
        } else if constexpr (std::is_same<P, Zel8u>::value && !(O == Op::Mul && C == Sc::Pos)) {
            using W = Vec<std::int16_t>;
            const W lo = lanes16(widen_lo<std::int16_t>(x), widen_lo<std::int16_t>(y));
            const W hi = lanes16(widen_hi<std::int16_t>(x), widen_hi<std::int16_t>(y));
            return narrow<Zel8u>(lo, hi);
        } else if constexpr (sizeof(P) == 1) {
            const auto xl = widen_lo<std::int16_t>(x), xh = widen_hi<std::int16_t>(x);
            const auto yl = widen_lo<std::int16_t>(y), yh = widen_hi<std::int16_t>(y);
            return narrow<P>(lanes32(widen_lo<std::int32_t>(xl), widen_lo<std::int32_t>(yl)),
                             lanes32(widen_hi<std::int32_t>(xl), widen_hi<std::int32_t>(yl)),
                             lanes32(widen_lo<std::int32_t>(xh), widen_lo<std::int32_t>(yh)),
                             lanes32(widen_hi<std::int32_t>(xh), widen_hi<std::int32_t>(yh)));
        } else {
            return narrow<P>(lanes32(widen_lo<std::int32_t>(x), widen_lo<std::int32_t>(y)),
                             lanes32(widen_hi<std::int32_t>(x), widen_hi<std::int32_t>(y)));
        }
    }
};

// IEEE single add, subtract and multiply in the current rounding mode.
template <Op O>
struct FloatVec {
    int n;
    template <class V>
    ZEL_VI V operator()(V x, V y) const {
        if constexpr (O == Op::Add) return x + y;
        else if constexpr (O == Op::Sub) return y - x;
        else if constexpr (O == Op::SubR) return x - y;
        else return x * y;
    }
};

// Product of two fractions of full scale: (p + 1 + (p >> bits)) >> bits.
template <class P>
struct MulScaleVec {
    int n;
    using V = Vec<P>;
    ZEL_VI V operator()(V x, V y) const {
        if constexpr (sizeof(P) == 1) {
            using U = Vec<std::uint16_t>;
            auto f = [](U p) ZEL_VL { return bitcast<std::int16_t>(shr<8>(p + set1<U>(1) + shr<8>(p))); };
            return narrow<P>(f(widen_lo<std::uint16_t>(x) * widen_lo<std::uint16_t>(y)),
                             f(widen_hi<std::uint16_t>(x) * widen_hi<std::uint16_t>(y)));
        } else {
            using U = Vec<std::uint32_t>;
            auto f = [](U p) ZEL_VL { return bitcast<std::int32_t>(shr<16>(p + set1<U>(1) + shr<16>(p))); };
            return narrow<P>(f(widen_lo<std::uint32_t>(x) * widen_lo<std::uint32_t>(y)),
                             f(widen_hi<std::uint32_t>(x) * widen_hi<std::uint32_t>(y)));
        }
    }
};

// The vector operation of (O, P, C).
template <Op O, class P, Sc C>
using ArithVec = std::conditional_t<O == Op::MulScale, MulScaleVec<P>,
                                    std::conditional_t<std::is_floating_point<P>::value, FloatVec<O>, IntVec<O, P, C>>>;

// One row of `count` samples: d = op(a, b). With CONST, b is a pattern of
// period PER long enough for any phase plus one vector (pattern[j] is the
// value of sample j % PER).
template <Op O, class P, Sc C, int PER, bool CONST>
void arith_row(const P* a, const P* b, P* d, int count, int n) {
    using V = Vec<P>;
    const ArithVec<O, P, C> op{n};
    walk<V>(count, d, [&](int i, auto io) {
        const V x = io.template get<V>(a + i);
        const V y = io.template get<V>(CONST ? b + i % PER : b + i);
        io.put(d + i, op(x, y));
    });
}

// Row kernels of the bitwise operations, the shifts by a constant and the
// sign-magnitude complement, compiled once per level (read by
// core/simd/levels.hpp inside each level's namespace; includes nothing).

// Bytes through a bitwise operation: with a second row (P == 0), with a
// constant pattern of period P bytes, or alone (Not). KP > 0: `keep` is a
// pattern of period KP bytes whose zero bytes keep the destination (alpha).
template <Lg O, int P, int KP>
void logic_row(const std::uint8_t* a, const std::uint8_t* b, std::uint8_t* d, int count, const std::uint8_t* keep) {
    using V = Vec<std::uint8_t>;
    walk<V>(count, d, [&](int i, auto io) {
        const V x = io.template get<V>(a + i);
        V y;
        if constexpr (O == Lg::Not) {
            y = ~x;
        } else {
            const V c = P > 0 ? load<V>(b + i % (P > 0 ? P : 1)) : io.template get<V>(b + i);
            if constexpr (O == Lg::And) y = x & c;
            else if constexpr (O == Lg::Or) y = x | c;
            else y = x ^ c;
        }
        if constexpr (KP > 0) y = select(load<V>(keep + i % KP), y, io.template get<V>(d + i));
        io.put(d + i, y);
    });
}

template <bool LEFT, class T, int B>
ZEL_VI Vec<T, B> shifted(Vec<T, B> x, int n) {
    if constexpr (LEFT) return shift_l(x, n);
    else return shift_r(x, n);
}

// Samples shifted by the plan: one count for every lane (PER == 1), or a count
// for each of the AP worked channels of PER-sample pixels; a channel shifted
// out entirely gives 0. ALPHA keeps the fourth sample of each pixel.
template <class T, bool LEFT, int PER, bool ALPHA>
void shift_row(const T* s, T* d, int count, const ShiftPlan<T>& p) {
    using V = Vec<T>;
    constexpr int AP = ALPHA && PER == 4 ? 3 : PER;
    walk<V>(count, d, [&](int i, auto io) {
        const V x = io.template get<V>(s + i);
        V y = p.out[0] ? zero<V>() : shifted<LEFT>(x, p.cnt[0]);
        for (int c = 1; c < AP; ++c)
            y = select(load<V>(p.chan[c].v + i % PER), p.out[c] ? zero<V>() : shifted<LEFT>(x, p.cnt[c]), y);
        if constexpr (ALPHA) y = select(load<V>(p.keep.v + i % 4), y, io.template get<V>(d + i));
        io.put(d + i, y);
    });
}

// Two's complement to sign and magnitude: ((x ^ s) - s) | (x & 0x80000000),
// s the sign spread over all bits.
inline void complement_row(std::uint32_t* d, int count) {
    using V = Vec<std::uint32_t>;
    walk<V>(count, d, [&](int i, auto io) {
        const V x = io.template get<V>(d + i);
        const V s = bitcast<std::uint32_t>(shr<31>(bitcast<std::int32_t>(x)));
        io.put(d + i, ((x ^ s) - s) | (x & set1<V>(0x80000000u)));
    });
}

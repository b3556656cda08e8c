// Row kernels of the compare family, compiled once per level (read by
// core/simd/levels.hpp inside each level's namespace; includes nothing).
//
// The lane comparisons of the layer are false for NaN, as the scalar
// relations of compare.hpp are, and the tolerance is the same single-precision
// difference, so every level gives the bytes of the scalar rule.

// The relation R lane by lane, as a mask.
template <Rel R, class V>
ZEL_VI V relation(V a, V b, V eps) {
    if constexpr (R == Rel::LT) return lt(a, b);
    else if constexpr (R == Rel::LE) return le(a, b);
    else if constexpr (R == Rel::EQ) return eq(a, b);
    else if constexpr (R == Rel::GE) return ge(a, b);
    else if constexpr (R == Rel::GT) return gt(a, b);
    else return le(abs(a - b), eps);
}

// Vector k of a group of vectors of W that covers the lanes of one access of io.
template <class W, class IO>
ZEL_VI W group_part(IO io, const typename W::Lane* p, int k) {
    constexpr int L = W::kLanes;
    if constexpr (IO::kWhole) {
        return load<W>(p + k * L);
    } else {
        const int n = io.n - k * L;
        return load_n<W>(p + k * L, n < 0 ? 0 : n > L ? L : n);
    }
}

// d[x] = 255 where R holds between a and b in all A channels of pixel x, else
// 0. With CONST, b holds one constant a channel. One-channel rows go by
// vectors of destination bytes, each from sizeof(T) vectors of samples whose
// masks narrow to bytes; the others by the compiler's vectoriser.
template <class T, int C, int A, Rel R, bool CONST>
void cmp_row(const T* a, const T* b, Zel8u* d, int w, T eps) {
    if constexpr (C == 1) {
        using V8 = Vec<std::uint8_t>;
        using W = Vec<T>;
        using I = typename IntOfSize<sizeof(T)>::type;
        const W e = set1<W>(eps), k = set1<W>(b[0]);
        walk<V8>(w, d, [&](int i, auto io) {
            auto mask = [&](int part) ZEL_VL {
                const W y = CONST ? k : group_part<W>(io, b + i, part);
                return bitcast<I>(relation<R>(group_part<W>(io, a + i, part), y, e));
            };
            V8 m;
            if constexpr (sizeof(T) == 1) m = bitcast<std::uint8_t>(mask(0));
            else if constexpr (sizeof(T) == 2) m = bitcast<std::uint8_t>(narrow<std::int8_t>(mask(0), mask(1)));
            else m = bitcast<std::uint8_t>(narrow<std::int8_t>(mask(0), mask(1), mask(2), mask(3)));
            io.put(d + i, m);
        });
    } else {
#pragma omp simd
        for (int x = 0; x < w; ++x) {
            bool all = true;
            for (int c = 0; c < A; ++c) all &= holds<R>(a[std::ptrdiff_t(x) * C + c], CONST ? b[c] : b[std::ptrdiff_t(x) * C + c], eps);
            d[x] = all ? 255 : 0;
        }
    }
}

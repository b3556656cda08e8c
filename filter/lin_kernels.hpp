// Convolution with a kernel of any size, compiled once per level (read by
// core/simd/levels.hpp inside each level's namespace; includes nothing). The
// row, column and general filters are one engine: tap (i, j) of a kW x kH
// kernel (row-major) meets src(x + aX - i, y + aY - j); a row filter has
// kH = 1, a column filter kW = 1.
//
// Every destination sample is one accumulator that takes the taps in kernel
// order, row by row and left to right within a row: the first product, then
// acc + tap * sample for each further tap. Integer sums are 32-bit lanes that
// wrap; float and double sums are exactly that sequence of IEEE operations,
// the same at every level, alignment and thread count, and the same in the
// scalar form that serves rows narrower than one block of four vectors.
// A block of four vectors is computed at once; the last block of a row is
// moved back to end at the row's end (its samples are computed twice, with
// the same result), so no load reaches past the frame.

template <class In, class Tap, class Acc, int L>
inline void lin_block(Vec<Acc> (&acc)[4], const filt::LinJob& j, const In* base, int k) {
    using V = Vec<Acc>;
    const Tap* taps = static_cast<const Tap*>(j.taps);
    const std::ptrdiff_t ch = j.ch;
    // four accumulators in registers (an array here would live in memory)
    V a0, a1, a2, a3;
    for (int jj = 0; jj < j.kH; ++jj) {
        const In* r = row(base, j.srcStep, j.aY - jj) + std::ptrdiff_t(j.aX) * ch + k;
        const Tap* t = taps + std::size_t(jj) * j.kW;
        int ii = 0;
        if (jj == 0) {
            const V tv = set1<V>(Acc(t[0]));
            a0 = tv * load_conv<V>(r), a1 = tv * load_conv<V>(r + L);
            a2 = tv * load_conv<V>(r + 2 * L), a3 = tv * load_conv<V>(r + 3 * L);
            ii = 1;
        }
        for (; ii < j.kW; ++ii) {
            const In* p = r - ii * ch;
            const V tv = set1<V>(Acc(t[ii]));
            a0 = a0 + tv * load_conv<V>(p), a1 = a1 + tv * load_conv<V>(p + L);
            a2 = a2 + tv * load_conv<V>(p + 2 * L), a3 = a3 + tv * load_conv<V>(p + 3 * L);
        }
    }
    acc[0] = a0, acc[1] = a1, acc[2] = a2, acc[3] = a3;
}

// 8-bit samples with 16-bit taps, two taps of a kernel row at a time through
// the 16 x 16 into 32-bit multiply-add: the same 32-bit sums. j.pairs holds,
// per kernel row, the taps (i, i + 1) as one 32-bit word, tap i low (a lone
// last tap pairs with 0).
template <int L>
inline void lin_block_pairs(Vec<std::uint32_t> (&acc)[4], const filt::LinJob& j, const std::uint8_t* base, int k) {
    using I = Vec<std::int32_t>;
    using S = Vec<std::int16_t>;
    const std::int32_t* pairs = j.pairs;
    const std::ptrdiff_t ch = j.ch;
    const int per = (j.kW + 1) / 2;
    I a0 = zero<I>(), a1 = zero<I>(), a2 = zero<I>(), a3 = zero<I>();
    for (int jj = 0; jj < j.kH; ++jj) {
        const std::uint8_t* r = row(base, j.srcStep, j.aY - jj) + std::ptrdiff_t(j.aX) * ch + k;
        for (int q = 0; q < per; ++q) {
            const std::uint8_t* p0 = r - 2 * q * ch;
            const std::uint8_t* p1 = 2 * q + 1 < j.kW ? p0 - ch : p0;
            const S tp = bitcast<std::int16_t>(set1<I>(pairs[std::size_t(jj) * per + q]));
            const S x0 = load_widen<S>(p0), y0 = load_widen<S>(p1);
            const S x1 = load_widen<S>(p0 + 2 * L), y1 = load_widen<S>(p1 + 2 * L);
            a0 = a0 + madd(interleave_lo(x0, y0), tp), a1 = a1 + madd(interleave_hi(x0, y0), tp);
            a2 = a2 + madd(interleave_lo(x1, y1), tp), a3 = a3 + madd(interleave_hi(x1, y1), tp);
        }
    }
    unzip(a0, a1);
    unzip(a2, a3);
    acc[0] = bitcast<std::uint32_t>(a0), acc[1] = bitcast<std::uint32_t>(a1);
    acc[2] = bitcast<std::uint32_t>(a2), acc[3] = bitcast<std::uint32_t>(a3);
}

// The same sums one sample at a time, for the n samples of a short row.
template <class In, class Tap, class Acc>
inline void lin_scalar(Acc* out, const filt::LinJob& j, const In* base, int n) {
    const Tap* taps = static_cast<const Tap*>(j.taps);
    const std::ptrdiff_t ch = j.ch;
    for (int s = 0; s < n; ++s) {
        Acc a = 0;
        for (int jj = 0; jj < j.kH; ++jj) {
            const In* r = row(base, j.srcStep, j.aY - jj) + std::ptrdiff_t(j.aX) * ch + s;
            for (int ii = 0; ii < j.kW; ++ii) {
                const Acc p = Acc(taps[std::size_t(jj) * j.kW + ii]) * Acc(r[-ii * ch]);
                a = jj == 0 && ii == 0 ? p : a + p;
            }
        }
        out[s] = a;
    }
}

// Destination rows y0 .. y0 + rows - 1.
template <class In, class Tap, class Acc, Rule R, class D, bool AC>
void lin_rows(const filt::LinJob& j, int y0, int rows) {
    using V = Vec<Acc>;
    constexpr int L = V::kLanes, BL = 4 * L;
    using Res = decltype(fin<R, D>(j.fin, V{}, 0));
    const int n = j.n;
    for (int y = y0; y < y0 + rows; ++y) {
        const In* base = row(static_cast<const In*>(j.src), j.srcStep, y);
        D* out = row(static_cast<D*>(j.dst), j.dstStep, y);
        auto emit = [&](int k, const V (&acc)[4], int count) {
            Res r[4];
            for (int u = 0; u < 4; ++u) r[u] = fin<R, D>(j.fin, acc[u], k + u * L);
            put_block<D, AC>(out + k, r, count);
        };
        auto block = [&](V (&acc)[4], int k) {
            if constexpr (std::is_same<In, std::uint8_t>::value && std::is_same<Acc, std::uint32_t>::value)
                if (j.pairs) return lin_block_pairs<L>(acc, j, base, k);
            lin_block<In, Tap, Acc, L>(acc, j, base, k);
        };
        if (n >= BL) {
            V acc[4];
            int k = 0;
            for (; k + BL <= n; k += BL) {
                block(acc, k);
                emit(k, acc, BL);
            }
            if (k < n) {
                block(acc, n - BL);
                emit(n - BL, acc, BL);
            }
        } else {
            alignas(64) Acc loc[BL] = {};
            lin_scalar<In, Tap, Acc>(loc, j, base, n);
            V acc[4];
            for (int u = 0; u < 4; ++u) acc[u] = load<V>(loc + u * L);
            emit(0, acc, n);
        }
    }
}

// Sums and means of images, one Zel64f a channel. The row kernels are in
// statistics/stat_kernels.hpp (with the dot products' in dot_kernels.hpp),
// compiled once per level.
//
// Integer samples are summed exactly: vector lanes that cannot overflow
// between two emptyings into 64-bit totals, kept from row to row. The order
// does not matter for exact sums, so the lanes may run over any samples.
//
// Zel32f samples have two fixed orders, reproduced bit for bit at every level,
// width and alignment:
//  - fast (any hint but 2): sample i of a row goes to Zel32f lane i % P
//    (P = 12 for three channels, 16 otherwise), added in row order; at the end
//    of the row every lane, in ascending order, is widened and added to the
//    Zel64f total of its channel (lane % channels).
//  - accurate (hint 2): per channel, the samples of a row are widened to
//    Zel64f. A row of at least 16 pixels runs eight accumulators (pixel 8k+i
//    to accumulator i), the pixels past the last group of eight go pairwise to
//    accumulators 0 and 1; at the end of the row the accumulators fold
//    pairwise, ((a0+a2)+(a4+a6)) into the even total and ((a1+a3)+(a5+a7))
//    into the odd total. A shorter row adds pixel pairs straight to the even
//    and odd totals. The last pixel of an odd row goes to the even total.
//    The result is even + odd.
//
// A NaN result is the default quiet NaN. The mean divides by the pixel count
// as a 64-bit product (a 32-bit product
// wraps from 2^31 pixels on and gives a meaningless mean).
#pragma once

#include "statistics/stat.hpp"

#include <cstring>

#define ZEL_KERNELS "statistics/stat_kernels.hpp"
#define ZEL_KERNELS_2 "statistics/dot_kernels.hpp"
#include "core/simd/levels.hpp"

namespace zel {

template <class T, Layout L>
void sum_int(const T* pSrc, int step, ZeliSize roi, Zel64f* out) {
    constexpr int MC = channels(L);
    const Rows rows = rows_of<T>(roi, MC, step);
    LaneState st;
    const auto k = ZEL_PICK(lanes_row<Red::Sum, T, MC, false>);
    for (int r = 0; r < rows.h; ++r) k(row(pSrc, step, r), nullptr, rows.n, st, r == rows.h - 1);
    for (int c = 0; c < active(L); ++c)
        out[c] = std::is_signed<T>::value ? Zel64f((long long)st.total[c]) : Zel64f(st.total[c]);
}

template <Layout L>
void sum_32f(const Zel32f* pSrc, int step, ZeliSize roi, Zel64f* out, int hint) {
    constexpr int MC = channels(L);
    Zel64f total[4] = {0, 0, 0, 0};
    if (hint == zelAlgHintAccurate) {
        Zel64f odd[4] = {0, 0, 0, 0};
        const auto k = ZEL_PICK(f64_row<Term::Id, MC, false>);
        for (int r = 0; r < roi.height; ++r) k(row(pSrc, step, r), nullptr, roi.width, total, odd);
        for (int c = 0; c < MC; ++c) total[c] += odd[c];
    } else {
        const auto k = ZEL_PICK(f32_row<Term::Id, MC, false>);
        for (int r = 0; r < roi.height; ++r) k(row(pSrc, step, r), nullptr, row_samples(roi.width, MC), total);
    }
    for (int c = 0; c < active(L); ++c) out[c] = canonical(total[c]);
}

// ---- Entries ---------------------------------------------------------------

// Checks: source and result null, then size. Steps are not checked.
template <class T, Layout L, class... Hint>
ZelStatus sum(const T* pSrc, int srcStep, ZeliSize roi, Zel64f* pSum, Hint... hint) {
    if (any_null(pSrc, pSum)) return zelStatusNullPointer;
    if (bad_size(roi)) return zelStatusBadSize;
    Zel64f s[4];
    if constexpr (std::is_same<T, Zel32f>::value)
        sum_32f<L>(pSrc, srcStep, roi, s, hint...);
    else
        sum_int<T, L>(pSrc, srcStep, roi, s);
    for (int c = 0; c < active(L); ++c) pSum[c] = s[c];
    return zelStatusOk;
}

// One channel divides by the pixel count; the others multiply by its
// reciprocal, which may differ in the last bit.
template <class T, Layout L, class... Hint>
ZelStatus mean(const T* pSrc, int srcStep, ZeliSize roi, Zel64f* pMean, Hint... hint) {
    if (!pMean) return zelStatusNullPointer;
    Zel64f s[4];
    const ZelStatus st = sum<T, L>(pSrc, srcStep, roi, s, hint...);
    if (st != zelStatusOk) return st;
    const Zel64f count = Zel64f((long long)roi.width * roi.height);
    if (L == C1) {
        pMean[0] = s[0] / count;
    } else {
        const Zel64f inv = 1.0 / count;
        for (int c = 0; c < active(L); ++c) pMean[c] = s[c] * inv;
    }
    return zelStatusOk;
}

} // namespace zel

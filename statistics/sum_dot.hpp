// Dot products of two images (one Zel64f a channel) and weighted sums of a
// list of vectors.
//
// Samples are widened to Zel64f exactly and multiplied there. Order of the
// additions, the same at every level (the one-channel rows are kernels in
// dot_kernels.hpp):
//  - one channel, integer samples: product j of a row goes to accumulator
//    j % 8; at the end of the row ((a0+a1)+(a2+a3))+((a4+a5)+(a6+a7)) is added
//    to the total.
//  - one channel, Zel32f: two accumulators of two lanes, product j to lane
//    j % 4; at the end of the row (l0+l2)+(l1+l3) is added to the total.
//  - several channels: one accumulator a channel, pixels in row order, added
//    to the channel's total at the end of the row.
// A NaN result (also an output of the weighted sums) is the default quiet NaN.
#pragma once

#include "statistics/sum.hpp"

namespace zel {

// Several channels: one accumulator a channel, pixels in row order.
template <class T, int MC>
inline void dot_row(const T* a, const T* b, int w, Zel64f* total) {
    Zel64f acc[MC] = {};
    for (std::ptrdiff_t i = 0; i < row_samples(w, MC); i += MC)
        for (int c = 0; c < MC; ++c) acc[c] += Zel64f(a[i + c]) * Zel64f(b[i + c]);
    for (int c = 0; c < MC; ++c) total[c] += acc[c];
}

// Checks: any pointer null; then a size below one or a step of exactly zero,
// both reported as a bad size. Negative steps walk the rows upwards.
template <class T, Layout L>
ZelStatus dot_prod(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, ZeliSize roi, Zel64f* pDp) {
    if (any_null(pSrc1, pSrc2, pDp)) return zelStatusNullPointer;
    if (bad_size(roi) || src1Step == 0 || src2Step == 0) return zelStatusBadSize;
    constexpr int MC = channels(L);
    Zel64f total[4] = {0, 0, 0, 0};
    if constexpr (MC == 1 && std::is_same<T, Zel32f>::value) {
        const auto four = ZEL_PICK(dot4_rows<4>);
        const auto one = ZEL_PICK(dot4_rows<1>);
        for (int r = 0; r < roi.height; r += 4) {
            const int k = roi.height - r < 4 ? roi.height - r : 4;
            const Zel32f *a[4], *b[4];
            Zel64f rowSum[4];
            for (int i = 0; i < k; ++i) a[i] = row(pSrc1, src1Step, r + i), b[i] = row(pSrc2, src2Step, r + i);
            if (k == 4)
                four(a, b, roi.width, rowSum);
            else
                for (int i = 0; i < k; ++i) one(a + i, b + i, roi.width, rowSum + i);
            for (int i = 0; i < k; ++i) total[0] += rowSum[i];
        }
    } else if constexpr (MC == 1) {
        const auto k = ZEL_PICK(dot8_row<T>);
        for (int r = 0; r < roi.height; ++r) total[0] += k(row(pSrc1, src1Step, r), row(pSrc2, src2Step, r), roi.width);
    } else {
        for (int r = 0; r < roi.height; ++r)
            dot_row<T, MC>(row(pSrc1, src1Step, r), row(pSrc2, src2Step, r), roi.width, total);
    }
    for (int c = 0; c < active(L); ++c) pDp[c] = canonical(total[c]);
    return zelStatusOk;
}

// Checks: list, coefficients, destination and every list entry null; then a
// length or count below one. Long lists over long vectors split the outputs
// into bands, one a thread; every output depends on its own column only.
template <class T>
ZelStatus dot_prod_col(const T* const* ppSrcList, const T* pCoeffs, int srcCount, T* pDst, int len) {
    if (any_null(ppSrcList, pCoeffs, pDst)) return zelStatusNullPointer;
    for (int k = 0; k < srcCount; ++k)
        if (!ppSrcList[k]) return zelStatusNullPointer;
    if (len < 1 || srcCount < 1) return zelStatusBadSize;
    const bool fork = srcCount >= 256 && len >= 16 && (long long)srcCount * len >= 32768;
    const int team = fork ? thread_count() : 1;
    const auto k = ZEL_PICK(dot_col_band<T>);
    bands_frame(len, team, [&](int first, int n, int) {
        k(ppSrcList, pCoeffs, srcCount, pDst, first, n);
        return 0;
    });
    return zelStatusOk;
}

} // namespace zel

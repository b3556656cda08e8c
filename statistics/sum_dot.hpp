// Dot products of two images (one Zel64f a channel) and weighted sums of a
// list of vectors.
//
// Samples are widened to Zel64f exactly and multiplied there. Order of the
// additions, the same in vector and scalar code:
//  - one channel, integer samples: product j of a row goes to accumulator
//    j % 8; at the end of the row ((a0+a1)+(a2+a3))+((a4+a5)+(a6+a7)) is added
//    to the total.
//  - one channel, Zel32f: two accumulators of two lanes, product j to lane
//    j % 4; at the end of the row (l0+l2)+(l1+l3) is added to the total.
//  - several channels: one accumulator a channel, pixels in row order, added
//    to the channel's total at the end of the row.
#pragma once

#include "core/frame.hpp"

#include <cstring>

namespace zel {

template <class T>
inline Zel64f dot_row_c1(const T* a, const T* b, int n) {
    Zel64f acc[8] = {0, 0, 0, 0, 0, 0, 0, 0};
    int j = 0;
    for (; j + 8 <= n; j += 8)
        for (int i = 0; i < 8; ++i) acc[i] += Zel64f(a[j + i]) * Zel64f(b[j + i]);
    for (int i = 0; j < n; ++j, ++i) acc[i] += Zel64f(a[j]) * Zel64f(b[j]);
    return ((acc[0] + acc[1]) + (acc[2] + acc[3])) + ((acc[4] + acc[5]) + (acc[6] + acc[7]));
}

// Two Zel32f samples widened to Zel64f, from any address.
inline __m128d widen2(const Zel32f* p) {
    return _mm_cvtps_pd(_mm_castsi128_ps(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(p))));
}

// Zel32f, R rows side by side: each row keeps its own two accumulators, so
// the sums are those of one row at a time; the rows only share the loop,
// which hides the latency of the additions.
template <int R>
inline void dot_rows_32f(const Zel32f* const* a, const Zel32f* const* b, int n, Zel64f* rowSum) {
    __m128d lo[R], hi[R];
#pragma GCC unroll 4
    for (int r = 0; r < R; ++r) lo[r] = hi[r] = _mm_setzero_pd();
    int j = 0;
    for (; j + 4 <= n; j += 4)
#pragma GCC unroll 4
        for (int r = 0; r < R; ++r) {
            lo[r] = _mm_add_pd(lo[r], _mm_mul_pd(widen2(a[r] + j), widen2(b[r] + j)));
            hi[r] = _mm_add_pd(hi[r], _mm_mul_pd(widen2(a[r] + j + 2), widen2(b[r] + j + 2)));
        }
    for (int r = 0; r < R; ++r) {
        alignas(16) Zel64f lane[4];
        _mm_store_pd(lane, lo[r]);
        _mm_store_pd(lane + 2, hi[r]);
        for (int k = j, i = 0; k < n; ++k, ++i) lane[i] += Zel64f(a[r][k]) * Zel64f(b[r][k]);
        rowSum[r] = (lane[0] + lane[2]) + (lane[1] + lane[3]);
    }
}

template <class T, int MC>
inline void dot_row(const T* a, const T* b, int w, Zel64f* total) {
    Zel64f acc[MC] = {};
    for (int x = 0; x < w; ++x)
        for (int c = 0; c < MC; ++c) acc[c] += Zel64f(a[x * MC + c]) * Zel64f(b[x * MC + c]);
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
        for (int r = 0; r < roi.height; r += 4) {
            const int k = roi.height - r < 4 ? roi.height - r : 4;
            const Zel32f *a[4], *b[4];
            Zel64f rowSum[4];
            for (int i = 0; i < k; ++i) a[i] = row(pSrc1, src1Step, r + i), b[i] = row(pSrc2, src2Step, r + i);
            if (k == 4)
                dot_rows_32f<4>(a, b, roi.width, rowSum);
            else
                for (int i = 0; i < k; ++i) dot_rows_32f<1>(a + i, b + i, roi.width, rowSum + i);
            for (int i = 0; i < k; ++i) total[0] += rowSum[i];
        }
    } else {
        for (int r = 0; r < roi.height; ++r) {
            const T* a = row(pSrc1, src1Step, r);
            const T* b = row(pSrc2, src2Step, r);
            if constexpr (MC == 1)
                total[0] += dot_row_c1(a, b, roi.width);
            else
                dot_row<T, MC>(a, b, roi.width, total);
        }
    }
    for (int c = 0; c < active(L); ++c) pDp[c] = total[c];
    return zelStatusOk;
}

// ---- Weighted sum of a list of vectors -------------------------------------
// dst[j] = sum over k of src[k][j] * coeff[k], in the sample type. Per output,
// the terms are added in list order; when the destination is not 4-byte
// aligned, even and odd sources run in two sums that are added at the end.
// Destination samples are stored bytewise so that any address is fine.

template <class T>
inline void store_any(T* p, T v) { std::memcpy(p, &v, sizeof v); }

template <class T>
void dot_col_1th(const T* const* src, const T* coeff, int count, T* dst, int first, int len) {
    constexpr int B = 256;
    T acc[B], odd[B];
    const bool split = (reinterpret_cast<std::uintptr_t>(dst) & 3) != 0 && count >= 3;
    for (int j0 = first; j0 < first + len; j0 += B) {
        const int n = first + len - j0 < B ? first + len - j0 : B;
        const T* s0 = src[0] + j0;
        for (int j = 0; j < n; ++j) acc[j] = s0[j] * coeff[0];
        if (split) {
            const T* s1 = src[1] + j0;
            for (int j = 0; j < n; ++j) odd[j] = s1[j] * coeff[1];
        }
        for (int k = split ? 2 : 1; k < count; ++k) {
            const T* s = src[k] + j0;
            const T c = coeff[k];
            T* to = split && (k & 1) ? odd : acc;
            for (int j = 0; j < n; ++j) to[j] = to[j] + s[j] * c;
        }
        if (split)
            for (int j = 0; j < n; ++j) acc[j] = acc[j] + odd[j];
        for (int j = 0; j < n; ++j) store_any(dst + j0 + j, acc[j]);
    }
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
    bands_frame(len, team, [&](int first, int n, int) {
        dot_col_1th(ppSrcList, pCoeffs, srcCount, pDst, first, n);
        return 0;
    });
    return zelStatusOk;
}

} // namespace zel

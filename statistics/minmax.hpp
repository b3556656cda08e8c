// Extreme values of an image, per channel, and the pixelwise minimum and
// maximum of two images. The row kernels are in minmax_kernels.hpp, compiled
// once per level.
//
// The lane operation of Zel32f is that of the vector min/max instructions: it
// returns its second operand when either operand is NaN.
//  - Value scans (min, max, min-max) of Zel32f follow a lane model fixed by
//    sample position, the same at every level, width and alignment: sample i
//    of a row goes to lane i % P (P = 16, or 48 for three channels), the lanes
//    start with the row's first pixel and apply op(running, sample), so a NaN
//    sample replaces its lane's value until the next sample of that lane
//    replaces it again. At the end of the row the lanes of each channel
//    (lane % channels) fold in ascending order, and the row's result merges
//    into the running result as op(running, row).
//  - Value scans of integer samples do not depend on the order: their lanes
//    run from row to row and fold at the end.
//  - Index scans: for each row, the row's extreme with lanes that start at the
//    type's far end (for Zel32f the largest finite value, or its negative) and
//    apply op(sample, running), so NaN samples never enter a lane. A row
//    replaces the running result only when strictly better, so the top-most
//    row wins; that row alone is then searched from the left for the first
//    sample equal to the result, and that sample is the value reported (for
//    Zel32f zeros, its sign). When no sample matches (an image of only
//    infinities or NaN), x stays 0 and the far end is reported.
//  - Every: d = op(d, s) sample by sample, the destination sample first.
#pragma once

#include "statistics/stat.hpp"

#include <cfloat>
#include <limits>

namespace zel {

// The lane operation: the smaller (larger) of a and b, b when either is NaN.
template <bool MIN, class X>
inline X pick(X a, X b) {
    if constexpr (MIN) return a < b ? a : b;
    else return a > b ? a : b;
}

// Which extreme, and the far end an index scan starts from.
struct OpMin {
    static constexpr bool kMin = true;
    template <class T> static T far() {
        return std::is_floating_point<T>::value ? T(FLT_MAX) : std::numeric_limits<T>::max();
    }
};
struct OpMax {
    static constexpr bool kMin = false;
    template <class T> static T far() {
        return std::is_floating_point<T>::value ? T(-FLT_MAX) : std::numeric_limits<T>::lowest();
    }
};

} // namespace zel

#define ZEL_KERNELS "statistics/minmax_kernels.hpp"
#include "core/simd/levels.hpp"

namespace zel {

// ---- Value scans -------------------------------------------------------

// Extremes of the image into lo and hi (one a channel), as LO and HI ask.
template <class T, Layout L, bool LO, bool HI>
void value_scan(const T* pSrc, int step, ZeliSize roi, T* lo, T* hi) {
    constexpr int MC = channels(L);
    if constexpr (std::is_same<T, Zel32f>::value) {
        const auto k = ZEL_PICK(f32_extremes_row<MC, LO, HI>);
        for (int r = 0; r < roi.height; ++r) {
            float a[4], b[4];
            k(row(pSrc, step, r), row_samples(roi.width, MC), a, b);
            for (int c = 0; c < MC; ++c) {
                lo[c] = r == 0 ? a[c] : pick<true>(lo[c], a[c]);
                hi[c] = r == 0 ? b[c] : pick<false>(hi[c], b[c]);
            }
        }
    } else {
        for (int c = 0; c < MC; ++c) lo[c] = std::numeric_limits<T>::max(), hi[c] = std::numeric_limits<T>::lowest();
        LaneState st;
        const auto k = ZEL_PICK(int_extremes_row<T, MC, LO, HI>);
        const Rows rows = rows_of<T>(roi, MC, step);
        for (int r = 0; r < rows.h; ++r) k(row(pSrc, step, r), rows.n, st, r == rows.h - 1, lo, hi);
    }
}

// Checks: every pointer null, then size. Steps are not checked.
template <class T, Layout L, class Op>
ZelStatus extreme(const T* pSrc, int srcStep, ZeliSize roi, T* pRes) {
    if (any_null(pSrc, pRes)) return zelStatusNullPointer;
    if (bad_size(roi)) return zelStatusBadSize;
    T lo[4], hi[4];
    value_scan<T, L, Op::kMin, !Op::kMin>(pSrc, srcStep, roi, lo, hi);
    for (int c = 0; c < active(L); ++c) pRes[c] = Op::kMin ? lo[c] : hi[c];
    return zelStatusOk;
}

template <class T, Layout L>
ZelStatus min_max(const T* pSrc, int srcStep, ZeliSize roi, T* pMin, T* pMax) {
    if (any_null(pSrc, pMin, pMax)) return zelStatusNullPointer;
    if (bad_size(roi)) return zelStatusBadSize;
    T lo[4], hi[4];
    value_scan<T, L, true, true>(pSrc, srcStep, roi, lo, hi);
    for (int c = 0; c < active(L); ++c) {
        pMin[c] = lo[c];
        pMax[c] = hi[c];
    }
    return zelStatusOk;
}

// ---- Index scans -------------------------------------------------------

template <class T, Layout L, class Op>
ZelStatus extreme_index(const T* pSrc, int srcStep, ZeliSize roi, T* pRes, int* pIndexX, int* pIndexY) {
    if (any_null(pSrc, pRes, pIndexX, pIndexY)) return zelStatusNullPointer;
    if (bad_size(roi)) return zelStatusBadSize;
    constexpr int MC = channels(L), AC = active(L);
    const T far = Op::template far<T>();
    T best[4] = {far, far, far, far};
    int bestRow[4] = {0, 0, 0, 0};
    // Phase one: the extreme of every row; a row wins only when strictly better.
    LaneState st;
    const auto k = ZEL_PICK(index_row<T, MC, AC, Op::kMin>);
    const std::ptrdiff_t n = row_samples(roi.width, MC);
    for (int r = 0; r < roi.height; ++r) k(row(pSrc, srcStep, r), n, r, far, st, best, bestRow);
    // Phase two: the first matching pixel of the winning row, from the left.
    const auto find = ZEL_PICK(find_first<T, MC>);
    for (int c = 0; c < AC; ++c) {
        const T* p = row(pSrc, srcStep, bestRow[c]);
        const int x = find(p, roi.width, c, best[c]);
        pRes[c] = x < roi.width ? p[row_samples(x, MC) + c] : best[c];
        pIndexX[c] = x < roi.width ? x : 0;
        pIndexY[c] = bestRow[c];
    }
    return zelStatusOk;
}

// ---- Pixelwise minimum and maximum, in place ------------------------------
// srcDst = op(srcDst, src): for Zel32f the srcDst sample is the first operand.

// Alpha stays: only the three colour samples of a pixel are read and written.
template <class T, class Op>
inline void every_row_ac4(const T* s, T* d, int w) {
    for (std::ptrdiff_t i = 0; i < row_samples(w, 4); i += 4)
        for (int c = 0; c < 3; ++c) d[i + c] = pick<Op::kMin>(d[i + c], s[i + c]);
}

// Checks: pointers null, size, then either step below one.
template <class T, Layout L, class Op>
ZelStatus every(const T* pSrc, int srcStep, T* pSrcDst, int srcDstStep, ZeliSize roi) {
    if (any_null(pSrc, pSrcDst)) return zelStatusNullPointer;
    if (bad_size(roi)) return zelStatusBadSize;
    if (any_bad_step(srcStep, srcDstStep)) return zelStatusBadStep;
    if constexpr (L == AC4) {
        for (int r = 0; r < roi.height; ++r)
            every_row_ac4<T, Op>(row(pSrc, srcStep, r), row(pSrcDst, srcDstStep, r), roi.width);
    } else {
        const long long rowBytes = (long long)roi.width * channels(L) * sizeof(T);
        std::ptrdiff_t n = row_samples(roi.width, channels(L));
        int h = roi.height;
        if (contiguous(rowBytes, h, 0x7fffffffLL, srcStep, srcDstStep)) {
            n *= h;
            h = 1;
        }
        const auto k = ZEL_PICK(every_row<T, Op::kMin>);
        // rows of more than 2^30 samples go in pieces (the kernel counts in int)
        constexpr std::ptrdiff_t kPiece = std::ptrdiff_t(1) << 30;
        for (int r = 0; r < h; ++r)
            for (std::ptrdiff_t i = 0; i < n; i += kPiece)
                k(row(pSrc, srcStep, r) + i, row(pSrcDst, srcDstStep, r) + i, int(n - i < kPiece ? n - i : kPiece));
    }
    return zelStatusOk;
}

} // namespace zel

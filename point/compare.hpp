// Compare: a one-channel mask of 255 where a relation holds in every active
// channel of a pixel, 0 elsewhere. The relations are plain C++ comparisons,
// so a NaN makes each of them false. The entries check and pick the relation;
// the row kernels are in compare_kernels.hpp, compiled once per level.
#pragma once

#include "core/frame.hpp"

#include <cmath>
#include <cstring>
#include <type_traits>

namespace zel {

// The relations; Eps is |a - b| in single precision at or below eps.
enum class Rel { LT, LE, EQ, GE, GT, Eps };

template <Rel R, class T>
inline bool holds(T a, T b, T eps) {
    if constexpr (R == Rel::LT) return a < b;
    else if constexpr (R == Rel::LE) return a <= b;
    else if constexpr (R == Rel::EQ) return a == b;
    else if constexpr (R == Rel::GE) return a >= b;
    else if constexpr (R == Rel::GT) return a > b;
    else return std::fabs(a - b) <= eps;
}

} // namespace zel

#define ZEL_KERNELS "point/compare_kernels.hpp"
#include "core/simd/levels.hpp"

namespace zel {

// Rows of two images (CONST false) or of an image and one constant a channel
// in b[0..3] (CONST true).
template <class T, Layout L, Rel R, bool CONST>
inline void cmp_rows(const T* a, int as, const T* b, int bs, Zel8u* d, int ds, ZeliSize roi, T eps = T(0)) {
    // Rows without gaps make one long row.
    const long long pixelBytes = channels(L) * (long long)sizeof(T);
    if (contiguous(roi.width * pixelBytes, roi.height, 0x7fffffffLL * pixelBytes, as, CONST ? as : bs) &&
        contiguous(roi.width, roi.height, 0x7fffffffLL, ds))
        roi = {roi.width * roi.height, 1};
    const auto k = ZEL_PICK(cmp_row<T, channels(L), active(L), R, CONST>);
    for (int r = 0; r < roi.height; ++r) k(row(a, as, r), CONST ? b : row(b, bs, r), row(d, ds, r), roi.width, eps);
}

// Greater-or-equal and greater run the less-or-equal and less kernels with
// the sources exchanged. An operator above 4 does nothing.
template <class T, Layout L>
ZelStatus compare(const T* src1, int src1Step, const T* src2, int src2Step, Zel8u* dst, int dstStep, ZeliSize roi, int op) {
    if (any_null(src1, src2, dst)) return zelStatusNullPointer;
    if (any_bad_step(src1Step, src2Step, dstStep)) return zelStatusBadStep;
    if (bad_size(roi)) return zelStatusBadSize;
    switch (op) {
    case zelCmpLess: cmp_rows<T, L, Rel::LT, false>(src1, src1Step, src2, src2Step, dst, dstStep, roi); break;
    case zelCmpLessEq: cmp_rows<T, L, Rel::LE, false>(src1, src1Step, src2, src2Step, dst, dstStep, roi); break;
    case zelCmpEq: cmp_rows<T, L, Rel::EQ, false>(src1, src1Step, src2, src2Step, dst, dstStep, roi); break;
    case zelCmpGreaterEq: cmp_rows<T, L, Rel::LE, false>(src2, src2Step, src1, src1Step, dst, dstStep, roi); break;
    case zelCmpGreater: cmp_rows<T, L, Rel::LT, false>(src2, src2Step, src1, src1Step, dst, dstStep, roi); break;
    default: break;
    }
    return zelStatusOk;
}

// The constant is a value in C1 forms and an array of the active channels
// otherwise.
template <class T, Layout L, class V>
inline bool load_consts(V value, T (&k)[4]) {
    if constexpr (std::is_pointer<V>::value) {
        if (!value) return false;
        for (int c = 0; c < active(L); ++c) k[c] = value[c];
    } else {
        k[0] = value;
    }
    return true;
}

template <class T, Layout L, class V>
ZelStatus compare_c(const T* src, int srcStep, V value, Zel8u* dst, int dstStep, ZeliSize roi, int op) {
    T k[4] = {};
    if (any_null(src, dst) || !load_consts<T, L>(value, k)) return zelStatusNullPointer;
    if (any_bad_step(srcStep, dstStep)) return zelStatusBadStep;
    if (bad_size(roi)) return zelStatusBadSize;
    if constexpr (std::is_same<T, Zel8u>::value) {
        // Greater than 255 and less than 0 never hold: the mask is all 0 and
        // the source is not read.
        bool never = false;
        for (int c = 0; c < active(L); ++c) never |= (op == zelCmpGreater && k[c] == 255) || (op == zelCmpLess && k[c] == 0);
        if (never) {
            for (int r = 0; r < roi.height; ++r) std::memset(row(dst, dstStep, r), 0, std::size_t(roi.width));
            return zelStatusOk;
        }
    }
    switch (op) {
    case zelCmpLess: cmp_rows<T, L, Rel::LT, true>(src, srcStep, k, 0, dst, dstStep, roi); break;
    case zelCmpLessEq: cmp_rows<T, L, Rel::LE, true>(src, srcStep, k, 0, dst, dstStep, roi); break;
    case zelCmpEq: cmp_rows<T, L, Rel::EQ, true>(src, srcStep, k, 0, dst, dstStep, roi); break;
    case zelCmpGreaterEq: cmp_rows<T, L, Rel::GE, true>(src, srcStep, k, 0, dst, dstStep, roi); break;
    case zelCmpGreater: cmp_rows<T, L, Rel::GT, true>(src, srcStep, k, 0, dst, dstStep, roi); break;
    default: break;
    }
    return zelStatusOk;
}

template <Layout L>
ZelStatus compare_eps(const Zel32f* src1, int src1Step, const Zel32f* src2, int src2Step, Zel8u* dst, int dstStep, ZeliSize roi,
                      Zel32f eps) {
    if (any_null(src1, src2, dst)) return zelStatusNullPointer;
    if (any_bad_step(src1Step, src2Step, dstStep)) return zelStatusBadStep;
    if (bad_size(roi)) return zelStatusBadSize;
    if (eps < 0) return zelStatusBadEpsilon;
    cmp_rows<Zel32f, L, Rel::Eps, false>(src1, src1Step, src2, src2Step, dst, dstStep, roi, eps);
    return zelStatusOk;
}

template <Layout L, class V>
ZelStatus compare_eps_c(const Zel32f* src, int srcStep, V value, Zel8u* dst, int dstStep, ZeliSize roi, Zel32f eps) {
    Zel32f k[4] = {};
    if (any_null(src, dst) || !load_consts<Zel32f, L>(value, k)) return zelStatusNullPointer;
    if (any_bad_step(srcStep, dstStep)) return zelStatusBadStep;
    if (bad_size(roi)) return zelStatusBadSize;
    if (eps < 0) return zelStatusBadEpsilon;
    cmp_rows<Zel32f, L, Rel::Eps, true>(src, srcStep, k, 0, dst, dstStep, roi, eps);
    return zelStatusOk;
}

} // namespace zel

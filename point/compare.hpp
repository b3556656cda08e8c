// Compare: a one-channel mask of 255 where a relation holds in every active
// channel of a pixel, 0 elsewhere. The relations are plain C++ comparisons,
// so a NaN makes each of them false; the row loops are written for the
// compiler's vectoriser, which keeps those semantics.
#pragma once

#include "core/frame.hpp"

#include <cmath>
#include <cstring>

namespace zel {

struct CmpLT { template <class T> bool operator()(T a, T b) const { return a < b; } };
struct CmpLE { template <class T> bool operator()(T a, T b) const { return a <= b; } };
struct CmpEQ { template <class T> bool operator()(T a, T b) const { return a == b; } };
struct CmpGE { template <class T> bool operator()(T a, T b) const { return a >= b; } };
struct CmpGT { template <class T> bool operator()(T a, T b) const { return a > b; } };

// |a - b| in single precision at or below eps; NaN fails.
struct CmpEps {
    float eps;
    bool operator()(float a, float b) const { return std::fabs(a - b) <= eps; }
};

// A channel-constant operand: sample c of pixel x is v[c].
template <class T>
struct Consts {
    T v[4];
};

template <class T, int C>
inline T operand(const T* row, int x, int c) { return row[std::ptrdiff_t(x) * C + c]; }
template <class T, int C>
inline T operand(const Consts<T>& k, int, int c) { return k.v[c]; }

// d[x] = 255 if op(a, b) holds in all A channels of pixel x.
template <class T, int C, int A, class Op, class B>
inline void cmp_row(const T* a, B b, Zel8u* d, int w, Op op) {
    if constexpr (A == 1) {
#pragma omp simd
        for (int x = 0; x < w; ++x) d[x] = op(a[x], operand<T, C>(b, x, 0)) ? 255 : 0;
    } else {
#pragma omp simd
        for (int x = 0; x < w; ++x) {
            bool all = true;
            for (int c = 0; c < A; ++c) all &= op(a[std::ptrdiff_t(x) * C + c], operand<T, C>(b, x, c));
            d[x] = all ? 255 : 0;
        }
    }
}

template <class T, Layout L, class Op>
inline void cmp_images(const T* a, int as, const T* b, int bs, Zel8u* d, int ds, ZeliSize roi, Op op) {
    for (int r = 0; r < roi.height; ++r)
        cmp_row<T, channels(L), active(L)>(row(a, as, r), row(b, bs, r), row(d, ds, r), roi.width, op);
}

template <class T, Layout L, class Op>
inline void cmp_const(const T* a, int as, const Consts<T>& k, Zel8u* d, int ds, ZeliSize roi, Op op) {
    for (int r = 0; r < roi.height; ++r) cmp_row<T, channels(L), active(L)>(row(a, as, r), k, row(d, ds, r), roi.width, op);
}

// Greater-or-equal and greater run the less-or-equal and less kernels with
// the sources exchanged. An operator above 4 does nothing.
template <class T, Layout L>
ZelStatus compare(const T* src1, int src1Step, const T* src2, int src2Step, Zel8u* dst, int dstStep, ZeliSize roi, int op) {
    if (any_null(src1, src2, dst)) return zelStatusNullPointer;
    if (any_bad_step(src1Step, src2Step, dstStep)) return zelStatusBadStep;
    if (bad_size(roi)) return zelStatusBadSize;
    switch (op) {
    case zelCmpLess: cmp_images<T, L>(src1, src1Step, src2, src2Step, dst, dstStep, roi, CmpLT{}); break;
    case zelCmpLessEq: cmp_images<T, L>(src1, src1Step, src2, src2Step, dst, dstStep, roi, CmpLE{}); break;
    case zelCmpEq: cmp_images<T, L>(src1, src1Step, src2, src2Step, dst, dstStep, roi, CmpEQ{}); break;
    case zelCmpGreaterEq: cmp_images<T, L>(src2, src2Step, src1, src1Step, dst, dstStep, roi, CmpLE{}); break;
    case zelCmpGreater: cmp_images<T, L>(src2, src2Step, src1, src1Step, dst, dstStep, roi, CmpLT{}); break;
    default: break;
    }
    return zelStatusOk;
}

// The constant is a value in C1 forms and an array of the active channels
// otherwise.
template <class T, Layout L, class V>
inline bool load_consts(V value, Consts<T>& k) {
    if constexpr (std::is_pointer<V>::value) {
        if (!value) return false;
        for (int c = 0; c < active(L); ++c) k.v[c] = value[c];
    } else {
        k.v[0] = value;
    }
    return true;
}

template <class T, Layout L, class V>
ZelStatus compare_c(const T* src, int srcStep, V value, Zel8u* dst, int dstStep, ZeliSize roi, int op) {
    Consts<T> k{};
    if (any_null(src, dst) || !load_consts<T, L>(value, k)) return zelStatusNullPointer;
    if (any_bad_step(srcStep, dstStep)) return zelStatusBadStep;
    if (bad_size(roi)) return zelStatusBadSize;
    if constexpr (std::is_same<T, Zel8u>::value) {
        // Greater than 255 and less than 0 never hold: the mask is all 0 and
        // the source is not read.
        bool never = false;
        for (int c = 0; c < active(L); ++c) never |= (op == zelCmpGreater && k.v[c] == 255) || (op == zelCmpLess && k.v[c] == 0);
        if (never) {
            for (int r = 0; r < roi.height; ++r) std::memset(row(dst, dstStep, r), 0, std::size_t(roi.width));
            return zelStatusOk;
        }
    }
    switch (op) {
    case zelCmpLess: cmp_const<T, L>(src, srcStep, k, dst, dstStep, roi, CmpLT{}); break;
    case zelCmpLessEq: cmp_const<T, L>(src, srcStep, k, dst, dstStep, roi, CmpLE{}); break;
    case zelCmpEq: cmp_const<T, L>(src, srcStep, k, dst, dstStep, roi, CmpEQ{}); break;
    case zelCmpGreaterEq: cmp_const<T, L>(src, srcStep, k, dst, dstStep, roi, CmpGE{}); break;
    case zelCmpGreater: cmp_const<T, L>(src, srcStep, k, dst, dstStep, roi, CmpGT{}); break;
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
    cmp_images<Zel32f, L>(src1, src1Step, src2, src2Step, dst, dstStep, roi, CmpEps{eps});
    return zelStatusOk;
}

template <Layout L, class V>
ZelStatus compare_eps_c(const Zel32f* src, int srcStep, V value, Zel8u* dst, int dstStep, ZeliSize roi, Zel32f eps) {
    Consts<Zel32f> k{};
    if (any_null(src, dst) || !load_consts<Zel32f, L>(value, k)) return zelStatusNullPointer;
    if (any_bad_step(srcStep, dstStep)) return zelStatusBadStep;
    if (bad_size(roi)) return zelStatusBadSize;
    if (eps < 0) return zelStatusBadEpsilon;
    cmp_const<Zel32f, L>(src, srcStep, k, dst, dstStep, roi, CmpEps{eps});
    return zelStatusOk;
}

} // namespace zel

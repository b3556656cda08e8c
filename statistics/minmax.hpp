// Extreme values of an image, per channel, and the pixelwise minimum and
// maximum of two images.
//
// Lane model of the scans (vector and scalar code follow it exactly, at any
// width and alignment): sample i of a row goes to lane i % P, where P is a
// whole number of 16-byte vectors and of pixels (two vectors for one and four
// channels, three for three channels). At the end of the row the lanes of
// each channel (lane % channels) fold in ascending order, and the row's result
// merges into the running result.
//
// The lane operation of Zel32f is that of the vector min/max instructions: it
// returns its second operand when either operand is NaN.
//  - Value scans (min, max, min-max) start each row's lanes with the row's
//    first pixel and apply op(running, sample): a NaN sample replaces its
//    lane's value until the next sample of that lane replaces it again.
//  - Index scans start their lanes with the type's far end (for Zel32f the
//    largest finite value, or its negative) and apply op(sample, running), so
//    NaN samples never enter a lane. A row replaces the running result only
//    when strictly better, so the top-most row wins; that row alone is then
//    searched from the left for the first sample equal to the result. When no
//    sample matches (an image of only infinities or NaN), x stays 0.
#pragma once

#include "core/frame.hpp"

#include <cfloat>
#include <limits>

namespace zel {

// ---- Vector operations per sample type ----------------------------------

template <class T>
struct Vec;

template <class T, class V>
struct VecInt {
    using type = __m128i;
    static constexpr int N = 16 / int(sizeof(T));
    static __m128i load(const T* p) { return _mm_loadu_si128(reinterpret_cast<const __m128i*>(p)); }
    static void store(T* p, __m128i v) { _mm_storeu_si128(reinterpret_cast<__m128i*>(p), v); }
};
template <>
struct Vec<Zel8u> : VecInt<Zel8u, Vec<Zel8u>> {
    static __m128i min(__m128i a, __m128i b) { return _mm_min_epu8(a, b); }
    static __m128i max(__m128i a, __m128i b) { return _mm_max_epu8(a, b); }
};
template <>
struct Vec<Zel16u> : VecInt<Zel16u, Vec<Zel16u>> {
    static __m128i min(__m128i a, __m128i b) { return _mm_min_epu16(a, b); }
    static __m128i max(__m128i a, __m128i b) { return _mm_max_epu16(a, b); }
};
template <>
struct Vec<Zel16s> : VecInt<Zel16s, Vec<Zel16s>> {
    static __m128i min(__m128i a, __m128i b) { return _mm_min_epi16(a, b); }
    static __m128i max(__m128i a, __m128i b) { return _mm_max_epi16(a, b); }
};
template <>
struct Vec<Zel32f> {
    using type = __m128;
    static constexpr int N = 4;
    static __m128 load(const Zel32f* p) { return _mm_loadu_ps(p); }
    static void store(Zel32f* p, __m128 v) { _mm_storeu_ps(p, v); }
    static __m128 min(__m128 a, __m128 b) { return _mm_min_ps(a, b); }
    static __m128 max(__m128 a, __m128 b) { return _mm_max_ps(a, b); }
};

// Scalar forms with the same NaN behaviour: the second operand unless the
// first is strictly smaller (larger).
template <class T>
inline T min2(T a, T b) { return a < b ? a : b; }
template <class T>
inline T max2(T a, T b) { return a > b ? a : b; }

// The lane operations: which extreme, and which operand is the running value.
struct OpMin {
    template <class T, class V> static V v(V run, V x) { return Vec<T>::min(run, x); }
    template <class T> static T s(T run, T x) { return min2(run, x); }
    template <class T> static bool better(T a, T b) { return a < b; }
    template <class T> static T far() {
        return std::is_floating_point<T>::value ? T(FLT_MAX) : std::numeric_limits<T>::max();
    }
};
struct OpMax {
    template <class T, class V> static V v(V run, V x) { return Vec<T>::max(run, x); }
    template <class T> static T s(T run, T x) { return max2(run, x); }
    template <class T> static bool better(T a, T b) { return a > b; }
    template <class T> static T far() {
        return std::is_floating_point<T>::value ? T(-FLT_MAX) : std::numeric_limits<T>::lowest();
    }
};
// Sample first: a NaN sample leaves the lane as it was.
template <class Op>
struct SampleFirst : Op {
    template <class T, class V> static V v(V run, V x) { return Op::template v<T>(x, run); }
    template <class T> static T s(T run, T x) { return Op::s(x, run); }
};

template <class T, int MC>
struct Lanes {
    static constexpr int kVec = MC == 3 ? 3 : 2;
    static constexpr int P = kVec * Vec<T>::N;
    alignas(16) T v[P];
    void fill(const T* init) {   // init: one value a channel
        for (int l = 0; l < P; ++l) v[l] = init[l % MC];
    }
    template <class Op>
    T fold(int c) const {
        T r = v[c];
        for (int l = c + MC; l < P; l += MC) r = Op::s(r, v[l]);
        return r;
    }
};

// Runs one row of n samples through one or two lane sets (Op2 = void: one).
template <class T, int MC, class Op1, class Op2 = void>
inline void scan_row(const T* p, int n, Lanes<T, MC>& a, Lanes<T, MC>* b = nullptr) {
    using VT = Vec<T>;
    using V = typename VT::type;
    constexpr int K = Lanes<T, MC>::kVec, N = VT::N, P = Lanes<T, MC>::P;
    V va[K], vb[K];
    for (int k = 0; k < K; ++k) va[k] = VT::load(a.v + k * N);
    if constexpr (!std::is_void<Op2>::value)
        for (int k = 0; k < K; ++k) vb[k] = VT::load(b->v + k * N);
    int i = 0;
    for (; i + P <= n; i += P)
        for (int k = 0; k < K; ++k) {
            const V x = VT::load(p + i + k * N);
            va[k] = Op1::template v<T>(va[k], x);
            if constexpr (!std::is_void<Op2>::value) vb[k] = Op2::template v<T>(vb[k], x);
        }
    for (int k = 0; k < K; ++k) VT::store(a.v + k * N, va[k]);
    if constexpr (!std::is_void<Op2>::value)
        for (int k = 0; k < K; ++k) VT::store(b->v + k * N, vb[k]);
    for (int l = 0; i < n; ++i, ++l) {
        a.v[l] = Op1::s(a.v[l], p[i]);
        if constexpr (!std::is_void<Op2>::value) b->v[l] = Op2::s(b->v[l], p[i]);
    }
}

// ---- Value scans -------------------------------------------------------

// Extremes of the image under Op1 (and Op2) into r1 (and r2), one a channel.
template <class T, Layout L, class Op1, class Op2 = void>
void value_scan(const T* pSrc, int step, ZeliSize roi, T* r1, T* r2 = nullptr) {
    constexpr int MC = channels(L);
    Lanes<T, MC> a, b;
    for (int r = 0; r < roi.height; ++r) {
        const T* p = row(pSrc, step, r);
        a.fill(p);
        if constexpr (!std::is_void<Op2>::value) b.fill(p);
        scan_row<T, MC, Op1, Op2>(p, roi.width * MC, a, &b);
        for (int c = 0; c < active(L); ++c) {
            const T x = a.template fold<Op1>(c);
            r1[c] = r == 0 ? x : Op1::s(r1[c], x);
            if constexpr (!std::is_void<Op2>::value) {
                const T y = b.template fold<Op2>(c);
                r2[c] = r == 0 ? y : Op2::s(r2[c], y);
            }
        }
    }
}

// Checks: every pointer null, then size. Steps are not checked.
template <class T, Layout L, class Op>
ZelStatus extreme(const T* pSrc, int srcStep, ZeliSize roi, T* pRes) {
    if (any_null(pSrc, pRes)) return zelStatusNullPointer;
    if (bad_size(roi)) return zelStatusBadSize;
    T r[4] = {};
    value_scan<T, L, Op>(pSrc, srcStep, roi, r);
    for (int c = 0; c < active(L); ++c) pRes[c] = r[c];
    return zelStatusOk;
}

template <class T, Layout L>
ZelStatus min_max(const T* pSrc, int srcStep, ZeliSize roi, T* pMin, T* pMax) {
    if (any_null(pSrc, pMin, pMax)) return zelStatusNullPointer;
    if (bad_size(roi)) return zelStatusBadSize;
    T lo[4] = {}, hi[4] = {};
    value_scan<T, L, OpMin, OpMax>(pSrc, srcStep, roi, lo, hi);
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
    using Run = SampleFirst<Op>;
    T best[4] = {}, init[4] = {};
    int bestRow[4] = {0, 0, 0, 0};
    for (int c = 0; c < MC; ++c) init[c] = Op::template far<T>();
    Lanes<T, MC> a;
    // Phase one: the extreme of every row; a row wins only when strictly better.
    for (int r = 0; r < roi.height; ++r) {
        a.fill(init);
        scan_row<T, MC, Run>(row(pSrc, srcStep, r), roi.width * MC, a);
        for (int c = 0; c < AC; ++c) {
            const T x = a.template fold<Run>(c);
            if (r == 0 || Op::better(x, best[c])) {
                best[c] = x;
                bestRow[c] = r;
            }
        }
    }
    // Phase two: the first matching pixel of the winning row, from the left.
    int bestX[4] = {0, 0, 0, 0};
    for (int c = 0; c < AC; ++c) {
        const T* p = row(pSrc, srcStep, bestRow[c]);
        for (int x = 0; x < roi.width; ++x)
            if (p[x * MC + c] == best[c]) {
                bestX[c] = x;
                break;
            }
    }
    for (int c = 0; c < AC; ++c) {
        pRes[c] = best[c];
        pIndexX[c] = bestX[c];
        pIndexY[c] = bestRow[c];
    }
    return zelStatusOk;
}

// ---- Pixelwise minimum and maximum, in place ------------------------------
// srcDst = op(srcDst, src): for Zel32f the srcDst sample is the first operand.

template <class T, class Op>
inline void every_row(const T* s, T* d, std::ptrdiff_t n) {
    using VT = Vec<T>;
    constexpr int N = VT::N;
    std::ptrdiff_t i = 0;
    for (; i + 2 * N <= n; i += 2 * N) {
        const auto a = Op::template v<T>(VT::load(d + i), VT::load(s + i));
        const auto b = Op::template v<T>(VT::load(d + i + N), VT::load(s + i + N));
        VT::store(d + i, a);
        VT::store(d + i + N, b);
    }
    for (; i < n; ++i) d[i] = Op::s(d[i], s[i]);
}

// Alpha stays: only the three colour samples of a pixel are read and written.
template <class T, class Op>
inline void every_row_ac4(const T* s, T* d, int w) {
    for (int x = 0; x < w; ++x)
        for (int c = 0; c < 3; ++c) d[4 * x + c] = Op::s(d[4 * x + c], s[4 * x + c]);
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
        std::ptrdiff_t n = std::ptrdiff_t(roi.width) * channels(L);
        int h = roi.height;
        if (contiguous(rowBytes, h, 0x7fffffffLL, srcStep, srcDstStep)) {
            n *= h;
            h = 1;
        }
        for (int r = 0; r < h; ++r) every_row<T, Op>(row(pSrc, srcStep, r), row(pSrcDst, srcDstStep, r), n);
    }
    return zelStatusOk;
}

} // namespace zel

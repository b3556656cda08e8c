// Norms of one image, of the difference of two, and of the difference relative
// to the second: Inf (largest magnitude), L1 (sum of magnitudes), L2 (root of
// the sum of squares), one Zel64f a channel. The row kernels are in
// stat_kernels.hpp and norm_kernels.hpp, compiled once per level.
//
// Integer samples are accumulated exactly, in vector lanes that cannot
// overflow between two emptyings into 64-bit totals, kept from row to row and
// converted once at the end; the order does not matter. The 16s Inf norm of
// one image counts -32768 as 32767 and stops reading after the first row in
// which every channel has reached 32767. The Zel32f Inf norm is the largest
// magnitude; NaN samples are passed over, so the order does not matter either.
//
// Zel32f L1 and L2 follow fixed orders, the same at every level, width and
// alignment:
//  - fast (any hint but 2): the terms (|a|, a^2, |a - b|, (a - b)^2 in
//    Zel32f) go to float lanes as in the fast sums of sum.hpp: term i of a row
//    to lane i % P (P = 12 for three channels, 16 otherwise), lanes added
//    in ascending order to the Zel64f totals of their channels at the end of
//    the row.
//  - accurate (hint 2): the terms in Zel64f (a - b taken after widening)
//    accumulate exactly as the accurate sums of sum.hpp (eight accumulators
//    on rows of 16 pixels or more, the pairs after the last group of eight to
//    accumulators 0 and 1, even and odd totals, the last pixel of an odd row
//    to the even total).
// The root of L2 is taken in Zel64f; a NaN result is the default quiet NaN.
#pragma once

#include "statistics/stat.hpp"

#include <cfloat>
#include <cmath>
#include <tuple>

#define ZEL_KERNELS "statistics/stat_kernels.hpp"
#define ZEL_KERNELS_2 "statistics/norm_kernels.hpp"
#include "core/simd/levels.hpp"

namespace zel {

enum class NormKind { Inf, L1, L2 };

namespace norm_detail {

// out[c] = max |a - b|, sum |a - b| or sum (a - b)^2 of channel c (b absent
// unless DIFF), over integer samples.
template <class T, NormKind K, Layout L, bool DIFF>
void int_pass(const T* a, int sa, const T* b, int sb, ZeliSize roi, double* out) {
    constexpr int CH = channels(L);
    constexpr bool SAT = std::is_same<T, Zel16s>::value && !DIFF && K == NormKind::Inf;
    constexpr Red R = SAT ? Red::InfSat : K == NormKind::Inf ? Red::Inf : K == NormKind::L1 ? Red::L1 : Red::L2;
    // (the saturated maximum keeps its rows: it empties its lanes every row to
    // see whether every channel has reached 32767, after which no row can
    // change it and none is read)
    const Rows rows = SAT ? Rows{row_samples(roi.width, CH), roi.height}
                          : DIFF ? rows_of<T>(roi, CH, sa, sb) : rows_of<T>(roi, CH, sa);
    LaneState st;
    const auto k = ZEL_PICK(lanes_row<R, T, CH, DIFF>);
    for (int r = 0; r < rows.h; ++r) {
        k(row(a, sa, r), DIFF ? row(b, sb, r) : nullptr, rows.n, st, SAT || r == rows.h - 1);
        if (SAT) {
            bool all = true;
            for (int c = 0; c < active(L); ++c) all = all && st.total[c] >= 32767u;
            if (all) break;
        }
    }
    for (int c = 0; c < CH; ++c) out[c] = double(st.total[c]);
}

template <NormKind K, Layout L, bool DIFF>
void f32_pass(const Zel32f* a, int sa, const Zel32f* b, int sb, ZeliSize roi, int hint, double* out) {
    constexpr int CH = channels(L);
    constexpr Term F = K == NormKind::L1 ? Term::Abs : Term::Sq;
    const std::ptrdiff_t n = row_samples(roi.width, CH);
    double tot[CH] = {}, odd[CH] = {};
    if constexpr (K == NormKind::Inf) {
        LaneState st;
        float mx[CH] = {};
        const auto k = ZEL_PICK(f32_inf_row<CH, DIFF>);
        for (int r = 0; r < roi.height; ++r) k(row(a, sa, r), DIFF ? row(b, sb, r) : nullptr, n, st, r == roi.height - 1, mx);
        for (int c = 0; c < CH; ++c) tot[c] = mx[c];
    } else if (hint == zelAlgHintAccurate) {
        const auto k = ZEL_PICK(f64_row<F, CH, DIFF>);
        for (int r = 0; r < roi.height; ++r) k(row(a, sa, r), DIFF ? row(b, sb, r) : nullptr, roi.width, tot, odd);
        for (int c = 0; c < CH; ++c) tot[c] += odd[c];
    } else {
        const auto k = ZEL_PICK(f32_row<F, CH, DIFF>);
        for (int r = 0; r < roi.height; ++r) k(row(a, sa, r), DIFF ? row(b, sb, r) : nullptr, n, tot);
    }
    for (int c = 0; c < CH; ++c) out[c] = tot[c];
}

template <class T, NormKind K, Layout L, bool DIFF>
inline void pass(const T* a, int sa, const T* b, int sb, ZeliSize roi, int hint, double* out) {
    if constexpr (std::is_same<T, Zel32f>::value)
        f32_pass<K, L, DIFF>(a, sa, b, sb, roi, hint, out);
    else
        int_pass<T, K, L, DIFF>(a, sa, b, sb, roi, out);
}

template <NormKind K>
inline double finish(double v) { return canonical(K == NormKind::L2 ? std::sqrt(v) : v); }

// Checks of every norm: pointers, size, steps.
template <class... P, class... S>
inline ZelStatus check(ZeliSize roi, std::tuple<const P*...> ptrs, S... steps) {
    if (std::apply([](auto... p) { return any_null(p...); }, ptrs)) return zelStatusNullPointer;
    if (bad_size(roi)) return zelStatusBadSize;
    if (any_bad_step(steps...)) return zelStatusBadStep;
    return zelStatusOk;
}
} // namespace norm_detail

// zeliNorm_<K>_<T>_<L>
template <NormKind K, class T, Layout L>
ZelStatus norm(const T* pSrc, int srcStep, ZeliSize roi, Zel64f* pValue, ZelHintAlgorithm hint = 0) {
    if (ZelStatus st = norm_detail::check(roi, std::make_tuple(pSrc, (const Zel64f*)pValue), srcStep)) return st;
    double v[4];
    norm_detail::pass<T, K, L, false>(pSrc, srcStep, nullptr, 0, roi, hint, v);
    for (int c = 0; c < active(L); ++c) pValue[c] = norm_detail::finish<K>(v[c]);
    return zelStatusOk;
}

// zeliNormDiff_<K>_<T>_<L> (REL false) and zeliNormRel_<K>_<T>_<L> (REL
// true): the norm of the difference, for Rel over the norm of pSrc2. A
// denominator below the smallest normal Zel64f leaves the numerator alone and
// raises the warning for that channel; every channel is written.
template <NormKind K, class T, Layout L, bool REL>
ZelStatus norm_two(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, ZeliSize roi, Zel64f* pValue,
                   ZelHintAlgorithm hint = 0) {
    if (ZelStatus st = norm_detail::check(roi, std::make_tuple(pSrc1, pSrc2, (const Zel64f*)pValue), src1Step, src2Step))
        return st;
    double num[4], den[4];
    norm_detail::pass<T, K, L, true>(pSrc1, src1Step, pSrc2, src2Step, roi, hint, num);
    if (REL) norm_detail::pass<T, K, L, false>(pSrc2, src2Step, nullptr, 0, roi, hint, den);
    ZelStatus st = zelStatusOk;
    for (int c = 0; c < active(L); ++c) {
        const bool zero = REL && den[c] < DBL_MIN;
        if (zero) st = zelStatusDivisionByZeroWarning;
        pValue[c] = norm_detail::finish<K>(REL && !zero ? num[c] / den[c] : num[c]);
    }
    return st;
}

template <NormKind K, class T, Layout L>
ZelStatus norm_diff(const T* a, int sa, const T* b, int sb, ZeliSize roi, Zel64f* v, ZelHintAlgorithm hint = 0) {
    return norm_two<K, T, L, false>(a, sa, b, sb, roi, v, hint);
}
template <NormKind K, class T, Layout L>
ZelStatus norm_rel(const T* a, int sa, const T* b, int sb, ZeliSize roi, Zel64f* v, ZelHintAlgorithm hint = 0) {
    return norm_two<K, T, L, true>(a, sa, b, sb, roi, v, hint);
}

} // namespace zel

// General two-dimensional filter: every form of zeliFilter, zeliFilter32f
// and the Round forms, and the size queries of their buffers. Checks, in
// this order: null pointers, sizes, the divisor, steps (the source's rows
// hold the frame), the round mode, the buffer.
#pragma once

#include "filter/linear.hpp"

namespace zel {
namespace filt {

struct Geom {
    ZeliSize roi, k;
    ZeliPoint a;
};

inline LinJob geom_job(const void* src, int ss, void* dst, int ds, const Geom& g, int ch, const void* taps) {
    LinJob j;
    j.src = src, j.srcStep = ss, j.dst = dst, j.dstStep = ds;
    j.n = g.roi.width * ch, j.ch = ch;
    j.kW = g.k.width, j.kH = g.k.height, j.aX = g.a.x, j.aY = g.a.y, j.taps = taps;
    return j;
}

// The checks every form shares, up to the steps: 0 when they pass.
// divisor: nullptr for the forms without one.
template <class S, class D, class K>
inline ZelStatus geom_checks(const S* src, int ss, const D* dst, int ds, const Geom& g, const K* kernel, const int* divisor,
                             int ch) {
    if (any_null(src, dst, kernel)) return zelStatusNullPointer;
    if (bad_size(g.roi) || bad_size(g.k)) return zelStatusBadSize;
    if (divisor && *divisor == 0) return zelStatusBadDivisor;
    if (short_step(ss, (long long)g.roi.width + g.k.width - 1, ch * int(sizeof(S))) ||
        short_step(ds, g.roi.width, ch * int(sizeof(D))))
        return zelStatusBadStep;
    return zelStatusOk;
}

inline long long taps_of(ZeliSize k) { return (long long)k.width * k.height; }
inline bool bad_mode(int m) { return m < 0 || m > 2; }

// Float kernels on any source and destination type: the float sum converted
// to nearest, ties to even, with saturation (stored as it is for float).
template <class S, class D, Layout L>
ZelStatus filter_f32(const S* src, int ss, D* dst, int ds, ZeliSize roi, const Zel32f* kernel, ZeliSize ks, ZeliPoint anchor) {
    constexpr int CH = channels(L);
    const Geom g{roi, ks, anchor};
    if (const ZelStatus st = geom_checks<S, D>(src, ss, dst, ds, g, kernel, nullptr, CH)) return st;
    constexpr bool single = std::is_same<S, Zel8s>::value || std::is_same<S, Zel32s>::value || !std::is_same<S, D>::value;
    const LinJob j = geom_job(src, ss, dst, ds, g, CH, kernel);
    lin_run<S, Zel32f, float, std::is_same<D, Zel32f>::value ? Rule::Same : Rule::Near, D, L == AC4>(
        j, roi.height, single ? 1 : team_if(size_gate(roi)));
    return zelStatusOk;
}

// 16u, and 16s but in C1: taps scaled by 1 / divisor, then the float-kernel form.
template <class T, Layout L>
ZelStatus filter_scaled(const T* src, int ss, T* dst, int ds, ZeliSize roi, const Zel32s* kernel, ZeliSize ks,
                        ZeliPoint anchor, int divisor) {
    if (!kernel) return zelStatusNullPointer;
    if (bad_size(ks)) return zelStatusBadSize;
    if (divisor == 0) return zelStatusBadDivisor;
    const long long count = taps_of(ks);
    if (count > 0x7fffffff) return zelStatusMemAlloc;
    Table<float> taps{int(count)};
    if (!taps.ok(int(count))) return zelStatusMemAlloc;
    scale_taps(taps.get(), kernel, int(count), divisor);
    return filter_f32<T, T, L>(src, ss, dst, ds, roi, taps.get(), ks, anchor);
}

// Integer kernels with a divisor: 8u sums 32-bit integers; 16s C1 sums 64-bit
// integers (in 32-bit lanes while no sum can pass 2^31).
template <class T, Layout L>
ZelStatus filter_int(const T* src, int ss, T* dst, int ds, ZeliSize roi, const Zel32s* kernel, ZeliSize ks, ZeliPoint anchor,
                     int divisor) {
    constexpr int CH = channels(L);
    const Geom g{roi, ks, anchor};
    if (const ZelStatus st = geom_checks<T, T>(src, ss, dst, ds, g, kernel, &divisor, CH)) return st;
    LinJob j = geom_job(src, ss, dst, ds, g, CH, kernel);
    j.fin = divisor_of(divisor);
    const int team = team_if(size_gate(roi));
    if (std::is_same<T, Zel8u>::value) {
        const TapPairs pairs(j, kernel);
        if (!pairs.ok) return zelStatusMemAlloc;
        lin_run<T, Zel32s, std::uint32_t, Rule::Div, T, L == AC4>(j, roi.height, team);
        return zelStatusOk;
    }
    if (std::is_same<T, Zel16s>::value && tap_weight(kernel, taps_of(ks)) >= 65536)
        lin_run_i64<T, Zel32s, T, L == AC4>(j, Rule::Div, roi.height, team);
    else
        lin_run<T, Zel32s, std::uint32_t, Rule::Div, T, L == AC4>(j, roi.height, team);
    return zelStatusOk;
}

// The caller's buffer of the Round and 64f forms: the taps in the sum's type,
// laid out once at its first aligned byte and read by the whole team.
template <class A, class K>
inline A* lay_taps(Zel8u* buffer, const K* kernel, long long count) {
    A* t = align_ptr(reinterpret_cast<A*>(buffer), 16);
    for (long long i = 0; i < count; ++i) t[i] = A(kernel[i]);
    return t;
}

template <class T, Layout L>
ZelStatus filter_64f(const T* src, int ss, T* dst, int ds, ZeliSize roi, const Zel64f* kernel, ZeliSize ks, ZeliPoint anchor,
                     Zel8u* buffer) {
    const Geom g{roi, ks, anchor};
    if (const ZelStatus st = geom_checks<T, T>(src, ss, dst, ds, g, kernel, nullptr, 1)) return st;
    if (!buffer) return zelStatusNullPointer;
    const LinJob j = geom_job(src, ss, dst, ds, g, 1, lay_taps<double>(buffer, kernel, taps_of(ks)));
    lin_run<T, double, double, Rule::Same, T, false>(j, roi.height, team_if(size_gate(roi)));
    return zelStatusOk;
}

// Round forms: integer kernels with a divisor (K = Zel16s: 8u sums in 32
// bits; K = Zel32s: 64-bit sums, in 32-bit lanes while they fit), or float
// kernels (DIV false), each with a round mode.
template <class T, class K, Layout L, bool DIV>
ZelStatus filter_round(const T* src, int ss, T* dst, int ds, ZeliSize roi, const K* kernel, ZeliSize ks, ZeliPoint anchor,
                       int divisor, int mode, Zel8u* buffer) {
    constexpr int CH = channels(L);
    const Geom g{roi, ks, anchor};
    if (const ZelStatus st = geom_checks<T, T>(src, ss, dst, ds, g, kernel, DIV ? &divisor : nullptr, CH)) return st;
    if (bad_mode(mode)) return zelStatusBadRoundMode;
    if (!buffer) return zelStatusNullPointer;
    const int team = team_if(size_gate(roi));
    if constexpr (!DIV) {
        LinJob j = geom_job(src, ss, dst, ds, g, CH, lay_taps<float>(buffer, kernel, taps_of(ks)));
        j.fin.mode = mode;
        lin_run<T, float, float, Rule::RoundF, T, L == AC4>(j, roi.height, team);
    } else {
        Zel32s* taps = lay_taps<Zel32s>(buffer, kernel, taps_of(ks));
        LinJob j = geom_job(src, ss, dst, ds, g, CH, taps);
        j.fin = divisor_of(divisor);
        j.fin.mode = mode;
        j.fin.dquot = std::is_same<K, Zel16s>::value;
        if constexpr (std::is_same<T, Zel8u>::value) {
            // the pairs follow the taps in the buffer: its size leaves room for both
            const TapPairs pairs(j, taps, taps + taps_of(ks));
            lin_run<T, Zel32s, std::uint32_t, Rule::RoundI, T, L == AC4>(j, roi.height, team);
            return zelStatusOk;
        }
        const unsigned long long biggest = std::is_same<T, Zel16u>::value ? 65535 : 32768;
        if (std::is_same<K, Zel32s>::value && tap_weight(kernel, taps_of(ks)) * biggest >= 0x80000000ull)
            lin_run_i64<T, Zel32s, T, L == AC4>(j, Rule::RoundI, roi.height, team);
        else
            lin_run<T, Zel32s, std::uint32_t, Rule::RoundI, T, L == AC4>(j, roi.height, team);
    }
    return zelStatusOk;
}

template <class T, Layout L>
ZelStatus filter_round32f(const T* src, int ss, T* dst, int ds, ZeliSize roi, const Zel32f* kernel, ZeliSize ks,
                          ZeliPoint anchor, int mode, Zel8u* buffer) {
    return filter_round<T, Zel32f, L, false>(src, ss, dst, ds, roi, kernel, ks, anchor, 0, mode, buffer);
}

// ---- Buffer sizes -----------------------------------------------------------------------------------
// Bytes a Round form's buffer needs for ownGetNumThreads() threads (F: 0
// Round16s_8u, 1 Round32s_16s, 2 Round32s_16u, 3 Round32f). Every formula
// grows by at least 16 bytes a tap: a kernel above 2^27 taps, or any answer
// that does not fit 32 bits, is refused as zelStatusBadSize.
inline ZelStatus answer_size(long long per, int* out) {
    const long long n = thread_count();
    if (per > 0x7fffffff || per * n > 0x7fffffff) return zelStatusBadSize;
    *out = int(per * n);
    return zelStatusOk;
}
template <int F, Layout L>
ZelStatus round_bufsize(ZeliSize ks, int width, int* size) {
    if (!size) return zelStatusNullPointer;
    if (bad_size(ks) || width < 1) return zelStatusBadSize;
    const long long A = taps_of(ks), R = width;
    if (A > (1ll << 27)) return zelStatusBadSize;
    long long per;
    if (L == C1) per = F == 0 ? (4 * A + R) * 4 + 15 : F == 1 ? (4 * A + R) * 4 + 31 : (4 * A + 2 * R) * 4 + 43;
    else if (L == C3) per = F == 0 ? (4 * A + 3 * R) * 4 + 15 : F == 1 ? (4 * A + 3 * R) * 4 + 31 : (4 * A + 6 * R) * 4 + 43;
    else per = F == 0 ? (A + R) * 16 + 15 : F == 1 ? (A + R) * 16 + 31 : F == 2 ? (4 * A + 8 * R) * 4 + 43 : (4 * A + 8 * R) * 4 + 15;
    return answer_size(per, size);
}
inline ZelStatus bufsize_64f(ZeliSize ks, int width, int* size) {
    if (!size) return zelStatusNullPointer;
    if (bad_size(ks) || width < 1) return zelStatusBadSize;
    if (taps_of(ks) > (1ll << 27)) return zelStatusBadSize;
    const long long kW = ks.width, kH = ks.height;
    return answer_size((((kW + 2) >> 1) * 32 + 4 * kW) * kH + 15, size);
}

} // namespace filt
} // namespace zel

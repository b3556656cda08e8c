// Threshold: samples on one side of a level become the level or a value.
// Each rule is a comparison on the sample, so a comparison with NaN is false
// and the sample stays. The entries check, spread the per-channel parameters
// and walk the rows; the row kernels are in threshold_kernels.hpp, compiled
// once per level. The 16u members with a gate fork a team over bands of rows
// and may stream their results past the cache.
#pragma once

#include "core/chunks.hpp"
#include "core/frame.hpp"

#include <algorithm>
#include <cmath>
#include <type_traits>

namespace zel {

// ---- Per-channel parameters ---------------------------------------------
// A parameter is a value in C1 forms and an array of the active channels
// otherwise.
template <class T>
struct ChannelParams {
    T v[4];
};

template <class T, int A, class P>
inline bool load_params(P p, ChannelParams<T>& out) {
    if constexpr (std::is_pointer<P>::value) {
        if (!p) return false;
        for (int c = 0; c < A; ++c) out.v[c] = p[c];
    } else {
        out.v[0] = p;
    }
    return true;
}

template <class P>
inline bool null_param(P p) {
    if constexpr (std::is_pointer<P>::value) return p == nullptr;
    else return false;
}

// ---- Rules ---------------------------------------------------------------
// GT: x above t gives t. LT: x below t gives t. GTVal: x above t gives v.
// LTVal: x below t gives v. LTGT: x below t gives v, x above t2 gives v2 (the
// upper level is not below the lower one, so at most one side holds).
enum class Thr { GT, LT, GTVal, LTVal, LTGT };

// The levels and values of a call, channel by channel and repeated over
// enough samples for any phase plus one vector of the widest level, so that a
// kernel loads the parameters of a vector of samples from its phase.
template <class T>
struct ThrArgs {
    static constexpr int kSpan = 64 + 4;
    T t[kSpan], v[kSpan], t2[kSpan], v2[kSpan];

    // From the parameters of the A active channels of C-sample pixels; the
    // entries of inactive channels are never chosen.
    ThrArgs(int C, int A, const ChannelParams<T>& lt, const ChannelParams<T>& lv, const ChannelParams<T>& gt = {},
            const ChannelParams<T>& gv = {}) {
        for (int j = 0; j < kSpan; ++j) {
            const int c = j % C;
            t[j] = c < A ? lt.v[c] : T(0), v[j] = c < A ? lv.v[c] : T(0);
            t2[j] = c < A ? gt.v[c] : T(0), v2[j] = c < A ? gv.v[c] : T(0);
        }
    }
};

// The cache test of the 16u forms: asked above 0x40000 bytes, streaming above
// half the cache, never in place.
inline bool threshold_nontemporal(unsigned long long volume, bool inPlace) {
    if (inPlace || volume <= 0x40000) return false;
    long long cache = 0;
    return cache_size(cache) && volume > (unsigned long long)(cache / 2);
}

} // namespace zel

#define ZEL_KERNELS "point/threshold_kernels.hpp"
#include "core/simd/levels.hpp"

namespace zel {

// Runs rule R over the image. Gate > 0: fork over bands of rows when width and
// height reach the gate and more than one thread is allowed, and take the
// non-temporal choice.
template <class T, Layout L, int Gate, Thr R>
void threshold_image(const T* src, int srcStep, T* dst, int dstStep, ZeliSize roi, const ThrArgs<T>& args) {
    constexpr int C = channels(L), A = active(L);
    bool nt = false;
    int team = 1;
    if constexpr (Gate > 0) {
        nt = threshold_nontemporal(std::uint64_t(roi.width) * std::uint64_t(roi.height) * C * sizeof(T),
                                   static_cast<const void*>(src) == static_cast<const void*>(dst));
        if (roi.width >= Gate && roi.height >= Gate) {
            const int n = thread_count();
            if (n > 1) team = n;
        }
    }
    // Rows without gaps make one long row where no team shares them out.
    const long long pixelBytes = C * (long long)sizeof(T);
    if (team == 1 && contiguous(roi.width * pixelBytes, roi.height, 0x7fffffffLL * pixelBytes, srcStep, dstStep))
        roi = {roi.width * roi.height, 1};
    const auto k = ZEL_PICK(threshold_row<T, C, A, R>);
    const StreamCopy put = nt ? ZEL_PICK(stream_copy) : nullptr;
    const int w = roi.width;
    bands_frame(roi.height, team, [&](int first, int rows, int) {
        for (int r = first; r < first + rows; ++r) {
            const T* s = row(src, srcStep, r);
            chunked_row(row(dst, dstStep, r), w, C, put, A < C,
                        [&](T* out, int x0, int n) { k(s + std::ptrdiff_t(x0) * C, out, n, args); });
        }
        if (put) stream_fence();
        return 0;
    });
}

// ---- Entries ---------------------------------------------------------------
// Plain: null, size, step, null level array, operator. SizeFirst: size and
// step before null.
template <class T, Layout L, int Gate, bool SizeFirst, class P>
ZelStatus threshold(const T* src, int srcStep, T* dst, int dstStep, ZeliSize roi, P level, int op) {
    if (!SizeFirst && any_null(src, dst)) return zelStatusNullPointer;
    if (bad_size(roi)) return zelStatusBadSize;
    if (any_bad_step(srcStep, dstStep)) return zelStatusBadStep;
    if (SizeFirst && any_null(src, dst)) return zelStatusNullPointer;
    if (null_param(level)) return zelStatusNullPointer;
    if (op != zelCmpLess && op != zelCmpGreater) return zelStatusBadMode;
    ChannelParams<T> t{};
    load_params<T, active(L)>(level, t);
    const ThrArgs<T> args(channels(L), active(L), t, t);
    if (op == zelCmpGreater) threshold_image<T, L, Gate, Thr::GT>(src, srcStep, dst, dstStep, roi, args);
    else threshold_image<T, L, Gate, Thr::LT>(src, srcStep, dst, dstStep, roi, args);
    return zelStatusOk;
}

// Val: operator first of all, then null, size, step.
template <class T, Layout L, int Gate, class P>
ZelStatus threshold_val(const T* src, int srcStep, T* dst, int dstStep, ZeliSize roi, P level, P value, int op) {
    if (op != zelCmpLess && op != zelCmpGreater) return zelStatusBadMode;
    if (any_null(src, dst) || null_param(level) || null_param(value)) return zelStatusNullPointer;
    if (bad_size(roi)) return zelStatusBadSize;
    if (any_bad_step(srcStep, dstStep)) return zelStatusBadStep;
    ChannelParams<T> t{}, v{};
    load_params<T, active(L)>(level, t);
    load_params<T, active(L)>(value, v);
    const ThrArgs<T> args(channels(L), active(L), t, v);
    if (op == zelCmpGreater) threshold_image<T, L, Gate, Thr::GTVal>(src, srcStep, dst, dstStep, roi, args);
    else threshold_image<T, L, Gate, Thr::LTVal>(src, srcStep, dst, dstStep, roi, args);
    return zelStatusOk;
}

// LTValGTVal: null, size, step, then the upper level below the lower one in
// any active channel.
template <class T, Layout L, int Gate, class P>
ZelStatus threshold_ltgt(const T* src, int srcStep, T* dst, int dstStep, ZeliSize roi, P levelLT, P valueLT, P levelGT,
                         P valueGT) {
    if (any_null(src, dst) || null_param(levelLT) || null_param(valueLT) || null_param(levelGT) || null_param(valueGT))
        return zelStatusNullPointer;
    if (bad_size(roi)) return zelStatusBadSize;
    if (any_bad_step(srcStep, dstStep)) return zelStatusBadStep;
    ChannelParams<T> tl{}, vl{}, tg{}, vg{};
    load_params<T, active(L)>(levelLT, tl);
    load_params<T, active(L)>(valueLT, vl);
    load_params<T, active(L)>(levelGT, tg);
    load_params<T, active(L)>(valueGT, vg);
    for (int c = 0; c < active(L); ++c)
        if (tg.v[c] < tl.v[c]) return zelStatusBadThreshold;
    threshold_image<T, L, Gate, Thr::LTGT>(src, srcStep, dst, dstStep, roi, ThrArgs<T>(channels(L), active(L), tl, vl, tg, vg));
    return zelStatusOk;
}

// Exported shapes over a full form F: `r` appends a fixed operator (Op >= 0),
// `i` repeats the in-place image as source and destination.
template <auto F, int Op = -1>
struct entry {
    template <class... A>
    static ZelStatus r(A... a) {
        if constexpr (Op < 0) return F(a...);
        else return F(a..., Op);
    }
    template <class T, class... A>
    static ZelStatus i(T* p, int step, ZeliSize roi, A... a) {
        return r(p, step, p, step, roi, a...);
    }
};

// ---- Otsu's level ----------------------------------------------------------
// Between-class variance over the histogram, in double precision; each bin
// stands for its midpoint, and on equal variance the first level stays.
inline ZelStatus otsu_threshold(const Zel8u* src, int srcStep, ZeliSize roi, Zel8u* threshold) {
    if (any_null(src, threshold)) return zelStatusNullPointer;
    if (bad_size(roi)) return zelStatusBadSize;
    if (srcStep < roi.width) return zelStatusBadStep;
    // Four partial counts break the dependency between equal neighbours.
    std::uint32_t part[4][256] = {};
    double h[256] = {};
    const long long flushRows = std::max(1LL, 0xffffffffLL / roi.width); // no partial count can wrap
    long long sinceFlush = 0;
    for (int r = 0; r < roi.height; ++r) {
        const Zel8u* s = row(src, srcStep, r);
        int x = 0;
        for (; x + 4 <= roi.width; x += 4) ++part[0][s[x]], ++part[1][s[x + 1]], ++part[2][s[x + 2]], ++part[3][s[x + 3]];
        for (; x < roi.width; ++x) ++part[0][s[x]];
        if (++sinceFlush == flushRows || r == roi.height - 1) {
            sinceFlush = 0;
            for (int i = 0; i < 256; ++i) {
                h[i] += double(part[0][i]) + double(part[1][i]) + double(part[2][i]) + double(part[3][i]);
                part[0][i] = part[1][i] = part[2][i] = part[3][i] = 0;
            }
        }
    }
    constexpr double eps = 1.1920928955078125e-07;
    constexpr double oneMinusEps = 0.9999998807907104;
    double total = 0;
    for (int i = 0; i < 256; ++i) total += h[i];
    const double inv = std::fabs(total) > eps ? 1.0 / total : 0.0;
    double sum = 0;
    for (int i = 0; i < 256; ++i) sum += (i + 0.5) * h[i];
    const double mean = inv * sum;
    double w1 = 0, m1 = 0, best = 0, level = 0;
    for (int i = 0; i < 256; ++i) {
        const double p = inv * h[i];
        const double m1w = m1 * w1;
        w1 = w1 + p;
        const double w2 = 1.0 - w1;
        if (std::min(w1, w2) < eps || std::max(w1, w2) > oneMinusEps) continue;
        m1 = (m1w + p * (i + 0.5)) / w1;
        const double d = m1 - (mean - w1 * m1) / w2;
        const double v = w2 * w1 * d * d;
        if (v > best) level = i + 0.5, best = v;
    }
    *threshold = static_cast<Zel8u>(int(level));
    return zelStatusOk;
}

} // namespace zel

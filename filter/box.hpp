// Box filter and sliding sums: the mean (or the plain sum) of a rectangle of
// source pixels around every destination pixel, by running sums whose cost
// does not grow with the mask (box_kernels.hpp). The entries here check the
// arguments in the family's order, choose the mean formula of the path the
// type, layout and mask select (fin.hpp), the team, the in-place route, and
// run the rows in the neighbourhood frame (frame.hpp).
#pragma once

#include "filter/fin.hpp"
#include "filter/frame.hpp"

#include <cstring>

namespace zel {
namespace filt {

// Sum strategies of the kernels (see box_kernels.hpp); they depend on the
// mask alone, never on the level or the team.
constexpr int kFreshW = 4;       // integer horizontal sums: direct up to this mask width
constexpr int kFreshHInt = 2;    // integer column sums: plain every row up to this height
constexpr int kFreshHFloat = 4;  // float column sums: plain every row up to this height
constexpr int kFreshWFloat = 12; // float horizontal sums: plain up to this mask width
constexpr int kFreshRows = 16;   // rows summed at once by a plain column sum
constexpr int kSegment = 64;     // pixels between restarts of a running float row sum
inline int restart_block(int mH) { return mH > 8 ? 4 * mH : 32; } // rows between float column restarts

// One call's rows: the frame's origin (the first sample of the window of the
// destination's first pixel) and the destination, or the image in place.
struct BoxJob {
    const void* src = nullptr;
    int srcStep = 0;
    void* dst = nullptr;
    int dstStep = 0;
    int width = 0, mW = 1, mH = 1;
    std::uint32_t bias = 0; // added to every sample entering a sum (16s: 32768)
    FinP fin;
    int ringRows = 0;           // in place: rows of the ring (0: out of place)
    std::size_t ringStride = 0; // samples between ring rows
};

// One worker's state: column sums, row sums, the ring.
template <class Acc, class D>
struct BoxState {
    Acc* col = nullptr;
    Acc* sums = nullptr;
    D* ring = nullptr;
};

// Room a block of four vectors may read or write past a row's end, and the
// zero samples kept before the column sums.
constexpr std::size_t kPadBytes = 256;
constexpr std::size_t kFront = 16;

template <class Acc, class D>
inline BoxState<Acc, D> lay_box(Carve& c, const BoxJob& j, int ch) {
    const unsigned long long nc = ((unsigned long long)j.width + j.mW - 1) * ch, pad = kPadBytes / sizeof(Acc) + ch;
    const unsigned long long cap = std::size_t(-1) / 4; // larger counts fail the carve
    auto cnt = [&](unsigned long long v) { return std::size_t(v < cap ? v : cap); };
    BoxState<Acc, D> st;
    // kFront zero samples before the column sums: the running row sums read col[i - ch]
    st.col = c.take<Acc>(cnt(nc + pad + kFront), 64);
    if (st.col) st.col += kFront;
    st.sums = c.take<Acc>(cnt((unsigned long long)j.width * ch + pad), 64);
    if (j.ringRows) st.ring = c.take<D>(cnt((unsigned long long)j.ringRows * j.ringStride), 64);
    if (st.col && c.ok()) {
        // the pads are read as whole vectors: keep them defined
        std::memset(st.col - kFront, 0, cnt(nc + pad + kFront) * sizeof(Acc));
        std::memset(st.sums, 0, cnt((unsigned long long)j.width * ch + pad) * sizeof(Acc));
    }
    return st;
}

} // namespace filt
} // namespace zel

#define ZEL_KERNELS "filter/fin_kernels.hpp"
#define ZEL_KERNELS_2 "filter/box_kernels.hpp"
#include "core/simd/levels.hpp"

namespace zel {
namespace filt {

// ---- Plans: the mean formula and the team of a call --------------------------------------
struct BoxPlan {
    Rule rule = Rule::MulShift;
    FinP fin;
    std::uint32_t bias = 0;
    int team = 1;
};

// The general 8-bit multiplier: S * mul + 2^(shift - 1) >> shift.
inline FinP mul_shift(std::uint32_t mul, std::uint32_t add, int shift) {
    FinP p;
    p.mul = mul, p.add = add, p.shift = shift;
    return p;
}
inline FinP general_8u(int mW, int mH) {
    const int a = mW * mH;
    if (mW + mH == 3) return mul_shift(4096, 4096, 13);
    if (a == 1) return mul_shift(4096, 2048, 12);
    const float r = 1.0f / float(a);
    std::uint32_t t = std::uint32_t((long long)round_even(double(r) * 4294967295.0));
    int n = 0;
    while (!(t & 0x80000000u) && n < 24) t <<= 1, ++n;
    const int shift = n + 12;
    return mul_shift((t >> 20) + 1, 1u << (shift - 1), shift);
}

inline FinP scale(float f) {
    FinP p;
    p.f = f;
    return p;
}

// IP: in place; copied: the in-place call runs from a copy of its frame.
template <class T, Layout L>
inline BoxPlan box_plan(ZeliSize roi, ZeliSize m, bool ip, bool copied) {
    BoxPlan b;
    const int a = m.width * m.height;
    const bool m33 = m.width == 3 && m.height == 3, m55 = m.width == 5 && m.height == 5, m77 = m.width == 7 && m.height == 7;
    const int fork = thread_count();
    if constexpr (std::is_same<T, Zel8u>::value) {
        if (a > 8100) {
            b.rule = Rule::TruncF, b.fin = scale(1.0f / float(a));
        } else if (L == C4) {
            b.fin = m33 ? mul_shift(29127, 0, 18) : m55 ? mul_shift(10485, 0, 18) : general_8u(m.width, m.height);
        } else if (ip && !copied) {
            if (L == C1) b.fin = m33 ? mul_shift(7282, 0, 16) : m55 ? mul_shift(2622, 0, 16) : general_8u(m.width, m.height);
            else b.fin = m33 ? mul_shift(29128, 0, 18) : general_8u(m.width, m.height);
        } else if (ip) {
            b.fin = general_8u(m.width, m.height);
        } else if (m33) {
            b.fin = mul_shift(29128, 0, 18);
        } else if (m55 && L != AC4) {
            b.fin = mul_shift(20971, 262144, 19);
        } else if (m77 && L == C1) {
            b.fin = mul_shift(10700, 262144, 19);
        } else {
            b.fin = general_8u(m.width, m.height);
        }
        if (L == C4) b.team = (m33 || m55) && a <= 8100 ? 1 : fork;
        else b.team = team_if(area_gate(roi));
    } else if constexpr (std::is_same<T, Zel16s>::value) {
        b.rule = Rule::Bias16Near, b.bias = 32768, b.fin = scale(1.0f / float(a));
        if (L == C4 && (m33 || m55)) b.rule = Rule::Bias16Trunc, b.fin = scale(m33 ? 1.0f / 9.0f : 1.0f / 25.0f);
        if (L == C1 && m77) {
            b.rule = Rule::Near16Tail, b.bias = 0, b.fin = scale(1.0f / 49.0f);
            b.fin.body = roi.width - roi.width % 8;
        }
        if (L == C4) b.team = m33 || m55 ? 1 : fork;
        else b.team = team_if(area_gate(roi));
    } else if constexpr (std::is_same<T, Zel16u>::value) {
        b.rule = Rule::Near32s, b.fin = scale(1.0f / float(a)), b.team = 1;
    } else if constexpr (std::is_same<T, Zel32f>::value) {
        b.rule = Rule::Scale;
        b.fin = scale(L == C1 && !ip ? 1.0f / (float(m.width) * float(m.height)) : 1.0f / float(a));
        if (L == C1) b.team = team_if(size_gate(roi));
        else if (L == C4) b.team = m33 ? 1 : fork;
        else b.team = team_if(area_gate(roi));
    } else {
        b.rule = Rule::Scale, b.fin.fd = 1.0 / double(a), b.team = team_if(size_gate(roi));
    }
    if (ip) b.team = 1;
    return b;
}

template <class T> struct BoxAcc { using type = std::uint32_t; };
template <> struct BoxAcc<Zel32f> { using type = float; };
template <> struct BoxAcc<Zel64f> { using type = double; };

// Rules a sample type can take (the others are never instantiated).
template <class T, Rule R>
constexpr bool box_rule_of() {
    if constexpr (std::is_same<T, Zel8u>::value) return R == Rule::MulShift || R == Rule::TruncF;
    else if constexpr (std::is_same<T, Zel16s>::value)
        return R == Rule::Bias16Near || R == Rule::Bias16Trunc || R == Rule::Near16Tail;
    else if constexpr (std::is_same<T, Zel16u>::value) return R == Rule::Near32s;
    else return R == Rule::Scale;
}

// Runs the rows of a job with the kernel of rule R.
template <class T, class Acc, int CH, bool AC, class D, Rule R>
inline ZelStatus box_go(const BoxJob& j, int height, int team) {
    const auto k = ZEL_PICK(box_rows<T, Acc, CH, R, D, AC>);
    return run_bands(
        height, team, [&](Carve& c) { return lay_box<Acc, D>(c, j, CH); },
        [&](int first, int rows, const BoxState<Acc, D>& st) { k(j, st, first, rows); });
}

template <class T, Layout L>
inline ZelStatus box_run(const BoxJob& j, int height, const BoxPlan& b) {
    using Acc = typename BoxAcc<T>::type;
    constexpr int CH = channels(L);
    constexpr bool AC = L == AC4;
    switch (b.rule) {
#define ZEL_BOX_RULE(r)                                                               \
    case Rule::r:                                                                     \
        if constexpr (box_rule_of<T, Rule::r>()) return box_go<T, Acc, CH, AC, T, Rule::r>(j, height, b.team); \
        break;
        ZEL_BOX_RULE(MulShift)
        ZEL_BOX_RULE(TruncF)
        ZEL_BOX_RULE(Bias16Near)
        ZEL_BOX_RULE(Bias16Trunc)
        ZEL_BOX_RULE(Near16Tail)
        ZEL_BOX_RULE(Near32s)
        ZEL_BOX_RULE(Scale)
#undef ZEL_BOX_RULE
    default: break;
    }
    return zelStatusOk;
}

// ---- Images for the in-place route by copy --------------------------------------------------
#define ZEL_BOX_IMAGE(T)                                                                                     \
    inline Zel##T* image_alloc(const Zel##T*, int ch, int w, int h, int* step) {                            \
        return ch == 1 ? zeliMalloc_##T##_C1(w, h, step) : ch == 3 ? zeliMalloc_##T##_C3(w, h, step)        \
                                                                   : zeliMalloc_##T##_C4(w, h, step);       \
    }                                                                                                        \
    inline ZelStatus image_copy(const Zel##T* s, int ss, Zel##T* d, int ds, ZeliSize r, int ch) {           \
        return ch == 1 ? zeliCopy_##T##_C1R(s, ss, d, ds, r) : ch == 3 ? zeliCopy_##T##_C3R(s, ss, d, ds, r) \
                                                                       : zeliCopy_##T##_C4R(s, ss, d, ds, r); \
    }
ZEL_BOX_IMAGE(8u)
ZEL_BOX_IMAGE(16s)
ZEL_BOX_IMAGE(16u)
ZEL_BOX_IMAGE(32f)
#undef ZEL_BOX_IMAGE

// ---- Entries -------------------------------------------------------------------------------
// In place (IP) the source is the image itself; out of place with equal
// pointers the call is the in-place one on the destination and its step.
template <class T, Layout L, bool IP>
ZelStatus box(const T* src, int ss, T* dst, int ds, ZeliSize roi, ZeliSize mask, ZeliPoint anchor) {
    constexpr int CH = channels(L);
    if (any_null(src, dst)) return zelStatusNullPointer;
    if (any_bad_step(ss, ds)) return zelStatusBadStep;
    if (bad_size(roi)) return zelStatusBadSize;
    if (bad_mask(mask)) return zelStatusBadMaskSize;
    if (bad_anchor(anchor, mask)) return zelStatusBadAnchor;
    if constexpr (std::is_same<T, Zel32f>::value && L == C1 && !IP)
        if (short_step(ss, (long long)roi.width + mask.width - 1, 4) || short_step(ds, roi.width, 4))
            return zelStatusBadStep;
    if (!IP && static_cast<const void*>(src) == static_cast<const void*>(dst)) return box<T, L, true>(dst, ds, dst, ds, roi, mask, anchor);
    if constexpr (sizeof(T) == 2 || std::is_same<T, Zel32f>::value) ss = whole_samples<T>(ss), ds = whole_samples<T>(ds);
    const Margins m = box_margins(mask, anchor);
    BoxJob j;
    j.width = roi.width, j.mW = mask.width, j.mH = mask.height;
    j.dst = dst, j.dstStep = ds;
    if constexpr (std::is_same<T, Zel32f>::value && L == C1 && !IP)
        if (mask.width == 1 && mask.height == 1) return zeliCopy_32f_C1R(src, ss, dst, ds, roi);
    if (IP && mask.height >= roi.height) {
        // Every row of the image is read by a window after it is due: the
        // frame is copied first, and the call runs from the copy.
        const long long fw = frame_width(roi, m), fh = frame_height(roi, m);
        if (fw > 0x7fffffff || fh > 0x7fffffff) return zelStatusMemAlloc;
        int cs = 0;
        T* copy = image_alloc(src, CH, int(fw), int(fh), &cs);
        if (!copy) return zelStatusMemAlloc;
        image_copy(frame_origin(src, ss, m, CH), ss, copy, cs, {int(fw), int(fh)}, CH);
        BoxPlan b = box_plan<T, L>(roi, mask, true, true);
        j.src = copy, j.srcStep = cs, j.fin = b.fin, j.bias = b.bias;
        const ZelStatus st = box_run<T, L>(j, roi.height, b);
        zeliFree(copy);
        return st;
    }
    BoxPlan b = box_plan<T, L>(roi, mask, IP, false);
    j.src = frame_origin(src, ss, m, CH), j.srcStep = ss, j.fin = b.fin, j.bias = b.bias;
    if (IP) {
        j.ringRows = anchor.y + 1;
        j.ringStride = (std::size_t(roi.width) * CH + kPadBytes) & ~std::size_t(15);
    }
    return box_run<T, L>(j, roi.height, b);
}

template <class T, Layout L>
ZelStatus box_i(T* sd, int sds, ZeliSize roi, ZeliSize mask, ZeliPoint anchor) {
    return box<T, L, true>(sd, sds, sd, sds, roi, mask, anchor);
}

// The double form: sizes and mask together, then steps long enough for the
// frame; no anchor test and no in-place form.
inline ZelStatus box_64f(const Zel64f* src, int ss, Zel64f* dst, int ds, ZeliSize roi, ZeliSize mask, ZeliPoint anchor) {
    if (any_null(src, dst)) return zelStatusNullPointer;
    if (bad_size(roi) || bad_mask(mask)) return zelStatusBadSize;
    if (short_step(ss, (long long)roi.width + mask.width - 1, 8) || short_step(ds, roi.width, 8)) return zelStatusBadStep;
    BoxPlan b = box_plan<Zel64f, C1>(roi, mask, false, false);
    BoxJob j;
    j.width = roi.width, j.mW = mask.width, j.mH = mask.height;
    j.src = frame_origin(src, ss, box_margins(mask, anchor), 1), j.srcStep = ss, j.dst = dst, j.dstStep = ds;
    j.fin = b.fin;
    return box_run<Zel64f, C1>(j, roi.height, b);
}

// ---- Sliding sums ---------------------------------------------------------------------------------
// dst(x, y) = the sum of `mask` samples along a row (ROW) or a column from
// `anchor` samples before the pixel, as float. The sum runs in a float: the
// first window's samples added one by one, then per step the entering minus
// the leaving sample, that difference taken in integers. Float rounding thus
// enters only once a sum passes 2^24; below that every sum is an exact
// integer, and the running integer sums of the box kernels give the same
// bits a vector at a time.
template <class T, int CH, bool ROW>
void sum_window_float(const T* src, int ss, Zel32f* dst, int ds, ZeliSize roi, int mask, float* col) {
    const int n = roi.width * CH;
    if (ROW) {
        for (int y = 0; y < roi.height; ++y) {
            const T* r = row(src, ss, y);
            Zel32f* d = row(dst, ds, y);
            for (int c = 0; c < CH; ++c) {
                float s = 0.0f;
                for (int k = 0; k < mask; ++k) s += float(r[std::ptrdiff_t(k) * CH + c]);
                d[c] = s;
                for (int x = 1; x < roi.width; ++x) {
                    s += float(int(r[std::ptrdiff_t(x - 1 + mask) * CH + c]) - int(r[std::ptrdiff_t(x - 1) * CH + c]));
                    d[x * CH + c] = s;
                }
            }
        }
        return;
    }
    for (int i = 0; i < n; ++i) col[i] = 0.0f;
    for (int k = 0; k < mask; ++k) {
        const T* r = row(src, ss, k);
        for (int i = 0; i < n; ++i) col[i] += float(r[i]);
    }
    for (int y = 0; y < roi.height; ++y) {
        std::memcpy(row(dst, ds, y), col, sizeof(float) * std::size_t(n));
        if (y + 1 == roi.height) break;
        const T *in = row(src, ss, y + mask), *out = row(src, ss, y);
        for (int i = 0; i < n; ++i) col[i] += float(int(in[i]) - int(out[i]));
    }
}

template <class T, int CH, bool ROW>
ZelStatus sum_window(const T* src, int ss, Zel32f* dst, int ds, ZeliSize roi, int mask, int anchor) {
    if (any_null(src, dst)) return zelStatusNullPointer;
    if constexpr (ROW && std::is_same<T, Zel16u>::value)
        if (bad_size(roi)) return zelStatusBadSize;
    if (mask < 1) return zelStatusBadMaskSize;
    if (bad_anchor_1d(anchor, mask)) return zelStatusBadAnchor;
    if (roi.height < 1 || roi.width < 1) return zelStatusOk;
    const Margins m = ROW ? box_margins_row(mask, anchor) : box_margins_col(mask, anchor);
    const T* origin = frame_origin(src, ss, m, CH);
    const long long biggest = std::is_same<T, Zel8u>::value ? 255 : std::is_same<T, Zel16s>::value ? 32768 : 65535;
    if ((long long)mask * biggest > (1ll << 24)) {
        // sums that may pass 2^24: the float running sum itself
        if (ROW) {
            sum_window_float<T, CH, ROW>(origin, ss, dst, ds, roi, mask, nullptr);
            return zelStatusOk;
        }
        if ((long long)roi.width * CH > 0x7fffffff) return zelStatusMemAlloc;
        Scratch<Zel32f> col(roi.width * CH);
        if (!col) return zelStatusMemAlloc;
        sum_window_float<T, CH, ROW>(origin, ss, dst, ds, roi, mask, col.get());
        return zelStatusOk;
    }
    BoxJob j;
    j.src = origin, j.srcStep = ss, j.dst = dst, j.dstStep = ds;
    j.width = roi.width, j.mW = ROW ? mask : 1, j.mH = ROW ? 1 : mask;
    const auto k = ZEL_PICK(box_rows<T, std::uint32_t, CH, Rule::ToFloat, Zel32f, false>);
    return run_bands(
        roi.height, 1, [&](Carve& c) { return lay_box<std::uint32_t, Zel32f>(c, j, CH); },
        [&](int first, int rows, const BoxState<std::uint32_t, Zel32f>& st) { k(j, st, first, rows); });
}

} // namespace filt
} // namespace zel

// Bitwise operations of two images, of an image and a constant, and of one
// image (Not); shifts by a constant count per channel; the two's complement
// to sign and magnitude conversion. Checks: null, step, size; the two-image
// C3, C4 and AC4 forms look at the width first, since they fold the channels
// into it. Nothing here forks. Bitwise rows run on bytes whatever the sample
// type; shifts on lanes of the sample type.
#pragma once

#include "arithmetic/rows.hpp"
#include "core/frame.hpp"

#include <cstdint>
#include <cstring>
#include <type_traits>

namespace zel {

enum class Lg { And, Or, Xor, Not };

// Counts of a shift per channel and the patterns that pick the channels
// (filled only where counts differ).
template <class T>
struct ShiftPlan {
    int cnt[4] = {};  // below the lane bits
    bool out[4] = {}; // every bit shifted out: the channel is 0
    LanePattern<T> chan[4];
    Keep<T> keep;
};

} // namespace zel

#define ZEL_KERNELS "arithmetic/logic_kernels.hpp"
#include "core/simd/levels.hpp"

namespace zel {

// Rows of bytes through logic_row; b is a second image or a pattern of period
// P bytes (bs unused).
template <Lg O, int P, class T, Layout L>
void logic_rows(const T* a, int as, const void* b, int bs, T* d, int ds, ZeliSize roi) {
    constexpr int S = int(sizeof(T)), KP = L == AC4 ? 4 * S : 0;
    const LanePattern<std::uint8_t> keep(KP > 0 ? KP : 1, [](int j) { return j < 3 * S; });
    const auto k = ZEL_PICK(logic_row<O, P, KP>);
    for (int r = 0; r < roi.height; ++r) {
        const auto* ra = reinterpret_cast<const std::uint8_t*>(row(a, as, r));
        const auto* rb = P > 0 ? static_cast<const std::uint8_t*>(b) : reinterpret_cast<const std::uint8_t*>(row(b, bs, r));
        auto* rd = reinterpret_cast<std::uint8_t*>(row(d, ds, r));
        for_spans((long long)roi.width * channels(L) * S, [&](long long at, int len) {
            k(ra + at, P > 0 ? rb : rb + at, rd + at, len, keep.v);
        });
    }
}

// And, Or, Xor of two images; in place, b is also the destination.
template <Lg O, class T, Layout L>
ZelStatus logic_bin(const T* a, int as, const T* b, int bs, T* d, int ds, ZeliSize roi) {
    if constexpr (L != C1)
        if (roi.width < 1) return zelStatusBadSize;
    if (any_null(a, b, d)) return zelStatusNullPointer;
    if (any_bad_step(as, bs, ds)) return zelStatusBadStep;
    if (bad_size(roi)) return zelStatusBadSize;
    logic_rows<O, 0, T, L>(a, as, b, bs, d, ds, roi);
    return zelStatusOk;
}

// And, Or, Xor with one value a channel (C1 one, C3 and AC4 three, C4 four),
// and Not (no values).
template <Lg O, class T, Layout L>
ZelStatus logic_const(const T* a, int as, const T* v, T* d, int ds, ZeliSize roi) {
    if (any_null(a, v, d)) return zelStatusNullPointer;
    if (any_bad_step(as, ds)) return zelStatusBadStep;
    if (bad_size(roi)) return zelStatusBadSize;
    constexpr int P = channels(L) * int(sizeof(T));
    alignas(64) std::uint8_t pattern[kPatternLanes] = {};
    for (int j = 0; O != Lg::Not && j < kPatternLanes; ++j) {
        const int c = j % P / int(sizeof(T));
        if (c < active(L)) pattern[j] = reinterpret_cast<const std::uint8_t*>(v + c)[j % int(sizeof(T))];
    }
    logic_rows<O, O == Lg::Not ? 0 : P, T, L>(a, as, pattern, 0, d, ds, roi);
    return zelStatusOk;
}
template <Lg O, class T, Layout L>
ZelStatus logic_const1(const T* a, int as, T v, T* d, int ds, ZeliSize roi) {
    return logic_const<O, T, L>(a, as, &v, d, ds, roi);
}
template <class T, Layout L>
ZelStatus logic_not(const T* a, int as, T* d, int ds, ZeliSize roi) {
    return logic_const<Lg::Not, T, L>(a, as, a, d, ds, roi);
}

// Shifts by a count a channel. A count of zero on every channel copies the
// region, a count that shifts every bit out of every channel fills it with
// zeros; signed right shifts by the lane bits or more give the sign fill.
template <bool LEFT, class T, Layout L>
ZelStatus shift(const T* a, int as, const Zel32u* v, T* d, int ds, ZeliSize roi) {
    if (any_null(a, v, d)) return zelStatusNullPointer;
    if (any_bad_step(as, ds)) return zelStatusBadStep;
    if (bad_size(roi)) return zelStatusBadSize;
    constexpr int SP = channels(L), AP = active(L), bits = 8 * int(sizeof(T));
    constexpr bool sign = !LEFT && std::is_signed<T>::value;
    ShiftPlan<T> p;
    bool all0 = true, allOut = true, same = true;
    for (int c = 0; c < AP; ++c) {
        p.out[c] = !sign && v[c] >= Zel32u(bits);
        p.cnt[c] = v[c] >= Zel32u(bits) ? bits - 1 : int(v[c]);
        all0 &= v[c] == 0, allOut &= p.out[c];
        same &= p.out[c] == p.out[0] && p.cnt[c] == p.cnt[0];
    }
    if (!same)
        for (int c = 0; c < SP; ++c) p.chan[c] = LanePattern<T>(SP, [c](int j) { return j == c; });
    const long long count = (long long)roi.width * SP;
    if (L != AC4 && (all0 || allOut)) {
        for (int r = 0; r < roi.height; ++r) {
            if (allOut) std::memset(row(d, ds, r), 0, std::size_t(count) * sizeof(T));
            else if (a != d || as != ds) std::memcpy(row(d, ds, r), row(a, as, r), std::size_t(count) * sizeof(T));
        }
        return zelStatusOk;
    }
    auto rows = [&](auto k) {
        for (int r = 0; r < roi.height; ++r) {
            const T* ra = row(a, as, r);
            T* rd = row(d, ds, r);
            for_spans(count, [&](long long at, int len) { k(ra + at, rd + at, len, p); });
        }
    };
    if (same) rows(ZEL_PICK(shift_row<T, LEFT, 1, L == AC4>));
    else rows(ZEL_PICK(shift_row<T, LEFT, SP, L == AC4>));
    return zelStatusOk;
}
template <bool LEFT, class T, Layout L>
ZelStatus shift1(const T* a, int as, Zel32u v, T* d, int ds, ZeliSize roi) {
    return shift<LEFT, T, L>(a, as, &v, d, ds, roi);
}

inline ZelStatus complement(Zel32s* d, int ds, ZeliSize roi) {
    if (any_null(d)) return zelStatusNullPointer;
    if (any_bad_step(ds)) return zelStatusBadStep;
    if (bad_size(roi)) return zelStatusBadSize;
    const auto k = ZEL_PICK(complement_row);
    for (int r = 0; r < roi.height; ++r) {
        auto* rd = reinterpret_cast<std::uint32_t*>(row(d, ds, r));
        for_spans(roi.width, [&](long long at, int len) { k(rd + at, len); });
    }
    return zelStatusOk;
}

} // namespace zel

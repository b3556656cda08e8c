// Reordering: channel permutation, transposition and mirroring. The entries
// check their arguments, build the byte tables of a swap and walk the rows;
// the row and block kernels are in reorder_kernels.hpp, compiled once per
// level. Every kernel moves whole samples, so every level gives the same bytes.
#pragma once

#include "core/chunks.hpp"
#include "core/frame.hpp"

#define ZEL_KERNELS "point/reorder_kernels.hpp"
#include "core/simd/levels.hpp"

#include <cstring>

namespace zel {

// ===========================================================================
// Channel swap: dst channel c = src channel order[c].
// ===========================================================================

// The byte shuffle of 16 bytes of E-byte pixels of S-byte samples: byte j of
// a whole pixel takes its channel from order (the NA first channels), bytes of
// the other channels and bytes after the last whole pixel stay where they are.
template <int S, int E, int NA>
inline void swap_table(const int* order, std::uint8_t* table) {
    for (int j = 0; j < 16; ++j) {
        const int c = (j % E) / S, from = c < NA ? order[c] : c;
        table[j] = std::uint8_t(j / E < 16 / E ? (j / E) * E + from * S + j % S : j);
    }
}

// SC source samples a pixel, DC destination samples a pixel, NA of them taken
// from the source by `order` (the others stay), order entries at most MaxEntry.
template <class T, int SC, int DC, int NA, int MaxEntry>
ZelStatus swap_channels(const T* src, int srcStep, T* dst, int dstStep, ZeliSize roi, const int* order) {
    if (any_null(src, dst, order)) return zelStatusNullPointer;
    if (bad_size(roi)) return zelStatusBadSize;
    if (any_bad_step(srcStep, dstStep)) return zelStatusBadStep;
    for (int c = 0; c < NA; ++c)
        if (order[c] < 0 || order[c] > MaxEntry) return zelStatusBadChannelOrder;
    constexpr int S = int(sizeof(T));
    alignas(16) std::uint8_t table[16];
    swap_table<S, S * SC, NA>(order, table);
    // Rows without gaps make one long row.
    if (contiguous(roi.width * (long long)(S * SC), roi.height, 0x7fffffffLL * S * SC, srcStep) &&
        contiguous(roi.width * (long long)(S * DC), roi.height, 0x7fffffffLL * S * DC, dstStep))
        roi = {roi.width * roi.height, 1};
    const auto k = ZEL_PICK(swap_row<S, SC, DC, NA>);
    for (int r = 0; r < roi.height; ++r)
        k(reinterpret_cast<const std::uint8_t*>(row(src, srcStep, r)), reinterpret_cast<std::uint8_t*>(row(dst, dstStep, r)),
          roi.width, order, table);
    return zelStatusOk;
}

template <class T, int C, int NA, int MaxEntry>
ZelStatus swap_channels_i(T* srcDst, int step, ZeliSize roi, const int* order) {
    return swap_channels<T, C, C, NA, MaxEntry>(srcDst, step, srcDst, step, roi, order);
}

// Three channels to four. With exactly one entry above 2, that destination
// channel gets `val` (entry 3) or keeps its value (larger entry), and the
// others come from the pixel. Otherwise each entry is an offset from the
// pixel's first source sample, so that 3 reaches the next pixel; offsets that
// would reach past the end of the source row leave that sample as it was.
template <class T>
ZelStatus swap_channels_c3c4(const T* src, int srcStep, T* dst, int dstStep, ZeliSize roi, const int* order, T val) {
    if (any_null(src, dst, order)) return zelStatusNullPointer;
    if (bad_size(roi)) return zelStatusBadSize;
    if (any_bad_step(srcStep, dstStep)) return zelStatusBadStep;
    int above = 0, special = -1, maxOff = 0;
    for (int c = 0; c < 4; ++c) {
        if (order[c] < 0) return zelStatusBadChannelOrder;
        if (order[c] > 2) ++above, special = c;
        if (order[c] > maxOff) maxOff = order[c];
    }
    const int w = roi.width;
    if (above == 1) {
        int o[3], dc[3], k = 0;
        for (int c = 0; c < 4; ++c)
            if (c != special) o[k] = order[c], dc[k] = c, ++k;
        const bool fill = order[special] == 3;
        for (int r = 0; r < roi.height; ++r) {
            const T* s = row(src, srcStep, r);
            T* d = row(dst, dstStep, r);
            for (int x = 0; x < w; ++x, s += 3, d += 4) {
                const T a = s[o[0]], b = s[o[1]], e = s[o[2]];
                d[dc[0]] = a, d[dc[1]] = b, d[dc[2]] = e;
                if (fill) d[special] = val;
            }
        }
        return zelStatusOk;
    }
    // Pixels whose every offset stays inside the row take the plain loop.
    const long long rowSamples = 3LL * w;
    const long long safeLL = (rowSamples - maxOff + 2) / 3; // 3x + maxOff < 3w
    const int safe = safeLL < 0 ? 0 : (safeLL > w ? w : int(safeLL));
    for (int r = 0; r < roi.height; ++r) {
        const T* s = row(src, srcStep, r);
        T* d = row(dst, dstStep, r);
        const int o0 = order[0], o1 = order[1], o2 = order[2], o3 = order[3];
        for (int x = 0; x < safe; ++x) {
            const T* p = s + 3 * std::ptrdiff_t(x);
            const T a = p[o0], b = p[o1], c = p[o2], e = p[o3];
            d[4 * x] = a, d[4 * x + 1] = b, d[4 * x + 2] = c, d[4 * x + 3] = e;
        }
        for (int x = safe; x < w; ++x)
            for (int c = 0; c < 4; ++c)
                if (3LL * x + order[c] < rowSamples) d[4 * x + c] = s[3 * x + order[c]];
    }
    return zelStatusOk;
}

// ===========================================================================
// Transpose
// ===========================================================================

// In place, on a square region whose rows do not overlap.
template <class T, int C>
ZelStatus transpose_i(T* srcDst, int step, ZeliSize roi) {
    constexpr int E = int(sizeof(T)) * C;
    if (any_null(srcDst)) return zelStatusNullPointer;
    if (bad_size(roi) || roi.width != roi.height) return zelStatusBadSize;
    if ((step < 0 ? -(long long)step : (long long)step) < (long long)roi.width * E) return zelStatusBadStep;
    ZEL_PICK(transpose_square<E>)(reinterpret_cast<unsigned char*>(srcDst), step, roi.width);
    return zelStatusOk;
}

// A large image whose rows are aligned and whose volume exceeds the cache
// goes through the 8u kernel with non-temporal stores.
inline bool transpose_nt(const void* src, int ss, const void* dst, int ds, ZeliSize roi) {
    if (roi.width <= 1024 || roi.width % 64 || roi.height % 64) return false;
    if ((reinterpret_cast<std::uintptr_t>(src) & 15) || (ss & 15)) return false;
    if ((reinterpret_cast<std::uintptr_t>(dst) & 63) || (ds & 63)) return false;
    long long cache = 0;
    return cache_size(cache) && cache < 2LL * roi.width * roi.height;
}

template <class T, int C>
ZelStatus transpose(const T* src, int srcStep, T* dst, int dstStep, ZeliSize roi) {
    if (any_null(src, dst)) return zelStatusNullPointer;
    if (bad_size(roi)) return zelStatusBadSize;
    if (src == dst && srcStep == dstStep) return transpose_i<T, C>(dst, dstStep, roi);
    constexpr int E = int(sizeof(T)) * C;
    auto* s = reinterpret_cast<const unsigned char*>(src);
    auto* d = reinterpret_cast<unsigned char*>(dst);
    if constexpr (E == 1) {
        if (transpose_nt(src, srcStep, dst, dstStep, roi)) {
            ZEL_PICK(transpose_rect<1, true>)(s, srcStep, d, dstStep, roi.width, roi.height);
            stream_fence();
            return zelStatusOk;
        }
    }
    ZEL_PICK(transpose_rect<E, false>)(s, srcStep, d, dstStep, roi.width, roi.height);
    return zelStatusOk;
}

// ===========================================================================
// Mirror
// ===========================================================================

// Order of checks: size below 2 along a flipped axis is refused.
inline ZelStatus mirror_checks(bool isNull, ZeliSize roi, int flip) {
    if (isNull) return zelStatusNullPointer;
    if (bad_size(roi)) return zelStatusBadSize;
    if (flip < 0 || flip > 2) return zelStatusBadAxis;
    if (flip != 1 && roi.height < 2) return zelStatusBadSize;
    if (flip != 0 && roi.width < 2) return zelStatusBadSize;
    return zelStatusOk;
}

template <class T, Layout L>
ZelStatus mirror_i(T* p, int step, ZeliSize roi, int flip) {
    if (ZelStatus st = mirror_checks(any_null(p), roi, flip)) return st;
    const int w = roi.width, h = roi.height;
    auto line = [&](int r) { return reinterpret_cast<unsigned char*>(row(p, step, r)); };
    const auto exchange = ZEL_PICK(MirrorRows<int(sizeof(T)), channels(L), active(L)>::exchange);
    const auto exchangeReversed = ZEL_PICK(MirrorRows<int(sizeof(T)), channels(L), active(L)>::exchange_reversed);
    if (flip == 1) {
        for (int r = 0; r < h; ++r) exchangeReversed(line(r), line(r), w);
        return zelStatusOk;
    }
    for (int r = 0; r < h / 2; ++r) (flip == 0 ? exchange : exchangeReversed)(line(r), line(h - 1 - r), w);
    if (flip == 2 && (h & 1)) exchangeReversed(line(h / 2), line(h / 2), w);
    return zelStatusOk;
}

template <class T, Layout L>
ZelStatus mirror(const T* src, int srcStep, T* dst, int dstStep, ZeliSize roi, int flip) {
    if (src == dst) return mirror_i<T, L>(dst, dstStep, roi, flip);
    if (ZelStatus st = mirror_checks(any_null(src, dst), roi, flip)) return st;
    constexpr int E = int(sizeof(T)) * channels(L);
    const int w = roi.width, h = roi.height;
    bool nt = false;
    if constexpr (L == C4) nt = nontemporal(2ULL * std::uint64_t(w) * std::uint64_t(h) * E);
    const auto copy = ZEL_PICK(MirrorRows<int(sizeof(T)), channels(L), active(L)>::copy);
    const auto reverse = ZEL_PICK(MirrorRows<int(sizeof(T)), channels(L), active(L)>::reverse);
    const StreamCopy put = nt ? ZEL_PICK(stream_copy) : nullptr;
    for (int r = 0; r < h; ++r) {
        auto* s = reinterpret_cast<const unsigned char*>(row(src, srcStep, r));
        auto* d = reinterpret_cast<unsigned char*>(row(dst, dstStep, flip == 1 ? r : h - 1 - r));
        if (flip == 0) copy(s, d, w, nt);
        else
            chunked_row(d, w, E, put, false,
                        [&](unsigned char* out, int first, int n) { reverse(s + std::ptrdiff_t(w - first - n) * E, out, n); });
    }
    if (nt) stream_fence();
    return zelStatusOk;
}

} // namespace zel

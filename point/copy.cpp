// Copy, set and duplicate in every layout. Whole-pixel copies and fills are
// the byte rows of core/simd/pixel.hpp; the other forms have row kernels in
// copy_kernels.hpp. Entries check, fold contiguous rows, decide on
// non-temporal stores and pick the rows of the level in force.
#include "point/copy_bytes.hpp"

#define ZEL_KERNELS "point/copy_kernels.hpp"
#include "core/simd/levels.hpp"

namespace zel {
namespace {

// The byte copy behind every C1R, C3R and C4R copy: width in bytes, rows
// walked by their steps (any value), contiguous rows folded into one.
inline void copy_bytes(const u8* s, int ss, u8* d, int ds, std::size_t rowBytes, int height) {
    if (std::size_t(ss) == rowBytes && std::size_t(ds) == rowBytes && rowBytes * std::size_t(height) <= 0xffffffffu) {
        rowBytes *= std::size_t(height);
        height = 1;
    }
    const std::size_t total = rowBytes * std::size_t(height);
    bool nt = false;
    if (rowBytes >= 64 && total >= 0x100000) {
        long long cache = 0;
        nt = copy_cache_size(cache) && total >= std::size_t(cache);
    }
    const auto k = nt ? ZEL_PICK(copy_bytes_row<true>) : ZEL_PICK(copy_bytes_row<false>);
    for (int r = 0; r < height; ++r) k(row(s, ss, r), row(d, ds, r), rowBytes);
    if (nt) _mm_sfence();
}

// zeliSet on whole pixels: fold contiguous rows, ask the cache above 0x100000
// bytes, fill every row; fence after streaming stores. Long cached rows get a
// seed of the pattern, repeated by a forward string move.
inline void fill_bytes(const void* pixel, int pixelBytes, u8* d, int ds, int width, int height) {
    std::size_t rowBytes = std::size_t(width) * std::size_t(pixelBytes);
    if (std::size_t(ds) == rowBytes && rowBytes * std::size_t(height) <= 0xffffffffu) {
        rowBytes *= std::size_t(height);
        height = 1;
    }
    const PixelPattern p(pixel, pixelBytes);
    const bool nt = nontemporal((unsigned long long)rowBytes * unsigned(height));
    const auto k = nt ? ZEL_PICK(fill_pattern_row<true>) : ZEL_PICK(fill_pattern_row<false>);
    const bool seed = !nt && rowBytes >= kStringFillFrom && fast_strings();
    for (int r = 0; r < height; ++r) {
        u8* dr = row(d, ds, r);
        if (seed) {
            k(dr, kSeedBytes, p.buf, pixelBytes);
            forward_string_copy(dr + kSeedBytes, dr, rowBytes - kSeedBytes);
        } else {
            k(dr, rowBytes, p.buf, pixelBytes);
        }
    }
    if (nt) _mm_sfence();
}

// Masked copy of rows. With Repeat the source is one block of 64 pixels that
// every block of the destination receives (the masked set).
template <class T, Layout L, bool Repeat>
void masked_rows(const T* s, int ss, T* d, int ds, ZeliSize roi, const u8* m, int ms) {
    const auto k = ZEL_PICK(masked_row<T, channels(L), active(L), Repeat>);
    for (int r = 0; r < roi.height; ++r) k(Repeat ? s : row(s, ss, r), row(d, ds, r), row(m, ms, r), roi.width);
}

// Non-temporal choice of the planar copies. Both images count. 32-bit samples
// ask the cache above 0x100000 bytes; 8- and 16-bit rows ask it from 512
// samples of interleaved row on.
template <class T, int C>
bool planar_nt(ZeliSize roi) {
    const unsigned long long volume = 2ull * unsigned(roi.width) * unsigned(roi.height) * C * sizeof(T);
    if (sizeof(T) == 4) return nontemporal(volume);
    if (roi.width * (long long)C < 512) return false;
    long long cache = 0;
    return cache_size(cache) && volume >= (unsigned long long)cache;
}

// Row walk of the planar copies: contiguous rows fold into one.
template <class T, int C, class Row>
void planar_rows(int interStep, int planeStep, ZeliSize roi, Row&& rowFn) {
    const long long interBytes = (long long)roi.width * C * sizeof(T), planeBytes = (long long)roi.width * sizeof(T);
    if (interStep == interBytes && planeStep == planeBytes && interBytes * roi.height <= 0x7fffffff) {
        rowFn(0, roi.width * roi.height);
        return;
    }
    for (int r = 0; r < roi.height; ++r) rowFn(r, roi.width);
}

} // namespace

// ---- Entry points ------------------------------------------------------------

// C1R, C3R, C4R: one byte copy of width times pixel size bytes a row.
template <class T, Layout L>
ZelStatus copy_whole(const T* s, int ss, T* d, int ds, ZeliSize roi) {
    if (any_null(s, d)) return zelStatusNullPointer;
    if (bad_size(roi)) return zelStatusBadSize;
    copy_bytes(reinterpret_cast<const u8*>(s), ss, reinterpret_cast<u8*>(d), ds,
               std::size_t(roi.width) * channels(L) * sizeof(T), roi.height);
    return zelStatusOk;
}

// N samples a pixel from a source pixel stride SP to a destination pixel
// stride DP: AC4R (4,4,3), channel of interest (C,C,1), channel out (C,1,1),
// channel in (1,C,1), AC4C3R (4,3,3), C3AC4R (3,4,3). With Spread the one
// source sample of a pixel goes to all N destination samples (zeliDup).
template <class T, int SP, int DP, int N, bool Spread = false>
ZelStatus copy_strided(const T* s, int ss, T* d, int ds, ZeliSize roi) {
    if (any_null(s, d)) return zelStatusNullPointer;
    if (bad_size(roi)) return zelStatusBadSize;
    const auto k = ZEL_PICK(strided_row<T, SP, DP, N, Spread>);
    for (int r = 0; r < roi.height; ++r) k(row(s, ss, r), row(d, ds, r), roi.width);
    return zelStatusOk;
}

template <class T, Layout L>
ZelStatus copy_masked(const T* s, int ss, T* d, int ds, ZeliSize roi, const Zel8u* m, int ms) {
    if (any_null(s, d, m)) return zelStatusNullPointer;
    if (bad_size(roi)) return zelStatusBadSize;
    masked_rows<T, L, false>(s, ss, d, ds, roi, m, ms);
    return zelStatusOk;
}

// Both planar directions: the image, the plane array and every plane are
// tested for null, then the size; contiguous rows fold; a fence follows
// streaming stores. rowFn(planeRows, imageRow, width, nt) moves one row.
template <class T, int C, class P, class I, class Row>
ZelStatus planar_copy(P* const* p, int ps, I* img, int is, ZeliSize roi, Row&& rowFn) {
    if (any_null(img, p)) return zelStatusNullPointer;
    for (int c = 0; c < C; ++c)
        if (!p[c]) return zelStatusNullPointer;
    if (bad_size(roi)) return zelStatusBadSize;
    const bool nt = planar_nt<T, C>(roi);
    planar_rows<T, C>(is, ps, roi, [&](int r, int w) {
        P* pr[C];
        for (int c = 0; c < C; ++c) pr[c] = row(p[c], ps, r);
        rowFn(pr, row(img, is, r), w, nt);
    });
    if (nt) _mm_sfence();
    return zelStatusOk;
}

template <class T, int C>
ZelStatus copy_to_planes(const T* s, int ss, T* const* p, int ps, ZeliSize roi) {
    const auto k0 = ZEL_PICK(split_row<T, C, false>), k1 = ZEL_PICK(split_row<T, C, true>);
    return planar_copy<T, C>(p, ps, s, ss, roi, [=](T* const* pr, const T* sr, int w, bool nt) { (nt ? k1 : k0)(sr, pr, w); });
}

template <class T, int C>
ZelStatus copy_from_planes(const T* const* p, int ps, T* d, int ds, ZeliSize roi) {
    const auto k0 = ZEL_PICK(join_row<T, C, false>), k1 = ZEL_PICK(join_row<T, C, true>);
    return planar_copy<T, C>(p, ps, d, ds, roi, [=](const T* const* pr, T* dr, int w, bool nt) { (nt ? k1 : k0)(pr, dr, w); });
}

// zeliSet on whole pixels through the pattern fill.
template <class T>
ZelStatus set_whole1(T value, T* d, int ds, ZeliSize roi) {
    if (any_null(d)) return zelStatusNullPointer;
    if (bad_size(roi)) return zelStatusBadSize;
    fill_bytes(&value, sizeof(T), reinterpret_cast<u8*>(d), ds, roi.width, roi.height);
    return zelStatusOk;
}

template <class T, Layout L>
ZelStatus set_whole(const T* v, T* d, int ds, ZeliSize roi) {
    if (any_null(v, d)) return zelStatusNullPointer;
    if (bad_size(roi)) return zelStatusBadSize;
    fill_bytes(v, sizeof(T) * channels(L), reinterpret_cast<u8*>(d), ds, roi.width, roi.height);
    return zelStatusOk;
}

// N values into every pixel of stride DP: AC4R (4,3), channel of interest (C,1).
template <class T, int DP, int N>
ZelStatus set_strided(const T* v, T* d, int ds, ZeliSize roi) {
    if (any_null(v, d)) return zelStatusNullPointer;
    if (bad_size(roi)) return zelStatusBadSize;
    T px[N];
    for (int c = 0; c < N; ++c) px[c] = v[c];
    const auto k = ZEL_PICK(set_strided_row<T, DP, N>);
    for (int r = 0; r < roi.height; ++r) k(px, row(d, ds, r), roi.width);
    return zelStatusOk;
}

template <class T, int DP>
ZelStatus set_strided1(T value, T* d, int ds, ZeliSize roi) {
    return set_strided<T, DP, 1>(&value, d, ds, roi);
}

// Masked set: a block of 64 pixels of the value is the source of every block.
template <class T, Layout L>
ZelStatus set_masked(const T* v, T* d, int ds, ZeliSize roi, const Zel8u* m, int ms) {
    if (any_null(v, d, m)) return zelStatusNullPointer;
    if (bad_size(roi)) return zelStatusBadSize;
    constexpr int C = channels(L);
    T block[64 * C];
    for (int i = 0; i < 64 * C; ++i) block[i] = (i % C) < active(L) ? v[i % C] : T(0);
    masked_rows<T, L, true>(block, 0, d, ds, roi, m, ms);
    return zelStatusOk;
}

template <class T>
ZelStatus set_masked1(T value, T* d, int ds, ZeliSize roi, const Zel8u* m, int ms) {
    return set_masked<T, C1>(&value, d, ds, roi, m, ms);
}

// zeliCopyManaged: flags bit 0 streaming stores, bit 1 streaming loads.
inline ZelStatus copy_managed(const Zel8u* s, int ss, Zel8u* d, int ds, ZeliSize roi, int flags) {
    if (any_null(s, d)) return zelStatusNullPointer;
    if (bad_size(roi)) return zelStatusBadSize;
    std::size_t n = std::size_t(roi.width);
    int h = roi.height;
    if (std::size_t(ss) == n && std::size_t(ds) == n && n * std::size_t(h) <= 0xffffffffu) {
        n *= std::size_t(h);
        h = 1;
    }
    const bool nt = (flags & 1) != 0;
    const auto k = flags & 2 ? (nt ? ZEL_PICK(managed_row<true, true>) : ZEL_PICK(managed_row<false, true>))
                             : (nt ? ZEL_PICK(managed_row<true, false>) : ZEL_PICK(managed_row<false, false>));
    for (int r = 0; r < h; ++r) k(row(s, ss, r), row(d, ds, r), n);
    if (flags & 2) _mm_mfence();
    else _mm_sfence();
    return zelStatusOk;
}

} // namespace zel

#define ZEL_LIST "zelip8/fn_copy.h"
#include "core/define_list.hpp"

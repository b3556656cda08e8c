// Byte routines shared by every sample type of copy and set: a row copy with a
// tail ladder and an aligned vector loop, the non-temporal block copy for
// images larger than the cache, the pattern fill behind zeliSet, and the cache
// size read from the processor's identification leaves.
#pragma once

#include "core/frame.hpp"

#include <cpuid.h>

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace zel {

using u8 = std::uint8_t;

inline __m128i ld(const void* p) { return _mm_loadu_si128(static_cast<const __m128i*>(p)); }
inline void stu(void* p, __m128i v) { _mm_storeu_si128(static_cast<__m128i*>(p), v); }
inline void sta(void* p, __m128i v) { _mm_store_si128(static_cast<__m128i*>(p), v); }
inline void stn(void* p, __m128i v) { _mm_stream_si128(static_cast<__m128i*>(p), v); }
inline std::size_t misalign16(const void* p) { return reinterpret_cast<std::uintptr_t>(p) & 15; }

// N bytes through a register; both pointers move on.
template <int N>
inline void move_bytes(const u8*& s, u8*& d) {
    std::memcpy(d, s, N);
    s += N, d += N;
}

// Rows below 64 bytes: blocks of 32, 16, 8, 4, 2 and 1 bytes by the bits of n.
inline void copy_ladder(const u8* s, u8* d, std::size_t n) {
    if (n & 32) {
        const __m128i a = ld(s), b = ld(s + 16);
        stu(d, a);
        stu(d + 16, b);
        s += 32, d += 32;
    }
    if (n & 16) {
        stu(d, ld(s));
        s += 16, d += 16;
    }
    if (n & 8) move_bytes<8>(s, d);
    if (n & 4) move_bytes<4>(s, d);
    if (n & 2) move_bytes<2>(s, d);
    if (n & 1) *d = *s;
}

// Temporal row copy: 16-byte vectors, destination aligned first (one unaligned
// head store covers the bytes before the first aligned address), 64 bytes a
// round, and an unaligned store that ends exactly at the row's end.
inline void copy_row(const u8* s, u8* d, std::size_t n) {
    if (n < 64) {
        copy_ladder(s, d, n);
        return;
    }
    stu(d, ld(s));
    const std::size_t a = 16 - misalign16(d);
    s += a, d += a, n -= a;
    for (; n >= 64; s += 64, d += 64, n -= 64) {
        const __m128i v0 = ld(s), v1 = ld(s + 16), v2 = ld(s + 32), v3 = ld(s + 48);
        sta(d, v0);
        sta(d + 16, v1);
        sta(d + 32, v2);
        sta(d + 48, v3);
    }
    for (; n >= 16; s += 16, d += 16, n -= 16) sta(d, ld(s));
    if (n) stu(d + n - 16, ld(s + n - 16));
}

// Non-temporal row copy for data larger than the cache. The destination is
// aligned with single bytes; then each block of 0x40000 bytes is first pulled
// in by reading one byte of each 64-byte line, and then copied with streaming
// stores. The caller fences after the last row.
constexpr std::size_t kNtBlock = 0x40000;

inline void copy_row_nt(const u8* s, u8* d, std::size_t n) {
    std::size_t head = (16 - misalign16(d)) & 15;
    if (head > n) head = n;
    for (std::size_t i = 0; i < head; ++i) d[i] = s[i];
    s += head, d += head, n -= head;
    while (n >= 16) {
        const std::size_t block = n < kNtBlock ? (n & ~std::size_t(15)) : kNtBlock;
        unsigned touch = 0;
        for (std::size_t i = 0; i < block; i += 64) touch += s[i];
        asm volatile("" ::"r"(touch));
        std::size_t i = 0;
        for (; i + 64 <= block; i += 64) {
            const __m128i v0 = ld(s + i), v1 = ld(s + i + 16), v2 = ld(s + i + 32), v3 = ld(s + i + 48);
            stn(d + i, v0);
            stn(d + i + 16, v1);
            stn(d + i + 32, v2);
            stn(d + i + 48, v3);
        }
        for (; i < block; i += 16) stn(d + i, ld(s + i));
        s += block, d += block, n -= block;
    }
    copy_ladder(s, d, n);
}

// Size of the largest data or unified cache from the descriptors of
// identification leaf 2 (0xFF defers to leaf 4); 0 when they name none.
long long leaf2_cache_bytes();

// Cache size for the copy's non-temporal decision: the processor's leaf 2
// descriptors when they name a cache, otherwise the core library's answer.
inline bool copy_cache_size(long long& bytes) {
    static const long long fromLeaf2 = leaf2_cache_bytes();
    if (fromLeaf2 > 0) {
        bytes = fromLeaf2;
        return true;
    }
    return cache_size(bytes);
}

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
    if (nt) {
        for (int r = 0; r < height; ++r) copy_row_nt(row(s, ss, r), row(d, ds, r), rowBytes);
        _mm_sfence();
    } else {
        for (int r = 0; r < height; ++r) copy_row(row(s, ss, r), row(d, ds, r), rowBytes);
    }
}

// ---- Pattern fill ----------------------------------------------------------
// A constant pixel repeated over a row. Pixels whose size divides 16 repeat
// every 16 bytes; three-sample pixels (3, 6 or 12 bytes) every 48. `buf` holds
// the pattern repeated to 96 bytes, so that a 16-byte load at any phase below
// the period reads the pattern shifted by that phase.
struct Pattern {
    alignas(16) u8 buf[96];
    int period;
    Pattern(const void* pixel, int pixelBytes) {
        for (int i = 0; i < 96; ++i) buf[i] = static_cast<const u8*>(pixel)[i % pixelBytes];
        period = 16 % pixelBytes == 0 ? 16 : 48;
    }
};

template <int P, bool NT>
inline u8* fill_rounds(u8* d, std::size_t& n, __m128i r0, __m128i r1, __m128i r2) {
    auto put = [](u8* p, __m128i v) { NT ? stn(p, v) : sta(p, v); };
    constexpr std::size_t round = P == 16 ? 64 : 48;
    for (; n >= round; d += round, n -= round) {
        put(d, r0), put(d + 16, r1), put(d + 32, r2);
        if (P == 16) put(d + 48, r0);
    }
    return d;
}

// Whether the processor has fast string moves (the ERMS flag): a forward
// `rep movsb` then streams whole lines without reading them first.
inline bool fast_strings() {
    static const bool has = [] {
        if (__get_cpuid_max(0, nullptr) < 7) return false;
        unsigned a, b, c, d;
        __cpuid_count(7, 0, a, b, c, d);
        return ((b >> 9) & 1u) != 0;
    }();
    return has;
}

// Forward byte copy of n bytes by `rep movsb`; source and destination may
// overlap with the source first, each byte is read after the ones before it
// are written, which repeats a pattern written just before the destination.
inline void forward_string_copy(u8* d, const u8* s, std::size_t n) {
    asm volatile("rep movsb" : "+D"(d), "+S"(s), "+c"(n) : : "memory");
}

// Long cached rows: the first kSeedBytes (a multiple of both periods, above
// the 4 KiB aliasing distance) get the pattern, a forward string copy at that
// distance repeats it over the rest of the row.
constexpr std::size_t kSeedBytes = 6144;
constexpr std::size_t kStringFillFrom = std::size_t(1) << 18;

template <int P>
inline void fill_row_p(u8* d, std::size_t n, const u8* buf, bool nt) {
    static_assert(kSeedBytes % P == 0, "the seed must hold whole periods");
    if (!nt && n >= kStringFillFrom && fast_strings()) {
        fill_row_p<P>(d, kSeedBytes, buf, false);
        forward_string_copy(d + kSeedBytes, d, n - kSeedBytes);
        return;
    }
    if (n < 64) {
        std::size_t i = 0;
        for (; i + 16 <= n; i += 16) stu(d + i, ld(buf + i % P));
        if (i < n) {
            if (n >= 16)
                stu(d + n - 16, ld(buf + (n - 16) % P));
            else
                for (; i < n; ++i) d[i] = buf[i];
        }
        return;
    }
    stu(d, ld(buf));
    const std::size_t a = 16 - misalign16(d);
    const std::size_t phase = a % P;
    const std::size_t end = (n - 16) % P; // phase of the last 16 bytes
    u8* const last = d + n - 16;
    d += a, n -= a;
    const __m128i r0 = ld(buf + phase), r1 = ld(buf + (phase + 16) % P), r2 = ld(buf + (phase + 32) % P);
    // 64 bytes of a 16-byte pattern, or one period of a 48-byte one, a round.
    if (nt)
        d = fill_rounds<P, true>(d, n, r0, r1, r2);
    else
        d = fill_rounds<P, false>(d, n, r0, r1, r2);
    // The vectors left continue the same phase sequence.
    const __m128i rest[3] = {r0, r1, r2};
    for (int k = 0; n >= 16; ++k, d += 16, n -= 16) sta(d, rest[k]);
    if (n) stu(last, ld(buf + end));
}

inline void fill_row(u8* d, std::size_t n, const Pattern& p, bool nt) {
    if (p.period == 16)
        fill_row_p<16>(d, n, p.buf, nt);
    else
        fill_row_p<48>(d, n, p.buf, nt);
}

// zeliSet on whole pixels: fold contiguous rows, ask the cache above 0x100000
// bytes, fill every row; fence after streaming stores.
inline void fill_bytes(const void* pixel, int pixelBytes, u8* d, int ds, int width, int height) {
    std::size_t rowBytes = std::size_t(width) * std::size_t(pixelBytes);
    if (std::size_t(ds) == rowBytes && rowBytes * std::size_t(height) <= 0xffffffffu) {
        rowBytes *= std::size_t(height);
        height = 1;
    }
    const Pattern p(pixel, pixelBytes);
    const bool nt = nontemporal((unsigned long long)rowBytes * unsigned(height));
    for (int r = 0; r < height; ++r) fill_row(row(d, ds, r), rowBytes, p, nt);
    if (nt) _mm_sfence();
}

} // namespace zel

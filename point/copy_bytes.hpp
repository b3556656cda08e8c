// Baseline helpers of copy and set: the cache size behind the non-temporal
// decision, the string-move fill of long rows, the pattern of a constant pixel
// and the shuffle tables of the planar copies. The rows themselves are
// kernels (core/simd/pixel.hpp, point/copy_kernels.hpp).
#pragma once

#include "core/frame.hpp"

#include <cpuid.h>

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace zel {

using u8 = std::uint8_t;

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

// Long cached rows: the first kSeedBytes (a multiple of every pattern period,
// above the 4 KiB aliasing distance) get the pattern, a forward string copy
// at that distance repeats it over the rest of the row.
constexpr std::size_t kSeedBytes = 6144;
constexpr std::size_t kStringFillFrom = std::size_t(1) << 18;

// A constant pixel repeated: buf[i] = pixel[i % pixelBytes], long enough for
// a vector load at any phase of the longest period.
struct PixelPattern {
    alignas(64) u8 buf[256];
    PixelPattern(const void* pixel, int pixelBytes) {
        for (int i = 0; i < 256; ++i) buf[i] = static_cast<const u8*>(pixel)[i % pixelBytes];
    }
};

// ---- Planar copy tables ---------------------------------------------------------
// A block is 16 / S pixels (S bytes a sample): C interleaved 16-byte vectors
// against one 16-byte vector of each plane.
//
// Three channels: 16 is not a multiple of 3, so the bytes of one plane sit at
// different lanes in the three interleaved vectors. Splitting blends the three
// vectors so that each plane's bytes share one vector, then one byte shuffle
// puts them in order. Joining shuffles each plane once so that every byte sits
// at the lane it takes in its interleaved vector, then blends per vector.
template <int S>
struct Shuffle3 {
    u8 pick[3][3][16]; // pick[c][r]: lane of vector r holds a byte of plane c
    u8 order[3][16];   // order[c][k]: lane of the blended vector for byte k of plane c
    u8 place[3][16];   // place[c][l]: byte of plane c that goes to lane l
    u8 chan[3][3][16]; // chan[j][c]: lane of interleaved vector j takes channel c
    constexpr Shuffle3() : pick{}, order{}, place{}, chan{} {
        for (int q = 0; q < 48; ++q) { // byte q of the three interleaved vectors
            const int pix = q / (3 * S), c = (q % (3 * S)) / S, k = pix * S + q % S;
            pick[c][q / 16][q % 16] = 0x80;
            order[c][k] = u8(q % 16);
            place[c][q % 16] = u8(k);
            chan[q / 16][c][q % 16] = 0x80;
        }
    }
};
template <int S>
constexpr Shuffle3<S> kShuffle3{};

// Four channels: each vector is first regrouped into four 32-bit groups, one a
// channel; a 4x4 transpose of 32-bit words then makes the planes (and back).
template <int S>
struct Shuffle4 {
    u8 group[16];   // interleaved lane -> grouped order
    u8 ungroup[16]; // grouped order -> interleaved lane
    constexpr Shuffle4() : group{}, ungroup{} {
        for (int q = 0; q < 16; ++q) {
            const int pix = q / (4 * S), c = (q % (4 * S)) / S, k = c * 4 + pix * S + q % S;
            group[k] = u8(q);
            ungroup[q] = u8(k);
        }
    }
};
template <int S>
constexpr Shuffle4<S> kShuffle4{};

} // namespace zel

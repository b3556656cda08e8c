// Copy, set and duplicate in every layout. Whole-pixel copies and fills go to
// the byte routines of copy_bytes.hpp; the other forms have small per-type
// kernels built from the templates below.
#include "core/frame.hpp"
#include "point/copy_bytes.hpp"

namespace zel {
namespace {

// ---- Masked rows -----------------------------------------------------------
// Visits the pixels whose mask byte is not zero, 16 mask bytes at a time: an
// all-zero block is skipped, an all-set block goes to `block(x)` (16 pixels
// from x), a mixed one pixel by pixel through `put(x)`.
template <class Put, class Block>
inline void masked_row(const u8* m, int w, Put&& put, Block&& block) {
    const __m128i zero = _mm_setzero_si128();
    int x = 0;
    for (; x + 16 <= w; x += 16) {
        const int isZero = _mm_movemask_epi8(_mm_cmpeq_epi8(ld(m + x), zero));
        if (isZero == 0xFFFF) continue;
        if (isZero == 0) {
            block(x);
            continue;
        }
        for (int k = 0; k < 16; ++k)
            if (!((isZero >> k) & 1)) put(x + k);
    }
    for (; x < w; ++x)
        if (m[x]) put(x);
}

// Masked copy of rows. With Repeat the source is one block of 16 pixels that
// every block of the destination receives (the masked set).
template <class T, Layout L, bool Repeat>
void masked_rows(const T* s, int ss, T* d, int ds, ZeliSize roi, const u8* m, int ms) {
    constexpr int C = channels(L), A = active(L);
    for (int r = 0; r < roi.height; ++r) {
        const T* sr = Repeat ? s : row(s, ss, r);
        T* dr = row(d, ds, r);
        auto put = [&](int x) {
            const T* sp = sr + (Repeat ? (x & 15) : x) * C;
            T* dp = dr + std::ptrdiff_t(x) * C;
            for (int c = 0; c < A; ++c) dp[c] = sp[c];
        };
        auto block = [&](int x) {
            if constexpr (L == AC4) {
                for (int k = 0; k < 16; ++k) put(x + k);
            } else {
                std::memcpy(dr + std::ptrdiff_t(x) * C, Repeat ? sr : sr + std::ptrdiff_t(x) * C, sizeof(T) * 16 * C);
            }
        };
        masked_row(row(m, ms, r), roi.width, put, block);
    }
}

// ---- Planar and interleaved --------------------------------------------------
// A block is 16 / S pixels (S bytes a sample): C interleaved vectors against
// one vector of each plane.
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

inline void transpose4(__m128i& a0, __m128i& a1, __m128i& a2, __m128i& a3) {
    const __m128i t0 = _mm_unpacklo_epi32(a0, a1), t1 = _mm_unpacklo_epi32(a2, a3);
    const __m128i t2 = _mm_unpackhi_epi32(a0, a1), t3 = _mm_unpackhi_epi32(a2, a3);
    a0 = _mm_unpacklo_epi64(t0, t1), a1 = _mm_unpackhi_epi64(t0, t1);
    a2 = _mm_unpacklo_epi64(t2, t3), a3 = _mm_unpackhi_epi64(t2, t3);
}

// Streaming stores only where the address allows them.
template <bool NT>
inline void put16(void* p, __m128i v) {
    if (NT && misalign16(p) == 0)
        stn(p, v);
    else
        stu(p, v);
}

template <class T, int C, bool NT>
void split_row(const T* s, T* const* planes, int w) {
    constexpr int S = sizeof(T), K = 16 / S;
    T* p[C];
    for (int c = 0; c < C; ++c) p[c] = planes[c];
    int x = 0;
    if constexpr (C == 3) {
        const auto& sh = kShuffle3<S>;
        // One plane vector from the three interleaved vectors v0, v1, v2.
        auto plane = [&](__m128i v0, __m128i v1, __m128i v2, int c) {
            const __m128i t = _mm_blendv_epi8(_mm_blendv_epi8(v0, v1, ld(sh.pick[c][1])), v2, ld(sh.pick[c][2]));
            return _mm_shuffle_epi8(t, ld(sh.order[c]));
        };
        // Two blocks a round: each plane receives 32 consecutive bytes.
        for (; x + 2 * K <= w; x += 2 * K) {
            const u8* in = reinterpret_cast<const u8*>(s + std::ptrdiff_t(x) * 3);
            const __m128i a0 = ld(in), a1 = ld(in + 16), a2 = ld(in + 32);
            const __m128i b0 = ld(in + 48), b1 = ld(in + 64), b2 = ld(in + 80);
            put16<NT>(p[0] + x, plane(a0, a1, a2, 0)), put16<NT>(p[0] + x + K, plane(b0, b1, b2, 0));
            put16<NT>(p[1] + x, plane(a0, a1, a2, 1)), put16<NT>(p[1] + x + K, plane(b0, b1, b2, 1));
            put16<NT>(p[2] + x, plane(a0, a1, a2, 2)), put16<NT>(p[2] + x + K, plane(b0, b1, b2, 2));
        }
        for (; x + K <= w; x += K) {
            const u8* in = reinterpret_cast<const u8*>(s + std::ptrdiff_t(x) * 3);
            const __m128i v0 = ld(in), v1 = ld(in + 16), v2 = ld(in + 32);
            put16<NT>(p[0] + x, plane(v0, v1, v2, 0));
            put16<NT>(p[1] + x, plane(v0, v1, v2, 1));
            put16<NT>(p[2] + x, plane(v0, v1, v2, 2));
        }
    } else {
        const __m128i g = ld(kShuffle4<S>.group);
        for (; x + K <= w; x += K) {
            const u8* in = reinterpret_cast<const u8*>(s + std::ptrdiff_t(x) * 4);
            __m128i a0 = ld(in), a1 = ld(in + 16), a2 = ld(in + 32), a3 = ld(in + 48);
            if (S < 4) {
                a0 = _mm_shuffle_epi8(a0, g), a1 = _mm_shuffle_epi8(a1, g);
                a2 = _mm_shuffle_epi8(a2, g), a3 = _mm_shuffle_epi8(a3, g);
            }
            transpose4(a0, a1, a2, a3);
            put16<NT>(p[0] + x, a0), put16<NT>(p[1] + x, a1), put16<NT>(p[2] + x, a2), put16<NT>(p[3] + x, a3);
        }
    }
    for (; x < w; ++x)
        for (int c = 0; c < C; ++c) p[c][x] = s[std::ptrdiff_t(x) * C + c];
}

template <class T, int C, bool NT>
void join_row(const T* const* planes, T* d, int w) {
    constexpr int S = sizeof(T), K = 16 / S;
    const T* p[C];
    for (int c = 0; c < C; ++c) p[c] = planes[c];
    int x = 0;
    if constexpr (C == 3) {
        const auto& sh = kShuffle3<S>;
        for (; x + K <= w; x += K) {
            const __m128i r0 = _mm_shuffle_epi8(ld(p[0] + x), ld(sh.place[0]));
            const __m128i r1 = _mm_shuffle_epi8(ld(p[1] + x), ld(sh.place[1]));
            const __m128i r2 = _mm_shuffle_epi8(ld(p[2] + x), ld(sh.place[2]));
            u8* out = reinterpret_cast<u8*>(d + std::ptrdiff_t(x) * 3);
            put16<NT>(out, _mm_blendv_epi8(_mm_blendv_epi8(r0, r1, ld(sh.chan[0][1])), r2, ld(sh.chan[0][2])));
            put16<NT>(out + 16, _mm_blendv_epi8(_mm_blendv_epi8(r0, r1, ld(sh.chan[1][1])), r2, ld(sh.chan[1][2])));
            put16<NT>(out + 32, _mm_blendv_epi8(_mm_blendv_epi8(r0, r1, ld(sh.chan[2][1])), r2, ld(sh.chan[2][2])));
        }
    } else {
        const __m128i u = ld(kShuffle4<S>.ungroup);
        for (; x + K <= w; x += K) {
            __m128i a0 = ld(p[0] + x), a1 = ld(p[1] + x), a2 = ld(p[2] + x), a3 = ld(p[3] + x);
            transpose4(a0, a1, a2, a3);
            if (S < 4) {
                a0 = _mm_shuffle_epi8(a0, u), a1 = _mm_shuffle_epi8(a1, u);
                a2 = _mm_shuffle_epi8(a2, u), a3 = _mm_shuffle_epi8(a3, u);
            }
            u8* out = reinterpret_cast<u8*>(d + std::ptrdiff_t(x) * 4);
            put16<NT>(out, a0), put16<NT>(out + 16, a1), put16<NT>(out + 32, a2), put16<NT>(out + 48, a3);
        }
    }
    for (; x < w; ++x)
        for (int c = 0; c < C; ++c) d[std::ptrdiff_t(x) * C + c] = p[c][x];
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

// ---- Managed copy ------------------------------------------------------------
// Bytes up to an alignment boundary: steps of 1, 2 and 4, then 8 bytes.
inline void copy_head(const u8*& s, u8*& d, std::size_t head) {
    std::size_t done = 0;
    if (head & 1) d[0] = s[0], done = 1;
    if (head & 2) std::memcpy(d + done, s + done, 2), done += 2;
    if (head & 4) std::memcpy(d + done, s + done, 4), done += 4;
    for (; done < head; done += 8) std::memcpy(d + done, s + done, 8);
    s += head, d += head;
}

// Ordinary loads; destination aligned to 64 bytes; stores streaming or not.
inline void managed_row(const u8* s, u8* d, std::size_t n, bool nt) {
    if (n < 64) return copy_ladder(s, d, n);
    const std::size_t head = (64 - (reinterpret_cast<std::uintptr_t>(d) & 63)) & 63;
    copy_head(s, d, head);
    n -= head;
    for (; n >= 64; s += 64, d += 64, n -= 64) {
        const __m128i v0 = ld(s), v1 = ld(s + 16), v2 = ld(s + 32), v3 = ld(s + 48);
        if (nt)
            stn(d, v0), stn(d + 16, v1), stn(d + 32, v2), stn(d + 48, v3);
        else
            sta(d, v0), sta(d + 16, v1), sta(d + 32, v2), sta(d + 48, v3);
    }
    copy_ladder(s, d, n);
}

// Streaming loads; source aligned to 64 bytes. The destination can take
// aligned (or streaming) stores only when it shares the source's alignment.
inline void managed_row_stream(const u8* s, u8* d, std::size_t n, bool nt) {
    if (n < 64) return copy_ladder(s, d, n);
    const std::size_t head = (64 - (reinterpret_cast<std::uintptr_t>(s) & 63)) & 63;
    copy_head(s, d, head);
    n -= head;
    const bool aligned = misalign16(d) == 0;
    for (; n >= 64; s += 64, d += 64, n -= 64) {
        __m128i* sp = reinterpret_cast<__m128i*>(const_cast<u8*>(s));
        const __m128i v0 = _mm_stream_load_si128(sp), v1 = _mm_stream_load_si128(sp + 1);
        const __m128i v2 = _mm_stream_load_si128(sp + 2), v3 = _mm_stream_load_si128(sp + 3);
        if (aligned && nt)
            stn(d, v0), stn(d + 16, v1), stn(d + 32, v2), stn(d + 48, v3);
        else if (aligned)
            sta(d, v0), sta(d + 16, v1), sta(d + 32, v2), sta(d + 48, v3);
        else
            stu(d, v0), stu(d + 16, v1), stu(d + 32, v2), stu(d + 48, v3);
    }
    copy_ladder(s, d, n);
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
    for (int r = 0; r < roi.height; ++r) {
        const T* sr = row(s, ss, r);
        T* dr = row(d, ds, r);
        for (int x = 0; x < roi.width; ++x)
            for (int c = 0; c < N; ++c) dr[std::ptrdiff_t(x) * DP + c] = sr[std::ptrdiff_t(x) * SP + (Spread ? 0 : c)];
    }
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
// streaming stores. row(planeRows, imageRow, width, nt) moves one row.
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
    return planar_copy<T, C>(p, ps, s, ss, roi, [](T* const* pr, const T* sr, int w, bool nt) {
        (nt ? split_row<T, C, true> : split_row<T, C, false>)(sr, pr, w);
    });
}

template <class T, int C>
ZelStatus copy_from_planes(const T* const* p, int ps, T* d, int ds, ZeliSize roi) {
    return planar_copy<T, C>(p, ps, d, ds, roi, [](const T* const* pr, T* dr, int w, bool nt) {
        (nt ? join_row<T, C, true> : join_row<T, C, false>)(pr, dr, w);
    });
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
    for (int r = 0; r < roi.height; ++r) {
        T* dr = row(d, ds, r);
        for (int x = 0; x < roi.width; ++x)
            for (int c = 0; c < N; ++c) dr[std::ptrdiff_t(x) * DP + c] = px[c];
    }
    return zelStatusOk;
}

template <class T, int DP>
ZelStatus set_strided1(T value, T* d, int ds, ZeliSize roi) {
    return set_strided<T, DP, 1>(&value, d, ds, roi);
}

// Masked set: a block of 16 pixels of the value is the source of every block.
template <class T, Layout L>
ZelStatus set_masked(const T* v, T* d, int ds, ZeliSize roi, const Zel8u* m, int ms) {
    if (any_null(v, d, m)) return zelStatusNullPointer;
    if (bad_size(roi)) return zelStatusBadSize;
    constexpr int C = channels(L);
    T block[16 * C];
    for (int i = 0; i < 16 * C; ++i) block[i] = (i % C) < active(L) ? v[i % C] : T(0);
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
    if (flags & 2) {
        for (int r = 0; r < h; ++r) managed_row_stream(row(s, ss, r), row(d, ds, r), n, nt);
        _mm_mfence();
    } else {
        for (int r = 0; r < h; ++r) managed_row(row(s, ss, r), row(d, ds, r), n, nt);
        _mm_sfence();
    }
    return zelStatusOk;
}

} // namespace zel

#define ZEL_LIST "zelip8/fn_copy.h"
#include "core/define_list.hpp"

// Reordering: channel permutation, transposition and mirroring.
//
// Every kernel moves whole samples, so the vector paths and the scalar paths
// give identical bytes by construction; the vector paths only choose how many
// pixels move at once. Pixels are handled as opaque blocks of E bytes.
#pragma once

#include "core/frame.hpp"
#include "point/reorder_store.hpp"

#include <smmintrin.h>

#include <algorithm>
#include <cstring>

namespace zel {

// ===========================================================================
// Channel swap: dst channel c = src channel order[c].
// ===========================================================================

// One pixel at a time: the whole source pixel is read before the destination
// pixel is written, so the in-place forms share the kernel.
template <class T, int SC, int NA>
inline void swap_row(const T* s, T* d, int first, int end, int dc, const int* o) {
    int oc[4] = {0, 0, 0, 0};
    for (int c = 0; c < NA; ++c) oc[c] = o[c];
    s += std::ptrdiff_t(first) * SC;
    d += std::ptrdiff_t(first) * dc;
    for (int x = first; x < end; ++x, s += SC, d += dc) {
        T p[SC];
        for (int c = 0; c < SC; ++c) p[c] = s[c];
        for (int c = 0; c < NA; ++c) d[c] = p[oc[c]];
    }
}

// 8u, three channels in and out: five pixels (15 bytes) per shuffle. The 16th
// byte written is the next pixel's first source byte, rewritten by the next
// step (or by the scalar tail); in place it is written with its own value.
// Returns the number of pixels done.
inline int swap_row_8u_c3(const Zel8u* s, Zel8u* d, int w, const int* o) {
    alignas(16) unsigned char m[16];
    for (int k = 0; k < 5; ++k)
        for (int c = 0; c < 3; ++c) m[3 * k + c] = static_cast<unsigned char>(3 * k + o[c]);
    m[15] = 15;
    const __m128i mask = _mm_load_si128(reinterpret_cast<const __m128i*>(m));
    int x = 0;
    for (; x + 6 <= w; x += 5) {
        const __m128i v = _mm_loadu_si128(reinterpret_cast<const __m128i*>(s + 3 * x));
        _mm_storeu_si128(reinterpret_cast<__m128i*>(d + 3 * x), _mm_shuffle_epi8(v, mask));
    }
    return x;
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
    for (int r = 0; r < roi.height; ++r) {
        const T* s = row(src, srcStep, r);
        T* d = row(dst, dstStep, r);
        int x = 0;
        if constexpr (sizeof(T) == 1 && SC == 3 && DC == 3) x = swap_row_8u_c3(s, d, roi.width, order);
        swap_row<T, SC, NA>(s, d, x, roi.width, DC, order);
    }
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
// Vector helpers on blocks of E-byte pixels (E = 1, 2, 4, 8, 16).
// ===========================================================================

// Interleaves the low (Hi false) or high halves of two registers in E-byte units.
template <int E, bool Hi>
inline __m128i unpack(__m128i a, __m128i b) {
    if constexpr (E == 1) return Hi ? _mm_unpackhi_epi8(a, b) : _mm_unpacklo_epi8(a, b);
    else if constexpr (E == 2) return Hi ? _mm_unpackhi_epi16(a, b) : _mm_unpacklo_epi16(a, b);
    else if constexpr (E == 4) return Hi ? _mm_unpackhi_epi32(a, b) : _mm_unpacklo_epi32(a, b);
    else return Hi ? _mm_unpackhi_epi64(a, b) : _mm_unpacklo_epi64(a, b);
}

constexpr bool vector_pixel(int E) { return E == 1 || E == 2 || E == 4 || E == 8; }

inline __m128i loadu(const void* p) { return _mm_loadu_si128(static_cast<const __m128i*>(p)); }
inline void storeu(void* p, __m128i v) { _mm_storeu_si128(static_cast<__m128i*>(p), v); }

// Transposes an n x n block of E-byte pixels, n = 16 / E, one 16-byte row a
// register. Each round interleaves register i with register i + n/2; the
// index bits of (register, position) rotate by one bit a round, so after
// log2(n) rounds row and column have changed places.
template <int E, bool NT>
inline void transpose_block(const unsigned char* s, std::ptrdiff_t ss, unsigned char* d, std::ptrdiff_t ds) {
    constexpr int n = 16 / E;
    __m128i r[n], t[n];
    for (int i = 0; i < n; ++i) r[i] = loadu(s + i * ss);
    for (int round = 1; round < n; round <<= 1) {
        for (int i = 0; i < n / 2; ++i) {
            t[2 * i] = unpack<E, false>(r[i], r[i + n / 2]);
            t[2 * i + 1] = unpack<E, true>(r[i], r[i + n / 2]);
        }
        for (int i = 0; i < n; ++i) r[i] = t[i];
    }
    for (int i = 0; i < n; ++i) {
        if constexpr (NT) _mm_stream_si128(reinterpret_cast<__m128i*>(d + i * ds), r[i]);
        else storeu(d + i * ds, r[i]);
    }
}

// ===========================================================================
// Transpose
// ===========================================================================

// Copies the w x h pixels of the source at (x0, y0) to their transposed
// places, one pixel at a time.
template <int E>
inline void transpose_scalar(const unsigned char* s, std::ptrdiff_t ss, unsigned char* d, std::ptrdiff_t ds, int x0,
                             int x1, int y0, int y1) {
    for (int y = y0; y < y1; ++y) {
        const unsigned char* sr = s + y * ss;
        for (int x = x0; x < x1; ++x) std::memcpy(d + x * ds + std::ptrdiff_t(y) * E, sr + std::ptrdiff_t(x) * E, E);
    }
}

// Bands of up to 512 source rows; inside a band, columns of vector blocks from
// top to bottom, so that each destination row is written in one sweep while
// the band's source lines stay in the cache for the next column. Pixels
// outside the vector grid (and pixel sizes without a vector kernel) go one
// at a time.
template <int E, bool NT>
void transpose_tiled(const unsigned char* s, std::ptrdiff_t ss, unsigned char* d, std::ptrdiff_t ds, int w, int h) {
    constexpr int n = vector_pixel(E) ? 16 / E : 1, band = 512;
    const int fx = vector_pixel(E) ? w / n * n : 0;
    for (int by = 0; by < h; by += band) {
        const int ey = std::min(h, by + band);
        const int fy = vector_pixel(E) ? by + (ey - by) / n * n : by;
        if constexpr (vector_pixel(E))
            for (int x = 0; x < fx; x += n)
                for (int y = by; y < fy; y += n)
                    transpose_block<E, NT>(s + y * ss + std::ptrdiff_t(x) * E, ss, d + x * ds + std::ptrdiff_t(y) * E, ds);
        transpose_scalar<E>(s, ss, d, ds, fx, w, by, fy);
        transpose_scalar<E>(s, ss, d, ds, 0, w, fy, ey);
    }
}

// Square region in place: pairs of vector blocks above and below the
// diagonal change places, diagonal blocks turn in themselves, and the pixels
// outside the vector grid are swapped one pair at a time.
template <int E>
void transpose_square_inplace(unsigned char* p, std::ptrdiff_t step, int N) {
    int F = 0;
    if constexpr (vector_pixel(E)) {
        constexpr int n = 16 / E;
        F = N / n * n;
        alignas(16) unsigned char tmp[16 * 16];
        for (int by = 0; by < F; by += n) {
            unsigned char* diag = p + by * step + std::ptrdiff_t(by) * E;
            transpose_block<E, false>(diag, step, tmp, 16);
            for (int i = 0; i < n; ++i) std::memcpy(diag + i * step, tmp + 16 * i, 16);
            for (int bx = by + n; bx < F; bx += n) {
                unsigned char* a = p + by * step + std::ptrdiff_t(bx) * E; // above the diagonal
                unsigned char* b = p + bx * step + std::ptrdiff_t(by) * E; // its mirror
                transpose_block<E, false>(a, step, tmp, 16);
                transpose_block<E, false>(b, step, a, step);
                for (int i = 0; i < n; ++i) std::memcpy(b + i * step, tmp + 16 * i, 16);
            }
        }
    }
    unsigned char t[E];
    for (int y = 0; y < N; ++y)
        for (int x = std::max(y + 1, F); x < N; ++x) {
            unsigned char* a = p + y * step + std::ptrdiff_t(x) * E;
            unsigned char* b = p + x * step + std::ptrdiff_t(y) * E;
            std::memcpy(t, a, E);
            std::memcpy(a, b, E);
            std::memcpy(b, t, E);
        }
}

template <class T, int C>
ZelStatus transpose_i(T* srcDst, int step, ZeliSize roi) {
    if (any_null(srcDst)) return zelStatusNullPointer;
    if (bad_size(roi) || roi.width != roi.height) return zelStatusBadSize;
    transpose_square_inplace<int(sizeof(T)) * C>(reinterpret_cast<unsigned char*>(srcDst), step, roi.width);
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
            transpose_tiled<1, true>(s, srcStep, d, dstStep, roi.width, roi.height);
            _mm_sfence();
            return zelStatusOk;
        }
    }
    transpose_tiled<E, false>(s, srcStep, d, dstStep, roi.width, roi.height);
    return zelStatusOk;
}

// ===========================================================================
// Mirror
// ===========================================================================

// Reverses the order of the E-byte pixels of a register.
template <int E>
inline __m128i reverse_pixels(__m128i v) {
    if constexpr (E == 16) return v;
    else if constexpr (E == 8) return _mm_shuffle_epi32(v, _MM_SHUFFLE(1, 0, 3, 2));
    else if constexpr (E == 4) return _mm_shuffle_epi32(v, _MM_SHUFFLE(0, 1, 2, 3));
    else {
        alignas(16) unsigned char m[16];
        for (int j = 0; j < 16; ++j) m[j] = static_cast<unsigned char>((16 / E - 1 - j / E) * E + j % E);
        return _mm_shuffle_epi8(v, _mm_load_si128(reinterpret_cast<const __m128i*>(m)));
    }
}

// Bytes of the alpha sample of each E-byte pixel with S-byte samples.
template <int E, int S>
inline __m128i alpha_mask() {
    alignas(16) unsigned char m[16];
    for (int j = 0; j < 16; ++j) m[j] = (j % E) >= E - S ? 0xff : 0;
    return _mm_load_si128(reinterpret_cast<const __m128i*>(m));
}

// Row operations of the mirror on pixels of C samples of T, A of them active.
// `Alpha`: the sample after the A active ones keeps its place and value.
template <class T, int C, int A>
struct MirrorRows {
    static constexpr int E = int(sizeof(T)) * C;
    static constexpr bool kAlpha = A < C;
    static constexpr bool kVec = vector_pixel(E) || E == 16;
    static constexpr int n = 16 / E;

    static void put(T* d, const T* s) {
        for (int c = 0; c < A; ++c) d[c] = s[c];
    }
    static void swap(T* a, T* b) {
        for (int c = 0; c < A; ++c) {
            const T t = a[c];
            a[c] = b[c];
            b[c] = t;
        }
    }
    static __m128i merge(__m128i v, __m128i old) {
        if constexpr (kAlpha) return _mm_blendv_epi8(v, old, alpha_mask<E, int(sizeof(T))>());
        else return v;
    }

    // d[x] = s[x], or streamed when nt.
    static void copy(const T* s, T* d, int w, bool nt) {
        if constexpr (!kAlpha) {
            if (nt) stream_copy(d, s, std::size_t(w) * E);
            else std::memcpy(d, s, std::size_t(w) * E);
        } else {
            int x = 0;
            if constexpr (kVec)
                for (; x + n <= w; x += n) storeu(d + x * C, merge(loadu(s + x * C), loadu(d + x * C)));
            for (; x < w; ++x) put(d + x * C, s + x * C);
        }
    }

    // d[x] = s[w - 1 - x].
    static void reverse(const T* s, T* d, int w) {
        int x = 0;
        if constexpr (kVec) {
            for (; x + n <= w; x += n) {
                const __m128i v = reverse_pixels<E>(loadu(s + std::ptrdiff_t(w - x - n) * C));
                storeu(d + x * C, merge(v, kAlpha ? loadu(d + x * C) : v));
            }
        } else if constexpr (E == 3 && !kAlpha) {
            x = reverse_8u_c3(reinterpret_cast<const unsigned char*>(s), reinterpret_cast<unsigned char*>(d), w);
        }
        for (; x < w; ++x) put(d + x * C, s + std::ptrdiff_t(w - 1 - x) * C);
    }

    // 8u three channels: five pixels a shuffle; the 16th byte written is
    // rewritten by the next step or by the scalar tail.
    static int reverse_8u_c3(const unsigned char* s, unsigned char* d, int w) {
        alignas(16) unsigned char m[16];
        // Load starts one byte before the five source pixels.
        for (int k = 0; k < 5; ++k)
            for (int c = 0; c < 3; ++c) m[3 * k + c] = static_cast<unsigned char>(1 + 3 * (4 - k) + c);
        m[15] = 0x80;
        const __m128i mask = _mm_load_si128(reinterpret_cast<const __m128i*>(m));
        int x = 0;
        for (; x + 6 <= w; x += 5) storeu(d + 3 * x, _mm_shuffle_epi8(loadu(s + 3 * std::ptrdiff_t(w - x) - 16), mask));
        return x;
    }

    // Rows a and b exchange their samples.
    static void exchange(T* a, T* b, int w) {
        int x = 0;
        if constexpr (kVec) {
            for (; x + n <= w; x += n) {
                const __m128i va = loadu(a + x * C), vb = loadu(b + x * C);
                storeu(a + x * C, merge(vb, va));
                storeu(b + x * C, merge(va, vb));
            }
        }
        for (; x < w; ++x) swap(a + x * C, b + x * C);
    }

    // New a[x] = old b[w-1-x] and new b[x] = old a[w-1-x]; a may equal b.
    static void exchange_reversed(T* a, T* b, int w) {
        int x = 0;
        const bool same = a == b;
        if constexpr (kVec) {
            for (; same ? 2 * (x + n) <= w : x + n <= w; x += n) {
                T* pb = b + std::ptrdiff_t(w - x - n) * C;
                const __m128i va = loadu(a + x * C), vb = loadu(pb);
                storeu(a + x * C, merge(reverse_pixels<E>(vb), va));
                storeu(pb, merge(reverse_pixels<E>(va), vb));
            }
        }
        for (const int end = same ? w / 2 : w; x < end; ++x) swap(a + x * C, b + std::ptrdiff_t(w - 1 - x) * C);
    }
};

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
    using R = MirrorRows<T, channels(L), active(L)>;
    const int w = roi.width, h = roi.height;
    if (flip == 1) {
        for (int r = 0; r < h; ++r) R::exchange_reversed(row(p, step, r), row(p, step, r), w);
        return zelStatusOk;
    }
    for (int r = 0; r < h / 2; ++r) {
        if (flip == 0) R::exchange(row(p, step, r), row(p, step, h - 1 - r), w);
        else R::exchange_reversed(row(p, step, r), row(p, step, h - 1 - r), w);
    }
    if (flip == 2 && (h & 1)) R::exchange_reversed(row(p, step, h / 2), row(p, step, h / 2), w);
    return zelStatusOk;
}

template <class T, Layout L>
ZelStatus mirror(const T* src, int srcStep, T* dst, int dstStep, ZeliSize roi, int flip) {
    if (src == dst) return mirror_i<T, L>(dst, dstStep, roi, flip);
    if (ZelStatus st = mirror_checks(any_null(src, dst), roi, flip)) return st;
    using R = MirrorRows<T, channels(L), active(L)>;
    constexpr int E = R::E;
    const int w = roi.width, h = roi.height;
    bool nt = false;
    if constexpr (L == C4) nt = nontemporal(2ULL * std::uint64_t(w) * std::uint64_t(h) * E);
    for (int r = 0; r < h; ++r) {
        const T* s = row(src, srcStep, r);
        T* d = row(dst, dstStep, flip == 1 ? r : h - 1 - r);
        if (flip == 0) R::copy(s, d, w, nt);
        else if (!nt) R::reverse(s, d, w);
        else
            chunked_row(d, w, channels(L), true, false,
                        [&](T* out, int first, int n) { R::reverse(s + std::ptrdiff_t(w - first - n) * channels(L), out, n); });
    }
    if (nt) _mm_sfence();
    return zelStatusOk;
}

} // namespace zel

// Sums and means of images, one Zel64f a channel.
//
// Integer samples are summed exactly: 32-bit vector lanes over blocks short
// enough never to overflow, flushed into 64-bit totals. The order does not
// matter for exact sums, so lanes are free to run over any samples.
//
// Zel32f samples have two fixed orders, reproduced bit for bit by the vector
// and the scalar code at any width and alignment:
//  - fast (any hint but 2): sample i of a row goes to Zel32f lane i % P
//    (P = 12 for three channels, 16 otherwise), added in row order; at the end
//    of the row every lane, in ascending order, is widened and added to the
//    Zel64f total of its channel (lane % channels).
//  - accurate (hint 2): per channel, the samples of a row are widened to
//    Zel64f. A row of at least 16 pixels runs eight accumulators (pixel 8k+i
//    to accumulator i), the pixels past the last group of eight go pairwise to
//    accumulators 0 and 1; at the end of the row the accumulators fold
//    pairwise, ((a0+a2)+(a4+a6)) into the even total and ((a1+a3)+(a5+a7))
//    into the odd total. A shorter row adds pixel pairs straight to the even
//    and odd totals. The last pixel of an odd row goes to the even total.
//    The result is even + odd.
#pragma once

#include "core/frame.hpp"

#include <cstring>

namespace zel {

// ---- Exact integer sums ----------------------------------------------------

// Widens the eight samples of one 16-byte vector to two vectors of 32-bit lanes.
inline int widen32(__m128i v, Zel16u, __m128i* out) {
    const __m128i z = _mm_setzero_si128();
    out[0] = _mm_unpacklo_epi16(v, z);
    out[1] = _mm_unpackhi_epi16(v, z);
    return 2;
}
inline int widen32(__m128i v, Zel16s, __m128i* out) {
    out[0] = _mm_cvtepi16_epi32(v);
    out[1] = _mm_cvtepi16_epi32(_mm_srli_si128(v, 8));
    return 2;
}

// Positional 32-bit lanes: lane j of vector m holds sample 4m + j of a period
// of kP samples, which is whole vectors and whole pixels, so the channel of a
// lane is (4m + j) % MC.
template <class T, int MC>
struct IntLanes {
    static constexpr int kV = 16 / int(sizeof(T));         // samples a load
    static constexpr int kP = MC == 3 ? 3 * kV : kV;       // samples a period
    static constexpr int kW = kP / 4;                      // 32-bit vectors
    __m128i acc[kW];

    IntLanes() { clear(); }
    void clear() {
        for (int m = 0; m < kW; ++m) acc[m] = _mm_setzero_si128();
    }
    // Adds `periods` periods starting at p.
    void run(const T* p, int periods) {
        constexpr int K = kP / kV;
        if constexpr (sizeof(T) == 1) {
            // Bytes first add up in 16-bit lanes, 256 periods at most
            // (256 * 255 fits), then widen into the 32-bit lanes.
            const __m128i z = _mm_setzero_si128();
            while (periods > 0) {
                const int n = periods < 256 ? periods : 256;
                __m128i a[2 * K];
#pragma GCC unroll 6
                for (int q = 0; q < 2 * K; ++q) a[q] = z;
                for (int i = 0; i < n; ++i, p += kP)
#pragma GCC unroll 3
                    for (int k = 0; k < K; ++k) {
                        const __m128i v = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p + k * 16));
                        a[2 * k] = _mm_add_epi16(a[2 * k], _mm_unpacklo_epi8(v, z));
                        a[2 * k + 1] = _mm_add_epi16(a[2 * k + 1], _mm_unpackhi_epi8(v, z));
                    }
#pragma GCC unroll 6
                for (int q = 0; q < 2 * K; ++q) {
                    acc[2 * q] = _mm_add_epi32(acc[2 * q], _mm_unpacklo_epi16(a[q], z));
                    acc[2 * q + 1] = _mm_add_epi32(acc[2 * q + 1], _mm_unpackhi_epi16(a[q], z));
                }
                periods -= n;
            }
        } else {
            __m128i a[kW];
#pragma GCC unroll 6
            for (int m = 0; m < kW; ++m) a[m] = acc[m];
            for (int i = 0; i < periods; ++i, p += kP)
#pragma GCC unroll 3
                for (int k = 0; k < K; ++k) {
                    __m128i w[2];
                    widen32(_mm_loadu_si128(reinterpret_cast<const __m128i*>(p + k * kV)), T(), w);
                    a[2 * k] = _mm_add_epi32(a[2 * k], w[0]);
                    a[2 * k + 1] = _mm_add_epi32(a[2 * k + 1], w[1]);
                }
#pragma GCC unroll 6
            for (int m = 0; m < kW; ++m) acc[m] = a[m];
        }
    }
    // Moves the lanes into the 64-bit totals and clears them. Lanes are read
    // as signed for 16s and as unsigned otherwise.
    void flush(long long* total) {
        for (int m = 0; m < kW; ++m) {
            alignas(16) std::int32_t s[4];
            _mm_store_si128(reinterpret_cast<__m128i*>(s), acc[m]);
            for (int j = 0; j < 4; ++j) {
                const long long v = std::is_signed<T>::value ? (long long)s[j] : (long long)std::uint32_t(s[j]);
                total[(4 * m + j) % MC] += v;
            }
        }
        clear();
    }
};

// Sum of one row of n samples into per-channel totals. The lanes are flushed
// every `block` samples, and at the end of the row unless `keep` (the small
// 16s images, whose whole sum fits the 32-bit lanes).
template <class T, int MC>
inline void sum_row_int(const T* p, int n, long long* total, IntLanes<T, MC>& lanes, int block, bool keep) {
    constexpr int P = IntLanes<T, MC>::kP;
    const int periods = n / P, chunk = block / P;
    for (int i = 0; i < periods;) {
        const int k = periods - i < chunk ? periods - i : chunk;
        lanes.run(p + i * P, k);
        i += k;
        if (i < periods || !keep) lanes.flush(total);
    }
    for (int i = periods * P, c = 0; i < n; ++i, c = (c + 1 == MC ? 0 : c + 1)) total[c] += p[i];
}

// 8u one channel: sums of absolute differences against zero add 16 samples
// into two 64-bit lanes, which cannot overflow.
inline long long sum_row_8u(const Zel8u* p, int n) {
    __m128i acc = _mm_setzero_si128();
    const __m128i z = _mm_setzero_si128();
    int i = 0;
    for (; i + 64 <= n; i += 64) {
        const __m128i a = _mm_sad_epu8(_mm_loadu_si128(reinterpret_cast<const __m128i*>(p + i)), z);
        const __m128i b = _mm_sad_epu8(_mm_loadu_si128(reinterpret_cast<const __m128i*>(p + i + 16)), z);
        const __m128i c = _mm_sad_epu8(_mm_loadu_si128(reinterpret_cast<const __m128i*>(p + i + 32)), z);
        const __m128i d = _mm_sad_epu8(_mm_loadu_si128(reinterpret_cast<const __m128i*>(p + i + 48)), z);
        acc = _mm_add_epi64(acc, _mm_add_epi64(_mm_add_epi64(a, b), _mm_add_epi64(c, d)));
    }
    for (; i + 16 <= n; i += 16)
        acc = _mm_add_epi64(acc, _mm_sad_epu8(_mm_loadu_si128(reinterpret_cast<const __m128i*>(p + i)), z));
    alignas(16) long long half[2];
    _mm_store_si128(reinterpret_cast<__m128i*>(half), acc);
    long long s = half[0] + half[1];
    for (; i < n; ++i) s += p[i];
    return s;
}

template <class T, Layout L>
void sum_int(const T* pSrc, int step, ZeliSize roi, Zel64f* out) {
    constexpr int MC = channels(L);
    const int n = roi.width * MC;
    long long total[4] = {0, 0, 0, 0};
    if constexpr (std::is_same<T, Zel8u>::value && MC == 1) {
        for (int r = 0; r < roi.height; ++r) total[0] += sum_row_8u(row(pSrc, step, r), n);
    } else {
        // 16s images below 0x10000 pixels cannot overflow a 32-bit lane:
        // their lanes are flushed once, at the end.
        const bool keep = std::is_same<T, Zel16s>::value && (long long)roi.width * roi.height < 0x10000;
        const int block = sizeof(T) == 1 ? (1 << 20) : 32768;
        IntLanes<T, MC> lanes;
        for (int r = 0; r < roi.height; ++r) sum_row_int<T, MC>(row(pSrc, step, r), n, total, lanes, block, keep);
        lanes.flush(total);
    }
    for (int c = 0; c < active(L); ++c) out[c] = Zel64f(total[c]);
}

// ---- Zel32f, fast ----------------------------------------------------------

template <int MC>
inline void sum_row_32f_fast(const Zel32f* p, int n, Zel64f* total) {
    constexpr int P = MC == 3 ? 12 : 16, G = P / 4;
    __m128 acc[G];
    for (int g = 0; g < G; ++g) acc[g] = _mm_setzero_ps();
    int i = 0;
    for (; i + P <= n; i += P)
#pragma GCC unroll 4
        for (int g = 0; g < G; ++g) acc[g] = _mm_add_ps(acc[g], _mm_loadu_ps(p + i + 4 * g));
    alignas(16) Zel32f lane[P];
    for (int g = 0; g < G; ++g) _mm_store_ps(lane + 4 * g, acc[g]);
    for (int l = 0; i < n; ++i, ++l) lane[l] += p[i];
    for (int l = 0; l < P; ++l) total[l % MC] += Zel64f(lane[l]);
}

// ---- Zel32f, accurate ------------------------------------------------------

template <int MC>
inline void sum_row_32f_accurate(const Zel32f* p, int w, Zel64f* even, Zel64f* odd) {
    int x = 0;
    if (w >= 16) {
        Zel64f a[8][MC] = {};
        for (; x + 8 <= w; x += 8)
            for (int i = 0; i < 8; ++i)
                for (int c = 0; c < MC; ++c) a[i][c] += Zel64f(p[(x + i) * MC + c]);
        for (; x + 2 <= w; x += 2)
            for (int c = 0; c < MC; ++c) {
                a[0][c] += Zel64f(p[x * MC + c]);
                a[1][c] += Zel64f(p[(x + 1) * MC + c]);
            }
        for (int c = 0; c < MC; ++c) {
            even[c] += (a[0][c] + a[2][c]) + (a[4][c] + a[6][c]);
            odd[c] += (a[1][c] + a[3][c]) + (a[5][c] + a[7][c]);
        }
    } else {
        for (; x + 2 <= w; x += 2)
            for (int c = 0; c < MC; ++c) {
                even[c] += Zel64f(p[x * MC + c]);
                odd[c] += Zel64f(p[(x + 1) * MC + c]);
            }
    }
    if (x < w)
        for (int c = 0; c < MC; ++c) even[c] += Zel64f(p[x * MC + c]);
}

// One channel, accurate: the eight accumulators in four Zel64f pairs.
template <>
inline void sum_row_32f_accurate<1>(const Zel32f* p, int w, Zel64f* even, Zel64f* odd) {
    int x = 0;
    if (w >= 16) {
        __m128d a0 = _mm_setzero_pd(), a1 = a0, a2 = a0, a3 = a0;
        for (; x + 8 <= w; x += 8) {
            const __m128 u = _mm_loadu_ps(p + x), v = _mm_loadu_ps(p + x + 4);
            a0 = _mm_add_pd(a0, _mm_cvtps_pd(u));
            a1 = _mm_add_pd(a1, _mm_cvtps_pd(_mm_movehl_ps(u, u)));
            a2 = _mm_add_pd(a2, _mm_cvtps_pd(v));
            a3 = _mm_add_pd(a3, _mm_cvtps_pd(_mm_movehl_ps(v, v)));
        }
        for (; x + 2 <= w; x += 2)
            a0 = _mm_add_pd(a0, _mm_cvtps_pd(_mm_castsi128_ps(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(p + x)))));
        // Lanes: a0 = (acc0, acc1), a1 = (acc2, acc3), a2 = (acc4, acc5), a3 = (acc6, acc7).
        const __m128d s = _mm_add_pd(_mm_add_pd(a0, a1), _mm_add_pd(a2, a3));
        even[0] += _mm_cvtsd_f64(s);
        odd[0] += _mm_cvtsd_f64(_mm_unpackhi_pd(s, s));
    } else {
        for (; x + 2 <= w; x += 2) {
            even[0] += Zel64f(p[x]);
            odd[0] += Zel64f(p[x + 1]);
        }
    }
    if (x < w) even[0] += Zel64f(p[x]);
}

template <Layout L>
void sum_32f(const Zel32f* pSrc, int step, ZeliSize roi, Zel64f* out, int hint) {
    constexpr int MC = channels(L);
    Zel64f total[4] = {0, 0, 0, 0};
    if (hint == zelAlgHintAccurate) {
        Zel64f odd[4] = {0, 0, 0, 0};
        for (int r = 0; r < roi.height; ++r) sum_row_32f_accurate<MC>(row(pSrc, step, r), roi.width, total, odd);
        for (int c = 0; c < MC; ++c) total[c] += odd[c];
    } else {
        for (int r = 0; r < roi.height; ++r) sum_row_32f_fast<MC>(row(pSrc, step, r), roi.width * MC, total);
    }
    for (int c = 0; c < active(L); ++c) out[c] = total[c];
}

// ---- Entries ---------------------------------------------------------------

// Checks: source and result null, then size. Steps are not checked.
template <class T, Layout L, class... Hint>
ZelStatus sum(const T* pSrc, int srcStep, ZeliSize roi, Zel64f* pSum, Hint... hint) {
    if (any_null(pSrc, pSum)) return zelStatusNullPointer;
    if (bad_size(roi)) return zelStatusBadSize;
    Zel64f s[4];
    if constexpr (std::is_same<T, Zel32f>::value)
        sum_32f<L>(pSrc, srcStep, roi, s, hint...);
    else
        sum_int<T, L>(pSrc, srcStep, roi, s);
    for (int c = 0; c < active(L); ++c) pSum[c] = s[c];
    return zelStatusOk;
}

// The pixel count is a signed 32-bit product. One channel divides; the
// others multiply by its reciprocal, which may differ in the last bit.
template <class T, Layout L, class... Hint>
ZelStatus mean(const T* pSrc, int srcStep, ZeliSize roi, Zel64f* pMean, Hint... hint) {
    if (!pMean) return zelStatusNullPointer;
    Zel64f s[4];
    const ZelStatus st = sum<T, L>(pSrc, srcStep, roi, s, hint...);
    if (st != zelStatusOk) return st;
    const int count = int(std::uint32_t(roi.width) * std::uint32_t(roi.height));
    if (L == C1) {
        pMean[0] = s[0] / Zel64f(count);
    } else {
        const Zel64f inv = 1.0 / Zel64f(count);
        for (int c = 0; c < active(L); ++c) pMean[c] = s[c] * inv;
    }
    return zelStatusOk;
}

} // namespace zel

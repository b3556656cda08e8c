// Norms of one image, of the difference of two, and of the difference relative
// to the second: Inf (largest magnitude), L1 (sum of magnitudes), L2 (root of
// the sum of squares), one Zel64f a channel.
//
// Integer samples are accumulated exactly: 32-bit block totals over at most
// 32768 pixels a block (no lane can overflow), added to 64-bit totals and
// converted once at the end. 32f samples have two paths: the fast one sums in
// Zel32f lanes within a row (lane = sample index modulo the lane period) and
// folds the lanes into a Zel64f total at the end of each row; the accurate one
// (hint 2) widens every sample to Zel64f over eight accumulators. The SSE
// kernels add in exactly the lane order of the scalar code, so both give the
// same bits at every width and alignment.
#pragma once

#include "core/frame.hpp"

#include <cfloat>
#include <climits>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <tuple>
#include <type_traits>

namespace zel {

enum class NormKind { Inf, L1, L2 };

namespace norm_detail {

constexpr int kBlock = 32768; // pixels a block of 32-bit integer totals

// |a - b| (or |a|) of integer samples, as an unsigned 32-bit value.
template <class T, bool DIFF>
inline std::uint32_t mag(T a, T b) {
    if (std::is_same<T, Zel32s>::value) {
        const std::uint32_t u = std::uint32_t(a);
        return a < 0 ? 0u - u : u;
    }
    const int d = DIFF ? int(a) - int(b) : int(a);
    return std::uint32_t(d < 0 ? -d : d);
}

// ---- integer rows, any layout ------------------------------------------------
// Four samples at a time are widened to 32-bit lanes; sample i of the row goes
// to lane i % P (P = 4, or 12 for three channels, so that every lane belongs
// to one channel), and the lanes are added into their channels at the end.
template <class T>
inline __m128i load4(const T* p) {
    if (std::is_same<T, Zel8u>::value) {
        int v;
        std::memcpy(&v, p, 4);
        return _mm_cvtepu8_epi32(_mm_cvtsi32_si128(v));
    }
    if (std::is_same<T, Zel32s>::value) return _mm_loadu_si128(reinterpret_cast<const __m128i*>(p));
    const __m128i v = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(p));
    return std::is_same<T, Zel16s>::value ? _mm_cvtepi16_epi32(v) : _mm_cvtepu16_epi32(v);
}

// |a - b| (or |a|) of four samples; -2^31 of 32s comes out as 2^31 unsigned.
template <class T, bool DIFF>
inline __m128i mag4(const T* a, const T* b) {
    __m128i v = load4(a);
    if (DIFF) v = _mm_sub_epi32(v, load4(b));
    return (std::is_unsigned<T>::value && !DIFF) ? v : _mm_abs_epi32(v);
}

template <int CH>
constexpr int vecs() { return CH == 3 ? 3 : 1; }

template <class T, NormKind K, int CH, bool DIFF, class Acc>
inline void int_sum_row(const T* a, const T* b, int n, Acc* s) {
    constexpr int V = vecs<CH>(), P = 4 * V;
    alignas(16) Acc lane[P] = {};
    const int ns = n * CH;
    int x = 0;
    if (sizeof(Acc) == 4) { // L1, and L2 of 8u (squares below 2^16: one madd)
        __m128i acc[V];
        for (int v = 0; v < V; ++v) acc[v] = _mm_setzero_si128();
        for (; x + P <= ns; x += P)
            for (int v = 0; v < V; ++v) {
                const __m128i m = mag4<T, DIFF>(a + x + 4 * v, b + x + 4 * v);
                acc[v] = _mm_add_epi32(acc[v], K == NormKind::L1 ? m : _mm_madd_epi16(m, m));
            }
        for (int v = 0; v < V; ++v) _mm_store_si128(reinterpret_cast<__m128i*>(lane + 4 * v), acc[v]);
    } else { // L2 of 16-bit magnitudes: 64-bit products of even and odd lanes
        __m128i ev[V], od[V];
        for (int v = 0; v < V; ++v) ev[v] = od[v] = _mm_setzero_si128();
        for (; x + P <= ns; x += P)
            for (int v = 0; v < V; ++v) {
                const __m128i m = mag4<T, DIFF>(a + x + 4 * v, b + x + 4 * v), mo = _mm_srli_epi64(m, 32);
                ev[v] = _mm_add_epi64(ev[v], _mm_mul_epu32(m, m));
                od[v] = _mm_add_epi64(od[v], _mm_mul_epu32(mo, mo));
            }
        for (int v = 0; v < V; ++v) {
            alignas(16) std::uint64_t e[2], o[2];
            _mm_store_si128(reinterpret_cast<__m128i*>(e), ev[v]);
            _mm_store_si128(reinterpret_cast<__m128i*>(o), od[v]);
            lane[4 * v] = Acc(e[0]);
            lane[4 * v + 1] = Acc(o[0]);
            lane[4 * v + 2] = Acc(e[1]);
            lane[4 * v + 3] = Acc(o[1]);
        }
    }
    for (int j = 0; x < ns; ++x, ++j) {
        const Acc m = mag<T, DIFF>(a[x], DIFF ? b[x] : T(0));
        lane[j] += K == NormKind::L1 ? m : m * m;
    }
    for (int j = 0; j < P; ++j) s[j % CH] += lane[j];
}

template <class T, int CH, bool DIFF, bool SAT>
inline void int_max_row(const T* a, const T* b, int n, std::uint32_t* mx) {
    constexpr int V = vecs<CH>(), P = 4 * V;
    alignas(16) std::uint32_t lane[P];
    __m128i acc[V];
    for (int v = 0; v < V; ++v) acc[v] = _mm_setzero_si128();
    const int ns = n * CH;
    int x = 0;
    for (; x + P <= ns; x += P)
        for (int v = 0; v < V; ++v) acc[v] = _mm_max_epu32(acc[v], mag4<T, DIFF>(a + x + 4 * v, b + x + 4 * v));
    for (int v = 0; v < V; ++v) _mm_store_si128(reinterpret_cast<__m128i*>(lane + 4 * v), acc[v]);
    for (int j = 0; x < ns; ++x, ++j) {
        const std::uint32_t m = mag<T, DIFF>(a[x], DIFF ? b[x] : T(0));
        lane[j] = m > lane[j] ? m : lane[j];
    }
    for (int j = 0; j < P; ++j) {
        const std::uint32_t m = SAT && lane[j] > 32767u ? 32767u : lane[j];
        mx[j % CH] = m > mx[j % CH] ? m : mx[j % CH];
    }
}

// ---- SSE kernels for one-channel 8u and 16s --------------------------------
// Sum of two 64-bit lanes whose total fits 32 bits (a block of sums of bytes).
inline std::uint32_t hsum64(__m128i v) {
    return std::uint32_t(_mm_cvtsi128_si32(_mm_add_epi64(v, _mm_srli_si128(v, 8))));
}
inline std::uint32_t hsum32(__m128i v) {
    v = _mm_add_epi32(v, _mm_shuffle_epi32(v, 0x4e));
    v = _mm_add_epi32(v, _mm_shuffle_epi32(v, 0xb1));
    return std::uint32_t(_mm_cvtsi128_si32(v));
}
inline __m128i absdiff_u8(__m128i a, __m128i b) { return _mm_or_si128(_mm_subs_epu8(a, b), _mm_subs_epu8(b, a)); }

template <bool DIFF>
inline std::uint32_t l1_8u(const Zel8u* a, const Zel8u* b, int n) {
    __m128i acc = _mm_setzero_si128();
    int x = 0;
    for (; x + 16 <= n; x += 16) {
        const __m128i va = _mm_loadu_si128(reinterpret_cast<const __m128i*>(a + x));
        const __m128i vb = DIFF ? _mm_loadu_si128(reinterpret_cast<const __m128i*>(b + x)) : _mm_setzero_si128();
        acc = _mm_add_epi64(acc, _mm_sad_epu8(va, vb));
    }
    std::uint32_t s = hsum64(acc);
    for (; x < n; ++x) s += mag<Zel8u, DIFF>(a[x], DIFF ? b[x] : 0);
    return s;
}

template <bool DIFF>
inline std::uint32_t l2_8u(const Zel8u* a, const Zel8u* b, int n) {
    const __m128i z = _mm_setzero_si128();
    __m128i acc0 = z, acc1 = z;
    int x = 0;
    for (; x + 16 <= n; x += 16) {
        __m128i va = _mm_loadu_si128(reinterpret_cast<const __m128i*>(a + x));
        if (DIFF) va = absdiff_u8(va, _mm_loadu_si128(reinterpret_cast<const __m128i*>(b + x)));
        const __m128i lo = _mm_unpacklo_epi8(va, z), hi = _mm_unpackhi_epi8(va, z);
        acc0 = _mm_add_epi32(acc0, _mm_madd_epi16(lo, lo));
        acc1 = _mm_add_epi32(acc1, _mm_madd_epi16(hi, hi));
    }
    std::uint32_t s = hsum32(_mm_add_epi32(acc0, acc1));
    for (; x < n; ++x) {
        const std::uint32_t m = mag<Zel8u, DIFF>(a[x], DIFF ? b[x] : 0);
        s += m * m;
    }
    return s;
}

template <bool DIFF>
inline std::uint32_t inf_8u(const Zel8u* a, const Zel8u* b, int n, std::uint32_t m) {
    __m128i acc = _mm_setzero_si128();
    int x = 0;
    for (; x + 16 <= n; x += 16) {
        __m128i va = _mm_loadu_si128(reinterpret_cast<const __m128i*>(a + x));
        if (DIFF) va = absdiff_u8(va, _mm_loadu_si128(reinterpret_cast<const __m128i*>(b + x)));
        acc = _mm_max_epu8(acc, va);
    }
    acc = _mm_max_epu8(acc, _mm_srli_si128(acc, 8));
    acc = _mm_max_epu8(acc, _mm_srli_si128(acc, 4));
    acc = _mm_max_epu8(acc, _mm_srli_si128(acc, 2));
    acc = _mm_max_epu8(acc, _mm_srli_si128(acc, 1));
    const std::uint32_t v = std::uint32_t(_mm_cvtsi128_si32(acc) & 0xff);
    m = v > m ? v : m;
    for (; x < n; ++x) {
        const std::uint32_t d = mag<Zel8u, DIFF>(a[x], DIFF ? b[x] : 0);
        m = d > m ? d : m;
    }
    return m;
}

// Largest |sample| of a 16s row with -32768 saturated to 32767.
inline std::uint32_t inf_16s_sat(const Zel16s* a, int n, std::uint32_t m) {
    __m128i acc = _mm_setzero_si128();
    int x = 0;
    for (; x + 8 <= n; x += 8)
        acc = _mm_max_epu16(acc, _mm_abs_epi16(_mm_loadu_si128(reinterpret_cast<const __m128i*>(a + x))));
    acc = _mm_minpos_epu16(_mm_xor_si128(acc, _mm_set1_epi16(-1))); // smallest complement = largest value
    std::uint32_t v = 0xffffu - std::uint32_t(_mm_cvtsi128_si32(acc) & 0xffff);
    if (v > 32767u) v = 32767u;
    m = v > m ? v : m;
    for (; x < n; ++x) {
        std::uint32_t d = mag<Zel16s, false>(a[x], 0);
        if (d > 32767u) d = 32767u;
        m = d > m ? d : m;
    }
    return m;
}

// ---- integer image pass ----------------------------------------------------
// out[c] = max |a - b|, sum |a - b| or sum (a - b)^2 of channel c (b absent
// unless DIFF). SAT: the saturating 16s magnitude with the early stop.
template <class T, NormKind K, Layout L, bool DIFF>
void int_pass(const T* a, int sa, const T* b, int sb, ZeliSize roi, double* out) {
    constexpr int CH = channels(L);
    constexpr bool SAT = std::is_same<T, Zel16s>::value && !DIFF;
    int w = roi.width, h = roi.height;
    const long long rowBytes = (long long)w * CH * sizeof(T);
    // (the saturating 16s maximum stays by rows: it stops at the first row
    // that reaches 32767 and reads no further)
    if (CH == 1 && !SAT && (DIFF ? contiguous(rowBytes, h, INT_MAX, sa, sb) : contiguous(rowBytes, h, INT_MAX, sa))) {
        w *= h;
        h = 1;
    }
    if (K == NormKind::Inf) {
        std::uint32_t mx[CH] = {};
        for (int r = 0; r < h; ++r) {
            const T* pa = row(a, sa, r);
            const T* pb = DIFF ? row(b, sb, r) : pa;
            if (CH == 1 && std::is_same<T, Zel8u>::value) {
                mx[0] = inf_8u<DIFF>(reinterpret_cast<const Zel8u*>(pa), reinterpret_cast<const Zel8u*>(pb), w, mx[0]);
            } else if (CH == 1 && SAT) {
                mx[0] = inf_16s_sat(reinterpret_cast<const Zel16s*>(pa), w, mx[0]);
            } else {
                int_max_row<T, CH, DIFF, SAT>(pa, pb, w, mx);
            }
            if (SAT) { // nothing can exceed 32767: stop once every channel has it
                bool all = true;
                for (int c = 0; c < active(L); ++c) all = all && mx[c] == 32767u;
                if (all) break;
            }
        }
        for (int c = 0; c < CH; ++c) out[c] = double(mx[c]);
        return;
    }
    // L2 of 16-bit magnitudes needs 64-bit lanes; everything else fits 32 bits a block.
    using Acc = typename std::conditional<K == NormKind::L2 && sizeof(T) == 2, std::uint64_t, std::uint32_t>::type;
    std::uint64_t tot[CH] = {};
    for (int r = 0; r < h; ++r) {
        const T* pa = row(a, sa, r);
        const T* pb = DIFF ? row(b, sb, r) : pa;
        for (int x0 = 0; x0 < w; x0 += kBlock) {
            const int n = w - x0 < kBlock ? w - x0 : kBlock;
            const T* qa = pa + std::ptrdiff_t(x0) * CH;
            const T* qb = pb + std::ptrdiff_t(x0) * CH;
            if (CH == 1 && std::is_same<T, Zel8u>::value) {
                const Zel8u* ua = reinterpret_cast<const Zel8u*>(qa);
                const Zel8u* ub = reinterpret_cast<const Zel8u*>(qb);
                tot[0] += K == NormKind::L1 ? l1_8u<DIFF>(ua, ub, n) : l2_8u<DIFF>(ua, ub, n);
            } else {
                Acc s[CH] = {};
                int_sum_row<T, K, CH, DIFF, Acc>(qa, qb, n, s);
                for (int c = 0; c < CH; ++c) tot[c] += s[c];
            }
        }
    }
    for (int c = 0; c < CH; ++c) out[c] = double(tot[c]);
}

// ---- 32f -------------------------------------------------------------------
inline __m128 abs_ps(__m128 v) { return _mm_andnot_ps(_mm_set1_ps(-0.0f), v); }
inline float abs_f(float v) { return std::fabs(v); }

template <NormKind K>
inline float term_f(float d) { return K == NormKind::L1 ? abs_f(d) : d * d; }
template <NormKind K>
inline __m128 term_ps(__m128 d) { return K == NormKind::L1 ? abs_ps(d) : _mm_mul_ps(d, d); }

// One 32f row of ns samples over P Zel32f lanes, sample i to lane i % P; R
// gives the step of one lane, in vector and scalar form. The caller folds the
// lanes into channels (lane j belongs to channel j % CH).
template <class R, int P, bool DIFF>
inline void lanes_32f(const Zel32f* a, const Zel32f* b, int ns, float* lane) {
    constexpr int V = P / 4;
    __m128 acc[V];
    for (int v = 0; v < V; ++v) acc[v] = _mm_setzero_ps();
    int x = 0;
    for (; x + P <= ns; x += P)
        for (int v = 0; v < V; ++v) {
            __m128 d = _mm_loadu_ps(a + x + 4 * v);
            if (DIFF) d = _mm_sub_ps(d, _mm_loadu_ps(b + x + 4 * v));
            acc[v] = R::vec(acc[v], d);
        }
    for (int v = 0; v < V; ++v) _mm_storeu_ps(lane + 4 * v, acc[v]);
    for (int j = 0; x < ns; ++x, ++j) lane[j] = R::one(lane[j], DIFF ? a[x] - b[x] : a[x]);
}

// Largest magnitude; a NaN sample keeps the lane as it was.
struct MaxAbs {
    static __m128 vec(__m128 acc, __m128 d) { return _mm_max_ps(abs_ps(d), acc); }
    static float one(float acc, float d) { return abs_f(d) > acc ? abs_f(d) : acc; }
};
template <NormKind K>
struct SumTerm {
    static __m128 vec(__m128 acc, __m128 d) { return _mm_add_ps(acc, term_ps<K>(d)); }
    static float one(float acc, float d) { return acc + term_f<K>(d); }
};

// Inf by channel over 4 lanes (12 for three channels).
template <int CH, bool DIFF>
inline void inf_row_32f(const Zel32f* a, const Zel32f* b, int n, float* mx) {
    constexpr int P = CH == 3 ? 12 : 4;
    float l[P];
    lanes_32f<MaxAbs, P, DIFF>(a, b, n * CH, l);
    for (int j = 0; j < P; ++j) mx[j % CH] = l[j] > mx[j % CH] ? l[j] : mx[j % CH];
}

// Fast path: Zel32f sums over 8 lanes (24 for three channels); at the end of
// the row lane j is added, in order of j, to the Zel64f total of its channel.
template <NormKind K, int CH, bool DIFF>
inline void fast_row_32f(const Zel32f* a, const Zel32f* b, int n, double* tot) {
    constexpr int P = CH == 3 ? 24 : 8;
    float lane[P];
    lanes_32f<SumTerm<K>, P, DIFF>(a, b, n * CH, lane);
    for (int j = 0; j < P; ++j) tot[j % CH] += double(lane[j]);
}

// Accurate path, per channel: pixel x of a row of at least 16 pixels adds
// to Zel64f accumulator x % 8 (the last pixel of an odd row to accumulator 0);
// at the end of the row the even accumulators go pairwise into the even
// total, the odd ones into the odd total. Shorter rows add straight into the
// total of their parity. The result is even + odd.
template <NormKind K, int CH, bool DIFF>
inline void accurate_row_32f(const Zel32f* a, const Zel32f* b, int n, double* even, double* odd) {
    for (int c = 0; c < CH; ++c) {
        auto term = [&](int x) {
            const double d = DIFF ? double(a[x * CH + c]) - double(b[x * CH + c]) : double(a[x * CH + c]);
            return K == NormKind::L1 ? std::fabs(d) : d * d;
        };
        if (n < 16) {
            for (int x = 0; x < n; ++x) (x & 1 ? odd[c] : even[c]) += term(x);
            continue;
        }
        alignas(16) double acc[8] = {};
        const int m = n & ~1;
        int x = 0;
        if (CH == 1) { // accumulator pairs (0,1) (2,3) (4,5) (6,7) in four vectors
            __m128d s[4] = {_mm_setzero_pd(), _mm_setzero_pd(), _mm_setzero_pd(), _mm_setzero_pd()};
            const __m128d sign = _mm_set1_pd(-0.0);
            for (; x + 8 <= m; x += 8)
                for (int h = 0; h < 2; ++h) {
                    const __m128 va = _mm_loadu_ps(a + x + 4 * h);
                    __m128d d0 = _mm_cvtps_pd(va), d1 = _mm_cvtps_pd(_mm_movehl_ps(va, va));
                    if (DIFF) {
                        const __m128 vb = _mm_loadu_ps(b + x + 4 * h);
                        d0 = _mm_sub_pd(d0, _mm_cvtps_pd(vb));
                        d1 = _mm_sub_pd(d1, _mm_cvtps_pd(_mm_movehl_ps(vb, vb)));
                    }
                    d0 = K == NormKind::L1 ? _mm_andnot_pd(sign, d0) : _mm_mul_pd(d0, d0);
                    d1 = K == NormKind::L1 ? _mm_andnot_pd(sign, d1) : _mm_mul_pd(d1, d1);
                    s[2 * h] = _mm_add_pd(s[2 * h], d0);
                    s[2 * h + 1] = _mm_add_pd(s[2 * h + 1], d1);
                }
            for (int v = 0; v < 4; ++v) _mm_store_pd(acc + 2 * v, s[v]);
        } else {
            for (; x + 8 <= m; x += 8)
                for (int j = 0; j < 8; ++j) acc[j] += term(x + j);
        }
        for (int j = 0; x < m; ++x, ++j) acc[j] += term(x);
        if (n & 1) acc[0] += term(n - 1);
        even[c] += (acc[0] + acc[2]) + (acc[4] + acc[6]);
        odd[c] += (acc[1] + acc[3]) + (acc[5] + acc[7]);
    }
}

template <NormKind K, Layout L, bool DIFF>
void f32_pass(const Zel32f* a, int sa, const Zel32f* b, int sb, ZeliSize roi, int hint, double* out) {
    constexpr int CH = channels(L);
    int w = roi.width, h = roi.height;
    if (K == NormKind::Inf) {
        const long long rowBytes = (long long)w * CH * 4;
        if (DIFF ? contiguous(rowBytes, h, INT_MAX, sa, sb) : contiguous(rowBytes, h, INT_MAX, sa)) {
            w *= h;
            h = 1;
        }
        float mx[CH] = {};
        for (int r = 0; r < h; ++r)
            inf_row_32f<CH, DIFF>(row(a, sa, r), DIFF ? row(b, sb, r) : nullptr, w, mx);
        for (int c = 0; c < CH; ++c) out[c] = double(mx[c]);
        return;
    }
    if (hint == 2) {
        double even[CH] = {}, odd[CH] = {};
        for (int r = 0; r < h; ++r)
            accurate_row_32f<K, CH, DIFF>(row(a, sa, r), DIFF ? row(b, sb, r) : nullptr, w, even, odd);
        for (int c = 0; c < CH; ++c) out[c] = even[c] + odd[c];
        return;
    }
    double tot[CH] = {};
    for (int r = 0; r < h; ++r) fast_row_32f<K, CH, DIFF>(row(a, sa, r), DIFF ? row(b, sb, r) : nullptr, w, tot);
    for (int c = 0; c < CH; ++c) out[c] = tot[c];
}

template <class T, NormKind K, Layout L, bool DIFF>
inline void pass(const T* a, int sa, const T* b, int sb, ZeliSize roi, int hint, double* out) {
    if constexpr (std::is_same<T, Zel32f>::value)
        f32_pass<K, L, DIFF>(a, sa, b, sb, roi, hint, out);
    else
        int_pass<T, K, L, DIFF>(a, sa, b, sb, roi, out);
}

template <NormKind K>
inline double finish(double v) { return K == NormKind::L2 ? std::sqrt(v) : v; }

} // namespace norm_detail

namespace norm_detail {
// Checks of every norm: pointers, size, steps.
template <class... P, class... S>
inline ZelStatus check(ZeliSize roi, std::tuple<const P*...> ptrs, S... steps) {
    if (std::apply([](auto... p) { return any_null(p...); }, ptrs)) return zelStatusNullPointer;
    if (bad_size(roi)) return zelStatusBadSize;
    if (any_bad_step(steps...)) return zelStatusBadStep;
    return zelStatusOk;
}
} // namespace norm_detail

// zeliNorm_<K>_<T>_<L>
template <NormKind K, class T, Layout L>
ZelStatus norm(const T* pSrc, int srcStep, ZeliSize roi, Zel64f* pValue, ZelHintAlgorithm hint = 0) {
    if (ZelStatus st = norm_detail::check(roi, std::make_tuple(pSrc, (const Zel64f*)pValue), srcStep)) return st;
    double v[4];
    norm_detail::pass<T, K, L, false>(pSrc, srcStep, nullptr, 0, roi, hint, v);
    for (int c = 0; c < active(L); ++c) pValue[c] = norm_detail::finish<K>(v[c]);
    return zelStatusOk;
}

// zeliNormDiff_<K>_<T>_<L> (REL false) and zeliNormRel_<K>_<T>_<L> (REL
// true): the norm of the difference, for Rel over the norm of pSrc2. A
// denominator below the smallest normal Zel64f leaves the numerator alone and
// raises the warning for that channel; every channel is written.
template <NormKind K, class T, Layout L, bool REL>
ZelStatus norm_two(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, ZeliSize roi, Zel64f* pValue,
                   ZelHintAlgorithm hint = 0) {
    if (ZelStatus st = norm_detail::check(roi, std::make_tuple(pSrc1, pSrc2, (const Zel64f*)pValue), src1Step, src2Step))
        return st;
    double num[4], den[4];
    norm_detail::pass<T, K, L, true>(pSrc1, src1Step, pSrc2, src2Step, roi, hint, num);
    if (REL) norm_detail::pass<T, K, L, false>(pSrc2, src2Step, nullptr, 0, roi, hint, den);
    ZelStatus st = zelStatusOk;
    for (int c = 0; c < active(L); ++c) {
        const bool zero = REL && den[c] < DBL_MIN;
        if (zero) st = zelStatusDivisionByZeroWarning;
        pValue[c] = norm_detail::finish<K>(REL && !zero ? num[c] / den[c] : num[c]);
    }
    return st;
}

template <NormKind K, class T, Layout L>
ZelStatus norm_diff(const T* a, int sa, const T* b, int sb, ZeliSize roi, Zel64f* v, ZelHintAlgorithm hint = 0) {
    return norm_two<K, T, L, false>(a, sa, b, sb, roi, v, hint);
}
template <NormKind K, class T, Layout L>
ZelStatus norm_rel(const T* a, int sa, const T* b, int sb, ZeliSize roi, Zel64f* v, ZelHintAlgorithm hint = 0) {
    return norm_two<K, T, L, true>(a, sa, b, sb, roi, v, hint);
}

} // namespace zel

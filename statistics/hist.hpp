// Histograms by levels and counting in a closed range.
//
// A bin k holds level[k] <= v < level[k + 1]. The method depends on the type:
//  - 8u: one table of 256 counters a channel, filled by one scan, then each bin
//    sums its slice of the table, so the scan costs the same for any number of
//    bins;
//  - 16u, 16s: by image size and level count, a full 65536-entry table summed
//    like the 8u one, a forward scan over the levels, a binary search, or for
//    levels that are not strictly increasing the brute test of every bin;
//  - 32f: forward scan, binary search, or the brute test for unsorted levels.
// Every method gives the same counts: a reversed pair of levels holds nothing,
// overlapping pairs each count a sample, NaN falls in no bin.
#pragma once

#include "core/frame.hpp"
#include "vector/zels.hpp"

#include <cstdint>
#include <cstring>
#include <type_traits>

namespace zel {

namespace hist_detail {

enum class Method { Table, Forward, Binary, Brute };

// Levels of HistogramEven: n = nLevels - 1 bins of (upper - lower) / n,
// truncated, the first |remainder| bins one unit wider (narrower for a
// falling range), so that the last level is upperLevel.
inline void even_levels(Zel32s* lv, int nLevels, Zel32s lower, Zel32s upper) {
    const int n = nLevels - 1;
    const long long diff = (long long)upper - (long long)lower;
    const long long d = diff / n, r = diff % n;
    long long cur = lower;
    lv[0] = lower;
    for (int k = 0; k < n; ++k) {
        // the sign of the range picks the rule, so that a falling range
        // narrower than n bins still ends at upperLevel
        cur += diff >= 0 ? d + (r - k > 0 ? 1 : 0) : d - (r + k < 0 ? 1 : 0);
        lv[k + 1] = Zel32s(cur);
    }
}

template <class LV>
inline bool strictly_increasing(const LV* lv, int n) {
    for (int k = 0; k + 1 < n; ++k)
        if (!(lv[k] < lv[k + 1])) return false;
    return true;
}

// Method of a 16-bit channel: the full table once the image is large enough
// to pay for clearing and summing it, given the number of levels.
inline Method method_16(bool sorted, long long pixels, int nLevels) {
    static const int kSortedSize[] = {6400, 9216, 12544, 16384, 20736, 25600, 36864};
    static const int kSortedLimit[] = {2147483647, 134, 78, 50, 34, 22, 6, 2};
    static const int kAnySize[] = {1024, 2304, 4096, 6400, 9216, 12544, 16384, 20736, 25600, 30976, 43264};
    static const int kAnyLimit[] = {2147483647, 434, 222, 126, 78, 50, 34, 22, 14, 10, 6, 2};
    const int* size = sorted ? kSortedSize : kAnySize;
    const int* limit = sorted ? kSortedLimit : kAnyLimit;
    const int count = sorted ? 7 : 11;
    int idx = 0;
    while (idx < count && size[idx] <= pixels) ++idx;
    if (nLevels > limit[idx]) return Method::Table;
    if (!sorted) return Method::Brute;
    return nLevels < 171 ? Method::Forward : Method::Binary;
}

inline Method method_32f(bool sorted, int nLevels) {
    if (!sorted) return Method::Brute;
    return nLevels > 102 ? Method::Binary : Method::Forward;
}

// Bins summed over a table of counters indexed by sample - base; levels are
// clamped to the table.
inline void bins_from_table(const Zel32s* tab, int size, int base, const Zel32s* lv, int nLevels, Zel32s* hist) {
    auto clampi = [&](Zel32s l) {
        const long long v = (long long)l - base;
        return int(v < 0 ? 0 : v > size ? size : v);
    };
    for (int k = 0; k + 1 < nLevels; ++k) {
        const int lo = clampi(lv[k]), hi = clampi(lv[k + 1]);
        Zel32s s = 0;
        for (int i = lo; i < hi; ++i) s += tab[i];
        hist[k] = s;
    }
}

// One scan of an 8u image into one 256-entry table a channel, from the end of
// each row: four load-and-increment steps a loop for one channel, a pixel a
// step for interleaved ones.
template <int CH, int NA>
inline void table_8u(const Zel8u* src, int step, ZeliSize roi, Zel32s (*tab)[256]) {
    std::memset(tab, 0, sizeof(Zel32s) * 256 * CH);
    const int n = roi.width * CH;
    for (int r = 0; r < roi.height; ++r) {
        const Zel8u* p = row(src, step, r);
        const Zel8u* q = p + n;
        if (CH == 1) {
            Zel32s* t = tab[0];
            for (; q - p >= 4; q -= 4) {
                ++t[q[-1]];
                ++t[q[-2]];
                ++t[q[-3]];
                ++t[q[-4]];
            }
            while (q > p) ++t[*--q];
        } else {
            for (; q > p; q -= CH)
                for (int c = 0; c < NA; ++c) ++tab[c][q[c - CH]];
        }
    }
}

// Forward scan of four samples of one channel at a time: a sample inside
// [first level, last level) has walked up past every inner level <= it, so its
// bin is the count of those levels, found with one compare a level for all
// four. Samples outside the range (and NaN) are skipped.
template <class T, class LV, int CH>
inline void forward_4(const T* p, const LV* lv, int bins, Zel32s* hist) {
    alignas(16) int k[4];
    int inside;
    if constexpr (std::is_same<T, Zel32f>::value) {
        const __m128 v = _mm_set_ps(p[3 * CH], p[2 * CH], p[CH], p[0]);
        __m128i cnt = _mm_setzero_si128();
        for (int j = 1; j < bins; ++j) cnt = _mm_sub_epi32(cnt, _mm_castps_si128(_mm_cmpge_ps(v, _mm_set1_ps(lv[j]))));
        _mm_store_si128(reinterpret_cast<__m128i*>(k), cnt);
        const __m128 in = _mm_and_ps(_mm_cmpge_ps(v, _mm_set1_ps(lv[0])), _mm_cmplt_ps(v, _mm_set1_ps(lv[bins])));
        inside = _mm_movemask_ps(in);
    } else {
        const __m128i v = _mm_set_epi32(p[3 * CH], p[2 * CH], p[CH], p[0]);
        __m128i cnt = _mm_setzero_si128();
        for (int j = 1; j < bins; ++j) cnt = _mm_add_epi32(cnt, _mm_cmpgt_epi32(_mm_set1_epi32(lv[j]), v));
        // cnt holds minus the count of levels above v among the inner ones
        cnt = _mm_add_epi32(cnt, _mm_set1_epi32(bins - 1));
        _mm_store_si128(reinterpret_cast<__m128i*>(k), cnt);
        const __m128i in = _mm_andnot_si128(_mm_cmpgt_epi32(_mm_set1_epi32(lv[0]), v), _mm_cmpgt_epi32(_mm_set1_epi32(lv[bins]), v));
        inside = _mm_movemask_ps(_mm_castsi128_ps(in));
    }
    for (int i = 0; i < 4; ++i)
        if (inside >> i & 1) ++hist[k[i]];
}

// Scans one channel with a per-sample method (forward, binary or brute).
template <class T, class LV, int CH>
void scan_channel(const T* src, int step, ZeliSize roi, int c, Method m, const LV* lv, int nLevels, Zel32s* hist) {
    using W = typename std::conditional<std::is_same<T, Zel32f>::value, Zel32f, int>::type;
    const int bins = nLevels - 1;
    std::memset(hist, 0, sizeof(Zel32s) * bins);
    const W first = W(lv[0]), last = W(lv[bins]);
    for (int r = 0; r < roi.height; ++r) {
        const T* p = row(src, step, r) + c;
        int x = 0;
        if (m == Method::Forward)
            for (; x + 4 <= roi.width; x += 4) forward_4<T, LV, CH>(p + x * CH, lv, bins, hist);
        for (; x < roi.width; ++x) {
            const W v = W(p[x * CH]);
            if (m == Method::Brute) {
                for (int k = 0; k < bins; ++k)
                    if (W(lv[k]) <= v && v < W(lv[k + 1])) ++hist[k];
                continue;
            }
            if (!(first <= v && v < last)) continue; // also passes NaN over
            int k = 0;
            if (m == Method::Forward) {
                while (v >= W(lv[k + 1])) ++k;
            } else {
                int hi = bins;
                while (hi - k > 1) {
                    const int mid = (k + hi) >> 1;
                    if (v >= W(lv[mid])) k = mid;
                    else hi = mid;
                }
            }
            ++hist[k];
        }
    }
}

// Histogram of every active channel; the arguments have been checked.
template <class T, Layout L, class LV>
ZelStatus histogram(const T* src, int step, ZeliSize roi, Zel32s* const* hist, const LV* const* lv, const int* nLevels) {
    constexpr int CH = channels(L), NA = active(L);
    if constexpr (std::is_same<T, Zel8u>::value) {
        alignas(16) Zel32s tab[CH][256];
        table_8u<CH, NA>(src, step, roi, tab);
        for (int c = 0; c < NA; ++c) bins_from_table(tab[c], 256, 0, lv[c], nLevels[c], hist[c]);
        return zelStatusOk;
    } else {
        Method m[4];
        bool table = false;
        for (int c = 0; c < NA; ++c) {
            const bool sorted = strictly_increasing(lv[c], nLevels[c]);
            m[c] = std::is_same<T, Zel32f>::value ? method_32f(sorted, nLevels[c])
                                                  : method_16(sorted, (long long)roi.width * roi.height, nLevels[c]);
            table = table || m[c] == Method::Table;
        }
        // The table is taken before any output is written.
        Scratch<Zel32s> tab(table ? 65536 : 0);
        if (table && !tab) return zelStatusMemAlloc;
        for (int c = 0; c < NA; ++c) {
            if constexpr (!std::is_same<T, Zel32f>::value) {
                if (m[c] == Method::Table) {
                    constexpr int base = std::is_signed<T>::value ? -32768 : 0;
                    Zel32s* t = tab.get();
                    std::memset(t, 0, sizeof(Zel32s) * 65536);
                    for (int r = 0; r < roi.height; ++r) {
                        const T* p = row(src, step, r) + c;
                        for (int x = 0; x < roi.width; ++x) ++t[int(p[x * CH]) - base];
                    }
                    bins_from_table(t, 65536, base, lv[c], nLevels[c], hist[c]);
                    continue;
                }
            }
            scan_channel<T, LV, CH>(src, step, roi, c, m[c], lv[c], nLevels[c], hist[c]);
        }
        return zelStatusOk;
    }
}

template <class T>
using LevelOf = typename std::conditional<std::is_same<T, Zel32f>::value, Zel32f, Zel32s>::type;

} // namespace hist_detail

// zeliHistogramRange_<T>_C1R
template <class T>
ZelStatus histogram_range_c1(const T* pSrc, int srcStep, ZeliSize roi, Zel32s* pHist,
                             const hist_detail::LevelOf<T>* pLevels, int nLevels) {
    if (any_null(pSrc, pHist, pLevels)) return zelStatusNullPointer;
    if (nLevels < 2) return zelStatusBadHistogramLevels;
    if (bad_size(roi)) return zelStatusBadSize;
    if (any_bad_step(srcStep)) return zelStatusBadStep;
    return hist_detail::histogram<T, C1>(pSrc, srcStep, roi, &pHist, &pLevels, &nLevels);
}

// zeliHistogramRange_<T>_<C3|C4|AC4>R: arrays of one entry a channel
template <class T, Layout L>
ZelStatus histogram_range(const T* pSrc, int srcStep, ZeliSize roi, Zel32s* const* pHist,
                          const hist_detail::LevelOf<T>* const* pLevels, const int* nLevels) {
    if (any_null(pSrc, pHist, pLevels, nLevels)) return zelStatusNullPointer;
    for (int c = 0; c < active(L); ++c)
        if (any_null(pHist[c], pLevels[c])) return zelStatusNullPointer;
    for (int c = 0; c < active(L); ++c)
        if (nLevels[c] < 2) return zelStatusBadHistogramLevels;
    if (bad_size(roi)) return zelStatusBadSize;
    if (any_bad_step(srcStep)) return zelStatusBadStep;
    return hist_detail::histogram<T, L>(pSrc, srcStep, roi, pHist, pLevels, nLevels);
}

// zeliHistogramEven_<T>_C1R: makes nLevels even levels, then counts.
template <class T>
ZelStatus histogram_even_c1(const T* pSrc, int srcStep, ZeliSize roi, Zel32s* pHist, Zel32s* pLevels, int nLevels,
                            Zel32s lowerLevel, Zel32s upperLevel) {
    if (any_null(pSrc, pHist, pLevels)) return zelStatusNullPointer;
    if (bad_size(roi)) return zelStatusBadSize;
    if (any_bad_step(srcStep)) return zelStatusBadStep;
    if (nLevels < 2) return zelStatusBadHistogramLevels;
    hist_detail::even_levels(pLevels, nLevels, lowerLevel, upperLevel);
    const Zel32s* lv = pLevels;
    return hist_detail::histogram<T, C1>(pSrc, srcStep, roi, &pHist, &lv, &nLevels);
}

template <class T, Layout L>
ZelStatus histogram_even(const T* pSrc, int srcStep, ZeliSize roi, Zel32s* const* pHist, Zel32s* const* pLevels,
                         const int* nLevels, const Zel32s* lowerLevel, const Zel32s* upperLevel) {
    constexpr int NA = active(L);
    if (any_null(pSrc, pHist, pLevels, nLevels, lowerLevel, upperLevel)) return zelStatusNullPointer;
    for (int c = 0; c < NA; ++c)
        if (any_null(pHist[c], pLevels[c])) return zelStatusNullPointer;
    if (bad_size(roi)) return zelStatusBadSize;
    if (any_bad_step(srcStep)) return zelStatusBadStep;
    for (int c = 0; c < NA; ++c)
        if (nLevels[c] < 2) return zelStatusBadHistogramLevels;
    const Zel32s* lv[4];
    for (int c = 0; c < NA; ++c) {
        hist_detail::even_levels(pLevels[c], nLevels[c], lowerLevel[c], upperLevel[c]);
        lv[c] = pLevels[c];
    }
    return hist_detail::histogram<T, L>(pSrc, srcStep, roi, pHist, lv, nLevels);
}

// ---- CountInRange: lower <= v <= upper, both ends included ----------------
namespace count_detail {

// One-channel 8u row: a scalar head to a 16-byte address, then byte counters
// emptied into 64-bit lanes before they can wrap.
inline int count_row_8u(const Zel8u* p, int n, Zel8u lo, Zel8u hi) {
    int cnt = 0, x = 0;
    while (x < n && (reinterpret_cast<std::uintptr_t>(p + x) & 15)) {
        cnt += (p[x] >= lo && p[x] <= hi);
        ++x;
    }
    const __m128i vlo = _mm_set1_epi8(char(lo)), vhi = _mm_set1_epi8(char(hi)), z = _mm_setzero_si128();
    __m128i tot = z;
    while (x + 16 <= n) {
        int steps = (n - x) >> 4;
        if (steps > 255) steps = 255;
        __m128i acc = z;
        for (int s = 0; s < steps; ++s, x += 16) {
            const __m128i v = _mm_load_si128(reinterpret_cast<const __m128i*>(p + x));
            const __m128i in = _mm_and_si128(_mm_cmpeq_epi8(_mm_max_epu8(v, vlo), v), _mm_cmpeq_epi8(_mm_min_epu8(v, vhi), v));
            acc = _mm_sub_epi8(acc, in);
        }
        tot = _mm_add_epi64(tot, _mm_sad_epu8(acc, z));
    }
    cnt += _mm_cvtsi128_si32(_mm_add_epi64(tot, _mm_srli_si128(tot, 8)));
    for (; x < n; ++x) cnt += (p[x] >= lo && p[x] <= hi);
    return cnt;
}

// One-channel 32f row: not (v < lower) and v <= upper, so NaN never counts.
// Rows off a 4-byte address take the scalar loop alone.
inline int count_row_32f(const Zel32f* p, int n, Zel32f lo, Zel32f hi) {
    int cnt = 0, x = 0;
    const bool vec = (reinterpret_cast<std::uintptr_t>(p) & 3) == 0;
    while (vec && x < n && (reinterpret_cast<std::uintptr_t>(p + x) & 15)) {
        cnt += (!(p[x] < lo) && p[x] <= hi);
        ++x;
    }
    if (vec) {
        const __m128 vlo = _mm_set1_ps(lo), vhi = _mm_set1_ps(hi);
        __m128i acc = _mm_setzero_si128();
        for (; x + 4 <= n; x += 4) {
            const __m128 v = _mm_load_ps(p + x);
            acc = _mm_sub_epi32(acc, _mm_castps_si128(_mm_and_ps(_mm_cmpnlt_ps(v, vlo), _mm_cmple_ps(v, vhi))));
        }
        acc = _mm_add_epi32(acc, _mm_shuffle_epi32(acc, 0x4e));
        acc = _mm_add_epi32(acc, _mm_shuffle_epi32(acc, 0xb1));
        cnt += _mm_cvtsi128_si32(acc);
    }
    for (; x < n; ++x) cnt += (!(p[x] < lo) && p[x] <= hi);
    return cnt;
}

// Interleaved rows: sample i goes to lane i % P, P a multiple of the channel
// count (16 or 48 bytes for 8u, 4 or 12 floats for 32f), with the bounds of
// the lane's channel; the lanes are added into their channels at the end.
template <class T, int CH>
inline void count_row(const T* p, int w, const T* lo, const T* hi, int* cnt) {
    constexpr bool U8 = std::is_same<T, Zel8u>::value;
    constexpr int L = U8 ? 16 : 4, V = CH == 3 ? 3 : 1, P = L * V;
    alignas(16) T vl[P], vh[P];
    for (int j = 0; j < P; ++j) {
        vl[j] = lo[j % CH];
        vh[j] = hi[j % CH];
    }
    int lane[P] = {};
    const int ns = w * CH;
    int x = 0;
    if constexpr (U8) {
        while (x + P <= ns) {
            int steps = (ns - x) / P;
            if (steps > 255) steps = 255;
            __m128i acc[V];
            for (int v = 0; v < V; ++v) acc[v] = _mm_setzero_si128();
            for (int s = 0; s < steps; ++s, x += P)
                for (int v = 0; v < V; ++v) {
                    const __m128i q = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p + x + L * v));
                    const __m128i a = _mm_load_si128(reinterpret_cast<const __m128i*>(vl + L * v));
                    const __m128i b = _mm_load_si128(reinterpret_cast<const __m128i*>(vh + L * v));
                    const __m128i in = _mm_and_si128(_mm_cmpeq_epi8(_mm_max_epu8(q, a), q), _mm_cmpeq_epi8(_mm_min_epu8(q, b), q));
                    acc[v] = _mm_sub_epi8(acc[v], in);
                }
            alignas(16) Zel8u c8[P];
            for (int v = 0; v < V; ++v) _mm_store_si128(reinterpret_cast<__m128i*>(c8 + L * v), acc[v]);
            for (int j = 0; j < P; ++j) lane[j] += c8[j];
        }
    } else {
        __m128i acc[V];
        for (int v = 0; v < V; ++v) acc[v] = _mm_setzero_si128();
        for (; x + P <= ns; x += P)
            for (int v = 0; v < V; ++v) {
                const __m128 q = _mm_loadu_ps(p + x + L * v);
                const __m128 in = _mm_and_ps(_mm_cmpnlt_ps(q, _mm_load_ps(vl + L * v)), _mm_cmple_ps(q, _mm_load_ps(vh + L * v)));
                acc[v] = _mm_sub_epi32(acc[v], _mm_castps_si128(in));
            }
        alignas(16) int c32[P];
        for (int v = 0; v < V; ++v) _mm_store_si128(reinterpret_cast<__m128i*>(c32 + L * v), acc[v]);
        for (int j = 0; j < P; ++j) lane[j] += c32[j];
    }
    for (int j = 0; x < ns; ++x, ++j) lane[j] += (!(p[x] < vl[j]) && p[x] <= vh[j]);
    for (int j = 0; j < P; ++j) cnt[j % CH] += lane[j];
}

template <class T, Layout L>
void count(const T* src, int step, ZeliSize roi, const T* lo, const T* hi, int* counts) {
    constexpr int CH = channels(L), NA = active(L);
    int cnt[CH] = {};
    T l[CH], h[CH];
    for (int c = 0; c < CH; ++c) {
        l[c] = c < NA ? lo[c] : T(1); // the alpha lane is counted nowhere
        h[c] = c < NA ? hi[c] : T(0);
    }
    for (int r = 0; r < roi.height; ++r) {
        const T* p = row(src, step, r);
        if constexpr (CH == 1) {
            if constexpr (std::is_same<T, Zel8u>::value) cnt[0] += count_row_8u(p, roi.width, l[0], h[0]);
            else cnt[0] += count_row_32f(p, roi.width, l[0], h[0]);
        } else {
            count_row<T, CH>(p, roi.width, l, h, cnt);
        }
    }
    for (int c = 0; c < NA; ++c) counts[c] = cnt[c];
}

template <class T>
inline bool bad_range(const T* lo, const T* hi, int n) {
    for (int c = 0; c < n; ++c)
        if (lo[c] > hi[c]) return true;
    return false;
}

} // namespace count_detail

// zeliCountInRange_<T>_C1R
template <class T>
ZelStatus count_in_range_c1(const T* pSrc, int srcStep, ZeliSize roi, int* pCounts, T lowerBound, T upperBound) {
    if (any_null(pSrc, pCounts)) return zelStatusNullPointer;
    if (any_bad_step(srcStep)) return zelStatusBadStep;
    if (bad_size(roi)) return zelStatusBadSize;
    if (count_detail::bad_range(&lowerBound, &upperBound, 1)) return zelStatusBadRange;
    count_detail::count<T, C1>(pSrc, srcStep, roi, &lowerBound, &upperBound, pCounts);
    return zelStatusOk;
}

// zeliCountInRange_<T>_<C3|AC4>R: three counts and three pairs of bounds
template <class T, Layout L>
ZelStatus count_in_range(const T* pSrc, int srcStep, ZeliSize roi, int* pCounts, const T* lowerBound,
                         const T* upperBound) {
    if (any_null(pSrc, pCounts, lowerBound, upperBound)) return zelStatusNullPointer;
    if (any_bad_step(srcStep)) return zelStatusBadStep;
    if (bad_size(roi)) return zelStatusBadSize;
    if (count_detail::bad_range(lowerBound, upperBound, active(L))) return zelStatusBadRange;
    count_detail::count<T, L>(pSrc, srcStep, roi, lowerBound, upperBound, pCounts);
    return zelStatusOk;
}

} // namespace zel

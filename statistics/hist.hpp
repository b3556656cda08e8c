// Histograms by levels and counting in a closed range. The vector kernels are
// forward_row (hist_kernels.hpp) and lanes_row (stat_kernels.hpp), compiled
// once per level; the table scans and the searches are scalar.
//
// A bin k holds level[k] <= v < level[k + 1]. The method depends on the type:
//  - 8u: tables of counters a channel, filled by one scan, then each bin sums
//    its slice of the table, so the scan costs the same for any number of
//    bins;
//  - 16u, 16s: by image size and level count, a full 65536-entry table summed
//    like the 8u one, a forward scan over the levels, a binary search, or for
//    levels that are not strictly increasing the brute test of every bin;
//  - 32f: forward scan, binary search, or the brute test for unsorted levels.
// Every method gives the same counts: a reversed pair of levels holds nothing,
// overlapping pairs each count a sample, NaN falls in no bin.
//
// Counts are kept in 64 bits (table counters in 32-bit blocks of fewer than
// 2^31 pixels); a count beyond the largest Zel32s is stored as that value.
// Every allocation comes before the first write to an output: the even levels
// are stored only once the table is had.
#pragma once

#include "statistics/stat.hpp"
#include "vector/zels.hpp"

#include <cstdint>
#include <cstring>
#include <type_traits>

#define ZEL_KERNELS "statistics/stat_kernels.hpp"
#define ZEL_KERNELS_2 "statistics/hist_kernels.hpp"
#include "core/simd/levels.hpp"

namespace zel {

namespace hist_detail {

enum class Method { Table, Forward, Binary, Brute };

// Levels of HistogramEven: n = nLevels - 1 bins of (upper - lower) / n,
// truncated, the first |remainder| bins one unit wider (narrower for a
// falling range), so that the last level is upperLevel. Level k is
// lower + k * d plus (minus) the extra units of the bins before it.
struct EvenLevels {
    long long lower, diff, d, r;
    EvenLevels(int nLevels, Zel32s lo, Zel32s up)
        : lower(lo), diff((long long)up - lo), d(diff / (nLevels - 1)), r(diff % (nLevels - 1)) {}
    Zel32s operator[](int k) const {
        const long long extra = diff >= 0 ? (k < r ? k : r) : -(k < -r ? k : -r);
        return Zel32s(lower + k * d + extra);
    }
};

template <class Levels>
inline bool strictly_increasing(const Levels& lv, int n) {
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

// Bins summed over a table of counters indexed by sample - base, levels
// clamped to the table; `add`: onto the counts already in hist.
template <class C>
inline void bins_from_table(const C* tab, int size, int base, const Zel32s* lv, int nLevels, Zel32s* hist, bool add) {
    auto clampi = [&](Zel32s l) {
        const long long v = (long long)l - base;
        return int(v < 0 ? 0 : v > size ? size : v);
    };
    for (int k = 0; k + 1 < nLevels; ++k) {
        const int lo = clampi(lv[k]), hi = clampi(lv[k + 1]);
        unsigned long long s = add ? (unsigned long long)hist[k] : 0;
        for (int i = lo; i < hi; ++i) s += tab[i];
        hist[k] = clamp32(s);
    }
}

// Rows in blocks of fewer than 2^31 pixels, so that no 32-bit table counter
// can wrap: block(firstRow, rows) for each.
template <class F>
inline void row_blocks(ZeliSize roi, F&& block) {
    const int per = int(INT_MAX / roi.width);
    for (int r = 0; r < roi.height; r += per) block(r, roi.height - r < per ? roi.height - r : per);
}

// One scan of an 8u image into the 64-bit counts of each active channel. A
// one-channel row runs its two halves side by side, eight tables for each, so
// that runs of equal samples do not wait on one counter; interleaved rows
// take a table for each of four pixels in turn.
template <int CH, int NA>
inline void table_8u(const Zel8u* src, int step, ZeliSize roi, unsigned long long (*total)[256]) {
    constexpr int S = CH == 1 ? 16 : 4;
    alignas(64) Zel32s tab[NA][S][256];
    std::memset(total, 0, sizeof(unsigned long long) * 256 * NA);
    row_blocks(roi, [&](int r0, int rows) {
        std::memset(tab, 0, sizeof tab);
        for (int r = r0; r < r0 + rows; ++r) {
            const Zel8u* p = row(src, step, r);
            if constexpr (CH == 1) {
                const std::ptrdiff_t h = roi.width / 16 * 8;
                const Zel8u* q = p + h;
                for (std::ptrdiff_t i = 0; i < h; i += 8) {
                    std::uint64_t u, v;
                    std::memcpy(&u, p + i, 8);
                    std::memcpy(&v, q + i, 8);
#pragma GCC unroll 8
                    for (int k = 0; k < 8; ++k) {
                        ++tab[0][k][(u >> (8 * k)) & 0xff];
                        ++tab[0][8 + k][(v >> (8 * k)) & 0xff];
                    }
                }
                for (std::ptrdiff_t i = 2 * h; i < roi.width; ++i) ++tab[0][0][p[i]];
            } else {
                for (int x = 0; x < roi.width; ++x, p += CH)
                    for (int c = 0; c < NA; ++c) ++tab[c][x & 3][p[c]];
            }
        }
        for (int c = 0; c < NA; ++c)
            for (int s = 0; s < S; ++s)
                for (int i = 0; i < 256; ++i) total[c][i] += (unsigned)tab[c][s][i];
    });
}

// Scans one channel with a per-sample method (forward, binary or brute).
template <class T, class LV, int CH>
void scan_channel(const T* src, int step, ZeliSize roi, int c, Method m, const LV* lv, int nLevels, Zel32s* hist) {
    using W = typename std::conditional<std::is_same<T, Zel32f>::value, Zel32f, int>::type;
    const int bins = nLevels - 1;
    std::memset(hist, 0, sizeof(Zel32s) * bins);
    if (m == Method::Forward) {
        const auto k = ZEL_PICK(forward_row<T, LV>);
        for (int r = 0; r < roi.height; ++r) k(row(src, step, r) + c, CH, roi.width, lv, bins, hist);
        return;
    }
    const W first = W(lv[0]), last = W(lv[bins]);
    for (int r = 0; r < roi.height; ++r) {
        const T* p = row(src, step, r) + c;
        for (std::ptrdiff_t i = 0; i < row_samples(roi.width, CH); i += CH) {
            const W v = W(p[i]);
            if (m == Method::Brute) {
                for (int k = 0; k < bins; ++k)
                    if (W(lv[k]) <= v && v < W(lv[k + 1])) bump(hist[k]);
                continue;
            }
            if (!(first <= v && v < last)) continue; // also passes NaN over
            int k = 0, hi = bins;
            while (hi - k > 1) {
                const int mid = (k + hi) >> 1;
                if (v >= W(lv[mid])) k = mid;
                else hi = mid;
            }
            bump(hist[k]);
        }
    }
}

// Histogram of every active channel; the arguments have been checked and
// sorted[c] tells whether the levels of channel c rise strictly. before()
// runs after the allocation and before the first output is written.
template <class T, Layout L, class LV, class Before>
ZelStatus histogram(const T* src, int step, ZeliSize roi, Zel32s* const* hist, const LV* const* lv, const int* nLevels,
                    const bool* sorted, Before&& before) {
    constexpr int CH = channels(L), NA = active(L);
    if constexpr (std::is_same<T, Zel8u>::value) {
        before();
        unsigned long long total[NA][256];
        table_8u<CH, NA>(src, step, roi, total);
        for (int c = 0; c < NA; ++c) bins_from_table(total[c], 256, 0, lv[c], nLevels[c], hist[c], false);
        return zelStatusOk;
    } else {
        Method m[4];
        bool table = false;
        for (int c = 0; c < NA; ++c) {
            m[c] = std::is_same<T, Zel32f>::value ? method_32f(sorted[c], nLevels[c])
                                                  : method_16(sorted[c], (long long)roi.width * roi.height, nLevels[c]);
            table = table || m[c] == Method::Table;
        }
        Scratch<Zel32s> tab(table ? 65536 : 0);
        if (table && !tab) return zelStatusMemAlloc;
        before();
        for (int c = 0; c < NA; ++c) {
            if constexpr (!std::is_same<T, Zel32f>::value) {
                if (m[c] == Method::Table) {
                    constexpr int base = std::is_signed<T>::value ? -32768 : 0;
                    Zel32s* t = tab.get();
                    row_blocks(roi, [&](int r0, int rows) {
                        std::memset(t, 0, sizeof(Zel32s) * 65536);
                        for (int r = r0; r < r0 + rows; ++r) {
                            const T* p = row(src, step, r) + c;
                            for (std::ptrdiff_t i = 0; i < row_samples(roi.width, CH); i += CH) ++t[int(p[i]) - base];
                        }
                        bins_from_table(t, 65536, base, lv[c], nLevels[c], hist[c], r0 > 0);
                    });
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
    const bool sorted = hist_detail::strictly_increasing(pLevels, nLevels);
    return hist_detail::histogram<T, C1>(pSrc, srcStep, roi, &pHist, &pLevels, &nLevels, &sorted, [] {});
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
    bool sorted[4];
    for (int c = 0; c < active(L); ++c) sorted[c] = hist_detail::strictly_increasing(pLevels[c], nLevels[c]);
    return hist_detail::histogram<T, L>(pSrc, srcStep, roi, pHist, pLevels, nLevels, sorted, [] {});
}

// zeliHistogramEven_<T>_<L>: makes nLevels even levels a channel, then
// counts; the levels are stored once nothing can fail any more. The C1 form
// passes arrays of one.
template <class T, Layout L>
ZelStatus histogram_even_run(const T* pSrc, int srcStep, ZeliSize roi, Zel32s* const* pHist, Zel32s* const* pLevels,
                             const int* nLevels, const Zel32s* lowerLevel, const Zel32s* upperLevel) {
    constexpr int NA = active(L);
    bool sorted[4];
    for (int c = 0; c < NA; ++c)
        sorted[c] = hist_detail::strictly_increasing(hist_detail::EvenLevels(nLevels[c], lowerLevel[c], upperLevel[c]),
                                                     nLevels[c]);
    const Zel32s* lv[4] = {pLevels[0], pLevels[NA > 1 ? 1 : 0], pLevels[NA > 2 ? 2 : 0], pLevels[NA > 3 ? 3 : 0]};
    return hist_detail::histogram<T, L>(pSrc, srcStep, roi, pHist, lv, nLevels, sorted, [&] {
        for (int c = 0; c < NA; ++c) {
            const hist_detail::EvenLevels even(nLevels[c], lowerLevel[c], upperLevel[c]);
            for (int k = 0; k < nLevels[c]; ++k) pLevels[c][k] = even[k];
        }
    });
}

template <class T>
ZelStatus histogram_even_c1(const T* pSrc, int srcStep, ZeliSize roi, Zel32s* pHist, Zel32s* pLevels, int nLevels,
                            Zel32s lowerLevel, Zel32s upperLevel) {
    if (any_null(pSrc, pHist, pLevels)) return zelStatusNullPointer;
    if (bad_size(roi)) return zelStatusBadSize;
    if (any_bad_step(srcStep)) return zelStatusBadStep;
    if (nLevels < 2) return zelStatusBadHistogramLevels;
    return histogram_even_run<T, C1>(pSrc, srcStep, roi, &pHist, &pLevels, &nLevels, &lowerLevel, &upperLevel);
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
    return histogram_even_run<T, L>(pSrc, srcStep, roi, pHist, pLevels, nLevels, lowerLevel, upperLevel);
}

// ---- CountInRange: lower <= v <= upper, both ends included ----------------
namespace count_detail {

// Counts of every active channel in 64 bits, stored up to the largest int.
template <class T, Layout L>
void count(const T* src, int step, ZeliSize roi, const T* lo, const T* hi, int* counts) {
    constexpr int CH = channels(L), NA = active(L);
    LaneState st;
    for (int c = 0; c < CH; ++c) {
        st.lo[c] = c < NA ? double(lo[c]) : 1.0; // the alpha lane is counted nowhere
        st.hi[c] = c < NA ? double(hi[c]) : 0.0;
    }
    const auto k = ZEL_PICK(lanes_row<Red::Count, T, CH, false>);
    const Rows rows = rows_of<T>(roi, CH, step);
    for (int r = 0; r < rows.h; ++r) k(row(src, step, r), nullptr, rows.n, st, r == rows.h - 1);
    for (int c = 0; c < NA; ++c) counts[c] = clamp32(st.total[c]);
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

// Row, column and general two-dimensional filters: a true convolution with a
// kernel of any size, kernel[j * kW + i] meeting src(x + aX - i, y + aY - j).
// The entries check the arguments in each family's order, prepare the taps
// once per call (scaled by the divisor where a form sums scaled taps, or laid
// out in the caller's buffer), choose the sum (32-bit integer lanes, float,
// double, or 64-bit integers one sample at a time where a sum could pass 32
// bits) and the conversion (fin.hpp), and run the rows in the neighbourhood
// frame (frame.hpp) with the kernels of lin_kernels.hpp.
#pragma once

#include "filter/fin.hpp"
#include "filter/frame.hpp"

#include <cstdlib>

namespace zel {
namespace filt {

// One call's rows: `src` is the region's first sample.
struct LinJob {
    const void* src = nullptr;
    int srcStep = 0;
    void* dst = nullptr;
    int dstStep = 0;
    int n = 0;  // samples a destination row
    int ch = 1; // samples a pixel
    int kW = 1, kH = 1, aX = 0, aY = 0;
    const void* taps = nullptr; // kW * kH taps in kernel order
    const std::int32_t* pairs = nullptr; // 8-bit samples, taps within 16 bits: pairs of taps (lin_kernels.hpp)
    FinP fin;
};

} // namespace filt
} // namespace zel

#define ZEL_KERNELS "filter/fin_kernels.hpp"
#define ZEL_KERNELS_2 "filter/lin_kernels.hpp"
#include "core/simd/levels.hpp"

namespace zel {
namespace filt {

// The sums of 64-bit integers, one sample at a time, for sums that could pass 32 bits.
template <class In, class Tap, class D, bool AC>
void lin_rows_i64(const LinJob& j, Rule r, int y0, int rows) {
    const Tap* taps = static_cast<const Tap*>(j.taps);
    const std::ptrdiff_t ch = j.ch;
    for (int y = y0; y < y0 + rows; ++y) {
        const In* base = row(static_cast<const In*>(j.src), j.srcStep, y);
        D* out = row(static_cast<D*>(j.dst), j.dstStep, y);
        for (int s = 0; s < j.n; ++s) {
            if (AC && s % 4 == 3) continue;
            long long a = 0;
            for (int jj = 0; jj < j.kH; ++jj) {
                const In* p = row(base, j.srcStep, j.aY - jj) + std::ptrdiff_t(j.aX) * ch + s;
                for (int ii = 0; ii < j.kW; ++ii) a += (long long)taps[std::size_t(jj) * j.kW + ii] * (long long)p[-ii * ch];
            }
            out[s] = fin_i64<D>(r, j.fin, a);
        }
    }
}

// Runs a job on `team` threads with the sum type Acc and rule R.
template <class In, class Tap, class Acc, Rule R, class D, bool AC>
inline void lin_run(const LinJob& j, int height, int team) {
    const auto k = ZEL_PICK(lin_rows<In, Tap, Acc, R, D, AC>);
    bands_frame(height, team, [&](int first, int rows, int) {
        k(j, first, rows);
        return 0;
    });
}
template <class In, class Tap, class D, bool AC>
inline void lin_run_i64(const LinJob& j, Rule r, int height, int team) {
    bands_frame(height, team, [&](int first, int rows, int) {
        lin_rows_i64<In, Tap, D, AC>(j, r, first, rows);
        return 0;
    });
}

// Sum of the taps' magnitudes, in 64 bits (wide enough for every kernel).
template <class Tap>
inline unsigned long long tap_weight(const Tap* k, long long count) {
    unsigned long long w = 0;
    for (long long i = 0; i < count; ++i) w += (unsigned long long)std::llabs((long long)k[i]);
    return w;
}

// Pairs of 16-bit taps for the multiply-add route of 8-bit samples: per
// kernel row, taps (i, i + 1) as one word, tap i in the low half (a lone last
// tap pairs with 0). Made when every tap lies in -32768..32767, into `into`
// (room in a caller's buffer) or a table of its own; `j.pairs` then points at
// them. ok is false when the table could not be had.
struct TapPairs {
    Table<std::int32_t> table;
    bool ok = true;
    static int count(const LinJob& j) { return j.kH * ((j.kW + 1) / 2); }
    template <class K>
    TapPairs(LinJob& j, const K* k, std::int32_t* into = nullptr)
        : table(!into && fits(k, (long long)j.kW * j.kH) ? count(j) : 0) {
        if (!fits(k, (long long)j.kW * j.kH)) return;
        if (!into && !(ok = table.ok(count(j)))) return;
        std::int32_t* out = into ? into : table.get();
        const int per = (j.kW + 1) / 2;
        for (int r = 0; r < j.kH; ++r)
            for (int q = 0; q < per; ++q) {
                const int i = 2 * q;
                const std::uint32_t lo = std::uint16_t(k[std::size_t(r) * j.kW + i]);
                const std::uint32_t hi = i + 1 < j.kW ? std::uint16_t(k[std::size_t(r) * j.kW + i + 1]) : 0u;
                out[std::size_t(r) * per + q] = std::int32_t(lo | (hi << 16));
            }
        j.pairs = out;
    }
    template <class K>
    static bool fits(const K* k, long long n) {
        if (n > (1ll << 28)) return false;
        for (long long i = 0; i < n; ++i)
            if (k[i] < -32768 || k[i] > 32767) return false;
        return true;
    }
};

// Taps scaled before summing: float(k) * (1 / float(divisor)).
inline void scale_taps(float* out, const Zel32s* k, int count, int divisor) {
    const float f = 1.0f / float(divisor);
    for (int i = 0; i < count; ++i) out[i] = float(k[i]) * f;
}

template <class T> struct SumOf { using type = float; };
template <> struct SumOf<Zel64f> { using type = double; };

// ---- Row and column filters -------------------------------------------------------------------------
// kernel[i] meets src(x + a - i) along a row (ROW) or a column.
struct Sep {
    ZeliSize roi;
    int len, anchor;
};
inline LinJob sep_job(const void* src, int ss, void* dst, int ds, const Sep& s, int ch, bool rowForm, const void* taps) {
    LinJob j;
    j.src = src, j.srcStep = ss, j.dst = dst, j.dstStep = ds;
    j.n = s.roi.width * ch, j.ch = ch, j.taps = taps;
    if (rowForm) j.kW = s.len, j.aX = s.anchor;
    else j.kH = s.len, j.aY = s.anchor;
    return j;
}

// Steps of a row form: the source's row holds the frame; of a column form, the region.
template <bool ROW>
inline bool sep_short_step(int ss, int ds, const Sep& s, int pixelBytes) {
    return short_step(ss, ROW ? (long long)s.roi.width + s.len - 1 : s.roi.width, pixelBytes) ||
           short_step(ds, s.roi.width, pixelBytes);
}

// Float-kernel forms (Row32f, Column32f on integer images; 32f and 64f).
template <class T, Layout L, bool ROW, class K>
ZelStatus sep_float(const T* src, int ss, T* dst, int ds, ZeliSize roi, const K* kernel, int len, int anchor) {
    constexpr int CH = channels(L);
    constexpr bool fold = !ROW && (L == C3 || L == C4); // the C1 column form on width * channels samples
    if (fold && roi.width < 1) return zelStatusBadSize;
    if (any_null(src, dst, kernel)) return zelStatusNullPointer;
    if (bad_size(roi) || len < 1) return zelStatusBadSize;
    const Sep s{roi, len, anchor};
    if (sep_short_step<ROW>(ss, ds, s, CH * int(sizeof(T)))) return zelStatusBadStep;
    using Acc = typename SumOf<K>::type;
    constexpr Rule R = std::is_floating_point<T>::value ? Rule::Same : Rule::Near;
    const LinJob j = sep_job(src, ss, dst, ds, s, CH, ROW, kernel);
    const int team = std::is_same<T, Zel64f>::value && !ROW ? 1 : team_if(size_gate({fold ? roi.width * CH : roi.width, roi.height}));
    lin_run<T, K, Acc, R, T, L == AC4>(j, roi.height, team);
    return zelStatusOk;
}

// Integer-kernel forms. 8u sums 32-bit integers and divides the sum; 16s and
// 16u scale the taps by 1 / divisor and run the float-kernel form.
template <class T, Layout L, bool ROW>
ZelStatus sep_int(const T* src, int ss, T* dst, int ds, ZeliSize roi, const Zel32s* kernel, int len, int anchor, int divisor) {
    constexpr int CH = channels(L);
    if constexpr (!std::is_same<T, Zel8u>::value) {
        if (!kernel) return zelStatusNullPointer;
        if (len < 1) return zelStatusBadSize;
        if (divisor == 0) return zelStatusBadDivisor;
        Table<float> taps(len);
        if (!taps.ok(len)) return zelStatusMemAlloc;
        scale_taps(taps.get(), kernel, len, divisor);
        return sep_float<T, L, ROW, float>(src, ss, dst, ds, roi, taps.get(), len, anchor);
    } else {
        constexpr bool fold = !ROW && (L == C3 || L == C4);
        if (fold && roi.width < 1) return zelStatusBadSize;
        if (any_null(src, dst, kernel)) return zelStatusNullPointer;
        if (bad_size(roi) || len < 1) return zelStatusBadSize;
        if (divisor == 0) return zelStatusBadDivisor;
        const Sep s{roi, len, anchor};
        if (sep_short_step<ROW>(ss, ds, s, CH)) return zelStatusBadStep;
        LinJob j = sep_job(src, ss, dst, ds, s, CH, ROW, kernel);
        j.fin = divisor_of(divisor);
        const TapPairs pairs(j, kernel);
        if (!pairs.ok) return zelStatusMemAlloc;
        lin_run<Zel8u, Zel32s, std::uint32_t, Rule::Div, Zel8u, L == AC4>(j, roi.height, team_if(size_gate(roi)));
        return zelStatusOk;
    }
}

} // namespace filt
} // namespace zel

// What the statistics families share outside the kernels: the state of a
// reduction kept between the rows of one call, the names of the reductions
// and terms their kernels compute, and 64-bit counting.
//
// Counts, sample indices and row lengths are 64-bit throughout: an image may
// hold more than 2^31 samples (width and height are each up to 2^31 - 1), and
// one row may hold more than 2^31 samples of several channels.
#pragma once

#include "core/frame.hpp"

#include <climits>
#include <cstddef>
#include <limits>

namespace zel {

// Samples of a row of `width` pixels of `mc` samples.
inline std::ptrdiff_t row_samples(int width, int mc) { return std::ptrdiff_t(width) * mc; }

// Rows of an order-free reduction: when every step equals the row's length
// in bytes, the image is one row of width * height pixels (n samples, h = 1).
struct Rows {
    std::ptrdiff_t n;
    int h;
};
template <class T, class... S>
inline Rows rows_of(ZeliSize roi, int mc, S... steps) {
    const long long rowBytes = (long long)roi.width * mc * (long long)sizeof(T);
    const bool one = ((steps == rowBytes) && ...) &&
                     roi.height <= std::numeric_limits<std::ptrdiff_t>::max() / 2 / rowBytes;
    return one ? Rows{row_samples(roi.width, mc) * roi.height, 1} : Rows{row_samples(roi.width, mc), roi.height};
}

// A count for a signed 32-bit output: counts beyond its range give its largest value.
inline Zel32s clamp32(unsigned long long n) { return n > unsigned(INT_MAX) ? INT_MAX : Zel32s(n); }

// One more in a signed 32-bit counter that stops at its largest value.
inline void bump(Zel32s& h) { h += h != INT_MAX; }

// A float result that is NaN, as the one default quiet NaN. Which of two NaNs
// an addition passes on depends on the order of its operands in the
// instruction, which neither the vector code nor the compiler fixes, so the
// payload of a NaN sum would differ between levels.
template <class F>
inline F canonical(F v) { return v != v ? std::numeric_limits<F>::quiet_NaN() : v; }

// Order-free reductions of integer samples, computed in vector lanes that
// live in a LaneState between the rows of a call.
enum class Red {
    Sum,   // exact sum of the samples
    L1,    // sum of |a| or |a - b|
    L2,    // sum of a^2 or (a - b)^2
    Inf,   // largest |a| or |a - b|
    InfSat,// largest |a| of 16s samples, -32768 counted as 32767
    Count, // samples with lower <= v <= upper (Zel32f: not v < lower, v <= upper)
};

// Terms of the Zel32f norms and sums: a, |a|, a^2, |a - b|, (a - b)^2.
enum class Term { Id, Abs, Sq };

// The lanes of one reduction between the rows of a call, and the 64-bit
// totals of its channels (signed or unsigned by the reduction; largest values
// for Inf). The row kernel of one level loads the lanes at the start of a
// row, stores them at its end, and empties them into the totals before any
// lane could overflow and after the last row. A kernel sets its lanes up on
// its first row (`fresh`), and builds there the per-lane constants it keeps
// in `pattern` (`ready`: the bounds of a count, the best values of an index
// scan).
struct LaneState {
    alignas(64) unsigned char lanes[768];
    alignas(64) unsigned char pattern[384];
    long long periods = 0;
    bool fresh = true, ready = false;
    double lo[4] = {}, hi[4] = {};
    unsigned long long total[4] = {};
};

} // namespace zel

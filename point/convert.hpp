// Sample-type conversions and range scalings: the operations a row kernel
// can run (convert_kernels.hpp), their parameters, and the image walk that
// folds channels and contiguous rows and picks the kernel of the level.
#pragma once

#include "core/frame.hpp"

#include <climits>
#include <cstring>
#include <limits>
#include <type_traits>
#include <utility>

namespace zel {
namespace cvt {

// The operations of the vector rows (CvtOp in convert_kernels.hpp).
enum class Kind {
    Plain,           // value kept: widening, saturating narrowing, integer to float
    NonNegative,     // signed to unsigned, negatives to 0
    Round,           // float to integer in the current rounding mode
    RoundFinancial,  // float to integer, ties away from zero
    Replicate,       // 8u onto a wider integer's full range
    Scale16Accurate, // 16u, 16s to 8u in single precision
    Scale16Fast,     // 16u, 16s to 8u by shifts
    Scale32Accurate, // 32s to 8u in double precision
    Scale32Fast,     // 32s to 8u by shifts
    Scale8uTo32f,    // 8u onto [vMin, vMax]
    Scale32fTo8u,    // [vMin, vMax] onto 8u
};

// Scalars of an operation: multiplier, clamp bounds, slope and offset.
struct Params {
    float m = 1.0f, lo = 0.0f, hi = 0.0f, k = 0.0f, b = 0.0f;
};

// Saturation to a destination type.
template <class D>
inline D sat(long long v) {
    if constexpr (std::is_floating_point<D>::value) {
        return D(v);
    } else {
        constexpr long long lo = (long long)std::numeric_limits<D>::min();
        constexpr long long hi = (long long)std::numeric_limits<D>::max();
        return D(v < lo ? lo : (v > hi ? hi : v));
    }
}

} // namespace cvt
} // namespace zel

#define ZEL_KERNELS "point/convert_kernels.hpp"
#include "core/simd/levels.hpp"

namespace zel {
namespace cvt {

// A whole image. Channels fold into the width (AC4 too: its rows keep every
// fourth sample), contiguous rows fold into one row while the length stays
// below 0x7fffffff samples. A fence follows streaming stores.
template <Kind K, Layout L, bool Scaled = false, class S, class D>
inline void run_image(const S* src, int srcStep, D* dst, int dstStep, ZeliSize roi, const Params& p, bool nt) {
    const auto k = ZEL_PICK(cvt_row<K, S, D, L == AC4, Scaled>);
    long long w = (long long)roi.width * channels(L);
    int h = roi.height;
    if (srcStep == w * (long long)sizeof(S) && dstStep == w * (long long)sizeof(D) && w * h < 0x7fffffffLL) {
        w *= h;
        h = 1;
    }
    nt = nt && L != AC4;
    for (int r = 0; r < h; ++r) k(row(src, srcStep, r), row(dst, dstStep, r), int(w), p, nt);
    if (nt) _mm_sfence();
}

} // namespace cvt
} // namespace zel

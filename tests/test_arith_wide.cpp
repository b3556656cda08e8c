// Complex 32-bit products at the extremes of the sample range, where each part
// of the exact product needs more than 64 bits before scaling.
#include "guard.hpp"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

namespace {

// The scale rule on an exact 128-bit value: ties to even, saturated to 32 bits.
Zel32s ref_scale(__int128 s, int n) {
    if (n > 63) return 0;
    if (n <= -32) return s > 0 ? INT32_MAX : s < 0 ? INT32_MIN : 0;
    if (n > 0) {
        const __int128 unit = __int128(1) << n, q = s >> n, r = s - q * unit, half = unit / 2;
        s = (r > half || (r == half && (q & 1))) ? q + 1 : q;
    } else if (n < 0) {
        s = s < INT32_MIN ? INT32_MIN : s > INT32_MAX ? INT32_MAX : s;
        s *= __int128(1) << -n;
    }
    return Zel32s(s < INT32_MIN ? INT32_MIN : s > INT32_MAX ? INT32_MAX : s);
}

TEST(MulComplex32s, ExtremePartsAtEveryScale) {
    const Zel32s lo = std::numeric_limits<Zel32s>::min(), hi = std::numeric_limits<Zel32s>::max();
    const Zel32s vals[] = {lo, lo + 1, -1, 0, 1, hi - 1, hi};
    const int n = int(sizeof vals / sizeof vals[0]);
    // Every combination of the four parts, one pixel each.
    const int count = n * n * n * n;
    zt::Image<Zel32sc> a(count, 1, 1), b(count, 1, 1), d(count, 1, 1);
    int k = 0;
    for (Zel32s ar : vals)
        for (Zel32s ai : vals)
            for (Zel32s br : vals)
                for (Zel32s bi : vals) {
                    a.at(k, 0) = {ar, ai};
                    b.at(k, 0) = {br, bi};
                    ++k;
                }
    for (int sf : {-33, -32, -31, -1, 0, 1, 2, 31, 32, 33, 61, 62, 63, 64}) {
        ASSERT_EQ(zeliMul_32sc_C1RSfs(a.ptr(), a.step(), b.ptr(), b.step(), d.ptr(), d.step(), {count, 1}, sf),
                  zelStatusOk);
        for (int i = 0; i < count; ++i) {
            const __int128 xr = a.at(i, 0).re, xi = a.at(i, 0).im, yr = b.at(i, 0).re, yi = b.at(i, 0).im;
            const Zel32s re = ref_scale(xr * yr - xi * yi, sf), im = ref_scale(xr * yi + xi * yr, sf);
            ASSERT_EQ(d.at(i, 0).re, re) << "pixel " << i << " scale " << sf;
            ASSERT_EQ(d.at(i, 0).im, im) << "pixel " << i << " scale " << sf;
        }
    }
}

} // namespace

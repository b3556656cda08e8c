// Sample-type conversion (zeliConvert) and range scaling (zeliScale): the
// entry functions, their argument checks, rounding control and store choice.
#include "core/frame.hpp"
#include "point/convert.hpp"

#include <cmath>

namespace zel {

using cvt::run_image;

// ---- Value-keeping conversions -----------------------------------------------------
// The conversions that move the most data per sample ask whether the call
// outgrows the cache, and then stream their stores past it.
template <class S, class D>
constexpr bool streams_by_volume() {
    if (std::is_same<S, Zel8u>::value) return true;
    if (std::is_same<S, Zel8s>::value) return std::is_same<D, Zel32s>::value || std::is_same<D, Zel32f>::value;
    if (std::is_same<S, Zel16s>::value || std::is_same<S, Zel16u>::value)
        return std::is_same<D, Zel8u>::value || std::is_same<D, Zel32f>::value;
    return false;
}

template <class S, class D, Layout L>
ZelStatus convert(const S* src, int srcStep, D* dst, int dstStep, ZeliSize roi) {
    if (any_null(src, dst)) return zelStatusNullPointer;
    if (bad_size(roi)) return zelStatusBadSize;
    if (any_bad_step(srcStep, dstStep)) return zelStatusBadStep;
    bool nt = false;
    if constexpr (streams_by_volume<S, D>())
        nt = nontemporal((unsigned long long)(sizeof(S) + sizeof(D)) * channels(L) * (unsigned long long)roi.width *
                         (unsigned long long)roi.height);
    run_image<cvt::Kind::Plain, L>(src, srcStep, dst, dstStep, roi, {}, nt);
    return zelStatusOk;
}

// Signed to unsigned, negatives to 0; no step check.
template <class S, class D>
ZelStatus convert_rs(const S* src, int srcStep, D* dst, int dstStep, ZeliSize roi) {
    if (any_null(src, dst)) return zelStatusNullPointer;
    if (bad_size(roi)) return zelStatusBadSize;
    run_image<cvt::Kind::NonNegative, C1>(src, srcStep, dst, dstStep, roi, {}, false);
    return zelStatusOk;
}

// ---- Float to integer ---------------------------------------------------------------
// Mode 1 converts to nearest, 0 towards zero, any other value is financial
// (to nearest, ties away from zero). The rounding field is set for the rows
// and the caller's word written back if it had to change.
template <Layout L, bool Scaled, class D>
void float_to_int(const Zel32f* src, int srcStep, D* dst, int dstStep, ZeliSize roi, int mode, float m) {
    const unsigned field = mode == 1 ? kRoundNearest : kRoundZero;
    const unsigned saved = zel_set_rc_ssx(field);
    cvt::Params p;
    p.m = m;
    if (mode == 0 || mode == 1)
        run_image<cvt::Kind::Round, L, Scaled>(src, srcStep, dst, dstStep, roi, p, false);
    else
        run_image<cvt::Kind::RoundFinancial, L, Scaled>(src, srcStep, dst, dstStep, roi, p, false);
    if ((saved & kRoundField) != field) zel_set_cw_ssx(saved);
}

template <class D, Layout L>
ZelStatus convert_round(const Zel32f* src, int srcStep, D* dst, int dstStep, ZeliSize roi, ZelRoundMode mode) {
    if (any_null(src, dst)) return zelStatusNullPointer;
    if (bad_size(roi)) return zelStatusBadSize;
    if (any_bad_step(srcStep, dstStep)) return zelStatusBadStep;
    float_to_int<L, false>(src, srcStep, dst, dstStep, roi, mode, 1.0f);
    return zelStatusOk;
}

// 2^-n as a float, formed by repeated multiplication (0.5 n times, or 2 -n
// times); the loop stops once the value is 0 or infinite.
inline float sfs_multiplier(int n) {
    float m = 1.0f;
    for (int i = 0; i < n && m != 0.0f; ++i) m *= 0.5f;
    for (int i = 0; i > n && !std::isinf(m); --i) m *= 2.0f;
    return m;
}

// Integer scaling: x * 2^-n, exact in W (int for 8- and 16-bit sources,
// 64 bits for 32-bit ones). n > 0 divides with rounding by mode (0 truncate,
// 1 nearest with ties to even, other ties away from zero); n <= 0 shifts left
// and saturates.
template <class D, class W>
inline D int_sfs(W v, int n, int mode) {
    constexpr int kBits = sizeof(W) == 4 ? 16 : 32; // magnitude bits of the source at most
    if (n <= 0) {
        // From kBits - 1 on every non-zero sample saturates every destination.
        const int sh = -n > kBits - 1 ? kBits - 1 : -n;
        return cvt::sat<D>(v * (W(1) << sh));
    }
    if (n > kBits + 1) return D(0); // the quotient is below one half
    const W q = v >> n, r = v - q * (W(1) << n), half = W(1) << (n - 1);
    W res = q;
    if (mode == 0)
        res = (v < 0 && r != 0) ? q + 1 : q;
    else if (mode == 1)
        res = (r > half || (r == half && (q & 1))) ? q + 1 : q;
    else
        res = (r > half || (r == half && v >= 0)) ? q + 1 : q;
    return cvt::sat<D>(res);
}

template <class S, class D>
ZelStatus convert_sfs(const S* src, int srcStep, D* dst, int dstStep, ZeliSize roi, ZelRoundMode mode, int scaleFactor) {
    if (any_null(src, dst)) return zelStatusNullPointer;
    if (bad_size(roi)) return zelStatusBadSize;
    if constexpr (std::is_floating_point<S>::value) {
        float_to_int<C1, true>(src, srcStep, dst, dstStep, roi, mode, sfs_multiplier(scaleFactor));
    } else {
        for (int r = 0; r < roi.height; ++r) {
            const S* s = row(src, srcStep, r);
            D* d = row(dst, dstStep, r);
            using W = typename std::conditional<(sizeof(S) < 4), int, long long>::type;
            for (int x = 0; x < roi.width; ++x) d[x] = int_sfs<D, W>(W(s[x]), scaleFactor, mode);
        }
    }
    return zelStatusOk;
}

// ---- 32f to 32u, also in place ------------------------------------------------------------
// In double precision: NaN gives the maximum, negatives 0, x * 2^-n at or
// above 2^32 the maximum; the rest rounds by mode.
inline Zel32u f32_to_32u(float x, double m, int mode) {
    if (std::isnan(x)) return 0xFFFFFFFFu;
    const double d = double(x) * m;
    if (!(d > 0.0)) return 0;
    if (d >= 4294967296.0) return 0xFFFFFFFFu;
    double r;
    if (mode == 0) {
        r = std::trunc(d);
    } else if (mode == 1) {
        r = std::floor(d);
        const double f = d - r;
        if (f > 0.5 || (f == 0.5 && std::fmod(r, 2.0) != 0.0)) r += 1.0;
    } else {
        r = std::floor(d + 0.5);
    }
    return r >= 4294967295.0 ? 0xFFFFFFFFu : Zel32u(r);
}

// Source rows are read sample by sample before the same place is written, so
// the in-place form shares this body.
inline void rows_32f32u(const void* src, int srcStep, Zel32u* dst, int dstStep, ZeliSize roi, int mode, int n) {
    double m = 1.0;
    for (int i = 0; i < n && m != 0.0; ++i) m *= 0.5;
    for (int i = 0; i > n && !std::isinf(m); --i) m *= 2.0;
    for (int r = 0; r < roi.height; ++r) {
        const char* s = row(static_cast<const char*>(src), srcStep, r);
        Zel32u* d = row(dst, dstStep, r);
        for (int x = 0; x < roi.width; ++x) {
            float v;
            std::memcpy(&v, s + 4 * std::ptrdiff_t(x), 4);
            d[x] = f32_to_32u(v, m, mode);
        }
    }
}

inline ZelStatus convert_32f32u(const Zel32f* src, int srcStep, Zel32u* dst, int dstStep, ZeliSize roi, ZelRoundMode mode,
                                int scaleFactor) {
    if (any_null(src, dst)) return zelStatusNullPointer;
    if (bad_size(roi)) return zelStatusBadSize;
    rows_32f32u(src, srcStep, dst, dstStep, roi, mode, scaleFactor);
    return zelStatusOk;
}

inline ZelStatus convert_32f32u_ip(Zel32u* srcDst, int srcDstStep, ZeliSize roi, ZelRoundMode mode, int scaleFactor) {
    if (any_null(srcDst)) return zelStatusNullPointer;
    if (bad_size(roi)) return zelStatusBadSize;
    rows_32f32u(srcDst, srcDstStep, srcDst, srcDstStep, roi, mode, scaleFactor);
    return zelStatusOk;
}

// ---- Bits to bytes --------------------------------------------------------------------------
// Bits are read from the most significant down; a set bit gives 255. Whole
// source bytes go through a table that turns a half byte into four bytes.
inline void bits_row(const Zel8u* s, int offset, Zel8u* d, int n) {
    static const Zel32u kNibble[16] = {
        0x00000000u, 0xFF000000u, 0x00FF0000u, 0xFFFF0000u, 0x0000FF00u, 0xFF00FF00u, 0x00FFFF00u, 0xFFFFFF00u,
        0x000000FFu, 0xFF0000FFu, 0x00FF00FFu, 0xFFFF00FFu, 0x0000FFFFu, 0xFF00FFFFu, 0x00FFFFFFu, 0xFFFFFFFFu};
    s += offset >> 3;
    int b = offset & 7, x = 0;
    for (; b != 0 && x < n; ++x) {
        d[x] = ((*s >> (7 - b)) & 1) ? 255 : 0;
        if (++b == 8) {
            b = 0;
            ++s;
        }
    }
    for (; x + 8 <= n; x += 8, ++s) {
        std::memcpy(d + x, &kNibble[*s >> 4], 4);
        std::memcpy(d + x + 4, &kNibble[*s & 15], 4);
    }
    for (int k = 0; x < n; ++x, ++k) d[x] = ((*s >> (7 - k)) & 1) ? 255 : 0;
}

inline ZelStatus convert_1u8u(const Zel8u* src, int srcStep, int srcBitOffset, Zel8u* dst, int dstStep, ZeliSize roi) {
    if (any_null(src, dst)) return zelStatusNullPointer;
    if (bad_size(roi)) return zelStatusBadSize;
    if (any_bad_step(srcStep, dstStep)) return zelStatusBadStep;
    if (srcBitOffset < 0) return zelStatusBadSize;
    for (int r = 0; r < roi.height; ++r) bits_row(row(src, srcStep, r), srcBitOffset, row(dst, dstStep, r), roi.width);
    return zelStatusOk;
}

// ---- zeliScale ------------------------------------------------------------------------------
template <class D, Layout L>
ZelStatus scale_widen(const Zel8u* src, int srcStep, D* dst, int dstStep, ZeliSize roi) {
    if (any_null(src, dst)) return zelStatusNullPointer;
    if (bad_size(roi)) return zelStatusBadSize;
    if (any_bad_step(srcStep, dstStep)) return zelStatusBadStep;
    const bool nt = (long long)roi.width * roi.height >= 0x155555;
    run_image<cvt::Kind::Replicate, L>(src, srcStep, dst, dstStep, roi, {}, nt);
    return zelStatusOk;
}

// To 8u from 16u, 16s, 32s. The accurate hint sets the rounding field to
// nearest before the checks and leaves it so when a check fails.
template <class S, Layout L>
ZelStatus scale_to_8u(const S* src, int srcStep, Zel8u* dst, int dstStep, ZeliSize roi, ZelHintAlgorithm hint) {
    constexpr bool k32 = std::is_same<S, Zel32s>::value;
    constexpr cvt::Kind kAccurate = k32 ? cvt::Kind::Scale32Accurate : cvt::Kind::Scale16Accurate;
    constexpr cvt::Kind kFast = k32 ? cvt::Kind::Scale32Fast : cvt::Kind::Scale16Fast;
    const bool accurate = hint == 2;
    const unsigned saved = accurate ? zel_set_rc_ssx(kRoundNearest) : 0;
    if (any_null(src, dst)) return zelStatusNullPointer;
    if (bad_size(roi)) return zelStatusBadSize;
    if (any_bad_step(srcStep, dstStep)) return zelStatusBadStep;
    if (accurate) {
        run_image<kAccurate, L>(src, srcStep, dst, dstStep, roi, {}, false);
        if ((saved & kRoundField) != kRoundNearest) zel_set_cw_ssx(saved);
    } else {
        run_image<kFast, L>(src, srcStep, dst, dstStep, roi, {}, false);
    }
    return zelStatusOk;
}

template <Layout L>
ZelStatus scale_8u32f(const Zel8u* src, int srcStep, Zel32f* dst, int dstStep, ZeliSize roi, Zel32f vMin, Zel32f vMax) {
    if (vMax - vMin <= 0.0f) return zelStatusBadScaleRange; // a NaN difference passes
    if (any_null(src, dst)) return zelStatusNullPointer;
    if (bad_size(roi)) return zelStatusBadSize;
    if (any_bad_step(srcStep, dstStep)) return zelStatusBadStep;
    cvt::Params p;
    p.k = (vMax - vMin) / 255.0f;
    p.b = vMin;
    run_image<cvt::Kind::Scale8uTo32f, L>(src, srcStep, dst, dstStep, roi, p, false);
    return zelStatusOk;
}

// The rounding field is set to nearest before any check and stays so on the
// error paths; on success the caller's word comes back if it differed.
template <Layout L>
ZelStatus scale_32f8u(const Zel32f* src, int srcStep, Zel8u* dst, int dstStep, ZeliSize roi, Zel32f vMin, Zel32f vMax) {
    const unsigned saved = zel_set_rc_ssx(kRoundNearest);
    if (vMax - vMin <= 0.0f) return zelStatusBadScaleRange;
    if (any_null(src, dst)) return zelStatusNullPointer;
    if (bad_size(roi)) return zelStatusBadSize;
    if (any_bad_step(srcStep, dstStep)) return zelStatusBadStep;
    cvt::Params p;
    p.lo = vMin;
    p.hi = vMax;
    p.k = 255.0f / (vMax - vMin);
    p.b = 0.0f - vMin * p.k;
    run_image<cvt::Kind::Scale32fTo8u, L>(src, srcStep, dst, dstStep, roi, p, false);
    if ((saved & kRoundField) != kRoundNearest) zel_set_cw_ssx(saved);
    return zelStatusOk;
}

} // namespace zel

#define ZEL_LIST "zelip8/fn_convert.h"
#include "core/define_list.hpp"

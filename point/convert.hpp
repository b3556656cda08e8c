// Row machinery of the sample-type conversions and range scalings.
//
// Every operation is a small object with two forms of one rule: `vec` works on
// four samples held in 32-bit integer or float lanes, `one` on a single sample.
// run_row() walks a row: scalar until the destination is 16-byte aligned, then
// blocks of 16 samples (four lane groups, packed with saturation into aligned
// or non-temporal stores), then a scalar tail. Both forms use the same
// instructions (min, max, convert in the current rounding mode, add, multiply)
// so every path gives the same bits.
#pragma once

#include "core/frame.hpp"

#include <climits>
#include <cstring>
#include <limits>
#include <type_traits>

namespace zel {
namespace cvt {

// ---- Saturation to a destination type --------------------------------------
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

// ---- Four samples into lanes -------------------------------------------------
// Integers widen to 32-bit lanes by their signedness; floats stay floats.
template <class S>
struct Load {
    static auto four(const S* p) {
        constexpr bool sgn = std::is_signed<S>::value;
        if constexpr (std::is_floating_point<S>::value) {
            return _mm_loadu_ps(p);
        } else if constexpr (sizeof(S) == 4) {
            return _mm_loadu_si128(reinterpret_cast<const __m128i*>(p));
        } else if constexpr (sizeof(S) == 2) {
            const __m128i v = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(p));
            return sgn ? _mm_cvtepi16_epi32(v) : _mm_cvtepu16_epi32(v);
        } else {
            int bits;
            std::memcpy(&bits, p, 4);
            const __m128i v = _mm_cvtsi32_si128(bits);
            return sgn ? _mm_cvtepi8_epi32(v) : _mm_cvtepu8_epi32(v);
        }
    }
};

// ---- Stores of one aligned 16-byte vector -------------------------------------
struct Aligned {
    static void put(void* p, __m128i v) { _mm_store_si128(static_cast<__m128i*>(p), v); }
    static void put(void* p, __m128 v) { _mm_store_ps(static_cast<float*>(p), v); }
};
struct Stream {
    static void put(void* p, __m128i v) { _mm_stream_si128(static_cast<__m128i*>(p), v); }
    static void put(void* p, __m128 v) { _mm_stream_ps(static_cast<float*>(p), v); }
};

// ---- Sixteen lanes into a destination, saturating ----------------------------
template <class St>
inline void put16(Zel8u* d, __m128i a, __m128i b, __m128i c, __m128i e) {
    St::put(d, _mm_packus_epi16(_mm_packs_epi32(a, b), _mm_packs_epi32(c, e)));
}
template <class St>
inline void put16(Zel8s* d, __m128i a, __m128i b, __m128i c, __m128i e) {
    St::put(d, _mm_packs_epi16(_mm_packs_epi32(a, b), _mm_packs_epi32(c, e)));
}
template <class St>
inline void put16(Zel16u* d, __m128i a, __m128i b, __m128i c, __m128i e) {
    St::put(d, _mm_packus_epi32(a, b));
    St::put(d + 8, _mm_packus_epi32(c, e));
}
template <class St>
inline void put16(Zel16s* d, __m128i a, __m128i b, __m128i c, __m128i e) {
    St::put(d, _mm_packs_epi32(a, b));
    St::put(d + 8, _mm_packs_epi32(c, e));
}
template <class St, class D, class V>
inline void put16_wide(D* d, V a, V b, V c, V e) {
    St::put(d, a);
    St::put(d + 4, b);
    St::put(d + 8, c);
    St::put(d + 12, e);
}
template <class St>
inline void put16(Zel32s* d, __m128i a, __m128i b, __m128i c, __m128i e) { put16_wide<St>(d, a, b, c, e); }
template <class St>
inline void put16(Zel32u* d, __m128i a, __m128i b, __m128i c, __m128i e) { put16_wide<St>(d, a, b, c, e); }
template <class St>
inline void put16(Zel32f* d, __m128 a, __m128 b, __m128 c, __m128 e) { put16_wide<St>(d, a, b, c, e); }

// ---- Row walkers ---------------------------------------------------------------
// An operation may work on 16 samples in narrower lanes (kBlock16 and
// block16), where the rule allows it bit for bit.
template <class Op, class = void>
struct HasBlock16 : std::false_type {};
template <class Op>
struct HasBlock16<Op, std::enable_if_t<Op::kBlock16>> : std::true_type {};

template <class St, class S, class D, class Op>
inline void blocks(const S* s, D* d, int& i, int n, const Op& op) {
    if constexpr (HasBlock16<Op>::value) {
        for (; i + 16 <= n; i += 16) op.template block16<St>(s + i, d + i);
    } else {
        auto block = [&](int k) {
            put16<St>(d + k, op.vec(Load<S>::four(s + k)), op.vec(Load<S>::four(s + k + 4)),
                      op.vec(Load<S>::four(s + k + 8)), op.vec(Load<S>::four(s + k + 12)));
        };
        for (; i + 32 <= n; i += 32) {
            block(i);
            block(i + 16);
        }
        for (; i + 16 <= n; i += 16) block(i);
    }
}

inline __m128i load16(const void* p) { return _mm_loadu_si128(static_cast<const __m128i*>(p)); }

// One row of n samples. `nt` selects non-temporal stores for the aligned middle.
template <class S, class D, class Op>
inline void run_row(const S* s, D* d, int n, const Op& op, bool nt) {
    int i = 0;
    if constexpr (Op::kVec) {
        while (i < n && (reinterpret_cast<std::uintptr_t>(d + i) & 15) != 0) {
            d[i] = op.one(s[i]);
            ++i;
        }
        if (nt)
            blocks<Stream>(s, d, i, n, op);
        else
            blocks<Aligned>(s, d, i, n, op);
    }
    for (; i < n; ++i) d[i] = op.one(s[i]);
}

// One AC4 row: three samples of each pixel, the fourth left as it is.
template <class S, class D, class Op>
inline void run_row_ac4(const S* s, D* d, int pixels, const Op& op) {
    for (int p = 0; p < pixels; ++p, s += 4, d += 4) {
        d[0] = op.one(s[0]);
        d[1] = op.one(s[1]);
        d[2] = op.one(s[2]);
    }
}

// A whole image. Channels fold into the width (but AC4), contiguous rows fold
// into one row while the length stays below 0x7fffffff samples.
template <Layout L, class S, class D, class Op>
inline void run_image(const S* src, int srcStep, D* dst, int dstStep, ZeliSize roi, const Op& op, bool nt) {
    if constexpr (L == AC4) {
        for (int r = 0; r < roi.height; ++r) run_row_ac4(row(src, srcStep, r), row(dst, dstStep, r), roi.width, op);
        return;
    } else {
        long long w = (long long)roi.width * channels(L);
        int h = roi.height;
        if (srcStep == w * (long long)sizeof(S) && dstStep == w * (long long)sizeof(D) && w * h < 0x7fffffffLL) {
            w *= h;
            h = 1;
        }
        for (int r = 0; r < h; ++r) run_row(row(src, srcStep, r), row(dst, dstStep, r), int(w), op, nt);
        if (nt) _mm_sfence();
    }
}

// ---- Value-keeping conversions -------------------------------------------------
// Widening copies and saturating narrowing between integer types, and integers
// to float with the processor's conversion in the current rounding mode.
template <class S, class D>
struct Plain {
    // Unsigned 32-bit to float has no packed conversion of its own.
    static constexpr bool kVec = !std::is_same<S, Zel32u>::value;
    static constexpr bool kFloat = std::is_floating_point<D>::value;
    auto vec(__m128i v) const {
        if constexpr (kFloat)
            return _mm_cvtepi32_ps(v);
        else
            return v;
    }
    D one(S x) const {
        if constexpr (kFloat)
            return D(x);
        else
            return sat<D>(x);
    }
    // 16 samples at once: 8u widening from one load, 16-bit narrowing in
    // 16-bit lanes.
    static constexpr bool kFrom8u = std::is_same<S, Zel8u>::value;
    static constexpr bool kBlock16 =
        (kFrom8u && !std::is_same<D, Zel8s>::value) ||
        (std::is_same<D, Zel8u>::value && (std::is_same<S, Zel16u>::value || std::is_same<S, Zel16s>::value));
    template <class St>
    void block16(const S* s, D* d) const {
        if constexpr (kFrom8u) {
            const __m128i v = load16(s);
            if constexpr (sizeof(D) == 2) {
                St::put(d, _mm_cvtepu8_epi16(v));
                St::put(d + 8, _mm_unpackhi_epi8(v, _mm_setzero_si128()));
            } else {
                const __m128i z = _mm_setzero_si128();
                const __m128i lo = _mm_unpacklo_epi8(v, z), hi = _mm_unpackhi_epi8(v, z);
                put16<St>(d, vec(_mm_unpacklo_epi16(lo, z)), vec(_mm_unpackhi_epi16(lo, z)), vec(_mm_unpacklo_epi16(hi, z)),
                          vec(_mm_unpackhi_epi16(hi, z)));
            }
        } else if constexpr (std::is_same<S, Zel16u>::value) {
            const __m128i m = _mm_set1_epi16(255);
            St::put(d, _mm_packus_epi16(_mm_min_epu16(load16(s), m), _mm_min_epu16(load16(s + 8), m)));
        } else {
            St::put(d, _mm_packus_epi16(load16(s), load16(s + 8)));
        }
    }
};

// Signed to unsigned ("Rs"): negative samples become 0.
template <class S, class D>
struct NonNegative {
    static constexpr bool kVec = true;
    __m128i vec(__m128i v) const { return _mm_max_epi32(v, _mm_setzero_si128()); }
    D one(S x) const { return D(x < 0 ? 0 : x); }
};

// Float to integer: optional multiplier, clamp into the destination's range
// (a NaN fails "below the upper bound" and becomes the upper bound), then
// either the processor's conversion in the current rounding mode or, for the
// financial mode, the addition of 0.5 with the sign of the value and a
// truncation. The addition runs with the rounding field set towards zero, so
// the sum never rounds up across an integer.
// The lower clamp needs no instruction: every value below the lower bound,
// and -inf, converts to a value at or below it (or to 0x80000000), which the
// saturating pack takes to the bound.
template <class D, bool Financial, bool Scaled>
struct FloatToInt {
    static constexpr bool kVec = true;
    static constexpr bool kInt32 = std::is_same<D, Zel32s>::value;
    // The bound as a float, fixed at compile time: the rounding field may
    // already be set towards zero when the object is built.
    static constexpr float kHi = float(std::numeric_limits<D>::max());
    __m128 m, hi, half, sign, big;
    explicit FloatToInt(float multiplier = 1.0f)
        : m(_mm_set1_ps(multiplier)), hi(_mm_set1_ps(kHi)), half(_mm_set1_ps(0.5f)),
          sign(_mm_set1_ps(-0.0f)), big(_mm_set1_ps(2147483648.0f)) {}
    __m128i vec(__m128 x) const {
        if constexpr (Scaled) x = _mm_mul_ps(x, m);
        __m128 v = _mm_min_ps(x, hi);
        __m128i r;
        if constexpr (Financial) {
            v = _mm_add_ps(v, _mm_or_ps(_mm_and_ps(v, sign), half));
            r = _mm_cvttps_epi32(v);
        } else {
            r = _mm_cvtps_epi32(v);
        }
        // The upper bound of a 32-bit destination is 2^31 as a float.
        if constexpr (kInt32) r = _mm_blendv_epi8(r, _mm_set1_epi32(INT_MAX), _mm_castps_si128(_mm_cmpge_ps(v, big)));
        return r;
    }
    // A single sample goes through the vector form in lane 0.
    D one(Zel32f x) const { return sat<D>(_mm_cvtsi128_si32(vec(_mm_set_ss(x)))); }
};

// ---- Scaling to wider integers: the bytes are replicated ------------------------
template <class D>
struct ReplicateBytes {
    static constexpr bool kVec = true;
    __m128i vec(__m128i v) const {
        const __m128i v2 = _mm_or_si128(v, _mm_slli_epi32(v, 8)); // x * 257
        if constexpr (std::is_same<D, Zel16u>::value) return v2;
        if constexpr (std::is_same<D, Zel16s>::value) return _mm_sub_epi32(v2, _mm_set1_epi32(32768));
        if constexpr (std::is_same<D, Zel32s>::value)
            return _mm_xor_si128(_mm_or_si128(v2, _mm_slli_epi32(v2, 16)), _mm_set1_epi32(INT_MIN));
    }
    D one(Zel8u x) const {
        const int v2 = x * 257;
        if constexpr (std::is_same<D, Zel16u>::value) return D(v2);
        if constexpr (std::is_same<D, Zel16s>::value) return D(v2 - 32768);
        if constexpr (std::is_same<D, Zel32s>::value) return D((Zel32u(v2) * 65537u) ^ 0x80000000u);
    }
};

// ---- Scaling 16u, 16s to 8u --------------------------------------------------------
// Accurate: round to nearest of (x + offset) * 255/65535 in single precision,
// with the rounding field set to nearest by the caller.
template <class S>
struct Scale16Accurate {
    static constexpr bool kVec = true;
    static constexpr int kOffset = std::is_same<S, Zel16s>::value ? 32768 : 0;
    __m128 c = _mm_set1_ps(255.0f / 65535.0f);
    __m128i vec(__m128i v) const {
        return _mm_cvtps_epi32(_mm_mul_ps(_mm_cvtepi32_ps(_mm_add_epi32(v, _mm_set1_epi32(kOffset))), c));
    }
    Zel8u one(S x) const { return sat<Zel8u>(_mm_cvtss_si32(_mm_mul_ss(_mm_set_ss(float(x + kOffset)), c))); }
    // 16 samples from two loads: x + 32768 of a 16s sample is its bit
    // pattern with the top bit flipped, read as unsigned.
    static constexpr bool kBlock16 = true;
    template <class St>
    void block16(const S* s, Zel8u* d) const {
        const __m128i flip = _mm_set1_epi16(kOffset ? short(0x8000) : 0), z = _mm_setzero_si128();
        const __m128i a = _mm_xor_si128(load16(s), flip), b = _mm_xor_si128(load16(s + 8), flip);
        auto f = [&](__m128i u) { return _mm_cvtps_epi32(_mm_mul_ps(_mm_cvtepi32_ps(u), c)); };
        put16<St>(d, f(_mm_unpacklo_epi16(a, z)), f(_mm_unpackhi_epi16(a, z)), f(_mm_unpacklo_epi16(b, z)),
                  f(_mm_unpackhi_epi16(b, z)));
    }
};

// Fast: integer arithmetic, y the sample as a signed 16-bit value:
// ((y - (y >> 8)) >> 8) + 128.
template <class S>
struct Scale16Fast {
    static constexpr bool kVec = true;
    static constexpr int kOffset = std::is_same<S, Zel16u>::value ? -32768 : 0;
    __m128i vec(__m128i v) const {
        const __m128i y = _mm_add_epi32(v, _mm_set1_epi32(kOffset));
        return _mm_add_epi32(_mm_srai_epi32(_mm_sub_epi32(y, _mm_srai_epi32(y, 8)), 8), _mm_set1_epi32(128));
    }
    Zel8u one(S x) const {
        const int y = x + kOffset;
        return Zel8u(((y - (y >> 8)) >> 8) + 128);
    }
    // The same in 16-bit lanes: y - (y >> 8) stays within +-32640.
    static constexpr bool kBlock16 = true;
    template <class St>
    void block16(const S* s, Zel8u* d) const {
        const __m128i flip = _mm_set1_epi16(kOffset ? short(0x8000) : 0), c128 = _mm_set1_epi16(128);
        auto f = [&](__m128i x) {
            const __m128i y = _mm_xor_si128(x, flip);
            return _mm_add_epi16(_mm_srai_epi16(_mm_sub_epi16(y, _mm_srai_epi16(y, 8)), 8), c128);
        };
        St::put(d, _mm_packus_epi16(f(load16(s)), f(load16(s + 8))));
    }
};

// ---- Scaling 32s to 8u --------------------------------------------------------------
// Accurate: x * c + d in double precision, rounded to nearest, with
// c = 255 / (2^32 - 1) and d = 2^31 * c placing -2^31 at 0 and 2^31 - 1 at 255.
struct Scale32Accurate {
    static constexpr bool kVec = true;
    static constexpr double kC = 255.0 / 4294967295.0;
    static constexpr double kD = 2147483648.0 * kC;
    __m128i vec(__m128i v) const {
        const __m128d c = _mm_set1_pd(kC), d = _mm_set1_pd(kD);
        const __m128i a = _mm_cvtpd_epi32(_mm_add_pd(_mm_mul_pd(_mm_cvtepi32_pd(v), c), d));
        const __m128i b = _mm_cvtpd_epi32(_mm_add_pd(_mm_mul_pd(_mm_cvtepi32_pd(_mm_unpackhi_epi64(v, v)), c), d));
        return _mm_unpacklo_epi64(a, b);
    }
    Zel8u one(Zel32s x) const {
        return sat<Zel8u>(_mm_cvtsd_si32(_mm_add_sd(_mm_mul_sd(_mm_set_sd(double(x)), _mm_set_sd(kC)), _mm_set_sd(kD))));
    }
};

// Fast: ((x - (x >> 8)) >> 24) + 128, arithmetic shifts.
struct Scale32Fast {
    static constexpr bool kVec = true;
    __m128i vec(__m128i v) const {
        return _mm_add_epi32(_mm_srai_epi32(_mm_sub_epi32(v, _mm_srai_epi32(v, 8)), 24), _mm_set1_epi32(128));
    }
    Zel8u one(Zel32s x) const { return Zel8u(((x - (x >> 8)) >> 24) + 128); }
};

// ---- Scaling with a float range ---------------------------------------------------------
// 8u to 32f: x * ((vMax - vMin) / 255) + vMin in single precision.
struct Scale8uTo32f {
    static constexpr bool kVec = true;
    __m128 k, b;
    Scale8uTo32f(float vMin, float vMax) : k(_mm_set1_ps((vMax - vMin) / 255.0f)), b(_mm_set1_ps(vMin)) {}
    __m128 vec(__m128i v) const { return _mm_add_ps(_mm_mul_ps(_mm_cvtepi32_ps(v), k), b); }
    Zel32f one(Zel8u x) const { return _mm_cvtss_f32(_mm_add_ss(_mm_mul_ss(_mm_set_ss(float(x)), k), b)); }
};

// 32f to 8u: clamp into vMin..vMax (NaN to vMax), then x * k + b with
// k = 255 / (vMax - vMin), b = 0 - vMin * k, rounded to nearest.
struct Scale32fTo8u {
    static constexpr bool kVec = true;
    __m128 lo, hi, k, b;
    Scale32fTo8u(float vMin, float vMax) : lo(_mm_set1_ps(vMin)), hi(_mm_set1_ps(vMax)) {
        const float kk = 255.0f / (vMax - vMin);
        const float bb = 0.0f - vMin * kk;
        k = _mm_set1_ps(kk);
        b = _mm_set1_ps(bb);
    }
    __m128i vec(__m128 x) const {
        return _mm_cvtps_epi32(_mm_add_ps(_mm_mul_ps(_mm_max_ps(_mm_min_ps(x, hi), lo), k), b));
    }
    Zel8u one(Zel32f x) const {
        return sat<Zel8u>(_mm_cvtss_si32(_mm_add_ss(_mm_mul_ss(_mm_max_ss(_mm_min_ss(_mm_set_ss(x), hi), lo), k), b)));
    }
};

} // namespace cvt
} // namespace zel

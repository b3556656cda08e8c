// Sample-type conversion and range scaling against references written from
// the rules: exact values in double precision, rounded by the round mode.
#include "guard.hpp"

#include <gtest/gtest.h>
#include <xmmintrin.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <string>

namespace {

template <class D>
D clamp_to(double v) {
    if constexpr (std::is_floating_point<D>::value) {
        return D(v);
    } else {
        const double lo = double(std::numeric_limits<D>::min()), hi = double(std::numeric_limits<D>::max());
        return D(v < lo ? lo : (v > hi ? hi : v));
    }
}

// Exact value v rounded by mode (0 towards zero, 1 ties to even, other ties
// away from zero) into D; NaN gives D's maximum.
template <class D>
D round_to(double v, int mode) {
    if (std::isnan(v)) return std::numeric_limits<D>::max();
    double r;
    if (mode == 0)
        r = std::trunc(v);
    else if (mode == 1)
        r = std::nearbyint(v); // the test runs with the default to-nearest mode
    else
        r = std::round(v);
    return clamp_to<D>(r);
}

// Float sources: ties, bounds and just beyond them, NaN, infinities, and
// random values with halves.
float float_sample(std::mt19937& rng, double range) {
    static const float special[] = {0.0f, -0.0f, 0.5f, -0.5f, 1.5f, 2.5f, -2.5f, -0.4f, 0.49999997f, 127.5f, -128.5f,
                                    255.5f, 255.6f, 256.0f, -1.0f, 32767.5f, -32768.5f, 65535.5f, 65536.0f,
                                    2147483520.0f, 2147483648.0f, -2147483648.0f, -3e9f, 4294967040.0f, 4294967296.0f,
                                    8388609.0f, std::numeric_limits<float>::quiet_NaN(),
                                    std::numeric_limits<float>::infinity(), -std::numeric_limits<float>::infinity(),
                                    1e-30f, 3e38f};
    const unsigned k = rng() % 64;
    if (k < sizeof(special) / sizeof(special[0])) return special[k];
    const double v = (double(rng()) / 4294967296.0 * 2.0 - 1.0) * range;
    return (rng() & 1) ? float(std::floor(v) + 0.5) : float(v);
}

template <class T>
void fill(zt::Image<T>& img, std::uint32_t seed, double range = 70000.0) {
    img.fill_random(seed);
    if constexpr (std::is_floating_point<T>::value) {
        std::mt19937 rng(seed);
        for (int y = 0; y < img.height(); ++y)
            for (int x = 0; x < img.width() * img.channels(); ++x) img.row(y)[x] = float_sample(rng, range);
    }
}

// Runs `call` over the sweep shapes (brief: one in five), the source rows
// padded apart from the destination's, comparing every destination sample
// with ref(source sample); AC4 alpha must stay.
template <class S, class D, class Call, class Ref>
void sweep(const std::string& name, int ch, bool ac4, Call call, Ref ref, double range = 70000.0, bool brief = false) {
    std::uint32_t seed = 1;
    int k = 0;
    for (const zt::Shape& sh : zt::sweep_shapes({1, 3}, 4)) {
        if (brief && k++ % 5) continue;
        zt::Image<S> src(sh.w, sh.h, ch, (sh.extra + 4) % 12 * int(sizeof(S)));
        zt::Image<D> dst = zt::make_image<D>(sh, ch);
        fill(src, ++seed, range);
        dst.fill_random(++seed);
        const zt::Image<D> old = zt::make_image<D>(sh, ch);
        std::memcpy(old.ptr(), dst.ptr(), dst.bytes().size());
        ASSERT_EQ(call(src.ptr(), src.step(), dst.ptr(), dst.step(), dst.size()), zelStatusOk) << name;
        for (int y = 0; y < sh.h; ++y)
            for (int x = 0; x < sh.w; ++x)
                for (int c = 0; c < ch; ++c) {
                    const D want = (ac4 && c == 3) ? old.at(x, y, c) : ref(src.at(x, y, c));
                    const D got = dst.at(x, y, c);
                    ASSERT_EQ(std::memcmp(&want, &got, sizeof(D)), 0)
                        << name << " w=" << sh.w << " h=" << sh.h << " x=" << x << " c=" << c << " src="
                        << double(src.at(x, y, c)) << " want=" << double(want) << " got=" << double(got);
                }
    }
}

// Lays out one call per layout: C1, C3, C4, AC4 with their channel counts.
#define FOR_LAYOUTS(M, ...) M(C1, 1, false, __VA_ARGS__) M(C3, 3, false, __VA_ARGS__) M(C4, 4, false, __VA_ARGS__) M(AC4, 4, true, __VA_ARGS__)

// ---- Value-keeping conversions -----------------------------------------------------------
#define PLAIN(L, CH, AC, S, D)                                                                      \
    sweep<Zel##S, Zel##D>("zeliConvert_" #S #D "_" #L "R", CH, AC, zeliConvert_##S##D##_##L##R, \
                          [](Zel##S x) { return clamp_to<Zel##D>(double(x)); });

TEST(Convert, WideningAndSaturatingNarrowing) {
    FOR_LAYOUTS(PLAIN, 8u, 16s) FOR_LAYOUTS(PLAIN, 8u, 16u) FOR_LAYOUTS(PLAIN, 8u, 32f) FOR_LAYOUTS(PLAIN, 8u, 32s)
    FOR_LAYOUTS(PLAIN, 8s, 32f) FOR_LAYOUTS(PLAIN, 8s, 32s) FOR_LAYOUTS(PLAIN, 16s, 8u) FOR_LAYOUTS(PLAIN, 16s, 32f)
    FOR_LAYOUTS(PLAIN, 16s, 32s) FOR_LAYOUTS(PLAIN, 16u, 8u) FOR_LAYOUTS(PLAIN, 16u, 32f) FOR_LAYOUTS(PLAIN, 16u, 32s)
    FOR_LAYOUTS(PLAIN, 32s, 8s) FOR_LAYOUTS(PLAIN, 32s, 8u)
    PLAIN(C1, 1, false, 8s, 16s) PLAIN(C1, 1, false, 16u, 32u)
    // 32-bit integers to float round as the processor does, here to nearest.
    PLAIN(C1, 1, false, 32s, 32f) PLAIN(C1, 1, false, 32u, 32f)
}

#define RS(S, D)                                                                             \
    sweep<Zel##S, Zel##D>("zeliConvert_" #S #D "_C1Rs", 1, false, zeliConvert_##S##D##_C1Rs, \
                          [](Zel##S x) { return Zel##D(x < 0 ? 0 : x); });
TEST(Convert, SignedToUnsignedDropsNegatives) { RS(8s, 8u) RS(8s, 16u) RS(8s, 32u) RS(16s, 16u) RS(16s, 32u) RS(32s, 32u) }

// ---- Float to integer with a round mode ----------------------------------------------------
const int kModes[] = {0, 1, 2, 7};

#define ROUND(L, CH, AC, D)                                                                                   \
    for (int mode : kModes)                                                                                   \
        sweep<Zel32f, Zel##D>(                                                                                \
            "zeliConvert_32f" #D "_" #L "R mode " + std::to_string(mode), CH, AC,                             \
            [mode](const Zel32f* s, int ss, Zel##D* d, int ds, ZeliSize r) { return zeliConvert_32f##D##_##L##R(s, ss, d, ds, r, mode); }, \
            [mode](Zel32f x) { return round_to<Zel##D>(x, mode); }, 70000.0, mode != 1);

TEST(Convert, FloatToIntegerAllModes) { FOR_LAYOUTS(ROUND, 8u) FOR_LAYOUTS(ROUND, 8s) FOR_LAYOUTS(ROUND, 16u) FOR_LAYOUTS(ROUND, 16s) }

const int kScales[] = {-40, -31, -15, -14, -8, -1, 0, 1, 2, 7, 8, 9, 15, 16, 17, 31, 32, 33, 40};

#define FSFS(D)                                                                                               \
    for (int mode : kModes)                                                                                   \
        for (int n : {-20, -3, -1, 0, 1, 2, 5, 16, 31, 40})                                                   \
            sweep<Zel32f, Zel##D>(                                                                            \
                "zeliConvert_32f" #D "_C1RSfs mode " + std::to_string(mode) + " n " + std::to_string(n), 1, false, \
                [=](const Zel32f* s, int ss, Zel##D* d, int ds, ZeliSize r) { return zeliConvert_32f##D##_C1RSfs(s, ss, d, ds, r, mode, n); }, \
                [=](Zel32f x) { return round_to<Zel##D>(std::ldexp(double(x), -n), mode); }, 70000.0, true);

TEST(Convert, FloatToIntegerScaled) { FSFS(8u) FSFS(8s) FSFS(16u) FSFS(16s) FSFS(32s) }

#define ISFS(S, D)                                                                                            \
    for (int mode : kModes)                                                                                   \
        for (int n : kScales)                                                                                 \
            sweep<Zel##S, Zel##D>(                                                                            \
                "zeliConvert_" #S #D "_C1RSfs mode " + std::to_string(mode) + " n " + std::to_string(n), 1, false, \
                [=](const Zel##S* s, int ss, Zel##D* d, int ds, ZeliSize r) { return zeliConvert_##S##D##_C1RSfs(s, ss, d, ds, r, mode, n); }, \
                [=](Zel##S x) { return round_to<Zel##D>(std::ldexp(double(x), -n), mode); }, 0, true);

TEST(Convert, IntegerScaled) {
    ISFS(8u, 8s) ISFS(16s, 8s) ISFS(16u, 8s) ISFS(16u, 16s) ISFS(32s, 16s) ISFS(32s, 16u) ISFS(32u, 8s) ISFS(32u, 8u)
    ISFS(32u, 16s) ISFS(32u, 16u) ISFS(32u, 32s)
}

// 32f to 32u in double precision; the in-place form writes over its floats.
Zel32u ref_32u(float x, int n, int mode) {
    if (std::isnan(x)) return 0xFFFFFFFFu;
    const double v = std::ldexp(double(x), -n);
    if (v <= 0) return 0;
    if (v >= 4294967296.0) return 0xFFFFFFFFu;
    const double r = mode == 0 ? std::trunc(v) : mode == 1 ? std::nearbyint(v) : std::round(v);
    return r > 4294967295.0 ? 0xFFFFFFFFu : Zel32u(r);
}

TEST(Convert, FloatTo32u) {
    for (int mode : kModes)
        for (int n : {-8, -1, 0, 1, 3, 33}) {
            const std::string name = "32f32u mode " + std::to_string(mode) + " n " + std::to_string(n);
            sweep<Zel32f, Zel32u>(
                name, 1, false,
                [=](const Zel32f* s, int ss, Zel32u* d, int ds, ZeliSize r) { return zeliConvert_32f32u_C1RSfs(s, ss, d, ds, r, mode, n); },
                [=](Zel32f x) { return ref_32u(x, n, mode); }, 5e9, true);
            sweep<Zel32f, Zel32u>( // in place: the floats copied to the destination first
                name + " in place", 1, false,
                [=](const Zel32f* s, int ss, Zel32u* d, int ds, ZeliSize r) {
                    for (int y = 0; y < r.height; ++y)
                        std::memcpy(reinterpret_cast<char*>(d) + std::ptrdiff_t(y) * ds, reinterpret_cast<const char*>(s) + std::ptrdiff_t(y) * ss, r.width * 4);
                    return zeliConvert_32f32u_C1IRSfs(d, ds, r, mode, n);
                },
                [=](Zel32f x) { return ref_32u(x, n, mode); }, 5e9, true);
        }
}

// ---- Bits to bytes -------------------------------------------------------------------------
TEST(Convert, BitsToBytes) {
    for (int w : zt::sweep_widths())
        for (int off : {0, 1, 3, 7, 8, 13}) {
            const int bytes = (off + w + 7) / 8;
            zt::Image<Zel8u> src(bytes, 3, 1, 2);
            zt::Image<Zel8u> dst(w, 3, 1, 0, zt::Flush::Head, 5);
            src.fill_random(w * 31 + off);
            ASSERT_EQ(zeliConvert_1u8u_C1R(src.ptr(), src.step(), off, dst.ptr(), dst.step(), {w, 3}), 0);
            for (int y = 0; y < 3; ++y)
                for (int x = 0; x < w; ++x) {
                    const int b = off + x;
                    ASSERT_EQ(dst.at(x, y), ((src.at(b / 8, y) >> (7 - b % 8)) & 1) ? 255 : 0) << w << " " << off;
                }
        }
}

// ---- Non-temporal path -----------------------------------------------------------------------
// A small cache size makes large conversions stream their stores.
TEST(Convert, StreamingStoresGiveTheSamePixels) {
    zelSetMaxCacheSizeB(4096);
    const int w = 1031, h = 300;
    zt::Image<Zel8u> src(w, h, 1);
    src.fill_random(5);
    zt::Image<Zel32f> f(w, h, 1, 0, zt::Flush::Head, 4);
    ASSERT_EQ(zeliConvert_8u32f_C1R(src.ptr(), src.step(), f.ptr(), f.step(), {w, h}), 0);
    zelSetMaxCacheSizeB(0);
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) ASSERT_EQ(f.at(x, y), float(src.at(x, y)));
}

// ---- zeliScale -------------------------------------------------------------------------------
#define SCALE_W(L, CH, AC, D, EXPR) \
    sweep<Zel8u, Zel##D>("zeliScale_8u" #D "_" #L "R", CH, AC, zeliScale_8u##D##_##L##R, [](Zel8u x) { return Zel##D(EXPR); });
#define SCALE_H(L, CH, AC, S, ACC, FAST)                                                                        \
    for (int hint : {0, 1, 2, 3})                                                                               \
        sweep<Zel##S, Zel8u>(                                                                                   \
            "zeliScale_" #S "8u_" #L "R hint " + std::to_string(hint), CH, AC,                                  \
            [hint](const Zel##S* s, int ss, Zel8u* d, int ds, ZeliSize r) { return zeliScale_##S##8u_##L##R(s, ss, d, ds, r, hint); }, \
            [hint](Zel##S x) { return Zel8u(hint == 2 ? (ACC) : (FAST)); }, 0, hint > 2);
#define SCALE_F(L, CH, AC, x0, x1)                                                                              \
    sweep<Zel8u, Zel32f>(                                                                                       \
        "zeliScale_8u32f_" #L "R", CH, AC,                                                                      \
        [](const Zel8u* s, int ss, Zel32f* d, int ds, ZeliSize r) { return zeliScale_8u32f_##L##R(s, ss, d, ds, r, x0, x1); }, \
        [](Zel8u x) { volatile float k = (x1 - x0) / 255.0f; volatile float p = float(x) * k; return p + x0; }); \
    sweep<Zel32f, Zel8u>(                                                                                       \
        "zeliScale_32f8u_" #L "R", CH, AC,                                                                      \
        [](const Zel32f* s, int ss, Zel8u* d, int ds, ZeliSize r) { return zeliScale_32f8u_##L##R(s, ss, d, ds, r, x0, x1); }, \
        [](Zel32f x) {                                                                                          \
            volatile float k = 255.0f / (x1 - x0);                                                              \
            volatile float b = 0.0f - x0 * k;                                                                   \
            const float c = std::isnan(x) ? x1 : std::fmin(std::fmax(x, x0), x1);                               \
            volatile float p = c * k;                                                                           \
            return round_to<Zel8u>(float(p + b), 1);                                                            \
        }, 400.0);

int fast16(int y) { return ((y - (y >> 8)) >> 8) + 128; }
int acc16(int v) {
    volatile float p = float(v) * (255.0f / 65535.0f);
    return int(std::nearbyint(p));
}

TEST(Scale, AllMembers) {
    FOR_LAYOUTS(SCALE_W, 16u, x * 257) FOR_LAYOUTS(SCALE_W, 16s, x * 257 - 32768)
    FOR_LAYOUTS(SCALE_W, 32s, (long long)x * 16843009LL - 2147483648LL)
    FOR_LAYOUTS(SCALE_H, 16u, acc16(x), fast16(x - 32768)) FOR_LAYOUTS(SCALE_H, 16s, acc16(x + 32768), fast16(x))
    FOR_LAYOUTS(SCALE_H, 32s, std::nearbyint(double(x) * (255.0 / 4294967295.0) + 2147483648.0 * (255.0 / 4294967295.0)),
                ((x - (x >> 8)) >> 24) + 128)
    FOR_LAYOUTS(SCALE_F, -3.5f, 200.25f)
}

// ---- Order of checks and the rounding field ------------------------------------------------------
unsigned field() { return _mm_getcsr() & 0x6000u; }
struct CallerMode {
    unsigned saved = _mm_getcsr();
    explicit CallerMode(unsigned f) { _mm_setcsr((saved & ~0x6000u) | f); }
    ~CallerMode() { _mm_setcsr(saved); }
};

TEST(Convert, OrderOfChecks) {
    Zel8u b[64] = {};
    Zel32f f[16] = {};
    EXPECT_EQ(zeliConvert_8u16u_C1R(nullptr, 1, reinterpret_cast<Zel16u*>(b), 0, {0, 1}), zelStatusNullPointer);
    EXPECT_EQ(zeliConvert_8u16u_C1R(b, 0, reinterpret_cast<Zel16u*>(b + 32), 0, {0, 1}), zelStatusBadSize);
    EXPECT_EQ(zeliConvert_8u16u_C1R(b, 0, reinterpret_cast<Zel16u*>(b + 32), 4, {1, 1}), zelStatusBadStep);
    EXPECT_EQ(zeliConvert_32f8u_C3R(f, -1, b, 3, {1, 0}, 1), zelStatusBadSize);
    EXPECT_EQ(zeliConvert_32f8u_C1R(f, -1, b, 3, {1, 1}, 1), zelStatusBadStep);
    // Rs, integer Sfs and float Sfs have no step check; 32f32u checks null and size only.
    EXPECT_EQ(zeliConvert_8s8u_C1Rs(reinterpret_cast<Zel8s*>(b), 0, b + 8, 0, {2, 2}), zelStatusOk);
    EXPECT_EQ(zeliConvert_16u16s_C1RSfs(reinterpret_cast<Zel16u*>(b), 0, reinterpret_cast<Zel16s*>(b + 8), 0, {2, 2}, 1, 1), zelStatusOk);
    EXPECT_EQ(zeliConvert_32f8u_C1RSfs(f, 0, b, 0, {2, 2}, 1, 1), zelStatusOk);
    EXPECT_EQ(zeliConvert_32f32u_C1RSfs(f, 0, reinterpret_cast<Zel32u*>(b), 0, {2, 2}, 1, 1), zelStatusOk);
    EXPECT_EQ(zeliConvert_32f32u_C1IRSfs(nullptr, 0, {0, 2}, 1, 1), zelStatusNullPointer);
    EXPECT_EQ(zeliConvert_8s8u_C1Rs(nullptr, 0, b, 0, {0, 2}), zelStatusNullPointer);
    // Bits: null, size, step, then a negative offset as a bad size.
    EXPECT_EQ(zeliConvert_1u8u_C1R(b, 0, -1, b + 8, 1, {1, 1}), zelStatusBadStep);
    EXPECT_EQ(zeliConvert_1u8u_C1R(b, 1, -1, b + 8, 1, {1, 1}), zelStatusBadSize);
    // Scale: the range first, before null pointers.
    EXPECT_EQ(zeliScale_8u32f_C1R(nullptr, 0, nullptr, 0, {0, 0}, 1.0f, 1.0f), zelStatusBadScaleRange);
    EXPECT_EQ(zeliScale_32f8u_C1R(nullptr, 0, nullptr, 0, {0, 0}, 2.0f, 1.0f), zelStatusBadScaleRange);
    EXPECT_EQ(zeliScale_8u32f_C1R(nullptr, 0, nullptr, 0, {0, 0}, NAN, 1.0f), zelStatusNullPointer);
    EXPECT_EQ(zeliScale_16u8u_C3R(nullptr, 0, b, 0, {0, 0}, 1), zelStatusNullPointer);
    EXPECT_EQ(zeliScale_8u16u_C1R(b, 1, reinterpret_cast<Zel16u*>(b + 8), 0, {1, 1}), zelStatusBadStep);
}

// Every call leaves the caller's rounding field as it was; the accurate hint
// and the float range set to-nearest before their checks and leave it so when
// a check fails.
TEST(Convert, CallerRoundingModeKept) {
    Zel32f f[5] = {2.5f, -1.5f, 3.5f, 0.5f, 254.5f};
    Zel8u d[5];
    Zel16s s[5];
    Zel16u u[1] = {129};
    for (unsigned caller : {0x0000u, 0x2000u, 0x4000u, 0x6000u}) {
        CallerMode m(caller);
        for (int mode : kModes) {
            ASSERT_EQ(zeliConvert_32f8u_C1R(f, 20, d, 5, {5, 1}, mode), 0);
            EXPECT_EQ(field(), caller);
            EXPECT_EQ(d[4], mode == 1 || mode == 0 ? 254 : 255) << caller;
            ASSERT_EQ(zeliConvert_32f16s_C1RSfs(f, 20, s, 10, {5, 1}, mode, -1), 0);
            EXPECT_EQ(field(), caller);
            EXPECT_EQ(s[1], -3);
        }
        ASSERT_EQ(zeliScale_32f8u_C1R(f, 20, d, 5, {5, 1}, 0.0f, 255.0f), 0);
        EXPECT_EQ(field(), caller);
        ASSERT_EQ(zeliScale_16u8u_C1R(u, 2, d, 1, {1, 1}, 2), 0);
        EXPECT_EQ(field(), caller);
        EXPECT_EQ(d[0], 1);
    }
    CallerMode m(0x6000u);
    EXPECT_EQ(zeliScale_16u8u_C1R(nullptr, 2, d, 1, {1, 1}, 1), zelStatusNullPointer);
    EXPECT_EQ(field(), 0x6000u);
    EXPECT_EQ(zeliScale_16u8u_C1R(nullptr, 2, d, 1, {1, 1}, 2), zelStatusNullPointer);
    EXPECT_EQ(field(), 0u);
    _mm_setcsr((_mm_getcsr() & ~0x6000u) | 0x2000u);
    EXPECT_EQ(zeliScale_32f8u_C1R(f, 20, d, 5, {5, 1}, 1.0f, 0.0f), zelStatusBadScaleRange);
    EXPECT_EQ(field(), 0u);
}

} // namespace

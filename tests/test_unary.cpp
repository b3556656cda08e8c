// Unary mathematics against references written from the rules: exact
// integer formulas (squares scaled with ties to even, roots rounded from
// exact integer comparisons, logarithm and exponential from the double
// functions), IEEE results and a one-ulp bound for the float logarithm and
// exponential, special values and warnings. Every member of the list runs at
// every level, over the sweep shapes, out of place and in place, with AC4
// alpha and the padding between rows left alone.
#include "members.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <limits>
#include <random>
#include <string>

namespace {

using i64 = std::int64_t;

// ---- The members, read from the declaration list ----------------------------------------
struct Form {
    const zt::Member* m;
    std::string fn, type;
    int ch, act;
    bool ip, sfs;
};

std::vector<Form> forms(std::initializer_list<const char*> fns) {
    std::vector<Form> out;
    for (const zt::Member& m : zt::members())
        for (const char* fn : fns) {
            const std::string p = std::string("zeli") + fn + "_";
            if (m.name.compare(0, p.size(), p) != 0) continue;
            const std::string rest = m.name.substr(p.size()), d = rest.substr(rest.find('_') + 1);
            const bool ac4 = d.compare(0, 3, "AC4") == 0;
            const int ch = ac4 ? 4 : d[1] - '0';
            out.push_back({&m, fn, rest.substr(0, rest.find('_')), ch, ac4 ? 3 : ch, d.find("IR") != std::string::npos,
                           d.find("Sfs") != std::string::npos});
        }
    return out;
}

template <class T>
ZelStatus call(const Form& f, const T* s, int ss, T* d, int ds, ZeliSize r, int n) {
    if (f.ip)
        return f.sfs ? reinterpret_cast<ZelStatus (*)(T*, int, ZeliSize, int)>(f.m->fn)(d, ds, r, n)
                     : reinterpret_cast<ZelStatus (*)(T*, int, ZeliSize)>(f.m->fn)(d, ds, r);
    return f.sfs ? reinterpret_cast<ZelStatus (*)(const T*, int, T*, int, ZeliSize, int)>(f.m->fn)(s, ss, d, ds, r, n)
                 : reinterpret_cast<ZelStatus (*)(const T*, int, T*, int, ZeliSize)>(f.m->fn)(s, ss, d, ds, r);
}

// ---- References ------------------------------------------------------------------------
template <class T>
T sat(i64 v) {
    const i64 lo = std::numeric_limits<T>::min(), hi = std::numeric_limits<T>::max();
    return T(v < lo ? lo : v > hi ? hi : v);
}

// s 2^-n to nearest, ties to even (s >= 0; a product beyond 2^62 stands as 2^62).
i64 scale_even(i64 s, int n) {
    if (n <= 0) return s == 0 ? 0 : n < -60 || (s >> (62 + n)) != 0 ? i64(1) << 62 : s << -n;
    if (n > 62) return 0;
    i64 q = s >> n, r = s - (q << n), h = i64(1) << (n - 1);
    return q + (r > h || (r == h && (q & 1)));
}

// sqrt(x) 2^-n to nearest, ties to even, from integer comparisons only:
// with X = x 4^-n, k rounds up when 4X > (2k + 1)^2 (|n| <= 20 keeps the
// products in 64 bits; beyond, every result saturates or is 0 as at +-20).
i64 root_even(i64 x, int n) {
    n = std::max(-20, std::min(20, n));
    i64 num = 4 * x, den = 1; // 4X = num / den
    if (n < 0) num <<= -2 * n;
    else den <<= 2 * n;
    i64 k = i64(std::sqrt(double(x) * std::ldexp(1.0, -2 * n)));
    while (k > 0 && 4 * k * k * den > num) --k;
    while (4 * (k + 1) * (k + 1) * den <= num) ++k;
    const i64 odd = (2 * k + 1) * (2 * k + 1) * den;
    return k + (num > odd || (num == odd && (k & 1)));
}

// Expected sample (as double) and warning lanes (1 negative, 2 zero); `ulps`
// is the tolerance of a float result.
template <class T>
double reference(const std::string& fn, T x, int n, int& warn, double& ulps) {
    const double v = double(x);
    ulps = fn == "Ln" || fn == "Exp" ? 1 : 0;
    if (fn == "Sqrt" && v < 0) warn |= 1;
    if (fn == "Ln") warn |= (v < 0 ? 1 : 0) | (v == 0 ? 2 : 0);
    if constexpr (std::is_floating_point<T>::value) {
        if (fn == "Abs") return std::fabs(v);
        if (fn == "Sqr") return double(x * x);
        if (fn == "Sqrt") return v < 0 ? NAN : double(std::sqrt(x));
        if (fn == "Ln") return v < 0 ? NAN : std::log(v);
        return std::exp(v);
    } else {
        if (fn == "Abs") return v == -32768 ? 32767 : std::fabs(v);
        if (fn == "Sqr") return double(sat<T>(scale_even(i64(x) * i64(x), n)));
        if (fn == "Sqrt") return v < 0 ? 0 : double(sat<T>(root_even(i64(x), n)));
        if (fn == "Ln") return v <= 0 ? std::numeric_limits<T>::min() : double(sat<T>(i64(std::floor(std::ldexp(std::log(v), -n) + 0.5))));
        const double e = std::ldexp(std::exp(v), -n);
        return e >= double(std::numeric_limits<T>::max()) ? std::numeric_limits<T>::max() : std::trunc(e);
    }
}

double ulp_at(double y) {
    const double a = std::fabs(y);
    return a < 0x1p-126 ? 0x1p-149 : std::ldexp(1.0, std::ilogb(a) - 23);
}

// Whether a float result is the reference within `ulps` (NaN for NaN, exact
// zeros and infinities bit for bit, an overflow as infinity).
bool close(float got, double want, double ulps) {
    if (std::isnan(want)) return std::isnan(got);
    const float exact = float(want);
    if (ulps == 0 || std::isinf(want) || want == 0) return std::memcmp(&got, &exact, sizeof got) == 0;
    if (std::isinf(got)) return std::fabs(want) > std::numeric_limits<float>::max();
    return std::fabs(double(got) - want) <= ulps * ulp_at(want);
}

// ---- Sources ---------------------------------------------------------------------------
template <class T>
T sample(std::mt19937& rng) {
    if constexpr (std::is_floating_point<T>::value) {
        static const float special[] = {0.0f, -0.0f, INFINITY, -INFINITY, NAN, 1e-40f, -1e-40f, 0x1p-149f, 1.0f, -1.0f,
                                        88.72283f, 88.7229f, -103.9f, -87.3f, 0x1.fffffep127f, 0x1p-126f};
        switch (rng() % 4) {
        case 0: return float(int(rng() % 20001) - 10000) / 100.0f;
        case 1: return std::ldexp(1.0f + float(rng() % 65536) / 65536.0f, int(rng() % 278) - 149) * (rng() % 2 ? 1 : -1);
        case 2: return special[rng() % 16];
        default: return float(rng() % 65536) / 32768.0f;
        }
    } else {
        const T edge[] = {0, 1, std::numeric_limits<T>::min(), std::numeric_limits<T>::max(), T(-1), 2};
        return rng() % 8 == 0 ? edge[rng() % 6] : T(rng());
    }
}

const std::vector<int> kScales = {-40, -17, -16, -15, -9, -8, -7, -6, -1, 0, 1, 2, 3, 8, 9, 12, 15, 16, 17, 30, 31, 32, 33};

// Runs one member on one shape and scale factor and compares every sample.
template <class T>
void run_case(const Form& f, const zt::Shape& sh, int n, unsigned seed) {
    std::mt19937 rng(seed);
    zt::Image<T> src = zt::make_image<T>(sh, f.ch);
    for (int y = 0; y < sh.h; ++y)
        for (int i = 0; i < sh.w * f.ch; ++i) src.row(y)[i] = sample<T>(rng);
    // out of place: another placement and padding than the source
    zt::Image<T> dst = f.ip ? zt::make_image<T>(sh, f.ch)
                            : zt::Image<T>(sh.w, sh.h, f.ch, int(sizeof(T)) * int(seed % 3),
                                           sh.flush == zt::Flush::Tail ? zt::Flush::Head : zt::Flush::Tail, sizeof(T) * (seed % 2));
    if (f.ip) std::memcpy(dst.ptr(), src.ptr(), src.bytes().size());
    else dst.fill_random(seed);
    const std::vector<std::uint8_t> before = dst.bytes();
    const ZelStatus st = call<T>(f, src.ptr(), src.step(), dst.ptr(), dst.step(), src.size(), n);
    ZelStatus want = zelStatusOk;
    for (int y = 0; y < sh.h; ++y) {
        int warn = 0;
        for (int i = 0; i < sh.w * f.ch; ++i) {
            const T got = dst.row(y)[i];
            const std::size_t at = std::size_t(y) * dst.step() + i * sizeof(T);
            if (i % f.ch >= f.act) {
                ASSERT_EQ(std::memcmp(&got, before.data() + at, sizeof(T)), 0) << f.m->name << " alpha changed";
                continue;
            }
            double ulps;
            const double e = reference<T>(f.fn, src.row(y)[i], n, warn, ulps);
            const bool ok = std::is_floating_point<T>::value ? close(float(got), e, ulps) : double(got) == e;
            ASSERT_TRUE(ok) << f.m->name << " level " << zelGetIsaLevel() << " w=" << sh.w << " n=" << n << " x="
                            << double(src.row(y)[i]) << " got " << double(got) << " want " << e;
        }
        for (std::size_t b = std::size_t(sh.w) * f.ch * sizeof(T); y + 1 < sh.h && b < std::size_t(dst.step()); ++b)
            ASSERT_EQ(reinterpret_cast<const std::uint8_t*>(dst.row(y))[b], before[std::size_t(y) * dst.step() + b])
                << f.m->name << " padding written";
        if (want == zelStatusOk && warn)
            want = f.fn == "Sqrt" ? zelStatusSqrtNegativeWarning : (warn & 1) ? zelStatusLnNegativeWarning : zelStatusLnZeroWarning;
    }
    ASSERT_EQ(st, want) << f.m->name << " w=" << sh.w << " n=" << n;
}

template <class T>
void check_member(const Form& f) {
    const auto shapes = zt::sweep_shapes({1, 3}, 2);
    unsigned seed = 1;
    zt::for_each_level([&](int) {
        for (std::size_t k = 0; k < shapes.size(); ++k) run_case<T>(f, shapes[k], 0, seed++);
        if (f.sfs)
            for (int n : kScales) {
                run_case<T>(f, shapes[(seed * 7) % shapes.size()], n, seed);
                ++seed;
            }
    });
}

void for_forms(const std::vector<Form>& fs, std::size_t expect, void (*f8)(const Form&), void (*f16u)(const Form&),
               void (*f16s)(const Form&), void (*f32)(const Form&)) {
    ASSERT_EQ(fs.size(), expect);
    for (const Form& f : fs) {
        if (f.type == "8u") f8(f);
        else if (f.type == "16u") f16u(f);
        else if (f.type == "16s") f16s(f);
        else f32(f);
        if (::testing::Test::HasFatalFailure()) return;
    }
}
#define ZT_EACH_TYPE(F) F<Zel8u>, F<Zel16u>, F<Zel16s>, F<Zel32f>

TEST(Unary, AbsAndSqr) { for_forms(forms({"Abs", "Sqr"}), 48, ZT_EACH_TYPE(check_member)); }
TEST(Unary, Sqrt) { for_forms(forms({"Sqrt"}), 25, ZT_EACH_TYPE(check_member)); }
TEST(Unary, LnAndExp) { for_forms(forms({"Ln", "Exp"}), 32, ZT_EACH_TYPE(check_member)); }

// Every sample value of the integer types at the scale factors -17 to 18 and
// 31 to 33 (the last that changes a 16-bit square), at every level.
template <class T>
void every_value(const Form& f) {
    if (f.ip || f.ch != 1 || !f.sfs) return;
    const int count = std::is_floating_point<T>::value ? 0 : 1 << (8 * (sizeof(T) & 3));
    zt::Image<T> s(256, count / 256, 1), d(256, count / 256, 1);
    for (int i = 0; i < count; ++i) s.ptr()[i] = T(i);
    std::vector<double> want(count);
    for (int n = -17; n <= 33; n += n == 18 ? 13 : 1) {
        for (int i = 0; i < count; ++i) {
            int warn;
            double ulps;
            want[i] = reference<T>(f.fn, s.ptr()[i], n, warn, ulps);
        }
        zt::for_each_level([&](int) {
            call<T>(f, s.ptr(), s.step(), d.ptr(), d.step(), s.size(), n);
            for (int i = 0; i < count; ++i)
                ASSERT_EQ(double(d.ptr()[i]), want[i])
                    << f.m->name << " level " << zelGetIsaLevel() << " n=" << n << " x=" << double(s.ptr()[i]);
        });
        if (::testing::Test::HasFatalFailure()) return;
    }
}
TEST(Unary, EveryIntegerSample) { for_forms(forms({"Sqr", "Sqrt", "Ln", "Exp"}), 89, ZT_EACH_TYPE(every_value)); }

// Every positive float through the logarithm and every float of [-110, 110]
// through the exponential against the double functions at the first level,
// and the same bytes at the others (minutes; run with
// --gtest_also_run_disabled_tests).
TEST(Unary, DISABLED_EveryFloatWithinOneUlp) {
    const int n = 1 << 20;
    std::vector<float> x(n), y(n), z(n);
    for (const char* fn : {"Ln", "Exp"}) {
        const bool ln = fn[0] == 'L';
        Form f{};
        for (const Form& g : forms({fn}))
            if (g.type == "32f" && g.ch == 1 && !g.ip) f = g;
        double worst = 0;
        // bit patterns: the positive floats; or both signs up to 110 (0x42dc0000)
        const std::vector<std::pair<std::uint64_t, std::uint64_t>> ranges =
            ln ? std::vector<std::pair<std::uint64_t, std::uint64_t>>{{1, 0x7f800000u}}
               : std::vector<std::pair<std::uint64_t, std::uint64_t>>{{0, 0x42dc0000u}, {0x80000000u, 0xc2dc0000u}};
        for (const auto& range : ranges)
        for (std::uint64_t base = range.first; base < range.second; base += n) {
            for (int i = 0; i < n; ++i) {
                const std::uint32_t b = std::uint32_t(std::min(base + i, range.second - 1));
                std::memcpy(&x[i], &b, 4);
            }
            zelSetIsaLevel(1);
            call<float>(f, x.data(), n * 4, y.data(), n * 4, {n, 1}, 0);
            for (int i = 0; i < n; ++i) {
                const double e = ln ? std::log(double(x[i])) : std::exp(double(x[i]));
                ASSERT_TRUE(close(y[i], e, 1)) << fn << " x=" << x[i] << " got " << y[i] << " want " << e;
                if (std::isfinite(y[i]) && e != 0) worst = std::max(worst, std::fabs(y[i] - e) / ulp_at(e));
            }
            for (int l = 2; l <= zelGetIsaLevelMax(); ++l) {
                zelSetIsaLevel(l);
                call<float>(f, x.data(), n * 4, z.data(), n * 4, {n, 1}, 0);
                ASSERT_EQ(std::memcmp(y.data(), z.data(), sizeof(float) * n), 0) << fn << " level " << l;
            }
        }
        zelSetIsaLevel(0);
        std::printf("%s: worst %.4f ulp\n", fn, worst);
    }
}

// A long row of the square root is split over two threads: the same bytes,
// and the warning of a negative sample in either half.
template <class T>
void split_rows(const Form& f) {
    if (f.ip || f.act < f.ch) return;
    for (int neg : {0, 1, 3000}) {
        const int w = 4200 / f.ch + 1;
        std::vector<std::vector<std::uint8_t>> out;
        for (int threads : {1, 2}) {
            zelSetNumThreads(threads);
            zt::Image<T> s(w, 2, f.ch), d(w, 2, f.ch);
            for (int y = 0; y < 2; ++y)
                for (int i = 0; i < w * f.ch; ++i) s.row(y)[i] = T(i % 200);
            if (neg && std::is_signed<T>::value) s.row(1)[neg] = T(-9);
            const ZelStatus st = call<T>(f, s.ptr(), s.step(), d.ptr(), d.step(), s.size(), 0);
            EXPECT_EQ(st, neg && std::is_signed<T>::value ? zelStatusSqrtNegativeWarning : zelStatusOk) << f.m->name;
            out.push_back(d.bytes());
        }
        EXPECT_EQ(out[0], out[1]) << f.m->name;
    }
    zelSetNumThreads(0);
}
TEST(Unary, SqrtSplitOverTwoThreads) { for_forms(forms({"Sqrt"}), 25, ZT_EACH_TYPE(split_rows)); }

// Null, then size, then step; nothing written on failure.
template <class T>
void check_order(const Form& f) {
    zt::Image<T> s(4, 2, f.ch), d(4, 2, f.ch);
    d.fill_bytes(7);
    const auto before = d.bytes();
    if (!f.ip) {
        EXPECT_EQ(call<T>(f, nullptr, 0, d.ptr(), 0, {0, 1}, 0), zelStatusNullPointer) << f.m->name;
        EXPECT_EQ(call<T>(f, s.ptr(), 0, d.ptr(), d.step(), {4, 2}, 0), zelStatusBadStep) << f.m->name;
    }
    EXPECT_EQ(call<T>(f, s.ptr(), 0, nullptr, 0, {0, 1}, 0), zelStatusNullPointer) << f.m->name;
    EXPECT_EQ(call<T>(f, s.ptr(), 0, d.ptr(), 0, {4, 0}, 0), zelStatusBadSize) << f.m->name;
    EXPECT_EQ(call<T>(f, s.ptr(), s.step(), d.ptr(), 0, {4, 2}, 0), zelStatusBadStep) << f.m->name;
    EXPECT_EQ(d.bytes(), before) << f.m->name;
}
TEST(Unary, CheckOrder) { for_forms(forms({"Abs", "Sqr", "Sqrt", "Ln", "Exp"}), 105, ZT_EACH_TYPE(check_order)); }

// The absolute value and the float root walk the source by its step rounded
// down to whole samples; the destination step is used as it is.
template <class T>
void odd_steps(const Form& f) {
    if (f.ip || (f.fn == "Sqrt" && f.type != "32f")) return;
    const int w = 5, h = 4, row = w * f.ch * int(sizeof(T));
    const int ss = row + int(sizeof(T)) + 1, ds = row + 1;
    std::vector<std::uint8_t> src(std::size_t(ss) * h), dst(std::size_t(ds) * h, 0xee);
    std::mt19937 rng(5);
    for (int y = 0; y < h; ++y)
        for (int i = 0; i < w * f.ch; ++i) {
            const T v = sample<T>(rng);
            std::memcpy(&src[std::size_t(y) * (ss & ~int(sizeof(T) - 1)) + i * sizeof(T)], &v, sizeof v);
        }
    const ZelStatus st = call<T>(f, reinterpret_cast<T*>(src.data()), ss, reinterpret_cast<T*>(dst.data()), ds, {w, h}, 0);
    int warn = 0;
    for (int y = 0; y < h; ++y)
        for (int i = 0; i < w * f.ch; ++i) {
            T x, got;
            std::memcpy(&x, &src[std::size_t(y) * (ss & ~int(sizeof(T) - 1)) + i * sizeof(T)], sizeof x);
            std::memcpy(&got, &dst[std::size_t(y) * ds + i * sizeof(T)], sizeof got);
            double ulps;
            const double e = i % f.ch < f.act ? reference<T>(f.fn, x, 0, warn, ulps) : double(got);
            EXPECT_TRUE(close(float(got), e, 0)) << f.m->name << " row " << y << " sample " << i;
        }
    EXPECT_EQ(st, warn ? zelStatusSqrtNegativeWarning : zelStatusOk) << f.m->name;
}
TEST(Unary, OddSourceStepRoundsDown) { for_forms(forms({"Abs", "Sqrt"}), 41, ZT_EACH_TYPE(odd_steps)); }

} // namespace

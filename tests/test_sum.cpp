// Sums, means and dot products against references written from the rules:
// exact integer totals, and the fixed accumulation orders of Zel32f and Zel64f.
// Also: images and rows of more than 2^31 samples in every statistics family.
#include "family_util.hpp"

#include <gtest/gtest.h>

#include <sys/mman.h>

#include <cmath>
#include <cstring>
#include <random>
#include <type_traits>
#include <vector>

namespace {

using zt::Form;
using zt::Shape;

std::vector<Shape> shapes() {
    auto v = zt::sweep_shapes({1, 3}, 5);
    v.push_back({40, 17, 7, zt::Flush::Head, 1});
    return v;
}

template <class T>
void fill(zt::Image<T>& im, std::uint32_t seed) {
    std::mt19937 rng(seed);
    for (int y = 0; y < im.height(); ++y)
        for (int x = 0; x < im.width() * im.channels(); ++x) {
            if constexpr (std::is_floating_point<T>::value)
                im.row(y)[x] = T((double(rng()) / 4294967296.0 - 0.5) * std::ldexp(1.0, int(rng() % 120) - 60));
            else
                im.row(y)[x] = T(rng());
        }
}

// ---- References ------------------------------------------------------------

template <class T>
std::vector<double> ref_sum_exact(const zt::Image<T>& im, Form f) {
    std::vector<long long> t(4, 0);
    for (int y = 0; y < im.height(); ++y)
        for (int x = 0; x < im.width(); ++x)
            for (int c = 0; c < f.mc; ++c) t[c] += (long long)im.at(x, y, c);
    return {double(t[0]), double(t[1]), double(t[2]), double(t[3])};
}

// Fast Zel32f: sample i of a row into float lane i % P, lanes into the
// channel totals in ascending order at the end of each row.
std::vector<double> ref_sum_fast(const zt::Image<float>& im, Form f) {
    const int P = f.mc == 3 ? 12 : 16;
    std::vector<double> t(4, 0.0);
    for (int y = 0; y < im.height(); ++y) {
        std::vector<float> lane(P, 0.0f);
        for (int i = 0; i < im.width() * f.mc; ++i) lane[i % P] += im.row(y)[i];
        for (int l = 0; l < P; ++l) t[l % f.mc] += double(lane[l]);
    }
    return t;
}

// Accurate Zel32f: per channel, eight accumulators on rows of 16 or more,
// pairs to accumulators 0 and 1 after the last group of eight, pairwise fold
// into even and odd totals, odd last pixel to the even total.
std::vector<double> ref_sum_accurate(const zt::Image<float>& im, Form f) {
    std::vector<double> t(4, 0.0);
    const int w = im.width();
    for (int c = 0; c < f.mc; ++c) {
        double even = 0, odd = 0;
        for (int y = 0; y < im.height(); ++y) {
            auto s = [&](int x) { return double(im.at(x, y, c)); };
            double a[8] = {};
            for (int x = 0; x < w / 2 * 2; ++x) {
                if (w < 16) (x % 2 ? odd : even) += s(x);
                else a[x < w / 8 * 8 ? x % 8 : x % 2] += s(x);
            }
            even += (a[0] + a[2]) + (a[4] + a[6]);
            odd += (a[1] + a[3]) + (a[5] + a[7]);
            if (w % 2) even += s(w - 1);
        }
        t[c] = even + odd;
    }
    return t;
}

template <class T>
std::vector<double> ref_dot(const zt::Image<T>& a, const zt::Image<T>& b, Form f) {
    std::vector<double> t(4, 0.0);
    for (int y = 0; y < a.height(); ++y) {
        const bool f32 = std::is_same<T, float>::value;
        double l[8] = {};
        for (int x = 0; x < a.width(); ++x)
            for (int c = 0; c < f.mc; ++c)
                l[f.mc > 1 ? c : f32 ? x % 4 : x % 8] += double(a.at(x, y, c)) * double(b.at(x, y, c));
        if (f.mc > 1) for (int c = 0; c < f.mc; ++c) t[c] += l[c];
        else if (f32) t[0] += (l[0] + l[2]) + (l[1] + l[3]);
        else t[0] += ((l[0] + l[1]) + (l[2] + l[3])) + ((l[4] + l[5]) + (l[6] + l[7]));
    }
    return t;
}

// ---- Sum and mean ----------------------------------------------------------

template <class T, class Fn, class... H>
void check_sum_member(Fn sum, Fn mean, Form f, H... hint) {
    for (const Shape& s : shapes()) {
        auto im = zt::make_image<T>(s, f.mc);
        fill(im, std::uint32_t(s.w * 31 + s.h));
        std::vector<double> ref;
        if constexpr (std::is_same<T, float>::value)
            ref = ((hint == zelAlgHintAccurate) && ...) ? ref_sum_accurate(im, f) : ref_sum_fast(im, f);
        else
            ref = ref_sum_exact(im, f);
        double out[5] = {-1, -1, -1, -1, -7}, mean_out[5] = {-1, -1, -1, -1, -7};
        ASSERT_EQ(sum(im.ptr(), im.step(), im.size(), out, hint...), zelStatusOk);
        ASSERT_EQ(mean(im.ptr(), im.step(), im.size(), mean_out, hint...), zelStatusOk);
        const double count = double(s.w * s.h);
        for (int c = 0; c < f.ac; ++c) {
            EXPECT_TRUE(zt::same_bits(out[c], ref[c])) << "w " << s.w << " h " << s.h << " c " << c << ": " << out[c]
                                                   << " vs " << ref[c];
            // one channel divides; the others multiply by the reciprocal
            EXPECT_TRUE(zt::same_bits(mean_out[c], f.mc == 1 ? ref[c] / count : ref[c] * (1.0 / count))) << "mean w " << s.w;
        }
        for (int c = f.ac; c < 5; ++c) EXPECT_EQ(out[c], c < 4 ? -1.0 : -7.0) << "wrote past the results";
    }
    // Order of checks: null before size; the mean tests its result first.
    double r[4] = {5, 5, 5, 5};
    T px[4] = {};
    EXPECT_EQ(sum(nullptr, 4, ZeliSize{0, 0}, r, hint...), zelStatusNullPointer);
    EXPECT_EQ(sum(px, 4, ZeliSize{1, 1}, nullptr, hint...), zelStatusNullPointer);
    EXPECT_EQ(sum(px, 4, ZeliSize{0, 1}, r, hint...), zelStatusBadSize);
    EXPECT_EQ(mean(px, 4, ZeliSize{0, 0}, nullptr, hint...), zelStatusNullPointer);
    EXPECT_EQ(mean(px, 4, ZeliSize{1, -1}, r, hint...), zelStatusBadSize);
    EXPECT_EQ(r[0], 5.0);
}

#define SUM_MEMBERS(T, ...)                                                                      \
    check_sum_member<Zel##T>(zeliSum_##T##_C1R, zeliMean_##T##_C1R, zt::kC1 __VA_ARGS__);           \
    check_sum_member<Zel##T>(zeliSum_##T##_C3R, zeliMean_##T##_C3R, zt::kC3 __VA_ARGS__);           \
    check_sum_member<Zel##T>(zeliSum_##T##_C4R, zeliMean_##T##_C4R, zt::kC4 __VA_ARGS__);           \
    check_sum_member<Zel##T>(zeliSum_##T##_AC4R, zeliMean_##T##_AC4R, zt::kAC4 __VA_ARGS__);

// Integer totals are exact; Zel32f totals follow the order of their hint.
TEST(Sum, EveryMember) {
    SUM_MEMBERS(8u) SUM_MEMBERS(16u) SUM_MEMBERS(16s)
    for (int hint : {0, 1, 2, 7}) {
        SCOPED_TRACE(hint);
        SUM_MEMBERS(32f, , hint)
    }
}

// Totals beyond 32 bits, on one row read again and again (steps are not
// checked): extremes of every type, rows that cross many lane blocks.
TEST(Sum, LargeTotalsStayExact) {
    std::vector<Zel8u> b(16000, 255);
    double s[4];
    ASSERT_EQ(zeliSum_8u_C1R(b.data(), 0, ZeliSize{16000, 2000}, s), zelStatusOk); // beyond 2^32
    EXPECT_EQ(s[0], 255.0 * 16000 * 2000);
    ASSERT_EQ(zeliSum_8u_C3R(b.data(), 0, ZeliSize{5000, 1000}, s), zelStatusOk);
    EXPECT_EQ(s[2], 255.0 * 5000 * 1000);
    for (Zel16s v : {Zel16s(-32768), Zel16s(32767)}) {
        std::vector<Zel16s> w(70000 * 4, v);
        ASSERT_EQ(zeliSum_16s_C1R(w.data(), 0, ZeliSize{70000, 3}, s), zelStatusOk);
        EXPECT_EQ(s[0], double(v) * 210000);
        ASSERT_EQ(zeliSum_16s_AC4R(w.data(), 0, ZeliSize{70000, 1000}, s), zelStatusOk);
        EXPECT_EQ(s[2], double(v) * 70000000);
    }
    std::vector<Zel16u> u(70000 * 3, 65535);
    ASSERT_EQ(zeliSum_16u_C3R(u.data(), 0, ZeliSize{70000, 100}, s), zelStatusOk);
    EXPECT_EQ(s[1], 65535.0 * 7000000);
}

// The mean divides by the pixel count in 64 bits: 65536 x 32768 pixels.
TEST(Sum, MeanOfMoreThan2To31Pixels) {
    std::vector<Zel8u> b(65536);
    for (int x = 0; x < 65536; ++x) b[x] = Zel8u(x % 3 * 100);
    double m = 0;
    ASSERT_EQ(zeliMean_8u_C1R(b.data(), 0, ZeliSize{65536, 32768}, &m), zelStatusOk);
    EXPECT_EQ(m, (21846.0 * 0 + 21845.0 * 100 + 21845.0 * 200) / 65536);
    std::vector<Zel32f> f(65536, 2.0f);
    ASSERT_EQ(zeliMean_32f_C1R(f.data(), 0, ZeliSize{65536, 32768}, &m, zelAlgHintNone), zelStatusOk);
    EXPECT_EQ(m, 2.0);
}

// One row of more than 2^31 samples of four (three) channels, zero pages but
// the last pixel, followed by a guard page: every statistics family walks
// the whole row. Nothing is allocated but the last page.
TEST(Statistics, RowsOfMoreThan2To31Samples) {
    if (sizeof(void*) < 8) GTEST_SKIP() << "a row of more than 2 GiB needs a 64-bit address space";
    const int w = 0x20000001; // 4 w bytes > 2^31
    zt::GuardedBuffer big(std::size_t(w) * 4);
    Zel8u* p = big.data();
    madvise(p + 4096, big.size() - 8192, MADV_HUGEPAGE); // zero pages by 2 MB
    for (int c = 0; c < 4; ++c) p[std::size_t(w - 1) * 4 + c] = Zel8u(10 + c);
    double s[4];
    ASSERT_EQ(zeliSum_8u_C4R(p, 1, ZeliSize{w, 1}, s), zelStatusOk);
    EXPECT_EQ(s[3], 13.0);
    ASSERT_EQ(zeliNorm_Inf_8u_C4R(p, 1, ZeliSize{w, 1}, s), zelStatusOk);
    EXPECT_EQ(s[2], 12.0);
    Zel8u v[4];
    int x[4], y[4];
    ASSERT_EQ(zeliMaxIndx_8u_C4R(p, 1, ZeliSize{w, 1}, v, x, y), zelStatusOk);
    EXPECT_EQ(v[1], 11);
    EXPECT_EQ(x[1], w - 1);
    int n[3];
    Zel8u lo[3] = {1, 1, 1}, hi[3] = {255, 255, 255};
    const int w3 = int((std::size_t(w) * 4 - 1) / 3); // a row that ends where the buffer does
    ASSERT_EQ(zeliCountInRange_8u_C3R(p + std::size_t(w) * 4 - std::size_t(w3) * 3, 1, ZeliSize{w3, 1}, n, lo, hi),
              zelStatusOk);
    EXPECT_EQ(n[0] + n[1] + n[2], 4); // the last four bytes
}

// ---- Dot product -----------------------------------------------------------

template <class T>
using DotFn = ZelStatus (*)(const T*, int, const T*, int, ZeliSize, Zel64f*);

template <class T>
void check_dot_member(DotFn<T> dot, Form f) {
    for (const Shape& s : shapes()) {
        auto a = zt::make_image<T>(s, f.mc);
        auto b = zt::make_image<T>(Shape{s.w, s.h, s.extra + 1, zt::Flush::Tail, 0}, f.mc);
        fill(a, std::uint32_t(s.w + 7));
        fill(b, std::uint32_t(s.h * 13 + s.w));
        const auto ref = ref_dot(a, b, f);
        double out[5] = {-1, -1, -1, -1, -7};
        ASSERT_EQ(dot(a.ptr(), a.step(), b.ptr(), b.step(), a.size(), out), zelStatusOk);
        for (int c = 0; c < f.ac; ++c) EXPECT_TRUE(zt::same_bits(out[c], ref[c])) << "w " << s.w << " h " << s.h << " c " << c;
        EXPECT_EQ(out[f.ac], f.ac == 4 ? -7.0 : -1.0);
        // A negative step walks upwards from the last row: the same products,
        // rows in the opposite order, which small integer types sum exactly.
        if (sizeof(T) <= 2) {
            double up[4];
            const int h = s.h - 1;
            ASSERT_EQ(dot(a.row(h), -a.step(), b.row(h), -b.step(), a.size(), up), zelStatusOk);
            for (int c = 0; c < f.ac; ++c) EXPECT_EQ(up[c], out[c]);
        }
    }
    T px[4] = {};
    double r[4] = {3, 3, 3, 3};
    EXPECT_EQ(dot(nullptr, 4, px, 4, ZeliSize{0, 0}, r), zelStatusNullPointer);
    EXPECT_EQ(dot(px, 4, px, 4, ZeliSize{1, 1}, nullptr), zelStatusNullPointer);
    EXPECT_EQ(dot(px, 0, px, 4, ZeliSize{1, 1}, r), zelStatusBadSize);
    EXPECT_EQ(dot(px, 4, px, 4, ZeliSize{1, 0}, r), zelStatusBadSize);
    EXPECT_EQ(r[0], 3.0);
}

#define DOT_MEMBERS(T)                                               \
    check_dot_member<Zel##T>(zeliDotProd_##T##64f_C1R, zt::kC1);    \
    check_dot_member<Zel##T>(zeliDotProd_##T##64f_C3R, zt::kC3);    \
    check_dot_member<Zel##T>(zeliDotProd_##T##64f_C4R, zt::kC4);    \
    check_dot_member<Zel##T>(zeliDotProd_##T##64f_AC4R, zt::kAC4);

TEST(DotProd, AllMembers) { DOT_MEMBERS(8u) DOT_MEMBERS(8s) DOT_MEMBERS(16u) DOT_MEMBERS(16s) DOT_MEMBERS(32u) DOT_MEMBERS(32s) DOT_MEMBERS(32f) }

// ---- Weighted column sums ----------------------------------------------------

template <class T>
void check_col(ZelStatus (*fn)(const T* const*, const T*, int, T*, int)) {
    std::mt19937 rng(5);
    for (int count : {1, 2, 3, 5, 300})
        for (int len : {1, 7, 16, 130, 300}) {
            std::vector<std::vector<T>> src(count, std::vector<T>(len));
            std::vector<T> k(count);
            std::vector<const T*> list(count);
            for (int i = 0; i < count; ++i) {
                k[i] = T(int(rng() % 2001) - 1000) / T(7);
                for (T& v : src[i]) v = T(int(rng() % 20001) - 10000) / T(3);
                list[i] = src[i].data();
            }
            // Aligned destination, then one a byte off: even and odd sources
            // in two sums.
            for (int off : {0, 1}) {
                std::vector<unsigned char> buf((len + 2) * sizeof(T), 0xAB);
                ASSERT_EQ(fn(list.data(), k.data(), count, reinterpret_cast<T*>(buf.data() + off), len), zelStatusOk);
                const bool split = off && count >= 3;
                for (int j = 0; j < len; ++j) {
                    T e = src[0][j] * k[0], o = split ? src[1][j] * k[1] : T(0), v;
                    for (int i = split ? 2 : 1; i < count; ++i) (split && i % 2 ? o : e) = (split && i % 2 ? o : e) + src[i][j] * k[i];
                    if (split) e = e + o;
                    std::memcpy(&v, buf.data() + off + j * sizeof(T), sizeof v);
                    ASSERT_EQ(v, e) << count << "x" << len << " j " << j << " off " << off;
                }
                EXPECT_EQ(buf[off + len * sizeof(T)], 0xAB);
            }
        }
    T v = 1, out = 9;
    const T* list[2] = {&v, nullptr};
    EXPECT_EQ(fn(nullptr, &v, 1, &out, 1), zelStatusNullPointer);
    EXPECT_EQ(fn(list, nullptr, 1, &out, 1), zelStatusNullPointer);
    EXPECT_EQ(fn(list, &v, 2, &out, 0), zelStatusNullPointer);
    EXPECT_EQ(fn(list, &v, 1, &out, 0), zelStatusBadSize);
    EXPECT_EQ(fn(list, &v, 0, &out, 1), zelStatusBadSize);
    EXPECT_EQ(out, T(9));
}

TEST(DotProdCol, BothMembers) {
    check_col<Zel32f>(zeliDotProdCol_32f_L2);
    check_col<Zel64f>(zeliDotProdCol_64f_L2);
}

} // namespace

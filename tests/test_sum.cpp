// Sums, means and dot products against references written from the rules:
// exact integer totals, and the fixed accumulation orders of Zel32f and Zel64f.
#include "guard.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <random>
#include <type_traits>
#include <vector>

namespace {

using zt::Form;
using zt::kAC4;
using zt::kC1;
using zt::kC3;
using zt::kC4;
using zt::Shape;

std::vector<Shape> shapes() {
    auto v = zt::sweep_shapes({1, 3}, 5);
    v.push_back({40, 17, 7, zt::Flush::Head, 1});
    return v;
}

template <class T>
zt::Image<T> make(const Shape& s, int mc) {
    return zt::make_image<T>(s, mc);
}

template <class T>
void fill(zt::Image<T>& im, std::uint32_t seed) {
    std::mt19937 rng(seed);
    for (int y = 0; y < im.height(); ++y)
        for (int x = 0; x < im.width() * im.channels(); ++x) {
            T& v = im.row(y)[x];
            if constexpr (std::is_floating_point<T>::value) {
                const double m = std::ldexp(1.0, int(rng() % 120) - 60);
                v = T((double(rng()) / 4294967296.0 - 0.5) * m);
            } else {
                v = T(rng());
            }
        }
}

bool same_bits(double a, double b) { return std::memcmp(&a, &b, sizeof a) == 0; }

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
            int x = 0;
            if (w >= 16) {
                double a[8] = {};
                for (; x + 8 <= w; x += 8)
                    for (int i = 0; i < 8; ++i) a[i] += s(x + i);
                for (; x + 2 <= w; x += 2) a[0] += s(x), a[1] += s(x + 1);
                even += (a[0] + a[2]) + (a[4] + a[6]);
                odd += (a[1] + a[3]) + (a[5] + a[7]);
            } else {
                for (; x + 2 <= w; x += 2) even += s(x), odd += s(x + 1);
            }
            if (x < w) even += s(x);
        }
        t[c] = even + odd;
    }
    return t;
}

template <class T>
std::vector<double> ref_dot(const zt::Image<T>& a, const zt::Image<T>& b, Form f) {
    std::vector<double> t(4, 0.0);
    const int w = a.width();
    for (int y = 0; y < a.height(); ++y) {
        if (f.mc == 1) {
            if constexpr (std::is_same<T, float>::value) {
                double l[4] = {};
                for (int x = 0; x < w; ++x) l[x % 4] += double(a.at(x, y)) * double(b.at(x, y));
                t[0] += (l[0] + l[2]) + (l[1] + l[3]);
            } else {
                double l[8] = {};
                for (int x = 0; x < w; ++x) l[x % 8] += double(a.at(x, y)) * double(b.at(x, y));
                t[0] += ((l[0] + l[1]) + (l[2] + l[3])) + ((l[4] + l[5]) + (l[6] + l[7]));
            }
        } else {
            for (int c = 0; c < f.mc; ++c) {
                double r = 0;
                for (int x = 0; x < w; ++x) r += double(a.at(x, y, c)) * double(b.at(x, y, c));
                t[c] += r;
            }
        }
    }
    return t;
}

// ---- Sum and mean ----------------------------------------------------------

template <class T>
using SumFn = ZelStatus (*)(const T*, int, ZeliSize, Zel64f*);
using SumFnF = ZelStatus (*)(const Zel32f*, int, ZeliSize, Zel64f*, ZelHintAlgorithm);

template <class T, class Fn, class... H>
void check_sum_member(Fn sum, Fn mean, Form f, H... hint) {
    for (const Shape& s : shapes()) {
        auto im = make<T>(s, f.mc);
        fill(im, std::uint32_t(s.w * 31 + s.h));
        std::vector<double> ref;
        if constexpr (std::is_same<T, float>::value)
            ref = ((hint == zelAlgHintAccurate) && ...) ? ref_sum_accurate(im, f) : ref_sum_fast(im, f);
        else
            ref = ref_sum_exact(im, f);
        const auto before = im.bytes();
        double out[5] = {-1, -1, -1, -1, -7}, mean_out[5] = {-1, -1, -1, -1, -7};
        ASSERT_EQ(sum(im.ptr(), im.step(), im.size(), out, hint...), zelStatusOk);
        ASSERT_EQ(mean(im.ptr(), im.step(), im.size(), mean_out, hint...), zelStatusOk);
        const double count = double(s.w * s.h);
        for (int c = 0; c < f.ac; ++c) {
            EXPECT_TRUE(same_bits(out[c], ref[c])) << "w " << s.w << " h " << s.h << " c " << c << ": " << out[c]
                                                   << " vs " << ref[c];
            const double m = f.mc == 1 ? ref[c] / count : ref[c] * (1.0 / count);
            EXPECT_TRUE(same_bits(mean_out[c], m)) << "mean w " << s.w << " c " << c;
        }
        for (int c = f.ac; c < 5; ++c) EXPECT_EQ(out[c], c < 4 ? -1.0 : -7.0) << "wrote past the results";
        EXPECT_EQ(im.bytes(), before);
    }
    // Order of checks: null before size; the mean tests its result first.
    double r[4] = {5, 5, 5, 5};
    T px[4] = {};
    EXPECT_EQ(sum(nullptr, 4, ZeliSize{0, 0}, r, hint...), zelStatusNullPointer);
    EXPECT_EQ(sum(px, 4, ZeliSize{1, 1}, nullptr, hint...), zelStatusNullPointer);
    EXPECT_EQ(sum(px, 4, ZeliSize{0, 1}, r, hint...), zelStatusBadSize);
    EXPECT_EQ(sum(px, 4, ZeliSize{1, -1}, r, hint...), zelStatusBadSize);
    EXPECT_EQ(mean(px, 4, ZeliSize{0, 0}, nullptr, hint...), zelStatusNullPointer);
    EXPECT_EQ(mean(nullptr, 4, ZeliSize{0, 0}, r, hint...), zelStatusNullPointer);
    EXPECT_EQ(mean(px, 4, ZeliSize{1, 0}, r, hint...), zelStatusBadSize);
    EXPECT_EQ(r[0], 5.0);
    // Steps are not checked: one row needs none.
    EXPECT_EQ(sum(px, 0, ZeliSize{1, 1}, r, hint...), zelStatusOk);
}

#define SUM_MEMBERS(T, ...)                                                                      \
    check_sum_member<Zel##T>(zeliSum_##T##_C1R, zeliMean_##T##_C1R, kC1 __VA_ARGS__);               \
    check_sum_member<Zel##T>(zeliSum_##T##_C3R, zeliMean_##T##_C3R, kC3 __VA_ARGS__);               \
    check_sum_member<Zel##T>(zeliSum_##T##_C4R, zeliMean_##T##_C4R, kC4 __VA_ARGS__);               \
    check_sum_member<Zel##T>(zeliSum_##T##_AC4R, zeliMean_##T##_AC4R, kAC4 __VA_ARGS__);

TEST(Sum, IntegerMembersAreExact) {
    SUM_MEMBERS(8u)
    SUM_MEMBERS(16u)
    SUM_MEMBERS(16s)
}

TEST(Sum, FloatMembersFollowTheirOrder) {
    for (int hint : {0, 1, 2, 7}) {
        SCOPED_TRACE(hint);
        SUM_MEMBERS(32f, , hint)
    }
}

// 4096 x 4200 samples of 255 sum to more than 2^32; one 16u row of 70000
// samples of 65535 crosses several blocks and 2^32 in one row.
TEST(Sum, LargeTotalsStayExact) {
    const int w = 4096, h = 4200;
    std::vector<Zel8u> big(std::size_t(w) * h, 255);
    double s = 0, m = 0;
    ASSERT_EQ(zeliSum_8u_C1R(big.data(), w, ZeliSize{w, h}, &s), zelStatusOk);
    EXPECT_EQ(s, 255.0 * w * h);
    EXPECT_GT(s, 4294967296.0);
    double s4[4];
    ASSERT_EQ(zeliSum_8u_C4R(big.data(), w, ZeliSize{w / 4, h}, s4), zelStatusOk);
    for (double v : s4) EXPECT_EQ(v, 255.0 * w / 4 * h);
    // Long multi-channel rows: many blocks of the 16-bit byte lanes a row.
    double s3[3];
    ASSERT_EQ(zeliSum_8u_C3R(big.data(), 15000, ZeliSize{5000, 1000}, s3), zelStatusOk);
    for (double v : s3) EXPECT_EQ(v, 255.0 * 5000 * 1000);
    ASSERT_EQ(zeliSum_8u_AC4R(big.data(), 16000, ZeliSize{4000, 1000}, s4), zelStatusOk);
    for (int c = 0; c < 3; ++c) EXPECT_EQ(s4[c], 255.0 * 4000 * 1000);
    ASSERT_EQ(zeliMean_8u_C1R(big.data(), w, ZeliSize{w, h}, &m), zelStatusOk);
    EXPECT_EQ(m, 255.0);

    std::vector<Zel16u> wide(70000 * 2, 65535);
    ASSERT_EQ(zeliSum_16u_C1R(wide.data(), 140000, ZeliSize{70000, 2}, &s), zelStatusOk);
    EXPECT_EQ(s, 65535.0 * 140000);
    ASSERT_EQ(zeliSum_16u_C3R(wide.data(), 0, ZeliSize{46666, 1}, s3), zelStatusOk);
    for (double v : s3) EXPECT_EQ(v, 65535.0 * 46666);
}

// Both branches of 16s (whole image in 32-bit lanes below 0x10000 pixels,
// per-row 64-bit folding from there on) at the extremes of the type.
TEST(Sum, Signed16BothBranches) {
    for (int h : {255, 256, 600})
        for (Zel16s v : {Zel16s(-32768), Zel16s(32767)}) {
            std::vector<Zel16s> im(std::size_t(256) * h, v);
            double s = 0;
            ASSERT_EQ(zeliSum_16s_C1R(im.data(), 512, ZeliSize{256, h}, &s), zelStatusOk);
            EXPECT_EQ(s, double(v) * 256 * h);
            double s4[4];
            ASSERT_EQ(zeliSum_16s_C4R(im.data(), 512, ZeliSize{64, h}, s4), zelStatusOk);
            EXPECT_EQ(s4[2], double(v) * 64 * h);
        }
}

// A large value swallows small ones in Zel32f lanes but not in Zel64f.
TEST(Sum, HintsDiffer) {
    std::vector<float> v(64, 1.0f);
    v[0] = 1.0e8f;
    double fast = 0, acc = 0;
    ASSERT_EQ(zeliSum_32f_C1R(v.data(), 256, ZeliSize{64, 1}, &fast, zelAlgHintFast), zelStatusOk);
    ASSERT_EQ(zeliSum_32f_C1R(v.data(), 256, ZeliSize{64, 1}, &acc, zelAlgHintAccurate), zelStatusOk);
    EXPECT_EQ(acc, 1.0e8 + 63);
    EXPECT_NE(fast, acc);
}

// ---- Dot product -----------------------------------------------------------

template <class T>
using DotFn = ZelStatus (*)(const T*, int, const T*, int, ZeliSize, Zel64f*);

template <class T>
void check_dot_member(DotFn<T> dot, Form f) {
    for (const Shape& s : shapes()) {
        auto a = make<T>(s, f.mc);
        auto b = make<T>(Shape{s.w, s.h, s.extra + 1, zt::Flush::Tail, 0}, f.mc);
        fill(a, std::uint32_t(s.w + 7));
        fill(b, std::uint32_t(s.h * 13 + s.w));
        const auto ref = ref_dot(a, b, f);
        double out[5] = {-1, -1, -1, -1, -7};
        ASSERT_EQ(dot(a.ptr(), a.step(), b.ptr(), b.step(), a.size(), out), zelStatusOk);
        for (int c = 0; c < f.ac; ++c)
            EXPECT_TRUE(same_bits(out[c], ref[c])) << "w " << s.w << " h " << s.h << " c " << c;
        if (f.ac == 3) {
            EXPECT_EQ(out[3], -1.0);
        }
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
    EXPECT_EQ(dot(px, 4, nullptr, 4, ZeliSize{1, 1}, r), zelStatusNullPointer);
    EXPECT_EQ(dot(px, 4, px, 4, ZeliSize{1, 1}, nullptr), zelStatusNullPointer);
    EXPECT_EQ(dot(px, 0, px, 4, ZeliSize{1, 1}, r), zelStatusBadSize);
    EXPECT_EQ(dot(px, 4, px, 0, ZeliSize{1, 1}, r), zelStatusBadSize);
    EXPECT_EQ(dot(px, 4, px, 4, ZeliSize{1, 0}, r), zelStatusBadSize);
    EXPECT_EQ(r[0], 3.0);
}

#define DOT_MEMBERS(T)                                    \
    check_dot_member<Zel##T>(zeliDotProd_##T##64f_C1R, kC1); \
    check_dot_member<Zel##T>(zeliDotProd_##T##64f_C3R, kC3); \
    check_dot_member<Zel##T>(zeliDotProd_##T##64f_C4R, kC4); \
    check_dot_member<Zel##T>(zeliDotProd_##T##64f_AC4R, kAC4);

TEST(DotProd, AllMembers) {
    DOT_MEMBERS(8u)
    DOT_MEMBERS(8s)
    DOT_MEMBERS(16u)
    DOT_MEMBERS(16s)
    DOT_MEMBERS(32u)
    DOT_MEMBERS(32s)
    DOT_MEMBERS(32f)
}

// ---- Weighted column sums ----------------------------------------------------

template <class T>
std::vector<T> ref_col(const std::vector<std::vector<T>>& src, const std::vector<T>& k, bool split) {
    const std::size_t n = src[0].size(), count = src.size();
    std::vector<T> out(n);
    for (std::size_t j = 0; j < n; ++j) {
        T e = src[0][j] * k[0], o = 0;
        if (split) {
            o = src[1][j] * k[1];
            for (std::size_t i = 2; i < count; ++i) (i & 1 ? o : e) = (i & 1 ? o : e) + src[i][j] * k[i];
            e = e + o;
        } else {
            for (std::size_t i = 1; i < count; ++i) e = e + src[i][j] * k[i];
        }
        out[j] = e;
    }
    return out;
}

template <class T>
using ColFn = ZelStatus (*)(const T* const*, const T*, int, T*, int);

template <class T>
void check_col(ColFn<T> fn) {
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
            for (int threads : {1, 2}) {
                zelSetNumThreads(threads);
                // Aligned destination, then one a byte off (even and odd sums).
                for (int off : {0, 1}) {
                    std::vector<unsigned char> buf((len + 2) * sizeof(T), 0xAB);
                    T* dst = reinterpret_cast<T*>(buf.data() + (off ? 1 : 0));
                    ASSERT_EQ(fn(list.data(), k.data(), count, dst, len), zelStatusOk);
                    const auto ref = ref_col(src, k, off && count >= 3);
                    for (int j = 0; j < len; ++j) {
                        T v;
                        std::memcpy(&v, buf.data() + (off ? 1 : 0) + j * sizeof(T), sizeof v);
                        ASSERT_EQ(v, ref[j]) << count << "x" << len << " j " << j << " off " << off;
                    }
                    EXPECT_EQ(buf[(off ? 1 : 0) + len * sizeof(T)], 0xAB);
                }
            }
            zelSetNumThreads(0);
        }
    T v = 1, out = 9;
    const T* list[2] = {&v, nullptr};
    EXPECT_EQ(fn(nullptr, &v, 1, &out, 1), zelStatusNullPointer);
    EXPECT_EQ(fn(list, nullptr, 1, &out, 1), zelStatusNullPointer);
    EXPECT_EQ(fn(list, &v, 1, nullptr, 0), zelStatusNullPointer);
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

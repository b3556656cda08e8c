// Border copies against a reference that computes each destination pixel
// from its position: a constant, the clamped or the wrapped source pixel.
#include "guard.hpp"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace {

enum class Kind { Const, Replicate, Wrap };

struct Geometry {
    int sw, sh, dw, dh, top, left;
};
const Geometry kGeometries[] = {
    {1, 1, 1, 1, 0, 0},    {1, 1, 5, 4, 2, 1},   {17, 5, 17, 5, 0, 0},  {16, 3, 40, 10, 0, 0}, {3, 2, 20, 9, 4, 7},
    {33, 4, 50, 9, 3, 17}, {5, 5, 6, 7, 1, 0},   {2, 3, 37, 11, 8, 30}, {64, 2, 65, 3, 1, 1},  {7, 1, 7, 4, 3, 0}};

int wrap(int a, int m) { return ((a % m) + m) % m; }
int clampi(int a, int lo, int hi) { return a < lo ? lo : a > hi ? hi : a; }

// Expected destination bytes: the old bytes with every pixel of the
// destination rectangle recomputed (AC4: alpha kept). `src(x, y, c)` reads
// the source as it was before the call.
template <class T, class Src>
std::vector<std::uint8_t> expected(Kind kind, const Geometry& g, int ch, bool ac4, int dstStep,
                                   const std::vector<std::uint8_t>& old, Src src, const T* value, bool frameOnly) {
    std::vector<std::uint8_t> e = old;
    for (int y = 0; y < g.dh; ++y)
        for (int x = 0; x < g.dw; ++x) {
            const int sx = x - g.left, sy = y - g.top;
            const bool inside = sx >= 0 && sx < g.sw && sy >= 0 && sy < g.sh;
            if (inside && frameOnly) continue;
            for (int c = 0; c < (ac4 ? 3 : ch); ++c) {
                T v;
                if (kind == Kind::Const)
                    v = inside ? src(sx, sy, c) : value[c];
                else if (kind == Kind::Replicate)
                    v = src(clampi(sx, 0, g.sw - 1), clampi(sy, 0, g.sh - 1), c);
                else
                    v = src(wrap(sx, g.sw), wrap(sy, g.sh), c);
                std::memcpy(e.data() + std::size_t(y) * dstStep + (std::size_t(x) * ch + c) * sizeof(T), &v, sizeof(T));
            }
        }
    return e;
}


// Both forms over every geometry, padded rows and both guard placements.
// Copy: fn(src, srcStep, srcSize, dst, dstStep, dstSize, top, left, value).
// In place (`ip`): the destination holds the source at (left, top); only the
// frame may change: fn(srcDst, step, srcSize, dstSize, top, left).
template <class T, class Call>
void check(const std::string& name, Kind kind, int ch, bool ac4, bool ip, Call call) {
    std::uint32_t seed = ip ? 99 : 3;
    const T value[4] = {T(11), T(-7), T(100), T(42)};
    for (const Geometry& g : kGeometries)
        for (int extra : {0, 3})
            for (zt::Flush flush : {zt::Flush::Head, zt::Flush::Tail}) {
                zt::Image<T> src(ip ? 1 : g.sw, ip ? 1 : g.sh, ch, extra * int(sizeof(T)));
                zt::Image<T> dst(g.dw, g.dh, ch, extra * 2 * int(sizeof(T)), flush, extra * sizeof(T));
                src.fill_random(++seed);
                dst.fill_random(++seed);
                const auto old = dst.bytes();
                auto at = [&](int x, int y, int c) {
                    if (!ip) return src.at(x, y, c);
                    T v;
                    std::memcpy(&v, old.data() + std::size_t(y + g.top) * dst.step() + (std::size_t(x + g.left) * ch + c) * sizeof(T), sizeof(T));
                    return v;
                };
                const auto want = expected<T>(kind, g, ch, ac4, dst.step(), old, at, value, ip);
                if constexpr (std::is_invocable<Call, T*, int, ZeliSize, ZeliSize, int, int>::value)
                    ASSERT_EQ(call(&dst.at(g.left, g.top), dst.step(), ZeliSize{g.sw, g.sh}, dst.size(), g.top, g.left), 0) << name;
                else
                    ASSERT_EQ(call(src.ptr(), src.step(), src.size(), dst.ptr(), dst.step(), dst.size(), g.top, g.left, value), 0) << name;
                ASSERT_TRUE(dst.bytes() == want) << name << " geometry " << g.sw << "x" << g.sh << " in " << g.dw << "x" << g.dh
                                                 << " at " << g.left << "," << g.top << " extra " << extra;
            }
}
template <class T, class Call>
void check_copy(const std::string& name, Kind kind, int ch, bool ac4, Call call) { check<T>(name, kind, ch, ac4, false, call); }
template <class T, class Call>
void check_in_place(const std::string& name, Kind kind, int ch, bool ac4, Call call) { check<T>(name, kind, ch, ac4, true, call); }

#define LAYOUTS(M, T) M(T, C1, 1, false) M(T, C3, 3, false) M(T, C4, 4, false) M(T, AC4, 4, true)
#define CONST_V(T, L, CH, AC, ARG)                                                                              \
    check_copy<Zel##T>("zeliCopyConstBorder_" #T "_" #L "R", Kind::Const, CH, AC,                             \
                       [](const Zel##T* s, int ss, ZeliSize sz, Zel##T* d, int ds, ZeliSize dz, int t, int l,  \
                          const Zel##T* v) { return zeliCopyConstBorder_##T##_##L##R(s, ss, sz, d, ds, dz, t, l, ARG); });
#define CONST(T)                                                                                                \
    CONST_V(T, C1, 1, false, *v) CONST_V(T, C3, 3, false, v) CONST_V(T, C4, 4, false, v) CONST_V(T, AC4, 4, true, v)
#define REPL(T, L, CH, AC)                                                                                      \
    check_copy<Zel##T>("zeliCopyReplicateBorder_" #T "_" #L "R", Kind::Replicate, CH, AC,                     \
                       [](const Zel##T* s, int ss, ZeliSize sz, Zel##T* d, int ds, ZeliSize dz, int t, int l,  \
                          const Zel##T*) { return zeliCopyReplicateBorder_##T##_##L##R(s, ss, sz, d, ds, dz, t, l); }); \
    check_in_place<Zel##T>("zeliCopyReplicateBorder_" #T "_" #L "IR", Kind::Replicate, CH, AC,                \
                           zeliCopyReplicateBorder_##T##_##L##IR);
#define ALL_TYPES(M) LAYOUTS(M, 8u) LAYOUTS(M, 16s) LAYOUTS(M, 16u) LAYOUTS(M, 32f) LAYOUTS(M, 32s)

TEST(Border, Constant) { CONST(8u) CONST(16s) CONST(16u) CONST(32f) CONST(32s) }
TEST(Border, Replicate) { ALL_TYPES(REPL) }

#define WRAP(T)                                                                                                 \
    check_copy<Zel##T>("zeliCopyWrapBorder_" #T "_C1R", Kind::Wrap, 1, false,                                 \
                       [](const Zel##T* s, int ss, ZeliSize sz, Zel##T* d, int ds, ZeliSize dz, int t, int l,  \
                          const Zel##T*) { return zeliCopyWrapBorder_##T##_C1R(s, ss, sz, d, ds, dz, t, l); });    \
    check_in_place<Zel##T>("zeliCopyWrapBorder_" #T "_C1IR", Kind::Wrap, 1, false, zeliCopyWrapBorder_##T##_C1IR);
TEST(Border, Wrap) { WRAP(32f) WRAP(32s) }

TEST(Border, OneToOneCallOnOneBufferGoesInPlace) {
    for (int top : {0, 2})
        for (int left : {0, 3}) {
            zt::Image<Zel8u> a(12, 7, 1, 0, zt::Flush::Head, 0), b(12, 7, 1, 0, zt::Flush::Head, 0);
            a.fill_random(1);
            b.fill_random(1);
            Zel8u* pa = &a.at(left, top);
            ASSERT_EQ(zeliCopyReplicateBorder_8u_C1R(pa, 1, {5, 3}, pa, a.step(), a.size(), top, left), 0);
            ASSERT_EQ(zeliCopyReplicateBorder_8u_C1IR(&b.at(left, top), b.step(), {5, 3}, b.size(), top, left), 0);
            EXPECT_TRUE(a.bytes() == b.bytes());
        }
}

TEST(Border, Ac4ConstantReadsThreeValues) {
    zt::Image<Zel32f> value(3, 1, 1); // a fourth entry would be on the guard page
    value.at(0, 0) = 1.0f;
    value.at(1, 0) = 2.0f;
    value.at(2, 0) = 3.0f;
    zt::Image<Zel32f> src(2, 2, 4), dst(4, 3, 4);
    src.fill_random(1);
    dst.fill_random(2);
    const Zel32f alpha = dst.at(0, 0, 3);
    ASSERT_EQ(zeliCopyConstBorder_32f_AC4R(src.ptr(), src.step(), src.size(), dst.ptr(), dst.step(), dst.size(), 1, 1,
                                           value.ptr()), 0);
    EXPECT_EQ(dst.at(0, 0, 2), 3.0f);
    EXPECT_EQ(std::memcmp(&dst.at(0, 0, 3), &alpha, 4), 0);
}

TEST(Border, OrderOfChecks) {
    Zel8u s[16] = {}, d[64] = {};
    const Zel8u v[3] = {};
    // null first, then steps, then sizes
    EXPECT_EQ(zeliCopyConstBorder_8u_C1R(nullptr, 0, {0, 0}, d, 0, {0, 0}, -1, -1, 0), zelStatusNullPointer);
    EXPECT_EQ(zeliCopyConstBorder_8u_C3R(s, 4, {1, 1}, d, 8, {2, 2}, 0, 0, nullptr), zelStatusNullPointer);
    EXPECT_EQ(zeliCopyConstBorder_8u_AC4R(s, 4, {1, 1}, d, 8, {2, 2}, 0, 0, nullptr), zelStatusNullPointer);
    EXPECT_EQ(zeliCopyReplicateBorder_8u_C1R(s, 0, {0, 0}, d, 4, {0, 0}, 0, 0), zelStatusBadStep);
    EXPECT_EQ(zeliCopyReplicateBorder_8u_C1IR(d, 0, {0, 0}, {0, 0}, 0, 0), zelStatusBadStep);
    EXPECT_EQ(zeliCopyWrapBorder_32s_C1IR(nullptr, 0, {0, 0}, {0, 0}, 0, 0), zelStatusNullPointer);
    auto size = [&](ZeliSize a, ZeliSize b, int t, int l) { return zeliCopyConstBorder_8u_C3R(s, 4, a, d, 8, b, t, l, v); };
    EXPECT_EQ(size({0, 1}, {2, 2}, 0, 0), zelStatusBadSize);
    EXPECT_EQ(size({1, 1}, {2, 0}, 0, 0), zelStatusBadSize);
    EXPECT_EQ(size({1, 1}, {2, 2}, -1, 0), zelStatusBadSize);
    EXPECT_EQ(size({1, 1}, {2, 2}, 0, -1), zelStatusBadSize);
    EXPECT_EQ(size({2, 1}, {2, 2}, 0, 1), zelStatusBadSize);
    EXPECT_EQ(size({1, 2}, {2, 2}, 1, 0), zelStatusBadSize);
    EXPECT_EQ(size({1, 1}, {2, 2}, 1, 1), zelStatusOk);
    // A step smaller than the row is not detected.
    EXPECT_EQ(zeliCopyReplicateBorder_8u_C1R(s, 1, {2, 2}, d, 1, {2, 2}, 0, 0), zelStatusOk);
}

} // namespace

// Every border copy of the declaration list against a reference that computes
// each destination pixel from its position: a constant, the clamped or the
// wrapped source pixel; in place only the frame; AC4 alpha kept.
#include "family_util.hpp"
#include "named_args.hpp"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace {

// The arguments of a border copy by parameter name; each member reads the
// fields its parameters name.
struct BorderArgs {
    zt::AnyPtr pSrc, pDst, pSrcDst;
    int srcStep = 0, dstStep = 0, srcDstStep = 0, topBorderHeight = 0, leftBorderWidth = 0;
    ZeliSize srcRoiSize{}, dstRoiSize{};
    zt::AnyParam value;
};
struct Member {
    const char* name;
    ZelStatus (*call)(BorderArgs&);
};
const Member kMembers[] = {
#define ZEL_FN(ret, name, params, args, impl)                   \
    {#name, [](BorderArgs& a) -> ZelStatus {                    \
         struct Fields : BorderArgs {                           \
             ZelStatus call() { return name args; }             \
         } f{a};                                                \
         return f.call();                                       \
     }},
#include "zelip8/fn_border.h"
#undef ZEL_FN
};

struct Geometry {
    int sw, sh, dw, dh, top, left;
};
const Geometry kGeometries[] = {
    {1, 1, 1, 1, 0, 0},    {1, 1, 5, 4, 2, 1},   {17, 5, 17, 5, 0, 0},  {16, 3, 40, 10, 0, 0}, {3, 2, 20, 9, 4, 7},
    {33, 4, 50, 9, 3, 17}, {5, 5, 6, 7, 1, 0},   {2, 3, 37, 11, 8, 30}, {64, 2, 65, 3, 1, 1},  {7, 1, 7, 4, 3, 0}};

int wrap(int a, int m) { return ((a % m) + m) % m; }
int clampi(int a, int lo, int hi) { return a < lo ? lo : a > hi ? hi : a; }

// Every member over every geometry, padded rows and both guard placements.
// Images are bytes: a pixel is P bytes, a sample S. In place, the
// destination holds the source at (left, top) and only the frame may change.
TEST(Border, EveryMemberAgainstItsRule) {
    std::uint32_t seed = 3;
    int seen = 0;
    for (const Member& m : kMembers) {
        const zt::NameParts n = zt::name_parts(m.name);
        const int S = n.sampleBytes, P = n.channels * S;
        std::uint8_t value[16];
        ASSERT_TRUE(zt::with_type(n.type, [&](auto t) {
            using T = decltype(t);
            const T v[4] = {T(11), T(-7), T(100), T(42)};
            std::memcpy(value, v, sizeof v);
        }));
        ++seen;
        for (const Geometry& g : kGeometries)
            for (int extra : {0, 3})
                for (zt::Flush flush : {zt::Flush::Head, zt::Flush::Tail}) {
                    zt::Image<std::uint8_t> src(n.inPlace ? 1 : g.sw, n.inPlace ? 1 : g.sh, P, extra * S);
                    zt::Image<std::uint8_t> dst(g.dw, g.dh, P, extra * 2 * S, flush, std::size_t(extra) * S);
                    src.fill_random(++seed);
                    dst.fill_random(++seed);
                    const auto old = dst.bytes();
                    // source pixel (x, y) as it was before the call
                    auto at = [&](int x, int y) {
                        return n.inPlace ? old.data() + std::size_t(y + g.top) * dst.step() + std::size_t(x + g.left) * P
                                         : &src.at(x, y);
                    };
                    std::vector<std::uint8_t> want = old;
                    for (int y = 0; y < g.dh; ++y)
                        for (int x = 0; x < g.dw; ++x) {
                            const int sx = x - g.left, sy = y - g.top;
                            const bool inside = sx >= 0 && sx < g.sw && sy >= 0 && sy < g.sh;
                            if (inside && n.inPlace) continue;
                            const std::uint8_t* from =
                                n.family == "CopyConstBorder" ? (inside ? at(sx, sy) : value)
                                : n.family == "CopyReplicateBorder" ? at(clampi(sx, 0, g.sw - 1), clampi(sy, 0, g.sh - 1))
                                                                    : at(wrap(sx, g.sw), wrap(sy, g.sh));
                            std::memcpy(want.data() + std::size_t(y) * dst.step() + std::size_t(x) * P, from, n.active * S);
                        }
                    BorderArgs a;
                    a.pSrc.p = src.ptr(), a.srcStep = src.step(), a.pDst.p = dst.ptr(), a.dstStep = dst.step();
                    a.pSrcDst.p = &dst.at(g.left, g.top), a.srcDstStep = dst.step();
                    a.srcRoiSize = {g.sw, g.sh}, a.dstRoiSize = dst.size(), a.topBorderHeight = g.top, a.leftBorderWidth = g.left;
                    a.value.set(reinterpret_cast<const std::uint32_t*>(value)); // 16 bytes: four samples of any type
                    ASSERT_EQ(m.call(a), zelStatusOk) << m.name;
                    ASSERT_TRUE(dst.bytes() == want) << m.name << " geometry " << g.sw << "x" << g.sh << " in " << g.dw << "x"
                                                     << g.dh << " at " << g.left << "," << g.top << " extra " << extra;
                }
    }
    EXPECT_EQ(seen, 64);
}

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

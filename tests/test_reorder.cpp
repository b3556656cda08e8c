// Every channel swap, transpose and mirror member, taken from its declaration
// list, against its rule written here on the bytes of whole samples: the sweep
// shapes, in place and not, AC4 alpha kept; the streamed paths; the order of
// status checks.
#include "named_args.hpp"

#include <gtest/gtest.h>

#include <functional>
#include <random>

namespace {

const std::vector<zt::Named> kMembers = {
#define ZEL_FN(ret, name, params, args, impl) ZT_NAMED(name, args)
#include "zelip8/fn_reorder.h"
#undef ZEL_FN
};

using Img = zt::Image<std::uint8_t>;

// The pixels of an image before a call, row after row.
struct Pixels {
    std::vector<std::uint8_t> v;
    int w, bytes;
    explicit Pixels(const Img& m) : w(m.width()), bytes(m.channels()) {
        for (int y = 0; y < m.height(); ++y) v.insert(v.end(), m.row(y), m.row(y) + w * bytes);
    }
    const std::uint8_t* at(int x, int y) const { return v.data() + (std::ptrdiff_t(y) * w + x) * bytes; }
};

// Byte b of destination pixel (x, y), from the source and the destination before the call.
using Want = std::function<std::uint8_t(int x, int y, int b, const Pixels& src, const Pixels& old)>;

// Runs m with a source of shape sh and a destination of dw x dh pixels placed
// alike (extra step and offset in samples), and checks every destination byte.
void check(const zt::Named& m, const zt::Shape& sh, int dw, int dh, zt::Args a, std::mt19937& rng, const Want& want) {
    const zt::NameParts n = zt::name_parts(m.name);
    const int S = n.sampleBytes, P = n.channels * S;
    Img s(sh.w, sh.h, n.srcChannels * S, sh.extra * S, sh.flush, std::size_t(sh.offset) * S);
    Img d(dw, dh, P, 2 * sh.extra * S, sh.flush, std::size_t(sh.offset) * S);
    s.fill_random(rng()), d.fill_random(rng());
    const Pixels src(s), old(n.inPlace ? s : d);
    a.pSrc.p = a.pSrcDst.p = s.ptr(), a.srcStep = a.srcDstStep = s.step(), a.pDst.p = d.ptr(), a.dstStep = d.step();
    a.roiSize = {sh.w, sh.h};
    ASSERT_EQ(m.call(a), zelStatusOk) << m.name;
    const Img& out = n.inPlace ? s : d;
    for (int y = 0; y < dh; ++y)
        for (int x = 0; x < dw * P; ++x)
            ASSERT_EQ(out.row(y)[x], want(x / P, y, x % P, src, old)) << m.name << " " << sh.w << "x" << sh.h << " at " << x / P << "," << y;
}

template <class F>
void for_family(const char* family, F&& f) {
    for (const zt::Named& m : kMembers)
        if (zt::name_parts(m.name).family == family) f(m, zt::name_parts(m.name));
}

// ---------------------------------------------------------------------------
// Swap channels
// ---------------------------------------------------------------------------
// Orders for each form: three entries up to 2 (up to 3 from four channels),
// four entries up to 3 in place; three to four with one or several entries above 2.
std::vector<std::vector<int>> orders(const zt::NameParts& n) {
    if (n.srcChannels == 3 && n.channels == 4) return {{2, 1, 0, 3}, {2, 1, 0, 4}, {1, 1000, 0, 2}, {0, 1, 2, 0}, {3, 4, 0, 1}, {5, 3, 2, 1}};
    if (n.active == 4) return {{3, 2, 1, 0}, {0, 1, 2, 3}, {1, 1, 3, 0}};
    if (n.srcChannels == 4 && n.channels == 3) return {{3, 1, 0}, {0, 2, 3}};
    return {{2, 1, 0}, {0, 1, 2}, {1, 2, 0}, {0, 0, 2}, {2, 2, 2}};
}

TEST(Reorder, SwapChannels) {
    std::mt19937 rng(7);
    const std::uint8_t val[4] = {9, 8, 7, 6};
    for_family("SwapChannels", [&](const zt::Named& m, const zt::NameParts& n) {
        const int S = n.sampleBytes, SC = n.srcChannels;
        for (const zt::Shape& sh : zt::sweep_shapes({1, 3}, 3))
            for (const std::vector<int>& o : orders(n)) {
                zt::Args a;
                a.dstOrder = o.data(), a.val.set(val);
                int above = 0;
                for (int e : o) above += e > 2;
                check(m, sh, sh.w, sh.h, a, rng, [&](int x, int y, int b, const Pixels& src, const Pixels& old) {
                    const int c = b / S;
                    if (c >= n.active) return old.at(x, y)[b]; // alpha
                    const int from = SC * x + o[c];            // sample of the source row
                    if (SC == 3 && n.channels == 4 && (above == 1 ? o[c] > 3 : from >= SC * sh.w)) return old.at(x, y)[b];
                    if (SC == 3 && n.channels == 4 && above == 1 && o[c] == 3) return val[b % S];
                    return src.at(0, y)[from * S + b % S];
                });
            }
    });
}

TEST(Reorder, SwapStatus) {
    Zel8u px[3] = {1, 2, 3}, out[4] = {0, 0, 0, 7};
    const int o4[4] = {2, 1, 0, 3}, bad[3] = {0, 3, 1}, neg[4] = {0, -1, 1, 2}, four[3] = {0, 1, 4};
    // null, size, step, channel order
    EXPECT_EQ(zeliSwapChannels_8u_C3R(nullptr, 0, out, 0, {0, 1}, bad), zelStatusNullPointer);
    EXPECT_EQ(zeliSwapChannels_8u_C3R(px, 0, out, 3, {0, 1}, bad), zelStatusBadSize);
    EXPECT_EQ(zeliSwapChannels_8u_C3R(px, 0, out, 3, {1, 1}, bad), zelStatusBadStep);
    EXPECT_EQ(zeliSwapChannels_8u_C3R(px, 3, out, 3, {1, 1}, bad), zelStatusBadChannelOrder);
    EXPECT_EQ(zeliSwapChannels_8u_C3R(px, 3, out, 3, {1, 1}, nullptr), zelStatusNullPointer);
    EXPECT_EQ(zeliSwapChannels_8u_C3C4R(px, 3, out, 4, {1, 1}, neg, 0), zelStatusBadChannelOrder);
    EXPECT_EQ(zeliSwapChannels_8u_C4C3R(px, 4, out, 3, {1, 1}, four), zelStatusBadChannelOrder);
    EXPECT_EQ(zeliSwapChannels_8u_AC4R(px, 4, out, 4, {1, 1}, o4 + 1), zelStatusBadChannelOrder);
}

// ---------------------------------------------------------------------------
// Transpose
// ---------------------------------------------------------------------------
TEST(Reorder, Transpose) {
    std::mt19937 rng(11);
    const std::pair<int, int> sizes[] = {{1, 1},   {2, 2},   {1, 17},  {17, 1},  {3, 2},     {15, 15},  {16, 16},  {17, 17},  {33, 33},
                                         {17, 33}, {64, 64}, {65, 65}, {100, 100}, {65, 130}, {130, 67}, {200, 31}, {33, 1030}};
    for_family("Transpose", [&](const zt::Named& m, const zt::NameParts& n) {
        int k = 0;
        for (auto [w, h] : sizes)
            if (!n.inPlace || w == h) {
                const zt::Shape sh{w, h, k % 3, k % 2 ? zt::Flush::Head : zt::Flush::Tail, k % 2};
                ++k;
                check(m, sh, h, w, {}, rng, [](int x, int y, int b, const Pixels& src, const Pixels&) { return src.at(y, x)[b]; });
            }
    });
    // Equal pointers and steps make the R form work in place.
    zt::Image<Zel16u> a(33, 33, 3);
    a.fill_random(3);
    const std::vector<std::uint8_t> before = a.bytes();
    ASSERT_EQ(zeliTranspose_16u_C3R(a.ptr(), a.step(), a.ptr(), a.step(), a.size()), zelStatusOk);
    ASSERT_EQ(zeliTranspose_16u_C3IR(a.ptr(), a.step(), a.size()), zelStatusOk);
    EXPECT_EQ(a.bytes(), before);
}

TEST(Reorder, TransposeStatus) {
    zt::Image<Zel32s> r(39, 39, 4);
    EXPECT_EQ(zeliTranspose_32s_C1IR(r.ptr(), r.step(), {3, 2}), zelStatusBadSize);
    EXPECT_EQ(zeliTranspose_32s_C1R(r.ptr(), r.step(), r.ptr(), r.step(), {3, 2}), zelStatusBadSize);
    EXPECT_EQ(zeliTranspose_32s_C1R(nullptr, 1, r.ptr(), 1, {0, 0}), zelStatusNullPointer);
    EXPECT_EQ(zeliTranspose_32s_C1R(r.ptr(), 1, r.ptr() + 1, 1, {0, 2}), zelStatusBadSize);
    // In place, rows that overlap are refused, in either direction.
    EXPECT_EQ(zeliTranspose_32s_C4IR(r.ptr(), 4, {39, 39}), zelStatusBadStep);
    EXPECT_EQ(zeliTranspose_32s_C4R(r.ptr(), 16 * 39 - 4, r.ptr(), 16 * 39 - 4, {39, 39}), zelStatusBadStep);
    EXPECT_EQ(zeliTranspose_32s_C4IR(r.row(38), -16 * 39 + 16, {39, 39}), zelStatusBadStep);
    EXPECT_EQ(zeliTranspose_32s_C4IR(r.row(38), -r.step(), {39, 39}), zelStatusOk);
}

// ---------------------------------------------------------------------------
// Mirror
// ---------------------------------------------------------------------------
void check_mirror(const zt::Named& m, const zt::Shape& sh, int flip, std::mt19937& rng) {
    const zt::NameParts n = zt::name_parts(m.name);
    zt::Args a;
    a.flip = flip;
    check(m, sh, sh.w, sh.h, a, rng, [&](int x, int y, int b, const Pixels& src, const Pixels& old) {
        if (b >= n.active * n.sampleBytes) return old.at(x, y)[b]; // alpha stays
        return src.at(flip == 0 ? x : sh.w - 1 - x, flip == 1 ? y : sh.h - 1 - y)[b];
    });
}

TEST(Reorder, Mirror) {
    std::mt19937 rng(13);
    for_family("Mirror", [&](const zt::Named& m, const zt::NameParts&) {
        for (const zt::Shape& sh : zt::sweep_shapes({2, 3, 6}, 3))
            for (int flip = 0; flip < 3; ++flip)
                if (flip == 0 || sh.w > 1) check_mirror(m, sh, flip, rng);
    });
}

// Images larger than the cache are streamed: the large aligned 8u transpose
// and the C4 mirrors.
TEST(Reorder, Streamed) {
    std::mt19937 rng(9);
    zelSetMaxCacheSizeB(4096);
    for_family("Transpose", [&](const zt::Named& m, const zt::NameParts&) {
        if (m.name == "zeliTranspose_8u_C1R")
            check(m, {1088, 64, 0, zt::Flush::Tail, 0}, 64, 1088, {}, rng,
                  [](int x, int y, int b, const Pixels& src, const Pixels&) { return src.at(y, x)[b]; });
    });
    zelSetMaxCacheSizeB(0x100000);
    for_family("Mirror", [&](const zt::Named& m, const zt::NameParts& n) {
        if (n.type == "8u" && n.active == 4 && !n.inPlace)
            for (int flip = 0; flip < 3; ++flip) check_mirror(m, {400, 400, 0, zt::Flush::Head, 1}, flip, rng);
    });
    zelSetMaxCacheSizeB(0);
}

TEST(Reorder, MirrorStatus) {
    zt::Image<Zel8u> a(4, 4, 1), b(4, 4, 1);
    EXPECT_EQ(zeliMirror_8u_C1R(a.ptr(), 4, b.ptr(), 4, {4, 1}, 0), zelStatusBadSize); // one row
    EXPECT_EQ(zeliMirror_8u_C1R(a.ptr(), 4, b.ptr(), 4, {4, 1}, 1), zelStatusOk);
    EXPECT_EQ(zeliMirror_8u_C1R(a.ptr(), 4, b.ptr(), 4, {1, 4}, 1), zelStatusBadSize); // one column
    EXPECT_EQ(zeliMirror_8u_C1R(a.ptr(), 4, b.ptr(), 4, {1, 4}, 2), zelStatusBadSize);
    EXPECT_EQ(zeliMirror_8u_C1R(a.ptr(), 4, b.ptr(), 4, {4, 1}, 3), zelStatusBadAxis); // axis before the small sizes
    EXPECT_EQ(zeliMirror_8u_C1R(a.ptr(), 4, b.ptr(), 4, {0, 4}, 3), zelStatusBadSize);
    EXPECT_EQ(zeliMirror_8u_C1R(nullptr, 4, b.ptr(), 4, {0, 4}, 3), zelStatusNullPointer);
    EXPECT_EQ(zeliMirror_8u_C1IR(a.ptr(), 4, {4, 1}, 0), zelStatusBadSize);
    // No step check: a negative step walks upwards.
    a.fill_random(1);
    EXPECT_EQ(zeliMirror_8u_C1R(a.row(3), -4, b.ptr(), 4, {4, 4}, 0), zelStatusOk);
    EXPECT_EQ(a.bytes(), b.bytes());
}

} // namespace

// Channel swap, transpose and mirror against references written from their
// rules, on guarded images at many sizes, steps and alignments.
#include "guard.hpp"

#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <random>
#include <tuple>

namespace {

template <class T>
struct Fns;
#define ZT_FNS(T)                                                                                                    \
    template <>                                                                                                       \
    struct Fns<Zel##T> {                                                                                              \
        static constexpr auto swapC3 = zeliSwapChannels_##T##_C3R, swapAC4 = zeliSwapChannels_##T##_AC4R,             \
                              swapC4C3 = zeliSwapChannels_##T##_C4C3R;                                                \
        static constexpr auto swapC3C4 = zeliSwapChannels_##T##_C3C4R;                                               \
        static constexpr decltype(zeliTranspose_##T##_C1R) * tr[5] = {nullptr, zeliTranspose_##T##_C1R, nullptr,     \
                                                                         zeliTranspose_##T##_C3R, zeliTranspose_##T##_C4R}; \
        static constexpr decltype(zeliTranspose_##T##_C1IR) * tri[5] = {nullptr, zeliTranspose_##T##_C1IR, nullptr,  \
                                                                            zeliTranspose_##T##_C3IR, zeliTranspose_##T##_C4IR}; \
        /* Mirror by layout index: C1, C3, C4, AC4. */                                                              \
        static constexpr decltype(zeliMirror_##T##_C1R) * mir[4] = {zeliMirror_##T##_C1R, zeliMirror_##T##_C3R,       \
                                                                       zeliMirror_##T##_C4R, zeliMirror_##T##_AC4R};  \
        static constexpr decltype(zeliMirror_##T##_C1IR) * miri[4] = {zeliMirror_##T##_C1IR, zeliMirror_##T##_C3IR,   \
                                                                         zeliMirror_##T##_C4IR, zeliMirror_##T##_AC4IR}; \
    };
ZT_FNS(8u)
ZT_FNS(16u)
ZT_FNS(16s)
ZT_FNS(32s)
ZT_FNS(32f)
#undef ZT_FNS

template <class T>
class Reorder : public ::testing::Test {};
using Types = ::testing::Types<Zel8u, Zel16u, Zel16s, Zel32s, Zel32f>;
TYPED_TEST_SUITE(Reorder, Types);

// Sizes and placements: step padding and an unaligned start (Head with an offset).
struct Place {
    int extra;
    zt::Flush flush;
    std::size_t offset;
};
template <class T>
std::vector<Place> places() {
    return {{0, zt::Flush::Tail, 0}, {3 * int(sizeof(T)), zt::Flush::Head, sizeof(T)}};
}

template <class T>
bool same(const T& a, const T& b) { return std::memcmp(&a, &b, sizeof(T)) == 0; }

// ---------------------------------------------------------------------------
// Swap channels
// ---------------------------------------------------------------------------
TYPED_TEST(Reorder, SwapChannels) {
    using T = TypeParam;
    using F = Fns<T>;
    std::mt19937 rng(7);
    const int orders[][3] = {{2, 1, 0}, {0, 1, 2}, {1, 2, 0}, {0, 0, 2}, {2, 2, 2}};
    for (int w : zt::sweep_widths())
        for (const Place& pl : places<T>())
            for (const auto& o : orders) {
                const int h = 3;
                zt::Image<T> s3(w, h, 3, pl.extra, pl.flush, pl.offset), s4(w, h, 4, pl.extra, pl.flush, pl.offset);
                zt::Image<T> d3(w, h, 3, pl.extra, pl.flush, pl.offset), d4(w, h, 4, pl.extra, pl.flush, pl.offset);
                s3.fill_random(rng()), s4.fill_random(rng()), d3.fill_random(rng()), d4.fill_random(rng());
                const std::vector<std::uint8_t> alpha = d4.bytes();
                ASSERT_EQ(F::swapC3(s3.ptr(), s3.step(), d3.ptr(), d3.step(), s3.size(), o), zelStatusOk);
                ASSERT_EQ(F::swapAC4(s4.ptr(), s4.step(), d4.ptr(), d4.step(), s4.size(), o), zelStatusOk);
                for (int y = 0; y < h; ++y)
                    for (int x = 0; x < w; ++x)
                        for (int c = 0; c < 3; ++c) {
                            ASSERT_TRUE(same(d3.at(x, y, c), s3.at(x, y, o[c]))) << w << " " << x << "," << y << "," << c;
                            ASSERT_TRUE(same(d4.at(x, y, c), s4.at(x, y, o[c])));
                        }
                // Alpha bytes unchanged.
                for (int y = 0; y < h; ++y)
                    for (int x = 0; x < w; ++x)
                        ASSERT_EQ(std::memcmp(&d4.at(x, y, 3), alpha.data() + (reinterpret_cast<std::uint8_t*>(&d4.at(x, y, 3)) -
                                                                              reinterpret_cast<std::uint8_t*>(d4.ptr())),
                                              sizeof(T)),
                                  0);
                // Four to three, entries up to 3.
                const int o43[3] = {3, o[1], o[0]};
                ASSERT_EQ(F::swapC4C3(s4.ptr(), s4.step(), d3.ptr(), d3.step(), s4.size(), o43), zelStatusOk);
                for (int y = 0; y < h; ++y)
                    for (int x = 0; x < w; ++x)
                        for (int c = 0; c < 3; ++c) ASSERT_TRUE(same(d3.at(x, y, c), s4.at(x, y, o43[c])));
            }
}

TYPED_TEST(Reorder, SwapThreeToFour) {
    using T = TypeParam;
    using F = Fns<T>;
    const int w = 17, h = 2;
    zt::Image<T> s(w, h, 3, 0, zt::Flush::Tail), d(w, h, 4, 8 * sizeof(T), zt::Flush::Head, sizeof(T));
    s.fill_random(1);
    const T val = T(9);
    // One entry 3: filled with val; one larger entry: kept.
    for (int big : {3, 4, 1000}) {
        const int o[4] = {2, 1, 0, big};
        d.fill_random(2);
        const auto before = d.bytes();
        zt::Image<T> keep(w, h, 4, 8 * sizeof(T), zt::Flush::Tail);
        std::memcpy(keep.ptr(), before.data(), before.size());
        ASSERT_EQ(F::swapC3C4(s.ptr(), s.step(), d.ptr(), d.step(), s.size(), o, val), zelStatusOk);
        for (int y = 0; y < h; ++y)
            for (int x = 0; x < w; ++x) {
                for (int c = 0; c < 3; ++c) ASSERT_TRUE(same(d.at(x, y, c), s.at(x, y, o[c])));
                ASSERT_TRUE(same(d.at(x, y, 3), big == 3 ? val : keep.at(x, y, 3)));
            }
    }
    // No entry above 2, or two of them: offsets from the pixel's first sample,
    // within the source row; beyond it the destination sample stays.
    for (const auto& o : std::vector<std::array<int, 4>>{{0, 1, 2, 0}, {3, 4, 0, 1}, {5, 3, 2, 1}}) {
        d.fill_random(3);
        zt::Image<T> keep(w, h, 4, 8 * sizeof(T), zt::Flush::Tail);
        const auto before = d.bytes();
        std::memcpy(keep.ptr(), before.data(), before.size());
        ASSERT_EQ(F::swapC3C4(s.ptr(), s.step(), d.ptr(), d.step(), s.size(), o.data(), val), zelStatusOk);
        for (int y = 0; y < h; ++y)
            for (int x = 0; x < w; ++x)
                for (int c = 0; c < 4; ++c) {
                    const int i = 3 * x + o[c];
                    ASSERT_TRUE(same(d.at(x, y, c), i < 3 * w ? s.row(y)[i] : keep.at(x, y, c))) << x << " " << c;
                }
    }
}

TEST(ReorderSwap, InPlaceAndStatus) {
    std::mt19937 rng(3);
    for (int w : zt::sweep_widths()) {
        zt::Image<Zel8u> a(w, 2, 3, 5, zt::Flush::Head, 1);
        a.fill_random(rng());
        const int o[3] = {2, 0, 1};
        std::vector<Zel8u> want;
        for (int y = 0; y < 2; ++y)
            for (int x = 0; x < w; ++x)
                for (int c = 0; c < 3; ++c) want.push_back(a.at(x, y, o[c]));
        // The R form with source equal to destination works in place too.
        const ZelStatus st = (w & 1) ? zeliSwapChannels_8u_C3IR(a.ptr(), a.step(), a.size(), o)
                                     : zeliSwapChannels_8u_C3R(a.ptr(), a.step(), a.ptr(), a.step(), a.size(), o);
        ASSERT_EQ(st, zelStatusOk);
        std::size_t k = 0;
        for (int y = 0; y < 2; ++y)
            for (int x = 0; x < w; ++x)
                for (int c = 0; c < 3; ++c) ASSERT_EQ(a.at(x, y, c), want[k++]) << w;
        zt::Image<Zel8u> b(w, 2, 4, 4, zt::Flush::Tail);
        b.fill_random(rng());
        const int o4[4] = {3, 2, 1, 0};
        std::vector<Zel8u> want4;
        for (int y = 0; y < 2; ++y)
            for (int x = 0; x < w; ++x)
                for (int c = 0; c < 4; ++c) want4.push_back(b.at(x, y, o4[c]));
        ASSERT_EQ(zeliSwapChannels_8u_C4IR(b.ptr(), b.step(), b.size(), o4), zelStatusOk);
        k = 0;
        for (int y = 0; y < 2; ++y)
            for (int x = 0; x < w; ++x)
                for (int c = 0; c < 4; ++c) ASSERT_EQ(b.at(x, y, c), want4[k++]);
    }
    // The pixel of the examples.
    Zel8u px[3] = {1, 2, 3}, out[4] = {0, 0, 0, 7};
    const int o[3] = {2, 1, 0}, o4[4] = {2, 1, 0, 3};
    ASSERT_EQ(zeliSwapChannels_8u_C3R(px, 3, out, 3, {1, 1}, o), zelStatusOk);
    EXPECT_EQ(out[0], 3);
    EXPECT_EQ(out[1], 2);
    EXPECT_EQ(out[2], 1);
    ASSERT_EQ(zeliSwapChannels_8u_C3C4R(px, 3, out, 4, {1, 1}, o4, 9), zelStatusOk);
    EXPECT_EQ(out[3], 9);
    // Order of checks: null, size, step, channel order.
    const int bad[3] = {0, 3, 1};
    EXPECT_EQ(zeliSwapChannels_8u_C3R(nullptr, 0, out, 0, {0, 1}, bad), zelStatusNullPointer);
    EXPECT_EQ(zeliSwapChannels_8u_C3R(px, 0, out, 3, {0, 1}, bad), zelStatusBadSize);
    EXPECT_EQ(zeliSwapChannels_8u_C3R(px, 0, out, 3, {1, 1}, bad), zelStatusBadStep);
    EXPECT_EQ(zeliSwapChannels_8u_C3R(px, 3, out, 3, {1, 1}, bad), zelStatusBadChannelOrder);
    EXPECT_EQ(zeliSwapChannels_8u_C3R(px, 3, out, 3, {1, 1}, nullptr), zelStatusNullPointer);
    const int neg[4] = {0, -1, 1, 2};
    EXPECT_EQ(zeliSwapChannels_8u_C3C4R(px, 3, out, 4, {1, 1}, neg, 0), zelStatusBadChannelOrder);
    const int four[3] = {0, 1, 4};
    EXPECT_EQ(zeliSwapChannels_8u_C4C3R(px, 4, out, 3, {1, 1}, four), zelStatusBadChannelOrder);
    EXPECT_EQ(zeliSwapChannels_8u_AC4R(px, 4, out, 4, {1, 1}, o4 + 1), zelStatusBadChannelOrder);
}

// ---------------------------------------------------------------------------
// Transpose
// ---------------------------------------------------------------------------
TYPED_TEST(Reorder, Transpose) {
    using T = TypeParam;
    using F = Fns<T>;
    const std::pair<int, int> sizes[] = {{1, 1}, {1, 17}, {17, 1}, {3, 2}, {16, 16}, {17, 33}, {64, 64}, {65, 130}, {130, 67}, {200, 31}, {33, 1030}};
    std::mt19937 rng(11);
    for (int C : {1, 3, 4})
        for (auto [w, h] : sizes)
            for (const Place& pl : places<T>()) {
                zt::Image<T> s(w, h, C, pl.extra, pl.flush, pl.offset), d(h, w, C, 2 * pl.extra, pl.flush, pl.offset);
                s.fill_random(rng());
                d.fill_random(rng());
                ASSERT_EQ(F::tr[C](s.ptr(), s.step(), d.ptr(), d.step(), s.size()), zelStatusOk);
                for (int y = 0; y < h; ++y)
                    for (int x = 0; x < w; ++x)
                        ASSERT_EQ(std::memcmp(&d.at(y, x), &s.at(x, y), C * sizeof(T)), 0) << C << " " << w << "x" << h;
            }
    // In place: square regions, through the IR form and the R form with equal pointers and steps.
    for (int C : {1, 3, 4})
        for (int n : {1, 2, 15, 16, 17, 33, 64, 65, 100}) {
            zt::Image<T> a(n, n, C, 2 * sizeof(T), zt::Flush::Head, sizeof(T)), ref(n, n, C);
            a.fill_random(rng());
            for (int y = 0; y < n; ++y) std::memcpy(ref.row(y), a.row(y), n * C * sizeof(T));
            ASSERT_EQ((n & 1) ? F::tri[C](a.ptr(), a.step(), a.size()) : F::tr[C](a.ptr(), a.step(), a.ptr(), a.step(), a.size()),
                      zelStatusOk);
            for (int y = 0; y < n; ++y)
                for (int x = 0; x < n; ++x) ASSERT_EQ(std::memcmp(&a.at(y, x), &ref.at(x, y), C * sizeof(T)), 0) << n;
        }
    zt::Image<T> r(3, 2, 1);
    EXPECT_EQ(F::tri[1](r.ptr(), r.step(), {3, 2}), zelStatusBadSize);
    EXPECT_EQ(F::tr[1](r.ptr(), r.step(), r.ptr(), r.step(), {3, 2}), zelStatusBadSize);
    EXPECT_EQ(F::tr[1](nullptr, 1, r.ptr(), 1, {0, 0}), zelStatusNullPointer);
    EXPECT_EQ(F::tr[1](r.ptr(), 1, r.ptr() + 1, 1, {0, 2}), zelStatusBadSize);
}

// The large aligned image that exceeds the cache takes the streaming kernel.
TEST(ReorderTranspose, NonTemporal8u) {
    const int w = 1088, h = 64;
    zt::Image<Zel8u> s(w, h, 1), d(h, w, 1);
    ASSERT_EQ(reinterpret_cast<std::uintptr_t>(s.ptr()) % 64, 0u);
    ASSERT_EQ(reinterpret_cast<std::uintptr_t>(d.ptr()) % 64, 0u);
    s.fill_random(5);
    for (int cache : {4096, 0}) {
        zelSetMaxCacheSizeB(cache);
        d.fill_bytes(0);
        ASSERT_EQ(zeliTranspose_8u_C1R(s.ptr(), s.step(), d.ptr(), d.step(), s.size()), zelStatusOk);
        for (int y = 0; y < h; ++y)
            for (int x = 0; x < w; ++x) ASSERT_EQ(d.at(y, x), s.at(x, y));
    }
    zelSetMaxCacheSizeB(0);
}

// ---------------------------------------------------------------------------
// Mirror
// ---------------------------------------------------------------------------
TYPED_TEST(Reorder, Mirror) {
    using T = TypeParam;
    using F = Fns<T>;
    const int chans[4] = {1, 3, 4, 4};
    std::mt19937 rng(13);
    for (int li = 0; li < 4; ++li) {
        const int C = chans[li], A = li == 3 ? 3 : C;
        for (int w : {2, 3, 7, 16, 17, 33, 64, 100})
            for (int h : {2, 3, 6})
                for (int flip = 0; flip < 3; ++flip)
                    for (const Place& pl : places<T>()) {
                        zt::Image<T> s(w, h, C, pl.extra, pl.flush, pl.offset), d(w, h, C, pl.extra, pl.flush, pl.offset);
                        zt::Image<T> keep(w, h, C, pl.extra);
                        s.fill_random(rng());
                        d.fill_random(rng());
                        for (int y = 0; y < h; ++y) std::memcpy(keep.row(y), d.row(y), w * C * sizeof(T));
                        auto src_of = [&](int x, int y) {
                            return std::make_pair(flip == 0 ? x : w - 1 - x, flip == 1 ? y : h - 1 - y);
                        };
                        ASSERT_EQ(F::mir[li](s.ptr(), s.step(), d.ptr(), d.step(), s.size(), flip), zelStatusOk);
                        for (int y = 0; y < h; ++y)
                            for (int x = 0; x < w; ++x) {
                                auto [sx, sy] = src_of(x, y);
                                ASSERT_EQ(std::memcmp(&d.at(x, y), &s.at(sx, sy), A * sizeof(T)), 0) << li << " " << w << "x" << h << " " << flip;
                                        if (A < C) {
                                    ASSERT_TRUE(same(d.at(x, y, 3), keep.at(x, y, 3)));
                                }
                            }
                        // In place: the image itself is the source; AC4 alpha stays where it was.
                        for (int y = 0; y < h; ++y) std::memcpy(keep.row(y), s.row(y), w * C * sizeof(T));
                        const ZelStatus st = (h & 1) ? F::miri[li](s.ptr(), s.step(), s.size(), flip)
                                                     : F::mir[li](s.ptr(), s.step(), s.ptr(), s.step(), s.size(), flip);
                        ASSERT_EQ(st, zelStatusOk);
                        for (int y = 0; y < h; ++y)
                            for (int x = 0; x < w; ++x) {
                                auto [sx, sy] = src_of(x, y);
                                ASSERT_EQ(std::memcmp(&s.at(x, y), &keep.at(sx, sy), A * sizeof(T)), 0) << "in place " << li << " " << w << "x" << h << " " << flip;
                                if (A < C) {
                                    ASSERT_TRUE(same(s.at(x, y, 3), keep.at(x, y, 3)));
                                }
                            }
                    }
    }
}

TEST(ReorderMirror, StatusOrder) {
    zt::Image<Zel8u> a(4, 4, 1), b(4, 4, 1);
    EXPECT_EQ(zeliMirror_8u_C1R(a.ptr(), 4, b.ptr(), 4, {4, 1}, 0), zelStatusBadSize);  // one row
    EXPECT_EQ(zeliMirror_8u_C1R(a.ptr(), 4, b.ptr(), 4, {4, 1}, 1), zelStatusOk);
    EXPECT_EQ(zeliMirror_8u_C1R(a.ptr(), 4, b.ptr(), 4, {1, 4}, 1), zelStatusBadSize);  // one column
    EXPECT_EQ(zeliMirror_8u_C1R(a.ptr(), 4, b.ptr(), 4, {1, 4}, 0), zelStatusOk);
    EXPECT_EQ(zeliMirror_8u_C1R(a.ptr(), 4, b.ptr(), 4, {1, 4}, 2), zelStatusBadSize);
    EXPECT_EQ(zeliMirror_8u_C1R(a.ptr(), 4, b.ptr(), 4, {4, 1}, 3), zelStatusBadAxis);   // axis before the small sizes
    EXPECT_EQ(zeliMirror_8u_C1R(a.ptr(), 4, b.ptr(), 4, {0, 4}, 3), zelStatusBadSize);
    EXPECT_EQ(zeliMirror_8u_C1R(nullptr, 4, b.ptr(), 4, {0, 4}, 3), zelStatusNullPointer);
    EXPECT_EQ(zeliMirror_8u_C1IR(a.ptr(), 4, {4, 1}, 0), zelStatusBadSize);
    EXPECT_EQ(zeliMirror_8u_C1IR(nullptr, 4, {4, 4}, 0), zelStatusNullPointer);
    // No step check: a negative step walks upwards.
    EXPECT_EQ(zeliMirror_8u_C1R(a.row(3), -4, b.ptr(), 4, {4, 4}, 0), zelStatusOk);
    for (int y = 0; y < 4; ++y) EXPECT_EQ(std::memcmp(b.row(y), a.row(y), 4), 0);
}

// C4 images larger than the cache stream their rows; the pixels are the same.
TEST(ReorderMirror, NonTemporalC4) {
    const int w = 400, h = 400;
    zt::Image<Zel8u> s(w, h, 4, 0, zt::Flush::Head, 4), d(w, h, 4), e(w, h, 4);
    s.fill_random(9);
    for (int flip = 0; flip < 3; ++flip) {
        zelSetMaxCacheSizeB(0x100000);
        ASSERT_EQ(zeliMirror_8u_C4R(s.ptr(), s.step(), d.ptr(), d.step(), s.size(), flip), zelStatusOk);
        zelSetMaxCacheSizeB(-1);
        ASSERT_EQ(zeliMirror_8u_C4R(s.ptr(), s.step(), e.ptr(), e.step(), s.size(), flip), zelStatusOk);
        ASSERT_EQ(d.bytes(), e.bytes());
        EXPECT_EQ(std::memcmp(&d.at(0, 0), &s.at(flip == 0 ? 0 : w - 1, flip == 1 ? 0 : h - 1), 4), 0);
    }
    zelSetMaxCacheSizeB(0);
}

} // namespace

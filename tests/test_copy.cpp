// Copy, set, duplicate and managed copy against per-pixel references, on
// guarded images: width sweeps, padded and unaligned rows, steps of 0 and
// negative steps, masks, forced non-temporal stores and the order of checks.
#include "guard.hpp"

#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <random>
#include <string>
#include <vector>

namespace {

using u8 = std::uint8_t;

// Row r of a buffer of bytes with the given step.
template <class T>
T* rowp(T* base, int step, int r) {
    return reinterpret_cast<T*>(reinterpret_cast<u8*>(const_cast<std::remove_const_t<T>*>(base)) + std::ptrdiff_t(r) * step);
}

// Geometry variants: padding of source and destination rows, and where the
// buffers sit (overrun traps, or underrun traps with an unaligned start).
struct Variant {
    int extraSrc, extraDst; // in samples
    zt::Flush flush;
    int offset; // in samples
};
const Variant kVariants[] = {
    {0, 0, zt::Flush::Tail, 0}, {5, 0, zt::Flush::Tail, 0}, {0, 9, zt::Flush::Head, 1}, {3, 17, zt::Flush::Head, 3}};
const int kHeights[] = {3};

// Mask bytes: blocks of 16 that are all zero, all set (any non-zero value) or mixed.
void fill_mask(zt::Image<u8>& m, std::uint32_t seed) {
    std::mt19937 rng(seed);
    for (int y = 0; y < m.height(); ++y)
        for (int x0 = 0; x0 < m.width(); x0 += 16) {
            const int kind = int(rng() % 3);
            for (int x = x0; x < x0 + 16 && x < m.width(); ++x) {
                u8 v = u8(rng());
                if (kind == 0) v = 0;
                if (kind == 1 && v == 0) v = 1;
                if (kind == 2) v = (rng() & 1) ? v : 0;
                m.at(x, y) = v;
            }
        }
}

// ---- Two-image forms ------------------------------------------------------------
// call(src, srcStep, dst, dstStep, roi) against ref(srcRow, dstRow, width); the
// source has sc samples a pixel, the destination dc; both pointers are moved
// by `channel` samples where the form addresses a channel of interest.
template <class T>
using Call2 = std::function<ZelStatus(const T*, int, T*, int, ZeliSize)>;
template <class T>
using RowRef = std::function<void(const T*, T*, int)>;

template <class T>
void check_pair(const std::string& name, int sc, int sOff, int dc, int dOff, Call2<T> call, RowRef<T> ref) {
    std::uint32_t seed = 1;
    for (const Variant& v : kVariants)
        for (int h : kHeights)
            for (int w : zt::sweep_widths()) {
                const int es = v.extraSrc * sizeof(T), ed = v.extraDst * sizeof(T), off = v.offset * sizeof(T);
                zt::Image<T> src(w, h, sc, es, v.flush, off), dst(w, h, dc, ed, v.flush, off);
                src.fill_random(seed++);
                dst.fill_random(seed++);
                std::vector<u8> expect = dst.bytes();
                for (int r = 0; r < h; ++r)
                    ref(src.row(r) + sOff, reinterpret_cast<T*>(expect.data() + std::ptrdiff_t(r) * dst.step()) + dOff, w);
                ASSERT_EQ(call(src.ptr() + sOff, src.step(), dst.ptr() + dOff, dst.step(), {w, h}), zelStatusOk)
                    << name;
                ASSERT_EQ(dst.bytes(), expect) << name << " width " << w << " height " << h << " variant " << (&v - kVariants);
            }
}

// Rows walked by a step of 0 and by a negative step.
template <class T>
void check_odd_steps(const std::string& name, int sc, int dc, Call2<T> call, RowRef<T> ref) {
    for (int w : {5, 64, 100}) {
        const int h = 4;
        zt::Image<T> src(w, h, sc, 2 * sizeof(T)), dst(w, h, dc), one(w, 1, dc);
        src.fill_random(7);
        dst.fill_random(8);
        one.fill_random(9);
        // Negative destination step: the source's rows land upside down.
        std::vector<u8> expect = dst.bytes();
        for (int r = 0; r < h; ++r) ref(src.row(r), reinterpret_cast<T*>(expect.data() + std::ptrdiff_t(h - 1 - r) * dst.step()), w);
        ASSERT_EQ(call(src.ptr(), src.step(), dst.row(h - 1), -dst.step(), {w, h}), zelStatusOk);
        ASSERT_EQ(dst.bytes(), expect) << name << " negative step, width " << w;
        // Destination step 0: every row goes to the same row; the last one stays.
        expect = one.bytes();
        for (int r = 0; r < h; ++r) ref(src.row(r), reinterpret_cast<T*>(expect.data()), w);
        ASSERT_EQ(call(src.ptr(), src.step(), one.ptr(), 0, {w, h}), zelStatusOk);
        ASSERT_EQ(one.bytes(), expect) << name << " zero step, width " << w;
    }
}

// Every two-image member of one sample type.
template <class T>
struct Members {
    Call2<T> c1, c3, c4, ac4, c3cr, c4cr, c3c1, c4c1, c1c3, c1c4, ac4c3, c3ac4;
    std::function<ZelStatus(const T*, int, T*, int, ZeliSize, const u8*, int)> m[4]; // C1, C3, C4, AC4
    std::function<ZelStatus(const T*, int, T* const*, int, ZeliSize)> c3p3, c4p4;
    std::function<ZelStatus(const T* const*, int, T*, int, ZeliSize)> p3c3, p4c4;
    ZelStatus (*set1)(T, T*, int, ZeliSize);
    ZelStatus (*set3)(const T*, T*, int, ZeliSize);
    ZelStatus (*set4)(const T*, T*, int, ZeliSize);
    ZelStatus (*setA)(const T*, T*, int, ZeliSize);
    ZelStatus (*setCR[2])(T, T*, int, ZeliSize);
    ZelStatus (*setM1)(T, T*, int, ZeliSize, const u8*, int);
    ZelStatus (*setM[3])(const T*, T*, int, ZeliSize, const u8*, int); // C3, C4, AC4
};

#define ZT_MEMBERS(T)                                                                                             \
    Members<Zel##T> {                                                                                             \
        zeliCopy_##T##_C1R, zeliCopy_##T##_C3R, zeliCopy_##T##_C4R, zeliCopy_##T##_AC4R, zeliCopy_##T##_C3CR,    \
            zeliCopy_##T##_C4CR, zeliCopy_##T##_C3C1R, zeliCopy_##T##_C4C1R, zeliCopy_##T##_C1C3R,              \
            zeliCopy_##T##_C1C4R, zeliCopy_##T##_AC4C3R, zeliCopy_##T##_C3AC4R,                                 \
            {zeliCopy_##T##_C1MR, zeliCopy_##T##_C3MR, zeliCopy_##T##_C4MR, zeliCopy_##T##_AC4MR},               \
            zeliCopy_##T##_C3P3R, zeliCopy_##T##_C4P4R, zeliCopy_##T##_P3C3R, zeliCopy_##T##_P4C4R,             \
            zeliSet_##T##_C1R, zeliSet_##T##_C3R, zeliSet_##T##_C4R, zeliSet_##T##_AC4R,                        \
            {zeliSet_##T##_C3CR, zeliSet_##T##_C4CR}, zeliSet_##T##_C1MR,                                       \
            {zeliSet_##T##_C3MR, zeliSet_##T##_C4MR, zeliSet_##T##_AC4MR},                                      \
    }

template <class T>
Members<T> members();
template <> Members<Zel8u> members() { return ZT_MEMBERS(8u); }
template <> Members<Zel16s> members() { return ZT_MEMBERS(16s); }
template <> Members<Zel16u> members() { return ZT_MEMBERS(16u); }
template <> Members<Zel32s> members() { return ZT_MEMBERS(32s); }
template <> Members<Zel32f> members() { return ZT_MEMBERS(32f); }

// References: what each form does to one row, from its definition.
template <class T>
RowRef<T> ref_move(int sp, int dp, int n) {
    return [=](const T* s, T* d, int w) {
        for (int x = 0; x < w; ++x)
            for (int c = 0; c < n; ++c) std::memcpy(&d[x * dp + c], &s[x * sp + c], sizeof(T));
    };
}

template <class T>
class CopyTyped : public ::testing::Test {};
using SampleTypes = ::testing::Types<Zel8u, Zel16s, Zel16u, Zel32s, Zel32f>;
TYPED_TEST_SUITE(CopyTyped, SampleTypes);

TYPED_TEST(CopyTyped, PixelForms) {
    using T = TypeParam;
    const Members<T> f = members<T>();
    check_pair<T>("C1R", 1, 0, 1, 0, f.c1, ref_move<T>(1, 1, 1));
    check_pair<T>("C3R", 3, 0, 3, 0, f.c3, ref_move<T>(3, 3, 3));
    check_pair<T>("C4R", 4, 0, 4, 0, f.c4, ref_move<T>(4, 4, 4));
    check_pair<T>("AC4R", 4, 0, 4, 0, f.ac4, ref_move<T>(4, 4, 3)); // alpha stays
    check_pair<T>("AC4C3R", 4, 0, 3, 0, f.ac4c3, ref_move<T>(4, 3, 3));
    check_pair<T>("C3AC4R", 3, 0, 4, 0, f.c3ac4, ref_move<T>(3, 4, 3));
    for (int k : {0, 2}) {
        check_pair<T>("C3CR", 3, k, 3, k, f.c3cr, ref_move<T>(3, 3, 1));
        check_pair<T>("C3C1R", 3, k, 1, 0, f.c3c1, ref_move<T>(3, 1, 1));
        check_pair<T>("C1C3R", 1, 0, 3, k, f.c1c3, ref_move<T>(1, 3, 1));
    }
    for (int k : {0, 3}) {
        check_pair<T>("C4CR", 4, k, 4, k, f.c4cr, ref_move<T>(4, 4, 1));
        check_pair<T>("C4C1R", 4, k, 1, 0, f.c4c1, ref_move<T>(4, 1, 1));
        check_pair<T>("C1C4R", 1, 0, 4, k, f.c1c4, ref_move<T>(1, 4, 1));
    }
}

TYPED_TEST(CopyTyped, OddSteps) {
    using T = TypeParam;
    const Members<T> f = members<T>();
    check_odd_steps<T>("C1R", 1, 1, f.c1, ref_move<T>(1, 1, 1));
    check_odd_steps<T>("C3R", 3, 3, f.c3, ref_move<T>(3, 3, 3));
    check_odd_steps<T>("AC4R", 4, 4, f.ac4, ref_move<T>(4, 4, 3));
    check_odd_steps<T>("C3C1R", 3, 1, f.c3c1, ref_move<T>(3, 1, 1));
    // Source step 0: every destination row is the first source row.
    zt::Image<T> src(70, 1, 3), dst(70, 5, 3, 4 * sizeof(T));
    src.fill_random(3);
    dst.fill_random(4);
    ASSERT_EQ(f.c3(src.ptr(), 0, dst.ptr(), dst.step(), {70, 5}), zelStatusOk);
    for (int r = 0; r < 5; ++r) ASSERT_EQ(std::memcmp(dst.row(r), src.ptr(), 70 * 3 * sizeof(T)), 0);
}

TYPED_TEST(CopyTyped, Masked) {
    using T = TypeParam;
    const Members<T> f = members<T>();
    const int ch[4] = {1, 3, 4, 4}, act[4] = {1, 3, 4, 3};
    std::uint32_t seed = 11;
    for (int form = 0; form < 4; ++form)
        for (const Variant& v : kVariants)
            for (int w : zt::sweep_widths()) {
                const int h = 3, c = ch[form];
                zt::Image<T> src(w, h, c, v.extraSrc * sizeof(T), v.flush, v.offset * sizeof(T));
                zt::Image<T> dst(w, h, c, v.extraDst * sizeof(T), v.flush, v.offset * sizeof(T));
                zt::Image<u8> mask(w, h, 1, v.extraSrc, v.flush, v.offset);
                src.fill_random(seed++);
                dst.fill_random(seed++);
                fill_mask(mask, seed++);
                std::vector<u8> expect = dst.bytes();
                for (int y = 0; y < h; ++y)
                    for (int x = 0; x < w; ++x)
                        if (mask.at(x, y))
                            ref_move<T>(c, c, act[form])(&src.at(x, y),
                                reinterpret_cast<T*>(expect.data() + std::ptrdiff_t(y) * dst.step()) + x * c, 1);
                ASSERT_EQ(f.m[form](src.ptr(), src.step(), dst.ptr(), dst.step(), {w, h}, mask.ptr(), mask.step()),
                          zelStatusOk);
                ASSERT_EQ(dst.bytes(), expect) << "masked form " << form << " width " << w;

                // The masked set writes the value where the copy wrote the source.
                T vals[4];
                for (int k = 0; k < 4; ++k) vals[k] = T(37 * k + 5);
                expect = dst.bytes();
                for (int y = 0; y < h; ++y)
                    for (int x = 0; x < w; ++x)
                        if (mask.at(x, y))
                            for (int k = 0; k < act[form]; ++k)
                                reinterpret_cast<T*>(expect.data() + std::ptrdiff_t(y) * dst.step())[x * c + k] = vals[k];
                const ZelStatus st = form == 0 ? f.setM1(vals[0], dst.ptr(), dst.step(), {w, h}, mask.ptr(), mask.step())
                                               : f.setM[form - 1](vals, dst.ptr(), dst.step(), {w, h}, mask.ptr(), mask.step());
                ASSERT_EQ(st, zelStatusOk);
                ASSERT_EQ(dst.bytes(), expect) << "masked set form " << form << " width " << w;
            }
}

TYPED_TEST(CopyTyped, Planar) {
    using T = TypeParam;
    const Members<T> f = members<T>();
    std::uint32_t seed = 21;
    for (int c : {3, 4})
        for (const Variant& v : kVariants)
            for (int h : kHeights)
                for (int w : zt::sweep_widths()) {
                    zt::Image<T> inter(w, h, c, v.extraSrc * sizeof(T), v.flush, v.offset * sizeof(T));
                    std::vector<zt::Image<T>> planes;
                    for (int k = 0; k < c; ++k)
                        planes.emplace_back(w, h, 1, v.extraDst * sizeof(T), v.flush, (v.offset + k) * sizeof(T));
                    inter.fill_random(seed++);
                    for (auto& p : planes) p.fill_random(seed++);
                    T* pp[4];
                    for (int k = 0; k < c; ++k) pp[k] = planes[k].ptr();
                    const int ps = planes[0].step();
                    // Interleaved to planar.
                    ASSERT_EQ((c == 3 ? f.c3p3 : f.c4p4)(inter.ptr(), inter.step(), pp, ps, {w, h}), zelStatusOk);
                    for (int k = 0; k < c; ++k)
                        for (int y = 0; y < h; ++y)
                            for (int x = 0; x < w; ++x)
                                ASSERT_EQ(std::memcmp(&planes[k].at(x, y), &inter.at(x, y, k), sizeof(T)), 0)
                                    << "to planes, channels " << c << " width " << w << " plane " << k;
                    // Planar to interleaved, from fresh planes.
                    for (auto& p : planes) p.fill_random(seed++);
                    std::vector<u8> expect = inter.bytes();
                    for (int y = 0; y < h; ++y)
                        for (int x = 0; x < w; ++x)
                            for (int k = 0; k < c; ++k)
                                std::memcpy(expect.data() + std::ptrdiff_t(y) * inter.step() + (x * c + k) * sizeof(T),
                                            &planes[k].at(x, y), sizeof(T));
                    const T* cp[4] = {pp[0], pp[1], pp[2], pp[3]};
                    ASSERT_EQ((c == 3 ? f.p3c3 : f.p4c4)(cp, ps, inter.ptr(), inter.step(), {w, h}), zelStatusOk);
                    ASSERT_EQ(inter.bytes(), expect) << "from planes, channels " << c << " width " << w;
                }
}

TYPED_TEST(CopyTyped, SetForms) {
    using T = TypeParam;
    const Members<T> f = members<T>();
    const T vals[4] = {T(1), T(2), T(3), T(250)};
    std::uint32_t seed = 31;
    // form: 0 C1R, 1 C3R, 2 C4R, 3 AC4R, 4 C3CR, 5 C4CR
    const int ch[6] = {1, 3, 4, 4, 3, 4}, act[6] = {1, 3, 4, 3, 1, 1};
    for (int form = 0; form < 6; ++form)
        for (const Variant& v : kVariants)
            for (int h : kHeights)
                for (int w : zt::sweep_widths()) {
                    const int c = ch[form], k0 = form >= 4 ? 1 : 0;
                    zt::Image<T> dst(w, h, c, v.extraDst * sizeof(T), v.flush, v.offset * sizeof(T));
                    dst.fill_random(seed++);
                    std::vector<u8> expect = dst.bytes();
                    for (int y = 0; y < h; ++y)
                        for (int x = 0; x < w; ++x)
                            for (int k = 0; k < act[form]; ++k)
                                std::memcpy(expect.data() + std::ptrdiff_t(y) * dst.step() + (x * c + k + k0) * sizeof(T),
                                            &vals[k + k0], sizeof(T));
                    ZelStatus st = zelStatusOk;
                    switch (form) {
                    case 0: st = f.set1(vals[0], dst.ptr(), dst.step(), {w, h}); break;
                    case 1: st = f.set3(vals, dst.ptr(), dst.step(), {w, h}); break;
                    case 2: st = f.set4(vals, dst.ptr(), dst.step(), {w, h}); break;
                    case 3: st = f.setA(vals, dst.ptr(), dst.step(), {w, h}); break;
                    default: st = f.setCR[form - 4](vals[1], dst.ptr() + 1, dst.step(), {w, h}); break;
                    }
                    ASSERT_EQ(st, zelStatusOk);
                    ASSERT_EQ(dst.bytes(), expect) << "set form " << form << " width " << w << " height " << h;
                }
    // Negative step and step 0 on the fill.
    zt::Image<T> dst(100, 3, 3);
    dst.fill_random(5);
    ASSERT_EQ(f.set3(vals, dst.row(2), -dst.step(), {100, 3}), zelStatusOk);
    ASSERT_EQ(f.set3(vals, dst.row(2), 0, {100, 3}), zelStatusOk);
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 100; ++x)
            for (int k = 0; k < 3; ++k) ASSERT_EQ(std::memcmp(&dst.at(x, y, k), &vals[k], sizeof(T)), 0);
}

// Null pointers come first (every plane and the mask too), then the size; an
// error leaves the destination as it was.
TYPED_TEST(CopyTyped, StatusOrder) {
    using T = TypeParam;
    const Members<T> f = members<T>();
    zt::Image<T> a(4, 2, 4), b(4, 2, 4);
    zt::Image<u8> m(4, 2, 1);
    a.fill_random(1);
    b.fill_random(2);
    m.fill_bytes(1);
    const std::vector<u8> before = b.bytes();
    const ZeliSize ok{4, 2}, zeroW{0, 2}, negH{4, -1};
    const int s = a.step();
    for (const Call2<T>& c : {f.c1, f.c3, f.c4, f.ac4, f.c3cr, f.c4cr, f.c3c1, f.c4c1, f.c1c3, f.c1c4, f.ac4c3, f.c3ac4}) {
        EXPECT_EQ(c(nullptr, s, b.ptr(), s, zeroW), zelStatusNullPointer);
        EXPECT_EQ(c(a.ptr(), s, nullptr, s, ok), zelStatusNullPointer);
        EXPECT_EQ(c(a.ptr(), s, b.ptr(), s, zeroW), zelStatusBadSize);
        EXPECT_EQ(c(a.ptr(), s, b.ptr(), s, negH), zelStatusBadSize);
        EXPECT_EQ(c(a.ptr(), -77, b.ptr(), 0, {0, 0}), zelStatusBadSize); // steps are never checked
    }
    for (auto& c : f.m) {
        EXPECT_EQ(c(a.ptr(), s, b.ptr(), s, zeroW, nullptr, 4), zelStatusNullPointer);
        EXPECT_EQ(c(a.ptr(), s, b.ptr(), s, zeroW, m.ptr(), 4), zelStatusBadSize);
    }
    T* planes[4] = {b.ptr(), b.ptr(), nullptr, b.ptr()};
    const T* cplanes[4] = {a.ptr(), a.ptr(), a.ptr(), nullptr};
    EXPECT_EQ(f.c3p3(a.ptr(), s, planes, s, zeroW), zelStatusNullPointer);
    EXPECT_EQ(f.c4p4(a.ptr(), s, nullptr, s, ok), zelStatusNullPointer);
    EXPECT_EQ(f.p4c4(cplanes, s, b.ptr(), s, zeroW), zelStatusNullPointer);
    EXPECT_EQ(f.p3c3(cplanes, s, b.ptr(), s, zeroW), zelStatusBadSize);
    const T vals[4] = {};
    EXPECT_EQ(f.set1(T(1), nullptr, s, zeroW), zelStatusNullPointer);
    EXPECT_EQ(f.set3(nullptr, b.ptr(), s, ok), zelStatusNullPointer);
    EXPECT_EQ(f.set4(vals, b.ptr(), s, zeroW), zelStatusBadSize);
    EXPECT_EQ(f.setA(vals, b.ptr(), s, negH), zelStatusBadSize);
    EXPECT_EQ(f.setCR[0](T(1), b.ptr(), s, zeroW), zelStatusBadSize);
    EXPECT_EQ(f.setM1(T(1), b.ptr(), s, zeroW, nullptr, 4), zelStatusNullPointer);
    EXPECT_EQ(f.setM[2](vals, b.ptr(), s, zeroW, m.ptr(), 4), zelStatusBadSize);
    EXPECT_EQ(b.bytes(), before);
}

// ---- 8u only: duplicate and managed copy ---------------------------------------
TEST(Copy, Dup) {
    check_pair<u8>("Dup C1C3", 1, 0, 3, 0, zeliDup_8u_C1C3R, [](const u8* s, u8* d, int w) {
        for (int x = 0; x < w; ++x) d[3 * x] = d[3 * x + 1] = d[3 * x + 2] = s[x];
    });
    check_pair<u8>("Dup C1C4", 1, 0, 4, 0, zeliDup_8u_C1C4R, [](const u8* s, u8* d, int w) {
        for (int x = 0; x < w; ++x) d[4 * x] = d[4 * x + 1] = d[4 * x + 2] = d[4 * x + 3] = s[x];
    });
    EXPECT_EQ(zeliDup_8u_C1C3R(nullptr, 1, nullptr, 3, {0, 0}), zelStatusNullPointer);
}

TEST(Copy, Managed) {
    for (int flags = 0; flags < 4; ++flags) {
        auto call = [flags](const u8* s, int ss, u8* d, int ds, ZeliSize roi) {
            return zeliCopyManaged_8u_C1R(s, ss, d, ds, roi, flags);
        };
        const auto ref = ref_move<u8>(1, 1, 1);
        check_pair<u8>("Managed", 1, 0, 1, 0, call, ref);
        check_pair<u8>("Managed wide", 1, 0, 1, 0, call, ref); // widths above are below 300; add long rows
        for (int w : {1000, 4099}) // long rows: the 64-byte loop and its alignment steps
            for (int off : {0, 5, 13}) {
                zt::Image<u8> src(w, 3, 1, off, zt::Flush::Head, off), dst(w, 3, 1, 3 * off, zt::Flush::Head, 64 - off);
                src.fill_random(w);
                dst.fill_random(w + 1);
                ASSERT_EQ(call(src.ptr(), src.step(), dst.ptr(), dst.step(), {w, 3}), zelStatusOk);
                for (int r = 0; r < 3; ++r) ASSERT_EQ(std::memcmp(src.row(r), dst.row(r), w), 0) << flags;
            }
        check_odd_steps<u8>("Managed", 1, 1, call, ref);
    }
    EXPECT_EQ(zeliCopyManaged_8u_C1R(nullptr, 1, nullptr, 1, {0, 1}, 0), zelStatusNullPointer);
}

// Forcing a small cache size makes the large copies and fills take their
// non-temporal paths; the bytes must not change.
TEST(Copy, NonTemporalPathsGiveTheSameBytes) {
    zelSetMaxCacheSizeB(4096);
    struct Reset {
        ~Reset() { zelSetMaxCacheSizeB(0); }
    } reset;
    const int w = 1100, h = 1000; // above 0x100000 bytes even at one byte a pixel
    for (int extra : {0, 7}) {
        zt::Image<u8> src(w, h, 1, extra, zt::Flush::Head, 3), dst(w, h, 1, extra, zt::Flush::Head, 9);
        src.fill_random(1);
        dst.fill_random(2);
        ASSERT_EQ(zeliCopy_8u_C1R(src.ptr(), src.step(), dst.ptr(), dst.step(), {w, h}), zelStatusOk);
        for (int r = 0; r < h; ++r) ASSERT_EQ(std::memcmp(src.row(r), dst.row(r), w), 0) << "row " << r;
        const Zel8u v3[3] = {1, 2, 3};
        ASSERT_EQ(zeliSet_8u_C3R(v3, dst.ptr(), dst.step(), {w / 3, h}), zelStatusOk);
        for (int r = 0; r < h; r += 97)
            for (int x = 0; x < w / 3 * 3; ++x) ASSERT_EQ(dst.at(x, r), x % 3 + 1);
    }
    for (int extra : {0, 4}) {
        zt::Image<Zel32f> inter(600, 200, 3, extra * 4, zt::Flush::Head, 4);
        zt::Image<Zel32f> p0(600, 200, 1, extra * 4), p1(600, 200, 1, extra * 4, zt::Flush::Head, 4),
            p2(600, 200, 1, extra * 4, zt::Flush::Head, 8);
        inter.fill_random(3);
        Zel32f* pp[3] = {p0.ptr(), p1.ptr(), p2.ptr()};
        ASSERT_EQ(zeliCopy_32f_C3P3R(inter.ptr(), inter.step(), pp, p0.step(), {600, 200}), zelStatusOk);
        for (int y = 0; y < 200; y += 13)
            for (int x = 0; x < 600; ++x) {
                ASSERT_EQ(std::memcmp(&p0.at(x, y), &inter.at(x, y, 0), 4), 0);
                ASSERT_EQ(std::memcmp(&p2.at(x, y), &inter.at(x, y, 2), 4), 0);
            }
        zt::Image<Zel8u> i8(600, 400, 4, extra), q0(600, 400, 1, extra), q1(600, 400, 1, extra), q2(600, 400, 1, extra),
            q3(600, 400, 1, extra);
        q0.fill_random(4), q1.fill_random(5), q2.fill_random(6), q3.fill_random(7);
        const Zel8u* qq[4] = {q0.ptr(), q1.ptr(), q2.ptr(), q3.ptr()};
        ASSERT_EQ(zeliCopy_8u_P4C4R(qq, q0.step(), i8.ptr(), i8.step(), {600, 400}), zelStatusOk);
        for (int y = 0; y < 400; y += 11)
            for (int x = 0; x < 600; ++x) ASSERT_EQ(i8.at(x, y, 3), q3.at(x, y));
    }
}

// Long contiguous images fold into one row that is filled by repeating a seed
// of the pattern; every byte up to the guard page must hold the pattern, for
// both pattern periods and at unaligned starts.
TEST(Copy, LongRowFills) {
    for (std::size_t offset : {0, 4, 12}) {
        for (int w : {87382, 100003}) { // 3 and 12 bytes a pixel: above 256 KiB, odd remainders
            zt::Image<u8> d8(w, 2, 3, 0, zt::Flush::Tail, offset);
            const Zel8u v3[3] = {7, 8, 9};
            ASSERT_EQ(zeliSet_8u_C3R(v3, d8.ptr(), d8.step(), {w, 2}), zelStatusOk);
            for (int y = 0; y < 2; ++y)
                for (int x = 0; x < w; ++x)
                    for (int c = 0; c < 3; ++c) ASSERT_EQ(d8.at(x, y, c), 7 + c) << x;
            zt::Image<Zel32f> d32(w, 1, 1, 0, zt::Flush::Tail, offset);
            ASSERT_EQ(zeliSet_32f_C1R(-1.5f, d32.ptr(), d32.step(), {w, 1}), zelStatusOk);
            for (int x = 0; x < w; ++x) ASSERT_EQ(d32.at(x, 0), -1.5f) << x;
            zt::Image<Zel32f> d3(w / 4, 1, 3, 0, zt::Flush::Tail, offset);
            const Zel32f f3[3] = {1.0f, 2.0f, 3.0f};
            ASSERT_EQ(zeliSet_32f_C3R(f3, d3.ptr(), d3.step(), {w / 4, 1}), zelStatusOk);
            for (int x = 0; x < w / 4; ++x)
                for (int c = 0; c < 3; ++c) ASSERT_EQ(d3.at(x, 0, c), float(c + 1)) << x;
        }
    }
}

} // namespace

// Copy, set, duplicate and managed copy against per-pixel references on
// guarded images. The members come from their declaration list; the form in
// each name says what moves where, so one byte-level reference per form
// covers every sample type: width sweeps, padded and unaligned rows, zero and
// negative steps, masks, the non-temporal paths and the order of checks.
#include "guard.hpp"

#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <map>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace {

using u8 = std::uint8_t;

// One argument of any parameter type: a pointer, a size, or the bytes of a
// number (an int, or a sample value).
struct Arg {
    const void* p = nullptr;
    ZeliSize s{};
    alignas(8) unsigned char raw[8] = {};
    Arg(const void* ptr) : p(ptr) {}
    Arg(ZeliSize size) : s(size) {}
    Arg(int v) { std::memcpy(raw, &v, sizeof v); }
    static Arg bytes(const void* v, std::size_t n) {
        Arg a(0);
        std::memcpy(a.raw, v, n);
        return a;
    }
    template <class P>
    P as() const {
        if constexpr (std::is_pointer<P>::value) return reinterpret_cast<P>(const_cast<void*>(p));
        else if constexpr (std::is_same<P, ZeliSize>::value) return s;
        else {
            P v;
            std::memcpy(&v, raw, sizeof v);
            return v;
        }
    }
};
using Args = std::vector<Arg>;
using Fn = std::function<ZelStatus(const Args&)>;

template <class... P, std::size_t... I>
ZelStatus invoke(ZelStatus (*f)(P...), const Args& a, std::index_sequence<I...>) {
    return f(a[I].template as<P>()...);
}
template <class... P>
Fn caller(ZelStatus (*f)(P...)) {
    return [f](const Args& a) { return invoke(f, a, std::index_sequence_for<P...>{}); };
}

// name -> caller, from the declaration list.
const std::map<std::string, Fn>& list() {
#define ZEL_FN(ret, name, params, args, impl) {#name, caller(&name)},
    static const std::map<std::string, Fn> m = {
#include "zelip8/fn_copy.h"
    };
#undef ZEL_FN
    return m;
}
const char* const kTypes[] = {"8u", "16s", "16u", "32f", "32s"};
int sample_bytes(const std::string& t) { return t == "8u" ? 1 : t[0] == '1' ? 2 : 4; }
const Fn& fn(const std::string& op, const std::string& t, const std::string& form) {
    return list().at("zeli" + op + "_" + t + "_" + form);
}

// Geometry variants: padding of source and destination rows (samples), and
// where the buffers sit (overrun traps, or underrun traps after an unaligned start).
struct Variant {
    int extraSrc, extraDst;
    zt::Flush flush;
    int offset;
};
const Variant kVariants[] = {{0, 0, zt::Flush::Tail, 0}, {5, 0, zt::Flush::Tail, 0}, {3, 17, zt::Flush::Head, 3}};

using Image = zt::Image<u8>; // width in samples times sample bytes
Image image(int w, int h, int samples, int sb, const Variant& v, bool src) {
    return Image(w * sb, h, samples, (src ? v.extraSrc : v.extraDst) * sb, v.flush, std::size_t(v.offset) * sb);
}

// Mask bytes in blocks of 16 that are all zero, all set (any non-zero value) or mixed.
void fill_mask(Image& m, std::uint32_t seed) {
    std::mt19937 rng(seed);
    for (int y = 0; y < m.height(); ++y)
        for (int x0 = 0; x0 < m.width(); x0 += 16) {
            const unsigned kind = rng() % 3;
            for (int x = x0; x < x0 + 16 && x < m.width(); ++x) {
                const u8 v = u8(rng() | 1);
                m.at(x, y) = kind == 0 ? 0 : kind == 1 || (rng() & 1) ? v : 0;
            }
        }
}

// A two-image form: source and destination samples a pixel, samples moved,
// the first source sample spread over all of them (Dup), and the channel of
// interest moving the source (s) or the destination (d) pointer. Set moves
// its value (no source samples a pixel: every pixel reads the same value).
// Masked forms move the pixels whose mask byte is not zero.
struct Move {
    const char* op;
    const char* form;
    int sc, dc, n;
    bool spread;
    const char* coi;
    bool masked = false;
};
const Move kMoves[] = {
    {"Copy", "C1R", 1, 1, 1, false, ""},    {"Copy", "C3R", 3, 3, 3, false, ""},     {"Copy", "C4R", 4, 4, 4, false, ""},
    {"Copy", "AC4R", 4, 4, 3, false, ""},   {"Copy", "AC4C3R", 4, 3, 3, false, ""},  {"Copy", "C3AC4R", 3, 4, 3, false, ""},
    {"Copy", "C3CR", 3, 3, 1, false, "sd"}, {"Copy", "C4CR", 4, 4, 1, false, "sd"},  {"Copy", "C3C1R", 3, 1, 1, false, "s"},
    {"Copy", "C4C1R", 4, 1, 1, false, "s"}, {"Copy", "C1C3R", 1, 3, 1, false, "d"},  {"Copy", "C1C4R", 1, 4, 1, false, "d"},
    {"Dup", "C1C3R", 1, 3, 3, true, ""},    {"Dup", "C1C4R", 1, 4, 4, true, ""},     {"Set", "C1R", 0, 1, 1, false, ""},
    {"Set", "C3R", 0, 3, 3, false, ""},     {"Set", "C4R", 0, 4, 4, false, ""},      {"Set", "AC4R", 0, 4, 3, false, ""},
    {"Set", "C3CR", 0, 3, 1, false, "d"},   {"Set", "C4CR", 0, 4, 1, false, "d"},    {"Copy", "C1MR", 1, 1, 1, false, "", true},
    {"Copy", "C3MR", 3, 3, 3, false, "", true}, {"Copy", "C4MR", 4, 4, 4, false, "", true}, {"Copy", "AC4MR", 4, 4, 3, false, "", true},
    {"Set", "C1MR", 0, 1, 1, false, "", true},  {"Set", "C3MR", 0, 3, 3, false, "", true},  {"Set", "C4MR", 0, 4, 4, false, "", true},
    {"Set", "AC4MR", 0, 4, 3, false, "", true}, {"CopyManaged", "C1R", 1, 1, 1, false, ""}};

// The reference of one row of a move: samples are byte blocks of sb.
void move_row(const Move& m, int sb, const u8* s, u8* d, int w, const u8* mask) {
    for (int x = 0; x < w; ++x)
        for (int c = 0; c < m.n && (!m.masked || mask[x]); ++c)
            std::memcpy(d + (std::size_t(x) * m.dc + c) * sb, s + (std::size_t(x) * m.sc + (m.spread ? 0 : c)) * sb, sb);
}

TEST(Copy, EveryFormMaskedOrNot) {
    std::uint32_t seed = 1;
    u8 value[16];
    for (int k = 0; k < 16; ++k) value[k] = u8(11 * k + 3);
    for (const Move& m : kMoves)
        for (const char* t : kTypes) {
            const bool managed = std::string(m.op) == "CopyManaged"; // flags from the width
            if ((managed || std::string(m.op) == "Dup") && std::string(t) != "8u") continue;
            const Fn& f = fn(m.op, t, m.form);
            const int sb = sample_bytes(t), sc = m.sc ? m.sc : 1;
            const int k = std::string(m.coi).empty() ? 0 : (m.sc > 1 ? m.sc : m.dc) - 1; // the last channel
            const int so = std::strchr(m.coi, 's') ? k * sb : 0, dof = std::strchr(m.coi, 'd') ? k * sb : 0;
            const Arg val = m.n == 1 ? Arg::bytes(value, sb) : Arg(value);
            // one call: from the source rows (or the value) to the destination rows
            auto run = [&](const Image& src, u8* dst, int dstStep, int h, int w, const Image& mask) {
                Args a = m.sc ? Args{src.ptr() + so, src.step(), dst + dof, dstStep, ZeliSize{w, h}} : Args{val, dst + dof, dstStep, ZeliSize{w, h}};
                if (m.masked) a.push_back(mask.ptr()), a.push_back(mask.step());
                if (managed) a.push_back(w % 4);
                return f(a);
            };
            auto row = [&](const Image& src, int r) { return m.sc ? src.row(r) + so : value; };
            for (const Variant& v : kVariants)
                for (int w : zt::sweep_widths()) {
                    const std::string at = std::string(m.op) + " " + t + " " + m.form + " width " + std::to_string(w);
                    Image src = image(w, 3, sc, sb, v, true), dst = image(w, 3, m.dc, sb, v, false);
                    Image mask(w, 3, 1, v.extraSrc, v.flush, v.offset);
                    src.fill_random(seed++);
                    dst.fill_random(seed++);
                    fill_mask(mask, seed++);
                    std::vector<u8> want = dst.bytes();
                    for (int r = 0; r < 3; ++r)
                        move_row(m, sb, row(src, r), want.data() + std::size_t(r) * dst.step() + dof, w, mask.row(r));
                    ASSERT_EQ(run(src, dst.ptr(), dst.step(), 3, w, mask), zelStatusOk) << at;
                    ASSERT_EQ(dst.bytes(), want) << at << " variant " << (&v - kVariants);
                }
            // Rows walked by a negative destination step land upside down; by
            // a zero step they all go to one row and the last one stays.
            for (int w : {5, 100}) {
                Image src(w * sb, 4, sc, 2 * sb), dst(w * sb, 4, m.dc), one(w * sb, 1, m.dc), mask(w, 4, 1, 1);
                src.fill_random(seed++);
                dst.fill_random(seed++);
                fill_mask(mask, seed++);
                std::vector<u8> want = dst.bytes(), wantOne = one.bytes();
                for (int r = 0; r < 4; ++r) {
                    move_row(m, sb, row(src, r), want.data() + std::size_t(3 - r) * dst.step() + dof, w, mask.row(r));
                    move_row(m, sb, row(src, r), wantOne.data() + dof, w, mask.row(r));
                }
                ASSERT_EQ(run(src, dst.row(3), -dst.step(), 4, w, mask), zelStatusOk);
                ASSERT_EQ(run(src, one.ptr(), 0, 4, w, mask), zelStatusOk);
                ASSERT_EQ(dst.bytes(), want) << m.form << " " << t << " negative step";
                ASSERT_EQ(one.bytes(), wantOne) << m.form << " " << t << " zero step";
            }
        }
}

TEST(Copy, PlanarBothWays) {
    std::uint32_t seed = 21;
    for (const char* t : kTypes)
        for (int c : {3, 4}) {
            const int sb = sample_bytes(t);
            const std::string n = std::to_string(c);
            const Fn& split = fn("Copy", t, "C" + n + "P" + n + "R");
            const Fn& join = fn("Copy", t, "P" + n + "C" + n + "R");
            for (const Variant& v : kVariants)
                for (int w : zt::sweep_widths()) {
                    Image inter = image(w, 3, c, sb, v, true);
                    std::vector<Image> planes;
                    for (int k = 0; k < c; ++k) planes.emplace_back(w * sb, 3, 1, v.extraDst * sb, v.flush, std::size_t(v.offset + k) * sb);
                    inter.fill_random(seed++);
                    for (Image& p : planes) p.fill_random(seed++);
                    u8* pp[4] = {};
                    for (int k = 0; k < c; ++k) pp[k] = planes[k].ptr();
                    const int ps = planes[0].step();
                    ASSERT_EQ(split({inter.ptr(), inter.step(), pp, ps, ZeliSize{w, 3}}), zelStatusOk);
                    for (int k = 0; k < c; ++k)
                        for (int y = 0; y < 3; ++y)
                            for (int x = 0; x < w; ++x)
                                ASSERT_EQ(std::memcmp(planes[k].row(y) + x * sb, inter.row(y) + (x * c + k) * sb, sb), 0)
                                    << "to planes " << t << " C" << c << " width " << w << " plane " << k << " x " << x;
                    for (Image& p : planes) p.fill_random(seed++);
                    std::vector<u8> want = inter.bytes();
                    for (int y = 0; y < 3; ++y)
                        for (int x = 0; x < w; ++x)
                            for (int k = 0; k < c; ++k)
                                std::memcpy(want.data() + std::size_t(y) * inter.step() + (x * c + k) * sb, planes[k].row(y) + x * sb, sb);
                    ASSERT_EQ(join({pp, ps, inter.ptr(), inter.step(), ZeliSize{w, 3}}), zelStatusOk);
                    ASSERT_EQ(inter.bytes(), want) << "from planes " << t << " C" << c << " width " << w;
                }
        }
}

// Null pointers come first (every plane and the mask too), then the size;
// steps are never checked; an error leaves the destination as it was.
TEST(Copy, StatusOrder) {
    Image a(16, 2, 4), b(16, 2, 4), m(4, 2, 1);
    a.fill_random(1);
    b.fill_random(2);
    m.fill_bytes(1);
    const std::vector<u8> before = b.bytes();
    const ZeliSize ok{4, 2}, zeroW{0, 2}, negH{4, -1};
    const int s = a.step();
    auto ends = [](const std::string& n, const char* tail) { return n.size() > std::strlen(tail) && n.compare(n.size() - std::strlen(tail), std::string::npos, tail) == 0; };
    for (const auto& [name, f] : list()) {
        const bool set = name.find("Set") != std::string::npos, masked = ends(name, "MR");
        const bool one = ends(name, "_C1R") || ends(name, "_C1MR") || ends(name, "CR"); // a single value
        const Arg v = one ? Arg(0) : Arg(a.ptr());
        if (set && masked) {
            EXPECT_EQ(f({v, b.ptr(), s, zeroW, nullptr, 4}), zelStatusNullPointer) << name;
            EXPECT_EQ(f({v, b.ptr(), s, zeroW, m.ptr(), 4}), zelStatusBadSize) << name;
        } else if (masked) {
            EXPECT_EQ(f({a.ptr(), s, b.ptr(), s, zeroW, nullptr, 4}), zelStatusNullPointer) << name;
            EXPECT_EQ(f({a.ptr(), s, b.ptr(), s, zeroW, m.ptr(), 4}), zelStatusBadSize) << name;
        } else if (set) {
            if (!one) {
                EXPECT_EQ(f({nullptr, b.ptr(), s, ok}), zelStatusNullPointer) << name;
            }
            EXPECT_EQ(f({v, nullptr, s, zeroW}), zelStatusNullPointer) << name;
            EXPECT_EQ(f({v, b.ptr(), s, negH}), zelStatusBadSize) << name;
        } else if (name.find('P') != std::string::npos) {
            u8* planes[4] = {b.ptr(), b.ptr(), nullptr, nullptr};
            const bool toPlanes = name[name.size() - 3] == 'P';
            EXPECT_EQ(toPlanes ? f({a.ptr(), s, planes, s, zeroW}) : f({planes, s, b.ptr(), s, zeroW}), zelStatusNullPointer) << name;
            EXPECT_EQ(toPlanes ? f({a.ptr(), s, nullptr, s, ok}) : f({nullptr, s, b.ptr(), s, ok}), zelStatusNullPointer) << name;
        } else {
            const bool managed = name.find("Managed") != std::string::npos;
            auto call = [&](Args args) {
                if (managed) args.push_back(Arg(0));
                return f(args);
            };
            EXPECT_EQ(call({nullptr, s, b.ptr(), s, zeroW}), zelStatusNullPointer) << name;
            EXPECT_EQ(call({a.ptr(), s, nullptr, s, ok}), zelStatusNullPointer) << name;
            EXPECT_EQ(call({a.ptr(), s, b.ptr(), s, negH}), zelStatusBadSize) << name;
            EXPECT_EQ(call({a.ptr(), -77, b.ptr(), 0, ZeliSize{0, 0}}), zelStatusBadSize) << name;
        }
    }
    EXPECT_EQ(b.bytes(), before);
}

// A small cache size makes large copies, fills and planar copies take their
// non-temporal paths, and long contiguous fills repeat a seed of the pattern
// (both pattern periods, unaligned starts): the bytes must not change.
TEST(Copy, LargeImages) {
    for (int cache : {4096, 0}) {
        zelSetMaxCacheSizeB(cache);
        const int w = 1100, h = 1000;
        for (int extra : {0, 7}) {
            Image src(w, h, 1, extra, zt::Flush::Head, 3), dst(w, h, 1, extra, zt::Flush::Head, 9);
            src.fill_random(1);
            ASSERT_EQ(zeliCopy_8u_C1R(src.ptr(), src.step(), dst.ptr(), dst.step(), {w, h}), zelStatusOk);
            for (int r = 0; r < h; ++r) ASSERT_EQ(std::memcmp(src.row(r), dst.row(r), w), 0) << "row " << r;
            const Zel8u v3[3] = {1, 2, 3};
            ASSERT_EQ(zeliSet_8u_C3R(v3, dst.ptr(), dst.step(), {w / 3, h}), zelStatusOk);
            for (int r = 0; r < h; r += 97)
                for (int x = 0; x < w / 3 * 3; ++x) ASSERT_EQ(dst.at(x, r), x % 3 + 1);
            zt::Image<Zel32f> inter(600, 200, 3, extra * 4, zt::Flush::Head, 4), p0(600, 200, 1, extra * 4),
                p1(600, 200, 1, extra * 4, zt::Flush::Head, 4), p2(600, 200, 1, extra * 4, zt::Flush::Head, 8);
            inter.fill_random(3);
            Zel32f* pp[3] = {p0.ptr(), p1.ptr(), p2.ptr()};
            ASSERT_EQ(zeliCopy_32f_C3P3R(inter.ptr(), inter.step(), pp, p0.step(), {600, 200}), zelStatusOk);
            for (int y = 0; y < 200; y += 13)
                for (int x = 0; x < 600; ++x) ASSERT_EQ(std::memcmp(&p2.at(x, y), &inter.at(x, y, 2), 4), 0);
        }
        for (std::size_t offset : {0, 4, 12}) {
            const int n = 100003; // above 256 KiB, odd remainder
            Image d8(n, 2, 3, 0, zt::Flush::Tail, offset);
            const Zel8u v3[3] = {7, 8, 9};
            ASSERT_EQ(zeliSet_8u_C3R(v3, d8.ptr(), d8.step(), {n, 2}), zelStatusOk);
            for (int y = 0; y < 2; ++y)
                for (int x = 0; x < n * 3; ++x) ASSERT_EQ(d8.row(y)[x], 7 + x % 3) << x;
        }
    }
}

} // namespace

// Box filter and sliding sums against direct window sums and the mean
// formulas written from their rules. Every member of the two lists runs over
// masks from 1x1 to beyond the 8100-pixel limit, anchors at the corners,
// widths around the vector blocks, heights around the in-place copy route and
// the thread gate, on sources that are exactly the frame the mask and anchor
// need (a read one pixel beyond it traps), at one and two threads.
#include "filter/frame.hpp"
#include "members.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <random>
#include <string>
#include <vector>

namespace {

struct Form {
    std::string type;
    int ch = 1, act = 1; // samples a pixel, samples with a result
    bool ip = false;
};
Form form_of(const std::string& name) {
    Form f;
    const std::string rest = name.substr(name.find('_') + 1);
    f.type = rest.substr(0, rest.find('_'));
    const std::string d = rest.substr(rest.find('_') + 1);
    f.ch = d[0] == 'A' ? 4 : d[1] - '0';
    f.act = d[0] == 'A' ? 3 : f.ch;
    f.ip = d.find('I') != std::string::npos;
    return f;
}

// ---- Mean formulas -------------------------------------------------------------------
void general8(int mW, int mH, std::uint32_t& mul, std::uint32_t& add, int& shift) {
    const int a = mW * mH;
    if (mW + mH == 3) { mul = 4096, add = 4096, shift = 13; return; }
    if (a == 1) { mul = 4096, add = 2048, shift = 12; return; }
    std::uint32_t t = std::uint32_t(std::llrint(double(1.0f / float(a)) * 4294967295.0));
    int n = 0;
    while (!(t >> 31) && n < 24) t <<= 1, ++n;
    mul = (t >> 20) + 1, shift = n + 12, add = 1u << (shift - 1);
}

// The mean of window sum S (exact, unbiased) of a w-pixel row at pixel x.
// copied: an in-place call whose mask is at least as high as the region.
double mean_of(const Form& f, long long S, int mW, int mH, bool copied, int x, int w) {
    const int a = mW * mH;
    const bool m33 = mW == 3 && mH == 3, m55 = mW == 5 && mH == 5, m77 = mW == 7 && mH == 7;
    if (f.type == "8u") {
        if (a > 8100) return std::trunc(float(S) * (1.0f / float(a)));
        std::uint32_t mul, add;
        int shift;
        general8(mW, mH, mul, add, shift);
        auto set = [&](std::uint32_t m, std::uint32_t d, int s) { mul = m, add = d, shift = s; };
        if (f.ch == 4 && f.act == 4) {
            if (m33) set(29127, 0, 18);
            if (m55) set(10485, 0, 18);
        } else if (f.ip && !copied) {
            if (f.ch == 1 && m33) set(7282, 0, 16);
            else if (f.ch == 1 && m55) set(2622, 0, 16);
            else if (m33) set(29128, 0, 18);
        } else if (!f.ip) {
            if (m33) set(29128, 0, 18);
            else if (m55 && f.act == f.ch) set(20971, 262144, 19);
            else if (m77 && f.ch == 1) set(10700, 262144, 19);
        }
        return double((std::uint32_t(S) * mul + add) >> shift);
    }
    if (f.type == "16s") {
        const std::uint32_t biased = std::uint32_t(S + 32768ll * a);
        if (f.ch == 1 && m77) {
            const float y = float(S) * (1.0f / 49.0f);
            return x < w - w % 8 ? std::nearbyint(y) : std::trunc(y);
        }
        if (f.ch == 4 && f.act == 4 && (m33 || m55))
            return std::trunc(float(biased) * (m33 ? 1.0f / 9.0f : 1.0f / 25.0f)) - 32768;
        return std::nearbyint(float(biased) * (1.0f / float(a))) - 32768;
    }
    if (f.type == "16u") return std::nearbyint(float(std::int32_t(std::uint32_t(S))) * (1.0f / float(a)));
    return double(S) / a; // floats: compared with a tolerance
}

template <class T>
T saturate(double v) {
    if (std::is_floating_point<T>::value) return T(v);
    const double lo = double(std::numeric_limits<T>::min()), hi = double(std::numeric_limits<T>::max());
    return T(v < lo ? lo : v > hi ? hi : v);
}

template <class T>
T sample(std::mt19937& rng) {
    if (std::is_floating_point<T>::value) return T(int(rng() % 2001) - 1000) / T(8);
    return T(rng());
}

struct Case {
    int w, h, mW, mH, aX, aY;
};
// Masks of every path (1x1, 1x2, 2x1, 3x3, 5x5, 7x7, even, long, beyond 8100),
// anchors at corners and off-centre, widths around the vector blocks.
std::vector<Case> box_cases() {
    std::vector<Case> v = {{1, 1, 1, 1, 0, 0},     {17, 3, 1, 2, 0, 1},    {33, 2, 2, 1, 1, 0},   {16, 5, 3, 3, 1, 1},
                           {15, 4, 3, 3, 0, 2},    {31, 6, 5, 5, 2, 2},    {64, 3, 5, 5, 4, 0},   {65, 9, 7, 7, 3, 3},
                           {100, 2, 7, 7, 6, 6},   {7, 8, 4, 6, 3, 0},     {3, 4, 1, 9, 0, 8},    {129, 3, 9, 1, 8, 0},
                           {40, 7, 15, 15, 7, 7},  {2, 3, 15, 15, 14, 0},  {5, 2, 90, 90, 45, 89}, {4, 3, 91, 90, 0, 0},
                           {257, 2, 17, 17, 16, 16}, {70, 70, 3, 5, 1, 4}, {66, 80, 6, 3, 5, 2}};
    return v;
}

template <class T>
void check_box(const zt::Member& m) {
    const Form f = form_of(m.name);
    using Fn = ZelStatus (*)(const T*, int, T*, int, ZeliSize, ZeliSize, ZeliPoint);
    using FnI = ZelStatus (*)(T*, int, ZeliSize, ZeliSize, ZeliPoint);
    std::uint32_t seed = 1;
    for (const Case& c : box_cases()) {
        const int fw = c.w + c.mW - 1, fh = c.h + c.mH - 1;
        for (int threads : {1, 2}) {
            if (threads == 2 && c.h < 64) continue;
            zelSetNumThreads(threads);
            std::mt19937 rng(seed++);
            const zt::Flush fl = seed % 2 ? zt::Flush::Tail : zt::Flush::Head;
            zt::Image<T> src(fw, fh, f.ch, int(seed % 3) * int(sizeof(T)), fl, seed % 4 * sizeof(T));
            for (int y = 0; y < fh; ++y)
                for (int i = 0; i < fw * f.ch; ++i) src.row(y)[i] = sample<T>(rng);
            const zt::Image<T> orig = [&] {
                zt::Image<T> o(fw, fh, f.ch);
                for (int y = 0; y < fh; ++y) std::memcpy(o.row(y), src.row(y), sizeof(T) * fw * f.ch);
                return o;
            }();
            zt::Image<T> dst(c.w, c.h, f.ch, int(seed % 2) * int(sizeof(T)), fl);
            for (int y = 0; y < c.h; ++y)
                for (int i = 0; i < c.w * f.ch; ++i) dst.row(y)[i] = sample<T>(rng);
            const std::vector<std::uint8_t> dst0 = dst.bytes();
            const ZeliSize roi{c.w, c.h}, mask{c.mW, c.mH};
            const ZeliPoint an{c.aX, c.aY};
            T* at = src.row(c.aY) + c.aX * f.ch;
            const ZelStatus st = f.ip ? reinterpret_cast<FnI>(m.fn)(at, src.step(), roi, mask, an)
                                      : reinterpret_cast<Fn>(m.fn)(at, src.step(), dst.ptr(), dst.step(), roi, mask, an);
            ASSERT_EQ(st, zelStatusOk) << m.name;
            const bool copied = f.ip && c.mH >= c.h;
            for (int y = 0; y < fh; ++y)
                for (int x = 0; x < fw; ++x)
                    for (int k = 0; k < f.ch; ++k) {
                        const bool inRoi = x >= c.aX && x < c.aX + c.w && y >= c.aY && y < c.aY + c.h;
                        const T got = f.ip ? src.at(x, y, k) : inRoi ? dst.at(x - c.aX, y - c.aY, k) : T(0);
                        if (f.ip && (!inRoi || k >= f.act)) {
                            ASSERT_EQ(std::memcmp(&got, &orig.at(x, y, k), sizeof(T)), 0) << m.name << " frame touched";
                            continue;
                        }
                        if (!inRoi) continue;
                        if (k >= f.act) continue; // out of place: the alpha check below
                        const int px = x - c.aX, py = y - c.aY;
                        long long S = 0;
                        double Sf = 0, Sa = 0;
                        for (int j = 0; j < c.mH; ++j)
                            for (int i = 0; i < c.mW; ++i) {
                                const T v = orig.at(px + i, py + j, k);
                                S += (long long)v, Sf += double(v), Sa += std::fabs(double(v));
                            }
                        const double want = std::is_floating_point<T>::value ? Sf / (c.mW * c.mH)
                                                                               : mean_of(f, S, c.mW, c.mH, copied, px, c.w);
                        if (std::is_floating_point<T>::value) {
                            const double tol = (sizeof(T) == 4 ? 4e-6 : 1e-13) * (Sa / (c.mW * c.mH) + 1) * (c.mW + c.mH);
                            ASSERT_NEAR(double(got), want, tol) << m.name << " at " << px << "," << py;
                        } else {
                            ASSERT_EQ(double(got), double(saturate<T>(want)))
                                << m.name << " " << c.w << "x" << c.h << " mask " << c.mW << "x" << c.mH << " anchor " << c.aX
                                << "," << c.aY << " at " << px << "," << py << "," << k << " S=" << S;
                        }
                    }
            if (!f.ip && f.act < f.ch) {
                const std::vector<std::uint8_t> now = dst.bytes();
                for (int y = 0; y < c.h; ++y)
                    for (int x = 0; x < c.w; ++x) {
                        const std::size_t o = std::size_t(y) * dst.step() + (std::size_t(x) * 4 + 3) * sizeof(T);
                        ASSERT_EQ(std::memcmp(&now[o], &dst0[o], sizeof(T)), 0) << m.name << " alpha at " << x << "," << y;
                    }
            }
        }
    }
    zelSetNumThreads(0);
}

template <class F>
void for_box(const char* prefix, F&& f) {
    int seen = 0;
    for (const zt::Member& m : zt::members()) {
        if (m.name.compare(0, std::strlen(prefix), prefix) != 0) continue;
        ++seen;
        std::string t = form_of(m.name).type;
        if (t.size() > 3 && t.compare(t.size() - 3, 3, "32f") == 0) t.erase(t.size() - 3); // 8u32f: the source type
        if (t == "8u") f(m, Zel8u());
        else if (t == "16s") f(m, Zel16s());
        else if (t == "16u") f(m, Zel16u());
        else if (t == "32f") f(m, Zel32f());
        else if (t != "64f") ADD_FAILURE() << m.name;
    }
    EXPECT_GT(seen, 0);
}

} // namespace

TEST(FilterBox, EveryMemberAgainstWindowSums) {
    for_box("zeliFilterBox", [](const zt::Member& m, auto tag) { check_box<decltype(tag)>(m); });
}

TEST(FilterBox, DoubleForm) {
    const Case cases[] = {{1, 1, 1, 1, 0, 0}, {33, 3, 5, 2, 2, 1}, {70, 66, 4, 4, 0, 3}, {9, 2, 20, 1, 19, 0}};
    for (const Case& c : cases)
        for (int threads : {1, 2}) {
            zelSetNumThreads(threads);
            const int fw = c.w + c.mW - 1, fh = c.h + c.mH - 1;
            zt::Image<Zel64f> src(fw, fh, 1), dst(c.w, c.h, 1);
            std::mt19937 rng(7);
            for (int y = 0; y < fh; ++y)
                for (int x = 0; x < fw; ++x) src.at(x, y) = (int(rng() % 20001) - 10000) / 3.0;
            ASSERT_EQ(zeliFilterBox_64f_C1R(&src.at(c.aX, c.aY), src.step(), dst.ptr(), dst.step(), {c.w, c.h}, {c.mW, c.mH},
                                            {c.aX, c.aY}),
                      zelStatusOk);
            for (int y = 0; y < c.h; ++y)
                for (int x = 0; x < c.w; ++x) {
                    long double s = 0;
                    for (int j = 0; j < c.mH; ++j)
                        for (int i = 0; i < c.mW; ++i) s += src.at(x + i, y + j);
                    ASSERT_NEAR(dst.at(x, y), double(s / (c.mW * c.mH)), 1e-9);
                }
        }
    zelSetNumThreads(0);
}

// Sliding sums: a float running sum, the first window added sample by sample,
// then the entering minus the leaving sample (an integer difference) a step;
// exact below 2^24, rounded beyond it (windows of 70000 samples).
template <class T>
void check_sumwin(const zt::Member& m) {
    const Form f = form_of(m.name);
    const bool rowForm = m.name.find("Row") != std::string::npos;
    using Fn = ZelStatus (*)(const T*, int, Zel32f*, int, ZeliSize, int, int);
    struct W { int w, h, len, anc; };
    const W cases[] = {{1, 1, 1, 0}, {17, 3, 3, 1}, {33, 2, 4, 0}, {64, 5, 7, 6}, {100, 3, 2, 1}, {5, 3, 70000, 123}};
    std::uint32_t seed = 3;
    for (const W& c : cases) {
        const int fw = rowForm ? c.w + c.len - 1 : c.w, fh = rowForm ? c.h : c.h + c.len - 1;
        std::mt19937 rng(seed++);
        zt::Image<T> src(fw, fh, f.ch, 0, seed % 2 ? zt::Flush::Tail : zt::Flush::Head);
        for (int y = 0; y < fh; ++y)
            for (int i = 0; i < fw * f.ch; ++i) src.row(y)[i] = c.len > 1000 ? std::numeric_limits<T>::max() - T(rng() % 3) : T(rng());
        zt::Image<Zel32f> dst(c.w, c.h, f.ch);
        const T* at = rowForm ? src.row(0) + c.anc * f.ch : src.row(c.anc);
        ASSERT_EQ(reinterpret_cast<Fn>(m.fn)(at, src.step(), dst.ptr(), dst.step(), {c.w, c.h}, c.len, c.anc), zelStatusOk);
        auto s_at = [&](int x, int y, int k) { return int(src.at(x, y, k)); };
        for (int k = 0; k < f.ch; ++k)
            for (int line = 0; line < (rowForm ? c.h : c.w); ++line) {
                // along the row `line`, or down the column `line`
                auto sample = [&](int p) { return rowForm ? s_at(p, line, k) : s_at(line, p, k); };
                float s = 0.0f;
                for (int q = 0; q < c.len; ++q) s += float(sample(q));
                for (int p = 0; p < (rowForm ? c.w : c.h); ++p) {
                    if (p > 0) s += float(sample(p - 1 + c.len) - sample(p - 1));
                    const int x = rowForm ? p : line, y = rowForm ? line : p;
                    ASSERT_EQ(dst.at(x, y, k), s) << m.name << " len " << c.len << " at " << x << "," << y;
                }
            }
    }
}

TEST(SumWindow, EveryMemberExact) {
    for_box("zeliSumWindow", [](const zt::Member& m, auto tag) { check_sumwin<decltype(tag)>(m); });
}

TEST(FilterBox, StatedValuesAndChecks) {
    // flat 255: 3x3 and 5x5 give 255 in C1R, C3R and C1IR, 254 in C4R
    for (int s : {3, 5}) {
        std::vector<Zel8u> img(4 * 9 * 9, 255), out(4 * 4, 0);
        const ZeliSize roi{4, 1}, mask{s, s};
        const ZeliPoint an{s / 2, s / 2};
        ASSERT_EQ(zeliFilterBox_8u_C1R(img.data() + an.y * 9 + an.x, 9, out.data(), 4, roi, mask, an), zelStatusOk);
        EXPECT_EQ(out[0], 255);
        ASSERT_EQ(zeliFilterBox_8u_C4R(img.data() + an.y * 36 + an.x * 4, 36, out.data(), 16, roi, mask, an), zelStatusOk);
        EXPECT_EQ(out[0], 254);
        std::vector<Zel8u> big(9 * 20, 255);
        ASSERT_EQ(zeliFilterBox_8u_C1IR(big.data() + an.y * 9 + an.x, 9, {4, 10}, mask, an), zelStatusOk);
        EXPECT_EQ(big[an.y * 9 + an.x], 255);
    }
    // 8100 stays on the rounded integer path, 8101 truncates a float product
    // 16s: a flat -1 gives -1
    Zel16s m1[9] = {-1, -1, -1, -1, -1, -1, -1, -1, -1}, o16 = 0;
    ASSERT_EQ(zeliFilterBox_16s_C1R(m1, 6, &o16, 2, {1, 1}, {3, 3}, {0, 0}), zelStatusOk);
    EXPECT_EQ(o16, -1);
    // a 1x1 mask copies floats bit for bit: -0 and a quiet NaN's payload stay
    std::uint32_t bits[6] = {0x80000000u, 0x3fc00000u, 0x7fc01234u, 0x80000000u, 0x40000000u, 0xffc00001u}, out[6] = {};
    ASSERT_EQ(zeliFilterBox_32f_C3R(reinterpret_cast<Zel32f*>(bits), 24, reinterpret_cast<Zel32f*>(out), 24, {2, 1}, {1, 1}, {0, 0}),
              zelStatusOk);
    EXPECT_EQ(std::memcmp(bits, out, sizeof bits), 0);
    // order of checks: null, step, size, mask, anchor
    Zel8u p[16] = {};
    EXPECT_EQ(zeliFilterBox_8u_C1R(nullptr, 0, p, 0, {0, 0}, {0, 0}, {-1, -1}), zelStatusNullPointer);
    EXPECT_EQ(zeliFilterBox_8u_C1R(p, 0, p + 1, 4, {0, 0}, {0, 0}, {-1, -1}), zelStatusBadStep);
    EXPECT_EQ(zeliFilterBox_8u_C1R(p, 4, p + 1, 4, {0, 1}, {0, 0}, {-1, -1}), zelStatusBadSize);
    EXPECT_EQ(zeliFilterBox_8u_C1R(p, 4, p + 1, 4, {1, 1}, {1, 0}, {-1, -1}), zelStatusBadMaskSize);
    EXPECT_EQ(zeliFilterBox_8u_C1R(p, 4, p + 1, 4, {1, 1}, {2, 2}, {2, 0}), zelStatusBadAnchor);
    float fp[16] = {};
    EXPECT_EQ(zeliFilterBox_32f_C1R(fp, 8, fp + 8, 8, {2, 1}, {2, 1}, {0, 0}), zelStatusBadStep);
    EXPECT_EQ(zeliFilterBox_32f_C1R(fp, 12, fp + 8, 8, {2, 1}, {2, 1}, {0, 0}), zelStatusOk);
    double dp[16] = {};
    EXPECT_EQ(zeliFilterBox_64f_C1R(dp, 16, dp + 8, 16, {2, 1}, {0, 1}, {5, 5}), zelStatusBadSize);
    EXPECT_EQ(zeliFilterBox_64f_C1R(dp, 16, dp + 8, 16, {2, 1}, {2, 1}, {5, 5}), zelStatusBadStep);
    // equal pointers act in place on the destination's step
    Zel8u a[2 * 8] = {10, 20, 30, 40, 0, 0, 0, 0, 50, 60, 70, 80, 0, 0, 0, 0};
    ASSERT_EQ(zeliFilterBox_8u_C1R(a + 1, 3, a + 1, 8, {3, 1}, {2, 2}, {1, 0}), zelStatusOk);
    EXPECT_EQ(a[1], 35);
    EXPECT_EQ(a[3], 55);
    // sliding sums: a height of 0 is no error but for 16u rows
    Zel8u s8[4] = {1, 2, 3, 4};
    Zel16u s16[4] = {};
    Zel32f d[4] = {};
    EXPECT_EQ(zeliSumWindowRow_8u32f_C1R(s8, 4, d, 16, {1, 0}, 2, 0), zelStatusOk);
    EXPECT_EQ(zeliSumWindowRow_16u32f_C1R(s16, 4, d, 16, {1, 0}, 2, 0), zelStatusBadSize);
    EXPECT_EQ(zeliSumWindowColumn_8u32f_C1R(s8, 4, d, 16, {1, 1}, 0, 0), zelStatusBadMaskSize);
    EXPECT_EQ(zeliSumWindowColumn_8u32f_C1R(s8, 4, d, 16, {1, 1}, 2, 2), zelStatusBadAnchor);
}

// The neighbourhood frame the filter families share: bands of height / team
// rows with the remainder on the last thread, one state a thread carved from
// one block (or from slices of a caller's buffer), and a refused block that
// runs nothing.
TEST(NeighbourhoodFrame, BandsStatesAndBuffers) {
    using namespace zel::filt;
    EXPECT_EQ(frame_origin(reinterpret_cast<const Zel8u*>(1000), 100, box_margins({5, 3}, {1, 2}), 3),
              reinterpret_cast<const Zel8u*>(1000 - 200 - 3));
    const Margins k = kernel_margins({5, 3}, {1, 2});
    EXPECT_EQ(k.left + k.top * 10 + k.right * 100 + k.bottom * 1000, 3 + 0 + 100 + 2000);
    zelSetNumThreads(2);
    for (int height : {1, 5, 64, 99}) {
        std::vector<int> owner(height, -1);
        std::vector<std::uintptr_t> states(2, 0);
        const ZelStatus st = run_bands(
            height, 2, [&](zel::Carve& c) { return c.take<double>(37, 64); },
            [&](int first, int rows, double* s) {
                const int t = omp_get_thread_num();
                states[t] = reinterpret_cast<std::uintptr_t>(s);
                for (int r = first; r < first + rows; ++r) owner[r] = t;
            });
        ASSERT_EQ(st, zelStatusOk);
        for (int r = 0; r < height; ++r) ASSERT_GE(owner[r], 0) << height;
        if (height >= 2 && states[1]) {
            EXPECT_EQ(owner[height / 2 - 1], 0);
            EXPECT_EQ(owner[height - 1], 1);
            EXPECT_EQ(states[0] % 64, 0u);
            EXPECT_NE(states[0], states[1]);
        }
    }
    // a state that cannot be had: nothing runs
    bool ran = false;
    EXPECT_EQ(run_bands(10, 2, [](zel::Carve& c) { return c.take<char>(std::size_t(-1) / 2); }, [&](int, int, char*) { ran = true; }),
              zelStatusMemAlloc);
    EXPECT_FALSE(ran);
    // slices of a caller's buffer: distinct, inside it, never more threads than slices
    std::vector<char> buf(4 * 256 + 64);
    std::vector<char*> seen;
    run_bands_in(buf.data(), 256, 4, 50, 8, [](zel::Carve& c) { return c.take<char>(200, 16); },
                 [&](int, int, char* s) {
#pragma omp critical
                     seen.push_back(s);
                 });
    for (char* s : seen) {
        EXPECT_GE(s, buf.data());
        EXPECT_LE(s + 200, buf.data() + buf.size());
    }
    zelSetNumThreads(0);
}

// Row, column and general filters against direct convolution sums written
// from the rules: the kernel reversed against the image, 32-bit integer sums
// for 8u, 64-bit for 16s C1 and the Round32s forms, taps scaled before
// summing for 16s and 16u, float sums in kernel order (the order the library
// documents), and the conversions by divisor class and round mode. Every
// member of the lists runs through the member harness (random kernels, masks
// and anchors, sources that are exactly the frame the kernel reads) over
// widths around the vector blocks and a size above the thread gate, with
// every divisor class and round mode; a few direct cases pin the stated
// values, cancellation and reads before the frame.
#include "members.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <string>
#include <vector>

namespace {

using ll = long long;

struct Kind {
    enum Sum { Div8, Div16, Scaled, Float, Double, Round16, Round32s, Round32f } sum;
    int dim = 2; // 0 row, 1 column, 2 general
    std::string src, dst;
    int ch = 1, act = 1;
};

bool kind_of(const std::string& name, Kind& k) {
    const bool rowF = name.compare(0, 13, "zeliFilterRow") == 0, colF = name.compare(0, 16, "zeliFilterColumn") == 0;
    const bool twoF = name.compare(0, 11, "zeliFilter_") == 0 || name.compare(0, 14, "zeliFilter32f_") == 0;
    if (!(rowF || colF || twoF)) return false;
    k.dim = rowF ? 0 : colF ? 1 : 2;
    const bool f32 = name.find("32f_") == name.find('_') - 3 && name.find("Round") == std::string::npos;
    std::vector<std::string> tok;
    for (std::size_t a = name.find('_') + 1, b; a < name.size(); a = b + 1) {
        b = name.find('_', a);
        if (b == std::string::npos) b = name.size();
        tok.push_back(name.substr(a, b - a));
    }
    const std::string desc = tok.back();
    k.ch = desc[0] == 'A' ? 4 : desc[1] - '0';
    k.act = desc[0] == 'A' ? 3 : k.ch;
    std::string t = tok[0];
    if (t.compare(0, 5, "Round") == 0) {
        k.src = k.dst = tok[1];
        k.sum = t == "Round16s" ? Kind::Round16 : t == "Round32s" ? Kind::Round32s : Kind::Round32f;
        return true;
    }
    if (t == "8s16s" || t == "8u16s") k.src = t.substr(0, 2), k.dst = "16s";
    else k.src = k.dst = t;
    if (k.src == "64f") k.sum = Kind::Double;
    else if (f32 || k.src == "32f") k.sum = Kind::Float;
    else if (k.src == "8u") k.sum = Kind::Div8;
    else if (k.src == "16s" && k.dim == 2 && desc == "C1R") k.sum = Kind::Div16;
    else k.sum = Kind::Scaled;
    return true;
}

// ---- Conversions from the rules -------------------------------------------------------------
struct Range {
    double lo, hi;
};
Range range_of(const std::string& t) {
    if (t == "8u") return {0, 255};
    if (t == "8s") return {-128, 127};
    if (t == "16u") return {0, 65535};
    if (t == "16s") return {-32768, 32767};
    if (t == "32s") return {-2147483648.0, 2147483647.0};
    return {-INFINITY, INFINITY};
}
double sat(double v, const Range& r) { return v < r.lo ? r.lo : v > r.hi ? r.hi : v; }
// y rounded by mode: 0 towards zero, 1 ties to even, 2 ties away.
long double by_mode(long double y, int mode) { return mode == 0 ? truncl(y) : mode == 1 ? nearbyintl(y) : roundl(y); }
double convert_float(float y, const Range& r, int mode) {
    if (std::isnan(y)) return r.lo;
    if (y >= r.hi) return r.hi;
    if (y <= r.lo) return r.lo;
    return double(by_mode(y, mode));
}
bool pow2(int d, int& k) {
    if (d < 2 || (d & (d - 1))) return false;
    for (k = 0; (1 << k) < d; ++k) {
    }
    return true;
}
// An integer sum s by divisor d: round = -1 for the forms without a round mode.
double convert_int(ll s, int d, int round, bool quotInDouble, const Range& r) {
    const int mode = round < 0 ? 1 : round;
    int k;
    if (d == 1) return sat(double(s), r);
    if (pow2(d, k)) return sat(double(by_mode((long double)s / (long double)(1ll << k), mode)), r);
    if (round == 0) return sat(double(s / d), r);
    if (quotInDouble) return sat(double(by_mode((long double)(double(s) / double(d)), mode)), r);
    return convert_float(float(s) * (1.0f / float(d)), r, mode);
}

double read(const std::string& t, const std::uint8_t* p) {
    auto get = [&](auto v) {
        std::memcpy(&v, p, sizeof v);
        return double(v);
    };
    if (t == "8u") return get(std::uint8_t());
    if (t == "8s") return get(std::int8_t());
    if (t == "16u") return get(std::uint16_t());
    if (t == "16s") return get(std::int16_t());
    if (t == "32s") return get(std::int32_t());
    if (t == "32f") return get(float());
    return get(double());
}
int size_of(const std::string& t) {
    return t == "8u" || t == "8s" ? 1 : t == "16u" || t == "16s" ? 2 : t == "64f" ? 8 : 4;
}

struct Size {
    int w, h, threads;
};
const std::vector<Size> kSizes = {{1, 1, 1},  {3, 2, 1},  {15, 2, 1}, {16, 3, 1},  {17, 2, 1},  {31, 1, 1},
                                  {33, 2, 1}, {64, 2, 1}, {65, 3, 1}, {100, 2, 1}, {129, 1, 1}, {70, 70, 2}};

void check_member(const zt::Member& m, const Kind& k) {
    const bool hasDiv = std::find_if(m.params.begin(), m.params.end(), [](const zt::Param& p) { return p.name == "divisor"; }) !=
                        m.params.end();
    const bool hasRound = k.sum == Kind::Round16 || k.sum == Kind::Round32s || k.sum == Kind::Round32f;
    const std::vector<int> divisors = hasDiv ? std::vector<int>{1, 2, 4, 3, 7, -1, -3, 9, 16} : std::vector<int>{1};
    const Range rg = range_of(k.dst);
    const int ss = size_of(k.src), ds = size_of(k.dst);
    std::uint32_t seed = 11;
    for (const Size& sz : kSizes)
        for (int d : divisors)
            for (int mode = hasRound ? 0 : -1; mode <= (hasRound ? 2 : -1); ++mode) {
                if (sz.threads > 1 && (d == 3 || d == 16 || d == -1 || mode == 0)) continue;
                zelSetNumThreads(sz.threads);
                zt::Call call(m, {sz.w, sz.h}, seed++);
                ASSERT_TRUE(call.supported()) << m.name << ": " << call.why();
                if (hasDiv) call.set_value("divisor", d);
                if (hasRound) call.set_value("roundMode", mode);
                ASSERT_EQ(call.run(), zelStatusOk) << m.name;
                // kernel geometry
                int kW = 1, kH = 1, aX = 0, aY = 0;
                if (k.dim == 2) {
                    const ZeliSize ks = call.value<ZeliSize>("kernelSize");
                    const ZeliPoint a = call.value<ZeliPoint>("anchor");
                    kW = ks.width, kH = ks.height, aX = a.x, aY = a.y;
                } else if (k.dim == 0) {
                    kW = call.value<int>("kernelSize"), aX = call.value<int>("xAnchor");
                } else {
                    kH = call.value<int>("kernelSize"), aY = call.value<int>("yAnchor");
                }
                const int A = kW * kH;
                const bool intSum = k.sum == Kind::Div8 || k.sum == Kind::Div16 || k.sum == Kind::Round16 || k.sum == Kind::Round32s;
                std::vector<double> taps(A);
                std::vector<float> ftaps(A);
                for (int i = 0; i < A; ++i) {
                    if (k.sum == Kind::Round16) taps[i] = call.element<Zel16s>("pKernel", i);
                    else if (k.sum == Kind::Double) taps[i] = call.element<Zel64f>("pKernel", i);
                    else if (k.sum == Kind::Float || k.sum == Kind::Round32f) taps[i] = call.element<Zel32f>("pKernel", i);
                    else taps[i] = call.element<Zel32s>("pKernel", i);
                    ftaps[i] = k.sum == Kind::Scaled ? float(taps[i]) * (1.0f / float(d)) : float(taps[i]);
                }
                const zt::Call::View src = call.view("pSrc"), dst = call.view("pDst");
                auto at = [&](int x, int y, int c) {
                    return read(k.src, src.first + std::ptrdiff_t(y) * src.step + (std::ptrdiff_t(x) * k.ch + c) * ss);
                };
                for (int y = 0; y < sz.h; ++y)
                    for (int x = 0; x < sz.w; ++x)
                        for (int c = 0; c < k.ch; ++c) {
                            const std::size_t off = std::size_t(y) * dst.step + (std::size_t(x) * k.ch + c) * ds;
                            const double got = read(k.dst, dst.now + off);
                            if (c >= k.act) {
                                ASSERT_EQ(std::memcmp(dst.now + off, dst.first + off, ds), 0) << m.name << " alpha";
                                continue;
                            }
                            ll si = 0;
                            float sf = 0;
                            double sd = 0;
                            for (int j = 0; j < kH; ++j)
                                for (int i = 0; i < kW; ++i) {
                                    const double v = at(x + aX - i, y + aY - j, c);
                                    const int t = j * kW + i;
                                    if (intSum) si += ll(taps[t]) * ll(v);
                                    const float pf = ftaps[t] * float(v);
                                    const double pd = taps[t] * v;
                                    sf = t == 0 ? pf : sf + pf;
                                    sd = t == 0 ? pd : sd + pd;
                                }
                            double want = 0;
                            switch (k.sum) {
                            case Kind::Div8: want = convert_int(ll(std::int32_t(std::uint32_t(si))), d, -1, false, rg); break;
                            case Kind::Div16: want = convert_int(si, d, -1, false, rg); break;
                            case Kind::Round16: want = convert_int(ll(std::int32_t(std::uint32_t(si))), d, mode, true, rg); break;
                            case Kind::Round32s: want = convert_int(si, d, mode, false, rg); break;
                            case Kind::Round32f: want = convert_float(sf, rg, mode); break;
                            case Kind::Double: want = sd; break;
                            default: want = k.dst == "32f" ? double(sf) : convert_float(sf, rg, 1); break;
                            }
                            const bool same = got == want || (std::isnan(got) && std::isnan(want));
                            ASSERT_TRUE(same) << m.name << " " << sz.w << "x" << sz.h << " kernel " << kW << "x" << kH << " anchor "
                                              << aX << "," << aY << " divisor " << d << " mode " << mode << " at " << x
                                              << "," << y << "," << c << ": got " << got << " want " << want;
                        }
            }
    zelSetNumThreads(0);
}

} // namespace

TEST(FilterLinear, EveryMemberAgainstDirectSums) {
    int seen = 0;
    for (const zt::Member& m : zt::members()) {
        Kind k;
        if (!kind_of(m.name, k)) continue;
        ++seen;
        check_member(m, k);
        if (::testing::Test::HasFatalFailure()) return;
    }
    EXPECT_EQ(seen, 58 + 41 + 24);
}

// Stated values: reversal, ties, negative divisors, wide taps, cancellation,
// anchors outside the kernel, and reads exactly at both ends of the frame.
TEST(FilterLinear, StatedValues) {
    // the kernel {1, 0, 0} with anchor 0 copies; {0, 0, 1} meets the pixel two to the left
    Zel8u s[6] = {10, 20, 30, 40, 50, 60}, d[4] = {};
    const Zel32s copy[3] = {1, 0, 0}, left[3] = {0, 0, 1};
    ASSERT_EQ(zeliFilterRow_8u_C1R(s + 2, 6, d, 4, {4, 1}, copy, 3, 0, 1), zelStatusOk);
    EXPECT_EQ(d[0], 30);
    ASSERT_EQ(zeliFilterRow_8u_C1R(s + 2, 6, d, 4, {4, 1}, left, 3, 0, 1), zelStatusOk);
    EXPECT_EQ(d[0], 10);
    // 8u sums 3, 5 and 1 by 2: 2, 2, 0 (ties to even); a negative divisor clears positive sums
    Zel8u one[3] = {3, 5, 1}, r[3] = {};
    const Zel32s k1[1] = {1};
    ASSERT_EQ(zeliFilterRow_8u_C1R(one, 3, r, 3, {3, 1}, k1, 1, 0, 2), zelStatusOk);
    EXPECT_EQ(r[0], 2);
    EXPECT_EQ(r[1], 2);
    EXPECT_EQ(r[2], 0);
    ASSERT_EQ(zeliFilterRow_8u_C1R(one, 3, r, 3, {3, 1}, k1, 1, 0, -1), zelStatusOk);
    EXPECT_EQ(r[0], 0);
    // a tap of 40000 (beyond 16 bits) gives the exact 32-bit sum
    const Zel32s wide[1] = {40000};
    ASSERT_EQ(zeliFilterColumn_8u_C1R(one, 3, r, 3, {3, 1}, wide, 1, 0, 40000 * 2), zelStatusOk);
    EXPECT_EQ(r[0], 2);
    // Round16s_8u sums 5 and 7 by 2 in modes 0, 1, 2: 2 2 3 and 3 4 4
    Zel8u v[2] = {5, 7}, o[2] = {};
    const Zel16s k16[1] = {1};
    alignas(16) Zel8u buf[1024];
    const int want[3][2] = {{2, 3}, {2, 4}, {3, 4}};
    for (int mo = 0; mo < 3; ++mo) {
        ASSERT_EQ(zeliFilter_Round16s_8u_C1R(v, 2, o, 2, {2, 1}, k16, {1, 1}, {0, 0}, 2, mo, buf), zelStatusOk);
        EXPECT_EQ(o[0], want[mo][0]);
        EXPECT_EQ(o[1], want[mo][1]);
    }
    // Round32s_16s: -5 by 2 gives -2, -2, -3
    Zel16s m5 = -5, q = 0;
    const Zel32s k32[1] = {1};
    for (int mo = 0; mo < 3; ++mo) {
        ASSERT_EQ(zeliFilter_Round32s_16s_C1R(&m5, 2, &q, 2, {1, 1}, k32, {1, 1}, {0, 0}, 2, mo, buf), zelStatusOk);
        EXPECT_EQ(q, mo == 2 ? -3 : -2);
    }
    EXPECT_EQ(zeliFilter_Round32s_16s_C1R(&m5, 2, &q, 2, {1, 1}, k32, {1, 1}, {0, 0}, 2, 3, nullptr), zelStatusBadRoundMode);
    EXPECT_EQ(zeliFilter_Round32s_16s_C1R(&m5, 2, &q, 2, {1, 1}, k32, {1, 1}, {0, 0}, 2, 1, nullptr), zelStatusNullPointer);
    // cancellation: the float sum in kernel order
    const float big[3] = {1e8f, 1.0f, -1e8f};
    float fs[5] = {1, 1, 1, 1, 1}, fd[3] = {};
    ASSERT_EQ(zeliFilterRow_32f_C1R(fs, 20, fd, 12, {3, 1}, big, 3, 2), zelStatusOk);
    EXPECT_EQ(fd[0], (1e8f * 1.0f + 1.0f) - 1e8f);
    // the anchor is free: K and -1 move the reads outside the kernel's span
    float wide5[9] = {1, 2, 3, 4, 5, 6, 7, 8, 9}, w1[2] = {};
    const float t3[3] = {1, 10, 100};
    ASSERT_EQ(zeliFilterRow_32f_C1R(wide5 + 4, 36, w1, 8, {2, 1}, t3, 3, 3), zelStatusOk);
    EXPECT_EQ(w1[0], 1 * wide5[7] + 10 * wide5[6] + 100 * wide5[5]);
    ASSERT_EQ(zeliFilterRow_32f_C1R(wide5 + 4, 36, w1, 8, {2, 1}, t3, 3, -1), zelStatusOk);
    EXPECT_EQ(w1[0], 1 * wide5[3] + 10 * wide5[2] + 100 * wide5[1]);
}

// Sources that end exactly at the frame's first and last sample on both
// sides (guard pages before and after): the general filter over widths
// around the vector blocks, every anchor of a 4x3 kernel.
TEST(FilterLinear, ExactFrames) {
    const float taps[12] = {1, -2, 3, 0.5f, 0.25f, -1, 2, 4, -3, 1, 1, 1};
    for (int w : {1, 5, 16, 17, 33, 65, 100})
        for (int ay = 0; ay < 3; ++ay)
            for (int ax = 0; ax < 4; ++ax)
                for (zt::Flush fl : {zt::Flush::Head, zt::Flush::Tail}) {
                    const int fw = w + 3, fh = 2 + 2;
                    zt::Image<Zel32f> src(fw, fh, 4, 0, fl), dst(w, 2, 4);
                    for (int y = 0; y < fh; ++y)
                        for (int i = 0; i < fw * 4; ++i) src.row(y)[i] = float((i * 7 + y * 3) % 23) - 11;
                    const ZeliPoint an{ax, ay};
                    ASSERT_EQ(zeliFilter_32f_AC4R(&src.at(3 - ax, 2 - ay), src.step(), dst.ptr(), dst.step(), {w, 2}, taps, {4, 3}, an),
                              zelStatusOk);
                    for (int y = 0; y < 2; ++y)
                        for (int x = 0; x < w; ++x) {
                            float s = 0;
                            for (int j = 0; j < 3; ++j)
                                for (int i = 0; i < 4; ++i) {
                                    const float p = taps[j * 4 + i] * src.at(3 - ax + x + ax - i, 2 - ay + y + ay - j, 1);
                                    s = i == 0 && j == 0 ? p : s + p;
                                }
                            ASSERT_EQ(dst.at(x, y, 1), s) << w << " anchor " << ax << "," << ay;
                        }
                }
}

TEST(FilterLinear, OrderOfChecksAndSizes) {
    Zel8u p[64] = {};
    const Zel32s k[3] = {1, 2, 1};
    EXPECT_EQ(zeliFilterRow_8u_C1R(p, 0, nullptr, 0, {0, 0}, k, 0, 0, 0), zelStatusNullPointer);
    EXPECT_EQ(zeliFilterRow_8u_C1R(p, 0, p, 0, {0, 0}, k, 3, 0, 0), zelStatusBadSize);
    EXPECT_EQ(zeliFilterRow_8u_C1R(p, 0, p, 0, {2, 1}, k, 3, 0, 0), zelStatusBadDivisor);
    EXPECT_EQ(zeliFilterRow_8u_C1R(p, 3, p, 2, {2, 1}, k, 3, 0, 1), zelStatusBadStep);
    EXPECT_EQ(zeliFilterRow_8u_C1R(p + 2, 4, p + 16, 2, {2, 1}, k, 3, 0, 1), zelStatusOk);
    // 16s: kernel, length and divisor come first; column C3 tests the width first
    Zel16s q[64] = {};
    EXPECT_EQ(zeliFilterRow_16s_C1R(nullptr, 0, q, 0, {1, 1}, k, 3, 0, 0), zelStatusBadDivisor);
    EXPECT_EQ(zeliFilterColumn_8u_C3R(nullptr, 0, nullptr, 0, {0, 1}, k, 3, 0, 1), zelStatusBadSize);
    EXPECT_EQ(zeliFilterColumn_8u_C1R(nullptr, 0, nullptr, 0, {0, 1}, k, 3, 0, 1), zelStatusNullPointer);
    const ZeliSize k3{3, 3};
    EXPECT_EQ(zeliFilter_16u_C1R(nullptr, 0, nullptr, 0, {1, 1}, nullptr, k3, {0, 0}, 1), zelStatusNullPointer);
    EXPECT_EQ(zeliFilter_16u_C1R(nullptr, 0, nullptr, 0, {1, 1}, k, k3, {0, 0}, 0), zelStatusBadDivisor);
    // buffer sizes: the stated formulas for n threads
    zelSetNumThreads(3);
    int size = 0;
    ASSERT_EQ(zeliFilterRoundGetBufSize16s_8u_C1R({3, 3}, 100, &size), zelStatusOk);
    EXPECT_EQ(size, ((4 * 9 + 100) * 4 + 15) * 3);
    ASSERT_EQ(zeliFilterRoundGetBufSize32s_16u_C3R({3, 2}, 10, &size), zelStatusOk);
    EXPECT_EQ(size, ((4 * 6 + 6 * 10) * 4 + 43) * 3);
    ASSERT_EQ(zeliFilterRoundGetBufSize32f_8u_C4R({2, 2}, 10, &size), zelStatusOk);
    EXPECT_EQ(size, ((4 * 4 + 8 * 10) * 4 + 15) * 3);
    ASSERT_EQ(zeliFilterRoundGetBufSize32s_16s_AC4R({2, 2}, 10, &size), zelStatusOk);
    EXPECT_EQ(size, ((4 + 10) * 16 + 31) * 3);
    ASSERT_EQ(zeliFilterGetBufSize_64f_C1R({5, 3}, 7, &size), zelStatusOk);
    EXPECT_EQ(size, (((7 >> 1) * 32 + 20) * 3 + 15) * 3);
    EXPECT_EQ(zeliFilterGetBufSize_64f_C1R({5, 3}, 0, &size), zelStatusBadSize);
    EXPECT_EQ(zeliFilterGetBufSize_64f_C1R({5, 3}, 1, nullptr), zelStatusNullPointer);
    EXPECT_EQ(zeliFilterRoundGetBufSize32f_8u_C1R({100000, 100000}, 1, &size), zelStatusBadSize);
    zelSetNumThreads(0);
}

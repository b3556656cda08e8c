// Every compare member, taken from its declaration list, against its rule
// written here: every operator and layout over the sweep shapes, NaN, the 8u
// shortcuts that never read the source, and the order of status checks.
#include "family_util.hpp"
#include "named_args.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

namespace {

const std::vector<zt::Named> kMembers = {
#define ZEL_FN(ret, name, params, args, impl) ZT_NAMED(name, args)
#include "zelip8/fn_compare.h"
#undef ZEL_FN
};

// The relation of operator op (5: the tolerance eps), false with NaN.
template <class T>
bool rel(int op, T a, T b, float eps) {
    switch (op) {
    case zelCmpLess: return a < b;
    case zelCmpLessEq: return a <= b;
    case zelCmpEq: return a == b;
    case zelCmpGreaterEq: return a >= b;
    case zelCmpGreater: return a > b;
    default: return std::fabs(float(a) - float(b)) <= eps;
    }
}

// Samples from a small set, so that equal pairs occur; floats get NaN and
// quarter steps too.
template <class T>
T sample(std::mt19937& rng) {
    const int v = int(rng() % 6);
    if (std::is_floating_point<T>::value) return v == 5 ? std::numeric_limits<T>::quiet_NaN() : T(v * 0.25);
    return std::is_signed<T>::value ? T(v - 2) : T(v);
}

template <class T>
void check(const zt::Named& m, const zt::Shape& shape, int op, std::mt19937& rng) {
    const zt::NameParts n = zt::name_parts(m.name);
    const bool constant = n.family.back() == 'C', eps = n.family.find("Eps") != std::string::npos;
    const int C = n.channels, w = shape.w, h = shape.h;
    zt::Image<T> a = zt::make_image<T>(shape, C), b(w, h, C);
    zt::Image<Zel8u> d = zt::make_image<Zel8u>(shape, 1);
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w * C; ++x) a.row(y)[x] = sample<T>(rng), b.row(y)[x] = sample<T>(rng);
    d.fill_random(rng());
    T k[4];
    for (T& v : k) v = std::is_floating_point<T>::value ? T(rng() % 5 * 0.25) : sample<T>(rng);
    zt::Args args;
    args.pSrc.p = args.pSrc1.p = a.ptr(), args.srcStep = args.src1Step = a.step();
    args.pSrc2.p = b.ptr(), args.src2Step = b.step(), args.pDst.p = d.ptr(), args.dstStep = d.step();
    args.roiSize = {w, h}, args.zelCmpOp = ZelCmpOp(op), args.value.set(k), args.eps = 0.25f;
    ASSERT_EQ(m.call(args), zelStatusOk) << m.name;
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) {
            bool all = true;
            for (int c = 0; c < n.active; ++c) all = all && rel(eps ? 5 : op, a.at(x, y, c), constant ? k[c] : b.at(x, y, c), 0.25f);
            ASSERT_EQ(d.at(x, y), all ? 255 : 0) << m.name << " op " << op << " " << w << "x" << h << " at " << x << "," << y;
        }
}

TEST(Compare, EveryMemberAgainstItsRule) {
    std::mt19937 rng(21);
    const auto shapes = zt::sweep_shapes({1, 3}, 3);
    for (const zt::Named& m : kMembers) {
        const std::string t = zt::name_parts(m.name).type;
        const int ops = m.name.find("Eps") != std::string::npos ? 1 : 5;
        for (const zt::Shape& s : shapes)
            for (int op = 0; op < ops; ++op) {
                ASSERT_TRUE(zt::with_type(t, [&](auto v) { check<decltype(v)>(m, s, op, rng); })) << m.name;
            }
    }
}

TEST(Compare, OperatorAboveFourDoesNothing) {
    zt::Image<Zel16s> a(8, 2, 1);
    zt::Image<Zel8u> d(8, 2, 1);
    a.fill_random(1), d.fill_random(2);
    const auto before = d.bytes();
    EXPECT_EQ(zeliCompare_16s_C1R(a.ptr(), a.step(), a.ptr(), a.step(), d.ptr(), d.step(), a.size(), ZelCmpOp(5)), zelStatusOk);
    EXPECT_EQ(zeliCompareC_32f_C1R(reinterpret_cast<Zel32f*>(a.ptr()), 16, 0.f, d.ptr(), d.step(), {4, 2}, ZelCmpOp(7)), zelStatusOk);
    EXPECT_EQ(d.bytes(), before);
}

TEST(Compare, StatusOrder) {
    zt::Image<Zel16u> a(8, 2, 4);
    zt::Image<Zel8u> d(8, 2, 1);
    const Zel16u* p = a.ptr();
    // null, steps, size
    EXPECT_EQ(zeliCompare_16u_C1R(p, 0, nullptr, 0, d.ptr(), 0, {0, 0}, zelCmpLess), zelStatusNullPointer);
    EXPECT_EQ(zeliCompare_16u_C1R(p, 16, p, 0, d.ptr(), 8, {0, 0}, zelCmpLess), zelStatusBadStep);
    EXPECT_EQ(zeliCompare_16u_C1R(p, 16, p, 16, d.ptr(), 8, {8, 0}, zelCmpLess), zelStatusBadSize);
    EXPECT_EQ(zeliCompareC_16u_C3R(p, 48, nullptr, d.ptr(), 8, {0, 0}, zelCmpLess), zelStatusNullPointer);
    EXPECT_EQ(zeliCompareC_16u_C1R(p, -1, 0, d.ptr(), 8, {0, 0}, zelCmpLess), zelStatusBadStep);
    EXPECT_EQ(zeliCompareC_16u_C1R(p, 16, 0, d.ptr(), 8, {0, 2}, zelCmpLess), zelStatusBadSize);
    // null, step, size, eps
    const Zel32f* f = reinterpret_cast<const Zel32f*>(p);
    EXPECT_EQ(zeliCompareEqualEps_32f_C1R(nullptr, 0, f, 0, d.ptr(), 0, {0, 0}, -1.f), zelStatusNullPointer);
    EXPECT_EQ(zeliCompareEqualEps_32f_C1R(f, 0, f, 16, d.ptr(), 4, {0, 0}, -1.f), zelStatusBadStep);
    EXPECT_EQ(zeliCompareEqualEps_32f_C1R(f, 16, f, 16, d.ptr(), 4, {0, 1}, -1.f), zelStatusBadSize);
    EXPECT_EQ(zeliCompareEqualEps_32f_C1R(f, 16, f, 16, d.ptr(), 4, {4, 1}, -1.f), zelStatusBadEpsilon);
    EXPECT_EQ(zeliCompareEqualEpsC_32f_C1R(f, 16, 0.f, d.ptr(), 4, {4, 1}, -0.5f), zelStatusBadEpsilon);
    EXPECT_EQ(zeliCompareEqualEpsC_32f_C3R(f, 16, nullptr, d.ptr(), 4, {4, 1}, -0.5f), zelStatusNullPointer);
}

// Greater than 255 and less than 0 never hold on 8u: the source is not read.
TEST(Compare, ShortcutNeverReadsSource) {
    zt::Image<Zel8u> guard(16, 1, 1), d(16, 4, 1, 3, zt::Flush::Head, 1);
    const Zel8u* unreadable = guard.ptr() + 16; // the guard page after the region
    for (auto [op, v] : {std::pair<ZelCmpOp, Zel8u>{zelCmpGreater, 255}, {zelCmpLess, 0}}) {
        d.fill_bytes(7);
        ASSERT_EQ(zeliCompareC_8u_C1R(unreadable, 64, v, d.ptr(), d.step(), {16, 4}, op), zelStatusOk);
        for (int y = 0; y < 4; ++y)
            for (int x = 0; x < 16; ++x) ASSERT_EQ(d.at(x, y), 0);
    }
}

} // namespace

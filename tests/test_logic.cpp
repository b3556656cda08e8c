// Bitwise operations, shifts and the complement against references written
// from the rules, for every member of the list at every level: widths around
// the vector widths, padded and unaligned rows, in place, AC4 alpha, shift
// counts in range, at and beyond the sample's bits and above 31, different
// counts per channel, and the order of the argument checks.
#include "members.hpp"

#include <gtest/gtest.h>

#include <cstring>
#include <random>
#include <string>

namespace {

// ---- The members, read from the declaration list ----------------------------------------
enum Kind { Two, Const, Not, Shift, Complement };
struct Form {
    const zt::Member* m;
    std::string fn, type;
    Kind kind;
    int ch, act;
    bool ip;
};

std::vector<Form> forms() {
    std::vector<Form> out;
    for (const zt::Member& m : zt::members()) {
        const std::string fn = m.name.substr(4, m.name.find('_') - 4);
        const Kind kind = fn == "And" || fn == "Or" || fn == "Xor"     ? Two
                          : fn == "AndC" || fn == "OrC" || fn == "XorC" ? Const
                          : fn == "Not"                                 ? Not
                          : fn == "LShiftC" || fn == "RShiftC"          ? Shift
                          : fn == "Complement"                          ? Complement
                                                                        : Kind(-1);
        if (kind == Kind(-1)) continue;
        const std::string rest = m.name.substr(m.name.find('_') + 1), d = rest.substr(rest.find('_') + 1);
        const bool ac4 = d.compare(0, 3, "AC4") == 0;
        const int ch = ac4 ? 4 : d[1] - '0';
        out.push_back({&m, fn, rest.substr(0, rest.find('_')), kind, ch, ac4 ? 3 : ch, d.find("IR") != std::string::npos});
    }
    return out;
}

// Calls a member: b is the second image, `vals` its values or counts.
template <class T>
ZelStatus call(const Form& f, const T* a, int as, const T* b, int bs, const void* vals, T* d, int ds, ZeliSize r) {
    using S = ZelStatus;
    const void* fn = f.m->fn;
    const T* v = static_cast<const T*>(vals);
    const Zel32u* k = static_cast<const Zel32u*>(vals);
    switch (f.kind) {
    case Two:
        if (f.ip) return reinterpret_cast<S (*)(const T*, int, T*, int, ZeliSize)>(fn)(a, as, d, ds, r);
        return reinterpret_cast<S (*)(const T*, int, const T*, int, T*, int, ZeliSize)>(fn)(a, as, b, bs, d, ds, r);
    case Not:
    case Complement:
        if (f.ip) return reinterpret_cast<S (*)(T*, int, ZeliSize)>(fn)(d, ds, r);
        return reinterpret_cast<S (*)(const T*, int, T*, int, ZeliSize)>(fn)(a, as, d, ds, r);
    case Const:
        if (f.ch == 1 && f.ip) return reinterpret_cast<S (*)(T, T*, int, ZeliSize)>(fn)(*v, d, ds, r);
        if (f.ch == 1) return reinterpret_cast<S (*)(const T*, int, T, T*, int, ZeliSize)>(fn)(a, as, *v, d, ds, r);
        if (f.ip) return reinterpret_cast<S (*)(const T*, T*, int, ZeliSize)>(fn)(v, d, ds, r);
        return reinterpret_cast<S (*)(const T*, int, const T*, T*, int, ZeliSize)>(fn)(a, as, v, d, ds, r);
    default:
        if (f.ch == 1 && f.ip) return reinterpret_cast<S (*)(Zel32u, T*, int, ZeliSize)>(fn)(*k, d, ds, r);
        if (f.ch == 1) return reinterpret_cast<S (*)(const T*, int, Zel32u, T*, int, ZeliSize)>(fn)(a, as, *k, d, ds, r);
        if (f.ip) return reinterpret_cast<S (*)(const Zel32u*, T*, int, ZeliSize)>(fn)(k, d, ds, r);
        return reinterpret_cast<S (*)(const T*, int, const Zel32u*, T*, int, ZeliSize)>(fn)(a, as, k, d, ds, r);
    }
}

// ---- The rule of each operation on one sample ----------------------------------------------
template <class T>
T reference(const Form& f, T x, T y, T v, Zel32u k) {
    using U = std::make_unsigned_t<T>;
    constexpr Zel32u bits = 8 * sizeof(T);
    const char op = f.fn[0];
    if (f.kind == Two || f.kind == Const) {
        const T c = f.kind == Two ? y : v;
        return op == 'A' ? T(x & c) : op == 'O' ? T(x | c) : T(x ^ c);
    }
    if (f.kind == Not) return T(~x);
    if (f.kind == Complement) {
        const std::uint32_t u = std::uint32_t(x), s = std::int32_t(x) < 0 ? ~0u : 0u;
        return T(((u ^ s) - s) | (u & 0x80000000u));
    }
    if (op == 'L') return k >= bits ? T(0) : T(U(U(x) << k));
    if (std::is_signed<T>::value) return T(std::int32_t(x) >> (k > 31 ? 31 : k));
    return k >= bits ? T(0) : T(U(x) >> k);
}

// Counts of a sweep: equal on every channel, or different ones.
std::vector<std::vector<Zel32u>> count_sets(int bits) {
    std::vector<std::vector<Zel32u>> s;
    for (Zel32u k : {0u, 1u, 3u, Zel32u(bits - 1), Zel32u(bits), Zel32u(bits + 1), 31u, 32u, 40u, 0x80000000u})
        s.push_back({k, k, k, k});
    s.push_back({0, 5, Zel32u(bits), 2});
    s.push_back({1, 40, 1, 1});
    return s;
}

template <class T>
void check(const Form& f) {
    const auto shapes = zt::sweep_shapes({1, 3}, 3);
    const auto sets = f.kind == Shift ? count_sets(8 * sizeof(T)) : std::vector<std::vector<Zel32u>>{{}};
    unsigned seed = 1;
    zt::for_each_level([&](int) {
        for (std::size_t i = 0; i < shapes.size(); ++i)
            for (std::size_t j = 0; j < sets.size(); ++j, ++seed) {
                if (sets.size() > 1 && (i + j) % 3) continue; // every count set on a third of the shapes
                const zt::Shape& sh = shapes[i];
                std::mt19937 rng(seed);
                zt::Image<T> a = zt::make_image<T>(sh, f.ch);
                zt::Image<T> b(sh.w, sh.h, f.ch, int(sizeof(T)) * int(seed % 2), zt::Flush::Tail, 0);
                zt::Image<T> d(sh.w, sh.h, f.ch, int(sizeof(T)) * int(seed % 3),
                               seed % 2 ? zt::Flush::Head : zt::Flush::Tail, sizeof(T) * (seed % 2));
                a.fill_random(seed), b.fill_random(seed + 1), d.fill_random(seed + 2);
                T vals[4];
                for (T& v : vals) v = T(rng());
                Zel32u counts[4] = {0, 0, 0, 0};
                if (f.kind == Shift) std::copy(sets[j].begin(), sets[j].end(), counts);
                // in place: the destination holds the first image (one source) or the second (two)
                zt::Image<T>& src = f.kind == Two ? b : a;
                if (f.ip)
                    for (int y = 0; y < sh.h; ++y) std::memcpy(d.row(y), src.row(y), sizeof(T) * sh.w * f.ch);
                const std::vector<std::uint8_t> before = d.bytes();
                const void* cv = f.kind == Shift ? static_cast<const void*>(counts) : vals;
                ASSERT_EQ(call<T>(f, a.ptr(), a.step(), b.ptr(), b.step(), cv, d.ptr(), d.step(), a.size()), zelStatusOk);
                for (int y = 0; y < sh.h; ++y) {
                    const T* old = reinterpret_cast<const T*>(before.data() + std::size_t(y) * d.step());
                    for (int x = 0; x < sh.w * f.ch; ++x) {
                        const int c = x % f.ch;
                        const T in = f.ip && f.kind != Two ? old[x] : a.row(y)[x];
                        const T want = c < f.act ? reference<T>(f, in, f.ip ? old[x] : b.row(y)[x], vals[c], counts[c]) : old[x];
                        ASSERT_EQ(d.row(y)[x], want) << f.m->name << " level " << zelGetIsaLevel() << " w=" << sh.w
                                                     << " x=" << x << " y=" << y << " count " << counts[c];
                    }
                    for (std::size_t k = std::size_t(sh.w) * f.ch * sizeof(T); y + 1 < sh.h && k < std::size_t(d.step()); ++k)
                        ASSERT_EQ(reinterpret_cast<const std::uint8_t*>(d.row(y))[k], before[std::size_t(y) * d.step() + k])
                            << f.m->name << " padding written";
                }
            }
    });
}

// Null, step, size; the two-image C3, C4 and AC4 forms look at the width
// first. Nothing is written on failure.
template <class T>
void check_order(const Form& f) {
    zt::Image<T> a(4, 2, f.ch), d(4, 2, f.ch);
    d.fill_bytes(7);
    const auto before = d.bytes();
    const std::uint32_t vals[4] = {1, 1, 1, 1};
    const bool widthFirst = f.kind == Two && f.ch > 1;
    auto run = [&](const T* src, T* dst, int step, ZeliSize r) { return call<T>(f, src, step, src, step, vals, dst, step, r); };
    EXPECT_EQ(run(a.ptr(), nullptr, 0, {0, 0}), widthFirst ? zelStatusBadSize : zelStatusNullPointer) << f.m->name;
    EXPECT_EQ(run(a.ptr(), nullptr, 0, {4, 0}), zelStatusNullPointer) << f.m->name;
    if (!f.ip) {
        EXPECT_EQ(run(nullptr, d.ptr(), 0, {4, 0}), zelStatusNullPointer) << f.m->name;
    }
    EXPECT_EQ(run(a.ptr(), d.ptr(), 0, {4, 0}), zelStatusBadStep) << f.m->name;
    EXPECT_EQ(run(a.ptr(), d.ptr(), a.step(), {4, 0}), zelStatusBadSize) << f.m->name;
    EXPECT_EQ(d.bytes(), before) << f.m->name;
}

template <void (*F8u)(const Form&), void (*F8s)(const Form&), void (*F16u)(const Form&), void (*F16s)(const Form&),
          void (*F32s)(const Form&)>
void for_forms() {
    const auto fs = forms();
    ASSERT_EQ(fs.size(), 217u);
    for (const Form& f : fs) {
        if (f.type == "8u") F8u(f);
        else if (f.type == "8s") F8s(f);
        else if (f.type == "16u") F16u(f);
        else if (f.type == "16s") F16s(f);
        else F32s(f);
        if (::testing::Test::HasFatalFailure()) return;
    }
}

TEST(Logic, EveryMemberAgainstItsRule) { for_forms<check<Zel8u>, check<Zel8s>, check<Zel16u>, check<Zel16s>, check<Zel32s>>(); }
TEST(Logic, CheckOrder) {
    for_forms<check_order<Zel8u>, check_order<Zel8s>, check_order<Zel16u>, check_order<Zel16s>, check_order<Zel32s>>();
}

TEST(Logic, StatedExamples) {
    Zel8u a[2] = {200, 1}, d[2];
    EXPECT_EQ(zeliLShiftC_8u_C1R(a, 2, 8, d, 2, {2, 1}), zelStatusOk);
    EXPECT_EQ(d[0], 0);
    zeliLShiftC_8u_C1R(a, 2, 1, d, 2, {2, 1});
    EXPECT_EQ(d[0], 144);
    zeliRShiftC_8u_C1R(a, 2, 0, d, 2, {2, 1});
    EXPECT_EQ(d[0], 200);
    Zel8s s[2] = {-5, 5}, e[2];
    zeliRShiftC_8s_C1R(s, 2, 40, e, 2, {2, 1});
    EXPECT_EQ(e[0], -1);
    EXPECT_EQ(e[1], 0);
    Zel32s c[3] = {-1, -2147483647 - 1, 7};
    zeliComplement_32s_C1IR(c, 12, {3, 1});
    EXPECT_EQ(std::uint32_t(c[0]), 0x80000001u);
    EXPECT_EQ(c[1], -2147483647 - 1);
    EXPECT_EQ(c[2], 7);
}

} // namespace

// Unary mathematics of an image: absolute value, square, square root, natural
// logarithm and exponential, sample by sample. The entries check their
// arguments (null, size, step), walk the rows and take the level's row kernel
// from unary_kernels.hpp; the square is the product of a sample with itself
// and runs on the multiplication's rows of arith.hpp. Only the square root
// forks: a row of at least 4096 floats (2048 integers) is split in two halves.
#pragma once

#include "arithmetic/rows.hpp"
#include "core/frame.hpp"

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <type_traits>

namespace zel {

enum class Un { Abs, Sqr, Sqrt, Ln, Exp };

// Steps of the integer exponential: e^x 2^-n, truncated and saturated, rises
// through at most 14 integer x from 0 to the type's maximum.
constexpr int kExpSteps = 16;

// What a row kernel needs beyond its rows.
struct UnArgs {
    int n = 0;       // scale factor, clamped to [-64, 64] (nothing changes beyond)
    float f = 1.0f;  // 2^-n
    double fd = 1.0; // 2^-n
    int m = 0;       // integer exponential: every sample at or above thr[j] gains delta[j]
    int thr[kExpSteps] = {}, delta[kExpSteps] = {};
};

} // namespace zel

#define ZEL_KERNELS_2 "arithmetic/unary_kernels.hpp"
#include "arithmetic/arith.hpp"

namespace zel {

// The integer exponential's steps for scale factor n. Beyond |n| = 1000 the
// scale moves into the exponent, where a double power of two cannot hold it.
template <class T>
void exp_steps(int n, UnArgs& a) {
    constexpr int lo = std::numeric_limits<T>::min(), hi = std::numeric_limits<T>::max();
    auto f = [&](int x) {
        const double v = n >= -1000 && n <= 1000 ? std::ldexp(std::exp(double(x)), -n)
                                                 : std::exp(double(x) - double(n) * 0.6931471805599453);
        return v >= hi ? hi : int(v);
    };
    const double start = std::floor(double(n) * 0.6931471805599453) - 2; // e^x 2^-n below 1 there
    int x = start < lo ? lo : start > hi ? hi : int(start);
    while (x > lo && f(x) > 0) x = x - 4 < lo ? lo : x - 4;
    for (int prev = 0;; ++x) {
        const int v = f(x);
        if (v > prev && a.m < kExpSteps) {
            a.thr[a.m] = x, a.delta[a.m] = v - prev, ++a.m;
            prev = v;
        }
        if (prev >= hi || x == hi) break;
    }
}

template <Un F, class T>
UnArgs un_args(int n) {
    UnArgs a;
    a.n = n < -64 ? -64 : n > 64 ? 64 : n;
    a.f = std::ldexp(1.0f, -a.n);
    a.fd = std::ldexp(1.0, -a.n);
    if constexpr (F == Un::Exp && !is_f<T>) exp_steps<T>(n, a);
    return a;
}

// Status of a row from the warning lanes it saw (bit 0 negative, bit 1 zero).
template <Un F>
inline ZelStatus un_warning(int seen) {
    if (F == Un::Sqrt && seen) return zelStatusSqrtNegativeWarning;
    if (F == Un::Ln && (seen & 1)) return zelStatusLnNegativeWarning;
    if (F == Un::Ln && seen) return zelStatusLnZeroWarning;
    return zelStatusOk;
}

// x * x: the product rows of the multiplication, with its scale cases.
template <class T, Layout L>
ZelStatus sqr_image(const T* s, int ss, T* d, int ds, ZeliSize roi, int n) {
    constexpr int SP = channels(L), AP = active(L);
    auto go = [&](auto tag) {
        constexpr Sc C = decltype(tag)::value;
        if constexpr (is_f<T>)
            apply_op<Op::Mul, T, C, SP, AP, false>(FloatOp<Op::Mul>{}, s, ss, s, ss, d, ds, roi, n, false);
        else
            apply_op<Op::Mul, T, C, SP, AP, false>(IntOp<Op::Mul, T, C>{n}, s, ss, s, ss, d, ds, roi, n, false);
    };
    if constexpr (is_f<T>) {
        go(std::integral_constant<Sc, Sc::Plain>{});
    } else if (const Sc c = scale_case<Op::Mul, T>(n); c == Sc::Zero) {
        const T zero[4] = {};
        fill_rows<T, SP, AP>(d, ds, roi.width, roi.height, zero);
    } else {
        with_case(c, go);
    }
    return zelStatusOk;
}

// The rows of every other function; the first row with a warning decides the
// status, and all rows run.
template <Un F, class T, Layout L>
ZelStatus un_rows(const T* s, int ss, T* d, int ds, ZeliSize roi, int n) {
    constexpr bool ALPHA = L == AC4;
    const UnArgs a = un_args<F, T>(n);
    const std::conditional_t<ALPHA, Keep<T>, NoKeep<T>> keep;
    const auto k = ZEL_PICK(unary_row<F, T, ALPHA>);
    const int split = F == Un::Sqrt && !ALPHA ? (is_f<T> ? 4096 : 2048) : 0;
    const int threads = split ? thread_count() : 1;
    ZelStatus status = zelStatusOk;
    for (int r = 0; r < roi.height; ++r) {
        const T* rs = row(s, ss, r);
        T* rd = row(d, ds, r);
        int seen = 0;
        for_spans((long long)roi.width * channels(L), [&](long long at, int len) {
            if (threads > 1 && len >= split && len >= threads)
                seen |= bands_frame(len, 2, [&](int first, int cnt, int) {
                    return k(rs + at + first, rd + at + first, cnt, a, keep.v);
                }) ? 1 : 0;
            else
                seen |= k(rs + at, rd + at, len, a, keep.v);
        });
        if (status == zelStatusOk) status = un_warning<F>(seen);
    }
    return status;
}

// Entry of every member. In place, s and d are the same image. The
// absolute value and the single-precision square root walk an out-of-place
// source by its step rounded down to whole samples; the destination step is
// taken as it is.
template <Un F, class T, Layout L, bool IP>
ZelStatus un(const T* s, int ss, T* d, int ds, ZeliSize roi, int n) {
    if (any_null(s, d)) return zelStatusNullPointer;
    if (bad_size(roi)) return zelStatusBadSize;
    if (any_bad_step(ss, ds)) return zelStatusBadStep;
    if constexpr (F == Un::Sqr) {
        return sqr_image<T, L>(s, ss, d, ds, roi, n);
    } else {
        if constexpr (!IP && (F == Un::Abs || (F == Un::Sqrt && is_f<T>))) ss &= ~int(sizeof(T) - 1);
        return un_rows<F, T, L>(s, ss, d, ds, roi, n);
    }
}

} // namespace zel

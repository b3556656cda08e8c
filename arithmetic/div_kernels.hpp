// Row kernels of the division, compiled once per level (read by
// core/simd/levels.hpp inside each level's namespace; includes nothing).
//
// A run of quotients of two images goes in blocks of eight samples from its
// start, then one block of four when four to seven are left, then single
// samples. A block without a zero divisor takes the refined reciprocal; a
// block with one, and the single samples, take true IEEE division. Which
// samples take which path depends only on their place in the run, never on
// the vector width or the alignment, so every level gives the same bits.

// a / b as r = rcp(b), e = 1 - b r, q = a r, q + (q + e q) e. The estimate is
// the same instruction at every level.
template <class V>
ZEL_VI V refined_div(V a, V b) {
    const V r = rcp(b);
    const V e = set1<V>(1.0f) - b * r;
    const V q = a * r;
    return q + (q + e * q) * e;
}

// True quotient; a zero divisor (of either sign) gives +inf or -inf by the
// dividend's sign, NaN for a zero or NaN dividend.
template <class V>
ZEL_VI V true_div(V a, V b) {
    const V z = zero<V>(), inf = set1<V>(std::numeric_limits<float>::infinity());
    const V fix = select(gt(a, z), inf, select(lt(a, z), -inf, set1<V>(std::numeric_limits<float>::quiet_NaN())));
    return select(eq(b, z), fix, a / b);
}

// Vectors of one block of eight floats: one of 32 bytes, or two of 16.
constexpr int kBlockBytes = kBytes < 32 ? 16 : 32;
constexpr int kBlockVecs = 32 / kBlockBytes;
using BlockV = Vec<float, kBlockBytes>;
using QuadV = Vec<float, 16>;

// Runs a run of n quotients through blk(i, count, vectors, exactOnly) in the
// block structure above: count 8 (kBlockVecs vectors of BlockV), 4 (one
// QuadV) or the last 1 to 3 samples (one partial QuadV, true division).
template <class Blk>
ZEL_VI void div_blocks(int n, Blk&& blk) {
    int i = 0;
    for (; i + 8 <= n; i += 8) blk(i, 8);
    if (n - i >= 4) {
        blk(i, 4);
        i += 4;
    }
    if (i < n) blk(i, n - i);
}

// Single-precision quotients of two images, d = y / x. Returns non-zero when a
// divisor was zero.
inline int div32f_run(const float* x, const float* y, float* d, int n) {
    int z = 0;
    div_blocks(n, [&](int i, int count) {
        if (count == 8) {
            BlockV b[kBlockVecs], a[kBlockVecs];
            BlockV zm = zero<BlockV>();
            for (int k = 0; k < kBlockVecs; ++k) {
                b[k] = load<BlockV>(x + i + k * BlockV::kLanes);
                a[k] = load<BlockV>(y + i + k * BlockV::kLanes);
                zm = zm | eq(b[k], zero<BlockV>());
            }
            const bool exact = any(zm);
            z |= exact;
            for (int k = 0; k < kBlockVecs; ++k)
                store(d + i + k * BlockV::kLanes, exact ? true_div(a[k], b[k]) : refined_div(a[k], b[k]));
        } else {
            const Part io{count};
            const QuadV b = io.get<QuadV>(x + i), a = io.get<QuadV>(y + i);
            const bool zeroDiv = (bits(eq(b, zero<QuadV>())) & ((1u << count) - 1)) != 0;
            z |= zeroDiv;
            io.put(d + i, count < 4 || zeroDiv ? true_div(a, b) : refined_div(a, b));
        }
    });
    return z;
}

// Single-precision quotient by a non-zero constant pattern: IEEE division.
template <int PER>
void div32f_const_row(const float* a, const float* b, float* d, int count) {
    using V = Vec<float>;
    walk<V>(count, d, [&](int i, auto io) {
        io.put(d + i, io.template get<V>(a + i) / io.template get<V>(b + i % PER));
    });
}

// ---- Integer quotients ------------------------------------------------------------
// Float to integer by mode: -1 the current rounding mode, 0 towards zero,
// 1 to nearest with ties to even, 2 to nearest with ties away from zero.
template <int R, int B>
ZEL_VI Vec<std::int32_t, B> to_int(Vec<float, B> q) {
    if constexpr (R < 0) return round_int(q);
    else if constexpr (R == 0) return trunc_int(q);
    else if constexpr (R == 1) return trunc_int(round_to<_MM_FROUND_TO_NEAREST_INT>(q));
    else {
        using V = Vec<float, B>;
        const V t = round_to<_MM_FROUND_TO_ZERO>(q);
        const V sign = q & set1<V>(-0.0f);
        const V away = ge(abs(q - t), set1<V>(0.5f));
        return trunc_int(t + (away & (sign | set1<V>(1.0f))));
    }
}

// The saturated extremes of P by the sign of each lane (0 stays 0).
template <class P, int B>
ZEL_VI Vec<std::int32_t, B> bound_of(Vec<std::int32_t, B> s) {
    using I = Vec<std::int32_t, B>;
    const I z = zero<I>();
    return (gt(s, z) & set1<I>(std::numeric_limits<P>::max())) | (lt(s, z) & set1<I>(std::numeric_limits<P>::min()));
}

// Integer quotients num / den of 32-bit lanes scaled by f = 2^-n, clamped and
// converted by R; D places n inside the float path, below it (every non-zero
// quotient saturates) or above it (every quotient is 0). CST: den is a
// non-zero constant whose float reciprocal multiplies. Without CST a zero
// divisor gives the saturated dividend. `exact`: true division.
template <class P, int R, Dc D, bool CST, int B>
ZEL_VI Vec<std::int32_t, B> int_quot(Vec<std::int32_t, B> num, Vec<std::int32_t, B> den, float f, bool exact) {
    using F = Vec<float, B>;
    using I = Vec<std::int32_t, B>;
    I res;
    if constexpr (D == Dc::In) {
        const F fn = to_float(num) * set1<F>(f), fd = to_float(den);
        F q;
        if constexpr (CST) q = to_float(num) * (set1<F>(f) * (set1<F>(1.0f) / fd));
        else q = exact ? fn / fd : refined_div(fn, fd);
        q = min(max(q, set1<F>(float(std::numeric_limits<P>::min()))), set1<F>(float(std::numeric_limits<P>::max())));
        res = to_int<R>(q);
    } else if constexpr (D == Dc::Below) {
        const I z = zero<I>();
        res = bound_of<P>(select(lt(den, z), -num, select(eq(den, z), z, num)));
    } else {
        res = zero<I>();
    }
    if constexpr (!CST) res = select(eq(den, zero<I>()), bound_of<P>(num), res);
    return res;
}

// Stores the first n lanes of 32-bit v saturated to P.
template <class P, int B>
ZEL_VI void put_narrow(P* d, Vec<std::int32_t, B> v, int n) {
    if constexpr (sizeof(P) == 2) store_n(d, narrow<P>(v, v), n);
    else store_n(d, narrow<P>(v, v, v, v), n);
}

// Integer quotients of two images in the block structure, d = y / x (or x / y
// with REV). Returns non-zero when a divisor was zero.
template <class P, int R, Dc D, bool REV>
int div_int_run(const P* x, const P* y, P* d, int n, float f) {
    using I = Vec<std::int32_t, kBlockBytes>;
    using I4 = Vec<std::int32_t, 16>;
    int z = 0;
    div_blocks(n, [&](int i, int count) {
        const P* num = REV ? x : y;
        const P* den = REV ? y : x;
        if (count == 8) {
            I nv[kBlockVecs], dv[kBlockVecs];
            I zm = zero<I>();
            for (int k = 0; k < kBlockVecs; ++k) {
                nv[k] = load_as<I>(num + i + k * I::kLanes);
                dv[k] = load_as<I>(den + i + k * I::kLanes);
                zm = zm | eq(dv[k], zero<I>());
            }
            const bool exact = any(zm);
            z |= exact;
            for (int k = 0; k < kBlockVecs; ++k)
                put_narrow(d + i + k * I::kLanes, int_quot<P, R, D, false>(nv[k], dv[k], f, exact), I::kLanes);
        } else {
            alignas(16) std::int32_t nn[4] = {0, 0, 0, 0}, dd[4] = {1, 1, 1, 1};
            for (int k = 0; k < count; ++k) nn[k] = num[i + k], dd[k] = den[i + k];
            const I4 nv = load<I4>(nn), dv = load<I4>(dd);
            const bool zero4 = any(eq(dv, zero<I4>()));
            z |= zero4;
            put_narrow(d + i, int_quot<P, R, D, false>(nv, dv, f, count < 4 || zero4), count);
        }
    });
    return z;
}

// Integer quotients by a constant pattern of period PER (never zero).
template <class P, int R, Dc D, int PER>
void div_int_const_row(const P* a, const P* b, P* d, int count, float f) {
    using I = Vec<std::int32_t>;
    constexpr int L = I::kLanes;
    int i = 0;
    for (; i + L <= count; i += L)
        put_narrow(d + i, int_quot<P, R, D, true>(load_as<I>(a + i), load_as<I>(b + i % PER), f, false), L);
    if (i < count) {
        alignas(64) std::int32_t nn[L], dd[L];
        for (int k = 0; k < L; ++k) nn[k] = 0, dd[k] = 1;
        for (int k = 0; k < count - i; ++k) nn[k] = a[i + k], dd[k] = b[(i + k) % PER];
        put_narrow(d + i, int_quot<P, R, D, true>(load<I>(nn), load<I>(dd), f, false), count - i);
    }
}

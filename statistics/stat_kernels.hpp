// Row kernels shared by the statistics families, compiled once per level (read
// by core/simd/levels.hpp inside each level's namespace; includes nothing):
//  - lanes_row: order-free integer reductions (exact sums, sums of magnitudes
//    and squares, largest magnitudes, counts) in vector lanes that live in a
//    LaneState between the rows of a call;
//  - f32_row: the Zel32f sums of a row in a fixed set of float lanes;
//  - f64_row: the eight Zel64f accumulators of the accurate Zel32f sums.

// ---- Terms -------------------------------------------------------------------------
// a, |a|, a^2 of d = a (or a - b), the same for scalars and vectors.
inline float absval(float x) { return __builtin_fabsf(x); }
inline double absval(double x) { return __builtin_fabs(x); }
template <class T, int B> ZEL_VI Vec<T, B> absval(Vec<T, B> x) { return abs(x); }

template <Term F, bool TWO, class X>
ZEL_VI X term(X a, X b) {
    const X d = TWO ? a - b : a;
    if constexpr (F == Term::Abs) return absval(d);
    else if constexpr (F == Term::Sq) return d * d;
    else return d;
}

// ---- Order-free integer reductions ---------------------------------------------------
// |a - b| (or |a|) of integer lanes, exact in unsigned lanes of the same size
// (the differences and negations wrap there, so -32768 gives 32768).
template <bool TWO, class T, int B>
ZEL_VI Vec<std::make_unsigned_t<T>, B> magnitude(Vec<T, B> a, Vec<T, B> b) {
    using M = std::make_unsigned_t<T>;
    if constexpr (TWO) {
        return bitcast<M>(max(a, b)) - bitcast<M>(min(a, b));
    } else if constexpr (std::is_signed<T>::value) {
        const Vec<T, B> neg = bitcast<T>(zero<Vec<M, B>>() - bitcast<M>(a)); // -minimum wraps to itself
        return bitcast<M>(max(a, neg));
    } else {
        return a;
    }
}
template <bool TWO, class T>
inline long long magnitude(T a, T b) {
    const long long d = TWO ? (long long)a - (long long)b : (long long)a;
    return d < 0 ? -d : d;
}

// The even and the odd lanes of a, widened by value to lanes of twice the
// size: lane j of out[0] is lane 2j of a, lane j of out[1] is lane 2j + 1.
template <class T, int B>
ZEL_VI void split_wide(Vec<T, B> a, Vec<typename IntOfSize<2 * sizeof(T)>::type, B>* out) {
    using W = typename IntOfSize<2 * sizeof(T)>::type;
    using UW = std::make_unsigned_t<W>;
    constexpr int S = 8 * int(sizeof(T));
    const Vec<UW, B> x = bitcast<UW>(a);
    if constexpr (std::is_signed<T>::value) out[0] = shr<S>(bitcast<W>(shl<S>(x)));
    else out[0] = bitcast<W>(x & set1<Vec<UW, B>>(UW((UW(1) << S) - 1)));
    out[1] = std::is_signed<T>::value ? shr<S>(bitcast<W>(x)) : bitcast<W>(shr<S>(x));
}
template <class U, class T, int B>
ZEL_VI void split(Vec<T, B> a, Vec<U, B>* out) {
    Vec<typename IntOfSize<2 * sizeof(T)>::type, B> w[2];
    split_wide(a, w);
    out[0] = bitcast<U>(w[0]);
    out[1] = bitcast<U>(w[1]);
}

// What a reduction makes of the samples. Every op has
//   U          the lane type
//   kVecs      lane vectors made from one vector of samples
//   sample(v, j)  the sample of a load that lane j of vector v holds (with one
//              channel the lanes may mix samples freely)
//   kLimit     periods a lane takes before it must be emptied
//   kMax       the lanes keep the largest term instead of the sum
//   terms(a, b, q, out)   the terms of load q of a period, into kVecs vectors
//   one(a, b, c)          the term of one sample of channel c
struct LaneOpBase {
    static constexpr bool kMax = false;
    explicit LaneOpBase(LaneState&) {}
    static int sample(int, int j) { return j; }
};
// Terms split twice into even and odd lanes: out[2 * v1 + v2].
struct Split2 {
    static int sample(int v, int j) { return 4 * j + 2 * (v & 1) + (v >> 1); }
};
struct Split1 {
    static int sample(int v, int j) { return 2 * j + v; }
};

// Sums of the samples (Sum) or of their magnitudes (L1): bytes of one channel
// by sums of absolute differences with zero, 8 bytes a lane; otherwise the
// even and the odd samples in lanes of twice the size.
template <Red R, class T, int MC, bool TWO>
struct LaneOp : LaneOpBase, Split1 {
    static_assert(R == Red::Sum || R == Red::L1, "the other reductions have their own ops");
    using LaneOpBase::LaneOpBase;
    using Split1::sample;
    using M = std::conditional_t<R == Red::Sum, T, std::make_unsigned_t<T>>; // what is summed
    using W = typename IntOfSize<2 * sizeof(T)>::type;
    static constexpr bool kSad = sizeof(T) == 1 && MC == 1;
    using U = std::conditional_t<kSad, std::uint64_t, std::conditional_t<std::is_signed<M>::value, W, std::make_unsigned_t<W>>>;
    static constexpr int kVecs = kSad ? 1 : 2;
    static constexpr long long kLimit = kSad ? (1LL << 50) : sizeof(T) == 1 ? 257 : 65536;
    template <class V, class A>
    void terms(V a, V b, int, A* out) const {
        Vec<M, V::kWidth> m;
        if constexpr (R == Red::Sum) m = a;
        else m = magnitude<TWO>(a, b);
        if constexpr (kSad) out[0] = sad(m, zero<decltype(m)>());
        else split(m, out);
    }
    long long one(T a, T b, int) const { return R == Red::Sum ? (long long)a : magnitude<TWO>(a, b); }
};

template <class T, int MC, bool TWO>
struct LaneOp<Red::L2, T, MC, TWO> : LaneOpBase, Split2 {
    using LaneOpBase::LaneOpBase;
    using Split2::sample;
    // bytes of one channel: pairs of squares in 32-bit lanes
    static constexpr bool kMadd = sizeof(T) == 1 && MC == 1;
    using U = std::conditional_t<kMadd, std::int32_t, std::conditional_t<sizeof(T) == 1, std::uint32_t, std::uint64_t>>;
    static constexpr int kVecs = kMadd ? 2 : 4;
    static constexpr long long kLimit = kMadd ? 16384 : sizeof(T) == 1 ? 65536 : (1LL << 31);
    template <class V, class A>
    void terms(V a, V b, int, A* out) const {
        const auto m = magnitude<TWO>(a, b);
        using W = Vec<std::conditional_t<sizeof(T) == 1, std::uint16_t, std::uint32_t>, V::kWidth>;
        W w[2];
        split(m, w);
        for (int k = 0; k < 2; ++k) {
            if constexpr (kMadd) {
                const auto x = bitcast<std::int16_t>(w[k]);
                out[k] = madd(x, x);
            } else {
                split(w[k] * w[k], out + 2 * k); // squares are exact in W
            }
        }
    }
    long long one(T a, T b, int) const {
        const long long m = magnitude<TWO>(a, b);
        return m * m;
    }
};

template <class T, int MC, bool TWO>
struct LaneOp<Red::Inf, T, MC, TWO> : LaneOpBase {
    using LaneOpBase::LaneOpBase;
    using U = std::make_unsigned_t<T>;
    static constexpr int kVecs = 1;
    static constexpr long long kLimit = 1LL << 50;
    static constexpr bool kMax = true;
    template <class V, class A>
    void terms(V a, V b, int, A* out) const { out[0] = magnitude<TWO>(a, b); }
    long long one(T a, T b, int) const { return magnitude<TWO>(a, b); }
};

template <class T, int MC, bool TWO>
struct LaneOp<Red::InfSat, T, MC, TWO> : LaneOp<Red::Inf, T, MC, false> {
    explicit LaneOp(LaneState& st) : LaneOp<Red::Inf, T, MC, false>(st) {}
    // max(a, -a) with a saturating negation: -32768 gives 32767
    template <class V, class A>
    void terms(V a, V, int, A* out) const { out[0] = bitcast<typename A::Lane>(max(a, subs(zero<V>(), a))); }
    long long one(T a, T, int) const { return a == -32768 ? 32767 : magnitude<false>(a, a); }
};

// Counts of lower <= v <= upper (for Zel32f: not v < lower and v <= upper, so
// that NaN is never counted), with the bounds of the lane's channel. Bytes
// test v - lower <= upper - lower in wrapping unsigned arithmetic.
template <class T, int MC, bool TWO>
struct LaneOp<Red::Count, T, MC, TWO> {
    using U = std::conditional_t<sizeof(T) == 1, std::uint8_t, std::uint32_t>;
    using V = Vec<T>;
    static constexpr int kVecs = 1, K = MC == 3 ? 3 : 1, L = V::kLanes;
    static constexpr long long kLimit = sizeof(T) == 1 ? 255 : (1LL << 31) - 1;
    static constexpr bool kMax = false;
    static int sample(int, int j) { return j; }
    T lo[4], hi[4];
    const T* pattern;

    explicit LaneOp(LaneState& st) : pattern(reinterpret_cast<const T*>(st.pattern)) {
        for (int c = 0; c < MC; ++c) lo[c] = T(st.lo[c]), hi[c] = T(st.hi[c]);
        static_assert(2 * K * L * sizeof(T) <= sizeof(st.pattern), "room for the bounds of a period");
        if (!st.ready) {
            T* p = reinterpret_cast<T*>(st.pattern);
            for (int i = 0; i < K * L; ++i) p[i] = lo[i % MC], p[K * L + i] = sizeof(T) == 1 ? T(hi[i % MC] - lo[i % MC]) : hi[i % MC];
            st.ready = true;
        }
    }
    template <class A>
    void terms(V a, V, int q, A* out) const {
        const V l = load_a<V>(pattern + q * L), h = load_a<V>(pattern + (K + q) * L);
        V in;
        if constexpr (sizeof(T) == 1) in = eq(subs(a - l, h), zero<V>());
        else in = andnot(lt(a, l), le(a, h));
        out[0] = bitcast<U>(in) & set1<A>(1);
    }
    long long one(T a, T, int c) const { return !(a < lo[c]) && a <= hi[c]; }
};

template <class Op>
inline void fold(unsigned long long& total, unsigned long long v) {
    if constexpr (Op::kMax) total = v > total ? v : total;
    else total += v;
}
template <class U>
inline unsigned long long to_u64(U v) {
    if constexpr (std::is_signed<U>::value) return (unsigned long long)(long long)v;
    else return v;
}

// Folds every lane into the total of its channel and clears the lanes:
// vector m holds terms of load m / kVecs of a period.
template <class Op, class T, int MC, class A, int N>
inline void lanes_empty(A (&acc)[N], LaneState& st) {
    using U = typename Op::U;
    constexpr int L = Vec<T>::kLanes;
    alignas(64) U lane[N * A::kLanes];
    for (int m = 0; m < N; ++m) store_a(lane + m * A::kLanes, acc[m]);
    for (int m = 0; m < N; ++m)
        for (int j = 0; j < A::kLanes; ++j) {
            const int c = MC == 1 ? 0 : (m / Op::kVecs * L + Op::sample(m % Op::kVecs, j)) % MC;
            fold<Op>(st.total[c], to_u64(lane[m * A::kLanes + j]));
        }
    for (int m = 0; m < N; ++m) acc[m] = zero<A>();
}

// One row of n samples of a (and b) into the lanes of st. A period is K
// loads of whole pixels, so that lane i of a period belongs to channel
// i % MC; the samples after the last whole period go straight to the totals.
// `last`: the lanes are emptied into the totals at the end.
template <Red R, class T, int MC, bool TWO>
void lanes_row(const T* a, const T* b, std::ptrdiff_t n, LaneState& st, bool last) {
    using Op = LaneOp<R, T, MC, TWO>;
    using U = typename Op::U;
    using V = Vec<T>;
    using A = Vec<U>;
    constexpr int L = V::kLanes, K = MC == 3 ? 3 : 1, W = Op::kVecs, N = K * W, P = K * L;
    static_assert(N * sizeof(A) <= sizeof(st.lanes), "room for the lanes");
    static_assert(MC == 1 || N * A::kLanes == P, "one lane a sample");
    const Op op(st);
    A acc[N];
    for (int m = 0; m < N; ++m) acc[m] = st.fresh ? zero<A>() : load_a<A>(reinterpret_cast<const U*>(st.lanes) + m * A::kLanes);
    st.fresh = false;
    auto comb = [](A x, A y) ZEL_VL { return Op::kMax ? max(x, y) : x + y; };
    // the terms of load q of the periods at i and at i + P (pairs never overflow a lane)
    auto terms = [&](std::ptrdiff_t i, int q, bool pair, A* t) ZEL_VL {
        op.terms(load<V>(a + i + q * L), TWO ? load<V>(b + i + q * L) : V{}, q, t);
        if (!pair) return;
        A u[W];
        op.terms(load<V>(a + i + P + q * L), TWO ? load<V>(b + i + P + q * L) : V{}, q, u);
        for (int w = 0; w < W; ++w) t[w] = comb(t[w], u[w]);
    };
    auto add = [&](std::ptrdiff_t i, bool pair) ZEL_VL {
#pragma GCC unroll 3
        for (int q = 0; q < K; ++q) {
            A t[W];
            terms(i, q, pair, t);
#pragma GCC unroll 4
            for (int w = 0; w < W; ++w) acc[q * W + w] = comb(acc[q * W + w], t[w]);
        }
    };
    std::ptrdiff_t i = 0;
    for (std::ptrdiff_t left = n / P; left > 0;) {
        const long long room = Op::kLimit - st.periods;
        const std::ptrdiff_t k = left < room ? left : std::ptrdiff_t(room);
        std::ptrdiff_t j = 0;
#pragma GCC unroll 2
        for (; j + 2 <= k; j += 2, i += 2 * P) add(i, true);
        if (j < k) add(i, false), i += P;
        left -= k;
        st.periods += k;
        if (st.periods >= Op::kLimit) {
            lanes_empty<Op, T, MC>(acc, st);
            st.periods = 0;
        }
    }
    for (; i < n; ++i) {
        const int c = MC == 1 ? 0 : int(i % MC);
        fold<Op>(st.total[c], (unsigned long long)op.one(a[i], TWO ? b[i] : T(), c));
    }
    if (last) lanes_empty<Op, T, MC>(acc, st);
    for (int m = 0; m < N; ++m) store_a(reinterpret_cast<U*>(st.lanes) + m * A::kLanes, acc[m]);
}

// ---- Zel32f sums of a row in float lanes ---------------------------------------------
// Sample i of the row goes to lane i % P (P = 16, or 12 for three channels);
// each lane sums its terms in row order from 0; then the lanes are widened and
// added, in ascending order, to the Zel64f totals of their channels (l % MC).
template <Term F, int MC, bool TWO>
void f32_row(const float* a, const float* b, std::ptrdiff_t n, double* total) {
    constexpr int P = MC == 3 ? 12 : 16;
    using V = Vec<float, MC == 3 ? 16 : kBytes>;
    constexpr int L = V::kLanes, G = P / L;
    V acc[G];
    for (int g = 0; g < G; ++g) acc[g] = zero<V>();
    std::ptrdiff_t i = 0;
    for (; i + P <= n; i += P)
#pragma GCC unroll 4
        for (int g = 0; g < G; ++g)
            acc[g] = acc[g] + term<F, TWO>(load<V>(a + i + g * L), TWO ? load<V>(b + i + g * L) : V{});
    alignas(64) float lane[P];
    for (int g = 0; g < G; ++g) store_a(lane + g * L, acc[g]);
    for (int l = 0; i < n; ++i, ++l) lane[l] = lane[l] + term<F, TWO>(a[i], TWO ? b[i] : 0.0f);
    for (int l = 0; l < P; ++l) total[l % MC] += double(lane[l]);
}

// ---- Zel64f accumulation of Zel32f rows ------------------------------------------------
// Per channel, every term is widened to Zel64f. A row of at least 16 pixels
// runs eight accumulators (pixel 8k + i to accumulator i); the pixels after the
// last group of eight go pairwise to accumulators 0 and 1; at the end of the
// row ((a0 + a2) + (a4 + a6)) is added to the even total and
// ((a1 + a3) + (a5 + a7)) to the odd one. A shorter row adds pixel pairs
// straight to the even and odd totals. The last pixel of an odd row goes to
// the even total. (The caller adds even + odd at the end.)
template <Term F, int MC, bool TWO>
void f64_row(const float* a, const float* b, int w, double* even, double* odd) {
    auto t = [&](std::ptrdiff_t i) { return term<F, TWO>(double(a[i]), TWO ? double(b[i]) : 0.0); };
    int x = 0;
    if (w >= 16) {
        using D = Vec<double>;
        constexpr int N = 8 * MC, L = D::kLanes, G = N / L; // accumulator i of channel c is lane i * MC + c
        D acc[G];
        for (int g = 0; g < G; ++g) acc[g] = zero<D>();
        for (; x + 8 <= w; x += 8) {
            const std::ptrdiff_t i = std::ptrdiff_t(x) * MC;
#pragma GCC unroll 16
            for (int g = 0; g < G; ++g)
                acc[g] = acc[g] + term<F, TWO>(load_f64<D>(a + i + g * L), TWO ? load_f64<D>(b + i + g * L) : D{});
        }
        alignas(64) double s[N];
        for (int g = 0; g < G; ++g) store_a(s + g * L, acc[g]);
        for (; x + 2 <= w; x += 2)
            for (int j = 0; j < 2 * MC; ++j) s[j] = s[j] + t(std::ptrdiff_t(x) * MC + j);
        for (int c = 0; c < MC; ++c) {
            even[c] += (s[c] + s[2 * MC + c]) + (s[4 * MC + c] + s[6 * MC + c]);
            odd[c] += (s[MC + c] + s[3 * MC + c]) + (s[5 * MC + c] + s[7 * MC + c]);
        }
    } else {
        for (; x + 2 <= w; x += 2)
            for (int c = 0; c < MC; ++c) {
                even[c] += t(std::ptrdiff_t(x) * MC + c);
                odd[c] += t(std::ptrdiff_t(x + 1) * MC + c);
            }
    }
    if (x < w)
        for (int c = 0; c < MC; ++c) even[c] += t(std::ptrdiff_t(x) * MC + c);
}

// Row kernels of the threshold family, compiled once per level (read by
// core/simd/levels.hpp inside each level's namespace; includes nothing).
//
// Each rule is a lane comparison and a choice between whole samples; a
// comparison with NaN is false, so a NaN sample stays, as in the scalar rules
// x > t ? t : x and the like. Every level gives the same bytes.

// The rule of R on lanes x, with levels t, t2 and values v, v2.
template <Thr R, class V>
ZEL_VI V thr_rule(V x, V t, V v, V t2, V v2) {
    if constexpr (R == Thr::GT) return min(t, x);  // t < x ? t : x, which is x > t ? t : x
    else if constexpr (R == Thr::LT) return max(t, x);  // t > x ? t : x
    else if constexpr (R == Thr::GTVal) return select(gt(x, t), v, x);
    else if constexpr (R == Thr::LTVal) return select(lt(x, t), v, x);
    else return select(lt(x, t), v, select(gt(x, t2), v2, x));
}

// d = rule(s) on the A active samples of each of w pixels of C samples; with
// A < C the last sample of each destination pixel stays. The parameters of a
// sample at phase i % C start at p.t + i % C (and so on), which holds for any
// phase of a vector.
template <class T, int C, int A, Thr R>
void threshold_row(const T* s, T* d, int w, const ThrArgs<T>& p) {
    using V = Vec<T>;
    using I = typename IntOfSize<sizeof(T)>::type;
    using VI = Vec<I>;
    const V t1 = set1<V>(p.t[0]), v1 = set1<V>(p.v[0]), t21 = set1<V>(p.t2[0]), v21 = set1<V>(p.v2[0]);
    auto par = [](const T* a, V one, int i) ZEL_VL {
        if constexpr (C == 1) return one;
        else return load<V>(a + i % C);
    };
    // walk() counts samples in int: pieces of whole pixels below 2^30 samples.
    constexpr int piece = (1 << 30) / C;
    for (int first = 0; first < w; first += piece) {
        const T* sp = s + std::ptrdiff_t(first) * C;
        T* dp = d + std::ptrdiff_t(first) * C;
        const int n = (w - first < piece ? w - first : piece) * C;
        walk<V>(n, dp, [&](int i, auto io) {
            V r = thr_rule<R>(io.template get<V>(sp + i), par(p.t, t1, i), par(p.v, v1, i), par(p.t2, t21, i), par(p.v2, v21, i));
            if constexpr (A < C) {
                const VI three = set1<VI>(I(3));
                const V alpha = bitcast<T>(eq((iota<VI>() + set1<VI>(I(i & 3))) & three, three));
                r = select(alpha, io.template get<V>(dp + i), r);
            }
            io.put(dp + i, r);
        });
    }
}

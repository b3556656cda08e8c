// Row kernels of the dot products and of the weighted sums of vectors,
// compiled once per level (read by core/simd/levels.hpp inside each level's
// namespace; includes nothing). Samples are widened to Zel64f exactly; the
// lanes below are fixed by sample position, so every level adds the same
// products in the same order.

// Integer samples, one channel: product j of a row goes to accumulator j % 8;
// the row's result is ((a0 + a1) + (a2 + a3)) + ((a4 + a5) + (a6 + a7)).
template <class T>
double dot8_row(const T* a, const T* b, int n) {
    using D = Vec<double>;
    constexpr int L = D::kLanes, G = 8 / L;
    D acc[G];
    for (int g = 0; g < G; ++g) acc[g] = zero<D>();
    int j = 0;
    for (; j + 8 <= n; j += 8)
#pragma GCC unroll 4
        for (int g = 0; g < G; ++g) acc[g] = acc[g] + load_f64<D>(a + j + g * L) * load_f64<D>(b + j + g * L);
    alignas(64) double s[8];
    for (int g = 0; g < G; ++g) store_a(s + g * L, acc[g]);
    for (int i = 0; j < n; ++j, ++i) s[i] = s[i] + double(a[j]) * double(b[j]);
    return ((s[0] + s[1]) + (s[2] + s[3])) + ((s[4] + s[5]) + (s[6] + s[7]));
}

// Zel32f, one channel, R rows side by side (the rows only share the loop, which
// hides the latency of the additions): product j of a row goes to its lane
// j % 4; the row's result is (l0 + l2) + (l1 + l3). The product of two
// widened Zel32f samples is exact in Zel64f.
template <int R>
void dot4_rows(const float* const* a, const float* const* b, int n, double* rowSum) {
    using Q = Vec<double, (kBytes < 32 ? 16 : 32)>;
    constexpr int L = Q::kLanes, G = 4 / L;
    Q acc[R][G];
    for (int r = 0; r < R; ++r)
        for (int g = 0; g < G; ++g) acc[r][g] = zero<Q>();
    int j = 0;
    for (; j + 4 <= n; j += 4)
#pragma GCC unroll 4
        for (int r = 0; r < R; ++r)
#pragma GCC unroll 2
            for (int g = 0; g < G; ++g)
                acc[r][g] = acc[r][g] + load_f64<Q>(a[r] + j + g * L) * load_f64<Q>(b[r] + j + g * L);
    for (int r = 0; r < R; ++r) {
        alignas(32) double l[4];
        for (int g = 0; g < G; ++g) store_a(l + g * L, acc[r][g]);
        for (int k = j, i = 0; k < n; ++k, ++i) l[i] = l[i] + double(a[r][k]) * double(b[r][k]);
        rowSum[r] = (l[0] + l[2]) + (l[1] + l[3]);
    }
}

// Weighted sum of a list of vectors over outputs [first, first + len):
// dst[j] = sum over k of src[k][j] * coeff[k], in the sample type, the terms of
// an output added in list order; when the destination is not 4-byte aligned,
// even and odd sources run in two sums that are added at the end. Outputs are
// stored bytewise, so any destination address is fine; a NaN output is the
// default quiet NaN.
template <class T>
void dot_col_band(const T* const* src, const T* coeff, int count, T* dst, int first, int len) {
    constexpr int B = 256;
    alignas(64) T acc[B], odd[B];
    const bool split = (reinterpret_cast<std::uintptr_t>(dst) & 3) != 0 && count >= 3;
    for (int j0 = first; j0 < first + len; j0 += B) {
        const int n = first + len - j0 < B ? first + len - j0 : B;
        const T c0 = coeff[0], c1 = coeff[1 % count];
        const T* s0 = src[0] + j0;
#pragma omp simd
        for (int j = 0; j < n; ++j) acc[j] = s0[j] * c0;
        if (split) {
            const T* s1 = src[1] + j0;
#pragma omp simd
            for (int j = 0; j < n; ++j) odd[j] = s1[j] * c1;
        }
        for (int k = split ? 2 : 1; k < count; ++k) {
            const T* s = src[k] + j0;
            const T c = coeff[k];
            T* to = split && (k & 1) ? odd : acc;
#pragma omp simd
            for (int j = 0; j < n; ++j) to[j] = to[j] + s[j] * c;
        }
#pragma omp simd
        for (int j = 0; j < n; ++j) {
            const T v = split ? acc[j] + odd[j] : acc[j];
            acc[j] = v != v ? std::numeric_limits<T>::quiet_NaN() : v;
        }
        __builtin_memcpy(dst + j0, acc, std::size_t(n) * sizeof(T));
    }
}

// Row kernel of the Zel32f Inf norms, compiled once per level (read by
// core/simd/levels.hpp inside each level's namespace; includes nothing). The
// other norms run on the kernels of stat_kernels.hpp.

// Largest |a| (or |a - b|) of Zel32f rows; a NaN term leaves its lane as it was,
// so the result does not depend on the order. The lanes run from row to row
// in st; a period is K loads of whole pixels, so lane i belongs to channel
// i % MC. mx (one a channel, from 0) takes the samples after the last whole
// period and, after the last row, the lanes.
template <int MC, bool TWO>
void f32_inf_row(const float* a, const float* b, std::ptrdiff_t n, LaneState& st, bool last, float* mx) {
    using V = Vec<float>;
    constexpr int L = V::kLanes, K = MC == 3 ? 3 : 1, P = K * L;
    float* lanes = reinterpret_cast<float*>(st.lanes);
    V acc[K];
    for (int q = 0; q < K; ++q) acc[q] = st.fresh ? zero<V>() : load_a<V>(lanes + q * L);
    st.fresh = false;
    std::ptrdiff_t i = 0;
    for (; i + P <= n; i += P)
#pragma GCC unroll 3
        for (int q = 0; q < K; ++q)
            acc[q] = max(abs(term<Term::Id, TWO>(load<V>(a + i + q * L), TWO ? load<V>(b + i + q * L) : V{})), acc[q]);
    for (int q = 0; q < K; ++q) store_a(lanes + q * L, acc[q]);
    auto take = [&](int c, float v) { mx[c] = v > mx[c] ? v : mx[c]; };
    for (; i < n; ++i) take(MC == 1 ? 0 : int(i % MC), absval(term<Term::Id, TWO>(a[i], TWO ? b[i] : 0.0f)));
    if (last)
        for (int l = 0; l < P; ++l) take(l % MC, lanes[l]);
}

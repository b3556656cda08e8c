// Row kernel of the forward-scan histograms, compiled once per level (read by
// core/simd/levels.hpp inside each level's namespace; includes nothing). The
// range counts run on lanes_row of stat_kernels.hpp.

// Forward scan of one channel of a row: w samples, `stride` samples apart. A
// sample inside [lv[0], lv[bins]) has walked up past every inner level <= it,
// so its bin is the number of those levels, found with one compare a level
// for a whole vector of samples. Samples outside the range (and NaN, which
// fails every compare) are skipped. 16-bit samples are compared in 32-bit
// lanes, Zel32f samples as they are. Counts stop at the largest Zel32s.
template <class T, class LV>
void forward_row(const T* p, int stride, int w, const LV* lv, int bins, Zel32s* hist) {
    using W = std::conditional_t<std::is_floating_point<T>::value, float, std::int32_t>;
    using V = Vec<W>;
    using I = Vec<std::int32_t>;
    constexpr int L = V::kLanes;
    const V first = set1<V>(W(lv[0])), last = set1<V>(W(lv[bins]));
    auto count = [&](V v) ZEL_VL {
        I k = zero<I>();
        for (int j = 1; j < bins; ++j) k = k - bitcast<std::int32_t>(ge(v, set1<V>(W(lv[j]))));
        alignas(64) std::int32_t bin[L];
        store_a(bin, k);
        for (std::uint64_t in = bits(ge(v, first) & lt(v, last)); in; in &= in - 1) bump(hist[bin[__builtin_ctzll(in)]]);
    };
    int x = 0;
    if (stride == 1) {
        if constexpr (sizeof(T) == 2) {
            // even and odd samples of one load, each widened to 32-bit lanes
            for (; x + 2 * L <= w; x += 2 * L) {
                Vec<std::int32_t> h[2];
                split_wide(load<Vec<T>>(p + x), h);
                count(bitcast<W>(h[0]));
                count(bitcast<W>(h[1]));
            }
        } else {
            for (; x + L <= w; x += L) count(load<V>(p + x));
        }
    } else {
        alignas(64) W g[L];
        for (; x + L <= w; x += L) {
            for (int i = 0; i < L; ++i) g[i] = W(p[std::ptrdiff_t(x + i) * stride]);
            count(load_a<V>(g));
        }
    }
    for (; x < w; x += L) { // the last samples, the lanes past them on the last level
        alignas(64) W g[L];
        for (int i = 0; i < L; ++i) g[i] = x + i < w ? W(p[std::ptrdiff_t(x + i) * stride]) : W(lv[bins]);
        count(load_a<V>(g));
    }
}

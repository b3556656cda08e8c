// Row kernels of the minimum and maximum families, compiled once per level
// (read by core/simd/levels.hpp inside each level's namespace; includes
// nothing). The lane models are described in minmax.hpp.

// The lane operation of vectors beside that of scalars (minmax.hpp).
using ::zel::pick;
template <bool MIN, class T, int B>
ZEL_VI Vec<T, B> pick(Vec<T, B> a, Vec<T, B> b) {
    if constexpr (MIN) return min(a, b);
    else return max(a, b);
}

// Runs the whole periods of a row (G vectors V) through the lanes la (running
// minimum, op(lane, sample)) and lb (maximum), which are kept in memory;
// returns where the samples after the last whole period start.
template <class V, int G, bool LO, bool HI>
inline std::ptrdiff_t extremes_lanes(const typename V::Lane* p, std::ptrdiff_t n, typename V::Lane* la,
                                     typename V::Lane* lb) {
    constexpr int L = V::kLanes, P = G * L;
    V a[G], b[G];
    for (int g = 0; g < G; ++g) a[g] = load_a<V>(la + g * L), b[g] = load_a<V>(lb + g * L);
    std::ptrdiff_t i = 0;
    for (; i + P <= n; i += P)
#pragma GCC unroll 12
        for (int g = 0; g < G; ++g) {
            const V x = load<V>(p + i + g * L);
            if constexpr (LO) a[g] = min(a[g], x);
            if constexpr (HI) b[g] = max(b[g], x);
        }
    for (int g = 0; g < G; ++g) store_a(la + g * L, a[g]), store_a(lb + g * L, b[g]);
    return i;
}

// ---- Integer extremes, order-free ----------------------------------------------
// Running minimum (lanes at 0 of st.lanes) and maximum (lanes at 192) of
// every lane, kept from row to row; a period is K loads of whole pixels, so
// lane i belongs to channel i % MC. Samples after the last whole period and,
// after the last row, the lanes fold into lo and hi (one a channel).
template <class T, int MC, bool LO, bool HI>
void int_extremes_row(const T* p, std::ptrdiff_t n, LaneState& st, bool last, T* lo, T* hi) {
    using V = Vec<T>;
    constexpr int K = MC == 3 ? 3 : 1, P = K * V::kLanes;
    T* la = reinterpret_cast<T*>(st.lanes);
    T* lb = reinterpret_cast<T*>(st.lanes + 192);
    if (st.fresh) {
        for (int i = 0; i < P; ++i) la[i] = std::numeric_limits<T>::max(), lb[i] = std::numeric_limits<T>::lowest();
        st.fresh = false;
    }
    for (std::ptrdiff_t i = extremes_lanes<V, K, LO, HI>(p, n, la, lb); i < n; ++i) {
        const int c = MC == 1 ? 0 : int(i % MC);
        lo[c] = pick<true>(lo[c], p[i]);
        hi[c] = pick<false>(hi[c], p[i]);
    }
    if (last)
        for (int l = 0; l < P; ++l) {
            lo[l % MC] = pick<true>(lo[l % MC], la[l]);
            hi[l % MC] = pick<false>(hi[l % MC], lb[l]);
        }
}

// ---- Zel32f extremes of a row, in fixed lanes ----------------------------------------
// Sample i of the row goes to lane i % P (P = 16, or 48 for three channels);
// the lanes start at the row's first pixel and take op(lane, sample); then
// the lanes of each channel (l % MC) fold in ascending order: lo[c], hi[c] are
// the row's results.
template <int MC, bool LO, bool HI>
void f32_extremes_row(const float* p, std::ptrdiff_t n, float* lo, float* hi) {
    constexpr int P = MC == 3 ? 48 : 16;
    using V = Vec<float, (P * 4 < kBytes ? P * 4 : kBytes)>;
    alignas(64) float la[P], lb[P];
    for (int l = 0; l < P; ++l) la[l] = lb[l] = p[l % MC];
    std::ptrdiff_t i = extremes_lanes<V, P / V::kLanes, LO, HI>(p, n, la, lb);
    for (int l = 0; i < n; ++i, ++l) {
        la[l] = pick<true>(la[l], p[i]);
        lb[l] = pick<false>(lb[l], p[i]);
    }
    for (int c = 0; c < MC; ++c) {
        lo[c] = la[c];
        hi[c] = lb[c];
        for (int l = c + MC; l < P; l += MC) {
            lo[c] = pick<true>(lo[c], la[l]);
            hi[c] = pick<false>(hi[c], lb[l]);
        }
    }
}

// ---- Row extremes of the index scans ---------------------------------------------------
// The row's lanes cover 128 bytes (384 for three channels); they start at
// `far` (the type's far end; for Zel32f the largest finite
// value or its negative) and take op(sample, lane), so that NaN never enters.
// The lanes of the row are compared with the best values so far (a pattern of
// one value a lane in st.pattern); only when some lane is strictly better do
// they fold per channel, and a channel whose row value is strictly better
// than best[c] takes it with row r. best[] starts at `far`, bestRow[] at 0.
template <class T, int MC, int AC, bool MIN>
void index_row(const T* p, std::ptrdiff_t n, int r, T far, LaneState& st, T* best, int* bestRow) {
    using V = Vec<T>;
    using Lim = std::numeric_limits<T>;
    // 128 bytes of lanes a channel pattern (several chains hide the latency of
    // float minima)
    constexpr int L = V::kLanes, K = (MC == 3 ? 3 : 1) * 128 / kBytes, P = K * L;
    constexpr bool F = std::is_floating_point<T>::value;
    static_assert(P * sizeof(T) <= sizeof(st.pattern), "room for the pattern");
    T* pat = reinterpret_cast<T*>(st.pattern);
    const T never = MIN ? (F ? -Lim::infinity() : Lim::lowest()) : (F ? Lim::infinity() : Lim::max());
    auto build = [&] {
        for (int l = 0; l < P; ++l) pat[l] = l % MC < AC ? best[l % MC] : never;
    };
    if (!st.ready) {
        build();
        st.ready = true;
    }
    V a[K];
    for (int q = 0; q < K; ++q) a[q] = set1<V>(far);
    std::ptrdiff_t i = 0;
    for (; i + P <= n; i += P)
#pragma GCC unroll 24
        for (int q = 0; q < K; ++q) a[q] = pick<MIN>(load<V>(p + i + q * L), a[q]);
    alignas(64) T lane[P];
    for (int q = 0; q < K; ++q) store_a(lane + q * L, a[q]);
    for (int l = 0; i < n; ++i, ++l) lane[l] = pick<MIN>(p[i], lane[l]);
    bool better = false;
    for (int q = 0; q < K; ++q) {
        const V x = load_a<V>(lane + q * L), b = load_a<V>(pat + q * L);
        better = better || any(MIN ? lt(x, b) : gt(x, b));
    }
    if (!better) return;
    for (int c = 0; c < AC; ++c) {
        T v = lane[c];
        for (int l = c + MC; l < P; l += MC) v = pick<MIN>(lane[l], v);
        if (MIN ? v < best[c] : v > best[c]) best[c] = v, bestRow[c] = r;
    }
    build();
}

// ---- Pixelwise minimum and maximum ---------------------------------------------------
// d = op(d, s), the destination sample first (it gives way to a NaN source).
template <class T, bool MIN>
void every_row(const T* s, T* d, int n) {
    using V = Vec<T>;
    walk<V>(n, d, [&](int i, auto io) ZEL_VL {
        io.put(d + i, pick<MIN>(io.template get<V>(d + i), io.template get<V>(s + i)));
    });
}

// ---- Position of an extreme --------------------------------------------------------------
// The first pixel of a row of w pixels whose sample of channel c equals v (by
// ==, so -0 matches 0 and NaN matches nothing), or w when there is none.
template <class T, int MC>
int find_first(const T* p, int w, int c, T v) {
    using V = Vec<T>;
    constexpr int L = V::kLanes, K = MC == 3 ? 3 : 1, P = K * L;
    std::uint64_t chan[K] = {}; // the lanes of each load of a period that hold channel c
    for (int q = 0; q < K; ++q)
        for (int j = 0; j < L; ++j) chan[q] |= std::uint64_t((q * L + j) % MC == c) << j;
    const V key = set1<V>(v);
    const std::ptrdiff_t n = std::ptrdiff_t(w) * MC;
    std::ptrdiff_t i = 0;
    for (; i + P <= n; i += P)
        for (int q = 0; q < K; ++q)
            if (const std::uint64_t m = bits(eq(load<V>(p + i + q * L), key)) & chan[q])
                return int((i + q * L + __builtin_ctzll(m)) / MC);
    for (i += c; i < n; i += MC)
        if (p[i] == v) return int(i / MC);
    return w;
}

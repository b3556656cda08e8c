// Row kernels of copy, set, duplicate and managed copy, compiled once per
// level (read by core/simd/levels.hpp inside each level's namespace; includes
// nothing). Whole-pixel copies and fills are the byte rows of
// core/simd/pixel.hpp; these are the forms that move single samples.

// ---- Samples by pixel strides -------------------------------------------------------
// N samples of each pixel from a source stride SP to a destination stride DP;
// with Spread the first source sample goes to all N. The compiler vectorises
// the strides at the level's width.
template <class T, int SP, int DP, int N, bool Spread>
void strided_row(const T* __restrict s, T* __restrict d, int w) {
#pragma omp simd
    for (int x = 0; x < w; ++x)
        for (int c = 0; c < N; ++c) d[std::ptrdiff_t(x) * DP + c] = s[std::ptrdiff_t(x) * SP + (Spread ? 0 : c)];
}

// N values into every pixel of stride DP.
template <class T, int DP, int N>
void set_strided_row(const T* px, T* d, int w) {
    T v[N];
    for (int c = 0; c < N; ++c) v[c] = px[c];
#pragma omp simd
    for (int x = 0; x < w; ++x)
        for (int c = 0; c < N; ++c) d[std::ptrdiff_t(x) * DP + c] = v[c];
}

// ---- Masked rows ------------------------------------------------------------------------
// The pixels whose mask byte is not zero receive A samples of C from the
// source; a vector of mask bytes at a time: all zero is skipped, all set
// copies the block whole, mixed goes pixel by pixel. With Repeat the source is
// one block of kBytes pixels (the value of a masked set), else the source row.
template <class T, int C, int A, bool Repeat>
void masked_row(const T* s, T* d, const Byte* m, int w) {
    using M = Vec<Byte>;
    constexpr int K = kBytes;
    auto put = [&](int x) {
        const T* sp = s + std::ptrdiff_t(Repeat ? x % K : x) * C;
        T* dp = d + std::ptrdiff_t(x) * C;
        for (int c = 0; c < A; ++c) dp[c] = sp[c];
    };
    int x = 0;
    for (; x + K <= w; x += K) {
        const std::uint64_t z = bits(eq(load<M>(m + x), zero<M>()));
        if (z == lane_mask(K, K)) continue;
        if (z == 0 && A == C) {
            __builtin_memcpy(d + std::ptrdiff_t(x) * C, Repeat ? s : s + std::ptrdiff_t(x) * C, sizeof(T) * K * C);
            continue;
        }
        for (int k = 0; k < K; ++k)
            if (!((z >> k) & 1)) put(x + k);
    }
    for (; x < w; ++x)
        if (m[x]) put(x);
}

// ---- Interleaved and planar ------------------------------------------------------------------
// Each 128-bit block of a vector is one 16-byte step of the SSE method (the
// tables of copy_bytes.hpp): with wider vectors, block k of the three (or
// four) interleaved vectors is loaded from the k-th group of 48 (or 64)
// bytes, so that block k of each plane vector holds the next pixels of that
// plane in order. Whole vectors first, then 16-byte vectors, then single
// pixels.

// A plane vector; streamed where NT and the address allow it (whole, or by
// 16-byte blocks).
template <bool NT, class T, class V>
ZEL_VI void put_plane(T* p, V v) {
    Byte* q = reinterpret_cast<Byte*>(p);
    const auto a = reinterpret_cast<std::uintptr_t>(q);
    if (NT && a % V::kWidth == 0) {
        stream(q, v);
    } else if constexpr (NT && V::kWidth > 16) {
        if (a % 16 == 0)
            for (int k = 0; k < V::kWidth / 16; ++k) stream(q + 16 * k, block16(v, k));
        else
            store(q, v);
    } else {
        store(q, v);
    }
}
// The blocks of an interleaved vector, block k to p + k * stride.
template <bool NT, class V>
ZEL_VI void put_blocks(Byte* p, std::ptrdiff_t stride, V v) {
    if constexpr (V::kWidth == 16) {
        put_plane<NT>(p, v);
    } else {
#pragma GCC unroll 4
        for (int k = 0; k < V::kWidth / 16; ++k) put_plane<NT>(p + k * stride, block16(v, k));
    }
}

// 4x4 transposes of 32-bit words, one in each 128-bit block.
template <class V>
inline void transpose4(V& a0, V& a1, V& a2, V& a3) {
    using U = std::uint32_t;
    using Q = std::uint64_t;
    const auto t0 = interleave_lo(bitcast<U>(a0), bitcast<U>(a1)), t1 = interleave_lo(bitcast<U>(a2), bitcast<U>(a3));
    const auto t2 = interleave_hi(bitcast<U>(a0), bitcast<U>(a1)), t3 = interleave_hi(bitcast<U>(a2), bitcast<U>(a3));
    a0 = bitcast<Byte>(interleave_lo(bitcast<Q>(t0), bitcast<Q>(t1))), a1 = bitcast<Byte>(interleave_hi(bitcast<Q>(t0), bitcast<Q>(t1)));
    a2 = bitcast<Byte>(interleave_lo(bitcast<Q>(t2), bitcast<Q>(t3))), a3 = bitcast<Byte>(interleave_hi(bitcast<Q>(t2), bitcast<Q>(t3)));
}

// The blend masks of three-channel tables t[k][1] and t[k][2] in every block.
template <class V>
struct Blend3 {
    V m1[3], m2[3];
    explicit Blend3(const std::uint8_t (&t)[3][3][16]) {
#pragma GCC unroll 4
        for (int k = 0; k < 3; ++k) m1[k] = broadcast16<V>(t[k][1]), m2[k] = broadcast16<V>(t[k][2]);
    }
    // t[k][2] ? c : t[k][1] ? b : a
    V operator()(int k, V a, V b, V c) const { return select(m2[k], c, select(m1[k], b, a)); }
};

// Pixels from x on, by vectors V, while a whole vector of each plane fits.
template <class V, class T, int C, bool NT>
inline int split_vectors(const T* s, T* const* p, int x, int w) {
    constexpr int S = sizeof(T), K = V::kWidth / S;
    if constexpr (C == 3) {
        const auto& sh = kShuffle3<S>;
        const Blend3<V> blend(sh.pick);
        for (; x + K <= w; x += K) {
            const Byte* in = reinterpret_cast<const Byte*>(s + std::ptrdiff_t(x) * 3);
            const V v0 = load_blocks<V>(in, 48), v1 = load_blocks<V>(in + 16, 48), v2 = load_blocks<V>(in + 32, 48);
#pragma GCC unroll 4
            for (int c = 0; c < 3; ++c) put_plane<NT>(p[c] + x, shuffle16(blend(c, v0, v1, v2), sh.order[c]));
        }
    } else {
        for (; x + K <= w; x += K) {
            const Byte* in = reinterpret_cast<const Byte*>(s + std::ptrdiff_t(x) * 4);
            V a[4];
#pragma GCC unroll 4
            for (int j = 0; j < 4; ++j) {
                a[j] = load_blocks<V>(in + 16 * j, 64);
                if (S < 4) a[j] = shuffle16(a[j], kShuffle4<S>.group);
            }
            transpose4(a[0], a[1], a[2], a[3]);
#pragma GCC unroll 4
            for (int c = 0; c < 4; ++c) put_plane<NT>(p[c] + x, a[c]);
        }
    }
    return x;
}

template <class V, class T, int C, bool NT>
inline int join_vectors(const T* const* p, T* d, int x, int w) {
    constexpr int S = sizeof(T), K = V::kWidth / S;
    if constexpr (C == 3) {
        const auto& sh = kShuffle3<S>;
        const Blend3<V> blend(sh.chan);
        for (; x + K <= w; x += K) {
            V r[3];
#pragma GCC unroll 4
            for (int c = 0; c < 3; ++c) r[c] = shuffle16(load<V>(reinterpret_cast<const Byte*>(p[c] + x)), sh.place[c]);
            Byte* out = reinterpret_cast<Byte*>(d + std::ptrdiff_t(x) * 3);
#pragma GCC unroll 4
            for (int j = 0; j < 3; ++j) put_blocks<NT>(out + 16 * j, 48, blend(j, r[0], r[1], r[2]));
        }
    } else {
        for (; x + K <= w; x += K) {
            V a[4];
#pragma GCC unroll 4
            for (int c = 0; c < 4; ++c) a[c] = load<V>(reinterpret_cast<const Byte*>(p[c] + x));
            transpose4(a[0], a[1], a[2], a[3]);
            Byte* out = reinterpret_cast<Byte*>(d + std::ptrdiff_t(x) * 4);
#pragma GCC unroll 4
            for (int j = 0; j < 4; ++j) {
                if (S < 4) a[j] = shuffle16(a[j], kShuffle4<S>.ungroup);
                put_blocks<NT>(out + 16 * j, 64, a[j]);
            }
        }
    }
    return x;
}

// Long rows first reach the vector alignment of the first plane (single
// pixels, then 16-byte vectors): a wide store across two cache lines costs
// more than the narrow ones, and streaming needs the alignment.
template <class T, int C, bool NT>
void split_row(const T* s, T* const* planes, int w) {
    constexpr int S = sizeof(T);
    T* p[C];
    for (int c = 0; c < C; ++c) p[c] = planes[c];
    int x = 0;
    if (kBytes > 16 && w >= 4 * kBytes && reinterpret_cast<std::uintptr_t>(p[0]) % S == 0) {
        const int h1 = int(to_boundary(p[0], 16)) / S;
        for (; x < h1; ++x)
            for (int c = 0; c < C; ++c) p[c][x] = s[std::ptrdiff_t(x) * C + c];
        x = split_vectors<Vec<Byte, 16>, T, C, NT>(s, p, x, x + int(to_boundary(p[0] + x, kBytes)) / S);
    }
    x = split_vectors<Vec<Byte>, T, C, NT>(s, p, x, w);
    if constexpr (kBytes > 16) x = split_vectors<Vec<Byte, 16>, T, C, NT>(s, p, x, w);
    for (; x < w; ++x)
        for (int c = 0; c < C; ++c) p[c][x] = s[std::ptrdiff_t(x) * C + c];
}

template <class T, int C, bool NT>
void join_row(const T* const* planes, T* d, int w) {
    const T* p[C];
    for (int c = 0; c < C; ++c) p[c] = planes[c];
    int x = join_vectors<Vec<Byte>, T, C, NT>(p, d, 0, w);
    if constexpr (kBytes > 16) x = join_vectors<Vec<Byte, 16>, T, C, NT>(p, d, x, w);
    for (; x < w; ++x)
        for (int c = 0; c < C; ++c) d[std::ptrdiff_t(x) * C + c] = p[c][x];
}

// ---- Managed copy ---------------------------------------------------------------------------
// 64 bytes a round after the bytes up to a 64-byte boundary. Ordinary loads
// align on the destination and store streaming (NT) or not. Streaming loads
// (SL) align on the source; the destination then takes aligned (or streaming)
// stores only when it shares the vector alignment.
template <bool NT, bool SL>
void managed_row(const Byte* s, Byte* d, std::size_t n) {
    using V = Vec<Byte>;
    constexpr int R = 64 / kBytes;
    if (n < 64) return copy_short<32>(s, d, n);
    const std::size_t head = to_boundary(SL ? static_cast<const void*>(s) : d, 64);
    copy_short<32>(s, d, head);
    s += head, d += head, n -= head;
    const bool aligned = !SL || reinterpret_cast<std::uintptr_t>(d) % kBytes == 0;
    for (; n >= 64; s += 64, d += 64, n -= 64)
        for (int k = 0; k < R; ++k) {
            const V v = SL ? stream_load<V>(s + k * kBytes) : load<V>(s + k * kBytes);
            if (aligned) put_a<NT>(d + k * kBytes, v);
            else store(d + k * kBytes, v);
        }
    copy_short<32>(s, d, n);
}

// Row and block kernels of the reordering family, compiled once per level
// (read by core/simd/levels.hpp inside each level's namespace; includes
// nothing).
//
// Every kernel moves whole samples, so every vector width gives the bytes of
// the scalar loops; the vectors only choose how many pixels move at once.
// Pixels are opaque groups of E bytes. A byte shuffle takes one 16-byte table
// for every 128-bit block (shuffle16), so where a pixel divides 16 bytes the
// kernels run at the level's full width, and three-sample pixels of 8 and 16
// bits go one 16-byte vector at a time.

using Bytes = Vec<std::uint8_t>;
using Bytes16 = Vec<std::uint8_t, 16>;

// Pixels of E bytes fill every 128-bit block.
constexpr bool block_pixel(int E) { return E == 1 || E == 2 || E == 4 || E == 8 || E == 16; }

// Bytes of the last sample of each E-byte pixel (the alpha of AC4), S-byte samples.
template <class V, int E, int S>
ZEL_VI V last_sample_bytes() {
    return ge(iota<V>() & set1<V>(std::uint8_t(E - 1)), set1<V>(std::uint8_t(E - S)));
}

// ===========================================================================
// Channel swap
// ===========================================================================

// Pixel by pixel: the whole source pixel is read before the destination pixel
// is written, so the in-place forms share the kernel.
template <int S, int SC, int DC, int NA>
inline void swap_pixels(const std::uint8_t* s, std::uint8_t* d, int first, int end, const int* order) {
    s += std::ptrdiff_t(first) * SC * S;
    d += std::ptrdiff_t(first) * DC * S;
    for (int x = first; x < end; ++x, s += SC * S, d += DC * S) {
        std::uint8_t p[SC * S];
        __builtin_memcpy(p, s, sizeof p);
        for (int c = 0; c < NA; ++c) __builtin_memcpy(d + c * S, p + order[c] * S, S);
    }
}

// One row of w pixels, SC samples of S bytes in, DC out, NA of them taken from
// the source by `order`. `table` is the byte shuffle of 16 bytes of pixels
// (bytes past the last whole pixel map to themselves; AC4's alpha bytes too).
template <int S, int SC, int DC, int NA>
void swap_row(const std::uint8_t* s, std::uint8_t* d, int w, const int* order, const std::uint8_t* table) {
    constexpr int E = S * SC;
    int x = 0;
    if constexpr (SC == 4 && DC == 4) {
        // Whole vectors of whole pixels, then one partial vector; AC4 keeps
        // the destination's alpha bytes.
        using V = Bytes;
        const std::ptrdiff_t n = std::ptrdiff_t(w) * E;
        const V keep = NA < 4 ? last_sample_bytes<V, E, S>() : zero<V>();
        auto one = [&](std::ptrdiff_t i, auto io) {
            V r = shuffle16(io.template get<V>(s + i), table);
            if constexpr (NA < 4) r = select(keep, io.template get<V>(d + i), r);
            io.put(d + i, r);
        };
        std::ptrdiff_t i = 0;
        for (; i + V::kWidth <= n; i += V::kWidth) one(i, Whole<>{});
        if (i < n) one(i, Part{int(n - i)});
        return;
    } else if constexpr (SC == 3 && DC == 3) {
        // 16 // E whole pixels a shuffle; the bytes after them are written
        // with their source bytes and rewritten by the next step or the
        // scalar tail (in place: with their own value).
        constexpr int P = 16 / E, need = (16 + E - 1) / E;
        for (; x + need <= w; x += P) store(d + std::ptrdiff_t(x) * E, shuffle16(load<Bytes16>(s + std::ptrdiff_t(x) * E), table));
    }
    swap_pixels<S, SC, DC, NA>(s, d, x, w, order);
}

// ===========================================================================
// Transpose
// ===========================================================================

// Lanes of one E-byte pixel.
template <int E> struct PixelLane { using type = std::uint64_t; };
template <> struct PixelLane<1> { using type = std::uint8_t; };
template <> struct PixelLane<2> { using type = std::uint16_t; };
template <> struct PixelLane<4> { using type = std::uint32_t; };

// Transposes the K = V::kWidth / 16 blocks of n x n pixels of E bytes
// (n = 16 / E) that lie side by side in the source, one vector of V a row:
// block k goes to destination rows k n to k n + n - 1. Each round interleaves
// row i with row i + n/2 inside every 128-bit block; the index bits of (row,
// position) rotate by one bit a round, so after log2(n) rounds row and column
// have changed places.
template <int E, class V, bool NT>
inline void transpose_blocks(const std::uint8_t* s, std::ptrdiff_t ss, std::uint8_t* d, std::ptrdiff_t ds) {
    constexpr int n = 16 / E, K = V::kWidth / 16;
    using W = Vec<typename PixelLane<E>::type, V::kWidth>;
    W r[n], t[n];
    // Unrolled, so that the rows stay in registers.
#pragma GCC unroll 16
    for (int i = 0; i < n; ++i) r[i] = bitcast<typename W::Lane>(load<V>(s + i * ss));
#pragma GCC unroll 4
    for (int round = 1; round < n; round <<= 1) {
#pragma GCC unroll 8
        for (int i = 0; i < n / 2; ++i) {
            t[2 * i] = interleave_lo(r[i], r[i + n / 2]);
            t[2 * i + 1] = interleave_hi(r[i], r[i + n / 2]);
        }
#pragma GCC unroll 16
        for (int i = 0; i < n; ++i) r[i] = t[i];
    }
#pragma GCC unroll 4
    for (int k = 0; k < K; ++k)
#pragma GCC unroll 16
        for (int i = 0; i < n; ++i) {
            const Bytes16 b = bitcast<std::uint8_t>(block16(r[i], k));
            if constexpr (NT) stream(d + (k * n + i) * ds, b);
            else store(d + (k * n + i) * ds, b);
        }
}

// Pixels (x0..x1) x (y0..y1) of the source to their transposed places, one at a time.
template <int E>
inline void transpose_pixels(const std::uint8_t* s, std::ptrdiff_t ss, std::uint8_t* d, std::ptrdiff_t ds, int x0, int x1,
                             int y0, int y1) {
    for (int y = y0; y < y1; ++y)
        for (int x = x0; x < x1; ++x) __builtin_memcpy(d + x * ds + std::ptrdiff_t(y) * E, s + y * ss + std::ptrdiff_t(x) * E, E);
}

// A w x h source to its transpose. Bands of up to 512 source rows; inside a
// band, columns of blocks one vector wide from top to bottom, so that each
// destination row is written in one sweep while the band's source lines stay
// in the cache for the next column. Pixels outside the block grid, and pixel
// sizes that do not divide 16 bytes, go one at a time. NT: streaming stores
// (destination rows and pointer aligned to 16 bytes); the caller fences.
template <int E, bool NT>
void transpose_rect(const std::uint8_t* s, std::ptrdiff_t ss, std::uint8_t* d, std::ptrdiff_t ds, int w, int h) {
    constexpr bool vec = block_pixel(E);
    constexpr int n = vec ? 16 / E : 1, band = 512;
    const int fx = vec ? w / n * n : 0;
    for (int by = 0; by < h; by += band) {
        const int ey = h - by < band ? h : by + band;
        const int fy = vec ? by + (ey - by) / n * n : by;
        if constexpr (vec) {
            // Columns one vector wide, then one block wide.
            int x = 0;
            auto columns = [&](auto v) ZEL_VL {
                using V = decltype(v);
                for (constexpr int across = V::kWidth / E; x + across <= fx; x += across)
                    for (int y = by; y < fy; y += n)
                        transpose_blocks<E, V, NT>(s + y * ss + std::ptrdiff_t(x) * E, ss, d + x * ds + std::ptrdiff_t(y) * E, ds);
            };
            columns(Bytes{}), columns(Bytes16{});
        }
        transpose_pixels<E>(s, ss, d, ds, fx, w, by, fy);
        transpose_pixels<E>(s, ss, d, ds, 0, w, fy, ey);
    }
}

// Square region in place: pairs of blocks above and below the diagonal change
// places, diagonal blocks turn in themselves, and the pixels outside the
// block grid are swapped one pair at a time.
template <int E>
void transpose_square(std::uint8_t* p, std::ptrdiff_t step, int N) {
    int F = 0;
    if constexpr (block_pixel(E)) {
        constexpr int n = 16 / E;
        F = N / n * n;
        alignas(16) std::uint8_t tmp[16 * 16];
        auto put_back = [&](std::uint8_t* to) {
            for (int i = 0; i < n; ++i) store(to + i * step, load<Bytes16>(tmp + 16 * i));
        };
        for (int by = 0; by < F; by += n) {
            std::uint8_t* diag = p + by * step + std::ptrdiff_t(by) * E;
            transpose_blocks<E, Bytes16, false>(diag, step, tmp, 16);
            put_back(diag);
            for (int bx = by + n; bx < F; bx += n) {
                std::uint8_t* a = p + by * step + std::ptrdiff_t(bx) * E; // above the diagonal
                std::uint8_t* b = p + bx * step + std::ptrdiff_t(by) * E; // its mirror
                transpose_blocks<E, Bytes16, false>(a, step, tmp, 16);
                transpose_blocks<E, Bytes16, false>(b, step, a, step);
                put_back(b);
            }
        }
    }
    std::uint8_t t[E];
    for (int y = 0; y < N; ++y)
        for (int x = y + 1 > F ? y + 1 : F; x < N; ++x) {
            std::uint8_t* a = p + y * step + std::ptrdiff_t(x) * E;
            std::uint8_t* b = p + x * step + std::ptrdiff_t(y) * E;
            __builtin_memcpy(t, a, E);
            __builtin_memcpy(a, b, E);
            __builtin_memcpy(b, t, E);
        }
}

// ===========================================================================
// Mirror
// ===========================================================================

struct Table16 {
    std::uint8_t b[16];
};

// Byte shuffle that reverses the order of the E-byte pixels of a 16-byte block.
template <int E>
constexpr Table16 reverse_table() {
    Table16 t{};
    for (int j = 0; j < 16; ++j) t.b[j] = std::uint8_t((16 / E - 1 - j / E) * E + j % E);
    return t;
}

// Byte shuffle of the last P = 16 / E whole pixels of 16 bytes into reverse
// order at the front (three-sample pixels: the load starts 16 - P E bytes
// before them); the bytes after them give 0.
template <int E>
constexpr Table16 reverse_tail_table() {
    Table16 t{};
    constexpr int P = 16 / E, lead = 16 - P * E;
    for (int j = 0; j < 16; ++j) t.b[j] = j < P * E ? std::uint8_t(lead + (P - 1 - j / E) * E + j % E) : 0x80;
    return t;
}

// Row operations of the mirror on pixels of C samples of S bytes, A of them
// active: with A < C the sample after the active ones keeps its place and value.
template <int S, int C, int A>
struct MirrorRows {
    static constexpr int E = S * C;
    static constexpr bool kAlpha = A < C;
    static constexpr bool kVec = block_pixel(E);
    static constexpr Table16 kRev = reverse_table<kVec ? E : 1>();

    template <class V>
    ZEL_VI static V reversed(V v) { return reverse_blocks(shuffle16(v, kRev.b)); }
    // v with the alpha bytes of old.
    template <class V>
    ZEL_VI static V merge(V v, V old) {
        if constexpr (kAlpha) return select(last_sample_bytes<V, E, S>(), old, v);
        else return v;
    }

    // Pixel x of a row.
    template <class P>
    static P* px(P* row, std::ptrdiff_t x) { return row + x * E; }
    static void put(std::uint8_t* d, const std::uint8_t* s) { __builtin_memcpy(d, s, A * S); }
    static void swap(std::uint8_t* a, std::uint8_t* b) {
        std::uint8_t t[A * S];
        __builtin_memcpy(t, a, A * S);
        __builtin_memcpy(a, b, A * S);
        __builtin_memcpy(b, t, A * S);
    }

    // body(V{}, x, n) on n pixels at x while fits(x, n): vectors of the level's
    // width, then of 16 bytes. Returns the first pixel left to the scalar tail.
    template <class Fits, class Body>
    ZEL_VI static int by_vectors(Fits fits, Body body) {
        int x = 0;
        auto run = [&](auto v) ZEL_VL {
            for (constexpr int n = decltype(v)::kWidth / E; fits(x, n); x += n) body(v, x, n);
        };
        run(Bytes{}), run(Bytes16{});
        return x;
    }

    // d[x] = s[x]; nt: streamed (the caller fences; never with alpha).
    static void copy(const std::uint8_t* s, std::uint8_t* d, int w, bool nt) {
        if constexpr (!kAlpha) {
            if (nt) stream_copy(d, s, std::size_t(w) * E);
            else __builtin_memcpy(d, s, std::size_t(w) * E);
        } else {
            int x = by_vectors([&](int x, int n) { return x + n <= w; }, [&](auto v, int x, int) ZEL_VL {
                using V = decltype(v);
                store(px(d, x), merge(load<V>(px(s, x)), load<V>(px(d, x))));
            });
            for (; x < w; ++x) put(px(d, x), px(s, x));
        }
    }

    // d[x] = s[w - 1 - x].
    static void reverse(const std::uint8_t* s, std::uint8_t* d, int w) {
        int x = 0;
        if constexpr (kVec) {
            x = by_vectors([&](int x, int n) { return x + n <= w; }, [&](auto v, int x, int n) ZEL_VL {
                using V = decltype(v);
                const V r = reversed(load<V>(px(s, w - x - n)));
                store(px(d, x), merge(r, kAlpha ? load<V>(px(d, x)) : r));
            });
        } else if constexpr ((E == 3 || E == 6) && !kAlpha) {
            // P pixels a shuffle, from a load that ends with them; the bytes
            // after them are rewritten by the next step or the scalar tail.
            static constexpr Table16 t = reverse_tail_table<E>();
            constexpr int P = 16 / E, need = (16 + E - 1) / E;
            for (; x + need <= w; x += P) store(px(d, x), shuffle16(load<Bytes16>(px(s, w - x) - 16), t.b));
        }
        for (; x < w; ++x) put(px(d, x), px(s, w - 1 - x));
    }

    // Rows a and b exchange their pixels.
    static void exchange(std::uint8_t* a, std::uint8_t* b, int w) {
        int x = 0;
        if constexpr (kVec) {
            x = by_vectors([&](int x, int n) { return x + n <= w; }, [&](auto v, int x, int) ZEL_VL {
                using V = decltype(v);
                const V va = load<V>(px(a, x)), vb = load<V>(px(b, x));
                store(px(a, x), merge(vb, va));
                store(px(b, x), merge(va, vb));
            });
        }
        for (; x < w; ++x) swap(px(a, x), px(b, x));
    }

    // New a[x] = old b[w-1-x] and new b[x] = old a[w-1-x]; a may equal b (then
    // pairs from both ends meet in the middle).
    static void exchange_reversed(std::uint8_t* a, std::uint8_t* b, int w) {
        int x = 0;
        const bool same = a == b;
        if constexpr (kVec) {
            x = by_vectors([&](int x, int n) { return same ? x + n <= w - (x + n) : x + n <= w; }, [&](auto v, int x, int n) ZEL_VL {
                using V = decltype(v);
                const V va = load<V>(px(a, x)), vb = load<V>(px(b, w - x - n));
                store(px(a, x), merge(reversed(vb), va));
                store(px(b, w - x - n), merge(reversed(va), vb));
            });
        }
        for (const int end = same ? w / 2 : w; x < end; ++x) swap(px(a, x), px(b, w - 1 - x));
    }
};

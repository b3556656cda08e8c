// Byte copies and pattern fills at the level's vector width, shared by every
// family that moves whole pixels (copy and set, border copies; filters and
// geometry for their border runs). No include guard: read by
// core/simd/level.hpp inside each level's namespace.
//
// copy_bytes_row<NT>(s, d, n) copies n bytes; fill_bytes_row<P, NT>(d, n, buf)
// repeats a pattern whose period P is the vector width (pixels of 1, 2, 4, 8
// or 16 bytes) or three vector widths (pixels of 3, 6 or 12 bytes). With NT
// the aligned vectors go out by streaming stores and the caller fences.

using Byte = std::uint8_t;

// Fewer than 2 * B bytes: one block of each power of two found in n.
template <int B>
inline void copy_short(const Byte* s, Byte* d, std::size_t n) {
    if (n & B) {
        constexpr int Q = B < kBytes ? B : kBytes; // bytes a register
        if constexpr (B >= 16)
            for (int k = 0; k < B; k += Q) store(d + k, load<Vec<Byte, Q>>(s + k));
        else __builtin_memcpy(d, s, B);
        s += B, d += B;
    }
    if constexpr (B > 1) copy_short<B / 2>(s, d, n);
}

inline std::size_t to_boundary(const void* p, std::size_t b) { return (b - reinterpret_cast<std::uintptr_t>(p) % b) % b; }

// Large non-temporal copies pull each block of this many source bytes into
// the cache first (one byte of each 64-byte line), then stream it out.
constexpr std::size_t kNtBlock = 0x40000;

// One row of n bytes; source and destination do not overlap. Temporal: an
// unaligned vector at the start, aligned vectors from the destination's first
// vector boundary, four a round, and an unaligned vector ending at the row's
// end. Non-temporal: bytes up to the boundary, streamed blocks, short tail.
template <bool NT>
inline void copy_bytes_row(const Byte* s, Byte* d, std::size_t n) {
    using V = Vec<Byte>;
    constexpr std::size_t W = kBytes;
    if (n < 2 * W) return copy_short<kBytes>(s, d, n);
    if constexpr (NT) {
        const std::size_t head = to_boundary(d, W);
        copy_short<kBytes>(s, d, head);
        s += head, d += head, n -= head;
        while (n >= W) {
            const std::size_t block = n < kNtBlock ? (n & ~(W - 1)) : kNtBlock;
            unsigned touch = 0;
            for (std::size_t i = 0; i < block; i += 64) touch += s[i];
            asm volatile("" ::"r"(touch));
            std::size_t i = 0;
            for (; i + 4 * W <= block; i += 4 * W) {
                const V a = load<V>(s + i), b = load<V>(s + i + W), c = load<V>(s + i + 2 * W), e = load<V>(s + i + 3 * W);
                stream(d + i, a), stream(d + i + W, b), stream(d + i + 2 * W, c), stream(d + i + 3 * W, e);
            }
            for (; i < block; i += W) stream(d + i, load<V>(s + i));
            s += block, d += block, n -= block;
        }
        copy_short<kBytes>(s, d, n);
    } else {
        store(d, load<V>(s));
        const std::size_t a = W - reinterpret_cast<std::uintptr_t>(d) % W;
        Byte* const last = d + n - W;
        const Byte* const lastSrc = s + n - W;
        s += a, d += a, n -= a;
        for (; n >= 4 * W; s += 4 * W, d += 4 * W, n -= 4 * W) {
            const V v0 = load<V>(s), v1 = load<V>(s + W), v2 = load<V>(s + 2 * W), v3 = load<V>(s + 3 * W);
            store_a(d, v0), store_a(d + W, v1), store_a(d + 2 * W, v2), store_a(d + 3 * W, v3);
        }
        for (; n >= W; s += W, d += W, n -= W) store_a(d, load<V>(s));
        if (n) store(last, load<V>(lastSrc));
    }
}

// Bytes of a pattern buffer: any phase below the longest period (three
// 64-byte vectors) plus one vector.
constexpr int kPatternBytes = 256;

// The period of a pixel of pb bytes at this level.
inline int pattern_period(int pb) { return 16 % pb == 0 ? kBytes : 3 * kBytes; }

// One row of n bytes of the pattern buf (buf[i] = pixel[i % pixel bytes],
// kPatternBytes long), period P, starting at phase 0. Short rows by 16-byte
// vectors (the pattern repeats every 16 or 48 bytes); long rows by one
// unaligned vector at each end and vectors aligned on the destination
// between them, whose phases follow each other.
template <int P, bool NT>
inline void fill_bytes_row(Byte* d, std::size_t n, const Byte* buf) {
    using V = Vec<Byte>;
    constexpr std::size_t W = kBytes, P16 = P == kBytes ? 16 : 48;
    if (n < 2 * W) {
        using H = Vec<Byte, 16>;
        if (n < 16) {
            for (std::size_t i = 0; i < n; ++i) d[i] = buf[i];
            return;
        }
        std::size_t i = 0;
        for (; i + 16 <= n; i += 16) store(d + i, load<H>(buf + i % P16));
        if (i < n) store(d + n - 16, load<H>(buf + (n - 16) % P16));
        return;
    }
    store(d, load<V>(buf));
    const std::size_t a = W - reinterpret_cast<std::uintptr_t>(d) % W;
    const std::size_t end = (n - W) % P; // phase of the last vector
    Byte* const last = d + n - W;
    d += a, n -= a;
    const std::size_t phase = a % P;
    const V r0 = load<V>(buf + phase), r1 = load<V>(buf + (phase + W) % P), r2 = load<V>(buf + (phase + 2 * W) % P);
    if constexpr (P == kBytes) {
        for (; n >= 4 * W; d += 4 * W, n -= 4 * W) put_a<NT>(d, r0), put_a<NT>(d + W, r0), put_a<NT>(d + 2 * W, r0), put_a<NT>(d + 3 * W, r0);
    } else {
        for (; n >= 3 * W; d += 3 * W, n -= 3 * W) put_a<NT>(d, r0), put_a<NT>(d + W, r1), put_a<NT>(d + 2 * W, r2);
    }
    const V rest[3] = {r0, r1, r2};
    for (int k = 0; n >= W; ++k, d += W, n -= W) put_a<NT>(d, rest[k]);
    if (n) store(last, load<V>(buf + end));
}

// The row fill for a pixel of pb bytes at this level.
template <bool NT>
inline void fill_pattern_row(Byte* d, std::size_t n, const Byte* buf, int pb) {
    if (pattern_period(pb) == kBytes) fill_bytes_row<kBytes, NT>(d, n, buf);
    else fill_bytes_row<3 * kBytes, NT>(d, n, buf);
}

// ---- Pixel runs ------------------------------------------------------------------
// Byte tables of a pixel of PB bytes held in the low bytes of a 16-byte
// vector: t[j] repeats it from phase 16 j (j = 0, 1, 2 cover a 48-byte
// period), tail from the phase of the last 16 bytes of a run of whole pixels.
template <int PB>
struct PixelTables {
    std::uint8_t t[3][16], tail[16];
    constexpr PixelTables() : t{}, tail{} {
        for (int i = 0; i < 16; ++i) {
            for (int j = 0; j < 3; ++j) t[j][i] = std::uint8_t((16 * j + i) % PB);
            tail[i] = std::uint8_t(((PB - 16 % PB) % PB + i) % PB);
        }
    }
};
template <int PB>
constexpr PixelTables<PB> kPixelTables{};

// n copies of the pixel of PB bytes at px (which lies outside the run).
// Runs below two vectors by 16-byte stores, longer ones through a pattern of
// the level's width.
template <int PB>
inline void fill_pixels(Byte* d, const Byte* px, std::size_t n) {
    using H = Vec<Byte, 16>;
    const std::size_t bytes = n * PB;
    if (bytes < 16) {
        Byte v[PB];
        __builtin_memcpy(v, px, PB);
        for (std::size_t i = 0; i < n; ++i) __builtin_memcpy(d + i * PB, v, PB);
        return;
    }
    const H v = load_n<H>(px, PB);
    const auto& tab = kPixelTables<PB>;
    const H p[3] = {shuffle16(v, tab.t[0]), shuffle16(v, tab.t[1]), shuffle16(v, tab.t[2])};
    if (bytes < 2 * std::size_t(kBytes)) {
        std::size_t i = 0;
        for (int k = 0; i + 16 <= bytes; i += 16, k = k == 2 ? 0 : k + 1) store(d + i, p[k]);
        if (i < bytes) store(d + bytes - 16, shuffle16(v, tab.tail));
        return;
    }
    alignas(64) Byte buf[4 * kBytes];
    for (int k = 0; k < 4 * kBytes / 16; ++k) store(buf + 16 * k, p[k % 3]);
    fill_bytes_row<16 % PB == 0 ? kBytes : 3 * kBytes, false>(d, bytes, buf);
}

// Runs of n pixels of C samples of T, A of them active (AC4: alpha stays).
// copy_run: source and destination are different rows.
template <class T, int C, int A>
void copy_run(const T* s, T* d, int n) {
    if (n <= 0 || s == d) return;
    if constexpr (A < C) {
        for (int p = 0; p < n; ++p, s += C, d += C)
            for (int c = 0; c < A; ++c) d[c] = s[c];
    } else {
        copy_bytes_row<false>(reinterpret_cast<const Byte*>(s), reinterpret_cast<Byte*>(d), std::size_t(n) * C * sizeof(T));
    }
}
// fill_run: px may lie in the same row, outside the run.
template <class T, int C, int A>
void fill_run(T* d, const T* px, int n) {
    if (n <= 0) return;
    if constexpr (A < C) {
        T v[A];
        for (int c = 0; c < A; ++c) v[c] = px[c];
        for (int p = 0; p < n; ++p, d += C)
            for (int c = 0; c < A; ++c) d[c] = v[c];
    } else {
        fill_pixels<C * sizeof(T)>(reinterpret_cast<Byte*>(d), reinterpret_cast<const Byte*>(px), std::size_t(n));
    }
}

// The vector layer: one vocabulary for every family's row kernels, compiled
// once per instruction-set level. This file has no include guard on purpose:
// core/simd/levels.hpp includes it once inside each level's namespace
// (zel::sse41, zel::avx2, zel::avx512) with that level's target options, so
// the same source becomes 16-, 32- or 64-byte code.
//
// Vec<T, B> is B bytes of lanes of T (B = 16, 32 or 64, at most the level's
// kBytes); its default width is the level's native one. Plain arithmetic and
// logic are the compiler's element-wise vector operators; everything whose
// instruction depends on the width (saturation, packs, byte shuffles,
// estimates, masks) is written here once per width, so kernels never name an
// intrinsic of a particular width.
//
// Conventions:
//  - A mask is a Vec of the same lane type with every bit of a lane set
//    (true) or clear (false), as the comparisons return it.
//  - min(a, b) is "a < b ? a : b" and max(a, b) "a > b ? a : b", lane by lane:
//    for floats the second operand wins when either is NaN, as the
//    processor's min and max do at every width.
//  - widen/narrow keep lane order at every width (the 256- and 512-bit packs
//    work per 128-bit block; the lanes are put back in order here).
//  - Partial loads and stores (load_n, store_n) move exactly n lanes and touch
//    no memory outside them, so a row's tail runs through the same vector
//    operation as its body and gives the same bits.
#ifndef ZEL_LEVEL
#error "core/simd/vec.hpp is included by core/simd/levels.hpp"
#endif

// A 32- or 64-byte vector never crosses a real call: the calling convention
// of a function follows the file's baseline options, not the level's, and the
// compiler then returns such a vector in a register whose upper half it clears
// on the way out. Every function of the layer, and every function of a
// kernels header that takes or returns a Vec (operation objects and their
// helpers included), is therefore always inlined: mark it ZEL_VI (ZEL_VL for
// a lambda). Row kernels,
// which take pointers and counts, are the only real calls into a level.

constexpr int kBytes = ZEL_LEVEL == 3 ? 64 : ZEL_LEVEL == 2 ? 32 : 16;
constexpr int kLevel = ZEL_LEVEL;

// Integer lane type of the same size (comparisons of raw vectors give it).
template <int S> struct IntOfSize;
template <> struct IntOfSize<1> { using type = std::int8_t; };
template <> struct IntOfSize<2> { using type = std::int16_t; };
template <> struct IntOfSize<4> { using type = std::int32_t; };
template <> struct IntOfSize<8> { using type = std::int64_t; };

template <class T, int B>
struct RawOf {
    typedef T type __attribute__((vector_size(B)));
};

template <class T, int B = kBytes>
struct Vec {
    // 16, 32 or 64 bytes; narrower ones only inside this layer (half vectors)
    static_assert(B >= 4 && (B & (B - 1)) == 0, "a power of two of bytes");
    static_assert(B <= kBytes, "wider than this level's registers");
    using Lane = T;
    using Raw = typename RawOf<T, B>::type;
    static constexpr int kLanes = B / int(sizeof(T));
    static constexpr int kWidth = B;
    Raw v;
};

// The same lanes reinterpreted or the lane type of another size.
template <class T, int B> using Mask = Vec<T, B>;
template <class T> using NVec = Vec<T, kBytes>;
template <class T> constexpr int lanes = kBytes / int(sizeof(T));

// The hardware register of a width, integer or float view.
template <int B> struct Reg;
template <> struct Reg<16> { using i = __m128i; using f = __m128; using d = __m128d; };
template <> struct Reg<32> { using i = __m256i; using f = __m256; using d = __m256d; };
template <> struct Reg<64> { using i = __m512i; using f = __m512; using d = __m512d; };

template <class T, int B> ZEL_VI typename Reg<B>::i ri(Vec<T, B> a) { return (typename Reg<B>::i)a.v; }
template <class T, int B> ZEL_VI typename Reg<B>::f rf(Vec<T, B> a) { return (typename Reg<B>::f)a.v; }
template <class T, int B> ZEL_VI typename Reg<B>::d rd(Vec<T, B> a) { return (typename Reg<B>::d)a.v; }
template <class T, int B, class R> ZEL_VI Vec<T, B> wrap(R r) { return Vec<T, B>{(typename Vec<T, B>::Raw)r}; }

// Same bits, other lane type.
template <class U, class T, int B>
ZEL_VI Vec<U, B> bitcast(Vec<T, B> a) { return Vec<U, B>{(typename Vec<U, B>::Raw)a.v}; }

// ---- Construction and memory ------------------------------------------------
template <class V> ZEL_VI V zero() { return V{typename V::Raw{}}; }
// Every lane x, bit for bit (a float goes through its integer pattern, so
// -0.0 and NaN payloads stay as they are).
template <class V>
ZEL_VI V set1(typename V::Lane x) {
    using T = typename V::Lane;
    if constexpr (std::is_floating_point<T>::value) {
        using I = typename IntOfSize<sizeof(T)>::type;
        I b;
        __builtin_memcpy(&b, &x, sizeof b);
        return V{(typename V::Raw)(typename RawOf<I, V::kWidth>::type{} + b)};
    } else {
        return V{typename V::Raw{} + x};
    }
}

// Lane i holds first + i.
template <class V>
ZEL_VI V iota(typename V::Lane first = 0) {
    typename V::Raw r;
    for (int i = 0; i < V::kLanes; ++i) r[i] = typename V::Lane(first + i);
    return V{r};
}

template <class V> ZEL_VI V load(const typename V::Lane* p) {
    V r;
    __builtin_memcpy(&r.v, p, sizeof r.v);
    return r;
}
template <class V> ZEL_VI V load_a(const typename V::Lane* p) {
    return V{*reinterpret_cast<const typename V::Raw*>(__builtin_assume_aligned(p, V::kWidth))};
}
template <class T, int B> ZEL_VI void store(T* p, Vec<T, B> a) { __builtin_memcpy(p, &a.v, sizeof a.v); }
template <class T, int B> ZEL_VI void store_a(T* p, Vec<T, B> a) {
    *reinterpret_cast<typename Vec<T, B>::Raw*>(__builtin_assume_aligned(p, B)) = a.v;
}

// Non-temporal store of an aligned vector; fence() orders the streamed data
// before the call returns.
template <class T, int B>
ZEL_VI void stream(T* p, Vec<T, B> a) {
    if constexpr (B == 16) _mm_stream_si128(reinterpret_cast<__m128i*>(p), ri(a));
    else if constexpr (B == 32) _mm256_stream_si256(reinterpret_cast<__m256i*>(p), ri(a));
    else _mm512_stream_si512(reinterpret_cast<__m512i*>(p), ri(a));
}
ZEL_VI void fence() { _mm_sfence(); }

// Either store by a compile-time choice.
template <bool NT, class T, int B>
ZEL_VI void put_a(T* p, Vec<T, B> a) {
    if constexpr (NT) stream(p, a);
    else store_a(p, a);
}

// The low n of `lanes` bits set (n <= lanes <= 64).
ZEL_VI unsigned long long lane_mask(int n, int lanes) { return n >= lanes ? ~0ull : ((1ull << n) - 1); }

// The first n lanes from p (0 <= n <= lanes), the others zero.
template <class V>
ZEL_VI V load_n(const typename V::Lane* p, int n) {
    using T = typename V::Lane;
#if ZEL_LEVEL == 3
    constexpr int B = V::kWidth;
    const auto k = lane_mask(n, V::kLanes);
    if constexpr (sizeof(T) == 1) {
        if constexpr (B == 16) return wrap<T, B>(_mm_maskz_loadu_epi8(__mmask16(k), p));
        else if constexpr (B == 32) return wrap<T, B>(_mm256_maskz_loadu_epi8(__mmask32(k), p));
        else return wrap<T, B>(_mm512_maskz_loadu_epi8(__mmask64(k), p));
    } else if constexpr (sizeof(T) == 2) {
        if constexpr (B == 16) return wrap<T, B>(_mm_maskz_loadu_epi16(__mmask8(k), p));
        else if constexpr (B == 32) return wrap<T, B>(_mm256_maskz_loadu_epi16(__mmask16(k), p));
        else return wrap<T, B>(_mm512_maskz_loadu_epi16(__mmask32(k), p));
    } else if constexpr (sizeof(T) == 4) {
        if constexpr (B == 16) return wrap<T, B>(_mm_maskz_loadu_epi32(__mmask8(k), p));
        else if constexpr (B == 32) return wrap<T, B>(_mm256_maskz_loadu_epi32(__mmask8(k), p));
        else return wrap<T, B>(_mm512_maskz_loadu_epi32(__mmask16(k), p));
    } else {
        if constexpr (B == 16) return wrap<T, B>(_mm_maskz_loadu_epi64(__mmask8(k), p));
        else if constexpr (B == 32) return wrap<T, B>(_mm256_maskz_loadu_epi64(__mmask8(k), p));
        else return wrap<T, B>(_mm512_maskz_loadu_epi64(__mmask8(k), p));
    }
#else
    V r = zero<V>();
    __builtin_memcpy(&r.v, p, std::size_t(n) * sizeof(T));
    return r;
#endif
}

// The first n lanes of a to p; nothing else is written.
template <class T, int B>
ZEL_VI void store_n(T* p, Vec<T, B> a, int n) {
#if ZEL_LEVEL == 3
    const auto k = lane_mask(n, Vec<T, B>::kLanes);
    if constexpr (sizeof(T) == 1) {
        if constexpr (B == 16) _mm_mask_storeu_epi8(p, __mmask16(k), ri(a));
        else if constexpr (B == 32) _mm256_mask_storeu_epi8(p, __mmask32(k), ri(a));
        else _mm512_mask_storeu_epi8(p, __mmask64(k), ri(a));
    } else if constexpr (sizeof(T) == 2) {
        if constexpr (B == 16) _mm_mask_storeu_epi16(p, __mmask8(k), ri(a));
        else if constexpr (B == 32) _mm256_mask_storeu_epi16(p, __mmask16(k), ri(a));
        else _mm512_mask_storeu_epi16(p, __mmask32(k), ri(a));
    } else if constexpr (sizeof(T) == 4) {
        if constexpr (B == 16) _mm_mask_storeu_epi32(p, __mmask8(k), ri(a));
        else if constexpr (B == 32) _mm256_mask_storeu_epi32(p, __mmask8(k), ri(a));
        else _mm512_mask_storeu_epi32(p, __mmask16(k), ri(a));
    } else {
        if constexpr (B == 16) _mm_mask_storeu_epi64(p, __mmask8(k), ri(a));
        else if constexpr (B == 32) _mm256_mask_storeu_epi64(p, __mmask8(k), ri(a));
        else _mm512_mask_storeu_epi64(p, __mmask8(k), ri(a));
    }
#else
    __builtin_memcpy(p, &a.v, std::size_t(n) * sizeof(T));
#endif
}

// Lane i of a vector.
template <class T, int B> ZEL_VI T lane(Vec<T, B> a, int i) { return a.v[i]; }

// ---- Element-wise arithmetic and logic ------------------------------------------
// Integer lanes wrap; float lanes follow IEEE in the current rounding mode.
template <class T, int B> ZEL_VI Vec<T, B> operator+(Vec<T, B> a, Vec<T, B> b) { return {a.v + b.v}; }
template <class T, int B> ZEL_VI Vec<T, B> operator-(Vec<T, B> a, Vec<T, B> b) { return {a.v - b.v}; }
template <class T, int B> ZEL_VI Vec<T, B> operator*(Vec<T, B> a, Vec<T, B> b) { return {a.v * b.v}; }
template <class T, int B> ZEL_VI Vec<T, B> operator/(Vec<T, B> a, Vec<T, B> b) { return {a.v / b.v}; }
template <class T, int B> ZEL_VI Vec<T, B> operator-(Vec<T, B> a) { return {-a.v}; }

template <class T, int B> ZEL_VI Vec<T, B> operator&(Vec<T, B> a, Vec<T, B> b) {
    return wrap<T, B>(bitcast<std::int64_t>(a).v & bitcast<std::int64_t>(b).v);
}
template <class T, int B> ZEL_VI Vec<T, B> operator|(Vec<T, B> a, Vec<T, B> b) {
    return wrap<T, B>(bitcast<std::int64_t>(a).v | bitcast<std::int64_t>(b).v);
}
template <class T, int B> ZEL_VI Vec<T, B> operator^(Vec<T, B> a, Vec<T, B> b) {
    return wrap<T, B>(bitcast<std::int64_t>(a).v ^ bitcast<std::int64_t>(b).v);
}
template <class T, int B> ZEL_VI Vec<T, B> operator~(Vec<T, B> a) { return wrap<T, B>(~bitcast<std::int64_t>(a).v); }
// a & ~m
template <class T, int B> ZEL_VI Vec<T, B> andnot(Vec<T, B> m, Vec<T, B> a) { return a & ~m; }

// Shifts: logical for unsigned lanes, arithmetic for signed ones.
template <int K, class T, int B> ZEL_VI Vec<T, B> shl(Vec<T, B> a) { return {a.v << K}; }
template <int K, class T, int B> ZEL_VI Vec<T, B> shr(Vec<T, B> a) { return {a.v >> K}; }
// By a run-time count, the same for every lane (0 <= n < lane bits).
template <class T, int B> ZEL_VI Vec<T, B> shl(Vec<T, B> a, int n) { return {a.v << n}; }
template <class T, int B> ZEL_VI Vec<T, B> shr(Vec<T, B> a, int n) { return {a.v >> n}; }

// ---- Comparison and selection ------------------------------------------------
template <class T, int B> ZEL_VI Vec<T, B> eq(Vec<T, B> a, Vec<T, B> b) { return wrap<T, B>(a.v == b.v); }
template <class T, int B> ZEL_VI Vec<T, B> ne(Vec<T, B> a, Vec<T, B> b) { return wrap<T, B>(a.v != b.v); }
template <class T, int B> ZEL_VI Vec<T, B> lt(Vec<T, B> a, Vec<T, B> b) { return wrap<T, B>(a.v < b.v); }
template <class T, int B> ZEL_VI Vec<T, B> le(Vec<T, B> a, Vec<T, B> b) { return wrap<T, B>(a.v <= b.v); }
template <class T, int B> ZEL_VI Vec<T, B> gt(Vec<T, B> a, Vec<T, B> b) { return wrap<T, B>(a.v > b.v); }
template <class T, int B> ZEL_VI Vec<T, B> ge(Vec<T, B> a, Vec<T, B> b) { return wrap<T, B>(a.v >= b.v); }

// m ? a : b, lane by lane.
template <class T, int B>
ZEL_VI Vec<T, B> select(Vec<T, B> m, Vec<T, B> a, Vec<T, B> b) {
    using I = typename IntOfSize<sizeof(T)>::type;
    return Vec<T, B>{bitcast<I>(m).v != 0 ? a.v : b.v};
}

// Float lanes by the processor's own instruction, which is exactly this rule
// (the compiler may emit a compare and a blend for the conditional).
template <class T, int B>
ZEL_VI Vec<T, B> min(Vec<T, B> a, Vec<T, B> b) {
    if constexpr (std::is_same<T, float>::value) {
        if constexpr (B == 16) return wrap<T, B>(_mm_min_ps(rf(a), rf(b)));
        else if constexpr (B == 32) return wrap<T, B>(_mm256_min_ps(rf(a), rf(b)));
        else return wrap<T, B>(_mm512_min_ps(rf(a), rf(b)));
    } else {
        return {a.v < b.v ? a.v : b.v};
    }
}
template <class T, int B>
ZEL_VI Vec<T, B> max(Vec<T, B> a, Vec<T, B> b) {
    if constexpr (std::is_same<T, float>::value) {
        if constexpr (B == 16) return wrap<T, B>(_mm_max_ps(rf(a), rf(b)));
        else if constexpr (B == 32) return wrap<T, B>(_mm256_max_ps(rf(a), rf(b)));
        else return wrap<T, B>(_mm512_max_ps(rf(a), rf(b)));
    } else {
        return {a.v > b.v ? a.v : b.v};
    }
}
template <class T, int B> ZEL_VI Vec<T, B> clamp(Vec<T, B> a, Vec<T, B> lo, Vec<T, B> hi) { return min(max(a, lo), hi); }
template <class T, int B> ZEL_VI Vec<T, B> abs(Vec<T, B> a) {
    if constexpr (std::is_floating_point<T>::value) return andnot(set1<Vec<T, B>>(T(-0.0)), a);
    else {
        // in unsigned lanes: the magnitude of the lowest value wraps to itself
        using U = std::make_unsigned_t<T>;
        const Vec<U, B> u = bitcast<U>(a);
        return bitcast<T>(select(bitcast<U>(lt(a, zero<Vec<T, B>>())), zero<Vec<U, B>>() - u, u));
    }
}

// Every second bit of a byte mask: 16-bit lanes, whose two bytes agree.
ZEL_VI std::uint64_t even_bits(std::uint64_t b) {
    std::uint64_t r = 0;
    for (int i = 0; i < 32; ++i) r |= ((b >> (2 * i)) & 1u) << i;
    return r;
}

// One bit a lane, lane 0 in bit 0.
template <class T, int B>
ZEL_VI std::uint64_t bits(Vec<T, B> m) {
#if ZEL_LEVEL == 3
    if constexpr (sizeof(T) == 1) {
        if constexpr (B == 16) return _mm_movepi8_mask(ri(m));
        else if constexpr (B == 32) return _mm256_movepi8_mask(ri(m));
        else return _mm512_movepi8_mask(ri(m));
    } else if constexpr (sizeof(T) == 2) {
        if constexpr (B == 16) return _mm_movepi16_mask(ri(m));
        else if constexpr (B == 32) return _mm256_movepi16_mask(ri(m));
        else return _mm512_movepi16_mask(ri(m));
    } else if constexpr (sizeof(T) == 4) {
        if constexpr (B == 16) return _mm_movepi32_mask(ri(m));
        else if constexpr (B == 32) return _mm256_movepi32_mask(ri(m));
        else return _mm512_movepi32_mask(ri(m));
    } else {
        if constexpr (B == 16) return _mm_movepi64_mask(ri(m));
        else if constexpr (B == 32) return _mm256_movepi64_mask(ri(m));
        else return _mm512_movepi64_mask(ri(m));
    }
#else
    if constexpr (sizeof(T) == 4) {
        if constexpr (B == 16) return unsigned(_mm_movemask_ps(rf(m)));
        else return unsigned(_mm256_movemask_ps(rf(m)));
    } else if constexpr (sizeof(T) == 8) {
        if constexpr (B == 16) return unsigned(_mm_movemask_pd(rd(m)));
        else return unsigned(_mm256_movemask_pd(rd(m)));
    } else {
        std::uint64_t b;
        if constexpr (B == 16) b = unsigned(_mm_movemask_epi8(ri(m)));
        else b = unsigned(_mm256_movemask_epi8(ri(m)));
        if constexpr (sizeof(T) == 2) b = even_bits(b);
        return b;
    }
#endif
}
template <class T, int B> ZEL_VI bool any(Vec<T, B> m) {
    if constexpr (B == 16) return !_mm_testz_si128(ri(m), ri(m));
    else if constexpr (B == 32) return !_mm256_testz_si256(ri(m), ri(m));
    else return _mm512_test_epi64_mask(ri(m), ri(m)) != 0;
}
template <class T, int B> ZEL_VI bool none(Vec<T, B> m) { return !any(m); }

// ---- Saturating 8- and 16-bit arithmetic ----------------------------------------
#define ZEL_SAT_OP(name, i8, u8, i16, u16)                                                                     \
    template <class T, int B>                                                                                  \
    ZEL_VI Vec<T, B> name(Vec<T, B> a, Vec<T, B> b) {                                                          \
        static_assert(sizeof(T) <= 2, "saturating lanes are 8 or 16 bits");                                    \
        constexpr bool s = std::is_signed<T>::value;                                                           \
        if constexpr (B == 16) {                                                                               \
            if constexpr (sizeof(T) == 1) return wrap<T, B>(s ? _mm_##i8(ri(a), ri(b)) : _mm_##u8(ri(a), ri(b))); \
            else return wrap<T, B>(s ? _mm_##i16(ri(a), ri(b)) : _mm_##u16(ri(a), ri(b)));                     \
        } else if constexpr (B == 32) {                                                                        \
            if constexpr (sizeof(T) == 1)                                                                      \
                return wrap<T, B>(s ? _mm256_##i8(ri(a), ri(b)) : _mm256_##u8(ri(a), ri(b)));                   \
            else return wrap<T, B>(s ? _mm256_##i16(ri(a), ri(b)) : _mm256_##u16(ri(a), ri(b)));               \
        } else {                                                                                               \
            if constexpr (sizeof(T) == 1)                                                                      \
                return wrap<T, B>(s ? _mm512_##i8(ri(a), ri(b)) : _mm512_##u8(ri(a), ri(b)));                   \
            else return wrap<T, B>(s ? _mm512_##i16(ri(a), ri(b)) : _mm512_##u16(ri(a), ri(b)));               \
        }                                                                                                      \
    }
ZEL_SAT_OP(adds, adds_epi8, adds_epu8, adds_epi16, adds_epu16)
ZEL_SAT_OP(subs, subs_epi8, subs_epu8, subs_epi16, subs_epu16)
#undef ZEL_SAT_OP

// ---- Lane order across the 128-bit blocks of wide registers ----------------------
// The wide packs and unpacks work per 128-bit block; these put the 64-bit
// groups of a packed result back in order.
template <int B>
ZEL_VI typename Reg<B>::i fix_pack(typename Reg<B>::i r) {
    if constexpr (B == 16) return r;
    else if constexpr (B == 32) return _mm256_permute4x64_epi64(r, 0xD8);
    else return _mm512_maskz_permutexvar_epi64(__mmask8(0xff), _mm512_setr_epi64(0, 2, 4, 6, 1, 3, 5, 7), r);
}

// ---- Narrowing with saturation ----------------------------------------------------
// Two vectors of 32-bit (or 16-bit) lanes into one of 16-bit (or 8-bit) lanes,
// a's lanes first, each saturated to D.
template <class D, class S, int B>
ZEL_VI Vec<D, B> narrow(Vec<S, B> a, Vec<S, B> b) {
    static_assert(sizeof(S) == 2 * sizeof(D) && std::is_signed<S>::value, "signed lanes of twice the size");
    constexpr bool u = !std::is_signed<D>::value;
    typename Reg<B>::i r;
    if constexpr (B == 16) {
        if constexpr (sizeof(D) == 2) r = u ? _mm_packus_epi32(ri(a), ri(b)) : _mm_packs_epi32(ri(a), ri(b));
        else r = u ? _mm_packus_epi16(ri(a), ri(b)) : _mm_packs_epi16(ri(a), ri(b));
    } else if constexpr (B == 32) {
        if constexpr (sizeof(D) == 2) r = u ? _mm256_packus_epi32(ri(a), ri(b)) : _mm256_packs_epi32(ri(a), ri(b));
        else r = u ? _mm256_packus_epi16(ri(a), ri(b)) : _mm256_packs_epi16(ri(a), ri(b));
    } else {
        if constexpr (sizeof(D) == 2) r = u ? _mm512_packus_epi32(ri(a), ri(b)) : _mm512_packs_epi32(ri(a), ri(b));
        else r = u ? _mm512_packus_epi16(ri(a), ri(b)) : _mm512_packs_epi16(ri(a), ri(b));
    }
    return wrap<D, B>(fix_pack<B>(r));
}

// Four vectors of signed 32-bit lanes into one of 8-bit lanes, saturated to D
// (through 16 bits, which saturates the same). Both packs work per 128-bit
// block; one permutation of 32-bit groups puts the bytes in order.
template <class D, int B>
ZEL_VI Vec<D, B> narrow(Vec<std::int32_t, B> a, Vec<std::int32_t, B> b, Vec<std::int32_t, B> c, Vec<std::int32_t, B> d) {
    static_assert(sizeof(D) == 1, "four 32-bit vectors narrow to bytes");
    constexpr bool u = !std::is_signed<D>::value;
    if constexpr (B == 16) {
        return narrow<D>(narrow<std::int16_t>(a, b), narrow<std::int16_t>(c, d));
    } else if constexpr (B == 32) {
        const __m256i p = _mm256_packs_epi32(ri(a), ri(b)), q = _mm256_packs_epi32(ri(c), ri(d));
        const __m256i r = u ? _mm256_packus_epi16(p, q) : _mm256_packs_epi16(p, q);
        return wrap<D, B>(_mm256_permutevar8x32_epi32(r, _mm256_setr_epi32(0, 4, 1, 5, 2, 6, 3, 7)));
    } else {
        const __m512i p = _mm512_packs_epi32(ri(a), ri(b)), q = _mm512_packs_epi32(ri(c), ri(d));
        const __m512i r = u ? _mm512_packus_epi16(p, q) : _mm512_packs_epi16(p, q);
        return wrap<D, B>(_mm512_maskz_permutexvar_epi32(0xffff, _mm512_setr_epi32(0, 4, 8, 12, 1, 5, 9, 13, 2, 6, 10, 14, 3, 7, 11, 15), r));
    }
}

// Without saturation: the low half of each lane (wrapping).
template <class D, class S, int B>
ZEL_VI Vec<D, B> truncate(Vec<S, B> a, Vec<S, B> b) {
    static_assert(sizeof(S) == 2 * sizeof(D), "lanes of twice the size");
    using Half = typename RawOf<D, B / 2>::type;
    const Half lo = __builtin_convertvector(a.v, Half), hi = __builtin_convertvector(b.v, Half);
    Vec<D, B> r;
    __builtin_memcpy(&r.v, &lo, B / 2);
    __builtin_memcpy(reinterpret_cast<char*>(&r.v) + B / 2, &hi, B / 2);
    return r;
}

// ---- Widening -------------------------------------------------------------------
// Lanes converted by value to U, lane count kept: Vec<T, B> to Vec<U, B * sizeof(U) / sizeof(T)>.
template <class U, class T, int B>
ZEL_VI Vec<U, B * int(sizeof(U)) / int(sizeof(T))> convert(Vec<T, B> a) {
    using R = Vec<U, B * int(sizeof(U)) / int(sizeof(T))>;
    return R{__builtin_convertvector(a.v, typename R::Raw)};
}

// The low or the high half of a's lanes widened by value to U (twice the size).
template <class U, class T, int B>
ZEL_VI Vec<U, B> widen_lo(Vec<T, B> a) {
    static_assert(sizeof(U) == 2 * sizeof(T), "twice the size");
    Vec<T, B / 2> h;
    __builtin_memcpy(&h.v, &a.v, B / 2);
    return convert<U>(h);
}
template <class U, class T, int B>
ZEL_VI Vec<U, B> widen_hi(Vec<T, B> a) {
    static_assert(sizeof(U) == 2 * sizeof(T), "twice the size");
    Vec<T, B / 2> h;
    __builtin_memcpy(&h.v, reinterpret_cast<const char*>(&a.v) + B / 2, B / 2);
    return convert<U>(h);
}

// Loads V::kLanes samples of T and converts them to V's lanes by value.
template <class V, class T>
ZEL_VI V load_as(const T* p) {
    constexpr int B = V::kLanes * int(sizeof(T));
    if constexpr (B >= 16) {
        return convert<typename V::Lane>(load<Vec<T, B>>(p));
    } else {
        typename RawOf<T, B>::type r;
        __builtin_memcpy(&r, p, B);
        return V{__builtin_convertvector(r, typename V::Raw)};
    }
}

// ---- Float and integer conversions -------------------------------------------------
// Float to 32-bit integer in the current rounding mode; out-of-range and NaN
// lanes give 0x80000000, as the processor does at every width.
template <int B>
ZEL_VI Vec<std::int32_t, B> round_int(Vec<float, B> a) {
    if constexpr (B == 16) return wrap<std::int32_t, B>(_mm_cvtps_epi32(rf(a)));
    else if constexpr (B == 32) return wrap<std::int32_t, B>(_mm256_cvtps_epi32(rf(a)));
    else return wrap<std::int32_t, B>(_mm512_cvtps_epi32(rf(a)));
}
// Float to 32-bit integer towards zero, with the same out-of-range result.
template <int B>
ZEL_VI Vec<std::int32_t, B> trunc_int(Vec<float, B> a) {
    if constexpr (B == 16) return wrap<std::int32_t, B>(_mm_cvttps_epi32(rf(a)));
    else if constexpr (B == 32) return wrap<std::int32_t, B>(_mm256_cvttps_epi32(rf(a)));
    else return wrap<std::int32_t, B>(_mm512_cvttps_epi32(rf(a)));
}
template <int B>
ZEL_VI Vec<float, B> to_float(Vec<std::int32_t, B> a) { return Vec<float, B>{__builtin_convertvector(a.v, typename Vec<float, B>::Raw)}; }

// Rounding of float lanes to integral values by a fixed mode
// (_MM_FROUND_TO_NEAREST_INT, _TO_ZERO, _TO_NEG_INF, _TO_POS_INF).
template <int Mode, int B>
ZEL_VI Vec<float, B> round_to(Vec<float, B> a) {
    if constexpr (B == 16) return wrap<float, B>(_mm_round_ps(rf(a), Mode | _MM_FROUND_NO_EXC));
    else if constexpr (B == 32) return wrap<float, B>(_mm256_round_ps(rf(a), Mode | _MM_FROUND_NO_EXC));
    else return wrap<float, B>(_mm512_roundscale_ps(rf(a), Mode | _MM_FROUND_NO_EXC));
}

// The processor's reciprocal estimate with 12 bits, the same instruction at
// every level (the 512-bit registers take it in two 256-bit halves, because
// their own estimate has other bits).
template <int B>
ZEL_VI Vec<float, B> rcp(Vec<float, B> a) {
    if constexpr (B == 16) return wrap<float, B>(_mm_rcp_ps(rf(a)));
    else if constexpr (B == 32) return wrap<float, B>(_mm256_rcp_ps(rf(a)));
    else {
        const __m512 x = rf(a);
        const __m256 lo = _mm256_rcp_ps(_mm512_castps512_ps256(x));
        const __m256 hi = _mm256_rcp_ps(_mm256_castpd_ps(_mm512_extractf64x4_pd(_mm512_castps_pd(x), 1)));
        return wrap<float, B>(_mm512_insertf32x8(_mm512_zextps256_ps512(lo), hi, 1));
    }
}

template <class T, int B>
ZEL_VI Vec<T, B> sqrt(Vec<T, B> a) {
    if constexpr (std::is_same<T, float>::value) {
        if constexpr (B == 16) return wrap<T, B>(_mm_sqrt_ps(rf(a)));
        else if constexpr (B == 32) return wrap<T, B>(_mm256_sqrt_ps(rf(a)));
        else return wrap<T, B>(_mm512_sqrt_ps(rf(a)));
    } else {
        if constexpr (B == 16) return wrap<T, B>(_mm_sqrt_pd(rd(a)));
        else if constexpr (B == 32) return wrap<T, B>(_mm256_sqrt_pd(rd(a)));
        else return wrap<T, B>(_mm512_sqrt_pd(rd(a)));
    }
}

// ---- Special integer products and sums -------------------------------------------
// High 16 bits of the 32-bit products of 16-bit lanes.
template <class T, int B>
ZEL_VI Vec<T, B> mulhi(Vec<T, B> a, Vec<T, B> b) {
    static_assert(sizeof(T) == 2, "16-bit lanes");
    constexpr bool s = std::is_signed<T>::value;
    if constexpr (B == 16) return wrap<T, B>(s ? _mm_mulhi_epi16(ri(a), ri(b)) : _mm_mulhi_epu16(ri(a), ri(b)));
    else if constexpr (B == 32) return wrap<T, B>(s ? _mm256_mulhi_epi16(ri(a), ri(b)) : _mm256_mulhi_epu16(ri(a), ri(b)));
    else return wrap<T, B>(s ? _mm512_mulhi_epi16(ri(a), ri(b)) : _mm512_mulhi_epu16(ri(a), ri(b)));
}

// Pairs of signed 16-bit products added into 32-bit lanes.
template <int B>
ZEL_VI Vec<std::int32_t, B> madd(Vec<std::int16_t, B> a, Vec<std::int16_t, B> b) {
    if constexpr (B == 16) return wrap<std::int32_t, B>(_mm_madd_epi16(ri(a), ri(b)));
    else if constexpr (B == 32) return wrap<std::int32_t, B>(_mm256_madd_epi16(ri(a), ri(b)));
    else return wrap<std::int32_t, B>(_mm512_madd_epi16(ri(a), ri(b)));
}

// Sums of absolute differences of each group of eight bytes, in 64-bit lanes.
template <int B>
ZEL_VI Vec<std::uint64_t, B> sad(Vec<std::uint8_t, B> a, Vec<std::uint8_t, B> b) {
    if constexpr (B == 16) return wrap<std::uint64_t, B>(_mm_sad_epu8(ri(a), ri(b)));
    else if constexpr (B == 32) return wrap<std::uint64_t, B>(_mm256_sad_epu8(ri(a), ri(b)));
    else return wrap<std::uint64_t, B>(_mm512_sad_epu8(ri(a), ri(b)));
}

// Products of the even 32-bit lanes as 64-bit lanes (unsigned).
template <int B>
ZEL_VI Vec<std::uint64_t, B> mul_even(Vec<std::uint32_t, B> a, Vec<std::uint32_t, B> b) {
    if constexpr (B == 16) return wrap<std::uint64_t, B>(_mm_mul_epu32(ri(a), ri(b)));
    else if constexpr (B == 32) return wrap<std::uint64_t, B>(_mm256_mul_epu32(ri(a), ri(b)));
    else return wrap<std::uint64_t, B>(_mm512_mul_epu32(ri(a), ri(b)));
}

// ---- Byte shuffles --------------------------------------------------------------------
// Every 128-bit block of a picks its bytes by the same 16-byte table (a table
// entry with its top bit set gives 0), as one SSSE3 shuffle does.
template <class T, int B>
ZEL_VI Vec<T, B> shuffle16(Vec<T, B> a, const std::uint8_t* table) {
    const __m128i t = _mm_loadu_si128(reinterpret_cast<const __m128i*>(table));
    if constexpr (B == 16) return wrap<T, B>(_mm_shuffle_epi8(ri(a), t));
    else if constexpr (B == 32) return wrap<T, B>(_mm256_shuffle_epi8(ri(a), _mm256_broadcastsi128_si256(t)));
    else return wrap<T, B>(_mm512_shuffle_epi8(ri(a), _mm512_broadcast_i32x4(t)));
}

// The 128-bit block k of a wide vector, and a 16-byte vector put into block k.
template <class T, int B>
ZEL_VI Vec<T, 16> block16(Vec<T, B> a, int k) {
    Vec<T, 16> r;
    __builtin_memcpy(&r.v, reinterpret_cast<const char*>(&a.v) + 16 * k, 16);
    return r;
}

// ---- Horizontal sums ------------------------------------------------------------------
// Integer lanes only: their sum does not depend on the order. Float kernels
// keep their lanes and add them in an order of their own, the same at every
// width.
template <class T, int B>
ZEL_VI T reduce_add(Vec<T, B> a) {
    static_assert(std::is_integral<T>::value, "float sums depend on the order");
    T s = 0;
    for (int i = 0; i < Vec<T, B>::kLanes; ++i) s += a.v[i];
    return s;
}

// ---- Reordering: per-block interleaves and the order of 128-bit blocks -----------------
// Interleave of the low (or high) halves of each 128-bit block of a and b, by
// lanes of T (8 to 64 bits), as one SSE unpack does per block: block k of the
// result holds a0 b0 a1 b1 ... of block k of a and b.
#define ZEL_INTERLEAVE(name, op)                                                                                   \
    template <class T, int B>                                                                                      \
    ZEL_VI Vec<T, B> name(Vec<T, B> a, Vec<T, B> b) {                                                              \
        if constexpr (B == 16) {                                                                                   \
            if constexpr (sizeof(T) == 1) return wrap<T, B>(_mm_##op##_epi8(ri(a), ri(b)));                         \
            else if constexpr (sizeof(T) == 2) return wrap<T, B>(_mm_##op##_epi16(ri(a), ri(b)));                   \
            else if constexpr (sizeof(T) == 4) return wrap<T, B>(_mm_##op##_epi32(ri(a), ri(b)));                   \
            else return wrap<T, B>(_mm_##op##_epi64(ri(a), ri(b)));                                                 \
        } else if constexpr (B == 32) {                                                                            \
            if constexpr (sizeof(T) == 1) return wrap<T, B>(_mm256_##op##_epi8(ri(a), ri(b)));                      \
            else if constexpr (sizeof(T) == 2) return wrap<T, B>(_mm256_##op##_epi16(ri(a), ri(b)));                \
            else if constexpr (sizeof(T) == 4) return wrap<T, B>(_mm256_##op##_epi32(ri(a), ri(b)));                \
            else return wrap<T, B>(_mm256_##op##_epi64(ri(a), ri(b)));                                              \
        } else {                                                                                                   \
            /* the masked forms: the plain ones start from an undefined register */                              \
            if constexpr (sizeof(T) == 1) return wrap<T, B>(_mm512_maskz_##op##_epi8(~0ull, ri(a), ri(b)));         \
            else if constexpr (sizeof(T) == 2) return wrap<T, B>(_mm512_maskz_##op##_epi16(~0u, ri(a), ri(b)));    \
            else if constexpr (sizeof(T) == 4) return wrap<T, B>(_mm512_maskz_##op##_epi32(0xffff, ri(a), ri(b)));  \
            else return wrap<T, B>(_mm512_maskz_##op##_epi64(0xff, ri(a), ri(b)));                                  \
        }                                                                                                          \
    }
ZEL_INTERLEAVE(interleave_lo, unpacklo)
ZEL_INTERLEAVE(interleave_hi, unpackhi)
#undef ZEL_INTERLEAVE

// The 128-bit blocks of a in reverse order (the lanes inside a block keep theirs).
template <class T, int B>
ZEL_VI Vec<T, B> reverse_blocks(Vec<T, B> a) {
    if constexpr (B == 16) return a;
    else if constexpr (B == 32) return wrap<T, B>(_mm256_permute4x64_epi64(ri(a), 0x4E));
    else return wrap<T, B>(_mm512_maskz_shuffle_i64x2(0xff, ri(a), ri(a), 0x1B));
}

// ---- Pixel moves: streaming loads, 128-bit blocks, per-block interleaves --------------
// Aligned non-temporal load (MOVNTDQA): data read once need not displace the cache.
template <class V>
ZEL_VI V stream_load(const typename V::Lane* p) {
    constexpr int B = V::kWidth;
    auto* q = const_cast<typename V::Lane*>(p);
    if constexpr (B == 16) return wrap<typename V::Lane, B>(_mm_stream_load_si128(reinterpret_cast<__m128i*>(q)));
    else if constexpr (B == 32) return wrap<typename V::Lane, B>(_mm256_stream_load_si256(reinterpret_cast<__m256i*>(q)));
    else return wrap<typename V::Lane, B>(_mm512_stream_load_si512(reinterpret_cast<void*>(q)));
}

// A vector whose 128-bit block k holds the 16 bytes at p + k * stride
// (stride in bytes); the 16-byte vector is one plain load.
template <class V>
ZEL_VI V load_blocks(const void* p, std::ptrdiff_t stride) {
    using T = typename V::Lane;
    constexpr int B = V::kWidth;
    const char* q = static_cast<const char*>(p);
    if constexpr (B == 16) {
        return wrap<T, B>(_mm_loadu_si128(reinterpret_cast<const __m128i*>(q)));
    } else {
        auto two = [stride](const char* a) {
            return _mm256_inserti128_si256(_mm256_castsi128_si256(_mm_loadu_si128(reinterpret_cast<const __m128i*>(a))),
                                           _mm_loadu_si128(reinterpret_cast<const __m128i*>(a + stride)), 1);
        };
        if constexpr (B == 32) {
            return wrap<T, B>(two(q));
        } else {
            return wrap<T, B>(_mm512_inserti64x4(_mm512_castsi256_si512(two(q)), two(q + 2 * stride), 1));
        }
    }
}
// Block k of v to p + k * stride.
template <class T, int B>
ZEL_VI void store_blocks(void* p, std::ptrdiff_t stride, Vec<T, B> v) {
    char* q = static_cast<char*>(p);
    if constexpr (B == 16) {
        _mm_storeu_si128(reinterpret_cast<__m128i*>(q), ri(v));
    } else if constexpr (B == 32) {
        _mm_storeu_si128(reinterpret_cast<__m128i*>(q), _mm256_castsi256_si128(ri(v)));
        _mm_storeu_si128(reinterpret_cast<__m128i*>(q + stride), _mm256_extracti128_si256(ri(v), 1));
    } else {
        for (int k = 0; k < 4; ++k) _mm_storeu_si128(reinterpret_cast<__m128i*>(q + k * stride), _mm512_extracti32x4_epi32(ri(v), k));
    }
}
// A 16-byte table repeated in every 128-bit block (shuffle and blend tables).
template <class V>
ZEL_VI V broadcast16(const void* p) {
    const __m128i t = _mm_loadu_si128(static_cast<const __m128i*>(p));
    if constexpr (V::kWidth == 16) return wrap<typename V::Lane, 16>(t);
    else if constexpr (V::kWidth == 32) return wrap<typename V::Lane, 32>(_mm256_broadcastsi128_si256(t));
    else {
        return wrap<typename V::Lane, 64>(_mm512_broadcast_i32x4(t));
    }
}


// ---- Double lanes --------------------------------------------------------------------------
// Double to 32-bit integer in the current rounding mode (out of range gives
// 0x80000000): B bytes of doubles give B / 2 bytes of integers.
template <int B>
ZEL_VI Vec<std::int32_t, B / 2> round_int(Vec<double, B> a) {
    if constexpr (B == 16) {
        Vec<std::int32_t, 8> r;
        const __m128i x = _mm_cvtpd_epi32(rd(a));
        __builtin_memcpy(&r.v, &x, 8);
        return r;
    } else if constexpr (B == 32) {
        return wrap<std::int32_t, 16>(_mm256_cvtpd_epi32(rd(a)));
    } else {
        return wrap<std::int32_t, 32>(_mm512_cvtpd_epi32(rd(a)));
    }
}
// Two half vectors side by side, a's lanes first.
template <class T, int H>
ZEL_VI Vec<T, 2 * H> concat(Vec<T, H> a, Vec<T, H> b) {
    Vec<T, 2 * H> r;
    __builtin_memcpy(&r.v, &a.v, H);
    __builtin_memcpy(reinterpret_cast<char*>(&r.v) + H, &b.v, H);
    return r;
}

// ---- Widening loads ----------------------------------------------------------------------
// V::kLanes samples of T converted by value to V's lanes, straight from
// memory into one zero- or sign-extending instruction (the compiler splits
// its own widening conversions into 128-bit pieces); integers to float
// through 32-bit lanes.
template <int N>
ZEL_VI auto load_low(const void* p) {
    if constexpr (N == 2) {
        std::uint16_t v;
        __builtin_memcpy(&v, p, 2);
        return _mm_cvtsi32_si128(v);
    } else if constexpr (N == 4) {
        int v;
        __builtin_memcpy(&v, p, 4);
        return _mm_cvtsi32_si128(v);
    } else if constexpr (N == 8) {
        return _mm_loadl_epi64(static_cast<const __m128i*>(p));
    } else if constexpr (N == 16) {
        return _mm_loadu_si128(static_cast<const __m128i*>(p));
    } else {
        return _mm256_loadu_si256(static_cast<const __m256i*>(p));
    }
}
#define ZEL_WIDEN(pre, B)                                                                                        \
    if constexpr (sizeof(T) == 1 && sizeof(U) == 2) r = s ? pre##_cvtepi8_epi16(x) : pre##_cvtepu8_epi16(x);    \
    else if constexpr (sizeof(T) == 1) r = s ? pre##_cvtepi8_epi32(x) : pre##_cvtepu8_epi32(x);                 \
    else r = s ? pre##_cvtepi16_epi32(x) : pre##_cvtepu16_epi32(x);
template <class V, class T>
ZEL_VI V load_widen(const T* p) {
    using U = typename V::Lane;
    constexpr int B = V::kWidth;
    if constexpr (std::is_floating_point<U>::value && !std::is_floating_point<T>::value) {
        return V{__builtin_convertvector(load_widen<Vec<std::int32_t, B>>(p).v, typename V::Raw)};
    } else if constexpr (sizeof(U) == sizeof(T)) {
        return V{(typename V::Raw)load<Vec<T, B>>(p).v};
    } else {
        static_assert(sizeof(U) <= 4 && sizeof(U) > sizeof(T), "8- or 16-bit integers to 16 or 32 bits");
        constexpr bool s = std::is_signed<T>::value;
        const auto x = load_low<B * int(sizeof(T)) / int(sizeof(U))>(p);
        typename Reg<B>::i r;
        if constexpr (B == 16) { ZEL_WIDEN(_mm, 16) }
        else if constexpr (B == 32) { ZEL_WIDEN(_mm256, 32) }
        else { ZEL_WIDEN(_mm512, 64) }
        return wrap<U, B>(r);
    }
}
#undef ZEL_WIDEN

// ---- Zel64f lanes from narrower samples (statistics) ------------------------------
// V::kLanes samples of T from p (any address), converted by value to double
// lanes: the float or integer widening instructions of each width (the
// compiler's generic conversion of vectors shorter than 16 bytes goes lane by
// lane). Every conversion is exact.
template <class V, class T>
ZEL_VI V load_f64(const T* p) {
    static_assert(std::is_same<typename V::Lane, double>::value, "double lanes");
    constexpr int B = V::kWidth, N = V::kLanes;
    if constexpr (std::is_same<T, float>::value) {
        if constexpr (B == 16) return wrap<double, B>(_mm_cvtps_pd(_mm_castsi128_ps(load_low<8>(p))));
        else if constexpr (B == 32) return wrap<double, B>(_mm256_cvtps_pd(_mm_loadu_ps(p)));
        else return wrap<double, B>(_mm512_cvtps_pd(_mm256_loadu_ps(p)));
    } else if constexpr (N == 8) {
        // 32-bit lanes in one 256-bit register, then converted
        __m256i w;
        if constexpr (sizeof(T) == 4) w = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(p));
        else if constexpr (sizeof(T) == 2)
            w = std::is_signed<T>::value ? _mm256_cvtepi16_epi32(load_low<16>(p)) : _mm256_cvtepu16_epi32(load_low<16>(p));
        else w = std::is_signed<T>::value ? _mm256_cvtepi8_epi32(load_low<8>(p)) : _mm256_cvtepu8_epi32(load_low<8>(p));
        if constexpr (std::is_same<T, std::uint32_t>::value) return wrap<double, B>(_mm512_cvtepu32_pd(w));
        else return wrap<double, B>(_mm512_cvtepi32_pd(w));
    } else {
        __m128i w = load_low<N * int(sizeof(T))>(p);
        if constexpr (sizeof(T) == 2) w = std::is_signed<T>::value ? _mm_cvtepi16_epi32(w) : _mm_cvtepu16_epi32(w);
        if constexpr (sizeof(T) == 1) w = std::is_signed<T>::value ? _mm_cvtepi8_epi32(w) : _mm_cvtepu8_epi32(w);
        V d;
        if constexpr (B == 16) d = wrap<double, B>(_mm_cvtepi32_pd(w));
        else d = wrap<double, B>(_mm256_cvtepi32_pd(w));
        if constexpr (std::is_same<T, std::uint32_t>::value) // lanes read as negative are 2^32 too small
            d = select(lt(d, zero<V>()), d + set1<V>(4294967296.0), d);
        return d;
    }
}

// ---- Unary mathematics and shifts: double lanes, byte shifts, small tables --
// Double lanes to 32-bit integers towards zero, a's lanes first (the values
// must be in range).
template <int B>
ZEL_VI Vec<std::int32_t, B> trunc_int(Vec<double, B> a, Vec<double, B> b) {
    return concat(convert<std::int32_t>(a), convert<std::int32_t>(b));
}

// ---- Neighbourhood filters: lane moves, running sums, double rounding ------------------
// Integer prefix sums within a vector (the horizontal sums of the box filter)
// and the double-precision rounding of the filters' quotients. The lane moves
// are compile-time shuffles; the compiler picks the instructions per width.
template <class T, int B, int... I>
ZEL_VI Vec<T, B> shuffle_lanes(Vec<T, B> a, Vec<T, B> b, std::integer_sequence<int, I...>) {
    return Vec<T, B>{__builtin_shufflevector(a.v, b.v, I...)};
}
template <int N, int L, int... I>
constexpr auto shift_up_index(std::integer_sequence<int, I...>) {
    return std::integer_sequence<int, (I >= N ? I - N : L + I)...>{};
}
template <int C, int L, int... I>
constexpr auto repeat_last_index(std::integer_sequence<int, I...>) {
    return std::integer_sequence<int, (L - C + I % C)...>{};
}

// Lanes moved up by N places: lane i takes lane i - N, the first N lanes are 0.
template <int N, class T, int B>
ZEL_VI Vec<T, B> shift_up(Vec<T, B> a) {
    constexpr int L = Vec<T, B>::kLanes;
    if constexpr (N >= L) return zero<Vec<T, B>>();
    else return shuffle_lanes(a, zero<Vec<T, B>>(), shift_up_index<N, L>(std::make_integer_sequence<int, L>{}));
}

// The last C lanes repeated by residue: lane i takes lane L - C + i % C (C <= L).
template <int C, class T, int B>
ZEL_VI Vec<T, B> repeat_last(Vec<T, B> a) {
    constexpr int L = Vec<T, B>::kLanes;
    static_assert(C <= L, "at most the lane count");
    return shuffle_lanes(a, a, repeat_last_index<C, L>(std::make_integer_sequence<int, L>{}));
}

// Inclusive prefix sum with stride C: lane i holds a[i] + a[i - C] + a[i - 2C] + ...
// Integer lanes only (wrapping): a float sum would depend on the grouping.
template <int C, int S = C, class T, int B>
ZEL_VI Vec<T, B> scan_add(Vec<T, B> a) {
    static_assert(std::is_integral<T>::value, "integer lanes");
    if constexpr (S >= Vec<T, B>::kLanes) return a;
    else return scan_add<C, 2 * S>(a + shift_up<S>(a));
}

// The low or the high half of a vector's lanes (concat joins them again).
template <class T, int B>
ZEL_VI Vec<T, B / 2> half_lo(Vec<T, B> a) {
    Vec<T, B / 2> h;
    __builtin_memcpy(&h.v, &a.v, B / 2);
    return h;
}
template <class T, int B>
ZEL_VI Vec<T, B / 2> half_hi(Vec<T, B> a) {
    Vec<T, B / 2> h;
    __builtin_memcpy(&h.v, reinterpret_cast<const char*>(&a.v) + B / 2, B / 2);
    return h;
}
// Rounding of double lanes to integral values by a fixed mode, as round_to of
// float lanes.
template <int Mode, int B>
ZEL_VI Vec<double, B> round_to(Vec<double, B> a) {
    if constexpr (B == 16) return wrap<double, B>(_mm_round_pd(rd(a), Mode | _MM_FROUND_NO_EXC));
    else if constexpr (B == 32) return wrap<double, B>(_mm256_round_pd(rd(a), Mode | _MM_FROUND_NO_EXC));
    else return wrap<double, B>(_mm512_roundscale_pd(rd(a), Mode | _MM_FROUND_NO_EXC));
}

// Every lane shifted by n (0 <= n < lane bits): left discards the high bits,
// right is logical for unsigned lanes and arithmetic for signed ones. Byte
// lanes shift as 16-bit lanes and drop the bits that crossed into a
// neighbour; a signed byte gets its sign back by (u ^ m) - m, m = 0x80 >> n.
template <class T, int B>
ZEL_VI Vec<T, B> shift_l(Vec<T, B> a, int n) {
    using U = std::make_unsigned_t<T>;
    if constexpr (sizeof(T) == 1)
        return bitcast<T>(shl(bitcast<std::uint16_t>(a), n)) & set1<Vec<T, B>>(T(0xff & (0xff << n)));
    else return bitcast<T>(shl(bitcast<U>(a), n));
}
template <class T, int B>
ZEL_VI Vec<T, B> shift_r(Vec<T, B> a, int n) {
    if constexpr (sizeof(T) == 1) {
        const Vec<T, B> u = bitcast<T>(shr(bitcast<std::uint16_t>(a), n)) & set1<Vec<T, B>>(T(0xff >> n));
        if constexpr (std::is_signed<T>::value) {
            using U8 = Vec<std::uint8_t, B>;
            const U8 m = set1<U8>(std::uint8_t(0x80 >> n));
            return bitcast<T>((bitcast<std::uint8_t>(u) ^ m) - m);
        } else {
            return u;
        }
    } else {
        return shr(a, n);
    }
}

// Lanes of an eight-entry float table picked by 32-bit indices in [0, 7]:
// two byte shuffles of the table's halves at 16 bytes, one permute wider.
template <int B>
ZEL_VI Vec<float, B> lookup8(const float* table, Vec<std::int32_t, B> idx) {
    if constexpr (B == 16) {
        const __m128i spread = _mm_setr_epi8(0, 0, 0, 0, 4, 4, 4, 4, 8, 8, 8, 8, 12, 12, 12, 12);
        const __m128i c = _mm_add_epi8(_mm_shuffle_epi8(_mm_slli_epi32(ri(idx), 2), spread),
                                       _mm_set1_epi32(0x03020100));
        const __m128 lo = _mm_castsi128_ps(_mm_shuffle_epi8(_mm_loadu_si128(reinterpret_cast<const __m128i*>(table)), c));
        const __m128 hi = _mm_castsi128_ps(_mm_shuffle_epi8(_mm_loadu_si128(reinterpret_cast<const __m128i*>(table + 4)), c));
        return wrap<float, B>(_mm_blendv_ps(lo, hi, _mm_castsi128_ps(_mm_slli_epi32(ri(idx), 29))));
    } else if constexpr (B == 32) {
        return wrap<float, B>(_mm256_permutevar8x32_ps(_mm256_loadu_ps(table), ri(idx)));
    } else {
        return wrap<float, B>(_mm512_permutexvar_ps(ri(idx), _mm512_zextps256_ps512(_mm256_loadu_ps(table))));
    }
}

// ---- Neighbourhood filters: pairs of 16-bit taps ---------------------------------------
// Sums of 8-bit samples with 16-bit taps two taps at a time through madd on
// interleave_lo(a, b) and interleave_hi(a, b) (the pairs madd multiplies are
// formed per 128-bit block); unzip(lo, hi) puts the 32-bit results of the
// two back in lane order: the first returns lanes 0 .. L/2 - 1, the second
// the rest.
template <int B>
ZEL_VI void unzip(Vec<std::int32_t, B>& lo, Vec<std::int32_t, B>& hi) {
    if constexpr (B == 32) {
        const __m256i l = ri(lo), h = ri(hi);
        lo = wrap<std::int32_t, B>(_mm256_permute2x128_si256(l, h, 0x20));
        hi = wrap<std::int32_t, B>(_mm256_permute2x128_si256(l, h, 0x31));
    } else if constexpr (B == 64) {
        const __m512i l = ri(lo), h = ri(hi);
        lo = wrap<std::int32_t, B>(_mm512_permutex2var_epi64(l, _mm512_setr_epi64(0, 1, 8, 9, 2, 3, 10, 11), h));
        hi = wrap<std::int32_t, B>(_mm512_permutex2var_epi64(l, _mm512_setr_epi64(4, 5, 12, 13, 6, 7, 14, 15), h));
    }
}

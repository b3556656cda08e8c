// Row walks on the vector layer, compiled once per level (no include guard:
// read by core/simd/levels.hpp inside each level's namespace).
//
// A kernel body is written once, for a whole vector, against an access
// object `io` that loads and stores either whole vectors or the first n
// lanes only:
//
//     walk<Vec<Zel8u>>(n, d, [&](int i, auto io) {
//         io.put(d + i, op(io.template get<V>(a + i), io.template get<V>(b + i)));
//     });
//
// walk() runs the body on a partial vector up to the destination's vector
// alignment (long rows only), on whole vectors, and on a partial vector for
// the tail. Head, body and tail therefore compute with the same instructions
// and give the same bits, and nothing outside the n lanes is read or written.

// Whole vectors, unaligned or (A) aligned destination; NT: streaming stores.
template <bool A = false, bool NT = false>
struct Whole {
    static constexpr bool kWhole = true;
    template <class V> ZEL_VI V get(const typename V::Lane* p) const { return load<V>(p); }
    template <class T, int B> ZEL_VI void put(T* p, Vec<T, B> v) const {
        if constexpr (NT) stream(p, v);
        else if constexpr (A) store_a(p, v);
        else store(p, v);
    }
    int count(int lanes) const { return lanes; }
};

// The first n lanes.
struct Part {
    static constexpr bool kWhole = false;
    int n;
    template <class V> ZEL_VI V get(const typename V::Lane* p) const { return load_n<V>(p, n); }
    template <class T, int B> ZEL_VI void put(T* p, Vec<T, B> v) const { store_n(p, v, n); }
    int count(int) const { return n; }
};

// Lanes of V before the first vector-aligned lane of d, or -1 when d is not
// aligned to its own lane size and so never reaches a vector boundary.
template <class V>
ZEL_VI int head_lanes(const void* d) {
    constexpr int B = V::kWidth, S = int(sizeof(typename V::Lane));
    const auto addr = reinterpret_cast<std::uintptr_t>(d);
    if (addr % S) return -1;
    return int((B - addr % B) % B) / S;
}

// Runs body(i, io) over n lanes in vectors V, aligned on d. With NT the
// aligned whole vectors go out by streaming stores (the caller fences).
template <class V, bool NT = false, class F>
ZEL_VI void walk(int n, const void* d, F&& body) {
    constexpr int L = V::kLanes;
    int i = 0;
    const int head = n >= 2 * L ? head_lanes<V>(d) : -1;
    if (head >= 0) {
        if (head) body(0, Part{head});
        i = head;
        for (; i + L <= n; i += L) body(i, Whole<true, NT>{});
    } else {
        for (; i + L <= n; i += L) body(i, Whole<>{});
    }
    if (i < n) body(i, Part{n - i});
}

// The streaming copy of a finished block of bytes, compiled once per level
// (no include guard: read by core/simd/level.hpp inside each level's
// namespace). Families that build a chunk of results in the cache and send it
// on past the cache take it with ZEL_PICK(stream_copy) (see core/chunks.hpp).

// Copies `bytes` bytes; the part of the destination aligned to the level's
// vector width goes out with non-temporal stores, the head and the tail with
// partial stores. The caller issues the store fence.
inline void stream_copy(void* dst, const void* src, std::size_t bytes) {
    using V = Vec<std::uint8_t>;
    auto* d = static_cast<std::uint8_t*>(dst);
    auto* s = static_cast<const std::uint8_t*>(src);
    // walk() counts in int: pieces of 1 GiB, a multiple of every vector width,
    // keep the destination's alignment from one piece to the next.
    constexpr std::size_t piece = std::size_t(1) << 30;
    for (std::size_t done = 0; done < bytes; done += piece) {
        const int n = int(bytes - done < piece ? bytes - done : piece);
        std::uint8_t* dp = d + done;
        const std::uint8_t* sp = s + done;
        walk<V, true>(n, dp, [&](int i, auto io) { io.put(dp + i, io.template get<V>(sp + i)); });
    }
}

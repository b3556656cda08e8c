// The chunked row runner: a row kernel fills a chunk on the stack, and the
// chunk goes on to the destination past the cache by the level's streaming
// copy. Baseline code; the streaming copy is a kernel of the vector layer
// (core/simd/stream_copy.hpp), handed in by the entry that picked it.
#pragma once

#include <smmintrin.h>

#include <cstddef>
#include <cstring>

namespace zel {

// A level's streaming copy: ZEL_PICK(stream_copy).
using StreamCopy = void (*)(void* dst, const void* src, std::size_t bytes);

// Runs kernel(out, first, n) over `count` pixels of `pixelSamples` samples
// each: with `put` null on the destination itself, otherwise on chunks of at
// most 4 KiB on the stack that `put` then streams out. `seed` copies the
// destination into the chunk first, for kernels that leave some samples
// (alpha) alone. The caller fences once its rows are done (stream_fence).
template <class T, class K>
inline void chunked_row(T* dst, int count, int pixelSamples, StreamCopy put, bool seed, K&& kernel) {
    if (!put) {
        kernel(dst, 0, count);
        return;
    }
    alignas(64) unsigned char buf[4096];
    const int chunk = int(sizeof buf / (sizeof(T) * pixelSamples));
    for (int x = 0; x < count; x += chunk) {
        const int n = count - x < chunk ? count - x : chunk;
        const std::size_t bytes = std::size_t(n) * pixelSamples * sizeof(T);
        T* out = dst + std::ptrdiff_t(x) * pixelSamples;
        if (seed) std::memcpy(buf, out, bytes);
        kernel(reinterpret_cast<T*>(buf), x, n);
        put(out, buf, bytes);
    }
}

// Orders the streamed stores before the call returns.
inline void stream_fence() { _mm_sfence(); }

} // namespace zel

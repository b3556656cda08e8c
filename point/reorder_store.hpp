// Store helpers shared by the reordering and threshold families: the
// non-temporal copy of a finished chunk, used when the data of a call no
// longer fits the cache.
#pragma once

#include <smmintrin.h>

#include <cstdint>
#include <cstring>

namespace zel {

// Copies `bytes` bytes; the part of the destination aligned to 16 bytes goes
// out with non-temporal stores. The caller issues the store fence.
inline void stream_copy(void* dst, const void* src, std::size_t bytes) {
    auto* d = static_cast<unsigned char*>(dst);
    auto* s = static_cast<const unsigned char*>(src);
    std::size_t head = (16 - (reinterpret_cast<std::uintptr_t>(d) & 15)) & 15;
    if (head > bytes) head = bytes;
    std::memcpy(d, s, head);
    d += head, s += head, bytes -= head;
    for (; bytes >= 16; bytes -= 16, d += 16, s += 16)
        _mm_stream_si128(reinterpret_cast<__m128i*>(d), _mm_loadu_si128(reinterpret_cast<const __m128i*>(s)));
    std::memcpy(d, s, bytes);
}

// Runs a row kernel kernel(dst, first, count) over `count` pixels of
// `pixelSamples` samples. With `nt` false it writes the destination directly;
// with `nt` true it fills a chunk on the stack and streams it out. `seed`
// copies the destination into the chunk first, for kernels that leave some
// samples (alpha) alone.
template <class T, class K>
inline void chunked_row(T* dst, int count, int pixelSamples, bool nt, bool seed, K&& kernel) {
    if (!nt) {
        kernel(dst, 0, count);
        return;
    }
    alignas(16) unsigned char buf[4096];
    const int chunk = int(sizeof buf / (sizeof(T) * pixelSamples));
    for (int x = 0; x < count; x += chunk) {
        const int n = count - x < chunk ? count - x : chunk;
        const std::size_t bytes = std::size_t(n) * pixelSamples * sizeof(T);
        T* out = dst + std::ptrdiff_t(x) * pixelSamples;
        if (seed) std::memcpy(buf, out, bytes);
        kernel(reinterpret_cast<T*>(buf), x, n);
        stream_copy(out, buf, bytes);
    }
}

} // namespace zel

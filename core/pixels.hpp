// Pixel runs: copying and repeating pixels of any layout, for the border
// copies and every family that fills a frame around an image (filters,
// geometry). AC4 runs touch three samples of each pixel and leave alpha alone.
#pragma once

#include "core/frame.hpp"

#include <cstring>

namespace zel {
namespace pixels {

// Copies n pixels; the ranges may overlap (rows of one image).
template <class T, Layout L>
inline void copy_px(const T* s, T* d, int n) {
    if (n <= 0 || s == d) return;
    if constexpr (L == AC4) {
        for (int p = 0; p < n; ++p, s += 4, d += 4) {
            d[0] = s[0];
            d[1] = s[1];
            d[2] = s[2];
        }
    } else {
        std::memmove(d, s, std::size_t(n) * channels(L) * sizeof(T));
    }
}

// Writes the pixel `px` (active samples) n times from d on; px may lie in the
// same row but not inside the run.
template <class T, Layout L>
inline void fill_px(T* d, const T* px, int n) {
    if (n <= 0) return;
    if constexpr (L == AC4) {
        const T a = px[0], b = px[1], c = px[2];
        for (int p = 0; p < n; ++p, d += 4) {
            d[0] = a;
            d[1] = b;
            d[2] = c;
        }
    } else if constexpr (sizeof(T) == 1 && L == C1) {
        std::memset(d, *px, std::size_t(n));
    } else {
        // Up to 16 pixels by plain stores of the pixel held in registers
        // (short frames end here), then the written run doubles itself by copies.
        constexpr int ch = channels(L);
        T v[ch];
        for (int c = 0; c < ch; ++c) v[c] = px[c];
        const int first = n < 16 ? n : 16;
        for (int p = 0; p < first; ++p)
            for (int c = 0; c < ch; ++c) d[p * ch + c] = v[c];
        const std::size_t total = std::size_t(n) * ch;
        std::size_t done = std::size_t(first) * ch;
        while (done < total) {
            const std::size_t k = done < total - done ? done : total - done;
            std::memcpy(d + done, d, k * sizeof(T));
            done += k;
        }
    }
}

// Non-negative remainder.
inline int wrap(int a, int m) {
    const int r = a % m;
    return r < 0 ? r + m : r;
}

} // namespace pixels
} // namespace zel

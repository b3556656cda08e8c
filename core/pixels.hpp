// Frames around an image: the source rectangle placed in a larger image, the
// frame filled with a constant, the replicated edge pixels or the image
// repeated cyclically. The border copies use them, and so will every family
// that fills a frame (filters, geometry). Pixel runs are the kernels
// copy_run/fill_run of core/simd/pixel.hpp, picked once per call: include
// this header after core/simd/levels.hpp. AC4 runs leave alpha alone.
#pragma once

#include "core/frame.hpp"

namespace zel {
namespace pixels {

// The run kernels of one sample type and layout at the level in force.
template <class T>
struct Runs {
    void (*copy)(const T* s, T* d, int n); // n pixels between different rows
    void (*fill)(T* d, const T* px, int n); // n copies of px (outside the run)
};
template <class T, Layout L>
inline Runs<T> runs() {
    return {ZEL_PICK(copy_run<T, channels(L), active(L)>), ZEL_PICK(fill_run<T, channels(L), active(L)>)};
}

// Non-negative remainder.
inline int wrap(int a, int m) {
    const int r = a % m;
    return r < 0 ? r + m : r;
}

// Where the source rectangle sits: s in d at (left, top).
struct Placement {
    ZeliSize s, d;
    int top, left;
    int right() const { return d.width - s.width - left; }
};

// Constant frame around the copied source: the first full frame row is
// filled, the others copy it.
template <class T, Layout L>
void const_frame(const Runs<T>& k, const T* src, int srcStep, T* dst, int dstStep, const Placement& g, const T* value) {
    constexpr int ch = channels(L);
    const T* pattern = nullptr;
    for (int r = 0; r < g.d.height; ++r) {
        T* drow = row(dst, dstStep, r);
        if (r < g.top || r >= g.top + g.s.height) {
            if (pattern) {
                k.copy(pattern, drow, g.d.width);
            } else {
                k.fill(drow, value, g.d.width);
                pattern = drow;
            }
        } else {
            k.fill(drow, value, g.left);
            k.copy(row(src, srcStep, r - g.top), drow + std::ptrdiff_t(g.left) * ch, g.s.width);
            k.fill(drow + std::ptrdiff_t(g.left + g.s.width) * ch, value, g.right());
        }
    }
}

// Replicated frame: left and right of each source row its end pixels, then
// the rows above and below as copies of the first and last source rows. With
// a source, each row is copied into place just before its ends are filled
// (while it is in the cache); without, the source rectangle is in place.
template <class T, Layout L>
void replicate_frame(const Runs<T>& k, T* dst, int dstStep, const Placement& g, const T* src = nullptr, int srcStep = 0) {
    constexpr int ch = channels(L);
    for (int r = g.top; r < g.top + g.s.height; ++r) {
        T* first = row(dst, dstStep, r) + std::ptrdiff_t(g.left) * ch;
        if (src) k.copy(row(src, srcStep, r - g.top), first, g.s.width);
        T* last = first + std::ptrdiff_t(g.s.width - 1) * ch;
        k.fill(first - std::ptrdiff_t(g.left) * ch, first, g.left);
        k.fill(last + ch, last, g.right());
    }
    const T* firstRow = row(dst, dstStep, g.top);
    const T* lastRow = row(dst, dstStep, g.top + g.s.height - 1);
    for (int r = 0; r < g.top; ++r) k.copy(firstRow, row(dst, dstStep, r), g.d.width);
    for (int r = g.top + g.s.height; r < g.d.height; ++r) k.copy(lastRow, row(dst, dstStep, r), g.d.width);
}

// Wrapped frame: destination column c holds source column (c - left) mod sw,
// row r source row (r - top) mod sh. The source as in replicate_frame.
template <class T, Layout L>
void wrap_frame(const Runs<T>& k, T* dst, int dstStep, const Placement& g, const T* src = nullptr, int srcStep = 0) {
    constexpr int ch = channels(L);
    auto fill_columns = [&](T* drow, const T* srow, int c0, int c1) {
        for (int c = c0, j = wrap(c0 - g.left, g.s.width); c < c1; j = 0) {
            const int run = (g.s.width - j) < (c1 - c) ? (g.s.width - j) : (c1 - c);
            k.copy(srow + std::ptrdiff_t(j) * ch, drow + std::ptrdiff_t(c) * ch, run);
            c += run;
        }
    };
    for (int r = g.top; r < g.top + g.s.height; ++r) {
        T* drow = row(dst, dstStep, r);
        T* srow = drow + std::ptrdiff_t(g.left) * ch;
        if (src) k.copy(row(src, srcStep, r - g.top), srow, g.s.width);
        fill_columns(drow, srow, 0, g.left);
        fill_columns(drow, srow, g.left + g.s.width, g.d.width);
    }
    for (int r = 0; r < g.d.height; ++r) {
        if (r >= g.top && r < g.top + g.s.height) continue;
        k.copy(row(dst, dstStep, g.top + wrap(r - g.top, g.s.height)), row(dst, dstStep, r), g.d.width);
    }
}

} // namespace pixels
} // namespace zel

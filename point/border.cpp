// Border copies: a source placed at (left, top) in a larger destination whose
// frame is a constant, the replicated edge pixels, or the image repeated
// cyclically. The in-place forms take a pointer to the source inside the
// destination and write only the frame.
#include "core/frame.hpp"
#include "core/pixels.hpp"

namespace zel {

using pixels::copy_px;
using pixels::fill_px;

// Checks common to all members: pointers, steps, then sizes and placement.
inline ZelStatus check_border(bool nullPtr, int srcStep, int dstStep, ZeliSize s, ZeliSize d, int top, int left) {
    if (nullPtr) return zelStatusNullPointer;
    if (any_bad_step(srcStep, dstStep)) return zelStatusBadStep;
    if (bad_size(s) || bad_size(d) || top < 0 || left < 0 || (long long)s.width + left > d.width ||
        (long long)s.height + top > d.height)
        return zelStatusBadSize;
    return zelStatusOk;
}

// Copies the source rows to their place in the destination.
template <class T, Layout L>
void copy_centre(const T* src, int srcStep, ZeliSize s, T* dst, int dstStep, int top, int left) {
    for (int r = 0; r < s.height; ++r)
        copy_px<T, L>(row(src, srcStep, r), row(dst, dstStep, top + r) + std::ptrdiff_t(left) * channels(L), s.width);
}

// ---- Constant frame -----------------------------------------------------------------
template <class T, Layout L>
ZelStatus const_border(const T* src, int srcStep, ZeliSize s, T* dst, int dstStep, ZeliSize d, int top, int left,
                       const T* value) {
    if (ZelStatus st = check_border(any_null(src, dst, value), srcStep, dstStep, s, d, top, left)) return st;
    constexpr int ch = channels(L);
    const int right = d.width - s.width - left;
    const T* pattern = nullptr; // the first full frame row, copied to the others
    for (int r = 0; r < d.height; ++r) {
        T* drow = row(dst, dstStep, r);
        if (r < top || r >= top + s.height) {
            if (pattern) {
                copy_px<T, L>(pattern, drow, d.width);
            } else {
                fill_px<T, L>(drow, value, d.width);
                pattern = drow;
            }
        } else {
            fill_px<T, L>(drow, value, left);
            copy_px<T, L>(row(src, srcStep, r - top), drow + std::ptrdiff_t(left) * ch, s.width);
            fill_px<T, L>(drow + std::ptrdiff_t(left + s.width) * ch, value, right);
        }
    }
    return zelStatusOk;
}

template <class T>
ZelStatus const_border_c1(const T* src, int srcStep, ZeliSize s, T* dst, int dstStep, ZeliSize d, int top, int left,
                          T value) {
    return const_border<T, C1>(src, srcStep, s, dst, dstStep, d, top, left, &value);
}

// ---- Replicated frame ----------------------------------------------------------------
// The frame of an image whose source rectangle is in place at (left, top):
// left and right of each source row its end pixels, then the rows above and
// below as copies of the first and last written rows.
template <class T, Layout L>
void replicate_frame(T* dst, int dstStep, ZeliSize s, ZeliSize d, int top, int left) {
    constexpr int ch = channels(L);
    const int right = d.width - s.width - left;
    for (int r = top; r < top + s.height; ++r) {
        T* drow = row(dst, dstStep, r);
        T* first = drow + std::ptrdiff_t(left) * ch;
        T* last = first + std::ptrdiff_t(s.width - 1) * ch;
        fill_px<T, L>(drow, first, left);
        fill_px<T, L>(last + ch, last, right);
    }
    const T* firstRow = row(dst, dstStep, top);
    const T* lastRow = row(dst, dstStep, top + s.height - 1);
    for (int r = 0; r < top; ++r) copy_px<T, L>(firstRow, row(dst, dstStep, r), d.width);
    for (int r = top + s.height; r < d.height; ++r) copy_px<T, L>(lastRow, row(dst, dstStep, r), d.width);
}

// The origin of the destination, given the first source pixel inside it.
template <class T, Layout L>
T* frame_origin(T* srcDst, int step, int top, int left) {
    return advance_bytes(srcDst, -(std::ptrdiff_t(top) * step + std::ptrdiff_t(left) * channels(L) * std::ptrdiff_t(sizeof(T))));
}

template <class T, Layout L>
ZelStatus replicate_border_ip(T* srcDst, int step, ZeliSize s, ZeliSize d, int top, int left) {
    if (ZelStatus st = check_border(any_null(srcDst), step, step, s, d, top, left)) return st;
    replicate_frame<T, L>(frame_origin<T, L>(srcDst, step, top, left), step, s, d, top, left);
    return zelStatusOk;
}

template <class T, Layout L>
ZelStatus replicate_border(const T* src, int srcStep, ZeliSize s, T* dst, int dstStep, ZeliSize d, int top, int left) {
    // One-channel calls on a single buffer go in place, with the destination's step.
    if constexpr (L == C1)
        if (static_cast<const void*>(src) == static_cast<const void*>(dst))
            return replicate_border_ip<T, L>(dst, dstStep, s, d, top, left);
    if (ZelStatus st = check_border(any_null(src, dst), srcStep, dstStep, s, d, top, left)) return st;
    copy_centre<T, L>(src, srcStep, s, dst, dstStep, top, left);
    replicate_frame<T, L>(dst, dstStep, s, d, top, left);
    return zelStatusOk;
}

// ---- Wrapped frame --------------------------------------------------------------------
// Destination column c holds source column (c - left) mod sw, row r source
// row (r - top) mod sh. The source rectangle is in place at (left, top).
template <class T, Layout L>
void wrap_frame(T* dst, int dstStep, ZeliSize s, ZeliSize d, int top, int left) {
    constexpr int ch = channels(L);
    auto fill_columns = [&](T* drow, const T* srow, int c0, int c1) {
        for (int c = c0, j = pixels::wrap(c0 - left, s.width); c < c1; j = 0) {
            const int run = (s.width - j) < (c1 - c) ? (s.width - j) : (c1 - c);
            copy_px<T, L>(srow + std::ptrdiff_t(j) * ch, drow + std::ptrdiff_t(c) * ch, run);
            c += run;
        }
    };
    for (int r = top; r < top + s.height; ++r) {
        T* drow = row(dst, dstStep, r);
        const T* srow = drow + std::ptrdiff_t(left) * ch;
        fill_columns(drow, srow, 0, left);
        fill_columns(drow, srow, left + s.width, d.width);
    }
    for (int r = 0; r < d.height; ++r) {
        if (r >= top && r < top + s.height) continue;
        copy_px<T, L>(row(dst, dstStep, top + pixels::wrap(r - top, s.height)), row(dst, dstStep, r), d.width);
    }
}

template <class T>
ZelStatus wrap_border_ip(T* srcDst, int step, ZeliSize s, ZeliSize d, int top, int left) {
    if (ZelStatus st = check_border(any_null(srcDst), step, step, s, d, top, left)) return st;
    wrap_frame<T, C1>(frame_origin<T, C1>(srcDst, step, top, left), step, s, d, top, left);
    return zelStatusOk;
}

template <class T>
ZelStatus wrap_border(const T* src, int srcStep, ZeliSize s, T* dst, int dstStep, ZeliSize d, int top, int left) {
    if (ZelStatus st = check_border(any_null(src, dst), srcStep, dstStep, s, d, top, left)) return st;
    copy_centre<T, C1>(src, srcStep, s, dst, dstStep, top, left);
    wrap_frame<T, C1>(dst, dstStep, s, d, top, left);
    return zelStatusOk;
}

} // namespace zel

#define ZEL_LIST "zelip8/fn_border.h"
#include "core/define_list.hpp"

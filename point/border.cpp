// Border copies: a source placed at (left, top) in a larger destination whose
// frame is a constant, the replicated edge pixels, or the image repeated
// cyclically. The in-place forms take a pointer to the source inside the
// destination and write only the frame. The frames are core/pixels.hpp.
#include "core/frame.hpp"
#include "core/simd/levels.hpp"
#include "core/pixels.hpp"

namespace zel {

using pixels::Placement;

// Checks common to all members: pointers, steps, then sizes and placement.
inline ZelStatus check_border(bool nullPtr, int srcStep, int dstStep, ZeliSize s, ZeliSize d, int top, int left) {
    if (nullPtr) return zelStatusNullPointer;
    if (any_bad_step(srcStep, dstStep)) return zelStatusBadStep;
    if (bad_size(s) || bad_size(d) || top < 0 || left < 0 || (long long)s.width + left > d.width ||
        (long long)s.height + top > d.height)
        return zelStatusBadSize;
    return zelStatusOk;
}

// The origin of the destination, given the first source pixel inside it.
template <class T, Layout L>
T* frame_origin(T* srcDst, int step, int top, int left) {
    return advance_bytes(srcDst, -(std::ptrdiff_t(top) * step + std::ptrdiff_t(left) * channels(L) * std::ptrdiff_t(sizeof(T))));
}

template <class T, Layout L>
ZelStatus const_border(const T* src, int srcStep, ZeliSize s, T* dst, int dstStep, ZeliSize d, int top, int left,
                       const T* value) {
    if (ZelStatus st = check_border(any_null(src, dst, value), srcStep, dstStep, s, d, top, left)) return st;
    pixels::const_frame<T, L>(pixels::runs<T, L>(), src, srcStep, dst, dstStep, Placement{s, d, top, left}, value);
    return zelStatusOk;
}

template <class T>
ZelStatus const_border_c1(const T* src, int srcStep, ZeliSize s, T* dst, int dstStep, ZeliSize d, int top, int left,
                          T value) {
    return const_border<T, C1>(src, srcStep, s, dst, dstStep, d, top, left, &value);
}

template <class T, Layout L>
ZelStatus replicate_border_ip(T* srcDst, int step, ZeliSize s, ZeliSize d, int top, int left) {
    if (ZelStatus st = check_border(any_null(srcDst), step, step, s, d, top, left)) return st;
    pixels::replicate_frame<T, L>(pixels::runs<T, L>(), frame_origin<T, L>(srcDst, step, top, left), step, Placement{s, d, top, left});
    return zelStatusOk;
}

template <class T, Layout L>
ZelStatus replicate_border(const T* src, int srcStep, ZeliSize s, T* dst, int dstStep, ZeliSize d, int top, int left) {
    // One-channel calls on a single buffer go in place, with the destination's step.
    if constexpr (L == C1)
        if (static_cast<const void*>(src) == static_cast<const void*>(dst))
            return replicate_border_ip<T, L>(dst, dstStep, s, d, top, left);
    if (ZelStatus st = check_border(any_null(src, dst), srcStep, dstStep, s, d, top, left)) return st;
    pixels::replicate_frame<T, L>(pixels::runs<T, L>(), dst, dstStep, Placement{s, d, top, left}, src, srcStep);
    return zelStatusOk;
}

template <class T>
ZelStatus wrap_border_ip(T* srcDst, int step, ZeliSize s, ZeliSize d, int top, int left) {
    if (ZelStatus st = check_border(any_null(srcDst), step, step, s, d, top, left)) return st;
    pixels::wrap_frame<T, C1>(pixels::runs<T, C1>(), frame_origin<T, C1>(srcDst, step, top, left), step, Placement{s, d, top, left});
    return zelStatusOk;
}

template <class T>
ZelStatus wrap_border(const T* src, int srcStep, ZeliSize s, T* dst, int dstStep, ZeliSize d, int top, int left) {
    if (ZelStatus st = check_border(any_null(src, dst), srcStep, dstStep, s, d, top, left)) return st;
    pixels::wrap_frame<T, C1>(pixels::runs<T, C1>(), dst, dstStep, Placement{s, d, top, left}, src, srcStep);
    return zelStatusOk;
}

} // namespace zel

#define ZEL_LIST "zelip8/fn_border.h"
#include "core/define_list.hpp"

// The neighbourhood frame every filter family shares: the geometry of masks
// and anchors, the argument predicates the families combine in their own
// order, the team rules, and the working state of a team (one block taken
// before any pixel is written, or the caller's buffer, cut into one slice a
// thread).
//
// Nothing pads: every source pixel a mask reaches is memory the caller
// provides. A family computes the frame its mask and anchor need (Margins),
// addresses it from the region's first pixel (frame_origin), and its kernels
// read exactly that frame.
//
// Working state: a family writes the layout of one worker's state once, as a
// function of a Carve (core/state.hpp). run_bands() measures it on a null
// base, takes one block for the whole team on the calling thread (refused:
// zelStatusMemAlloc, nothing written), lays each thread's state out in its
// own slice and runs the bands frame: bands of height / team rows, the last
// thread taking the remainder. run_bands_in() does the same in a caller's
// buffer sized by the family's ...GetBufSize query.
#pragma once

#include "core/frame.hpp"
#include "core/state.hpp"
#include "vector/zels.hpp"

#include <cstddef>
#include <cstdint>

namespace zel {
namespace filt {

// ---- Geometry -----------------------------------------------------------------------
// Pixels (columns) and rows the caller keeps readable around the region.
struct Margins {
    int left = 0, top = 0, right = 0, bottom = 0;
};

// Unreflected masks (box, median, minimum and maximum, morphology): the window
// of dst(x, y) is src(x - aX + i, y - aY + j), i < mW, j < mH.
inline Margins box_margins(ZeliSize mask, ZeliPoint anchor) {
    return {anchor.x, anchor.y, mask.width - 1 - anchor.x, mask.height - 1 - anchor.y};
}
// A one-dimensional window of length n with its anchor, along one axis.
inline Margins box_margins_row(int n, int anchor) { return {anchor, 0, n - 1 - anchor, 0}; }
inline Margins box_margins_col(int n, int anchor) { return {0, anchor, 0, n - 1 - anchor}; }

// Reversed kernels (row, column, general and Wiener filters): tap (i, j)
// meets src(x + aX - i, y + aY - j), so the tap at the anchor meets the pixel
// under the destination pixel.
inline Margins kernel_margins(ZeliSize kernel, ZeliPoint anchor) {
    return {kernel.width - 1 - anchor.x, kernel.height - 1 - anchor.y, anchor.x, anchor.y};
}

// Pixels and rows of the frame around a region of `roi`.
inline long long frame_width(ZeliSize roi, const Margins& m) { return (long long)roi.width + m.left + m.right; }
inline long long frame_height(ZeliSize roi, const Margins& m) { return (long long)roi.height + m.top + m.bottom; }

// The frame's first sample: `left` pixels of `channels` samples to the left of
// and `top` rows above the region's first pixel.
template <class T>
inline T* frame_origin(T* p, int step, const Margins& m, int channels) {
    return row(p, step, -(std::ptrdiff_t)m.top) - (std::ptrdiff_t)m.left * channels;
}

// A byte step as whole samples of T: the 16- and 32-bit box paths count their
// rows in samples, so a step that is no multiple of the sample size rounds down.
template <class T>
inline int whole_samples(int step) {
    return step - step % int(sizeof(T));
}

// ---- Argument predicates ----------------------------------------------------------------
// Each family tests these in its own order.
inline bool bad_mask(ZeliSize m) { return m.width < 1 || m.height < 1; }
inline bool bad_anchor(ZeliPoint a, ZeliSize m) { return a.x < 0 || a.y < 0 || a.x >= m.width || a.y >= m.height; }
inline bool bad_anchor_1d(int a, int n) { return a < 0 || a >= n; }
// A step shorter than `pixels` pixels of `pixelBytes` bytes (computed wide).
inline bool short_step(int step, long long pixels, int pixelBytes) { return (long long)step < pixels * pixelBytes; }

// ---- Team rules -----------------------------------------------------------------------
// The box filter and its workers fork above 4096 pixels; the kernel filters
// when width and height are both at least 64 and more than one thread is
// allowed. The team is ownGetNumThreads() threads, or the calling thread.
inline bool area_gate(ZeliSize r) { return (long long)r.width * r.height > 4096; }
inline bool size_gate(ZeliSize r) { return r.width >= 64 && r.height >= 64 && thread_count() > 1; }
inline int team_if(bool fork) { return fork ? thread_count() : 1; }

// ---- Working state of a team ------------------------------------------------------------
constexpr std::size_t kSliceAlign = 64;

// Bytes of one worker's state: lay(Carve&) run on a null base. 0 when the
// sizes overflow.
template <class Lay>
inline std::size_t state_bytes(Lay&& lay) {
    Carve c;
    lay(c);
    return c.ok() ? c.size() : 0;
}

// Runs body(first, rows, state) over bands of `height` rows on a team of
// `team` threads, each with its own state laid out by lay(Carve&) in its
// slice of one block. The block is taken here, on the calling thread, before
// any pixel is written; when it is refused nothing runs and the result is
// zelStatusMemAlloc.
template <class Lay, class Body>
inline ZelStatus run_bands(int height, int team, Lay&& lay, Body&& body) {
    if (team < 1) team = 1;
    if (team > height) team = height > 0 ? height : 1;
    const std::size_t per = state_bytes(lay);
    const std::size_t total = per ? Slices::bytes(per, team, kSliceAlign) : 0;
    void* block = total ? zelMalloc(total) : nullptr;
    if (!block) return zelStatusMemAlloc;
    const Slices s = Slices::cut(block, per, team, kSliceAlign);
    bands_frame(height, team, [&](int first, int n, int t) {
        Carve c(s[t]);
        auto state = lay(c);
        body(first, n, state);
        return 0;
    });
    zelFree(block);
    return zelStatusOk;
}

// As run_bands() in a caller's buffer of `threads` slices of `perThread`
// bytes (the layout its ...GetBufSize query answered for); the team is never
// larger than the slices.
template <class Lay, class Body>
inline void run_bands_in(void* buffer, std::size_t perThread, int threads, int height, int team, Lay&& lay,
                         Body&& body) {
    const Slices s = Slices::cut(buffer, perThread, threads, kSliceAlign);
    bands_slices_frame(height, team, s, [&](int first, int n, int, void* slice) {
        Carve c(slice);
        auto state = lay(c);
        body(first, n, state);
    });
}

// A table a call prepares once and the whole team reads (taps scaled or
// converted): on the stack up to N entries, otherwise one zelsMalloc block.
template <class T, int N = 256>
class Table {
public:
    explicit Table(int count) : heap_(count > N ? zels_malloc<T>(count) : nullptr) {}
    ~Table() { zelsFree(heap_); }
    Table(const Table&) = delete;
    Table& operator=(const Table&) = delete;
    T* get() { return heap_ ? heap_ : local_; }
    // False when a table above N entries could not be had.
    bool ok(int count) const { return count <= N || heap_ != nullptr; }

private:
    T local_[N];
    T* heap_;
};

} // namespace filt
} // namespace zel

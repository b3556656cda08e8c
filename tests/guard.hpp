// Test images with guard pages: the bytes a call may touch are surrounded by
// inaccessible pages, so a read or write outside the region traps at once.
#pragma once

#include <zelip8.h>

// Every listed function, also while include/zelip8.h waits to be written again
// after a change to a list (the test api_current reports that it is stale).
extern "C" {
#define ZEL_FN(ret, name, params, args, impl) ret name params;
#include "zelip8/lists.h"
#undef ZEL_FN
}

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <random>
#include <vector>

namespace zt {

// Where the region sits between its guard pages: flush against the guard page
// that follows it (overruns trap) or against the one before it, `offset` bytes
// in (underruns trap; the offset makes the first row unaligned).
enum class Flush { Tail, Head };

class GuardedBuffer {
public:
    GuardedBuffer(std::size_t bytes, Flush flush = Flush::Tail, std::size_t offset = 0);
    ~GuardedBuffer();
    GuardedBuffer(GuardedBuffer&& o) noexcept;
    GuardedBuffer(const GuardedBuffer&) = delete;
    GuardedBuffer& operator=(const GuardedBuffer&) = delete;
    GuardedBuffer& operator=(GuardedBuffer&&) = delete;
    std::uint8_t* data() const { return data_; }
    std::size_t size() const { return bytes_; }

private:
    void* map_ = nullptr;
    std::size_t mapBytes_ = 0;
    std::uint8_t* data_ = nullptr;
    std::size_t bytes_ = 0;
};

// A region of interest of `width` x `height` pixels of `channels` samples of T,
// rows `step` bytes apart (at least the row's length). Only the bytes from the
// first sample to the last sample of the last row are accessible.
template <class T>
class Image {
public:
    Image(int width, int height, int channels, int extraStep = 0, Flush flush = Flush::Tail, std::size_t offset = 0)
        : w_(width), h_(height), c_(channels),
          step_(int(width * channels * sizeof(T)) + extraStep),
          buf_(span(width, height, channels, step_), flush, offset) {}

    T* ptr() const { return reinterpret_cast<T*>(buf_.data()); }
    int step() const { return step_; }
    int width() const { return w_; }
    int height() const { return h_; }
    int channels() const { return c_; }
    ZeliSize size() const { return {w_, h_}; }
    T* row(int y) const { return reinterpret_cast<T*>(buf_.data() + std::ptrdiff_t(y) * step_); }
    T& at(int x, int y, int c = 0) const { return row(y)[std::ptrdiff_t(x) * c_ + c]; }

    // Every accessible byte, padding between rows included.
    std::vector<std::uint8_t> bytes() const { return {buf_.data(), buf_.data() + buf_.size()}; }
    void fill_random(std::uint32_t seed) {
        std::mt19937 rng(seed);
        for (std::size_t i = 0; i < buf_.size(); ++i) buf_.data()[i] = std::uint8_t(rng());
    }
    void fill_bytes(std::uint8_t v) { std::memset(buf_.data(), v, buf_.size()); }

private:
    static std::size_t span(int w, int h, int c, int step) {
        if (w < 1 || h < 1) return 1;
        return std::size_t(h - 1) * std::size_t(step) + std::size_t(w) * c * sizeof(T);
    }
    int w_, h_, c_, step_;
    GuardedBuffer buf_;
};

// The widths that cross the vector and block boundaries of the kernels.
inline const std::vector<int>& sweep_widths() {
    static const std::vector<int> w = {1, 2, 3, 7, 15, 16, 17, 31, 32, 33, 63, 64, 65, 100, 127, 129, 257};
    return w;
}

// Image shapes of a sweep: width, height, extra step and placement, in
// samples. Every other shape is flush against the guard page that follows it
// (overruns trap); the others start 1 to 3 samples after the guard page before
// them (unaligned, underruns trap).
struct Shape {
    int w, h, extra;
    Flush flush;
    int offset;
};
inline std::vector<Shape> sweep_shapes(std::initializer_list<int> heights, int extraUnit) {
    std::vector<Shape> v;
    int k = 0;
    for (int w : sweep_widths())
        for (int h : heights) {
            ++k;
            v.push_back({w, h, (k % 3) * extraUnit, k % 2 ? Flush::Tail : Flush::Head, k % 2 ? 0 : 1 + k % 3});
        }
    return v;
}
template <class T>
Image<T> make_image(const Shape& s, int channels) {
    return Image<T>(s.w, s.h, channels, s.extra * int(sizeof(T)), s.flush, std::size_t(s.offset) * sizeof(T));
}

// Samples a pixel in memory and samples with a result, per layout.
struct Form {
    int mc, ac;
};
constexpr Form kC1{1, 1}, kC3{3, 3}, kC4{4, 4}, kAC4{4, 3};

// The names the library's declaration lists define, in list order.
const std::vector<const char*>& registry();

} // namespace zt

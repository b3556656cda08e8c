// State records and work buffers: the frame for families that keep a record
// between calls (transform plans, resize specifications, filter and moment
// states) or take a work buffer from the caller.
//
// A record starts with a 32-bit tag that names its kind; every function that
// takes one tests it for null and for its tag first (check_tag). Records are
// built by plain code at the baseline level, so their bytes are the same
// whatever kernel level runs later.
//
// The layout of a record and the tables behind it is written once, as a
// function of a Carve: run on a null base it measures (the ...GetSize and
// ...GetBufSize answers), run on the caller's block it hands out the
// pointers (...Init). Size and layout therefore cannot disagree.
#pragma once

#include "core/frame.hpp"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <new>

namespace zel {

// ---- Tags ---------------------------------------------------------------------
inline std::int32_t read_tag(const void* rec) {
    std::int32_t t;
    std::memcpy(&t, rec, sizeof t);
    return t;
}
inline void write_tag(void* rec, std::int32_t tag) { std::memcpy(rec, &tag, sizeof tag); }

// zelStatusNullPointer, zelStatusContextMismatch or zelStatusOk.
inline ZelStatus check_tag(const void* rec, std::int32_t tag) {
    if (!rec) return zelStatusNullPointer;
    return read_tag(rec) == tag ? zelStatusOk : zelStatusContextMismatch;
}

// ---- Alignment -------------------------------------------------------------------
inline std::uintptr_t align_up(std::uintptr_t v, std::size_t a) { return (v + (a - 1)) & ~std::uintptr_t(a - 1); }
template <class T>
inline T* align_ptr(T* p, std::size_t a) {
    return reinterpret_cast<T*>(align_up(reinterpret_cast<std::uintptr_t>(p), a));
}

// ---- Carving a block -----------------------------------------------------------------
// Hands out aligned pieces of a block in order. With a null base it only
// counts: size() is then the bytes the pieces need from an address aligned to
// the largest alignment asked for; need() adds the slack for a block that may
// start anywhere. Sizes that overflow make ok() false.
class Carve {
public:
    explicit Carve(void* base = nullptr) : base_(static_cast<char*>(base)) {}

    template <class T>
    T* take(std::size_t count, std::size_t align = alignof(T)) {
        if (align > maxAlign_) maxAlign_ = align;
        const std::uintptr_t start = base_ ? reinterpret_cast<std::uintptr_t>(base_) : 0;
        const std::uintptr_t at = align_up(start + off_, align);
        const std::size_t pos = std::size_t(at - start);
        if (count > (SIZE_MAX - pos) / sizeof(T)) {
            ok_ = false;
            return nullptr;
        }
        off_ = pos + count * sizeof(T);
        return base_ ? reinterpret_cast<T*>(at) : nullptr;
    }
    // A piece holding one T, constructed in place.
    template <class T>
    T* make(std::size_t align = alignof(T)) {
        T* p = take<T>(1, align);
        return p ? new (p) T() : nullptr;
    }

    std::size_t size() const { return off_; }
    std::size_t need() const { return off_ + maxAlign_ - 1; }
    bool ok() const { return ok_; }
    // need() as a signed 32-bit size, or false when it does not fit.
    bool need_int(int& out) const {
        if (!ok_ || need() > 0x7fffffffu) return false;
        out = int(need());
        return true;
    }

private:
    char* base_;
    std::size_t off_ = 0, maxAlign_ = 1;
    bool ok_ = true;
};

// ---- Per-thread slices of one buffer ---------------------------------------------------
// One block cut into `count` slices of `per` bytes, each starting at an
// `align` boundary; the first slice starts at the first boundary of the block,
// so the block may start anywhere.
struct Slices {
    char* first = nullptr;
    std::size_t stride = 0;
    int count = 0;

    // Bytes a block needs for `threads` slices, or 0 when that overflows.
    static std::size_t bytes(std::size_t per, int threads, std::size_t align = 16) {
        const std::size_t stride = align_up(per, align);
        if (threads < 1 || stride < per || stride > (SIZE_MAX - align) / std::size_t(threads)) return 0;
        return stride * std::size_t(threads) + align - 1;
    }
    static Slices cut(void* block, std::size_t per, int threads, std::size_t align = 16) {
        return Slices{align_ptr(static_cast<char*>(block), align), std::size_t(align_up(per, align)), threads};
    }
    void* operator[](int t) const { return first + std::size_t(t) * stride; }
};

// Bands over a caller's buffer: as bands_frame, each thread working in its
// own slice; the team is no larger than the slices the buffer was cut into
// (the thread count may have changed since the caller sized it).
// body(firstRow, rows, thread, slice).
template <class F>
inline void bands_slices_frame(int height, int team, const Slices& s, F&& body) {
    if (team > s.count) team = s.count;
    bands_frame(height, team, [&](int first, int n, int t) {
        body(first, n, t, s[t]);
        return 0;
    });
}

} // namespace zel

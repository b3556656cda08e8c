// The entry frame every family calls: layouts, row addressing, argument checks,
// row folding, the cache test for non-temporal stores, the three thread frames,
// rounding control and scratch memory. Header-only; nothing here allocates or
// forks unless a family asks.
#pragma once

#include "zelip8.h"

#include <omp.h>
#include <smmintrin.h>

#include <cstddef>
#include <cstdint>
#include <type_traits>

namespace zel {

// ---- Layouts -------------------------------------------------------------
// C1..C4 process every sample; AC4 has the row layout of C4 and leaves the
// fourth sample of each destination pixel alone.
enum Layout : int { C1 = 1, C2 = 2, C3 = 3, C4 = 4, AC4 = 5 };
constexpr int channels(Layout l) { return l == AC4 ? 4 : int(l); } // samples a pixel in memory
constexpr int active(Layout l) { return l == AC4 ? 3 : int(l); }   // samples a pixel processed

// ---- Row addressing ------------------------------------------------------
// Row r of an image: the base pointer plus r times the step, on a byte pointer.
template <class T>
inline T* row(T* base, int step, std::ptrdiff_t r) {
    using B = typename std::conditional<std::is_const<T>::value, const char, char>::type;
    return reinterpret_cast<T*>(reinterpret_cast<B*>(base) + r * std::ptrdiff_t(step));
}

template <class T>
inline T* advance_bytes(T* p, std::ptrdiff_t bytes) {
    using B = typename std::conditional<std::is_const<T>::value, const char, char>::type;
    return reinterpret_cast<T*>(reinterpret_cast<B*>(p) + bytes);
}

// ---- Argument checks -----------------------------------------------------
template <class... P>
inline bool any_null(const P*... p) { return ((p == nullptr) || ...); }
inline bool bad_size(ZeliSize s) { return s.width < 1 || s.height < 1; }
template <class... S>
inline bool any_bad_step(S... steps) { return ((steps < 1) || ...); }

// ---- Row folding ---------------------------------------------------------
// True when every step equals the row's byte length, so that the image is one
// long row; `limit` bounds the folded length in bytes.
template <class... S>
inline bool contiguous(long long rowBytes, int height, long long limit, S... steps) {
    return ((steps == rowBytes) && ...) && rowBytes * height <= limit;
}

// ---- Cache test ----------------------------------------------------------
// Size of the largest cache, or false when unknown.
inline bool cache_size(long long& bytes) {
    int size = 0;
    if (zelGetMaxCacheSizeB(&size) != 0 || size <= 0) return false;
    bytes = size;
    return true;
}

// Non-temporal stores pay once the data of a call no longer fits the cache.
// The cache is asked only when the volume is above `askAbove`.
inline bool nontemporal(unsigned long long volume, unsigned long long askAbove = 0x100000) {
    if (volume <= askAbove) return false;
    long long cache = 0;
    return cache_size(cache) && volume >= (unsigned long long)cache;
}

// ---- Threads -------------------------------------------------------------
inline int thread_count() {
    int n = ownGetNumThreads();
    return n < 1 ? 1 : n;
}

// A worker of a team runs under the calling thread's floating-point control
// word (rounding, flush-to-zero and denormal bits, exception masks): the
// thread runtime does not hand it on, and a worker may keep a word from an
// earlier call. The worker's own word comes back when its share is done.
class CallerFpEnv {
public:
    explicit CallerFpEnv(unsigned callerWord) : own_(_mm_getcsr()), caller_(callerWord & kControlBits) {
        if ((own_ & kControlBits) != caller_) _mm_setcsr((own_ & ~kControlBits) | caller_);
    }
    ~CallerFpEnv() {
        if ((own_ & kControlBits) != caller_) _mm_setcsr((_mm_getcsr() & ~kControlBits) | (own_ & kControlBits));
    }
    CallerFpEnv(const CallerFpEnv&) = delete;
    CallerFpEnv& operator=(const CallerFpEnv&) = delete;
    // Everything of MXCSR but the sticky exception flags (bits 0 to 5).
    static constexpr unsigned kControlBits = 0xffc0u;

private:
    unsigned own_, caller_;
};

// Rows frame: a static schedule of contiguous row blocks, one a thread.
// body(firstRow, endRow) runs once per non-empty block. With fork false, or a
// single thread allowed, the calling thread does all rows.
template <class F>
inline void rows_frame(int height, bool fork, F&& body) {
    const int team = fork ? thread_count() : 1;
    if (team == 1) {
        body(0, height);
        return;
    }
    const unsigned csr = _mm_getcsr();
#pragma omp parallel num_threads(team)
    {
        const CallerFpEnv fp(csr);
        const int n = omp_get_num_threads(), t = omp_get_thread_num();
        const int q = height / n, r = height % n;
        const int first = t * q + (t < r ? t : r);
        const int count = q + (t < r ? 1 : 0);
        if (count > 0) body(first, first + count);
    }
}

// Bands frame: the master splits `count` (rows, or the samples of one vector)
// into equal bands; the last thread takes the whole remainder.
// body(first, n, thread) returns non-zero on failure; the result is the number
// of failed bands (only zero or non-zero matters).
template <class F>
inline int bands_frame(int count, int team, F&& body) {
    if (team <= 1) return body(0, count, 0) != 0 ? 1 : 0;
    int failures = 0, teamSize = 1, perThread = 0, remainder = 0;
    const unsigned csr = _mm_getcsr();
#pragma omp parallel num_threads(team) shared(failures, teamSize, perThread, remainder)
    {
        const CallerFpEnv fp(csr);
#pragma omp master
        {
            teamSize = omp_get_num_threads();
            perThread = count / teamSize;
            remainder = count % teamSize;
        }
#pragma omp barrier
        const int t = omp_get_thread_num();
        const int n = perThread + (t == teamSize - 1 ? remainder : 0);
        if (n > 0 && body(t * perThread, n, t) != 0) {
#pragma omp atomic
            ++failures;
        }
    }
    return failures;
}

// Bands-with-scratch frame: the master allocates one block of
// team * perThreadBytes; each thread gets its slice. A failed allocation
// makes every thread leave and the call return zelStatusMemAlloc.
// body(firstRow, rows, thread, scratch).
template <class F>
inline ZelStatus bands_scratch_frame(int height, int team, std::size_t perThreadBytes, F&& body) {
    perThreadBytes = (perThreadBytes + 15) & ~std::size_t(15);
    if (team <= 1) {
        void* scratch = zelMalloc(perThreadBytes);
        if (!scratch) return zelStatusMemAlloc;
        body(0, height, 0, scratch);
        zelFree(scratch);
        return zelStatusOk;
    }
    char* block = nullptr;
    int failed = 0, teamSize = 1, perThread = 0, remainder = 0;
    const unsigned csr = _mm_getcsr();
#pragma omp parallel num_threads(team) shared(block, failed, teamSize, perThread, remainder)
    {
        const CallerFpEnv fp(csr);
#pragma omp master
        {
            teamSize = omp_get_num_threads();
            perThread = height / teamSize;
            remainder = height % teamSize;
            // A team's block whose size does not fit a size_t fails like a refused allocation.
            if (perThreadBytes <= std::size_t(-1) / std::size_t(teamSize))
                block = static_cast<char*>(zelMalloc(std::size_t(teamSize) * perThreadBytes));
            if (!block) failed = 1;
        }
#pragma omp barrier
        if (!failed) {
            const int t = omp_get_thread_num();
            const int n = perThread + (t == teamSize - 1 ? remainder : 0);
            if (n > 0) body(t * perThread, n, t, block + std::size_t(t) * perThreadBytes);
        }
    }
    zelFree(block);
    return failed ? zelStatusMemAlloc : zelStatusOk;
}

// ---- Rounding control ----------------------------------------------------
// The rounding field of MXCSR: 0 to nearest, 0x2000 down, 0x4000 up, 0x6000 towards zero.
constexpr unsigned kRoundNearest = 0x0000, kRoundDown = 0x2000, kRoundUp = 0x4000, kRoundZero = 0x6000;
constexpr unsigned kRoundField = 0x6000;

// Sets the rounding field to `mode` if it differs; returns the old word.
inline unsigned zel_set_rc_ssx(unsigned mode) {
    const unsigned old = _mm_getcsr();
    if ((old & kRoundField) != mode) _mm_setcsr((old & ~kRoundField) | mode);
    return old;
}
inline void zel_set_cw_ssx(unsigned word) { _mm_setcsr(word); }

// Scope that sets a rounding mode and restores the caller's word on exit, only
// when the field had to change. Each thread that needs a mode makes its own.
class RoundingScope {
public:
    explicit RoundingScope(unsigned mode) : saved_(zel_set_rc_ssx(mode)), mode_(mode) {}
    ~RoundingScope() {
        if ((saved_ & kRoundField) != mode_) zel_set_cw_ssx((_mm_getcsr() & ~kRoundField) | (saved_ & kRoundField));
    }
    RoundingScope(const RoundingScope&) = delete;
    RoundingScope& operator=(const RoundingScope&) = delete;

private:
    unsigned saved_, mode_;
};

} // namespace zel

// Scratch memory for the image functions: vectors of `count` samples, null for
// a count below one. Every block taken in a call is released before it returns.
#pragma once

#include "zelip8.h"

#include <cstddef>

namespace zel {

template <class T>
inline T* zels_malloc(int count) {
    // A count whose bytes do not fit a size_t (32-bit builds) is refused, not wrapped.
    if (count < 1 || std::size_t(count) > std::size_t(-1) / sizeof(T)) return nullptr;
    return static_cast<T*>(zelMalloc(std::size_t(count) * sizeof(T)));
}

inline Zel8u* zelsMalloc_8u(int count) { return zels_malloc<Zel8u>(count); }
inline Zel16s* zelsMalloc_16s(int count) { return zels_malloc<Zel16s>(count); }
inline Zel16u* zelsMalloc_16u(int count) { return zels_malloc<Zel16u>(count); }
inline Zel32s* zelsMalloc_32s(int count) { return zels_malloc<Zel32s>(count); }
inline Zel32f* zelsMalloc_32f(int count) { return zels_malloc<Zel32f>(count); }
inline Zel64f* zelsMalloc_64f(int count) { return zels_malloc<Zel64f>(count); }
inline Zel32fc* zelsMalloc_32fc(int count) { return zels_malloc<Zel32fc>(count); }
inline Zel64fc* zelsMalloc_64fc(int count) { return zels_malloc<Zel64fc>(count); }
inline void zelsFree(void* p) { zelFree(p); }

// Owns one scratch block for the length of a scope.
template <class T>
class Scratch {
public:
    explicit Scratch(int count) : p_(zels_malloc<T>(count)) {}
    ~Scratch() { zelsFree(p_); }
    Scratch(const Scratch&) = delete;
    Scratch& operator=(const Scratch&) = delete;
    T* get() const { return p_; }
    explicit operator bool() const { return p_ != nullptr; }

private:
    T* p_;
};

} // namespace zel

// Run-time choice of the kernel level. Entries, checks and frames are
// compiled once at the baseline (SSE4.1/4.2); the row kernels exist once per
// level, in namespaces zel::sse41, zel::avx2 and zel::avx512 (see levels.hpp).
// An entry takes the kernel of the level in force once per call:
//
//     const auto k = ZEL_PICK(add_row<Zel8u, 1>);
//     for (int r = 0; r < h; ++r) k(row(a, as, r), ..., w);
//
// The level comes from libzelcore: the best the processor and the operating
// system support, found once per process, unless ZEL_ISA or zelSetIsaLevel
// asks for a lower one.
#pragma once

#include "zelcore.h"

namespace zel {
namespace simd {

enum Level : int { kSse41 = zelIsaSse41, kAvx2 = zelIsaAvx2, kAvx512 = zelIsaAvx512 };

inline int level() { return zelGetIsaLevel(); }

template <class F>
inline F pick(F sse41, F avx2, F avx512) {
    const int l = level();
    return l >= kAvx512 ? avx512 : l == kAvx2 ? avx2 : sse41;
}

} // namespace simd
} // namespace zel

// The address of one kernel (a function or function template instance named
// relative to the level namespace) at the level in force.
#define ZEL_PICK(...) ::zel::simd::pick(&::zel::sse41::__VA_ARGS__, &::zel::avx2::__VA_ARGS__, &::zel::avx512::__VA_ARGS__)

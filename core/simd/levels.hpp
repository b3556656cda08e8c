// Compiles a family's kernel headers once per instruction-set level, each in
// its own namespace and with its own target options:
//
//     #define ZEL_KERNELS "arithmetic/arith_kernels.hpp"   // optional: ZEL_KERNELS_2
//     #include "core/simd/levels.hpp"
//
// zel::sse41 (SSE4.1/4.2, 16-byte vectors), zel::avx2 (AVX2, 32 bytes) and
// zel::avx512 (AVX-512 F/BW/VL/DQ, 64 bytes). Each receives the vector layer
// (vec.hpp), the shared loops and pixel kernels (loops.hpp, pixel.hpp) and
// then the family's kernels. Entries pick a level's kernel with ZEL_PICK.
//
// The target options are set by pragma around the namespaces rather than by
// compiler flags on whole files: everything outside them (the frame, the
// standard library, any inline helper that is not inlined) is compiled for
// the baseline, so a wider instruction can never reach code that runs on an
// SSE4.1-only processor through a shared out-of-line copy.
//
// A kernel header includes nothing (it is read inside a namespace); what it
// needs from outside is included before this file by the family's entry header.
#include "core/frame.hpp"
#include "core/simd/dispatch.hpp"

#include <immintrin.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <type_traits>
#include <utility>

// Without ZEL_KERNELS a translation unit gets the shared kernels only.

// Always inlined (see core/simd/vec.hpp: vectors never cross a real call).
#define ZEL_VI inline __attribute__((always_inline))
#define ZEL_VL __attribute__((always_inline)) // the same for a lambda

#define ZEL_LEVEL 1
#include "core/simd/level.hpp"
#undef ZEL_LEVEL
#define ZEL_LEVEL 2
#include "core/simd/level.hpp"
#undef ZEL_LEVEL
#define ZEL_LEVEL 3
#include "core/simd/level.hpp"
#undef ZEL_LEVEL

#undef ZEL_KERNELS
#undef ZEL_KERNELS_2

// One level of levels.hpp: target options, namespace, the vector layer, the
// shared kernels and the family's kernels. Read only through levels.hpp.
#pragma GCC push_options
#if ZEL_LEVEL == 1
#pragma GCC target("sse4.2,popcnt")
namespace zel {
namespace sse41 {
#elif ZEL_LEVEL == 2
#pragma GCC target("avx2,popcnt")
namespace zel {
namespace avx2 {
#elif ZEL_LEVEL == 3
#pragma GCC target("avx2,avx512f,avx512bw,avx512vl,avx512dq,popcnt")
// The 512-bit intrinsics of GCC 12 start from deliberately undefined
// registers, which its uninitialised-use analyses report once inlined.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"
#pragma GCC diagnostic ignored "-Wuninitialized"
namespace zel {
namespace avx512 {
#else
#error "ZEL_LEVEL is 1, 2 or 3"
#endif

#include "core/simd/vec.hpp"
#include "core/simd/loops.hpp"
#include "core/simd/stream_copy.hpp"
#include "core/simd/pixel.hpp"
#ifdef ZEL_KERNELS
#include ZEL_KERNELS
#endif
#ifdef ZEL_KERNELS_2
#include ZEL_KERNELS_2
#endif

} // namespace level
} // namespace zel
#if ZEL_LEVEL == 3
#pragma GCC diagnostic pop
#endif
#pragma GCC pop_options

/* libzelcore: the allocator, thread count and cache size that libzelip8 uses. */
#ifndef ZELCORE_H
#define ZELCORE_H

#include <stddef.h>

#include "zelip8/types.h"

#if defined(ZELCORE_BUILD)
#define ZELCORE_API __attribute__((visibility("default")))
#else
#define ZELCORE_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* 64-byte aligned block of `length` bytes, or NULL (also for length 0). */
ZELCORE_API void* zelMalloc(size_t length);
/* Frees what zelMalloc returned; NULL is harmless. */
ZELCORE_API void zelFree(void* ptr);

/* Size in bytes of the largest cache; returns 0 on success, non-zero when unknown. */
ZELCORE_API int zelGetMaxCacheSizeB(int* pSizeBytes);
/* Replaces the detected cache size (bytes > 0); 0 goes back to detection,
   a negative value makes the size unknown. Meant for tuning and tests. */
ZELCORE_API void zelSetMaxCacheSizeB(int sizeBytes);

/* Threads the library may use in one call. Default: the first value of
   OMP_NUM_THREADS when it is set, otherwise the number of processors this
   process may run on (its CPU affinity). A value below 1 restores the
   default. Every function may be called from several application threads at
   once; each call then forks its own team. */
ZELCORE_API void zelSetNumThreads(int numThreads);
ZELCORE_API int zelGetNumThreads(void);

/* Instruction-set levels of the row kernels. */
enum { zelIsaSse41 = 1, zelIsaAvx2 = 2, zelIsaAvx512 = 3 };
/* The level the kernels use now. Default: the best level the processor and
   the operating system support (AVX-512 needs F, BW, VL and DQ), lowered by
   the environment variable ZEL_ISA=sse41|avx2|avx512 when it is set. */
ZELCORE_API int zelGetIsaLevel(void);
/* The best level the processor and the operating system support. */
ZELCORE_API int zelGetIsaLevelMax(void);
/* Forces a level for all later calls; a level the processor lacks is lowered
   to the best it has, and a value below 1 restores the default. Returns the
   level now in force. Meant for tests and measurements. */
ZELCORE_API int zelSetIsaLevel(int level);

/* Inner queries used by libzelip8. */
ZELCORE_API int ownGetNumThreads(void);
/* Non-zero if the processor feature `feature` (a bit of the feature word) is present. */
ZELCORE_API int ownGetFeature(unsigned int feature, unsigned int featureHigh);

/* The name and a one-line meaning of a status, as "zelStatusBadSize: ...";
   a generic text for a code the library does not know. Never NULL; the text
   is constant and lives as long as the library. */
ZELCORE_API const char* zelGetStatusString(ZelStatus status);

#ifdef __cplusplus
}
#endif

#endif /* ZELCORE_H */

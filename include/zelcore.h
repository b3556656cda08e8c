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

/* Threads the library may use in one call. Default: the number of processors.
   A value below 1 restores the default. */
ZELCORE_API void zelSetNumThreads(int numThreads);
ZELCORE_API int zelGetNumThreads(void);

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

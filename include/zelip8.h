/* libzelip8: image-processing primitives for x86 processors with SSE4.1/4.2.

   Every function works on a region of interest of buffers the caller owns:
   a pointer to its first sample, a row step in bytes and a ZeliSize in pixels.
   Functions return a ZelStatus: 0 success, negative error (outputs untouched),
   positive warning (outputs valid). Names follow one grammar:
   zeli<Family>_<variant>_<type>_<layout>[I][M]R[Sfs]. */
#ifndef ZELIP8_H
#define ZELIP8_H

#include "zelcore.h"
#include "zelip8/types.h"

#if defined(ZELIP8_BUILD)
#define ZELAPI __attribute__((visibility("default")))
#else
#define ZELAPI
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* Each family lists its members once, in include/zelip8/fn_*.h, as
   ZEL_FN(return type, name, (parameters), (arguments), implementation).
   Here every entry becomes a declaration. */
#define ZEL_FN(ret, name, params, args, impl) ZELAPI ret name params;
#include "zelip8/lists.h"
#undef ZEL_FN

#ifdef __cplusplus
}
#endif

#endif /* ZELIP8_H */

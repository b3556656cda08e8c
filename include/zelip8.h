/* libzelip8: image-processing primitives for x86 processors with SSE4.1/4.2.

   Every function works on a region of interest of buffers the caller owns:
   a pointer to its first sample, a row step in bytes and a ZeliSize in pixels.
   Functions return a ZelStatus: 0 success, negative error (outputs untouched),
   positive warning (outputs valid); zelGetStatusString names each one. Names
   follow one grammar: zeli<Family>_<variant>_<type>_<layout>[I][M]R[Sfs].
   doc/reference.md explains the grammar, the argument order and each family.

   Generated from the declaration lists include/zelip8/fn_*.h by
   tools/gen_api.cpp (cmake --build <dir> --target zelip8_api): edit the
   lists, not this file. */
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

/* ==== Image memory and version ==========================================

   zeliMalloc_<type>_<layout>(width, height, &step): a block whose rows start
   64 bytes apart at the least; the row step goes to *step (0 for a bad size).
   zeliFree releases it. zeliGetLibVersion describes this build.

   Checks: none of these returns a status. zeliMalloc_* return NULL and a step
   of 0 for a width or height below 1, and for an image whose row step does not
   fit an int or whose size does not fit the address space; NULL with the step
   stored when the memory is not there; NULL for a NULL step pointer.

   Example:
       int step = 0;
       Zel8u* img = zeliMalloc_8u_C3(640, 480, &step); // step 1920
       ZelStatus st = img ? zelStatusOk : zelStatusMemAlloc;
       zeliFree(img); */

/* zeliMalloc */
ZELAPI Zel8u* zeliMalloc_8u_C1(int widthPixels, int heightPixels, int* pStepBytes);
ZELAPI Zel8u* zeliMalloc_8u_C2(int widthPixels, int heightPixels, int* pStepBytes);
ZELAPI Zel8u* zeliMalloc_8u_C3(int widthPixels, int heightPixels, int* pStepBytes);
ZELAPI Zel8u* zeliMalloc_8u_C4(int widthPixels, int heightPixels, int* pStepBytes);
ZELAPI Zel8u* zeliMalloc_8u_AC4(int widthPixels, int heightPixels, int* pStepBytes);
ZELAPI Zel16u* zeliMalloc_16u_C1(int widthPixels, int heightPixels, int* pStepBytes);
ZELAPI Zel16u* zeliMalloc_16u_C2(int widthPixels, int heightPixels, int* pStepBytes);
ZELAPI Zel16u* zeliMalloc_16u_C3(int widthPixels, int heightPixels, int* pStepBytes);
ZELAPI Zel16u* zeliMalloc_16u_C4(int widthPixels, int heightPixels, int* pStepBytes);
ZELAPI Zel16u* zeliMalloc_16u_AC4(int widthPixels, int heightPixels, int* pStepBytes);
ZELAPI Zel16s* zeliMalloc_16s_C1(int widthPixels, int heightPixels, int* pStepBytes);
ZELAPI Zel16s* zeliMalloc_16s_C2(int widthPixels, int heightPixels, int* pStepBytes);
ZELAPI Zel16s* zeliMalloc_16s_C3(int widthPixels, int heightPixels, int* pStepBytes);
ZELAPI Zel16s* zeliMalloc_16s_C4(int widthPixels, int heightPixels, int* pStepBytes);
ZELAPI Zel16s* zeliMalloc_16s_AC4(int widthPixels, int heightPixels, int* pStepBytes);
ZELAPI Zel32s* zeliMalloc_32s_C1(int widthPixels, int heightPixels, int* pStepBytes);
ZELAPI Zel32s* zeliMalloc_32s_C2(int widthPixels, int heightPixels, int* pStepBytes);
ZELAPI Zel32s* zeliMalloc_32s_C3(int widthPixels, int heightPixels, int* pStepBytes);
ZELAPI Zel32s* zeliMalloc_32s_C4(int widthPixels, int heightPixels, int* pStepBytes);
ZELAPI Zel32s* zeliMalloc_32s_AC4(int widthPixels, int heightPixels, int* pStepBytes);
ZELAPI Zel32f* zeliMalloc_32f_C1(int widthPixels, int heightPixels, int* pStepBytes);
ZELAPI Zel32f* zeliMalloc_32f_C2(int widthPixels, int heightPixels, int* pStepBytes);
ZELAPI Zel32f* zeliMalloc_32f_C3(int widthPixels, int heightPixels, int* pStepBytes);
ZELAPI Zel32f* zeliMalloc_32f_C4(int widthPixels, int heightPixels, int* pStepBytes);
ZELAPI Zel32f* zeliMalloc_32f_AC4(int widthPixels, int heightPixels, int* pStepBytes);
ZELAPI Zel32sc* zeliMalloc_32sc_C1(int widthPixels, int heightPixels, int* pStepBytes);
ZELAPI Zel32sc* zeliMalloc_32sc_C2(int widthPixels, int heightPixels, int* pStepBytes);
ZELAPI Zel32sc* zeliMalloc_32sc_C3(int widthPixels, int heightPixels, int* pStepBytes);
ZELAPI Zel32sc* zeliMalloc_32sc_C4(int widthPixels, int heightPixels, int* pStepBytes);
ZELAPI Zel32sc* zeliMalloc_32sc_AC4(int widthPixels, int heightPixels, int* pStepBytes);
ZELAPI Zel32fc* zeliMalloc_32fc_C1(int widthPixels, int heightPixels, int* pStepBytes);
ZELAPI Zel32fc* zeliMalloc_32fc_C2(int widthPixels, int heightPixels, int* pStepBytes);
ZELAPI Zel32fc* zeliMalloc_32fc_C3(int widthPixels, int heightPixels, int* pStepBytes);
ZELAPI Zel32fc* zeliMalloc_32fc_C4(int widthPixels, int heightPixels, int* pStepBytes);
ZELAPI Zel32fc* zeliMalloc_32fc_AC4(int widthPixels, int heightPixels, int* pStepBytes);

/* zeliFree */
ZELAPI void zeliFree(void* ptr);

/* zeliGetLibVersion */
ZELAPI const ZelLibraryVersion* zeliGetLibVersion(void);

/* ==== Copy and set ======================================================

   zeliCopy moves samples between images of one sample type: whole pixels
   (C1R, C3R, C4R; AC4R keeps the destination alpha), under a mask (..MR: a
   pixel is written where its mask byte is not zero), one channel of interest
   (C3CR, C4CR), one channel out of or into an interleaved image (C3C1R,
   C4C1R, C1C3R, C1C4R), dropping or adding alpha (AC4C3R, C3AC4R), and
   between interleaved and planar images (C3P3R, C4P4R, P3C3R, P4C4R).
   zeliSet writes a constant in the same forms. zeliDup spreads one channel
   over three or four. zeliCopyManaged copies with a chosen store and load
   policy: flags bit 0 non-temporal stores, bit 1 streaming loads.

   Checks: zelStatusNullPointer (every plane and the mask too), then
   zelStatusBadSize. Steps are not checked: 0 and negative steps walk the
   rows by the step.

   Example:
       Zel8u rgb[4 * 3 * 2], r[4 * 2], g[4 * 2], b[4 * 2];
       Zel8u* planes[3] = {r, g, b};
       const Zel8u grey[3] = {128, 128, 128};
       ZeliSize roi = {4, 2};
       ZelStatus st = zeliSet_8u_C3R(grey, rgb, 4 * 3, roi);
       if (st == zelStatusOk) st = zeliCopy_8u_C3P3R(rgb, 4 * 3, planes, 4, roi); */

/* zeliCopy */
ZELAPI ZelStatus zeliCopy_8u_C1R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_8u_C3R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_8u_C4R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_8u_AC4R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_8u_C1MR(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, const Zel8u* pMask,
    int maskStep);
ZELAPI ZelStatus zeliCopy_8u_C3MR(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, const Zel8u* pMask,
    int maskStep);
ZELAPI ZelStatus zeliCopy_8u_C4MR(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, const Zel8u* pMask,
    int maskStep);
ZELAPI ZelStatus zeliCopy_8u_AC4MR(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, const Zel8u* pMask,
    int maskStep);
ZELAPI ZelStatus zeliCopy_8u_C3CR(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_8u_C4CR(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_8u_C3C1R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_8u_C4C1R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_8u_C1C3R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_8u_C1C4R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_8u_AC4C3R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_8u_C3AC4R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_8u_C3P3R(
    const Zel8u* pSrc, int srcStep, Zel8u* const pDst[3], int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_8u_C4P4R(
    const Zel8u* pSrc, int srcStep, Zel8u* const pDst[4], int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_8u_P3C3R(
    const Zel8u* const pSrc[3], int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_8u_P4C4R(
    const Zel8u* const pSrc[4], int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_16s_C1R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_16s_C3R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_16s_C4R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_16s_AC4R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_16s_C1MR(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize,
    const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliCopy_16s_C3MR(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize,
    const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliCopy_16s_C4MR(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize,
    const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliCopy_16s_AC4MR(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize,
    const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliCopy_16s_C3CR(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_16s_C4CR(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_16s_C3C1R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_16s_C4C1R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_16s_C1C3R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_16s_C1C4R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_16s_AC4C3R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_16s_C3AC4R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_16s_C3P3R(
    const Zel16s* pSrc, int srcStep, Zel16s* const pDst[3], int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_16s_C4P4R(
    const Zel16s* pSrc, int srcStep, Zel16s* const pDst[4], int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_16s_P3C3R(
    const Zel16s* const pSrc[3], int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_16s_P4C4R(
    const Zel16s* const pSrc[4], int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_16u_C1R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_16u_C3R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_16u_C4R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_16u_AC4R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_16u_C1MR(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize,
    const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliCopy_16u_C3MR(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize,
    const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliCopy_16u_C4MR(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize,
    const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliCopy_16u_AC4MR(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize,
    const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliCopy_16u_C3CR(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_16u_C4CR(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_16u_C3C1R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_16u_C4C1R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_16u_C1C3R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_16u_C1C4R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_16u_AC4C3R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_16u_C3AC4R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_16u_C3P3R(
    const Zel16u* pSrc, int srcStep, Zel16u* const pDst[3], int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_16u_C4P4R(
    const Zel16u* pSrc, int srcStep, Zel16u* const pDst[4], int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_16u_P3C3R(
    const Zel16u* const pSrc[3], int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_16u_P4C4R(
    const Zel16u* const pSrc[4], int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_32f_C1R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_32f_C3R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_32f_C4R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_32f_AC4R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_32f_C1MR(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize,
    const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliCopy_32f_C3MR(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize,
    const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliCopy_32f_C4MR(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize,
    const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliCopy_32f_AC4MR(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize,
    const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliCopy_32f_C3CR(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_32f_C4CR(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_32f_C3C1R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_32f_C4C1R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_32f_C1C3R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_32f_C1C4R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_32f_AC4C3R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_32f_C3AC4R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_32f_C3P3R(
    const Zel32f* pSrc, int srcStep, Zel32f* const pDst[3], int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_32f_C4P4R(
    const Zel32f* pSrc, int srcStep, Zel32f* const pDst[4], int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_32f_P3C3R(
    const Zel32f* const pSrc[3], int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_32f_P4C4R(
    const Zel32f* const pSrc[4], int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_32s_C1R(
    const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_32s_C3R(
    const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_32s_C4R(
    const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_32s_AC4R(
    const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_32s_C1MR(
    const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roiSize,
    const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliCopy_32s_C3MR(
    const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roiSize,
    const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliCopy_32s_C4MR(
    const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roiSize,
    const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliCopy_32s_AC4MR(
    const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roiSize,
    const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliCopy_32s_C3CR(
    const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_32s_C4CR(
    const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_32s_C3C1R(
    const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_32s_C4C1R(
    const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_32s_C1C3R(
    const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_32s_C1C4R(
    const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_32s_AC4C3R(
    const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_32s_C3AC4R(
    const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_32s_C3P3R(
    const Zel32s* pSrc, int srcStep, Zel32s* const pDst[3], int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_32s_C4P4R(
    const Zel32s* pSrc, int srcStep, Zel32s* const pDst[4], int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_32s_P3C3R(
    const Zel32s* const pSrc[3], int srcStep, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliCopy_32s_P4C4R(
    const Zel32s* const pSrc[4], int srcStep, Zel32s* pDst, int dstStep, ZeliSize roiSize);

/* zeliSet */
ZELAPI ZelStatus zeliSet_8u_C1R(Zel8u value, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSet_8u_C3R(const Zel8u value[3], Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSet_8u_C4R(const Zel8u value[4], Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSet_8u_AC4R(const Zel8u value[3], Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSet_8u_C1MR(
    Zel8u value, Zel8u* pDst, int dstStep, ZeliSize roiSize, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliSet_8u_C3MR(
    const Zel8u value[3], Zel8u* pDst, int dstStep, ZeliSize roiSize, const Zel8u* pMask,
    int maskStep);
ZELAPI ZelStatus zeliSet_8u_C4MR(
    const Zel8u value[4], Zel8u* pDst, int dstStep, ZeliSize roiSize, const Zel8u* pMask,
    int maskStep);
ZELAPI ZelStatus zeliSet_8u_AC4MR(
    const Zel8u value[3], Zel8u* pDst, int dstStep, ZeliSize roiSize, const Zel8u* pMask,
    int maskStep);
ZELAPI ZelStatus zeliSet_8u_C3CR(Zel8u value, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSet_8u_C4CR(Zel8u value, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSet_16s_C1R(Zel16s value, Zel16s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSet_16s_C3R(
    const Zel16s value[3], Zel16s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSet_16s_C4R(
    const Zel16s value[4], Zel16s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSet_16s_AC4R(
    const Zel16s value[3], Zel16s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSet_16s_C1MR(
    Zel16s value, Zel16s* pDst, int dstStep, ZeliSize roiSize, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliSet_16s_C3MR(
    const Zel16s value[3], Zel16s* pDst, int dstStep, ZeliSize roiSize, const Zel8u* pMask,
    int maskStep);
ZELAPI ZelStatus zeliSet_16s_C4MR(
    const Zel16s value[4], Zel16s* pDst, int dstStep, ZeliSize roiSize, const Zel8u* pMask,
    int maskStep);
ZELAPI ZelStatus zeliSet_16s_AC4MR(
    const Zel16s value[3], Zel16s* pDst, int dstStep, ZeliSize roiSize, const Zel8u* pMask,
    int maskStep);
ZELAPI ZelStatus zeliSet_16s_C3CR(Zel16s value, Zel16s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSet_16s_C4CR(Zel16s value, Zel16s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSet_16u_C1R(Zel16u value, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSet_16u_C3R(
    const Zel16u value[3], Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSet_16u_C4R(
    const Zel16u value[4], Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSet_16u_AC4R(
    const Zel16u value[3], Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSet_16u_C1MR(
    Zel16u value, Zel16u* pDst, int dstStep, ZeliSize roiSize, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliSet_16u_C3MR(
    const Zel16u value[3], Zel16u* pDst, int dstStep, ZeliSize roiSize, const Zel8u* pMask,
    int maskStep);
ZELAPI ZelStatus zeliSet_16u_C4MR(
    const Zel16u value[4], Zel16u* pDst, int dstStep, ZeliSize roiSize, const Zel8u* pMask,
    int maskStep);
ZELAPI ZelStatus zeliSet_16u_AC4MR(
    const Zel16u value[3], Zel16u* pDst, int dstStep, ZeliSize roiSize, const Zel8u* pMask,
    int maskStep);
ZELAPI ZelStatus zeliSet_16u_C3CR(Zel16u value, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSet_16u_C4CR(Zel16u value, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSet_32f_C1R(Zel32f value, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSet_32f_C3R(
    const Zel32f value[3], Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSet_32f_C4R(
    const Zel32f value[4], Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSet_32f_AC4R(
    const Zel32f value[3], Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSet_32f_C1MR(
    Zel32f value, Zel32f* pDst, int dstStep, ZeliSize roiSize, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliSet_32f_C3MR(
    const Zel32f value[3], Zel32f* pDst, int dstStep, ZeliSize roiSize, const Zel8u* pMask,
    int maskStep);
ZELAPI ZelStatus zeliSet_32f_C4MR(
    const Zel32f value[4], Zel32f* pDst, int dstStep, ZeliSize roiSize, const Zel8u* pMask,
    int maskStep);
ZELAPI ZelStatus zeliSet_32f_AC4MR(
    const Zel32f value[3], Zel32f* pDst, int dstStep, ZeliSize roiSize, const Zel8u* pMask,
    int maskStep);
ZELAPI ZelStatus zeliSet_32f_C3CR(Zel32f value, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSet_32f_C4CR(Zel32f value, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSet_32s_C1R(Zel32s value, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSet_32s_C3R(
    const Zel32s value[3], Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSet_32s_C4R(
    const Zel32s value[4], Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSet_32s_AC4R(
    const Zel32s value[3], Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSet_32s_C1MR(
    Zel32s value, Zel32s* pDst, int dstStep, ZeliSize roiSize, const Zel8u* pMask, int maskStep);
ZELAPI ZelStatus zeliSet_32s_C3MR(
    const Zel32s value[3], Zel32s* pDst, int dstStep, ZeliSize roiSize, const Zel8u* pMask,
    int maskStep);
ZELAPI ZelStatus zeliSet_32s_C4MR(
    const Zel32s value[4], Zel32s* pDst, int dstStep, ZeliSize roiSize, const Zel8u* pMask,
    int maskStep);
ZELAPI ZelStatus zeliSet_32s_AC4MR(
    const Zel32s value[3], Zel32s* pDst, int dstStep, ZeliSize roiSize, const Zel8u* pMask,
    int maskStep);
ZELAPI ZelStatus zeliSet_32s_C3CR(Zel32s value, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSet_32s_C4CR(Zel32s value, Zel32s* pDst, int dstStep, ZeliSize roiSize);

/* zeliDup */
ZELAPI ZelStatus zeliDup_8u_C1C3R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliDup_8u_C1C4R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize);

/* zeliCopyManaged */
ZELAPI ZelStatus zeliCopyManaged_8u_C1R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, int flags);

/* ==== Saturating add and subtract =======================================

   Of two images, or of an image and a constant:
   zeliAdd: dst = src1 + src2; zeliSub: dst = src2 - src1; zeliAddC: dst = src + value;
   zeliSubC: dst = src - value. Sfs forms scale by two to the minus scaleFactor,
   round ties to even and saturate; complex forms work part by part.

   Checks: zelStatusNullPointer, then zelStatusBadSize (C3 and C4 forms test
   the width first); complex forms then zelStatusBadStep. Other forms accept
   any step.

   Example:
       Zel8u a[4 * 2] = {10, 20, 250, 255, 0, 1, 2, 3};
       Zel8u b[4 * 2] = {1, 2, 10, 255, 0, 1, 2, 3};
       Zel8u half[4 * 2];
       ZeliSize roi = {4, 2};
       // half = (a + b) / 2, ties to even: 6, 11, 130, 255, 0, 1, 2, 3
       ZelStatus st = zeliAdd_8u_C1RSfs(a, 4, b, 4, half, 4, roi, 1); */

/* zeliAdd */
ZELAPI ZelStatus zeliAdd_8u_C1RSfs(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_8u_C1IRSfs(
    const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliAdd_8u_C3RSfs(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_8u_C3IRSfs(
    const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliAdd_8u_C4RSfs(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_8u_C4IRSfs(
    const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliAdd_8u_AC4RSfs(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_8u_AC4IRSfs(
    const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliAdd_16u_C1RSfs(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_16u_C1IRSfs(
    const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliAdd_16u_C3RSfs(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_16u_C3IRSfs(
    const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliAdd_16u_C4RSfs(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_16u_C4IRSfs(
    const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliAdd_16u_AC4RSfs(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_16u_AC4IRSfs(
    const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliAdd_16s_C1RSfs(
    const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, Zel16s* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_16s_C1IRSfs(
    const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliAdd_16s_C3RSfs(
    const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, Zel16s* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_16s_C3IRSfs(
    const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliAdd_16s_C4RSfs(
    const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, Zel16s* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_16s_C4IRSfs(
    const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliAdd_16s_AC4RSfs(
    const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, Zel16s* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_16s_AC4IRSfs(
    const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliAdd_16sc_C1RSfs(
    const Zel16sc* pSrc1, int src1Step, const Zel16sc* pSrc2, int src2Step, Zel16sc* pDst,
    int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_16sc_C1IRSfs(
    const Zel16sc* pSrc, int srcStep, Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliAdd_16sc_C3RSfs(
    const Zel16sc* pSrc1, int src1Step, const Zel16sc* pSrc2, int src2Step, Zel16sc* pDst,
    int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_16sc_C3IRSfs(
    const Zel16sc* pSrc, int srcStep, Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliAdd_16sc_AC4RSfs(
    const Zel16sc* pSrc1, int src1Step, const Zel16sc* pSrc2, int src2Step, Zel16sc* pDst,
    int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_16sc_AC4IRSfs(
    const Zel16sc* pSrc, int srcStep, Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliAdd_32sc_C1RSfs(
    const Zel32sc* pSrc1, int src1Step, const Zel32sc* pSrc2, int src2Step, Zel32sc* pDst,
    int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_32sc_C1IRSfs(
    const Zel32sc* pSrc, int srcStep, Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliAdd_32sc_C3RSfs(
    const Zel32sc* pSrc1, int src1Step, const Zel32sc* pSrc2, int src2Step, Zel32sc* pDst,
    int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_32sc_C3IRSfs(
    const Zel32sc* pSrc, int srcStep, Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliAdd_32sc_AC4RSfs(
    const Zel32sc* pSrc1, int src1Step, const Zel32sc* pSrc2, int src2Step, Zel32sc* pDst,
    int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAdd_32sc_AC4IRSfs(
    const Zel32sc* pSrc, int srcStep, Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliAdd_32f_C1R(
    const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel32f* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliAdd_32f_C1IR(
    const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAdd_32f_C3R(
    const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel32f* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliAdd_32f_C3IR(
    const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAdd_32f_C4R(
    const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel32f* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliAdd_32f_C4IR(
    const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAdd_32f_AC4R(
    const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel32f* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliAdd_32f_AC4IR(
    const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAdd_32fc_C1R(
    const Zel32fc* pSrc1, int src1Step, const Zel32fc* pSrc2, int src2Step, Zel32fc* pDst,
    int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAdd_32fc_C1IR(
    const Zel32fc* pSrc, int srcStep, Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAdd_32fc_C3R(
    const Zel32fc* pSrc1, int src1Step, const Zel32fc* pSrc2, int src2Step, Zel32fc* pDst,
    int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAdd_32fc_C3IR(
    const Zel32fc* pSrc, int srcStep, Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAdd_32fc_AC4R(
    const Zel32fc* pSrc1, int src1Step, const Zel32fc* pSrc2, int src2Step, Zel32fc* pDst,
    int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAdd_32fc_AC4IR(
    const Zel32fc* pSrc, int srcStep, Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);

/* zeliSub */
ZELAPI ZelStatus zeliSub_8u_C1RSfs(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_8u_C1IRSfs(
    const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliSub_8u_C3RSfs(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_8u_C3IRSfs(
    const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliSub_8u_C4RSfs(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_8u_C4IRSfs(
    const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliSub_8u_AC4RSfs(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_8u_AC4IRSfs(
    const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliSub_16u_C1RSfs(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_16u_C1IRSfs(
    const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliSub_16u_C3RSfs(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_16u_C3IRSfs(
    const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliSub_16u_C4RSfs(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_16u_C4IRSfs(
    const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliSub_16u_AC4RSfs(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_16u_AC4IRSfs(
    const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliSub_16s_C1RSfs(
    const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, Zel16s* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_16s_C1IRSfs(
    const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliSub_16s_C3RSfs(
    const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, Zel16s* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_16s_C3IRSfs(
    const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliSub_16s_C4RSfs(
    const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, Zel16s* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_16s_C4IRSfs(
    const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliSub_16s_AC4RSfs(
    const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, Zel16s* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_16s_AC4IRSfs(
    const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliSub_16sc_C1RSfs(
    const Zel16sc* pSrc1, int src1Step, const Zel16sc* pSrc2, int src2Step, Zel16sc* pDst,
    int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_16sc_C1IRSfs(
    const Zel16sc* pSrc, int srcStep, Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliSub_16sc_C3RSfs(
    const Zel16sc* pSrc1, int src1Step, const Zel16sc* pSrc2, int src2Step, Zel16sc* pDst,
    int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_16sc_C3IRSfs(
    const Zel16sc* pSrc, int srcStep, Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliSub_16sc_AC4RSfs(
    const Zel16sc* pSrc1, int src1Step, const Zel16sc* pSrc2, int src2Step, Zel16sc* pDst,
    int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_16sc_AC4IRSfs(
    const Zel16sc* pSrc, int srcStep, Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliSub_32sc_C1RSfs(
    const Zel32sc* pSrc1, int src1Step, const Zel32sc* pSrc2, int src2Step, Zel32sc* pDst,
    int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_32sc_C1IRSfs(
    const Zel32sc* pSrc, int srcStep, Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliSub_32sc_C3RSfs(
    const Zel32sc* pSrc1, int src1Step, const Zel32sc* pSrc2, int src2Step, Zel32sc* pDst,
    int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_32sc_C3IRSfs(
    const Zel32sc* pSrc, int srcStep, Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliSub_32sc_AC4RSfs(
    const Zel32sc* pSrc1, int src1Step, const Zel32sc* pSrc2, int src2Step, Zel32sc* pDst,
    int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSub_32sc_AC4IRSfs(
    const Zel32sc* pSrc, int srcStep, Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliSub_32f_C1R(
    const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel32f* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliSub_32f_C1IR(
    const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSub_32f_C3R(
    const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel32f* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliSub_32f_C3IR(
    const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSub_32f_C4R(
    const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel32f* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliSub_32f_C4IR(
    const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSub_32f_AC4R(
    const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel32f* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliSub_32f_AC4IR(
    const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSub_32fc_C1R(
    const Zel32fc* pSrc1, int src1Step, const Zel32fc* pSrc2, int src2Step, Zel32fc* pDst,
    int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSub_32fc_C1IR(
    const Zel32fc* pSrc, int srcStep, Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSub_32fc_C3R(
    const Zel32fc* pSrc1, int src1Step, const Zel32fc* pSrc2, int src2Step, Zel32fc* pDst,
    int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSub_32fc_C3IR(
    const Zel32fc* pSrc, int srcStep, Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSub_32fc_AC4R(
    const Zel32fc* pSrc1, int src1Step, const Zel32fc* pSrc2, int src2Step, Zel32fc* pDst,
    int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSub_32fc_AC4IR(
    const Zel32fc* pSrc, int srcStep, Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);

/* zeliAddC */
ZELAPI ZelStatus zeliAddC_8u_C1RSfs(
    const Zel8u* pSrc, int srcStep, Zel8u value, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliAddC_8u_C1IRSfs(
    Zel8u value, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_8u_C3RSfs(
    const Zel8u* pSrc, int srcStep, const Zel8u* value, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliAddC_8u_C3IRSfs(
    const Zel8u* value, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_8u_C4RSfs(
    const Zel8u* pSrc, int srcStep, const Zel8u* value, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliAddC_8u_C4IRSfs(
    const Zel8u* value, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_8u_AC4RSfs(
    const Zel8u* pSrc, int srcStep, const Zel8u* value, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliAddC_8u_AC4IRSfs(
    const Zel8u* value, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16u_C1RSfs(
    const Zel16u* pSrc, int srcStep, Zel16u value, Zel16u* pDst, int dstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliAddC_16u_C1IRSfs(
    Zel16u value, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16u_C3RSfs(
    const Zel16u* pSrc, int srcStep, const Zel16u* value, Zel16u* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16u_C3IRSfs(
    const Zel16u* value, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16u_C4RSfs(
    const Zel16u* pSrc, int srcStep, const Zel16u* value, Zel16u* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16u_C4IRSfs(
    const Zel16u* value, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16u_AC4RSfs(
    const Zel16u* pSrc, int srcStep, const Zel16u* value, Zel16u* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16u_AC4IRSfs(
    const Zel16u* value, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16s_C1RSfs(
    const Zel16s* pSrc, int srcStep, Zel16s value, Zel16s* pDst, int dstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliAddC_16s_C1IRSfs(
    Zel16s value, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16s_C3RSfs(
    const Zel16s* pSrc, int srcStep, const Zel16s* value, Zel16s* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16s_C3IRSfs(
    const Zel16s* value, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16s_C4RSfs(
    const Zel16s* pSrc, int srcStep, const Zel16s* value, Zel16s* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16s_C4IRSfs(
    const Zel16s* value, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16s_AC4RSfs(
    const Zel16s* pSrc, int srcStep, const Zel16s* value, Zel16s* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16s_AC4IRSfs(
    const Zel16s* value, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16sc_C1RSfs(
    const Zel16sc* pSrc, int srcStep, Zel16sc value, Zel16sc* pDst, int dstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliAddC_16sc_C1IRSfs(
    Zel16sc value, Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16sc_C3RSfs(
    const Zel16sc* pSrc, int srcStep, const Zel16sc* value, Zel16sc* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16sc_C3IRSfs(
    const Zel16sc* value, Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16sc_AC4RSfs(
    const Zel16sc* pSrc, int srcStep, const Zel16sc* value, Zel16sc* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_16sc_AC4IRSfs(
    const Zel16sc* value, Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_32sc_C1RSfs(
    const Zel32sc* pSrc, int srcStep, Zel32sc value, Zel32sc* pDst, int dstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliAddC_32sc_C1IRSfs(
    Zel32sc value, Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_32sc_C3RSfs(
    const Zel32sc* pSrc, int srcStep, const Zel32sc* value, Zel32sc* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_32sc_C3IRSfs(
    const Zel32sc* value, Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_32sc_AC4RSfs(
    const Zel32sc* pSrc, int srcStep, const Zel32sc* value, Zel32sc* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_32sc_AC4IRSfs(
    const Zel32sc* value, Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliAddC_32f_C1R(
    const Zel32f* pSrc, int srcStep, Zel32f value, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAddC_32f_C1IR(Zel32f value, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAddC_32f_C3R(
    const Zel32f* pSrc, int srcStep, const Zel32f* value, Zel32f* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliAddC_32f_C3IR(
    const Zel32f* value, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAddC_32f_C4R(
    const Zel32f* pSrc, int srcStep, const Zel32f* value, Zel32f* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliAddC_32f_C4IR(
    const Zel32f* value, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAddC_32f_AC4R(
    const Zel32f* pSrc, int srcStep, const Zel32f* value, Zel32f* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliAddC_32f_AC4IR(
    const Zel32f* value, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAddC_32fc_C1R(
    const Zel32fc* pSrc, int srcStep, Zel32fc value, Zel32fc* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAddC_32fc_C1IR(
    Zel32fc value, Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAddC_32fc_C3R(
    const Zel32fc* pSrc, int srcStep, const Zel32fc* value, Zel32fc* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliAddC_32fc_C3IR(
    const Zel32fc* value, Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAddC_32fc_AC4R(
    const Zel32fc* pSrc, int srcStep, const Zel32fc* value, Zel32fc* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliAddC_32fc_AC4IR(
    const Zel32fc* value, Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);

/* zeliSubC */
ZELAPI ZelStatus zeliSubC_8u_C1RSfs(
    const Zel8u* pSrc, int srcStep, Zel8u value, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliSubC_8u_C1IRSfs(
    Zel8u value, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_8u_C3RSfs(
    const Zel8u* pSrc, int srcStep, const Zel8u* value, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliSubC_8u_C3IRSfs(
    const Zel8u* value, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_8u_C4RSfs(
    const Zel8u* pSrc, int srcStep, const Zel8u* value, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliSubC_8u_C4IRSfs(
    const Zel8u* value, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_8u_AC4RSfs(
    const Zel8u* pSrc, int srcStep, const Zel8u* value, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliSubC_8u_AC4IRSfs(
    const Zel8u* value, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16u_C1RSfs(
    const Zel16u* pSrc, int srcStep, Zel16u value, Zel16u* pDst, int dstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliSubC_16u_C1IRSfs(
    Zel16u value, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16u_C3RSfs(
    const Zel16u* pSrc, int srcStep, const Zel16u* value, Zel16u* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16u_C3IRSfs(
    const Zel16u* value, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16u_C4RSfs(
    const Zel16u* pSrc, int srcStep, const Zel16u* value, Zel16u* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16u_C4IRSfs(
    const Zel16u* value, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16u_AC4RSfs(
    const Zel16u* pSrc, int srcStep, const Zel16u* value, Zel16u* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16u_AC4IRSfs(
    const Zel16u* value, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16s_C1RSfs(
    const Zel16s* pSrc, int srcStep, Zel16s value, Zel16s* pDst, int dstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliSubC_16s_C1IRSfs(
    Zel16s value, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16s_C3RSfs(
    const Zel16s* pSrc, int srcStep, const Zel16s* value, Zel16s* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16s_C3IRSfs(
    const Zel16s* value, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16s_C4RSfs(
    const Zel16s* pSrc, int srcStep, const Zel16s* value, Zel16s* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16s_C4IRSfs(
    const Zel16s* value, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16s_AC4RSfs(
    const Zel16s* pSrc, int srcStep, const Zel16s* value, Zel16s* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16s_AC4IRSfs(
    const Zel16s* value, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16sc_C1RSfs(
    const Zel16sc* pSrc, int srcStep, Zel16sc value, Zel16sc* pDst, int dstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliSubC_16sc_C1IRSfs(
    Zel16sc value, Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16sc_C3RSfs(
    const Zel16sc* pSrc, int srcStep, const Zel16sc* value, Zel16sc* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16sc_C3IRSfs(
    const Zel16sc* value, Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16sc_AC4RSfs(
    const Zel16sc* pSrc, int srcStep, const Zel16sc* value, Zel16sc* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_16sc_AC4IRSfs(
    const Zel16sc* value, Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_32sc_C1RSfs(
    const Zel32sc* pSrc, int srcStep, Zel32sc value, Zel32sc* pDst, int dstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliSubC_32sc_C1IRSfs(
    Zel32sc value, Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_32sc_C3RSfs(
    const Zel32sc* pSrc, int srcStep, const Zel32sc* value, Zel32sc* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_32sc_C3IRSfs(
    const Zel32sc* value, Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_32sc_AC4RSfs(
    const Zel32sc* pSrc, int srcStep, const Zel32sc* value, Zel32sc* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_32sc_AC4IRSfs(
    const Zel32sc* value, Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSubC_32f_C1R(
    const Zel32f* pSrc, int srcStep, Zel32f value, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSubC_32f_C1IR(Zel32f value, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSubC_32f_C3R(
    const Zel32f* pSrc, int srcStep, const Zel32f* value, Zel32f* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliSubC_32f_C3IR(
    const Zel32f* value, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSubC_32f_C4R(
    const Zel32f* pSrc, int srcStep, const Zel32f* value, Zel32f* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliSubC_32f_C4IR(
    const Zel32f* value, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSubC_32f_AC4R(
    const Zel32f* pSrc, int srcStep, const Zel32f* value, Zel32f* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliSubC_32f_AC4IR(
    const Zel32f* value, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSubC_32fc_C1R(
    const Zel32fc* pSrc, int srcStep, Zel32fc value, Zel32fc* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSubC_32fc_C1IR(
    Zel32fc value, Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSubC_32fc_C3R(
    const Zel32fc* pSrc, int srcStep, const Zel32fc* value, Zel32fc* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliSubC_32fc_C3IR(
    const Zel32fc* value, Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSubC_32fc_AC4R(
    const Zel32fc* pSrc, int srcStep, const Zel32fc* value, Zel32fc* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliSubC_32fc_AC4IR(
    const Zel32fc* value, Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);

/* ==== Multiply ==========================================================

   zeliMul: dst = src1 * src2, zeliMulC: dst = src * value, scaled as
   the add family (complex forms as complex products); zeliMulScale and
   zeliMulCScale: the product of two fractions of full scale, divided by the
   full scale and rounded. The shapes of the entries are those of fn_addsub.h.

   Checks: those of the add family; zeliMulScale and zeliMulCScale test
   zelStatusNullPointer, zelStatusBadStep, then zelStatusBadSize.

   Example:
       Zel16s img[3 * 2] = {100, -200, 300, 400, 500, 600};
       Zel16s out[3 * 2];
       ZeliSize roi = {3, 2};
       // img * 384 / 2^8 = img * 1.5: 150, -300, 450, 600, 750, 900
       ZelStatus st = zeliMulC_16s_C1RSfs(img, 3 * 2, 384, out, 3 * 2, roi, 8); */

/* zeliMul */
ZELAPI ZelStatus zeliMul_8u_C1RSfs(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_8u_C1IRSfs(
    const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliMul_8u_C3RSfs(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_8u_C3IRSfs(
    const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliMul_8u_C4RSfs(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_8u_C4IRSfs(
    const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliMul_8u_AC4RSfs(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_8u_AC4IRSfs(
    const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliMul_16u_C1RSfs(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_16u_C1IRSfs(
    const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliMul_16u_C3RSfs(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_16u_C3IRSfs(
    const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliMul_16u_C4RSfs(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_16u_C4IRSfs(
    const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliMul_16u_AC4RSfs(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_16u_AC4IRSfs(
    const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliMul_16s_C1RSfs(
    const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, Zel16s* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_16s_C1IRSfs(
    const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliMul_16s_C3RSfs(
    const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, Zel16s* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_16s_C3IRSfs(
    const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliMul_16s_C4RSfs(
    const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, Zel16s* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_16s_C4IRSfs(
    const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliMul_16s_AC4RSfs(
    const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, Zel16s* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_16s_AC4IRSfs(
    const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliMul_16sc_C1RSfs(
    const Zel16sc* pSrc1, int src1Step, const Zel16sc* pSrc2, int src2Step, Zel16sc* pDst,
    int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_16sc_C1IRSfs(
    const Zel16sc* pSrc, int srcStep, Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliMul_16sc_C3RSfs(
    const Zel16sc* pSrc1, int src1Step, const Zel16sc* pSrc2, int src2Step, Zel16sc* pDst,
    int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_16sc_C3IRSfs(
    const Zel16sc* pSrc, int srcStep, Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliMul_16sc_AC4RSfs(
    const Zel16sc* pSrc1, int src1Step, const Zel16sc* pSrc2, int src2Step, Zel16sc* pDst,
    int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_16sc_AC4IRSfs(
    const Zel16sc* pSrc, int srcStep, Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliMul_32sc_C1RSfs(
    const Zel32sc* pSrc1, int src1Step, const Zel32sc* pSrc2, int src2Step, Zel32sc* pDst,
    int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_32sc_C1IRSfs(
    const Zel32sc* pSrc, int srcStep, Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliMul_32sc_C3RSfs(
    const Zel32sc* pSrc1, int src1Step, const Zel32sc* pSrc2, int src2Step, Zel32sc* pDst,
    int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_32sc_C3IRSfs(
    const Zel32sc* pSrc, int srcStep, Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliMul_32sc_AC4RSfs(
    const Zel32sc* pSrc1, int src1Step, const Zel32sc* pSrc2, int src2Step, Zel32sc* pDst,
    int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMul_32sc_AC4IRSfs(
    const Zel32sc* pSrc, int srcStep, Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliMul_32f_C1R(
    const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel32f* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliMul_32f_C1IR(
    const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMul_32f_C3R(
    const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel32f* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliMul_32f_C3IR(
    const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMul_32f_C4R(
    const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel32f* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliMul_32f_C4IR(
    const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMul_32f_AC4R(
    const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel32f* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliMul_32f_AC4IR(
    const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMul_32fc_C1R(
    const Zel32fc* pSrc1, int src1Step, const Zel32fc* pSrc2, int src2Step, Zel32fc* pDst,
    int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMul_32fc_C1IR(
    const Zel32fc* pSrc, int srcStep, Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMul_32fc_C3R(
    const Zel32fc* pSrc1, int src1Step, const Zel32fc* pSrc2, int src2Step, Zel32fc* pDst,
    int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMul_32fc_C3IR(
    const Zel32fc* pSrc, int srcStep, Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMul_32fc_AC4R(
    const Zel32fc* pSrc1, int src1Step, const Zel32fc* pSrc2, int src2Step, Zel32fc* pDst,
    int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMul_32fc_AC4IR(
    const Zel32fc* pSrc, int srcStep, Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);

/* zeliMulC */
ZELAPI ZelStatus zeliMulC_8u_C1RSfs(
    const Zel8u* pSrc, int srcStep, Zel8u value, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliMulC_8u_C1IRSfs(
    Zel8u value, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_8u_C3RSfs(
    const Zel8u* pSrc, int srcStep, const Zel8u* value, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliMulC_8u_C3IRSfs(
    const Zel8u* value, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_8u_C4RSfs(
    const Zel8u* pSrc, int srcStep, const Zel8u* value, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliMulC_8u_C4IRSfs(
    const Zel8u* value, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_8u_AC4RSfs(
    const Zel8u* pSrc, int srcStep, const Zel8u* value, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliMulC_8u_AC4IRSfs(
    const Zel8u* value, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16u_C1RSfs(
    const Zel16u* pSrc, int srcStep, Zel16u value, Zel16u* pDst, int dstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliMulC_16u_C1IRSfs(
    Zel16u value, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16u_C3RSfs(
    const Zel16u* pSrc, int srcStep, const Zel16u* value, Zel16u* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16u_C3IRSfs(
    const Zel16u* value, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16u_C4RSfs(
    const Zel16u* pSrc, int srcStep, const Zel16u* value, Zel16u* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16u_C4IRSfs(
    const Zel16u* value, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16u_AC4RSfs(
    const Zel16u* pSrc, int srcStep, const Zel16u* value, Zel16u* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16u_AC4IRSfs(
    const Zel16u* value, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16s_C1RSfs(
    const Zel16s* pSrc, int srcStep, Zel16s value, Zel16s* pDst, int dstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliMulC_16s_C1IRSfs(
    Zel16s value, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16s_C3RSfs(
    const Zel16s* pSrc, int srcStep, const Zel16s* value, Zel16s* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16s_C3IRSfs(
    const Zel16s* value, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16s_C4RSfs(
    const Zel16s* pSrc, int srcStep, const Zel16s* value, Zel16s* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16s_C4IRSfs(
    const Zel16s* value, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16s_AC4RSfs(
    const Zel16s* pSrc, int srcStep, const Zel16s* value, Zel16s* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16s_AC4IRSfs(
    const Zel16s* value, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16sc_C1RSfs(
    const Zel16sc* pSrc, int srcStep, Zel16sc value, Zel16sc* pDst, int dstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliMulC_16sc_C1IRSfs(
    Zel16sc value, Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16sc_C3RSfs(
    const Zel16sc* pSrc, int srcStep, const Zel16sc* value, Zel16sc* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16sc_C3IRSfs(
    const Zel16sc* value, Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16sc_AC4RSfs(
    const Zel16sc* pSrc, int srcStep, const Zel16sc* value, Zel16sc* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_16sc_AC4IRSfs(
    const Zel16sc* value, Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_32sc_C1RSfs(
    const Zel32sc* pSrc, int srcStep, Zel32sc value, Zel32sc* pDst, int dstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliMulC_32sc_C1IRSfs(
    Zel32sc value, Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_32sc_C3RSfs(
    const Zel32sc* pSrc, int srcStep, const Zel32sc* value, Zel32sc* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_32sc_C3IRSfs(
    const Zel32sc* value, Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_32sc_AC4RSfs(
    const Zel32sc* pSrc, int srcStep, const Zel32sc* value, Zel32sc* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_32sc_AC4IRSfs(
    const Zel32sc* value, Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliMulC_32f_C1R(
    const Zel32f* pSrc, int srcStep, Zel32f value, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulC_32f_C1IR(Zel32f value, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulC_32f_C3R(
    const Zel32f* pSrc, int srcStep, const Zel32f* value, Zel32f* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliMulC_32f_C3IR(
    const Zel32f* value, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulC_32f_C4R(
    const Zel32f* pSrc, int srcStep, const Zel32f* value, Zel32f* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliMulC_32f_C4IR(
    const Zel32f* value, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulC_32f_AC4R(
    const Zel32f* pSrc, int srcStep, const Zel32f* value, Zel32f* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliMulC_32f_AC4IR(
    const Zel32f* value, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulC_32fc_C1R(
    const Zel32fc* pSrc, int srcStep, Zel32fc value, Zel32fc* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulC_32fc_C1IR(
    Zel32fc value, Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulC_32fc_C3R(
    const Zel32fc* pSrc, int srcStep, const Zel32fc* value, Zel32fc* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliMulC_32fc_C3IR(
    const Zel32fc* value, Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulC_32fc_AC4R(
    const Zel32fc* pSrc, int srcStep, const Zel32fc* value, Zel32fc* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliMulC_32fc_AC4IR(
    const Zel32fc* value, Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);

/* zeliMulScale */
ZELAPI ZelStatus zeliMulScale_8u_C1R(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliMulScale_8u_C1IR(
    const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulScale_8u_C3R(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliMulScale_8u_C3IR(
    const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulScale_8u_C4R(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliMulScale_8u_C4IR(
    const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulScale_8u_AC4R(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliMulScale_8u_AC4IR(
    const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulScale_16u_C1R(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliMulScale_16u_C1IR(
    const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulScale_16u_C3R(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliMulScale_16u_C3IR(
    const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulScale_16u_C4R(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliMulScale_16u_C4IR(
    const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulScale_16u_AC4R(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliMulScale_16u_AC4IR(
    const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);

/* zeliMulCScale */
ZELAPI ZelStatus zeliMulCScale_8u_C1R(
    const Zel8u* pSrc, int srcStep, Zel8u value, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulCScale_8u_C1IR(
    Zel8u value, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulCScale_8u_C3R(
    const Zel8u* pSrc, int srcStep, const Zel8u* value, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulCScale_8u_C3IR(
    const Zel8u* value, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulCScale_8u_C4R(
    const Zel8u* pSrc, int srcStep, const Zel8u* value, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulCScale_8u_C4IR(
    const Zel8u* value, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulCScale_8u_AC4R(
    const Zel8u* pSrc, int srcStep, const Zel8u* value, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulCScale_8u_AC4IR(
    const Zel8u* value, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulCScale_16u_C1R(
    const Zel16u* pSrc, int srcStep, Zel16u value, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulCScale_16u_C1IR(
    Zel16u value, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulCScale_16u_C3R(
    const Zel16u* pSrc, int srcStep, const Zel16u* value, Zel16u* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliMulCScale_16u_C3IR(
    const Zel16u* value, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulCScale_16u_C4R(
    const Zel16u* pSrc, int srcStep, const Zel16u* value, Zel16u* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliMulCScale_16u_C4IR(
    const Zel16u* value, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMulCScale_16u_AC4R(
    const Zel16u* pSrc, int srcStep, const Zel16u* value, Zel16u* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliMulCScale_16u_AC4IR(
    const Zel16u* value, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);

/* ==== Divide ============================================================

   zeliDiv: dst = src2 / src1 (in place srcDst / src); zeliDiv_Round the
   same with round mode 0 towards zero, 1 ties to even, 2 ties away; zeliDivC:
   dst = src / value. A zero divisor gives a fixed result and the warning
   zelStatusDivisionByZeroWarning; a zero constant is refused. The shapes of the
   entries are those of fn_addsub.h.

   Checks: zelStatusNullPointer, zelStatusBadSize, zelStatusBadStep, then
   zelStatusDivisionByZero (zeliDivC) or zelStatusBadRoundMode (zeliDiv_Round:
   a round mode other than 0, 1, 2). zelStatusDivisionByZeroWarning is a
   warning: every result is written.

   Example:
       Zel32f num[4] = {1, 2, 3, 4}, den[4] = {2, 4, 0, 8}, q[4];
       ZeliSize roi = {4, 1};
       // q = num / den (the divisor comes first): 0.5, 0.5, +inf, 0.5
       ZelStatus st = zeliDiv_32f_C1R(den, 16, num, 16, q, 16, roi);
       if (st == zelStatusDivisionByZeroWarning) st = zelStatusOk; // the +inf */

/* zeliDiv */
ZELAPI ZelStatus zeliDiv_8u_C1RSfs(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliDiv_8u_C1IRSfs(
    const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliDiv_8u_C3RSfs(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliDiv_8u_C3IRSfs(
    const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliDiv_8u_C4RSfs(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliDiv_8u_C4IRSfs(
    const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliDiv_8u_AC4RSfs(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliDiv_8u_AC4IRSfs(
    const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliDiv_16u_C1RSfs(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliDiv_16u_C1IRSfs(
    const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliDiv_16u_C3RSfs(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliDiv_16u_C3IRSfs(
    const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliDiv_16u_C4RSfs(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliDiv_16u_C4IRSfs(
    const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliDiv_16u_AC4RSfs(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliDiv_16u_AC4IRSfs(
    const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliDiv_16s_C1RSfs(
    const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, Zel16s* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliDiv_16s_C1IRSfs(
    const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliDiv_16s_C3RSfs(
    const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, Zel16s* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliDiv_16s_C3IRSfs(
    const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliDiv_16s_C4RSfs(
    const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, Zel16s* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliDiv_16s_C4IRSfs(
    const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliDiv_16s_AC4RSfs(
    const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, Zel16s* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliDiv_16s_AC4IRSfs(
    const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliDiv_16sc_C1RSfs(
    const Zel16sc* pSrc1, int src1Step, const Zel16sc* pSrc2, int src2Step, Zel16sc* pDst,
    int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliDiv_16sc_C1IRSfs(
    const Zel16sc* pSrc, int srcStep, Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliDiv_16sc_C3RSfs(
    const Zel16sc* pSrc1, int src1Step, const Zel16sc* pSrc2, int src2Step, Zel16sc* pDst,
    int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliDiv_16sc_C3IRSfs(
    const Zel16sc* pSrc, int srcStep, Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliDiv_16sc_AC4RSfs(
    const Zel16sc* pSrc1, int src1Step, const Zel16sc* pSrc2, int src2Step, Zel16sc* pDst,
    int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliDiv_16sc_AC4IRSfs(
    const Zel16sc* pSrc, int srcStep, Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliDiv_32sc_C1RSfs(
    const Zel32sc* pSrc1, int src1Step, const Zel32sc* pSrc2, int src2Step, Zel32sc* pDst,
    int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliDiv_32sc_C1IRSfs(
    const Zel32sc* pSrc, int srcStep, Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliDiv_32sc_C3RSfs(
    const Zel32sc* pSrc1, int src1Step, const Zel32sc* pSrc2, int src2Step, Zel32sc* pDst,
    int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliDiv_32sc_C3IRSfs(
    const Zel32sc* pSrc, int srcStep, Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliDiv_32sc_AC4RSfs(
    const Zel32sc* pSrc1, int src1Step, const Zel32sc* pSrc2, int src2Step, Zel32sc* pDst,
    int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliDiv_32sc_AC4IRSfs(
    const Zel32sc* pSrc, int srcStep, Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliDiv_32f_C1R(
    const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel32f* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliDiv_32f_C1IR(
    const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliDiv_32f_C3R(
    const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel32f* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliDiv_32f_C3IR(
    const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliDiv_32f_C4R(
    const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel32f* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliDiv_32f_C4IR(
    const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliDiv_32f_AC4R(
    const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel32f* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliDiv_32f_AC4IR(
    const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliDiv_32fc_C1R(
    const Zel32fc* pSrc1, int src1Step, const Zel32fc* pSrc2, int src2Step, Zel32fc* pDst,
    int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliDiv_32fc_C1IR(
    const Zel32fc* pSrc, int srcStep, Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliDiv_32fc_C3R(
    const Zel32fc* pSrc1, int src1Step, const Zel32fc* pSrc2, int src2Step, Zel32fc* pDst,
    int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliDiv_32fc_C3IR(
    const Zel32fc* pSrc, int srcStep, Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliDiv_32fc_AC4R(
    const Zel32fc* pSrc1, int src1Step, const Zel32fc* pSrc2, int src2Step, Zel32fc* pDst,
    int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliDiv_32fc_AC4IR(
    const Zel32fc* pSrc, int srcStep, Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliDiv_Round_8u_C1RSfs(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep,
    ZeliSize roiSize, ZelRoundMode rndMode, int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_8u_C1IRSfs(
    const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize,
    ZelRoundMode rndMode, int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_8u_C3RSfs(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep,
    ZeliSize roiSize, ZelRoundMode rndMode, int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_8u_C3IRSfs(
    const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize,
    ZelRoundMode rndMode, int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_8u_C4RSfs(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep,
    ZeliSize roiSize, ZelRoundMode rndMode, int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_8u_C4IRSfs(
    const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize,
    ZelRoundMode rndMode, int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_8u_AC4RSfs(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep,
    ZeliSize roiSize, ZelRoundMode rndMode, int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_8u_AC4IRSfs(
    const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize,
    ZelRoundMode rndMode, int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_16u_C1RSfs(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep,
    ZeliSize roiSize, ZelRoundMode rndMode, int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_16u_C1IRSfs(
    const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize,
    ZelRoundMode rndMode, int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_16u_C3RSfs(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep,
    ZeliSize roiSize, ZelRoundMode rndMode, int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_16u_C3IRSfs(
    const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize,
    ZelRoundMode rndMode, int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_16u_C4RSfs(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep,
    ZeliSize roiSize, ZelRoundMode rndMode, int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_16u_C4IRSfs(
    const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize,
    ZelRoundMode rndMode, int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_16u_AC4RSfs(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep,
    ZeliSize roiSize, ZelRoundMode rndMode, int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_16u_AC4IRSfs(
    const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize,
    ZelRoundMode rndMode, int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_16s_C1RSfs(
    const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, Zel16s* pDst, int dstStep,
    ZeliSize roiSize, ZelRoundMode rndMode, int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_16s_C1IRSfs(
    const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize,
    ZelRoundMode rndMode, int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_16s_C3RSfs(
    const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, Zel16s* pDst, int dstStep,
    ZeliSize roiSize, ZelRoundMode rndMode, int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_16s_C3IRSfs(
    const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize,
    ZelRoundMode rndMode, int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_16s_C4RSfs(
    const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, Zel16s* pDst, int dstStep,
    ZeliSize roiSize, ZelRoundMode rndMode, int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_16s_C4IRSfs(
    const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize,
    ZelRoundMode rndMode, int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_16s_AC4RSfs(
    const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, Zel16s* pDst, int dstStep,
    ZeliSize roiSize, ZelRoundMode rndMode, int scaleFactor);
ZELAPI ZelStatus zeliDiv_Round_16s_AC4IRSfs(
    const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize,
    ZelRoundMode rndMode, int scaleFactor);

/* zeliDivC */
ZELAPI ZelStatus zeliDivC_8u_C1RSfs(
    const Zel8u* pSrc, int srcStep, Zel8u value, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliDivC_8u_C1IRSfs(
    Zel8u value, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliDivC_8u_C3RSfs(
    const Zel8u* pSrc, int srcStep, const Zel8u* value, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliDivC_8u_C3IRSfs(
    const Zel8u* value, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliDivC_8u_C4RSfs(
    const Zel8u* pSrc, int srcStep, const Zel8u* value, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliDivC_8u_C4IRSfs(
    const Zel8u* value, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliDivC_8u_AC4RSfs(
    const Zel8u* pSrc, int srcStep, const Zel8u* value, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliDivC_8u_AC4IRSfs(
    const Zel8u* value, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16u_C1RSfs(
    const Zel16u* pSrc, int srcStep, Zel16u value, Zel16u* pDst, int dstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliDivC_16u_C1IRSfs(
    Zel16u value, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16u_C3RSfs(
    const Zel16u* pSrc, int srcStep, const Zel16u* value, Zel16u* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16u_C3IRSfs(
    const Zel16u* value, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16u_C4RSfs(
    const Zel16u* pSrc, int srcStep, const Zel16u* value, Zel16u* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16u_C4IRSfs(
    const Zel16u* value, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16u_AC4RSfs(
    const Zel16u* pSrc, int srcStep, const Zel16u* value, Zel16u* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16u_AC4IRSfs(
    const Zel16u* value, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16s_C1RSfs(
    const Zel16s* pSrc, int srcStep, Zel16s value, Zel16s* pDst, int dstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliDivC_16s_C1IRSfs(
    Zel16s value, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16s_C3RSfs(
    const Zel16s* pSrc, int srcStep, const Zel16s* value, Zel16s* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16s_C3IRSfs(
    const Zel16s* value, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16s_C4RSfs(
    const Zel16s* pSrc, int srcStep, const Zel16s* value, Zel16s* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16s_C4IRSfs(
    const Zel16s* value, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16s_AC4RSfs(
    const Zel16s* pSrc, int srcStep, const Zel16s* value, Zel16s* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16s_AC4IRSfs(
    const Zel16s* value, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16sc_C1RSfs(
    const Zel16sc* pSrc, int srcStep, Zel16sc value, Zel16sc* pDst, int dstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliDivC_16sc_C1IRSfs(
    Zel16sc value, Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16sc_C3RSfs(
    const Zel16sc* pSrc, int srcStep, const Zel16sc* value, Zel16sc* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16sc_C3IRSfs(
    const Zel16sc* value, Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16sc_AC4RSfs(
    const Zel16sc* pSrc, int srcStep, const Zel16sc* value, Zel16sc* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliDivC_16sc_AC4IRSfs(
    const Zel16sc* value, Zel16sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliDivC_32sc_C1RSfs(
    const Zel32sc* pSrc, int srcStep, Zel32sc value, Zel32sc* pDst, int dstStep, ZeliSize roiSize,
    int scaleFactor);
ZELAPI ZelStatus zeliDivC_32sc_C1IRSfs(
    Zel32sc value, Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliDivC_32sc_C3RSfs(
    const Zel32sc* pSrc, int srcStep, const Zel32sc* value, Zel32sc* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliDivC_32sc_C3IRSfs(
    const Zel32sc* value, Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliDivC_32sc_AC4RSfs(
    const Zel32sc* pSrc, int srcStep, const Zel32sc* value, Zel32sc* pDst, int dstStep,
    ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliDivC_32sc_AC4IRSfs(
    const Zel32sc* value, Zel32sc* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliDivC_32f_C1R(
    const Zel32f* pSrc, int srcStep, Zel32f value, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliDivC_32f_C1IR(Zel32f value, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliDivC_32f_C3R(
    const Zel32f* pSrc, int srcStep, const Zel32f* value, Zel32f* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliDivC_32f_C3IR(
    const Zel32f* value, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliDivC_32f_C4R(
    const Zel32f* pSrc, int srcStep, const Zel32f* value, Zel32f* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliDivC_32f_C4IR(
    const Zel32f* value, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliDivC_32f_AC4R(
    const Zel32f* pSrc, int srcStep, const Zel32f* value, Zel32f* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliDivC_32f_AC4IR(
    const Zel32f* value, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliDivC_32fc_C1R(
    const Zel32fc* pSrc, int srcStep, Zel32fc value, Zel32fc* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliDivC_32fc_C1IR(
    Zel32fc value, Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliDivC_32fc_C3R(
    const Zel32fc* pSrc, int srcStep, const Zel32fc* value, Zel32fc* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliDivC_32fc_C3IR(
    const Zel32fc* value, Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliDivC_32fc_AC4R(
    const Zel32fc* pSrc, int srcStep, const Zel32fc* value, Zel32fc* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliDivC_32fc_AC4IR(
    const Zel32fc* value, Zel32fc* pSrcDst, int srcDstStep, ZeliSize roiSize);

/* ==== Sample type conversion and range scaling ==========================

   zeliConvert keeps the value: widening exactly, narrowing with saturation,
   signed to unsigned with negatives to 0 (Rs), float to integer with a round
   mode (0 towards zero, 1 nearest, other: ties away from zero), Sfs forms
   scaled by 2^-scaleFactor, and bits to bytes.
   zeliScale keeps the position in the range: full range of one type onto the
   full range of another, or [vMin, vMax] onto or from the 8u range.

   Checks: zelStatusNullPointer, zelStatusBadSize, zelStatusBadStep (not in the
   Rs forms); zeliScale tests zelStatusBadScaleRange first of all. The round
   mode is not checked: any value other than 0 and 1 rounds ties away from zero.

   Example:
       Zel32f f[4] = {0.5f, 1.5f, -3.0f, 300.0f};
       Zel8u u[4];
       ZeliSize roi = {4, 1};
       // to nearest, ties to even, saturated: 0, 2, 0, 255
       ZelStatus st = zeliConvert_32f8u_C1R(f, 16, u, 4, roi, zelRoundNear); */

/* zeliConvert */
ZELAPI ZelStatus zeliConvert_8u16s_C1R(
    const Zel8u* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_8u16s_C3R(
    const Zel8u* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_8u16s_C4R(
    const Zel8u* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_8u16s_AC4R(
    const Zel8u* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_8u16u_C1R(
    const Zel8u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_8u16u_C3R(
    const Zel8u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_8u16u_C4R(
    const Zel8u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_8u16u_AC4R(
    const Zel8u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_8u32f_C1R(
    const Zel8u* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_8u32f_C3R(
    const Zel8u* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_8u32f_C4R(
    const Zel8u* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_8u32f_AC4R(
    const Zel8u* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_8u32s_C1R(
    const Zel8u* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_8u32s_C3R(
    const Zel8u* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_8u32s_C4R(
    const Zel8u* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_8u32s_AC4R(
    const Zel8u* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_8s32f_C1R(
    const Zel8s* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_8s32f_C3R(
    const Zel8s* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_8s32f_C4R(
    const Zel8s* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_8s32f_AC4R(
    const Zel8s* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_8s32s_C1R(
    const Zel8s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_8s32s_C3R(
    const Zel8s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_8s32s_C4R(
    const Zel8s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_8s32s_AC4R(
    const Zel8s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_16s8u_C1R(
    const Zel16s* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_16s8u_C3R(
    const Zel16s* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_16s8u_C4R(
    const Zel16s* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_16s8u_AC4R(
    const Zel16s* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_16s32f_C1R(
    const Zel16s* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_16s32f_C3R(
    const Zel16s* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_16s32f_C4R(
    const Zel16s* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_16s32f_AC4R(
    const Zel16s* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_16s32s_C1R(
    const Zel16s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_16s32s_C3R(
    const Zel16s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_16s32s_C4R(
    const Zel16s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_16s32s_AC4R(
    const Zel16s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_16u8u_C1R(
    const Zel16u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_16u8u_C3R(
    const Zel16u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_16u8u_C4R(
    const Zel16u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_16u8u_AC4R(
    const Zel16u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_16u32f_C1R(
    const Zel16u* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_16u32f_C3R(
    const Zel16u* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_16u32f_C4R(
    const Zel16u* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_16u32f_AC4R(
    const Zel16u* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_16u32s_C1R(
    const Zel16u* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_16u32s_C3R(
    const Zel16u* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_16u32s_C4R(
    const Zel16u* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_16u32s_AC4R(
    const Zel16u* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_32s8s_C1R(
    const Zel32s* pSrc, int srcStep, Zel8s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_32s8s_C3R(
    const Zel32s* pSrc, int srcStep, Zel8s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_32s8s_C4R(
    const Zel32s* pSrc, int srcStep, Zel8s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_32s8s_AC4R(
    const Zel32s* pSrc, int srcStep, Zel8s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_32s8u_C1R(
    const Zel32s* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_32s8u_C3R(
    const Zel32s* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_32s8u_C4R(
    const Zel32s* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_32s8u_AC4R(
    const Zel32s* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_32f8s_C1R(
    const Zel32f* pSrc, int srcStep, Zel8s* pDst, int dstStep, ZeliSize roiSize,
    ZelRoundMode roundMode);
ZELAPI ZelStatus zeliConvert_32f8s_C3R(
    const Zel32f* pSrc, int srcStep, Zel8s* pDst, int dstStep, ZeliSize roiSize,
    ZelRoundMode roundMode);
ZELAPI ZelStatus zeliConvert_32f8s_C4R(
    const Zel32f* pSrc, int srcStep, Zel8s* pDst, int dstStep, ZeliSize roiSize,
    ZelRoundMode roundMode);
ZELAPI ZelStatus zeliConvert_32f8s_AC4R(
    const Zel32f* pSrc, int srcStep, Zel8s* pDst, int dstStep, ZeliSize roiSize,
    ZelRoundMode roundMode);
ZELAPI ZelStatus zeliConvert_32f8s_C1RSfs(
    const Zel32f* pSrc, int srcStep, Zel8s* pDst, int dstStep, ZeliSize roiSize,
    ZelRoundMode roundMode, int scaleFactor);
ZELAPI ZelStatus zeliConvert_32f8u_C1R(
    const Zel32f* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    ZelRoundMode roundMode);
ZELAPI ZelStatus zeliConvert_32f8u_C3R(
    const Zel32f* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    ZelRoundMode roundMode);
ZELAPI ZelStatus zeliConvert_32f8u_C4R(
    const Zel32f* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    ZelRoundMode roundMode);
ZELAPI ZelStatus zeliConvert_32f8u_AC4R(
    const Zel32f* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    ZelRoundMode roundMode);
ZELAPI ZelStatus zeliConvert_32f8u_C1RSfs(
    const Zel32f* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    ZelRoundMode roundMode, int scaleFactor);
ZELAPI ZelStatus zeliConvert_32f16s_C1R(
    const Zel32f* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize,
    ZelRoundMode roundMode);
ZELAPI ZelStatus zeliConvert_32f16s_C3R(
    const Zel32f* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize,
    ZelRoundMode roundMode);
ZELAPI ZelStatus zeliConvert_32f16s_C4R(
    const Zel32f* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize,
    ZelRoundMode roundMode);
ZELAPI ZelStatus zeliConvert_32f16s_AC4R(
    const Zel32f* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize,
    ZelRoundMode roundMode);
ZELAPI ZelStatus zeliConvert_32f16s_C1RSfs(
    const Zel32f* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize,
    ZelRoundMode roundMode, int scaleFactor);
ZELAPI ZelStatus zeliConvert_32f16u_C1R(
    const Zel32f* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize,
    ZelRoundMode roundMode);
ZELAPI ZelStatus zeliConvert_32f16u_C3R(
    const Zel32f* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize,
    ZelRoundMode roundMode);
ZELAPI ZelStatus zeliConvert_32f16u_C4R(
    const Zel32f* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize,
    ZelRoundMode roundMode);
ZELAPI ZelStatus zeliConvert_32f16u_AC4R(
    const Zel32f* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize,
    ZelRoundMode roundMode);
ZELAPI ZelStatus zeliConvert_32f16u_C1RSfs(
    const Zel32f* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize,
    ZelRoundMode roundMode, int scaleFactor);
ZELAPI ZelStatus zeliConvert_8u8s_C1RSfs(
    const Zel8u* pSrc, int srcStep, Zel8s* pDst, int dstStep, ZeliSize roiSize,
    ZelRoundMode roundMode, int scaleFactor);
ZELAPI ZelStatus zeliConvert_16s8s_C1RSfs(
    const Zel16s* pSrc, int srcStep, Zel8s* pDst, int dstStep, ZeliSize roiSize,
    ZelRoundMode roundMode, int scaleFactor);
ZELAPI ZelStatus zeliConvert_16u8s_C1RSfs(
    const Zel16u* pSrc, int srcStep, Zel8s* pDst, int dstStep, ZeliSize roiSize,
    ZelRoundMode roundMode, int scaleFactor);
ZELAPI ZelStatus zeliConvert_16u16s_C1RSfs(
    const Zel16u* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize,
    ZelRoundMode roundMode, int scaleFactor);
ZELAPI ZelStatus zeliConvert_32f32s_C1RSfs(
    const Zel32f* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roiSize,
    ZelRoundMode roundMode, int scaleFactor);
ZELAPI ZelStatus zeliConvert_32s16s_C1RSfs(
    const Zel32s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize,
    ZelRoundMode roundMode, int scaleFactor);
ZELAPI ZelStatus zeliConvert_32s16u_C1RSfs(
    const Zel32s* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize,
    ZelRoundMode roundMode, int scaleFactor);
ZELAPI ZelStatus zeliConvert_32u8s_C1RSfs(
    const Zel32u* pSrc, int srcStep, Zel8s* pDst, int dstStep, ZeliSize roiSize,
    ZelRoundMode roundMode, int scaleFactor);
ZELAPI ZelStatus zeliConvert_32u8u_C1RSfs(
    const Zel32u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    ZelRoundMode roundMode, int scaleFactor);
ZELAPI ZelStatus zeliConvert_32u16s_C1RSfs(
    const Zel32u* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize,
    ZelRoundMode roundMode, int scaleFactor);
ZELAPI ZelStatus zeliConvert_32u16u_C1RSfs(
    const Zel32u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize,
    ZelRoundMode roundMode, int scaleFactor);
ZELAPI ZelStatus zeliConvert_32u32s_C1RSfs(
    const Zel32u* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roiSize,
    ZelRoundMode roundMode, int scaleFactor);
ZELAPI ZelStatus zeliConvert_8s16s_C1R(
    const Zel8s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_16u32u_C1R(
    const Zel16u* pSrc, int srcStep, Zel32u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_32s32f_C1R(
    const Zel32s* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_32u32f_C1R(
    const Zel32u* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_1u8u_C1R(
    const Zel8u* pSrc, int srcStep, int srcBitOffset, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_8s8u_C1Rs(
    const Zel8s* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_8s16u_C1Rs(
    const Zel8s* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_8s32u_C1Rs(
    const Zel8s* pSrc, int srcStep, Zel32u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_16s16u_C1Rs(
    const Zel16s* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_16s32u_C1Rs(
    const Zel16s* pSrc, int srcStep, Zel32u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_32s32u_C1Rs(
    const Zel32s* pSrc, int srcStep, Zel32u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliConvert_32f32u_C1RSfs(
    const Zel32f* pSrc, int srcStep, Zel32u* pDst, int dstStep, ZeliSize roiSize,
    ZelRoundMode roundMode, int scaleFactor);
ZELAPI ZelStatus zeliConvert_32f32u_C1IRSfs(
    Zel32u* pSrcDst, int srcDstStep, ZeliSize roiSize, ZelRoundMode roundMode, int scaleFactor);

/* zeliScale */
ZELAPI ZelStatus zeliScale_8u16s_C1R(
    const Zel8u* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliScale_8u16s_C3R(
    const Zel8u* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliScale_8u16s_C4R(
    const Zel8u* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliScale_8u16s_AC4R(
    const Zel8u* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliScale_8u16u_C1R(
    const Zel8u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliScale_8u16u_C3R(
    const Zel8u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliScale_8u16u_C4R(
    const Zel8u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliScale_8u16u_AC4R(
    const Zel8u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliScale_8u32s_C1R(
    const Zel8u* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliScale_8u32s_C3R(
    const Zel8u* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliScale_8u32s_C4R(
    const Zel8u* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliScale_8u32s_AC4R(
    const Zel8u* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliScale_16s8u_C1R(
    const Zel16s* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    ZelHintAlgorithm hint);
ZELAPI ZelStatus zeliScale_16s8u_C3R(
    const Zel16s* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    ZelHintAlgorithm hint);
ZELAPI ZelStatus zeliScale_16s8u_C4R(
    const Zel16s* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    ZelHintAlgorithm hint);
ZELAPI ZelStatus zeliScale_16s8u_AC4R(
    const Zel16s* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    ZelHintAlgorithm hint);
ZELAPI ZelStatus zeliScale_16u8u_C1R(
    const Zel16u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    ZelHintAlgorithm hint);
ZELAPI ZelStatus zeliScale_16u8u_C3R(
    const Zel16u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    ZelHintAlgorithm hint);
ZELAPI ZelStatus zeliScale_16u8u_C4R(
    const Zel16u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    ZelHintAlgorithm hint);
ZELAPI ZelStatus zeliScale_16u8u_AC4R(
    const Zel16u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    ZelHintAlgorithm hint);
ZELAPI ZelStatus zeliScale_32s8u_C1R(
    const Zel32s* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    ZelHintAlgorithm hint);
ZELAPI ZelStatus zeliScale_32s8u_C3R(
    const Zel32s* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    ZelHintAlgorithm hint);
ZELAPI ZelStatus zeliScale_32s8u_C4R(
    const Zel32s* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    ZelHintAlgorithm hint);
ZELAPI ZelStatus zeliScale_32s8u_AC4R(
    const Zel32s* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    ZelHintAlgorithm hint);
ZELAPI ZelStatus zeliScale_8u32f_C1R(
    const Zel8u* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize, Zel32f vMin,
    Zel32f vMax);
ZELAPI ZelStatus zeliScale_8u32f_C3R(
    const Zel8u* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize, Zel32f vMin,
    Zel32f vMax);
ZELAPI ZelStatus zeliScale_8u32f_C4R(
    const Zel8u* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize, Zel32f vMin,
    Zel32f vMax);
ZELAPI ZelStatus zeliScale_8u32f_AC4R(
    const Zel8u* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize, Zel32f vMin,
    Zel32f vMax);
ZELAPI ZelStatus zeliScale_32f8u_C1R(
    const Zel32f* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, Zel32f vMin,
    Zel32f vMax);
ZELAPI ZelStatus zeliScale_32f8u_C3R(
    const Zel32f* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, Zel32f vMin,
    Zel32f vMax);
ZELAPI ZelStatus zeliScale_32f8u_C4R(
    const Zel32f* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, Zel32f vMin,
    Zel32f vMax);
ZELAPI ZelStatus zeliScale_32f8u_AC4R(
    const Zel32f* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, Zel32f vMin,
    Zel32f vMax);

/* ==== Border copies =====================================================

   The source of srcRoiSize is placed at (leftBorderWidth,
   topBorderHeight) in a destination of dstRoiSize, and the frame around it
   is filled with a constant (ConstBorder), the nearest edge pixel
   (ReplicateBorder) or the image repeated cyclically (WrapBorder). In the I
   forms pSrcDst points at the first source pixel inside the destination and
   only the frame is written. AC4 leaves every destination alpha alone.

   Checks: zelStatusNullPointer, zelStatusBadStep, then zelStatusBadSize (also
   for a destination smaller than the source plus the borders, or a negative
   border).

   Example:
       Zel8u src[2 * 2] = {1, 2, 3, 4};
       Zel8u dst[4 * 4];
       ZeliSize srcRoi = {2, 2}, dstRoi = {4, 4};
       // a frame of zeros, one pixel wide, around the 2x2 image
       ZelStatus st = zeliCopyConstBorder_8u_C1R(src, 2, srcRoi, dst, 4, dstRoi, 1, 1, 0); */

/* zeliCopyConstBorder */
ZELAPI ZelStatus zeliCopyConstBorder_8u_C1R(
    const Zel8u* pSrc, int srcStep, ZeliSize srcRoiSize, Zel8u* pDst, int dstStep,
    ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Zel8u value);
ZELAPI ZelStatus zeliCopyConstBorder_8u_C3R(
    const Zel8u* pSrc, int srcStep, ZeliSize srcRoiSize, Zel8u* pDst, int dstStep,
    ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Zel8u* value);
ZELAPI ZelStatus zeliCopyConstBorder_8u_C4R(
    const Zel8u* pSrc, int srcStep, ZeliSize srcRoiSize, Zel8u* pDst, int dstStep,
    ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Zel8u* value);
ZELAPI ZelStatus zeliCopyConstBorder_8u_AC4R(
    const Zel8u* pSrc, int srcStep, ZeliSize srcRoiSize, Zel8u* pDst, int dstStep,
    ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Zel8u* value);
ZELAPI ZelStatus zeliCopyConstBorder_16s_C1R(
    const Zel16s* pSrc, int srcStep, ZeliSize srcRoiSize, Zel16s* pDst, int dstStep,
    ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Zel16s value);
ZELAPI ZelStatus zeliCopyConstBorder_16s_C3R(
    const Zel16s* pSrc, int srcStep, ZeliSize srcRoiSize, Zel16s* pDst, int dstStep,
    ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Zel16s* value);
ZELAPI ZelStatus zeliCopyConstBorder_16s_C4R(
    const Zel16s* pSrc, int srcStep, ZeliSize srcRoiSize, Zel16s* pDst, int dstStep,
    ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Zel16s* value);
ZELAPI ZelStatus zeliCopyConstBorder_16s_AC4R(
    const Zel16s* pSrc, int srcStep, ZeliSize srcRoiSize, Zel16s* pDst, int dstStep,
    ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Zel16s* value);
ZELAPI ZelStatus zeliCopyConstBorder_16u_C1R(
    const Zel16u* pSrc, int srcStep, ZeliSize srcRoiSize, Zel16u* pDst, int dstStep,
    ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Zel16u value);
ZELAPI ZelStatus zeliCopyConstBorder_16u_C3R(
    const Zel16u* pSrc, int srcStep, ZeliSize srcRoiSize, Zel16u* pDst, int dstStep,
    ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Zel16u* value);
ZELAPI ZelStatus zeliCopyConstBorder_16u_C4R(
    const Zel16u* pSrc, int srcStep, ZeliSize srcRoiSize, Zel16u* pDst, int dstStep,
    ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Zel16u* value);
ZELAPI ZelStatus zeliCopyConstBorder_16u_AC4R(
    const Zel16u* pSrc, int srcStep, ZeliSize srcRoiSize, Zel16u* pDst, int dstStep,
    ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Zel16u* value);
ZELAPI ZelStatus zeliCopyConstBorder_32f_C1R(
    const Zel32f* pSrc, int srcStep, ZeliSize srcRoiSize, Zel32f* pDst, int dstStep,
    ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Zel32f value);
ZELAPI ZelStatus zeliCopyConstBorder_32f_C3R(
    const Zel32f* pSrc, int srcStep, ZeliSize srcRoiSize, Zel32f* pDst, int dstStep,
    ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Zel32f* value);
ZELAPI ZelStatus zeliCopyConstBorder_32f_C4R(
    const Zel32f* pSrc, int srcStep, ZeliSize srcRoiSize, Zel32f* pDst, int dstStep,
    ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Zel32f* value);
ZELAPI ZelStatus zeliCopyConstBorder_32f_AC4R(
    const Zel32f* pSrc, int srcStep, ZeliSize srcRoiSize, Zel32f* pDst, int dstStep,
    ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Zel32f* value);
ZELAPI ZelStatus zeliCopyConstBorder_32s_C1R(
    const Zel32s* pSrc, int srcStep, ZeliSize srcRoiSize, Zel32s* pDst, int dstStep,
    ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Zel32s value);
ZELAPI ZelStatus zeliCopyConstBorder_32s_C3R(
    const Zel32s* pSrc, int srcStep, ZeliSize srcRoiSize, Zel32s* pDst, int dstStep,
    ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Zel32s* value);
ZELAPI ZelStatus zeliCopyConstBorder_32s_C4R(
    const Zel32s* pSrc, int srcStep, ZeliSize srcRoiSize, Zel32s* pDst, int dstStep,
    ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Zel32s* value);
ZELAPI ZelStatus zeliCopyConstBorder_32s_AC4R(
    const Zel32s* pSrc, int srcStep, ZeliSize srcRoiSize, Zel32s* pDst, int dstStep,
    ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Zel32s* value);

/* zeliCopyReplicateBorder */
ZELAPI ZelStatus zeliCopyReplicateBorder_8u_C1R(
    const Zel8u* pSrc, int srcStep, ZeliSize srcRoiSize, Zel8u* pDst, int dstStep,
    ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_8u_C1IR(
    Zel8u* pSrcDst, int srcDstStep, ZeliSize srcRoiSize, ZeliSize dstRoiSize, int topBorderHeight,
    int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_8u_C3R(
    const Zel8u* pSrc, int srcStep, ZeliSize srcRoiSize, Zel8u* pDst, int dstStep,
    ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_8u_C3IR(
    Zel8u* pSrcDst, int srcDstStep, ZeliSize srcRoiSize, ZeliSize dstRoiSize, int topBorderHeight,
    int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_8u_C4R(
    const Zel8u* pSrc, int srcStep, ZeliSize srcRoiSize, Zel8u* pDst, int dstStep,
    ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_8u_C4IR(
    Zel8u* pSrcDst, int srcDstStep, ZeliSize srcRoiSize, ZeliSize dstRoiSize, int topBorderHeight,
    int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_8u_AC4R(
    const Zel8u* pSrc, int srcStep, ZeliSize srcRoiSize, Zel8u* pDst, int dstStep,
    ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_8u_AC4IR(
    Zel8u* pSrcDst, int srcDstStep, ZeliSize srcRoiSize, ZeliSize dstRoiSize, int topBorderHeight,
    int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_16s_C1R(
    const Zel16s* pSrc, int srcStep, ZeliSize srcRoiSize, Zel16s* pDst, int dstStep,
    ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_16s_C1IR(
    Zel16s* pSrcDst, int srcDstStep, ZeliSize srcRoiSize, ZeliSize dstRoiSize, int topBorderHeight,
    int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_16s_C3R(
    const Zel16s* pSrc, int srcStep, ZeliSize srcRoiSize, Zel16s* pDst, int dstStep,
    ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_16s_C3IR(
    Zel16s* pSrcDst, int srcDstStep, ZeliSize srcRoiSize, ZeliSize dstRoiSize, int topBorderHeight,
    int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_16s_C4R(
    const Zel16s* pSrc, int srcStep, ZeliSize srcRoiSize, Zel16s* pDst, int dstStep,
    ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_16s_C4IR(
    Zel16s* pSrcDst, int srcDstStep, ZeliSize srcRoiSize, ZeliSize dstRoiSize, int topBorderHeight,
    int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_16s_AC4R(
    const Zel16s* pSrc, int srcStep, ZeliSize srcRoiSize, Zel16s* pDst, int dstStep,
    ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_16s_AC4IR(
    Zel16s* pSrcDst, int srcDstStep, ZeliSize srcRoiSize, ZeliSize dstRoiSize, int topBorderHeight,
    int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_16u_C1R(
    const Zel16u* pSrc, int srcStep, ZeliSize srcRoiSize, Zel16u* pDst, int dstStep,
    ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_16u_C1IR(
    Zel16u* pSrcDst, int srcDstStep, ZeliSize srcRoiSize, ZeliSize dstRoiSize, int topBorderHeight,
    int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_16u_C3R(
    const Zel16u* pSrc, int srcStep, ZeliSize srcRoiSize, Zel16u* pDst, int dstStep,
    ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_16u_C3IR(
    Zel16u* pSrcDst, int srcDstStep, ZeliSize srcRoiSize, ZeliSize dstRoiSize, int topBorderHeight,
    int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_16u_C4R(
    const Zel16u* pSrc, int srcStep, ZeliSize srcRoiSize, Zel16u* pDst, int dstStep,
    ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_16u_C4IR(
    Zel16u* pSrcDst, int srcDstStep, ZeliSize srcRoiSize, ZeliSize dstRoiSize, int topBorderHeight,
    int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_16u_AC4R(
    const Zel16u* pSrc, int srcStep, ZeliSize srcRoiSize, Zel16u* pDst, int dstStep,
    ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_16u_AC4IR(
    Zel16u* pSrcDst, int srcDstStep, ZeliSize srcRoiSize, ZeliSize dstRoiSize, int topBorderHeight,
    int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_32f_C1R(
    const Zel32f* pSrc, int srcStep, ZeliSize srcRoiSize, Zel32f* pDst, int dstStep,
    ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_32f_C1IR(
    Zel32f* pSrcDst, int srcDstStep, ZeliSize srcRoiSize, ZeliSize dstRoiSize, int topBorderHeight,
    int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_32f_C3R(
    const Zel32f* pSrc, int srcStep, ZeliSize srcRoiSize, Zel32f* pDst, int dstStep,
    ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_32f_C3IR(
    Zel32f* pSrcDst, int srcDstStep, ZeliSize srcRoiSize, ZeliSize dstRoiSize, int topBorderHeight,
    int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_32f_C4R(
    const Zel32f* pSrc, int srcStep, ZeliSize srcRoiSize, Zel32f* pDst, int dstStep,
    ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_32f_C4IR(
    Zel32f* pSrcDst, int srcDstStep, ZeliSize srcRoiSize, ZeliSize dstRoiSize, int topBorderHeight,
    int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_32f_AC4R(
    const Zel32f* pSrc, int srcStep, ZeliSize srcRoiSize, Zel32f* pDst, int dstStep,
    ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_32f_AC4IR(
    Zel32f* pSrcDst, int srcDstStep, ZeliSize srcRoiSize, ZeliSize dstRoiSize, int topBorderHeight,
    int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_32s_C1R(
    const Zel32s* pSrc, int srcStep, ZeliSize srcRoiSize, Zel32s* pDst, int dstStep,
    ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_32s_C1IR(
    Zel32s* pSrcDst, int srcDstStep, ZeliSize srcRoiSize, ZeliSize dstRoiSize, int topBorderHeight,
    int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_32s_C3R(
    const Zel32s* pSrc, int srcStep, ZeliSize srcRoiSize, Zel32s* pDst, int dstStep,
    ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_32s_C3IR(
    Zel32s* pSrcDst, int srcDstStep, ZeliSize srcRoiSize, ZeliSize dstRoiSize, int topBorderHeight,
    int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_32s_C4R(
    const Zel32s* pSrc, int srcStep, ZeliSize srcRoiSize, Zel32s* pDst, int dstStep,
    ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_32s_C4IR(
    Zel32s* pSrcDst, int srcDstStep, ZeliSize srcRoiSize, ZeliSize dstRoiSize, int topBorderHeight,
    int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_32s_AC4R(
    const Zel32s* pSrc, int srcStep, ZeliSize srcRoiSize, Zel32s* pDst, int dstStep,
    ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
ZELAPI ZelStatus zeliCopyReplicateBorder_32s_AC4IR(
    Zel32s* pSrcDst, int srcDstStep, ZeliSize srcRoiSize, ZeliSize dstRoiSize, int topBorderHeight,
    int leftBorderWidth);

/* zeliCopyWrapBorder */
ZELAPI ZelStatus zeliCopyWrapBorder_32f_C1R(
    const Zel32f* pSrc, int srcStep, ZeliSize srcRoiSize, Zel32f* pDst, int dstStep,
    ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
ZELAPI ZelStatus zeliCopyWrapBorder_32f_C1IR(
    Zel32f* pSrcDst, int srcDstStep, ZeliSize srcRoiSize, ZeliSize dstRoiSize, int topBorderHeight,
    int leftBorderWidth);
ZELAPI ZelStatus zeliCopyWrapBorder_32s_C1R(
    const Zel32s* pSrc, int srcStep, ZeliSize srcRoiSize, Zel32s* pDst, int dstStep,
    ZeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
ZELAPI ZelStatus zeliCopyWrapBorder_32s_C1IR(
    Zel32s* pSrcDst, int srcDstStep, ZeliSize srcRoiSize, ZeliSize dstRoiSize, int topBorderHeight,
    int leftBorderWidth);

/* ==== Reordering ========================================================

   zeliSwapChannels: dst channel c = src channel dstOrder[c] (C3C4R: an entry 3
   writes val, a larger single entry keeps the destination channel).
   zeliTranspose: dst(y, x) = src(x, y); roiSize is the source size.
   zeliMirror: flip about the horizontal axis (0), the vertical axis (1) or both (2).

   Checks: zelStatusNullPointer, zelStatusBadSize, then zelStatusBadStep and
   zelStatusBadChannelOrder (zeliSwapChannels) or zelStatusBadAxis (zeliMirror:
   -8, -6, -21, and an axis that flips a single row or column is a bad size).
   zeliTranspose checks no step; its in-place forms need a square region.

   Example:
       Zel8u rgb[2 * 3] = {1, 2, 3, 4, 5, 6}, bgr[2 * 3];
       const int order[3] = {2, 1, 0};
       ZeliSize roi = {2, 1};
       // bgr = 3, 2, 1, 6, 5, 4, then mirrored left to right: 6, 5, 4, 3, 2, 1
       ZelStatus st = zeliSwapChannels_8u_C3R(rgb, 6, bgr, 6, roi, order);
       if (st == zelStatusOk) st = zeliMirror_8u_C3IR(bgr, 6, roi, zelAxisVertical); */

/* zeliSwapChannels */
ZELAPI ZelStatus zeliSwapChannels_8u_C3R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    const int dstOrder[3]);
ZELAPI ZelStatus zeliSwapChannels_8u_AC4R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    const int dstOrder[3]);
ZELAPI ZelStatus zeliSwapChannels_8u_C3C4R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    const int dstOrder[4], Zel8u val);
ZELAPI ZelStatus zeliSwapChannels_8u_C4C3R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    const int dstOrder[3]);
ZELAPI ZelStatus zeliSwapChannels_16u_C3R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize,
    const int dstOrder[3]);
ZELAPI ZelStatus zeliSwapChannels_16u_AC4R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize,
    const int dstOrder[3]);
ZELAPI ZelStatus zeliSwapChannels_16u_C3C4R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize,
    const int dstOrder[4], Zel16u val);
ZELAPI ZelStatus zeliSwapChannels_16u_C4C3R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize,
    const int dstOrder[3]);
ZELAPI ZelStatus zeliSwapChannels_16s_C3R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize,
    const int dstOrder[3]);
ZELAPI ZelStatus zeliSwapChannels_16s_AC4R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize,
    const int dstOrder[3]);
ZELAPI ZelStatus zeliSwapChannels_16s_C3C4R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize,
    const int dstOrder[4], Zel16s val);
ZELAPI ZelStatus zeliSwapChannels_16s_C4C3R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize,
    const int dstOrder[3]);
ZELAPI ZelStatus zeliSwapChannels_32s_C3R(
    const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roiSize,
    const int dstOrder[3]);
ZELAPI ZelStatus zeliSwapChannels_32s_AC4R(
    const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roiSize,
    const int dstOrder[3]);
ZELAPI ZelStatus zeliSwapChannels_32s_C3C4R(
    const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roiSize,
    const int dstOrder[4], Zel32s val);
ZELAPI ZelStatus zeliSwapChannels_32s_C4C3R(
    const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roiSize,
    const int dstOrder[3]);
ZELAPI ZelStatus zeliSwapChannels_32f_C3R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize,
    const int dstOrder[3]);
ZELAPI ZelStatus zeliSwapChannels_32f_AC4R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize,
    const int dstOrder[3]);
ZELAPI ZelStatus zeliSwapChannels_32f_C3C4R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize,
    const int dstOrder[4], Zel32f val);
ZELAPI ZelStatus zeliSwapChannels_32f_C4C3R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize,
    const int dstOrder[3]);
ZELAPI ZelStatus zeliSwapChannels_8u_C3IR(
    Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, const int dstOrder[3]);
ZELAPI ZelStatus zeliSwapChannels_8u_C4IR(
    Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, const int dstOrder[4]);

/* zeliTranspose */
ZELAPI ZelStatus zeliTranspose_8u_C1R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliTranspose_8u_C1IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliTranspose_8u_C3R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliTranspose_8u_C3IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliTranspose_8u_C4R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliTranspose_8u_C4IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliTranspose_16u_C1R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliTranspose_16u_C1IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliTranspose_16u_C3R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliTranspose_16u_C3IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliTranspose_16u_C4R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliTranspose_16u_C4IR(Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliTranspose_16s_C1R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliTranspose_16s_C1IR(Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliTranspose_16s_C3R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliTranspose_16s_C3IR(Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliTranspose_16s_C4R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliTranspose_16s_C4IR(Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliTranspose_32s_C1R(
    const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliTranspose_32s_C1IR(Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliTranspose_32s_C3R(
    const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliTranspose_32s_C3IR(Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliTranspose_32s_C4R(
    const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliTranspose_32s_C4IR(Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliTranspose_32f_C1R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliTranspose_32f_C1IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliTranspose_32f_C3R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliTranspose_32f_C3IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliTranspose_32f_C4R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliTranspose_32f_C4IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);

/* zeliMirror */
ZELAPI ZelStatus zeliMirror_8u_C1R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, ZeliAxis flip);
ZELAPI ZelStatus zeliMirror_8u_C1IR(
    Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, ZeliAxis flip);
ZELAPI ZelStatus zeliMirror_8u_C3R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, ZeliAxis flip);
ZELAPI ZelStatus zeliMirror_8u_C3IR(
    Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, ZeliAxis flip);
ZELAPI ZelStatus zeliMirror_8u_C4R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, ZeliAxis flip);
ZELAPI ZelStatus zeliMirror_8u_C4IR(
    Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, ZeliAxis flip);
ZELAPI ZelStatus zeliMirror_8u_AC4R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, ZeliAxis flip);
ZELAPI ZelStatus zeliMirror_8u_AC4IR(
    Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, ZeliAxis flip);
ZELAPI ZelStatus zeliMirror_16u_C1R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, ZeliAxis flip);
ZELAPI ZelStatus zeliMirror_16u_C1IR(
    Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, ZeliAxis flip);
ZELAPI ZelStatus zeliMirror_16u_C3R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, ZeliAxis flip);
ZELAPI ZelStatus zeliMirror_16u_C3IR(
    Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, ZeliAxis flip);
ZELAPI ZelStatus zeliMirror_16u_C4R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, ZeliAxis flip);
ZELAPI ZelStatus zeliMirror_16u_C4IR(
    Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, ZeliAxis flip);
ZELAPI ZelStatus zeliMirror_16u_AC4R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, ZeliAxis flip);
ZELAPI ZelStatus zeliMirror_16u_AC4IR(
    Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, ZeliAxis flip);
ZELAPI ZelStatus zeliMirror_16s_C1R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, ZeliAxis flip);
ZELAPI ZelStatus zeliMirror_16s_C1IR(
    Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, ZeliAxis flip);
ZELAPI ZelStatus zeliMirror_16s_C3R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, ZeliAxis flip);
ZELAPI ZelStatus zeliMirror_16s_C3IR(
    Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, ZeliAxis flip);
ZELAPI ZelStatus zeliMirror_16s_C4R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, ZeliAxis flip);
ZELAPI ZelStatus zeliMirror_16s_C4IR(
    Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, ZeliAxis flip);
ZELAPI ZelStatus zeliMirror_16s_AC4R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, ZeliAxis flip);
ZELAPI ZelStatus zeliMirror_16s_AC4IR(
    Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, ZeliAxis flip);
ZELAPI ZelStatus zeliMirror_32s_C1R(
    const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roiSize, ZeliAxis flip);
ZELAPI ZelStatus zeliMirror_32s_C1IR(
    Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize, ZeliAxis flip);
ZELAPI ZelStatus zeliMirror_32s_C3R(
    const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roiSize, ZeliAxis flip);
ZELAPI ZelStatus zeliMirror_32s_C3IR(
    Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize, ZeliAxis flip);
ZELAPI ZelStatus zeliMirror_32s_C4R(
    const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roiSize, ZeliAxis flip);
ZELAPI ZelStatus zeliMirror_32s_C4IR(
    Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize, ZeliAxis flip);
ZELAPI ZelStatus zeliMirror_32s_AC4R(
    const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize roiSize, ZeliAxis flip);
ZELAPI ZelStatus zeliMirror_32s_AC4IR(
    Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize, ZeliAxis flip);
ZELAPI ZelStatus zeliMirror_32f_C1R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize, ZeliAxis flip);
ZELAPI ZelStatus zeliMirror_32f_C1IR(
    Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, ZeliAxis flip);
ZELAPI ZelStatus zeliMirror_32f_C3R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize, ZeliAxis flip);
ZELAPI ZelStatus zeliMirror_32f_C3IR(
    Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, ZeliAxis flip);
ZELAPI ZelStatus zeliMirror_32f_C4R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize, ZeliAxis flip);
ZELAPI ZelStatus zeliMirror_32f_C4IR(
    Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, ZeliAxis flip);
ZELAPI ZelStatus zeliMirror_32f_AC4R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize, ZeliAxis flip);
ZELAPI ZelStatus zeliMirror_32f_AC4IR(
    Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, ZeliAxis flip);

/* ==== Compare ===========================================================

   zeliCompare, zeliCompareC: dst = 255 where src1 <op> src2 (or the constant)
   holds in every channel of the pixel (AC4: the first three), else 0; dst has
   one channel. An operator above 4 does nothing.
   zeliCompareEqualEps(C): 255 where |a - b| <= eps in every channel.

   Checks: zelStatusNullPointer, zelStatusBadSize, zelStatusBadStep, then
   zelStatusBadEpsilon for eps below zero. zeliCompare and zeliCompareC return
   zelStatusOk for an operator above 4 and write nothing.

   Example:
       Zel8u img[4 * 2] = {10, 200, 90, 30, 250, 0, 128, 129};
       Zel8u mask[4 * 2];
       ZeliSize roi = {4, 2};
       // mask = 255 where img > 100, else 0
       ZelStatus st = zeliCompareC_8u_C1R(img, 4, 100, mask, 4, roi, zelCmpGreater); */

/* zeliCompare */
ZELAPI ZelStatus zeliCompare_8u_C1R(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep,
    ZeliSize roiSize, ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliCompare_8u_C3R(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep,
    ZeliSize roiSize, ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliCompare_8u_C4R(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep,
    ZeliSize roiSize, ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliCompare_8u_AC4R(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep,
    ZeliSize roiSize, ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliCompare_16u_C1R(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel8u* pDst, int dstStep,
    ZeliSize roiSize, ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliCompare_16u_C3R(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel8u* pDst, int dstStep,
    ZeliSize roiSize, ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliCompare_16u_C4R(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel8u* pDst, int dstStep,
    ZeliSize roiSize, ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliCompare_16u_AC4R(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel8u* pDst, int dstStep,
    ZeliSize roiSize, ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliCompare_16s_C1R(
    const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, Zel8u* pDst, int dstStep,
    ZeliSize roiSize, ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliCompare_16s_C3R(
    const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, Zel8u* pDst, int dstStep,
    ZeliSize roiSize, ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliCompare_16s_C4R(
    const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, Zel8u* pDst, int dstStep,
    ZeliSize roiSize, ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliCompare_16s_AC4R(
    const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, Zel8u* pDst, int dstStep,
    ZeliSize roiSize, ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliCompare_32f_C1R(
    const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel8u* pDst, int dstStep,
    ZeliSize roiSize, ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliCompare_32f_C3R(
    const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel8u* pDst, int dstStep,
    ZeliSize roiSize, ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliCompare_32f_C4R(
    const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel8u* pDst, int dstStep,
    ZeliSize roiSize, ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliCompare_32f_AC4R(
    const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel8u* pDst, int dstStep,
    ZeliSize roiSize, ZelCmpOp zelCmpOp);

/* zeliCompareC */
ZELAPI ZelStatus zeliCompareC_8u_C1R(
    const Zel8u* pSrc, int srcStep, Zel8u value, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliCompareC_8u_C3R(
    const Zel8u* pSrc, int srcStep, const Zel8u* value, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliCompareC_8u_C4R(
    const Zel8u* pSrc, int srcStep, const Zel8u* value, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliCompareC_8u_AC4R(
    const Zel8u* pSrc, int srcStep, const Zel8u* value, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliCompareC_16u_C1R(
    const Zel16u* pSrc, int srcStep, Zel16u value, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliCompareC_16u_C3R(
    const Zel16u* pSrc, int srcStep, const Zel16u* value, Zel8u* pDst, int dstStep,
    ZeliSize roiSize, ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliCompareC_16u_C4R(
    const Zel16u* pSrc, int srcStep, const Zel16u* value, Zel8u* pDst, int dstStep,
    ZeliSize roiSize, ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliCompareC_16u_AC4R(
    const Zel16u* pSrc, int srcStep, const Zel16u* value, Zel8u* pDst, int dstStep,
    ZeliSize roiSize, ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliCompareC_16s_C1R(
    const Zel16s* pSrc, int srcStep, Zel16s value, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliCompareC_16s_C3R(
    const Zel16s* pSrc, int srcStep, const Zel16s* value, Zel8u* pDst, int dstStep,
    ZeliSize roiSize, ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliCompareC_16s_C4R(
    const Zel16s* pSrc, int srcStep, const Zel16s* value, Zel8u* pDst, int dstStep,
    ZeliSize roiSize, ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliCompareC_16s_AC4R(
    const Zel16s* pSrc, int srcStep, const Zel16s* value, Zel8u* pDst, int dstStep,
    ZeliSize roiSize, ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliCompareC_32f_C1R(
    const Zel32f* pSrc, int srcStep, Zel32f value, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliCompareC_32f_C3R(
    const Zel32f* pSrc, int srcStep, const Zel32f* value, Zel8u* pDst, int dstStep,
    ZeliSize roiSize, ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliCompareC_32f_C4R(
    const Zel32f* pSrc, int srcStep, const Zel32f* value, Zel8u* pDst, int dstStep,
    ZeliSize roiSize, ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliCompareC_32f_AC4R(
    const Zel32f* pSrc, int srcStep, const Zel32f* value, Zel8u* pDst, int dstStep,
    ZeliSize roiSize, ZelCmpOp zelCmpOp);

/* zeliCompareEqualEps */
ZELAPI ZelStatus zeliCompareEqualEps_32f_C1R(
    const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel8u* pDst, int dstStep,
    ZeliSize roiSize, Zel32f eps);
ZELAPI ZelStatus zeliCompareEqualEps_32f_C3R(
    const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel8u* pDst, int dstStep,
    ZeliSize roiSize, Zel32f eps);
ZELAPI ZelStatus zeliCompareEqualEps_32f_C4R(
    const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel8u* pDst, int dstStep,
    ZeliSize roiSize, Zel32f eps);
ZELAPI ZelStatus zeliCompareEqualEps_32f_AC4R(
    const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel8u* pDst, int dstStep,
    ZeliSize roiSize, Zel32f eps);

/* zeliCompareEqualEpsC */
ZELAPI ZelStatus zeliCompareEqualEpsC_32f_C1R(
    const Zel32f* pSrc, int srcStep, Zel32f value, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    Zel32f eps);
ZELAPI ZelStatus zeliCompareEqualEpsC_32f_C3R(
    const Zel32f* pSrc, int srcStep, const Zel32f* value, Zel8u* pDst, int dstStep,
    ZeliSize roiSize, Zel32f eps);
ZELAPI ZelStatus zeliCompareEqualEpsC_32f_C4R(
    const Zel32f* pSrc, int srcStep, const Zel32f* value, Zel8u* pDst, int dstStep,
    ZeliSize roiSize, Zel32f eps);
ZELAPI ZelStatus zeliCompareEqualEpsC_32f_AC4R(
    const Zel32f* pSrc, int srcStep, const Zel32f* value, Zel8u* pDst, int dstStep,
    ZeliSize roiSize, Zel32f eps);

/* ==== Threshold =========================================================

   zeliThreshold: x beyond a level becomes the level (plain, GT, LT) or a value
   (Val, GTVal, LTVal, LTValGTVal); NaN samples stay.
   zeliComputeThreshold_Otsu_8u_C1R: the level that best splits the histogram.

   Checks: zelStatusNullPointer, zelStatusBadSize, zelStatusBadStep, then the
   family's own: zelStatusBadThreshold when thresholdLT is above thresholdGT,
   zelStatusBadMode for a threshold operator other than zelCmpLess and
   zelCmpGreater.

   Example:
       Zel8u img[4 * 2] = {10, 200, 90, 30, 250, 0, 128, 129};
       Zel8u level = 0, out[4 * 2];
       ZeliSize roi = {4, 2};
       ZelStatus st = zeliComputeThreshold_Otsu_8u_C1R(img, 4, roi, &level);
       // samples above the level become the level
       if (st == zelStatusOk) st = zeliThreshold_GT_8u_C1R(img, 4, out, 4, roi, level); */

/* zeliThreshold */
ZELAPI ZelStatus zeliThreshold_8u_C1R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, Zel8u threshold,
    ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliThreshold_8u_C1IR(
    Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, Zel8u threshold, ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliThreshold_GT_8u_C1R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, Zel8u threshold);
ZELAPI ZelStatus zeliThreshold_GT_8u_C1IR(
    Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, Zel8u threshold);
ZELAPI ZelStatus zeliThreshold_LT_8u_C1R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, Zel8u threshold);
ZELAPI ZelStatus zeliThreshold_LT_8u_C1IR(
    Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, Zel8u threshold);
ZELAPI ZelStatus zeliThreshold_8u_C3R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    const Zel8u* threshold, ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliThreshold_8u_C3IR(
    Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel8u* threshold, ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliThreshold_GT_8u_C3R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    const Zel8u* threshold);
ZELAPI ZelStatus zeliThreshold_GT_8u_C3IR(
    Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel8u* threshold);
ZELAPI ZelStatus zeliThreshold_LT_8u_C3R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    const Zel8u* threshold);
ZELAPI ZelStatus zeliThreshold_LT_8u_C3IR(
    Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel8u* threshold);
ZELAPI ZelStatus zeliThreshold_8u_AC4R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    const Zel8u* threshold, ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliThreshold_8u_AC4IR(
    Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel8u* threshold, ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliThreshold_GT_8u_AC4R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    const Zel8u* threshold);
ZELAPI ZelStatus zeliThreshold_GT_8u_AC4IR(
    Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel8u* threshold);
ZELAPI ZelStatus zeliThreshold_LT_8u_AC4R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    const Zel8u* threshold);
ZELAPI ZelStatus zeliThreshold_LT_8u_AC4IR(
    Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel8u* threshold);
ZELAPI ZelStatus zeliThreshold_Val_8u_C1R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, Zel8u threshold,
    Zel8u value, ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliThreshold_Val_8u_C1IR(
    Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, Zel8u threshold, Zel8u value,
    ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliThreshold_GTVal_8u_C1R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, Zel8u threshold,
    Zel8u value);
ZELAPI ZelStatus zeliThreshold_GTVal_8u_C1IR(
    Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, Zel8u threshold, Zel8u value);
ZELAPI ZelStatus zeliThreshold_LTVal_8u_C1R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, Zel8u threshold,
    Zel8u value);
ZELAPI ZelStatus zeliThreshold_LTVal_8u_C1IR(
    Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, Zel8u threshold, Zel8u value);
ZELAPI ZelStatus zeliThreshold_Val_8u_C3R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    const Zel8u* threshold, const Zel8u* value, ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliThreshold_Val_8u_C3IR(
    Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel8u* threshold, const Zel8u* value,
    ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliThreshold_GTVal_8u_C3R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    const Zel8u* threshold, const Zel8u* value);
ZELAPI ZelStatus zeliThreshold_GTVal_8u_C3IR(
    Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel8u* threshold, const Zel8u* value);
ZELAPI ZelStatus zeliThreshold_LTVal_8u_C3R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    const Zel8u* threshold, const Zel8u* value);
ZELAPI ZelStatus zeliThreshold_LTVal_8u_C3IR(
    Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel8u* threshold, const Zel8u* value);
ZELAPI ZelStatus zeliThreshold_Val_8u_AC4R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    const Zel8u* threshold, const Zel8u* value, ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliThreshold_Val_8u_AC4IR(
    Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel8u* threshold, const Zel8u* value,
    ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliThreshold_GTVal_8u_AC4R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    const Zel8u* threshold, const Zel8u* value);
ZELAPI ZelStatus zeliThreshold_GTVal_8u_AC4IR(
    Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel8u* threshold, const Zel8u* value);
ZELAPI ZelStatus zeliThreshold_LTVal_8u_AC4R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    const Zel8u* threshold, const Zel8u* value);
ZELAPI ZelStatus zeliThreshold_LTVal_8u_AC4IR(
    Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel8u* threshold, const Zel8u* value);
ZELAPI ZelStatus zeliThreshold_GTVal_8u_C4R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    const Zel8u* threshold, const Zel8u* value);
ZELAPI ZelStatus zeliThreshold_GTVal_8u_C4IR(
    Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel8u* threshold, const Zel8u* value);
ZELAPI ZelStatus zeliThreshold_LTVal_8u_C4R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    const Zel8u* threshold, const Zel8u* value);
ZELAPI ZelStatus zeliThreshold_LTVal_8u_C4IR(
    Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel8u* threshold, const Zel8u* value);
ZELAPI ZelStatus zeliThreshold_LTValGTVal_8u_C1R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, Zel8u thresholdLT,
    Zel8u valueLT, Zel8u thresholdGT, Zel8u valueGT);
ZELAPI ZelStatus zeliThreshold_LTValGTVal_8u_C1IR(
    Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, Zel8u thresholdLT, Zel8u valueLT,
    Zel8u thresholdGT, Zel8u valueGT);
ZELAPI ZelStatus zeliThreshold_LTValGTVal_8u_C3R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    const Zel8u* thresholdLT, const Zel8u* valueLT, const Zel8u* thresholdGT, const Zel8u* valueGT);
ZELAPI ZelStatus zeliThreshold_LTValGTVal_8u_C3IR(
    Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel8u* thresholdLT,
    const Zel8u* valueLT, const Zel8u* thresholdGT, const Zel8u* valueGT);
ZELAPI ZelStatus zeliThreshold_LTValGTVal_8u_AC4R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize,
    const Zel8u* thresholdLT, const Zel8u* valueLT, const Zel8u* thresholdGT, const Zel8u* valueGT);
ZELAPI ZelStatus zeliThreshold_LTValGTVal_8u_AC4IR(
    Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel8u* thresholdLT,
    const Zel8u* valueLT, const Zel8u* thresholdGT, const Zel8u* valueGT);
ZELAPI ZelStatus zeliThreshold_16u_C1R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, Zel16u threshold,
    ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliThreshold_16u_C1IR(
    Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, Zel16u threshold, ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliThreshold_GT_16u_C1R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, Zel16u threshold);
ZELAPI ZelStatus zeliThreshold_GT_16u_C1IR(
    Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, Zel16u threshold);
ZELAPI ZelStatus zeliThreshold_LT_16u_C1R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, Zel16u threshold);
ZELAPI ZelStatus zeliThreshold_LT_16u_C1IR(
    Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, Zel16u threshold);
ZELAPI ZelStatus zeliThreshold_16u_C3R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize,
    const Zel16u* threshold, ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliThreshold_16u_C3IR(
    Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16u* threshold, ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliThreshold_GT_16u_C3R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize,
    const Zel16u* threshold);
ZELAPI ZelStatus zeliThreshold_GT_16u_C3IR(
    Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16u* threshold);
ZELAPI ZelStatus zeliThreshold_LT_16u_C3R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize,
    const Zel16u* threshold);
ZELAPI ZelStatus zeliThreshold_LT_16u_C3IR(
    Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16u* threshold);
ZELAPI ZelStatus zeliThreshold_16u_AC4R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize,
    const Zel16u* threshold, ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliThreshold_16u_AC4IR(
    Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16u* threshold, ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliThreshold_GT_16u_AC4R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize,
    const Zel16u* threshold);
ZELAPI ZelStatus zeliThreshold_GT_16u_AC4IR(
    Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16u* threshold);
ZELAPI ZelStatus zeliThreshold_LT_16u_AC4R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize,
    const Zel16u* threshold);
ZELAPI ZelStatus zeliThreshold_LT_16u_AC4IR(
    Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16u* threshold);
ZELAPI ZelStatus zeliThreshold_Val_16u_C1R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, Zel16u threshold,
    Zel16u value, ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliThreshold_Val_16u_C1IR(
    Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, Zel16u threshold, Zel16u value,
    ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliThreshold_GTVal_16u_C1R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, Zel16u threshold,
    Zel16u value);
ZELAPI ZelStatus zeliThreshold_GTVal_16u_C1IR(
    Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, Zel16u threshold, Zel16u value);
ZELAPI ZelStatus zeliThreshold_LTVal_16u_C1R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, Zel16u threshold,
    Zel16u value);
ZELAPI ZelStatus zeliThreshold_LTVal_16u_C1IR(
    Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, Zel16u threshold, Zel16u value);
ZELAPI ZelStatus zeliThreshold_Val_16u_C3R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize,
    const Zel16u* threshold, const Zel16u* value, ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliThreshold_Val_16u_C3IR(
    Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16u* threshold, const Zel16u* value,
    ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliThreshold_GTVal_16u_C3R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize,
    const Zel16u* threshold, const Zel16u* value);
ZELAPI ZelStatus zeliThreshold_GTVal_16u_C3IR(
    Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16u* threshold,
    const Zel16u* value);
ZELAPI ZelStatus zeliThreshold_LTVal_16u_C3R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize,
    const Zel16u* threshold, const Zel16u* value);
ZELAPI ZelStatus zeliThreshold_LTVal_16u_C3IR(
    Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16u* threshold,
    const Zel16u* value);
ZELAPI ZelStatus zeliThreshold_Val_16u_AC4R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize,
    const Zel16u* threshold, const Zel16u* value, ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliThreshold_Val_16u_AC4IR(
    Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16u* threshold, const Zel16u* value,
    ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliThreshold_GTVal_16u_AC4R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize,
    const Zel16u* threshold, const Zel16u* value);
ZELAPI ZelStatus zeliThreshold_GTVal_16u_AC4IR(
    Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16u* threshold,
    const Zel16u* value);
ZELAPI ZelStatus zeliThreshold_LTVal_16u_AC4R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize,
    const Zel16u* threshold, const Zel16u* value);
ZELAPI ZelStatus zeliThreshold_LTVal_16u_AC4IR(
    Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16u* threshold,
    const Zel16u* value);
ZELAPI ZelStatus zeliThreshold_GTVal_16u_C4R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize,
    const Zel16u* threshold, const Zel16u* value);
ZELAPI ZelStatus zeliThreshold_GTVal_16u_C4IR(
    Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16u* threshold,
    const Zel16u* value);
ZELAPI ZelStatus zeliThreshold_LTVal_16u_C4R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize,
    const Zel16u* threshold, const Zel16u* value);
ZELAPI ZelStatus zeliThreshold_LTVal_16u_C4IR(
    Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16u* threshold,
    const Zel16u* value);
ZELAPI ZelStatus zeliThreshold_LTValGTVal_16u_C1R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize,
    Zel16u thresholdLT, Zel16u valueLT, Zel16u thresholdGT, Zel16u valueGT);
ZELAPI ZelStatus zeliThreshold_LTValGTVal_16u_C1IR(
    Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, Zel16u thresholdLT, Zel16u valueLT,
    Zel16u thresholdGT, Zel16u valueGT);
ZELAPI ZelStatus zeliThreshold_LTValGTVal_16u_C3R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize,
    const Zel16u* thresholdLT, const Zel16u* valueLT, const Zel16u* thresholdGT,
    const Zel16u* valueGT);
ZELAPI ZelStatus zeliThreshold_LTValGTVal_16u_C3IR(
    Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16u* thresholdLT,
    const Zel16u* valueLT, const Zel16u* thresholdGT, const Zel16u* valueGT);
ZELAPI ZelStatus zeliThreshold_LTValGTVal_16u_AC4R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize,
    const Zel16u* thresholdLT, const Zel16u* valueLT, const Zel16u* thresholdGT,
    const Zel16u* valueGT);
ZELAPI ZelStatus zeliThreshold_LTValGTVal_16u_AC4IR(
    Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16u* thresholdLT,
    const Zel16u* valueLT, const Zel16u* thresholdGT, const Zel16u* valueGT);
ZELAPI ZelStatus zeliThreshold_16s_C1R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, Zel16s threshold,
    ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliThreshold_16s_C1IR(
    Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, Zel16s threshold, ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliThreshold_GT_16s_C1R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, Zel16s threshold);
ZELAPI ZelStatus zeliThreshold_GT_16s_C1IR(
    Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, Zel16s threshold);
ZELAPI ZelStatus zeliThreshold_LT_16s_C1R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, Zel16s threshold);
ZELAPI ZelStatus zeliThreshold_LT_16s_C1IR(
    Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, Zel16s threshold);
ZELAPI ZelStatus zeliThreshold_16s_C3R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize,
    const Zel16s* threshold, ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliThreshold_16s_C3IR(
    Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16s* threshold, ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliThreshold_GT_16s_C3R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize,
    const Zel16s* threshold);
ZELAPI ZelStatus zeliThreshold_GT_16s_C3IR(
    Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16s* threshold);
ZELAPI ZelStatus zeliThreshold_LT_16s_C3R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize,
    const Zel16s* threshold);
ZELAPI ZelStatus zeliThreshold_LT_16s_C3IR(
    Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16s* threshold);
ZELAPI ZelStatus zeliThreshold_16s_AC4R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize,
    const Zel16s* threshold, ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliThreshold_16s_AC4IR(
    Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16s* threshold, ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliThreshold_GT_16s_AC4R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize,
    const Zel16s* threshold);
ZELAPI ZelStatus zeliThreshold_GT_16s_AC4IR(
    Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16s* threshold);
ZELAPI ZelStatus zeliThreshold_LT_16s_AC4R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize,
    const Zel16s* threshold);
ZELAPI ZelStatus zeliThreshold_LT_16s_AC4IR(
    Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16s* threshold);
ZELAPI ZelStatus zeliThreshold_Val_16s_C1R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, Zel16s threshold,
    Zel16s value, ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliThreshold_Val_16s_C1IR(
    Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, Zel16s threshold, Zel16s value,
    ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliThreshold_GTVal_16s_C1R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, Zel16s threshold,
    Zel16s value);
ZELAPI ZelStatus zeliThreshold_GTVal_16s_C1IR(
    Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, Zel16s threshold, Zel16s value);
ZELAPI ZelStatus zeliThreshold_LTVal_16s_C1R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, Zel16s threshold,
    Zel16s value);
ZELAPI ZelStatus zeliThreshold_LTVal_16s_C1IR(
    Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, Zel16s threshold, Zel16s value);
ZELAPI ZelStatus zeliThreshold_Val_16s_C3R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize,
    const Zel16s* threshold, const Zel16s* value, ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliThreshold_Val_16s_C3IR(
    Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16s* threshold, const Zel16s* value,
    ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliThreshold_GTVal_16s_C3R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize,
    const Zel16s* threshold, const Zel16s* value);
ZELAPI ZelStatus zeliThreshold_GTVal_16s_C3IR(
    Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16s* threshold,
    const Zel16s* value);
ZELAPI ZelStatus zeliThreshold_LTVal_16s_C3R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize,
    const Zel16s* threshold, const Zel16s* value);
ZELAPI ZelStatus zeliThreshold_LTVal_16s_C3IR(
    Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16s* threshold,
    const Zel16s* value);
ZELAPI ZelStatus zeliThreshold_Val_16s_AC4R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize,
    const Zel16s* threshold, const Zel16s* value, ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliThreshold_Val_16s_AC4IR(
    Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16s* threshold, const Zel16s* value,
    ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliThreshold_GTVal_16s_AC4R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize,
    const Zel16s* threshold, const Zel16s* value);
ZELAPI ZelStatus zeliThreshold_GTVal_16s_AC4IR(
    Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16s* threshold,
    const Zel16s* value);
ZELAPI ZelStatus zeliThreshold_LTVal_16s_AC4R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize,
    const Zel16s* threshold, const Zel16s* value);
ZELAPI ZelStatus zeliThreshold_LTVal_16s_AC4IR(
    Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16s* threshold,
    const Zel16s* value);
ZELAPI ZelStatus zeliThreshold_GTVal_16s_C4R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize,
    const Zel16s* threshold, const Zel16s* value);
ZELAPI ZelStatus zeliThreshold_GTVal_16s_C4IR(
    Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16s* threshold,
    const Zel16s* value);
ZELAPI ZelStatus zeliThreshold_LTVal_16s_C4R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize,
    const Zel16s* threshold, const Zel16s* value);
ZELAPI ZelStatus zeliThreshold_LTVal_16s_C4IR(
    Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16s* threshold,
    const Zel16s* value);
ZELAPI ZelStatus zeliThreshold_LTValGTVal_16s_C1R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize,
    Zel16s thresholdLT, Zel16s valueLT, Zel16s thresholdGT, Zel16s valueGT);
ZELAPI ZelStatus zeliThreshold_LTValGTVal_16s_C1IR(
    Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, Zel16s thresholdLT, Zel16s valueLT,
    Zel16s thresholdGT, Zel16s valueGT);
ZELAPI ZelStatus zeliThreshold_LTValGTVal_16s_C3R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize,
    const Zel16s* thresholdLT, const Zel16s* valueLT, const Zel16s* thresholdGT,
    const Zel16s* valueGT);
ZELAPI ZelStatus zeliThreshold_LTValGTVal_16s_C3IR(
    Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16s* thresholdLT,
    const Zel16s* valueLT, const Zel16s* thresholdGT, const Zel16s* valueGT);
ZELAPI ZelStatus zeliThreshold_LTValGTVal_16s_AC4R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize,
    const Zel16s* thresholdLT, const Zel16s* valueLT, const Zel16s* thresholdGT,
    const Zel16s* valueGT);
ZELAPI ZelStatus zeliThreshold_LTValGTVal_16s_AC4IR(
    Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel16s* thresholdLT,
    const Zel16s* valueLT, const Zel16s* thresholdGT, const Zel16s* valueGT);
ZELAPI ZelStatus zeliThreshold_32f_C1R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize, Zel32f threshold,
    ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliThreshold_32f_C1IR(
    Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, Zel32f threshold, ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliThreshold_GT_32f_C1R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize, Zel32f threshold);
ZELAPI ZelStatus zeliThreshold_GT_32f_C1IR(
    Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, Zel32f threshold);
ZELAPI ZelStatus zeliThreshold_LT_32f_C1R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize, Zel32f threshold);
ZELAPI ZelStatus zeliThreshold_LT_32f_C1IR(
    Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, Zel32f threshold);
ZELAPI ZelStatus zeliThreshold_32f_C3R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize,
    const Zel32f* threshold, ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliThreshold_32f_C3IR(
    Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32f* threshold, ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliThreshold_GT_32f_C3R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize,
    const Zel32f* threshold);
ZELAPI ZelStatus zeliThreshold_GT_32f_C3IR(
    Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32f* threshold);
ZELAPI ZelStatus zeliThreshold_LT_32f_C3R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize,
    const Zel32f* threshold);
ZELAPI ZelStatus zeliThreshold_LT_32f_C3IR(
    Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32f* threshold);
ZELAPI ZelStatus zeliThreshold_32f_AC4R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize,
    const Zel32f* threshold, ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliThreshold_32f_AC4IR(
    Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32f* threshold, ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliThreshold_GT_32f_AC4R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize,
    const Zel32f* threshold);
ZELAPI ZelStatus zeliThreshold_GT_32f_AC4IR(
    Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32f* threshold);
ZELAPI ZelStatus zeliThreshold_LT_32f_AC4R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize,
    const Zel32f* threshold);
ZELAPI ZelStatus zeliThreshold_LT_32f_AC4IR(
    Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32f* threshold);
ZELAPI ZelStatus zeliThreshold_Val_32f_C1R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize, Zel32f threshold,
    Zel32f value, ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliThreshold_Val_32f_C1IR(
    Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, Zel32f threshold, Zel32f value,
    ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliThreshold_GTVal_32f_C1R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize, Zel32f threshold,
    Zel32f value);
ZELAPI ZelStatus zeliThreshold_GTVal_32f_C1IR(
    Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, Zel32f threshold, Zel32f value);
ZELAPI ZelStatus zeliThreshold_LTVal_32f_C1R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize, Zel32f threshold,
    Zel32f value);
ZELAPI ZelStatus zeliThreshold_LTVal_32f_C1IR(
    Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, Zel32f threshold, Zel32f value);
ZELAPI ZelStatus zeliThreshold_Val_32f_C3R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize,
    const Zel32f* threshold, const Zel32f* value, ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliThreshold_Val_32f_C3IR(
    Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32f* threshold, const Zel32f* value,
    ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliThreshold_GTVal_32f_C3R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize,
    const Zel32f* threshold, const Zel32f* value);
ZELAPI ZelStatus zeliThreshold_GTVal_32f_C3IR(
    Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32f* threshold,
    const Zel32f* value);
ZELAPI ZelStatus zeliThreshold_LTVal_32f_C3R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize,
    const Zel32f* threshold, const Zel32f* value);
ZELAPI ZelStatus zeliThreshold_LTVal_32f_C3IR(
    Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32f* threshold,
    const Zel32f* value);
ZELAPI ZelStatus zeliThreshold_Val_32f_AC4R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize,
    const Zel32f* threshold, const Zel32f* value, ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliThreshold_Val_32f_AC4IR(
    Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32f* threshold, const Zel32f* value,
    ZelCmpOp zelCmpOp);
ZELAPI ZelStatus zeliThreshold_GTVal_32f_AC4R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize,
    const Zel32f* threshold, const Zel32f* value);
ZELAPI ZelStatus zeliThreshold_GTVal_32f_AC4IR(
    Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32f* threshold,
    const Zel32f* value);
ZELAPI ZelStatus zeliThreshold_LTVal_32f_AC4R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize,
    const Zel32f* threshold, const Zel32f* value);
ZELAPI ZelStatus zeliThreshold_LTVal_32f_AC4IR(
    Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32f* threshold,
    const Zel32f* value);
ZELAPI ZelStatus zeliThreshold_GTVal_32f_C4R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize,
    const Zel32f* threshold, const Zel32f* value);
ZELAPI ZelStatus zeliThreshold_GTVal_32f_C4IR(
    Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32f* threshold,
    const Zel32f* value);
ZELAPI ZelStatus zeliThreshold_LTVal_32f_C4R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize,
    const Zel32f* threshold, const Zel32f* value);
ZELAPI ZelStatus zeliThreshold_LTVal_32f_C4IR(
    Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32f* threshold,
    const Zel32f* value);
ZELAPI ZelStatus zeliThreshold_LTValGTVal_32f_C1R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize,
    Zel32f thresholdLT, Zel32f valueLT, Zel32f thresholdGT, Zel32f valueGT);
ZELAPI ZelStatus zeliThreshold_LTValGTVal_32f_C1IR(
    Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, Zel32f thresholdLT, Zel32f valueLT,
    Zel32f thresholdGT, Zel32f valueGT);
ZELAPI ZelStatus zeliThreshold_LTValGTVal_32f_C3R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize,
    const Zel32f* thresholdLT, const Zel32f* valueLT, const Zel32f* thresholdGT,
    const Zel32f* valueGT);
ZELAPI ZelStatus zeliThreshold_LTValGTVal_32f_C3IR(
    Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32f* thresholdLT,
    const Zel32f* valueLT, const Zel32f* thresholdGT, const Zel32f* valueGT);
ZELAPI ZelStatus zeliThreshold_LTValGTVal_32f_AC4R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize,
    const Zel32f* thresholdLT, const Zel32f* valueLT, const Zel32f* thresholdGT,
    const Zel32f* valueGT);
ZELAPI ZelStatus zeliThreshold_LTValGTVal_32f_AC4IR(
    Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize, const Zel32f* thresholdLT,
    const Zel32f* valueLT, const Zel32f* thresholdGT, const Zel32f* valueGT);

/* zeliComputeThreshold */
ZELAPI ZelStatus zeliComputeThreshold_Otsu_8u_C1R(
    const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel8u* pThreshold);

/* ==== Sums, means and dot products ======================================

   zeliSum / zeliMean reduce an image to one Zel64f a channel (3 for AC4R, the
   alpha is skipped); integer samples are summed exactly, Zel32f in Zel32f lanes
   per row unless the hint is zelAlgHintAccurate (2), which sums in Zel64f.
   zeliDotProd reduces a pair of images the same way; zeliDotProdCol forms
   pDst[j] = sum over k of ppSrcList[k][j] * pCoeffs[k].

   Checks: zelStatusNullPointer, then zelStatusBadSize; steps are not checked
   (zeliDotProd refuses a step of 0 as a bad size).

   Example:
       Zel8u img[3 * 2] = {1, 2, 3, 4, 5, 6};
       Zel64f sum = 0, mean = 0;
       ZeliSize roi = {3, 2};
       ZelStatus st = zeliSum_8u_C1R(img, 3, roi, &sum); // 21
       if (st == zelStatusOk) st = zeliMean_8u_C1R(img, 3, roi, &mean); // 3.5 */

/* zeliSum */
ZELAPI ZelStatus zeliSum_8u_C1R(const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pSum);
ZELAPI ZelStatus zeliSum_8u_C3R(const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pSum);
ZELAPI ZelStatus zeliSum_8u_C4R(const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pSum);
ZELAPI ZelStatus zeliSum_8u_AC4R(const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pSum);
ZELAPI ZelStatus zeliSum_16u_C1R(const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pSum);
ZELAPI ZelStatus zeliSum_16u_C3R(const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pSum);
ZELAPI ZelStatus zeliSum_16u_C4R(const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pSum);
ZELAPI ZelStatus zeliSum_16u_AC4R(const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pSum);
ZELAPI ZelStatus zeliSum_16s_C1R(const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pSum);
ZELAPI ZelStatus zeliSum_16s_C3R(const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pSum);
ZELAPI ZelStatus zeliSum_16s_C4R(const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pSum);
ZELAPI ZelStatus zeliSum_16s_AC4R(const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pSum);
ZELAPI ZelStatus zeliSum_32f_C1R(
    const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pSum, ZelHintAlgorithm hint);
ZELAPI ZelStatus zeliSum_32f_C3R(
    const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pSum, ZelHintAlgorithm hint);
ZELAPI ZelStatus zeliSum_32f_C4R(
    const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pSum, ZelHintAlgorithm hint);
ZELAPI ZelStatus zeliSum_32f_AC4R(
    const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pSum, ZelHintAlgorithm hint);

/* zeliMean */
ZELAPI ZelStatus zeliMean_8u_C1R(const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pMean);
ZELAPI ZelStatus zeliMean_8u_C3R(const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pMean);
ZELAPI ZelStatus zeliMean_8u_C4R(const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pMean);
ZELAPI ZelStatus zeliMean_8u_AC4R(const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pMean);
ZELAPI ZelStatus zeliMean_16u_C1R(const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pMean);
ZELAPI ZelStatus zeliMean_16u_C3R(const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pMean);
ZELAPI ZelStatus zeliMean_16u_C4R(const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pMean);
ZELAPI ZelStatus zeliMean_16u_AC4R(
    const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pMean);
ZELAPI ZelStatus zeliMean_16s_C1R(const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pMean);
ZELAPI ZelStatus zeliMean_16s_C3R(const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pMean);
ZELAPI ZelStatus zeliMean_16s_C4R(const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pMean);
ZELAPI ZelStatus zeliMean_16s_AC4R(
    const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pMean);
ZELAPI ZelStatus zeliMean_32f_C1R(
    const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pMean, ZelHintAlgorithm hint);
ZELAPI ZelStatus zeliMean_32f_C3R(
    const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pMean, ZelHintAlgorithm hint);
ZELAPI ZelStatus zeliMean_32f_C4R(
    const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pMean, ZelHintAlgorithm hint);
ZELAPI ZelStatus zeliMean_32f_AC4R(
    const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pMean, ZelHintAlgorithm hint);

/* zeliDotProd */
ZELAPI ZelStatus zeliDotProd_8u64f_C1R(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pDp);
ZELAPI ZelStatus zeliDotProd_8u64f_C3R(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pDp);
ZELAPI ZelStatus zeliDotProd_8u64f_C4R(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pDp);
ZELAPI ZelStatus zeliDotProd_8u64f_AC4R(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pDp);
ZELAPI ZelStatus zeliDotProd_8s64f_C1R(
    const Zel8s* pSrc1, int src1Step, const Zel8s* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pDp);
ZELAPI ZelStatus zeliDotProd_8s64f_C3R(
    const Zel8s* pSrc1, int src1Step, const Zel8s* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pDp);
ZELAPI ZelStatus zeliDotProd_8s64f_C4R(
    const Zel8s* pSrc1, int src1Step, const Zel8s* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pDp);
ZELAPI ZelStatus zeliDotProd_8s64f_AC4R(
    const Zel8s* pSrc1, int src1Step, const Zel8s* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pDp);
ZELAPI ZelStatus zeliDotProd_16u64f_C1R(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pDp);
ZELAPI ZelStatus zeliDotProd_16u64f_C3R(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pDp);
ZELAPI ZelStatus zeliDotProd_16u64f_C4R(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pDp);
ZELAPI ZelStatus zeliDotProd_16u64f_AC4R(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pDp);
ZELAPI ZelStatus zeliDotProd_16s64f_C1R(
    const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pDp);
ZELAPI ZelStatus zeliDotProd_16s64f_C3R(
    const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pDp);
ZELAPI ZelStatus zeliDotProd_16s64f_C4R(
    const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pDp);
ZELAPI ZelStatus zeliDotProd_16s64f_AC4R(
    const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pDp);
ZELAPI ZelStatus zeliDotProd_32u64f_C1R(
    const Zel32u* pSrc1, int src1Step, const Zel32u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pDp);
ZELAPI ZelStatus zeliDotProd_32u64f_C3R(
    const Zel32u* pSrc1, int src1Step, const Zel32u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pDp);
ZELAPI ZelStatus zeliDotProd_32u64f_C4R(
    const Zel32u* pSrc1, int src1Step, const Zel32u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pDp);
ZELAPI ZelStatus zeliDotProd_32u64f_AC4R(
    const Zel32u* pSrc1, int src1Step, const Zel32u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pDp);
ZELAPI ZelStatus zeliDotProd_32s64f_C1R(
    const Zel32s* pSrc1, int src1Step, const Zel32s* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pDp);
ZELAPI ZelStatus zeliDotProd_32s64f_C3R(
    const Zel32s* pSrc1, int src1Step, const Zel32s* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pDp);
ZELAPI ZelStatus zeliDotProd_32s64f_C4R(
    const Zel32s* pSrc1, int src1Step, const Zel32s* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pDp);
ZELAPI ZelStatus zeliDotProd_32s64f_AC4R(
    const Zel32s* pSrc1, int src1Step, const Zel32s* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pDp);
ZELAPI ZelStatus zeliDotProd_32f64f_C1R(
    const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pDp);
ZELAPI ZelStatus zeliDotProd_32f64f_C3R(
    const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pDp);
ZELAPI ZelStatus zeliDotProd_32f64f_C4R(
    const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pDp);
ZELAPI ZelStatus zeliDotProd_32f64f_AC4R(
    const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pDp);

/* zeliDotProdCol */
ZELAPI ZelStatus zeliDotProdCol_32f_L2(
    const Zel32f* const* ppSrcList, const Zel32f* pCoeffs, int srcCount, Zel32f* pDst, int len);
ZELAPI ZelStatus zeliDotProdCol_64f_L2(
    const Zel64f* const* ppSrcList, const Zel64f* pCoeffs, int srcCount, Zel64f* pDst, int len);

/* ==== Minimum and maximum ===============================================

   zeliMin, zeliMax, zeliMinMax: the extreme samples of an image, one a channel
   (3 for AC4R, the alpha is skipped). zeliMinIndx, zeliMaxIndx also give the
   position of each channel's extreme: the top-most row that holds it, then the
   left-most pixel of that row. zeliMinEvery, zeliMaxEvery keep, in place, the
   smaller or larger sample of two images (AC4IR leaves the alpha alone).

   Checks: zelStatusNullPointer, then zelStatusBadSize; zeliMinEvery and
   zeliMaxEvery then zelStatusBadStep. The others accept any step.

   Example:
       Zel16s img[3 * 2] = {5, -7, 9, 0, 9, 1};
       Zel16s lo = 0, hi = 0;
       int x = -1, y = -1;
       ZeliSize roi = {3, 2};
       ZelStatus st = zeliMinMax_16s_C1R(img, 3 * 2, roi, &lo, &hi); // -7, 9
       if (st == zelStatusOk) st = zeliMaxIndx_16s_C1R(img, 3 * 2, roi, &hi, &x, &y); // 9 at (2, 0) */

/* zeliMin */
ZELAPI ZelStatus zeliMin_8u_C1R(const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel8u* pMin);
ZELAPI ZelStatus zeliMin_8u_C3R(const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel8u* pMin);
ZELAPI ZelStatus zeliMin_8u_C4R(const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel8u* pMin);
ZELAPI ZelStatus zeliMin_8u_AC4R(const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel8u* pMin);
ZELAPI ZelStatus zeliMin_16u_C1R(const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel16u* pMin);
ZELAPI ZelStatus zeliMin_16u_C3R(const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel16u* pMin);
ZELAPI ZelStatus zeliMin_16u_C4R(const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel16u* pMin);
ZELAPI ZelStatus zeliMin_16u_AC4R(const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel16u* pMin);
ZELAPI ZelStatus zeliMin_16s_C1R(const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel16s* pMin);
ZELAPI ZelStatus zeliMin_16s_C3R(const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel16s* pMin);
ZELAPI ZelStatus zeliMin_16s_C4R(const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel16s* pMin);
ZELAPI ZelStatus zeliMin_16s_AC4R(const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel16s* pMin);
ZELAPI ZelStatus zeliMin_32f_C1R(const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel32f* pMin);
ZELAPI ZelStatus zeliMin_32f_C3R(const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel32f* pMin);
ZELAPI ZelStatus zeliMin_32f_C4R(const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel32f* pMin);
ZELAPI ZelStatus zeliMin_32f_AC4R(const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel32f* pMin);

/* zeliMax */
ZELAPI ZelStatus zeliMax_8u_C1R(const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel8u* pMax);
ZELAPI ZelStatus zeliMax_8u_C3R(const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel8u* pMax);
ZELAPI ZelStatus zeliMax_8u_C4R(const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel8u* pMax);
ZELAPI ZelStatus zeliMax_8u_AC4R(const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel8u* pMax);
ZELAPI ZelStatus zeliMax_16u_C1R(const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel16u* pMax);
ZELAPI ZelStatus zeliMax_16u_C3R(const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel16u* pMax);
ZELAPI ZelStatus zeliMax_16u_C4R(const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel16u* pMax);
ZELAPI ZelStatus zeliMax_16u_AC4R(const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel16u* pMax);
ZELAPI ZelStatus zeliMax_16s_C1R(const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel16s* pMax);
ZELAPI ZelStatus zeliMax_16s_C3R(const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel16s* pMax);
ZELAPI ZelStatus zeliMax_16s_C4R(const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel16s* pMax);
ZELAPI ZelStatus zeliMax_16s_AC4R(const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel16s* pMax);
ZELAPI ZelStatus zeliMax_32f_C1R(const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel32f* pMax);
ZELAPI ZelStatus zeliMax_32f_C3R(const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel32f* pMax);
ZELAPI ZelStatus zeliMax_32f_C4R(const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel32f* pMax);
ZELAPI ZelStatus zeliMax_32f_AC4R(const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel32f* pMax);

/* zeliMinMax */
ZELAPI ZelStatus zeliMinMax_8u_C1R(
    const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel8u* pMin, Zel8u* pMax);
ZELAPI ZelStatus zeliMinMax_8u_C3R(
    const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel8u* pMin, Zel8u* pMax);
ZELAPI ZelStatus zeliMinMax_8u_C4R(
    const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel8u* pMin, Zel8u* pMax);
ZELAPI ZelStatus zeliMinMax_8u_AC4R(
    const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel8u* pMin, Zel8u* pMax);
ZELAPI ZelStatus zeliMinMax_16u_C1R(
    const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel16u* pMin, Zel16u* pMax);
ZELAPI ZelStatus zeliMinMax_16u_C3R(
    const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel16u* pMin, Zel16u* pMax);
ZELAPI ZelStatus zeliMinMax_16u_C4R(
    const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel16u* pMin, Zel16u* pMax);
ZELAPI ZelStatus zeliMinMax_16u_AC4R(
    const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel16u* pMin, Zel16u* pMax);
ZELAPI ZelStatus zeliMinMax_16s_C1R(
    const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel16s* pMin, Zel16s* pMax);
ZELAPI ZelStatus zeliMinMax_16s_C3R(
    const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel16s* pMin, Zel16s* pMax);
ZELAPI ZelStatus zeliMinMax_16s_C4R(
    const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel16s* pMin, Zel16s* pMax);
ZELAPI ZelStatus zeliMinMax_16s_AC4R(
    const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel16s* pMin, Zel16s* pMax);
ZELAPI ZelStatus zeliMinMax_32f_C1R(
    const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel32f* pMin, Zel32f* pMax);
ZELAPI ZelStatus zeliMinMax_32f_C3R(
    const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel32f* pMin, Zel32f* pMax);
ZELAPI ZelStatus zeliMinMax_32f_C4R(
    const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel32f* pMin, Zel32f* pMax);
ZELAPI ZelStatus zeliMinMax_32f_AC4R(
    const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel32f* pMin, Zel32f* pMax);

/* zeliMinIndx */
ZELAPI ZelStatus zeliMinIndx_8u_C1R(
    const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel8u* pMin, int* pIndexX, int* pIndexY);
ZELAPI ZelStatus zeliMinIndx_8u_C3R(
    const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel8u* pMin, int* pIndexX, int* pIndexY);
ZELAPI ZelStatus zeliMinIndx_8u_C4R(
    const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel8u* pMin, int* pIndexX, int* pIndexY);
ZELAPI ZelStatus zeliMinIndx_8u_AC4R(
    const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel8u* pMin, int* pIndexX, int* pIndexY);
ZELAPI ZelStatus zeliMinIndx_16u_C1R(
    const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel16u* pMin, int* pIndexX, int* pIndexY);
ZELAPI ZelStatus zeliMinIndx_16u_C3R(
    const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel16u* pMin, int* pIndexX, int* pIndexY);
ZELAPI ZelStatus zeliMinIndx_16u_C4R(
    const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel16u* pMin, int* pIndexX, int* pIndexY);
ZELAPI ZelStatus zeliMinIndx_16u_AC4R(
    const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel16u* pMin, int* pIndexX, int* pIndexY);
ZELAPI ZelStatus zeliMinIndx_16s_C1R(
    const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel16s* pMin, int* pIndexX, int* pIndexY);
ZELAPI ZelStatus zeliMinIndx_16s_C3R(
    const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel16s* pMin, int* pIndexX, int* pIndexY);
ZELAPI ZelStatus zeliMinIndx_16s_C4R(
    const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel16s* pMin, int* pIndexX, int* pIndexY);
ZELAPI ZelStatus zeliMinIndx_16s_AC4R(
    const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel16s* pMin, int* pIndexX, int* pIndexY);
ZELAPI ZelStatus zeliMinIndx_32f_C1R(
    const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel32f* pMin, int* pIndexX, int* pIndexY);
ZELAPI ZelStatus zeliMinIndx_32f_C3R(
    const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel32f* pMin, int* pIndexX, int* pIndexY);
ZELAPI ZelStatus zeliMinIndx_32f_C4R(
    const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel32f* pMin, int* pIndexX, int* pIndexY);
ZELAPI ZelStatus zeliMinIndx_32f_AC4R(
    const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel32f* pMin, int* pIndexX, int* pIndexY);

/* zeliMaxIndx */
ZELAPI ZelStatus zeliMaxIndx_8u_C1R(
    const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel8u* pMax, int* pIndexX, int* pIndexY);
ZELAPI ZelStatus zeliMaxIndx_8u_C3R(
    const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel8u* pMax, int* pIndexX, int* pIndexY);
ZELAPI ZelStatus zeliMaxIndx_8u_C4R(
    const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel8u* pMax, int* pIndexX, int* pIndexY);
ZELAPI ZelStatus zeliMaxIndx_8u_AC4R(
    const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel8u* pMax, int* pIndexX, int* pIndexY);
ZELAPI ZelStatus zeliMaxIndx_16u_C1R(
    const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel16u* pMax, int* pIndexX, int* pIndexY);
ZELAPI ZelStatus zeliMaxIndx_16u_C3R(
    const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel16u* pMax, int* pIndexX, int* pIndexY);
ZELAPI ZelStatus zeliMaxIndx_16u_C4R(
    const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel16u* pMax, int* pIndexX, int* pIndexY);
ZELAPI ZelStatus zeliMaxIndx_16u_AC4R(
    const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel16u* pMax, int* pIndexX, int* pIndexY);
ZELAPI ZelStatus zeliMaxIndx_16s_C1R(
    const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel16s* pMax, int* pIndexX, int* pIndexY);
ZELAPI ZelStatus zeliMaxIndx_16s_C3R(
    const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel16s* pMax, int* pIndexX, int* pIndexY);
ZELAPI ZelStatus zeliMaxIndx_16s_C4R(
    const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel16s* pMax, int* pIndexX, int* pIndexY);
ZELAPI ZelStatus zeliMaxIndx_16s_AC4R(
    const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel16s* pMax, int* pIndexX, int* pIndexY);
ZELAPI ZelStatus zeliMaxIndx_32f_C1R(
    const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel32f* pMax, int* pIndexX, int* pIndexY);
ZELAPI ZelStatus zeliMaxIndx_32f_C3R(
    const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel32f* pMax, int* pIndexX, int* pIndexY);
ZELAPI ZelStatus zeliMaxIndx_32f_C4R(
    const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel32f* pMax, int* pIndexX, int* pIndexY);
ZELAPI ZelStatus zeliMaxIndx_32f_AC4R(
    const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel32f* pMax, int* pIndexX, int* pIndexY);

/* zeliMinEvery */
ZELAPI ZelStatus zeliMinEvery_8u_C1IR(
    const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMinEvery_8u_C3IR(
    const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMinEvery_8u_C4IR(
    const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMinEvery_8u_AC4IR(
    const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMinEvery_16u_C1IR(
    const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMinEvery_16u_C3IR(
    const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMinEvery_16u_C4IR(
    const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMinEvery_16u_AC4IR(
    const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMinEvery_16s_C1IR(
    const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMinEvery_16s_C3IR(
    const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMinEvery_16s_C4IR(
    const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMinEvery_16s_AC4IR(
    const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMinEvery_32f_C1IR(
    const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMinEvery_32f_C3IR(
    const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMinEvery_32f_C4IR(
    const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMinEvery_32f_AC4IR(
    const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);

/* zeliMaxEvery */
ZELAPI ZelStatus zeliMaxEvery_8u_C1IR(
    const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMaxEvery_8u_C3IR(
    const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMaxEvery_8u_C4IR(
    const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMaxEvery_8u_AC4IR(
    const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMaxEvery_16u_C1IR(
    const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMaxEvery_16u_C3IR(
    const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMaxEvery_16u_C4IR(
    const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMaxEvery_16u_AC4IR(
    const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMaxEvery_16s_C1IR(
    const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMaxEvery_16s_C3IR(
    const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMaxEvery_16s_C4IR(
    const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMaxEvery_16s_AC4IR(
    const Zel16s* pSrc, int srcStep, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMaxEvery_32f_C1IR(
    const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMaxEvery_32f_C3IR(
    const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMaxEvery_32f_C4IR(
    const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliMaxEvery_32f_AC4IR(
    const Zel32f* pSrc, int srcStep, Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);

/* ==== Norms =============================================================

   One Zel64f a channel (three for AC4, the alpha left out).
   zeliNorm: max |a|, sum |a|, sqrt(sum a^2) of one image.
   zeliNormDiff: the same of a - b. zeliNormRel: the norm of a - b divided by
   that of b (for L2 one root of the quotient); a denominator below the
   smallest normal Zel64f stores the numerator and warns (status 6).
   32f L1 and L2 take a hint: 2 accumulates in Zel64f, anything else in Zel32f
   lanes within each row.

   Checks: zelStatusNullPointer, zelStatusBadSize, then zelStatusBadStep.

   Example:
       Zel8u a[4] = {1, 2, 3, 4}, b[4] = {1, 0, 3, 8};
       Zel64f l2 = 0;
       ZeliSize roi = {4, 1};
       ZelStatus st = zeliNormDiff_L2_8u_C1R(a, 4, b, 4, roi, &l2); // sqrt(4 + 16) */

/* zeliNorm */
ZELAPI ZelStatus zeliNorm_Inf_8u_C1R(
    const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pValue);
ZELAPI ZelStatus zeliNorm_Inf_8u_C3R(
    const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pValue);
ZELAPI ZelStatus zeliNorm_Inf_8u_C4R(
    const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pValue);
ZELAPI ZelStatus zeliNorm_Inf_8u_AC4R(
    const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pValue);
ZELAPI ZelStatus zeliNorm_Inf_16u_C1R(
    const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pValue);
ZELAPI ZelStatus zeliNorm_Inf_16u_C3R(
    const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pValue);
ZELAPI ZelStatus zeliNorm_Inf_16u_C4R(
    const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pValue);
ZELAPI ZelStatus zeliNorm_Inf_16u_AC4R(
    const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pValue);
ZELAPI ZelStatus zeliNorm_Inf_16s_C1R(
    const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pValue);
ZELAPI ZelStatus zeliNorm_Inf_16s_C3R(
    const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pValue);
ZELAPI ZelStatus zeliNorm_Inf_16s_C4R(
    const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pValue);
ZELAPI ZelStatus zeliNorm_Inf_16s_AC4R(
    const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pValue);
ZELAPI ZelStatus zeliNorm_Inf_32f_C1R(
    const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pValue);
ZELAPI ZelStatus zeliNorm_Inf_32f_C3R(
    const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pValue);
ZELAPI ZelStatus zeliNorm_Inf_32f_C4R(
    const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pValue);
ZELAPI ZelStatus zeliNorm_Inf_32f_AC4R(
    const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pValue);
ZELAPI ZelStatus zeliNorm_Inf_32s_C1R(
    const Zel32s* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pValue);
ZELAPI ZelStatus zeliNorm_L1_8u_C1R(
    const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pValue);
ZELAPI ZelStatus zeliNorm_L1_8u_C3R(
    const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pValue);
ZELAPI ZelStatus zeliNorm_L1_8u_C4R(
    const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pValue);
ZELAPI ZelStatus zeliNorm_L1_8u_AC4R(
    const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pValue);
ZELAPI ZelStatus zeliNorm_L1_16u_C1R(
    const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pValue);
ZELAPI ZelStatus zeliNorm_L1_16u_C3R(
    const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pValue);
ZELAPI ZelStatus zeliNorm_L1_16u_C4R(
    const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pValue);
ZELAPI ZelStatus zeliNorm_L1_16u_AC4R(
    const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pValue);
ZELAPI ZelStatus zeliNorm_L1_16s_C1R(
    const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pValue);
ZELAPI ZelStatus zeliNorm_L1_16s_C3R(
    const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pValue);
ZELAPI ZelStatus zeliNorm_L1_16s_C4R(
    const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pValue);
ZELAPI ZelStatus zeliNorm_L1_16s_AC4R(
    const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pValue);
ZELAPI ZelStatus zeliNorm_L1_32f_C1R(
    const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pValue, ZelHintAlgorithm hint);
ZELAPI ZelStatus zeliNorm_L1_32f_C3R(
    const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pValue, ZelHintAlgorithm hint);
ZELAPI ZelStatus zeliNorm_L1_32f_C4R(
    const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pValue, ZelHintAlgorithm hint);
ZELAPI ZelStatus zeliNorm_L1_32f_AC4R(
    const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pValue, ZelHintAlgorithm hint);
ZELAPI ZelStatus zeliNorm_L2_8u_C1R(
    const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pValue);
ZELAPI ZelStatus zeliNorm_L2_8u_C3R(
    const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pValue);
ZELAPI ZelStatus zeliNorm_L2_8u_C4R(
    const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pValue);
ZELAPI ZelStatus zeliNorm_L2_8u_AC4R(
    const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pValue);
ZELAPI ZelStatus zeliNorm_L2_16u_C1R(
    const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pValue);
ZELAPI ZelStatus zeliNorm_L2_16u_C3R(
    const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pValue);
ZELAPI ZelStatus zeliNorm_L2_16u_C4R(
    const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pValue);
ZELAPI ZelStatus zeliNorm_L2_16u_AC4R(
    const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pValue);
ZELAPI ZelStatus zeliNorm_L2_16s_C1R(
    const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pValue);
ZELAPI ZelStatus zeliNorm_L2_16s_C3R(
    const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pValue);
ZELAPI ZelStatus zeliNorm_L2_16s_C4R(
    const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pValue);
ZELAPI ZelStatus zeliNorm_L2_16s_AC4R(
    const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pValue);
ZELAPI ZelStatus zeliNorm_L2_32f_C1R(
    const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pValue, ZelHintAlgorithm hint);
ZELAPI ZelStatus zeliNorm_L2_32f_C3R(
    const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pValue, ZelHintAlgorithm hint);
ZELAPI ZelStatus zeliNorm_L2_32f_C4R(
    const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pValue, ZelHintAlgorithm hint);
ZELAPI ZelStatus zeliNorm_L2_32f_AC4R(
    const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pValue, ZelHintAlgorithm hint);

/* zeliNormDiff */
ZELAPI ZelStatus zeliNormDiff_Inf_8u_C1R(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormDiff_Inf_8u_C3R(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormDiff_Inf_8u_C4R(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormDiff_Inf_8u_AC4R(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormDiff_Inf_16u_C1R(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormDiff_Inf_16u_C3R(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormDiff_Inf_16u_C4R(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormDiff_Inf_16u_AC4R(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormDiff_Inf_16s_C1R(
    const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormDiff_Inf_16s_C3R(
    const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormDiff_Inf_16s_C4R(
    const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormDiff_Inf_16s_AC4R(
    const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormDiff_Inf_32f_C1R(
    const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormDiff_Inf_32f_C3R(
    const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormDiff_Inf_32f_C4R(
    const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormDiff_Inf_32f_AC4R(
    const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormDiff_L1_8u_C1R(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormDiff_L1_8u_C3R(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormDiff_L1_8u_C4R(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormDiff_L1_8u_AC4R(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormDiff_L1_16u_C1R(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormDiff_L1_16u_C3R(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormDiff_L1_16u_C4R(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormDiff_L1_16u_AC4R(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormDiff_L1_16s_C1R(
    const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormDiff_L1_16s_C3R(
    const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormDiff_L1_16s_C4R(
    const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormDiff_L1_16s_AC4R(
    const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormDiff_L1_32f_C1R(
    const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue, ZelHintAlgorithm hint);
ZELAPI ZelStatus zeliNormDiff_L1_32f_C3R(
    const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue, ZelHintAlgorithm hint);
ZELAPI ZelStatus zeliNormDiff_L1_32f_C4R(
    const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue, ZelHintAlgorithm hint);
ZELAPI ZelStatus zeliNormDiff_L1_32f_AC4R(
    const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue, ZelHintAlgorithm hint);
ZELAPI ZelStatus zeliNormDiff_L2_8u_C1R(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormDiff_L2_8u_C3R(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormDiff_L2_8u_C4R(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormDiff_L2_8u_AC4R(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormDiff_L2_16u_C1R(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormDiff_L2_16u_C3R(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormDiff_L2_16u_C4R(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormDiff_L2_16u_AC4R(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormDiff_L2_16s_C1R(
    const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormDiff_L2_16s_C3R(
    const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormDiff_L2_16s_C4R(
    const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormDiff_L2_16s_AC4R(
    const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormDiff_L2_32f_C1R(
    const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue, ZelHintAlgorithm hint);
ZELAPI ZelStatus zeliNormDiff_L2_32f_C3R(
    const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue, ZelHintAlgorithm hint);
ZELAPI ZelStatus zeliNormDiff_L2_32f_C4R(
    const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue, ZelHintAlgorithm hint);
ZELAPI ZelStatus zeliNormDiff_L2_32f_AC4R(
    const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue, ZelHintAlgorithm hint);

/* zeliNormRel */
ZELAPI ZelStatus zeliNormRel_Inf_8u_C1R(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormRel_Inf_8u_C3R(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormRel_Inf_8u_C4R(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormRel_Inf_8u_AC4R(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormRel_Inf_16u_C1R(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormRel_Inf_16u_C3R(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormRel_Inf_16u_C4R(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormRel_Inf_16u_AC4R(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormRel_Inf_16s_C1R(
    const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormRel_Inf_16s_C3R(
    const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormRel_Inf_16s_C4R(
    const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormRel_Inf_16s_AC4R(
    const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormRel_Inf_32f_C1R(
    const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormRel_Inf_32f_C3R(
    const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormRel_Inf_32f_C4R(
    const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormRel_Inf_32f_AC4R(
    const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormRel_L1_8u_C1R(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormRel_L1_8u_C3R(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormRel_L1_8u_C4R(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormRel_L1_8u_AC4R(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormRel_L1_16u_C1R(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormRel_L1_16u_C3R(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormRel_L1_16u_C4R(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormRel_L1_16u_AC4R(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormRel_L1_16s_C1R(
    const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormRel_L1_16s_C3R(
    const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormRel_L1_16s_C4R(
    const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormRel_L1_16s_AC4R(
    const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormRel_L1_32f_C1R(
    const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue, ZelHintAlgorithm hint);
ZELAPI ZelStatus zeliNormRel_L1_32f_C3R(
    const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue, ZelHintAlgorithm hint);
ZELAPI ZelStatus zeliNormRel_L1_32f_C4R(
    const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue, ZelHintAlgorithm hint);
ZELAPI ZelStatus zeliNormRel_L1_32f_AC4R(
    const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue, ZelHintAlgorithm hint);
ZELAPI ZelStatus zeliNormRel_L2_8u_C1R(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormRel_L2_8u_C3R(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormRel_L2_8u_C4R(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormRel_L2_8u_AC4R(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormRel_L2_16u_C1R(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormRel_L2_16u_C3R(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormRel_L2_16u_C4R(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormRel_L2_16u_AC4R(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormRel_L2_16s_C1R(
    const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormRel_L2_16s_C3R(
    const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormRel_L2_16s_C4R(
    const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormRel_L2_16s_AC4R(
    const Zel16s* pSrc1, int src1Step, const Zel16s* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue);
ZELAPI ZelStatus zeliNormRel_L2_32f_C1R(
    const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue, ZelHintAlgorithm hint);
ZELAPI ZelStatus zeliNormRel_L2_32f_C3R(
    const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue, ZelHintAlgorithm hint);
ZELAPI ZelStatus zeliNormRel_L2_32f_C4R(
    const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue, ZelHintAlgorithm hint);
ZELAPI ZelStatus zeliNormRel_L2_32f_AC4R(
    const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, ZeliSize roiSize,
    Zel64f* pValue, ZelHintAlgorithm hint);

/* ==== Histograms and counting ===========================================

   zeliHistogramRange: counts of level[k] <= v < level[k + 1] into nLevels - 1
   bins a channel. zeliHistogramEven: makes nLevels levels evenly from
   lowerLevel to upperLevel (the first bins take the remainder), stores them
   and counts likewise. Multi-channel forms take arrays of one entry a channel
   (three for C3 and AC4, four for C4). zeliCountInRange: the samples with
   lower <= v <= upper, one count a channel.

   Checks: zelStatusNullPointer, zelStatusBadSize, zelStatusBadStep, then
   zelStatusBadHistogramLevels for fewer than two levels (zeliHistogramRange
   tests the levels right after the pointers). zeliCountInRange: -8, -14, -6,
   then zelStatusBadRange when lowerBound is above upperBound. A lowerLevel
   above upperLevel is valid in zeliHistogramEven: the levels descend, no
   sample lies in a bin, and every count is 0.

   Example:
       Zel8u img[4 * 2] = {0, 10, 20, 30, 40, 50, 60, 255};
       Zel32s hist[4], levels[5];
       ZeliSize roi = {4, 2};
       // levels 0, 64, 128, 192, 256: counts 7, 0, 0, 1
       ZelStatus st = zeliHistogramEven_8u_C1R(img, 4, roi, hist, levels, 5, 0, 256); */

/* zeliHistogramEven */
ZELAPI ZelStatus zeliHistogramEven_8u_C1R(
    const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel32s* pHist, Zel32s* pLevels, int nLevels,
    Zel32s lowerLevel, Zel32s upperLevel);
ZELAPI ZelStatus zeliHistogramEven_8u_C3R(
    const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel32s* pHist[3], Zel32s* pLevels[3],
    int nLevels[3], Zel32s lowerLevel[3], Zel32s upperLevel[3]);
ZELAPI ZelStatus zeliHistogramEven_8u_C4R(
    const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel32s* pHist[4], Zel32s* pLevels[4],
    int nLevels[4], Zel32s lowerLevel[4], Zel32s upperLevel[4]);
ZELAPI ZelStatus zeliHistogramEven_8u_AC4R(
    const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel32s* pHist[3], Zel32s* pLevels[3],
    int nLevels[3], Zel32s lowerLevel[3], Zel32s upperLevel[3]);
ZELAPI ZelStatus zeliHistogramEven_16u_C1R(
    const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel32s* pHist, Zel32s* pLevels, int nLevels,
    Zel32s lowerLevel, Zel32s upperLevel);
ZELAPI ZelStatus zeliHistogramEven_16u_C3R(
    const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel32s* pHist[3], Zel32s* pLevels[3],
    int nLevels[3], Zel32s lowerLevel[3], Zel32s upperLevel[3]);
ZELAPI ZelStatus zeliHistogramEven_16u_C4R(
    const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel32s* pHist[4], Zel32s* pLevels[4],
    int nLevels[4], Zel32s lowerLevel[4], Zel32s upperLevel[4]);
ZELAPI ZelStatus zeliHistogramEven_16u_AC4R(
    const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel32s* pHist[3], Zel32s* pLevels[3],
    int nLevels[3], Zel32s lowerLevel[3], Zel32s upperLevel[3]);
ZELAPI ZelStatus zeliHistogramEven_16s_C1R(
    const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel32s* pHist, Zel32s* pLevels, int nLevels,
    Zel32s lowerLevel, Zel32s upperLevel);
ZELAPI ZelStatus zeliHistogramEven_16s_C3R(
    const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel32s* pHist[3], Zel32s* pLevels[3],
    int nLevels[3], Zel32s lowerLevel[3], Zel32s upperLevel[3]);
ZELAPI ZelStatus zeliHistogramEven_16s_C4R(
    const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel32s* pHist[4], Zel32s* pLevels[4],
    int nLevels[4], Zel32s lowerLevel[4], Zel32s upperLevel[4]);
ZELAPI ZelStatus zeliHistogramEven_16s_AC4R(
    const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel32s* pHist[3], Zel32s* pLevels[3],
    int nLevels[3], Zel32s lowerLevel[3], Zel32s upperLevel[3]);

/* zeliHistogramRange */
ZELAPI ZelStatus zeliHistogramRange_8u_C1R(
    const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel32s* pHist, const Zel32s* pLevels,
    int nLevels);
ZELAPI ZelStatus zeliHistogramRange_8u_C3R(
    const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel32s* pHist[3], const Zel32s* pLevels[3],
    int nLevels[3]);
ZELAPI ZelStatus zeliHistogramRange_8u_C4R(
    const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel32s* pHist[4], const Zel32s* pLevels[4],
    int nLevels[4]);
ZELAPI ZelStatus zeliHistogramRange_8u_AC4R(
    const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel32s* pHist[3], const Zel32s* pLevels[3],
    int nLevels[3]);
ZELAPI ZelStatus zeliHistogramRange_16u_C1R(
    const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel32s* pHist, const Zel32s* pLevels,
    int nLevels);
ZELAPI ZelStatus zeliHistogramRange_16u_C3R(
    const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel32s* pHist[3], const Zel32s* pLevels[3],
    int nLevels[3]);
ZELAPI ZelStatus zeliHistogramRange_16u_C4R(
    const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel32s* pHist[4], const Zel32s* pLevels[4],
    int nLevels[4]);
ZELAPI ZelStatus zeliHistogramRange_16u_AC4R(
    const Zel16u* pSrc, int srcStep, ZeliSize roiSize, Zel32s* pHist[3], const Zel32s* pLevels[3],
    int nLevels[3]);
ZELAPI ZelStatus zeliHistogramRange_16s_C1R(
    const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel32s* pHist, const Zel32s* pLevels,
    int nLevels);
ZELAPI ZelStatus zeliHistogramRange_16s_C3R(
    const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel32s* pHist[3], const Zel32s* pLevels[3],
    int nLevels[3]);
ZELAPI ZelStatus zeliHistogramRange_16s_C4R(
    const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel32s* pHist[4], const Zel32s* pLevels[4],
    int nLevels[4]);
ZELAPI ZelStatus zeliHistogramRange_16s_AC4R(
    const Zel16s* pSrc, int srcStep, ZeliSize roiSize, Zel32s* pHist[3], const Zel32s* pLevels[3],
    int nLevels[3]);
ZELAPI ZelStatus zeliHistogramRange_32f_C1R(
    const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel32s* pHist, const Zel32f* pLevels,
    int nLevels);
ZELAPI ZelStatus zeliHistogramRange_32f_C3R(
    const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel32s* pHist[3], const Zel32f* pLevels[3],
    int nLevels[3]);
ZELAPI ZelStatus zeliHistogramRange_32f_C4R(
    const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel32s* pHist[4], const Zel32f* pLevels[4],
    int nLevels[4]);
ZELAPI ZelStatus zeliHistogramRange_32f_AC4R(
    const Zel32f* pSrc, int srcStep, ZeliSize roiSize, Zel32s* pHist[3], const Zel32f* pLevels[3],
    int nLevels[3]);

/* zeliCountInRange */
ZELAPI ZelStatus zeliCountInRange_8u_C1R(
    const Zel8u* pSrc, int srcStep, ZeliSize roiSize, int* counts, Zel8u lowerBound,
    Zel8u upperBound);
ZELAPI ZelStatus zeliCountInRange_8u_C3R(
    const Zel8u* pSrc, int srcStep, ZeliSize roiSize, int counts[3], Zel8u lowerBound[3],
    Zel8u upperBound[3]);
ZELAPI ZelStatus zeliCountInRange_8u_AC4R(
    const Zel8u* pSrc, int srcStep, ZeliSize roiSize, int counts[3], Zel8u lowerBound[3],
    Zel8u upperBound[3]);
ZELAPI ZelStatus zeliCountInRange_32f_C1R(
    const Zel32f* pSrc, int srcStep, ZeliSize roiSize, int* counts, Zel32f lowerBound,
    Zel32f upperBound);
ZELAPI ZelStatus zeliCountInRange_32f_C3R(
    const Zel32f* pSrc, int srcStep, ZeliSize roiSize, int counts[3], Zel32f lowerBound[3],
    Zel32f upperBound[3]);
ZELAPI ZelStatus zeliCountInRange_32f_AC4R(
    const Zel32f* pSrc, int srcStep, ZeliSize roiSize, int counts[3], Zel32f lowerBound[3],
    Zel32f upperBound[3]);

/* ==== Unary mathematics, sample by sample ===============================

   zeliAbs: |x|, with -32768 giving
   32767 and a float losing its sign bit; zeliSqr: x * x; zeliSqrt: the square
   root; zeliLn: the natural logarithm; zeliExp: e to the x. Sfs forms scale
   the result by two to the minus scaleFactor: the square by the ties-to-even
   rule of zeliAdd, the root and the logarithm to nearest, the exponential
   truncated; all saturate. A sample below zero gives NaN (32f) or 0 in
   zeliSqrt, NaN (32f) or the type's lowest value in zeliLn; zero gives minus
   infinity (32f) or the type's lowest value in zeliLn. zeliAbs and
   zeliSqrt_32f walk an out-of-place source by its step rounded down to whole
   samples.

   Checks: zelStatusNullPointer, zelStatusBadSize, zelStatusBadStep. The
   warnings zelStatusSqrtNegativeWarning (a negative sample in zeliSqrt),
   zelStatusLnNegativeWarning and zelStatusLnZeroWarning (zeliLn) come with
   every result written; the first row that raises one decides which.

   Example:
       Zel16s v[4] = {-32768, -5, 0, 7};
       Zel8u x[4] = {0, 1, 100, 255}, r[4];
       ZeliSize roi = {4, 1};
       // |v| in place: 32767, 5, 0, 7
       ZelStatus st = zeliAbs_16s_C1IR(v, 8, roi);
       // sqrt(x) * 2: 0, 2, 20, 32 (31.94 rounded)
       if (st == zelStatusOk) st = zeliSqrt_8u_C1RSfs(x, 4, r, 4, roi, -1); */

/* zeliAbs */
ZELAPI ZelStatus zeliAbs_16s_C1R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAbs_16s_C1IR(Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAbs_16s_C3R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAbs_16s_C3IR(Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAbs_16s_C4R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAbs_16s_C4IR(Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAbs_16s_AC4R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAbs_16s_AC4IR(Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAbs_32f_C1R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAbs_32f_C1IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAbs_32f_C3R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAbs_32f_C3IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAbs_32f_C4R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAbs_32f_C4IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAbs_32f_AC4R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAbs_32f_AC4IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);

/* zeliSqr */
ZELAPI ZelStatus zeliSqr_8u_C1RSfs(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqr_8u_C1IRSfs(
    Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqr_8u_C3RSfs(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqr_8u_C3IRSfs(
    Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqr_8u_C4RSfs(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqr_8u_C4IRSfs(
    Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqr_8u_AC4RSfs(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqr_8u_AC4IRSfs(
    Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqr_16u_C1RSfs(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqr_16u_C1IRSfs(
    Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqr_16u_C3RSfs(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqr_16u_C3IRSfs(
    Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqr_16u_C4RSfs(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqr_16u_C4IRSfs(
    Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqr_16u_AC4RSfs(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqr_16u_AC4IRSfs(
    Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqr_16s_C1RSfs(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqr_16s_C1IRSfs(
    Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqr_16s_C3RSfs(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqr_16s_C3IRSfs(
    Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqr_16s_C4RSfs(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqr_16s_C4IRSfs(
    Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqr_16s_AC4RSfs(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqr_16s_AC4IRSfs(
    Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqr_32f_C1R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSqr_32f_C1IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSqr_32f_C3R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSqr_32f_C3IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSqr_32f_C4R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSqr_32f_C4IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSqr_32f_AC4R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSqr_32f_AC4IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);

/* zeliSqrt */
ZELAPI ZelStatus zeliSqrt_8u_C1RSfs(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqrt_8u_C1IRSfs(
    Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqrt_8u_C3RSfs(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqrt_8u_C3IRSfs(
    Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqrt_8u_AC4RSfs(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqrt_8u_AC4IRSfs(
    Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqrt_16u_C1RSfs(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqrt_16u_C1IRSfs(
    Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqrt_16u_C3RSfs(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqrt_16u_C3IRSfs(
    Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqrt_16u_AC4RSfs(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqrt_16u_AC4IRSfs(
    Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqrt_16s_C1RSfs(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqrt_16s_C1IRSfs(
    Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqrt_16s_C3RSfs(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqrt_16s_C3IRSfs(
    Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqrt_16s_AC4RSfs(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqrt_16s_AC4IRSfs(
    Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliSqrt_32f_C1R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSqrt_32f_C1IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSqrt_32f_C3R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSqrt_32f_C3IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSqrt_32f_AC4R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSqrt_32f_AC4IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliSqrt_32f_C4IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);

/* zeliLn */
ZELAPI ZelStatus zeliLn_8u_C1RSfs(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliLn_8u_C1IRSfs(
    Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliLn_8u_C3RSfs(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliLn_8u_C3IRSfs(
    Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliLn_16u_C1RSfs(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliLn_16u_C1IRSfs(
    Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliLn_16u_C3RSfs(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliLn_16u_C3IRSfs(
    Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliLn_16s_C1RSfs(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliLn_16s_C1IRSfs(
    Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliLn_16s_C3RSfs(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliLn_16s_C3IRSfs(
    Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliLn_32f_C1R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliLn_32f_C1IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliLn_32f_C3R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliLn_32f_C3IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);

/* zeliExp */
ZELAPI ZelStatus zeliExp_8u_C1RSfs(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliExp_8u_C1IRSfs(
    Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliExp_8u_C3RSfs(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliExp_8u_C3IRSfs(
    Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliExp_16u_C1RSfs(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliExp_16u_C1IRSfs(
    Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliExp_16u_C3RSfs(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliExp_16u_C3IRSfs(
    Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliExp_16s_C1RSfs(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliExp_16s_C1IRSfs(
    Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliExp_16s_C3RSfs(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliExp_16s_C3IRSfs(
    Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor);
ZELAPI ZelStatus zeliExp_32f_C1R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliExp_32f_C1IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliExp_32f_C3R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliExp_32f_C3IR(Zel32f* pSrcDst, int srcDstStep, ZeliSize roiSize);

/* ==== Bitwise operations and shifts =====================================

   zeliAnd, zeliOr, zeliXor: dst = src1 op src2
   (in place srcDst = src op srcDst); zeliAndC, zeliOrC, zeliXorC: dst = src op
   value, one value a channel; zeliNot: dst = ~src. zeliLShiftC, zeliRShiftC:
   shifts by a count a channel (value), left discarding high bits, right
   logical on unsigned and arithmetic on signed samples; a count at or beyond
   the sample's bits gives 0, or the sign fill (0 or -1) on signed samples.
   zeliComplement_32s_C1IR: two's complement to sign and magnitude. AC4 forms
   leave alpha alone.

   Checks: zelStatusNullPointer, zelStatusBadStep, zelStatusBadSize; the
   two-image C3, C4 and AC4 forms test the width (zelStatusBadSize) first. A
   count is never an error.

   Example:
       Zel8u a[4] = {0xf0, 0x0f, 0xff, 200}, b[4] = {0x3c, 0x3c, 0x01, 255}, d[4];
       Zel8s s[2] = {-5, 5}, t[2];
       ZeliSize roi = {4, 1}, two = {2, 1};
       // a AND b: 0x30, 0x0c, 0x01, 200
       ZelStatus st = zeliAnd_8u_C1R(a, 4, b, 4, d, 4, roi);
       // a << 1, high bits dropped: 0xe0, 0x1e, 0xfe, 144
       if (st == zelStatusOk) st = zeliLShiftC_8u_C1R(a, 4, 1, d, 4, roi);
       // beyond the bits a signed sample keeps its sign: -1, 0
       if (st == zelStatusOk) st = zeliRShiftC_8s_C1R(s, 2, 40, t, 2, two); */

/* zeliAnd */
ZELAPI ZelStatus zeliAnd_8u_C1R(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliAnd_8u_C1IR(
    const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAnd_8u_C3R(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliAnd_8u_C3IR(
    const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAnd_8u_C4R(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliAnd_8u_C4IR(
    const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAnd_8u_AC4R(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliAnd_8u_AC4IR(
    const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAnd_16u_C1R(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliAnd_16u_C1IR(
    const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAnd_16u_C3R(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliAnd_16u_C3IR(
    const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAnd_16u_C4R(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliAnd_16u_C4IR(
    const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAnd_16u_AC4R(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliAnd_16u_AC4IR(
    const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAnd_32s_C1R(
    const Zel32s* pSrc1, int src1Step, const Zel32s* pSrc2, int src2Step, Zel32s* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliAnd_32s_C1IR(
    const Zel32s* pSrc, int srcStep, Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAnd_32s_C3R(
    const Zel32s* pSrc1, int src1Step, const Zel32s* pSrc2, int src2Step, Zel32s* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliAnd_32s_C3IR(
    const Zel32s* pSrc, int srcStep, Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAnd_32s_C4R(
    const Zel32s* pSrc1, int src1Step, const Zel32s* pSrc2, int src2Step, Zel32s* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliAnd_32s_C4IR(
    const Zel32s* pSrc, int srcStep, Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAnd_32s_AC4R(
    const Zel32s* pSrc1, int src1Step, const Zel32s* pSrc2, int src2Step, Zel32s* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliAnd_32s_AC4IR(
    const Zel32s* pSrc, int srcStep, Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);

/* zeliAndC */
ZELAPI ZelStatus zeliAndC_8u_C1R(
    const Zel8u* pSrc, int srcStep, Zel8u value, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAndC_8u_C1IR(Zel8u value, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAndC_8u_C3R(
    const Zel8u* pSrc, int srcStep, const Zel8u* value, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAndC_8u_C3IR(
    const Zel8u* value, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAndC_8u_C4R(
    const Zel8u* pSrc, int srcStep, const Zel8u* value, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAndC_8u_C4IR(
    const Zel8u* value, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAndC_8u_AC4R(
    const Zel8u* pSrc, int srcStep, const Zel8u* value, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAndC_8u_AC4IR(
    const Zel8u* value, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAndC_16u_C1R(
    const Zel16u* pSrc, int srcStep, Zel16u value, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAndC_16u_C1IR(Zel16u value, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAndC_16u_C3R(
    const Zel16u* pSrc, int srcStep, const Zel16u* value, Zel16u* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliAndC_16u_C3IR(
    const Zel16u* value, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAndC_16u_C4R(
    const Zel16u* pSrc, int srcStep, const Zel16u* value, Zel16u* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliAndC_16u_C4IR(
    const Zel16u* value, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAndC_16u_AC4R(
    const Zel16u* pSrc, int srcStep, const Zel16u* value, Zel16u* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliAndC_16u_AC4IR(
    const Zel16u* value, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAndC_32s_C1R(
    const Zel32s* pSrc, int srcStep, Zel32s value, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAndC_32s_C1IR(Zel32s value, Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAndC_32s_C3R(
    const Zel32s* pSrc, int srcStep, const Zel32s* value, Zel32s* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliAndC_32s_C3IR(
    const Zel32s* value, Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAndC_32s_C4R(
    const Zel32s* pSrc, int srcStep, const Zel32s* value, Zel32s* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliAndC_32s_C4IR(
    const Zel32s* value, Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliAndC_32s_AC4R(
    const Zel32s* pSrc, int srcStep, const Zel32s* value, Zel32s* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliAndC_32s_AC4IR(
    const Zel32s* value, Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);

/* zeliOr */
ZELAPI ZelStatus zeliOr_8u_C1R(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliOr_8u_C1IR(
    const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOr_8u_C3R(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliOr_8u_C3IR(
    const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOr_8u_C4R(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliOr_8u_C4IR(
    const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOr_8u_AC4R(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliOr_8u_AC4IR(
    const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOr_16u_C1R(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliOr_16u_C1IR(
    const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOr_16u_C3R(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliOr_16u_C3IR(
    const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOr_16u_C4R(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliOr_16u_C4IR(
    const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOr_16u_AC4R(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliOr_16u_AC4IR(
    const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOr_32s_C1R(
    const Zel32s* pSrc1, int src1Step, const Zel32s* pSrc2, int src2Step, Zel32s* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliOr_32s_C1IR(
    const Zel32s* pSrc, int srcStep, Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOr_32s_C3R(
    const Zel32s* pSrc1, int src1Step, const Zel32s* pSrc2, int src2Step, Zel32s* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliOr_32s_C3IR(
    const Zel32s* pSrc, int srcStep, Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOr_32s_C4R(
    const Zel32s* pSrc1, int src1Step, const Zel32s* pSrc2, int src2Step, Zel32s* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliOr_32s_C4IR(
    const Zel32s* pSrc, int srcStep, Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOr_32s_AC4R(
    const Zel32s* pSrc1, int src1Step, const Zel32s* pSrc2, int src2Step, Zel32s* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliOr_32s_AC4IR(
    const Zel32s* pSrc, int srcStep, Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);

/* zeliOrC */
ZELAPI ZelStatus zeliOrC_8u_C1R(
    const Zel8u* pSrc, int srcStep, Zel8u value, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOrC_8u_C1IR(Zel8u value, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOrC_8u_C3R(
    const Zel8u* pSrc, int srcStep, const Zel8u* value, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOrC_8u_C3IR(
    const Zel8u* value, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOrC_8u_C4R(
    const Zel8u* pSrc, int srcStep, const Zel8u* value, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOrC_8u_C4IR(
    const Zel8u* value, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOrC_8u_AC4R(
    const Zel8u* pSrc, int srcStep, const Zel8u* value, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOrC_8u_AC4IR(
    const Zel8u* value, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOrC_16u_C1R(
    const Zel16u* pSrc, int srcStep, Zel16u value, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOrC_16u_C1IR(Zel16u value, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOrC_16u_C3R(
    const Zel16u* pSrc, int srcStep, const Zel16u* value, Zel16u* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliOrC_16u_C3IR(
    const Zel16u* value, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOrC_16u_C4R(
    const Zel16u* pSrc, int srcStep, const Zel16u* value, Zel16u* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliOrC_16u_C4IR(
    const Zel16u* value, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOrC_16u_AC4R(
    const Zel16u* pSrc, int srcStep, const Zel16u* value, Zel16u* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliOrC_16u_AC4IR(
    const Zel16u* value, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOrC_32s_C1R(
    const Zel32s* pSrc, int srcStep, Zel32s value, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOrC_32s_C1IR(Zel32s value, Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOrC_32s_C3R(
    const Zel32s* pSrc, int srcStep, const Zel32s* value, Zel32s* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliOrC_32s_C3IR(
    const Zel32s* value, Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOrC_32s_C4R(
    const Zel32s* pSrc, int srcStep, const Zel32s* value, Zel32s* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliOrC_32s_C4IR(
    const Zel32s* value, Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliOrC_32s_AC4R(
    const Zel32s* pSrc, int srcStep, const Zel32s* value, Zel32s* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliOrC_32s_AC4IR(
    const Zel32s* value, Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);

/* zeliXor */
ZELAPI ZelStatus zeliXor_8u_C1R(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliXor_8u_C1IR(
    const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXor_8u_C3R(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliXor_8u_C3IR(
    const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXor_8u_C4R(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliXor_8u_C4IR(
    const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXor_8u_AC4R(
    const Zel8u* pSrc1, int src1Step, const Zel8u* pSrc2, int src2Step, Zel8u* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliXor_8u_AC4IR(
    const Zel8u* pSrc, int srcStep, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXor_16u_C1R(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliXor_16u_C1IR(
    const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXor_16u_C3R(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliXor_16u_C3IR(
    const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXor_16u_C4R(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliXor_16u_C4IR(
    const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXor_16u_AC4R(
    const Zel16u* pSrc1, int src1Step, const Zel16u* pSrc2, int src2Step, Zel16u* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliXor_16u_AC4IR(
    const Zel16u* pSrc, int srcStep, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXor_32s_C1R(
    const Zel32s* pSrc1, int src1Step, const Zel32s* pSrc2, int src2Step, Zel32s* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliXor_32s_C1IR(
    const Zel32s* pSrc, int srcStep, Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXor_32s_C3R(
    const Zel32s* pSrc1, int src1Step, const Zel32s* pSrc2, int src2Step, Zel32s* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliXor_32s_C3IR(
    const Zel32s* pSrc, int srcStep, Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXor_32s_C4R(
    const Zel32s* pSrc1, int src1Step, const Zel32s* pSrc2, int src2Step, Zel32s* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliXor_32s_C4IR(
    const Zel32s* pSrc, int srcStep, Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXor_32s_AC4R(
    const Zel32s* pSrc1, int src1Step, const Zel32s* pSrc2, int src2Step, Zel32s* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliXor_32s_AC4IR(
    const Zel32s* pSrc, int srcStep, Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);

/* zeliXorC */
ZELAPI ZelStatus zeliXorC_8u_C1R(
    const Zel8u* pSrc, int srcStep, Zel8u value, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXorC_8u_C1IR(Zel8u value, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXorC_8u_C3R(
    const Zel8u* pSrc, int srcStep, const Zel8u* value, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXorC_8u_C3IR(
    const Zel8u* value, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXorC_8u_C4R(
    const Zel8u* pSrc, int srcStep, const Zel8u* value, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXorC_8u_C4IR(
    const Zel8u* value, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXorC_8u_AC4R(
    const Zel8u* pSrc, int srcStep, const Zel8u* value, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXorC_8u_AC4IR(
    const Zel8u* value, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXorC_16u_C1R(
    const Zel16u* pSrc, int srcStep, Zel16u value, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXorC_16u_C1IR(Zel16u value, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXorC_16u_C3R(
    const Zel16u* pSrc, int srcStep, const Zel16u* value, Zel16u* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliXorC_16u_C3IR(
    const Zel16u* value, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXorC_16u_C4R(
    const Zel16u* pSrc, int srcStep, const Zel16u* value, Zel16u* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliXorC_16u_C4IR(
    const Zel16u* value, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXorC_16u_AC4R(
    const Zel16u* pSrc, int srcStep, const Zel16u* value, Zel16u* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliXorC_16u_AC4IR(
    const Zel16u* value, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXorC_32s_C1R(
    const Zel32s* pSrc, int srcStep, Zel32s value, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXorC_32s_C1IR(Zel32s value, Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXorC_32s_C3R(
    const Zel32s* pSrc, int srcStep, const Zel32s* value, Zel32s* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliXorC_32s_C3IR(
    const Zel32s* value, Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXorC_32s_C4R(
    const Zel32s* pSrc, int srcStep, const Zel32s* value, Zel32s* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliXorC_32s_C4IR(
    const Zel32s* value, Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliXorC_32s_AC4R(
    const Zel32s* pSrc, int srcStep, const Zel32s* value, Zel32s* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliXorC_32s_AC4IR(
    const Zel32s* value, Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);

/* zeliNot */
ZELAPI ZelStatus zeliNot_8u_C1R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliNot_8u_C1IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliNot_8u_C3R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliNot_8u_C3IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliNot_8u_C4R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliNot_8u_C4IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliNot_8u_AC4R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliNot_8u_AC4IR(Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);

/* zeliLShiftC */
ZELAPI ZelStatus zeliLShiftC_8u_C1R(
    const Zel8u* pSrc, int srcStep, Zel32u value, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliLShiftC_8u_C1IR(
    Zel32u value, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliLShiftC_8u_C3R(
    const Zel8u* pSrc, int srcStep, const Zel32u* value, Zel8u* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliLShiftC_8u_C3IR(
    const Zel32u* value, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliLShiftC_8u_C4R(
    const Zel8u* pSrc, int srcStep, const Zel32u* value, Zel8u* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliLShiftC_8u_C4IR(
    const Zel32u* value, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliLShiftC_8u_AC4R(
    const Zel8u* pSrc, int srcStep, const Zel32u* value, Zel8u* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliLShiftC_8u_AC4IR(
    const Zel32u* value, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliLShiftC_16u_C1R(
    const Zel16u* pSrc, int srcStep, Zel32u value, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliLShiftC_16u_C1IR(
    Zel32u value, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliLShiftC_16u_C3R(
    const Zel16u* pSrc, int srcStep, const Zel32u* value, Zel16u* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliLShiftC_16u_C3IR(
    const Zel32u* value, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliLShiftC_16u_C4R(
    const Zel16u* pSrc, int srcStep, const Zel32u* value, Zel16u* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliLShiftC_16u_C4IR(
    const Zel32u* value, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliLShiftC_16u_AC4R(
    const Zel16u* pSrc, int srcStep, const Zel32u* value, Zel16u* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliLShiftC_16u_AC4IR(
    const Zel32u* value, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliLShiftC_32s_C1R(
    const Zel32s* pSrc, int srcStep, Zel32u value, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliLShiftC_32s_C1IR(
    Zel32u value, Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliLShiftC_32s_C3R(
    const Zel32s* pSrc, int srcStep, const Zel32u* value, Zel32s* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliLShiftC_32s_C3IR(
    const Zel32u* value, Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliLShiftC_32s_C4R(
    const Zel32s* pSrc, int srcStep, const Zel32u* value, Zel32s* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliLShiftC_32s_C4IR(
    const Zel32u* value, Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliLShiftC_32s_AC4R(
    const Zel32s* pSrc, int srcStep, const Zel32u* value, Zel32s* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliLShiftC_32s_AC4IR(
    const Zel32u* value, Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);

/* zeliRShiftC */
ZELAPI ZelStatus zeliRShiftC_8u_C1R(
    const Zel8u* pSrc, int srcStep, Zel32u value, Zel8u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_8u_C1IR(
    Zel32u value, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_8u_C3R(
    const Zel8u* pSrc, int srcStep, const Zel32u* value, Zel8u* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_8u_C3IR(
    const Zel32u* value, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_8u_C4R(
    const Zel8u* pSrc, int srcStep, const Zel32u* value, Zel8u* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_8u_C4IR(
    const Zel32u* value, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_8u_AC4R(
    const Zel8u* pSrc, int srcStep, const Zel32u* value, Zel8u* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_8u_AC4IR(
    const Zel32u* value, Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_8s_C1R(
    const Zel8s* pSrc, int srcStep, Zel32u value, Zel8s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_8s_C1IR(
    Zel32u value, Zel8s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_8s_C3R(
    const Zel8s* pSrc, int srcStep, const Zel32u* value, Zel8s* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_8s_C3IR(
    const Zel32u* value, Zel8s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_8s_C4R(
    const Zel8s* pSrc, int srcStep, const Zel32u* value, Zel8s* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_8s_C4IR(
    const Zel32u* value, Zel8s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_8s_AC4R(
    const Zel8s* pSrc, int srcStep, const Zel32u* value, Zel8s* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_8s_AC4IR(
    const Zel32u* value, Zel8s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_16u_C1R(
    const Zel16u* pSrc, int srcStep, Zel32u value, Zel16u* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_16u_C1IR(
    Zel32u value, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_16u_C3R(
    const Zel16u* pSrc, int srcStep, const Zel32u* value, Zel16u* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_16u_C3IR(
    const Zel32u* value, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_16u_C4R(
    const Zel16u* pSrc, int srcStep, const Zel32u* value, Zel16u* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_16u_C4IR(
    const Zel32u* value, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_16u_AC4R(
    const Zel16u* pSrc, int srcStep, const Zel32u* value, Zel16u* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_16u_AC4IR(
    const Zel32u* value, Zel16u* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_16s_C1R(
    const Zel16s* pSrc, int srcStep, Zel32u value, Zel16s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_16s_C1IR(
    Zel32u value, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_16s_C3R(
    const Zel16s* pSrc, int srcStep, const Zel32u* value, Zel16s* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_16s_C3IR(
    const Zel32u* value, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_16s_C4R(
    const Zel16s* pSrc, int srcStep, const Zel32u* value, Zel16s* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_16s_C4IR(
    const Zel32u* value, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_16s_AC4R(
    const Zel16s* pSrc, int srcStep, const Zel32u* value, Zel16s* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_16s_AC4IR(
    const Zel32u* value, Zel16s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_32s_C1R(
    const Zel32s* pSrc, int srcStep, Zel32u value, Zel32s* pDst, int dstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_32s_C1IR(
    Zel32u value, Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_32s_C3R(
    const Zel32s* pSrc, int srcStep, const Zel32u* value, Zel32s* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_32s_C3IR(
    const Zel32u* value, Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_32s_C4R(
    const Zel32s* pSrc, int srcStep, const Zel32u* value, Zel32s* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_32s_C4IR(
    const Zel32u* value, Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_32s_AC4R(
    const Zel32s* pSrc, int srcStep, const Zel32u* value, Zel32s* pDst, int dstStep,
    ZeliSize roiSize);
ZELAPI ZelStatus zeliRShiftC_32s_AC4IR(
    const Zel32u* value, Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);

/* zeliComplement */
ZELAPI ZelStatus zeliComplement_32s_C1IR(Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize);

/* ==== Box filter ========================================================

   zeliFilterBox replaces every pixel by the mean of a maskSize rectangle of
   source pixels: dst(x, y) = mean of src(x - anchor.x + i, y - anchor.y + j),
   i < maskSize.width, j < maskSize.height (the mask is not reflected). Nothing
   pads: the caller keeps anchor.x columns to the left of the region,
   maskSize.width - 1 - anchor.x to its right, anchor.y rows above and
   maskSize.height - 1 - anchor.y below readable. The cost does not grow with
   the mask. Integer means follow fixed formulas per type and path (8u:
   (S * mul + half) >> shift, or a truncated float product above an area of
   8100; 16s and 16u: rounded float products); 32f and 64f multiply a float
   sum by 1 / area. AC4 leaves the destination alpha alone. The I forms work
   in place; equal source and destination pointers make the call the in-place
   one on the destination's step. 16-bit and 32f steps count whole samples.

   Checks: zelStatusNullPointer, zelStatusBadStep (a step below 1), then
   zelStatusBadSize, zelStatusBadMaskSize and zelStatusBadAnchor (an anchor
   outside the mask); 32f C1R then zelStatusBadStep for a source step below
   (width + maskSize.width - 1) * 4 or a destination step below width * 4.
   64f C1R: zelStatusNullPointer, zelStatusBadSize (region or mask),
   zelStatusBadStep (as 32f C1R, in 8-byte samples); no anchor test.
   zelStatusMemAlloc when working memory cannot be had (nothing is written).

   Example:
       Zel8u src[6 * 6], dst[4 * 4];
       for (int i = 0; i < 6 * 6; ++i) src[i] = (Zel8u)(i * 7);
       ZeliSize roi = {4, 4}, mask = {3, 3};
       ZeliPoint anchor = {1, 1};
       // the 3x3 mean around each pixel of the 4x4 region inside the 6x6 frame
       ZelStatus st = zeliFilterBox_8u_C1R(src + 6 + 1, 6, dst, 4, roi, mask, anchor); */

/* zeliFilterBox */
ZELAPI ZelStatus zeliFilterBox_8u_C1R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize dstRoiSize,
    ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterBox_8u_C1IR(
    Zel8u * pSrcDst, int srcDstStep, ZeliSize roiSize, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterBox_8u_C3R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize dstRoiSize,
    ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterBox_8u_C3IR(
    Zel8u * pSrcDst, int srcDstStep, ZeliSize roiSize, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterBox_8u_C4R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize dstRoiSize,
    ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterBox_8u_C4IR(
    Zel8u * pSrcDst, int srcDstStep, ZeliSize roiSize, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterBox_8u_AC4R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize dstRoiSize,
    ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterBox_8u_AC4IR(
    Zel8u * pSrcDst, int srcDstStep, ZeliSize roiSize, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterBox_16s_C1R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize dstRoiSize,
    ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterBox_16s_C1IR(
    Zel16s * pSrcDst, int srcDstStep, ZeliSize roiSize, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterBox_16s_C3R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize dstRoiSize,
    ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterBox_16s_C3IR(
    Zel16s * pSrcDst, int srcDstStep, ZeliSize roiSize, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterBox_16s_C4R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize dstRoiSize,
    ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterBox_16s_C4IR(
    Zel16s * pSrcDst, int srcDstStep, ZeliSize roiSize, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterBox_16s_AC4R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize dstRoiSize,
    ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterBox_16s_AC4IR(
    Zel16s * pSrcDst, int srcDstStep, ZeliSize roiSize, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterBox_16u_C1R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize dstRoiSize,
    ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterBox_16u_C1IR(
    Zel16u * pSrcDst, int srcDstStep, ZeliSize roiSize, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterBox_16u_C3R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize dstRoiSize,
    ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterBox_16u_C3IR(
    Zel16u * pSrcDst, int srcDstStep, ZeliSize roiSize, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterBox_16u_C4R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize dstRoiSize,
    ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterBox_16u_C4IR(
    Zel16u * pSrcDst, int srcDstStep, ZeliSize roiSize, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterBox_16u_AC4R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize dstRoiSize,
    ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterBox_16u_AC4IR(
    Zel16u * pSrcDst, int srcDstStep, ZeliSize roiSize, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterBox_32f_C1R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize dstRoiSize,
    ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterBox_32f_C1IR(
    Zel32f * pSrcDst, int srcDstStep, ZeliSize roiSize, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterBox_32f_C3R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize dstRoiSize,
    ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterBox_32f_C3IR(
    Zel32f * pSrcDst, int srcDstStep, ZeliSize roiSize, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterBox_32f_C4R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize dstRoiSize,
    ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterBox_32f_C4IR(
    Zel32f * pSrcDst, int srcDstStep, ZeliSize roiSize, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterBox_32f_AC4R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize dstRoiSize,
    ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterBox_32f_AC4IR(
    Zel32f * pSrcDst, int srcDstStep, ZeliSize roiSize, ZeliSize maskSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilterBox_64f_C1R(
    const Zel64f* pSrc, int srcStep, Zel64f* pDst, int dstStep, ZeliSize dstRoiSize,
    ZeliSize maskSize, ZeliPoint anchor);

/* ==== Sliding window sums ===============================================

   zeliSumWindowRow writes the plain sum of maskSize samples along a row,
   dst(x, y) = sum of src(x - anchor + k, y), k < maskSize, per channel, as
   32-bit floats; zeliSumWindowColumn the same down a column,
   dst(x, y) = sum of src(x, y - anchor + k). Sums are exact integers rounded
   once to float. Nothing pads: the caller keeps the anchor's samples before
   the region and maskSize - 1 - anchor after it readable. Steps are not
   checked.

   Checks: zelStatusNullPointer, (zeliSumWindowRow_16u32f only:
   zelStatusBadSize for a width or height below 1), zelStatusBadMaskSize (a
   mask below 1), zelStatusBadAnchor (an anchor outside the mask). The others
   do not test the region: a height or width below 1 writes nothing and gives
   zelStatusOk. zelStatusMemAlloc when working memory cannot be had.

   Example:
       Zel8u src[3 + 2] = {1, 2, 3, 4, 5};
       Zel32f dst[3];
       ZeliSize roi = {3, 1};
       // sums of three samples, centred: 6, 9, 12
       ZelStatus st = zeliSumWindowRow_8u32f_C1R(src + 1, 5, dst, 12, roi, 3, 1); */

/* zeliSumWindowRow */
ZELAPI ZelStatus zeliSumWindowRow_8u32f_C1R(
    const Zel8u* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize dstRoiSize, int maskSize,
    int anchor);
ZELAPI ZelStatus zeliSumWindowRow_8u32f_C3R(
    const Zel8u* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize dstRoiSize, int maskSize,
    int anchor);
ZELAPI ZelStatus zeliSumWindowRow_8u32f_C4R(
    const Zel8u* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize dstRoiSize, int maskSize,
    int anchor);
ZELAPI ZelStatus zeliSumWindowRow_16u32f_C1R(
    const Zel16u* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize dstRoiSize, int maskSize,
    int anchor);
ZELAPI ZelStatus zeliSumWindowRow_16u32f_C3R(
    const Zel16u* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize dstRoiSize, int maskSize,
    int anchor);
ZELAPI ZelStatus zeliSumWindowRow_16u32f_C4R(
    const Zel16u* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize dstRoiSize, int maskSize,
    int anchor);
ZELAPI ZelStatus zeliSumWindowRow_16s32f_C1R(
    const Zel16s* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize dstRoiSize, int maskSize,
    int anchor);
ZELAPI ZelStatus zeliSumWindowRow_16s32f_C3R(
    const Zel16s* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize dstRoiSize, int maskSize,
    int anchor);
ZELAPI ZelStatus zeliSumWindowRow_16s32f_C4R(
    const Zel16s* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize dstRoiSize, int maskSize,
    int anchor);

/* zeliSumWindowColumn */
ZELAPI ZelStatus zeliSumWindowColumn_8u32f_C1R(
    const Zel8u* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize dstRoiSize, int maskSize,
    int anchor);
ZELAPI ZelStatus zeliSumWindowColumn_8u32f_C3R(
    const Zel8u* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize dstRoiSize, int maskSize,
    int anchor);
ZELAPI ZelStatus zeliSumWindowColumn_8u32f_C4R(
    const Zel8u* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize dstRoiSize, int maskSize,
    int anchor);
ZELAPI ZelStatus zeliSumWindowColumn_16u32f_C1R(
    const Zel16u* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize dstRoiSize, int maskSize,
    int anchor);
ZELAPI ZelStatus zeliSumWindowColumn_16u32f_C3R(
    const Zel16u* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize dstRoiSize, int maskSize,
    int anchor);
ZELAPI ZelStatus zeliSumWindowColumn_16u32f_C4R(
    const Zel16u* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize dstRoiSize, int maskSize,
    int anchor);
ZELAPI ZelStatus zeliSumWindowColumn_16s32f_C1R(
    const Zel16s* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize dstRoiSize, int maskSize,
    int anchor);
ZELAPI ZelStatus zeliSumWindowColumn_16s32f_C3R(
    const Zel16s* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize dstRoiSize, int maskSize,
    int anchor);
ZELAPI ZelStatus zeliSumWindowColumn_16s32f_C4R(
    const Zel16s* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize dstRoiSize, int maskSize,
    int anchor);

/* ==== Row and column filters ============================================

   zeliFilterRow convolves every row with a kernel of kernelSize taps,
   dst(x, y) = sum of pKernel[i] * src(x + xAnchor - i, y); zeliFilterColumn
   the same down the columns, dst(x, y) = sum of pKernel[i] *
   src(x, y + yAnchor - i). The kernel is reversed against the image
   (pKernel[xAnchor] meets the pixel under the destination pixel); nothing
   pads: the caller keeps kernelSize - 1 - anchor pixels before the region
   (left, or above) and anchor after it readable. The anchor is not tested.
   8u forms with a Zel32s kernel sum 32-bit integers and divide by divisor
   (ties to even, saturated); 16s and 16u forms with a Zel32s kernel scale
   every tap by 1 / divisor first and sum floats; the Row32f and Column32f
   forms take float taps for integer images (the float sum rounded to
   nearest, ties to even, saturated); 32f and 64f sum in their own type.
   Every float sum adds the taps in kernel order. AC4 leaves the destination
   alpha alone. Source and destination must not overlap.

   Checks: zelStatusNullPointer (source, destination, kernel), zelStatusBadSize
   (region or kernelSize below 1), zelStatusBadDivisor (a zero divisor),
   zelStatusBadStep (row forms: a source step below (width + kernelSize - 1)
   pixels; a destination step, or a column form's source step, below width
   pixels). The 16s and 16u Zel32s forms test the kernel, kernelSize and
   divisor first; the column C3 and C4 forms test the width first.
   zelStatusMemAlloc when 16s or 16u taps above 256 find no memory.

   Example:
       Zel32f src[1 * (4 + 2)] = {0, 1, 2, 3, 4, 5}, dst[4];
       const Zel32f kernel[3] = {0.25f, 0.5f, 0.25f};
       ZeliSize roi = {4, 1};
       // a centred 1-2-1 smoothing: dst[x] = (src[x] + 2 src[x+1] + src[x+2]) / 4
       ZelStatus st = zeliFilterRow_32f_C1R(src + 1, 24, dst, 16, roi, kernel, 3, 1); */

/* zeliFilterRow */
ZELAPI ZelStatus zeliFilterRow_8u_C1R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32s* pKernel, int kernelSize, int xAnchor, int divisor);
ZELAPI ZelStatus zeliFilterRow_8u_C3R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32s* pKernel, int kernelSize, int xAnchor, int divisor);
ZELAPI ZelStatus zeliFilterRow_8u_C4R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32s* pKernel, int kernelSize, int xAnchor, int divisor);
ZELAPI ZelStatus zeliFilterRow_8u_AC4R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32s* pKernel, int kernelSize, int xAnchor, int divisor);
ZELAPI ZelStatus zeliFilterRow_16s_C1R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32s* pKernel, int kernelSize, int xAnchor, int divisor);
ZELAPI ZelStatus zeliFilterRow_16s_C3R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32s* pKernel, int kernelSize, int xAnchor, int divisor);
ZELAPI ZelStatus zeliFilterRow_16s_C4R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32s* pKernel, int kernelSize, int xAnchor, int divisor);
ZELAPI ZelStatus zeliFilterRow_16s_AC4R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32s* pKernel, int kernelSize, int xAnchor, int divisor);
ZELAPI ZelStatus zeliFilterRow_16u_C1R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32s* pKernel, int kernelSize, int xAnchor, int divisor);
ZELAPI ZelStatus zeliFilterRow_16u_C3R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32s* pKernel, int kernelSize, int xAnchor, int divisor);
ZELAPI ZelStatus zeliFilterRow_16u_C4R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32s* pKernel, int kernelSize, int xAnchor, int divisor);
ZELAPI ZelStatus zeliFilterRow_16u_AC4R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32s* pKernel, int kernelSize, int xAnchor, int divisor);
ZELAPI ZelStatus zeliFilterRow_32f_C1R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, int kernelSize, int xAnchor);
ZELAPI ZelStatus zeliFilterRow_32f_C3R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, int kernelSize, int xAnchor);
ZELAPI ZelStatus zeliFilterRow_32f_C4R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, int kernelSize, int xAnchor);
ZELAPI ZelStatus zeliFilterRow_32f_AC4R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, int kernelSize, int xAnchor);
ZELAPI ZelStatus zeliFilterRow_64f_C1R(
    const Zel64f* pSrc, int srcStep, Zel64f* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel64f* pKernel, int kernelSize, int xAnchor);

/* zeliFilterRow32f */
ZELAPI ZelStatus zeliFilterRow32f_8u_C1R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, int kernelSize, int xAnchor);
ZELAPI ZelStatus zeliFilterRow32f_8u_C3R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, int kernelSize, int xAnchor);
ZELAPI ZelStatus zeliFilterRow32f_8u_C4R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, int kernelSize, int xAnchor);
ZELAPI ZelStatus zeliFilterRow32f_8u_AC4R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, int kernelSize, int xAnchor);
ZELAPI ZelStatus zeliFilterRow32f_16s_C1R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, int kernelSize, int xAnchor);
ZELAPI ZelStatus zeliFilterRow32f_16s_C3R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, int kernelSize, int xAnchor);
ZELAPI ZelStatus zeliFilterRow32f_16s_C4R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, int kernelSize, int xAnchor);
ZELAPI ZelStatus zeliFilterRow32f_16s_AC4R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, int kernelSize, int xAnchor);
ZELAPI ZelStatus zeliFilterRow32f_16u_C1R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, int kernelSize, int xAnchor);
ZELAPI ZelStatus zeliFilterRow32f_16u_C3R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, int kernelSize, int xAnchor);
ZELAPI ZelStatus zeliFilterRow32f_16u_C4R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, int kernelSize, int xAnchor);
ZELAPI ZelStatus zeliFilterRow32f_16u_AC4R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, int kernelSize, int xAnchor);

/* zeliFilterColumn */
ZELAPI ZelStatus zeliFilterColumn_8u_C1R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32s* pKernel, int kernelSize, int yAnchor, int divisor);
ZELAPI ZelStatus zeliFilterColumn_8u_C3R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32s* pKernel, int kernelSize, int yAnchor, int divisor);
ZELAPI ZelStatus zeliFilterColumn_8u_C4R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32s* pKernel, int kernelSize, int yAnchor, int divisor);
ZELAPI ZelStatus zeliFilterColumn_8u_AC4R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32s* pKernel, int kernelSize, int yAnchor, int divisor);
ZELAPI ZelStatus zeliFilterColumn_16s_C1R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32s* pKernel, int kernelSize, int yAnchor, int divisor);
ZELAPI ZelStatus zeliFilterColumn_16s_C3R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32s* pKernel, int kernelSize, int yAnchor, int divisor);
ZELAPI ZelStatus zeliFilterColumn_16s_C4R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32s* pKernel, int kernelSize, int yAnchor, int divisor);
ZELAPI ZelStatus zeliFilterColumn_16s_AC4R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32s* pKernel, int kernelSize, int yAnchor, int divisor);
ZELAPI ZelStatus zeliFilterColumn_16u_C1R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32s* pKernel, int kernelSize, int yAnchor, int divisor);
ZELAPI ZelStatus zeliFilterColumn_16u_C3R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32s* pKernel, int kernelSize, int yAnchor, int divisor);
ZELAPI ZelStatus zeliFilterColumn_16u_C4R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32s* pKernel, int kernelSize, int yAnchor, int divisor);
ZELAPI ZelStatus zeliFilterColumn_16u_AC4R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32s* pKernel, int kernelSize, int yAnchor, int divisor);
ZELAPI ZelStatus zeliFilterColumn_32f_C1R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, int kernelSize, int yAnchor);
ZELAPI ZelStatus zeliFilterColumn_32f_C3R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, int kernelSize, int yAnchor);
ZELAPI ZelStatus zeliFilterColumn_32f_C4R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, int kernelSize, int yAnchor);
ZELAPI ZelStatus zeliFilterColumn_32f_AC4R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, int kernelSize, int yAnchor);
ZELAPI ZelStatus zeliFilterColumn_64f_C1R(
    const Zel64f* pSrc, int srcStep, Zel64f* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel64f* pKernel, int kernelSize, int yAnchor);

/* zeliFilterColumn32f */
ZELAPI ZelStatus zeliFilterColumn32f_8u_C1R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, int kernelSize, int yAnchor);
ZELAPI ZelStatus zeliFilterColumn32f_8u_C3R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, int kernelSize, int yAnchor);
ZELAPI ZelStatus zeliFilterColumn32f_8u_C4R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, int kernelSize, int yAnchor);
ZELAPI ZelStatus zeliFilterColumn32f_8u_AC4R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, int kernelSize, int yAnchor);
ZELAPI ZelStatus zeliFilterColumn32f_16s_C1R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, int kernelSize, int yAnchor);
ZELAPI ZelStatus zeliFilterColumn32f_16s_C3R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, int kernelSize, int yAnchor);
ZELAPI ZelStatus zeliFilterColumn32f_16s_C4R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, int kernelSize, int yAnchor);
ZELAPI ZelStatus zeliFilterColumn32f_16s_AC4R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, int kernelSize, int yAnchor);
ZELAPI ZelStatus zeliFilterColumn32f_16u_C1R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, int kernelSize, int yAnchor);
ZELAPI ZelStatus zeliFilterColumn32f_16u_C3R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, int kernelSize, int yAnchor);
ZELAPI ZelStatus zeliFilterColumn32f_16u_C4R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, int kernelSize, int yAnchor);
ZELAPI ZelStatus zeliFilterColumn32f_16u_AC4R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, int kernelSize, int yAnchor);

/* ==== General two-dimensional filter ====================================

   zeliFilter convolves the image with a kernelSize.width x kernelSize.height
   kernel (row-major): dst(x, y) = sum of pKernel[j * kW + i] *
   src(x + anchor.x - i, y + anchor.y - j). The kernel is reversed in both
   axes, so the tap at the anchor meets the pixel under the destination
   pixel; nothing pads: the caller keeps kW - 1 - anchor.x columns left of
   the region, anchor.x right of it, kH - 1 - anchor.y rows above and
   anchor.y below readable. The anchor is not tested. 8u sums 32-bit
   integers and 16s C1R 64-bit integers, divided by divisor (a power of two
   by a shift with ties to even, others through a float reciprocal), 16s C3R,
   C4R, AC4R and 16u scale the taps by 1 / divisor first and sum floats, 32f
   and 64f sum in their own type, every float sum in kernel order. The Round
   forms take a round mode (0 towards zero, 1 ties to even, 2 ties away) and
   a buffer whose size zeliFilterRoundGetBufSize... (zeliFilterGetBufSize_64f_C1R
   for the 64f form) gives for the thread count of the call. AC4 leaves the
   destination alpha alone. Source and destination must not overlap.

   Checks: zelStatusNullPointer (source, destination, kernel), zelStatusBadSize
   (region or kernel below 1), zelStatusBadDivisor (a zero divisor),
   zelStatusBadStep (a source step below (width + kW - 1) pixels or a
   destination step below width pixels), zelStatusBadRoundMode (a mode other
   than 0, 1, 2), zelStatusNullPointer (a null buffer). 16s C3R, C4R, AC4R and
   16u test the kernel, its size and the divisor first. zelStatusMemAlloc when
   their scaled taps above 256 find no memory.

   Example:
       Zel8u src[5 * 5], dst[3 * 3];
       for (int i = 0; i < 25; ++i) src[i] = (Zel8u)(i * 10);
       const Zel32s kernel[9] = {1, 2, 1, 2, 4, 2, 1, 2, 1};
       ZeliSize roi = {3, 3}, ksize = {3, 3};
       ZeliPoint anchor = {1, 1};
       // a 3x3 Gaussian blur of the centre 3x3 pixels, divided by 16
       ZelStatus st = zeliFilter_8u_C1R(src + 5 + 1, 5, dst, 3, roi, kernel, ksize, anchor, 16); */

/* zeliFilter */
ZELAPI ZelStatus zeliFilter_8u_C1R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32s* pKernel, ZeliSize kernelSize, ZeliPoint anchor, int divisor);
ZELAPI ZelStatus zeliFilter_8u_C3R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32s* pKernel, ZeliSize kernelSize, ZeliPoint anchor, int divisor);
ZELAPI ZelStatus zeliFilter_8u_C4R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32s* pKernel, ZeliSize kernelSize, ZeliPoint anchor, int divisor);
ZELAPI ZelStatus zeliFilter_8u_AC4R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32s* pKernel, ZeliSize kernelSize, ZeliPoint anchor, int divisor);
ZELAPI ZelStatus zeliFilter_16s_C1R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32s* pKernel, ZeliSize kernelSize, ZeliPoint anchor, int divisor);
ZELAPI ZelStatus zeliFilter_16s_C3R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32s* pKernel, ZeliSize kernelSize, ZeliPoint anchor, int divisor);
ZELAPI ZelStatus zeliFilter_16s_C4R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32s* pKernel, ZeliSize kernelSize, ZeliPoint anchor, int divisor);
ZELAPI ZelStatus zeliFilter_16s_AC4R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32s* pKernel, ZeliSize kernelSize, ZeliPoint anchor, int divisor);
ZELAPI ZelStatus zeliFilter_16u_C1R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32s* pKernel, ZeliSize kernelSize, ZeliPoint anchor, int divisor);
ZELAPI ZelStatus zeliFilter_16u_C3R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32s* pKernel, ZeliSize kernelSize, ZeliPoint anchor, int divisor);
ZELAPI ZelStatus zeliFilter_16u_C4R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32s* pKernel, ZeliSize kernelSize, ZeliPoint anchor, int divisor);
ZELAPI ZelStatus zeliFilter_16u_AC4R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32s* pKernel, ZeliSize kernelSize, ZeliPoint anchor, int divisor);
ZELAPI ZelStatus zeliFilter_32f_C1R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilter_32f_C3R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilter_32f_C4R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilter_32f_AC4R(
    const Zel32f* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilter_64f_C1R(
    const Zel64f* pSrc, int srcStep, Zel64f* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel64f* pKernel, ZeliSize kernelSize, ZeliPoint anchor, Zel8u* pBuffer);
ZELAPI ZelStatus zeliFilter_Round16s_8u_C1R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel16s* pKernel, ZeliSize kernelSize, ZeliPoint anchor, int divisor,
    ZelRoundMode roundMode, Zel8u* pBuffer);
ZELAPI ZelStatus zeliFilter_Round16s_8u_C3R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel16s* pKernel, ZeliSize kernelSize, ZeliPoint anchor, int divisor,
    ZelRoundMode roundMode, Zel8u* pBuffer);
ZELAPI ZelStatus zeliFilter_Round16s_8u_C4R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel16s* pKernel, ZeliSize kernelSize, ZeliPoint anchor, int divisor,
    ZelRoundMode roundMode, Zel8u* pBuffer);
ZELAPI ZelStatus zeliFilter_Round16s_8u_AC4R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel16s* pKernel, ZeliSize kernelSize, ZeliPoint anchor, int divisor,
    ZelRoundMode roundMode, Zel8u* pBuffer);
ZELAPI ZelStatus zeliFilter_Round32s_16s_C1R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32s* pKernel, ZeliSize kernelSize, ZeliPoint anchor, int divisor,
    ZelRoundMode roundMode, Zel8u* pBuffer);
ZELAPI ZelStatus zeliFilter_Round32s_16s_C3R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32s* pKernel, ZeliSize kernelSize, ZeliPoint anchor, int divisor,
    ZelRoundMode roundMode, Zel8u* pBuffer);
ZELAPI ZelStatus zeliFilter_Round32s_16s_C4R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32s* pKernel, ZeliSize kernelSize, ZeliPoint anchor, int divisor,
    ZelRoundMode roundMode, Zel8u* pBuffer);
ZELAPI ZelStatus zeliFilter_Round32s_16s_AC4R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32s* pKernel, ZeliSize kernelSize, ZeliPoint anchor, int divisor,
    ZelRoundMode roundMode, Zel8u* pBuffer);
ZELAPI ZelStatus zeliFilter_Round32s_16u_C1R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32s* pKernel, ZeliSize kernelSize, ZeliPoint anchor, int divisor,
    ZelRoundMode roundMode, Zel8u* pBuffer);
ZELAPI ZelStatus zeliFilter_Round32s_16u_C3R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32s* pKernel, ZeliSize kernelSize, ZeliPoint anchor, int divisor,
    ZelRoundMode roundMode, Zel8u* pBuffer);
ZELAPI ZelStatus zeliFilter_Round32s_16u_C4R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32s* pKernel, ZeliSize kernelSize, ZeliPoint anchor, int divisor,
    ZelRoundMode roundMode, Zel8u* pBuffer);
ZELAPI ZelStatus zeliFilter_Round32s_16u_AC4R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32s* pKernel, ZeliSize kernelSize, ZeliPoint anchor, int divisor,
    ZelRoundMode roundMode, Zel8u* pBuffer);
ZELAPI ZelStatus zeliFilter_Round32f_8u_C1R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor, ZelRoundMode roundMode,
    Zel8u* pBuffer);
ZELAPI ZelStatus zeliFilter_Round32f_8u_C3R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor, ZelRoundMode roundMode,
    Zel8u* pBuffer);
ZELAPI ZelStatus zeliFilter_Round32f_8u_C4R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor, ZelRoundMode roundMode,
    Zel8u* pBuffer);
ZELAPI ZelStatus zeliFilter_Round32f_8u_AC4R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor, ZelRoundMode roundMode,
    Zel8u* pBuffer);
ZELAPI ZelStatus zeliFilter_Round32f_16s_C1R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor, ZelRoundMode roundMode,
    Zel8u* pBuffer);
ZELAPI ZelStatus zeliFilter_Round32f_16s_C3R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor, ZelRoundMode roundMode,
    Zel8u* pBuffer);
ZELAPI ZelStatus zeliFilter_Round32f_16s_C4R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor, ZelRoundMode roundMode,
    Zel8u* pBuffer);
ZELAPI ZelStatus zeliFilter_Round32f_16s_AC4R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor, ZelRoundMode roundMode,
    Zel8u* pBuffer);
ZELAPI ZelStatus zeliFilter_Round32f_16u_C1R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor, ZelRoundMode roundMode,
    Zel8u* pBuffer);
ZELAPI ZelStatus zeliFilter_Round32f_16u_C3R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor, ZelRoundMode roundMode,
    Zel8u* pBuffer);
ZELAPI ZelStatus zeliFilter_Round32f_16u_C4R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor, ZelRoundMode roundMode,
    Zel8u* pBuffer);
ZELAPI ZelStatus zeliFilter_Round32f_16u_AC4R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor, ZelRoundMode roundMode,
    Zel8u* pBuffer);

/* ==== Two-dimensional filter with float taps, and the buffer sizes of the Round forms ====

   zeliFilter32f convolves an integer image with a Zel32f kernel as
   zeliFilter does (the kernel reversed in both axes, anchor untested,
   nothing padded) and converts the float sum, formed in kernel order, to the
   destination type with rounding to nearest, ties to even, and saturation;
   8s16s and 8u16s write 16s from an 8-bit source. zeliFilterRoundGetBufSize...
   and zeliFilterGetBufSize_64f_C1R give the bytes of the buffer the matching
   zeliFilter form takes, for a kernel and a destination width, for the
   thread count at the time of the query (which must be the one of the
   filter call).

   Checks: zeliFilter32f as zeliFilter without a divisor. The size queries:
   zelStatusNullPointer, then zelStatusBadSize for a kernel side or width
   below 1, or a size that does not fit 32 bits.

   Example:
       Zel16u src[4 * 3], dst[2 * 3];
       for (int i = 0; i < 12; ++i) src[i] = (Zel16u)(1000 * i);
       const Zel32f kernel[3] = {0.25f, 0.5f, 0.25f};
       ZeliSize roi = {2, 3}, ksize = {3, 1};
       ZeliPoint anchor = {1, 0};
       int bytes = 0;
       ZelStatus st = zeliFilter32f_16u_C1R(src + 1, 8, dst, 4, roi, kernel, ksize, anchor);
       if (st == zelStatusOk) st = zeliFilterRoundGetBufSize32f_16u_C1R(ksize, 2, &bytes); */

/* zeliFilter32f */
ZELAPI ZelStatus zeliFilter32f_16s_C1R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilter32f_16s_C3R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilter32f_16s_C4R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilter32f_16s_AC4R(
    const Zel16s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilter32f_16u_C1R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilter32f_16u_C3R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilter32f_16u_C4R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilter32f_16u_AC4R(
    const Zel16u* pSrc, int srcStep, Zel16u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilter32f_8u_C1R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilter32f_8u_C3R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilter32f_8u_C4R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilter32f_8u_AC4R(
    const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilter32f_32s_C1R(
    const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilter32f_32s_C3R(
    const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilter32f_32s_C4R(
    const Zel32s* pSrc, int srcStep, Zel32s* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilter32f_8s_C1R(
    const Zel8s* pSrc, int srcStep, Zel8s* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilter32f_8s_C3R(
    const Zel8s* pSrc, int srcStep, Zel8s* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilter32f_8s_C4R(
    const Zel8s* pSrc, int srcStep, Zel8s* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilter32f_8s16s_C1R(
    const Zel8s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilter32f_8s16s_C3R(
    const Zel8s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilter32f_8s16s_C4R(
    const Zel8s* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilter32f_8u16s_C1R(
    const Zel8u* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilter32f_8u16s_C3R(
    const Zel8u* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor);
ZELAPI ZelStatus zeliFilter32f_8u16s_C4R(
    const Zel8u* pSrc, int srcStep, Zel16s* pDst, int dstStep, ZeliSize dstRoiSize,
    const Zel32f* pKernel, ZeliSize kernelSize, ZeliPoint anchor);

/* zeliFilterRoundGetBufSize16s */
ZELAPI ZelStatus zeliFilterRoundGetBufSize16s_8u_C1R(
    ZeliSize kernelSize, int dstWidth, int* pBufferSize);
ZELAPI ZelStatus zeliFilterRoundGetBufSize16s_8u_C3R(
    ZeliSize kernelSize, int dstWidth, int* pBufferSize);
ZELAPI ZelStatus zeliFilterRoundGetBufSize16s_8u_C4R(
    ZeliSize kernelSize, int dstWidth, int* pBufferSize);
ZELAPI ZelStatus zeliFilterRoundGetBufSize16s_8u_AC4R(
    ZeliSize kernelSize, int dstWidth, int* pBufferSize);

/* zeliFilterRoundGetBufSize32s */
ZELAPI ZelStatus zeliFilterRoundGetBufSize32s_16s_C1R(
    ZeliSize kernelSize, int dstWidth, int* pBufferSize);
ZELAPI ZelStatus zeliFilterRoundGetBufSize32s_16s_C3R(
    ZeliSize kernelSize, int dstWidth, int* pBufferSize);
ZELAPI ZelStatus zeliFilterRoundGetBufSize32s_16s_C4R(
    ZeliSize kernelSize, int dstWidth, int* pBufferSize);
ZELAPI ZelStatus zeliFilterRoundGetBufSize32s_16s_AC4R(
    ZeliSize kernelSize, int dstWidth, int* pBufferSize);
ZELAPI ZelStatus zeliFilterRoundGetBufSize32s_16u_C1R(
    ZeliSize kernelSize, int dstWidth, int* pBufferSize);
ZELAPI ZelStatus zeliFilterRoundGetBufSize32s_16u_C3R(
    ZeliSize kernelSize, int dstWidth, int* pBufferSize);
ZELAPI ZelStatus zeliFilterRoundGetBufSize32s_16u_C4R(
    ZeliSize kernelSize, int dstWidth, int* pBufferSize);
ZELAPI ZelStatus zeliFilterRoundGetBufSize32s_16u_AC4R(
    ZeliSize kernelSize, int dstWidth, int* pBufferSize);

/* zeliFilterRoundGetBufSize32f */
ZELAPI ZelStatus zeliFilterRoundGetBufSize32f_16s_C1R(
    ZeliSize kernelSize, int dstWidth, int* pBufferSize);
ZELAPI ZelStatus zeliFilterRoundGetBufSize32f_16s_C3R(
    ZeliSize kernelSize, int dstWidth, int* pBufferSize);
ZELAPI ZelStatus zeliFilterRoundGetBufSize32f_16s_C4R(
    ZeliSize kernelSize, int dstWidth, int* pBufferSize);
ZELAPI ZelStatus zeliFilterRoundGetBufSize32f_16s_AC4R(
    ZeliSize kernelSize, int dstWidth, int* pBufferSize);
ZELAPI ZelStatus zeliFilterRoundGetBufSize32f_16u_C1R(
    ZeliSize kernelSize, int dstWidth, int* pBufferSize);
ZELAPI ZelStatus zeliFilterRoundGetBufSize32f_16u_C3R(
    ZeliSize kernelSize, int dstWidth, int* pBufferSize);
ZELAPI ZelStatus zeliFilterRoundGetBufSize32f_16u_C4R(
    ZeliSize kernelSize, int dstWidth, int* pBufferSize);
ZELAPI ZelStatus zeliFilterRoundGetBufSize32f_16u_AC4R(
    ZeliSize kernelSize, int dstWidth, int* pBufferSize);
ZELAPI ZelStatus zeliFilterRoundGetBufSize32f_8u_C1R(
    ZeliSize kernelSize, int dstWidth, int* pBufferSize);
ZELAPI ZelStatus zeliFilterRoundGetBufSize32f_8u_C3R(
    ZeliSize kernelSize, int dstWidth, int* pBufferSize);
ZELAPI ZelStatus zeliFilterRoundGetBufSize32f_8u_C4R(
    ZeliSize kernelSize, int dstWidth, int* pBufferSize);
ZELAPI ZelStatus zeliFilterRoundGetBufSize32f_8u_AC4R(
    ZeliSize kernelSize, int dstWidth, int* pBufferSize);

/* zeliFilterGetBufSize */
ZELAPI ZelStatus zeliFilterGetBufSize_64f_C1R(ZeliSize kernelSize, int dstWidth, int* pBufferSize);

#ifdef __cplusplus
}
#endif

#endif /* ZELIP8_H */

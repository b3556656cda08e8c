/* Copy and set.
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
       if (st == zelStatusOk) st = zeliCopy_8u_C3P3R(rgb, 4 * 3, planes, 4, roi);
*/
#define ZEL_COPY_SD(T, F, IMPL)                                                                           \
    ZEL_FN(ZelStatus, zeliCopy_##T##_##F, (const Zel##T* pSrc, int srcStep, Zel##T* pDst, int dstStep, ZeliSize roiSize), \
           (pSrc, srcStep, pDst, dstStep, roiSize), IMPL)
#define ZEL_COPY_M(T, L)                                                                                      \
    ZEL_FN(ZelStatus, zeliCopy_##T##_##L##MR,                                                                  \
           (const Zel##T* pSrc, int srcStep, Zel##T* pDst, int dstStep, ZeliSize roiSize, const Zel8u* pMask, int maskStep), \
           (pSrc, srcStep, pDst, dstStep, roiSize, pMask, maskStep), (zel::copy_masked<Zel##T, zel::L>))
#define ZEL_COPY_TOP(T, N)                                                                                     \
    ZEL_FN(ZelStatus, zeliCopy_##T##_C##N##P##N##R,                                                            \
           (const Zel##T* pSrc, int srcStep, Zel##T* const pDst[N], int dstStep, ZeliSize roiSize),            \
           (pSrc, srcStep, pDst, dstStep, roiSize), (zel::copy_to_planes<Zel##T, N>))
#define ZEL_COPY_FROMP(T, N)                                                                                   \
    ZEL_FN(ZelStatus, zeliCopy_##T##_P##N##C##N##R,                                                            \
           (const Zel##T* const pSrc[N], int srcStep, Zel##T* pDst, int dstStep, ZeliSize roiSize),            \
           (pSrc, srcStep, pDst, dstStep, roiSize), (zel::copy_from_planes<Zel##T, N>))
/* copy_strided<T, source pixel stride, destination pixel stride, samples a pixel> */
#define ZEL_COPY_ALL(T)                                                     \
    ZEL_COPY_SD(T, C1R, (zel::copy_whole<Zel##T, zel::C1>))                 \
    ZEL_COPY_SD(T, C3R, (zel::copy_whole<Zel##T, zel::C3>))                 \
    ZEL_COPY_SD(T, C4R, (zel::copy_whole<Zel##T, zel::C4>))                 \
    ZEL_COPY_SD(T, AC4R, (zel::copy_strided<Zel##T, 4, 4, 3>))              \
    ZEL_COPY_M(T, C1) ZEL_COPY_M(T, C3) ZEL_COPY_M(T, C4) ZEL_COPY_M(T, AC4) \
    ZEL_COPY_SD(T, C3CR, (zel::copy_strided<Zel##T, 3, 3, 1>))              \
    ZEL_COPY_SD(T, C4CR, (zel::copy_strided<Zel##T, 4, 4, 1>))              \
    ZEL_COPY_SD(T, C3C1R, (zel::copy_strided<Zel##T, 3, 1, 1>))             \
    ZEL_COPY_SD(T, C4C1R, (zel::copy_strided<Zel##T, 4, 1, 1>))             \
    ZEL_COPY_SD(T, C1C3R, (zel::copy_strided<Zel##T, 1, 3, 1>))             \
    ZEL_COPY_SD(T, C1C4R, (zel::copy_strided<Zel##T, 1, 4, 1>))             \
    ZEL_COPY_SD(T, AC4C3R, (zel::copy_strided<Zel##T, 4, 3, 3>))            \
    ZEL_COPY_SD(T, C3AC4R, (zel::copy_strided<Zel##T, 3, 4, 3>))            \
    ZEL_COPY_TOP(T, 3) ZEL_COPY_TOP(T, 4) ZEL_COPY_FROMP(T, 3) ZEL_COPY_FROMP(T, 4)
ZEL_COPY_ALL(8u)
ZEL_COPY_ALL(16s)
ZEL_COPY_ALL(16u)
ZEL_COPY_ALL(32f)
ZEL_COPY_ALL(32s)
#undef ZEL_COPY_ALL
#undef ZEL_COPY_FROMP
#undef ZEL_COPY_TOP
#undef ZEL_COPY_M
#undef ZEL_COPY_SD

/* zeliSet: C1R and the channel-of-interest forms take one value, the others
   an array of 3 (C3, AC4) or 4 (C4) values. */
#define ZEL_SET_1(T, F, IMPL)                                                                 \
    ZEL_FN(ZelStatus, zeliSet_##T##_##F, (Zel##T value, Zel##T* pDst, int dstStep, ZeliSize roiSize), \
           (value, pDst, dstStep, roiSize), IMPL)
#define ZEL_SET_N(T, F, N, IMPL)                                                                        \
    ZEL_FN(ZelStatus, zeliSet_##T##_##F, (const Zel##T value[N], Zel##T* pDst, int dstStep, ZeliSize roiSize), \
           (value, pDst, dstStep, roiSize), IMPL)
#define ZEL_SET_1M(T)                                                                                     \
    ZEL_FN(ZelStatus, zeliSet_##T##_C1MR,                                                                  \
           (Zel##T value, Zel##T* pDst, int dstStep, ZeliSize roiSize, const Zel8u* pMask, int maskStep), \
           (value, pDst, dstStep, roiSize, pMask, maskStep), (zel::set_masked1<Zel##T>))
#define ZEL_SET_NM(T, L, N)                                                                                      \
    ZEL_FN(ZelStatus, zeliSet_##T##_##L##MR,                                                                      \
           (const Zel##T value[N], Zel##T* pDst, int dstStep, ZeliSize roiSize, const Zel8u* pMask, int maskStep), \
           (value, pDst, dstStep, roiSize, pMask, maskStep), (zel::set_masked<Zel##T, zel::L>))
#define ZEL_SET_ALL(T)                                              \
    ZEL_SET_1(T, C1R, (zel::set_whole1<Zel##T>))                    \
    ZEL_SET_N(T, C3R, 3, (zel::set_whole<Zel##T, zel::C3>))         \
    ZEL_SET_N(T, C4R, 4, (zel::set_whole<Zel##T, zel::C4>))         \
    ZEL_SET_N(T, AC4R, 3, (zel::set_strided<Zel##T, 4, 3>))         \
    ZEL_SET_1M(T) ZEL_SET_NM(T, C3, 3) ZEL_SET_NM(T, C4, 4) ZEL_SET_NM(T, AC4, 3) \
    ZEL_SET_1(T, C3CR, (zel::set_strided1<Zel##T, 3>))              \
    ZEL_SET_1(T, C4CR, (zel::set_strided1<Zel##T, 4>))
ZEL_SET_ALL(8u)
ZEL_SET_ALL(16s)
ZEL_SET_ALL(16u)
ZEL_SET_ALL(32f)
ZEL_SET_ALL(32s)
#undef ZEL_SET_ALL
#undef ZEL_SET_NM
#undef ZEL_SET_1M
#undef ZEL_SET_N
#undef ZEL_SET_1

ZEL_FN(ZelStatus, zeliDup_8u_C1C3R, (const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize),
       (pSrc, srcStep, pDst, dstStep, roiSize), (zel::copy_strided<Zel8u, 1, 3, 3, true>))
ZEL_FN(ZelStatus, zeliDup_8u_C1C4R, (const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize),
       (pSrc, srcStep, pDst, dstStep, roiSize), (zel::copy_strided<Zel8u, 1, 4, 4, true>))
ZEL_FN(ZelStatus, zeliCopyManaged_8u_C1R,
       (const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, int flags),
       (pSrc, srcStep, pDst, dstStep, roiSize, flags), (zel::copy_managed))

/* Minimum and maximum.
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
       if (st == zelStatusOk) st = zeliMaxIndx_16s_C1R(img, 3 * 2, roi, &hi, &x, &y); // 9 at (2, 0)
*/
#define ZEL_MINMAX(T, L)                                                                                   \
    ZEL_FN(ZelStatus, zeliMin_##T##_##L##R, (const Zel##T* pSrc, int srcStep, ZeliSize roiSize, Zel##T* pMin), \
           (pSrc, srcStep, roiSize, pMin), (zel::extreme<Zel##T, zel::L, zel::OpMin>))                     \
    ZEL_FN(ZelStatus, zeliMax_##T##_##L##R, (const Zel##T* pSrc, int srcStep, ZeliSize roiSize, Zel##T* pMax), \
           (pSrc, srcStep, roiSize, pMax), (zel::extreme<Zel##T, zel::L, zel::OpMax>))                     \
    ZEL_FN(ZelStatus, zeliMinMax_##T##_##L##R,                                                             \
           (const Zel##T* pSrc, int srcStep, ZeliSize roiSize, Zel##T* pMin, Zel##T* pMax),                \
           (pSrc, srcStep, roiSize, pMin, pMax), (zel::min_max<Zel##T, zel::L>))                           \
    ZEL_FN(ZelStatus, zeliMinIndx_##T##_##L##R,                                                            \
           (const Zel##T* pSrc, int srcStep, ZeliSize roiSize, Zel##T* pMin, int* pIndexX, int* pIndexY),  \
           (pSrc, srcStep, roiSize, pMin, pIndexX, pIndexY), (zel::extreme_index<Zel##T, zel::L, zel::OpMin>)) \
    ZEL_FN(ZelStatus, zeliMaxIndx_##T##_##L##R,                                                            \
           (const Zel##T* pSrc, int srcStep, ZeliSize roiSize, Zel##T* pMax, int* pIndexX, int* pIndexY),  \
           (pSrc, srcStep, roiSize, pMax, pIndexX, pIndexY), (zel::extreme_index<Zel##T, zel::L, zel::OpMax>)) \
    ZEL_FN(ZelStatus, zeliMinEvery_##T##_##L##IR,                                                          \
           (const Zel##T* pSrc, int srcStep, Zel##T* pSrcDst, int srcDstStep, ZeliSize roiSize),           \
           (pSrc, srcStep, pSrcDst, srcDstStep, roiSize), (zel::every<Zel##T, zel::L, zel::OpMin>))        \
    ZEL_FN(ZelStatus, zeliMaxEvery_##T##_##L##IR,                                                          \
           (const Zel##T* pSrc, int srcStep, Zel##T* pSrcDst, int srcDstStep, ZeliSize roiSize),           \
           (pSrc, srcStep, pSrcDst, srcDstStep, roiSize), (zel::every<Zel##T, zel::L, zel::OpMax>))
#define ZEL_MINMAX_ALL(T) ZEL_MINMAX(T, C1) ZEL_MINMAX(T, C3) ZEL_MINMAX(T, C4) ZEL_MINMAX(T, AC4)

ZEL_MINMAX_ALL(8u)
ZEL_MINMAX_ALL(16u)
ZEL_MINMAX_ALL(16s)
ZEL_MINMAX_ALL(32f)

#undef ZEL_MINMAX_ALL
#undef ZEL_MINMAX

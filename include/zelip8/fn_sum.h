/* Sums, means and dot products.
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
       if (st == zelStatusOk) st = zeliMean_8u_C1R(img, 3, roi, &mean); // 3.5
*/
#define ZEL_SUM(T, L)                                                                                     \
    ZEL_FN(ZelStatus, zeliSum_##T##_##L##R, (const Zel##T* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pSum), \
           (pSrc, srcStep, roiSize, pSum), (zel::sum<Zel##T, zel::L>))                                    \
    ZEL_FN(ZelStatus, zeliMean_##T##_##L##R, (const Zel##T* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pMean), \
           (pSrc, srcStep, roiSize, pMean), (zel::mean<Zel##T, zel::L>))
#define ZEL_SUM_HINT(T, L)                                                                                \
    ZEL_FN(ZelStatus, zeliSum_##T##_##L##R,                                                               \
           (const Zel##T* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pSum, ZelHintAlgorithm hint),      \
           (pSrc, srcStep, roiSize, pSum, hint), (zel::sum<Zel##T, zel::L, ZelHintAlgorithm>))            \
    ZEL_FN(ZelStatus, zeliMean_##T##_##L##R,                                                              \
           (const Zel##T* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pMean, ZelHintAlgorithm hint),     \
           (pSrc, srcStep, roiSize, pMean, hint), (zel::mean<Zel##T, zel::L, ZelHintAlgorithm>))
#define ZEL_DOT(T, L)                                                                                      \
    ZEL_FN(ZelStatus, zeliDotProd_##T##64f_##L##R,                                                         \
           (const Zel##T* pSrc1, int src1Step, const Zel##T* pSrc2, int src2Step, ZeliSize roiSize, Zel64f* pDp), \
           (pSrc1, src1Step, pSrc2, src2Step, roiSize, pDp), (zel::dot_prod<Zel##T, zel::L>))
#define ZEL_LAYOUTS(M, T) M(T, C1) M(T, C3) M(T, C4) M(T, AC4)

ZEL_LAYOUTS(ZEL_SUM, 8u)
ZEL_LAYOUTS(ZEL_SUM, 16u)
ZEL_LAYOUTS(ZEL_SUM, 16s)
ZEL_LAYOUTS(ZEL_SUM_HINT, 32f)

ZEL_LAYOUTS(ZEL_DOT, 8u)
ZEL_LAYOUTS(ZEL_DOT, 8s)
ZEL_LAYOUTS(ZEL_DOT, 16u)
ZEL_LAYOUTS(ZEL_DOT, 16s)
ZEL_LAYOUTS(ZEL_DOT, 32u)
ZEL_LAYOUTS(ZEL_DOT, 32s)
ZEL_LAYOUTS(ZEL_DOT, 32f)

ZEL_FN(ZelStatus, zeliDotProdCol_32f_L2,
       (const Zel32f* const* ppSrcList, const Zel32f* pCoeffs, int srcCount, Zel32f* pDst, int len),
       (ppSrcList, pCoeffs, srcCount, pDst, len), (zel::dot_prod_col<Zel32f>))
ZEL_FN(ZelStatus, zeliDotProdCol_64f_L2,
       (const Zel64f* const* ppSrcList, const Zel64f* pCoeffs, int srcCount, Zel64f* pDst, int len),
       (ppSrcList, pCoeffs, srcCount, pDst, len), (zel::dot_prod_col<Zel64f>))

#undef ZEL_LAYOUTS
#undef ZEL_DOT
#undef ZEL_SUM_HINT
#undef ZEL_SUM

/* Sliding window sums.
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
       ZelStatus st = zeliSumWindowRow_8u32f_C1R(src + 1, 5, dst, 12, roi, 3, 1);
*/
#define ZEL_SUMWIN(F, T, L, CH, ROW)                                                                         \
    ZEL_FN(ZelStatus, zeliSumWindow##F##_##T##32f_##L##R,                                                    \
           (const Zel##T* pSrc, int srcStep, Zel32f* pDst, int dstStep, ZeliSize dstRoiSize, int maskSize, int anchor), \
           (pSrc, srcStep, pDst, dstStep, dstRoiSize, maskSize, anchor), (zel::filt::sum_window<Zel##T, CH, ROW>))
#define ZEL_SUMWIN_ALL(F, ROW)                                                                              \
    ZEL_SUMWIN(F, 8u, C1, 1, ROW) ZEL_SUMWIN(F, 8u, C3, 3, ROW) ZEL_SUMWIN(F, 8u, C4, 4, ROW)               \
    ZEL_SUMWIN(F, 16u, C1, 1, ROW) ZEL_SUMWIN(F, 16u, C3, 3, ROW) ZEL_SUMWIN(F, 16u, C4, 4, ROW)            \
    ZEL_SUMWIN(F, 16s, C1, 1, ROW) ZEL_SUMWIN(F, 16s, C3, 3, ROW) ZEL_SUMWIN(F, 16s, C4, 4, ROW)
ZEL_SUMWIN_ALL(Row, true)
ZEL_SUMWIN_ALL(Column, false)
#undef ZEL_SUMWIN_ALL
#undef ZEL_SUMWIN

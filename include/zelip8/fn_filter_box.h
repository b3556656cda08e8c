/* Box filter.
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
       ZelStatus st = zeliFilterBox_8u_C1R(src + 6 + 1, 6, dst, 4, roi, mask, anchor);
*/
#define ZEL_BOX(T, L)                                                                                        \
    ZEL_FN(ZelStatus, zeliFilterBox_##T##_##L##R,                                                            \
           (const Zel##T* pSrc, int srcStep, Zel##T* pDst, int dstStep, ZeliSize dstRoiSize, ZeliSize maskSize, \
            ZeliPoint anchor),                                                                               \
           (pSrc, srcStep, pDst, dstStep, dstRoiSize, maskSize, anchor), (zel::filt::box<Zel##T, zel::L, false>)) \
    ZEL_FN(ZelStatus, zeliFilterBox_##T##_##L##IR,                                                           \
           (Zel##T * pSrcDst, int srcDstStep, ZeliSize roiSize, ZeliSize maskSize, ZeliPoint anchor),          \
           (pSrcDst, srcDstStep, roiSize, maskSize, anchor), (zel::filt::box_i<Zel##T, zel::L>))
#define ZEL_BOX_ALL(T) ZEL_BOX(T, C1) ZEL_BOX(T, C3) ZEL_BOX(T, C4) ZEL_BOX(T, AC4)
ZEL_BOX_ALL(8u)
ZEL_BOX_ALL(16s)
ZEL_BOX_ALL(16u)
ZEL_BOX_ALL(32f)
ZEL_FN(ZelStatus, zeliFilterBox_64f_C1R,
       (const Zel64f* pSrc, int srcStep, Zel64f* pDst, int dstStep, ZeliSize dstRoiSize, ZeliSize maskSize,
        ZeliPoint anchor),
       (pSrc, srcStep, pDst, dstStep, dstRoiSize, maskSize, anchor), (zel::filt::box_64f))
#undef ZEL_BOX_ALL
#undef ZEL_BOX

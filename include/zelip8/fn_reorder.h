/* Reordering.
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
       if (st == zelStatusOk) st = zeliMirror_8u_C3IR(bgr, 6, roi, zelAxisVertical);
*/
#define ZEL_SWAP(T, F, N, IMPL)                                                                           \
    ZEL_FN(ZelStatus, zeliSwapChannels_##T##_##F,                                                       \
           (const Zel##T* pSrc, int srcStep, Zel##T* pDst, int dstStep, ZeliSize roiSize, const int dstOrder[N]), \
           (pSrc, srcStep, pDst, dstStep, roiSize, dstOrder), IMPL)
#define ZEL_SWAP_I(T, F, N, IMPL)                                                                         \
    ZEL_FN(ZelStatus, zeliSwapChannels_##T##_##F, (Zel##T* pSrcDst, int srcDstStep, ZeliSize roiSize, const int dstOrder[N]), \
           (pSrcDst, srcDstStep, roiSize, dstOrder), IMPL)
#define ZEL_SWAP_C34(T)                                                                                   \
    ZEL_FN(ZelStatus, zeliSwapChannels_##T##_C3C4R,                                                     \
           (const Zel##T* pSrc, int srcStep, Zel##T* pDst, int dstStep, ZeliSize roiSize, const int dstOrder[4], Zel##T val), \
           (pSrc, srcStep, pDst, dstStep, roiSize, dstOrder, val), (zel::swap_channels_c3c4<Zel##T>))
#define ZEL_SWAP_ALL(T)                                                         \
    ZEL_SWAP(T, C3R, 3, (zel::swap_channels<Zel##T, 3, 3, 3, 2>))                 \
    ZEL_SWAP(T, AC4R, 3, (zel::swap_channels<Zel##T, 4, 4, 3, 2>))                \
    ZEL_SWAP_C34(T)                                                             \
    ZEL_SWAP(T, C4C3R, 3, (zel::swap_channels<Zel##T, 4, 3, 3, 3>))
ZEL_SWAP_ALL(8u)
ZEL_SWAP_ALL(16u)
ZEL_SWAP_ALL(16s)
ZEL_SWAP_ALL(32s)
ZEL_SWAP_ALL(32f)
ZEL_SWAP_I(8u, C3IR, 3, (zel::swap_channels_i<Zel8u, 3, 3, 2>))
ZEL_SWAP_I(8u, C4IR, 4, (zel::swap_channels_i<Zel8u, 4, 4, 3>))

#define ZEL_TRANSPOSE(T, C)                                                                              \
    ZEL_FN(ZelStatus, zeliTranspose_##T##_C##C##R,                                                       \
           (const Zel##T* pSrc, int srcStep, Zel##T* pDst, int dstStep, ZeliSize roiSize),                \
           (pSrc, srcStep, pDst, dstStep, roiSize), (zel::transpose<Zel##T, C>))                          \
    ZEL_FN(ZelStatus, zeliTranspose_##T##_C##C##IR, (Zel##T* pSrcDst, int srcDstStep, ZeliSize roiSize),    \
           (pSrcDst, srcDstStep, roiSize), (zel::transpose_i<Zel##T, C>))
#define ZEL_TRANSPOSE_ALL(T) ZEL_TRANSPOSE(T, 1) ZEL_TRANSPOSE(T, 3) ZEL_TRANSPOSE(T, 4)
ZEL_TRANSPOSE_ALL(8u)
ZEL_TRANSPOSE_ALL(16u)
ZEL_TRANSPOSE_ALL(16s)
ZEL_TRANSPOSE_ALL(32s)
ZEL_TRANSPOSE_ALL(32f)

#define ZEL_MIRROR(T, L)                                                                                 \
    ZEL_FN(ZelStatus, zeliMirror_##T##_##L##R,                                                           \
           (const Zel##T* pSrc, int srcStep, Zel##T* pDst, int dstStep, ZeliSize roiSize, ZeliAxis flip), \
           (pSrc, srcStep, pDst, dstStep, roiSize, flip), (zel::mirror<Zel##T, zel::L>))                  \
    ZEL_FN(ZelStatus, zeliMirror_##T##_##L##IR, (Zel##T* pSrcDst, int srcDstStep, ZeliSize roiSize, ZeliAxis flip), \
           (pSrcDst, srcDstStep, roiSize, flip), (zel::mirror_i<Zel##T, zel::L>))
#define ZEL_MIRROR_ALL(T) ZEL_MIRROR(T, C1) ZEL_MIRROR(T, C3) ZEL_MIRROR(T, C4) ZEL_MIRROR(T, AC4)
ZEL_MIRROR_ALL(8u)
ZEL_MIRROR_ALL(16u)
ZEL_MIRROR_ALL(16s)
ZEL_MIRROR_ALL(32s)
ZEL_MIRROR_ALL(32f)

#undef ZEL_MIRROR_ALL
#undef ZEL_MIRROR
#undef ZEL_TRANSPOSE_ALL
#undef ZEL_TRANSPOSE
#undef ZEL_SWAP_ALL
#undef ZEL_SWAP_C34
#undef ZEL_SWAP_I
#undef ZEL_SWAP

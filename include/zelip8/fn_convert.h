/* Sample type conversion and range scaling.
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
       ZelStatus st = zeliConvert_32f8u_C1R(f, 16, u, 4, roi, zelRoundNear);
*/
#define ZEL_CVT(S, D, L)                                                                                       \
    ZEL_FN(ZelStatus, zeliConvert_##S##D##_##L##R,                                                             \
           (const Zel##S* pSrc, int srcStep, Zel##D* pDst, int dstStep, ZeliSize roiSize),                    \
           (pSrc, srcStep, pDst, dstStep, roiSize), (zel::convert<Zel##S, Zel##D, zel::L>))
#define ZEL_CVT_RND(D, L)                                                                                      \
    ZEL_FN(ZelStatus, zeliConvert_32f##D##_##L##R,                                                             \
           (const Zel32f* pSrc, int srcStep, Zel##D* pDst, int dstStep, ZeliSize roiSize, ZelRoundMode roundMode), \
           (pSrc, srcStep, pDst, dstStep, roiSize, roundMode), (zel::convert_round<Zel##D, zel::L>))
#define ZEL_CVT_SFS(S, D)                                                                                      \
    ZEL_FN(ZelStatus, zeliConvert_##S##D##_C1RSfs,                                                             \
           (const Zel##S* pSrc, int srcStep, Zel##D* pDst, int dstStep, ZeliSize roiSize, ZelRoundMode roundMode, \
            int scaleFactor),                                                                                  \
           (pSrc, srcStep, pDst, dstStep, roiSize, roundMode, scaleFactor), (zel::convert_sfs<Zel##S, Zel##D>))
#define ZEL_CVT_RS(S, D)                                                                                       \
    ZEL_FN(ZelStatus, zeliConvert_##S##D##_C1Rs,                                                               \
           (const Zel##S* pSrc, int srcStep, Zel##D* pDst, int dstStep, ZeliSize roiSize),                    \
           (pSrc, srcStep, pDst, dstStep, roiSize), (zel::convert_rs<Zel##S, Zel##D>))
#define ZEL_CVT_4(S, D) ZEL_CVT(S, D, C1) ZEL_CVT(S, D, C3) ZEL_CVT(S, D, C4) ZEL_CVT(S, D, AC4)
#define ZEL_CVT_RND_4(D) ZEL_CVT_RND(D, C1) ZEL_CVT_RND(D, C3) ZEL_CVT_RND(D, C4) ZEL_CVT_RND(D, AC4) ZEL_CVT_SFS(32f, D)

ZEL_CVT_4(8u, 16s)
ZEL_CVT_4(8u, 16u)
ZEL_CVT_4(8u, 32f)
ZEL_CVT_4(8u, 32s)
ZEL_CVT_4(8s, 32f)
ZEL_CVT_4(8s, 32s)
ZEL_CVT_4(16s, 8u)
ZEL_CVT_4(16s, 32f)
ZEL_CVT_4(16s, 32s)
ZEL_CVT_4(16u, 8u)
ZEL_CVT_4(16u, 32f)
ZEL_CVT_4(16u, 32s)
ZEL_CVT_4(32s, 8s)
ZEL_CVT_4(32s, 8u)
ZEL_CVT_RND_4(8s)
ZEL_CVT_RND_4(8u)
ZEL_CVT_RND_4(16s)
ZEL_CVT_RND_4(16u)
ZEL_CVT_SFS(8u, 8s)
ZEL_CVT_SFS(16s, 8s)
ZEL_CVT_SFS(16u, 8s)
ZEL_CVT_SFS(16u, 16s)
ZEL_CVT_SFS(32f, 32s)
ZEL_CVT_SFS(32s, 16s)
ZEL_CVT_SFS(32s, 16u)
ZEL_CVT_SFS(32u, 8s)
ZEL_CVT_SFS(32u, 8u)
ZEL_CVT_SFS(32u, 16s)
ZEL_CVT_SFS(32u, 16u)
ZEL_CVT_SFS(32u, 32s)
ZEL_CVT(8s, 16s, C1)
ZEL_CVT(16u, 32u, C1)
ZEL_CVT(32s, 32f, C1)
ZEL_CVT(32u, 32f, C1)
ZEL_FN(ZelStatus, zeliConvert_1u8u_C1R,
       (const Zel8u* pSrc, int srcStep, int srcBitOffset, Zel8u* pDst, int dstStep, ZeliSize roiSize),
       (pSrc, srcStep, srcBitOffset, pDst, dstStep, roiSize), (zel::convert_1u8u))
ZEL_CVT_RS(8s, 8u)
ZEL_CVT_RS(8s, 16u)
ZEL_CVT_RS(8s, 32u)
ZEL_CVT_RS(16s, 16u)
ZEL_CVT_RS(16s, 32u)
ZEL_CVT_RS(32s, 32u)
ZEL_FN(ZelStatus, zeliConvert_32f32u_C1RSfs,
       (const Zel32f* pSrc, int srcStep, Zel32u* pDst, int dstStep, ZeliSize roiSize, ZelRoundMode roundMode,
        int scaleFactor),
       (pSrc, srcStep, pDst, dstStep, roiSize, roundMode, scaleFactor), (zel::convert_32f32u))
ZEL_FN(ZelStatus, zeliConvert_32f32u_C1IRSfs,
       (Zel32u* pSrcDst, int srcDstStep, ZeliSize roiSize, ZelRoundMode roundMode, int scaleFactor),
       (pSrcDst, srcDstStep, roiSize, roundMode, scaleFactor), (zel::convert_32f32u_ip))

#define ZEL_SCALE_W(D, L)                                                                                      \
    ZEL_FN(ZelStatus, zeliScale_8u##D##_##L##R,                                                                \
           (const Zel8u* pSrc, int srcStep, Zel##D* pDst, int dstStep, ZeliSize roiSize),                     \
           (pSrc, srcStep, pDst, dstStep, roiSize), (zel::scale_widen<Zel##D, zel::L>))
#define ZEL_SCALE_H(S, L)                                                                                      \
    ZEL_FN(ZelStatus, zeliScale_##S##8u_##L##R,                                                                \
           (const Zel##S* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize, ZelHintAlgorithm hint), \
           (pSrc, srcStep, pDst, dstStep, roiSize, hint), (zel::scale_to_8u<Zel##S, zel::L>))
#define ZEL_SCALE_F(S, D, L)                                                                                   \
    ZEL_FN(ZelStatus, zeliScale_##S##D##_##L##R,                                                               \
           (const Zel##S* pSrc, int srcStep, Zel##D* pDst, int dstStep, ZeliSize roiSize, Zel32f vMin, Zel32f vMax), \
           (pSrc, srcStep, pDst, dstStep, roiSize, vMin, vMax), (zel::scale_##S##D<zel::L>))
#define ZEL_SCALE_4(M, ...) M(__VA_ARGS__, C1) M(__VA_ARGS__, C3) M(__VA_ARGS__, C4) M(__VA_ARGS__, AC4)

ZEL_SCALE_4(ZEL_SCALE_W, 16s)
ZEL_SCALE_4(ZEL_SCALE_W, 16u)
ZEL_SCALE_4(ZEL_SCALE_W, 32s)
ZEL_SCALE_4(ZEL_SCALE_H, 16s)
ZEL_SCALE_4(ZEL_SCALE_H, 16u)
ZEL_SCALE_4(ZEL_SCALE_H, 32s)
ZEL_SCALE_4(ZEL_SCALE_F, 8u, 32f)
ZEL_SCALE_4(ZEL_SCALE_F, 32f, 8u)

#undef ZEL_SCALE_4
#undef ZEL_SCALE_F
#undef ZEL_SCALE_H
#undef ZEL_SCALE_W
#undef ZEL_CVT_RND_4
#undef ZEL_CVT_4
#undef ZEL_CVT_RS
#undef ZEL_CVT_SFS
#undef ZEL_CVT_RND
#undef ZEL_CVT

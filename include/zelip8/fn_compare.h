/* Compare.
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
       ZelStatus st = zeliCompareC_8u_C1R(img, 4, 100, mask, 4, roi, zelCmpGreater);
*/
#define ZEL_CMP_IMG(T, L)                                                                                  \
    ZEL_FN(ZelStatus, zeliCompare_##T##_##L##R,                                                            \
           (const Zel##T* pSrc1, int src1Step, const Zel##T* pSrc2, int src2Step, Zel8u* pDst, int dstStep,  \
            ZeliSize roiSize, ZelCmpOp zelCmpOp),                                                         \
           (pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, zelCmpOp), (zel::compare<Zel##T, zel::L>))
#define ZEL_CMP_C(T, L, V)                                                                                 \
    ZEL_FN(ZelStatus, zeliCompareC_##T##_##L##R,                                                           \
           (const Zel##T* pSrc, int srcStep, V value, Zel8u* pDst, int dstStep, ZeliSize roiSize, ZelCmpOp zelCmpOp), \
           (pSrc, srcStep, value, pDst, dstStep, roiSize, zelCmpOp), (zel::compare_c<Zel##T, zel::L, V>))
#define ZEL_CMP_ALL(T)                                                                                     \
    ZEL_CMP_IMG(T, C1) ZEL_CMP_IMG(T, C3) ZEL_CMP_IMG(T, C4) ZEL_CMP_IMG(T, AC4)                            \
    ZEL_CMP_C(T, C1, Zel##T) ZEL_CMP_C(T, C3, const Zel##T*) ZEL_CMP_C(T, C4, const Zel##T*) ZEL_CMP_C(T, AC4, const Zel##T*)
ZEL_CMP_ALL(8u)
ZEL_CMP_ALL(16u)
ZEL_CMP_ALL(16s)
ZEL_CMP_ALL(32f)

#define ZEL_CMP_EPS(L, V)                                                                                  \
    ZEL_FN(ZelStatus, zeliCompareEqualEps_32f_##L##R,                                                       \
           (const Zel32f* pSrc1, int src1Step, const Zel32f* pSrc2, int src2Step, Zel8u* pDst, int dstStep,  \
            ZeliSize roiSize, Zel32f eps),                                                                \
           (pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, eps), (zel::compare_eps<zel::L>))      \
    ZEL_FN(ZelStatus, zeliCompareEqualEpsC_32f_##L##R,                                                      \
           (const Zel32f* pSrc, int srcStep, V value, Zel8u* pDst, int dstStep, ZeliSize roiSize, Zel32f eps), \
           (pSrc, srcStep, value, pDst, dstStep, roiSize, eps), (zel::compare_eps_c<zel::L, V>))
ZEL_CMP_EPS(C1, Zel32f)
ZEL_CMP_EPS(C3, const Zel32f*)
ZEL_CMP_EPS(C4, const Zel32f*)
ZEL_CMP_EPS(AC4, const Zel32f*)

#undef ZEL_CMP_EPS
#undef ZEL_CMP_ALL
#undef ZEL_CMP_C
#undef ZEL_CMP_IMG

/* Saturating add and subtract.
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
       ZelStatus st = zeliAdd_8u_C1RSfs(a, 4, b, 4, half, 4, roi, 1);
*/
/* Included with ZEL_ARITH_SHAPES_ONLY, this file only defines the entry shapes
   (the multiply and divide lists use them); with ZEL_ARITH_SHAPES_DONE it
   only removes them again. */
#ifdef ZEL_ARITH_SHAPES_DONE
#undef ZEL_BIN
#undef ZEL_BINF
#undef ZEL_CST1
#undef ZEL_CST
#undef ZEL_CST1F
#undef ZEL_CSTF
#undef ZEL_BIN_SET
#undef ZEL_CST_SET
#else
#define ZEL_BIN(F, OP, T, L)                                                                                   \
    ZEL_FN(ZelStatus, zeli##F##_##T##_##L##RSfs,                                                               \
           (const Zel##T* pSrc1, int src1Step, const Zel##T* pSrc2, int src2Step, Zel##T* pDst, int dstStep,   \
            ZeliSize roiSize, int scaleFactor),                                                                \
           (pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, scaleFactor), (zel::bin<zel::Op::OP, Zel##T, zel::L>)) \
    ZEL_FN(ZelStatus, zeli##F##_##T##_##L##IRSfs,                                                              \
           (const Zel##T* pSrc, int srcStep, Zel##T* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor), \
           (pSrc, srcStep, pSrcDst, srcDstStep, roiSize, scaleFactor), (zel::bin_i<zel::Op::OP, Zel##T, zel::L>))
#define ZEL_BINF(F, OP, T, L)                                                                                  \
    ZEL_FN(ZelStatus, zeli##F##_##T##_##L##R,                                                                  \
           (const Zel##T* pSrc1, int src1Step, const Zel##T* pSrc2, int src2Step, Zel##T* pDst, int dstStep,   \
            ZeliSize roiSize),                                                                                 \
           (pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize), (zel::bin_f<zel::Op::OP, Zel##T, zel::L>)) \
    ZEL_FN(ZelStatus, zeli##F##_##T##_##L##IR,                                                                 \
           (const Zel##T* pSrc, int srcStep, Zel##T* pSrcDst, int srcDstStep, ZeliSize roiSize),              \
           (pSrc, srcStep, pSrcDst, srcDstStep, roiSize), (zel::bin_fi<zel::Op::OP, Zel##T, zel::L>))
/* Constant forms: C1 takes the value itself, the others an array of three or four. */
#define ZEL_CST1(F, OP, T)                                                                                     \
    ZEL_FN(ZelStatus, zeli##F##_##T##_C1RSfs,                                                                  \
           (const Zel##T* pSrc, int srcStep, Zel##T value, Zel##T* pDst, int dstStep, ZeliSize roiSize, int scaleFactor), \
           (pSrc, srcStep, value, pDst, dstStep, roiSize, scaleFactor), (zel::cst1<zel::Op::OP, Zel##T, zel::C1>)) \
    ZEL_FN(ZelStatus, zeli##F##_##T##_C1IRSfs, (Zel##T value, Zel##T* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor), \
           (value, pSrcDst, srcDstStep, roiSize, scaleFactor), (zel::cst1_i<zel::Op::OP, Zel##T, zel::C1>))
#define ZEL_CST(F, OP, T, L)                                                                                   \
    ZEL_FN(ZelStatus, zeli##F##_##T##_##L##RSfs,                                                               \
           (const Zel##T* pSrc, int srcStep, const Zel##T* value, Zel##T* pDst, int dstStep, ZeliSize roiSize, int scaleFactor), \
           (pSrc, srcStep, value, pDst, dstStep, roiSize, scaleFactor), (zel::cst<zel::Op::OP, Zel##T, zel::L>)) \
    ZEL_FN(ZelStatus, zeli##F##_##T##_##L##IRSfs,                                                              \
           (const Zel##T* value, Zel##T* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor),         \
           (value, pSrcDst, srcDstStep, roiSize, scaleFactor), (zel::cst_i<zel::Op::OP, Zel##T, zel::L>))
#define ZEL_CST1F(F, OP, T)                                                                                    \
    ZEL_FN(ZelStatus, zeli##F##_##T##_C1R,                                                                     \
           (const Zel##T* pSrc, int srcStep, Zel##T value, Zel##T* pDst, int dstStep, ZeliSize roiSize),      \
           (pSrc, srcStep, value, pDst, dstStep, roiSize), (zel::cst1_f<zel::Op::OP, Zel##T, zel::C1>))       \
    ZEL_FN(ZelStatus, zeli##F##_##T##_C1IR, (Zel##T value, Zel##T* pSrcDst, int srcDstStep, ZeliSize roiSize), \
           (value, pSrcDst, srcDstStep, roiSize), (zel::cst1_fi<zel::Op::OP, Zel##T, zel::C1>))
#define ZEL_CSTF(F, OP, T, L)                                                                                  \
    ZEL_FN(ZelStatus, zeli##F##_##T##_##L##R,                                                                  \
           (const Zel##T* pSrc, int srcStep, const Zel##T* value, Zel##T* pDst, int dstStep, ZeliSize roiSize), \
           (pSrc, srcStep, value, pDst, dstStep, roiSize), (zel::cst_f<zel::Op::OP, Zel##T, zel::L>))         \
    ZEL_FN(ZelStatus, zeli##F##_##T##_##L##IR, (const Zel##T* value, Zel##T* pSrcDst, int srcDstStep, ZeliSize roiSize), \
           (value, pSrcDst, srcDstStep, roiSize), (zel::cst_fi<zel::Op::OP, Zel##T, zel::L>))
/* Member sets: real types in C1, C3, C4, AC4; complex types in C1, C3, AC4. */
#define ZEL_BIN_SET(F, OP)                                                                                     \
    ZEL_BIN(F, OP, 8u, C1) ZEL_BIN(F, OP, 8u, C3) ZEL_BIN(F, OP, 8u, C4) ZEL_BIN(F, OP, 8u, AC4)               \
    ZEL_BIN(F, OP, 16u, C1) ZEL_BIN(F, OP, 16u, C3) ZEL_BIN(F, OP, 16u, C4) ZEL_BIN(F, OP, 16u, AC4)           \
    ZEL_BIN(F, OP, 16s, C1) ZEL_BIN(F, OP, 16s, C3) ZEL_BIN(F, OP, 16s, C4) ZEL_BIN(F, OP, 16s, AC4)           \
    ZEL_BIN(F, OP, 16sc, C1) ZEL_BIN(F, OP, 16sc, C3) ZEL_BIN(F, OP, 16sc, AC4)                                \
    ZEL_BIN(F, OP, 32sc, C1) ZEL_BIN(F, OP, 32sc, C3) ZEL_BIN(F, OP, 32sc, AC4)                                \
    ZEL_BINF(F, OP, 32f, C1) ZEL_BINF(F, OP, 32f, C3) ZEL_BINF(F, OP, 32f, C4) ZEL_BINF(F, OP, 32f, AC4)       \
    ZEL_BINF(F, OP, 32fc, C1) ZEL_BINF(F, OP, 32fc, C3) ZEL_BINF(F, OP, 32fc, AC4)
#define ZEL_CST_SET(F, OP)                                                                                     \
    ZEL_CST1(F, OP, 8u) ZEL_CST(F, OP, 8u, C3) ZEL_CST(F, OP, 8u, C4) ZEL_CST(F, OP, 8u, AC4)                  \
    ZEL_CST1(F, OP, 16u) ZEL_CST(F, OP, 16u, C3) ZEL_CST(F, OP, 16u, C4) ZEL_CST(F, OP, 16u, AC4)              \
    ZEL_CST1(F, OP, 16s) ZEL_CST(F, OP, 16s, C3) ZEL_CST(F, OP, 16s, C4) ZEL_CST(F, OP, 16s, AC4)              \
    ZEL_CST1(F, OP, 16sc) ZEL_CST(F, OP, 16sc, C3) ZEL_CST(F, OP, 16sc, AC4)                                   \
    ZEL_CST1(F, OP, 32sc) ZEL_CST(F, OP, 32sc, C3) ZEL_CST(F, OP, 32sc, AC4)                                   \
    ZEL_CST1F(F, OP, 32f) ZEL_CSTF(F, OP, 32f, C3) ZEL_CSTF(F, OP, 32f, C4) ZEL_CSTF(F, OP, 32f, AC4)          \
    ZEL_CST1F(F, OP, 32fc) ZEL_CSTF(F, OP, 32fc, C3) ZEL_CSTF(F, OP, 32fc, AC4)
#ifndef ZEL_ARITH_SHAPES_ONLY
ZEL_BIN_SET(Add, Add)
ZEL_BIN_SET(Sub, Sub)
ZEL_CST_SET(AddC, Add)
ZEL_CST_SET(SubC, SubR)
#define ZEL_ARITH_SHAPES_DONE
#include "zelip8/fn_addsub.h"
#undef ZEL_ARITH_SHAPES_DONE
#endif
#endif

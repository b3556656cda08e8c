/* Divide. zeliDiv: dst = src2 / src1 (in place srcDst / src); zeliDiv_Round the
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
       if (st == zelStatusDivisionByZeroWarning) st = zelStatusOk; // the +inf
*/
#define ZEL_ARITH_SHAPES_ONLY
#include "zelip8/fn_addsub.h"
#undef ZEL_ARITH_SHAPES_ONLY
#define ZEL_RND(T, L)                                                                                          \
    ZEL_FN(ZelStatus, zeliDiv_Round_##T##_##L##RSfs,                                                           \
           (const Zel##T* pSrc1, int src1Step, const Zel##T* pSrc2, int src2Step, Zel##T* pDst, int dstStep,   \
            ZeliSize roiSize, ZelRoundMode rndMode, int scaleFactor),                                          \
           (pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, rndMode, scaleFactor),                   \
           (zel::rnd<zel::Op::Div, Zel##T, zel::L>))                                                           \
    ZEL_FN(ZelStatus, zeliDiv_Round_##T##_##L##IRSfs,                                                          \
           (const Zel##T* pSrc, int srcStep, Zel##T* pSrcDst, int srcDstStep, ZeliSize roiSize, ZelRoundMode rndMode, \
            int scaleFactor),                                                                                  \
           (pSrc, srcStep, pSrcDst, srcDstStep, roiSize, rndMode, scaleFactor), (zel::rnd_i<zel::Op::Div, Zel##T, zel::L>))
#define ZEL_RND_SET(T) ZEL_RND(T, C1) ZEL_RND(T, C3) ZEL_RND(T, C4) ZEL_RND(T, AC4)
ZEL_BIN_SET(Div, Div)
ZEL_RND_SET(8u)
ZEL_RND_SET(16u)
ZEL_RND_SET(16s)
ZEL_CST_SET(DivC, DivR)
#undef ZEL_RND_SET
#undef ZEL_RND
#define ZEL_ARITH_SHAPES_DONE
#include "zelip8/fn_addsub.h"
#undef ZEL_ARITH_SHAPES_DONE

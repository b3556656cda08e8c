/* Multiply. zeliMul: dst = src1 * src2, zeliMulC: dst = src * value, scaled as
   the add family (complex forms as complex products); zeliMulScale and
   zeliMulCScale: the product of two fractions of full scale, divided by the
   full scale and rounded. The shapes of the entries are those of fn_addsub.h.

   Checks: those of the add family; zeliMulScale and zeliMulCScale test
   zelStatusNullPointer, zelStatusBadStep, then zelStatusBadSize.

   Example:
       Zel16s img[3 * 2] = {100, -200, 300, 400, 500, 600};
       Zel16s out[3 * 2];
       ZeliSize roi = {3, 2};
       // img * 384 / 2^8 = img * 1.5: 150, -300, 450, 600, 750, 900
       ZelStatus st = zeliMulC_16s_C1RSfs(img, 3 * 2, 384, out, 3 * 2, roi, 8);
*/
#define ZEL_ARITH_SHAPES_ONLY
#include "zelip8/fn_addsub.h"
#undef ZEL_ARITH_SHAPES_ONLY
#define ZEL_MULSCALE(T)                                                                                         \
    ZEL_BINF(MulScale, MulScale, T, C1) ZEL_BINF(MulScale, MulScale, T, C3) ZEL_BINF(MulScale, MulScale, T, C4) \
    ZEL_BINF(MulScale, MulScale, T, AC4) ZEL_CST1F(MulCScale, MulScale, T) ZEL_CSTF(MulCScale, MulScale, T, C3) \
    ZEL_CSTF(MulCScale, MulScale, T, C4) ZEL_CSTF(MulCScale, MulScale, T, AC4)
ZEL_BIN_SET(Mul, Mul)
ZEL_CST_SET(MulC, Mul)
ZEL_MULSCALE(8u)
ZEL_MULSCALE(16u)
#undef ZEL_MULSCALE
#define ZEL_ARITH_SHAPES_DONE
#include "zelip8/fn_addsub.h"
#undef ZEL_ARITH_SHAPES_DONE

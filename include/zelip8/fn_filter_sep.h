/* Row and column filters.
   zeliFilterRow convolves every row with a kernel of kernelSize taps,
   dst(x, y) = sum of pKernel[i] * src(x + xAnchor - i, y); zeliFilterColumn
   the same down the columns, dst(x, y) = sum of pKernel[i] *
   src(x, y + yAnchor - i). The kernel is reversed against the image
   (pKernel[xAnchor] meets the pixel under the destination pixel); nothing
   pads: the caller keeps kernelSize - 1 - anchor pixels before the region
   (left, or above) and anchor after it readable. The anchor is not tested.
   8u forms with a Zel32s kernel sum 32-bit integers and divide by divisor
   (ties to even, saturated); 16s and 16u forms with a Zel32s kernel scale
   every tap by 1 / divisor first and sum floats; the Row32f and Column32f
   forms take float taps for integer images (the float sum rounded to
   nearest, ties to even, saturated); 32f and 64f sum in their own type.
   Every float sum adds the taps in kernel order. AC4 leaves the destination
   alpha alone. Source and destination must not overlap.

   Checks: zelStatusNullPointer (source, destination, kernel), zelStatusBadSize
   (region or kernelSize below 1), zelStatusBadDivisor (a zero divisor),
   zelStatusBadStep (row forms: a source step below (width + kernelSize - 1)
   pixels; a destination step, or a column form's source step, below width
   pixels). The 16s and 16u Zel32s forms test the kernel, kernelSize and
   divisor first; the column C3 and C4 forms test the width first.
   zelStatusMemAlloc when 16s or 16u taps above 256 find no memory.

   Example:
       Zel32f src[1 * (4 + 2)] = {0, 1, 2, 3, 4, 5}, dst[4];
       const Zel32f kernel[3] = {0.25f, 0.5f, 0.25f};
       ZeliSize roi = {4, 1};
       // a centred 1-2-1 smoothing: dst[x] = (src[x] + 2 src[x+1] + src[x+2]) / 4
       ZelStatus st = zeliFilterRow_32f_C1R(src + 1, 24, dst, 16, roi, kernel, 3, 1);
*/
#define ZEL_SEP_PARAMS(T, K, A, DIV) \
    (const Zel##T* pSrc, int srcStep, Zel##T* pDst, int dstStep, ZeliSize dstRoiSize, const K* pKernel, int kernelSize, int A DIV)
#define ZEL_SEP_ARGS(A, DIV) (pSrc, srcStep, pDst, dstStep, dstRoiSize, pKernel, kernelSize, A DIV)
#define ZEL_SEP_DIVP , int divisor
#define ZEL_SEP_DIVA , divisor
#define ZEL_SEP_NONE
#define ZEL_SEP_I(F, A, ROW, T, L)                                                                             \
    ZEL_FN(ZelStatus, zeliFilter##F##_##T##_##L##R, ZEL_SEP_PARAMS(T, Zel32s, A, ZEL_SEP_DIVP),               \
           ZEL_SEP_ARGS(A, ZEL_SEP_DIVA), (zel::filt::sep_int<Zel##T, zel::L, ROW>))
#define ZEL_SEP_F(F, A, ROW, T, L, K)                                                                          \
    ZEL_FN(ZelStatus, zeliFilter##F##_##T##_##L##R, ZEL_SEP_PARAMS(T, Zel##K, A, ZEL_SEP_NONE),               \
           ZEL_SEP_ARGS(A, ZEL_SEP_NONE), (zel::filt::sep_float<Zel##T, zel::L, ROW, Zel##K>))
#define ZEL_SEP_LAYOUTS(M, ...) M(__VA_ARGS__, C1) M(__VA_ARGS__, C3) M(__VA_ARGS__, C4) M(__VA_ARGS__, AC4)
#define ZEL_SEP_F32(F, A, ROW, T, L) ZEL_SEP_F(F, A, ROW, T, L, 32f)
#define ZEL_SEP_FAMILY(F, A, ROW)                                                                              \
    ZEL_SEP_LAYOUTS(ZEL_SEP_I, F, A, ROW, 8u)                                                                  \
    ZEL_SEP_LAYOUTS(ZEL_SEP_I, F, A, ROW, 16s)                                                                 \
    ZEL_SEP_LAYOUTS(ZEL_SEP_I, F, A, ROW, 16u)                                                                 \
    ZEL_SEP_LAYOUTS(ZEL_SEP_F32, F, A, ROW, 32f)                                                               \
    ZEL_SEP_F(F, A, ROW, 64f, C1, 64f)                                                                         \
    ZEL_SEP_LAYOUTS(ZEL_SEP_F32, F##32f, A, ROW, 8u)                                                           \
    ZEL_SEP_LAYOUTS(ZEL_SEP_F32, F##32f, A, ROW, 16s)                                                          \
    ZEL_SEP_LAYOUTS(ZEL_SEP_F32, F##32f, A, ROW, 16u)
ZEL_SEP_FAMILY(Row, xAnchor, true)
ZEL_SEP_FAMILY(Column, yAnchor, false)
#undef ZEL_SEP_FAMILY
#undef ZEL_SEP_F32
#undef ZEL_SEP_LAYOUTS
#undef ZEL_SEP_F
#undef ZEL_SEP_I
#undef ZEL_SEP_NONE
#undef ZEL_SEP_DIVA
#undef ZEL_SEP_DIVP
#undef ZEL_SEP_ARGS
#undef ZEL_SEP_PARAMS

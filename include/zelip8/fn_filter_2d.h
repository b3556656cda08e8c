/* General two-dimensional filter.
   zeliFilter convolves the image with a kernelSize.width x kernelSize.height
   kernel (row-major): dst(x, y) = sum of pKernel[j * kW + i] *
   src(x + anchor.x - i, y + anchor.y - j). The kernel is reversed in both
   axes, so the tap at the anchor meets the pixel under the destination
   pixel; nothing pads: the caller keeps kW - 1 - anchor.x columns left of
   the region, anchor.x right of it, kH - 1 - anchor.y rows above and
   anchor.y below readable. The anchor is not tested. 8u sums 32-bit
   integers and 16s C1R 64-bit integers, divided by divisor (a power of two
   by a shift with ties to even, others through a float reciprocal), 16s C3R,
   C4R, AC4R and 16u scale the taps by 1 / divisor first and sum floats, 32f
   and 64f sum in their own type, every float sum in kernel order. The Round
   forms take a round mode (0 towards zero, 1 ties to even, 2 ties away) and
   a buffer whose size zeliFilterRoundGetBufSize... (zeliFilterGetBufSize_64f_C1R
   for the 64f form) gives for the thread count of the call. AC4 leaves the
   destination alpha alone. Source and destination must not overlap.

   Checks: zelStatusNullPointer (source, destination, kernel), zelStatusBadSize
   (region or kernel below 1), zelStatusBadDivisor (a zero divisor),
   zelStatusBadStep (a source step below (width + kW - 1) pixels or a
   destination step below width pixels), zelStatusBadRoundMode (a mode other
   than 0, 1, 2), zelStatusNullPointer (a null buffer). 16s C3R, C4R, AC4R and
   16u test the kernel, its size and the divisor first. zelStatusMemAlloc when
   their scaled taps above 256 find no memory.

   Example:
       Zel8u src[5 * 5], dst[3 * 3];
       for (int i = 0; i < 25; ++i) src[i] = (Zel8u)(i * 10);
       const Zel32s kernel[9] = {1, 2, 1, 2, 4, 2, 1, 2, 1};
       ZeliSize roi = {3, 3}, ksize = {3, 3};
       ZeliPoint anchor = {1, 1};
       // a 3x3 Gaussian blur of the centre 3x3 pixels, divided by 16
       ZelStatus st = zeliFilter_8u_C1R(src + 5 + 1, 5, dst, 3, roi, kernel, ksize, anchor, 16);
*/
#define ZEL_F2D_PARAMS(T, K, TAIL) \
    (const Zel##T* pSrc, int srcStep, Zel##T* pDst, int dstStep, ZeliSize dstRoiSize, const K* pKernel, ZeliSize kernelSize, \
     ZeliPoint anchor TAIL)
#define ZEL_F2D_ARGS(TAIL) (pSrc, srcStep, pDst, dstStep, dstRoiSize, pKernel, kernelSize, anchor TAIL)
/* Parameter tails: NONE, DIV (divisor), RD (divisor, round mode, buffer), RF (round mode, buffer), B (buffer). */
#define ZEL_F2D_P_NONE
#define ZEL_F2D_A_NONE
#define ZEL_F2D_P_DIV , int divisor
#define ZEL_F2D_A_DIV , divisor
#define ZEL_F2D_P_RD , int divisor, ZelRoundMode roundMode, Zel8u* pBuffer
#define ZEL_F2D_A_RD , divisor, roundMode, pBuffer
#define ZEL_F2D_P_RF , ZelRoundMode roundMode, Zel8u* pBuffer
#define ZEL_F2D_A_RF , roundMode, pBuffer
#define ZEL_F2D_P_B , Zel8u* pBuffer
#define ZEL_F2D_A_B , pBuffer
#define ZEL_F2D(NAME, T, K, S, IMPL) \
    ZEL_FN(ZelStatus, zeliFilter##NAME, ZEL_F2D_PARAMS(T, K, ZEL_F2D_P_##S), ZEL_F2D_ARGS(ZEL_F2D_A_##S), IMPL)
#define ZEL_F2D_INT(T, L, IMPL) ZEL_F2D(_##T##_##L##R, T, Zel32s, DIV, (IMPL<Zel##T, zel::L>))
#define ZEL_F2D_R32S(T, L) \
    ZEL_F2D(_Round32s_##T##_##L##R, T, Zel32s, RD, (zel::filt::filter_round<Zel##T, Zel32s, zel::L, true>))
#define ZEL_F2D_R32F(T, L) \
    ZEL_F2D(_Round32f_##T##_##L##R, T, Zel32f, RF, (zel::filt::filter_round32f<Zel##T, zel::L>))
#define ZEL_F2D_LAYOUTS(M, ...) M(__VA_ARGS__, C1) M(__VA_ARGS__, C3) M(__VA_ARGS__, C4) M(__VA_ARGS__, AC4)
#define ZEL_F2D_I8(T, L) ZEL_F2D_INT(T, L, zel::filt::filter_int)
#define ZEL_F2D_SC(T, L) ZEL_F2D_INT(T, L, zel::filt::filter_scaled)
#define ZEL_F2D_F(T, L) ZEL_F2D(_##T##_##L##R, T, Zel32f, NONE, (zel::filt::filter_f32<Zel##T, Zel##T, zel::L>))
#define ZEL_F2D_R16(T, L) \
    ZEL_F2D(_Round16s_##T##_##L##R, T, Zel16s, RD, (zel::filt::filter_round<Zel##T, Zel16s, zel::L, true>))
ZEL_F2D_LAYOUTS(ZEL_F2D_I8, 8u)
ZEL_F2D_I8(16s, C1)
ZEL_F2D_SC(16s, C3)
ZEL_F2D_SC(16s, C4)
ZEL_F2D_SC(16s, AC4)
ZEL_F2D_LAYOUTS(ZEL_F2D_SC, 16u)
ZEL_F2D_LAYOUTS(ZEL_F2D_F, 32f)
ZEL_F2D(_64f_C1R, 64f, Zel64f, B, (zel::filt::filter_64f<Zel64f, zel::C1>))
ZEL_F2D_LAYOUTS(ZEL_F2D_R16, 8u)
ZEL_F2D_LAYOUTS(ZEL_F2D_R32S, 16s)
ZEL_F2D_LAYOUTS(ZEL_F2D_R32S, 16u)
ZEL_F2D_LAYOUTS(ZEL_F2D_R32F, 8u)
ZEL_F2D_LAYOUTS(ZEL_F2D_R32F, 16s)
ZEL_F2D_LAYOUTS(ZEL_F2D_R32F, 16u)
#undef ZEL_F2D_R16
#undef ZEL_F2D_F
#undef ZEL_F2D_SC
#undef ZEL_F2D_I8
#undef ZEL_F2D_LAYOUTS
#undef ZEL_F2D_R32F
#undef ZEL_F2D_R32S
#undef ZEL_F2D_INT
#undef ZEL_F2D
#undef ZEL_F2D_ARGS
#undef ZEL_F2D_P_NONE
#undef ZEL_F2D_A_NONE
#undef ZEL_F2D_P_DIV
#undef ZEL_F2D_A_DIV
#undef ZEL_F2D_P_RD
#undef ZEL_F2D_A_RD
#undef ZEL_F2D_P_RF
#undef ZEL_F2D_A_RF
#undef ZEL_F2D_P_B
#undef ZEL_F2D_A_B
#undef ZEL_F2D_PARAMS

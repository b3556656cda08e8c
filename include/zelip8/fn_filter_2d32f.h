/* Two-dimensional filter with float taps, and the buffer sizes of the Round forms.
   zeliFilter32f convolves an integer image with a Zel32f kernel as
   zeliFilter does (the kernel reversed in both axes, anchor untested,
   nothing padded) and converts the float sum, formed in kernel order, to the
   destination type with rounding to nearest, ties to even, and saturation;
   8s16s and 8u16s write 16s from an 8-bit source. zeliFilterRoundGetBufSize...
   and zeliFilterGetBufSize_64f_C1R give the bytes of the buffer the matching
   zeliFilter form takes, for a kernel and a destination width, for the
   thread count at the time of the query (which must be the one of the
   filter call).

   Checks: zeliFilter32f as zeliFilter without a divisor. The size queries:
   zelStatusNullPointer, then zelStatusBadSize for a kernel side or width
   below 1, or a size that does not fit 32 bits.

   Example:
       Zel16u src[4 * 3], dst[2 * 3];
       for (int i = 0; i < 12; ++i) src[i] = (Zel16u)(1000 * i);
       const Zel32f kernel[3] = {0.25f, 0.5f, 0.25f};
       ZeliSize roi = {2, 3}, ksize = {3, 1};
       ZeliPoint anchor = {1, 0};
       int bytes = 0;
       ZelStatus st = zeliFilter32f_16u_C1R(src + 1, 8, dst, 4, roi, kernel, ksize, anchor);
       if (st == zelStatusOk) st = zeliFilterRoundGetBufSize32f_16u_C1R(ksize, 2, &bytes);
*/
#define ZEL_F32F(NAME, S, D, L)                                                                                 \
    ZEL_FN(ZelStatus, zeliFilter32f_##NAME##_##L##R,                                                            \
           (const Zel##S* pSrc, int srcStep, Zel##D* pDst, int dstStep, ZeliSize dstRoiSize, const Zel32f* pKernel, \
            ZeliSize kernelSize, ZeliPoint anchor),                                                             \
           (pSrc, srcStep, pDst, dstStep, dstRoiSize, pKernel, kernelSize, anchor),                            \
           (zel::filt::filter_f32<Zel##S, Zel##D, zel::L>))
#define ZEL_F32F_SAME(T, L) ZEL_F32F(T, T, T, L)
#define ZEL_F32F_3(M, ...) M(__VA_ARGS__, C1) M(__VA_ARGS__, C3) M(__VA_ARGS__, C4)
#define ZEL_F32F_4(M, ...) ZEL_F32F_3(M, __VA_ARGS__) M(__VA_ARGS__, AC4)
ZEL_F32F_4(ZEL_F32F_SAME, 16s)
ZEL_F32F_4(ZEL_F32F_SAME, 16u)
ZEL_F32F_4(ZEL_F32F_SAME, 8u)
ZEL_F32F_3(ZEL_F32F_SAME, 32s)
ZEL_F32F_3(ZEL_F32F_SAME, 8s)
ZEL_F32F_3(ZEL_F32F, 8s16s, 8s, 16s)
ZEL_F32F_3(ZEL_F32F, 8u16s, 8u, 16s)

#define ZEL_RBUF(NAME, F, L)                                                                                   \
    ZEL_FN(ZelStatus, zeliFilterRoundGetBufSize##NAME##_##L##R, (ZeliSize kernelSize, int dstWidth, int* pBufferSize), \
           (kernelSize, dstWidth, pBufferSize), (zel::filt::round_bufsize<F, zel::L>))
ZEL_F32F_4(ZEL_RBUF, 16s_8u, 0)
ZEL_F32F_4(ZEL_RBUF, 32s_16s, 1)
ZEL_F32F_4(ZEL_RBUF, 32s_16u, 2)
ZEL_F32F_4(ZEL_RBUF, 32f_16s, 3)
ZEL_F32F_4(ZEL_RBUF, 32f_16u, 3)
ZEL_F32F_4(ZEL_RBUF, 32f_8u, 3)
ZEL_FN(ZelStatus, zeliFilterGetBufSize_64f_C1R, (ZeliSize kernelSize, int dstWidth, int* pBufferSize),
       (kernelSize, dstWidth, pBufferSize), (zel::filt::bufsize_64f))
#undef ZEL_RBUF
#undef ZEL_F32F_4
#undef ZEL_F32F_3
#undef ZEL_F32F_SAME
#undef ZEL_F32F

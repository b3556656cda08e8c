/* Border copies.
   The source of srcRoiSize is placed at (leftBorderWidth,
   topBorderHeight) in a destination of dstRoiSize, and the frame around it
   is filled with a constant (ConstBorder), the nearest edge pixel
   (ReplicateBorder) or the image repeated cyclically (WrapBorder). In the I
   forms pSrcDst points at the first source pixel inside the destination and
   only the frame is written. AC4 leaves every destination alpha alone.

   Checks: zelStatusNullPointer, zelStatusBadStep, then zelStatusBadSize (also
   for a destination smaller than the source plus the borders, or a negative
   border).

   Example:
       Zel8u src[2 * 2] = {1, 2, 3, 4};
       Zel8u dst[4 * 4];
       ZeliSize srcRoi = {2, 2}, dstRoi = {4, 4};
       // a frame of zeros, one pixel wide, around the 2x2 image
       ZelStatus st = zeliCopyConstBorder_8u_C1R(src, 2, srcRoi, dst, 4, dstRoi, 1, 1, 0);
*/
#define ZEL_BORDER_PARAMS(T, TAIL)                                                                             \
    (const Zel##T* pSrc, int srcStep, ZeliSize srcRoiSize, Zel##T* pDst, int dstStep, ZeliSize dstRoiSize,     \
     int topBorderHeight, int leftBorderWidth TAIL)
#define ZEL_BORDER_CALL(TAIL)                                                                                  \
    (pSrc, srcStep, srcRoiSize, pDst, dstStep, dstRoiSize, topBorderHeight, leftBorderWidth TAIL)
#define ZEL_NO_TAIL
#define ZEL_VALUE_PARAM(VT) , VT value
#define ZEL_VALUE_TAIL , value
#define ZEL_BORDER_IP_PARAMS(T)                                                                                \
    (Zel##T* pSrcDst, int srcDstStep, ZeliSize srcRoiSize, ZeliSize dstRoiSize, int topBorderHeight,          \
     int leftBorderWidth)
#define ZEL_BORDER_IP_CALL (pSrcDst, srcDstStep, srcRoiSize, dstRoiSize, topBorderHeight, leftBorderWidth)

#define ZEL_CONST_C1(T)                                                                                        \
    ZEL_FN(ZelStatus, zeliCopyConstBorder_##T##_C1R, ZEL_BORDER_PARAMS(T, ZEL_VALUE_PARAM(Zel##T)),            \
           ZEL_BORDER_CALL(ZEL_VALUE_TAIL), (zel::const_border_c1<Zel##T>))
#define ZEL_CONST(T, L)                                                                                        \
    ZEL_FN(ZelStatus, zeliCopyConstBorder_##T##_##L##R, ZEL_BORDER_PARAMS(T, ZEL_VALUE_PARAM(const Zel##T*)),  \
           ZEL_BORDER_CALL(ZEL_VALUE_TAIL), (zel::const_border<Zel##T, zel::L>))
#define ZEL_REPL(T, L)                                                                                         \
    ZEL_FN(ZelStatus, zeliCopyReplicateBorder_##T##_##L##R, ZEL_BORDER_PARAMS(T, ZEL_NO_TAIL),                 \
           ZEL_BORDER_CALL(ZEL_NO_TAIL), (zel::replicate_border<Zel##T, zel::L>))                              \
    ZEL_FN(ZelStatus, zeliCopyReplicateBorder_##T##_##L##IR, ZEL_BORDER_IP_PARAMS(T), ZEL_BORDER_IP_CALL,      \
           (zel::replicate_border_ip<Zel##T, zel::L>))
#define ZEL_WRAP(T)                                                                                            \
    ZEL_FN(ZelStatus, zeliCopyWrapBorder_##T##_C1R, ZEL_BORDER_PARAMS(T, ZEL_NO_TAIL),                         \
           ZEL_BORDER_CALL(ZEL_NO_TAIL), (zel::wrap_border<Zel##T>))                                           \
    ZEL_FN(ZelStatus, zeliCopyWrapBorder_##T##_C1IR, ZEL_BORDER_IP_PARAMS(T), ZEL_BORDER_IP_CALL,              \
           (zel::wrap_border_ip<Zel##T>))
#define ZEL_BORDER_TYPE(T)                                                                                     \
    ZEL_CONST_C1(T) ZEL_CONST(T, C3) ZEL_CONST(T, C4) ZEL_CONST(T, AC4)                                        \
    ZEL_REPL(T, C1) ZEL_REPL(T, C3) ZEL_REPL(T, C4) ZEL_REPL(T, AC4)

ZEL_BORDER_TYPE(8u)
ZEL_BORDER_TYPE(16s)
ZEL_BORDER_TYPE(16u)
ZEL_BORDER_TYPE(32f)
ZEL_BORDER_TYPE(32s)
ZEL_WRAP(32f)
ZEL_WRAP(32s)

#undef ZEL_BORDER_TYPE
#undef ZEL_WRAP
#undef ZEL_REPL
#undef ZEL_CONST
#undef ZEL_CONST_C1
#undef ZEL_BORDER_IP_CALL
#undef ZEL_BORDER_IP_PARAMS
#undef ZEL_BORDER_CALL
#undef ZEL_BORDER_PARAMS
#undef ZEL_NO_TAIL
#undef ZEL_VALUE_TAIL
#undef ZEL_VALUE_PARAM

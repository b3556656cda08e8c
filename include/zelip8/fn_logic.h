/* Bitwise operations and shifts. zeliAnd, zeliOr, zeliXor: dst = src1 op src2
   (in place srcDst = src op srcDst); zeliAndC, zeliOrC, zeliXorC: dst = src op
   value, one value a channel; zeliNot: dst = ~src. zeliLShiftC, zeliRShiftC:
   shifts by a count a channel (value), left discarding high bits, right
   logical on unsigned and arithmetic on signed samples; a count at or beyond
   the sample's bits gives 0, or the sign fill (0 or -1) on signed samples.
   zeliComplement_32s_C1IR: two's complement to sign and magnitude. AC4 forms
   leave alpha alone.

   Checks: zelStatusNullPointer, zelStatusBadStep, zelStatusBadSize; the
   two-image C3, C4 and AC4 forms test the width (zelStatusBadSize) first. A
   count is never an error.

   Example:
       Zel8u a[4] = {0xf0, 0x0f, 0xff, 200}, b[4] = {0x3c, 0x3c, 0x01, 255}, d[4];
       Zel8s s[2] = {-5, 5}, t[2];
       ZeliSize roi = {4, 1}, two = {2, 1};
       // a AND b: 0x30, 0x0c, 0x01, 200
       ZelStatus st = zeliAnd_8u_C1R(a, 4, b, 4, d, 4, roi);
       // a << 1, high bits dropped: 0xe0, 0x1e, 0xfe, 144
       if (st == zelStatusOk) st = zeliLShiftC_8u_C1R(a, 4, 1, d, 4, roi);
       // beyond the bits a signed sample keeps its sign: -1, 0
       if (st == zelStatusOk) st = zeliRShiftC_8s_C1R(s, 2, 40, t, 2, two);
*/
#define ZEL_LOGIC(F, T, L)                                                                                     \
    ZEL_FN(ZelStatus, zeli##F##_##T##_##L##R,                                                                  \
           (const Zel##T* pSrc1, int src1Step, const Zel##T* pSrc2, int src2Step, Zel##T* pDst, int dstStep,   \
            ZeliSize roiSize),                                                                                 \
           (pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize), (zel::logic_bin<zel::Lg::F, Zel##T, zel::L>)) \
    ZEL_FN(ZelStatus, zeli##F##_##T##_##L##IR,                                                                 \
           (const Zel##T* pSrc, int srcStep, Zel##T* pSrcDst, int srcDstStep, ZeliSize roiSize),              \
           (pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize), (zel::logic_bin<zel::Lg::F, Zel##T, zel::L>))
/* Constant forms: C1 takes the value itself, the others an array of 3 or 4. */
#define ZEL_LOGICC1(F, OP, T)                                                                                  \
    ZEL_FN(ZelStatus, zeli##F##_##T##_C1R,                                                                     \
           (const Zel##T* pSrc, int srcStep, Zel##T value, Zel##T* pDst, int dstStep, ZeliSize roiSize),      \
           (pSrc, srcStep, value, pDst, dstStep, roiSize), (zel::logic_const1<zel::Lg::OP, Zel##T, zel::C1>)) \
    ZEL_FN(ZelStatus, zeli##F##_##T##_C1IR, (Zel##T value, Zel##T* pSrcDst, int srcDstStep, ZeliSize roiSize), \
           (pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize), (zel::logic_const1<zel::Lg::OP, Zel##T, zel::C1>))
#define ZEL_LOGICC(F, OP, T, L)                                                                                \
    ZEL_FN(ZelStatus, zeli##F##_##T##_##L##R,                                                                  \
           (const Zel##T* pSrc, int srcStep, const Zel##T* value, Zel##T* pDst, int dstStep, ZeliSize roiSize), \
           (pSrc, srcStep, value, pDst, dstStep, roiSize), (zel::logic_const<zel::Lg::OP, Zel##T, zel::L>))   \
    ZEL_FN(ZelStatus, zeli##F##_##T##_##L##IR, (const Zel##T* value, Zel##T* pSrcDst, int srcDstStep, ZeliSize roiSize), \
           (pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize), (zel::logic_const<zel::Lg::OP, Zel##T, zel::L>))
#define ZEL_NOT(L)                                                                                             \
    ZEL_FN(ZelStatus, zeliNot_8u_##L##R, (const Zel8u* pSrc, int srcStep, Zel8u* pDst, int dstStep, ZeliSize roiSize), \
           (pSrc, srcStep, pDst, dstStep, roiSize), (zel::logic_not<Zel8u, zel::L>))                           \
    ZEL_FN(ZelStatus, zeliNot_8u_##L##IR, (Zel8u* pSrcDst, int srcDstStep, ZeliSize roiSize),                  \
           (pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize), (zel::logic_not<Zel8u, zel::L>))
/* Shifts: C1 takes the count itself, the others an array of 3 or 4 counts. */
#define ZEL_SHIFT1(F, LEFT, T)                                                                                 \
    ZEL_FN(ZelStatus, zeli##F##_##T##_C1R,                                                                     \
           (const Zel##T* pSrc, int srcStep, Zel32u value, Zel##T* pDst, int dstStep, ZeliSize roiSize),      \
           (pSrc, srcStep, value, pDst, dstStep, roiSize), (zel::shift1<LEFT, Zel##T, zel::C1>))               \
    ZEL_FN(ZelStatus, zeli##F##_##T##_C1IR, (Zel32u value, Zel##T* pSrcDst, int srcDstStep, ZeliSize roiSize), \
           (pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize), (zel::shift1<LEFT, Zel##T, zel::C1>))
#define ZEL_SHIFT(F, LEFT, T, L)                                                                               \
    ZEL_FN(ZelStatus, zeli##F##_##T##_##L##R,                                                                  \
           (const Zel##T* pSrc, int srcStep, const Zel32u* value, Zel##T* pDst, int dstStep, ZeliSize roiSize), \
           (pSrc, srcStep, value, pDst, dstStep, roiSize), (zel::shift<LEFT, Zel##T, zel::L>))                 \
    ZEL_FN(ZelStatus, zeli##F##_##T##_##L##IR, (const Zel32u* value, Zel##T* pSrcDst, int srcDstStep, ZeliSize roiSize), \
           (pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize), (zel::shift<LEFT, Zel##T, zel::L>))
/* One function over the four layouts, and over the sample types. */
#define ZEL_LOGIC_4(F, T) ZEL_LOGIC(F, T, C1) ZEL_LOGIC(F, T, C3) ZEL_LOGIC(F, T, C4) ZEL_LOGIC(F, T, AC4)
#define ZEL_LOGICC_4(F, OP, T) ZEL_LOGICC1(F, OP, T) ZEL_LOGICC(F, OP, T, C3) ZEL_LOGICC(F, OP, T, C4) ZEL_LOGICC(F, OP, T, AC4)
#define ZEL_SHIFT_4(F, LEFT, T) ZEL_SHIFT1(F, LEFT, T) ZEL_SHIFT(F, LEFT, T, C3) ZEL_SHIFT(F, LEFT, T, C4) ZEL_SHIFT(F, LEFT, T, AC4)
#define ZEL_LOGIC_TYPES(F, OP) ZEL_LOGIC_4(F, 8u) ZEL_LOGIC_4(F, 16u) ZEL_LOGIC_4(F, 32s) \
    ZEL_LOGICC_4(F##C, OP, 8u) ZEL_LOGICC_4(F##C, OP, 16u) ZEL_LOGICC_4(F##C, OP, 32s)
ZEL_LOGIC_TYPES(And, And)
ZEL_LOGIC_TYPES(Or, Or)
ZEL_LOGIC_TYPES(Xor, Xor)
ZEL_NOT(C1) ZEL_NOT(C3) ZEL_NOT(C4) ZEL_NOT(AC4)
ZEL_SHIFT_4(LShiftC, true, 8u) ZEL_SHIFT_4(LShiftC, true, 16u) ZEL_SHIFT_4(LShiftC, true, 32s)
ZEL_SHIFT_4(RShiftC, false, 8u) ZEL_SHIFT_4(RShiftC, false, 8s) ZEL_SHIFT_4(RShiftC, false, 16u)
ZEL_SHIFT_4(RShiftC, false, 16s) ZEL_SHIFT_4(RShiftC, false, 32s)
ZEL_FN(ZelStatus, zeliComplement_32s_C1IR, (Zel32s* pSrcDst, int srcDstStep, ZeliSize roiSize),
       (pSrcDst, srcDstStep, roiSize), (zel::complement))
#undef ZEL_LOGIC_TYPES
#undef ZEL_SHIFT_4
#undef ZEL_LOGICC_4
#undef ZEL_LOGIC_4
#undef ZEL_SHIFT
#undef ZEL_SHIFT1
#undef ZEL_NOT
#undef ZEL_LOGICC
#undef ZEL_LOGICC1
#undef ZEL_LOGIC

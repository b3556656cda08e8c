/* Compare and threshold.
   zeliCompare, zeliCompareC: dst = 255 where src1 <op> src2 (or the constant)
   holds in every channel of the pixel (AC4: the first three), else 0; dst has
   one channel. An operator above 4 does nothing.
   zeliCompareEqualEps(C): 255 where |a - b| <= eps in every channel.
   zeliThreshold: x beyond a level becomes the level (plain, GT, LT) or a value
   (Val, GTVal, LTVal, LTValGTVal); NaN samples stay.
   zeliComputeThreshold_Otsu_8u_C1R: the level that best splits the histogram.

   Checks: zelStatusNullPointer, zelStatusBadSize, zelStatusBadStep, then the
   family's own: zelStatusBadEpsilon for eps below zero, zelStatusBadThreshold
   when thresholdLT is above thresholdGT, zelStatusBadMode for a threshold
   operator other than zelCmpLess and zelCmpGreater. zeliCompare and
   zeliCompareC return zelStatusOk for an operator above 4 and write nothing.

   Example:
       Zel8u img[4 * 2] = {10, 200, 90, 30, 250, 0, 128, 129};
       Zel8u level = 0, mask[4 * 2];
       ZeliSize roi = {4, 2};
       ZelStatus st = zeliComputeThreshold_Otsu_8u_C1R(img, 4, roi, &level);
       // mask = 255 where img > level, else 0
       if (st == zelStatusOk) st = zeliCompareC_8u_C1R(img, 4, level, mask, 4, roi, zelCmpGreater);
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

/* Threshold shapes: PARAMS and ARGS name the trailing parameters, IMPL the
   implementation (a full form wrapped by zel::entry: ::r forwards, ::i repeats
   the in-place image as source and destination; a second template argument
   fixes the operator). G is the thread gate of an R form, 0 for none; SF puts
   the size and step checks before the null checks. */
#define ZEL_TH_R(N, T, L, PARAMS, ARGS, IMPL)                                                              \
    ZEL_FN(ZelStatus, zeliThreshold_##N##T##_##L##R,                                                       \
           (const Zel##T* pSrc, int srcStep, Zel##T* pDst, int dstStep, ZeliSize roiSize, PARAMS),            \
           (pSrc, srcStep, pDst, dstStep, roiSize, ARGS), IMPL)
#define ZEL_TH_I(N, T, L, PARAMS, ARGS, IMPL)                                                              \
    ZEL_FN(ZelStatus, zeliThreshold_##N##T##_##L##IR, (Zel##T* pSrcDst, int srcDstStep, ZeliSize roiSize, PARAMS), \
           (pSrcDst, srcDstStep, roiSize, ARGS), IMPL)
#define ZEL_TH_P(P) P threshold, ZelCmpOp zelCmpOp
#define ZEL_TH_A() threshold, zelCmpOp
#define ZEL_TH_FIX_P(P) P threshold
#define ZEL_TH_FIX_A() threshold
#define ZEL_TH_VAL_P(P) P threshold, P value, ZelCmpOp zelCmpOp
#define ZEL_TH_VAL_A() threshold, value, zelCmpOp
#define ZEL_TH_VALFIX_P(P) P threshold, P value
#define ZEL_TH_VALFIX_A() threshold, value
#define ZEL_TH_LTGT_P(P) P thresholdLT, P valueLT, P thresholdGT, P valueGT
#define ZEL_TH_LTGT_A() thresholdLT, valueLT, thresholdGT, valueGT

/* Plain, GT and LT of one layout (R and IR forms). */
#define ZEL_TH_PLAIN(T, L, P, G, SF)                                                                                \
    ZEL_TH_R(, T, L, ZEL_TH_P(P), ZEL_TH_A(), (zel::entry<&zel::threshold<Zel##T, zel::L, G, SF, P>>::r))             \
    ZEL_TH_I(, T, L, ZEL_TH_P(P), ZEL_TH_A(), (zel::entry<&zel::threshold<Zel##T, zel::L, 0, false, P>>::i))          \
    ZEL_TH_R(GT_, T, L, ZEL_TH_FIX_P(P), ZEL_TH_FIX_A(), (zel::entry<&zel::threshold<Zel##T, zel::L, G, SF, P>, 4>::r)) \
    ZEL_TH_I(GT_, T, L, ZEL_TH_FIX_P(P), ZEL_TH_FIX_A(), (zel::entry<&zel::threshold<Zel##T, zel::L, 0, false, P>, 4>::i)) \
    ZEL_TH_R(LT_, T, L, ZEL_TH_FIX_P(P), ZEL_TH_FIX_A(), (zel::entry<&zel::threshold<Zel##T, zel::L, G, SF, P>, 0>::r)) \
    ZEL_TH_I(LT_, T, L, ZEL_TH_FIX_P(P), ZEL_TH_FIX_A(), (zel::entry<&zel::threshold<Zel##T, zel::L, 0, false, P>, 0>::i))
/* Val, GTVal and LTVal of one layout (R and IR forms). */
#define ZEL_TH_VAL(T, L, P, G)                                                                                          \
    ZEL_TH_R(Val_, T, L, ZEL_TH_VAL_P(P), ZEL_TH_VAL_A(), (zel::entry<&zel::threshold_val<Zel##T, zel::L, G, P>>::r))      \
    ZEL_TH_I(Val_, T, L, ZEL_TH_VAL_P(P), ZEL_TH_VAL_A(), (zel::entry<&zel::threshold_val<Zel##T, zel::L, 0, P>>::i))      \
    ZEL_TH_GLVAL(T, L, P, G, 0)
/* GTVal and LTVal only (C4 has no Val); GI gates the in-place forms. */
#define ZEL_TH_GLVAL(T, L, P, G, GI)                                                                                        \
    ZEL_TH_R(GTVal_, T, L, ZEL_TH_VALFIX_P(P), ZEL_TH_VALFIX_A(), (zel::entry<&zel::threshold_val<Zel##T, zel::L, G, P>, 4>::r))  \
    ZEL_TH_I(GTVal_, T, L, ZEL_TH_VALFIX_P(P), ZEL_TH_VALFIX_A(), (zel::entry<&zel::threshold_val<Zel##T, zel::L, GI, P>, 4>::i)) \
    ZEL_TH_R(LTVal_, T, L, ZEL_TH_VALFIX_P(P), ZEL_TH_VALFIX_A(), (zel::entry<&zel::threshold_val<Zel##T, zel::L, G, P>, 0>::r))  \
    ZEL_TH_I(LTVal_, T, L, ZEL_TH_VALFIX_P(P), ZEL_TH_VALFIX_A(), (zel::entry<&zel::threshold_val<Zel##T, zel::L, GI, P>, 0>::i))
/* LTValGTVal of one layout (R and IR forms). */
#define ZEL_TH_LTGT(T, L, P, G)                                                                                        \
    ZEL_TH_R(LTValGTVal_, T, L, ZEL_TH_LTGT_P(P), ZEL_TH_LTGT_A(), (zel::entry<&zel::threshold_ltgt<Zel##T, zel::L, G, P>>::r)) \
    ZEL_TH_I(LTValGTVal_, T, L, ZEL_TH_LTGT_P(P), ZEL_TH_LTGT_A(), (zel::entry<&zel::threshold_ltgt<Zel##T, zel::L, 0, P>>::i))

/* All threshold members of a type. The gates are those of the 16u row loops:
   plain C1 / C3, AC4; Val C1 / C3, AC4; LTValGTVal C1 / C3, AC4; GTVal, LTVal C4. */
#define ZEL_TH_ALL(T, GP1, GP3, SF3, GV1, GV3, GL1, GL3, G4)                              \
    ZEL_TH_PLAIN(T, C1, Zel##T, GP1, false)                                             \
    ZEL_TH_PLAIN(T, C3, const Zel##T*, GP3, SF3)                                        \
    ZEL_TH_PLAIN(T, AC4, const Zel##T*, GP3, SF3)                                       \
    ZEL_TH_VAL(T, C1, Zel##T, GV1)                                                      \
    ZEL_TH_VAL(T, C3, const Zel##T*, GV3)                                               \
    ZEL_TH_VAL(T, AC4, const Zel##T*, GV3)                                              \
    ZEL_TH_GLVAL(T, C4, const Zel##T*, G4, G4)                                          \
    ZEL_TH_LTGT(T, C1, Zel##T, GL1)                                                     \
    ZEL_TH_LTGT(T, C3, const Zel##T*, GL3)                                              \
    ZEL_TH_LTGT(T, AC4, const Zel##T*, GL3)
ZEL_TH_ALL(8u, 0, 0, false, 0, 0, 0, 0, 0)
ZEL_TH_ALL(16u, 192, 128, true, 192, 64, 128, 64, 64)
ZEL_TH_ALL(16s, 0, 0, false, 0, 0, 0, 0, 0)
ZEL_TH_ALL(32f, 0, 0, false, 0, 0, 0, 0, 0)

ZEL_FN(ZelStatus, zeliComputeThreshold_Otsu_8u_C1R, (const Zel8u* pSrc, int srcStep, ZeliSize roiSize, Zel8u* pThreshold),
       (pSrc, srcStep, roiSize, pThreshold), (zel::otsu_threshold))

#undef ZEL_TH_ALL
#undef ZEL_TH_LTGT
#undef ZEL_TH_GLVAL
#undef ZEL_TH_VAL
#undef ZEL_TH_PLAIN
#undef ZEL_TH_LTGT_A
#undef ZEL_TH_LTGT_P
#undef ZEL_TH_VALFIX_A
#undef ZEL_TH_VALFIX_P
#undef ZEL_TH_VAL_A
#undef ZEL_TH_VAL_P
#undef ZEL_TH_FIX_A
#undef ZEL_TH_FIX_P
#undef ZEL_TH_A
#undef ZEL_TH_P
#undef ZEL_TH_I
#undef ZEL_TH_R
#undef ZEL_CMP_EPS
#undef ZEL_CMP_ALL
#undef ZEL_CMP_C
#undef ZEL_CMP_IMG

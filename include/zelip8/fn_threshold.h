/* Threshold.
   zeliThreshold: x beyond a level becomes the level (plain, GT, LT) or a value
   (Val, GTVal, LTVal, LTValGTVal); NaN samples stay.
   zeliComputeThreshold_Otsu_8u_C1R: the level that best splits the histogram.

   Checks: zelStatusNullPointer, zelStatusBadSize, zelStatusBadStep, then the
   family's own: zelStatusBadThreshold when thresholdLT is above thresholdGT,
   zelStatusBadMode for a threshold operator other than zelCmpLess and
   zelCmpGreater.

   Example:
       Zel8u img[4 * 2] = {10, 200, 90, 30, 250, 0, 128, 129};
       Zel8u level = 0, out[4 * 2];
       ZeliSize roi = {4, 2};
       ZelStatus st = zeliComputeThreshold_Otsu_8u_C1R(img, 4, roi, &level);
       // samples above the level become the level
       if (st == zelStatusOk) st = zeliThreshold_GT_8u_C1R(img, 4, out, 4, roi, level);
*/
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

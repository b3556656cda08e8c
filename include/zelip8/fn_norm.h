/* Norms.
   One Zel64f a channel (three for AC4, the alpha left out).
   zeliNorm: max |a|, sum |a|, sqrt(sum a^2) of one image.
   zeliNormDiff: the same of a - b. zeliNormRel: the norm of a - b divided by
   that of b (for L2 one root of the quotient); a denominator below the
   smallest normal Zel64f stores the numerator and warns (status 6).
   32f L1 and L2 take a hint: 2 accumulates in Zel64f, anything else in Zel32f
   lanes within each row.

   Checks: zelStatusNullPointer, zelStatusBadSize, then zelStatusBadStep.

   Example:
       Zel8u a[4] = {1, 2, 3, 4}, b[4] = {1, 0, 3, 8};
       Zel64f l2 = 0;
       ZeliSize roi = {4, 1};
       ZelStatus st = zeliNormDiff_L2_8u_C1R(a, 4, b, 4, roi, &l2); // sqrt(4 + 16)
*/
#define ZEL_NORM_ONE(F, K, T, L, fn)                                                          \
    ZEL_FN(ZelStatus, zeli##F##_##K##_##T##_##L##R,                                           \
           (const Zel##T* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pValue),               \
           (pSrc, srcStep, roiSize, pValue), (zel::fn<zel::NormKind::K, Zel##T, zel::L>))
#define ZEL_NORM_ONE_H(F, K, T, L, fn)                                                        \
    ZEL_FN(ZelStatus, zeli##F##_##K##_##T##_##L##R,                                           \
           (const Zel##T* pSrc, int srcStep, ZeliSize roiSize, Zel64f* pValue, ZelHintAlgorithm hint), \
           (pSrc, srcStep, roiSize, pValue, hint), (zel::fn<zel::NormKind::K, Zel##T, zel::L>))
#define ZEL_NORM_TWO(F, K, T, L, fn)                                                          \
    ZEL_FN(ZelStatus, zeli##F##_##K##_##T##_##L##R,                                           \
           (const Zel##T* pSrc1, int src1Step, const Zel##T* pSrc2, int src2Step, ZeliSize roiSize, Zel64f* pValue), \
           (pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue), (zel::fn<zel::NormKind::K, Zel##T, zel::L>))
#define ZEL_NORM_TWO_H(F, K, T, L, fn)                                                        \
    ZEL_FN(ZelStatus, zeli##F##_##K##_##T##_##L##R,                                           \
           (const Zel##T* pSrc1, int src1Step, const Zel##T* pSrc2, int src2Step, ZeliSize roiSize, Zel64f* pValue, \
            ZelHintAlgorithm hint),                                                           \
           (pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue, hint), (zel::fn<zel::NormKind::K, Zel##T, zel::L>))
/* every layout and type of one norm; S is the shape of the integer forms,
   SF that of 32f (with a hint for L1 and L2) */
#define ZEL_NORM_LAYOUTS(S, F, K, T, fn) \
    ZEL_NORM_##S(F, K, T, C1, fn) ZEL_NORM_##S(F, K, T, C3, fn) ZEL_NORM_##S(F, K, T, C4, fn) ZEL_NORM_##S(F, K, T, AC4, fn)
#define ZEL_NORM_ALL(S, SF, F, K, fn) \
    ZEL_NORM_LAYOUTS(S, F, K, 8u, fn) ZEL_NORM_LAYOUTS(S, F, K, 16u, fn) ZEL_NORM_LAYOUTS(S, F, K, 16s, fn) \
    ZEL_NORM_LAYOUTS(SF, F, K, 32f, fn)

ZEL_NORM_ALL(ONE, ONE, Norm, Inf, norm)
ZEL_NORM_ONE(Norm, Inf, 32s, C1, norm)
ZEL_NORM_ALL(ONE, ONE_H, Norm, L1, norm)
ZEL_NORM_ALL(ONE, ONE_H, Norm, L2, norm)
ZEL_NORM_ALL(TWO, TWO, NormDiff, Inf, norm_diff)
ZEL_NORM_ALL(TWO, TWO_H, NormDiff, L1, norm_diff)
ZEL_NORM_ALL(TWO, TWO_H, NormDiff, L2, norm_diff)
ZEL_NORM_ALL(TWO, TWO, NormRel, Inf, norm_rel)
ZEL_NORM_ALL(TWO, TWO_H, NormRel, L1, norm_rel)
ZEL_NORM_ALL(TWO, TWO_H, NormRel, L2, norm_rel)

#undef ZEL_NORM_ALL
#undef ZEL_NORM_LAYOUTS
#undef ZEL_NORM_TWO_H
#undef ZEL_NORM_TWO
#undef ZEL_NORM_ONE_H
#undef ZEL_NORM_ONE

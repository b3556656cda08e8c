/* Norms, one Zel64f a channel (three for AC4, the alpha left out).
   zeliNorm: max |a|, sum |a|, sqrt(sum a^2) of one image.
   zeliNormDiff: the same of a - b. zeliNormRel: the norm of a - b divided by
   that of b (for L2 one root of the quotient); a denominator below the
   smallest normal Zel64f stores the numerator and warns (status 6).
   32f L1 and L2 take a hint: 2 accumulates in Zel64f, anything else in Zel32f
   lanes within each row. */
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
/* every layout of one norm and type; S is ONE, ONE_H, TWO or TWO_H */
#define ZEL_NORM_ALL(S, F, K, T, fn) \
    ZEL_NORM_##S(F, K, T, C1, fn) ZEL_NORM_##S(F, K, T, C3, fn) ZEL_NORM_##S(F, K, T, C4, fn) ZEL_NORM_##S(F, K, T, AC4, fn)

ZEL_NORM_ALL(ONE, Norm, Inf, 8u, norm)
ZEL_NORM_ALL(ONE, Norm, Inf, 16u, norm)
ZEL_NORM_ALL(ONE, Norm, Inf, 16s, norm)
ZEL_NORM_ALL(ONE, Norm, Inf, 32f, norm)
ZEL_NORM_ONE(Norm, Inf, 32s, C1, norm)
ZEL_NORM_ALL(ONE, Norm, L1, 8u, norm)
ZEL_NORM_ALL(ONE, Norm, L1, 16u, norm)
ZEL_NORM_ALL(ONE, Norm, L1, 16s, norm)
ZEL_NORM_ALL(ONE_H, Norm, L1, 32f, norm)
ZEL_NORM_ALL(ONE, Norm, L2, 8u, norm)
ZEL_NORM_ALL(ONE, Norm, L2, 16u, norm)
ZEL_NORM_ALL(ONE, Norm, L2, 16s, norm)
ZEL_NORM_ALL(ONE_H, Norm, L2, 32f, norm)
ZEL_NORM_ALL(TWO, NormDiff, Inf, 8u, norm_diff)
ZEL_NORM_ALL(TWO, NormDiff, Inf, 16u, norm_diff)
ZEL_NORM_ALL(TWO, NormDiff, Inf, 16s, norm_diff)
ZEL_NORM_ALL(TWO, NormDiff, Inf, 32f, norm_diff)
ZEL_NORM_ALL(TWO, NormDiff, L1, 8u, norm_diff)
ZEL_NORM_ALL(TWO, NormDiff, L1, 16u, norm_diff)
ZEL_NORM_ALL(TWO, NormDiff, L1, 16s, norm_diff)
ZEL_NORM_ALL(TWO_H, NormDiff, L1, 32f, norm_diff)
ZEL_NORM_ALL(TWO, NormDiff, L2, 8u, norm_diff)
ZEL_NORM_ALL(TWO, NormDiff, L2, 16u, norm_diff)
ZEL_NORM_ALL(TWO, NormDiff, L2, 16s, norm_diff)
ZEL_NORM_ALL(TWO_H, NormDiff, L2, 32f, norm_diff)
ZEL_NORM_ALL(TWO, NormRel, Inf, 8u, norm_rel)
ZEL_NORM_ALL(TWO, NormRel, Inf, 16u, norm_rel)
ZEL_NORM_ALL(TWO, NormRel, Inf, 16s, norm_rel)
ZEL_NORM_ALL(TWO, NormRel, Inf, 32f, norm_rel)
ZEL_NORM_ALL(TWO, NormRel, L1, 8u, norm_rel)
ZEL_NORM_ALL(TWO, NormRel, L1, 16u, norm_rel)
ZEL_NORM_ALL(TWO, NormRel, L1, 16s, norm_rel)
ZEL_NORM_ALL(TWO_H, NormRel, L1, 32f, norm_rel)
ZEL_NORM_ALL(TWO, NormRel, L2, 8u, norm_rel)
ZEL_NORM_ALL(TWO, NormRel, L2, 16u, norm_rel)
ZEL_NORM_ALL(TWO, NormRel, L2, 16s, norm_rel)
ZEL_NORM_ALL(TWO_H, NormRel, L2, 32f, norm_rel)

#undef ZEL_NORM_ALL
#undef ZEL_NORM_TWO_H
#undef ZEL_NORM_TWO
#undef ZEL_NORM_ONE_H
#undef ZEL_NORM_ONE

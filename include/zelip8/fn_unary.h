/* Unary mathematics, sample by sample: zeliAbs (|x|, -32768 gives 32767),
   zeliSqr (x * x), zeliSqrt, zeliLn (natural logarithm; warnings for zero and
   negative samples), zeliExp. Sfs forms scale the result by two to the minus
   scaleFactor: the square by the rule of the add family, the root and the
   logarithm rounded to nearest, the exponential truncated; all saturate.
   zeliSqrt warns of negative samples. Checks: null pointers, sizes below 1,
   steps below 1. */
#define ZEL_UNARY_R(F, T, L)                                                                                   \
    ZEL_FN(ZelStatus, zeli##F##_##T##_##L##R, (const Zel##T* pSrc, int srcStep, Zel##T* pDst, int dstStep, ZeliSize roiSize), \
           (pSrc, srcStep, pDst, dstStep, roiSize, 0), (zel::un<zel::Un::F, Zel##T, zel::L, false>))
#define ZEL_UNARY_IR(F, T, L)                                                                                  \
    ZEL_FN(ZelStatus, zeli##F##_##T##_##L##IR, (Zel##T* pSrcDst, int srcDstStep, ZeliSize roiSize),            \
           (pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, 0), (zel::un<zel::Un::F, Zel##T, zel::L, true>))
#define ZEL_UNARY_RSFS(F, T, L)                                                                                \
    ZEL_FN(ZelStatus, zeli##F##_##T##_##L##RSfs,                                                               \
           (const Zel##T* pSrc, int srcStep, Zel##T* pDst, int dstStep, ZeliSize roiSize, int scaleFactor),     \
           (pSrc, srcStep, pDst, dstStep, roiSize, scaleFactor), (zel::un<zel::Un::F, Zel##T, zel::L, false>))
#define ZEL_UNARY_IRSFS(F, T, L)                                                                               \
    ZEL_FN(ZelStatus, zeli##F##_##T##_##L##IRSfs, (Zel##T* pSrcDst, int srcDstStep, ZeliSize roiSize, int scaleFactor), \
           (pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor), (zel::un<zel::Un::F, Zel##T, zel::L, true>))
/* A member and its in-place form; sets of layouts. */
#define ZEL_UNARY(F, T, L) ZEL_UNARY_R(F, T, L) ZEL_UNARY_IR(F, T, L)
#define ZEL_UNARY_SFS(F, T, L) ZEL_UNARY_RSFS(F, T, L) ZEL_UNARY_IRSFS(F, T, L)
#define ZEL_UNARY_C13(S, F, T) S(F, T, C1) S(F, T, C3)
#define ZEL_UNARY_A4(S, F, T) S(F, T, C1) S(F, T, C3) S(F, T, AC4)
#define ZEL_UNARY_ALL(S, F, T) S(F, T, C1) S(F, T, C3) S(F, T, C4) S(F, T, AC4)
ZEL_UNARY_ALL(ZEL_UNARY, Abs, 16s)
ZEL_UNARY_ALL(ZEL_UNARY, Abs, 32f)
ZEL_UNARY_ALL(ZEL_UNARY_SFS, Sqr, 8u)
ZEL_UNARY_ALL(ZEL_UNARY_SFS, Sqr, 16u)
ZEL_UNARY_ALL(ZEL_UNARY_SFS, Sqr, 16s)
ZEL_UNARY_ALL(ZEL_UNARY, Sqr, 32f)
ZEL_UNARY_A4(ZEL_UNARY_SFS, Sqrt, 8u)
ZEL_UNARY_A4(ZEL_UNARY_SFS, Sqrt, 16u)
ZEL_UNARY_A4(ZEL_UNARY_SFS, Sqrt, 16s)
ZEL_UNARY_A4(ZEL_UNARY, Sqrt, 32f)
ZEL_UNARY_IR(Sqrt, 32f, C4)
ZEL_UNARY_C13(ZEL_UNARY_SFS, Ln, 8u)
ZEL_UNARY_C13(ZEL_UNARY_SFS, Ln, 16u)
ZEL_UNARY_C13(ZEL_UNARY_SFS, Ln, 16s)
ZEL_UNARY_C13(ZEL_UNARY, Ln, 32f)
ZEL_UNARY_C13(ZEL_UNARY_SFS, Exp, 8u)
ZEL_UNARY_C13(ZEL_UNARY_SFS, Exp, 16u)
ZEL_UNARY_C13(ZEL_UNARY_SFS, Exp, 16s)
ZEL_UNARY_C13(ZEL_UNARY, Exp, 32f)
#undef ZEL_UNARY_ALL
#undef ZEL_UNARY_A4
#undef ZEL_UNARY_C13
#undef ZEL_UNARY_SFS
#undef ZEL_UNARY
#undef ZEL_UNARY_IRSFS
#undef ZEL_UNARY_RSFS
#undef ZEL_UNARY_IR
#undef ZEL_UNARY_R

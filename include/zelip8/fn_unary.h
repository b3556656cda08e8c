/* Unary mathematics, sample by sample. zeliAbs: |x|, with -32768 giving
   32767 and a float losing its sign bit; zeliSqr: x * x; zeliSqrt: the square
   root; zeliLn: the natural logarithm; zeliExp: e to the x. Sfs forms scale
   the result by two to the minus scaleFactor: the square by the ties-to-even
   rule of zeliAdd, the root and the logarithm to nearest, the exponential
   truncated; all saturate. A sample below zero gives NaN (32f) or 0 in
   zeliSqrt, NaN (32f) or the type's lowest value in zeliLn; zero gives minus
   infinity (32f) or the type's lowest value in zeliLn. zeliAbs and
   zeliSqrt_32f walk an out-of-place source by its step rounded down to whole
   samples.

   Checks: zelStatusNullPointer, zelStatusBadSize, zelStatusBadStep. The
   warnings zelStatusSqrtNegativeWarning (a negative sample in zeliSqrt),
   zelStatusLnNegativeWarning and zelStatusLnZeroWarning (zeliLn) come with
   every result written; the first row that raises one decides which.

   Example:
       Zel16s v[4] = {-32768, -5, 0, 7};
       Zel8u x[4] = {0, 1, 100, 255}, r[4];
       ZeliSize roi = {4, 1};
       // |v| in place: 32767, 5, 0, 7
       ZelStatus st = zeliAbs_16s_C1IR(v, 8, roi);
       // sqrt(x) * 2: 0, 2, 20, 32 (31.94 rounded)
       if (st == zelStatusOk) st = zeliSqrt_8u_C1RSfs(x, 4, r, 4, roi, -1);
*/
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
/* The three integer types with a scale factor and the float type without. */
#define ZEL_UNARY_TYPES(SET, F) SET(ZEL_UNARY_SFS, F, 8u) SET(ZEL_UNARY_SFS, F, 16u) SET(ZEL_UNARY_SFS, F, 16s) \
    SET(ZEL_UNARY, F, 32f)
ZEL_UNARY_ALL(ZEL_UNARY, Abs, 16s)
ZEL_UNARY_ALL(ZEL_UNARY, Abs, 32f)
ZEL_UNARY_TYPES(ZEL_UNARY_ALL, Sqr)
ZEL_UNARY_TYPES(ZEL_UNARY_A4, Sqrt)
ZEL_UNARY_IR(Sqrt, 32f, C4)
ZEL_UNARY_TYPES(ZEL_UNARY_C13, Ln)
ZEL_UNARY_TYPES(ZEL_UNARY_C13, Exp)
#undef ZEL_UNARY_TYPES
#undef ZEL_UNARY_ALL
#undef ZEL_UNARY_A4
#undef ZEL_UNARY_C13
#undef ZEL_UNARY_SFS
#undef ZEL_UNARY
#undef ZEL_UNARY_IRSFS
#undef ZEL_UNARY_RSFS
#undef ZEL_UNARY_IR
#undef ZEL_UNARY_R

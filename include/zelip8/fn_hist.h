/* Histograms and counting.
   zeliHistogramRange: counts of level[k] <= v < level[k + 1] into nLevels - 1
   bins a channel. zeliHistogramEven: makes nLevels levels evenly from
   lowerLevel to upperLevel (the first bins take the remainder), stores them
   and counts likewise. Multi-channel forms take arrays of one entry a channel
   (three for C3 and AC4, four for C4). zeliCountInRange: the samples with
   lower <= v <= upper, one count a channel.

   Checks: zelStatusNullPointer, zelStatusBadSize, zelStatusBadStep, then
   zelStatusBadHistogramLevels for fewer than two levels (zeliHistogramRange
   tests the levels right after the pointers). zeliCountInRange: -8, -14, -6,
   then zelStatusBadRange when lowerBound is above upperBound. A lowerLevel
   above upperLevel is valid in zeliHistogramEven: the levels descend, no
   sample lies in a bin, and every count is 0.

   Example:
       Zel8u img[4 * 2] = {0, 10, 20, 30, 40, 50, 60, 255};
       Zel32s hist[4], levels[5];
       ZeliSize roi = {4, 2};
       // levels 0, 64, 128, 192, 256: counts 7, 0, 0, 1
       ZelStatus st = zeliHistogramEven_8u_C1R(img, 4, roi, hist, levels, 5, 0, 256);
*/
#define ZEL_HIST_RANGE_C1(T, LV)                                                              \
    ZEL_FN(ZelStatus, zeliHistogramRange_##T##_C1R,                                           \
           (const Zel##T* pSrc, int srcStep, ZeliSize roiSize, Zel32s* pHist, const Zel##LV* pLevels, int nLevels), \
           (pSrc, srcStep, roiSize, pHist, pLevels, nLevels), (zel::histogram_range_c1<Zel##T>))
#define ZEL_HIST_RANGE(T, LV, L, N)                                                           \
    ZEL_FN(ZelStatus, zeliHistogramRange_##T##_##L##R,                                        \
           (const Zel##T* pSrc, int srcStep, ZeliSize roiSize, Zel32s* pHist[N], const Zel##LV* pLevels[N], \
            int nLevels[N]),                                                                  \
           (pSrc, srcStep, roiSize, pHist, pLevels, nLevels), (zel::histogram_range<Zel##T, zel::L>))
#define ZEL_HIST_RANGE_ALL(T, LV) \
    ZEL_HIST_RANGE_C1(T, LV) ZEL_HIST_RANGE(T, LV, C3, 3) ZEL_HIST_RANGE(T, LV, C4, 4) ZEL_HIST_RANGE(T, LV, AC4, 3)
#define ZEL_HIST_EVEN_C1(T)                                                                   \
    ZEL_FN(ZelStatus, zeliHistogramEven_##T##_C1R,                                            \
           (const Zel##T* pSrc, int srcStep, ZeliSize roiSize, Zel32s* pHist, Zel32s* pLevels, int nLevels, \
            Zel32s lowerLevel, Zel32s upperLevel),                                            \
           (pSrc, srcStep, roiSize, pHist, pLevels, nLevels, lowerLevel, upperLevel),         \
           (zel::histogram_even_c1<Zel##T>))
#define ZEL_HIST_EVEN(T, L, N)                                                                \
    ZEL_FN(ZelStatus, zeliHistogramEven_##T##_##L##R,                                         \
           (const Zel##T* pSrc, int srcStep, ZeliSize roiSize, Zel32s* pHist[N], Zel32s* pLevels[N], int nLevels[N], \
            Zel32s lowerLevel[N], Zel32s upperLevel[N]),                                      \
           (pSrc, srcStep, roiSize, pHist, pLevels, nLevels, lowerLevel, upperLevel),         \
           (zel::histogram_even<Zel##T, zel::L>))
#define ZEL_HIST_EVEN_ALL(T) ZEL_HIST_EVEN_C1(T) ZEL_HIST_EVEN(T, C3, 3) ZEL_HIST_EVEN(T, C4, 4) ZEL_HIST_EVEN(T, AC4, 3)
#define ZEL_COUNT_C1(T)                                                                       \
    ZEL_FN(ZelStatus, zeliCountInRange_##T##_C1R,                                             \
           (const Zel##T* pSrc, int srcStep, ZeliSize roiSize, int* counts, Zel##T lowerBound, Zel##T upperBound), \
           (pSrc, srcStep, roiSize, counts, lowerBound, upperBound), (zel::count_in_range_c1<Zel##T>))
#define ZEL_COUNT(T, L)                                                                       \
    ZEL_FN(ZelStatus, zeliCountInRange_##T##_##L##R,                                          \
           (const Zel##T* pSrc, int srcStep, ZeliSize roiSize, int counts[3], Zel##T lowerBound[3], \
            Zel##T upperBound[3]),                                                            \
           (pSrc, srcStep, roiSize, counts, lowerBound, upperBound), (zel::count_in_range<Zel##T, zel::L>))
#define ZEL_COUNT_ALL(T) ZEL_COUNT_C1(T) ZEL_COUNT(T, C3) ZEL_COUNT(T, AC4)

ZEL_HIST_EVEN_ALL(8u)
ZEL_HIST_EVEN_ALL(16u)
ZEL_HIST_EVEN_ALL(16s)
ZEL_HIST_RANGE_ALL(8u, 32s)
ZEL_HIST_RANGE_ALL(16u, 32s)
ZEL_HIST_RANGE_ALL(16s, 32s)
ZEL_HIST_RANGE_ALL(32f, 32f)
ZEL_COUNT_ALL(8u)
ZEL_COUNT_ALL(32f)

#undef ZEL_COUNT_ALL
#undef ZEL_COUNT
#undef ZEL_COUNT_C1
#undef ZEL_HIST_EVEN_ALL
#undef ZEL_HIST_EVEN
#undef ZEL_HIST_EVEN_C1
#undef ZEL_HIST_RANGE_ALL
#undef ZEL_HIST_RANGE
#undef ZEL_HIST_RANGE_C1

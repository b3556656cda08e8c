/* Statistics of an image, one column a channel: extremes and where the
   maximum is, mean and standard deviation (through a float copy), and a
   histogram of eight bins.
     zelip8_stats input.pgm|input.ppm */
#include <math.h>
#include <stdio.h>
#include <zelip8.h>

#include "pnm.h"

enum { kBins = 8 };

int main(int argc, char** argv) {
    PnmImage in;
    Zel8u lo[3], hi[3];
    Zel64f mean[3], norm[3];
    Zel32f meanF[3];
    Zel32s hist[3][kBins], levels[3][kBins + 1];
    Zel32s* pHist[3] = {hist[0], hist[1], hist[2]};
    Zel32s* pLevels[3] = {levels[0], levels[1], levels[2]};
    int nLevels[3] = {kBins + 1, kBins + 1, kBins + 1};
    Zel32s lower[3] = {0, 0, 0}, upper[3] = {256, 256, 256};
    int maxX[3], maxY[3], floatStep = 0, c, b, ok;
    Zel32f* f;
    ZelStatus st;

    if (argc != 2) {
        fprintf(stderr, "usage: %s input.pgm|input.ppm\n", argv[0]);
        return 2;
    }
    if (!pnm_read(argv[1], &in)) return 1;
    const int n = in.channels;
    const double pixels = (double)in.size.width * in.size.height;
    f = n == 1 ? zeliMalloc_32f_C1(in.size.width, in.size.height, &floatStep)
               : zeliMalloc_32f_C3(in.size.width, in.size.height, &floatStep);
    if (!f) {
        fprintf(stderr, "no memory for a float copy\n");
        zeliFree(in.pixels);
        return 1;
    }

    /* One call a quantity; the C1 and C3 forms take the same arguments, with
       one result or an array of three. */
    if (n == 1) {
        ok = !failed("min, max", zeliMinMax_8u_C1R(in.pixels, in.step, in.size, lo, hi)) &&
             !failed("max index", zeliMaxIndx_8u_C1R(in.pixels, in.step, in.size, hi, maxX, maxY)) &&
             !failed("mean", zeliMean_8u_C1R(in.pixels, in.step, in.size, mean)) &&
             !failed("histogram", zeliHistogramEven_8u_C1R(in.pixels, in.step, in.size, hist[0], levels[0],
                                                           kBins + 1, 0, 256));
    } else {
        ok = !failed("min, max", zeliMinMax_8u_C3R(in.pixels, in.step, in.size, lo, hi)) &&
             !failed("max index", zeliMaxIndx_8u_C3R(in.pixels, in.step, in.size, hi, maxX, maxY)) &&
             !failed("mean", zeliMean_8u_C3R(in.pixels, in.step, in.size, mean)) &&
             !failed("histogram", zeliHistogramEven_8u_C3R(in.pixels, in.step, in.size, pHist, pLevels, nLevels,
                                                           lower, upper));
    }
    /* Standard deviation: the L2 norm of (image - mean) in float, over the root of the pixel count. */
    for (c = 0; c < n; ++c) meanF[c] = (Zel32f)mean[c];
    if (ok) {
        st = n == 1 ? zeliConvert_8u32f_C1R(in.pixels, in.step, f, floatStep, in.size)
                    : zeliConvert_8u32f_C3R(in.pixels, in.step, f, floatStep, in.size);
        ok = !failed("convert", st);
    }
    if (ok) {
        st = n == 1 ? zeliSubC_32f_C1IR(meanF[0], f, floatStep, in.size) : zeliSubC_32f_C3IR(meanF, f, floatStep, in.size);
        ok = !failed("subtract the mean", st);
    }
    if (ok) {
        st = n == 1 ? zeliNorm_L2_32f_C1R(f, floatStep, in.size, norm, zelAlgHintAccurate)
                    : zeliNorm_L2_32f_C3R(f, floatStep, in.size, norm, zelAlgHintAccurate);
        ok = !failed("norm", st);
    }

    if (ok) {
        printf("%s: %dx%d, %d channel%s\n", argv[1], in.size.width, in.size.height, n, n == 1 ? "" : "s");
        for (c = 0; c < n; ++c)
            printf("channel %d: min %3d  max %3d at (%d, %d)  mean %7.3f  deviation %7.3f\n", c, lo[c], hi[c],
                   maxX[c], maxY[c], mean[c], norm[c] / sqrt(pixels));
        for (b = 0; b < kBins; ++b) {
            printf("[%3d, %3d)", levels[0][b], levels[0][b + 1]);
            for (c = 0; c < n; ++c) printf(" %8d %-20.*s", hist[c][b], (int)(20.0 * hist[c][b] / pixels + 0.5),
                                           "####################");
            printf("\n");
        }
    }
    zeliFree(f);
    zeliFree(in.pixels);
    return ok ? 0 : 1;
}

/* Splits an image into foreground and background at the Otsu level.
     zelip8_threshold input.pgm|input.ppm output.pgm
   A colour image is reduced to its green channel first. The output is 255
   where a pixel lies above the level and 0 elsewhere. */
#include <stdio.h>
#include <zelip8.h>

#include "pnm.h"

int main(int argc, char** argv) {
    PnmImage in, grey, mask;
    Zel8u level = 0;
    int above = 0, ok = 0;
    if (argc != 3) {
        fprintf(stderr, "usage: %s input.pgm|input.ppm output.pgm\n", argv[0]);
        return 2;
    }
    if (!pnm_read(argv[1], &in)) return 1;
    grey = in;
    if (in.channels == 3) {
        /* A channel of interest: the source pointer addresses channel 1 of the first pixel. */
        if (!pnm_alloc(&grey, in.size.width, in.size.height, 1) ||
            failed("green channel", zeliCopy_8u_C3C1R(in.pixels + 1, in.step, grey.pixels, grey.step, in.size))) {
            zeliFree(in.pixels);
            zeliFree(grey.pixels);
            return 1;
        }
    }
    if (pnm_alloc(&mask, in.size.width, in.size.height, 1) &&
        !failed("Otsu level", zeliComputeThreshold_Otsu_8u_C1R(grey.pixels, grey.step, grey.size, &level)) &&
        !failed("compare", zeliCompareC_8u_C1R(grey.pixels, grey.step, level, mask.pixels, mask.step, grey.size,
                                               zelCmpGreater)) &&
        !failed("count", zeliCountInRange_8u_C1R(mask.pixels, mask.step, mask.size, &above, 255, 255))) {
        printf("%dx%d, Otsu level %d: %d of %d pixels above it\n", in.size.width, in.size.height, level, above,
               in.size.width * in.size.height);
        ok = pnm_write(argv[2], &mask);
    }
    if (grey.pixels != in.pixels) zeliFree(grey.pixels);
    zeliFree(in.pixels);
    zeliFree(mask.pixels);
    return ok ? 0 : 1;
}

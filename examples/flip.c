/* Mirrors or transposes an image.
     zelip8_flip input.pgm|input.ppm output.pgm|output.ppm h|v|both|t|<axis number>
   h flips top to bottom, v left to right, both does both, t transposes.
   A number is handed to zeliMirror as it is, so that 3 shows how the library
   refuses a bad argument: with a status and nothing written. */
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <zelip8.h>

#include "pnm.h"

int main(int argc, char** argv) {
    PnmImage in, out;
    const char* how = argc == 4 ? argv[3] : "";
    ZelStatus st;
    int axis = -1, ok = 0;
    if (argc != 4) {
        fprintf(stderr, "usage: %s input output h|v|both|t|<axis number>\n", argv[0]);
        return 2;
    }
    if (!strcmp(how, "h")) axis = zelAxisHorizontal;
    else if (!strcmp(how, "v")) axis = zelAxisVertical;
    else if (!strcmp(how, "both")) axis = zelAxisBoth;
    else if (strcmp(how, "t")) axis = atoi(how);
    if (!pnm_read(argv[1], &in)) return 1;

    /* A transposed image has the width and height swapped. */
    if (axis < 0 ? !pnm_alloc(&out, in.size.height, in.size.width, in.channels)
                 : !pnm_alloc(&out, in.size.width, in.size.height, in.channels)) {
        fprintf(stderr, "no memory for the result\n");
        zeliFree(in.pixels);
        return 1;
    }
    if (axis < 0)
        st = in.channels == 1 ? zeliTranspose_8u_C1R(in.pixels, in.step, out.pixels, out.step, in.size)
                              : zeliTranspose_8u_C3R(in.pixels, in.step, out.pixels, out.step, in.size);
    else
        st = in.channels == 1 ? zeliMirror_8u_C1R(in.pixels, in.step, out.pixels, out.step, in.size, axis)
                              : zeliMirror_8u_C3R(in.pixels, in.step, out.pixels, out.step, in.size, axis);
    if (st == zelStatusOk) {
        ok = pnm_write(argv[2], &out);
        if (ok) printf("%s: %dx%d written\n", argv[2], out.size.width, out.size.height);
    } else {
        /* The status says what was wrong; the destination was not touched. */
        fprintf(stderr, "%s: status %d, %s\n", axis < 0 ? "transpose" : "mirror", st, zelGetStatusString(st));
    }
    zeliFree(in.pixels);
    zeliFree(out.pixels);
    return ok ? 0 : 1;
}

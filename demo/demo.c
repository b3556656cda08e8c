/* A first look at libzelip8: allocate two images, fill, copy and check. */
#include <stdio.h>
#include <zelip8.h>

int main(void) {
    const ZelLibraryVersion* v = zeliGetLibVersion();
    printf("%s %s, %d threads\n", v->name, v->version, zelGetNumThreads());

    ZeliSize roi = {640, 480};
    int srcStep = 0, dstStep = 0;
    Zel8u* src = zeliMalloc_8u_C3(roi.width, roi.height, &srcStep);
    Zel8u* dst = zeliMalloc_8u_C3(roi.width, roi.height, &dstStep);
    if (!src || !dst) {
        fprintf(stderr, "allocation failed\n");
        return 1;
    }
    printf("640x480 C3 images, row step %d bytes\n", srcStep);

    ZelStatus st = zelStatusOk;

    /* Fill the source with one colour, copy it and read a pixel back. */
    const Zel8u colour[3] = {200, 100, 50};
    st = zeliSet_8u_C3R(colour, src, srcStep, roi);
    if (st == zelStatusOk) st = zeliCopy_8u_C3R(src, srcStep, dst, dstStep, roi);
    if (st == zelStatusOk) {
        const Zel8u* px = dst + 240 * dstStep + 320 * 3;
        printf("set + copy: %s, pixel (320,240) = (%d, %d, %d)\n", zelGetStatusString(st), px[0], px[1], px[2]);
    }

    /* A region of width 0 is refused with a status, and nothing is written. */
    ZeliSize empty = {0, 480};
    ZelStatus bad = zeliCopy_8u_C3R(src, srcStep, dst, dstStep, empty);
    printf("copy with width 0: status %d, %s\n", bad, zelGetStatusString(bad));

    zeliFree(src);
    zeliFree(dst);
    return st == zelStatusOk ? 0 : 1;
}

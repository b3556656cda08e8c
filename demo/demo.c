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

    zeliFree(src);
    zeliFree(dst);
    return st == zelStatusOk ? 0 : 1;
}

/* Links an installed libzelip8 the way a user's C program does. */
#include <stdio.h>
#include <string.h>
#include <zelip8.h>

#if ZELIP8_VERSION < ZELIP8_MAKE_VERSION(7, 0, 0)
#error "the installed header is older than this check"
#endif

int main(void) {
    int step = 0;
    Zel8u* p = zeliMalloc_8u_C1(10, 10, &step);
    const ZeliSize roi = {10, 10};
    const ZelStatus st = zeliSet_8u_C1R(7, p, step, roi);
    const ZelStatus bad = zeliSet_8u_C1R(7, NULL, step, roi);
    printf("installed %s (header %d.%d.%d): step %d, %s; %s\n", zeliGetLibVersion()->version, ZELIP8_VERSION_MAJOR,
           ZELIP8_VERSION_MINOR, ZELIP8_VERSION_PATCH, step, zelGetStatusString(st), zelGetStatusString(bad));
    zeliFree(p);
    return p && step == 64 && st == zelStatusOk && bad == zelStatusNullPointer &&
                   zeliGetLibVersion()->major == ZELIP8_VERSION_MAJOR &&
                   strncmp(zelGetStatusString(bad), "zelStatusNullPointer", 20) == 0
               ? 0
               : 1;
}

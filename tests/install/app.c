/* Links an installed libzelip8 the way a user's program does. */
#include <stdio.h>
#include <zelip8.h>

int main(void) {
    int step = 0;
    Zel8u* p = zeliMalloc_8u_C1(10, 10, &step);
    printf("installed %s: step %d\n", zeliGetLibVersion()->version, step);
    zeliFree(p);
    return p && step == 64 ? 0 : 1;
}

/* Thread control: the same call with one thread and with the default team,
   timed, and the results compared byte for byte.
     zelip8_threads [threads]
   zelSetNumThreads(n) limits every call of the library to n threads; 0 goes
   back to the default, the number of processors. Small calls stay on the
   calling thread whatever the setting. */
#define _POSIX_C_SOURCE 200112L
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <time.h>
#include <zelip8.h>

static double now(void) {
    struct timespec t;
    clock_gettime(CLOCK_MONOTONIC, &t);
    return (double)t.tv_sec + 1e-9 * (double)t.tv_nsec;
}

/* Milliseconds a call of (a + b) / 2 takes, the best of a few runs. */
static double average_ms(const Zel8u* a, const Zel8u* b, Zel8u* dst, int step, ZeliSize size) {
    double best = 1e30;
    int i;
    for (i = 0; i < 10; ++i) {
        const double t0 = now();
        ZelStatus st = zeliAdd_8u_C1RSfs(a, step, b, step, dst, step, size, 1);
        const double t = (now() - t0) * 1e3;
        if (st != zelStatusOk) {
            fprintf(stderr, "add: %s\n", zelGetStatusString(st));
            return -1;
        }
        if (t < best) best = t;
    }
    return best;
}

int main(int argc, char** argv) {
    const ZeliSize size = {3840, 2160};
    const int team = argc > 1 ? atoi(argv[1]) : 0;
    int step = 0, y, x, same;
    Zel8u *a = zeliMalloc_8u_C1(size.width, size.height, &step), *b = zeliMalloc_8u_C1(size.width, size.height, &step);
    Zel8u *one = zeliMalloc_8u_C1(size.width, size.height, &step), *many = zeliMalloc_8u_C1(size.width, size.height, &step);
    double t1, tn;
    if (!a || !b || !one || !many) {
        fprintf(stderr, "no memory for four %dx%d images\n", size.width, size.height);
        return 1;
    }
    for (y = 0; y < size.height; ++y)
        for (x = 0; x < size.width; ++x) {
            a[(size_t)y * step + x] = (Zel8u)(x ^ y);
            b[(size_t)y * step + x] = (Zel8u)(x * 7 + y * 3);
        }

    zelSetNumThreads(1);
    t1 = average_ms(a, b, one, step, size);
    zelSetNumThreads(team); /* 0: the default */
    tn = average_ms(a, b, many, step, size);
    same = memcmp(one, many, (size_t)step * size.height) == 0;

    printf("%dx%d (a + b) / 2: 1 thread %.2f ms, %d threads %.2f ms, results %s\n", size.width, size.height, t1,
           zelGetNumThreads(), tn, same ? "identical" : "DIFFERENT");
    zelSetNumThreads(0);
    zeliFree(a);
    zeliFree(b);
    zeliFree(one);
    zeliFree(many);
    return t1 >= 0 && tn >= 0 && same ? 0 : 1;
}

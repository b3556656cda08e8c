/* Reading and writing 8-bit PGM (grey) and PPM (colour) images into buffers
   from zeliMalloc, for the examples. Reads the binary (P5, P6) and the text
   (P2, P3) forms with a maximum value up to 255; writes the binary forms. */
#ifndef ZEL_EXAMPLES_PNM_H
#define ZEL_EXAMPLES_PNM_H

#include <stdio.h>
#include <zelip8.h>

typedef struct {
    Zel8u* pixels;  /* first sample of the first row, from zeliMalloc */
    int step;       /* bytes from one row to the next */
    int channels;   /* 1 (PGM) or 3 (PPM) */
    ZeliSize size;  /* width and height in pixels */
} PnmImage;

/* A header number after white space and comments; -1 when there is none. */
static inline int pnm_number(FILE* f) {
    int c = fgetc(f), v = 0, digits = 0;
    while (c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == '#') {
        if (c == '#')
            while (c != '\n' && c != EOF) c = fgetc(f);
        c = fgetc(f);
    }
    while (c >= '0' && c <= '9' && v < 100000000) {
        v = v * 10 + (c - '0');
        ++digits;
        c = fgetc(f);
    }
    return digits ? v : -1; /* the one white-space byte after the number is consumed */
}

/* An image of `channels` samples a pixel with rows from zeliMalloc. */
static inline int pnm_alloc(PnmImage* img, int width, int height, int channels) {
    img->channels = channels;
    img->size.width = width;
    img->size.height = height;
    img->pixels = channels == 1 ? zeliMalloc_8u_C1(width, height, &img->step)
                                : zeliMalloc_8u_C3(width, height, &img->step);
    return img->pixels != NULL;
}

/* Reads `path`; returns 0 and prints why on failure. */
static inline int pnm_read(const char* path, PnmImage* img) {
    FILE* f = fopen(path, "rb");
    int kind = 0, w, h, maxval, ok = 1, x, y;
    if (!f) {
        perror(path);
        return 0;
    }
    if (fgetc(f) == 'P') kind = fgetc(f) - '0';
    w = pnm_number(f);
    h = pnm_number(f);
    maxval = pnm_number(f);
    if ((kind != 2 && kind != 3 && kind != 5 && kind != 6) || w < 1 || h < 1 || maxval < 1 || maxval > 255) {
        fprintf(stderr, "%s: not an 8-bit PGM or PPM image\n", path);
        fclose(f);
        return 0;
    }
    if (!pnm_alloc(img, w, h, (kind == 3 || kind == 6) ? 3 : 1)) {
        fprintf(stderr, "%s: no memory for %dx%d pixels\n", path, w, h);
        fclose(f);
        return 0;
    }
    for (y = 0; y < h && ok; ++y) {
        Zel8u* row = img->pixels + (size_t)y * img->step;
        const int samples = w * img->channels;
        if (kind >= 5) {
            ok = fread(row, 1, (size_t)samples, f) == (size_t)samples;
        } else {
            for (x = 0; x < samples && ok; ++x) {
                int v = pnm_number(f);
                ok = v >= 0 && v <= maxval;
                row[x] = (Zel8u)v;
            }
        }
    }
    fclose(f);
    if (!ok) {
        fprintf(stderr, "%s: the image data ends early or is not valid\n", path);
        zeliFree(img->pixels);
        img->pixels = NULL;
    }
    return ok;
}

/* Writes a binary PGM or PPM; returns 0 and prints why on failure. */
static inline int pnm_write(const char* path, const PnmImage* img) {
    FILE* f = fopen(path, "wb");
    int y, ok;
    if (!f) {
        perror(path);
        return 0;
    }
    ok = fprintf(f, "P%d\n%d %d\n255\n", img->channels == 3 ? 6 : 5, img->size.width, img->size.height) > 0;
    for (y = 0; y < img->size.height && ok; ++y) {
        const size_t n = (size_t)img->size.width * img->channels;
        ok = fwrite(img->pixels + (size_t)y * img->step, 1, n, f) == n;
    }
    ok = fclose(f) == 0 && ok;
    if (!ok) fprintf(stderr, "%s: could not write the image\n", path);
    return ok;
}

/* Prints what a failed call returned; true when the status is an error. */
static inline int failed(const char* what, ZelStatus st) {
    if (st != zelStatusOk) fprintf(stderr, "%s: %s\n", what, zelGetStatusString(st));
    return st < 0;
}

#endif /* ZEL_EXAMPLES_PNM_H */

// libzelcore: allocator, thread count, cache size and processor features.
#include "zelcore.h"

#include <atomic>
#include <cpuid.h>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <sched.h>
#include <unistd.h>

namespace {

std::atomic<int> g_threads{0};      // 0: not set, use the default
std::atomic<int> g_cacheOverride{0}; // 0: detect, < 0: unknown, > 0: this size
std::atomic<int> g_isa{0};          // 0: not forced, use the default

// Processors this process may run on; the online count when the affinity
// cannot be read.
int affinity_count() {
    cpu_set_t set;
    if (sched_getaffinity(0, sizeof set, &set) == 0) {
        const int n = CPU_COUNT(&set);
        if (n > 0) return n;
    }
    const long n = sysconf(_SC_NPROCESSORS_ONLN);
    return n > 0 ? int(n) : 1;
}

// The first entry of OMP_NUM_THREADS ("4" or "4,2"), or 0 when it is unset or
// not a positive number.
int omp_threads_setting() {
    const char* v = std::getenv("OMP_NUM_THREADS");
    if (!v) return 0;
    while (*v == ' ' || *v == '\t') ++v;
    long n = 0;
    for (; *v >= '0' && *v <= '9'; ++v) {
        n = n * 10 + (*v - '0');
        if (n > 4096) return 4096;
    }
    if (*v != 0 && *v != ',' && *v != ' ') return 0;
    return int(n);
}

int default_threads() {
    const int omp = omp_threads_setting();
    return omp > 0 ? omp : affinity_count();
}

bool cpuid(unsigned leaf, unsigned sub, unsigned r[4]) {
    unsigned maxLeaf = __get_cpuid_max(leaf & 0x80000000u, nullptr);
    if (maxLeaf == 0 || leaf > maxLeaf) return false;
    __cpuid_count(leaf, sub, r[0], r[1], r[2], r[3]);
    return true;
}

// Deterministic cache parameters (Intel leaf 4, AMD leaf 0x8000001D share the layout):
// the size of the largest cache listed.
long long deterministic_caches(unsigned leaf) {
    long long best = 0;
    for (unsigned i = 0; i < 16; ++i) {
        unsigned r[4];
        if (!cpuid(leaf, i, r)) break;
        unsigned type = r[0] & 31;
        if (type == 0) break;
        if (type == 2) continue; // instruction cache
        long long ways = ((r[1] >> 22) & 0x3ff) + 1;
        long long parts = ((r[1] >> 12) & 0x3ff) + 1;
        long long line = (r[1] & 0xfff) + 1;
        long long sets = (long long)r[2] + 1;
        long long size = ways * parts * line * sets;
        if (size > best) best = size;
    }
    return best;
}

long long detect_cache() {
    unsigned r[4];
    long long size = 0;
    if (cpuid(0, 0, r)) {
        bool amd = r[1] == 0x68747541u; // "Auth"enticAMD
        bool hygon = r[1] == 0x6f677948u; // "Hygo"nGenuine
        if (amd || hygon) {
            unsigned e[4];
            if (cpuid(0x80000001u, 0, e) && (e[2] & (1u << 22))) size = deterministic_caches(0x8000001Du);
            if (size == 0 && cpuid(0x80000006u, 0, e)) {
                long long l3 = (long long)(e[3] >> 18) * 512 * 1024;
                long long l2 = (long long)(e[2] >> 16) * 1024;
                size = l3 > l2 ? l3 : l2;
            }
        } else {
            size = deterministic_caches(4);
        }
    }
    return size;
}

// The best kernel level: SSE4.1 and SSE4.2 always (the library's baseline);
// AVX2 when the processor has it and the operating system saves the YMM
// state; AVX-512 F, BW, VL and DQ when it also saves the opmask and ZMM state.
int detect_isa() {
    unsigned r[4];
    if (!cpuid(1, 0, r)) return zelIsaSse41;
    const bool osxsave = (r[2] >> 27) & 1, avx = (r[2] >> 28) & 1;
    if (!osxsave || !avx) return zelIsaSse41;
    unsigned lo, hi;
    __asm__ volatile("xgetbv" : "=a"(lo), "=d"(hi) : "c"(0));
    (void)hi;
    if ((lo & 0x6) != 0x6) return zelIsaSse41;
    if (!cpuid(7, 0, r)) return zelIsaSse41;
    const unsigned b = r[1];
    if (!((b >> 5) & 1)) return zelIsaSse41; // AVX2
    const bool f = (b >> 16) & 1, dq = (b >> 17) & 1, bw = (b >> 30) & 1, vl = (b >> 31) & 1;
    if (f && dq && bw && vl && (lo & 0xe6) == 0xe6) return zelIsaAvx512;
    return zelIsaAvx2;
}

int isa_max() {
    static const int best = detect_isa();
    return best;
}

// The default level: the best one, or ZEL_ISA's if that is lower.
int isa_default() {
    static const int level = [] {
        const int best = isa_max();
        const char* v = std::getenv("ZEL_ISA");
        if (!v) return best;
        int want = best;
        if (std::strcmp(v, "sse41") == 0) want = zelIsaSse41;
        else if (std::strcmp(v, "avx2") == 0) want = zelIsaAvx2;
        else if (std::strcmp(v, "avx512") == 0) want = zelIsaAvx512;
        return want < best ? want : best;
    }();
    return level;
}

} // namespace

extern "C" {

int zelGetIsaLevelMax(void) { return isa_max(); }

int zelGetIsaLevel(void) {
    const int forced = g_isa.load(std::memory_order_relaxed);
    return forced > 0 ? forced : isa_default();
}

int zelSetIsaLevel(int level) {
    if (level < 1) {
        g_isa.store(0, std::memory_order_relaxed);
    } else {
        const int best = isa_max();
        g_isa.store(level < best ? level : best, std::memory_order_relaxed);
    }
    return zelGetIsaLevel();
}

void* zelMalloc(size_t length) {
    if (length == 0) return nullptr;
    size_t rounded = (length + 63) & ~size_t(63);
    if (rounded < length) return nullptr;
    return std::aligned_alloc(64, rounded);
}

void zelFree(void* ptr) { std::free(ptr); }

int zelGetMaxCacheSizeB(int* pSizeBytes) {
    if (!pSizeBytes) return -8;
    int forced = g_cacheOverride.load(std::memory_order_relaxed);
    if (forced < 0) return -1;
    if (forced > 0) { *pSizeBytes = forced; return 0; }
    static const long long detected = detect_cache();
    if (detected <= 0) return -1;
    *pSizeBytes = detected > 0x7fffffff ? 0x7fffffff : int(detected);
    return 0;
}

void zelSetMaxCacheSizeB(int sizeBytes) { g_cacheOverride.store(sizeBytes, std::memory_order_relaxed); }

void zelSetNumThreads(int numThreads) { g_threads.store(numThreads < 1 ? 0 : numThreads, std::memory_order_relaxed); }

int zelGetNumThreads(void) { return ownGetNumThreads(); }

int ownGetNumThreads(void) {
    int n = g_threads.load(std::memory_order_relaxed);
    if (n > 0) return n;
    static const int fallback = default_threads();
    return fallback;
}

// Feature word bits: 1 MMX, 2 SSE, 4 SSE2, 8 SSE3, 16 SSSE3, 32 MOVBE, 64 SSE4.1,
// 128 SSE4.2, 256 AVX, 512 AVX2.
int ownGetFeature(unsigned int feature, unsigned int featureHigh) {
    if (featureHigh != 0) return 0;
    unsigned r[4];
    unsigned word = 0;
    if (cpuid(1, 0, r)) {
        if (r[3] & (1u << 23)) word |= 1;
        if (r[3] & (1u << 25)) word |= 2;
        if (r[3] & (1u << 26)) word |= 4;
        if (r[2] & (1u << 0)) word |= 8;
        if (r[2] & (1u << 9)) word |= 16;
        if (r[2] & (1u << 22)) word |= 32;
        if (r[2] & (1u << 19)) word |= 64;
        if (r[2] & (1u << 20)) word |= 128;
        if (r[2] & (1u << 28)) word |= 256;
    }
    if (cpuid(7, 0, r) && (r[1] & (1u << 5))) word |= 512;
    return (word & feature) != 0;
}

} // extern "C"

// libzelcore: allocator, thread count, cache size and processor features.
#include "zelcore.h"

#include <atomic>
#include <cpuid.h>
#include <cstdint>
#include <cstdlib>
#include <unistd.h>

namespace {

std::atomic<int> g_threads{0};      // 0: not set, use the processor count
std::atomic<int> g_cacheOverride{0}; // 0: detect, < 0: unknown, > 0: this size

int processor_count() {
    long n = sysconf(_SC_NPROCESSORS_ONLN);
    return n > 0 ? int(n) : 1;
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

} // namespace

extern "C" {

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
    static const int procs = processor_count();
    return procs;
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

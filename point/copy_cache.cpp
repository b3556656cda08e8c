// Cache size from the processor's cache descriptors (identification leaf 2),
// used by the byte copy to decide on non-temporal stores.
#include "point/copy_bytes.hpp"

#include <cpuid.h>

namespace zel {
namespace {

// Descriptor byte -> size in KiB of a data or unified cache, after the
// processor maker's table of leaf 2 descriptors. Instruction caches, TLBs and
// prefetch descriptors are left out: they never hold the data of a copy.
struct Descriptor {
    u8 code;
    int kib;
};
constexpr Descriptor kDescriptors[] = {
    {0x0A, 8},     {0x0C, 16},    {0x0D, 16},    {0x0E, 24},    {0x1D, 128},   {0x21, 256},   {0x22, 512},
    {0x23, 1024},  {0x24, 1024},  {0x25, 2048},  {0x29, 4096},  {0x2C, 32},    {0x41, 128},   {0x42, 256},
    {0x43, 512},   {0x44, 1024},  {0x45, 2048},  {0x46, 4096},  {0x47, 8192},  {0x48, 3072},  {0x49, 4096},
    {0x4A, 6144},  {0x4B, 8192},  {0x4C, 12288}, {0x4D, 16384}, {0x4E, 6144},  {0x60, 16},    {0x66, 8},
    {0x67, 16},    {0x68, 32},    {0x78, 1024},  {0x79, 128},   {0x7A, 256},   {0x7B, 512},   {0x7C, 1024},
    {0x7D, 2048},  {0x7F, 512},   {0x80, 512},   {0x82, 256},   {0x83, 512},   {0x84, 1024},  {0x85, 2048},
    {0x86, 512},   {0x87, 1024},  {0xD0, 512},   {0xD1, 1024},  {0xD2, 2048},  {0xD6, 1024},  {0xD7, 2048},
    {0xD8, 4096},  {0xDC, 1536},  {0xDD, 3072},  {0xDE, 6144},  {0xE2, 2048},  {0xE3, 4096},  {0xE4, 8192},
    {0xEA, 12288}, {0xEB, 18432}, {0xEC, 24576},
};

bool cpuid(unsigned leaf, unsigned sub, unsigned r[4]) {
    if (__get_cpuid_max(0, nullptr) < leaf) return false;
    __cpuid_count(leaf, sub, r[0], r[1], r[2], r[3]);
    return true;
}

// Deterministic cache parameters: the largest data or unified cache.
long long leaf4_cache_bytes() {
    long long best = 0;
    for (unsigned i = 0; i < 16; ++i) {
        unsigned r[4];
        if (!cpuid(4, i, r)) break;
        const unsigned type = r[0] & 31;
        if (type == 0) break;
        if (type == 2) continue;
        const long long ways = ((r[1] >> 22) & 0x3ff) + 1, parts = ((r[1] >> 12) & 0x3ff) + 1;
        const long long line = (r[1] & 0xfff) + 1, sets = (long long)r[2] + 1;
        const long long size = ways * parts * line * sets;
        if (size > best) best = size;
    }
    return best;
}

} // namespace

long long leaf2_cache_bytes() {
    unsigned r[4];
    if (!cpuid(2, 0, r)) return 0;
    long long best = 0;
    bool useLeaf4 = false;
    // The low byte of EAX is the number of rounds the leaf needs (1 on every
    // processor that has it); reading more rounds only repeats the list.
    const unsigned rounds = (r[0] & 0xff) == 0 ? 1 : (r[0] & 0xff);
    for (unsigned round = 0; round < rounds && round < 16; ++round) {
        if (round > 0) cpuid(2, 0, r);
        for (int reg = 0; reg < 4; ++reg) {
            if (r[reg] & 0x80000000u) continue; // register holds no descriptors
            for (int b = (reg == 0 ? 1 : 0); b < 4; ++b) {
                const u8 code = u8(r[reg] >> (8 * b));
                if (code == 0xFF) useLeaf4 = true;
                for (const Descriptor& e : kDescriptors)
                    if (e.code == code && e.kib * 1024LL > best) best = e.kib * 1024LL;
            }
        }
    }
    if (useLeaf4) {
        const long long l4 = leaf4_cache_bytes();
        if (l4 > best) best = l4;
    }
    return best;
}

} // namespace zel

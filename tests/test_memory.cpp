// Image memory, version record and the companion core's settings.
#include "guard.hpp"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace {

// Every zeliMalloc_<type>_<layout> of the list: rows 64 bytes apart at the
// least, 64-byte aligned, the whole block writable; bad sizes and a null
// step pointer give NULL and a step of 0.
struct Malloc {
    const char* name;
    void (*any)(); // the member, whatever its type
    void* fn(int w, int h, int* step) const { return reinterpret_cast<void* (*)(int, int, int*)>(any)(w, h, step); }
};
const Malloc kMallocs[] = {
#define ZEL_FN(ret, name, params, args, impl) {#name, reinterpret_cast<void (*)()>(name)},
#include "zelip8/fn_memory.h"
#undef ZEL_FN
};

int pixel_bytes(const std::string& name) {
    const std::string t = name.substr(11, name.rfind('_') - 11), lay = name.substr(name.rfind('_') + 1);
    const int sample = (t == "8u" ? 1 : t[0] == '1' ? 2 : 4) * (t.back() == 'c' ? 2 : 1);
    return sample * (lay == "AC4" ? 4 : lay[1] - '0');
}

TEST(Memory, MallocStepsForEveryMember) {
    int seen = 0;
    for (const Malloc& m : kMallocs) {
        if (std::strncmp(m.name, "zeliMalloc_", 11) != 0) continue;
        ++seen;
        const int pb = pixel_bytes(m.name);
        for (int w : {1, 2, 3, 21, 22, 63, 64, 65, 1000})
            for (int h : {1, 2, 7}) {
                int step = -1;
                void* p = m.fn(w, h, &step);
                ASSERT_NE(p, nullptr) << m.name;
                EXPECT_EQ(step, (w * pb + 63) / 64 * 64) << m.name << " width " << w;
                EXPECT_EQ(reinterpret_cast<std::uintptr_t>(p) % 64, 0u) << m.name;
                std::memset(p, 0x5a, std::size_t(step) * h); // the whole block is ours
                zeliFree(p);
            }
        for (ZeliSize bad : {ZeliSize{0, 5}, ZeliSize{5, -1}}) {
            int step = 123;
            EXPECT_EQ(m.fn(bad.width, bad.height, &step), nullptr) << m.name;
            EXPECT_EQ(step, 0) << m.name;
        }
        EXPECT_EQ(m.fn(5, 5, nullptr), nullptr) << m.name;
    }
    EXPECT_EQ(seen, 35);
    zeliFree(nullptr); // harmless
}

// Sizes past 4 GiB: a block is either big enough for every row or refused.
TEST(Memory, LargeSizesAreServedWholeOrRefused) {
    int step = 123;
    Zel8u* p = zeliMalloc_8u_C1(70000, 70000, &step);
    if (p) { // 4.9 GB where the machine lends it: the last byte of the last row is ours
        EXPECT_EQ(step, 70016);
        p[std::size_t(step) * 69999 + 69999] = 1;
        zeliFree(p);
    } else {
        EXPECT_TRUE(step == 0 || step == 70016);
    }
    // A step that does not fit an int.
    step = 123;
    EXPECT_EQ(zeliMalloc_32fc_C4(0x7fffffff / 32 + 1, 1, &step), nullptr);
    EXPECT_EQ(step, 0);
    step = 123;
    EXPECT_EQ(zeliMalloc_8u_C1(0x7fffffff, 1, &step), nullptr);
    EXPECT_EQ(step, 0);
    // The largest step that fits, times a height whose block passes the address space.
    if (sizeof(std::size_t) == 4) {
        EXPECT_EQ(zeliMalloc_8u_C1(0x10000, 0x10001, &step), nullptr);
        EXPECT_EQ(step, 0);
    }
}

// The version record, the header's version macros and the build's package version agree.
TEST(Memory, VersionRecord) {
    const ZelLibraryVersion* v = zeliGetLibVersion();
    ASSERT_NE(v, nullptr);
    EXPECT_EQ(zeliGetLibVersion(), v);
    EXPECT_EQ(v->major, 7);
    EXPECT_EQ(v->minor, 1);
    EXPECT_EQ(v->majorBuild, 1);
    EXPECT_EQ(v->build, 37466);
    EXPECT_EQ(ZELIP8_MAKE_VERSION(ZELIP8_VERSION_MAJOR, ZELIP8_VERSION_MINOR, ZELIP8_VERSION_PATCH),
              ZELIP8_MAKE_VERSION(v->major, v->minor, v->majorBuild));
    EXPECT_EQ(ZELIP8_VERSION, ZELIP8_MAKE_VERSION(7, 1, 1));
    EXPECT_EQ(std::memcmp(v->targetCpu, "p8\0\0", 4), 0);
    EXPECT_EQ(std::string(v->version), std::string(ZEL_PACKAGE_VERSION) + " (r37466)");
    EXPECT_STREQ(v->version, "7.1.1 (r37466)");
    EXPECT_STREQ(v->buildDate, "Sep 24 2012");
    EXPECT_EQ(v->name, std::string(ownGetFeature(128, 0) ? "zelIP SSE4.1/4.2 (p8)+" : "zelIP SSE4.1/4.2 (p8)"));
}

TEST(Core, ThreadCountAndCacheSettings) {
    const int def = zelGetNumThreads();
    EXPECT_GE(def, 1);
    zelSetNumThreads(3);
    EXPECT_EQ(zelGetNumThreads(), 3);
    EXPECT_EQ(ownGetNumThreads(), 3);
    zelSetNumThreads(0);
    EXPECT_EQ(zelGetNumThreads(), def);

    int size = 0;
    zelSetMaxCacheSizeB(4096);
    EXPECT_EQ(zelGetMaxCacheSizeB(&size), 0);
    EXPECT_EQ(size, 4096);
    zelSetMaxCacheSizeB(-1);
    EXPECT_NE(zelGetMaxCacheSizeB(&size), 0);
    zelSetMaxCacheSizeB(0);

    void* p = zelMalloc(100);
    ASSERT_NE(p, nullptr);
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(p) % 64, 0u);
    zelFree(p);
    EXPECT_EQ(zelMalloc(0), nullptr);
}

} // namespace

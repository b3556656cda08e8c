// Image memory, version record and the companion core's settings.
#include "guard.hpp"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace {

template <class T>
using MallocFn = T* (*)(int, int, int*);

template <class T>
void check_malloc(MallocFn<T> fn, int pixelBytes) {
    for (int w : {1, 2, 3, 21, 22, 63, 64, 65, 1000}) {
        for (int h : {1, 2, 7}) {
            int step = -1;
            T* p = fn(w, h, &step);
            ASSERT_NE(p, nullptr);
            EXPECT_EQ(step, (w * pixelBytes + 63) / 64 * 64) << "width " << w;
            EXPECT_EQ(reinterpret_cast<std::uintptr_t>(p) % 64, 0u);
            std::memset(p, 0x5a, std::size_t(step) * h); // the whole block is ours
            zeliFree(p);
        }
    }
    int step = 123;
    EXPECT_EQ(fn(0, 5, &step), nullptr);
    EXPECT_EQ(step, 0);
    step = 123;
    EXPECT_EQ(fn(5, -1, &step), nullptr);
    EXPECT_EQ(step, 0);
    EXPECT_EQ(fn(5, 5, nullptr), nullptr);
}

TEST(Memory, MallocStepsForEveryMember) {
    check_malloc<Zel8u>(zeliMalloc_8u_C1, 1);
    check_malloc<Zel8u>(zeliMalloc_8u_C2, 2);
    check_malloc<Zel8u>(zeliMalloc_8u_C3, 3);
    check_malloc<Zel8u>(zeliMalloc_8u_C4, 4);
    check_malloc<Zel8u>(zeliMalloc_8u_AC4, 4);
    check_malloc<Zel16u>(zeliMalloc_16u_C1, 2);
    check_malloc<Zel16u>(zeliMalloc_16u_C2, 4);
    check_malloc<Zel16u>(zeliMalloc_16u_C3, 6);
    check_malloc<Zel16u>(zeliMalloc_16u_C4, 8);
    check_malloc<Zel16u>(zeliMalloc_16u_AC4, 8);
    check_malloc<Zel16s>(zeliMalloc_16s_C1, 2);
    check_malloc<Zel16s>(zeliMalloc_16s_C2, 4);
    check_malloc<Zel16s>(zeliMalloc_16s_C3, 6);
    check_malloc<Zel16s>(zeliMalloc_16s_C4, 8);
    check_malloc<Zel16s>(zeliMalloc_16s_AC4, 8);
    check_malloc<Zel32s>(zeliMalloc_32s_C1, 4);
    check_malloc<Zel32s>(zeliMalloc_32s_C2, 8);
    check_malloc<Zel32s>(zeliMalloc_32s_C3, 12);
    check_malloc<Zel32s>(zeliMalloc_32s_C4, 16);
    check_malloc<Zel32s>(zeliMalloc_32s_AC4, 16);
    check_malloc<Zel32f>(zeliMalloc_32f_C1, 4);
    check_malloc<Zel32f>(zeliMalloc_32f_C2, 8);
    check_malloc<Zel32f>(zeliMalloc_32f_C3, 12);
    check_malloc<Zel32f>(zeliMalloc_32f_C4, 16);
    check_malloc<Zel32f>(zeliMalloc_32f_AC4, 16);
    check_malloc<Zel32sc>(zeliMalloc_32sc_C1, 8);
    check_malloc<Zel32sc>(zeliMalloc_32sc_C2, 16);
    check_malloc<Zel32sc>(zeliMalloc_32sc_C3, 24);
    check_malloc<Zel32sc>(zeliMalloc_32sc_C4, 32);
    check_malloc<Zel32sc>(zeliMalloc_32sc_AC4, 32);
    check_malloc<Zel32fc>(zeliMalloc_32fc_C1, 8);
    check_malloc<Zel32fc>(zeliMalloc_32fc_C2, 16);
    check_malloc<Zel32fc>(zeliMalloc_32fc_C3, 24);
    check_malloc<Zel32fc>(zeliMalloc_32fc_C4, 32);
    check_malloc<Zel32fc>(zeliMalloc_32fc_AC4, 32);
}

TEST(Memory, DocumentedSteps) {
    int step = 0;
    Zel8u* p = zeliMalloc_8u_C1(1, 1, &step);
    EXPECT_EQ(step, 64);
    zeliFree(p);
    p = zeliMalloc_8u_C3(22, 1, &step);
    EXPECT_EQ(step, 128);
    zeliFree(p);
    p = zeliMalloc_8u_C3(21, 1, &step);
    EXPECT_EQ(step, 64);
    zeliFree(p);
    Zel32fc* c = zeliMalloc_32fc_C4(2, 3, &step);
    EXPECT_EQ(step, 64);
    zeliFree(c);
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

// The header's version, the version record and the build's package version agree.
TEST(Memory, VersionMacrosMatchTheRecord) {
    const ZelLibraryVersion* v = zeliGetLibVersion();
    EXPECT_EQ(v->major, ZELIP8_VERSION_MAJOR);
    EXPECT_EQ(v->minor, ZELIP8_VERSION_MINOR);
    EXPECT_EQ(v->majorBuild, ZELIP8_VERSION_PATCH);
    const std::string dotted = std::to_string(ZELIP8_VERSION_MAJOR) + "." + std::to_string(ZELIP8_VERSION_MINOR) +
                               "." + std::to_string(ZELIP8_VERSION_PATCH);
    EXPECT_EQ(std::string(v->version).substr(0, dotted.size() + 1), dotted + " ");
    EXPECT_EQ(dotted, ZEL_PACKAGE_VERSION);
    EXPECT_EQ(ZELIP8_VERSION, ZELIP8_MAKE_VERSION(7, 1, 1));
}

TEST(Memory, VersionRecord) {
    const ZelLibraryVersion* v = zeliGetLibVersion();
    ASSERT_NE(v, nullptr);
    EXPECT_EQ(v->major, 7);
    EXPECT_EQ(v->minor, 1);
    EXPECT_EQ(v->majorBuild, 1);
    EXPECT_EQ(v->build, 37466);
    EXPECT_EQ(std::memcmp(v->targetCpu, "p8\0\0", 4), 0);
    EXPECT_STREQ(v->version, "7.1.1 (r37466)");
    EXPECT_STREQ(v->buildDate, "Sep 24 2012");
    const std::string expected = ownGetFeature(128, 0) ? "zelIP SSE4.1/4.2 (p8)+" : "zelIP SSE4.1/4.2 (p8)";
    EXPECT_EQ(v->name, expected);
    EXPECT_EQ(zeliGetLibVersion(), v);
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

// The frame under the families: workers of a team compute under the caller's
// floating-point control word, the instruction-set level can be queried and
// forced, and state records are measured and carved by one description.
#include "guard.hpp"

#include "core/state.hpp"

#include <gtest/gtest.h>
#include <xmmintrin.h>

#include <atomic>
#include <cmath>
#include <cstring>
#include <thread>
#include <vector>

namespace {

// Float products and sums rounded in the caller's mode at two threads, also
// when the team was made under another mode first.
TEST(Frame, WorkersUseTheCallersRoundingMode) {
    const int w = 512, h = 512;
    zt::Image<float> a(w, h, 1), b(w, h, 1), d(w, h, 1);
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) a.at(x, y) = 1.0f + float(x) / 3.0f, b.at(x, y) = float(y + 1) / 7.0f;
    zelSetNumThreads(2);
    const unsigned saved = _mm_getcsr();
    ASSERT_EQ(zeliMul_32f_C1R(a.ptr(), a.step(), b.ptr(), b.step(), d.ptr(), d.step(), a.size()), zelStatusOk);
    for (unsigned mode : {0x2000u, 0x4000u, 0x6000u}) {
        _mm_setcsr((saved & ~0x6000u) | mode);
        ASSERT_EQ(zeliMul_32f_C1R(a.ptr(), a.step(), b.ptr(), b.step(), d.ptr(), d.step(), a.size()), zelStatusOk);
        ASSERT_EQ(zeliAdd_32f_C1IR(a.ptr(), a.step(), d.ptr(), d.step(), a.size()), zelStatusOk);
        int wrong = 0;
        for (int y = 0; y < h; ++y)
            for (int x = 0; x < w; ++x) {
                volatile float p = a.at(x, y) * b.at(x, y); // rounded in the mode set above
                volatile float s = a.at(x, y) + p;
                wrong += d.at(x, y) != s;
            }
        _mm_setcsr(saved);
        EXPECT_EQ(wrong, 0) << "rounding field " << mode;
    }
    zelSetNumThreads(0);
}

// Calls from several application threads at once, each forking its own team,
// while another thread changes the thread count and the cache size: every
// call gives the bytes of a lone call.
TEST(Frame, CallsFromSeveralApplicationThreads) {
    const int w = 700, h = 300;
    zt::Image<float> a(w, h, 1), b(w, h, 1), want(w, h, 1);
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) a.at(x, y) = float(x * 7 + y) / 9.0f, b.at(x, y) = float(y - x) / 5.0f;
    ASSERT_EQ(zeliMul_32f_C1R(a.ptr(), a.step(), b.ptr(), b.step(), want.ptr(), want.step(), a.size()), zelStatusOk);
    Zel64f sum0 = 0;
    ASSERT_EQ(zeliSum_32f_C1R(want.ptr(), want.step(), want.size(), &sum0, zelAlgHintAccurate), zelStatusOk);
    std::atomic<int> bad{0};
    std::atomic<bool> stop{false};
    std::thread knob([&] {
        for (int k = 0; !stop; ++k) {
            zelSetNumThreads(1 + k % 2);
            zelSetMaxCacheSizeB(k % 3 == 0 ? 0 : 1 << (16 + k % 8));
            std::this_thread::yield();
        }
    });
    std::vector<std::thread> callers;
    for (int t = 0; t < 4; ++t)
        callers.emplace_back([&] {
            zt::Image<float> d(w, h, 1);
            for (int round = 0; round < 20; ++round) {
                Zel64f sum = 0;
                if (zeliMul_32f_C1R(a.ptr(), a.step(), b.ptr(), b.step(), d.ptr(), d.step(), a.size()) != zelStatusOk ||
                    zeliSum_32f_C1R(d.ptr(), d.step(), d.size(), &sum, zelAlgHintAccurate) != zelStatusOk)
                    ++bad;
                for (int y = 0; y < h; ++y)
                    if (std::memcmp(&d.at(0, y), &want.at(0, y), sizeof(float) * w) != 0) ++bad;
                if (sum != sum0) ++bad;
            }
        });
    for (auto& c : callers) c.join();
    stop = true;
    knob.join();
    zelSetNumThreads(0);
    zelSetMaxCacheSizeB(0);
    EXPECT_EQ(bad.load(), 0);
}

TEST(Frame, InstructionSetLevel) {
    const int best = zelGetIsaLevelMax();
    ASSERT_GE(best, zelIsaSse41);
    ASSERT_LE(best, zelIsaAvx512);
    EXPECT_EQ(zelSetIsaLevel(zelIsaSse41), zelIsaSse41);
    EXPECT_EQ(zelGetIsaLevel(), zelIsaSse41);
    EXPECT_EQ(zelSetIsaLevel(99), best); // never above what the processor has
    zelSetIsaLevel(0);
    EXPECT_LE(zelGetIsaLevel(), best);
    EXPECT_GE(zelGetNumThreads(), 1);
}

struct Head {
    std::int32_t tag, count;
};

// One layout for the size query and for the carving.
template <class C>
void layout(C& c, int n, Head** head, double** table, std::int16_t** index) {
    *head = c.template take<Head>(1, 64);
    *table = c.template take<double>(std::size_t(n), 32);
    *index = c.template take<std::int16_t>(std::size_t(n) * 3, 16);
}

TEST(Frame, StateRecordsAndSlices) {
    zel::Carve measure;
    Head* h;
    double* t;
    std::int16_t* ix;
    layout(measure, 37, &h, &t, &ix);
    int need = 0;
    ASSERT_TRUE(measure.need_int(need));
    EXPECT_EQ(h, nullptr);
    for (std::size_t offset : {0u, 1u, 13u, 63u}) {
        zt::GuardedBuffer block(std::size_t(need), zt::Flush::Head, offset);
        std::uint8_t* base = block.data();
        zel::Carve carve(base);
        layout(carve, 37, &h, &t, &ix);
        ASSERT_TRUE(carve.ok());
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(h) % 64, 0u);
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(t) % 32, 0u);
        EXPECT_LE(reinterpret_cast<std::uint8_t*>(ix + 37 * 3), base + need); // inside the block
        zel::write_tag(h, 33);
        EXPECT_EQ(zel::check_tag(h, 33), zelStatusOk);
        EXPECT_EQ(zel::check_tag(h, 34), zelStatusContextMismatch);
        EXPECT_EQ(zel::check_tag(nullptr, 33), zelStatusNullPointer);
    }
    zel::Carve huge;
    huge.take<double>(SIZE_MAX / 4);
    EXPECT_FALSE(huge.ok());
    EXPECT_FALSE(huge.need_int(need));

    const std::size_t bytes = zel::Slices::bytes(100, 3, 16);
    zt::GuardedBuffer buf(bytes);
    const zel::Slices s = zel::Slices::cut(buf.data(), 100, 3, 16);
    for (int k = 0; k < 3; ++k) {
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(s[k]) % 16, 0u);
        EXPECT_LE(static_cast<std::uint8_t*>(s[k]) + 100, buf.data() + bytes);
    }
    EXPECT_EQ(zel::Slices::bytes(SIZE_MAX / 2, 3), 0u);
}

} // namespace

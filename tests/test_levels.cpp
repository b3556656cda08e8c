// Every member gives the same bytes at every instruction-set level and at one
// and two threads (under each rounding mode of the caller): its outputs, its
// status and every byte around them. The
// arguments are made up from each member's parameter list (members.hpp), so
// a new member is covered as soon as it is in a declaration list.
#include "members.hpp"

#include <gtest/gtest.h>
#include <xmmintrin.h>

#include <string>
#include <vector>

namespace {

struct Case {
    ZeliSize size;
    int scale;
};

std::string first_difference(const std::vector<std::uint8_t>& a, const std::vector<std::uint8_t>& b) {
    if (a.size() != b.size()) return "sizes differ";
    for (std::size_t i = 0; i < a.size(); ++i)
        if (a[i] != b[i]) return "byte " + std::to_string(i) + ": " + std::to_string(a[i]) + " vs " + std::to_string(b[i]);
    return {};
}

// Sizes around the vector widths, and one above the thread gates.
const std::vector<Case> kCases = {{{1, 1}, 0}, {{3, 2}, 1}, {{17, 3}, -2}, {{33, 2}, 3},
                                  {{64, 3}, 0}, {{100, 2}, 9}, {{257, 2}, -9}};
const Case kThreaded = {{200, 200}, 1};

TEST(Levels, EveryMemberSameBytesAtEveryLevelAndThreadCount) {
    int checked = 0;
    std::vector<std::string> skipped;
    for (const zt::Member& m : zt::members()) {
        bool ok = true;
        std::uint32_t seed = 1;
        for (const Case& c : kCases) {
            zt::Call call(m, c.size, seed++, c.scale);
            if (!call.supported()) {
                skipped.push_back(m.name + " (" + call.why() + ")");
                ok = false;
                break;
            }
            zelSetNumThreads(1);
            zelSetIsaLevel(1);
            const ZelStatus st = call.run();
            const std::vector<std::uint8_t> want = call.bytes();
            zt::for_each_level([&](int level) {
                const ZelStatus got = call.run();
                const std::string diff = first_difference(want, call.bytes());
                EXPECT_EQ(got, st) << m.name << " level " << level << " size " << c.size.width << "x" << c.size.height;
                EXPECT_EQ(diff, "") << m.name << " level " << level << " size " << c.size.width << "x" << c.size.height;
                ok &= got == st && diff.empty();
            });
            if (!ok) break;
        }
        if (ok) {
            // One and two threads, under each rounding mode of the caller (the
            // team was made under another mode before).
            zt::Call call(m, kThreaded.size, 99, kThreaded.scale);
            const unsigned csr = _mm_getcsr();
            zt::for_each_level([&](int level) {
                for (unsigned mode : {0x0000u, 0x6000u, 0x2000u}) {
                    _mm_setcsr((csr & ~0x6000u) | mode);
                    zelSetNumThreads(1);
                    const ZelStatus st1 = call.run();
                    const std::vector<std::uint8_t> one = call.bytes();
                    zelSetNumThreads(2);
                    const ZelStatus st2 = call.run();
                    const std::vector<std::uint8_t> two = call.bytes();
                    _mm_setcsr(csr);
                    EXPECT_EQ(st1, st2) << m.name << " level " << level << " rounding " << mode;
                    EXPECT_EQ(first_difference(one, two), "") << m.name << " at 2 threads, level " << level
                                                              << " rounding " << mode;
                }
            });
            zelSetNumThreads(0);
        }
        checked += ok;
    }
    zelSetNumThreads(0);
    std::printf("members checked at %d levels: %d; without made-up arguments: %zu\n", zelGetIsaLevelMax(), checked,
                skipped.size());
    for (const std::string& s : skipped) std::printf("  %s\n", s.c_str());
}

} // namespace

// Row helpers shared by the unary, logic and shift families: rows longer than
// an int can count, and the patterns of period four that keep alpha.
#pragma once

#include <cstring>

namespace zel {

// Rows longer than an int can count are worked in spans of a length that
// every pixel size and pattern period divides (48 bytes or samples).
constexpr int kSpan = (1 << 30) - (1 << 30) % 48;
template <class F>
inline void for_spans(long long count, F&& f) {
    for (long long at = 0; at < count; at += kSpan) f(at, int(count - at < kSpan ? count - at : kSpan));
}

// A pattern of lanes of T, long enough for any phase plus the widest vector
// of the smallest lane: lane j is all ones where keep(j % period) holds.
constexpr int kPatternLanes = 128;
template <class T>
struct LanePattern {
    alignas(64) T v[kPatternLanes];
    LanePattern() = default;
    template <class F>
    LanePattern(int period, F&& keep) {
        for (int j = 0; j < kPatternLanes; ++j) std::memset(&v[j], keep(j % period) ? 0xff : 0, sizeof(T));
    }
};

// AC4: all ones on the colour samples, zero on alpha.
template <class T>
struct Keep : LanePattern<T> {
    Keep() : LanePattern<T>(4, [](int c) { return c < 3; }) {}
};
template <class T>
struct NoKeep {
    const T* v = nullptr;
};

} // namespace zel

// Helpers shared by the family tests: samples compared bit for bit, and the
// sample type of a member's name as a C++ type.
#pragma once

#include "guard.hpp"

#include <cstring>
#include <string>
#include <type_traits>

namespace zt {

// The same bits; with anyNaN, any two NaN count as the same.
template <class T>
bool same_bits(T a, T b, bool anyNaN = false) {
    if constexpr (std::is_floating_point<T>::value)
        if (anyNaN && a != a && b != b) return true;
    return std::memcmp(&a, &b, sizeof a) == 0;
}

// Calls f(T()) for the sample type of a name's type part ("8u", "16s", "32fc":
// the type of a part); false for a type it does not know.
template <class F>
bool with_type(const std::string& t, F&& f) {
    if (t == "8u") f(Zel8u());
    else if (t == "8s") f(Zel8s());
    else if (t == "16u") f(Zel16u());
    else if (t == "16s" || t == "16sc") f(Zel16s());
    else if (t == "32u") f(Zel32u());
    else if (t == "32s" || t == "32sc") f(Zel32s());
    else if (t == "32f" || t == "32fc") f(Zel32f());
    else return false;
    return true;
}

} // namespace zt

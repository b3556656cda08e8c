// Calls the members of one declaration list with arguments picked by
// parameter name, so that a test's member table is the list itself:
//
//     const std::vector<zt::Named> kMembers = {
//     #define ZEL_FN(ret, name, params, args, impl) ZT_NAMED(name, args)
//     #include "zelip8/fn_compare.h"
//     #undef ZEL_FN
//     };
//
// A test fills a zt::Args (images, steps, size, parameters) and runs
// member.call(args); each parameter of the member takes the field of its name.
#pragma once

#include "guard.hpp"

#include <cstring>
#include <string>
#include <type_traits>
#include <vector>

namespace zt {

// A pointer to samples of any type.
struct AnyPtr {
    void* p = nullptr;
    template <class U>
    operator U*() const { return static_cast<U*>(p); }
};

// Up to four samples: a C1 form takes the first as a value, the others the array.
struct AnyParam {
    alignas(8) unsigned char bytes[32] = {};
    template <class T>
    void set(const T* v) { std::memcpy(bytes, v, 4 * sizeof(T)); }
    template <class U>
    operator const U*() const { return reinterpret_cast<const U*>(bytes); }
    template <class U, class = std::enable_if_t<std::is_arithmetic<U>::value>>
    operator U() const {
        U u;
        std::memcpy(&u, bytes, sizeof u);
        return u;
    }
};

struct Args {
    AnyPtr pSrc, pSrc1, pSrc2, pDst, pSrcDst, pThreshold;
    int srcStep = 0, src1Step = 0, src2Step = 0, dstStep = 0, srcDstStep = 0;
    ZeliSize roiSize{0, 0};
    AnyParam threshold, value, thresholdLT, valueLT, thresholdGT, valueGT, val;
    const int* dstOrder = nullptr;
    ZelCmpOp zelCmpOp = zelCmpLess;
    ZeliAxis flip = 0;
    float eps = 0;
};

struct Named {
    std::string name;
    ZelStatus (*call)(Args&);
};

// A member as a Named: its arguments are the fields of an Args of the same
// names, read inside a class derived from Args.
#define ZT_NAMED(name, args)                        \
    {#name, [](zt::Args& a) -> ZelStatus {          \
         struct Fields : zt::Args {                 \
             ZelStatus call() { return name args; } \
         } f{a};                                    \
         return f.call();                           \
     }},

// The parts of a name zeli<Family>_[<variant>_]<type>_<layouts>[I]R.
struct NameParts {
    std::string family, variant, type;
    int srcChannels = 1;          // of the first layout
    int channels = 1, active = 1; // of the last layout (AC4: 4 and 3)
    int sampleBytes = 1;
    bool inPlace = false;
};
inline NameParts name_parts(const std::string& name) {
    std::vector<std::string> part;
    for (std::size_t i = 4, j; i <= name.size(); i = j + 1) {
        j = std::min(name.find('_', i), name.size());
        part.push_back(name.substr(i, j - i));
    }
    NameParts n;
    n.family = part.front();
    if (part.size() < 3) return n; // no type and layout (zeliFree, zeliGetLibVersion, ...)
    if (part.size() > 3) n.variant = part[1];
    n.type = part[part.size() - 2];
    n.sampleBytes = n.type == "8u" ? 1 : n.type[0] == '1' ? 2 : 4;
    const std::string& d = part.back();
    const std::size_t first = d.find('C'), last = d.rfind('C');
    n.srcChannels = d[first + 1] - '0';
    n.channels = d[last + 1] - '0';
    n.active = last > 0 && d[last - 1] == 'A' ? 3 : n.channels;
    n.inPlace = d.size() > 2 && d.compare(d.size() - 2, 2, "IR") == 0;
    return n;
}

} // namespace zt

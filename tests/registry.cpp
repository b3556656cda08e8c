// The registry of exported names, read from the same lists that declare them.
#include "guard.hpp"

namespace zt {

const std::vector<const char*>& registry() {
#define ZEL_FN(ret, name, params, args, impl) #name,
    static const std::vector<const char*> names = {
#include "zelip8/lists.h"
    };
#undef ZEL_FN
    return names;
}

} // namespace zt

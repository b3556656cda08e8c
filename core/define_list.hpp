// Turns every entry of one declaration list into an exported definition that
// forwards its arguments to the entry's implementation template. Use as
//   #define ZEL_LIST "zelip8/fn_copy.h"
//   #include "core/define_list.hpp"
// after the implementation templates are visible. Every file that includes this
// is the one translation unit that defines the list's members.
#ifndef ZEL_LIST
#error "define ZEL_LIST to the list file before including define_list.hpp"
#endif
#define ZEL_FN(ret, name, params, args, impl) \
    extern "C" ZELAPI ret name params { return impl args; }
#include ZEL_LIST
#undef ZEL_FN
#undef ZEL_LIST

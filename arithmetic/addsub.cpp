// Saturating add and subtract: every member is one instance of the shared
// arithmetic entry over its sample type, layout and form.
#include "arithmetic/arith.hpp"

#define ZEL_LIST "zelip8/fn_addsub.h"
#include "core/define_list.hpp"

// Bitwise operations, shifts and the complement: every member one instance of
// the logic entries over its operation, sample type, layout and form.
#include "arithmetic/logic.hpp"

#define ZEL_LIST "zelip8/fn_logic.h"
#include "core/define_list.hpp"

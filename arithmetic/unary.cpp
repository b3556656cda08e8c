// Unary mathematics: every member one instance of the unary entry over its
// function, sample type, layout and form.
#include "arithmetic/unary.hpp"

#define ZEL_LIST "zelip8/fn_unary.h"
#include "core/define_list.hpp"

// Multiply: the scaled products and the products of fractions of full scale,
// each member one instance of the shared arithmetic entry.
#include "arithmetic/arith.hpp"

#define ZEL_LIST "zelip8/fn_mul.h"
#include "core/define_list.hpp"

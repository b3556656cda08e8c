// Exported members of the compare family.
#include "point/compare.hpp"

#define ZEL_LIST "zelip8/fn_compare.h"
#include "core/define_list.hpp"

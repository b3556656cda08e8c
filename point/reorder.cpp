// Exported members of the reordering family.
#include "point/reorder.hpp"

#define ZEL_LIST "zelip8/fn_reorder.h"
#include "core/define_list.hpp"

// Exported members of the threshold family.
#include "point/threshold.hpp"

#define ZEL_LIST "zelip8/fn_threshold.h"
#include "core/define_list.hpp"

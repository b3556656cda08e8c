// Exported members of the compare and threshold family.
#include "point/compare.hpp"
#include "point/threshold.hpp"

#define ZEL_LIST "zelip8/fn_compare.h"
#include "core/define_list.hpp"

// Minimum and maximum families.
#include "core/frame.hpp"
#include "statistics/minmax.hpp"

#define ZEL_LIST "zelip8/fn_minmax.h"
#include "core/define_list.hpp"

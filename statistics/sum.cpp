// Sum, mean and dot product families.
#include "core/frame.hpp"
#include "statistics/sum.hpp"
#include "statistics/sum_dot.hpp"

#define ZEL_LIST "zelip8/fn_sum.h"
#include "core/define_list.hpp"

// Exported norms: Norm, NormDiff, NormRel with Inf, L1, L2.
#include "statistics/norm.hpp"

#define ZEL_LIST "zelip8/fn_norm.h"
#include "core/define_list.hpp"

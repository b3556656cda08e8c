// Sliding window sums along rows and columns, on the box filter's running sums.
#include "filter/box.hpp"

#define ZEL_LIST "zelip8/fn_filter_sumwin.h"
#include "core/define_list.hpp"

// General two-dimensional filter with float taps on integer images, and the
// buffer sizes of the Round forms.
#include "filter/general.hpp"

#define ZEL_LIST "zelip8/fn_filter_2d32f.h"
#include "core/define_list.hpp"

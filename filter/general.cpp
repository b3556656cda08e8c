// General two-dimensional filter, integer, float and Round forms: every
// member is one instance of an entry of general.hpp.
#include "filter/general.hpp"

#define ZEL_LIST "zelip8/fn_filter_2d.h"
#include "core/define_list.hpp"

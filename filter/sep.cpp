// Row and column filters: every member is one instance of the row or column
// entry over its sample type, kernel type and layout.
#include "filter/linear.hpp"

#define ZEL_LIST "zelip8/fn_filter_sep.h"
#include "core/define_list.hpp"

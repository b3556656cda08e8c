// Box filter: every member is one instance of the box entry over its sample
// type, layout and form.
#include "filter/box.hpp"

#define ZEL_LIST "zelip8/fn_filter_box.h"
#include "core/define_list.hpp"

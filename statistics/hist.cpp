// Exported histograms (by levels, by even levels) and range counts.
#include "statistics/hist.hpp"

#define ZEL_LIST "zelip8/fn_hist.h"
#include "core/define_list.hpp"

#pragma once
// VB's functions for the depreciation of an asset.
#include "Basic/types.h"

namespace tamarik {

/// The straight-line method. Error 5 for a life of 0.
basic::Double SLN(basic::Double cost, basic::Double salvage, basic::Double life);

/// The sum-of-years' digits. Error 5 for a negative salvage value and for a period outside the life.
basic::Double SYD(basic::Double cost, basic::Double salvage, basic::Double life, basic::Double period);

/// The declining balance. Errors as above, and for a factor that is not positive.
basic::Double DDB(basic::Double cost, basic::Double salvage, basic::Double life, basic::Double period,
                  basic::Double factor = 2);

} // namespace tamarik

#pragma once
// What the handlers of instructions call.
#include "Basic/arithmetic.h"
#include "Basic/runtime_error.h"
#include "Components/Tamarik/late/default_members.h"
#include "Components/Tamarik/late/each.h"
#include "Components/Tamarik/late/late_call.h"
#include "Components/Tamarik/machine/interpreter.h"
#include "Components/Tamarik/values/number_texts.h"
#include "Components/Tamarik/values/rounding.h"
#include "Components/Tamarik/values/variant_conversion.h"
#include "Components/Tamarik/values/variant_operators.h"
#include "Components/Tamarik/values/variant_text.h"
#include "Components/Tamarik/vm/array_operations.h"
#include "Components/Tamarik/vm/class_objects.h"
#include "Components/Tamarik/vm/events.h"
#include "Components/Tamarik/vm/execution.h"
#include "Components/Tamarik/vm/slot_values.h"
#include "Components/Tamarik/vm/variant_operations.h"
#include <cmath>
#include <cstring>
#include <limits>
#include <new>

namespace tamarik {

} // namespace tamarik

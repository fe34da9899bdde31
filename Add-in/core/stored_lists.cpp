#include "Add-in/core/stored_lists.h"
#include "Add-in/core/core_texts.h"
#include "Basic/runtime_error.h"
#include <fmt/format.h>

namespace fernwick {

void requireStorableCount(std::size_t count) {
    using namespace fmt::literals;
    if (count > kMostStoredEntries)
        throw basic::RuntimeError(basic::kOverflow,
                                  fmt::format(texts::kListTooLong, "count"_a = count, "most"_a = kMostStoredEntries));
}

} // namespace fernwick

#pragma once
#include <string_view>

namespace cli {

/// The files of this folder, which are also installed for the shells.
extern const std::string_view kBashCompletion, kZshCompletion, kFishCompletion;

} // namespace cli

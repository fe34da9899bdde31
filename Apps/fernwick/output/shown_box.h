#pragma once
#include <string>

namespace cli {

/// A message box or question as it was printed, with its answer.
struct ShownBox {
    std::string title;
    std::string text;
    std::string answer;
    bool critical = false;
};

} // namespace cli

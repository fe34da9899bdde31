#pragma once
#include "Add-in/platform/form.h"
#include <string>

namespace fernwick {

/// Shows the largest image of an icon file.
class FileIcon : public Control {
public:
    using Control::Control;
    /// "" or a file that is not an icon: nothing is shown.
    Property<std::string> FileName{this};
};

} // namespace fernwick

#pragma once
#include "Add-in/platform/command_bars.h"
#include "Add-in/platform/platform.h"

namespace fernwick {

/// Places pictures on buttons through the clipboard, the host's only way. The clipboard is empty afterwards.
class modImageManagement {
public:
    explicit modImageManagement(Platform& platform) : platform_(platform) {}

    /// Always True: if the face can't be placed the button remains without it.
    bool PlaceImageOnButton(const basic::Ref<office::CommandBarControl>& button, int bitmapId);

private:
    Platform& platform_;
};

} // namespace fernwick

#pragma once
#include "Add-in/platform/command_bars.h"
#include "Add-in/platform/platform.h"

namespace fernwick {

/// Puts pictures on buttons. The only way there leads over the clipboard, which is empty afterwards.
class modImageManagement {
public:
    explicit modImageManagement(Platform& platform) : platform_(platform) {}

    /// Always True: a button whose face can't be placed stands without it.
    bool PlaceImageOnButton(const basic::Ref<office::CommandBarControl>& button, int bitmapId);

private:
    Platform& platform_;
};

} // namespace fernwick

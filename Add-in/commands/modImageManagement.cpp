#include "Add-in/commands/modImageManagement.h"
#include "Add-in/commands/mapped_bitmap.h"

namespace fernwick {

namespace {
/// Colour of the pictures' transparent parts.
constexpr Color kMaskColor = RGB(192, 192, 192);
} // namespace

bool modImageManagement::PlaceImageOnButton(const basic::Ref<office::CommandBarControl>& button, int bitmapId) {
    basic::Suppressed quietly;
    std::string picture;
    quietly([&] {
        const auto menuColor = platform_.screen.GetSysColor(COLOR_MENU);
        picture = mappedBitmap(platform_.resources.LoadBitmap(bitmapId), kMaskColor, menuColor);
    });
    quietly([&] { platform_.clipboard.Clear(); });
    if (!picture.empty()) quietly([&] { platform_.clipboard.SetData(kPictureFormat, picture); });
    quietly([&] { button->PasteFace(); });
    quietly([&] { platform_.clipboard.Clear(); });
    return true;
}

} // namespace fernwick

#pragma once
#include "Add-in/platform/interaction.h"

namespace fernwick {

/// Where every page is while it is shown, in twips from the dialog's corner; a hidden one is below the dialog.
inline constexpr int kPageTop = 1075, kPageLeft = 3150, kHiddenPageTop = 10000;

/// For dialogs that ask for an existing file.
inline constexpr int kExistingFile = cdlOFNFileMustExist + cdlOFNPathMustExist + cdlOFNHideReadOnly;

} // namespace fernwick

#pragma once
// Texts shown while a project of the old format is imported.
#include "Add-in/commands/command_texts.h"

namespace fernwick::importer_texts {

inline constexpr char kTitle[] = "Fernwick";
inline const std::string kItem = std::string(command_texts::kConverterCaption) + "...";

inline constexpr char kChooseProject[] = "Select the project to convert.";
inline constexpr char kProjectFilter[] = "Visual Basic Project (*.vbp)|*.vbp";

// Each follows the path of the project.
inline constexpr char kConvert[] = " was created by an older version of Fernwick. Convert it to the format of "
                                   "Fernwick 3.5? The old file is kept as a backup beside it.";
inline constexpr char kCurrent[] = " has the present format already. Nothing was changed.";
inline constexpr char kForeign[] = " is not a Fernwick project. Nothing was changed.";
inline constexpr char kIsOpen[] = " is open. Close the project before you convert it.";
/// Followed by the reason.
inline constexpr char kNotConverted[] = " could not be converted. ";

} // namespace fernwick::importer_texts

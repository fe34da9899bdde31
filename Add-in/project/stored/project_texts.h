#pragma once
// Texts of this room that users see.
#include <string_view>

namespace fernwick::texts {

inline constexpr std::string_view kReadOnlyTitle = "ERROR: Cannot save file!";
inline constexpr std::string_view kReadOnly = "File '{path}' is read-only.";

inline constexpr std::string_view kToolboxFailure = "Could not add CLSID:{clsid} to the project toolbar.\r\n"
                                                    "Error in settings for {device}\r\n{description}";
inline constexpr std::string_view kReferenceFailure = "Could not add Reference GUID:{guid}\r\n"
                                                      "Error in Device Key for {device}\r\n{description}";
inline constexpr std::string_view kOtherDpi =
    "This project was saved at a different DPI setting, would you like to convert it?";

inline constexpr std::string_view kNoHostTemplates = "Cannot determine the location of the VB template directory. "
                                                     "The path determined was invalid.";
inline constexpr std::string_view kNoTemplates = "Cannot determine the location of the Fernwick template directory. "
                                                 "The path determined was invalid.";
inline constexpr std::string_view kNoTemplatePath =
    "The registry entry containing the path for visual basic was not found. "
    "Cannot determine the location of the VB templates.";
inline constexpr std::string_view kTemplateMissing =
    "Your installation of Fernwick appears to be corrupt, the Fernwick template was not installed in the template "
    "directory.";

inline constexpr std::string_view kReservedConstant = "{name} is not allowed as Conditional Compilation Constant";

inline constexpr std::string_view kSaveProjectTitle = "Save Project";
inline constexpr std::string_view kNotSavedTitle = "Project Not Saved";
inline constexpr std::string_view kNoFileSystem =
    "An error has occured while saving file, unable to access file system."; // sic
inline constexpr std::string_view kSaveFileTitle = "Save File";
inline constexpr std::string_view kReplaceTitle = "Save File As";
inline constexpr std::string_view kReplace = "{path} already exists.  Do you want to replace it?";
inline constexpr std::string_view kFormFilter = "Form Files (*.frm)|*.frm|All Files (*.*)|*.*|";
inline constexpr std::string_view kClassFilter = "Class Files (*.cls)|*.cls|All Files (*.*)|*.*|";
inline constexpr std::string_view kModuleFilter = "Basic Files (*.bas)|*.bas|All Files (*.*)|*.*|";
inline constexpr std::string_view kProjectFilter = "Project Files (*.vbp)|*.vbp|All Files (*.*)|*.*|";

inline constexpr std::string_view kDontAskAgain = "Don't ask me this again";
inline constexpr std::string_view kDontAskAgainTip =
    "Check this box if you do not want to be asked this question again";

} // namespace fernwick::texts

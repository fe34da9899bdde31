#include "Add-in/build/messages/build_messages.h"
#include "Add-in/build/messages/build_texts.h"
#include "Add-in/build/messages/message_numbers.h"
#include "Basic/text_search.h"
#include <utility>
#include <vector>

namespace fernwick {

namespace {

constexpr bool kError = true, kWarning = false;

/// A row of the table, with the text as the add-in formats it.
struct NamedMessage {
    std::int32_t number;
    bool isError;
    std::string text;
    std::string_view meaning, example, remedy;
};

/// Returns the text of a format, in which single braces are doubled.
std::string unescaped(std::string format) {
    return basic::Replace(basic::Replace(std::move(format), "{{", "{"), "}}", "}");
}

const std::vector<NamedMessage>& namedMessages() {
    using namespace message_numbers;
    static const std::vector<NamedMessage> messages = {
        {kToolsMissing, kError, build_texts::kToolsMissingMessage,
         "The compiler of this installation could not be started, so nothing was compiled.", "fernwick build Hello.vbp",
         "Repair the installation: the compiler is part of it."},
        {kReservedWord, kError, build_texts::kReservedName,
         "A form or control has the name of a word of the language. Each word of a pair such as Option Base is "
         "reserved.",
         "Begin VB.Form Option", "Rename the form or control and its procedures."},
        {kComponentNotSupported, kError, build_texts::kComponentNotSupported,
         "The program uses a library of controls or classes that devices of this platform do not have.",
         "Object={831FD5D9-1234-4C2B-9C06-0123456789AB}#1.0#0; SomeControl.ocx",
         "Remove the library, choose a device that has it, or turn off reference checking if the device gets the "
         "library by other means."},
        {kFontMissing, kWarning,
         basic::Replace(build_texts::kFontMissing, "{remedy}", build_texts::kFontMissingElsewhere),
         "A control on the form uses a font ({size} is its size; style 0 is regular, 1 bold, 2 italic, 3 both) for "
         "which "
         "there is no converted file, neither in the installation's Fonts folder nor beside the project. The device "
         "substitutes another font unless it has this one.",
         "FontName = \"Arial\"\nFontSize = 9",
         "Convert the font with the Font Converter, or choose an installed one: a file such as Ari_09R.CMF holds "
         "Arial, 9 points, regular."},
        {kControlEventNotSupported, kWarning, unescaped(build_texts::kControlEventNotSupported),
         "Devices never raise this event of the control, so the procedure never runs.",
         "Private Sub Picture1_DRAGDROP(Source As Control, X As Single, Y As Single)",
         "Use an event that devices raise, such as Click."},
        {kFormEventNotSupported, kWarning, build_texts::kFormEventNotSupported,
         "Devices never raise this event of the form, so the procedure never runs.", "Private Sub Form_Paint()",
         "Use the event that the message names, or one of Load, Unload, QueryUnload, Click, KeyDown, KeyUp, KeyPress, "
         "Resize, Activate, Deactivate, Initialize and Terminate."},
        {kScaleModeNotPixels, kError, build_texts::kScaleModeNotPixels,
         "Devices place controls in pixels. In any other unit the form would have a different size.",
         "ScaleMode = 1  'Twip", "Set the form's ScaleMode to 3 - Pixel, and check the positions of its controls."},
        {kStartUpPositionManual, kWarning, build_texts::kStartUpPositionManual,
         "The form would open at its position in the designer, which may be outside the device's small screen.",
         "StartUpPosition = 0  'Manual", "Set the form's StartUpPosition to 2 - CenterScreen."},
        {kFormPicture, kWarning, build_texts::kFormPicture, "Devices do not draw the picture of a form.",
         "Picture = \"frmMain.frx\":0000", "Remove the picture, or move it to a picture control."},
        {kReferenceMissing, kError, build_texts::kReferenceMissing,
         "The project refers to a library that is not on this machine.",
         "Reference=*\\G{00000000-1111-2222-3333-444444444444}#1.0#0#Gone.dll#Gone",
         "Install the library, or remove the reference from the project."},
        {kBorderStyle, kWarning, build_texts::kBorderStyle,
         "Windows on devices cannot be resized, and there are no tool windows.", "BorderStyle = 2  'Sizable",
         "Set the form's BorderStyle to 0, 1 or 3."},
        {kPictureHelp, kWarning, "{text}",
         "A message about a picture. Double-click it to open the help about pictures. This version does not issue it, "
         "but it may be stored in projects.",
         "", "Read the help page."},
        {kFilesNotSaved, kError, build_texts::kSavingFailed,
         "Some files of the project could not be saved, so it was neither compiled nor validated.",
         "chmod a-w frmMain.frm\nfernwick build Hello.vbp",
         "Make sure that the project's files are writable and that the disk is not full, then save them."},
    };
    return messages;
}

/// Returns the table; the texts belong to `messages`.
std::vector<MessageInfo> makeTable(const std::vector<NamedMessage>& messages) {
    std::vector<MessageInfo> table;
    for (const auto& row : messages)
        table.push_back({row.number, row.isError, row.text, row.meaning, row.example, row.remedy});
    return table;
}

} // namespace

std::span<const MessageInfo> buildMessages() {
    static const auto table = makeTable(namedMessages());
    return table;
}

} // namespace fernwick

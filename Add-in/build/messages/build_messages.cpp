#include "Add-in/build/messages/build_messages.h"
#include "Add-in/build/messages/message_numbers.h"

namespace fernwick {

namespace {

constexpr bool kError = true, kWarning = false;

// number and whether it is an error, text, meaning, example, remedy
constexpr MessageInfo kBuildMessages[] = {
    {message_numbers::kToolsMissing, kError, "Compiler tools could not be loaded. Please contact Quinloft at %1",
     "The compiler of this installation could not be started, so nothing was compiled.", "fernwick build Hello.vbp",
     "Repair the installation: the compiler is part of it."},
    {message_numbers::kReservedWord, kError, "\"%1\" is illegal as a %2 name. It is a reserved word.",
     "A form or a control has the name of a word of the language. Of words that go together, such as Option Base, "
     "neither can be a name.",
     "Begin VB.Form Option", "Rename the form or the control, and its procedures with it."},
    {message_numbers::kComponentNotSupported, kError,
     "%1 is not supported and may cause errors on a %2 device.  To ingore this warning and deploy to any device, turn "
     "off reference checking in the Compiler section of the Fernwick Settings screen. (Double-Click here to open the "
     "Fernwick Settings.)",
     "The program uses a library of controls or classes that devices of this platform don't have.",
     "Object={831FD5D9-1234-4C2B-9C06-0123456789AB}#1.0#0; SomeControl.ocx",
     "Do without the library, choose a device that has it, or turn reference checking off when you know that the "
     "device gets it another way."},
    {message_numbers::kFontMissing, kWarning,
     "Could Not Find \"%1\" Weight:%2 Style:%3 referenced in %4 If this font is not already on the device, either add "
     "the font as a dependency, or convert the font and store it in the Quinloft/Fonts directory.",
     "A control on the form wants a font (%2 is its size; style 0 is regular, 1 bold, 2 italic, 3 both) of which there "
     "is no converted file, neither in the Fonts folder of the installation nor beside the project. The device draws "
     "another font instead unless it has this one.",
     "FontName = \"Arial\"\nFontSize = 9",
     "Convert the font with the Font Converter, or choose one of the fonts that are installed: a file such as "
     "Ari_09R.CMF holds Arial, 9 points, regular."},
    {message_numbers::kControlEventNotSupported, kWarning, "%1 is not supported by Quinloft Fernwick for %2{%3}",
     "Devices never raise this event of the control, so the procedure never runs.",
     "Private Sub Picture1_DRAGDROP(Source As Control, X As Single, Y As Single)",
     "Do the work in an event that devices have, such as Click."},
    {message_numbers::kFormEventNotSupported, kWarning, "%1 is not supported by Quinloft Fernwick for %2%3",
     "Devices never raise this event of the form, so the procedure never runs.", "Private Sub Form_Paint()",
     "Do the work in the event that the message names, or in one of Load, Unload, QueryUnload, Click, KeyDown, KeyUp, "
     "KeyPress, Resize, Activate, Deactivate, Initialize and Terminate."},
    {message_numbers::kScaleModeNotPixels, kError, "Form ScaleMode must be set to Pixels",
     "Devices place controls in pixels. In any other unit the form would come out in another size.",
     "ScaleMode = 1  'Twip", "Set ScaleMode of the form to 3 - Pixel, and check where its controls stand."},
    {message_numbers::kStartUpPositionManual, kWarning,
     "Using a StartUpPosition of Manual could cause the application to not be visible on the device.",
     "The form would come up where it stands in the designer, which may lie outside of the device's small screen.",
     "StartUpPosition = 0  'Manual", "Set StartUpPosition of the form to 2 - CenterScreen."},
    {message_numbers::kFormPicture, kWarning, "The Picture property of Forms is not supported.",
     "Devices don't draw the picture of a form.", "Picture = \"frmMain.frx\":0000",
     "Remove the picture, or put it into a picture control."},
    {message_numbers::kReferenceMissing, kError,
     "There is a missing reference in this project, please remove the reference.",
     "The project refers to a library that is not on this machine.",
     "Reference=*\\G{00000000-1111-2222-3333-444444444444}#1.0#0#Gone.dll#Gone",
     "Install the library, or remove the reference from the project."},
    {message_numbers::kBorderStyle, kWarning,
     "The only valid selections for the BorderStyle property of Forms are \"0 - None\", \"1 - Fixed Single\", or \"3 - "
     "Fixed Dialog\".",
     "Windows on devices can't be sized, and none of them is a tool window.", "BorderStyle = 2  'Sizable",
     "Set BorderStyle of the form to 0, 1 or 3."},
    {message_numbers::kPictureHelp, kWarning, "%1",
     "A message about a picture. A double click on it opens the help about pictures. This version gives none itself; "
     "lists of messages that are stored in projects may hold some.",
     "", "Read the help page."},
    {message_numbers::kFilesNotSaved, kError, "Unknown error trying to save files, please contact Quinloft at %1",
     "Not all files of the project could be saved, so it was neither compiled nor validated.",
     "chmod a-w frmMain.frm\nfernwick build Hello.vbp",
     "See to it that the files of the project can be written and that the disk has room, then save them."},
};

} // namespace

std::span<const MessageInfo> buildMessages() { return kBuildMessages; }

} // namespace fernwick

// Plain settings: each a value of its own in the project file.
#include "Add-in/project/clsQLProject.h"
#include "Basic/conversions.h"

namespace fernwick {

std::int32_t clsQLProject::TavletStyleID() const { return readLong("TavletStyleID"); }
void clsQLProject::TavletStyleID(std::int32_t style) {
    write("Let_TavletStyleID", "TavletStyleID", basic::CStr(style));
}

std::string clsQLProject::DefaultFontName() const { return readText("DefaultFontName"); }
void clsQLProject::DefaultFontName(const std::string& name) { write("Let_DefaultFontName", "DefaultFontName", name); }

std::int32_t clsQLProject::DefaultFontSize() const { return readLong("DefaultFontSize"); }
void clsQLProject::DefaultFontSize(std::int32_t size) {
    write("Let_DefaultFontSize", "DefaultFontSize", basic::CStr(size));
}

std::int32_t clsQLProject::DefaultFontStyle() const { return readLong("DefaultFontStyle"); }
void clsQLProject::DefaultFontStyle(std::int32_t style) {
    write("Let_DefaultFontStyle", "DefaultFontStyle", basic::CStr(style));
}

std::int32_t clsQLProject::DefaultFormColor() const { return readLong("DefaultFormColor"); }
void clsQLProject::DefaultFormColor(std::int32_t color) {
    write("Let_DefaultFormColor", "DefaultFormColor", basic::CStr(color));
}

std::int32_t clsQLProject::DefaultFormWidth() const { return readLong("DefaultFormWidth"); }
void clsQLProject::DefaultFormWidth(std::int32_t width) {
    write("Let_DefaultFormWidth", "DefaultFormWidth", basic::CStr(width));
}

std::int32_t clsQLProject::defaultFormHeight() const { return readLong("DefaultFormHeight"); }
void clsQLProject::defaultFormHeight(std::int32_t height) {
    write("Let_defaultFormHeight", "DefaultFormHeight", basic::CStr(height));
}

bool clsQLProject::SpacesInNameEnabled() const { return readBoolean("SpacesInNameEnabled"); }
void clsQLProject::SpacesInNameEnabled(bool enabled) {
    write("Let_SpacesInNameEnabled", "SpacesInNameEnabled", basic::CStr(enabled));
}

bool clsQLProject::IconWarning() const { return readBoolean("IconWarning"); }
void clsQLProject::IconWarning(bool warned) { write("Let_IconWarning", "IconWarning", basic::CStr(warned)); }

bool clsQLProject::Autosave() const { return readBoolean("AutoSaveProject"); }
void clsQLProject::Autosave(bool autosave) { write("Let_Autosave", "AutoSaveProject", basic::CStr(autosave)); }

float clsQLProject::TwipsPerPixelX() const { return readSingle("TwipsPerPixelX"); }
void clsQLProject::TwipsPerPixelX(float twips) { write("Let_TwipsPerPixelX", "TwipsPerPixelX", basic::CStr(twips)); }

float clsQLProject::TwipsPerPixelY() const { return readSingle("TwipsPerPixelY"); }
void clsQLProject::TwipsPerPixelY(float twips) { write("Let_TwipsPerPixelY", "TwipsPerPixelY", basic::CStr(twips)); }

void clsQLProject::LastCompileVersion(const std::string& version) {
    write("Let_LastCompileVersion", "LastCompileVersion", version);
}
// A number, unlike the other Booleans: its reader takes either form.
void clsQLProject::ScanReferences(bool scan) { write("Let_ScanReferences", "ScanReferences", scan ? "-1" : "0"); }
void clsQLProject::OpenedFromQLTemplate(bool opened) {
    write("Let_OpenedFromQLTemplate", "OpenedFromQLTemplate", basic::CStr(opened));
}

std::string clsQLProject::GetLastSettingsDialog() const { return readText("LastSettingsDialog"); }
void clsQLProject::SetLastSettingsDialog(const std::string& name) {
    if (!name.empty()) write("SetLastSettingsDialog", "LastSettingsDialog", name);
}

} // namespace fernwick

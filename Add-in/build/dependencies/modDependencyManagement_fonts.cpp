// The fonts that a project's forms need.
#include "Add-in/build/dependencies/font_folder.h"
#include "Add-in/build/dependencies/modDependencyManagement.h"
#include "Add-in/build/messages/build_texts.h"
#include "Add-in/build/messages/message_numbers.h"
#include <array>
#include <fmt/format.h>
#include <set>
#include <unordered_set>

namespace fernwick {

namespace {

/// The controls that draw text.
constexpr std::array<std::string_view, 8> kClassesWithFont = {"QLButton", "QLCheckBox", "QLComboBox",    "QLGrid",
                                                              "QLLabel",  "QLListBox",  "QLRadioButton", "QLTextBox"};

constexpr char kPalmDevice[] = "PalmOS-DragonBall";

bool hasFont(const std::string& className) {
    return std::find(kClassesWithFont.begin(), kClassesWithFont.end(), className) != kClassesWithFont.end();
}

FontFace fontOf(const basic::Ref<vbide::VBControl>& control) {
    const auto properties = control->Properties();
    FontFace font;
    font.name = asText(properties->Item("FontName")->Value());
    font.style = asLong(properties->Item("FontStyle")->Value());
    font.size = asLong(properties->Item("FontSize")->Value());
    return font;
}

std::string missingFontKey(const FontFace& font) { return fmt::format("{}:{}:{}", font.size, font.style, font.name); }

} // namespace

/// What a scan found, and the fonts of the installation (`installed`) and of the project's folder (`beside`), read on
/// first use.
struct modDependencyManagement::FontScan {
    QLProject qlProject;
    std::vector<std::string> fonts;
    std::unordered_set<std::string> listed;
    std::set<FontFace> seen;
    std::optional<FontFolder> installed, beside;

    void add(const std::string& entry) {
        if (listed.insert(entry).second) fonts.push_back(entry);
    }
};

std::vector<std::string> modDependencyManagement::ScanProjectForFontDependencies(const QLProject& qlProject,
                                                                                 ProgressBar* bar, Label* status) {
    using namespace fmt::literals;
    Procedure here{services_.errors, "modDependencyManagement.ScanProjectForFontDependencies"};
    FontScan scan{qlProject, {}, {}, {}, {}, {}};
    const auto project = here.value([&] { return qlProject->VBProject(); });
    if (!canBeScanned(here, project)) return {};
    const auto components = here.value([&] { return project->VBComponents()->items(); });
    if (bar) bar->start(components.size());
    knownMissingFonts_.clear();
    for (const auto& component : components) {
        if (status)
            here([&] {
                status->Caption(fmt::format(build_texts::kScanningComponent, "component"_a = component->Name()));
            });
        if (here.test([&] { return component->Type() == vbide::vbext_ct_VBForm; }))
            ScanFormforDependencies(component, scan);
        if (bar) bar->Value(bar->Value() + 1);
    }
    if (status) status->Caption(build_texts::kScanFinished);
    return scan.fonts;
}

/// Returns whether the project can be scanned; otherwise informs the user.
bool modDependencyManagement::canBeScanned(Procedure& here, const Project& project) {
    if (here.test([&] { return project->FileName().empty(); })) {
        box(here, build_texts::kSaveBeforeScan, vbExclamation);
        here([&] { services_.menu.saveProjectItem()->Execute(); });
        return false;
    }
    if (here.test([&] { return project->VBComponents()->Count() == 0; })) {
        box(here, build_texts::kEmptyProject, vbExclamation);
        return false;
    }
    return true;
}

void modDependencyManagement::ScanFormforDependencies(const basic::Ref<vbide::VBComponent>& form, FontScan& scan) {
    Procedure here{services_.errors, "modDependencyManagement.ScanFormforDependencies"};
    for (const auto& control : here.value([&] { return form->Designer()->VBControls()->items(); })) {
        if (!here.test([&] { return hasFont(control->ClassName()); })) continue;
        FontFace font;
        if (here([&] { font = fontOf(control); })) AddFonttoDependencyList(form, scan, font);
    }
}

/// A font that this scan has seen before is already listed or reported.
void modDependencyManagement::AddFonttoDependencyList(const basic::Ref<vbide::VBComponent>& form, FontScan& scan,
                                                      const FontFace& font) {
    Procedure here{services_.errors, "modDependencyManagement.AddFonttoDependencyList"};
    if (!scan.seen.insert(font).second) return;
    const auto path = findFont(here, scan, font);
    if (!path.empty()) return scan.add(fontEntry(scan, path));
    if (FontAlreadyWarned(font)) return;
    warnOfMissingFont(here, form, scan, font);
    services_.messages.ShowProjectCompileErrors(scan.qlProject->VBProject(), true);
    AddFontToKnownMissingList(font);
}

/// The file that the Font Converter would write takes precedence, then any in the fonts folder, then any beside the
/// project.
std::string modDependencyManagement::findFont(Procedure& here, FontScan& scan, const FontFace& font) {
    const auto& files = services_.platform.files;
    const auto candidate = inFontsFolder(GetFontFileName(font));
    if (!candidate.empty() && FontFileMatches(files, candidate, font)) return candidate;
    const auto look = [&](std::optional<FontFolder>& folder, const std::string& path) {
        if (!folder) folder = here.value([&] { return FontFolder(files, path); });
        return folder->find(font);
    };
    const auto installed = look(scan.installed, services_.install.GetQuinloftFontsDir());
    return installed.empty() ? look(scan.beside, scan.qlProject->ProjectPath()) : installed;
}

/// A name that also exists in the fonts folder refers to the file there.
std::string modDependencyManagement::fontEntry(const FontScan& scan, const std::string& path) {
    const auto name = services_.platform.files.GetFileName(path);
    return inFontsFolder(name).empty() ? CreateRelativePath(scan.qlProject->ProjectPath(), path) : name;
}

void modDependencyManagement::warnOfMissingFont(Procedure& here, const basic::Ref<vbide::VBComponent>& form,
                                                const FontScan& scan, const FontFace& font) {
    using namespace fmt::literals;
    const bool onPalm = scan.qlProject->TargetDevice() == kPalmDevice;
    const char* const remedy = onPalm ? build_texts::kFontMissingOnPalm : build_texts::kFontMissingElsewhere;
    here([&] {
        const auto what = fmt::format(build_texts::kFontMissing, "font"_a = font.name, "size"_a = font.size,
                                      "style"_a = font.style, "component"_a = form->Name(), "remedy"_a = remedy);
        services_.messages.AddProjectCompileWarning(scan.qlProject->VBProject(), what, form->FileNames(1), 0,
                                                    message_numbers::kFontMissing);
    });
}

bool modDependencyManagement::FontAlreadyWarned(const FontFace& font) const {
    return knownMissingFonts_.contains(missingFontKey(font));
}

void modDependencyManagement::AddFontToKnownMissingList(const FontFace& font) {
    const auto key = missingFontKey(font);
    knownMissingFonts_.Add(key, key);
}

} // namespace fernwick

// The shape of a new form.
#include "Add-in/core/fonts.h"
#include "Add-in/project/clsQLProject.h"
#include "Basic/conversions.h"
#include "Basic/text_search.h"

namespace fernwick {

namespace {

constexpr std::int32_t kTwips = 1, kPixels = 3;
constexpr std::int32_t kNoFixedSize = -1, kFixedSingle = 1, kCenterScreen = 2;
constexpr const char* kFallbackFont = "QLPalm";
constexpr std::int32_t kFallbackFontSize = 12;
constexpr std::int32_t kBold = 1, kItalic = 2;
constexpr const char* kOptionExplicit = "Option Explicit";

double formNumber(const vbide::Properties& form, const char* name) { return asDouble(form.Item(name)->Value()); }

/// What a form is larger than its client area, in twips.
std::int32_t frameSize(const vbide::Properties& form, const char* outer, const char* inner) {
    return basic::CLng(formNumber(form, outer) - formNumber(form, inner));
}

void demandDeclarations(Procedure& here, vbide::CodeModule& code) {
    std::string text;
    if (here.test([&] { return code.CountOfLines() >= 1; })) here([&] { text = code.Lines(1, code.CountOfLines()); });
    // The text is looked for in the words, not the other way round: a module with anything else keeps its lines.
    if (text.empty() || basic::InStr(kOptionExplicit, text) > 0) here([&] { code.InsertLines(1, kOptionExplicit); });
}

} // namespace

void clsQLProject::SetupDefaultForm(const basic::Ref<vbide::VBComponent>& MyForm) {
    Procedure here{services_.errors, withProjectName("clsDeviceConfig.SetupDefaultForm")};
    const auto form = here.value([&] { return MyForm->Properties(); });
    const auto set = [&](const char* name, Variant value) { here([&] { form->Item(name)->Value(value); }); };
    sizeDefaultForm(here, form);
    set("ScaleMode", kPixels);
    set("BorderStyle", kFixedSingle);
    set("StartUpPosition", kCenterScreen);
    fontDefaultForm(here, form);
    set("ShowInTaskBar", true);
    if (const auto color = DefaultFormColor(); color != 0) set("BackColor", color);
    const auto code = here.value([&] { return MyForm->CodeModule(); });
    if (code) demandDeclarations(here, *code);
}

void clsQLProject::sizeDefaultForm(Procedure& here, const basic::Ref<vbide::Properties>& form) {
    const auto& screen = services_.platform.screen;
    here([&] { form->Item("ScaleMode")->Value(kTwips); });
    const auto frameWidth = here.value([&] { return frameSize(*form.operator->(), "Width", "ScaleWidth"); });
    const auto frameHeight = here.value([&] { return frameSize(*form.operator->(), "Height", "ScaleHeight"); });
    if (const auto height = defaultFormHeight(); height != kNoFixedSize)
        here([&] { form->Item("Height")->Value(double(height) * screen.TwipsPerPixelY() + frameHeight); });
    if (const auto width = DefaultFormWidth(); width != kNoFixedSize)
        here([&] { form->Item("Width")->Value(double(width) * screen.TwipsPerPixelX() + frameWidth); });
}

void clsQLProject::fontDefaultForm(Procedure& here, const basic::Ref<vbide::Properties>& form) {
    const auto set = [&](const char* member, Variant value) {
        here([&] { form->Item("Font")->ObjectValue()->Item(member)->Value(value); });
    };
    const auto name = DefaultFontName();
    const auto size = DefaultFontSize(), style = DefaultFontStyle();
    const bool known = here.test([&] { return WinFontExists(services_.platform.screen, name); }) && size >= 1;
    set("Name", known ? name : kFallbackFont);
    set("Size", known ? size : kFallbackFontSize);
    set("Bold", (style & kBold) != 0);
    set("Italic", (style & kItalic) != 0);
    set("Strikethrough", false);
    set("Underline", false);
}

bool clsQLProject::ValidFormSize(const basic::Ref<vbide::VBComponent>& MyForm) {
    Procedure here{services_.errors, withProjectName("clsDeviceConfig.ValidFormSize")};
    const auto form = here.value([&] { return MyForm->Properties(); });
    const auto scaleMode = here.value([&] { return form->Item("ScaleMode")->Value(); });
    here([&] { form->Item("ScaleMode")->Value(kPixels); });
    const auto width = DefaultFormWidth(), height = defaultFormHeight();
    const bool wrong = here.test([&] {
        return (width != kNoFixedSize && formNumber(*form.operator->(), "ScaleWidth") != width) ||
               (height != kNoFixedSize && formNumber(*form.operator->(), "ScaleHeight") != height);
    });
    here([&] { form->Item("ScaleMode")->Value(scaleMode); });
    return !wrong;
}

} // namespace fernwick

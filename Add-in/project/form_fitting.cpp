#include "Add-in/project/form_fitting.h"
#include "Add-in/core/fonts.h"
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

/// By how much a form is larger than its client area, in twips.
std::int32_t frameSize(const vbide::Properties& form, const char* outer, const char* inner) {
    return basic::CLng(formNumber(form, outer) - formNumber(form, inner));
}

void demandDeclarations(Procedure& here, vbide::CodeModule& code) {
    std::string text;
    if (here.test([&] { return code.CountOfLines() >= 1; })) here([&] { text = code.Lines(1, code.CountOfLines()); });
    // The module's text is searched for in the statement, not the other way round, so any other code is left alone.
    if (text.empty() || basic::InStr(kOptionExplicit, text) > 0) here([&] { code.InsertLines(1, kOptionExplicit); });
}

} // namespace

void FormFitting::apply(Procedure& here, const basic::Ref<vbide::VBComponent>& component) const {
    const auto form = here.value([&] { return component->Properties(); });
    const auto set = [&](const char* name, Variant value) { here([&] { form->Item(name)->Value(value); }); };
    applySize(here, form);
    set("ScaleMode", kPixels);
    set("BorderStyle", kFixedSingle);
    set("StartUpPosition", kCenterScreen);
    applyFont(here, form);
    set("ShowInTaskBar", true);
    if (const auto color = settings_.DefaultFormColor(); color != 0) set("BackColor", color);
    const auto code = here.value([&] { return component->CodeModule(); });
    if (code) demandDeclarations(here, *code);
}

void FormFitting::applySize(Procedure& here, const basic::Ref<vbide::Properties>& form) const {
    here([&] { form->Item("ScaleMode")->Value(kTwips); });
    const auto frameWidth = here.value([&] { return frameSize(*form.operator->(), "Width", "ScaleWidth"); });
    const auto frameHeight = here.value([&] { return frameSize(*form.operator->(), "Height", "ScaleHeight"); });
    if (const auto height = settings_.defaultFormHeight(); height != kNoFixedSize)
        here([&] { form->Item("Height")->Value(double(height) * screen_.TwipsPerPixelY() + frameHeight); });
    if (const auto width = settings_.DefaultFormWidth(); width != kNoFixedSize)
        here([&] { form->Item("Width")->Value(double(width) * screen_.TwipsPerPixelX() + frameWidth); });
}

void FormFitting::applyFont(Procedure& here, const basic::Ref<vbide::Properties>& form) const {
    const auto set = [&](const char* member, Variant value) {
        here([&] { form->Item("Font")->ObjectValue()->Item(member)->Value(value); });
    };
    const auto name = settings_.DefaultFontName();
    const auto size = settings_.DefaultFontSize(), style = settings_.DefaultFontStyle();
    const bool known = here.test([&] { return WinFontExists(screen_, name); }) && size >= 1;
    set("Name", known ? name : kFallbackFont);
    set("Size", known ? size : kFallbackFontSize);
    set("Bold", (style & kBold) != 0);
    set("Italic", (style & kItalic) != 0);
    set("Strikethrough", false);
    set("Underline", false);
}

bool FormFitting::hasValidSize(Procedure& here, const basic::Ref<vbide::VBComponent>& component) const {
    const auto form = here.value([&] { return component->Properties(); });
    const auto scaleMode = here.value([&] { return form->Item("ScaleMode")->Value(); });
    here([&] { form->Item("ScaleMode")->Value(kPixels); });
    const auto width = settings_.DefaultFormWidth(), height = settings_.defaultFormHeight();
    const bool wrong = here.test([&] {
        return (width != kNoFixedSize && formNumber(*form.operator->(), "ScaleWidth") != width) ||
               (height != kNoFixedSize && formNumber(*form.operator->(), "ScaleHeight") != height);
    });
    here([&] { form->Item("ScaleMode")->Value(scaleMode); });
    return !wrong;
}

} // namespace fernwick

#include "Apps/workbench/options/code_sample.h"

namespace workbench {

namespace {

struct SamplePart {
    QColor CodeColours::*colour;
    const char* text;
};
constexpr SamplePart kParts[] = {
    {&CodeColours::comment, "' Greets each name of a list\n"},
    {&CodeColours::directive, "#If"},
    {&CodeColours::text, " Handheld "},
    {&CodeColours::directive, "Then\n"},
    {&CodeColours::keyword, "Public Sub"},
    {&CodeColours::text, " Greet(names() "},
    {&CodeColours::keyword, "As String"},
    {&CodeColours::text, ")\n"},
    {nullptr, ""},
    {&CodeColours::keyword, "For"},
    {&CodeColours::text, " i = "},
    {&CodeColours::number, "0"},
    {&CodeColours::keyword, " To"},
    {&CodeColours::text, " UBound(names): lblText = "},
    {&CodeColours::string, "\"Hello, \""},
    {&CodeColours::text, " & names(i): "},
    {&CodeColours::keyword, "Next\nEnd Sub"},
};

} // namespace

CodeSample::CodeSample() {
    setObjectName("sample");
    setTextFormat(Qt::RichText);
    setAutoFillBackground(true);
    setFrameShape(StyledPanel);
    setMargin(8);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding); // a large font must not enlarge the dialog
    setMinimumHeight(90);
}

void CodeSample::showIn(const CodeLook& look) {
    auto colours = palette();
    colours.setColor(backgroundRole(), look.colours.paper);
    setPalette(colours);
    setFont(look.font);
    QString html = "<pre>";
    for (const auto& part : kParts)
        html += part.colour ? QString("<span style='color:%1'>%2</span>")
                                  .arg((look.colours.*part.colour).name(), QString(part.text).toHtmlEscaped())
                            : QString(look.tabWidth, ' ');
    setText(html + "</pre>");
}

} // namespace workbench

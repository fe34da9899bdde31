#pragma once
// A designer over the text of a form, for tests.
#include "Host/files/form_line.h"
#include "Host/model/forms/form_designer.h"
#include <gtest/gtest.h>
#include <string>

/// The text with CRLF line ends.
inline std::string crLf(const std::string& text) {
    std::string out;
    for (const char c : text) out += c == '\n' ? std::string("\r\n") : std::string(1, c);
    return out;
}

/// The lines in which `changed` differs from `original`, as "- old" and "+ new".
inline std::string changedLines(const std::string& original, const std::string& changed) {
    const auto lines = [](const std::string& text) {
        std::vector<std::string> out;
        for (std::string_view rest = text; !rest.empty();) out.emplace_back(host::lineText(host::takeWholeLine(rest)));
        return out;
    };
    const auto a = lines(original), b = lines(changed);
    std::vector<std::vector<std::size_t>> common(a.size() + 1, std::vector<std::size_t>(b.size() + 1, 0));
    for (auto i = a.size(); i-- > 0;)
        for (auto j = b.size(); j-- > 0;)
            common[i][j] = a[i] == b[j] ? common[i + 1][j + 1] + 1 : std::max(common[i + 1][j], common[i][j + 1]);
    std::string out;
    for (std::size_t i = 0, j = 0; i < a.size() || j < b.size();) {
        if (i < a.size() && j < b.size() && a[i] == b[j])
            ++i, ++j;
        else if (i < a.size() && (j == b.size() || common[i + 1][j] >= common[i][j + 1]))
            out += "- " + a[i++] + "\n";
        else
            out += "+ " + b[j++] + "\n";
    }
    return out;
}

class DesignerTest : public testing::Test {
protected:
    void open(const std::string& text, host::DesignerHooks hooks = {},
              basic::CodePage page = basic::CodePage::windows1252()) {
        original = text;
        hooks.changed = [this] { ++changes; };
        file = std::make_shared<host::FormFile>(host::FormFile::parse(text));
        designer = std::make_unique<host::FormDesigner>(file, page, std::move(hooks));
    }
    fernwick::Variant get(const std::string& name) const { return designer->Properties()->Item(name)->Value(); }
    void set(const std::string& name, const fernwick::Variant& value) {
        designer->Properties()->Item(name)->Value(value);
    }
    basic::Ref<vbide::Properties> font() const { return designer->Properties()->Item("Font")->ObjectValue(); }
    basic::Ref<vbide::VBControl> control(const std::string& name) const {
        return designer->Designer()->VBControls()->Item(name);
    }
    basic::Ref<vbide::Property> of(const std::string& controlName, const std::string& name) const {
        return control(controlName)->Properties()->Item(name);
    }
    std::string difference() const { return changedLines(original, file->text()); }

    std::string original;
    std::shared_ptr<host::FormFile> file;
    std::unique_ptr<host::FormDesigner> designer;
    int changes = 0;
};

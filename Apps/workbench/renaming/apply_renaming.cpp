#include "Apps/workbench/renaming/apply_renaming.h"
#include "Apps/workbench/assist/shown_names.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/renaming/renaming_texts.h"
#include "Basic/runtime_error.h"
#include "Host/model/component.h"
#include <algorithm>

namespace workbench {

namespace {

using Places = std::vector<CodePlace>;

bool isUnchanged(const ProjectInsight::Component& component, const qltoolkit::SourceText& source) {
    bool isSame = false;
    (void)basic::attempt([&] { // it may be removed
        const auto own = basic::cast<host::Component>(component);
        isSame = own && own->source().bytes() == source.text(0, source.size());
    });
    return isSame;
}

/// The places of each component, in order.
std::vector<Places> placesOf(const ProjectInsight::Program& program, const qltoolkit::Renaming& renaming) {
    std::vector<Places> all;
    std::size_t source = program.components.size();
    for (const auto& name : shownNames(program.input, renaming.places)) {
        if (std::exchange(source, name.source) != name.source) all.emplace_back();
        all.back().push_back({program.components[source], name.line, name.column, name.length});
    }
    return all;
}

/// Changes one module after the other, and can take that back.
class ModuleChanges {
public:
    ModuleChanges(CodeWindows& windows, QString newName) : windows_(windows), newName_(std::move(newName)) {}

    bool change(const Places& places) {
        const auto& component = places.front().component;
        auto* const editor = windows_.editorOf(component);
        const auto failed = basic::attempt([&] {
            done_.emplace_back(component, component->CodeModule()->Lines(1, component->CodeModule()->CountOfLines()));
            if (!editor) writeLines(places);
        });
        return failed.Number == 0 && (!editor || editor->replace(places, newName_));
    }

    void takeBack() {
        for (const auto& [component, text] : done_)
            (void)basic::attempt([&, &old = text, &module = component] {
                const auto code = module->CodeModule();
                const auto lines = qt(old).split("\r\n");
                for (int line = 0; line < lines.size(); ++line)
                    if (qt(code->Lines(line + 1, 1)) != lines[line])
                        code->ReplaceLine(line + 1, workbench::text(lines[line]));
            });
    }

private:
    void writeLines(const Places& places) const {
        const auto code = places.front().component->CodeModule();
        for (auto at = places.rbegin(); at != places.rend();) {
            const int line = at->line;
            auto now = qt(code->Lines(line + 1, 1));
            for (; at != places.rend() && at->line == line; ++at) now.replace(at->column, at->length, newName_);
            code->ReplaceLine(line + 1, workbench::text(now));
        }
    }

    CodeWindows& windows_;
    QString newName_;
    std::vector<std::pair<ProjectInsight::Component, std::string>> done_;
};

} // namespace

QString applyRenaming(CodeWindows& windows, const ProjectInsight::Program& program, const qltoolkit::Renaming& renaming,
                      const std::string& newName) {
    for (const auto& name : renaming.places) {
        const auto source = name.place.source;
        if (!isUnchanged(program.components[source], *program.input.sources[source])) return renaming_texts::kOutdated;
    }
    ModuleChanges changes(windows, qt(newName));
    for (const auto& places : placesOf(program, renaming)) {
        if (changes.change(places)) continue;
        changes.takeBack();
        return renaming_texts::kRefused;
    }
    return {};
}

} // namespace workbench

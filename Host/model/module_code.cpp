#include "Host/model/module_code.h"
#include "Basic/case_folding.h"
#include "Host/model/code/member_attributes.h"
#include "Host/model/component.h"
#include "Host/model/errors/host_errors.h"
#include "Host/model/module_pane.h"
#include <algorithm>

namespace host {
namespace {

constexpr int kProcedureNotFound = 35;

} // namespace

CodeText& ModuleCode::text() const {
    const auto component = component_.lock();
    if (!component) throwRemoved();
    component->owner();
    return component->source().code();
}

void ModuleCode::edited() {
    outline_.reset();
    const auto component = component_.lock();
    component->changed();
    component->raiseToPanes(&PaneEvents::codeChanged);
}

int ModuleCode::CountOfLines() const { return int(text().count()); }

std::string ModuleCode::Lines(int startLine, int count) const {
    const auto& code = text();
    if (startLine < 1 || count < 0 || std::size_t(startLine) + std::size_t(count) > code.count() + 1)
        throw hostError(basic::kSubscriptOutOfRange);
    std::string lines;
    for (int line = startLine; line < startLine + count; ++line) {
        if (line > startLine) lines += "\r\n";
        lines += code.line(std::size_t(line));
    }
    return lines;
}

void ModuleCode::InsertLines(int line, const std::string& newText) {
    auto& code = text();
    if (line < 1) throw hostError(basic::kSubscriptOutOfRange);
    code.insert(std::min(std::size_t(line), code.count() + 1), newText);
    edited();
}

void ModuleCode::DeleteLines(int startLine, int count) {
    auto& code = text();
    if (startLine < 1 || count < 1 || std::size_t(startLine) + std::size_t(count) > code.count() + 1)
        throw hostError(basic::kSubscriptOutOfRange);
    code.remove(std::size_t(startLine), std::size_t(count));
    edited();
}

void ModuleCode::ReplaceLine(int line, const std::string& newText) {
    auto& code = text();
    if (line < 1 || std::size_t(line) > code.count()) throw hostError(basic::kSubscriptOutOfRange);
    code.replace(std::size_t(line), newText);
    if (const auto member = memberOfLine(newText); !member.empty()) code.nameAttributes(std::size_t(line), member);
    edited();
}

const CodeOutline& ModuleCode::outline() const {
    const auto& code = text();
    if (!outline_) outline_ = std::make_unique<CodeOutline>(outlineOf(code));
    return *outline_;
}

int ModuleCode::CountOfDeclarationLines() const { return outline().declarationLines; }

std::vector<vbide::Member> ModuleCode::Members() const { return outline().members; }

const CodeOutline::Procedure& ModuleCode::procedure(const std::string& name, vbide::vbext_ProcKind kind) const {
    const auto& all = outline().procedures;
    const auto found = std::find_if(all.begin(), all.end(),
                                    [&](const auto& p) { return p.kind == kind && basic::equalNoCase(p.name, name); });
    if (found == all.end()) throw hostError(kProcedureNotFound, "Sub or Function not defined");
    return *found;
}

int ModuleCode::ProcStartLine(const std::string& name, vbide::vbext_ProcKind kind) const {
    return procedure(name, kind).start;
}

int ModuleCode::ProcCountLines(const std::string& name, vbide::vbext_ProcKind kind) const {
    const auto& found = procedure(name, kind);
    return found.end - found.start + 1;
}

vbide::Ref<vbide::CodePane> ModuleCode::CodePane() {
    text();
    if (!pane_) pane_ = std::make_shared<ModulePane>(component_);
    return pane_;
}

} // namespace host

#pragma once
// The code of a component, in the lines of the code window.
#include "Add-in/platform/host.h"
#include "Host/model/code/code_outline.h"
#include <memory>
#include <string>
#include <vector>

namespace host {

class Component;
class CodeText;

class ModuleCode final : public vbide::CodeModule {
public:
    explicit ModuleCode(std::weak_ptr<Component> component) : component_(std::move(component)) {}

    int CountOfLines() const override;
    int CountOfDeclarationLines() const override;
    std::string Lines(int startLine, int count) const override;
    void InsertLines(int line, const std::string& text) override;
    void DeleteLines(int startLine, int count) override;
    void ReplaceLine(int line, const std::string& text) override;
    int ProcStartLine(const std::string& name, vbide::vbext_ProcKind kind) const override;
    int ProcCountLines(const std::string& name, vbide::vbext_ProcKind kind) const override;
    std::vector<vbide::Member> Members() const override;
    vbide::Ref<vbide::CodePane> CodePane() override;

    // ---- for the host ----
    /// Must be called after the component's source was replaced.
    void replaced() { outline_.reset(); }
    /// Valid until the next edit.
    const CodeOutline& outline() const;

private:
    CodeText& text() const;
    void edited();
    const CodeOutline::Procedure& procedure(const std::string& name, vbide::vbext_ProcKind kind) const;

    std::weak_ptr<Component> component_;
    mutable std::unique_ptr<CodeOutline> outline_; // reset by every edit
    vbide::Ref<vbide::CodePane> pane_;
};

} // namespace host

#pragma once
// The code window's lines of a component, and the pane that shows them.
#include "Add-in/platform/events.h"
#include "Add-in/platform/host.h"
#include "Host/model/code/code_members.h"
#include <memory>
#include <string>
#include <vector>

namespace host {

class Component;
class CodeText;
class ToolWindow;

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
    /// The component's source is another one.
    void replaced() { outline_.reset(); }

private:
    CodeText& text() const;
    void edited();
    const CodeOutline& outline() const;
    const CodeOutline::Procedure& procedure(const std::string& name, vbide::vbext_ProcKind kind) const;

    std::weak_ptr<Component> component_;
    mutable std::unique_ptr<CodeOutline> outline_; // of the text as it is; made anew after an edit
    vbide::Ref<vbide::CodePane> pane_;
};

class ModulePane final : public vbide::CodePane {
public:
    explicit ModulePane(std::weak_ptr<Component> component);

    void Show() override;
    vbide::Ref<vbide::Window> Window() override;
    void SetSelection(int startLine, int startColumn, int endLine, int endColumn) override;
    void GetSelection(int& startLine, int& startColumn, int& endLine, int& endColumn) const override;

private:
    std::weak_ptr<Component> component_;
    std::shared_ptr<ToolWindow> window_;
    fernwick::Subscription focused_;
    int startLine_ = 1, startColumn_ = 1, endLine_ = 1, endColumn_ = 1;
};

} // namespace host

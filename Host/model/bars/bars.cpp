#include "Host/model/bars/bars.h"
#include "Basic/case_folding.h"
#include "Host/model/errors/host_errors.h"

namespace host {
namespace {

/// A built-in menu. Popups made by add-ins are not found by name, since a toolbar may have the same name.
std::shared_ptr<Bar> findBarIn(const Bar& bar, const std::string& name) {
    for (const auto& control : bar.list()) {
        if (!control->popup() || control->Id() == kAddInControlId) continue;
        if (basic::equalNoCase(control->popup()->Name(), name)) return control->popup();
        if (auto found = findBarIn(*control->popup(), name)) return found;
    }
    return nullptr;
}

} // namespace

office::Ref<office::CommandBar> Bars::Item(const std::string& name) const {
    for (const auto& bar : list_)
        if (basic::equalNoCase(bar->Name(), name)) return bar;
    if (menuBar_)
        if (const auto popup = findBarIn(*menuBar_, name)) return popup;
    throw hostError(basic::kInvalidProcedureCall);
}

std::vector<office::Ref<office::CommandBar>> Bars::items() const { return {list_.begin(), list_.end()}; }

office::Ref<office::CommandBar> Bars::ActiveMenuBar() const { return menuBar_; }

office::Ref<office::CommandBarControl> Bars::FindControl(int id) const {
    for (const auto& bar : list_)
        if (auto found = bar->find(id)) return found;
    return nullptr;
}

office::Ref<office::CommandBar> Bars::Add(const std::string& name, int position, bool menuBar) {
    for (const auto& bar : list_)
        if (basic::equalNoCase(bar->Name(), name)) throw hostError(basic::kInvalidProcedureCall);
    auto bar = addBar(name, position);
    bar->Visible(false);
    if (menuBar) menuBar_ = bar;
    return bar;
}

std::shared_ptr<Bar> Bars::addBar(const std::string& name, int position) {
    auto bar = std::make_shared<Bar>(weak_from_this(), name, position);
    list_.push_back(bar);
    if (!menuBar_) menuBar_ = bar;
    changed.raise();
    return bar;
}

void Bars::drop(const Bar& bar) {
    std::erase_if(list_, [&](const auto& b) { return b.get() == &bar; });
    if (menuBar_.get() == &bar) menuBar_ = list_.empty() ? nullptr : list_.front();
    changed.raise();
}

} // namespace host

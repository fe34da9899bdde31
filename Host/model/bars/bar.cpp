#include "Host/model/bars/bar.h"
#include "Basic/case_folding.h"
#include "Host/model/bars/bars.h"
#include "Host/model/errors/host_errors.h"

namespace host {

std::shared_ptr<Bar> BarItems::bar() const {
    auto bar = bar_.lock();
    if (!bar) throwRemoved();
    return bar;
}

int BarItems::Count() const { return int(bar()->list().size()); }

office::Ref<office::CommandBarControl> BarItems::Item(int index) const { return itemAt(bar()->list(), index); }

office::Ref<office::CommandBarControl> BarItems::Item(const std::string& caption) const {
    const auto wanted = withoutMnemonic(caption);
    for (const auto& control : bar()->list())
        if (basic::equalNoCase(withoutMnemonic(control->Caption()), wanted)) return control;
    throw hostError(basic::kInvalidProcedureCall);
}

std::vector<office::Ref<office::CommandBarControl>> BarItems::items() const {
    const auto bar = this->bar();
    return {bar->list().begin(), bar->list().end()};
}

office::Ref<office::CommandBarControl> BarItems::Add(office::MsoControlType type, int before) {
    if (before < 0 || before > Count()) throw hostError(basic::kInvalidProcedureCall);
    return bar()->add(type, kAddInControlId, before);
}

Bar::Bar(std::weak_ptr<Bars> bars, std::string name, int position)
    : bars_(std::move(bars)), name_(std::move(name)), position_(position) {}

std::string Bar::Name() const {
    if (removed_) throwRemoved();
    return name_;
}

office::Ref<office::CommandBarControls> Bar::Controls() {
    if (removed_) throwRemoved();
    if (!items_) items_ = std::make_shared<BarItems>(weak_from_this());
    return items_;
}

office::Ref<office::CommandBarControl> Bar::FindControl(int id) { return find(id); }

std::shared_ptr<BarControl> Bar::find(int id) const {
    for (const auto& control : list_) {
        if (control->Id() == id) return control;
        if (control->popup())
            if (auto found = control->popup()->find(id)) return found;
    }
    return nullptr;
}

void Bar::Delete() {
    if (removed_) throwRemoved();
    removed_ = true;
    for (const auto& control : list_) control->remove();
    list_.clear();
    if (const auto bars = bars_.lock()) bars->drop(*this);
}

void Bar::notifyChanged() const {
    if (const auto bars = bars_.lock()) bars->changed.raise();
}

std::shared_ptr<BarControl> Bar::add(office::MsoControlType type, int id, int before) {
    if (removed_) throwRemoved();
    auto control = std::make_shared<BarControl>(type, id, weak_from_this());
    if (const auto bars = bars_.lock()) control->handlerFailed = bars->handlerFailed;
    list_.insert(before == 0 ? list_.end() : list_.begin() + (before - 1), control);
    notifyChanged();
    return control;
}

void Bar::drop(const BarControl& control) {
    std::erase_if(list_, [&](const auto& c) { return c.get() == &control; });
    notifyChanged();
}

} // namespace host

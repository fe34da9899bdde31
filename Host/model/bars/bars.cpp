#include "Host/model/bars/bars.h"
#include "Basic/case_folding.h"
#include "Host/model/errors/host_errors.h"
#include <algorithm>

namespace host {
namespace {

std::string withoutMnemonic(const std::string& caption) {
    std::string text;
    std::copy_if(caption.begin(), caption.end(), std::back_inserter(text), [](char c) { return c != '&'; });
    return text;
}

std::shared_ptr<BarControl> findControlIn(const Bar& bar, int id) {
    for (const auto& control : bar.list()) {
        if (control->Id() == id) return control;
        if (control->popup())
            if (auto found = findControlIn(*control->popup(), id)) return found;
    }
    return nullptr;
}

/// The id of a control that an add-in has made.
constexpr int kOwnControl = 1;

/// One of the host's own menus. A popup that an add-in made is not found by its name: a toolbar may bear the same.
std::shared_ptr<Bar> findBarIn(const Bar& bar, const std::string& name) {
    for (const auto& control : bar.list()) {
        if (!control->popup() || control->Id() == kOwnControl) continue;
        if (basic::equalNoCase(control->popup()->Name(), name)) return control->popup();
        if (auto found = findBarIn(*control->popup(), name)) return found;
    }
    return nullptr;
}

} // namespace

// ---- a control ---------------------------------------------------------------------------------------------------------

BarControl::BarControl(office::MsoControlType type, int id, std::weak_ptr<Bar> parent)
    : type_(type), id_(id), parent_(std::move(parent)) {
    if (type != office::msoControlPopup) return;
    const auto bar = parent_.lock();
    popup_ = std::make_shared<Bar>(bar ? bar->bars() : nullptr, "", 0);
}

void BarControl::tell() const {
    if (const auto bar = parent_.lock()) bar->tell();
}

void BarControl::check() const {
    if (removed_) throwRemoved();
}

int BarControl::Id() const {
    check();
    return id_;
}

int BarControl::Index() const {
    check();
    const auto bar = parent_.lock();
    if (!bar) throwRemoved();
    const auto& all = bar->list();
    const auto found = std::find_if(all.begin(), all.end(), [&](const auto& c) { return c.get() == this; });
    return int(found - all.begin()) + 1;
}

office::MsoControlType BarControl::Type() const {
    check();
    return type_;
}

std::string BarControl::Caption() const {
    check();
    return caption_;
}

void BarControl::Caption(const std::string& caption) {
    check();
    caption_ = caption;
    if (popup_) popup_->name(withoutMnemonic(caption));
    tell();
}

std::string BarControl::Tag() const {
    check();
    return tag_;
}

void BarControl::Tag(const std::string& tag) {
    check();
    tag_ = tag;
}

std::string BarControl::ToolTipText() const {
    check();
    return toolTip_;
}

void BarControl::ToolTipText(const std::string& text) {
    check();
    toolTip_ = text;
    tell();
}

bool BarControl::BeginGroup() const {
    check();
    return beginGroup_;
}

void BarControl::BeginGroup(bool begin) {
    check();
    beginGroup_ = begin;
    tell();
}

bool BarControl::Enabled() const {
    check();
    return enabled_;
}

void BarControl::Enabled(bool enabled) {
    check();
    enabled_ = enabled;
    tell();
}

bool BarControl::Visible() const {
    check();
    return visible_;
}

void BarControl::Visible(bool visible) {
    check();
    visible_ = visible;
    tell();
}

void BarControl::checked(bool on) {
    if (std::exchange(checked_, on) != on) tell();
}

void BarControl::checkButton() const {
    check();
    if (popup_) throw hostError(basic::kPropertyOrMethodNotSupported);
}

office::MsoButtonStyle BarControl::Style() const {
    checkButton();
    return style_;
}

void BarControl::Style(office::MsoButtonStyle style) {
    checkButton();
    style_ = style;
    tell();
}

void BarControl::PasteFace() {
    checkButton();
    const auto bar = parent_.lock();
    const auto bars = bar ? bar->bars() : nullptr;
    const auto picture = bars && bars->clipboard ? bars->clipboard->GetData(fernwick::kPictureFormat) : std::string();
    if (picture.empty()) throw hostError(basic::kInvalidProcedureCall);
    face_ = picture;
    tell();
}

office::Ref<office::CommandBar> BarControl::Parent() const {
    check();
    return parent_.lock();
}

office::Ref<office::CommandBarControls> BarControl::Controls() {
    check();
    if (!popup_) throw hostError(basic::kPropertyOrMethodNotSupported);
    return popup_->Controls();
}

void BarControl::Delete() {
    check();
    removed_ = true;
    if (const auto bar = parent_.lock()) bar->drop(*this);
}

void BarControl::Execute() {
    check();
    if (!enabled_) return;
    const auto self = shared_from_this();
    bool handled = false, cancelDefault = false;
    const auto failed = basic::attempt([&] { events_->Click.raise(self, handled, cancelDefault); });
    if (failed.Number != 0 && handlerFailed) handlerFailed(failed);
    if (action && !cancelDefault) action();
}

// ---- the controls of a bar ---------------------------------------------------------------------------------------------

std::shared_ptr<Bar> BarItems::bar() const {
    auto bar = bar_.lock();
    if (!bar) throwRemoved();
    return bar;
}

int BarItems::Count() const { return int(bar()->list().size()); }

office::Ref<office::CommandBarControl> BarItems::Item(int index) const {
    const auto bar = this->bar();
    if (index < 1 || index > Count()) throw hostError(basic::kSubscriptOutOfRange);
    return bar->list()[std::size_t(index) - 1];
}

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
    return bar()->add(type, kOwnControl, before);
}

// ---- a bar -------------------------------------------------------------------------------------------------------------

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

office::Ref<office::CommandBarControl> Bar::FindControl(int id) { return findControlIn(*this, id); }

void Bar::Delete() {
    if (removed_) throwRemoved();
    removed_ = true;
    for (const auto& control : list_) control->remove();
    list_.clear();
    if (const auto bars = bars_.lock()) bars->drop(*this);
}

void Bar::tell() const {
    if (const auto bars = bars_.lock()) bars->changed.raise();
}

std::shared_ptr<BarControl> Bar::add(office::MsoControlType type, int id, int before) {
    if (removed_) throwRemoved();
    auto control = std::make_shared<BarControl>(type, id, weak_from_this());
    if (const auto bars = bars_.lock()) control->handlerFailed = bars->handlerFailed;
    list_.insert(before == 0 ? list_.end() : list_.begin() + (before - 1), control);
    tell();
    return control;
}

void Bar::drop(const BarControl& control) {
    std::erase_if(list_, [&](const auto& c) { return c.get() == &control; });
    tell();
}

// ---- all bars ----------------------------------------------------------------------------------------------------------

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
        if (auto found = findControlIn(*bar, id)) return found;
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

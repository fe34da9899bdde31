#include "Host/model/bars/bar_control.h"
#include "Host/model/bars/bars.h"
#include "Host/model/errors/host_errors.h"
#include <algorithm>

namespace host {

std::string withoutMnemonic(const std::string& caption) {
    auto text = caption;
    std::erase(text, '&');
    return text;
}

BarControl::BarControl(office::MsoControlType type, int id, std::weak_ptr<Bar> parent)
    : type_(type), id_(id), parent_(std::move(parent)) {
    if (type != office::msoControlPopup) return;
    const auto bar = parent_.lock();
    popup_ = std::make_shared<Bar>(bar ? bar->bars() : nullptr, "", 0);
}

void BarControl::notifyChanged() const {
    if (const auto bar = parent_.lock()) bar->notifyChanged();
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
    notifyChanged();
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
    notifyChanged();
}

bool BarControl::BeginGroup() const {
    check();
    return beginGroup_;
}

void BarControl::BeginGroup(bool begin) {
    check();
    beginGroup_ = begin;
    notifyChanged();
}

bool BarControl::Enabled() const {
    check();
    return enabled_;
}

void BarControl::Enabled(bool enabled) {
    check();
    enabled_ = enabled;
    notifyChanged();
}

bool BarControl::Visible() const {
    check();
    return visible_;
}

void BarControl::Visible(bool visible) {
    check();
    visible_ = visible;
    notifyChanged();
}

void BarControl::checked(bool on) {
    if (std::exchange(checked_, on) != on) notifyChanged();
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
    notifyChanged();
}

void BarControl::PasteFace() {
    checkButton();
    const auto bar = parent_.lock();
    const auto bars = bar ? bar->bars() : nullptr;
    const auto picture = bars && bars->clipboard ? bars->clipboard->GetData(fernwick::kPictureFormat) : std::string();
    if (picture.empty()) throw hostError(basic::kInvalidProcedureCall);
    face_ = picture;
    notifyChanged();
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

} // namespace host

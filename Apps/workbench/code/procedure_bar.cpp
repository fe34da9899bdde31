#include "Apps/workbench/code/procedure_bar.h"
#include "Apps/workbench/base/text.h"
#include <QBoxLayout>
#include <QComboBox>
#include <QSet>
#include <QSignalBlocker>

namespace workbench {

bool isProcedure(const vbide::Member& member) {
    return member.type == vbide::Member::Method || member.type == vbide::Member::Property;
}

namespace {

constexpr int kListGap = 2;

/// The part of a name before its last "_".
QString handledObject(const vbide::Member& member) {
    const auto name = qt(member.Name);
    return name.left(std::max<qsizetype>(0, name.lastIndexOf('_')));
}

/// The names under which a component's own events are handled.
QStringList ownObjects(vbide::vbext_ComponentType type) {
    switch (type) {
    case vbide::vbext_ct_VBForm: return {"Form"};
    case vbide::vbext_ct_VBMDIForm: return {"MDIForm"};
    case vbide::vbext_ct_ClassModule: return {"Class"};
    case vbide::vbext_ct_PropPage: return {"PropertyPage"};
    case vbide::vbext_ct_UserControl: return {"UserControl"};
    case vbide::vbext_ct_DocObject: return {"UserDocument"};
    default: return {};
    }
}

QStringList objectsOf(vbide::VBComponent& component) {
    auto objects = ownObjects(component.Type());
    if (const auto designer = component.Designer())
        for (const auto& control : designer->VBControls()->items())
            objects << qt(fernwick::asText(control->Properties()->Item("Name")->Value()));
    return objects;
}

QString generalObject() { return "(General)"; }

/// The entry of the list that a procedure belongs to.
QString objectOf(const vbide::Member& member, const QComboBox& objects) {
    const int row = objects.findText(handledObject(member), Qt::MatchFixedString);
    return row < 0 ? generalObject() : objects.itemText(row);
}

/// The procedure that contains a line (from 1), null above the first one.
const vbide::Member* memberAt(const std::vector<vbide::Member>& members, int line) {
    const vbide::Member* within = nullptr;
    for (const auto& member : members)
        if (isProcedure(member) && member.CodeLocation <= line &&
            (!within || member.CodeLocation > within->CodeLocation))
            within = &member;
    return within;
}

} // namespace

ProcedureBar::ProcedureBar(vbide::Ref<vbide::VBComponent> component, std::function<void(int line)> goTo)
    : component_(std::move(component)), objects_(new QComboBox), procedures_(new QComboBox) {
    objects_->setObjectName("objects");
    procedures_->setObjectName("procedures");
    auto* const lists = new QHBoxLayout(this);
    lists->setContentsMargins(0, 0, 0, 0);
    lists->setSpacing(kListGap);
    lists->addWidget(objects_);
    lists->addWidget(procedures_);
    connect(objects_, &QComboBox::activated, this, [this] { listProcedures(); });
    connect(procedures_, &QComboBox::activated, this,
            [this, goTo = std::move(goTo)] { goTo(procedures_->currentData().toInt()); });
}

void ProcedureBar::list(int line) {
    members_ = component_->CodeModule()->Members();
    const QSignalBlocker ours(objects_);
    listObjects();
    showAt(line);
}

void ProcedureBar::showAt(int line) {
    const auto* const within = memberAt(members_, line);
    const QSignalBlocker ours(objects_);
    objects_->setCurrentText(within ? objectOf(*within, *objects_) : generalObject());
    listProcedures();
    procedures_->setCurrentIndex(within ? procedures_->findData(within->CodeLocation) : 0);
}

void ProcedureBar::listObjects() {
    QSet<QString> handled;
    for (const auto& member : members_)
        if (isProcedure(member)) handled << handledObject(member).toLower();
    objects_->clear();
    objects_->addItem(generalObject());
    QStringList names;
    if (handled.size() > (handled.contains("") ? 1 : 0)) names = objectsOf(*component_);
    names.removeDuplicates();
    names.sort(Qt::CaseInsensitive);
    for (const auto& name : names)
        if (handled.contains(name.toLower())) objects_->addItem(name);
}

void ProcedureBar::listProcedures() {
    const auto object = objects_->currentText();
    const bool general = object == generalObject();
    procedures_->clear();
    if (general) procedures_->addItem("(Declarations)", 1);
    for (const auto& member : members_)
        if (isProcedure(member) && objectOf(member, *objects_) == object)
            procedures_->addItem(qt(member.Name).mid(general ? 0 : object.size() + 1), member.CodeLocation);
}

} // namespace workbench

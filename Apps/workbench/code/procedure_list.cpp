#include "Apps/workbench/code/procedure_list.h"
#include "Apps/workbench/base/text.h"
#include <QComboBox>
#include <QSet>

namespace workbench {

namespace {

/// What stands before the last "_" of a name.
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

} // namespace

bool isProcedure(const vbide::Member& member) {
    return member.type == vbide::Member::Method || member.type == vbide::Member::Property;
}

QString generalObject() { return "(General)"; }

void showObjectNames(QComboBox& list, const std::vector<vbide::Member>& members, vbide::VBComponent& component) {
    QSet<QString> handled;
    for (const auto& member : members)
        if (isProcedure(member)) handled << handledObject(member).toLower();
    list.clear();
    list.addItem(generalObject());
    QStringList names;
    if (handled.size() > (handled.contains("") ? 1 : 0)) names = objectsOf(component);
    names.removeDuplicates();
    names.sort(Qt::CaseInsensitive);
    for (const auto& name : names)
        if (handled.contains(name.toLower())) list.addItem(name);
}

QString objectOf(const vbide::Member& member, const QComboBox& objects) {
    const int row = objects.findText(handledObject(member), Qt::MatchFixedString);
    return row < 0 ? generalObject() : objects.itemText(row);
}

void showProcedureNames(QComboBox& list, const std::vector<vbide::Member>& members, const QComboBox& objects) {
    const auto object = objects.currentText();
    const bool general = object == generalObject();
    list.clear();
    if (general) list.addItem("(Declarations)", 1);
    for (const auto& member : members)
        if (isProcedure(member) && objectOf(member, objects) == object)
            list.addItem(qt(member.Name).mid(general ? 0 : object.size() + 1), member.CodeLocation);
}

const vbide::Member* memberAt(const std::vector<vbide::Member>& members, int line) {
    const vbide::Member* within = nullptr;
    for (const auto& member : members)
        if (isProcedure(member) && member.CodeLocation <= line &&
            (!within || member.CodeLocation > within->CodeLocation))
            within = &member;
    return within;
}

} // namespace workbench

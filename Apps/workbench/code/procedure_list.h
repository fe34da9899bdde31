#pragma once
// The two lists above the code: objects, and the procedures of one.
#include "Add-in/platform/host_project.h"
#include <QString>
#include <vector>

class QComboBox;

namespace workbench {

/// The first entry of the objects: what belongs to none.
QString generalObject();
/// "(General)", the component's own events and those of its controls, where the code has handlers for them.
void showObjectNames(QComboBox& list, const std::vector<vbide::Member>& members, vbide::VBComponent& component);
/// The procedures of the current object, each with its line as data; before those of none "(Declarations)".
void showProcedureNames(QComboBox& list, const std::vector<vbide::Member>& members, const QComboBox& objects);
/// The object of a procedure: one of the list.
QString objectOf(const vbide::Member& member, const QComboBox& objects);
/// Whether it is a Sub, Function or Property.
bool isProcedure(const vbide::Member& member);
/// The procedure in which a line (from 1) stands, null above the first.
const vbide::Member* memberAt(const std::vector<vbide::Member>& members, int line);

} // namespace workbench

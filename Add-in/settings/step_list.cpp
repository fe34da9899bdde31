#include "Add-in/settings/step_list.h"
#include "Add-in/settings/settings_constants.h"
#include "Add-in/settings/settings_texts.h"

namespace fernwick {

using namespace settings_texts;

StepList::StepList(Form* form, const SettingsServices& services, const basic::Ref<clsQLProject>& project,
                   const std::string& kind)
    : lstSteps(form, "lst" + kind + "Steps", ListBox::Choice::Several),
      txtNewStep(form, "txt" + kind + "NewStep"),
      cmdBrowse(form, "cmd" + kind + "Browse", "Browse...", this, &StepList::cmdBrowse_Click),
      cmdAdd(form, "cmd" + kind + "Add", "Add", this, &StepList::cmdAdd_Click),
      cmdEdit(form, "cmd" + kind + "Edit", "Edit", this, &StepList::cmdEdit_Click),
      cmdRemove(form, "cmd" + kind + "Remove", "Remove...", this, &StepList::cmdRemove_Click),
      cmdMoveUp(form, "cmd" + kind + "MoveUp", "Move Up", this, &StepList::cmdMoveUp_Click),
      cmdMoveDown(form, "cmd" + kind + "MoveDown", "MoveDown", this, &StepList::cmdMoveDown_Click),
      services_(services),
      kind_(kind),
      project_(project) {}

Procedure StepList::trap(const std::string& event) const {
    return {services_.errors, "frmQuinloftSettings.cmd" + kind_ + event + "_Click"};
}

void StepList::show(const Array<std::string>& steps) {
    edited_ = -1;
    lstSteps.Clear();
    for (const auto& step : steps) lstSteps.AddItem(step);
}

Array<std::string> StepList::steps() const {
    Array<std::string> steps;
    for (int row = 0; row < lstSteps.ListCount(); ++row) steps.Append(lstSteps.List(row));
    return steps;
}

void StepList::cmdBrowse_Click() {
    auto here = trap("Browse");
    CommonDialog dialog;
    dialog.DialogTitle = kBrowseStep;
    dialog.Filter = kStepFilter;
    dialog.Flags = kExistingFile;
    here([&] { services_.platform.interaction.ShowOpen(dialog); });
    if (!dialog.FileName.empty()) here([&] { txtNewStep.Text(dialog.FileName); });
}

void StepList::cmdAdd_Click() {
    auto here = trap("Add");
    const auto step = txtNewStep.Text();
    if (!canBeAdded(here, step)) return;
    if (edited_ >= 0)
        here([&] { lstSteps.List(edited_, step); });
    else
        here([&] { lstSteps.AddItem(step); });
    edited_ = -1;
}

/// A step may be a file, or a command line with arguments.
bool StepList::canBeAdded(Procedure& here, const std::string& step) {
    auto& platform = services_.platform;
    const auto refuse = [&](const char* why) {
        here([&] { platform.interaction.MsgBox(why, vbCritical, ""); });
        return false;
    };
    if (step.empty()) return refuse(kStepMissing);
    const auto exists = [&] {
        return platform.files.FileExists(step) || platform.processes.FindsProgram(step, project_->ProjectPath());
    };
    return here.value(exists) || refuse(kStepNotFound);
}

void StepList::cmdEdit_Click() {
    for (int row = 0; row < lstSteps.ListCount(); ++row)
        if (lstSteps.Selected(row)) {
            edited_ = row;
            return txtNewStep.Text(lstSteps.List(row));
        }
}

bool StepList::hasSelection() const {
    for (int row = 0; row < lstSteps.ListCount(); ++row)
        if (lstSteps.Selected(row)) return true;
    return false;
}

void StepList::cmdRemove_Click() {
    auto here = trap("Remove");
    if (!hasSelection()) return;
    const int answer =
        here.value([&] { return services_.platform.interaction.MsgBox(kRemoveSteps, vbYesNo + vbInformation, ""); });
    if (answer != vbYes) return;
    edited_ = -1;
    for (int row = 0; row < lstSteps.ListCount();)
        if (lstSteps.Selected(row))
            lstSteps.RemoveItem(row);
        else
            ++row;
}

void StepList::cmdMoveUp_Click() {
    for (int row = 1; row < lstSteps.ListCount(); ++row)
        if (lstSteps.Selected(row) && !lstSteps.Selected(row - 1)) swapRows(row, row - 1);
}

void StepList::cmdMoveDown_Click() {
    for (int row = lstSteps.ListCount() - 2; row >= 0; --row)
        if (lstSteps.Selected(row) && !lstSteps.Selected(row + 1)) swapRows(row, row + 1);
}

/// Rows with their selection.
void StepList::swapRows(int a, int b) {
    const auto text = lstSteps.List(a);
    const bool selected = lstSteps.Selected(a);
    lstSteps.List(a, lstSteps.List(b));
    lstSteps.Selected(a, lstSteps.Selected(b));
    lstSteps.List(b, text);
    lstSteps.Selected(b, selected);
    if (edited_ == a || edited_ == b) edited_ = edited_ == a ? b : a;
}

} // namespace fernwick

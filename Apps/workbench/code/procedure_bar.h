#pragma once
// The two lists above the code: objects, and the procedures of one.
#include "Add-in/platform/host_project.h"
#include <QWidget>
#include <functional>
#include <vector>

class QComboBox;

namespace workbench {

/// Whether it is a Sub, Function or Property.
bool isProcedure(const vbide::Member& member);

/// Lists "(General)" and the objects whose events the code handles: the component itself and its controls.
class ProcedureBar final : public QWidget {
public:
    /// `goTo` is called with the line (from 1) of the procedure that the user chooses.
    ProcedureBar(vbide::Ref<vbide::VBComponent> component, std::function<void(int line)> goTo);

    /// Reads the procedures again and shows the one that contains a line (from 1).
    void list(int line);
    /// Shows the procedure that contains a line (from 1), or "(Declarations)".
    void showAt(int line);

private:
    void listObjects();
    void listProcedures();

    vbide::Ref<vbide::VBComponent> component_;
    QComboBox* objects_;
    QComboBox* procedures_;
    std::vector<vbide::Member> members_;
};

} // namespace workbench

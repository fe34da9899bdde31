#pragma once
// The two lists above the code: objects, and the procedures of one.
#include "Apps/workbench/events/object_events.h"
#include <QWidget>
#include <functional>
#include <vector>

class QComboBox;

namespace workbench {

/// Whether it is a Sub, Function or Property.
bool isProcedure(const vbide::Member& member);

/// Lists "(General)", the component itself, its controls and the objects of its declarations. Of an object it offers all events; those that the code
/// handles are bold.
class ProcedureBar final : public QWidget {
public:
    struct Callbacks {
        /// The user chose the procedure at this line (from 1).
        std::function<void(int line)> goTo;
        /// The user chose an event without a handler.
        std::function<void(const EventObject& object, const host::ClassEvent& event)> add;
    };
    ProcedureBar(vbide::Ref<vbide::VBComponent> component, Callbacks callbacks);

    /// Reads the procedures again and shows the one that contains a line (from 1).
    void list(int line);
    /// Shows the procedure that contains a line (from 1), or "(Declarations)".
    void showAt(int line);

private:
    struct Listed {
        vbide::Member member;
        int row = 0; ///< of its object
    };
    void listObjects();
    void listMembers();
    const Listed* at(int line) const;
    void listProcedures();
    void listEvents(const EventObject& object);
    void addProcedure(const QString& name, int line);
    void chosenObject();
    void chosenProcedure();
    const EventObject* object() const;

    vbide::Ref<vbide::VBComponent> component_;
    Callbacks callbacks_;
    QComboBox* objects_;
    QComboBox* procedures_;
    std::vector<Listed> listed_;
    std::vector<EventObject> known_;
    int shownRow_ = -1;
    /// Of the object that is shown.
    std::vector<host::ClassEvent> events_;
};

} // namespace workbench

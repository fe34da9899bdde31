#pragma once
// The names that the modules of projects declare.
#include "Apps/workbench/code/declared_names.h"
#include "Host/model/host.h"
#include <QTimer>
#include <functional>
#include <map>

namespace workbench {

/// Reads a module once after each change, and a long one when the user pauses: looking up names while the user types
/// costs no more than reading a short module.
class ProjectNames {
public:
    using Component = vbide::Ref<vbide::VBComponent>;
    /// Returns a name as it was declared; "" if it is unknown. Its object is the word before its point, "" for none.
    using Lookup = std::function<QString(const QString& name, const QString& object)>;

    explicit ProjectNames(host::Host& host);

    /// The names that can be used in a line (from 0): those of its procedure first, then those of the module, those of
    /// the project's other modules, and the names of components. The lookup is valid until the code changes.
    Lookup at(const Component& component, int line);

private:
    using Key = std::weak_ptr<vbide::VBComponent>;

    /// What is known of a module. Of a long one the names of before its last edits are used until the user pauses.
    struct Known {
        DeclaredNames names;
        bool isLong = false, isStale = false;
    };
    const Known& known(const Component& component);
    const DeclaredNames& of(const Component& component) { return known(component).names; }
    /// The names of the procedure around a line.
    Spellings localNames(const Component& component, int line);
    void changed(const Component& component);
    void readAgain();
    const Spellings& controlsOf(const Component& component);
    QString unqualified(const Component& component, int line, const QString& lower);
    QString member(const Component& component, const QString& lower, const QString& object);

    std::map<Key, Known, std::owner_less<>> names_;
    std::map<Key, Spellings, std::owner_less<>> controls_;
    QTimer rest_;
    std::vector<fernwick::Subscription> watches_;
};

} // namespace workbench

#pragma once
// The names that the modules of projects declare.
#include "Apps/workbench/code/declared_names.h"
#include "Host/model/host.h"
#include <functional>
#include <map>

namespace workbench {

/// Reads a module once after each change, so that looking up names costs no more than reading the changed module.
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

    const DeclaredNames& of(const Component& component);
    const Spellings& controlsOf(const Component& component);
    QString unqualified(const Component& component, int line, const QString& lower);
    QString member(const Component& component, const QString& lower, const QString& object);

    std::map<Key, DeclaredNames, std::owner_less<>> names_;
    std::map<Key, Spellings, std::owner_less<>> controls_;
    std::vector<fernwick::Subscription> watches_;
};

} // namespace workbench

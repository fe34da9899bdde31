#pragma once
// Control classes from the descriptions of type libraries.
#include "Host/model/forms/control_class.h"
#include "Host/system/type_description.h"
#include <string>
#include <unordered_map>

namespace host {

/// Looks up controls by their class in forms ("TavletsCtl.QLLabel": the library's name, "Ctl." and the class) and by
/// ProgID ("Tavlets.QLLabel"), ignoring case.
class DescribedClasses {
public:
    /// Adds the controls of a library. Classes added before take precedence.
    void add(const TypeDescription& library);

    /// Returns null for an unknown class.
    std::shared_ptr<const ControlClass> find(const std::string& className) const;
    /// Returns the class in forms for a ProgID; the ProgID itself if it is unknown.
    std::string classOfProgId(const std::string& progId) const;
    /// Returns all classes as written in forms, in alphabetical order.
    std::vector<std::string> classNames() const;

private:
    struct Described {
        std::string className;
        std::shared_ptr<const ControlClass> properties;
    };
    std::unordered_map<std::string, Described> classes_;
};

} // namespace host

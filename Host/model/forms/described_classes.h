#pragma once
// Control classes whose properties stand in the description of their type library.
#include "Host/model/forms/control_class.h"
#include "Host/system/type_description.h"
#include <string>
#include <unordered_map>

namespace host {

/// Looks up controls by the class that stands in a form ("TavletsCtl.QLLabel": the library's name, "Ctl." and the
/// class) and by ProgID ("Tavlets.QLLabel"), both without regard to case.
class DescribedClasses {
public:
    /// Adds the controls of a library. Those added first stay.
    void add(const TypeDescription& library);

    /// Null for a class that no library describes.
    std::shared_ptr<const ControlClass> find(const std::string& className) const;
    /// The class that a form's text uses for a ProgID; the ProgID itself where no library describes it.
    std::string classOfProgId(const std::string& progId) const;
    /// All classes as a form's text names them, in the alphabet's order.
    std::vector<std::string> classNames() const;

private:
    struct Described {
        std::string className;
        std::shared_ptr<const ControlClass> properties;
    };
    std::unordered_map<std::string, Described> classes_;
};

} // namespace host

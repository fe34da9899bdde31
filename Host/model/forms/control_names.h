#pragma once
// Names and numbers of new controls.
#include "Host/model/forms/designer_state.h"
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace host {

/// The class without its library: "TextBox".
std::string classNameOf(std::string_view type);

/// The name of a new control of a class: "Text1". `isTaken` may refuse further names.
std::string freeControlName(DesignerState& state, std::string_view type,
                            const std::function<bool(const std::string&)>& isTaken = {});

long nextTabIndex(DesignerState& state);

/// The index in a control array; none for a single control.
std::optional<long> indexOf(const FormBlock& block);

/// Finds names and indexes for copied controls that are added to a form. A name that is in use becomes the next member
/// of its control array, or a free name.
class NewNames {
public:
    using Blocks = std::vector<std::shared_ptr<FormBlock>>;

    /// `arrays` are names of single controls that become control arrays.
    NewNames(DesignerState& state, const Blocks& added, const std::vector<std::string>& arrays);
    void give(FormBlock& block);

private:
    bool isInUse(const FormBlock& block) const;
    void join(FormBlock& block);
    void rename(FormBlock& block);

    DesignerState& state_;
    std::set<std::string> arrays_;
    /// The first control of each name on the form.
    std::map<std::string, std::shared_ptr<FormBlock>> present_;
    /// The indexes in use, of the controls that are there and of those that are added.
    std::map<std::string, std::set<long>> indexes_;
    std::set<std::string> taken_, given_;
    std::map<std::string, std::string> renamed_;
};

} // namespace host

#pragma once
// All menus and toolbars, as a model that front ends may draw.
#include "Add-in/platform/clipboard.h"
#include "Add-in/platform/command_bars.h"
#include "Host/model/bars/bar.h"
#include "Host/model/bars/control_ids.h"
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace host {

class Bars final : public office::CommandBars, public std::enable_shared_from_this<Bars> {
public:
    office::Ref<office::CommandBar> Item(const std::string& name) const override;
    std::vector<office::Ref<office::CommandBar>> items() const override;
    office::Ref<office::CommandBar> ActiveMenuBar() const override;
    office::Ref<office::CommandBarControl> FindControl(int id) const override;
    office::Ref<office::CommandBar> Add(const std::string& name, int position, bool menuBar) override;

    // ---- for the host ----
    std::shared_ptr<Bar> addBar(const std::string& name, int position);
    void drop(const Bar& bar);
    /// Receives errors thrown by handlers of a click.
    std::function<void(const basic::ErrObject&)> handlerFailed;
    /// Raised after each change of a bar or a control.
    fernwick::Event<> changed;
    /// The source of pasted faces; may be null.
    const fernwick::Clipboard* clipboard = nullptr;

private:
    std::vector<std::shared_ptr<Bar>> list_;
    std::shared_ptr<Bar> menuBar_;
};

} // namespace host

#pragma once
// The recently opened projects in the host's File menu.
#include "Host/model/host.h"
#include <QStringList>
#include <functional>
#include <memory>
#include <set>
#include <string>

namespace host {
class Bar;
class BarControl;
} // namespace host

namespace workbench {

class RecentProjects {
public:
    using Open = std::function<void(const std::string& path)>;

    /// Fills the submenu `menu`. The list is stored in the user's settings.
    RecentProjects(host::Host& host, std::shared_ptr<host::Bar> menu, Open open);

    static QStringList stored();

private:
    void remember(const std::string& file);
    void fill();

    std::shared_ptr<host::Bar> menu_;
    Open open_;
    /// The open projects of groups. The list has their group instead.
    std::set<std::string> members_;
    std::vector<fernwick::Subscription> watches_;
};

} // namespace workbench

#pragma once

namespace host {
class Host;
}

namespace workbench {

class MainWindow;

/// What the right button and the menu key bring up in the project explorer: commands of the menus that fit the entry.
void addExplorerMenu(host::Host& host, MainWindow& window);

} // namespace workbench

#pragma once
// The built-in menus: File, Edit, View, Project, Add-Ins, Help.
#include <functional>

namespace host {

class Bars;

struct HostCommands {
    std::function<void()> newProject, openProject, saveProject, removeProject;
};
void addHostMenus(Bars& bars, const HostCommands& commands);

} // namespace host

#pragma once
// All services that the add-in uses.
#include "Add-in/platform/classes.h"
#include "Add-in/platform/clipboard.h"
#include "Add-in/platform/clock.h"
#include "Add-in/platform/environment.h"
#include "Add-in/platform/event_loop.h"
#include "Add-in/platform/files.h"
#include "Add-in/platform/host_windows.h"
#include "Add-in/platform/interaction.h"
#include "Add-in/platform/processes.h"
#include "Add-in/platform/registry.h"
#include "Add-in/platform/resources.h"
#include "Add-in/platform/screen.h"
#include "Add-in/platform/shell.h"

namespace fernwick {

/// The App object of the add-in's project, and addresses from the installation.
struct App {
    std::string Title = "QLVBAddIn";
    /// Folder of the add-in and its files.
    std::string Path;
    std::string SupportWebAddress;
    std::string WebAddress;
    /// The page to download the runtime from.
    std::string RuntimeWebAddress;
    /// The vendor's pages of examples, the forum, and resources for developers.
    std::string SamplesWebAddress{};
    std::string ForumWebAddress{};
    std::string DevelopersWebAddress{};
};

struct Platform {
    Interaction& interaction;
    EventLoop& loop;
    Registry& registry;
    FileSystemObject& files;
    Processes& processes;
    Classes& classes;
    Environment& environment;
    Clipboard& clipboard;
    Shell& shell;
    Screen& screen;
    HostWindows& windows;
    Clock& clock;
    Resources& resources;
    App app;
};

} // namespace fernwick

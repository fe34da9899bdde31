#pragma once
// All that the add-in is given of the world.
#include "Add-in/platform/classes.h"
#include "Add-in/platform/clipboard.h"
#include "Add-in/platform/clock.h"
#include "Add-in/platform/environment.h"
#include "Add-in/platform/event_loop.h"
#include "Add-in/platform/files.h"
#include "Add-in/platform/interaction.h"
#include "Add-in/platform/processes.h"
#include "Add-in/platform/registry.h"
#include "Add-in/platform/resources.h"
#include "Add-in/platform/screen.h"
#include "Add-in/platform/shell.h"

namespace fernwick {

/// The App object of the add-in's project, and what the maker supplies with the installation.
struct App {
    std::string Title = "QLVBAddIn";
    /// Folder of the add-in and of the files that come with it.
    std::string Path;
    std::string SupportWebAddress;
    std::string WebAddress;
    /// The page that the runtime is downloaded from.
    std::string RuntimeWebAddress;
    /// Where the maker shows examples, where developers talk to each other, and what there is for them.
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
    Clock& clock;
    Resources& resources;
    App app;
};

} // namespace fernwick

// Commands that concern the installation or the user, not a project.
#include "Apps/fernwick/command_line/verb_line.h"

namespace cli {

namespace {

/// The desktop program replaces this one, so the common options do not apply.
void defineWorkbench(CLI::App& app, Raw& raw) {
    auto& workbench = *app.add_subcommand("workbench", "Open the desktop program");
    workbench.footer("Example:\n  fernwick workbench AddressBook.vbp");
    workbench.callback([&raw] {
        raw.options.verb = "workbench";
        raw.run = runWorkbench;
    });
    workbench.add_option("PROJECT", raw.options.project, "Project or group file to open");
}

void defineDevices(CLI::App& app, Raw& raw) {
    auto& devices = addVerb(app, raw, "devices", runDevices, "List the devices and manage My Devices",
                            "fernwick devices add PalmOS-DragonBall\n  "
                            "fernwick devices set LinuxHandheld-ARM Host=192.168.1.20 User=me");
    devices.add_option("ACTION", raw.options.action, "list (default), add, remove or set")
        ->check(CLI::IsMember({"list", "add", "remove", "set"}));
    devices.add_option("OPERANDS", raw.options.operands,
                       "add KEY... | remove KEY... | set KEY NAME=VALUE..., where NAME is Host, Port, User, KeyFile, "
                       "Folder or KnownHosts");
}

} // namespace

void defineToolVerbs(CLI::App& app, Raw& raw) {
    defineWorkbench(app, raw);
    auto& explain = addVerb(app, raw, "explain", runExplain, "Explain messages and how to resolve them",
                            "fernwick explain 1300 2999", Result::Pages);
    explain.add_option("NUMBER", raw.options.operands, "Message numbers (default: list all messages)");
    defineDevices(app, raw);
    addVerb(app, raw, "doctor", runDoctor, "Check the installation and report how to fix what is not usable",
            "fernwick doctor");
}

} // namespace cli

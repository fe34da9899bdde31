// Commands that concern the installation or the user, not a project.
#include "Apps/fernwick/command_line/usage_errors.h"
#include "Apps/fernwick/command_line/verb_line.h"

namespace cli {

namespace {

/// A command whose output is that of another program, so the common options do not apply.
CLI::App& addPlainVerb(CLI::App& app, Raw& raw, const char* name, RunVerb run, const char* purpose,
                       const std::string& example) {
    auto& verb = *app.add_subcommand(name, purpose);
    verb.footer("Example:\n  " + example);
    verb.callback([&raw, name, run] {
        raw.options.verb = name;
        raw.run = run;
    });
    return verb;
}

void defineCompletion(CLI::App& app, Raw& raw) {
    auto& completion = addPlainVerb(app, raw, "completion", runCompletion, "Print the completion script for a shell",
                                    "fernwick completion bash >~/.local/share/bash-completion/completions/fernwick");
    completion.add_option("SHELL", raw.options.action, "bash, zsh or fish")
        ->required()
        ->check(oneOf("shell", {"bash", "zsh", "fish"}));
}

void defineWorkbench(CLI::App& app, Raw& raw) {
    auto& workbench = addPlainVerb(app, raw, "workbench", runWorkbench, "Open the desktop program",
                                   "fernwick workbench AddressBook.vbp");
    workbench.add_option("PROJECT", raw.options.project, "Project or group file to open");
}

void defineDevices(CLI::App& app, Raw& raw) {
    auto& devices = addVerb(app, raw, "devices", runDevices, "List the devices and manage My Devices",
                            "fernwick devices add PalmOS-DragonBall\n  "
                            "fernwick devices set LinuxHandheld-ARM Host=192.168.1.20 User=me");
    devices.add_option("ACTION", raw.options.action, "list (default), add, remove or set")
        ->check(oneOf("action", {"list", "add", "remove", "set"}));
    devices.add_option("OPERANDS", raw.options.operands,
                       "add KEY... | remove KEY... | set KEY NAME=VALUE..., where NAME is Host, Port, User, KeyFile, "
                       "Folder or KnownHosts");
}

} // namespace

void defineToolVerbs(CLI::App& app, Raw& raw) {
    defineWorkbench(app, raw);
    auto& explain = addVerb(app, raw, "explain", runExplain, "Explain messages and how to resolve them",
                            "fernwick explain 1300 2999", Result::Pages);
    explain.add_option("NUMBER", raw.options.operands,
                       "Message numbers, such as 1300 or FW1300 (default: list all messages)");
    defineDevices(app, raw);
    addVerb(app, raw, "doctor", runDoctor, "Check the installation and report how to fix what is not usable",
            "fernwick doctor");
    defineCompletion(app, raw);
}

} // namespace cli

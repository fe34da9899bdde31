// Commands that read and change what is stored.
#include "Apps/fernwick/command_line/usage_errors.h"
#include "Apps/fernwick/command_line/verb_line.h"
#include "Apps/fernwick/stored/stored_settings.h"
#include <fmt/format.h>

namespace cli {

namespace {

std::string settingNames() {
    std::string text;
    for (const auto& setting : storedSettings()) text += fmt::format("  {:<24}{}\n", setting.name, setting.meaning);
    text.pop_back();
    return text;
}

void defineSettings(CLI::App& app, Raw& raw) {
    auto& settings =
        addVerb(app, raw, "settings", runSettings, "List, get, set or reset the stored settings of a project",
                "fernwick settings set AddressBook.vbp TargetDevice PalmOS-DragonBall\n\nSettings:\n" + settingNames());
    settings.add_option("ACTION", raw.options.action, "list, get, set or reset")
        ->required()
        ->check(oneOf("action", {"list", "get", "set", "reset"}));
    settings.add_option("OPERANDS", raw.options.operands,
                        "list [PROJECT] | get [PROJECT] NAME | set [PROJECT] NAME VALUE... | reset [PROJECT] NAME");
    settings.add_flag("--all", raw.options.all, "Reset every setting");
    addCodePage(settings, raw);
    addNoWait(settings, raw);
    addDryRun(settings, raw);
    addAnswers(settings, raw);
}

void defineRegistry(CLI::App& app, Raw& raw) {
    auto& registry = addVerb(app, raw, "registry", runRegistry, "Read and write the registry store",
                             "fernwick registry get 'HKEY_CURRENT_USER\\SOFTWARE\\Quinloft\\AddinPrefs' ZoomWinState");
    registry.add_option("ACTION", raw.options.action, "get, set, delete, export or import")
        ->required()
        ->check(oneOf("action", {"get", "set", "delete", "export", "import"}));
    registry
        .add_option("OPERANDS", raw.options.operands,
                    "get KEY [NAME] | set KEY NAME VALUE | delete KEY [NAME] | export KEY | import FILE")
        ->required();
    registry.add_flag("--bare", raw.options.bare, "Print only the data of a value, without its name and type (get)");
    registry.add_flag("--utf16", raw.options.utf16, "Write the file as regedit does, in UTF-16 (export)");
    addDryRun(registry, raw);
}

void defineDependencies(CLI::App& app, Raw& raw) {
    auto& dependencies = addVerb(app, raw, "dependencies", runDependencies,
                                 "List, add or remove the files that are installed with a project",
                                 "fernwick dependencies AddressBook.vbp add data/cities.pdb logo.bmp");
    dependencies.add_option("OPERANDS", raw.options.operands, "[PROJECT] [list | add FILE... | remove FILE...]");
    addAnswers(dependencies, raw);
    addCodePage(dependencies, raw);
    addNoWait(dependencies, raw);
}

void defineSteps(CLI::App& app, Raw& raw) {
    auto& steps = addVerb(app, raw, "steps", runSteps, "List, add, remove or move the compile steps of a project",
                          "fernwick steps AddressBook.vbp add pre 'make icons'\n  fernwick steps move post 3 1");
    steps.add_option(
        "OPERANDS", raw.options.operands,
        "[PROJECT] [list [pre|post] | add pre|post COMMAND... | remove pre|post NUMBER... | move pre|post NUMBER TO]");
    addCodePage(steps, raw);
    addNoWait(steps, raw);
}

void defineTrust(CLI::App& app, Raw& raw) {
    auto& trust = addVerb(app, raw, "trust", runTrust, "Show, give or take back the trust to run compile steps",
                          "fernwick trust add projects/AddressBook");
    trust.add_option("OPERANDS", raw.options.operands, "[list] | [add | remove] FOLDER|PROJECT");
}

} // namespace

void defineStoringVerbs(CLI::App& app, Raw& raw) {
    defineSettings(app, raw);
    defineRegistry(app, raw);
    defineDependencies(app, raw);
    defineSteps(app, raw);
    defineTrust(app, raw);
}

} // namespace cli

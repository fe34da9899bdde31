#include "Apps/fernwick/options.h"
#include "Apps/fernwick/exit_status.h"
#include "Apps/fernwick/verbs/stored_settings.h"
#include "Apps/fernwick/version.h"
#include <CLI/CLI.hpp>
#include <fmt/format.h>

namespace cli {

namespace {

/// What CLI11 fills before it becomes Options.
struct Raw {
    Options options;
    std::string format = "text";
    std::vector<std::string> answers;
    bool yes = false, no = false, quiet = false, verbose = false;
};

constexpr const char* kExitText = "Exit status: 0 good, 1 errors in the project, 2 wrong use,\n"
                                  "3 trouble with the installation or the machine, 130 interrupted;\n"
                                  "of My Devices 4 some failed, 5 all failed.";

/// Help without the library's notes on types and exclusions.
class HelpFormatter : public CLI::Formatter {
public:
    std::string make_option_opts(const CLI::Option* option) const override {
        const auto type = option->get_type_name();
        const auto colon = type.find(':'); // what a check adds
        const bool bare = option->get_items_expected_max() == 0 || !option->nonpositional() || type == "TEXT";
        return bare ? std::string() : " " + type.substr(0, colon);
    }
    std::string make_usage(const CLI::App* app, std::string name) const override {
        return CLI::Formatter::make_usage(app, app->get_parent() ? "fernwick " + name : name);
    }
};

/// A verb whose result is a list of messages can give it as SARIF too, and one that documents them as Markdown.
enum class Result { Data, Messages, Pages };

void addCommon(CLI::App& verb, Raw& raw, Result result) {
    std::vector<std::string> formats{"text", "json"};
    if (result == Result::Messages) formats.push_back("sarif");
    if (result == Result::Pages) formats.push_back("markdown");
    verb.add_option("--format", raw.format,
                    "How the result is written: text" +
                        (formats.size() == 2 ? " or json" : ", json or " + formats.back()))
        ->check(CLI::IsMember(formats))
        ->type_name("FORMAT");
    verb.add_flag("-q,--quiet", raw.quiet, "Only errors and data");
    verb.add_flag("-v,--verbose", raw.verbose, "Say more of what is done");
}

void addAnswers(CLI::App& verb, Raw& raw) {
    verb.add_flag("-y,--yes", raw.yes, "Answer every question with yes");
    verb.add_flag("--no", raw.no, "Answer every question with no")->excludes("--yes");
    verb.add_option("--answer", raw.answers,
                    "Answer one question: NAME=yes|no|cancel|ok (names: fernwick help answers)")
        ->type_name("NAME=REPLY");
}

void addProject(CLI::App& verb, Raw& raw) {
    verb.add_option("PROJECT", raw.options.project, "Project file; may be left out where the folder holds one .vbp");
}

CLI::App& addVerb(CLI::App& app, Raw& raw, const char* name, const char* description, const std::string& example,
                  Result result = Result::Data) {
    auto* verb = app.add_subcommand(name, description);
    verb->footer(fmt::format("Example:\n  {}\n\n{}", example, kExitText));
    verb->callback([&raw, name] { raw.options.verb = name; });
    addCommon(*verb, raw, result);
    return *verb;
}

void addSteps(CLI::App& verb, Raw& raw) {
    verb.add_flag("--trust-steps", raw.options.trustSteps, "Run the project's compile steps without asking");
    verb.add_flag("--no-steps", raw.options.noSteps, "Run none of the project's compile steps")
        ->excludes("--trust-steps");
}

void addDevices(CLI::App& verb, Raw& raw, const char* without) {
    verb.add_option("--device", raw.options.device, fmt::format("Design target of the device{}", without))
        ->type_name("KEY");
    verb.add_flag("--my-devices", raw.options.myDevices, "All of My Devices, one after the other")
        ->excludes("--device");
}

void defineBuild(CLI::App& app, Raw& raw) {
    auto& build = addVerb(app, raw, "build", "Compile a project and validate it for its device",
                          "fernwick build AddressBook.vbp --depfile AddressBook.d", Result::Messages);
    addProject(build, raw);
    addAnswers(build, raw);
    build
        .add_option("--device", raw.options.device,
                    "Design target to validate for, and that of a project that has none")
        ->type_name("KEY");
    build.add_option("--depfile", raw.options.depfile, "Write what the image was made from in make's format")
        ->type_name("FILE");
    build.add_flag("-n,--dry-run", raw.options.dryRun, "Say what would be compiled and run, and write nothing")
        ->excludes("--format");
    addSteps(build, raw);

    auto& validate = addVerb(app, raw, "validate", "Check a project against what its device supports",
                             "fernwick validate AddressBook.vbp --forms --device PocketPC-SH3", Result::Messages);
    addProject(validate, raw);
    addAnswers(validate, raw);
    validate.add_option("--device", raw.options.device, "Design target to validate for (the project's own)")
        ->type_name("KEY");
    validate.add_flag("--forms", raw.options.forms, "Check names, properties, events and controls of each form too");
}

void defineDeploy(CLI::App& app, Raw& raw) {
    auto& package = addVerb(app, raw, "package", "Pack a project into a file that devices install from",
                            "fernwick package AddressBook.vbp\n  fernwick package --list "
                            "AddressBook.PalmOS-DragonBall.qlpkg",
                            Result::Messages);
    package.add_option("PROJECT", raw.options.project, "Project file, or with --list and --verify a package");
    addDevices(package, raw, " (the project's own)");
    package.add_flag("--list", raw.options.list, "List what is in a package");
    package.add_flag("--verify", raw.options.verify, "Check a package against its manifest")->excludes("--list");
    addAnswers(package, raw);
    addSteps(package, raw);

    auto& deploy = addVerb(app, raw, "deploy", "Send a project, or a package, to a device",
                           "fernwick deploy AddressBook.vbp --my-devices", Result::Messages);
    deploy.add_option("PROJECT", raw.options.project, "Project file or package");
    addDevices(deploy, raw, " (the project's own)");
    addAnswers(deploy, raw);
    addSteps(deploy, raw);

    auto& runtime = addVerb(app, raw, "install-runtime", "Install the Tamarik runtime on a device",
                            "fernwick install-runtime --device PalmOS-DragonBall", Result::Messages);
    addDevices(runtime, raw, "");
}

void defineReaders(CLI::App& app, Raw& raw) {
    auto& check = addVerb(app, raw, "check", "Parse source files or whole projects and report every error",
                          "fernwick check Form1.frm Module1.bas", Result::Messages);
    check.add_option("FILE", raw.options.operands, ".bas, .cls, .frm, .ctl, .vbp or .vbg files");
    check.add_option("--code-page", raw.options.codePage, "Code page of files that are not UTF-8 (1252)")
        ->type_name("N");

    auto& info = addVerb(app, raw, "info", "Tell what a project holds", "fernwick info AddressBook.vbp --verify");
    addProject(info, raw);
    info.add_flag("--verify", raw.options.verify, "Tell for each file whether writing it back would change a byte");

    auto& messages = addVerb(app, raw, "messages", "Print the messages that the last build stored in the project",
                             "fernwick messages AddressBook.vbp --format json", Result::Messages);
    addProject(messages, raw);

    addVerb(app, raw, "targets", "List the design targets that are installed", "fernwick targets");
    addVerb(app, raw, "version", "Print the version", "fernwick version");
}

std::string settingNames() {
    std::string text;
    for (const auto& setting : storedSettings()) text += fmt::format("  {:<24}{}\n", setting.name, setting.meaning);
    text.pop_back();
    return text;
}

void defineSettings(CLI::App& app, Raw& raw) {
    auto& settings =
        addVerb(app, raw, "settings", "List, get, set or reset the stored settings of a project",
                "fernwick settings set AddressBook.vbp TargetDevice PalmOS-DragonBall\n\nSettings:\n" + settingNames());
    settings.add_option("ACTION", raw.options.action, "list, get, set or reset")
        ->required()
        ->check(CLI::IsMember({"list", "get", "set", "reset"}));
    settings.add_option("OPERANDS", raw.options.operands, "[PROJECT] [NAME [VALUE]]");
    settings.add_flag("-n,--dry-run", raw.options.dryRun, "Say what would change, and write nothing")
        ->excludes("--format");
    addAnswers(settings, raw);
}

void defineRegistry(CLI::App& app, Raw& raw) {
    auto& registry = addVerb(app, raw, "registry", "Read and write the registry store",
                             "fernwick registry get 'HKEY_CURRENT_USER\\SOFTWARE\\Quinloft\\AddinPrefs' ZoomWinState");
    registry.add_option("ACTION", raw.options.action, "get, set, export or import")
        ->required()
        ->check(CLI::IsMember({"get", "set", "export", "import"}));
    registry
        .add_option("OPERANDS", raw.options.operands, "get KEY [NAME] | set KEY NAME VALUE | export KEY | import FILE")
        ->required();
    registry.add_flag("-n,--dry-run", raw.options.dryRun, "Say what would change, and write nothing")
        ->excludes("--format");
}

void defineDependencies(CLI::App& app, Raw& raw) {
    auto& dependencies = addVerb(app, raw, "dependencies", "List, add or remove the files that go along with a project",
                                 "fernwick dependencies AddressBook.vbp add data/cities.pdb logo.bmp");
    dependencies.add_option("OPERANDS", raw.options.operands, "[PROJECT] [list | add FILE... | remove FILE...]");
    addAnswers(dependencies, raw);
}

/// Verbs on what is installed rather than on a project.
void defineTools(CLI::App& app, Raw& raw) {
    auto& explain = addVerb(app, raw, "explain", "Tell what messages mean and what to do about them",
                            "fernwick explain 1300 2999", Result::Pages);
    explain.add_option("NUMBER", raw.options.operands, "Numbers of messages; without any all messages are listed");

    auto& devices = addVerb(app, raw, "devices", "List My Devices and say which they are",
                            "fernwick devices add PalmOS-DragonBall\n  "
                            "fernwick devices set LinuxHandheld-ARM Host=192.168.1.20 User=me");
    devices.add_option("ACTION", raw.options.action, "list, add, remove or set; list when it is left out")
        ->check(CLI::IsMember({"list", "add", "remove", "set"}));
    devices.add_option("OPERANDS", raw.options.operands,
                       "add KEY... | remove KEY... | set KEY NAME=VALUE... with the names Host, Port, User, KeyFile, "
                       "Folder and KnownHosts");

    addVerb(app, raw, "doctor", "Say what is installed and usable, and what sets the rest right", "fernwick doctor");
}

std::string answersHelp() {
    return "Questions, the answers that a script gets, and what they are about:\n\n" + describeQuestions() +
           "\nA form that is not listed is cancelled, a box answered with no or cancel.\n"
           "--yes and --no answer all of them, --answer NAME=REPLY one.\n";
}

Format formatNamed(std::string_view name) {
    if (name == "json") return Format::Json;
    if (name == "sarif") return Format::Sarif;
    return name == "markdown" ? Format::Markdown : Format::Text;
}

Parsed finish(Raw& raw) {
    Parsed parsed;
    auto& options = raw.options;
    options.format = formatNamed(raw.format);
    options.verbosity = raw.quiet ? Verbosity::Quiet : raw.verbose ? Verbosity::Verbose : Verbosity::Normal;
    if (raw.yes) options.answers.everything(Reply::Yes);
    if (raw.no) options.answers.everything(Reply::No);
    for (const auto& answer : raw.answers) {
        if (options.answers.add(answer)) continue;
        parsed.status = kWrongUse;
        parsed.error =
            fmt::format("fernwick: --answer {}: no such question or reply; see fernwick help answers", answer);
        return parsed;
    }
    parsed.options = std::move(options);
    parsed.run = true;
    return parsed;
}

std::string wrongVerb(const std::string& given, const CLI::ParseError& error) {
    if (given.empty()) return "which verb?";
    return given.front() == '-' ? error.what() : "no verb " + given;
}

Parsed ended(CLI::App& app, const CLI::ParseError& error, const std::string& given) {
    Parsed parsed;
    if (error.get_exit_code() == int(CLI::ExitCodes::Success)) {
        const CLI::App* asked = &app;
        for (const auto* verb : app.get_subcommands()) asked = verb;
        parsed.output = asked->help();
        return parsed;
    }
    parsed.status = kWrongUse;
    const auto verbs = app.get_subcommands();
    parsed.error =
        fmt::format("fernwick: {}\nSee fernwick {}--help.", verbs.empty() ? wrongVerb(given, error) : error.what(),
                    verbs.empty() ? "" : verbs.front()->get_name() + " ");
    return parsed;
}

Parsed helpOn(CLI::App& app, const std::string& topic) {
    Parsed parsed;
    if (topic.empty()) {
        parsed.output = app.help();
        return parsed;
    }
    if (topic == "answers") {
        parsed.output = answersHelp();
        return parsed;
    }
    for (const auto* verb : app.get_subcommands([&](const CLI::App* a) { return a->get_name() == topic; })) {
        parsed.output = verb->help();
        return parsed;
    }
    parsed.status = kWrongUse;
    parsed.error = fmt::format("fernwick: no help on {}; see fernwick --help", topic);
    return parsed;
}

} // namespace

Parsed parseCommandLine(int argc, const char* const* argv) {
    Raw raw;
    std::string topic;
    CLI::App app{"Turns Visual Basic projects into applications for handheld devices.", "fernwick"};
    app.formatter(std::make_shared<HelpFormatter>());
    app.footer(kExitText);
    app.require_subcommand(1);
    app.set_version_flag("--version", versionLine());
    defineBuild(app, raw);
    defineDeploy(app, raw);
    defineReaders(app, raw);
    defineSettings(app, raw);
    defineRegistry(app, raw);
    defineDependencies(app, raw);
    defineTools(app, raw);
    auto* help = app.add_subcommand("help", "Print help on a verb, or on answers");
    help->add_option("TOPIC", topic, "A verb, or answers");
    help->callback([&raw] { raw.options.verb = "help"; });

    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForVersion&) {
        Parsed parsed;
        parsed.output = versionLine() + "\n";
        return parsed;
    } catch (const CLI::ParseError& error) { return ended(app, error, argc > 1 ? argv[1] : ""); }
    if (raw.options.verb == "help") return helpOn(app, topic);
    return finish(raw);
}

} // namespace cli

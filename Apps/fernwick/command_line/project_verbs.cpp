// Building a project and sending it to devices.
#include "Apps/fernwick/command_line/verb_line.h"

namespace cli {

namespace {

constexpr const char* kOwnDevice = " (default: the project's own)";

void addDevices(CLI::App& verb, Raw& raw, const std::string& without) {
    verb.add_option("--device", raw.options.device, "Design target of the device" + without)->type_name("KEY");
    verb.add_flag("--my-devices", raw.options.myDevices, "All devices in My Devices, one after the other")
        ->excludes("--device");
}

void defineBuild(CLI::App& app, Raw& raw) {
    auto& build = addVerb(app, raw, "build", runBuild, "Compile a project and validate it for its device",
                          "fernwick build AddressBook.vbp --depfile AddressBook.d", Result::Messages);
    addProject(build, raw);
    addAnswers(build, raw);
    build
        .add_option("--device", raw.options.device,
                    "Design target to validate for; assigned to a project that has none")
        ->type_name("KEY");
    build.add_option("--depfile", raw.options.depfile, "Write the files that the image depends on as a make rule")
        ->type_name("FILE");
    build
        .add_option("--depfile-target", raw.options.depfileTarget,
                    "Target of this rule (default: the image, relative if the project was named so)")
        ->type_name("NAME")
        ->needs("--depfile");
    build.add_flag("-n,--dry-run", raw.options.dryRun, "Show what would be compiled and run, without writing anything");
    addOutput(build, raw);
    addCodePage(build, raw);
    addNoWait(build, raw);
    addSteps(build, raw);
}

void defineValidate(CLI::App& app, Raw& raw) {
    auto& validate = addVerb(app, raw, "validate", runValidate, "Check a project against what its device supports",
                             "fernwick validate AddressBook.vbp --forms --device PocketPC-SH3", Result::Messages);
    addProject(validate, raw);
    addAnswers(validate, raw);
    validate.add_option("--device", raw.options.device, std::string("Design target to validate for") + kOwnDevice)
        ->type_name("KEY");
    validate.add_flag("--forms", raw.options.forms,
                      "Also check the names, properties, events and controls of each form");
    validate.add_flag("--no-store", raw.options.noStore, "Store nothing in the project file");
    addCodePage(validate, raw);
    addNoWait(validate, raw);
}

void definePackage(CLI::App& app, Raw& raw) {
    auto& package = addVerb(app, raw, "package", runPackage, "Pack a project into a file that devices can install",
                            "fernwick package AddressBook.vbp\n  fernwick package --list "
                            "AddressBook.PalmOS-DragonBall.qlpkg",
                            Result::Messages);
    package.add_option("PROJECT", raw.options.project, "Project file; with --list or --verify a package file");
    addDevices(package, raw, kOwnDevice);
    package.add_flag("--list", raw.options.list, "List the contents of a package");
    package.add_flag("--verify", raw.options.verify, "Check a package against its manifest")->excludes("--list");
    addAnswers(package, raw);
    addOutput(package, raw);
    addCodePage(package, raw);
    addNoWait(package, raw);
    addSteps(package, raw);
}

void defineClean(CLI::App& app, Raw& raw) {
    auto& clean = addVerb(app, raw, "clean", runClean, "Delete the images and packages of a project",
                          "fernwick clean AddressBook.vbp");
    addProject(clean, raw);
    clean.add_option("--output", raw.options.output, "Folder that was given to build or package")->type_name("DIR");
    addCodePage(clean, raw);
    addNoWait(clean, raw);
    addDryRun(clean, raw);
}

void defineNew(CLI::App& app, Raw& raw) {
    auto& made = addVerb(app, raw, "new", runNew, "Create a project with its first form in a new folder",
                         "fernwick new projects/Game --device PalmOS-DragonBall");
    made.add_option("NAME", raw.options.project, "Folder of the project; its last part is the project's name")
        ->required();
    made.add_option("--device", raw.options.device, "Design target of the device")->type_name("KEY");
    made.add_option("--template", raw.options.templateName,
                    "Installed template or project file to begin with (default: Fernwick Project)")
        ->type_name("NAME");
}

void defineInit(CLI::App& app, Raw& raw) {
    auto& init = addVerb(app, raw, "init", runInit, "Make a Visual Basic project a Fernwick project",
                         "fernwick init AddressBook.vbp --device PocketPC-SH3");
    addProject(init, raw);
    init.add_option("--device", raw.options.device, "Design target of the device")->type_name("KEY");
    init.add_flag("-y,--yes", raw.yes, "Write without asking");
    addCodePage(init, raw);
    addNoWait(init, raw);
}

void defineConvert(CLI::App& app, Raw& raw) {
    auto& convert = addVerb(app, raw, "convert", runConvert, "Move a project to another device",
                            "fernwick convert AddressBook.vbp --to PocketPC-SH3 --output ../Pocket/AddressBook.vbp");
    addProject(convert, raw);
    convert.add_option("--to", raw.options.device, "Design target of the new device")->type_name("KEY")->required();
    convert.add_flag("--in-place", raw.options.inPlace, "Convert the project itself; its old file is kept as .bak");
    convert
        .add_option("--output", raw.options.newFile,
                    "Copy the project to this file in another folder and convert the "
                    "copy")
        ->type_name("FILE")
        ->excludes("--in-place");
    addAnswers(convert, raw);
    addCodePage(convert, raw);
    addNoWait(convert, raw);
    addDryRun(convert, raw);
}

void defineUpgrade(CLI::App& app, Raw& raw) {
    auto& upgrade = addVerb(app, raw, "upgrade", runUpgrade, "Bring a project of an old Fernwick over to this version",
                            "fernwick upgrade AddressBook.vbp");
    addProject(upgrade, raw);
    addCodePage(upgrade, raw);
    addNoWait(upgrade, raw);
}

void defineDeploy(CLI::App& app, Raw& raw) {
    auto& deploy = addVerb(app, raw, "deploy", runDeploy, "Send a project or a package to a device",
                           "fernwick deploy AddressBook.vbp --my-devices", Result::Messages);
    deploy.add_option("PROJECT", raw.options.project, "Project file or package file");
    addDevices(deploy, raw, kOwnDevice);
    addAnswers(deploy, raw);
    addOutput(deploy, raw);
    addCodePage(deploy, raw);
    addNoWait(deploy, raw);
    addSteps(deploy, raw);
}

void defineInstallRuntime(CLI::App& app, Raw& raw) {
    auto& runtime = addVerb(app, raw, "install-runtime", runInstallRuntime, "Install the Tamarik runtime on a device",
                            "fernwick install-runtime --device PalmOS-DragonBall", Result::Messages);
    addDevices(runtime, raw, "");
}

/// Returns the error text for what is not a count, "" for others.
std::string refusalOfBudget(const std::string& text) {
    const bool isCount = !text.empty() && text.size() <= 18 && text.find_first_not_of("0123456789") == text.npos &&
                         text.find_first_not_of('0') != text.npos;
    return isCount ? "" : text + " is not a number of instructions";
}

void addBudget(CLI::App& verb, Raw& raw, const char* what) {
    verb.add_option("--seed", raw.options.seed, "Seed of the random numbers")->type_name("N");
    verb.add_option("--budget", raw.options.budget, what)->type_name("N")->check(refusalOfBudget);
}

void defineRun(CLI::App& app, Raw& raw) {
    auto& run = addVerb(app, raw, "run", runRun, "Run a project of modules and classes from its Sub Main",
                        "fernwick run Report.vbp --budget 1000000");
    addProject(run, raw);
    run.add_option("ARGUMENT", raw.options.operands, "What the program finds in Command; after -- also options");
    run.add_option("--files", raw.options.files, "Folder of the program's files (default: in memory)")
        ->type_name("DIR");
    addBudget(run, raw, "Stop the program after about N instructions");
    run.add_flag("--leaks", raw.options.leaks, "Count the objects that exist at the end, by class");
    run.add_flag("--profile", raw.options.profile, "Show the procedures and lines that take the most instructions");
    addCodePage(run, raw);
}

void defineTest(CLI::App& app, Raw& raw) {
    auto& test = addVerb(app, raw, "test", runTest, "Run the Test... procedures in the Test... modules of a project",
                         "fernwick test Report.vbp --junit results.xml");
    addProject(test, raw);
    test.add_option("--filter", raw.options.filter, "Only tests whose Module.Procedure contains TEXT")
        ->type_name("TEXT");
    test.add_option("--junit", raw.options.junitFile, "Also write the results as JUnit XML")->type_name("FILE");
    addBudget(test, raw, "Stop each test after about N instructions");
    addCodePage(test, raw);
}

} // namespace

void defineProjectVerbs(CLI::App& app, Raw& raw) {
    defineBuild(app, raw);
    defineValidate(app, raw);
    defineRun(app, raw);
    defineTest(app, raw);
    defineClean(app, raw);
    defineNew(app, raw);
    defineInit(app, raw);
    defineConvert(app, raw);
    defineUpgrade(app, raw);
    definePackage(app, raw);
    defineDeploy(app, raw);
    defineInstallRuntime(app, raw);
}

} // namespace cli

// Commands that only read.
#include "Apps/fernwick/command_line/verb_line.h"

namespace cli {

namespace {

void defineCheck(CLI::App& app, Raw& raw) {
    auto& check = addVerb(app, raw, "check", runCheck, "Parse source files or whole projects and report all errors",
                          "fernwick check Form1.frm Module1.bas", Result::Messages);
    check.add_option("FILE", raw.options.operands,
                     ".bas, .cls, .frm, .ctl, .vbp or .vbg files, folders, or - for standard input");
    check.add_option("--name", raw.options.sourceName, "File name of standard input, whose extension says what it is")
        ->type_name("FILE");
    check.add_flag("--warn", raw.options.warnsOptionally, "Also warn of what is allowed but seldom meant");
    check
        .add_option("--migrate", raw.options.migrationDevice,
                    "Report what hinders the projects on this design target, and what to use instead")
        ->type_name("DEVICE")
        ->excludes("--name", "--warn");
    addCodePage(check, raw);
}

void defineInfo(CLI::App& app, Raw& raw) {
    auto& info =
        addVerb(app, raw, "info", runInfo, "Show the contents of a project", "fernwick info AddressBook.vbp --verify");
    addProject(info, raw);
    info.add_flag("--verify", raw.options.verify, "Check that every file would be written back byte for byte");
    addCodePage(info, raw);
}

void defineImage(CLI::App& app, Raw& raw) {
    auto& image = addVerb(app, raw, "image", runImage, "Show what a compiled application contains, and verify its code",
                          "fernwick image AddressBook.0000.qlx --code Module1.Main");
    image.add_option("IMAGE", raw.options.project, "Compiled application, a .qlx file")->required();
    image
        .add_option("PROCEDURE", raw.options.operands,
                    "Procedures to show, such as Main or Module1.Main (default: all)")
        ->needs(image.add_flag("--code", raw.options.code, "Show the instructions of procedures"));
}

} // namespace

void defineReadingVerbs(CLI::App& app, Raw& raw) {
    defineCheck(app, raw);
    defineInfo(app, raw);
    defineImage(app, raw);
    auto& messages = addVerb(app, raw, "messages", runMessages, "Print the messages stored by a project's last build",
                             "fernwick messages AddressBook.vbp --format json", Result::Messages);
    addProject(messages, raw);
    addCodePage(messages, raw);
    addVerb(app, raw, "recent", runRecent, "List the recent projects of the project manager", "fernwick recent");
    addVerb(app, raw, "targets", runTargets, "List the installed design targets", "fernwick targets");
    addVerb(app, raw, "version", runVersion, "Print the version", "fernwick version");
}

} // namespace cli

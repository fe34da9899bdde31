// What hinders projects on a device.
#include "Apps/common/machine.h"
#include "Apps/common/migration_text.h"
#include "Apps/fernwick/checks/source_list.h"
#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/options/refusal.h"
#include "Apps/fernwick/options/suggestions.h"
#include "Apps/fernwick/output/code_page_note.h"
#include "Apps/fernwick/output/json_output.h"
#include "Apps/fernwick/output/report.h"
#include "Apps/fernwick/run/interruption.h"
#include "Apps/fernwick/run/project_argument.h"
#include "Apps/fernwick/stored/source_check.h"
#include "Apps/fernwick/verbs/verbs.h"
#include "Basic/case_folding.h"
#include "Components/DesignTargetAccess/design_target_mgr.h"
#include "Host/system/environment.h"
#include <algorithm>
#include <fmt/format.h>

namespace cli {

namespace {

using Target = basic::Ref<designtargetaccess::IQLDesignTarget>;

Target targetNamed(const std::string& given, const std::string& installation) {
    designtargetaccess::DesignTargetMgr targets{installation};
    targets.Initialize();
    std::vector<std::string> keys;
    for (std::int32_t i = 0; i < targets.Count(); ++i) {
        auto target = targets.GetDesignTargetByIndex(std::int16_t(i));
        if (basic::equalNoCase(target->Key(), given)) return target;
        keys.push_back(target->Key());
    }
    const auto near = didYouMean(given, keys);
    throw Refusal(kWrongUse, fmt::format("{} is not an installed design target{}", given,
                                         near.empty() ? "; see fernwick targets" : near));
}

Json jsonOfPlace(const apps::Hindrance& each) {
    return {{"group", apps::headingOf(each.kind)},
            {"file", each.file},
            {"line", each.line},
            {"column", each.column},
            {"name", each.name},
            {"instead", each.instead}};
}

Json jsonOfError(const Message& message) {
    return {{"number", message.number},
            {"text", message.text},
            {"file", message.file},
            {"line", message.line},
            {"column", message.column}};
}

Json jsonOf(const apps::Migration& migration) {
    Json json{{"project", migration.project}, {"device", migration.device}, {"summary", apps::summaryOf(migration)}};
    json["groups"] = Json::array();
    for (const auto kind : apps::kHindranceKinds)
        if (const auto count = migration.count(kind); count > 0)
            json["groups"].push_back({{"group", apps::headingOf(kind)}, {"count", count}});
    json["places"] = Json::array();
    for (const auto& each : migration.hindrances) json["places"].push_back(jsonOfPlace(each));
    json["errors"] = Json::array();
    for (const auto& each : migration.errors) json["errors"].push_back(jsonOfError(messageOfDiagnostic(each)));
    return json;
}

Json jsonOf(const std::vector<apps::Migration>& migrations, const Report& report) {
    auto json = jsonResult("check");
    json["exitStatus"] = report.exitStatus;
    json["failure"] = report.failure.empty() ? Json(nullptr) : Json(report.failure);
    json["projects"] = Json::array();
    for (const auto& each : migrations) json["projects"].push_back(jsonOf(each));
    return json;
}

/// A place as a message of the catalogue.
Message messageOf(const apps::Hindrance& each) {
    const auto number =
        each.kind == apps::HindranceKind::Screen ? qltoolkit::Message::FormTooLarge : qltoolkit::Message::NotOnDevices;
    Message message;
    message.isError = false;
    message.number = int(number);
    message.text = fmt::format("{} {}.", qltoolkit::messageText(number, each.subject), each.instead);
    message.file = each.file;
    message.line = int(each.line);
    message.column = int(each.column);
    return message;
}

void addMessages(const apps::Migration& migration, Report& report) {
    for (const auto& each : migration.errors) report.messages.push_back(messageOfDiagnostic(each));
    for (const auto& each : migration.hindrances) report.messages.push_back(messageOf(each));
}

void print(const std::vector<apps::Migration>& migrations, const Report& report, const Options& options,
           Console& console) {
    if (options.format == Format::Json) return console.out(dumpJson(jsonOf(migrations, report)));
    if (options.format == Format::Sarif) return console.out(sarifOf(report, options.sourceRoot));
    std::string separator;
    for (const auto& each : migrations) {
        for (const auto& error : each.errors) console.err(textOf(messageOfDiagnostic(error), ""), Tone::Error);
        console.out(separator + apps::textOf(each));
        separator = "\n";
    }
}

SourceList projectsOf(const Options& options) {
    auto operands = options.operands;
    if (operands.empty()) operands.push_back(projectArgument(""));
    host::FileContents contents;
    auto list = listSources(operands, options.codePage, contents, nullptr);
    for (const auto& source : list.sources)
        if (source.isNamed)
            throw Refusal(kWrongUse, source.path + ": --migrate reports about projects; name a .vbp or .vbg file");
    return list;
}

} // namespace

int runMigration(const Options& options, Console& console) {
    const auto installation = apps::findInstallation(host::Environment{});
    const auto target = targetNamed(options.migrationDevice, installation);
    const auto list = projectsOf(options);
    apps::DescribedLibraries libraries{installation};
    Report report;
    report.verb = "check";
    report.device = target->Key();
    report.exitStatus = list.status;
    for (const auto& problem : list.problems) {
        report.failure += (report.failure.empty() ? "" : "\n") + problem;
        console.err("fernwick: " + problem, Tone::Error);
    }
    std::vector<apps::Migration> migrations;
    for (const auto& [project, cleanLines] : list.projects) {
        reportCodePage(console, project.path, project.page);
        const apps::MigrationDevice device{*target, project};
        migrations.push_back(
            apps::migrationOf(project, device, libraries, [](std::size_t, std::size_t) { checkInterrupt(); }));
        addMessages(migrations.back(), report);
        if (!migrations.back().errors.empty()) report.exitStatus = std::max<int>(report.exitStatus, kProjectErrors);
    }
    print(migrations, report, options, console);
    return report.exitStatus;
}

} // namespace cli

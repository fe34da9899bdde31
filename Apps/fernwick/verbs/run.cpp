#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/options/refusal.h"
#include "Apps/fernwick/output/file_errors.h"
#include "Apps/fernwick/output/json_output.h"
#include "Apps/fernwick/output/plural.h"
#include "Apps/fernwick/programs/profile.h"
#include "Apps/fernwick/programs/program_run.h"
#include "Apps/fernwick/programs/run_error_text.h"
#include "Apps/fernwick/verbs/verbs.h"
#include "Basic/runtime_error.h"
#include "Components/Tamarik/ports/folder_store.h"
#include <algorithm>
#include <fmt/format.h>
#include <iostream>
#include <map>

namespace cli {

namespace {

/// Few, so that also short programs have samples.
constexpr std::int64_t kSampledInstructions = 1009;

std::shared_ptr<tamarik::FileStore> storeIn(const std::string& folder) {
    std::shared_ptr<tamarik::FileStore> store;
    const auto err = basic::attempt([&] { store = std::make_shared<tamarik::FolderStore>(folder); });
    if (err.Number != 0) throw Refusal(statusOfOpening(err.Number), withFile(folder, err.Description));
    return store;
}

class Run {
public:
    Run(const Options& options, const ProjectProgram& program, Console& console)
        : options_(options), program_(program), console_(console), isText_(options.format == Format::Text) {}

    int run() {
        tamarik::MachineOptions settings;
        if (options_.seed) settings.seed = *options_.seed;
        settings.output = output();
        if (!options_.files.empty()) settings.surroundings.files = storeIn(options_.files);
        settings.surroundings.commandLine = tamarik::commandLineOf(options_.operands);
        const auto machine = machineFor(program_.program, std::move(settings));
        machine->start();
        state_ = runProgram(*machine, {options_.budget, options_.profile ? kSampledInstructions : 1'000'000}, [&] {
            if (options_.profile) profile_.sample(*machine);
            return canWrite_;
        });
        for (const auto& name : machine->livingObjects()) ++leaks_[name];
        isText_ ? printResult(*machine) : printJson(*machine);
        return status();
    }

private:
    tamarik::Output output() {
        tamarik::Output output;
        output.print = [this](std::string_view text) { print(text); };
        output.error = [this](std::string_view text) { console_.errLines(text, Tone::Plain); };
        output.inputLine = [](std::string& line) { return bool(std::getline(std::cin, line)); };
        return output;
    }

    void print(std::string_view text) {
        if (!isText_) {
            printed_ += text;
            return;
        }
        console_.data(text);
        if (text.find('\n') != text.npos) canWrite_ &= console_.flush();
    }

    [[nodiscard]] int status() const {
        if (state_ == tamarik::RunState::Failed) return kProjectErrors;
        return state_ == tamarik::RunState::Finished ? kGood : kMachineTrouble;
    }

    [[nodiscard]] std::string stopped() const {
        return fmt::format("fernwick: The program was stopped after {}.",
                           plural(static_cast<std::uint64_t>(options_.budget.value_or(0)), "instruction"));
    }

    void printResult(const tamarik::Machine& machine) {
        canWrite_ &= console_.flush();
        if (const auto& error = machine.error()) console_.errLines(textOf(*error, program_), Tone::Error);
        if (state_ == tamarik::RunState::StoppedByBudget && canWrite_) console_.err(stopped(), Tone::Error);
        if (options_.leaks && leaks_.empty()) console_.err("No objects exist at the end.");
        if (options_.leaks)
            for (const auto& [name, count] : leaks_)
                console_.err(fmt::format("At the end: {} of class {}", plural(count, "object"), name));
        if (options_.profile) console_.errLines(profile_.text(program_), Tone::Plain);
    }

    void printJson(const tamarik::Machine& machine) {
        auto json = jsonResult(options_.verb);
        json["exitStatus"] = status();
        json["output"] = printed_;
        json["error"] = machine.error() ? jsonOf(*machine.error(), program_) : Json(nullptr);
        json["stopped"] = state_ == tamarik::RunState::StoppedByBudget;
        if (options_.leaks) {
            json["leaks"] = Json::array();
            for (const auto& [name, count] : leaks_) json["leaks"].push_back({{"class", name}, {"objects", count}});
        }
        if (options_.profile) json["profile"] = profile_.json(program_);
        console_.out(dumpJson(json));
    }

    const Options& options_;
    const ProjectProgram& program_;
    Console& console_;
    bool isText_, canWrite_ = true;
    tamarik::RunState state_ = tamarik::RunState::Running;
    Profile profile_;
    std::map<std::string, std::uint64_t> leaks_;
    std::string printed_;
};

} // namespace

int runRun(const Options& options, Console& console) {
    Report report;
    const auto program = compileProgram(options, StartObject::SubMain, console, report);
    if (program.program) return Run{options, program, console}.run();
    printDocument(report, options, console);
    return report.exitStatus;
}

} // namespace cli

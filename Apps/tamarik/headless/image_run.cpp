#include "Apps/tamarik/headless/image_run.h"
#include "Basic/runtime_error.h"
#include "Components/Image/image.h"
#include "Components/Image/verify/verify.h"
#include "Components/Tamarik/functions/standard_natives.h"
#include "Components/Tamarik/machine/run_without_window.h"
#include "Components/Tamarik/ports/folder_store.h"
#include <fstream>
#include <iostream>
#include <iterator>
#include <limits>
#include <new>
#include <string_view>
#include <utility>

namespace headless {

namespace {

/// Why an image cannot run, with the status for it.
struct Refused {
    int status;
    std::string reason;
};

std::string readWhole(const std::string& path) {
    const Refused refused{kWrongUse, "The file cannot be read."};
    std::ifstream in(path, std::ios::binary);
    if (!in.is_open()) throw refused;
    try {
        return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    } catch (const std::ios_base::failure&) { throw refused; } // such as a folder
}

std::shared_ptr<const tamarik::Program> load(const std::string& path) {
    auto image = image::decode(readWhole(path));
    auto code = std::make_shared<image::CodeImage>(std::move(image.code));
    if (const auto problem = image::verify(*code))
        throw Refused{kMachineTrouble, "The compiled code is damaged: " + problem->text + "."};
    if (code->start == image::kNone) throw Refused{kProgramErrors, "No module has a Sub Main."};
    return std::make_shared<const tamarik::Program>(std::move(code), image.projectName.str());
}

void write(std::string_view text, std::FILE* to) { std::fwrite(text.data(), 1, text.size(), to); }

std::shared_ptr<tamarik::FileStore> storeIn(const std::string& folder) {
#ifdef __linux__
    try {
        return std::make_shared<tamarik::FolderStore>(folder);
    } catch (const basic::RuntimeError& error) {
        throw Refused{kMachineTrouble, "The folder " + folder + " cannot hold its files: " + error.Description + "."};
    }
#else
    throw Refused{kWrongUse, "This machine has no folder " + folder + "."};
#endif
}

} // namespace

ImageRun::ImageRun(const Arguments& arguments) : arguments_(arguments), natives_(tamarik::standardNatives()) {}

tamarik::MachineOptions ImageRun::options(std::FILE* errors) const {
    tamarik::MachineOptions options;
    options.usesSwitch = arguments_.usesSwitch;
    if (arguments_.seed) options.seed = *arguments_.seed;
    if (!arguments_.files.empty()) options.surroundings.files = storeIn(arguments_.files);
    options.surroundings.commandLine = tamarik::commandLineOf(arguments_.forProgram);
    options.output.print = [](std::string_view text) { write(text, stdout); };
    options.output.error = [errors](std::string_view text) { write(text, errors); };
    options.output.inputLine = [](std::string& line) { return bool(std::getline(std::cin, line)); };
    return options;
}

int ImageRun::runProgram(std::shared_ptr<const tamarik::Program> program, std::FILE* errors) const {
    tamarik::Machine machine(std::move(program), natives_, options(errors));
    machine.start();
    const auto state =
        tamarik::runWithoutWindow(machine, arguments_.budget.value_or(std::numeric_limits<std::int64_t>::max()));
    std::fflush(stdout);
    if (const auto& error = machine.error()) write(tamarik::textOf(*error) + "\n", errors);
    if (state == tamarik::RunState::StoppedByBudget)
        write("tamarik-headless: The program was stopped by its budget.\n", errors);
    if (state == tamarik::RunState::Failed) return kProgramErrors;
    return state == tamarik::RunState::Finished ? kGood : kMachineTrouble;
}

int ImageRun::run(const std::string& path, std::FILE* errors) {
    const auto refuse = [&](const std::string& reason, int status) {
        write("tamarik-headless: " + path + ": " + reason + "\n", errors);
        return status;
    };
    try {
        return runProgram(load(path), errors);
    } catch (const Refused& refused) {
        return refuse(refused.reason, refused.status);
    } catch (const tamarik::Refusal& refusal) {
        return refuse(refusal.what(), kProgramErrors);
    } catch (const basic::RuntimeError& error) {
        return refuse(error.Description, kMachineTrouble);
    } catch (const std::bad_alloc&) { return refuse("There is not enough memory.", kMachineTrouble); }
}

} // namespace headless

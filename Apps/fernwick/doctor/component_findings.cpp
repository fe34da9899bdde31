// The compiler, the design targets and their pipes.
#include "Add-in/platform/compiler.h"
#include "Add-in/platform/pipes.h"
#include "Apps/fernwick/devices/device_place.h"
#include "Apps/fernwick/doctor/findings.h"
#include "Components/DesignTargetAccess/design_target_mgr.h"
#include "Components/QLPipe/package/runtime_bundle.h"
#include <fmt/format.h>

namespace cli {

namespace {

using designtargetaccess::DesignTargetMgr;
using designtargetaccess::IQLDesignTarget;

/// Returns why an object of the class cannot be created; "" if it can.
template <class T>
std::string creationProblem(Machine& machine, const std::string& progId, basic::Ref<T>& made) {
    const auto err = basic::attempt([&] { made = basic::cast<T>(machine.classes().CreateObject(progId)); });
    if (err.Number != 0) return fmt::format("{}: {}", err.Description, progId);
    return made ? std::string() : progId + " does not have the expected interface";
}

std::string targetSubject(const IQLDesignTarget& target) { return "target " + target.Key(); }

std::string correctTarget(const char* what) {
    return fmt::format("Correct {} in its file in targets/, or reinstall Fernwick.", what);
}

std::string pipeProblem(Machine& machine, const IQLDesignTarget& target) {
    basic::Ref<qlpipe::IQLPipeValidation> validation;
    const auto pipe = target.RequiredPipeProgID();
    const auto problem = creationProblem(machine, pipe + ".Validation", validation);
    if (!problem.empty()) return fmt::format("its pipe {} cannot be created: {}", pipe, problem);
    bool supported = false;
    const auto err = basic::attempt([&] { supported = validation->IsDeviceSupported(target.Key()); });
    if (err.Number != 0) return fmt::format("its pipe {} fails: {}", pipe, err.Description);
    if (!supported) return fmt::format("its pipe {} does not support it", pipe);
    basic::Ref<qlpipe::IQLPipe> transfer;
    const auto unsendable = creationProblem(machine, pipe + ".Pipe", transfer);
    return unsendable.empty() ? unsendable : fmt::format("its pipe {} cannot send anything: {}", pipe, unsendable);
}

std::string missingTemplate(Machine& machine, const IQLDesignTarget& target) {
    for (const auto& path :
         {target.VBPTemplate(), target.FormTemplate(), target.ModuleTemplate(), target.ClassModuleTemplate()})
        if (!path.empty() && !machine.platform().files.FileExists(path)) return path;
    return {};
}

std::string unregisteredTavlets(Machine& machine, const IQLDesignTarget& target) {
    std::vector<std::string> clsids, progIds, categories;
    target.GetSupportedTavlets(clsids, progIds, categories);
    std::string names;
    for (std::size_t i = 0; i < clsids.size(); ++i)
        if (machine.classes().ProgIDFromCLSID(clsids[i]).empty()) names += (names.empty() ? "" : ", ") + progIds[i];
    return names;
}

/// The runtime for the target's devices: its version, or what is wrong with it.
struct ShippedRuntime {
    std::string version, problem;
};

ShippedRuntime shippedRuntime(Machine& machine, const IQLDesignTarget& target) {
    const auto* family = pipeFamilyOf(target.RequiredPipeProgID());
    if (!family) return {};
    try {
        return {qlpipe::runtimeBundle(machine.installation(), family->name).version, {}};
    } catch (const qlpipe::TransferError& error) { return {{}, error.text}; }
}

void examineTarget(Machine& machine, const IQLDesignTarget& target, Findings& to) {
    const auto subject = targetSubject(target);
    if (target.PlatformName().empty() || target.RequiredPipeProgID().empty()) {
        to.push_back(goodFinding(subject, "is not offered, because it has no platform or no pipe"));
        return;
    }
    const auto before = to.size();
    if (const auto problem = pipeProblem(machine, target); !problem.empty())
        to.push_back(troubleFinding(subject, problem, correctTarget("its pipe or key")));
    if (const auto path = missingTemplate(machine, target); !path.empty())
        to.push_back(
            troubleFinding(subject, fmt::format("its template {} is missing", path), correctTarget("the name")));
    if (const auto names = unregisteredTavlets(machine, target); !names.empty())
        to.push_back(troubleFinding(subject, "these controls are not registered: " + names,
                                    "Reinstall Fernwick: registry/tavlets.reg registers them."));
    const auto runtime = shippedRuntime(machine, target);
    if (!runtime.problem.empty())
        to.push_back(
            troubleFinding(subject, runtime.problem, "Reinstall Fernwick: the runtimes are in VB Toolkit/Runtime."));
    if (to.size() == before)
        to.push_back(
            goodFinding(subject, fmt::format("pipe {}, runtime {}", target.RequiredPipeProgID(), runtime.version)));
}

} // namespace

void examineCompiler(Machine& machine, Findings& to) {
    basic::Ref<qltoolkit::CompilerFactory> factory;
    auto problem = creationProblem(machine, "QLToolkit.CompilerFactory", factory);
    if (problem.empty()) problem = basic::attempt([&] { (void)factory->CreateCompiler(); }).Description;
    to.push_back(problem.empty() ? goodFinding("compiler", "QLToolkit")
                                 : troubleFinding("compiler", problem, "Reinstall Fernwick."));
}

void examineTargets(Machine& machine, Findings& to) {
    DesignTargetMgr targets{machine.installation()};
    targets.Initialize();
    for (const auto& problem : targets.problems())
        to.push_back(troubleFinding("target file", problem.text(), "Correct the line, or reinstall the file."));
    for (std::int16_t i = 0; i < targets.Count(); ++i) examineTarget(machine, *targets.GetDesignTargetByIndex(i), to);
    if (targets.Count() == 0)
        to.push_back(troubleFinding("targets", "none are installed",
                                    "Reinstall Fernwick: without a design target nothing can be compiled."));
}

} // namespace cli

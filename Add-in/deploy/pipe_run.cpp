#include "Add-in/deploy/pipe_run.h"
#include "Add-in/core/error_source.h"
#include "Add-in/deploy/PipeForm.h"
#include "Add-in/deploy/deploy_texts.h"
#include <fmt/format.h>

namespace fernwick {

using namespace fmt::literals;

void PipeRun::showBeginning(const char* animation, const char* status) {
    dialog_.MousePointer(vbHourglass);
    pipeServices_.platform.loop.DoEvents();
    basic::Suppressed quietly; // the run works without its animation
    dialog_.aniSend.Visible(true);
    quietly([&] { dialog_.aniSend.Open(pipeServices_.install.installed(animation)); });
    quietly([&] { dialog_.aniSend.Play(Animation::kForever); });
    dialog_.AddToProgress(status);
}

basic::ErrObject PipeRun::createPipe(const std::string& pipeClassName) {
    const std::string progId = pipeClassName + ".Pipe";
    const auto error = basic::attempt([&] {
        pipe_ = basic::cast<qlpipe::IQLPipe>(pipeServices_.platform.classes.CreateObject(progId));
        if (!pipe_) throw basic::RuntimeError(basic::kTypeMismatch);
    });
    if (error.Number != 0)
        pipeServices_.platform.interaction.MsgBox(fmt::format(deploy_texts::kNoPipe, "pipe"_a = progId), vbCritical,
                                                  deploy_texts::kTitle);
    return error;
}

std::string PipeRun::runErrorLine(const basic::ErrObject& error) const {
    return fmt::format(deploy_texts::kErrorIn, "source"_a = errorSource(error.Source, pipeServices_.platform.app),
                       "number"_a = error.Number, "description"_a = error.Description);
}

std::string PipeRun::pipeErrorLine(std::int32_t errorNumber, const std::string& message) {
    return fmt::format(deploy_texts::kPipeError, "message"_a = message, "number"_a = errorNumber);
}

std::string PipeRun::location(const char* procedure) const { return std::string(dialog_.typeName()) + "." + procedure; }

void PipeRun::SendProgress(const std::string& status, std::int32_t percent) {
    Procedure here{pipeServices_.errors, location("IQLPipeEvents_SendProgress")};
    dialog_.prgbarUpdate.Value(float(percent));
    dialog_.AddToProgress(status);
    here([&] { pipeServices_.platform.loop.DoEvents(); });
}

} // namespace fernwick

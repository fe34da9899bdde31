#include "Add-in/deploy/PipeForm.h"

namespace fernwick {

PipeForm::PipeForm(Interaction& user, PipeRun& run) : Form(user), pipeRun_(run) { ControlBox = false; }

void PipeForm::Form_Activate() {
    if (runStarted_) return;
    runStarted_ = true;
    pipeRun_.run();
}

void PipeForm::AddToProgress(const std::string& text) {
    stsUpdate.SimpleText(text);
    stsUpdate.Refresh();
}

void PipeForm::showEnd(PictureBox& outcome) {
    aniSend.Stop();
    aniSend.Visible(false);
    outcome.Visible(true);
}

} // namespace fernwick

#pragma once
// The dialog of a pipe's run.
#include "Add-in/deploy/pipe_run.h"
#include "Add-in/platform/controls.h"

namespace fernwick {

/// A modal progress form without buttons. Its run begins in its first Activate event and unloads it.
class PipeForm : public Form {
public:
    StatusBar stsUpdate{this, "stsUpdate"};
    ProgressBar prgbarUpdate{this, "prgbarUpdate"};
    Animation aniSend{this, "aniSend"};
    PictureBox finishedImg{this, "finishedImg", "finished", false};
    PictureBox failedImg{this, "failedImg", "failed", false};

    /// Whether the pipe succeeded in the last run; empty if the run ended before the pipe was called.
    std::optional<bool> LastResult() const { return pipeRun_.lastResult(); }

    /// The form shows only the latest line.
    void AddToProgress(const std::string& text);
    /// Replaces the animation by the picture of the outcome.
    void showEnd(PictureBox& outcome);

protected:
    PipeForm(Interaction& user, PipeRun& run);

    void Form_Activate() override;
    void Form_Unload() override { pipeRun_.release(); }

    PipeRun& pipeRun_;
    bool runStarted_ = false;
};

} // namespace fernwick

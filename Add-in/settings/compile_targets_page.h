#pragma once
// The page "Compile Targets", which no node of the tree leads to. Its controls are shown and do nothing.
#include "Add-in/platform/combo_box.h"
#include "Add-in/platform/frame.h"
#include "Add-in/platform/text_box.h"

namespace fernwick {

struct CompileTargetsPage {
    explicit CompileTargetsPage(Form* form)
        : fraCompileTargets(form, "fraCompileTargets", false),
          lblCompileTargets(form, "lblCompileTargets", "CompileTargets"),
          lstAvailableTargets(form, "lstAvailableTargets"),
          lstCommonLibraries(form, "lstCommonLibraries"),
          txtFormWidth(form, "txtFormWidth", true),
          txtFormHeight(form, "txtFormHeight", true),
          cboColorDepth(form, "cboColorDepth"),
          btnPlatformHelp(form, "btnPlatformHelp", "Help", this, &CompileTargetsPage::btnPlatformHelp_Click) {}

    Frame fraCompileTargets;
    Label lblCompileTargets;
    ListBox lstAvailableTargets, lstCommonLibraries;
    TextBox txtFormWidth, txtFormHeight;
    ComboBox cboColorDepth;
    CommandButton btnPlatformHelp;

private:
    void btnPlatformHelp_Click() {}
};

} // namespace fernwick

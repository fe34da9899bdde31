#pragma once
#include "Add-in/core/connect/connections.h"
#include "Apps/common/machine.h"
#include "Apps/workbench/base/notice_bar.h"
#include "Apps/workbench/base/run.h"

namespace workbench {

/// Shows where a project, a package or the runtime went, once the form that sent it has closed.
class TransferNotice {
public:
    /// All of them outlive this.
    TransferNotice(apps::Machine& machine, fernwick::Connections& addIns, NoticeBar& bar, Run run)
        : machine_(machine), addIns_(addIns), bar_(bar), run_(std::move(run)) {}

    /// Called for each form of the add-in that has closed.
    void formClosed(const fernwick::Form& form);

private:
    void sent(const qlpipe::TransferRecord& record);
    NoticeBar::Offer showFolder(const QString& folder);
    NoticeBar::Offer installRuntime(const std::string& device);
    QString nameOf(const std::string& device);

    apps::Machine& machine_;
    fernwick::Connections& addIns_;
    NoticeBar& bar_;
    Run run_;
};

} // namespace workbench

#include "Add-in/lifecycle/frmDesignTargetConverterWarning.h"
#include "Add-in/lifecycle/converter_texts.h"

namespace fernwick {

using namespace converter_texts;

frmDesignTargetConverterWarning::frmDesignTargetConverterWarning(const ConversionServices& services, const AddIn& addIn,
                                                                 frmDesignTargetConverter& converter)
    : Form(services.user), services_(services), addIn_(addIn), converter_(converter) {
    Caption.design(kWarningCaption);
    cmdRunConverter.Default = true;
    cmdCancelOpen.Cancel = true;
}

void frmDesignTargetConverterWarning::Form_Load() {
    Procedure here{services_.errors, "frmDesignTargetConverterWarning.Form_Load"};
    openAnyway_ = converterFinished_ = false;
    newProjectFile_.clear();
    lblDescription.Caption(kOtherConfiguration);
    here([&] { lblDescription.Caption(description()); });
}

std::string frmDesignTargetConverterWarning::description() {
    clsQLProject project{services_.projects};
    project.VBProject(addIn_.gVBInstance->ActiveVBProject());
    const auto target = services_.devices.devices.GetDesignTarget(project.TargetDevice());
    return target ? kUnsupportedBefore + target->PlatformName() + kUnsupportedAfter : kOtherConfiguration;
}

void frmDesignTargetConverterWarning::cmdOpenProject_Click() {
    openAnyway_ = true;
    Hide();
}

void frmDesignTargetConverterWarning::cmdRunConverter_Click() {
    Procedure here{services_.errors, "frmDesignTargetConverterWarning.cmdRunConverter_Click"};
    Hide();
    here([&] { converter_.ShowModal(); });
    const bool isConverted = converter_.projectConverted();
    if (isConverted) {
        newProjectFile_ = converter_.projectFile();
        openAnyway_ = !converter_.doReloadProject();
    }
    converter_.Unload();
    converterFinished_ = isConverted;
    if (!isConverted) here([&] { ShowModal(); });
}

} // namespace fernwick

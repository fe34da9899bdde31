#pragma once
// Lets the user convert the active project to another device.
#include "Add-in/lifecycle/project_conversion.h"
#include "Add-in/platform/controls.h"

namespace fernwick {

class frmDesignTargetConverter final : public Form {
public:
    frmDesignTargetConverter(const ConversionServices& services, const AddIn& addIn);
    const char* typeName() const override { return "frmDesignTargetConverter"; }

    ListBox lstDesignTargets{this, "lstDesignTargets", &frmDesignTargetConverter::lstDesignTargets_Click,
                             &frmDesignTargetConverter::btnOK_Click};
    CheckBox chkOverwrite{this, "chkOverwrite", "&Overwrite the current project"};
    CommandButton btnOK{this, "btnOK", "OK", &frmDesignTargetConverter::btnOK_Click};
    CommandButton btnCancel{this, "btnCancel", "Cancel", &frmDesignTargetConverter::btnCancel_Click};
    PictureBox Picture1{this, "Picture1", "devices"};

    /// Keys of the list's rows.
    const std::vector<std::string>& targetKeys() const { return targetKeys_; }
    bool projectConverted() const { return conversion_.last().projectConverted; }
    const std::string& projectFile() const { return conversion_.last().projectFile; }
    bool doReloadProject() const { return conversion_.last().doReloadProject; }
    const std::string& newPlatform() const { return conversion_.last().newPlatform; }
    /// The copy of the old project file, of a conversion in place; "" for none.
    const std::string& backup() const { return conversion_.last().backup; }
    ProjectConversion& conversion() { return conversion_; }

protected:
    void Form_Load() override;

private:
    void lstDesignTargets_Click() { btnOK.Enabled(true); }
    void btnOK_Click();
    void btnCancel_Click();
    std::string AskForNewProjectName(const std::string& initDir, const std::string& fileName,
                                     const std::string& oldFolder);
    std::string chosenFile(Procedure& here, CommonDialog& dialog);
    void remarkOnGroup(Procedure& here, const basic::Ref<vbide::VBProject>& project);
    bool isSameFolder(const std::string& a, const std::string& b) const;

    ConversionServices services_;
    const AddIn& addIn_;
    ProjectConversion conversion_;
    std::vector<std::string> targetKeys_;
};

} // namespace fernwick

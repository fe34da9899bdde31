#pragma once
// Asks what to do with a project whose device is not available here.
#include "Add-in/lifecycle/frmDesignTargetConverter.h"

namespace fernwick {

class frmDesignTargetConverterWarning final : public Form {
public:
    frmDesignTargetConverterWarning(const ConversionServices& services, const AddIn& addIn,
                                    frmDesignTargetConverter& converter);
    const char* typeName() const override { return "frmDesignTargetConverterWarning"; }

    Label lblDescription{this, "lblDescription"};
    Label lblOptions{this, "lblOptions", "You have the following options:"};
    CommandButton cmdOpenProject{this, "cmdOpenProject", "Open Project",
                                 &frmDesignTargetConverterWarning::cmdOpenProject_Click};
    CommandButton cmdRunConverter{this, "cmdRunConverter", "Run Converter",
                                  &frmDesignTargetConverterWarning::cmdRunConverter_Click};
    CommandButton cmdCancelOpen{this, "cmdCancelOpen", "Cancel", &frmDesignTargetConverterWarning::cmdCancelOpen_Click};

    /// Whether the project stays open. False if the user closes the form.
    bool openAnyway() const { return openAnyway_; }
    /// The project that replaces it; "" for none.
    const std::string& newProjectFile() const { return newProjectFile_; }
    bool converterFinished() const { return converterFinished_; }

protected:
    void Form_Load() override;

private:
    void cmdOpenProject_Click();
    void cmdRunConverter_Click();
    void cmdCancelOpen_Click() { Hide(); }
    std::string description();

    ConversionServices services_;
    const AddIn& addIn_;
    frmDesignTargetConverter& converter_;
    bool openAnyway_ = false, converterFinished_ = false;
    std::string newProjectFile_;
};

} // namespace fernwick

#pragma once
// Shows forms and asks the user. Implemented by front ends.
#include <string>

namespace fernwick {

class Form;

enum VbMsgBoxResult : int { vbOK = 1, vbCancel = 2, vbYes = 6, vbNo = 7 };

/// Buttons, icon and default button of a box, added up.
enum VbMsgBoxStyle : int {
    vbOKOnly = 0,
    vbOKCancel = 1,
    vbYesNoCancel = 3,
    vbYesNo = 4,
    vbCritical = 16,
    vbQuestion = 32,
    vbExclamation = 48,
    vbInformation = 64,
    vbDefaultButton2 = 256,
};

/// The questions that a front end can answer without the user.
enum class Question {
    FailedStep,
    ConvertForms,
    CopyFile,
    MissingFile,
    EditDependencies,
    DeployWithErrors,
    ReplaceFile,
    InvalidReferences,
    ConvertedFiles,
};

enum MousePointerShape : int { vbDefault = 0, vbArrow = 1, vbHourglass = 11 };

inline constexpr int kCancelWasSelected = 32755;

/// CommonDialog.Flags, added up.
enum FileDialogFlags : int {
    cdlOFNHideReadOnly = 0x4,
    cdlOFNAllowMultiselect = 0x200,
    cdlOFNPathMustExist = 0x800,
    cdlOFNFileMustExist = 0x1000,
    cdlOFNExplorer = 0x80000,
};

/// The part of MSComDlg.CommonDialog that the add-in uses.
struct CommonDialog {
    bool CancelError = false;
    std::string DialogTitle;
    std::string InitDir;
    std::string FileName;
    std::string DefaultExt;
    /// Pairs of description and pattern, all separated by "|".
    std::string Filter;
    int FilterIndex = 1;
    /// A sum of FileDialogFlags.
    int Flags = 0;
    /// Maximum length of ShowOpen's FileName in bytes.
    int MaxFileSize = 256;
};

class Interaction {
public:
    virtual ~Interaction() = default;

    /// Runs the form's first Activate and returns when the form is hidden or unloaded. An error that leaves a handler
    /// ends the form and is thrown here; it never passes through a window system's event loop.
    virtual void showModal(Form& form) = 0;
    /// `buttons` is a sum of VbMsgBoxStyle.
    virtual int MsgBox(const std::string& text, int buttons, const std::string& title) = 0;
    /// A MsgBox whose question a front end can recognise.
    virtual int ask(Question, const std::string& text, int buttons, const std::string& title) {
        return MsgBox(text, buttons, title);
    }
    /// Sets FileName to the chosen path. With CancelError, Cancel is error 32755.
    virtual void ShowSave(CommonDialog& dialog) = 0;
    /// Sets FileName to the chosen path; for several files, to their folder and names separated by NUL characters.
    /// After Cancel it is unchanged; with CancelError, Cancel is error 32755.
    virtual void ShowOpen(CommonDialog& dialog) = 0;
    virtual void MessageBeep(int type) = 0;
    /// Sets the cursor outside of forms: LoadCursor and SetCursor.
    virtual void SetCursor(MousePointerShape shape) = 0;
    /// Stops and resumes the drawing of the host's main window (WM_SETREDRAW). Does nothing in a front end without a
    /// window.
    virtual void SetRedraw(bool) {}
};

} // namespace fernwick

#pragma once
// Undoing and redoing any change of a form's description.
#include "Host/model/forms/designer_state.h"

namespace host {

/// The lines of a form at one moment.
struct FormSnapshot {
    std::shared_ptr<DesignerState> state;
    std::vector<std::string> before; ///< the lines before the form's Begin
    struct Block {
        std::shared_ptr<FormBlock> block;
        FormBlock::Content content;
    };
    std::vector<Block> blocks; ///< each before the blocks within it
};
FormSnapshot snapshotOf(const basic::Ref<vbide::VBForm>& form);

/// The difference between two moments of one form. It restores exact lines and raises no ItemAdded, so that an add-in
/// leaves returning controls as they were. What others changed in the meantime stays.
class FormChange {
public:
    FormChange(const FormSnapshot& before, const FormSnapshot& after);

    bool isEmpty() const { return blocks_.empty(); }
    /// Whether any of its blocks is in the form.
    bool hasEffect() const;
    /// Error 440 if the form has been removed.
    void undo() const { apply(true); }
    void redo() const { apply(false); }

private:
    struct Block {
        std::shared_ptr<FormBlock> block;
        FormBlock::Content before, after;
    };
    void apply(bool back) const;

    std::weak_ptr<DesignerState> state_;
    std::vector<std::string> linesBefore_, linesAfter_;
    std::vector<Block> blocks_;
};

} // namespace host

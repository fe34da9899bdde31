#pragma once
// The list of names at the cursor.
#include "Apps/workbench/assist/project_insight.h"
#include "Components/QLToolkit/insight/completion.h"

namespace workbench {

class CodeInput;

/// Shows the names that begin with what was typed, and again after each key, until one is accepted or none is left. A long
/// list stays as it is and scrolls to the first of them.
class NameOffers final : public QObject {
public:
    /// All of them outlive this.
    NameOffers(CodeInput& text, ProjectInsight::Component component, ProjectInsight& insight);

    /// Shows the list on request; completes a name that is the only one.
    void request(bool completesSingle);
    /// Handles a character that was typed.
    void typed(QChar character);
    /// After a key that removes characters.
    void removed();
    bool isShown() const;
    /// Accepts the selected name, or closes the list if the user has not chosen any.
    void acceptChosen();
    void close();

private:
    bool ask(qltoolkit::Wanted wanted);
    void show(bool completesSingle = false);
    bool staysShown(const QByteArray& begun) const;
    QByteArray partial() const;

    CodeInput& text_;
    ProjectInsight::Component component_;
    ProjectInsight& insight_;
    qltoolkit::Offer offer_;
    /// The list that was shown last: the names that begin like this.
    struct Shown {
        std::string begun;
        int count = 0;
    } shown_;
};

} // namespace workbench

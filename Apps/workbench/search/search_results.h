#pragma once
// The dock with the results of a search.
#include "Apps/workbench/base/run.h"
#include "Apps/workbench/code/code_windows.h"
#include "Apps/workbench/search/search_run.h"
#include "Host/model/host.h"
#include <QTimer>
#include <set>

class QLabel;
class QProgressBar;
class QPushButton;

namespace workbench {

class ResultList;

class SearchResults final : public QWidget {
public:
    /// Host and code windows outlive this.
    SearchResults(host::Host& host, CodeWindows& code, Run run);

    /// The texts of the summary. %1 is what is looked for, %2 and %3 are the numbers of lines and modules.
    struct Summary {
        QString what;
        const char *running, *stopped;
    };
    /// Replaces the results by those of a search that runs elsewhere, calls found() and ended(), and can be stopped.
    void begin(Summary summary, std::function<void()> stop);
    /// Adds matches, of which there can be too many. Counts the modules that were searched.
    void found(std::vector<Match> matches, int searched, int all);
    void ended(const char* text);

    /// Replaces the results by those of this search.
    void search(const CodePattern& pattern, const QString& what, std::vector<Stretch> where);
    void stop();
    bool isSearching() const { return stopRun_ != nullptr; }

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void showSummary(const char* text);
    void updateChanged();

    CodeWindows& code_;
    QLabel* summary_;
    QProgressBar* progress_;
    QPushButton* stop_;
    ResultList* list_;
    Summary texts_{};
    std::function<void()> stopRun_; ///< null if no search runs
    SearchRun run_;
    /// Modules that were edited since their lines were last looked for.
    std::set<std::weak_ptr<vbide::VBComponent>, std::owner_less<>> changed_;
    QTimer rest_;
    std::vector<fernwick::Subscription> watches_;
};

} // namespace workbench

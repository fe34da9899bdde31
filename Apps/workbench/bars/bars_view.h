#pragma once
// Draws the host's menus and toolbars, including those of add-ins.
#include "Apps/workbench/bars/shared_letters.h"
#include "Apps/workbench/bars/toolbar_docking.h"
#include "Apps/workbench/base/run.h"
#include "Apps/workbench/base/theme.h"
#include "Host/model/bars/bars.h"
#include <QIcon>
#include <QKeySequence>
#include <QTimer>
#include <functional>
#include <map>
#include <memory>
#include <optional>

class QAction;
class QMainWindow;
class QMenu;
class QWidget;

namespace workbench {

/// What the desktop adds to a command of the host's bars.
struct CommandLook {
    QKeySequence key, otherKey;
    /// Shown if the command has no face in the model.
    QIcon icon;
};

class BarsView {
public:
    using LookOf = std::function<CommandLook(int id)>;

    /// The window and the bars outlive this.
    BarsView(host::Bars& bars, QMainWindow& window, Run run, LookOf lookOf);
    ~BarsView();
    BarsView(const BarsView&) = delete;

    /// Draws the model at once, without waiting for Qt's loop.
    void draw();
    /// Gives the commands the keys that lookOf returns now.
    void showKeys();
    /// Moves the toolbars to their places in the model, after something other than the model moved them.
    void placeToolBars() { docking_.placeAgain(); }

private:
    /// What draws a control, as long as the host has it.
    struct Drawn {
        std::unique_ptr<QAction> button;
        std::unique_ptr<QMenu> popup;
        /// The command's key, for its tip.
        QKeySequence key;
        /// The face and theme that the icon was made for.
        std::optional<std::pair<std::string, Theme>> looks;
        bool current = false;
    };

    void fill(QWidget& widget, const host::Bar& bar);
    void fillMenuBar(const host::Bar& bar);
    QAction* actionOf(const std::shared_ptr<host::BarControl>& control);
    void make(Drawn& drawn, const std::shared_ptr<host::BarControl>& control);
    void makePopup(Drawn& drawn, const std::shared_ptr<host::BarControl>& control);
    void makeButton(Drawn& drawn, const std::shared_ptr<host::BarControl>& control);
    void setKeys(Drawn& drawn, const host::BarControl& control);
    void showButton(Drawn& drawn, const host::BarControl& control);
    void dropGone();

    host::Bars& bars_;
    QMainWindow& window_;
    Run run_;
    LookOf lookOf_;
    ToolBarDocking docking_;
    SharedLetters letters_;
    std::map<std::weak_ptr<host::BarControl>, Drawn, std::owner_less<>> drawn_;
    QTimer redraw_;
    fernwick::Subscription changed_;
};

} // namespace workbench

#pragma once
#include <QObject>

class QAction;
class QMenu;
class QMenuBar;

namespace workbench {

/// Opens menus that share a letter in a fixed order: Alt and the letter opens the first of them, and the letter alone
/// moves on to the next one. Qt would open them in turn, so that the same keys lead to different menus.
class SharedLetters final : public QObject {
public:
    explicit SharedLetters(QMenuBar& bar);
    /// Called for each menu of the bar, any number of times.
    void follow(QMenu& menu);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QList<QAction*> menusWith(int letter) const;
    bool openFirst(int letter);
    bool moveOn(const QMenu& from, int letter);

    QMenuBar& bar_;
};

} // namespace workbench

#pragma once
// Draws the animations of progress forms.
#include <QElapsedTimer>
#include <QLabel>
#include <QTimer>
#include <vector>

namespace workbench {

/// The frames of an uncompressed AVI film with a palette, of which entry 0 is transparent; none for what is no such film.
std::vector<QPixmap> framesOf(const QByteArray& avi);

class MovingPicture final : public QLabel {
public:
    explicit MovingPicture(QWidget* parent);

    /// A file that can't be read shows nothing.
    void open(const QString& path);
    /// So many times, -1 for ever, 0 not at all.
    void play(int times);
    /// For work that leaves no time to Qt's loop: draws the frame that is due by now.
    void drawDue();

private:
    void showDue();

    std::vector<QPixmap> frames_;
    int times_ = 0;
    QElapsedTimer since_;
    QTimer turn_;
    std::size_t shown_ = 0;
};

} // namespace workbench

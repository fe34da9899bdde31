#pragma once
// Draws the animations of progress forms.
#include <QElapsedTimer>
#include <QLabel>
#include <QTimer>
#include <vector>

namespace workbench {

/// Returns the frames of an uncompressed AVI with a palette; entry 0 is transparent. Empty for any other file.
std::vector<QPixmap> framesOf(const QByteArray& avi);

class MovingPicture final : public QLabel {
public:
    explicit MovingPicture(QWidget* parent);

    /// Shows nothing if the file cannot be read.
    void open(const QString& path);
    /// Plays the animation this many times: -1 repeats it, 0 stops it.
    void play(int times);
    /// Draws the frame that is due now. For work that does not return to Qt's loop.
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

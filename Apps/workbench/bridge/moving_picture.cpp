#include "Apps/workbench/bridge/moving_picture.h"
#include <QFile>
#include <QtEndian>

namespace workbench {

namespace {

constexpr int kMillisecondsAFrame = 100;
constexpr int kChunkHead = 8, kListHead = 12, kBitmapFileHead = 14;

/// A frame is a bitmap without the file header.
QImage imageOfFrame(const QByteArray& format, const QByteArray& pixels) {
    QByteArray bitmap(kBitmapFileHead, '\0');
    bitmap[0] = 'B';
    bitmap[1] = 'M';
    const auto begin = quint32(kBitmapFileHead + format.size());
    qToLittleEndian(quint32(begin + pixels.size()), bitmap.data() + 2);
    qToLittleEndian(begin, bitmap.data() + 10);
    auto image = QImage::fromData(bitmap + format + pixels, "BMP");
    if (image.colorCount() > 0) image.setColor(0, Qt::transparent);
    return image;
}

} // namespace

std::vector<QPixmap> framesOf(const QByteArray& avi) {
    std::vector<QPixmap> frames;
    QByteArray format;
    for (qsizetype at = avi.startsWith("RIFF") ? kListHead : avi.size(); at + kChunkHead <= avi.size();) {
        const auto id = avi.mid(at, 4);
        const auto size = qsizetype(qFromLittleEndian<quint32>(avi.constData() + at + 4));
        if (id == "LIST") {
            at += kListHead;
            continue;
        }
        const auto content = avi.mid(at + kChunkHead, size);
        if (id == "strf") format = content;
        if (id == "00db" && content.size() == size) frames.push_back(QPixmap::fromImage(imageOfFrame(format, content)));
        at += kChunkHead + size + size % 2;
    }
    std::erase_if(frames, [](const QPixmap& frame) { return frame.isNull(); });
    return frames;
}

MovingPicture::MovingPicture(QWidget* parent) : QLabel(parent) {
    turn_.setInterval(kMillisecondsAFrame);
    connect(&turn_, &QTimer::timeout, this, [this] { showDue(); });
}

void MovingPicture::open(const QString& path) {
    frames_.clear();
    QFile file(path);
    if (!path.isEmpty() && file.open(QIODevice::ReadOnly)) frames_ = framesOf(file.readAll());
    setPixmap(frames_.empty() ? QPixmap() : frames_.front());
}

void MovingPicture::play(int times) {
    times_ = times;
    since_.start();
    if (times == 0)
        turn_.stop();
    else
        turn_.start();
}

void MovingPicture::drawDue() {
    const auto before = shown_;
    showDue();
    if (shown_ != before) repaint();
}

void MovingPicture::showDue() {
    if (times_ == 0 || frames_.empty()) return;
    const auto turn = std::size_t(since_.elapsed() / kMillisecondsAFrame);
    if (times_ > 0 && turn >= frames_.size() * std::size_t(times_)) return play(0);
    shown_ = turn % frames_.size();
    setPixmap(frames_[shown_]);
}

} // namespace workbench

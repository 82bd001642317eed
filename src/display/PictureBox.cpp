#include "display/PictureBox.h"

#include "platform/Controls.h"
#include "platform/Twips.h"

#include <QMouseEvent>
#include <QPainter>

namespace lumen {

PictureBox::PictureBox(const QString& name, QWidget* parent)
    : QWidget(parent)
{
    setObjectName(name);
    setAttribute(Qt::WA_OpaquePaintEvent, false);
}

const QImage& PictureBox::picture() const
{
    if (read_) {
        picture_ = read_();
        read_ = nullptr;
    }
    return picture_;
}

void PictureBox::adopt(const QSize& size)
{
    pictureSize_ = size;
    if (autoSize_ && !size.isEmpty())
        resize(size);
    update();
}

void PictureBox::setPicture(const QImage& picture)
{
    picture_ = picture;
    read_ = nullptr;
    adopt(picture.size());
}

void PictureBox::setLazyPicture(const QSize& size, std::function<QImage()> read)
{
    picture_ = QImage();
    read_ = std::move(read);
    adopt(size);
}

void PictureBox::clearPicture()
{
    picture_ = QImage();
    read_ = nullptr;
    pictureSize_ = QSize();
    update();
}

void PictureBox::paintPicture(const QImage& source, const QRect& target)
{
    QImage canvas(size().expandedTo(QSize(1, 1)), QImage::Format_RGB32);
    canvas.fill(palette().color(QPalette::Window));
    QPainter painter(&canvas);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(target, source);
    painter.end();
    setPicture(canvas);
}

void PictureBox::setBackColor(qint32 bgr)
{
    lumen::setBackColor(this, bgr);
}

void PictureBox::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Window));
    if (hasPicture() && !rect().isEmpty())
        painter.drawImage(QPoint(0, 0), picture());
}

void PictureBox::mousePressEvent(QMouseEvent* event)
{
    Q_EMIT mouseDown(event->button(), pixelsToTwips(int(event->position().x())),
                     pixelsToTwips(int(event->position().y())));
}

void PictureBox::mouseReleaseEvent(QMouseEvent* event)
{
    Q_EMIT mouseUp(event->button(), pixelsToTwips(int(event->position().x())),
                   pixelsToTwips(int(event->position().y())));
}

void PictureBox::mouseMoveEvent(QMouseEvent* event)
{
    Q_EMIT mouseMove(event->buttons(), pixelsToTwips(int(event->position().x())),
                     pixelsToTwips(int(event->position().y())));
}

} // namespace lumen

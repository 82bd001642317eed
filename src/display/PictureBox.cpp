#include "display/PictureBox.h"

#include "platform/Controls.h"
#include "platform/Twips.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPalette>

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
    seen_ = QImage();
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
    seen_ = QImage();
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

QImage PictureBox::drawable(const QImage& image) const
{
    // Drawing happens on opaque 32-bit pixels; a picture with transparency
    // is laid on the box's ground first, as it is seen.
    if (!image.hasAlphaChannel())
        return image.convertToFormat(QImage::Format_RGB32);
    QImage opaque(image.size(), QImage::Format_RGB32);
    opaque.fill(palette().color(QPalette::Window));
    QPainter painter(&opaque);
    painter.drawImage(QPoint(0, 0), image);
    return opaque;
}

void PictureBox::setAutoRedraw(bool on)
{
    if (on && !seen_.isNull()) {
        picture_ = seen_;
        read_ = nullptr;
        seen_ = QImage();
    }
    autoRedraw_ = on;
}

QImage& PictureBox::surface()
{
    QImage& target = autoRedraw_ ? picture_ : seen_;
    if (target.isNull() || target.format() != QImage::Format_RGB32) {
        if (!hasPicture()) {
            // An empty box is drawn on over its own area.
            QImage ground(size().expandedTo(QSize(1, 1)), QImage::Format_RGB32);
            ground.fill(palette().color(QPalette::Window));
            target = ground;
        } else {
            target = drawable(picture());
        }
        if (autoRedraw_) {
            read_ = nullptr;
            pictureSize_ = picture_.size();
        }
    }
    return target;
}

void PictureBox::Refresh()
{
    seen_ = QImage();
    update();
}

QImage PictureBox::Image() const
{
    return seen_.isNull() ? picture() : seen_;
}

void PictureBox::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Window));
    if (rect().isEmpty())
        return;
    if (!seen_.isNull())
        painter.drawImage(QPoint(0, 0), seen_);
    else if (hasPicture())
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

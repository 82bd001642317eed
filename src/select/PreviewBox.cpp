#include "select/PreviewBox.h"

#include "select/Preview.h"

#include <QPainter>

namespace lumen {

PreviewBox::PreviewBox(const QString& name, QWidget* parent)
    : QWidget(parent)
{
    setObjectName(name);
    setAutoFillBackground(true);
}

void PreviewBox::setPicture(const QImage& picture)
{
    picture_ = picture;
    update();
}

QRect PreviewBox::pictureRect() const
{
    return placement_ ? placement_(picture_.size(), size()) : previewRect(picture_.size(), size());
}

void PreviewBox::setPlacement(Placement placement)
{
    placement_ = std::move(placement);
    update();
}

void PreviewBox::paintEvent(QPaintEvent*)
{
    if (picture_.isNull())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(pictureRect(), picture_);
}

} // namespace lumen

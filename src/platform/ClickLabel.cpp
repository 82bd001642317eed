#include "platform/ClickLabel.h"

#include "platform/Twips.h"

#include <QMouseEvent>

namespace lumen {

ClickLabel::ClickLabel(const QString& name, const QString& text, QWidget* parent)
    : QLabel(text, parent)
{
    setObjectName(name);
    setCursor(Qt::PointingHandCursor);
}

void ClickLabel::mouseReleaseEvent(QMouseEvent* event)
{
    const QPointF at = event->position();
    Q_EMIT mouseUp(event->button(), pixelsToTwips(int(at.x())), pixelsToTwips(int(at.y())));
    if (event->button() == Qt::LeftButton && rect().contains(at.toPoint()))
        Q_EMIT clicked();
    QLabel::mouseReleaseEvent(event);
}

} // namespace lumen

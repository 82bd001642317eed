#include "platform/FormMessage.h"

#include "platform/Colors.h"
#include "platform/Controls.h"
#include "platform/Twips.h"

#include <QLabel>
#include <QVBoxLayout>

namespace lumen {

FormMessage::FormMessage(QWidget* parent)
    : QWidget(parent, Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint)
{
    setObjectName(QStringLiteral("FormMessage"));
    setAttribute(Qt::WA_ShowWithoutActivating);
    Label1 = named<QLabel>(QStringLiteral("Label1"), this);
    Label1->setMargin(3);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->addWidget(Label1);
    setBackColor(this, 0xC0FFFF); // pale yellow, a hint's colour
    setForeColor(Label1, 0);
}

void FormMessage::showAt(int leftTwips, int topTwips, const QString& text)
{
    Label1->setText(text);
    adjustSize();
    move(twipsToPixels(leftTwips), twipsToPixels(topTwips));
    show();
    raise();
}

QString FormMessage::text() const
{
    return Label1->text();
}

} // namespace lumen

#include "platform/NoteForm.h"

#include "platform/Controls.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace lumen {

NoteForm::NoteForm(const QString& name, const QString& title, const QString& note, QWidget* parent)
    : FormBase(name, parent, Qt::Tool)
{
    setWindowTitle(title);
    LabelNote = named<QLabel>(QStringLiteral("LabelNote"), note, this);
    LabelNote->setTextInteractionFlags(Qt::TextSelectableByMouse);
    CommandClose = commandButton(QStringLiteral("CommandClose"), QStringLiteral("閉じる"), this);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(14, 12, 14, 10);
    column->addWidget(LabelNote);
    column->addWidget(CommandClose, 0, Qt::AlignRight);
    connect(CommandClose, &QPushButton::clicked, this, [this] { unload(); });
}

} // namespace lumen

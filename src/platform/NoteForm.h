// NoteForm: a small window that shows a note and a button that closes it.
#pragma once

#include "platform/FormBase.h"

class QLabel;
class QPushButton;

namespace lumen {

class NoteForm : public FormBase {
    Q_OBJECT
public:
    NoteForm(const QString& name, const QString& title, const QString& note, QWidget* parent);

    QLabel* LabelNote;
    QPushButton* CommandClose;
};

} // namespace lumen

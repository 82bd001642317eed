// FormFukuMan: a note on where players for films and 3D pictures can be had.
// On this system they come from the distribution's packages, so the note
// names them; nothing is started or fetched from here.
#pragma once

#include "platform/FormBase.h"

class QLabel;
class QPushButton;

namespace lumen {

class FormFukuMan : public FormBase {
    Q_OBJECT
public:
    explicit FormFukuMan(QWidget* parent = nullptr);

    QLabel* LabelNote;
    QPushButton* CommandClose;

    static QString noteText();
};

} // namespace lumen

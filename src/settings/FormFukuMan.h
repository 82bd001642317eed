// FormFukuMan: a note on where players for films and 3D pictures can be had.
// On this system they come from the distribution's packages, so the note
// names them; nothing is started or fetched from here.
#pragma once

#include "platform/NoteForm.h"

namespace lumen {

class FormFukuMan : public NoteForm {
    Q_OBJECT
public:
    explicit FormFukuMan(QWidget* parent = nullptr);
    static QString noteText();
};

} // namespace lumen

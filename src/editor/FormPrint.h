// FormPrint: a note on printing the picture on show. This program prints
// nothing itself: the picture goes to the picture editor (the button 画像
// of the entry window), which prints it.
#pragma once

#include "platform/NoteForm.h"

namespace lumen {

class FormPrint : public NoteForm {
    Q_OBJECT
public:
    explicit FormPrint(QWidget* parent = nullptr);
    static QString noteText();
};

} // namespace lumen

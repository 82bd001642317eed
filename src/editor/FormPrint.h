// FormPrint: a note on printing the picture on show. This program prints
// nothing itself: the picture goes to the picture editor (the button 画像
// of the entry window), which prints it.
#pragma once

#include "platform/FormBase.h"

class QLabel;
class QPushButton;

namespace lumen {

class FormPrint : public FormBase {
    Q_OBJECT
public:
    explicit FormPrint(QWidget* parent = nullptr);

    QLabel* LabelNote;
    QPushButton* CommandClose;

    static QString noteText();
};

} // namespace lumen

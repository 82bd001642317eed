// What FormSetCommand and FormWordSet share: a settings file edited as one
// whole text in Text1, a button that stores it (green while it works) and
// one that puts the file's default back, and the exit.
#pragma once

#include "platform/FormBase.h"

#include <functional>

class QPlainTextEdit;
class QPushButton;

namespace lumen {

class VeroProcedure_Basical;

class WordTextForm : public FormBase {
    Q_OBJECT
public:
    QPlainTextEdit* Text1;
    QPushButton* CommandDo;
    QPushButton* CommandExit;

protected:
    WordTextForm(const QString& name, const QString& resetName, VeroProcedure_Basical& basics,
                 QWidget* parent);

    QPushButton* resetButton() const { return reset_; }
    // Text1 with CR LF line ends, and back.
    QString text() const;
    void setText(const QString& text);
    // Text1 takes the edit text's font of the settings record.
    void applyRecordFont();
    // CommandDo: the button green while `store` runs; a store that couldn't
    // write `file` says so. Then a burst of beeps where asked, a short wait,
    // and the button back.
    void storeGreen(const QString& file, const std::function<bool()>& store, bool burst);

    VeroProcedure_Basical& basics_;

private:
    QPushButton* reset_;
};

} // namespace lumen

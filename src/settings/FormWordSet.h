// FormWordSet: ExtType.dat (the 17 extension slots of the file selection)
// or SerchWordList.txt (its search words) edited as one text. WordSetExt or
// WordSetSearch of the program state, set by the caller, says which.
#pragma once

#include "settings/WordTextForm.h"

namespace lumen {

class FormWordSet : public WordTextForm {
    Q_OBJECT
public:
    explicit FormWordSet(VeroProcedure_Basical& basics, QWidget* parent = nullptr);

    // The file selection, wired by the application: the captions of its
    // Check1 boxes, and its CommandSerch_Click (which also writes the
    // default search words where the file is missing).
    struct Links {
        std::function<void(const QStringList& slotNames)> extensionCaptions;
        std::function<void()> commandSerch;
    } links;

    QPushButton* CommandReset;

    void CommandDo_Click();
    void CommandReset_Click();

protected:
    void Form_Load() override;

private:
    QString file() const; // the file the window is about
};

} // namespace lumen

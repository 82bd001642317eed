// FormSetFontAndColor: edits one group of font and colour fields of the
// settings record (the comment, the text pane, the small controls, or the
// picture's ground), shows each change on the show at once, and stores the
// group's values as a named set that the option words load.
//
// The caller chooses the group with a mode word: setMode(), or the window's
// "mode" property (so that windows which don't know this class can open it).
#pragma once

#include "platform/FormBase.h"
#include "settings/SetTargets.h"

class QComboBox;
class QLabel;
class QPushButton;

namespace lumen {

class VeroProcedure_Basical;

class FormSetFontAndColor : public FormBase {
    Q_OBJECT
public:
    FormSetFontAndColor(VeroProcedure_Basical& basics, SetTargets targets,
                        QWidget* parent = nullptr);

    // "TEXT", "EDITTEXT", "PICTBACKCOL"; anything else means the comment.
    void setMode(const QString& mode);
    QString SetKind; // the caller's mode word
    SetGroup group() const { return setGroupOf(SetKind); }

    QComboBox* Combo1;
    QPushButton* CommandSaveAs;
    QPushButton* CommandFont;
    QLabel* LabelFont;
    QPushButton* CommandForeColor;
    QLabel* LabelForeColor;
    QPushButton* CommandBackColor;
    QLabel* LabelBackColor;
    QLabel* LabelSample;
    QPushButton* CommandReset;
    QPushButton* CommandExit;

    void CommandSaveAs_Click();
    void CommandFont_Click();
    void CommandForeColor_Click();
    void CommandBackColor_Click();
    void CommandReset_Click();
    void CommandExit_Click();

protected:
    void Form_Load() override;
    bool event(QEvent* event) override;

private:
    FontColorSet current() const;
    void take(const FontColorSet& set); // into the record and onto the show
    void chooseColor(QString FontColorSet::*color);
    void showSet();
    void layOut();

    VeroProcedure_Basical& basics_;
    SetTargets targets_;
};

} // namespace lumen

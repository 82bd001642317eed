// FormPastComment ("画像にコメント貼り付け"): prints lines of text into the
// picture itself, in the font of the comment window's label, where the
// overlay comment LabelComment stands; the result goes to the ring of
// temporary pictures. While it is open the main window's paste command is
// green, and each page turned to gets its own comment pasted.
#pragma once

#include "platform/FormBase.h"

class QLineEdit;
class QPlainTextEdit;
class QPushButton;

namespace lumen {

class FormMain;
class FormRegistry;
class VeroProcedure_Basical;

class FormPastComment : public FormBase {
    Q_OBJECT
public:
    FormPastComment(VeroProcedure_Basical& basics, FormMain& main, FormRegistry& forms,
                    QWidget* parent = nullptr);

    QPlainTextEdit* Text1;
    QLineEdit* TextPastCommentPitch;
    QPushButton* CommandSetFont;
    QPushButton* CommandSetText;
    QPushButton* CommandPast;

    // Prints Text1's lines into Picture2, `pitch` more than the font's line
    // spacing apart (in Picture2's scale).
    void WriteCommentOnPic(qint32 pitch);

    void CommandPast_Click();
    void CommandSetFont_Click();
    void CommandSetText_Click();

protected:
    void Form_Load() override;
    void Form_Unload(bool& cancel) override;

private:
    void layOut();
    QStringList linesOfTempFile(const QString& programPath) const;

    VeroProcedure_Basical& basics_;
    FormMain& main_;
    FormRegistry& forms_;
};

} // namespace lumen

// FormRichText: the page template in a text box, its replacement words
// coloured, with commands to make the default, check, delete, save and open.
// Only the template in the program's folder counts for a site.
#pragma once

#include "platform/FormBase.h"

class QGroupBox;
class QPushButton;
class QTextEdit;

namespace lumen {

class FormMakeHTML;
class VeroProcedure_Basical;

class FormRichText : public FormBase {
    Q_OBJECT
public:
    FormRichText(VeroProcedure_Basical& basics, FormMakeHTML& owner, QWidget* parent = nullptr);

    QGroupBox* Frame1;
    QTextEdit* RText1;
    QPushButton* CommandMakeSample;
    QPushButton* CommandCheck;
    QPushButton* CommandDelSampleHtml;
    QPushButton* CommandSave;
    QPushButton* CommandOpen;

    // RText1's text with CR LF line ends, as files hold it.
    void setText(const QString& text);
    QString text() const;

    void CommandMakeSample_Click();
    void CommandCheck_Click();
    void CommandDelSampleHtml_Click();
    void CommandSave_Click();
    void CommandOpen_Click();

protected:
    void Form_Load() override;
    void Form_Unload(bool& cancel) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    VeroProcedure_Basical& basics_;
    FormMakeHTML& owner_;
};

} // namespace lumen

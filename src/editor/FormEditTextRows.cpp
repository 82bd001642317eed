// FormEditText: the editor text in the selection's Text1, the selected row,
// the rebuild, the two word sets and the ways back to standard text.
#include "editor/FormEditText.h"

#include "fileops/VeroProcedure_Basical.h"
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "platform/FileSystem.h"
#include "platform/FormRegistry.h"
#include "platform/Twips.h"
#include "platform/UserDialogs.h"
#include "select/FormSelectFile.h"
#include "select/Preview.h"
#include "select/PreviewBox.h"
#include "select/RichTextBox.h"
#include "state/ProgramState.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <QTimer>

namespace lumen {
namespace {

constexpr qint32 kColorResting = 0x00C0C0;
constexpr int kHintShownMs = 3000;

QString boxText(QString text)
{
    return text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

} // namespace

void FormEditText::TextConvertToEditorText()
{
    if (isVisible()) {
        // The text is editor text already: read as a list it would come
        // apart at every comment's line break.
        raise();
        activateWindow();
        return;
    }
    const auto text = model_.TextConvertToEditorText(select_.Text1->text());
    if (!text)
        return; // TempFile.txt couldn't be written; the user has been told
    rowCountShown();
    select_.Text1->setText(*text);
    if (!isVisible())
        placeBesideSelection();
    showForm();
    select_.Text1->setSelStart(1);
    Text1_Click();
}

void FormEditText::showEditorText(const QString& text, std::optional<int> selStart)
{
    RichTextBox* box = select_.Text1;
    box->setText(text);
    if (selStart)
        box->setSelStart(*selStart);
    else
        box->moveCursor(QTextCursor::End);
}

void FormEditText::rowCountShown()
{
    LabelNom->setText(QString::number(basics_.state().EditRowCount));
}

void FormEditText::clearItems()
{
    for (QCheckBox* box :
         {CheckMain, CheckWith, CheckDelay, CheckComment, CheckTextComment, CheckOption})
        box->setChecked(false);
    for (QLineEdit* field : {TextFileName, TextSubFileName, TextWaitTime, TextCommentFileName})
        field->clear();
    TextText->clear();
    TextBigger->clear();
    ComboCommandList->setEditText(QString());
    OptionNone->setChecked(true);
}

void FormEditText::Text1_Click()
{
    load(); // a click may come while the window is put away: its fields still follow
    const QScopedValueRollback filling(filling_, true);
    clearItems();
    RichTextBox* box = select_.Text1;
    const EditRowView view = model_.SelectRow(box->selStart());
    if (view.selStart) {
        box->setSelStart(*view.selStart);
        box->setSelLength(view.selLength);
    }
    showRow(view);
}

void FormEditText::showRow(const EditRowView& view)
{
    CheckMain->setChecked(view.CheckMain);
    CheckWith->setChecked(view.CheckWith);
    CheckDelay->setChecked(view.CheckDelay);
    CheckComment->setChecked(view.CheckComment);
    CheckTextComment->setChecked(view.CheckTextComment);
    CheckOption->setChecked(view.CheckOption);
    TextFileName->setText(view.TextFileName);
    TextSubFileName->setText(view.TextSubFileName);
    TextWaitTime->setText(view.TextWaitTime);
    if (view.CheckComment)
        TextText->setPlainText(boxText(view.TextText));
    TextCommentFileName->setText(view.TextCommentFileName);
    if (view.CheckComment || view.CheckTextComment)
        TextBigger->setPlainText(boxText(view.TextBigger));
    if (view.biggerVisible)
        TextBigger->setVisible(*view.biggerVisible);
    if (view.CheckOption)
        ComboCommandList->setEditText(view.ComboCommandList);
    PictureInImage1(view.picture);
    LabelYourPos->setText(QString::number(view.LabelYourPos));
}

void FormEditText::PictureInImage1(const QString& file)
{
    // Any other row leaves the last thumbnail standing, and so does a
    // picture that can't be read.
    if (file.isEmpty())
        return;
    const QImage picture = loadPreview(basics_.services().fs.toNative(file), Picture2->size());
    if (picture.isNull())
        return;
    Picture1->setPicture(picture);
    Picture2->setPicture(picture);
}

void FormEditText::CommandUpdate_Click()
{
    const int at = select_.Text1->selStart();
    const QString text = model_.CommandUpdate();
    rowCountShown();
    setBackColor(CommandUpdate, kColorResting);
    showEditorText(text, at);
}

void FormEditText::closeChange(const EditChange& change)
{
    if (!change.acted)
        return;
    if (change.rebuilt) {
        const int at = select_.Text1->selStart();
        rowCountShown();
        setBackColor(CommandUpdate, kColorResting);
        showEditorText(change.editorText, at);
        return;
    }
    setBackColor(CommandUpdate, kColorYellow);
}

void FormEditText::CommandUp_Click()
{
    if (const auto at = model_.CommandUp()) {
        select_.Text1->setSelStart(*at);
        Text1_Click();
    }
}

void FormEditText::CommandDoun_Click()
{
    if (const auto at = model_.CommandDoun()) {
        select_.Text1->setSelStart(*at);
        Text1_Click();
    }
}

void FormEditText::listOpened(bool english)
{
    load();
    CheckEnglishCommand->setChecked(english);
    model_.englishCommand = english;
    fillCombo();
    basics_.state().EditorOn = false;
}

void FormEditText::CheckEnglishCommand_Click()
{
    const int at = select_.Text1->selStart();
    const QString text = model_.CheckEnglishCommand_Click(CheckEnglishCommand->isChecked());
    fillCombo();
    ComboCommandList->setCurrentIndex(0);
    rowCountShown();
    setBackColor(CommandUpdate, kColorResting);
    showEditorText(text, at);
}

void FormEditText::CommandSetCommand_Click()
{
    if (FormBase* words = forms_.form(QStringLiteral("FormSetCommand")))
        words->showModal();
}

void FormEditText::ShowMessageAt(int leftTwips, int topTwips, const QString& text)
{
    UserDialogs& ui = basics_.services().ui;
    ui.showMessage(leftTwips, topTwips, text);
    QTimer::singleShot(kHintShownMs, &select_, [&ui] { ui.hideMessage(); });
}

void FormEditText::standardTextHint()
{
    const QPoint text = select_.Text1->mapTo(&select_, QPoint(0, 0));
    ShowMessageAt(
        int(twLeft(&select_)) + 100,
        int(twTop(&select_) + pixelsToTwips(text.y()) + pixelsToTwips(select_.Text1->height())) -
            2500,
        QStringLiteral(" ﾀﾞﾌﾞﾙクリックで大きさが変わります "));
}

void FormEditText::CommandStanderdText_Click()
{
    basics_.services().ui.beep();
    select_.Text1->setText(model_.ArrayToStanderdText());
    basics_.state().EditorOn = false;
    select_.Text1->setSelLength(1);
    unload();
    basics_.WaitMilliseconds(100);
    select_.raise();
    select_.activateWindow();
    standardTextHint();
}

void FormEditText::Command1_Click()
{
    model_.deleteTempFile();
    const int answer = basics_.services().ui.askYesNo(
        QStringLiteral("有効にするためには、標準テキストに変換する必要があります。変換しますか？"));
    select_.raise();
    if (answer != kAnswerYes) {
        // The editor text stays in Text1 as it stands.
        basics_.state().EditorOn = false;
        unload();
        return;
    }
    CommandStanderdText_Click();
    unload();
    standardTextHint();
}

void FormEditText::CommandEditOff_Click()
{
    basics_.services().ui.beep();
    ProgramState& state = basics_.state();
    if (state.EditorOn) {
        const int answer = basics_.services().ui.askYesNo(QStringLiteral(
            " この後利用するには、標準テキストに変換する必要があります。変換しますか？"));
        if (answer == kAnswerYes)
            select_.Text1->setText(model_.ArrayToStanderdText()); // EditorOn stays True
        else
            state.EditorOn = false;
    }
    unload();
    select_.showForm();
}

} // namespace lumen

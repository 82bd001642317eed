#include "html/FormRichText.h"

#include "fileops/VeroProcedure_Basical.h"
#include "html/FormMakeHTML.h"
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "platform/FileSystem.h"
#include "platform/Twips.h"
#include "platform/UserDialogs.h"
#include "state/ProgramState.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QTextCursor>
#include <QTextEdit>

namespace lumen {
namespace {

const QString kHtmlFilter = QStringLiteral("(*.html)|*.html|(*.*)|*.*");
constexpr float kGap = 10; // twips between the frame and the text

void colourRange(QTextEdit* edit, int from, int length, qint32 bgr)
{
    QTextCursor cursor(edit->document());
    cursor.setPosition(from);
    cursor.setPosition(from + length, QTextCursor::KeepAnchor);
    QTextCharFormat format;
    format.setForeground(colorFromBgr(bgr));
    cursor.mergeCharFormat(format);
}

} // namespace

FormRichText::FormRichText(VeroProcedure_Basical& basics, FormMakeHTML& owner, QWidget* parent)
    : FormBase(QStringLiteral("FormRichText"), parent)
    , basics_(basics)
    , owner_(owner)
{
    setWindowTitle(QStringLiteral("RitchText"));
    Frame1 = named<QGroupBox>(QStringLiteral("Frame1"), this);
    CommandMakeSample =
        commandButton(QStringLiteral("CommandMakeSample"), QStringLiteral("←ｻﾝﾌﾟﾙ作成"), Frame1);
    CommandCheck =
        commandButton(QStringLiteral("CommandCheck"), QStringLiteral("↓チェックｷｰﾜｰﾄﾞ"), Frame1);
    CommandDelSampleHtml = commandButton(QStringLiteral("CommandDelSampleHtml"),
                                         QStringLiteral("SampleHtml.html削除"), Frame1);
    CommandSave = commandButton(QStringLiteral("CommandSave"), QStringLiteral("保存"), Frame1);
    CommandOpen = commandButton(QStringLiteral("CommandOpen"), QStringLiteral("開く"), Frame1);
    auto* row = new QHBoxLayout(Frame1);
    row->setContentsMargins(6, 6, 6, 6);
    for (QPushButton* b :
         {CommandMakeSample, CommandCheck, CommandDelSampleHtml, CommandSave, CommandOpen})
        row->addWidget(b);
    RText1 = named<QTextEdit>(QStringLiteral("RText1"), this);
    RText1->setAcceptRichText(false);
    RText1->setLineWrapMode(QTextEdit::NoWrap);
    resize(qMax(Frame1->sizeHint().width(), 720), 520);

    connect(CommandMakeSample, &QPushButton::clicked, this, &FormRichText::CommandMakeSample_Click);
    connect(CommandCheck, &QPushButton::clicked, this, &FormRichText::CommandCheck_Click);
    connect(CommandDelSampleHtml, &QPushButton::clicked, this,
            &FormRichText::CommandDelSampleHtml_Click);
    connect(CommandSave, &QPushButton::clicked, this, &FormRichText::CommandSave_Click);
    connect(CommandOpen, &QPushButton::clicked, this, &FormRichText::CommandOpen_Click);
}

void FormRichText::Form_Load()
{
    setWindowTitle(basics_.state().ProgramRunDir +
                   QStringLiteral("\\SampleHtml.html として保存すると有効になります｡"));
}

void FormRichText::Form_Unload(bool& cancel)
{
    Q_UNUSED(cancel);
    setBackColor(owner_.CommandShowSampleHtml, kColorButtonFace);
}

void FormRichText::resizeEvent(QResizeEvent* event)
{
    FormBase::resizeEvent(event);
    Frame1->setGeometry(0, 0, width(), Frame1->sizeHint().height());
    const float top = twTop(Frame1) + twHeight(Frame1) + kGap;
    twMove(RText1, 0, top, twScaleWidth(this), qMax(0.0f, twScaleHeight(this) - top));
}

void FormRichText::setText(const QString& text)
{
    RText1->setPlainText(QString(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
}

QString FormRichText::text() const
{
    return RText1->toPlainText().replace(QLatin1Char('\n'), QStringLiteral("\r\n"));
}

// The whole text black, then the first place of each word red.
void FormRichText::CommandCheck_Click()
{
    const QString plain = RText1->toPlainText();
    colourRange(RText1, 0, int(plain.size()), 0);
    const StringGrid& table = owner_.maker().ReplaceWordTable;
    for (int row = 0; row < kReplaceWords; ++row) {
        const QString word = table.at(kColWord, row);
        const qsizetype at = word.isEmpty() ? -1 : plain.indexOf(word);
        if (at >= 0)
            colourRange(RText1, int(at), int(word.size()), kColorRed);
    }
}

void FormRichText::CommandMakeSample_Click()
{
    setText(owner_.MakeSampleHTML());
    CommandCheck_Click();
    basics_.WaitMilliseconds(300);
    basics_.WriteTextToFile(text(), owner_.maker().templatePath());
}

void FormRichText::CommandDelSampleHtml_Click()
{
    setBackColor(CommandDelSampleHtml, kColorRed);
    basics_.DeleteFileForced(owner_.maker().templatePath());
    if (backColor(owner_.CommandShowSampleHtml) == kColorGreen)
        RText1->clear();
    basics_.WaitMilliseconds(300);
    setBackColor(CommandDelSampleHtml, kColorButtonFace);
}

void FormRichText::CommandSave_Click()
{
    FileSystem& fs = basics_.services().fs;
    const auto chosen = basics_.services().ui.saveFileName(
        windowTitle(), fs.toNative(owner_.maker().templatePath()), kHtmlFilter);
    if (!chosen)
        return;
    fs.chDirToFolderOf(*chosen);
    basics_.WriteTextToFile(text(), fs.toProgram(*chosen));
}

void FormRichText::CommandOpen_Click()
{
    FileSystem& fs = basics_.services().fs;
    const auto chosen = basics_.services().ui.openFileName(
        windowTitle(), fs.toNative(owner_.maker().templatePath()), kHtmlFilter);
    if (!chosen)
        return;
    fs.chDirToFolderOf(*chosen);
    setText(basics_.ReadTextOfFile(fs.toProgram(*chosen)));
    CommandCheck_Click();
}

} // namespace lumen

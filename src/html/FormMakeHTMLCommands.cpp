// FormMakeHTML: loading and keeping the settings, and the commands.
#include "html/FormMakeHTML.h"

#include "fileops/VeroProcedure_Basical.h"
#include "html/FormRichText.h"
#include "platform/Basic.h"
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "platform/FileSystem.h"
#include "platform/FormRegistry.h"
#include "platform/Launcher.h"
#include "platform/Twips.h"
#include "platform/UserDialogs.h"
#include "state/ProgramState.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>

namespace lumen {
namespace {

using namespace basic;

constexpr qint32 kColorSet = 0x80C0FF;
constexpr int kShellExecuteFailedBelow = 33; // ShellExecute's answers below 33 are failures

} // namespace

QString FormMakeHTML::wordFilePath() const
{
    return basics_.state().ProgramRunDir + QLatin1Char('\\') + kReplaceWordFile;
}

QString FormMakeHTML::formValKeepPath() const
{
    return basics_.state().ProgramRunDir + QLatin1Char('\\') + kFormValKeepFile;
}

SiteSettings FormMakeHTML::settings() const
{
    SiteSettings s;
    for (int field = 0; field < kSiteFields; ++field)
        s.text[field] = fields_[field]->text();
    s.convertSmallChara = CheckConvertSmallChara->isChecked();
    s.delHTMLFolder = CheckDelHTMLFolder->isChecked();
    s.wavConvert = CheckWAVConvert->isChecked();
    return s;
}

void FormMakeHTML::Form_Load()
{
    CheckDelHTMLFolder->setChecked(basics_.state().DirecData.HtmlDelFolderFlag != 0);
    if (basics_.FileExists(wordFilePath())) {
        readWordFile();
    } else {
        CommandDaeisuuInitialSet_Click();
        CommandInitialSet_Click();
    }
    if (basics_.FileExists(formValKeepPath()))
        readFormValKeep();

    for (QGroupBox* f : {FrameSetDir, FrameSetFont, FrameSetButton, FrameSetDaisuu})
        f->hide();
    int widest = FrameMain->sizeHint().width();
    for (QGroupBox* f : {FrameSetDir, FrameSetFont, FrameSetButton, FrameSetDaisuu})
        widest = qMax(widest, f->sizeHint().width());
    resize(widest + twipsToPixels(240), height());
    CommandShowFolderSet_Click();
    if (Trim(TextPosKeepHTML->text()).isEmpty())
        CommandInitialSet_Click();
}

void FormMakeHTML::readWordFile()
{
    const QStringList words =
        replaceWordsFromText(basics_.ReadTextOfFile(wordFilePath(), kSettingsFileLimit));
    for (int row = 0; row < words.size(); ++row) {
        maker_.ReplaceWordTable.set(kColWord, row, words[row]);
        ExchageWord[row]->setText(words[row]);
    }
}

void FormMakeHTML::readFormValKeep()
{
    const QStringList lines =
        textLines(basics_.ReadTextOfFile(formValKeepPath(), kSettingsFileLimit));
    for (int field = 0; field < kSiteFields && field < lines.size(); ++field) {
        const QString& line = lines[field];
        fields_[field]->setText(line);
        if (field == kMP3CompR) {
            qint16 value = 0;
            if (StoreInt16(value, Val(line)) && value >= HScrollMP3CompR->minimum() &&
                value <= HScrollMP3CompR->maximum())
                HScrollMP3CompR->setValue(value);
        }
        // Lines 15 to 19 bring their pictures too; the parent button's line
        // doesn't, so that button keeps its own picture.
        for (const ButtonRow& row : buttonRows_) {
            if (row.path == fields_[field] && row.path != TextButtonOya)
                loadButtonPicture(row);
        }
    }
}

void FormMakeHTML::loadButtonPicture(const ButtonRow& row)
{
    const QString path = Trim(row.path->text());
    if (!basics_.FileExists(path)) {
        row.picture->setPicture(row.kept->picture());
        return;
    }
    const QImage picture = basics_.LoadPictureByPNGObject(path);
    if (!picture.isNull())
        row.picture->setPicture(picture);
}

void FormMakeHTML::Form_Unload(bool& cancel)
{
    Q_UNUSED(cancel);
    QStringList words;
    for (const QLineEdit* word : ExchageWord)
        words << word->text();
    basics_.WriteTextToFile(words.join(QStringLiteral("\r\n")), wordFilePath());
    basics_.WriteTextToFile(formValKeepText(settings()), formValKeepPath());
}

void FormMakeHTML::CommandShowFolderSet_Click()
{
    showFrame(FrameSetDir);
}

void FormMakeHTML::CommandSetFont_Click()
{
    showFrame(FrameSetFont);
}

void FormMakeHTML::CommandShowSetButton_Click()
{
    showFrame(FrameSetButton);
}

void FormMakeHTML::CommandShowSetDaisuu_Click()
{
    showFrame(FrameSetDaisuu);
}

void FormMakeHTML::CommandShowSampleHtml_Click()
{
    setBackColor(CommandShowSampleHtml, kColorGreen);
    auto* rich = static_cast<FormRichText*>(forms_.form(QStringLiteral("FormRichText")));
    if (!rich)
        return;
    rich->load();
    const QString path = maker_.templatePath();
    if (basics_.FileExists(path)) {
        rich->setText(basics_.ReadTextOfFile(path));
        rich->CommandCheck_Click();
    } else {
        rich->setText(basics_.state().ProgramRunDir +
                      QStringLiteral("\\SampleHtml.html は存在しません。"));
    }
    rich->showForm();
}

void FormMakeHTML::CommandDispConfirm_Click()
{
    const QString page = siteRoot() + QLatin1Char('\\') + Trim(TextPosHTML->text()) +
                         QLatin1Char('\\') + Trim(TextHTMLPageName->text()) +
                         QStringLiteral("1.html");
    if (!basics_.FileExists(page))
        return;
    if (basics_.services().launcher.shellExecuteOpen(page) < kShellExecuteFailedBelow)
        setWindowTitle(QStringLiteral("このファイルは、Windowsの関連付けで開けませんでした。"));
}

void FormMakeHTML::CommandMakeHTML_Click()
{
    const SitePictures pictures{PictureLeft->picture(), PictureRight->picture(),
                                PictureHead->picture(), PictureTail->picture(),
                                PictureOya->picture(),  PictureBlank->picture()};
    maker_.MakeHTML(settings(), pictures, links.listTotal ? links.listTotal() : QString());
}

QString FormMakeHTML::siteRoot() const
{
    return Trim(TextPosKeepHTML->text());
}

QStringList FormMakeHTML::siteFolders() const
{
    const QString root = siteRoot() + QLatin1Char('\\');
    return {siteRoot(), root + Trim(TextPosHTML->text()), root + Trim(TextPosMedia->text()),
            root + Trim(TextPosButton->text())};
}

void FormMakeHTML::CommandSelectFolder_Click()
{
    QString prompt = QStringLiteral("HTML保存ディレクトリーを選択してください");
    const QString folder = basics_.BrowseForFolder(prompt);
    if (!folder.isEmpty())
        TextPosKeepHTML->setText(folder);
}

// Both folder commands erase the site without a question.
void FormMakeHTML::CommandMakeFolder_Click()
{
    setBackColor(CommandMakeFolder, kColorGreen);
    const QStringList folders = siteFolders();
    if (basics_.FolderExists(folders.first())) {
        basics_.DeleteFolderTree(folders.first());
        basics_.WaitForFolderGone(folders.first());
    }
    for (const QString& folder : folders)
        basics_.MakeFolderTree(folder);
    basics_.WaitMilliseconds(300);
    setBackColor(CommandMakeFolder, kColorButtonFace);
}

void FormMakeHTML::CommandDelFolder_Click()
{
    setBackColor(CommandDelFolder, kColorGreen);
    const QString root = siteRoot();
    if (basics_.FolderExists(root)) {
        basics_.DeleteFolderTree(root);
        basics_.WaitForFolderGone(root);
    }
    basics_.WaitMilliseconds(300);
    setBackColor(CommandDelFolder, kColorButtonFace);
}

void FormMakeHTML::CommandInitialSet_Click()
{
    setBackColor(CommandInitialSet, kColorGreen);
    for (int field = 0; field < kSiteFields; ++field) {
        if (siteFieldHasDefault(SiteField(field)))
            fields_[field]->setText(siteFieldDefault(SiteField(field)));
    }
    for (const ButtonRow& row : buttonRows_) {
        if (row.path != TextButtonBlankPic)
            row.picture->setPicture(row.kept->picture());
    }
    // The scale stands at 10 and the text says 20; the conversion reads the text.
    HScrollMP3CompR->setValue(10);
    TextMP3CompR->setText(QStringLiteral("20"));
    basics_.WaitMilliseconds(300);
    setBackColor(CommandInitialSet, kColorButtonFace);
}

void FormMakeHTML::CheckDelHTMLFolder_Click()
{
    basics_.state().DirecData.HtmlDelFolderFlag = CheckDelHTMLFolder->isChecked() ? kTrue : kFalse;
}

void FormMakeHTML::HScrollMP3CompR_Change()
{
    TextMP3CompR->setText(Str(HScrollMP3CompR->value()));
}

void FormMakeHTML::TextMP3CompR_DblClick()
{
    qint16 value = 0;
    if (StoreInt16(value, Val(TextMP3CompR->text())) && value >= HScrollMP3CompR->minimum() &&
        value <= HScrollMP3CompR->maximum())
        HScrollMP3CompR->setValue(value);
}

void FormMakeHTML::findIcon(const ButtonRow& row)
{
    FileSystem& fs = basics_.services().fs;
    const auto chosen =
        basics_.services().ui.openFileName(windowTitle(), fs.toNative(fs.curDir()),
                                           QStringLiteral("(*.ico)|*.ico|(*.bmp)|*.bmp|(*.*)|*.*"));
    if (!chosen)
        return;
    const QString path = fs.toProgram(*chosen);
    fs.chDir(FolderOfPath(path));
    const QImage picture = basics_.LoadPictureByPNGObject(path);
    if (!picture.isNull())
        row.picture->setPicture(picture);
    row.path->setText(path);
}

void FormMakeHTML::CommandDaeisuuInitialSet_Click()
{
    setBackColor(CommandDaeisuuInitialSet, kColorGreen);
    for (int row = 0; row < kReplaceWords; ++row) {
        maker_.ReplaceWordTable.set(kColWord, row, defaultReplaceWords()[row]);
        ExchageWord[row]->setText(defaultReplaceWords()[row]);
    }
    basics_.WaitMilliseconds(300);
    setBackColor(CommandDaeisuuInitialSet, kColorButtonFace);
}

void FormMakeHTML::CommandSetDaisuu_Click()
{
    setBackColor(CommandSetDaisuu, kColorGreen);
    QStringList words;
    for (int row = 0; row < kReplaceWords; ++row) {
        words << ExchageWord[row]->text();
        maker_.ReplaceWordTable.set(kColWord, row, words.last());
    }
    basics_.WriteTextToFile(words.join(QStringLiteral("\r\n")), wordFilePath());
    basics_.WaitForFileReady(wordFilePath());
    setBackColor(CommandSetDaisuu, kColorSet);
}

} // namespace lumen

// The run of CommandMakeHTML: folders, button pictures, media, pages.
#include "html/SiteMaker.h"

#include "fileops/VeroProcedure_Basical.h"
#include "html/ModuleWavToMP3.h"
#include "platform/Basic.h"
#include "platform/Colors.h"
#include "platform/FileSystem.h"
#include "platform/PictureFile.h"
#include "state/ProgramState.h"

namespace lumen {
namespace {

using namespace basic;

constexpr qint32 kColorDone = 0x80C0FF;

bool isTextPage(const QString& mainFile)
{
    const QString upper = UCase(mainFile);
    return upper.contains(QLatin1String(".TXT")) || upper.contains(QLatin1String(".DAT"));
}

bool isWav(const QString& path)
{
    return UCase(path).contains(QLatin1String(".WAV"));
}

} // namespace

void SiteMaker::caption(const QString& text)
{
    if (setCaption)
        setCaption(text);
}

void SiteMaker::MakeHTML(const SiteSettings& settings, const SitePictures& pictures,
                         const QString& listTotal)
{
    if (Val(listTotal) == 0)
        return;
    if (setMakeButtonColor)
        setMakeButtonColor(kColorGreen);
    qint16 lines = 0; // N: a count past 16 bits isn't taken, and nothing is run
    StoreInt16(lines, Val(listTotal));
    for (int row = 0; row < kReplaceWords; ++row)
        ReplaceWordTable.set(kColValue, row, QString());

    convertSmallChara = settings.convertSmallChara;
    HtmlRootDir = Trim(settings[kPosKeepHTML]);
    HtmlPageDir = Trim(settings[kPosHTML]);
    HtmlMediaDir = Trim(settings[kPosMedia]);
    HtmlButtonDir = Trim(settings[kPosButton]);
    HtmlPageStem = Trim(settings[kHTMLPageName]);
    HtmlParentPage = Trim(settings[kOyaFileName]);

    prepareFolders(settings);
    placeButtonPictures(settings, pictures, MakeSampleHTML());
    if (listNeedsBlankPicture(lines))
        BlankPicPath = placeButtonPicture(settings[kButtonBlankPic], pictures.blank,
                                          QStringLiteral("blanc.bmp"));
    const qint16 total = copyMedia(settings, lines);
    setFixedRows(settings, total, lines);
    makePages(settings, lines, total);

    if (setMakeButtonColor)
        setMakeButtonColor(kColorDone);
    caption(QStringLiteral("HTMLファイル作成完了 "));
}

void SiteMaker::prepareFolders(const SiteSettings& settings)
{
    const QString root = HtmlRootDir + QLatin1Char('\\');
    const QStringList folders = {HtmlRootDir, root + HtmlPageDir, root + HtmlMediaDir,
                                 root + HtmlButtonDir};
    if (settings.delHTMLFolder) {
        if (settings.convertSmallChara && clearDisplay)
            clearDisplay();
        if (unloadComment)
            unloadComment();
        basics_.WaitMilliseconds(100);
        if (basics_.FolderExists(HtmlRootDir))
            basics_.DeleteFolderTree(HtmlRootDir);
        for (const QString& folder : folders)
            basics_.MakeFolderTree(L(folder));
        return;
    }
    // New folders are made lower-case whatever the option says.
    for (const QString& folder : folders) {
        if (!basics_.FolderExists(folder))
            basics_.MakeFolderTree(LCase(folder));
    }
}

void SiteMaker::placeButtonPictures(const SiteSettings& settings, const SitePictures& pictures,
                                    const QString& pageTemplate)
{
    struct Button {
        int row;
        SiteField field;
        const QImage& held;
        const char* fixedName;
        QString& path;
    };
    const Button buttons[] = {
        {kRowLeftPicture, kButtonLeft, pictures.left, "left.bmp", LeftPicPath},
        {kRowRightPicture, kButtonRight, pictures.right, "right.bmp", RightPicPath},
        {kRowHeadPicture, kButtonHead, pictures.head, "head.bmp", HeadPicPath},
        {kRowTailPicture, kButtonTail, pictures.tail, "tail.bmp", TailPicPath},
        {kRowOyaPicture, kButtonOya, pictures.oya, "oya.bmp", OyaPicPath},
    };
    for (const Button& button : buttons) {
        if (InStr(pageTemplate, ReplaceWordTable.at(kColWord, button.row)) > 0)
            button.path = placeButtonPicture(settings[button.field], button.held,
                                             QString::fromLatin1(button.fixedName));
    }
}

// The user's picture is copied under its own name; without one, the picture
// that the window holds is saved as a bitmap under the fixed name.
QString SiteMaker::placeButtonPicture(const QString& chosen, const QImage& held,
                                      const QString& fixedName)
{
    QString source = Trim(chosen);
    const QString folder = HtmlRootDir + QLatin1Char('\\') + HtmlButtonDir + QLatin1Char('\\');
    if (basics_.FileExists(source)) {
        const QString target = L(folder + NameAfterLastBackslash(source));
        basics_.CopyFileByPair(source + QLatin1Char(',') + target);
        return target;
    }
    const QString target = L(folder + fixedName);
    if (!held.isNull())
        writePicture(held, basics_.services().fs.toNative(target), "bmp");
    return target;
}

bool SiteMaker::listNeedsBlankPicture(qint16 lines) const
{
    const StringGrid& list = basics_.state().ListArray;
    for (int line = 1; line <= lines; ++line) {
        if (isTextPage(list.at(kColMain, line)))
            return true;
    }
    return false;
}

QString SiteMaker::mediaName(const QString& source, bool wavConvert) const
{
    if (wavConvert && isWav(source))
        return NameBeforeFirstDot(FileNameOfPath(source)) + QStringLiteral(".mp3");
    return FileNameOfPath(source);
}

void SiteMaker::deliverFile(const QString& source, const SiteSettings& settings)
{
    const QString target = L(HtmlRootDir + QLatin1Char('\\') + HtmlMediaDir + QLatin1Char('\\') +
                             mediaName(source, settings.wavConvert));
    if (settings.wavConvert && isWav(source)) {
        qint16 percent = 0;
        StoreInt16(percent, Val(settings[kMP3CompR]));
        ConvertWavToMp3(basics_, source, target, percent);
    } else {
        basics_.CopyFileByPair(source + QLatin1Char(',') + target);
    }
}

// The media phase. T, the number of lines whose main file exists.
qint16 SiteMaker::copyMedia(const SiteSettings& settings, qint16 lines)
{
    const StringGrid& list = basics_.state().ListArray;
    qint16 copied = 0;
    for (int line = 1; line <= lines; ++line) {
        caption(QStringLiteral("メディアファイル複製中 ") + Str(line) + QStringLiteral(" / ") +
                Str(lines));
        QString mainFile = list.at(kColMain, line);
        if (!basics_.FileExists(mainFile))
            continue;
        deliverFile(mainFile, settings);
        QString voice = list.at(kColWith, line);
        if (basics_.FileExists(voice))
            deliverFile(voice, settings);
        ++copied;
    }
    return copied;
}

void SiteMaker::setFixedRows(const SiteSettings& settings, qint16 total, qint16 lines)
{
    const QString buttons = QStringLiteral("../") + HtmlButtonDir + QLatin1Char('/');
    const struct {
        int row;
        QString value;
    } rows[] = {
        {kRowNumFontName, Trim(settings[kNumFontName])},
        {kRowNumFontSize, Trim(settings[kNumFontSize])},
        {kRowNumFontColor, Trim(settings[kNumFontColor])},
        {kRowBackCol, Trim(settings[kBackCol])},
        {kRowCommentFontName, Trim(settings[kCommentFontName])},
        {kRowCommentFontSize, Trim(settings[kCommentFontSize])},
        {kRowCommentFontColor, Trim(settings[kCommentFontColor])},
        {kRowLeftPicture, buttons + NameAfterLastBackslash(LeftPicPath)},
        {kRowRightPicture, buttons + NameAfterLastBackslash(RightPicPath)},
        {kRowHeadPicture, buttons + NameAfterLastBackslash(HeadPicPath)},
        {kRowTailPicture, buttons + NameAfterLastBackslash(TailPicPath)},
        {kRowTotalPages, Str(total)},
        {kRowFirstPage, HtmlPageStem + QStringLiteral("1.html")},
        // The last page is named from the count of list lines, not of pages.
        {kRowLastPage, pageName(lines)},
        {kRowParentPage, HtmlParentPage},
        {kRowOyaPicture, buttons + NameAfterLastBackslash(OyaPicPath)},
    };
    for (const auto& entry : rows)
        ReplaceWordTable.set(kColValue, entry.row, entry.value);
}

// The page phase: a page for each line where any of main file, companion
// and comment file exists, chained to the previous and the next.
void SiteMaker::makePages(const SiteSettings& settings, qint16 lines, qint16 total)
{
    const StringGrid& list = basics_.state().ListArray;
    const QString media = QStringLiteral("../") + HtmlMediaDir + QLatin1Char('/');
    qint16 page = 0;
    for (int line = 1; line <= lines; ++line) {
        HtmlListIndex = qint16(line);
        if (!basics_.FileExists(list.at(kColMain, line)) &&
            !basics_.FileExists(list.at(kColWith, line)) &&
            !basics_.FileExists(list.at(kColComment, line)))
            continue;
        ++page;

        const QString mainFile = Trim(list.at(kColMain, line));
        if (!mainFile.isEmpty()) {
            if (isTextPage(mainFile)) {
                ReplaceWordTable.set(kColValue, kRowMainPicture, QString());
                ReplaceWordTable.set(kColValue, kRowMainText, textOfFileAsHtml(mainFile));
            } else {
                ReplaceWordTable.set(kColValue, kRowMainText, QString());
                ReplaceWordTable.set(kColValue, kRowMainPicture,
                                     media + mediaName(mainFile, settings.wavConvert));
            }
        }
        const QString voice = Trim(list.at(kColWith, line));
        if (!voice.isEmpty())
            ReplaceWordTable.set(kColValue, kRowVoice,
                                 media + mediaName(voice, settings.wavConvert));
        ReplaceWordTable.set(kColValue, kRowPageNumber, QString::number(page));

        const bool first = page == 1;
        const bool last = !first && page == total;
        ReplaceWordTable.set(kColValue, kRowPreviousPage, pageName(first ? 1 : page - 1));
        ReplaceWordTable.set(kColValue, kRowThisPage, pageName(page));
        ReplaceWordTable.set(kColValue, kRowNextPage, pageName(last ? page : page + 1));

        caption(QStringLiteral("HTMLファイル作成中 ") + Str(page) + QStringLiteral(" / ") +
                Str(lines));
        MakeOnePage(page);
    }
}

} // namespace lumen

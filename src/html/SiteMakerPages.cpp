// The template and the making of one page.
#include "html/SiteMaker.h"

#include "fileops/VeroProcedure_Basical.h"
#include "platform/Basic.h"
#include "platform/FileSystem.h"
#include "platform/SafeFile.h"
#include "platform/TextCodec.h"
#include "state/ProgramState.h"

#include <QUrl>

namespace lumen {
namespace {

using namespace basic;

const QString kCommentMark = QStringLiteral("<<<<<");
const QString kLineBreak = QStringLiteral("<BR>");

} // namespace

SiteMaker::SiteMaker(VeroProcedure_Basical& basics)
    : basics_(basics)
{}

QString SiteMaker::templatePath() const
{
    return basics_.state().ProgramRunDir + QLatin1Char('\\') + kSampleHtmlFile;
}

QString SiteMaker::L(const QString& text) const
{
    return convertSmallChara ? LCase(text) : text;
}

QString SiteMaker::pageName(int number) const
{
    return HtmlPageStem + QString::number(number) + QStringLiteral(".html");
}

QString SiteMaker::MakeSampleHTML()
{
    const QString path = templatePath();
    if (!basics_.FileExists(path)) {
        basics_.WriteTextToFile(defaultSampleHtml(), path);
        basics_.WaitForFileReady(path);
    }
    return basics_.ReadTextOfFile(path);
}

QString SiteMaker::textOfFileAsHtml(const QString& path)
{
    return SerchAndReplace(basics_.ReadTextOfFile(path), QStringLiteral("\r\n"), kLineBreak);
}

// The comment of the line: inline text behind its mark and line end, or the
// text of the file that the item names.
QString SiteMaker::commentValue()
{
    const QString comment = basics_.state().ListArray.at(kColComment, HtmlListIndex);
    if (comment.isEmpty())
        return QString();
    const int mark = InStr(comment, kCommentMark);
    if (mark >= 1 && mark <= 4)
        return SerchAndReplace(Mid(comment, mark + 7), kCommentMark, kLineBreak);
    return textOfFileAsHtml(comment);
}

// A page without a picture shows the blank picture where the run saved it,
// as a file address that any browser on this machine can load.
QString SiteMaker::blankPictureUrl() const
{
    const QString native = basics_.services().fs.toNative(BlankPicPath);
    if (native.isEmpty())
        return QString();
    return QString::fromLatin1(QUrl::fromLocalFile(native).toEncoded());
}

void SiteMaker::MakeOnePage(qint16 pageNumber)
{
    QString page = MakeSampleHTML();
    const StringGrid& list = basics_.state().ListArray;
    const QString mainFile = Trim(list.at(kColMain, HtmlListIndex));
    StringGrid& table = ReplaceWordTable;
    for (int row = 0; row < kReplaceWords; ++row) {
        QString value;
        switch (row) {
        case kRowComment:
            table.set(kColValue, row, commentValue());
            value = L(table.at(kColValue, row));
            break;
        case kRowMainPicture: {
            const QString upper = UCase(mainFile);
            if (mainFile.isEmpty() || upper.contains(QLatin1String(".TXT")) ||
                upper.contains(QLatin1String(".DAT"))) {
                table.set(kColValue, row, BlankPicPath);
                value = blankPictureUrl(); // never lower-cased
            } else {
                value = L(table.at(kColValue, row));
            }
            break;
        }
        case kRowVoice:
            if (Trim(list.at(kColWith, HtmlListIndex)).isEmpty())
                table.set(kColValue, row, QString());
            value = L(table.at(kColValue, row));
            break;
        case kRowParentPage:
            // The parent's address may have capitals of its own.
            value = table.at(kColValue, row);
            break;
        case kRowMainText:
            if (!table.at(kColValue, row).isEmpty()) {
                const QString text = basics_.ReadTextOfFile(mainFile);
                basics_.WaitMilliseconds(100);
                table.set(kColValue, row,
                          SerchAndReplace(text, QStringLiteral("\r\n"), kLineBreak));
            } else {
                table.set(kColValue, row, QString());
            }
            value = L(table.at(kColValue, row));
            break;
        default:
            value = L(table.at(kColValue, row));
            break;
        }
        page = SerchAndReplaceInPage(page, table.at(kColWord, row), value);
    }
    // The text and a line end, replacing the file, in UTF-8 with a byte-order
    // mark that every browser honours; a site of thousands of pages doesn't
    // wait on the disk for each.
    const QString path =
        HtmlRootDir + QLatin1Char('\\') + HtmlPageDir + QLatin1Char('\\') + pageName(pageNumber);
    writeFileQuickly(basics_.services().fs.toNative(path),
                     text::encodeUtf8WithBom(page + QStringLiteral("\r\n")));
}

} // namespace lumen

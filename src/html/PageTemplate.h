// The page template and its 24 replacement words. Every page of a site is
// the template with each word replaced by the value of its row.
#pragma once

#include "platform/StringGrid.h"

#include <QString>
#include <QStringList>

namespace lumen {

inline constexpr int kReplaceWords = 24;

// Rows of ReplaceWordTable.
enum ReplaceRow : int {
    kRowNumFontName = 0,
    kRowNumFontSize = 1,
    kRowNumFontColor = 2,
    kRowBackCol = 3,
    kRowCommentFontName = 4,
    kRowCommentFontSize = 5,
    kRowCommentFontColor = 6,
    kRowComment = 7,
    kRowPreviousPage = 8,
    kRowThisPage = 9,
    kRowNextPage = 10,
    kRowLeftPicture = 11,
    kRowRightPicture = 12,
    kRowHeadPicture = 13,
    kRowTailPicture = 14,
    kRowTotalPages = 15,
    kRowPageNumber = 16,
    kRowMainPicture = 17,
    kRowVoice = 18,
    kRowFirstPage = 19,
    kRowLastPage = 20,
    kRowParentPage = 21,
    kRowOyaPicture = 22,
    kRowMainText = 23,
};

// ReplaceWordTable(0 To 23, 0 To 1): column 0 the word, column 1 its value
// for the page in hand. As a grid: (column, row).
inline constexpr int kColWord = 0;
inline constexpr int kColValue = 1;
inline StringGrid makeReplaceWordTable()
{
    return StringGrid(2, kReplaceWords);
}

inline const QString kReplaceWordFile = QStringLiteral("HTMLReplaceWord.txt");
inline const QString kSampleHtmlFile = QStringLiteral("SampleHtml.html");

const QStringList& defaultReplaceWords(); // 24 words, row order
const QStringList& replaceWordLabels();   // the labels beside them

// The default template: nineteen lines joined by CR LF; the writer ends the last.
QString defaultSampleHtml();

// The words of HTMLReplaceWord.txt: each line that isn't blank after
// trimming, trimmed, takes the next row; blank lines use up no row. At most
// 24 words.
QStringList replaceWordsFromText(const QString& text);

// SerchAndReplace as the page maker has it: its positions are 16-bit
// integers, so a word that ends past the 32767th character of the text is
// left as it stands, and so is everything behind it.
QString SerchAndReplaceInPage(const QString& text, const QString& word, const QString& value);

} // namespace lumen

#include "html/PageTemplate.h"

#include "fileops/BasicText.h"
#include "html/SiteSettings.h"
#include "platform/Basic.h"

namespace lumen {

const QStringList& defaultReplaceWords()
{
    static const QStringList words = {
        QStringLiteral("ページ番号フォント名"), QStringLiteral("ページ番号フォントサイズ"),
        QStringLiteral("ページ番号文字色"),     QStringLiteral("背景色"),
        QStringLiteral("コメントフォント名"),   QStringLiteral("コメントフォントサイズ"),
        QStringLiteral("コメント文字色"),       QStringLiteral("表示コメント"),
        QStringLiteral("前ページ名"),           QStringLiteral("現在ページ名"),
        QStringLiteral("次ページ名"),           QStringLiteral("前ページ用画像名"),
        QStringLiteral("次ページ用画像名"),     QStringLiteral("先頭ページ用画像名"),
        QStringLiteral("最終ページ用画像名"),   QStringLiteral("総ページ数"),
        QStringLiteral("今のページ番号"),       QStringLiteral("メイン表示画像ファイル名"),
        QStringLiteral("声のファイル名"),       QStringLiteral("先頭ページ名"),
        QStringLiteral("最終ページ名"),         QStringLiteral("親ページ名"),
        QStringLiteral("親ページ用画像名"),     QStringLiteral("メインテキストファイル名"),
    };
    return words;
}

const QStringList& replaceWordLabels()
{
    // The first-page and last-page rows are labelled crosswise; so they stay.
    static const QStringList labels = {
        QStringLiteral("ページ番号のフォント名"),
        QStringLiteral("ページ番号のフォントサイズ"),
        QStringLiteral("ページ番号の文字色"),
        QStringLiteral("全体の背景色"),
        QStringLiteral("コメントのフォント名"),
        QStringLiteral("コメントのフォントサイズ"),
        QStringLiteral("コメントの文字色"),
        QStringLiteral("コメント"),
        QStringLiteral("前ページ名"),
        QStringLiteral("現在のページ名"),
        QStringLiteral("次ページ名"),
        QStringLiteral("前ページ用画像名"),
        QStringLiteral("次ページ用画像名"),
        QStringLiteral("先頭ページ用画像名"),
        QStringLiteral("最終ページ用画像名"),
        QStringLiteral("総ページ数"),
        QStringLiteral("今のページ番号"),
        QStringLiteral("メイン表示画像ファイル名"),
        QStringLiteral("声のファイル名"),
        QStringLiteral("最終のページ名"),
        QStringLiteral("先頭のページ名"),
        QStringLiteral("親ページ名"),
        QStringLiteral("親ページ用画像名"),
        QStringLiteral("メインがテキストファイル"),
    };
    return labels;
}

QString defaultSampleHtml()
{
    static const QStringList lines = {
        QStringLiteral("<HTML><HEAD>"),
        QStringLiteral("<TITLE>Lumenta_KDR</TITLE>"),
        QStringLiteral("</HEAD>"),
        QStringLiteral("<BODY BGCOLOR=\"背景色\"> "),
        QStringLiteral("<CENTER>"),
        QStringLiteral("<A HREF=\"親ページ名\"><IMG SRC=\"親ページ用画像名\" BORDER=\"0\"></A>"),
        QStringLiteral(
            "<A HREF=\"先頭ページ名\"><IMG SRC=\"先頭ページ用画像名\" BORDER=\"0\"></A>"),
        QStringLiteral("<A HREF=\"前ページ名\"><IMG SRC=\"前ページ用画像名\" BORDER=\"0\"></A>"),
        QStringLiteral(".....<STRONG><FONT SIZE=\"ページ番号フォントサイズ\"><FONT "
                       "COLOR=\"ページ番号文字色\">"),
        QStringLiteral("今のページ番号 of 総ページ数</FONT></STRONG></FONT>"),
        QStringLiteral(
            ".....<A HREF=\"次ページ名\"><IMG SRC=\"次ページ用画像名\" BORDER=\"0\"></A>"),
        QStringLiteral(
            "<A HREF=\"最終ページ名\"><IMG SRC=\"最終ページ用画像名\" BORDER=\"0\"></A><BR>"),
        QStringLiteral("<FONT COLOR=\"コメント文字色\">"),
        QStringLiteral("表示コメント"),
        QStringLiteral("</FONT>"),
        QStringLiteral("<BR><P><IMG SRC=\"メイン表示画像ファイル名\" BORDER=\"0\">"),
        QStringLiteral("<BR>メインテキストファイル名"),
        QStringLiteral("<BGSOUND SRC=声のファイル名 LOOP=\"1\">"),
        QStringLiteral("</CENTER></BODY BGCOLOR></HTML>"),
    };
    return lines.join(QStringLiteral("\r\n"));
}

QStringList replaceWordsFromText(const QString& text)
{
    QStringList words;
    for (const QString& line : textLines(text)) {
        const QString word = basic::Trim(line);
        if (word.isEmpty())
            continue;
        if (words.size() == kReplaceWords)
            break;
        words << word;
    }
    return words;
}

QString SerchAndReplaceInPage(const QString& text, const QString& word, const QString& value)
{
    constexpr qsizetype kMostPosition = 32767;
    if (text.size() <= kMostPosition)
        return SerchAndReplace(text, word, value);
    return SerchAndReplace(text.left(kMostPosition), word, value) + text.mid(kMostPosition);
}

} // namespace lumen

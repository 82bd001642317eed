// The default template to the byte, one page's comment rules and the chain
// of replacements, and the 16-bit reach of the replacement.
#include "html/SiteFixture.h"
#include "platform/TextCodec.h"
#include "support/Fetch.h"

#include <QTest>

using namespace lumen;
using namespace lumen::test;

class TestPageTemplate : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void deletedTemplateComesBackToTheByte();
    void comment_data();
    void comment();
    void replacementReach_data();
    void replacementReach();
};

void TestPageTemplate::deletedTemplateComesBackToTheByte()
{
    SiteFixture s;
    s.f.home.writeFile("Lumentas/ForProgramRun_KDR/SampleHtml.html", "mine");
    QCOMPARE(s.maker.MakeSampleHTML(), "mine");
    QFile::remove(s.f.home.native("Lumentas/ForProgramRun_KDR/SampleHtml.html"));
    const QString text = s.maker.MakeSampleHTML();
    const QByteArray expected = text::encodeForFile(
        "<HTML><HEAD>\r\n<TITLE>Lumenta_KDR</TITLE>\r\n</HEAD>\r\n<BODY BGCOLOR=\"背景色\"> \r\n"
        "<CENTER>\r\n"
        "<A HREF=\"親ページ名\"><IMG SRC=\"親ページ用画像名\" BORDER=\"0\"></A>\r\n"
        "<A HREF=\"先頭ページ名\"><IMG SRC=\"先頭ページ用画像名\" BORDER=\"0\"></A>\r\n"
        "<A HREF=\"前ページ名\"><IMG SRC=\"前ページ用画像名\" BORDER=\"0\"></A>\r\n"
        ".....<STRONG><FONT SIZE=\"ページ番号フォントサイズ\"><FONT COLOR=\"ページ番号文字色\">\r\n"
        "今のページ番号 of 総ページ数</FONT></STRONG></FONT>\r\n"
        ".....<A HREF=\"次ページ名\"><IMG SRC=\"次ページ用画像名\" BORDER=\"0\"></A>\r\n"
        "<A HREF=\"最終ページ名\"><IMG SRC=\"最終ページ用画像名\" BORDER=\"0\"></A><BR>\r\n"
        "<FONT COLOR=\"コメント文字色\">\r\n表示コメント\r\n</FONT>\r\n"
        "<BR><P><IMG SRC=\"メイン表示画像ファイル名\" BORDER=\"0\">\r\n"
        "<BR>メインテキストファイル名\r\n<BGSOUND SRC=声のファイル名 LOOP=\"1\">\r\n"
        "</CENTER></BODY BGCOLOR></HTML>\r\n");
    QCOMPARE(s.f.home.readFile("Lumentas/ForProgramRun_KDR/SampleHtml.html"), expected);
    QCOMPARE(text::encodeForFile(text + "\r\n"), expected);
}

void TestPageTemplate::comment_data()
{
    QTest::addColumn<QString>("item"); // column 3 of the line
    QTest::addColumn<bool>("lowerCase");
    QTest::addColumn<QString>("page");
    QTest::addColumn<QStringList>("boxes");
    const auto row = [](const char* tag, const QString& item, bool lowerCase, const QString& page,
                        const QStringList& boxes) {
        QTest::newRow(tag) << item << lowerCase << page << boxes;
    };
    row("inline, marks become <BR>", "<<<<<\r\nOne<<<<<Two", false, "[One<BR>Two] 5\r\n",
        QStringList());
    row("mark at 4 is still inline", "abc<<<<<\r\nX", false, "[X] 5\r\n", QStringList());
    row("mark at 5 names a file", "abcd<<<<<\r\nX", false, "[] 5\r\n",
        QStringList{"ファイルが見つかりません。"});
    // Row 15 comes after row 7, so its word in the comment is replaced too.
    row("a later word in the comment", "<<<<<\r\n総ページ数 pages", false, "[ 5 pages] 5\r\n",
        QStringList());
}

void TestPageTemplate::comment()
{
    SiteFixture s;
    s.f.home.writeFile("Lumentas/ForProgramRun_KDR/SampleHtml.html",
                       QString("[表示コメント]総ページ数").toUtf8());
    s.f.home.writeFile("note.txt", "First\r\nSecond");
    s.f.home.makeFolder("site/html");
    s.f.state.ListArray.redim(kListColumns, 2);
    s.f.state.ListArray.set(kColComment, 1, FETCH(QString, item));
    s.maker.HtmlRootDir = "C:\\site";
    s.maker.HtmlPageDir = "html";
    s.maker.HtmlPageStem = "Page";
    s.maker.HtmlListIndex = 1;
    s.maker.convertSmallChara = FETCH(bool, lowerCase);
    s.maker.ReplaceWordTable.set(kColValue, kRowTotalPages, " 5");
    s.maker.ReplaceWordTable.set(kColWord, 4, QString()); // a row without a word is passed over
    s.maker.MakeOnePage(7);
    QCOMPARE(QString::fromUtf8(s.f.home.readFile("site/html/Page7.html")), FETCH(QString, page));
    QCOMPARE(s.f.ui.boxes, FETCH(QStringList, boxes));
}

void TestPageTemplate::replacementReach_data()
{
    QTest::addColumn<int>("at"); // 1-based place of the word
    QTest::addColumn<bool>("replaced");
    QTest::newRow("ends at 32767") << 32767 - 2 << true;
    QTest::newRow("ends at 32768") << 32767 - 1 << false;
}

void TestPageTemplate::replacementReach()
{
    const int at = FETCH(int, at);
    const QString text = "abc" + QString(at - 4, '.') + "abc" + QString(10, '.');
    const QString result = SerchAndReplaceInPage(text, "abc", "Z");
    QVERIFY(result.startsWith("Z."));
    QCOMPARE(result.contains("abc"), !FETCH(bool, replaced));
    QCOMPARE(result.size(), text.size() - (FETCH(bool, replaced) ? 4 : 2));
}

QTEST_GUILESS_MAIN(TestPageTemplate)
#include "tst_PageTemplate.moc"

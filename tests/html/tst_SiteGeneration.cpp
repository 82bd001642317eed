// A list made here becomes a site: the tree on disk, the bytes of the pages
// with their links, numbers and line breaks, with lower-case off and on; and
// bad input that the run passes over without stopping.
#include "html/SiteFixture.h"
#include "platform/TextCodec.h"
#include "support/Fetch.h"
#include "support/MediaSamples.h"

#include <QTest>

using namespace lumen;
using namespace lumen::test;

namespace {

const QStringList kShow = {
    "C:\\show\\Red.PNG @WITH=C:\\show\\voice.wav ENDWITH @COMMENT=<<<<<Hello<<<<<World ENDCOMMENT",
    "C:\\show\\story.txt @FILECOMMENT=C:\\show\\note.txt ENDFILECOMMENT",
    "C:\\show\\missing.jpg",
    "@FILECOMMENT=C:\\show\\note.txt ENDFILECOMMENT",
    "C:\\show\\Blue.png",
    "@COMMENT=<<<<<only a comment ENDCOMMENT",
};

void writeShowFiles(const TestHome& home)
{
    home.writeFile("show/Red.PNG", SiteFixture::png(Qt::red));
    home.writeFile("show/Blue.png", SiteFixture::png(Qt::blue));
    home.writeFile("show/voice.wav", pcmWav(0.5));
    home.writeFile("show/story.txt", "Once\r\nupon");
    home.writeFile("show/note.txt", "Note one\r\nNote two");
}

QStringList pageLines(const SiteFixture& s, const QString& page)
{
    return text::decode(s.f.home.readFile("data/html/" + page)).split("\r\n");
}

} // namespace

class TestSiteGeneration : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void site_data();
    void site();
    void emptyListTouchesNothing();
    void badInput_data();
    void badInput();
};

void TestSiteGeneration::site_data()
{
    QTest::addColumn<bool>("lowerCase");
    QTest::addColumn<QStringList>("tree");
    QTest::addColumn<QStringList>("page1");
    QTest::addColumn<QStringList>("page2");

    const QStringList buttons = {"data/button/blanc.bmp", "data/button/head.bmp",
                                 "data/button/left.bmp",  "data/button/oya.bmp",
                                 "data/button/right.bmp", "data/button/tail.bmp"};
    const QStringList page1 = {
        "<HTML><HEAD>",
        "<TITLE>Lumenta_KDR</TITLE>",
        "</HEAD>",
        "<BODY BGCOLOR=\"#808080\"> ",
        "<CENTER>",
        "<A HREF=\"../../index_kodar.html\"><IMG SRC=\"../button/oya.bmp\" BORDER=\"0\"></A>",
        "<A HREF=\"page1.html\"><IMG SRC=\"../button/head.bmp\" BORDER=\"0\"></A>",
        "<A HREF=\"page1.html\"><IMG SRC=\"../button/left.bmp\" BORDER=\"0\"></A>",
        ".....<STRONG><FONT SIZE=\"5\"><FONT COLOR=\"#FF0000\">",
        "1 of  3</FONT></STRONG></FONT>",
        ".....<A HREF=\"page2.html\"><IMG SRC=\"../button/right.bmp\" BORDER=\"0\"></A>",
        "<A HREF=\"page6.html\"><IMG SRC=\"../button/tail.bmp\" BORDER=\"0\"></A><BR>",
        "<FONT COLOR=\"#000000\">",
        "Hello",
        "World",
        "</FONT>",
        "<BR><P><IMG SRC=\"../media/Red.PNG\" BORDER=\"0\">",
        "<BR>",
        "<BGSOUND SRC=../media/voice.wav LOOP=\"1\">",
        "</CENTER></BODY BGCOLOR></HTML>",
        ""};
    // Without the delete option new folders are made lower-case anyway.
    QTest::newRow("window defaults")
        << false << buttons + QStringList{"data/html/page1.html", "data/html/page2.html",
                                          "data/html/page3.html", "data/html/page4.html",
                                          "data/media/Blue.png",  "data/media/Red.PNG",
                                          "data/media/story.txt", "data/media/voice.wav"}
        << page1
        << QStringList{"Note one<BR>Note two", "<BR>Once<BR>upon", "<BGSOUND SRC= LOOP=\"1\">"};
    // Links lower-case, the parent's address and the page files not.
    QStringList lower = page1;
    lower[5] = "<A HREF=\"http://Example.COM/Index.html\"><IMG SRC=\"../button/oya.bmp\" "
               "BORDER=\"0\"></A>";
    lower[8] = ".....<STRONG><FONT SIZE=\"5\"><FONT COLOR=\"#ff0000\">";
    lower[13] = "hello";
    lower[14] = "world";
    lower[16] = "<BR><P><IMG SRC=\"../media/red.png\" BORDER=\"0\">";
    lower[18] = "<BGSOUND SRC=../media/voice.mp3 LOOP=\"1\">";
    QTest::newRow("lower-case, delete, MP3")
        << true << buttons + QStringList{"data/html/Page1.html", "data/html/Page2.html",
                                         "data/html/Page3.html", "data/html/Page4.html",
                                         "data/media/blue.png",  "data/media/red.png",
                                         "data/media/story.txt", "data/media/voice.mp3"}
        << lower
        << QStringList{"note one<br>note two", "<BR>once<br>upon", "<BGSOUND SRC= LOOP=\"1\">"};
}

void TestSiteGeneration::site()
{
    const bool lowerCase = FETCH(bool, lowerCase);
    SiteFixture s;
    writeShowFiles(s.f.home);
    s.loadList(kShow);
    SiteSettings settings = SiteSettings::defaults();
    if (lowerCase) {
        s.f.home.writeFile("Data/old.html", "from an earlier run");
        settings.convertSmallChara = settings.delHTMLFolder = settings.wavConvert = true;
        settings[kHTMLPageName] = "Page";
        settings[kOyaFileName] = "http://Example.COM/Index.html";
    }
    s.run(settings);

    QCOMPARE(s.tree("").filter(QRegularExpression("^[Dd]ata/")), FETCH(QStringList, tree));
    QVERIFY(s.f.home.readFile("data/button/left.bmp").startsWith("BM"));

    const QString stem = lowerCase ? "Page" : "page";
    QCOMPARE(pageLines(s, stem + "1.html"), FETCH(QStringList, page1));

    // A text page: the blank picture by its absolute address, never lower-cased.
    const QStringList page2 = pageLines(s, stem + "2.html");
    const QStringList textPage = FETCH(QStringList, page2);
    QCOMPARE(page2.value(13), textPage[0]);
    QCOMPARE(page2.value(15), "<BR><P><IMG SRC=\"file://" +
                                  s.f.home.native("data/button/blanc.bmp") + "\" BORDER=\"0\">");
    QCOMPARE(page2.value(16), textPage[1]);
    QCOMPARE(page2.value(17), textPage[2]);
    QVERIFY(page2.value(6).startsWith("<A HREF=\"page1.html\">"));
    QVERIFY(page2.value(10).startsWith(".....<A HREF=\"page3.html\">"));

    // The comment-file line is page 3 = T: its next link points to itself.
    // The last picture is page 4, past T, with a next link to no page.
    const QStringList page3 = pageLines(s, stem + "3.html");
    QCOMPARE(page3.value(9), "3 of  3</FONT></STRONG></FONT>");
    QVERIFY(page3.value(10).startsWith(".....<A HREF=\"page3.html\">"));
    QCOMPARE(page3.value(13), textPage[0]);
    const QStringList page4 = pageLines(s, stem + "4.html");
    QCOMPARE(page4.value(9), "4 of  3</FONT></STRONG></FONT>");
    QVERIFY(page4.value(7).startsWith("<A HREF=\"page3.html\">"));
    QVERIFY(page4.value(10).startsWith(".....<A HREF=\"page5.html\">"));
    QCOMPARE(page4.value(15), QString("<BR><P><IMG SRC=\"../media/%1\" BORDER=\"0\">")
                                  .arg(lowerCase ? "blue.png" : "Blue.png"));

    QVERIFY(s.captions.contains("メディアファイル複製中  6 /  6"));
    QVERIFY(s.captions.contains("HTMLファイル作成中  4 /  6"));
    QCOMPARE(s.captions.last(), "HTMLファイル作成完了 ");
    QCOMPARE(s.colours, (QList<qint32>{65280, 0x80C0FF}));
}

void TestSiteGeneration::emptyListTouchesNothing()
{
    SiteFixture s;
    s.loadList({"' a note only"});
    QCOMPARE(s.total, "0");
    s.run(SiteSettings::defaults());
    QVERIFY(!s.f.home.exists("data") && !s.f.home.exists("Data"));
    QVERIFY(s.colours.isEmpty() && s.captions.isEmpty());
}

void TestSiteGeneration::badInput_data()
{
    QTest::addColumn<QStringList>("list");
    QTest::addColumn<QString>("pageTemplate"); // "" for the default
    QTest::addColumn<QString>("words");        // "" for the default
    QTest::addColumn<QString>("root");
    QTest::addColumn<QString>("file");        // a file to look at afterwards
    QTest::addColumn<QStringList>("holds");   // texts that it holds
    QTest::addColumn<QString>("emptyFolder"); // a folder that holds no file, or ""

    const QStringList one = {"C:\\show\\Red.PNG"};
    QTest::newRow("comma in a path is not copied")
        << QStringList{"C:\\show\\a,b.png"} << ""
        << ""
        << "C:\\Data"
        << "data/html/page1.html" << QStringList{"<IMG SRC=\"../media/a,b.png\""} << "data/media";
    QStringList many;
    for (int i = 0; i < 2000; ++i)
        many << "C:\\show\\Red.PNG";
    QTest::newRow("2000 lines")
        << many << ""
        << ""
        << "C:\\Data"
        << "data/html/page2000.html"
        << QStringList{"2000 of  2000</FONT></STRONG></FONT>\r\n.....<A HREF=\"page2000.html\">"}
        << "";
    QTest::newRow("template without any word")
        << one << "<P>no words</P>"
        << ""
        << "C:\\Data"
        << "data/html/page1.html" << QStringList{"<P>no words</P>\r\n"} << "data/button";
    // A blank line for the sixth word: the words behind it move up a row,
    // and the last row, with no word, is passed over.
    QStringList words = defaultReplaceWords();
    words[5] = "   ";
    QTest::newRow("word file with a blank line")
        << one << "" << words.join("\r\n") << "C:\\Data"
        << "data/html/page1.html" << QStringList{"<FONT COLOR=\"4\">", "<BR>../button/oya.bmp"}
        << "";
    QTest::newRow("template past 32767 characters")
        << one << "<A HREF=\"次ページ名\">" + QString(33000, 'x') + "総ページ数"
        << ""
        << "C:\\Data"
        << "data/html/page1.html" << QStringList{"<A HREF=\"page2.html\">xxx", "x総ページ数\r\n"}
        << "";
    QTest::newRow("target folder can't be made")
        << one << ""
        << ""
        << "C:\\blocker\\site"
        << "blocker" << QStringList{"where the site should go"} << "";
}

void TestSiteGeneration::badInput()
{
    SiteFixture s;
    writeShowFiles(s.f.home);
    s.f.home.writeFile("show/a,b.png", SiteFixture::png(Qt::green));
    s.f.home.writeFile("blocker", "where the site should go");
    if (!FETCH(QString, pageTemplate).isEmpty())
        s.f.home.writeFile("Lumentas/ForProgramRun_KDR/SampleHtml.html",
                           FETCH(QString, pageTemplate).toUtf8());
    if (!FETCH(QString, words).isEmpty()) {
        s.maker.ReplaceWordTable = makeReplaceWordTable();
        const QStringList words = replaceWordsFromText(FETCH(QString, words));
        for (int row = 0; row < words.size(); ++row)
            s.maker.ReplaceWordTable.set(kColWord, row, words[row]);
    }
    s.loadList(FETCH(QStringList, list));
    SiteSettings settings = SiteSettings::defaults();
    settings[kPosKeepHTML] = FETCH(QString, root);
    s.run(settings);

    QCOMPARE(s.captions.last(), "HTMLファイル作成完了 ");
    const QString text = text::decode(s.f.home.readFile(FETCH(QString, file)));
    for (const QString& part : FETCH(QStringList, holds))
        QVERIFY2(text.contains(part), qPrintable(part));
    if (!FETCH(QString, emptyFolder).isEmpty())
        QCOMPARE(s.tree(FETCH(QString, emptyFolder)), QStringList());
}

QTEST_GUILESS_MAIN(TestSiteGeneration)
#include "tst_SiteGeneration.moc"

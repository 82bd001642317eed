// A list made here becomes a site: the tree on disk, the bytes of the pages
// with their links, numbers and line breaks, with lower-case off and on; the
// template and its replacements; bad input that the run passes over; and the
// first pages as headless Chromium shows them (the screenshots stay in the
// test's folder, or LUMEN_SCREENSHOTS).
#include "html/ButtonIcons.h"
#include "html/SiteMaker.h"
#include "list/CommandWords.h"
#include "list/ListLoader.h"
#include "platform/TextCodec.h"
#include "support/BasicsFixture.h"
#include "support/Fetch.h"
#include "support/MediaSamples.h"

#include <QBuffer>
#include <QDirIterator>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace lumen;
using namespace lumen::test;

namespace {

const QString kTemplate = QStringLiteral("Lumentas/ForProgramRun_KDR/SampleHtml.html");

QByteArray png(const QColor& colour, QSize size = QSize(8, 6))
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(colour);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

// A site maker on a temporary home, with what the run said recorded.
struct Site {
    BasicsFixture f;
    SiteMaker maker{f.basics};
    QStringList captions;
    QList<qint32> colours;
    QString total; // FormMain's TextTotal

    Site()
    {
        maker.setCaption = [this](const QString& c) { captions << c; };
        maker.setMakeButtonColor = [this](qint32 c) { colours << c; };
        for (int row = 0; row < kReplaceWords; ++row)
            maker.ReplaceWordTable.set(kColWord, row, defaultReplaceWords()[row]);
        PutCommandToArray(f.basics);
    }

    // Loads the list from C:\show the way the show does, then makes the site.
    void run(const QStringList& lines, const SiteSettings& settings = SiteSettings::defaults())
    {
        f.home.writeFile("show/show.lst", lines.join("\r\n").toLocal8Bit());
        QString text;
        const int count = prepareWorkingCopy(f.basics, QStringLiteral("C:\\show\\show.lst"), &text);
        total = QString::number(fillListArray(f.basics, text, count).fileCount);
        const auto icon = [](ButtonIcon i) { return builtInButtonPicture(i); };
        maker.MakeHTML(settings,
                       {icon(ButtonIcon::Left), icon(ButtonIcon::Right), icon(ButtonIcon::Head),
                        icon(ButtonIcon::Tail), icon(ButtonIcon::Oya), icon(ButtonIcon::Blank)},
                       total);
    }

    // Every file under a folder of the home, relative to it, sorted.
    QStringList tree(const QString& folder) const
    {
        QStringList files;
        const QDir base(f.home.native(folder));
        QDirIterator it(base.path(), QDir::Files, QDirIterator::Subdirectories);
        while (it.hasNext())
            files << base.relativeFilePath(it.next());
        files.sort();
        return files;
    }

    QStringList page(const QString& name) const
    {
        return text::decode(f.home.readFile("data/html/" + name)).split("\r\n");
    }
};

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
    home.writeFile("show/Red.PNG", png(Qt::red));
    home.writeFile("show/Blue.png", png(Qt::blue));
    home.writeFile("show/voice.wav", pcmWav(0.5));
    home.writeFile("show/story.txt", "Once\r\nupon");
    home.writeFile("show/note.txt", "Note one\r\nNote two");
}

// Chromium's picture of a page, kept in the test's folder.
QImage screenshot(const QString& page, const QString& name)
{
    QString folder = qEnvironmentVariable("LUMEN_SCREENSHOTS");
    if (folder.isEmpty())
        folder = QDir::current().filePath("html_site_shots");
    QDir().mkpath(folder);
    const QString shot = QDir(folder).filePath(name);
    QFile::remove(shot);
    QTemporaryDir profile;
    QProcess chromium;
    chromium.start("chromium",
                   {"--headless", "--no-sandbox", "--disable-gpu", "--no-first-run",
                    "--disable-background-networking", "--disable-component-update",
                    "--disable-sync", "--user-data-dir=" + profile.path(), "--window-size=800,600",
                    "--screenshot=" + shot, QUrl::fromLocalFile(page).toString()});
    if (!chromium.waitForFinished(90000))
        chromium.kill();
    return QImage(shot);
}

template <typename Test> qsizetype pixels(const QImage& image, int fromLine, Test test)
{
    qsizetype count = 0;
    for (int y = fromLine; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += test(image.pixelColor(x, y)) ? 1 : 0;
    return count;
}

} // namespace

class TestSiteGeneration : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void site_data()
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

    void site()
    {
        const bool lowerCase = FETCH(bool, lowerCase);
        Site s;
        writeShowFiles(s.f.home);
        SiteSettings settings = SiteSettings::defaults();
        if (lowerCase) {
            s.f.home.writeFile("Data/old.html", "from an earlier run");
            settings.convertSmallChara = settings.delHTMLFolder = settings.wavConvert = true;
            settings[kHTMLPageName] = "Page";
            settings[kOyaFileName] = "http://Example.COM/Index.html";
        }
        s.run(kShow, settings);

        QCOMPARE(s.tree("").filter(QRegularExpression("^[Dd]ata/")), FETCH(QStringList, tree));
        QVERIFY(s.f.home.readFile("data/button/left.bmp").startsWith("BM"));
        const QString stem = lowerCase ? "Page" : "page";
        QCOMPARE(s.page(stem + "1.html"), FETCH(QStringList, page1));

        // A text page: the blank picture by its absolute address, never lower-cased.
        const QStringList page2 = s.page(stem + "2.html");
        const QStringList textPage = FETCH(QStringList, page2);
        QCOMPARE(page2.value(13), textPage[0]);
        QCOMPARE(page2.value(15), "<BR><P><IMG SRC=\"file://" +
                                      s.f.home.native("data/button/blanc.bmp") +
                                      "\" BORDER=\"0\">");
        QCOMPARE(page2.value(16), textPage[1]);
        QCOMPARE(page2.value(17), textPage[2]);

        // The comment-file line is page 3 = T: its next link points to itself.
        // The last picture is page 4, past T, with a next link to no page.
        const QStringList page3 = s.page(stem + "3.html");
        QCOMPARE(page3.value(9), "3 of  3</FONT></STRONG></FONT>");
        QVERIFY(page3.value(10).startsWith(".....<A HREF=\"page3.html\">"));
        QCOMPARE(page3.value(13), textPage[0]);
        const QStringList page4 = s.page(stem + "4.html");
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

    void emptyListTouchesNothing()
    {
        Site s;
        s.run({"' a note only"});
        QCOMPARE(s.total, "0");
        QVERIFY(!s.f.home.exists("data") && !s.f.home.exists("Data"));
        QVERIFY(s.colours.isEmpty() && s.captions.isEmpty());
    }

    void badInput_data()
    {
        QTest::addColumn<QStringList>("list");
        QTest::addColumn<QString>("pageTemplate"); // "" for the default
        QTest::addColumn<QString>("words");        // "" for the default
        QTest::addColumn<QString>("root");
        QTest::addColumn<QString>("file");        // a file to look at afterwards
        QTest::addColumn<QStringList>("holds");   // texts that it holds
        QTest::addColumn<QString>("emptyFolder"); // a folder that holds no file, or ""
        const auto row = [](const char* tag, const QStringList& list, const QString& pageTemplate,
                            const QString& words, const QString& root, const QString& file,
                            const QStringList& holds, const QString& emptyFolder) {
            QTest::newRow(tag) << list << pageTemplate << words << root << file << holds
                               << emptyFolder;
        };
        const QStringList one = {"C:\\show\\Red.PNG"};
        const QString page1 = "data/html/page1.html";
        row("comma in a path is not copied", {"C:\\show\\a,b.png"}, "", "", "C:\\Data", page1,
            {"<IMG SRC=\"../media/a,b.png\""}, "data/media");
        QStringList many;
        for (int i = 0; i < 2000; ++i)
            many << one;
        row("2000 lines", many, "", "", "C:\\Data", "data/html/page2000.html",
            {"2000 of  2000</FONT></STRONG></FONT>\r\n.....<A HREF=\"page2000.html\">"}, "");
        row("template without any word", one, "<P>no words</P>", "", "C:\\Data", page1,
            {"<P>no words</P>\r\n"}, "data/button");
        // A blank line for the sixth word: the words behind it move up a row,
        // and the last row, with no word, is passed over.
        QStringList words = defaultReplaceWords();
        words[5] = "   ";
        row("word file with a blank line", one, "", words.join("\r\n"), "C:\\Data", page1,
            {"<FONT COLOR=\"4\">", "<BR>../button/oya.bmp"}, "");
        row("template past 32767 characters", one,
            "<A HREF=\"次ページ名\">" + QString(33000, 'x') + "総ページ数", "", "C:\\Data", page1,
            {"<A HREF=\"page2.html\">xxx", "x総ページ数\r\n"}, "");
        row("target folder can't be made", one, "", "", "C:\\blocker\\site", "blocker",
            {"where the site should go"}, "");
    }

    void badInput()
    {
        Site s;
        writeShowFiles(s.f.home);
        s.f.home.writeFile("show/a,b.png", png(Qt::green));
        s.f.home.writeFile("blocker", "where the site should go");
        if (!FETCH(QString, pageTemplate).isEmpty())
            s.f.home.writeFile(kTemplate, FETCH(QString, pageTemplate).toUtf8());
        if (!FETCH(QString, words).isEmpty()) {
            s.maker.ReplaceWordTable = makeReplaceWordTable();
            const QStringList words = replaceWordsFromText(FETCH(QString, words));
            for (int row = 0; row < words.size(); ++row)
                s.maker.ReplaceWordTable.set(kColWord, row, words[row]);
        }
        SiteSettings settings = SiteSettings::defaults();
        settings[kPosKeepHTML] = FETCH(QString, root);
        s.run(FETCH(QStringList, list), settings);

        QCOMPARE(s.captions.last(), "HTMLファイル作成完了 ");
        const QString text = text::decode(s.f.home.readFile(FETCH(QString, file)));
        for (const QString& part : FETCH(QStringList, holds))
            QVERIFY2(text.contains(part), qPrintable(part));
        if (!FETCH(QString, emptyFolder).isEmpty())
            QCOMPARE(s.tree(FETCH(QString, emptyFolder)), QStringList());
    }

    void deletedTemplateComesBackToTheByte()
    {
        Site s;
        s.f.home.writeFile(kTemplate, "mine");
        QCOMPARE(s.maker.MakeSampleHTML(), "mine");
        QFile::remove(s.f.home.native(kTemplate));
        const QString text = s.maker.MakeSampleHTML();
        const QByteArray expected = text::encodeForFile(
            "<HTML><HEAD>\r\n<TITLE>Lumenta_KDR</TITLE>\r\n</HEAD>\r\n<BODY BGCOLOR=\"背景色\"> "
            "\r\n"
            "<CENTER>\r\n"
            "<A HREF=\"親ページ名\"><IMG SRC=\"親ページ用画像名\" BORDER=\"0\"></A>\r\n"
            "<A HREF=\"先頭ページ名\"><IMG SRC=\"先頭ページ用画像名\" BORDER=\"0\"></A>\r\n"
            "<A HREF=\"前ページ名\"><IMG SRC=\"前ページ用画像名\" BORDER=\"0\"></A>\r\n"
            ".....<STRONG><FONT SIZE=\"ページ番号フォントサイズ\"><FONT "
            "COLOR=\"ページ番号文字色\">\r\n"
            "今のページ番号 of 総ページ数</FONT></STRONG></FONT>\r\n"
            ".....<A HREF=\"次ページ名\"><IMG SRC=\"次ページ用画像名\" BORDER=\"0\"></A>\r\n"
            "<A HREF=\"最終ページ名\"><IMG SRC=\"最終ページ用画像名\" BORDER=\"0\"></A><BR>\r\n"
            "<FONT COLOR=\"コメント文字色\">\r\n表示コメント\r\n</FONT>\r\n"
            "<BR><P><IMG SRC=\"メイン表示画像ファイル名\" BORDER=\"0\">\r\n"
            "<BR>メインテキストファイル名\r\n<BGSOUND SRC=声のファイル名 LOOP=\"1\">\r\n"
            "</CENTER></BODY BGCOLOR></HTML>\r\n");
        QCOMPARE(s.f.home.readFile(kTemplate), expected);
        QCOMPARE(text::encodeForFile(text + "\r\n"), expected);
    }

    void comment_data()
    {
        QTest::addColumn<QString>("item"); // column 3 of the line
        QTest::addColumn<QString>("page");
        QTest::addColumn<QStringList>("boxes");
        const auto row = [](const char* tag, const char* item, const char* page,
                            const QStringList& boxes = {}) {
            QTest::newRow(tag) << QString(item) << QString(page) << boxes;
        };
        row("inline, marks become <BR>", "<<<<<\r\nOne<<<<<Two", "[One<BR>Two] 5\r\n");
        row("mark at 4 is still inline", "abc<<<<<\r\nX", "[X] 5\r\n");
        row("mark at 5 names a file", "abcd<<<<<\r\nX", "[] 5\r\n", {"ファイルが見つかりません。"});
        // Row 15 comes after row 7, so its word in the comment is replaced too.
        row("a later word in the comment", "<<<<<\r\n総ページ数 pages", "[ 5 pages] 5\r\n");
    }

    void comment()
    {
        Site s;
        s.f.home.writeFile(kTemplate, QString("[表示コメント]総ページ数").toUtf8());
        s.f.home.makeFolder("site/html");
        s.f.state.ListArray.redim(kListColumns, 2);
        s.f.state.ListArray.set(kColComment, 1, FETCH(QString, item));
        s.maker.HtmlRootDir = "C:\\site";
        s.maker.HtmlPageDir = "html";
        s.maker.HtmlPageStem = "Page";
        s.maker.HtmlListIndex = 1;
        s.maker.ReplaceWordTable.set(kColValue, kRowTotalPages, " 5");
        s.maker.ReplaceWordTable.set(kColWord, 4, QString()); // a row without a word is passed over
        s.maker.MakeOnePage(7);
        QCOMPARE(QString::fromUtf8(s.f.home.readFile("site/html/Page7.html")),
                 FETCH(QString, page));
        QCOMPARE(s.f.ui.boxes, FETCH(QStringList, boxes));
    }

    void replacementReach_data()
    {
        QTest::addColumn<int>("at"); // 1-based place of the word
        QTest::addColumn<bool>("replaced");
        QTest::newRow("ends at 32767") << 32767 - 2 << true;
        QTest::newRow("ends at 32768") << 32767 - 1 << false;
    }

    void replacementReach()
    {
        const int at = FETCH(int, at);
        const QString text = "abc" + QString(at - 4, '.') + "abc" + QString(10, '.');
        const QString result = SerchAndReplaceInPage(text, "abc", "Z");
        QVERIFY(result.startsWith("Z."));
        QCOMPARE(result.contains("abc"), !FETCH(bool, replaced));
        QCOMPARE(result.size(), text.size() - (FETCH(bool, replaced) ? 4 : 2));
    }

    // The first page shows the picture and the five navigation keys.
    void firstPagesInChromium()
    {
        Site s;
        const QColor photo(0, 160, 80);
        s.f.home.writeFile("show/photo.png", png(photo, QSize(320, 200)));
        s.f.home.writeFile("show/note.txt", "A text page");
        s.run(
            {"C:\\show\\photo.png @COMMENT=<<<<<The first page ENDCOMMENT", "C:\\show\\note.txt"});

        const QImage first = screenshot(s.f.home.native("data/html/page1.html"), "site_page1.png");
        QVERIFY(!first.isNull());
        QVERIFY(pixels(first, 0, [&](QColor c) { return c == photo; }) >= 320 * 200 * 9 / 10);
        // Five keys of 48 x 32, the blue of each more than half its face.
        const auto blue = [](QColor c) {
            return c.blue() > c.red() + 60 && c.blue() > c.green() + 30;
        };
        QVERIFY(pixels(first, 0, blue) >= 5 * 48 * 32 / 2);

        // The text page finds its blank picture by its absolute address. Below
        // the row of keys, whose figures are white too.
        const QImage second = screenshot(s.f.home.native("data/html/page2.html"), "site_page2.png");
        QCOMPARE(pixels(second, 60, [](QColor c) { return c == Qt::white; }), 32 * 32);
    }
};

QTEST_GUILESS_MAIN(TestSiteGeneration)
#include "tst_SiteGeneration.moc"

// Waits, beeps, the floating message, the movie page, folders and pictures.
#include "support/BasicsFixture.h"

#include "support/Fetch.h"
#include <QImage>

#include <QTest>

using namespace lumen;
using namespace lumen::test;

class TestBasicWaits : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void waitMilliseconds_data();
    void waitMilliseconds();
    void waitForFileReadyIsTenMilliseconds();
    void waitForFolderGoneAsksEveryHalfMinute_data();
    void waitForFolderGoneAsksEveryHalfMinute();
    void floatingMessageEveryOtherCall();
    void floatingMessageQuietInAutoPage();
    void padToWidth_data();
    void padToWidth();
    void movieWrapperPage();
    void browseForFolder();
    void picturesRoundTrip_data();
    void picturesRoundTrip();
};

void TestBasicWaits::waitMilliseconds_data()
{
    QTest::addColumn<double>("ms");
    QTest::addColumn<qint64>("waited");
    QTest::newRow("fraction rounds up to the next tick") << 0.5 << qint64(1);
    QTest::newRow("negative: no wait") << -5.0 << qint64(0);
}

void TestBasicWaits::waitMilliseconds()
{
    BasicsFixture f;
    f.clock.now = 1000;
    f.basics.WaitMilliseconds(FETCH(double, ms));
    QCOMPARE(f.clock.now - 1000, FETCH(qint64, waited));
}

void TestBasicWaits::waitForFileReadyIsTenMilliseconds()
{
    BasicsFixture f;
    f.basics.WaitForFileReady(QStringLiteral("C:\\never-made.txt"));
    QCOMPARE(f.clock.waits, QList<qint64>{10});
    QVERIFY(f.ui.boxes.isEmpty());
}

void TestBasicWaits::waitForFolderGoneAsksEveryHalfMinute_data()
{
    QTest::addColumn<QList<int>>("answers");
    QTest::addColumn<int>("questions");
    QTest::newRow("No at once") << QList<int>{kAnswerNo} << 1;
    QTest::newRow("Yes, then No") << QList<int>{kAnswerYes, kAnswerNo} << 2;
}

void TestBasicWaits::waitForFolderGoneAsksEveryHalfMinute()
{
    BasicsFixture f;
    f.home.makeFolder("stuck");
    QFETCH(QList<int>, answers);
    for (int answer : answers)
        f.ui.answers.enqueue(answer);
    f.basics.WaitForFolderGone(QStringLiteral("C:\\stuck"));
    QCOMPARE(f.ui.questions.size(), FETCH(int, questions));
    for (const QString& question : f.ui.questions)
        QCOMPARE(question,
                 QStringLiteral("フォルダーの削除を待って30秒経過しました。継続しますか？"));
    QCOMPARE(f.clock.now, qint64(30000) * f.ui.questions.size());
}

void TestBasicWaits::floatingMessageEveryOtherCall()
{
    BasicsFixture f;
    for (int i = 1; i <= 5; ++i)
        f.basics.ShowFloatingMessage(100 * i, 50, QStringLiteral("hint %1").arg(i));
    // The odd calls show, each for 1000 ms, and the message is down again.
    QCOMPARE(f.ui.messages.size(), 3);
    QCOMPARE(f.ui.messages[1].text, QStringLiteral("hint 3"));
    QCOMPARE(f.ui.messages[1].left, 300);
    QCOMPARE(f.clock.waits, (QList<qint64>{1000, 1000, 1000}));
    QVERIFY(!f.ui.messageShown);
}

void TestBasicWaits::floatingMessageQuietInAutoPage()
{
    BasicsFixture f;
    f.state.AutoPageOn = true;
    f.basics.ShowFloatingMessage(0, 0, QStringLiteral("a"));
    f.state.AutoPageOn = false;
    f.basics.ShowFloatingMessage(0, 0, QStringLiteral("b")); // still the first counted call
    QCOMPARE(f.ui.messages.size(), 1);
    QCOMPARE(f.ui.messages[0].text, QStringLiteral("b"));
}

void TestBasicWaits::padToWidth_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("width");
    QTest::addColumn<QString>("result");
    QTest::addColumn<bool>("box");
    QTest::newRow("exact") << "abcde" << 5 << "abcde" << false;
    QTest::newRow("too long") << "abcdef" << 5 << "" << true;
}

void TestBasicWaits::padToWidth()
{
    BasicsFixture f;
    QCOMPARE(f.basics.PadToWidth(FETCH(QString, text), FETCH(int, width)), FETCH(QString, result));
    QCOMPARE(f.ui.boxes,
             FETCH(bool, box) ? QStringList{" Line text is bigger than you want"} : QStringList());
}

void TestBasicWaits::movieWrapperPage()
{
    BasicsFixture f;
    f.basics.MakeMovieWrapperHtml(QStringLiteral("C:\\movies\\trip.mov"),
                                  QStringLiteral("C:\\Lumentas\\ForProgramRun_KDR\\TempHTML.HTML"));
    const QByteArray expected =
        "<HTML>\r\n"
        "<HEAD>\r\n"
        "<TITLE></TITLE>\r\n"
        "</HEAD>\r\n"
        "<BODY BGCOLOR=#000048>\r\n"
        "<BODY TOPMARGIN=0 MARGINHEIGHT=0 LEFTMARGIN=0 MARGINWIDTH=0 scroll=\"no\">\r\n"
        "<OBJECT CLASSID=\"clsid:02BF25D5-8C17-4B23-BC80-D3488ABDDC6B\" WIDTH=100% HEIGHT=100% "
        "CODEBASE=\"http://www.apple.com/qtactivex/qtplugin.lzh\" scale=\"tofit\">\r\n"
        "<PARAM NAME=\"BgColor\" VALUE=\"#000048\">\r\n"
        "<param name=\"SRC\" value=C:\\movies\\trip.mov>\r\n"
        "<PARAM name=\"AUTOPLAY\" VALUE=\"true\">\r\n"
        "<PARAM name=\"CONTROLLER\" VALUE=\"true\">\r\n"
        "</OBJECT>\r\n"
        "</BODY BGCOLOR>\r\n"
        "</BODY>\r\n"
        "</HTML>\r\n";
    QCOMPARE(f.home.readFile("Lumentas/ForProgramRun_KDR/TempHTML.HTML"), expected);
}

void TestBasicWaits::browseForFolder()
{
    BasicsFixture f;
    f.home.makeFolder("chosen/inner");
    f.ui.folders.enqueue(f.home.native("chosen/inner/"));
    QString title = QStringLiteral("フォルダー");
    QCOMPARE(f.basics.BrowseForFolder(title), QStringLiteral("C:\\chosen\\inner"));
    QCOMPARE(f.home.fs.curDir().toUpper(), QStringLiteral("C:\\CHOSEN\\INNER"));
    QCOMPARE(f.basics.BrowseForFolder(title), QString()); // cancelled
}

void TestBasicWaits::picturesRoundTrip_data()
{
    QTest::addColumn<bool>("png");
    QTest::newRow("PNG") << true;
    QTest::newRow("JPEG") << false;
}

void TestBasicWaits::picturesRoundTrip()
{
    BasicsFixture f;
    QImage picture(40, 30, QImage::Format_RGB32);
    picture.fill(QColor(200, 40, 40));
    QFETCH(bool, png);
    const QString path = png ? QStringLiteral("C:\\p.png") : QStringLiteral("C:\\p.jpg");
    QVERIFY(png ? f.basics.SavePictureAsPNG(picture, path)
                : f.basics.SavePictureAsJPG(picture, path));
    QCOMPARE(f.clock.waits, QList<qint64>{10});
    const QImage back = f.basics.LoadPictureByPNGObject(path);
    QCOMPARE(back.size(), picture.size());
    QVERIFY(qAbs(back.pixelColor(20, 15).red() - 200) < 8);
    QVERIFY(f.basics.LoadPictureByPNGObject(QStringLiteral("C:\\none.png")).isNull());
}

QTEST_MAIN(TestBasicWaits)
#include "tst_BasicWaits.moc"

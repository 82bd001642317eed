// FormMain over the fakes: layout, opening a list, where a picture lands,
// every kind of page on its surface, the arrows and the page bar, copy,
// delete and recover.
#include "display/FormCDMusic.h"
#include "display/FormComment.h"
#include "display/MediaPanel.h"
#include "display/PictureBox.h"
#include "display/WebBrowser.h"
#include "list/CommandWords.h"
#include "list/ListLoader.h"
#include "platform/ClickLabel.h"
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "platform/FormRegistry.h"
#include "platform/Twips.h"
#include "show/FormMain.h"
#include "support/BasicsFixture.h"
#include "support/Fetch.h"
#include "support/PictureSamples.h"
#include "support/Shots.h"

#include <QCheckBox>
#include <QElapsedTimer>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTest>

using namespace lumen;
using namespace lumen::test;
using namespace Qt::StringLiterals;

namespace {

// The main window with the windows it calls on; with `pages`, a list on disk
// of that many pictures, page i waiting i seconds.
struct MainFixture : BasicsFixture {
    FormRegistry forms;
    FormMain main{basics, forms};

    explicit MainFixture(int pages = 0)
    {
        forms.add(u"FormComment"_s,
                  [this]() -> FormBase* { return new FormComment(basics, forms); });
        forms.add(u"FormCDMusic"_s, [this]() -> FormBase* { return new FormCDMusic(basics); });
        PutCommandToArray(basics);
        main.resize(900, 640);
        QByteArray list;
        for (int i = 1; i <= pages; ++i) {
            home.writeFile(u"pics/p%1.jpg"_s.arg(i), "jpeg");
            list += "C:\\pics\\p" + QByteArray::number(i) + ".jpg @DELAY=" + QByteArray::number(i) +
                    " ENDDELAY\r\n";
        }
        if (pages > 0)
            home.writeFile(u"show.lst"_s, list);
    }
    // Writes the list and opens it quickly (no half-minute view).
    void open(const QStringList& lines)
    {
        home.writeFile(u"show.lst"_s, lines.join(u"\r\n"_s).toUtf8());
        main.CheckQuiCkWork->setChecked(true);
        main.showForm();
        main.OpenFileList(u"C:\\show.lst"_s);
    }
};

} // namespace

class TestFormMain : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void layoutKeepsItsMinimumAndFramePlaces_data();
    void layoutKeepsItsMinimumAndFramePlaces();
    void openList_data();
    void openList();
    void listViewStandsBesideItsButton();
    void stopDuringALoad_data();
    void stopDuringALoad();
    void cleareDisp_data();
    void cleareDisp();
    void openingAList_data();
    void openingAList();
    void pictureIsPlaced_data();
    void pictureIsPlaced();
    void tallPictureAtItsOwnSizeOpensAtItsMiddle();
    void photoStandsUpright_data();
    void photoStandsUpright();
    void costlyPictureTurnsToABlankPage_data();
    void costlyPictureTurnsToABlankPage();
    void hugeListLineKeepsTheViewResponsive();
    void allowanceMarksOnlyLargeWebPages_data();
    void allowanceMarksOnlyLargeWebPages();
    void eachLineOnItsSurface_data();
    void eachLineOnItsSurface();
    void arrowsStopAtTheEnds();
    void pageBarShowsPicturesOnly();
    void forcedKindsActInAnyCase_data();
    void forcedKindsActInAnyCase();
    void copyNumbersTheCopies();
    void deleteRecoverAndRefuse();
};

void TestFormMain::layoutKeepsItsMinimumAndFramePlaces_data()
{
    QTest::addColumn<bool>("damaged");
    QTest::newRow("record") << false;
    QTest::newRow("damaged record") << true; // fonts, colours, auto start from nonsense
}

void TestFormMain::layoutKeepsItsMinimumAndFramePlaces()
{
    MainFixture f;
    if (FETCH(bool, damaged)) {
        QByteArray garbage(DirecDataRecord::kSize, '\0');
        for (int i = 0; i < garbage.size(); ++i)
            garbage[i] = char((i * 131 + 7) % 256);
        f.state.DirecData = DirecDataRecord::fromBytes(garbage);
    }
    f.main.showForm();
    f.main.resize(500, 300);
    f.main.Form_Resize();
    QVERIFY(f.main.isVisible());
    QVERIFY(twWidth(&f.main) >= 12000);
    QVERIFY(twHeight(&f.main) >= 8500);
    // The frames stand at the edges and the display area lies between them.
    QGroupBox *frame1 = f.main.Frame1, *frame2 = f.main.Frame2, *frame3 = f.main.Frame3;
    PictureBox* picture1 = f.main.Picture1;
    QVERIFY(qAbs(twLeft(frame1) + twWidth(frame1) + 10 - twScaleWidth(&f.main)) <= 15);
    QVERIFY(qAbs(twTop(frame3) + twHeight(frame3) + 10 - twScaleHeight(&f.main)) <= 15);
    QVERIFY(qAbs(twLeft(picture1) - 110) <= 15);
    QCOMPARE(twTop(picture1), twTop(frame2) + twHeight(frame2));
    QVERIFY(twTop(picture1) + twHeight(picture1) <= twTop(frame3));
    QVERIFY(twLeft(picture1) + twWidth(picture1) <= twLeft(frame1));
    saveShot(&f.main, u"FormMain_empty"_s);
}

void TestFormMain::openList_data()
{
    QTest::addColumn<int>("pages");
    QTest::addColumn<bool>("quick");
    QTest::addColumn<int>("largeChange");
    QTest::newRow("12 pages, text for half a minute") << 12 << false << 1;
    QTest::newRow("10 pages, quick") << 10 << true << 1;
    QTest::newRow("35 pages, quick") << 35 << true << 3;
}

void TestFormMain::openList()
{
    QFETCH(int, pages);
    QFETCH(bool, quick);
    MainFixture f(pages);
    f.main.showForm();
    f.main.CheckQuiCkWork->setChecked(quick);
    bool textShownDuringWait = false;
    int secondWaits = 0;
    f.clock.onWait = [&](qint64 length) {
        if (length != 1000)
            return;
        textShownDuringWait = f.main.Text1->isVisible() && f.main.CommandNoText->isVisible() &&
                              f.main.Text1->toPlainText().startsWith(u"C:\\pics\\p1.jpg"_s);
        if (++secondWaits == 2)
            QTest::mouseClick(f.main.CommandNoText, Qt::LeftButton);
    };
    f.main.OpenFileList(u"C:\\show.lst"_s);
    QCOMPARE(textShownDuringWait, !quick);
    QCOMPARE(secondWaits, quick ? 0 : 2); // the click ended the half minute
    if (!quick)
        QCOMPARE(f.clock.waits.count(0), 29);
    QVERIFY(!f.main.Text1->isVisible());
    QCOMPARE(f.main.TextCount->text(), u"1"_s);
    QCOMPARE(f.main.TextTotal->text(), QString::number(pages));
    QCOMPARE(f.main.TextFileName->text(), u"C:\\pics\\p1.jpg"_s);
    QCOMPARE(f.main.HScrollPicNom->maximum(), pages);
    QCOMPARE(f.main.HScrollPicNom->pageStep(), FETCH(int, largeChange));
    QVERIFY(f.state.ListReady);
    QCOMPARE(f.state.ListArray.at(kColDelay, pages), QString::number(pages));
    QCOMPARE(f.host.stopEvents.last(), u"unload"_s); // taken down at the end
    QCOMPARE(f.main.windowTitle(), QString());       // the page is shown
}

void TestFormMain::listViewStandsBesideItsButton()
{
    MainFixture f;
    f.home.writeFile(u"show.lst"_s, "\tC:\\a.jpg  \r\n  C:\\b.jpg\u3000\r\n"_ba);
    f.main.showForm();
    QString seen;
    QRect text, button;
    f.clock.onWait = [&](qint64 length) {
        if (length != 1000 || !seen.isEmpty())
            return;
        seen = f.main.Text1->toPlainText();
        text = f.main.Text1->geometry();
        button = f.main.CommandNoText->geometry();
        QTest::mouseClick(f.main.CommandNoText, Qt::LeftButton);
    };
    f.main.OpenFileList(u"C:\\show.lst"_s);
    // Blanks trimmed, nothing else: the tab and the ideographic space stay.
    QCOMPARE(seen, u"\tC:\\a.jpg\nC:\\b.jpg\u3000"_s);
    // The button 100 twips beside the text, inside the display area.
    QCOMPARE(button.left() - (text.right() + 1), twipsToPixels(100));
    QVERIFY(!text.intersects(button));
    QVERIFY(QRect(QPoint(0, 0), f.main.Picture1->size()).contains(button));
}

void TestFormMain::stopDuringALoad_data()
{
    QTest::addColumn<bool>("stopAtLine100"); // Stop pressed as line 100 of the list is read
    QTest::addColumn<bool>("before");        // Stop was pressed before the load began
    QTest::addColumn<int>("fileCount");
    QTest::newRow("at line 100: the rows read") << true << false << 99;
    QTest::newRow("a stop left from before doesn't count") << false << true << 200;
}

void TestFormMain::stopDuringALoad()
{
    MainFixture f(6);
    f.main.CheckQuiCkWork->setChecked(true);
    f.main.showForm();
    f.main.OpenFileList(u"C:\\show.lst"_s);
    QCOMPARE(f.main.FileCount, 6);
    QByteArray lines;
    for (int i = 1; i <= 200; ++i)
        lines += "C:\\q" + QByteArray::number(i) + ".jpg\r\n";
    f.home.writeFile(u"long.lst"_s, lines);
    f.host.stopEvents.clear();
    const bool stopAt100 = FETCH(bool, stopAtLine100);
    f.clock.onDoEvents = [&] {
        if (stopAt100 && f.state.ListArray.at(kColMain, 99) == u"C:\\q99.jpg"_s)
            f.state.StopRequested = true;
    };
    f.state.StopRequested = FETCH(bool, before);
    f.main.OpenFileList(u"C:\\long.lst"_s);
    QCOMPARE(f.main.FileCount, FETCH(int, fileCount));
    // Stopped, the load leaves FormStop up and the page as it was.
    QCOMPARE(f.host.stopEvents.last(), stopAt100 ? u"show"_s : u"unload"_s);
    QCOMPARE(f.main.TextTotal->text(), stopAt100 ? u"6"_s : u"200"_s);
}

void TestFormMain::cleareDisp_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QStringList>("kept");
    QTest::newRow("pic acts as PIC") << " pic " << QStringList{"Picture2", "Picture3"};
    QTest::newRow("TXT keeps the text") << "TXT" << QStringList{"Text1"};
    QTest::newRow("MPL keeps the video") << "MPL" << QStringList{"MediaPlayer1"};
    QTest::newRow("MIDI keeps the sound panel") << "MIDI" << QStringList{"MediaPlayer2"};
    QTest::newRow("WEB keeps the web view") << "WEB" << QStringList{"WebBrowser1"};
    QTest::newRow("empty clears all") << "" << QStringList();
}

void TestFormMain::cleareDisp()
{
    MainFixture f;
    f.main.showForm();
    const QStringList surfaces = {"MediaPlayer1", "MediaPlayer2", "WebBrowser1",
                                  "Text1",        "Picture2",     "Picture3"};
    for (const QString& name : surfaces)
        f.main.findChild<QWidget*>(name)->show();
    QImage picture(20, 20, QImage::Format_RGB32);
    f.main.Picture2->setPicture(picture);
    f.main.Text1->setPlainText(u"text"_s);
    f.main.CleareDisp(FETCH(QString, kind));
    QFETCH(QStringList, kept);
    for (const QString& name : surfaces)
        QCOMPARE(f.main.findChild<QWidget*>(name)->isVisible(), kept.contains(name));
    QCOMPARE(f.main.Picture2->hasPicture(), kept.contains("Picture2"));
    QCOMPARE(f.main.Text1->toPlainText().isEmpty(), !kept.contains("Text1"));
}

void TestFormMain::openingAList_data()
{
    QTest::addColumn<bool>("byButton"); // else the last list started when the window loads
    QTest::addColumn<QString>("name");  // chosen in the dialog (under home, "" = cancel) or last
    QTest::addColumn<QString>("shown");
    QTest::newRow("button: a list in capitals")
        << true << u"shows/SHOW.LST"_s << u"C:\\pics\\p2.jpg"_s;
    QTest::newRow("button: not a list") << true << u"pics/p1.jpg"_s << QString();
    QTest::newRow("button: cancel") << true << QString() << QString();
    QTest::newRow("auto start: a picture")
        << false << u"C:\\pics\\p3.jpg"_s << u"C:\\pics\\p3.jpg"_s;
    QTest::newRow("auto start: a list that is gone")
        << false << u"C:\\pics\\gone.lst"_s << QString();
}

void TestFormMain::openingAList()
{
    MainFixture f(3);
    f.home.writeFile("shows/SHOW.LST", "C:\\pics\\p2.jpg\r\n");
    f.main.CheckQuiCkWork->setChecked(true);
    QFETCH(QString, name);
    QFETCH(QString, shown);
    if (FETCH(bool, byButton)) {
        f.state.AccessPassDir = u"C:\\pics"_s;
        f.ui.fileNames.enqueue(name.isEmpty() ? std::optional<QString>()
                                              : std::optional<QString>(f.home.native(name)));
        QTest::mouseClick(f.main.CommandOpenFileList, Qt::LeftButton);
        QCOMPARE(f.ui.dialogStarts, QStringList{f.home.native("pics")});
        if (!shown.isEmpty()) {
            QCOMPARE(f.home.readFile("Lumentas/ForProgramRun_KDR/AccessPass.dat"),
                     QByteArray("C:\\shows\r\n"));
            QCOMPARE(f.state.StartFileName, u"C:\\shows\\"_s + name.mid(6));
        }
    } else {
        f.state.DirecData.ListAutoStart = kTrue;
        f.state.DirecData.LastListFile = name;
        f.main.showForm();
        QCOMPARE(f.home.readFile("Lumentas/RunFile.Lst"),
                 shown.isEmpty() ? QByteArray() : (shown + "\r\n").toUtf8());
    }
    QCOMPARE(f.main.TextFileName->text(), shown);
    QCOMPARE(f.home.exists("Lumentas/RunFile.Lst"), !shown.isEmpty());
    QVERIFY(f.ui.boxes.isEmpty());
}

void TestFormMain::pictureIsPlaced_data()
{
    QTest::addColumn<int>("w"); // -1: as wide as the area
    QTest::addColumn<int>("h");
    QTest::newRow("small_picture") << 100 << 60; // at its own size
    QTest::newRow("fitted_wide") << 3000 << 1000;
    QTest::newRow("fitted_tall") << 800 << 2400;
    QTest::newRow("as wide") << -1 << 40; // takes the shrink path at 1.0
}

void TestFormMain::pictureIsPlaced()
{
    MainFixture f;
    f.main.showForm();
    PictureBox* p1 = f.main.Picture1;
    const int w = FETCH(int, w) < 0 ? p1->width() : FETCH(int, w);
    const int h = FETCH(int, h);
    f.open({f.home.picture("pic.png", w, h)});
    const double fit = qMax(w / double(p1->width()), h / double(p1->height()));
    const bool shrunk = fit >= 1.0;
    PictureBox* shown = shrunk ? f.main.Picture3 : f.main.Picture2;
    QVERIFY(shown->isVisible());
    if (shrunk) {
        QVERIFY(qAbs(f.main.FitRatio - fit) < 0.01);
        QCOMPARE(f.main.Picture2->size(), QSize(0, 0)); // the measuring rectangle is spent
    } else {
        QVERIFY(!f.main.Picture3->isVisible());
    }
    QVERIFY(qAbs(shown->width() - w / qMax(fit, 1.0)) <= 1);
    QVERIFY(qAbs(shown->height() - h / qMax(fit, 1.0)) <= 1);
    // Centred in both directions (flush in the one that fits).
    QVERIFY(qAbs(shown->x() - (p1->width() - shown->width()) / 2) <= 1);
    QVERIFY(qAbs(shown->y() - (p1->height() - shown->height()) / 2) <= 1);
    saveShot(&f.main, u"FormMain_"_s + QTest::currentDataTag());
}

void TestFormMain::tallPictureAtItsOwnSizeOpensAtItsMiddle()
{
    MainFixture f;
    f.main.showForm(); // loading takes the box from the record
    f.main.CheckOriginalSize->setChecked(true);
    f.open({f.home.picture("tall.png", 300, 2000)});
    PictureBox* p2 = f.main.Picture2;
    QScrollBar* bar = f.main.VScroll1;
    const int excess = int(twHeight(p2) - twHeight(f.main.Picture1));
    QCOMPARE(f.main.ExcessHeight, excess);
    QCOMPARE(bar->maximum(), int(excess * 1.1 / 15));
    QCOMPARE(bar->value(), bar->maximum() / 2);
    QVERIFY(twTop(p2) < 0 && twTop(p2) > -excess); // at its middle
    bar->setValue(0);
    QCOMPARE(twTop(p2), 0.f); // not Picture1's top: clamped at 0
    bar->setValue(bar->maximum());
    QCOMPARE(twTop(p2), float(-excess));
    saveShot(&f.main, u"FormMain_tall_original_size"_s);
}

void TestFormMain::photoStandsUpright_data()
{
    QTest::addColumn<int>("orientation");
    QTest::addColumn<int>("scale"); // 1: at its own size; 20: fitted to the area
    QTest::addColumn<bool>("turned");
    QTest::addColumn<QColor>("topLeft");
    const QColor red(Qt::red), green(Qt::green), blue(Qt::blue), yellow(Qt::yellow);
    QTest::newRow("1 as stored") << 1 << 1 << false << red;
    QTest::newRow("2 mirrored") << 2 << 1 << false << green;
    QTest::newRow("3 half a turn") << 3 << 1 << false << yellow;
    QTest::newRow("4 flipped") << 4 << 1 << false << blue;
    QTest::newRow("5 transposed") << 5 << 1 << true << red;
    QTest::newRow("6 a quarter clockwise") << 6 << 1 << true << blue;
    QTest::newRow("7 transversed") << 7 << 1 << true << yellow;
    QTest::newRow("8 a quarter back") << 8 << 1 << true << green;
    QTest::newRow("6 fitted") << 6 << 20 << true << blue;
    QTest::newRow("8 fitted") << 8 << 20 << true << green;
}

// A photo with its EXIF orientation stands upright: placed with its upright
// width and height, the right corner at the top left.
void TestFormMain::photoStandsUpright()
{
    MainFixture f;
    f.main.showForm();
    const int scale = FETCH(int, scale);
    const QImage stored = quarteredPicture().scaled(quarteredPicture().size() * scale);
    f.home.writeFile(u"photo.jpg"_s, jpegWithOrientation(stored, FETCH(int, orientation)));
    f.main.CheckOriginalSize->setChecked(scale == 1); // a small one at its own size
    f.open({u"C:\\photo.jpg"_s});
    const QSize upright = FETCH(bool, turned) ? stored.size().transposed() : stored.size();
    PictureBox* shown = scale == 1 ? f.main.Picture2 : f.main.Picture3;
    QVERIFY(shown->isVisible());
    if (scale == 1) {
        QCOMPARE(shown->size(), upright);
    } else {
        QVERIFY(shown->height() <= f.main.Picture1->height());
        QVERIFY(qAbs(shown->width() * upright.height() - shown->height() * upright.width()) <=
                upright.height());
    }
    const QColor corner = shown->picture().pixelColor(0, 0);
    const QColor expected = FETCH(QColor, topLeft);
    QVERIFY2(qAbs(corner.red() - expected.red()) + qAbs(corner.green() - expected.green()) +
                     qAbs(corner.blue() - expected.blue()) <
                 60,
             qPrintable(corner.name()));
}

void TestFormMain::costlyPictureTurnsToABlankPage_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("bits");
    QTest::newRow("30000 by 30000 PNG, 8 bits") << 30000 << 8;
    QTest::newRow("8000 by 8000 PNG, 16 bits") << 8000 << 16;
}

// A picture that would cost too much is refused by its header: the page
// turns to it at once and stays blank, and memory stays low, fitted and at
// its own size alike.
void TestFormMain::costlyPictureTurnsToABlankPage()
{
    MainFixture f;
    const int size = FETCH(int, size);
    f.home.writeFile(u"costly.png"_s, uniformPng(size, size, FETCH(int, bits)));
    f.main.showForm();
    f.open({f.home.picture(u"small.png"_s), u"C:\\costly.png"_s});
    const auto peakKb = [] {
        QFile status(u"/proc/self/status"_s);
        status.open(QIODevice::ReadOnly);
        for (const QByteArray& line : status.readAll().split('\n')) {
            if (line.startsWith("VmHWM:"))
                return line.mid(6).trimmed().split(' ').first().toLong();
        }
        return 0L;
    };
    const long before = peakKb();
    QElapsedTimer timer;
    timer.start();
    f.main.CommandRight->click();
    f.main.repaint();
    QVERIFY2(timer.elapsed() < 200, qPrintable(QString::number(timer.elapsed()) + u" ms"_s));
    QCOMPARE(f.main.TextFileName->text(), u"C:\\costly.png"_s);
    QVERIFY(!f.main.Picture2->hasPicture());
    QVERIFY(f.main.Picture3->picture().isNull());
    f.main.CheckOriginalSize->setChecked(true);
    f.main.Form_Resize(); // and at its own size
    f.main.repaint();
    QVERIFY(!f.main.Picture2->hasPicture());
    QVERIFY(peakKb() - before < 400 * 1024);
}

// A list line of 2 MB: the view shows it cut, and the list is ready through
// CommandNoText within two seconds.
void TestFormMain::hugeListLineKeepsTheViewResponsive()
{
    MainFixture f;
    const QByteArray huge = "C:\\a.jpg @COMMENT=<<<<<" + QByteArray(2000000, 'x') + " ENDCOMMENT";
    f.home.writeFile(u"show.lst"_s, huge + "\r\nC:\\b.jpg\r\n");
    f.main.showForm();
    f.main.CheckQuiCkWork->setChecked(false);
    int longest = 0;
    f.clock.onWait = [&](qint64 length) {
        if (length != 1000 || !f.main.CommandNoText->isVisible())
            return;
        f.main.Text1->repaint(); // the text is laid out as it is shown
        for (const QString& line : f.main.Text1->toPlainText().split(u'\n'))
            longest = qMax(longest, int(line.size()));
        QTest::mouseClick(f.main.CommandNoText, Qt::LeftButton);
    };
    QElapsedTimer timer;
    timer.start();
    f.main.OpenFileList(u"C:\\show.lst"_s);
    QVERIFY(f.state.ListReady);
    QVERIFY2(timer.elapsed() < 2000, qPrintable(QString::number(timer.elapsed()) + u" ms"_s));
    QCOMPARE(longest, kLongestViewLine + 1);                        // cut, with a mark
    QCOMPARE(f.state.ListArray.at(kColComment, 1).size(), 2000007); // the list keeps it whole
    QCOMPARE(f.main.TextTotal->text(), u"2"_s);
}

void TestFormMain::allowanceMarksOnlyLargeWebPages_data()
{
    QTest::addColumn<int>("allowance");
    QTest::addColumn<int>("excess"); // pixels below the display area
    QTest::addColumn<bool>("large");
    QTest::newRow("default 20, excess 2100 twips") << 20 << 140 << true;
    QTest::newRow("default 20, excess 2085 twips") << 20 << 139 << false;
    QTest::newRow("allowance 40, excess 3000 twips") << 40 << 200 << false;
    QTest::newRow("default 20, excess 6000 twips") << 20 << 400 << true;
}

void TestFormMain::allowanceMarksOnlyLargeWebPages()
{
    MainFixture f;
    f.home.writeFile("w.html", "<html><body>x</body></html>");
    f.main.showForm();
    f.state.PictureSizeAllowVal = FETCH(int, allowance);
    f.media.webs[0]->pageSize =
        QSize(f.main.Picture1->width(), f.main.Picture1->height() + FETCH(int, excess));
    f.open({u"C:\\w.html"_s});
    QCOMPARE(f.main.LargePictureFlag, FETCH(bool, large));
    QVERIFY(f.main.VScroll1->isVisible());
}

void TestFormMain::eachLineOnItsSurface_data()
{
    QTest::addColumn<QString>("lines"); // the last one is shown
    QTest::addColumn<bool>("hideSounds");
    QTest::addColumn<QString>("look");
    QTest::newRow("picture") << u"C:\\p.png"_s << false << u"Picture2"_s;
    QTest::newRow("text") << u"C:\\t.txt"_s << false << u"Text1 text=一行目\n二行目"_s;
    QTest::newRow("video") << u"C:\\v.avi"_s << false << u"MediaPlayer1 open ~/v.avi"_s;
    QTest::newRow("midi") << u"C:\\m.mid"_s << false << u"MediaPlayer2 open ~/m.mid"_s;
    QTest::newRow("web page") << u"C:\\w.html"_s << false << u"WebBrowser1 web=~/w.html"_s;
    QTest::newRow("sound") << u"C:\\s.wav"_s << false << u" sound=~/s.wav"_s;
    QTest::newRow("missing file") << u"C:\\none.jpg"_s << false
                                  << u" caption=File Niot Found C:\\none.jpg"_s;
    // Not the last page's picture.
    QTest::newRow("zero bytes") << u"C:\\p.png\nC:\\empty.jpg"_s << false << QString();
    QTest::newRow("truncated JPEG") << u"C:\\p.png\nC:\\cut.jpg"_s << false << QString();
    QTest::newRow("companion sound")
        << u"C:\\p.png @WITH=C:\\s.wav ENDWITH"_s << false << u"Picture2 sound=~/s.wav"_s;
    QTest::newRow("companion hidden")
        << u"C:\\p.png @WITH=C:\\s.wav ENDWITH"_s << true << u"Picture2"_s;
    QTest::newRow("comment") << u"C:\\p.png @COMMENT=<<<<<一行<<<<<二行 ENDCOMMENT"_s << false
                             << u"Picture2 comment=一行\r\n二行"_s;
    QTest::newRow("comment without the mark loses two characters")
        << u"C:\\p.png @COMMENT=abcdef ENDCOMMENT"_s << false << u"Picture2 comment=cdef"_s;
    QTest::newRow("comment file") << u"C:\\p.png @FILECOMMENT=C:\\note.txt ENDFILECOMMENT"_s
                                  << false << u"Picture2 comment=ファイルの\r\nコメント"_s;
}

void TestFormMain::eachLineOnItsSurface()
{
    MainFixture f;
    f.home.picture("p.png", 60, 40);
    f.home.writeFile("t.txt", "一行目\r\n二行目");
    for (const char* name : {"v.avi", "m.mid", "w.html", "s.wav"})
        f.home.writeFile(name, "x");
    f.home.writeFile("note.txt", u"ファイルの\r\nコメント\r\n"_s.toUtf8());
    f.home.writeFile("empty.jpg", QByteArray());
    f.home.writeFile("cut.jpg", QByteArray("\xFF\xD8\xFF\xE0\x00\x10JFIF\x00", 11));
    f.main.CheckWaveHide->setChecked(FETCH(bool, hideSounds));
    const QStringList lines = FETCH(QString, lines).split(u'\n');
    f.open(lines);
    for (int page = 1; page < lines.size(); ++page)
        QTest::mouseClick(f.main.CommandRight, Qt::LeftButton);

    const auto local = [&f](QString path) { return path.replace(f.home.path(), u"~"_s); };
    QStringList surfaces;
    for (const char* name :
         {"Picture2", "Picture3", "Text1", "WebBrowser1", "MediaPlayer1", "MediaPlayer2"}) {
        auto* w = f.main.findChild<QWidget*>(name);
        auto* picture = qobject_cast<PictureBox*>(w);
        if (w->isVisible() && w->width() > 0 && w->height() > 0 &&
            (!picture || picture->hasPicture())) // an empty picture box shows nothing
            surfaces << QString::fromLatin1(name);
    }
    QString look = surfaces.join(u',');
    if (!f.main.windowTitle().isEmpty())
        look += u" caption="_s + f.main.windowTitle();
    for (const QString& sound : f.media.sounds)
        look += u" sound="_s + local(sound);
    for (FakeEngine* engine : f.media.engines)
        for (const QString& call : engine->calls.filter(QRegularExpression(u"^open "_s)))
            look += u' ' + local(call);
    if (f.main.Text1->isVisible())
        look += u" text="_s + f.main.Text1->toPlainText();
    if (f.state.WebPageShown)
        look += u" web="_s + local(f.media.webs[0]->url().toLocalFile());
    auto* comment = static_cast<FormComment*>(f.forms.existing(u"FormComment"_s));
    if (comment && comment->isVisible())
        look += u" comment="_s + comment->commentText();
    QCOMPARE(look, FETCH(QString, look));
    if (comment)
        saveShot(comment, u"FormComment_on_page"_s);
}

void TestFormMain::arrowsStopAtTheEnds()
{
    MainFixture f;
    f.open({f.home.picture("a.png", 30, 30), f.home.picture("b.png", 30, 30)});
    QTest::mouseClick(f.main.CommandRight, Qt::LeftButton);
    QCOMPARE(f.state.PicNo, qint16(2));
    QCOMPARE(f.main.TextCount->text(), u"2"_s);
    QCOMPARE(f.main.HScrollPicNom->value(), 2);
    QTest::mouseClick(f.main.CommandRight, Qt::LeftButton);
    QCOMPARE(f.state.PicNo, qint16(2)); // stays on the last page
    QCOMPARE(backColor(f.main.LabelMax), kColorRed);
    QTest::mouseClick(f.main.CommandLeft, Qt::LeftButton);
    QCOMPARE(backColor(f.main.LabelMax), kColorGrey);
    QTest::mouseClick(f.main.CommandLeft, Qt::LeftButton);
    QCOMPARE(f.state.PicNo, qint16(1));
    QCOMPARE(backColor(f.main.LabelSmall), kColorRed);
    QCOMPARE(f.main.TextFileName->text(), u"C:\\a.png"_s);
}

void TestFormMain::pageBarShowsPicturesOnly()
{
    MainFixture f;
    f.home.writeFile("t.txt", "text");
    f.open({f.home.picture("a.png", 30, 30), u"C:\\t.txt"_s, f.home.picture("c.png", 200, 100)});
    // The bar's first change after a first list is the program's own (its
    // guard stays up while TextFileName is still empty): the arrows clear it.
    QTest::mouseClick(f.main.CommandRight, Qt::LeftButton);
    QTest::mouseClick(f.main.CommandLeft, Qt::LeftButton);
    f.main.HScrollPicNom->setValue(2); // a text page isn't played from the bar
    QCOMPARE(f.state.PicNo, qint16(2));
    QCOMPARE(f.main.TextFileName->text(), u"C:\\t.txt"_s);
    QVERIFY(!f.main.Text1->isVisible());
    QTest::mouseClick(f.main.LabelDo, Qt::LeftButton); // LabelDo plays it
    QVERIFY(f.main.Text1->isVisible());

    // Each change of the bar sets TextCount, whose change raises the guard
    // again: the next change is taken as the program's own.
    f.main.HScrollPicNom->setValue(3);
    QCOMPARE(f.main.TextFileName->text(), u"C:\\t.txt"_s);
    QVERIFY(!f.main.ScrollGuard);
    f.main.HScrollPicNom->setValue(1);
    QCOMPARE(f.main.TextFileName->text(), u"C:\\a.png"_s);
    QCOMPARE(f.main.Picture2->pictureSize(), QSize(30, 30));
    QVERIFY(f.main.ScrollGuard);
}

void TestFormMain::forcedKindsActInAnyCase_data()
{
    // The kind a line of SendToList.txt forces on the page's file, and what a
    // new size of the window does with the page.
    QTest::addColumn<QString>("kind");
    QTest::addColumn<bool>("pictureRedone");
    QTest::addColumn<bool>("textOverTheArea");
    QTest::newRow("none: the picture is redone") << QString() << true << false;
    QTest::newRow("SHOW_NON: nothing") << "SHOW_NON" << false << false;
    QTest::newRow("show_non: nothing") << "show_non" << false << false;
    QTest::newRow("Show_Text: the text pane") << "Show_Text" << false << true;
}

void TestFormMain::forcedKindsActInAnyCase()
{
    MainFixture f;
    QFETCH(QString, kind);
    if (!kind.isEmpty())
        f.home.writeFile("Lumentas/ForProgramRun_KDR/SendToList.txt",
                         (kind + u",AUTO_START,FORCED\r\n"_s).toUtf8());
    f.main.CheckAuto_With();
    f.open({f.home.picture("forced.png", 30, 30)});
    QVERIFY(f.main.Picture2->isVisible());
    f.main.Picture2->hide();
    f.main.Text1->setGeometry(0, 0, 10, 10);
    f.main.resize(f.main.size() + QSize(60, 40));
    f.main.Form_Resize();
    QCOMPARE(f.main.Picture2->isVisible(), FETCH(bool, pictureRedone));
    QCOMPARE(f.main.Text1->size() == f.main.Picture1->size(), FETCH(bool, textOverTheArea));
}

void TestFormMain::copyNumbersTheCopies()
{
    MainFixture f;
    f.open({f.home.picture("shots/a.png", 30, 30)});
    QTest::mouseClick(f.main.CommandCopy, Qt::LeftButton);
    QTest::mouseClick(f.main.CommandCopy, Qt::LeftButton);
    QVERIFY(f.home.exists("Lumentas/MyPicture_001.png"));
    QVERIFY(f.home.exists("Lumentas/MyPicture_002.png"));
    QCOMPARE(f.main.TextNum->text(), u"003"_s);
    f.main.TextNum->clear();
    QTest::mouseClick(f.main.CommandCopy, Qt::LeftButton);
    QVERIFY(f.home.exists("Lumentas/MyPicture.png"));
    QCOMPARE(f.ui.beeps, 3);
    QCOMPARE(backColor(f.main.CommandCopy), kColorGrey);
    f.main.TextHeadName->setText(u"Trip"_s);
    QCOMPARE(f.main.TextNum->text(), u"001"_s);
}

void TestFormMain::deleteRecoverAndRefuse()
{
    MainFixture f;
    f.home.writeFile("world.wrl", "#VRML");
    f.open({f.home.picture("a.png", 30, 30), f.home.picture("b.png", 30, 30), u"C:\\world.wrl"_s});
    const QByteArray original = f.home.readFile("a.png");
    QTest::mouseClick(f.main.CommandDeleate, Qt::LeftButton);
    QVERIFY(!f.home.exists("a.png"));
    QCOMPARE(f.home.readFile("Lumentas/ForProgramRun_KDR/DelTempF.png"), original);
    QCOMPARE(f.home.readFile("Lumentas/ForProgramRun_KDR/DelTempFName.txt"),
             QByteArray("C:\\Lumentas\\ForProgramRun_KDR\\DelTempF.png,C:\\a.png\r\n"));
    QVERIFY(!f.main.Picture2->hasPicture());

    QTest::mouseClick(f.main.CommandRecov, Qt::LeftButton);
    QCOMPARE(f.home.readFile("a.png"), original);
    QVERIFY(!f.home.exists("Lumentas/ForProgramRun_KDR/DelTempF.png"));
    QVERIFY(!f.home.exists("Lumentas/ForProgramRun_KDR/DelTempFName.txt"));
    QVERIFY(f.main.Picture2->hasPicture());                 // shown again
    QTest::mouseClick(f.main.CommandRecov, Qt::LeftButton); // only once
    QCOMPARE(f.ui.beeps, 2);

    // A second delete writes over the record of the first.
    QTest::mouseClick(f.main.CommandDeleate, Qt::LeftButton);
    QTest::mouseClick(f.main.CommandRight, Qt::LeftButton);
    QTest::mouseClick(f.main.CommandDeleate, Qt::LeftButton);
    QTest::mouseClick(f.main.CommandRecov, Qt::LeftButton);
    QVERIFY(f.home.exists("b.png"));
    QVERIFY(!f.home.exists("a.png"));

    // A kind made of many files is not deleted.
    QTest::mouseClick(f.main.CommandRight, Qt::LeftButton);
    QTest::mouseClick(f.main.CommandDeleate, Qt::LeftButton);
    QVERIFY(f.home.exists("world.wrl"));
    QCOMPARE(f.ui.boxes.last(),
             u"複数のﾌｧｲﾙを含むため消去はしません。別の方法で削除してください"_s);
}

QTEST_MAIN(TestFormMain)
#include "tst_FormMain.moc"

// FormMain driven by its object names: layout, opening a list, the list
// view, the display reset and closing.
#include "MainFixture.h"
#include "display/PictureBox.h"
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "platform/FormRegistry.h"
#include "show/FormLumentaExit.h"
#include "show/FormMain.h"
#include "support/Fetch.h"
#include "support/Shots.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

using namespace lumen;
using namespace lumen::test;

namespace {

// The main window with a list of `pages` pictures on disk, page i waiting i seconds.
struct ListFixture : MainFixture {
    explicit ListFixture(int pages = 3)
    {
        QByteArray list;
        for (int i = 1; i <= pages; ++i) {
            home.writeFile(QStringLiteral("pics/p%1.jpg").arg(i), "jpeg");
            list += "C:\\pics\\p" + QByteArray::number(i) + ".jpg @DELAY=" + QByteArray::number(i) +
                    " ENDDELAY\r\n";
        }
        home.writeFile("show.lst", list);
    }
};

} // namespace

class TestFormMain : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void layoutKeepsItsMinimumAndFramePlaces();
    void openListShowsItsTextForHalfAMinute();
    void quickOpenGoesStraightToThePage_data();
    void quickOpenGoesStraightToThePage();
    void cleareDisp_data();
    void cleareDisp();
    void openFileListButton_data();
    void openFileListButton();
    void closingSavesTheRecord();
    void autoStartOfAPicture();
    void damagedRecordLoads();
};

void TestFormMain::layoutKeepsItsMinimumAndFramePlaces()
{
    ListFixture f;
    f.main.showForm();
    f.main.resize(500, 300);
    f.main.Form_Resize();
    QVERIFY(twWidth(&f.main) >= 12000);
    QVERIFY(twHeight(&f.main) >= 8500);
    // The frames stand at the edges and the display area lies between them.
    auto* frame1 = f.find<QGroupBox>("Frame1");
    auto* frame2 = f.find<QGroupBox>("Frame2");
    auto* frame3 = f.find<QGroupBox>("Frame3");
    auto* picture1 = f.find<PictureBox>("Picture1");
    QVERIFY(qAbs(twLeft(frame1) + twWidth(frame1) + 10 - twScaleWidth(&f.main)) <= 15);
    QVERIFY(qAbs(twTop(frame3) + twHeight(frame3) + 10 - twScaleHeight(&f.main)) <= 15);
    QVERIFY(qAbs(twLeft(picture1) - 110) <= 15);
    QCOMPARE(twTop(picture1), twTop(frame2) + twHeight(frame2));
    QVERIFY(twTop(picture1) + twHeight(picture1) <= twTop(frame3));
    QVERIFY(twLeft(picture1) + twWidth(picture1) <= twLeft(frame1));
    saveShot(&f.main, QStringLiteral("FormMain_empty"));
}

void TestFormMain::openListShowsItsTextForHalfAMinute()
{
    ListFixture f(12);
    f.main.showForm();
    auto* noText = f.find<QPushButton>("CommandNoText");
    auto* text1 = f.find<QPlainTextEdit>("Text1");
    bool textShownDuringWait = false;
    int secondWaits = 0;
    f.clock.onWait = [&](qint64 length) {
        if (length != 1000)
            return;
        textShownDuringWait = text1->isVisible() && noText->isVisible() &&
                              text1->toPlainText().startsWith(QStringLiteral("C:\\pics\\p1.jpg"));
        if (++secondWaits == 2)
            QTest::mouseClick(noText, Qt::LeftButton);
    };
    f.main.OpenFileList(QStringLiteral("C:\\show.lst"));

    QVERIFY(textShownDuringWait);
    QCOMPARE(secondWaits, 2); // the click ended the half minute
    QCOMPARE(f.clock.waits.count(0), 29);
    QCOMPARE(f.find<QLineEdit>("TextCount")->text(), QStringLiteral("1"));
    QCOMPARE(f.find<QLineEdit>("TextTotal")->text(), QStringLiteral("12"));
    QCOMPARE(f.find<QLineEdit>("TextFileName")->text(), QStringLiteral("C:\\pics\\p1.jpg"));
    QCOMPARE(f.find<QScrollBar>("HScrollPicNom")->maximum(), 12);
    QVERIFY(f.state.ListReady);
    QCOMPARE(f.state.ListArray.at(kColDelay, 12), QStringLiteral("12"));
    QCOMPARE(f.host.stopEvents.last(), QStringLiteral("unload")); // taken down at the end
}

void TestFormMain::quickOpenGoesStraightToThePage_data()
{
    QTest::addColumn<int>("pages");
    QTest::addColumn<int>("largeChange");
    QTest::newRow("10 pages") << 10 << 1;
    QTest::newRow("35 pages") << 35 << 3;
}

void TestFormMain::quickOpenGoesStraightToThePage()
{
    ListFixture f(FETCH(int, pages));
    f.main.showForm();
    f.find<QCheckBox>("CheckQuiCkWork")->setChecked(true);
    f.main.OpenFileList(QStringLiteral("C:\\show.lst"));
    QVERIFY(!f.clock.waits.contains(1000));
    QVERIFY(!f.find<QPlainTextEdit>("Text1")->isVisible());
    QVERIFY(f.state.ListReady);
    QCOMPARE(f.find<QScrollBar>("HScrollPicNom")->pageStep(), FETCH(int, largeChange));
    QCOMPARE(f.find<QLineEdit>("TextTotal")->text(), QString::number(FETCH(int, pages)));
    QCOMPARE(f.main.windowTitle(), QString()); // the page is shown
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
    ListFixture f;
    f.main.showForm();
    const QStringList surfaces = {"MediaPlayer1", "MediaPlayer2", "WebBrowser1",
                                  "Text1",        "Picture2",     "Picture3"};
    for (const QString& name : surfaces)
        f.main.findChild<QWidget*>(name)->show();
    QImage picture(20, 20, QImage::Format_RGB32);
    f.main.Picture2->setPicture(picture);
    f.main.Text1->setPlainText(QStringLiteral("text"));
    f.main.CleareDisp(FETCH(QString, kind));
    QFETCH(QStringList, kept);
    for (const QString& name : surfaces)
        QCOMPARE(f.main.findChild<QWidget*>(name)->isVisible(), kept.contains(name));
    QCOMPARE(f.main.Picture2->hasPicture(), kept.contains("Picture2"));
    QCOMPARE(f.main.Text1->toPlainText().isEmpty(), !kept.contains("Text1"));
}

void TestFormMain::openFileListButton_data()
{
    QTest::addColumn<QString>("chosen"); // relative to home; "" = cancel
    QTest::addColumn<bool>("opened");
    QTest::newRow("a list in capitals") << "shows/SHOW.LST" << true;
    QTest::newRow("not a list") << "pics/p1.jpg" << false;
    QTest::newRow("cancel") << "" << false;
}

void TestFormMain::openFileListButton()
{
    ListFixture f;
    f.home.writeFile("shows/SHOW.LST", "C:\\pics\\p2.jpg\r\n");
    f.state.AccessPassDir = QStringLiteral("C:\\pics");
    f.find<QCheckBox>("CheckQuiCkWork")->setChecked(true);
    QFETCH(QString, chosen);
    f.ui.fileNames.enqueue(chosen.isEmpty() ? std::optional<QString>()
                                            : std::optional<QString>(f.home.native(chosen)));
    QTest::mouseClick(f.find<QPushButton>("CommandOpenFileList"), Qt::LeftButton);
    QCOMPARE(f.ui.dialogStarts, QStringList{f.home.native("pics")});
    QFETCH(bool, opened);
    QCOMPARE(f.find<QLineEdit>("TextFileName")->text(),
             opened ? QStringLiteral("C:\\pics\\p2.jpg") : QString());
    QCOMPARE(f.home.exists("Lumentas/RunFile.Lst"), opened);
    if (opened) {
        QCOMPARE(f.home.readFile("Lumentas/ForProgramRun_KDR/AccessPass.dat"),
                 QByteArray("C:\\shows\r\n"));
        QCOMPARE(f.state.StartFileName, QStringLiteral("C:\\shows\\") + chosen.mid(6));
    }
}

void TestFormMain::closingSavesTheRecord()
{
    ListFixture f;
    int unloadAll = 0, ended = 0;
    f.main.links.unloadAllForms = [&] { ++unloadAll; };
    f.main.links.endProgram = [&] { ++ended; };
    f.main.showForm();
    f.find<QCheckBox>("CheckOriginalSize")->setChecked(true);
    QTest::mouseClick(f.find<QPushButton>("CommandExit"), Qt::LeftButton);
    QCOMPARE(unloadAll, 1);
    QCOMPARE(ended, 1);
    const DirecDataRecord saved =
        readDirecData(f.home.native("Lumentas/ForProgramRun_KDR/DirecData.ran"));
    QCOMPARE(saved.OriginalSizeOn, kTrue);
    QCOMPARE(saved.CyberViewOn, kFalse);
}

void TestFormMain::autoStartOfAPicture()
{
    ListFixture f;
    f.state.DirecData.ListAutoStart = kTrue;
    f.state.DirecData.LastListFile = QStringLiteral("C:\\pics\\p3.jpg");
    f.main.CheckQuiCkWork->setChecked(true);
    f.main.showForm();
    QCOMPARE(f.home.readFile("Lumentas/RunFile.Lst"), QByteArray("C:\\pics\\p3.jpg\r\n"));
    QCOMPARE(f.main.TextFileName->text(), QStringLiteral("C:\\pics\\p3.jpg"));

    ListFixture missing;
    missing.state.DirecData.ListAutoStart = kTrue;
    missing.state.DirecData.LastListFile = QStringLiteral("C:\\pics\\gone.lst");
    missing.main.showForm();
    QCOMPARE(missing.main.TextFileName->text(), QString());
    QVERIFY(missing.ui.boxes.isEmpty());
}

void TestFormMain::damagedRecordLoads()
{
    ListFixture f;
    QByteArray garbage(DirecDataRecord::kSize, '\0');
    for (int i = 0; i < garbage.size(); ++i)
        garbage[i] = char((i * 131 + 7) % 256);
    f.state.DirecData = DirecDataRecord::fromBytes(garbage);
    f.main.showForm(); // fonts, colours and auto start from nonsense: no harm
    QVERIFY(f.main.isVisible());
    QVERIFY(twWidth(&f.main) >= 12000);
}

QTEST_MAIN(TestFormMain)
#include "tst_FormMain.moc"

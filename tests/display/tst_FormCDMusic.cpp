// FormCDMusic and its MCI control on a recording CD drive.
#include "display/FormCDMusic.h"
#include "display/MMControl.h"
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "support/BasicsFixture.h"
#include "support/Fetch.h"
#include "support/Shots.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QToolButton>

using namespace lumen;
using namespace lumen::test;
using namespace Qt::StringLiterals;

namespace {

// A fixture with drive D: a CD drive (/dev/sr0) holding a disc of `tracks`.
struct CdFixture : BasicsFixture {
    explicit CdFixture(int tracks)
    {
        media.drive.tracks = tracks;
        home.makeFolder(QStringLiteral("cdrom"));
        home.fs.drives().setDrive(
            u'D', Drive{home.native(QStringLiteral("cdrom")), QStringLiteral("/dev/sr0")});
    }
};

} // namespace

class TestFormCDMusic : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void getTrackFromName_data();
    void getTrackFromName();
    void showCDMusicOpensTheDisc_data();
    void showCDMusicOpensTheDisc();
    void setTrackStepsToTheTypedTrack_data();
    void setTrackStepsToTheTypedTrack();
    void transportButtonsAndUnload();
    void resizeAlwaysEndsAtTheFixedSize();
};

void TestFormCDMusic::getTrackFromName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("track");
    QTest::newRow("capitals") << "D:\\TRACK03.CDA" << 3;
    QTest::newRow("one digit") << "E:\\music\\TRACK7.CDA" << 7;
    QTest::newRow("as Windows lists it: no TRACK in capitals") << "D:\\Track03.cda" << 0;
    QTest::newRow("first TRACK wins") << "C:\\TRACKS\\TRACK03.CDA" << 0;
    QTest::newRow("blank before the number") << "TRACK 4.CDA" << 4;
    QTest::newRow("half rounds to even, down") << "TRACK2.5.CDA" << 2;
    QTest::newRow("half rounds to even, up") << "TRACK3.5.CDA" << 4;
}

void TestFormCDMusic::getTrackFromName()
{
    QFETCH(QString, name);
    QFETCH(int, track);
    qint16 result = -1;
    FormCDMusic::GetTrackFromName(name, result);
    QCOMPARE(int(result), track);
}

void TestFormCDMusic::showCDMusicOpensTheDisc_data()
{
    QTest::addColumn<int>("tracks");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("total");
    QTest::addColumn<int>("track");
    QTest::newRow("a five-track disc") << 5 << u"D:\\Track03.cda"_s << u"5"_s << 3;
    QTest::newRow("the name in any case") << 5 << u"d:\\TRACK05.CDA"_s << u"5"_s << 5;
    QTest::newRow("a track past the end opens at the first")
        << 5 << u"D:\\Track09.cda"_s << u"5"_s << 1;
    QTest::newRow("no disc in the drive") << 0 << u"D:\\Track01.cda"_s << u"0"_s << 0;
    QTest::newRow("a drive without a CD device") << 5 << u"C:\\Track03.cda"_s << u"0"_s << 0;
}

void TestFormCDMusic::showCDMusicOpensTheDisc()
{
    CdFixture f(FETCH(int, tracks));
    FormCDMusic form(f.basics);
    form.ShowCDMusic(FETCH(QString, file));
    QVERIFY(form.isVisible());
    QCOMPARE(form.TextTotalTrack->text(), FETCH(QString, total));
    QCOMPARE(int(form.MMControl1->Track()), FETCH(int, track));
    QCOMPARE(form.MMControl1->Command(), QStringLiteral("Open"));
    QCOMPARE(f.media.drive.calls, QStringList()); // opened, not played
}

void TestFormCDMusic::setTrackStepsToTheTypedTrack_data()
{
    QTest::addColumn<QString>("typed"); // on track 3 of 5
    QTest::addColumn<int>("track");
    QTest::addColumn<int>("steps");
    QTest::addColumn<int>(
        "stop"); // after 6 steps: 0 never, 1 the window closes, 2 the program ends
    QTest::newRow("the current track plays at once") << "3" << 3 << 0 << 0;
    QTest::newRow("forward") << "5" << 5 << 2 << 0;
    QTest::newRow("back") << "1" << 1 << 2 << 0;
    QTest::newRow("blanks around") << "  4 " << 4 << 1 << 0;
    QTest::newRow("a fraction rounds") << "1.6" << 2 << 1 << 0;
    QTest::newRow("past the end until the window closes") << "9" << 5 << 6 << 1;
    QTest::newRow("past the end until the program ends") << "9" << 5 << 6 << 2;
}

void TestFormCDMusic::setTrackStepsToTheTypedTrack()
{
    QFETCH(int, track);
    QFETCH(int, steps);
    QFETCH(int, stop);
    CdFixture f(5);
    FormCDMusic form(f.basics);
    form.ShowCDMusic(QStringLiteral("D:\\Track03.cda"));
    form.TextMyTrack->setText(FETCH(QString, typed));
    QList<qint32> colours;
    f.clock.onWait = [&](qint64) {
        colours << backColor(form.CommandSetTrack);
        if (stop == 1 && f.clock.waits.size() == 6)
            form.close(); // the frame's close box
        f.clock.setEnding(stop == 2 && f.clock.waits.size() == 6);
    };
    form.CommandSetTrack->click();
    QCOMPARE(f.clock.waits, QList<qint64>(steps, 300));
    QCOMPARE(colours, QList<qint32>(steps, kColorGreen));
    QCOMPARE(int(form.MMControl1->Track()), track);
    QCOMPARE(f.media.drive.calls.first(), QStringLiteral("stop"));
    QCOMPARE(f.media.drive.calls.filter(QStringLiteral("play")),
             stop ? QStringList() : QStringList{QStringLiteral("play /dev/sr0 %1").arg(track)});
    QCOMPARE(form.CurrentCDTrack, qint16(stop ? 0 : track));
    QCOMPARE(form.isLoaded(), stop != 1);
    QCOMPARE(backColor(form.CommandSetTrack), kColorButtonFace);
}

void TestFormCDMusic::transportButtonsAndUnload()
{
    CdFixture f(5);
    FormCDMusic form(f.basics);
    auto button = [&](const char* name) {
        return form.MMControl1->findChild<QToolButton*>(QString::fromLatin1(name));
    };
    QVERIFY(!button("Play")->isEnabled()); // nothing open yet
    form.ShowCDMusic(QStringLiteral("D:\\Track02.cda"));
    QVERIFY(button("Play")->isEnabled());
    QTest::mouseClick(button("Next"), Qt::LeftButton);
    QCOMPARE(int(form.MMControl1->Track()), 3);
    QTest::mouseClick(button("Prev"), Qt::LeftButton); // to the start of 3
    QCOMPARE(int(form.MMControl1->Track()), 3);
    QTest::mouseClick(button("Prev"), Qt::LeftButton); // again, soon after: to 2
    QCOMPARE(int(form.MMControl1->Track()), 2);
    f.clock.now += 3000;
    QTest::mouseClick(button("Prev"), Qt::LeftButton); // three seconds later: start of 2
    QCOMPARE(int(form.MMControl1->Track()), 2);
    QTest::mouseClick(button("Play"), Qt::LeftButton);
    QTest::mouseClick(button("Next"), Qt::LeftButton); // playing on at the next track
    QCOMPARE(f.media.drive.calls, (QStringList{"play /dev/sr0 2", "play /dev/sr0 3"}));
    saveShot(&form, QStringLiteral("FormCDMusic"));
    QVERIFY(form.unload()); // stops the disc
    QCOMPARE(f.media.drive.calls.mid(2), QStringList{"stop"});
    QCOMPARE(form.MMControl1->Command(), QStringLiteral("Stop"));
    QVERIFY(!form.isVisible());
}

void TestFormCDMusic::resizeAlwaysEndsAtTheFixedSize()
{
    CdFixture f(5);
    FormCDMusic form(f.basics);
    form.showForm();
    const auto fixed = [&] {
        return twLeft(&form) == 0 && twTop(&form) == 0 && twWidth(&form) == 3645 &&
               twHeight(&form) == 1260;
    };
    QTRY_VERIFY(fixed());
    form.setGeometry(200, 100, 600, 400);
    QTRY_VERIFY(fixed());
    form.showMaximized();
    QTRY_VERIFY(fixed());
    QVERIFY(!(form.windowState() & Qt::WindowMaximized));
    QTest::qWait(100); // the window system's answer to the normal state comes later
    form.showMinimized();
    QTest::qWait(100);
    QVERIFY(form.windowState() & Qt::WindowMinimized);
    form.showNormal();
    QTRY_VERIFY(fixed());
}

QTEST_MAIN(TestFormCDMusic)
#include "tst_FormCDMusic.moc"

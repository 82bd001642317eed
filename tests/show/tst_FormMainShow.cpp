// The show by hand: every kind of page on its surface with its companion and
// comment, the arrows and the page bar, copy, delete and recover.
#include "MainFixture.h"
#include "display/FormComment.h"
#include "display/MediaPanel.h"
#include "display/PictureBox.h"
#include "display/WebBrowser.h"
#include "platform/ClickLabel.h"
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "support/FakeMedia.h"
#include "support/Fetch.h"
#include "support/Shots.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>

using namespace lumen;
using namespace lumen::test;
using namespace Qt::StringLiterals;

namespace {

QString visibleSurfaces(FormMain& main)
{
    QStringList shown;
    for (const char* name :
         {"Picture2", "Picture3", "Text1", "WebBrowser1", "MediaPlayer1", "MediaPlayer2"}) {
        QWidget* w = main.findChild<QWidget*>(name);
        auto* picture = qobject_cast<PictureBox*>(w);
        const bool holds = !picture || picture->hasPicture(); // an empty picture box shows nothing
        if (w && w->isVisible() && w->width() > 0 && w->height() > 0 && holds)
            shown << QString::fromLatin1(name);
    }
    return shown.join(QLatin1Char(','));
}

} // namespace

class TestFormMainShow : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void eachKindOnItsSurface_data();
    void eachKindOnItsSurface();
    void companionSoundAndHideBox_data();
    void companionSoundAndHideBox();
    void commentWindowTakesTheText_data();
    void commentWindowTakesTheText();
    void arrowsStopAtTheEnds();
    void pageBarShowsPicturesOnly();
    void copyNumbersTheCopies();
    void deleteThenRecover();
    void deleteRefusesManyFileKinds();
    void longWebPageGetsItsBars();
};

void TestFormMainShow::eachKindOnItsSurface_data()
{
    QTest::addColumn<QString>("file");     // under home
    QTest::addColumn<QString>("surfaces"); // visible afterwards
    QTest::addColumn<QString>("caption");
    QTest::newRow("picture") << u"p.png"_s << u"Picture2"_s << QString();
    QTest::newRow("text") << u"t.txt"_s << u"Text1"_s << QString();
    QTest::newRow("video") << u"v.avi"_s << u"MediaPlayer1"_s << QString();
    QTest::newRow("midi") << u"m.mid"_s << u"MediaPlayer2"_s << QString();
    QTest::newRow("web page") << u"w.html"_s << u"WebBrowser1"_s << QString();
    QTest::newRow("sound") << u"s.wav"_s << QString() << QString();
    QTest::newRow("missing file") << u"none.jpg"_s << QString()
                                  << u"File Niot Found C:\\none.jpg"_s;
}

void TestFormMainShow::eachKindOnItsSurface()
{
    MainFixture f;
    QFETCH(QString, file);
    if (file == QLatin1String("p.png"))
        f.picture(file, 60, 40);
    else if (file != QLatin1String("none.jpg"))
        f.home.writeFile(file, file.endsWith(QLatin1String(".txt")) ? QByteArray("一行目\r\n二行目")
                                                                    : QByteArray("x"));
    f.open({QStringLiteral("C:\\") + file});
    QCOMPARE(visibleSurfaces(f.main), FETCH(QString, surfaces));
    QCOMPARE(f.main.windowTitle(), FETCH(QString, caption));
    if (file == QLatin1String("t.txt"))
        QCOMPARE(f.main.Text1->toPlainText(), QStringLiteral("一行目\n二行目"));
    if (file == QLatin1String("s.wav"))
        QCOMPARE(f.media.sounds, QStringList{f.home.native("s.wav")});
    if (file == QLatin1String("w.html")) {
        QCOMPARE(f.media.webs.size(), 1);
        QCOMPARE(f.media.webs[0]->url(), QUrl::fromLocalFile(f.home.native("w.html")));
        QVERIFY(f.state.WebPageShown);
    }
    if (file == QLatin1String("v.avi"))
        QVERIFY(
            f.media.engines[0]->calls.contains(QStringLiteral("open ") + f.home.native("v.avi")));
}

void TestFormMainShow::companionSoundAndHideBox_data()
{
    QTest::addColumn<bool>("hide");
    QTest::addColumn<int>("sounds");
    QTest::newRow("plays") << false << 1;
    QTest::newRow("hidden sound") << true << 0;
}

void TestFormMainShow::companionSoundAndHideBox()
{
    MainFixture f;
    f.home.writeFile("bell.wav", "RIFF");
    const QString pic = f.picture("p.png", 40, 40);
    f.main.CheckWaveHide->setChecked(FETCH(bool, hide));
    f.open({pic + QStringLiteral(" @WITH=C:\\bell.wav ENDWITH")});
    QCOMPARE(f.media.sounds.size(), FETCH(int, sounds));
    if (!f.media.sounds.isEmpty())
        QCOMPARE(f.media.sounds.first(), f.home.native("bell.wav"));
    QVERIFY(f.main.Picture2->isVisible());
}

void TestFormMainShow::commentWindowTakesTheText_data()
{
    QTest::addColumn<QString>("item");
    QTest::addColumn<QString>("text");
    QTest::newRow("inline") << u"@COMMENT=<<<<<一行<<<<<二行 ENDCOMMENT"_s << u"一行\r\n二行"_s;
    QTest::newRow("without the mark loses two characters")
        << u"@COMMENT=abcdef ENDCOMMENT"_s << u"cdef"_s;
    QTest::newRow("comment file") << u"@FILECOMMENT=C:\\note.txt ENDFILECOMMENT"_s
                                  << u"ファイルの\r\nコメント"_s;
}

void TestFormMainShow::commentWindowTakesTheText()
{
    MainFixture f;
    f.home.writeFile("note.txt", QStringLiteral("ファイルの\r\nコメント\r\n").toUtf8());
    const QString pic = f.picture("p.png", 40, 40);
    f.open({pic + QLatin1Char(' ') + FETCH(QString, item)});
    auto* comment = static_cast<FormComment*>(f.forms.existing(QStringLiteral("FormComment")));
    QVERIFY(comment);
    QVERIFY(comment->isVisible());
    QCOMPARE(comment->commentText(), FETCH(QString, text));
    saveShot(comment, QStringLiteral("FormComment_on_page"));
}

void TestFormMainShow::arrowsStopAtTheEnds()
{
    MainFixture f;
    f.open({f.picture("a.png", 30, 30), f.picture("b.png", 30, 30)});
    QTest::mouseClick(f.main.CommandRight, Qt::LeftButton);
    QCOMPARE(f.state.PicNo, qint16(2));
    QCOMPARE(f.main.TextCount->text(), QStringLiteral("2"));
    QCOMPARE(f.main.HScrollPicNom->value(), 2);
    QTest::mouseClick(f.main.CommandRight, Qt::LeftButton);
    QCOMPARE(f.state.PicNo, qint16(2)); // stays on the last page
    QCOMPARE(backColor(f.main.LabelMax), kColorRed);
    QTest::mouseClick(f.main.CommandLeft, Qt::LeftButton);
    QCOMPARE(backColor(f.main.LabelMax), kColorGrey);
    QTest::mouseClick(f.main.CommandLeft, Qt::LeftButton);
    QCOMPARE(f.state.PicNo, qint16(1));
    QCOMPARE(backColor(f.main.LabelSmall), kColorRed);
    QCOMPARE(f.main.TextFileName->text(), QStringLiteral("C:\\a.png"));
}

void TestFormMainShow::pageBarShowsPicturesOnly()
{
    MainFixture f;
    f.home.writeFile("t.txt", "text");
    f.open({f.picture("a.png", 30, 30), QStringLiteral("C:\\t.txt"), f.picture("c.png", 200, 100)});
    // The bar's first change after a first list is the program's own (its
    // guard stays up while TextFileName is still empty): the arrows clear it.
    QTest::mouseClick(f.main.CommandRight, Qt::LeftButton);
    QTest::mouseClick(f.main.CommandLeft, Qt::LeftButton);
    f.main.HScrollPicNom->setValue(2); // a text page isn't played from the bar
    QCOMPARE(f.state.PicNo, qint16(2));
    QCOMPARE(f.main.TextFileName->text(), QStringLiteral("C:\\t.txt"));
    QVERIFY(!f.main.Text1->isVisible());
    QTest::mouseClick(f.main.LabelDo, Qt::LeftButton); // LabelDo plays it
    QVERIFY(f.main.Text1->isVisible());

    // Each change of the bar sets TextCount, whose change raises the guard
    // again: the next change is taken as the program's own.
    f.main.HScrollPicNom->setValue(3);
    QCOMPARE(f.main.TextFileName->text(), QStringLiteral("C:\\t.txt"));
    QVERIFY(!f.main.ScrollGuard);
    f.main.HScrollPicNom->setValue(1);
    QCOMPARE(f.main.TextFileName->text(), QStringLiteral("C:\\a.png"));
    QCOMPARE(f.main.Picture2->pictureSize(), QSize(30, 30));
    QVERIFY(f.main.ScrollGuard);
}

void TestFormMainShow::copyNumbersTheCopies()
{
    MainFixture f;
    f.open({f.picture("shots/a.png", 30, 30)});
    QTest::mouseClick(f.main.CommandCopy, Qt::LeftButton);
    QTest::mouseClick(f.main.CommandCopy, Qt::LeftButton);
    QVERIFY(f.home.exists("Lumentas/MyPicture_001.png"));
    QVERIFY(f.home.exists("Lumentas/MyPicture_002.png"));
    QCOMPARE(f.main.TextNum->text(), QStringLiteral("003"));
    f.main.TextNum->clear();
    QTest::mouseClick(f.main.CommandCopy, Qt::LeftButton);
    QVERIFY(f.home.exists("Lumentas/MyPicture.png"));
    QCOMPARE(f.ui.beeps, 3);
    QCOMPARE(backColor(f.main.CommandCopy), kColorGrey);
    f.main.TextHeadName->setText(QStringLiteral("Trip"));
    QCOMPARE(f.main.TextNum->text(), QStringLiteral("001"));
}

void TestFormMainShow::deleteThenRecover()
{
    MainFixture f;
    f.open({f.picture("a.png", 30, 30), f.picture("b.png", 30, 30)});
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
}

void TestFormMainShow::deleteRefusesManyFileKinds()
{
    MainFixture f;
    f.home.writeFile("world.wrl", "#VRML");
    f.open({QStringLiteral("C:\\world.wrl")});
    QTest::mouseClick(f.main.CommandDeleate, Qt::LeftButton);
    QVERIFY(f.home.exists("world.wrl"));
    QCOMPARE(f.ui.boxes.last(),
             QStringLiteral("複数のﾌｧｲﾙを含むため消去はしません。別の方法で削除してください"));
}

void TestFormMainShow::longWebPageGetsItsBars()
{
    MainFixture f;
    f.home.writeFile("w.html", "<html><body>x</body></html>");
    f.main.showForm();
    f.media.webs[0]->pageSize = QSize(f.main.Picture1->width(), f.main.Picture1->height() + 400);
    f.open({QStringLiteral("C:\\w.html")});
    QVERIFY(f.main.LargePictureFlag);
    QVERIFY(f.main.VScroll1->isVisible());
}

QTEST_MAIN(TestFormMainShow)
#include "tst_FormMainShow.moc"

// FormModPic on a picture made here, opened through the main window's
// command: pen, line and circle strokes, curves through clicked points and
// the grabbing of their points, both fills, colours picked from the picture,
// "OK" storing the picture, the help texts and the settings it keeps.
#include "PictureApp.h"
#include "picture/FormModPic.h"
#include "picture/FormSaveImage.h"
#include "platform/ClickLabel.h"
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "support/Fetch.h"
#include "support/Shots.h"

#include <QComboBox>
#include <QElapsedTimer>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

using namespace lumen;
using namespace lumen::test;

namespace {

const QRgb kWhite = qRgb(255, 255, 255);
const QRgb kRed = qRgb(255, 0, 0);
const QRgb kBlack = qRgb(0, 0, 0);
const QRgb kYellow = qRgb(255, 255, 0);

// Red at the pixel or one of its neighbours: where a stroke of one pixel
// meets a point off its grid.
bool redNear(const QImage& image, QPoint at)
{
    for (int dy = -1; dy <= 1; ++dy)
        for (int dx = -1; dx <= 1; ++dx)
            if (image.valid(at + QPoint(dx, dy)) && image.pixel(at + QPoint(dx, dy)) == kRed)
                return true;
    return false;
}

// The program on one picture, with the drawing window open and red as the
// line colour.
struct DrawFixture : PictureApp {
    FormModPic* tool = nullptr;

    explicit DrawFixture(const QImage& picture = plainPicture(Qt::white))
    {
        openPages({picture});
        main().CommandModPic->click();
        tool = &form<FormModPic>("FormModPic");
        setBackColor(tool->LabelLineColor, 0x0000FF);
    }
    void startLine(QRadioButton* option)
    {
        option->setChecked(true);
        tool->CommandStartDrawLine->click();
    }
};

} // namespace

class TestFormModPic : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void openingTurnsOriginalSizeOnAndShowsTheStore()
    {
        PictureApp a;
        a.openPages({plainPicture(Qt::white)});
        a.main().CheckOriginalSize->setChecked(false);
        a.main().CommandModPic->click();
        QCOMPARE(backColor(a.main().CommandModPic), kColorGreen);
        QVERIFY(a.shown("FormModPic") && a.shown("FormSaveImage"));
        QVERIFY(a.main().CheckOriginalSize->isChecked());
        a.form<FormModPic>("FormModPic").unload();
        QCOMPARE(backColor(a.main().CommandModPic), kColorButtonFace);
    }

    void shapes_data()
    {
        QTest::addColumn<QString>("option");
        QTest::addColumn<QString>("size"); // ComboLineSize
        QTest::addColumn<QList<QPoint>>("path");
        QTest::addColumn<QList<QPoint>>("drawn");
        QTest::addColumn<QList<QPoint>>("untouched");
        using Points = QList<QPoint>;
        const auto row = [](const char* tag, const char* option, const char* size,
                            const Points& path, const Points& drawn, const Points& untouched) {
            QTest::newRow(tag) << QString(option) << QString(size) << path << drawn << untouched;
        };
        // The rubber band first goes down to (20, 140): that trace must be gone.
        row("line: from press to release, the band erased", "OptionLine", "1",
            {{20, 20}, {20, 140}, {60, 40}, {100, 60}}, {{20, 20}, {40, 30}, {60, 40}},
            {{20, 80}, {20, 139}});
        row("circle: radius from centre to pointer", "OptionCir", "1",
            {{100, 75}, {100, 120}, {130, 75}}, {{130, 75}, {70, 75}, {100, 45}, {100, 105}},
            {{100, 75}, {100, 120}, {115, 75}});
        row("pen: every move drawn", "OptionPen", "1", {{10, 10}, {50, 10}, {50, 50}},
            {{30, 10}, {50, 30}}, {{30, 30}, {10, 50}});
        // Sizes one after another, a dot in the corner drawn with each but the last.
        const Points across = {{20, 50}, {150, 50}};
        const Points thick = {{80, 52}, {80, 48}};
        row("line of size 5", "OptionLine", "5", across, thick, {});
        row("line of size 1", "OptionLine", "5,1", across, {{80, 50}}, thick);
        // Refused: the pen stays as it was.
        row("line of size abc", "OptionLine", "5,abc", across, thick, {});
        row("line of size 0", "OptionLine", "5,0", across, thick, {});
    }

    void shapes()
    {
        DrawFixture f;
        f.startLine(f.tool->findChild<QRadioButton*>(FETCH(QString, option)));
        const QStringList sizes = FETCH(QString, size).split(u',');
        for (qsizetype i = 0; i < sizes.size(); ++i) {
            f.tool->ComboLineSize->setCurrentText(sizes[i]);
            if (i + 1 < sizes.size())
                f.click(QPoint(195, 145));
        }
        QCOMPARE(backColor(f.tool->CommandStartDrawLine), kColorGreen);
        f.drag(FETCH(QList<QPoint>, path));
        const QImage seen = f.seen();
        for (const QPoint& at : FETCH(QList<QPoint>, drawn))
            QVERIFY2(redNear(seen, at),
                     qPrintable(QStringLiteral("%1,%2").arg(at.x()).arg(at.y())));
        for (const QPoint& at : FETCH(QList<QPoint>, untouched))
            QVERIFY2(seen.pixel(at) == kWhite,
                     qPrintable(QStringLiteral("%1,%2").arg(at.x()).arg(at.y())));
        // Over the picture until "OK", which stores it and shows the stored one.
        QCOMPARE(f.main().Picture2->picture().convertToFormat(QImage::Format_RGB32),
                 plainPicture(Qt::white));
        f.tool->CommandStopDrawLine->click();
        QCOMPARE(f.lastPic(0), seen);
        QCOMPARE(f.seen(), seen);
        QCOMPARE(backColor(f.tool->CommandStartDrawLine), kColorButtonFace);
        saveShot(f.main().Picture2, QStringLiteral("modpic_") + QTest::currentDataTag());
    }

    void curveThroughClickedPoints_data()
    {
        QTest::addColumn<bool>("closed");
        QTest::newRow("open") << false;
        QTest::newRow("closed") << true;
    }

    void curveThroughClickedPoints()
    {
        DrawFixture f;
        const bool closed = FETCH(bool, closed);
        f.startLine(closed ? f.tool->OptionSplineClose : f.tool->OptionSplineOpen);
        const QList<QPoint> points = {{30, 30}, {80, 20}, {140, 60}, {120, 120}, {40, 110}};
        for (int i = 0; i < points.size(); ++i) {
            f.click(points[i]);
            // "仮OK" only from the fourth point.
            QCOMPARE(f.tool->CommandDoSpline->isEnabled(), i >= 3);
            QCOMPARE(f.seen().pixel(points[i] + QPoint(3, 3)), kRed); // its mark
        }
        QCOMPARE(f.tool->curve.CurveLastPoint, qint16(4));
        f.tool->CommandDoSpline->click();
        QVERIFY(!f.tool->curve.CurveNewLine);
        const QImage trial = f.seen();
        QCOMPARE(trial.pixel(80 + 3, 20 - 3), kRed); // marks stay while it can be changed
        f.tool->CommandStopDrawLine->click();
        const QImage fixed = f.lastPic(0);
        QCOMPARE(f.seen(), fixed);
        QCOMPARE(fixed.pixel(80 + 3, 20 - 3), kWhite); // no marks in the fixed picture
        // An open curve starts and ends on its end points; a closed one passes
        // through neither, but runs inside the points' hull.
        QCOMPARE(fixed.pixel(30, 30) == kRed, !closed);
        QCOMPARE(fixed.pixel(40, 110) == kRed, !closed);
        int onCurve = 0;
        for (int y = 0; y < fixed.height(); ++y)
            for (int x = 0; x < fixed.width(); ++x)
                onCurve += fixed.pixel(x, y) == kRed;
        QVERIFY(onCurve > 150);
        QCOMPARE(fixed.pixel(5, 5), kWhite);
        saveShot(f.main().Picture2, closed ? QStringLiteral("modpic_closed_curve")
                                           : QStringLiteral("modpic_open_curve"));
    }

    void grabbing_data()
    {
        QTest::addColumn<QPoint>("press");
        QTest::addColumn<int>("grabbed");     // -1: none
        QTest::addColumn<QPoint>("formerly"); // a pixel of the grabbed point's old mark alone
        // Points 0 (50, 50) and 1 (53, 52) lie within 3 pixels of each other.
        QTest::newRow("2 pixels off: grabbed") << QPoint(52, 48) << 0 << QPoint(47, 47);
        QTest::newRow("3 pixels off: none") << QPoint(47, 50) << -1 << QPoint();
        QTest::newRow("near two: the lower index") << QPoint(51, 51) << 0 << QPoint(47, 47);
        QTest::newRow("near the second only") << QPoint(55, 54) << 1 << QPoint(56, 55);
    }

    void grabbing()
    {
        DrawFixture f;
        f.startLine(f.tool->OptionSplineOpen);
        for (const QPoint& at : QList<QPoint>{{50, 50}, {53, 52}, {120, 40}, {150, 100}})
            f.click(at);
        f.tool->CommandDoSpline->click();
        QFETCH(QPoint, press);
        QFETCH(int, grabbed);
        const QStringList xsBefore = f.tool->curve.CurveX;
        const QImage before = f.seen();
        if (grabbed >= 0)
            QCOMPARE(before.pixel(FETCH(QPoint, formerly)), kRed);
        f.press(press);
        QCOMPARE(f.tool->DragPoint, qint16(grabbed));
        f.move(QPoint(100, 120));
        f.release(QPoint(100, 120));
        QCOMPARE(f.tool->DragPoint, qint16(-1));
        if (grabbed < 0) {
            QCOMPARE(f.tool->curve.CurveX, xsBefore);
            QCOMPARE(f.seen(), before);
            return;
        }
        QCOMPARE(f.tool->curve.pointX(grabbed), 100.0f);
        QCOMPARE(f.tool->curve.pointY(grabbed), 120.0f);
        // Redrawn with the point in its new place: its mark there, none at the old.
        QCOMPARE(f.seen().pixel(103, 123), kRed);
        QCOMPARE(f.seen().pixel(FETCH(QPoint, formerly)), kWhite);
    }

    void fills_data()
    {
        QTest::addColumn<QString>("option");
        QTest::addColumn<qint32>("lineColour"); // the border's or the surface's
        QTest::addColumn<QPoint>("click");
        QTest::addColumn<QList<QPoint>>("filled");
        QTest::addColumn<QList<QPoint>>("kept");
        QTest::newRow("inside the black frame")
            << "OptionWakunaiChikan" << qint32(0x000000) << QPoint(50, 50)
            << QList<QPoint>{{21, 21}, {79, 79}, {50, 50}} << QList<QPoint>{{10, 10}, {100, 50}};
        QTest::newRow("no border of the colour: everything")
            << "OptionWakunaiChikan" << qint32(0x0000FF) << QPoint(50, 50)
            << QList<QPoint>{{10, 10}, {50, 50}, {20, 20}} << QList<QPoint>{};
        QTest::newRow("the black surface: the frame itself")
            << "OptionIroChikan" << qint32(0x000000) << QPoint(20, 50)
            << QList<QPoint>{{20, 20}, {80, 80}} << QList<QPoint>{{50, 50}, {10, 10}};
        QTest::newRow("a surface of another colour: nothing")
            << "OptionIroChikan" << qint32(0x0000FF) << QPoint(50, 50) << QList<QPoint>{}
            << QList<QPoint>{{50, 50}, {20, 20}};
    }

    void fills()
    {
        DrawFixture f(framedPicture());
        f.tool->findChild<QRadioButton*>(FETCH(QString, option))->setChecked(true);
        setBackColor(f.tool->LabelLineColor, FETCH(qint32, lineColour));
        setBackColor(f.tool->LabelPastColor, 0x00FFFF);
        const QImage before = f.seen();
        f.tool->CommandStartPaintColor->click();
        f.click(FETCH(QPoint, click));
        const QImage after = f.seen();
        for (const QPoint& at : FETCH(QList<QPoint>, filled))
            QCOMPARE(after.pixel(at), kYellow);
        for (const QPoint& at : FETCH(QList<QPoint>, kept))
            QCOMPARE(after.pixel(at), before.pixel(at));
        f.tool->CommandStopDrawPaint->click();
        QCOMPARE(f.lastPic(0), after);
    }

    void pickColourFromThePicture()
    {
        QImage picture = plainPicture(Qt::white);
        for (int y = 60; y < 80; ++y)
            for (int x = 60; x < 80; ++x)
                picture.setPixel(x, y, qRgb(10, 120, 200));
        DrawFixture f(picture);
        f.tool->CommandPickColLine->click();
        QCOMPARE(backColor(f.tool->CommandPickColLine), kColorGreen);
        f.click(QPoint(70, 70));
        QCOMPARE(backColor(f.tool->LabelLineColor), qint32(0xC8780A));
        QCOMPARE(backColor(f.tool->CommandPickColLine), kColorButtonFace);
        f.tool->CommandPickColFill->click();
        f.click(QPoint(5, 5));
        QCOMPARE(backColor(f.tool->LabelPastColor), qint32(0xFFFFFF));
        QCOMPARE(f.seen(), picture); // picking draws nothing
    }

    void fiveHundredCurvePoints()
    {
        DrawFixture f(plainPicture(Qt::white, 600, 400));
        f.startLine(f.tool->OptionSplineClose);
        for (int i = 0; i < 500; ++i) {
            const double angle = i * 2 * M_PI / 500;
            f.click(QPoint(300 + int(200 * std::cos(angle)), 200 + int(150 * std::sin(angle))));
        }
        QElapsedTimer timer;
        timer.start();
        f.tool->CommandStopDrawLine->click();
        qInfo("a closed curve of 500 points drawn and stored in %lld ms", timer.elapsed());
        const QImage fixed = f.lastPic(0);
        QCOMPARE(fixed.pixel(300, 200), kWhite);
        int onCurve = 0;
        for (int x = 0; x < 600; ++x)
            onCurve += fixed.pixel(x, 200) == kRed;
        QVERIFY(onCurve >= 2); // the loop crosses the middle row twice
    }

    void helpTexts()
    {
        DrawFixture f;
        f.tool->CommandHelpBlue->click();
        f.tool->CommandHelpBlue2->click();
        QCOMPARE(f.ui.boxes,
                 (QStringList{
                     QStringLiteral(
                         "曲線の作図はｽﾌﾟﾗｲﾝ計算しますので、滑らかな線を書けます。\r\n"
                         "[仮OK]をｸﾘｯｸしてから、形状を変形させることができます。\r\n"
                         "[OK]をｸﾘｯｸすると、現在の表示画像を仮画像として記憶します。\r\n"
                         "\r\n"
                         "指定色は大きい四角をｸﾘｯｸするか、小さい四角をﾀﾞﾌﾞﾙｸﾘｯｸすると、\r\n"
                         "また、[抽出]というｺﾏﾝﾄﾞﾎﾞﾀﾝをｸﾘｯｸして画像から色の選択ができます。\r\n"
                         "\r\n"
                         "注意：[OK]をｸﾘｯｸした時点で画像が保存され、後で呼び出すことができます。"),
                     QStringLiteral("[OK]をｸﾘｯｸして作られた仮画像は、\r\n"
                                    "ｽｸﾛｰﾙﾊﾞｰで呼び出すことができます。\r\n"
                                    "また、記憶する画像数も指定できます。")}));
    }

    void settingsKeptInTheRecord()
    {
        DrawFixture f;
        // A fresh record: the defaults.
        QCOMPARE(f.tool->ComboLineSize->currentText(), QStringLiteral("1"));
        QCOMPARE(f.tool->ComboMarumeKeisuu->currentText(), QStringLiteral("3"));
        f.tool->ComboLineSize->setCurrentText(QStringLiteral("4"));
        f.tool->ComboMarumeKeisuu->setCurrentText(QStringLiteral("5"));
        setBackColor(f.tool->LabelPastColor, 0x123456);
        f.home.writeFile(QStringLiteral("Lumentas/ForProgramRun_KDR/LastPic0.bmp"), "BM");
        f.tool->unload();
        QVERIFY(!f.home.exists(QStringLiteral("Lumentas/ForProgramRun_KDR/LastPic0.bmp")));
        const DirecDataRecord& record = f.app->state().DirecData;
        QCOMPARE(record.ModPicValues2[0], qint16(4));
        QCOMPARE(record.ModPicValues2[1], qint16(5));
        f.main().CommandModPic->click();
        QCOMPARE(f.tool->ComboLineSize->currentText(), QStringLiteral("4"));
        QCOMPARE(f.tool->ComboMarumeKeisuu->currentText(), QStringLiteral("5"));
        QCOMPARE(backColor(f.tool->LabelPastColor), qint32(0x123456));
        QCOMPARE(backColor(f.tool->LabelLineColor), qint32(0x0000FF));
    }

    void rightButtonMenuWaitsForTheTools()
    {
        DrawFixture f;
        f.click(QPoint(50, 50), Qt::RightButton);
        QVERIFY(!f.shown("FormRClick5"));
        QCOMPARE(f.seen(), plainPicture(Qt::white)); // and the tool drew nothing
        f.tool->unload();
        f.click(QPoint(50, 50), Qt::RightButton);
        QVERIFY(f.shown("FormRClick5"));
    }
};

QTEST_MAIN(TestFormModPic)
#include "tst_FormModPic.moc"

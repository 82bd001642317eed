// FormPastComment and the main window's paste command: the text printed at
// LabelComment's place in the comment window's font and nowhere else, the
// line pitch and trimmed lines, the original-size message, an empty text, and
// a comment pasted on every page of a show while pasting is on.
#include "PictureApp.h"
#include "display/FormComment.h"
#include "picture/FormPastComment.h"
#include "picture/FormSaveImage.h"
#include "platform/ClickLabel.h"
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "platform/Twips.h"
#include "support/Fetch.h"
#include "support/Shots.h"

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

using namespace lumen;
using namespace lumen::test;

namespace {

// The rectangle of the pixels in which two pictures differ; empty if none.
QRect changedArea(const QImage& before, const QImage& after)
{
    QRect area;
    for (int y = 0; y < before.height(); ++y)
        for (int x = 0; x < before.width(); ++x)
            if (before.pixel(x, y) != after.pixel(x, y))
                area |= QRect(x, y, 1, 1);
    return area;
}

// One white page, the comment window's letters red at 15 points, LabelComment
// at (40, 30) pixels of the display area, and the paste window open.
struct PasteFixture : PictureApp {
    FormPastComment* paste = nullptr;
    QImage page = plainPicture(Qt::white, 300, 200);

    PasteFixture()
    {
        openPages({page});
        // The comment window takes these each time it loads.
        DirecDataRecord& record = app->state().DirecData;
        record.CommentFontSize = QStringLiteral("15");
        record.CommentForeColor = QStringLiteral("&H000000FF&");
        twMove(main().LabelComment, 40 * kTwipsPerPixel, 30 * kTwipsPerPixel);
        main().CommandWriteCommentOnPic->click();
        paste = &form<FormPastComment>("FormPastComment");
    }
    // Pastes the text with the pitch and gives the area it changed.
    QRect pasted(const QString& text, const QString& pitch = QStringLiteral("0"))
    {
        paste->Text1->setPlainText(text);
        paste->TextPastCommentPitch->setText(pitch);
        paste->CommandPast->click();
        return changedArea(page, seen());
    }
};

} // namespace

class TestFormPastComment : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void openingShowsTheWindowsAndTurnsPastingOn()
    {
        PictureApp a;
        a.openPages({plainPicture(Qt::white)}, {QStringLiteral("<<<<<最初の<<<<<ページ")});
        a.main().CommandModPic->click();
        a.main().CommandWriteCommentOnPic->click();
        QCOMPARE(backColor(a.main().CommandWriteCommentOnPic), kColorGreen);
        QVERIFY(a.shown("FormPastComment") && a.shown("FormSaveImage") && a.shown("FormComment"));
        QVERIFY(!a.shown("FormModPic")); // drawing closes while pasting
        auto& paste = a.form<FormPastComment>("FormPastComment");
        paste.CommandSetText->click();
        const QString comment = QStringLiteral("最初の\r\nページ");
        QCOMPARE(paste.Text1->toPlainText(),
                 QString(comment).replace(QStringLiteral("\r\n"), "\n"));
        QCOMPARE(a.form<FormComment>("FormComment").commentText(), comment);
        paste.unload();
        QCOMPARE(backColor(a.main().CommandWriteCommentOnPic), kColorButtonFace);
    }

    void pastedAtTheLabelsPlaceInTheCommentsFont()
    {
        PasteFixture f;
        const QRect area = f.pasted(QStringLiteral("AB"));
        QVERIFY(!area.isEmpty());
        // Inside the line that starts at the label's place, and nowhere else.
        QCOMPARE(area.intersected(QRect(40, 30, 60, 30)), area);
        QVERIFY(area.height() >= 10); // letters of 20 pixels
        const QImage seen = f.seen();
        int red = 0;
        for (int y = area.top(); y <= area.bottom(); ++y)
            for (int x = area.left(); x <= area.right(); ++x)
                red += qRed(seen.pixel(x, y)) > 200 && qGreen(seen.pixel(x, y)) < 60;
        QVERIFY(red > 20);
        QCOMPARE(f.lastPic(0), seen);
        QCOMPARE(backColor(f.paste->CommandPast), kColorRed);
        QCOMPARE(f.home.readFile(QStringLiteral("Lumentas/ForProgramRun_KDR/Temp.dat")),
                 QByteArray("AB\r\n"));
        saveShot(f.main().Picture2, QStringLiteral("pasted_comment"));
    }

    // A second paste on the page again, against a first of two lines at pitch 0.
    void pitchAndBlanks_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("pitch");
        QTest::addColumn<int>("lower"); // pixels the last line moves down
        QTest::newRow("300 twips") << "A\nA"
                                   << "300" << 20;
        QTest::newRow("-150 twips closes up") << "A\nA"
                                              << "-150" << -10;
        QTest::newRow("abc is 0") << "A\nA"
                                  << "abc" << 0;
        QTest::newRow("lines trimmed") << "  A  \n   A"
                                       << "0" << 0;
    }
    void pitchAndBlanks()
    {
        PasteFixture f;
        const QRect normal = f.pasted(QStringLiteral("A\nA"));
        const QImage normalSeen = f.seen();
        f.main().LabelDo_Click(); // the page again
        const QRect apart = f.pasted(FETCH(QString, text), FETCH(QString, pitch));
        QCOMPARE(apart.top(), normal.top());
        QCOMPARE(apart.bottom() - normal.bottom(), FETCH(int, lower));
        if (FETCH(int, lower) == 0)
            QCOMPARE(f.seen(), normalSeen);
    }

    // Nothing printed, the page stored all the same.
    void nothingPasted_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("shrunk");
        QTest::addColumn<QStringList>("boxes");
        QTest::newRow("empty text") << QString() << false << QStringList();
        QTest::newRow("shrunk picture: asks for a repeat")
            << "AB" << true << QStringList{"画像を元サイズにして再実行します。"};
    }
    void nothingPasted()
    {
        PasteFixture f;
        f.main().CheckOriginalSize->setChecked(!FETCH(bool, shrunk));
        QVERIFY(f.pasted(FETCH(QString, text)).isEmpty());
        QCOMPARE(f.ui.boxes, FETCH(QStringList, boxes));
        QVERIFY(f.main().CheckOriginalSize->isChecked());
        QCOMPARE(f.lastPic(0), f.page);
    }

    void commentPastedOnEveryPage()
    {
        PictureApp a;
        const QList<QImage> pages = {plainPicture(Qt::red, 120, 80),
                                     plainPicture(Qt::green, 120, 80),
                                     plainPicture(Qt::blue, 120, 80)};
        a.openPages(pages, {QStringLiteral("<<<<<one"), QStringLiteral("<<<<<two"),
                            QStringLiteral("<<<<<three")});
        a.main().CommandWriteCommentOnPic->click();
        auto& paste = a.form<FormPastComment>("FormPastComment");
        paste.CommandSetText->click();
        paste.CommandPast->click();
        a.main().CommandRight->click();
        a.main().CommandRight->click();
        QCOMPARE(paste.Text1->toPlainText(), QStringLiteral("three"));
        for (int page = 1; page <= 3; ++page) {
            const QImage stored = a.lastPic(3 - page);
            QCOMPARE(stored.pixel(119, 79), pages[page - 1].pixel(0, 0));
            QVERIFY2(!changedArea(pages[page - 1], stored).isEmpty(),
                     qPrintable(QStringLiteral("page %1 has no text").arg(page)));
        }
        // Pasting ends with its window: the next page is left alone.
        paste.unload();
        a.main().CommandLeft->click();
        QCOMPARE(a.lastPic(0).pixel(119, 79), pages[2].pixel(0, 0));
        QVERIFY(a.lastPic(3).isNull());
    }
};

QTEST_MAIN(TestFormPastComment)
#include "tst_FormPastComment.moc"

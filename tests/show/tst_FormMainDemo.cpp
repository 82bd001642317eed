// The demo show paged through by hand, with the media fake: each page on its
// surface, the chime with its picture, the comments, the option words.
#include "MainFixture.h"
#include "display/FormComment.h"
#include "display/PictureBox.h"
#include "platform/ClickLabel.h"
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "support/FakeMedia.h"
#include "support/Shots.h"

#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTest>

using namespace lumen;
using namespace lumen::test;

class TestFormMainDemo : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void pageThroughTheDemo();
};

void TestFormMainDemo::pageThroughTheDemo()
{
    MainFixture f;
    const QDir assets(QStringLiteral(QT_TESTCASE_SOURCEDIR "/../assets/demo"));
    f.home.makeFolder("demo");
    for (const QString& name : assets.entryList(QDir::Files))
        QFile::copy(assets.filePath(name), f.home.native("demo/" + name));
    QFile in(assets.filePath(QStringLiteral("demo.lst.in")));
    QVERIFY(in.open(QIODevice::ReadOnly));
    const QStringList lines = QString::fromUtf8(in.readAll())
                                  .replace(QStringLiteral("{DEMO}"), QStringLiteral("C:\\demo"))
                                  .split(QStringLiteral("\r\n"), Qt::SkipEmptyParts);
    f.open(lines);
    auto comment = [&f]() {
        return static_cast<FormComment*>(f.forms.existing(QStringLiteral("FormComment")));
    };

    // 1: a picture with a two-line comment.
    QCOMPARE(f.main.TextTotal->text(), QStringLiteral("6"));
    QCOMPARE(f.main.Picture2->pictureSize(), QSize(640, 420));
    QVERIFY(comment() && comment()->isVisible());
    QCOMPARE(comment()->commentText(), QStringLiteral("ルメンタへようこそ\r\n→ で次のページへ"));
    saveShot(&f.main, QStringLiteral("demo_1"));

    // 2: a wider picture, fitted, with its chime; no comment.
    QTest::mouseClick(f.main.CommandRight, Qt::LeftButton);
    QVERIFY(f.main.Picture3->isVisible());
    QCOMPARE(f.media.sounds, QStringList{f.home.native("demo/chime.wav")});
    QVERIFY(!comment()->isVisible());
    QVERIFY(f.main.HasDelay);

    // 3: the text page.
    QTest::mouseClick(f.main.CommandRight, Qt::LeftButton);
    QVERIFY(f.main.Text1->isVisible());
    QVERIFY(f.main.Text1->toPlainText().startsWith(QStringLiteral("ルメンタのデモ")));
    saveShot(&f.main, QStringLiteral("demo_3"));

    // 4: a BMP with its comment.
    QTest::mouseClick(f.main.CommandRight, Qt::LeftButton);
    QVERIFY(!f.main.Text1->isVisible());
    QCOMPARE(f.main.Picture2->pictureSize(), QSize(200, 200));
    QCOMPARE(comment()->commentText(), QStringLiteral("BMP の花"));

    // 5: PICTURESCROLL: at its own size, scrolled to its middle.
    QTest::mouseClick(f.main.CommandRight, Qt::LeftButton);
    QVERIFY(f.main.CheckOriginalSize->isChecked());
    QVERIFY(f.main.VScroll1->isVisible());
    QCOMPARE(backColor(f.main.CheckOriginalSize), kColorYellow);

    // 6: PUTPICTUREINIMAGE: fitted again; then the end of the list.
    QTest::mouseClick(f.main.CommandRight, Qt::LeftButton);
    QVERIFY(!f.main.CheckOriginalSize->isChecked());
    QVERIFY(!f.main.VScroll1->isVisible());
    QTest::mouseClick(f.main.CommandRight, Qt::LeftButton);
    QCOMPARE(f.state.PicNo, qint16(6));
    QCOMPARE(backColor(f.main.LabelMax), kColorRed);
    QCOMPARE(f.main.windowTitle(), QString());
}

QTEST_MAIN(TestFormMainDemo)
#include "tst_FormMainDemo.moc"

// FormComment and its popup FormOmake: the comment fields of the record,
// dragging, hugging the text, the popup.
#include "display/FormComment.h"
#include "display/FormOmake.h"
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "platform/Fonts.h"
#include "platform/FormRegistry.h"
#include "platform/Twips.h"
#include "support/BasicsFixture.h"
#include "support/Fetch.h"
#include "support/Shots.h"

#include <QApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>

using namespace lumen;
using namespace lumen::test;

namespace {

// The windows made through the registry, as the program makes them.
struct CommentFixture : BasicsFixture {
    FormRegistry forms;

    CommentFixture()
    {
        forms.add(QStringLiteral("FormComment"),
                  [this]() -> FormBase* { return new FormComment(basics, forms); });
        forms.add(QStringLiteral("FormOmake"),
                  [this]() -> FormBase* { return new FormOmake(forms); });
    }
    FormComment& comment()
    {
        return *static_cast<FormComment*>(forms.form(QStringLiteral("FormComment")));
    }
    // The comment on the screen at (1500, 1200) twips, 300 by 90 pixels.
    FormComment& shownComment()
    {
        FormComment& form = comment();
        form.showForm();
        form.move(100, 80);
        form.resize(300, 90);
        return form;
    }
};

void sendMouse(QWidget* target, QEvent::Type type, Qt::MouseButton button, Qt::MouseButtons buttons,
               QPointF at)
{
    QMouseEvent event(type, at, target->mapToGlobal(at), button, buttons, Qt::NoModifier);
    QApplication::sendEvent(target, &event);
}

void clickLabel(QWidget* label, Qt::MouseButton button, QPointF at)
{
    sendMouse(label, QEvent::MouseButtonPress, button, button, at);
    sendMouse(label, QEvent::MouseButtonRelease, button, Qt::NoButton, at);
}

// Where a window asked to stand at `twips` ends: on a whole pixel.
float onPixel(double twips)
{
    return pixelsToTwips(twipsToPixels(twips));
}

} // namespace

class TestFormComment : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { installFontSubstitutes(); }
    void loadAppliesTheCommentFields_data();
    void loadAppliesTheCommentFields();
    void dragByTheLabel_data();
    void dragByTheLabel();
    void clickHugsTheText();
    void popupOptions();
};

void TestFormComment::loadAppliesTheCommentFields_data()
{
    QTest::addColumn<QStringList>("fields"); // name, size, back colour, fore colour
    QTest::addColumn<QString>("family");     // stored name the label ends with
    QTest::addColumn<double>("points");
    QTest::addColumn<int>("backColor"); // -1: never set
    QTest::addColumn<int>("foreColor");
    const auto row = [](const char* name, const QStringList& fields, const char* family,
                        double points, int back, int fore) {
        QTest::newRow(name) << fields << QString(family) << points << back << fore;
    };
    row("padded fields are trimmed", {"  IPAGothic  ", " 12 ", " &H808080 ", " &HFF "}, "IPAGothic",
        12, 0x808080, 255);
    row("line ends go too", {"IPAGothic", "12\r\n", "   &HFF&", ""}, "IPAGothic", 12, 255, -1);
    row("an empty font name leaves the design font", {"", "11", "0", "16777215"}, "MS UI Gothic",
        11, 0, 0xFFFFFF);
    row("what isn't a number leaves size and colours", {"IPAGothic", "big", "red", ""}, "IPAGothic",
        9, -1, -1);
    row("size 0 is refused", {"IPAGothic", "0", "&HFF&", "&H0&"}, "IPAGothic", 9, 255, 0);
}

// The fields come NUL-padded, as new ones do, and go back trimmed and padded
// with blanks.
void TestFormComment::loadAppliesTheCommentFields()
{
    CommentFixture f;
    DirecDataRecord& record = f.state.DirecData;
    FixedString<15>* stored[] = {&record.CommentFontName, &record.CommentFontSize,
                                 &record.CommentBackColor, &record.CommentForeColor};
    const QStringList fields = FETCH(QStringList, fields);
    for (int i = 0; i < 4; ++i)
        stored[i]->setBytes(fields[i].toLatin1());
    FormComment& form = f.comment();
    QSignalSpy front(&form, &FormComment::cameToFront);
    form.ClickGuard = 2;
    form.load();

    auto* label = form.findChild<QLabel*>("Label1");
    QCOMPARE(label->font().family(), resolveFontFamily(FETCH(QString, family)));
    QCOMPARE(label->font().pointSizeF(), FETCH(double, points));
    QCOMPARE(backColor(&form), FETCH(int, backColor));
    QCOMPARE(foreColor(label), FETCH(int, foreColor));
    QCOMPARE(form.ClickGuard, qint16(0));
    QCOMPARE(front.count(), 1);
    for (int i = 0; i < 4; ++i)
        QCOMPARE(stored[i]->bytes(), fields[i].trimmed().toLatin1().leftJustified(15));
}

void TestFormComment::dragByTheLabel_data()
{
    QTest::addColumn<int>("buttons"); // held while moving; pressed at (10, 10), 150 twips each
    QTest::addColumn<QList<QPointF>>("moves");
    QTest::addColumn<QPoint>("moved"); // the window, pixels
    QTest::addColumn<int>("front");
    const int left = Qt::LeftButton;
    QTest::newRow("10 twips is no drag")
        << left << QList<QPointF>{{10.4, 10 + 8 / 15.}} << QPoint() << 1;
    QTest::newRow("10.5 twips moves") << left << QList<QPointF>{{10.7, 10}} << QPoint(1, 0) << 1;
    QTest::newRow("right button held is no drag")
        << int(Qt::RightButton) << QList<QPointF>{{12, 7}} << QPoint() << 0;
    // The label moves with the window; the pointer goes on from there.
    QTest::newRow("on and on") << left << QList<QPointF>{{10.5, 10}, {14, 7}, {15, 10}}
                               << QPoint(9, -3) << 3;
}

void TestFormComment::dragByTheLabel()
{
    CommentFixture f;
    FormComment& form = f.shownComment();
    const QPoint start = form.pos();
    QSignalSpy front(&form, &FormComment::cameToFront);
    const auto buttons = Qt::MouseButtons(FETCH(int, buttons));
    sendMouse(form.Label1, QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton, {10, 10});
    for (const QPointF& at : FETCH(QList<QPointF>, moves))
        sendMouse(form.Label1, QEvent::MouseMove, Qt::NoButton, buttons, at);
    QCOMPARE(form.pos(), start + FETCH(QPoint, moved));
    QCOMPARE(front.count(), FETCH(int, front));
}

void TestFormComment::clickHugsTheText()
{
    CommentFixture f;
    FormComment& form = f.shownComment();
    form.setCommentText(
        QStringLiteral("この写真は二〇一九年の春、京都の哲学の道で撮ったものです。\n"
                       "桜が満開でした。"));
    QVERIFY(twWidth(form.Label1) > twScaleWidth(&form)); // the text runs past the window
    const QSize before = form.size();
    const QPointF place(twLeft(&form), twTop(&form));
    const float frameWidth = twWidth(&form) - twScaleWidth(&form);
    const float frameHeight = twHeight(&form) - twScaleHeight(&form);
    // ClickGuard 2 only lets the click through: the next one hugs.
    form.ClickGuard = 2;
    clickLabel(form.Label1, Qt::LeftButton, {5, 5});
    QCOMPARE(form.size(), before);
    QCOMPARE(form.ClickGuard, qint16(0));
    clickLabel(form.Label1, Qt::LeftButton, {5, 5});
    QCOMPARE(QPointF(twLeft(&form), twTop(&form)), place);
    QCOMPARE(twWidth(&form), onPixel(twWidth(form.Label1) + frameWidth + 200));
    QCOMPARE(twHeight(&form), onPixel(twHeight(form.Label1) + frameHeight + 200));
    // The label stands in the middle, about 100 twips from each side.
    QVERIFY(qAbs(twLeft(form.Label1) - 100) <= 15);
    QVERIFY(qAbs(twTop(form.Label1) - 100) <= 15);
    saveShot(&form, QStringLiteral("FormComment"));
}

void TestFormComment::popupOptions()
{
    CommentFixture f;
    f.forms.add(QStringLiteral("FormSetFontAndColor"),
                [] { return new FormBase(QStringLiteral("FormSetFontAndColor")); });
    FormBase* settings = f.forms.form(QStringLiteral("FormSetFontAndColor"));
    settings->resize(120, 80); // small enough to stand beside the popup on the screen
    FormComment& form = f.shownComment();
    const QSize before = form.size();
    clickLabel(form.Label1, Qt::RightButton, {20, 10});
    auto& popup = *static_cast<FormOmake*>(f.forms.form(QStringLiteral("FormOmake")));
    QVERIFY(popup.isVisible());
    QCOMPARE(QPointF(twLeft(&popup), twTop(&popup)),
             QPointF(twLeft(&form) + 300, twTop(&form) + 150)); // at the pointer
    QCOMPARE(form.size(), before);                              // a right click doesn't hug
    saveShot(&popup, QStringLiteral("FormOmake"));

    // Option2: the settings beside the popup, for the comment; the comment stays.
    const QPointF beside(twLeft(&popup) + twWidth(&popup), twTop(&popup));
    QTest::mouseClick(popup.Option2, Qt::LeftButton);
    QVERIFY(!popup.isVisible() && form.isVisible() && settings->isVisible());
    QCOMPARE(QPointF(twLeft(settings), twTop(settings)), beside);
    QCOMPARE(settings->property("mode").toString(), QStringLiteral("COMMENT"));

    // Shown again the popup has no option set; Option1 takes everything away.
    clickLabel(form.Label1, Qt::RightButton, {20, 10});
    QVERIFY(!popup.Option1->isChecked() && !popup.Option2->isChecked());
    QTest::mouseClick(popup.Option1, Qt::LeftButton);
    for (const FormBase* gone :
         {static_cast<FormBase*>(&form), settings, static_cast<FormBase*>(&popup)})
        QVERIFY2(!gone->isLoaded() && !gone->isVisible(), qPrintable(gone->objectName()));
}

QTEST_MAIN(TestFormComment)
#include "tst_FormComment.moc"

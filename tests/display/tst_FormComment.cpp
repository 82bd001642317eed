// FormComment and its popup FormOmake driven by their object names: the
// comment fields of the record, dragging, hugging the text, the popup.
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

// The comment window and its popup made through the registry, as the
// program makes them.
struct CommentFixture : BasicsFixture {
    FormRegistry forms;

    CommentFixture()
    {
        forms.add(QStringLiteral("FormComment"),
                  [this]() -> FormBase* { return new FormComment(basics, forms); });
        forms.add(QStringLiteral("FormOmake"),
                  [this]() -> FormBase* { return new FormOmake(forms); });
        DirecDataRecord& record = state.DirecData;
        record.CommentFontName = QStringLiteral("MS UI Gothic");
        record.CommentFontSize = QStringLiteral("9");
        record.CommentBackColor = QStringLiteral("&H00FF8080&");
        record.CommentForeColor = QStringLiteral("0");
    }
    FormComment& comment()
    {
        return *static_cast<FormComment*>(forms.form(QStringLiteral("FormComment")));
    }
    FormOmake& omake() { return *static_cast<FormOmake*>(forms.form(QStringLiteral("FormOmake"))); }
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

// A settings-window stand-in that the popup can open by name.
FormBase* addFontAndColorWindow(FormRegistry& forms)
{
    forms.add(QStringLiteral("FormSetFontAndColor"),
              []() -> FormBase* { return new FormBase(QStringLiteral("FormSetFontAndColor")); });
    return forms.form(QStringLiteral("FormSetFontAndColor"));
}

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
    void loadWritesTheFieldsBackTrimmed();
    void dragByTheLabel_data();
    void dragByTheLabel();
    void dragWithTheMouse();
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
    row("an empty font name leaves the design font", {"", "11", "0", "16777215"}, "MS UI Gothic",
        11, 0, 0xFFFFFF);
    row("what isn't a number leaves size and colours", {"IPAGothic", "big", "red", ""}, "IPAGothic",
        9, -1, -1);
    row("size 0 is refused", {"IPAGothic", "0", "&HFF&", "&H0&"}, "IPAGothic", 9, 255, 0);
}

void TestFormComment::loadAppliesTheCommentFields()
{
    CommentFixture f;
    DirecDataRecord& record = f.state.DirecData;
    const QStringList fields = FETCH(QStringList, fields);
    record.CommentFontName = fields[0];
    record.CommentFontSize = fields[1];
    record.CommentBackColor = fields[2];
    record.CommentForeColor = fields[3];
    FormComment& form = f.comment();
    form.ClickGuard = 2;
    form.load();

    auto* label = form.findChild<QLabel*>("Label1");
    QCOMPARE(label->font().family(), resolveFontFamily(FETCH(QString, family)));
    QCOMPARE(label->font().pointSizeF(), FETCH(double, points));
    QCOMPARE(backColor(&form), FETCH(int, backColor));
    QCOMPARE(foreColor(label), FETCH(int, foreColor));
    QCOMPARE(form.ClickGuard, qint16(0));
}

void TestFormComment::loadWritesTheFieldsBackTrimmed()
{
    CommentFixture f;
    DirecDataRecord& record = f.state.DirecData;
    record.CommentFontName.setBytes("  IPAGothic"); // NUL-padded, as a new field is
    record.CommentFontSize.setBytes("12\r\n");
    record.CommentBackColor = QStringLiteral("   &HFF&");
    record.CommentForeColor.setBytes(QByteArray());
    QSignalSpy front(&f.comment(), &FormComment::cameToFront);
    f.comment().load();
    QCOMPARE(record.CommentFontName.bytes(), QByteArray("IPAGothic      "));
    QCOMPARE(record.CommentFontSize.bytes(), QByteArray("12             "));
    QCOMPARE(record.CommentBackColor.bytes(), QByteArray("&HFF&          "));
    QCOMPARE(record.CommentForeColor.bytes(), QByteArray(15, ' '));
    QCOMPARE(front.count(), 1);
}

void TestFormComment::dragByTheLabel_data()
{
    QTest::addColumn<int>("buttons");
    QTest::addColumn<float>("x"); // pointer in the label, twips; the drag starts at (150, 150)
    QTest::addColumn<float>("y");
    QTest::addColumn<bool>("moves");
    QTest::addColumn<bool>("front");
    const int left = Qt::LeftButton;
    QTest::newRow("10 twips is no drag") << left << 156.f << 158.f << false << true;
    QTest::newRow("10.5 twips moves") << left << 160.5f << 150.f << true << true;
    QTest::newRow("right button held is no drag")
        << int(Qt::RightButton) << 180.f << 105.f << false << false;
}

void TestFormComment::dragByTheLabel()
{
    CommentFixture f;
    FormComment& form = f.shownComment();
    const float left = twLeft(&form);
    const float top = twTop(&form);
    QSignalSpy front(&form, &FormComment::cameToFront);
    form.Label1_MouseDown(Qt::LeftButton, 150.4f, 149.6f);
    const float x = FETCH(float, x);
    const float y = FETCH(float, y);
    form.Label1_MouseMove(Qt::MouseButtons(FETCH(int, buttons)), x, y);
    if (FETCH(bool, moves)) {
        QCOMPARE(twLeft(&form), onPixel(left - (150 - x)));
        QCOMPARE(twTop(&form), onPixel(top - (150 - y)));
    } else {
        QCOMPARE(twLeft(&form), left);
        QCOMPARE(twTop(&form), top);
    }
    QCOMPARE(front.count(), FETCH(bool, front) ? 1 : 0);
}

void TestFormComment::dragWithTheMouse()
{
    CommentFixture f;
    FormComment& form = f.shownComment();
    const QPoint start = form.pos();
    sendMouse(form.Label1, QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton, {10, 10});
    // Half a pixel on a scaled screen is 7.5 twips: no drag yet.
    sendMouse(form.Label1, QEvent::MouseMove, Qt::NoButton, Qt::LeftButton, {10.5, 10});
    QCOMPARE(form.pos(), start);
    sendMouse(form.Label1, QEvent::MouseMove, Qt::NoButton, Qt::LeftButton, {14, 7});
    QCOMPARE(form.pos(), start + QPoint(4, -3));
    // The label moved with the window; the pointer goes on from there.
    sendMouse(form.Label1, QEvent::MouseMove, Qt::NoButton, Qt::LeftButton, {15, 10});
    QCOMPARE(form.pos(), start + QPoint(9, -3));
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
    FormBase* settings = addFontAndColorWindow(f.forms);
    FormComment& form = f.shownComment();
    const QSize before = form.size();
    clickLabel(form.Label1, Qt::RightButton, {20, 10});
    FormOmake& popup = f.omake();
    QVERIFY(popup.isVisible());
    QCOMPARE(QPointF(twLeft(&popup), twTop(&popup)),
             QPointF(twLeft(&form) + 300, twTop(&form) + 150)); // at the pointer
    QCOMPARE(form.size(), before);                              // a right click doesn't hug
    QCOMPARE(popup.Option1->text(), QStringLiteral("コメント消去"));
    QCOMPARE(popup.Option2->text(), QStringLiteral("文字、背景色変更"));
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

// Windows load, unload (hide) and load again; modal shows return when the
// window goes; the frame's close is an unload that the window may refuse.
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "platform/FormBase.h"
#include "platform/UserDialogs.h"
#include "support/Fetch.h"

#include <QCloseEvent>
#include <QLabel>
#include <QTest>
#include <QTimer>

using namespace lumen;

namespace {

class CountingForm : public FormBase {
public:
    CountingForm()
        : FormBase(QStringLiteral("FormCounting"))
    {}
    int loads = 0;
    int unloads = 0;
    bool refuse = false;

protected:
    void Form_Load() override { ++loads; }
    void Form_Unload(bool& cancel) override
    {
        ++unloads;
        cancel = refuse;
    }
};

} // namespace

class TestFormBase : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void loadsOnceUntilUnloaded();
    void closeBoxUnloads();
    void unloadMayBeRefused();
    void modalReturnsWhenUnloaded();
    void twipsGeometry_data();
    void twipsGeometry();
    void classicFilters_data();
    void classicFilters();
};

void TestFormBase::loadsOnceUntilUnloaded()
{
    CountingForm form;
    form.showForm();
    form.showForm();
    QCOMPARE(form.loads, 1);
    QVERIFY(form.unload());
    QVERIFY(!form.isVisible());
    QVERIFY(!form.isLoaded());
    form.load(); // touching the window loads it again, hidden
    QCOMPARE(form.loads, 2);
    QVERIFY(!form.isVisible());
}

void TestFormBase::closeBoxUnloads()
{
    CountingForm form;
    form.showForm();
    QVERIFY(form.close() == false); // the object stays; the window is unloaded
    QCOMPARE(form.unloads, 1);
    QVERIFY(!form.isVisible());
    QVERIFY(!form.isLoaded());
}

void TestFormBase::unloadMayBeRefused()
{
    CountingForm form;
    form.refuse = true;
    form.showForm();
    QVERIFY(!form.unload());
    QVERIFY(form.isVisible());
    QVERIFY(form.isLoaded());
}

void TestFormBase::modalReturnsWhenUnloaded()
{
    CountingForm form;
    bool wasModal = false;
    QTimer::singleShot(10, &form, [&] {
        wasModal = form.isVisible() && form.windowModality() == Qt::ApplicationModal;
        form.unload();
    });
    form.showModal();
    QVERIFY(wasModal);
    QVERIFY(!form.isVisible());
    QCOMPARE(form.windowModality(), Qt::NonModal);
}

void TestFormBase::twipsGeometry_data()
{
    QTest::addColumn<double>("left");
    QTest::addColumn<double>("top");
    QTest::addColumn<double>("width");
    QTest::addColumn<double>("height");
    QTest::addColumn<QRect>("pixels");
    QTest::newRow("whole pixels") << 1500.0 << 300.0 << 4300.0 << 3800.0
                                  << QRect(100, 20, 287, 253);
    QTest::newRow("rounded") << 22.0 << 8.0 << 30.0 << 37.0 << QRect(1, 1, 2, 2);
}

void TestFormBase::twipsGeometry()
{
    QWidget parent;
    QLabel child(&parent);
    twMove(&child, FETCH(double, left), FETCH(double, top), FETCH(double, width),
           FETCH(double, height));
    QFETCH(QRect, pixels);
    QCOMPARE(child.geometry(), pixels);
    QCOMPARE(twLeft(&child), float(pixels.x() * 15));
    QCOMPARE(twWidth(&child), float(pixels.width() * 15));
}

void TestFormBase::classicFilters_data()
{
    QTest::addColumn<QString>("classic");
    QTest::addColumn<QString>("qt");
    QTest::newRow("list and all") << "(*.lst)|*.lst|(*.*)|*.*"
                                  << "(*.lst) (*.lst);;(*.*) (*)";
    QTest::newRow("two patterns") << "画像|*.jpg;*.bmp"
                                  << "画像 (*.jpg *.bmp)";
    QTest::newRow("odd part dropped") << "(*.*)|*.*|x"
                                      << "(*.*) (*)";
}

void TestFormBase::classicFilters()
{
    QCOMPARE(qtFilterFromClassic(FETCH(QString, classic)), FETCH(QString, qt));
}

QTEST_MAIN(TestFormBase)
#include "tst_FormBase.moc"

// Windows load, unload (hide) and load again; modal shows return when the
// window goes; the frame's close is an unload that the window may refuse.
#include "platform/Controls.h"
#include "platform/FormBase.h"
#include "platform/UserDialogs.h"
#include "support/Fetch.h"

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
    void unloadAndLoadAgain_data()
    {
        QTest::addColumn<bool>("closeBox");
        QTest::addColumn<bool>("refuse");
        QTest::newRow("unload") << false << false;
        QTest::newRow("close box") << true << false;
        QTest::newRow("refused") << false << true;
        QTest::newRow("close box refused") << true << true;
    }
    void unloadAndLoadAgain()
    {
        CountingForm form;
        form.refuse = FETCH(bool, refuse);
        form.showForm();
        form.showForm();
        QCOMPARE(form.loads, 1);
        if (FETCH(bool, closeBox))
            QVERIFY(!form.close()); // the object stays either way
        else
            QCOMPARE(form.unload(), !form.refuse);
        QCOMPARE(form.unloads, 1);
        QCOMPARE(form.isVisible(), form.refuse);
        QCOMPARE(form.isLoaded(), form.refuse);
        form.load(); // touching the window loads it again, hidden
        QCOMPARE(form.loads, form.refuse ? 1 : 2);
        QCOMPARE(form.isVisible(), form.refuse);
    }

    void modalReturnsWhenUnloaded()
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

    void twipsGeometry_data()
    {
        QTest::addColumn<QRectF>("twips");
        QTest::addColumn<QRect>("pixels");
        QTest::newRow("whole pixels") << QRectF(1500, 300, 4300, 3800) << QRect(100, 20, 287, 253);
        QTest::newRow("rounded") << QRectF(22, 8, 30, 37) << QRect(1, 1, 2, 2);
    }
    void twipsGeometry()
    {
        QWidget parent;
        QLabel child(&parent);
        const QRectF twips = FETCH(QRectF, twips);
        twMove(&child, twips.x(), twips.y(), twips.width(), twips.height());
        const QRect pixels = FETCH(QRect, pixels);
        QCOMPARE(child.geometry(), pixels);
        QCOMPARE(twLeft(&child), float(pixels.x() * 15));
        QCOMPARE(twWidth(&child), float(pixels.width() * 15));
    }

    void classicFilters_data()
    {
        QTest::addColumn<QString>("classic");
        QTest::addColumn<QString>("qt");
        const auto row = [](const char* name, const char* classic, const char* qt) {
            QTest::newRow(name) << QString(classic) << QString(qt);
        };
        row("list and all", "(*.lst)|*.lst|(*.*)|*.*", "(*.lst) (*.lst);;(*.*) (*)");
        row("two patterns", "画像|*.jpg;*.bmp", "画像 (*.jpg *.bmp)");
        row("odd part dropped", "(*.*)|*.*|x", "(*.*) (*)");
    }
    void classicFilters()
    {
        QCOMPARE(qtFilterFromClassic(FETCH(QString, classic)), FETCH(QString, qt));
    }
};

QTEST_MAIN(TestFormBase)
#include "tst_FormBase.moc"

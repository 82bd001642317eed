// Windows load, unload (hide) and load again; modal shows return when the
// window goes; the frame's close is an unload that the window may refuse.
#include "platform/Controls.h"
#include "platform/DialogFilter.h"
#include "platform/FormBase.h"
#include "platform/Translations.h"
#include "platform/UserDialogs.h"
#include "support/Fetch.h"

#include <QFile>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

using namespace lumen;
using namespace Qt::StringLiterals;

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
        row("programs under their caption", "画像エディター (*.exe)|*.exe",
            "画像エディター (*.exe) (*)");
    }
    void classicFilters()
    {
        QCOMPARE(qtFilterFromClassic(FETCH(QString, classic)), FETCH(QString, qt));
    }

    // What a filter lists: names by pattern without regard to case, and
    // under "*.exe" the files that may be run, whatever their names.
    void filterMatches_data()
    {
        QTest::addColumn<QString>("classic");
        QTest::addColumn<QString>("file"); // made in a folder of the test; "/" a real path
        QTest::addColumn<bool>("executable");
        QTest::addColumn<bool>("listed");
        const QString programs = QStringLiteral("画像エディター (*.exe)|*.exe");
        QTest::newRow("xdg-open") << programs << "/usr/bin/xdg-open" << true << true;
        QTest::newRow("a script without suffix") << programs << "paint" << true << true;
        QTest::newRow("a program with a suffix") << programs << "paint.sh" << true << true;
        QTest::newRow("a Windows program file") << programs << "PAINT.EXE" << false << false;
        QTest::newRow("a text") << programs << "notes.txt" << false << false;
        QTest::newRow("list in capitals") << "(*.lst)|*.lst"
                                          << "SHOW.LST" << false << true;
        QTest::newRow("list behind") << "(*.lst)|*.lst"
                                     << "show.lst.bak" << false << false;
        QTest::newRow("an executable list is a list only") << "(*.lst)|*.lst"
                                                           << "run" << true << false;
        QTest::newRow("all, no dot") << "(*.*)|*.*"
                                     << "README" << false << true;
        QTest::newRow("second filter") << "(*.lst)|*.lst|画像|*.jpg;*.bmp"
                                       << "a.BMP" << false << true;
    }
    void filterMatches()
    {
        QFETCH(QString, classic);
        QFETCH(QString, file);
        QTemporaryDir folder;
        if (!file.startsWith(u'/')) {
            file = folder.filePath(file);
            QFile made(file);
            QVERIFY(made.open(QIODevice::WriteOnly));
            made.write("#!/bin/sh\n");
            made.close();
            QFileDevice::Permissions mode = QFileDevice::ReadOwner | QFileDevice::WriteOwner;
            if (FETCH(bool, executable))
                mode |= QFileDevice::ExeOwner;
            QVERIFY(made.setPermissions(mode));
        }
        const QList<DialogFilter> filters = dialogFilters(classic);
        QVERIFY(!filters.isEmpty());
        QCOMPARE(dialogFilterMatches(filters.last(), file), FETCH(bool, listed));
    }

    // Qt's own buttons and dialog labels read in Japanese, whatever the
    // locale; a folder without the file leaves them as they were.
    void qtTextsInJapanese()
    {
        QLocale::setDefault(QLocale::c());
        QVERIFY(!installJapaneseQtTexts(QStringLiteral("/nonexistent")));
        QCOMPARE(QCoreApplication::translate("QFileDialog", "Look in:"), u"Look in:"_s);
        QVERIFY(installJapaneseQtTexts());
        QMessageBox box;
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
        QCOMPARE(box.button(QMessageBox::Cancel)->text(), u"キャンセル"_s);
        QCOMPARE(box.button(QMessageBox::Yes)->text(), u"はい(&Y)"_s);
        QCOMPARE(QCoreApplication::translate("QFileDialog", "Look in:"), u"アドレス:"_s);
    }
};

QTEST_MAIN(TestFormBase)
#include "tst_FormBase.moc"

// FormSetAccessDirectry driven by its object names on machines made of
// stand-in programs: the search, the red and blue rows, the file dialog of
// each row, the fixed sound recorder, and the record written at the end.
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "platform/DialogFilter.h"
#include "settings/FormSetAccessDirectry.h"
#include "state/DirecData.h"
#include "support/BasicsFixture.h"
#include "support/FakeSystemBin.h"
#include "support/Fetch.h"
#include "support/Shots.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

using namespace lumen;
using namespace lumen::test;

namespace {

constexpr qint32 kBlue = 0xFF0000;

const QStringList kBoxes{"TextComment", "TextText", "TextMpl2", "TextSnd", "TextIE", "TextPic"};
const QString kNotAProgram =
    QStringLiteral("実行できるファイルではありません。プログラムを選んでください。");
const QStringList kDesktop{"xdg-open",    "gedit", "vlc",         "audacity",
                           "firefox-esr", "gimp",  "view3dscene", "f3d"};

// A machine: a home as C:, a program folder as Z:\usr\bin, and the window.
struct Machine {
    BasicsFixture f;
    FakeSystemBin bin{f.home.fs};
    FormSetAccessDirectry form{f.basics};

    explicit Machine(const QStringList& programs)
    {
        for (const QString& name : programs)
            bin.add(name);
    }
    QLineEdit* box(const QString& name) { return form.findChild<QLineEdit*>(name); }
    QLineEdit* box(int row) { return box(kBoxes[row]); }
    QPushButton* button(const QString& name) { return form.findChild<QPushButton*>(name); }
    QPushButton* exitButton() { return button(QStringLiteral("CommandExit")); }
    void choose(int row, const std::optional<QString>& nativePath)
    {
        f.ui.fileNames.enqueue(nativePath);
        QTest::mouseClick(button(QStringLiteral("CommandApliPos_%1").arg(row)), Qt::LeftButton);
    }
    QStringList boxTexts()
    {
        QStringList texts;
        for (const QString& name : kBoxes)
            texts << box(name)->text();
        return texts;
    }
    QList<qint32> boxColors()
    {
        QList<qint32> colors;
        for (const QString& name : kBoxes)
            colors << foreColor(box(name));
        return colors;
    }
    // A program put in a folder under C:; returns its native path.
    QString tool(const QString& relative, bool executable)
    {
        const QString path = f.home.writeFile(relative, "#!/bin/sh\n");
        QFile::setPermissions(path,
                              QFileDevice::ReadOwner | QFileDevice::WriteOwner |
                                  (executable ? QFileDevice::ExeOwner : QFileDevice::Permission()));
        return path;
    }
};

QString z(const QString& name)
{
    return QStringLiteral("Z:\\usr\\bin\\") + name;
}

// The record's program paths in the order of the rows, then the second media
// player and the two viewers that the search fills too.
QStringList paths(const DirecDataRecord& r)
{
    return {FixedText(r.CommentEditorPath),  FixedText(r.TextEditorPath),
            FixedText(r.MediaPlayerPath),    FixedText(r.SoundPlayerPath),
            FixedText(r.InternetViewerPath), FixedText(r.PictureEditorPath),
            FixedText(r.MediaPlayerPath2),   FixedText(r.VrmlViewerPath),
            FixedText(r.CyberViewPath)};
}

} // namespace

class TestFormSetAccessDirectry : public QObject {
    Q_OBJECT
private Q_SLOTS:
    // A bare machine with xdg-utils: the opener stands in every row. The
    // desktop's programs, row by row, are checked in the record written at the end.
    void searchFillsTheRows()
    {
        Machine m({"xdg-open"});
        m.form.showForm();
        QCOMPARE(m.boxTexts(), QStringList(6, z("xdg-open")));
        QCOMPARE(m.boxColors(), QList<qint32>(6, kBlue));
        QVERIFY(m.exitButton()->isEnabled());
        QCOMPARE(backColor(m.exitButton()), kColorGreen);
        QCOMPARE(m.f.ui.beeps, 1); // the green one only
        QCOMPARE(paths(m.f.state.DirecData), QStringList(9, z("xdg-open")));
        saveShot(&m.form, QStringLiteral("FormSetAccessDirectry_bare"));
    }

    void missingBrowserIsRedUntilChosen()
    {
        Machine m({"gedit", "vlc", "audacity", "gimp"}); // no browser, no xdg-open
        m.form.showForm();
        // The row keeps its design text; the search's path waits in the record.
        const QString design =
            QStringLiteral("インターネットのデータ表示用ビューワ (Iexplore.exe等)");
        QCOMPARE(m.box("TextIE")->text(), design);
        QCOMPARE(paths(m.f.state.DirecData)[4], z("xdg-open"));
        QList<qint32> colors(6, kBlue);
        colors[4] = kColorRed;
        QCOMPARE(m.boxColors(), colors);
        QVERIFY(!m.exitButton()->isEnabled());
        QCOMPARE(m.f.ui.beeps, 1);
        saveShot(&m.form, QStringLiteral("FormSetAccessDirectry_missing"));

        // Cancel changes nothing, the current folder included.
        m.choose(4, std::nullopt);
        QCOMPARE(m.box("TextIE")->text(), design);
        QVERIFY(!m.exitButton()->isEnabled());
        QCOMPARE(m.f.home.fs.curDir(), QStringLiteral("C:\\"));

        const QString browser = m.bin.add(QStringLiteral("firefox-esr"));
        m.choose(4, browser);
        QCOMPARE(m.box("TextIE")->text(), z("firefox-esr"));
        QVERIFY(m.exitButton()->isEnabled());
        QCOMPARE(m.f.ui.beeps, 2);
        QCOMPARE(m.f.home.fs.curDir(), QStringLiteral("Z:\\usr\\bin"));
        // Both dialogs started in the folder of the expected xdg-open.
        QCOMPARE(m.f.ui.dialogStarts.size(), 2);
        for (const QString& start : std::as_const(m.f.ui.dialogStarts))
            QCOMPARE(QDir::cleanPath(start), QDir::cleanPath(m.bin.folder()));
        QVERIFY(m.f.ui.boxes.isEmpty());
    }

    void choosingInARow_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<QString>("rejected"); // under C:, chosen first
        QTest::addColumn<bool>("rejectedIsProgram");
        QTest::addColumn<QString>("message");
        QTest::addColumn<QString>("accepted"); // a program under C:, chosen next
        QTest::addColumn<QString>("filter");
        const QStringList filters{"コメント用エディター (*.exe)|*.exe",
                                  "テキストエディター (*.exe)|*.exe",
                                  "メディアプレーヤー (*.exe)|*.exe",
                                  "サウンドプレーヤー(audacityに固定) (*.exe)|*.exe",
                                  "インターネットファイルエディター (*.exe)|*.exe",
                                  "画像エディター (*.exe)|*.exe"};
        for (int row : {0, 1, 2, 4, 5})
            QTest::addRow("%s", qPrintable(kBoxes[row]))
                << row << "docs/readme.txt" << false << kNotAProgram << "apps/my tool"
                << filters[row];
        // The sound row keeps the recorder the search found, by name in capitals.
        const QString fixed = QStringLiteral("必ず、AUDACITYを使用してください。");
        QTest::newRow("TextSnd, another editor")
            << 3 << "tools/kwave" << true << fixed << "tools/AUDACITY" << filters[3];
        QTest::newRow("TextSnd, a longer name")
            << 3 << "tools/audacity2" << true << fixed << "apps/audacity" << filters[3];
        QTest::newRow("TextSnd, not a program")
            << 3 << "docs/audacity" << false << kNotAProgram << "apps/audacity" << filters[3];
    }

    void choosingInARow()
    {
        const int row = FETCH(int, row);
        QFETCH(QString, rejected);
        Machine m(kDesktop);
        m.form.load();
        const QString before = m.box(row)->text();
        m.choose(row, m.tool(rejected, FETCH(bool, rejectedIsProgram)));
        QCOMPARE(m.f.ui.boxes, QStringList{FETCH(QString, message)});
        QCOMPARE(m.box(row)->text(), before);
        QCOMPARE(paths(m.f.state.DirecData)[row], before);
        // The dialog was accepted: its folder is the current one all the same.
        QCOMPARE(m.f.home.fs.curDir(), "C:\\" + rejected.section('/', 0, 0));

        const QString accepted = FETCH(QString, accepted);
        m.choose(row, m.tool(accepted, true));
        const QString program = "C:\\" + QString(accepted).replace('/', '\\');
        QCOMPARE(m.f.ui.boxes.size(), 1);
        QCOMPARE(m.box(row)->text(), program);
        QCOMPARE(paths(m.f.state.DirecData)[row], program);
        QCOMPARE(m.f.ui.dialogFilters, QStringList(2, FETCH(QString, filter)));
        // The dialog given that filter lists the programs and no text, named
        // as they may be.
        const DialogFilter given = dialogFilters(m.f.ui.dialogFilters.last()).first();
        QVERIFY(dialogFilterMatches(given, QStringLiteral("/usr/bin/xdg-open")));
        QVERIFY(dialogFilterMatches(given, m.tool(QStringLiteral("apps/PAINT.EXE"), true)));
        QVERIFY(!dialogFilterMatches(given, m.tool(QStringLiteral("docs/paint.exe"), false)));
    }

    void closing_data()
    {
        QTest::addColumn<bool>("byExit");
        QTest::newRow("CommandExit") << true;
        QTest::newRow("close box") << false;
    }

    void closing()
    {
        QFETCH(bool, byExit);
        Machine m(kDesktop);
        QStringList events;
        const QString file =
            m.f.home.native(QStringLiteral("Lumentas/ForProgramRun_KDR/DirecData.ran"));
        m.f.ui.onBox = [&](const QString&) {
            events << (QFile::exists(file) ? "message after the record" : "message before it");
        };
        m.form.onCompleted = [&] { events << "completed"; };
        m.form.onAbandoned = [&] { events << "abandoned"; };
        m.form.showForm();
        QCOMPARE(m.boxTexts(), (QStringList{z("gedit"), z("gedit"), z("vlc"), z("audacity"),
                                            z("firefox-esr"), z("gimp")}));
        // Typed by hand: the boxes are written, trimmed, not the search's paths.
        m.box("TextPic")->setText(QStringLiteral("  C:\\apps\\paint  "));
        m.box("TextMpl2")->setText(QStringLiteral("C:\\apps\\player "));
        if (byExit)
            QTest::mouseClick(m.exitButton(), Qt::LeftButton);
        else
            m.form.close(); // the frame's close box
        QVERIFY(!m.form.isVisible());
        QVERIFY(!m.form.isLoaded());
        if (!byExit) {
            QCOMPARE(events, QStringList{"abandoned"});
            QVERIFY(m.f.ui.boxes.isEmpty());
            QVERIFY(!QFile::exists(file));
            return;
        }
        QCOMPARE(events, (QStringList{"message after the record", "completed"}));
        QCOMPARE(m.f.ui.boxes,
                 QStringList{
                     " デジタルカメラで良く使われているMOVファイルを見るためにはQuickTimeが、"
                     "3D画像を見るためにはLattice Viewerが必要です。インストールしてありますか？"});
        QCOMPARE(QFileInfo(file).size(), qint64(DirecDataRecord::kSize));
        const DirecDataRecord r = readDirecData(file);
        QCOMPARE(paths(r), (QStringList{z("gedit"), z("gedit"), "C:\\apps\\player", z("audacity"),
                                        z("firefox-esr"), "C:\\apps\\paint", "C:\\apps\\player",
                                        z("view3dscene"), z("f3d")}));
        // The written defaults, field by field as the record lays them out
        // from byte 900: 15 bytes each, blank-padded, then AutoPageInterval.
        const QByteArray bytes = m.f.home.readFile("Lumentas/ForProgramRun_KDR/DirecData.ran");
        const QList<QByteArray> fields{
            "MS UI Gothic", "9", "&H00FF8080&", "0", "MS UI Gothic", "9", "8421440", "0",
            "MS UI Gothic", "9", "16041559",    "0", "12632256"};
        for (qsizetype i = 0; i < fields.size(); ++i)
            QCOMPARE(bytes.mid(900 + 15 * i, 15), fields[i].leftJustified(15, ' '));
        QCOMPARE(bytes.mid(1095, 2), QByteArray("\x03\x00", 2));
    }
};

QTEST_MAIN(TestFormSetAccessDirectry)
#include "tst_FormSetAccessDirectry.moc"

// FormSetAccessDirectry driven by its object names on machines made of
// stand-in programs: the search, the red and blue rows, the file dialog of
// each row, the fixed sound recorder, and the record written at the end.
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "settings/FormSetAccessDirectry.h"
#include "state/DirecData.h"
#include "support/BasicsFixture.h"
#include "support/FakeSystemBin.h"
#include "support/Fetch.h"
#include "support/Shots.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
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
const QString kClosingMessage =
    QStringLiteral(" デジタルカメラで良く使われているMOVファイルを見るためにはQuickTimeが、"
                   "3D画像を見るためにはLattice Viewerが必要です。インストールしてありますか？");

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
        QFile::Permissions permissions = QFileDevice::ReadOwner | QFileDevice::WriteOwner;
        if (executable)
            permissions |= QFileDevice::ExeOwner;
        QFile::setPermissions(path, permissions);
        return path;
    }
};

QString z(const QString& name)
{
    return QStringLiteral("Z:\\usr\\bin\\") + name;
}

QList<qint32> colors(qint32 first, qint32 second, qint32 third, qint32 fourth, qint32 fifth,
                     qint32 sixth)
{
    return {first, second, third, fourth, fifth, sixth};
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
    void searchFillsTheRows_data();
    void searchFillsTheRows();
    void missingBrowserIsRedUntilChosen();
    void soundRowKeepsItsRecorder_data();
    void soundRowKeepsItsRecorder();
    void eachRowTakesOnlyPrograms_data();
    void eachRowTakesOnlyPrograms();
    void commandExitWritesTheRecord();
    void closingWithoutCompletingAbandons();
};

void TestFormSetAccessDirectry::searchFillsTheRows_data()
{
    QTest::addColumn<QStringList>("programs");
    QTest::addColumn<QStringList>("paths"); // the six rows, player 2, the two viewers
    const QString opener = z("xdg-open");
    QTest::newRow("bare machine with xdg-utils")
        << QStringList{"xdg-open"} << QStringList(9, opener);
    QTest::newRow("desktop") << kDesktop << QStringList{z("gedit"),    z("gedit"),       z("vlc"),
                                                        z("audacity"), z("firefox-esr"), z("gimp"),
                                                        z("vlc"),      z("view3dscene"), z("f3d")};
}

void TestFormSetAccessDirectry::searchFillsTheRows()
{
    const QStringList expected = FETCH(QStringList, paths);
    Machine m(FETCH(QStringList, programs));
    m.form.showForm();

    QCOMPARE(m.form.windowTitle(), QStringLiteral("☆　編集作業のための、アプリケーション指定　☆"));
    QCOMPARE(m.boxTexts(), expected.mid(0, 6));
    QCOMPARE(m.boxColors(), colors(kBlue, kBlue, kBlue, kBlue, kBlue, kBlue));
    QVERIFY(m.exitButton()->isEnabled());
    QCOMPARE(backColor(m.exitButton()), kColorGreen);
    QCOMPARE(m.f.ui.beeps, 1); // the green one only
    QCOMPARE(paths(m.f.state.DirecData), expected);
    saveShot(&m.form, QStringLiteral("FormSetAccessDirectry_") + QTest::currentDataTag());
}

void TestFormSetAccessDirectry::missingBrowserIsRedUntilChosen()
{
    Machine m({"gedit", "vlc", "audacity", "gimp"}); // no browser, no xdg-open
    m.form.showForm();
    QCOMPARE(m.box("TextIE")->text(), z("xdg-open"));
    QCOMPARE(m.boxColors(), colors(kBlue, kBlue, kBlue, kBlue, kColorRed, kBlue));
    QVERIFY(!m.exitButton()->isEnabled());
    QCOMPARE(m.f.ui.beeps, 1);
    saveShot(&m.form, QStringLiteral("FormSetAccessDirectry_missing"));

    // Cancel changes nothing, the current folder included.
    m.choose(4, std::nullopt);
    QCOMPARE(m.box("TextIE")->text(), z("xdg-open"));
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

void TestFormSetAccessDirectry::soundRowKeepsItsRecorder_data()
{
    QTest::addColumn<QString>("chosen"); // under C:
    QTest::addColumn<bool>("executable");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("box");
    const QString kept = z("audacity");
    QTest::newRow("another sound editor")
        << "tools/kwave" << true << QStringLiteral("必ず、AUDACITYを使用してください。") << kept;
    QTest::newRow("another name with the recorder's in it")
        << "tools/audacity2" << true << QStringLiteral("必ず、AUDACITYを使用してください。")
        << kept;
    QTest::newRow("the same name in capitals")
        << "tools/AUDACITY" << true << QString() << QStringLiteral("C:\\tools\\AUDACITY");
}

void TestFormSetAccessDirectry::soundRowKeepsItsRecorder()
{
    QFETCH(QString, chosen);
    QFETCH(QString, message);
    Machine m(kDesktop);
    m.form.load();
    m.choose(3, m.tool(chosen, FETCH(bool, executable)));
    QCOMPARE(m.f.ui.boxes, message.isEmpty() ? QStringList{} : QStringList{message});
    QTEST(m.box("TextSnd")->text(), "box");
    QCOMPARE(m.f.ui.dialogFilters,
             QStringList{QStringLiteral("サウンドプレーヤー(audacityに固定) (*.exe)|*.exe")});
    QCOMPARE(m.f.home.fs.curDir(), QStringLiteral("C:\\tools")); // the dialog was accepted
}

void TestFormSetAccessDirectry::eachRowTakesOnlyPrograms_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("filter");
    const QStringList filters{"コメント用エディター (*.exe)|*.exe",
                              "テキストエディター (*.exe)|*.exe",
                              "メディアプレーヤー (*.exe)|*.exe",
                              "",
                              "インターネットファイルエディター (*.exe)|*.exe",
                              "画像エディター (*.exe)|*.exe"};
    for (int row : {0, 1, 2, 4, 5})
        QTest::addRow("%s", qPrintable(kBoxes[row])) << row << filters[row];
}

void TestFormSetAccessDirectry::eachRowTakesOnlyPrograms()
{
    const int row = FETCH(int, row);
    Machine m(kDesktop);
    m.form.load();
    const QString before = m.box(row)->text();

    m.choose(row, m.tool(QStringLiteral("docs/readme.txt"), false));
    QCOMPARE(m.f.ui.boxes, QStringList{kNotAProgram});
    QCOMPARE(paths(m.f.state.DirecData)[row], before);

    m.choose(row, m.tool(QStringLiteral("apps/my tool"), true));
    QCOMPARE(m.f.ui.boxes.size(), 1);
    QCOMPARE(m.box(row)->text(), QStringLiteral("C:\\apps\\my tool"));
    QCOMPARE(paths(m.f.state.DirecData)[row], QStringLiteral("C:\\apps\\my tool"));
    QCOMPARE(m.f.ui.dialogFilters, QStringList(2, FETCH(QString, filter)));
    // The second dialog starts where the first program was put.
    QCOMPARE(QDir::cleanPath(m.f.ui.dialogStarts[1]), QDir::cleanPath(m.bin.folder()));
    m.choose(row, std::nullopt);
    QCOMPARE(QDir::cleanPath(m.f.ui.dialogStarts[2]), m.f.home.native(QStringLiteral("apps")));
}

void TestFormSetAccessDirectry::commandExitWritesTheRecord()
{
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
    // Typed by hand: the boxes are written, trimmed, not the search's paths.
    m.box("TextPic")->setText(QStringLiteral("  C:\\apps\\paint  "));
    m.box("TextMpl2")->setText(QStringLiteral("C:\\apps\\player "));
    QTest::mouseClick(m.exitButton(), Qt::LeftButton);

    QCOMPARE(events, (QStringList{"message after the record", "completed"}));
    QCOMPARE(m.f.ui.boxes, QStringList{kClosingMessage});
    QVERIFY(!m.form.isVisible());
    QVERIFY(!m.form.isLoaded());

    QCOMPARE(QFileInfo(file).size(), qint64(DirecDataRecord::kSize));
    const DirecDataRecord r = readDirecData(file);
    QCOMPARE(paths(r), (QStringList{z("gedit"), z("gedit"), "C:\\apps\\player", z("audacity"),
                                    z("firefox-esr"), "C:\\apps\\paint", "C:\\apps\\player",
                                    z("view3dscene"), z("f3d")}));
    QVERIFY(r == m.f.state.DirecData);
}

void TestFormSetAccessDirectry::closingWithoutCompletingAbandons()
{
    Machine m(kDesktop);
    QStringList events;
    m.form.onCompleted = [&] { events << "completed"; };
    m.form.onAbandoned = [&] { events << "abandoned"; };
    m.form.showForm();
    m.form.close(); // the frame's close box
    QCOMPARE(events, QStringList{"abandoned"});
    QVERIFY(m.f.ui.boxes.isEmpty());
    QVERIFY(!m.f.home.exists(QStringLiteral("Lumentas/ForProgramRun_KDR/DirecData.ran")));
}

QTEST_MAIN(TestFormSetAccessDirectry)
#include "tst_FormSetAccessDirectry.moc"

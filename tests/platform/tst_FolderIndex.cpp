// The index of folder names stays true to the folder after it was first
// read: names made, removed and renamed since, and a folder put in the
// place of another, are seen by the very next look-up.
#include "platform/FolderIndex.h"
#include "support/Fetch.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace lumen;

namespace {

void touch(const QString& path)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
}

} // namespace

class TestFolderIndex : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void changesAfterTheFirstReading_data();
    void changesAfterTheFirstReading();
};

void TestFolderIndex::changesAfterTheFirstReading_data()
{
    QTest::addColumn<QString>("change");
    QTest::addColumn<QStringList>("found"); // what "photo.jpg" finds afterwards
    QTest::newRow("nothing") << "" << QStringList{"Photo.JPG"};
    QTest::newRow("another case made") << "make PHOTO.jpg" << QStringList{"PHOTO.jpg", "Photo.JPG"};
    QTest::newRow("removed") << "remove Photo.JPG" << QStringList();
    QTest::newRow("renamed") << "rename Photo.JPG photo.Jpg" << QStringList{"photo.Jpg"};
    QTest::newRow("folder replaced") << "replace" << QStringList{"PHOTO.JPG"};
}

void TestFolderIndex::changesAfterTheFirstReading()
{
    QTemporaryDir home;
    const QString folder = home.filePath("pics");
    QDir().mkpath(folder);
    touch(folder + "/Photo.JPG");
    touch(folder + "/other.png");
    FolderIndex& index = FolderIndex::instance();
    QCOMPARE(index.entriesIgnoringCase(folder, "photo.jpg"), QStringList{"Photo.JPG"});

    const QStringList change = FETCH(QString, change).split(' ', Qt::SkipEmptyParts);
    if (change.value(0) == "make")
        touch(folder + "/" + change[1]);
    else if (change.value(0) == "remove")
        QVERIFY(QFile::remove(folder + "/" + change[1]));
    else if (change.value(0) == "rename")
        QVERIFY(QFile::rename(folder + "/" + change[1], folder + "/" + change[2]));
    else if (change.value(0) == "replace") {
        QVERIFY(QDir(folder).removeRecursively());
        QDir().mkpath(folder);
        touch(folder + "/PHOTO.JPG");
        touch(folder + "/other.png");
    }
    QStringList found = index.entriesIgnoringCase(folder, "photo.jpg");
    found.sort();
    QCOMPARE(found, FETCH(QStringList, found));
    QCOMPARE(index.entriesIgnoringCase(folder, "OTHER.PNG"), QStringList{"other.png"});
}

QTEST_GUILESS_MAIN(TestFolderIndex)
#include "tst_FolderIndex.moc"

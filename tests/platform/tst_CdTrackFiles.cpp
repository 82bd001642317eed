// "TrackNN.cda" files at the root of a CD drive of Drives.txt, counted from
// the disc in its device (here a fake five-track disc).
#include "platform/FileSystem.h"
#include "support/Fetch.h"
#include "support/TestHome.h"

#include <QTest>

using namespace lumen;
using namespace lumen::test;

class TestCdTrackFiles : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void dirFindsTracks_data();
    void dirFindsTracks();
    void isFileAndLength_data();
    void isFileAndLength();
    void listingsHoldTheTracks();
    void aRealFileOfATracksNameIsListedOnce();
    void noDiscNoCounterNoTracks();

private:
    FileSystem& fs() { return home_->fs; }

    std::unique_ptr<TestHome> home_;
    int tracks_ = 5;
    QStringList askedDevices_;
};

void TestCdTrackFiles::init()
{
    home_ = std::make_unique<TestHome>();
    tracks_ = 5;
    askedDevices_.clear();
    home_->writeFile(QStringLiteral("cdrom/a.txt"), "x");
    home_->writeFile(QStringLiteral("cdrom/sub/b.txt"), "x");
    home_->makeFolder(QStringLiteral("usb"));
    fs().drives().addFromText(
        QStringLiteral("D = %1, /dev/sr0\nE = %2\n")
            .arg(home_->native(QStringLiteral("cdrom")), home_->native(QStringLiteral("usb"))));
    fs().setCdTrackCounter([this](const QString& device) {
        askedDevices_ << device;
        return tracks_;
    });
}

void TestCdTrackFiles::cleanup()
{
    home_.reset();
}

void TestCdTrackFiles::dirFindsTracks_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("found");
    const auto row = [](const char* tag, const QString& path, const QString& found) {
        QTest::newRow(tag) << path << found;
    };
    row("the last track", "D:\\Track05.cda", "Track05.cda");
    row("the name in another case", "d:\\TRACK03.CDA", "Track03.cda");
    row("past the disc's end", "D:\\Track06.cda", "");
    row("one digit is not the name", "D:\\Track3.cda", "");
    row("a drive without a device", "E:\\Track01.cda", "");
    row("the folder: files and tracks in order", "D:\\", "a.txt");
}

void TestCdTrackFiles::dirFindsTracks()
{
    QCOMPARE(fs().dir(FETCH(QString, path)), FETCH(QString, found));
}

void TestCdTrackFiles::isFileAndLength_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("file");
    QTest::addColumn<qint64>("length");
    QTest::addColumn<int>("attributes");
    QTest::newRow("a track") << "D:\\Track01.cda" << true << qint64(44) << 1;
    QTest::newRow("no such track") << "D:\\Track09.cda" << false << qint64(-1) << -1;
    QTest::newRow("a real file") << "D:\\a.txt" << true << qint64(1) << 0;
}

void TestCdTrackFiles::isFileAndLength()
{
    const QString path = FETCH(QString, path);
    QCOMPARE(fs().isFile(path), FETCH(bool, file));
    QCOMPARE(fs().fileLength(path), FETCH(qint64, length));
    QCOMPARE(fs().attributes(path), FETCH(int, attributes));
    QVERIFY(!fs().isFolder(path));
}

void TestCdTrackFiles::listingsHoldTheTracks()
{
    const QStringList tracks{"Track01.cda", "Track02.cda", "Track03.cda", "Track04.cda",
                             "Track05.cda"};
    QCOMPARE(fs().files(QStringLiteral("D:\\")), QStringList{"a.txt"} + tracks);
    QCOMPARE(fs().files(QStringLiteral("D:\\"), QStringLiteral("*.CDA")), tracks);
    const FileSystem::FolderListing listing =
        fs().listFolder(QStringLiteral("D:\\"), {QStringLiteral("*.cda")});
    QCOMPARE(listing.files, tracks);
    QCOMPARE(listing.folders, QStringList{"sub"});
}

void TestCdTrackFiles::aRealFileOfATracksNameIsListedOnce()
{
    home_->writeFile(QStringLiteral("cdrom/track02.CDA"), "real");
    const QStringList listed{"Track01.cda", "track02.CDA", "Track03.cda", "Track04.cda",
                             "Track05.cda"};
    QCOMPARE(fs().files(QStringLiteral("D:\\"), QStringLiteral("*.cda")), listed);
    QCOMPARE(fs().listFolder(QStringLiteral("D:\\"), {QStringLiteral("*.cda")}).files, listed);
    QCOMPARE(fs().dir(QStringLiteral("D:\\Track02.cda")), QStringLiteral("track02.CDA"));
    QCOMPARE(fs().fileLength(QStringLiteral("D:\\Track02.cda")), qint64(4));
}

void TestCdTrackFiles::noDiscNoCounterNoTracks()
{
    tracks_ = 0;
    QCOMPARE(fs().dir(QStringLiteral("D:\\Track01.cda")), QString());
    QCOMPARE(fs().files(QStringLiteral("D:\\")), QStringList{"a.txt"});
    tracks_ = 5;
    fs().setCdTrackCounter({});
    QCOMPARE(fs().dir(QStringLiteral("D:\\Track01.cda")), QString());
    QCOMPARE(fs().files(QStringLiteral("D:\\"), QStringLiteral("*.cda")), QStringList());
}

QTEST_GUILESS_MAIN(TestCdTrackFiles)
#include "tst_CdTrackFiles.moc"

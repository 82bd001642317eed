// FormSaveImage: the ring of temporary pictures (shift, recall, delete), the
// three saves and the overwrite of the page's file, with their refusals and
// messages, blank pictures, and opening a picture file, including one the
// reader refuses.
#include "PictureApp.h"
#include "picture/FormSaveImage.h"
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "support/Fetch.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>

using namespace lumen;
using namespace lumen::test;

namespace {

// The n-th picture stored in a test: a grey of its own.
QImage numbered(int n)
{
    return plainPicture(QColor(n * 20, n * 20, n * 20), 60, 40);
}

int numberOf(const QImage& picture)
{
    return picture.isNull() ? -1 : qRed(picture.pixel(0, 0)) / 20;
}

struct StoreFixture : PictureApp {
    FormSaveImage* store = nullptr;

    StoreFixture()
    {
        openPages({plainPicture(Qt::white)});
        main().CommandSaveImage->click();
        store = &form<FormSaveImage>("FormSaveImage");
    }
    // Stores pictures first .. last, each shown before its "OK".
    void storeNumbered(int first, int last)
    {
        for (int n = first; n <= last; ++n) {
            main().Picture2->setPicture(numbered(n));
            store->SaveKariPic();
        }
    }
    QByteArray bytesOf(const QString& native) const
    {
        QFile file(native);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
};

// What ImageMagick makes of a file: "PNG 200 150".
QString identify(const QString& native)
{
    QProcess process;
    process.start(QStringLiteral("identify"),
                  {QStringLiteral("-format"), QStringLiteral("%m %w %h"), native});
    process.waitForFinished(20000);
    return QString::fromLatin1(process.readAllStandardOutput()).trimmed();
}

// The head of a PNG of 20000 by 20000 pixels; the reader refuses it on its size.
QByteArray hugePngHead()
{
    QByteArray chunk("IHDR");
    for (quint32 side : {20000u, 20000u})
        for (int shift = 24; shift >= 0; shift -= 8)
            chunk.append(char((side >> shift) & 0xFF));
    chunk.append("\x08\x02\x00\x00\x00", 5);
    quint32 crc = 0xFFFFFFFFu;
    for (char byte : chunk) {
        crc ^= quint8(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc >> 1) ^ (0xEDB88320u & (0u - (crc & 1u)));
    }
    crc ^= 0xFFFFFFFFu;
    QByteArray png("\x89PNG\r\n\x1a\n", 8);
    png.append("\x00\x00\x00\x0d", 4);
    png.append(chunk);
    for (int shift = 24; shift >= 0; shift -= 8)
        png.append(char((crc >> shift) & 0xFF));
    return png;
}

} // namespace

class TestFormSaveImage : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void ring_data();
    void ring();
    void recallByNumber();
    void deleteAll();
    void saves_data();
    void saves();
    void saveRefusals_data();
    void saveRefusals();
    void overwriteOfThePagesFile_data();
    void overwriteOfThePagesFile();
    void blankPicture_data();
    void blankPicture();
    void openPicture_data();
    void openPicture();
};

void TestFormSaveImage::ring_data()
{
    QTest::addColumn<QString>("max");
    QTest::addColumn<int>("stores");
    QTest::addColumn<QList<int>>("kept"); // picture held by LastPic0, LastPic1, ...
    QTest::newRow("10, eleven stores: the oldest goes first")
        << "10" << 11 << QList<int>{11, 10, 9, 8, 7, 6, 5, 4, 3, 2};
    QTest::newRow("10, three stores") << "10" << 3 << QList<int>{3, 2, 1};
    QTest::newRow("1: only the newest") << "1" << 3 << QList<int>{3};
    QTest::newRow("0: only the newest") << "0" << 2 << QList<int>{2};
    QTest::newRow("abc reads as 0") << "abc" << 2 << QList<int>{2};
    QTest::newRow("1000") << "1000" << 4 << QList<int>{4, 3, 2, 1};
}

void TestFormSaveImage::ring()
{
    StoreFixture f;
    f.store->TextMax->setText(FETCH(QString, max));
    f.storeNumbered(1, FETCH(int, stores));
    QFETCH(QList<int>, kept);
    QList<int> held;
    for (int n = 0; n <= kept.size(); ++n)
        held << numberOf(f.lastPic(n));
    QCOMPARE(held, kept + QList<int>{-1});
    // The newest is on show, numbered 0.
    QCOMPARE(numberOf(f.seen()), kept.first());
    QCOMPARE(f.store->TextKariPicN->text(), QStringLiteral("0"));
}

void TestFormSaveImage::recallByNumber()
{
    StoreFixture f;
    f.storeNumbered(1, 4);
    f.store->HScroll1->setValue(2);
    QCOMPARE(f.store->TextKariPicN->text(), QStringLiteral("2"));
    f.store->CommandDisp->click();
    QCOMPARE(numberOf(f.seen()), 2);
    QCOMPARE(f.main().Picture2->pictureSize(), QSize(60, 40));
    f.store->TextKariPicN->setText(QStringLiteral(" 7 "));
    f.store->CommandDisp->click(); // no such picture: nothing happens
    QCOMPARE(numberOf(f.seen()), 2);
    f.store->TextKariPicN->setText(QStringLiteral(" 3 "));
    f.store->CommandDisp->click();
    QCOMPARE(numberOf(f.seen()), 1);
}

void TestFormSaveImage::deleteAll()
{
    StoreFixture f;
    f.storeNumbered(1, 3);
    f.store->CommandDelAllKari->click();
    for (int n = 0; n < 3; ++n)
        QVERIFY(!QFile::exists(f.settingsFile(QStringLiteral("LastPic%1.png").arg(n))));
    QVERIFY(!f.main().Picture2->hasPicture());
}

void TestFormSaveImage::saves_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QStringList>("answers"); // names under the home, "" for cancel
    QTest::addColumn<QString>("written");     // "" when nothing is
    QTest::addColumn<QString>("identified");
    QTest::addColumn<QString>("proposed");
    QTest::newRow("PNG") << "CommandSavePicPNG" << QStringList{"out/a.png"} << "out/a.png"
                         << "PNG 200 150"
                         << "pics/p1_mod.png";
    QTest::newRow("BMP") << "CommandSavePicBMP" << QStringList{"out/a.bmp"} << "out/a.bmp"
                         << "BMP3 200 150"
                         << "pics/p1_mod.BMP";
    QTest::newRow("JPG") << "CommandSavePicJPG" << QStringList{"out/a.jpg"} << "out/a.jpg"
                         << "JPEG 200 150"
                         << "pics/p1_mod.jpg";
    QTest::newRow("another extension: asked again")
        << "CommandSavePicPNG" << QStringList{"out/a.jpg", "out/b.txt", "out/c.png"} << "out/c.png"
        << "PNG 200 150"
        << "pics/p1_mod.png";
    QTest::newRow("cancelled") << "CommandSavePicJPG" << QStringList{""} << ""
                               << ""
                               << "pics/p1_mod.jpg";
}

void TestFormSaveImage::saves()
{
    StoreFixture f;
    QFETCH(QStringList, answers);
    f.home.makeFolder(QStringLiteral("out"));
    for (const QString& name : answers)
        f.ui.fileNames.enqueue(name.isEmpty() ? std::nullopt
                                              : std::optional<QString>(f.home.native(name)));
    auto* button = f.store->findChild<QPushButton*>(FETCH(QString, button));
    button->click();
    QCOMPARE(f.ui.dialogStarts.size(), answers.size());
    QCOMPARE(f.ui.dialogStarts.first(), f.home.native(FETCH(QString, proposed)));
    QFETCH(QString, written);
    QStringList files = QDir(f.home.native(QStringLiteral("out"))).entryList(QDir::Files);
    if (written.isEmpty()) {
        QVERIFY(files.isEmpty());
        QCOMPARE(backColor(button), kColorGreen);
        return;
    }
    QCOMPARE(files, QStringList{QFileInfo(written).fileName()});
    const QImage saved(f.home.native(written));
    QCOMPARE(saved.size(), QSize(200, 150));
    QCOMPARE(identify(f.home.native(written)), FETCH(QString, identified));
    QCOMPARE(backColor(button), qint32(0x80C0FF));
    QVERIFY(f.ui.boxes.isEmpty());
}

void TestFormSaveImage::saveRefusals_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<bool>("shrunk");
    QTest::addColumn<bool>("noPage");
    QTest::addColumn<QString>("message");
    QTest::newRow("a shrunk picture")
        << "p1.png" << true << false << "画像を元サイズにして再実行してください。";
    QTest::newRow("no page") << "p1.png" << false << true
                             << "ここの保存機能は、画面下にﾌｧｲﾙ名が表示されていないと使えません。";
    QTest::newRow("a page of another type")
        << "notes.txt" << false << false
        << "現在のファイル名はタイプがBMP,PNG,JPG以外のため保存できません。";
}

void TestFormSaveImage::saveRefusals()
{
    PictureApp a;
    a.home.writeFile(QStringLiteral("pics/notes.txt"), "text");
    a.openPages({plainPicture(Qt::white)});
    a.home.writeFile(QStringLiteral("show.lst"),
                     (QStringLiteral("C:\\pics\\") + FETCH(QString, page)).toUtf8());
    a.main().OpenFileList(QStringLiteral("C:\\show.lst"));
    if (FETCH(bool, noPage))
        a.app->state().PicNo = 0;
    a.main().CheckOriginalSize->setChecked(!FETCH(bool, shrunk));
    a.main().CommandSaveImage->click();
    auto& store = a.form<FormSaveImage>("FormSaveImage");
    for (QPushButton* button : {store.CommandSavePicPNG, store.CommandUwagaki}) {
        a.ui.boxes.clear();
        button->click();
        QCOMPARE(a.ui.boxes, QStringList{FETCH(QString, message)});
        QVERIFY(a.ui.dialogStarts.isEmpty());
        QVERIFY(a.main().CheckOriginalSize->isChecked()); // turned on by the message
        a.main().CheckOriginalSize->setChecked(!FETCH(bool, shrunk));
    }
}

void TestFormSaveImage::overwriteOfThePagesFile_data()
{
    QTest::addColumn<bool>("readOnly");
    QTest::newRow("written over") << false;
    QTest::newRow("a read-only file is left as it was") << true;
}

void TestFormSaveImage::overwriteOfThePagesFile()
{
    StoreFixture f;
    const QString page = f.home.native(QStringLiteral("pics/p1.png"));
    const QByteArray before = f.bytesOf(page);
    QImage drawn = plainPicture(Qt::white);
    drawn.setPixel(10, 10, qRgb(255, 0, 0));
    f.main().Picture2->setPicture(drawn);
    if (FETCH(bool, readOnly))
        QFile::setPermissions(page, QFile::ReadOwner | QFile::ReadGroup);
    f.store->CommandUwagaki->click();
    if (FETCH(bool, readOnly)) {
        QCOMPARE(f.bytesOf(page), before);
        QCOMPARE(f.ui.boxes,
                 QStringList{QStringLiteral("画像を保存できませんでした。\r\n") + page});
        return;
    }
    QVERIFY(f.ui.boxes.isEmpty());
    const QImage written(page);
    QCOMPARE(written.pixel(10, 10), qRgb(255, 0, 0));
    QCOMPARE(written.pixel(11, 10), qRgb(255, 255, 255));
    QCOMPARE(backColor(f.store->CommandUwagaki), qint32(0x80C0FF));
}

void TestFormSaveImage::blankPicture_data()
{
    QTest::addColumn<QString>("width");
    QTest::addColumn<QString>("height");
    QTest::addColumn<QSize>("made"); // empty: none
    QTest::newRow("400 by 300") << "400"
                                << "300" << QSize(400, 300);
    QTest::newRow("abc") << "abc"
                         << "300" << QSize();
    QTest::newRow("0") << "0"
                       << "10" << QSize();
    QTest::newRow("beyond what the reader takes") << "100000"
                                                  << "100000" << QSize();
}

void TestFormSaveImage::blankPicture()
{
    StoreFixture f;
    f.store->TextBX->setText(FETCH(QString, width));
    f.store->TextBy->setText(FETCH(QString, height));
    f.store->CommandMakeBlank->click();
    QFETCH(QSize, made);
    PictureBox* box = f.main().Picture2;
    if (made.isEmpty()) {
        QVERIFY(!box->hasPicture());
        QCOMPARE(f.ui.beeps, 1);
        return;
    }
    QCOMPARE(box->pictureSize(), made);
    QVERIFY(box->isVisible());
    const QRgb ground = box->palette().color(QPalette::Window).rgb();
    QCOMPARE(f.seen().pixel(made.width() - 1, made.height() - 1), ground);
    QCOMPARE(QImage(f.settingsFile(QStringLiteral("Blank.bmp"))).size(), made);
}

void TestFormSaveImage::openPicture_data()
{
    QTest::addColumn<QByteArray>("bytes"); // empty: a picture of 70 by 50 made here
    QTest::addColumn<bool>("opened");
    QTest::newRow("a picture") << QByteArray() << true;
    QTest::newRow("20000 by 20000: refused by the reader") << hugePngHead() << false;
    QTest::newRow("not a picture") << QByteArray("not a picture") << false;
}

void TestFormSaveImage::openPicture()
{
    StoreFixture f;
    const QString file = f.home.native(QStringLiteral("other/x.png"));
    QFETCH(QByteArray, bytes);
    if (bytes.isEmpty()) {
        f.home.makeFolder(QStringLiteral("other"));
        plainPicture(Qt::blue, 70, 50).save(file);
    } else {
        f.home.writeFile(QStringLiteral("other/x.png"), bytes);
    }
    f.ui.fileNames.enqueue(file);
    f.store->CommandOpen->click();
    QCOMPARE(f.ui.dialogFilters,
             QStringList{QStringLiteral("(*.png;*.bmp;*.jpg)|*.png;*.bmp;*.jpg|(*.*)|*.*")});
    QCOMPARE(f.home.fs.curDir(), QStringLiteral("C:\\other"));
    if (FETCH(bool, opened)) {
        QCOMPARE(f.main().Picture2->pictureSize(), QSize(70, 50));
        QCOMPARE(f.seen().pixel(0, 0), qRgb(0, 0, 255));
        return;
    }
    QCOMPARE(f.ui.beeps, 1);
    QCOMPARE(f.seen(), plainPicture(Qt::white)); // the page stays
}

QTEST_MAIN(TestFormSaveImage)
#include "tst_FormSaveImage.moc"

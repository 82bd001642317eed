// FormSaveImage: the ring of temporary pictures (shift, recall, delete), the
// three saves and the overwrite of the page's file, with their refusals and
// messages, blank pictures, and opening a picture file, including one the
// reader refuses.
#include "PictureApp.h"
#include "picture/FormSaveImage.h"
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "support/Fetch.h"
#include "support/PictureSamples.h"

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

} // namespace

class TestFormSaveImage : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void ring_data()
    {
        QTest::addColumn<QString>("max");
        QTest::addColumn<int>("stores");
        QTest::addColumn<QList<int>>("kept"); // picture held by LastPic0, LastPic1, ...
        QTest::newRow("10, eleven stores: the oldest goes first")
            << "10" << 11 << QList<int>{11, 10, 9, 8, 7, 6, 5, 4, 3, 2};
        QTest::newRow("10, three stores") << "10" << 3 << QList<int>{3, 2, 1};
        QTest::newRow("1: only the newest") << "1" << 3 << QList<int>{3};
        QTest::newRow("abc reads as 0: only the newest") << "abc" << 2 << QList<int>{2};
        QTest::newRow("1000") << "1000" << 4 << QList<int>{4, 3, 2, 1};
    }

    void ring()
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

    void recallByNumber()
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

    void deleteAll()
    {
        StoreFixture f;
        f.storeNumbered(1, 3);
        f.store->CommandDelAllKari->click();
        for (int n = 0; n < 3; ++n)
            QVERIFY(!QFile::exists(f.settingsFile(QStringLiteral("LastPic%1.png").arg(n))));
        QVERIFY(!f.main().Picture2->hasPicture());
    }

    void saves_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<QStringList>("answers"); // names under the home, "" for cancel
        QTest::addColumn<QString>("written");     // "" when nothing is
        QTest::addColumn<QString>("identified");
        QTest::addColumn<QString>("proposed");
        const auto row = [](const char* tag, const char* button, const QStringList& answers,
                            const char* written, const char* identified, const char* proposed) {
            QTest::newRow(tag) << QString(button) << answers << QString(written)
                               << QString(identified) << QString(proposed);
        };
        row("PNG", "CommandSavePicPNG", {"out/a.png"}, "out/a.png", "PNG 200 150",
            "pics/p1_mod.png");
        row("BMP", "CommandSavePicBMP", {"out/a.bmp"}, "out/a.bmp", "BMP3 200 150",
            "pics/p1_mod.BMP");
        row("JPG", "CommandSavePicJPG", {"out/a.jpg"}, "out/a.jpg", "JPEG 200 150",
            "pics/p1_mod.jpg");
        row("another extension: asked again", "CommandSavePicPNG",
            {"out/a.jpg", "out/b.txt", "out/c.png"}, "out/c.png", "PNG 200 150", "pics/p1_mod.png");
        row("cancelled", "CommandSavePicJPG", {""}, "", "", "pics/p1_mod.jpg");
    }

    void saves()
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

    void saveRefusals_data()
    {
        QTest::addColumn<QString>("page");
        QTest::addColumn<bool>("shrunk");
        QTest::addColumn<bool>("noPage");
        QTest::addColumn<QString>("message");
        QTest::newRow("a shrunk picture")
            << "p1.png" << true << false << "画像を元サイズにして再実行してください。";
        QTest::newRow("no page")
            << "p1.png" << false << true
            << "ここの保存機能は、画面下にﾌｧｲﾙ名が表示されていないと使えません。";
        QTest::newRow("a page of another type")
            << "notes.txt" << false << false
            << "現在のファイル名はタイプがBMP,PNG,JPG以外のため保存できません。";
    }

    void saveRefusals()
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

    void overwriteOfThePagesFile_data()
    {
        QTest::addColumn<bool>("readOnly");
        QTest::newRow("written over") << false;
        QTest::newRow("a read-only file is left as it was") << true;
    }

    void overwriteOfThePagesFile()
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

    void blankPicture_data()
    {
        QTest::addColumn<QString>("width");
        QTest::addColumn<QString>("height");
        QTest::addColumn<QSize>("made"); // empty: none
        const auto row = [](const char* width, const char* height, QSize made) {
            QTest::addRow("%s by %s", width, height) << QString(width) << QString(height) << made;
        };
        row("400", "300", QSize(400, 300));
        row("abc", "300", QSize());
        row("0", "10", QSize());
        row("100000", "100000", QSize()); // beyond what the reader takes
    }

    void blankPicture()
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

    void openPicture_data()
    {
        QTest::addColumn<QByteArray>("bytes"); // empty: a picture of 70 by 50 made here
        QTest::addColumn<bool>("opened");
        QTest::newRow("a picture") << QByteArray() << true;
        QTest::newRow("20000 by 20000: refused by the reader")
            << uniformPng(20000, 20000, 8) << false;
        QTest::newRow("not a picture") << QByteArray("not a picture") << false;
    }

    void openPicture()
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
};

QTEST_MAIN(TestFormSaveImage)
#include "tst_FormSaveImage.moc"

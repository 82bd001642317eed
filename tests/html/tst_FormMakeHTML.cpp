// FormMakeHTML and FormRichText driven by their object names; each frame is
// grabbed and its texts must fit their controls.
#include "html/ButtonIcons.h"
#include "html/FormMakeHTML.h"
#include "html/FormRichText.h"
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "platform/FormRegistry.h"
#include "platform/TextCodec.h"
#include "support/BasicsFixture.h"
#include "support/Fetch.h"
#include "support/Shots.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QTextEdit>

using namespace lumen;
using namespace lumen::test;

namespace {

const QString kRun = QStringLiteral("Lumentas/ForProgramRun_KDR/");

struct Window {
    BasicsFixture f;
    FormRegistry forms;
    FormMakeHTML* form;

    Window()
    {
        forms.add("FormMakeHTML", [this] { return new FormMakeHTML(f.basics, forms); });
        forms.add("FormRichText", [this] { return new FormRichText(f.basics, *form); });
        form = static_cast<FormMakeHTML*>(forms.form("FormMakeHTML"));
    }
    FormRichText* rich() { return static_cast<FormRichText*>(forms.form("FormRichText")); }
    QString file(const QString& name) { return text::decode(f.home.readFile(kRun + name)); }
};

// Every caption in the frame is as wide as it needs, so none is cut.
QStringList clipped(QWidget* frame)
{
    QStringList cut;
    for (QWidget* w : frame->findChildren<QWidget*>()) {
        const bool hasCaption = qobject_cast<QLabel*>(w) || qobject_cast<QAbstractButton*>(w);
        if (hasCaption && w->isVisible() && w->width() < w->sizeHint().width())
            cut << w->objectName() + "/" + w->property("text").toString();
    }
    return cut;
}

} // namespace

class TestFormMakeHTML : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void loadReadsTheFiles()
    {
        Window w;
        w.f.home.picture("star.bmp", 12, 12, Qt::yellow);
        QStringList lines = {"C:\\Site", "pages",        "media",
                             "button",   "C:\\star.bmp", "http://Example.COM/",
                             "p",        "SHIFT_JIS",    "5",
                             "#FF0000",  "#808080",      "SHIFT_JIS",
                             "4",        "#000000",      "C:\\lost\\head.bmp",
                             "",         "C:\\star.bmp", "",
                             "",         "40",           "a line past the twentieth"};
        w.f.home.writeFile(kRun + "HTMLFormValKeep.txt", lines.join("\r\n").toUtf8());
        // A blank line for the third word: the words behind it move up a row.
        QStringList words = defaultReplaceWords();
        words[2] = "  ";
        w.f.home.writeFile(kRun + "HTMLReplaceWord.txt", words.join("\r\n").toUtf8());
        w.f.state.DirecData.HtmlDelFolderFlag = -1;
        w.form->showForm();

        QCOMPARE(w.form->TextPosKeepHTML->text(), "C:\\Site");
        QCOMPARE(w.form->TextOyaFileName->text(), "http://Example.COM/");
        QCOMPARE(w.form->PictureHead->picture(), builtInButtonPicture(ButtonIcon::Head));
        QCOMPARE(w.form->PictureLeft->picture().pixelColor(3, 3), QColor(Qt::yellow));
        // The parent button's line sets only its path.
        QCOMPARE(w.form->PictureOya->picture(), builtInButtonPicture(ButtonIcon::Oya));
        QCOMPARE(w.form->TextMP3CompR->text(), " 40");
        QCOMPARE(w.form->ExchageWord[2]->text(), "背景色");
        QCOMPARE(w.form->ExchageWord[23]->text(), QString());
        QCOMPARE(w.form->maker().ReplaceWordTable.at(kColWord, 2), "背景色");
        QVERIFY(w.form->CheckDelHTMLFolder->isChecked());
        QTest::mouseClick(w.form->CheckDelHTMLFolder, Qt::LeftButton);
        QCOMPARE(w.f.state.DirecData.HtmlDelFolderFlag, 0);
    }

    void firstLoadAndUnload()
    {
        Window w;
        w.form->showForm();
        // The scale stands at 10 and the text says 20, as the initial setting leaves them.
        QCOMPARE(w.form->HScrollMP3CompR->value(), 10);
        QCOMPARE(w.form->TextMP3CompR->text(), "20");
        w.form->TextHTMLPageName->setText("book");
        w.form->ExchageWord[3]->setText("BACK");
        QVERIFY(w.form->unload());
        const QStringList kept = w.file("HTMLFormValKeep.txt").split("\r\n");
        QCOMPARE(kept.size(), 21); // twenty lines, each ended
        QCOMPARE(kept.mid(0, 7), (QStringList{"C:\\Data", "html", "media", "button", "",
                                              "../../index_kodar.html", "book"}));
        QCOMPARE(kept[19], "20");
        const QStringList words = w.file("HTMLReplaceWord.txt").split("\r\n");
        QCOMPARE(words.size(), 25);
        QCOMPARE(words[3], "BACK");
        // Only 設定 puts the words to the table the run uses.
        QCOMPARE(w.form->maker().ReplaceWordTable.at(kColWord, 3), "背景色");

        // The slider writes its number with a leading blank; a double click reads the text.
        w.form->HScrollMP3CompR->setValue(35);
        QCOMPARE(w.form->TextMP3CompR->text(), " 35");
        w.form->TextMP3CompR->setText("50");
        QTest::mouseDClick(w.form->TextMP3CompR, Qt::LeftButton);
        QCOMPARE(w.form->HScrollMP3CompR->value(), 50);
    }

    void framesShowOneAtATime_data()
    {
        QTest::addColumn<QStringList>("clicks");
        QTest::addColumn<QString>("frame");
        QTest::newRow("first load") << QStringList() << "FrameSetDir";
        QTest::newRow("buttons") << QStringList{"CommandShowSetButton"} << "FrameSetButton";
        QTest::newRow("back to folders")
            << QStringList{"CommandShowSetButton", "CommandShowFolderSet"} << "FrameSetDir";
    }

    void framesShowOneAtATime()
    {
        QFETCH(QString, frame);
        Window w;
        w.form->showForm();
        for (const QString& command : FETCH(QStringList, clicks))
            QTest::mouseClick(w.form->findChild<QPushButton*>(command), Qt::LeftButton);
        auto* shown = w.form->findChild<QGroupBox*>(frame);
        const QList<QGroupBox*> frames = w.form->findChildren<QGroupBox*>();
        QCOMPARE(std::count_if(frames.begin(), frames.end(),
                               [](QGroupBox* g) { return g->isVisible(); }),
                 2); // FrameMain and the one frame
        QVERIFY(shown->isVisible());
        // 10 twips under FrameMain, which is a pixel.
        QCOMPARE(shown->y(), w.form->FrameMain->y() + w.form->FrameMain->height() + 1);
        QVERIFY(qAbs(shown->geometry().center().x() - w.form->width() / 2) <= 1);
        QVERIFY(shown->geometry().bottom() < w.form->height());
        QCOMPARE(clipped(shown), QStringList());
        QCOMPARE(clipped(w.form->FrameMain), QStringList());
        saveShot(w.form, "FormMakeHTML_" + frame);
    }

    void runAndShowTheFirstPage()
    {
        Window w;
        w.f.home.picture("show/a.png", 4, 4, Qt::red);
        w.f.state.ListArray.redim(kListColumns, 2);
        w.f.state.ListArray.set(kColMain, 1, "C:\\show\\a.png");
        w.form->links.listTotal = [] { return QStringLiteral("1"); };
        w.form->showForm();
        QTest::mouseClick(w.form->CommandDispConfirm, Qt::LeftButton);
        QVERIFY(w.f.launcher.opened.isEmpty()); // no page yet

        QTest::mouseClick(w.form->CommandMakeHTML, Qt::LeftButton);
        QCOMPARE(w.form->windowTitle(), "HTMLファイル作成完了 ");
        QCOMPARE(backColor(w.form->CommandMakeHTML), 0x80C0FF);
        QVERIFY(w.f.home.exists("data/html/page1.html"));
        QTest::mouseClick(w.form->CommandDispConfirm, Qt::LeftButton);
        QCOMPARE(w.f.launcher.opened, QStringList{"C:\\Data\\html\\page1.html"});
        w.f.launcher.succeed = false;
        QTest::mouseClick(w.form->CommandDispConfirm, Qt::LeftButton);
        QCOMPARE(w.form->windowTitle(), "このファイルは、Windowsの関連付けで開けませんでした。");

        // The folder commands erase the site without a question.
        QTest::mouseClick(w.form->CommandDelFolder, Qt::LeftButton);
        QVERIFY(!w.f.home.exists("data") && w.f.ui.questions.isEmpty());
        QTest::mouseClick(w.form->CommandMakeFolder, Qt::LeftButton);
        QVERIFY(w.f.home.exists("Data/html") && w.f.home.exists("Data/button"));
    }

    void templateWindow()
    {
        Window w;
        w.form->showForm();
        QTest::mouseClick(w.form->CommandShowSampleHtml, Qt::LeftButton);
        FormRichText* rich = w.rich();
        QCOMPARE(
            rich->windowTitle(),
            "C:\\Lumentas\\ForProgramRun_KDR\\SampleHtml.html として保存すると有効になります｡");
        QCOMPARE(rich->RText1->toPlainText(),
                 "C:\\Lumentas\\ForProgramRun_KDR\\SampleHtml.html は存在しません。");
        QCOMPARE(backColor(w.form->CommandShowSampleHtml), kColorGreen);

        QTest::mouseClick(rich->CommandMakeSample, Qt::LeftButton);
        QVERIFY(w.f.home.readFile(kRun + "SampleHtml.html").startsWith("<HTML><HEAD>\r\n"));
        rich->resize(700, 400);
        saveShot(rich, "FormRichText");

        // The first place of a word is red, a second place stays black.
        rich->setText("背景色 背景色");
        rich->CommandCheck_Click();
        QTextCursor cursor(rich->RText1->document());
        cursor.setPosition(1);
        QCOMPARE(cursor.charFormat().foreground().color(), QColor(Qt::red));
        cursor.setPosition(6);
        QCOMPARE(cursor.charFormat().foreground().color(), QColor(Qt::black));
        QCOMPARE(clipped(rich->Frame1), QStringList());

        QTest::mouseClick(rich->CommandDelSampleHtml, Qt::LeftButton);
        QVERIFY(!w.f.home.exists(kRun + "SampleHtml.html"));
        QVERIFY(rich->RText1->toPlainText().isEmpty());
        rich->unload();
        QCOMPARE(backColor(w.form->CommandShowSampleHtml), kColorButtonFace);
    }
};

QTEST_MAIN(TestFormMakeHTML)
#include "tst_FormMakeHTML.moc"

// The program over the fakes, past its first start, with a show of pictures
// made by the test, opened at original size: the windows of picture work as
// the program makes and links them, and the mouse on Picture2 in its pixels.
#pragma once

#include "display/PictureBox.h"
#include "list/CommandWords.h"
#include "platform/FormBase.h"
#include "show/FormMain.h"
#include "start/Lumenta.h"
#include "state/DirecData.h"
#include "support/FakeMedia.h"
#include "support/Fakes.h"
#include "support/TestHome.h"

#include <QApplication>
#include <QCheckBox>
#include <QImage>
#include <QMouseEvent>

#include <memory>

namespace lumen::test {

struct PictureApp {
    TestHome home;
    FakeClock clock;
    FakeDialogs ui;
    FakeLauncher launcher;
    FakeMedia media;
    Services services{clock, ui, launcher, home.fs, media};
    std::unique_ptr<Lumenta> app;

    PictureApp()
    {
        DirecDataRecord record;
        record.CommentFontName = QStringLiteral("MS UI Gothic");
        home.makeFolder(QStringLiteral("Lumentas/ForProgramRun_KDR"));
        writeDirecData(home.native(QStringLiteral("Lumentas/ForProgramRun_KDR/DirecData.ran")),
                       record);
        app = std::make_unique<Lumenta>(services, QStringList(),
                                        home.native(QStringLiteral("bin/lumenta")));
        app->quit = [] {};
    }
    FormMain& main() { return app->formMain(); }
    template <class T> T& form(const char* name)
    {
        return *static_cast<T*>(app->forms().form(QString::fromLatin1(name)));
    }
    bool shown(const char* name) const
    {
        const FormBase* form = app->forms().existing(QString::fromLatin1(name));
        return form && form->isVisible();
    }

    // Page i is pics/p<i>.png holding pictures[i - 1]; comments go to the
    // list as @COMMENT items. The list opens at once, at original size.
    void openPages(const QList<QImage>& pictures, const QStringList& comments = QStringList())
    {
        QStringList lines;
        for (int i = 0; i < pictures.size(); ++i) {
            const QString name = QStringLiteral("pics/p%1.png").arg(i + 1);
            home.makeFolder(QStringLiteral("pics"));
            pictures[i].save(home.native(name));
            QString line = QStringLiteral("C:\\pics\\p%1.png").arg(i + 1);
            if (!comments.value(i).isEmpty())
                line += QStringLiteral(" @COMMENT=") + comments[i] + QStringLiteral(" ENDCOMMENT");
            lines << line;
        }
        home.writeFile(QStringLiteral("show.lst"), lines.join(QStringLiteral("\r\n")).toUtf8());
        app->Main();
        main().resize(1000, 700);
        main().CheckQuiCkWork->setChecked(true);
        main().CheckOriginalSize->setChecked(true);
        main().OpenFileList(QStringLiteral("C:\\show.lst"));
    }

    QString settingsFile(const QString& name) const
    {
        return home.native(QStringLiteral("Lumentas/ForProgramRun_KDR/") + name);
    }
    QImage lastPic(int n) const
    {
        return QImage(settingsFile(QStringLiteral("LastPic%1.png").arg(n)));
    }
    // What Picture2 shows: the picture with everything drawn on it.
    QImage seen() { return main().Picture2->Image().convertToFormat(QImage::Format_RGB32); }

    // The mouse on Picture2, at a pixel of the picture.
    void mouse(QEvent::Type type, QPoint at, Qt::MouseButton button, Qt::MouseButtons held)
    {
        PictureBox* box = main().Picture2;
        QMouseEvent event(type, QPointF(at), QPointF(box->mapToGlobal(at)), button, held,
                          Qt::NoModifier);
        QApplication::sendEvent(box, &event);
    }
    void press(QPoint at, Qt::MouseButton button = Qt::LeftButton)
    {
        mouse(QEvent::MouseButtonPress, at, button, button);
    }
    void move(QPoint at) { mouse(QEvent::MouseMove, at, Qt::NoButton, Qt::LeftButton); }
    void release(QPoint at, Qt::MouseButton button = Qt::LeftButton)
    {
        mouse(QEvent::MouseButtonRelease, at, button, Qt::NoButton);
    }
    void click(QPoint at, Qt::MouseButton button = Qt::LeftButton)
    {
        press(at, button);
        release(at, button);
    }
    void drag(const QList<QPoint>& path)
    {
        press(path.first());
        for (const QPoint& at : path.mid(1))
            move(at);
        release(path.last());
    }
};

// A white picture with a black square outline from (20, 20) to (80, 80).
inline QImage framedPicture(int width = 200, int height = 150)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::white);
    for (int i = 20; i <= 80; ++i) {
        image.setPixel(i, 20, qRgb(0, 0, 0));
        image.setPixel(i, 80, qRgb(0, 0, 0));
        image.setPixel(20, i, qRgb(0, 0, 0));
        image.setPixel(80, i, qRgb(0, 0, 0));
    }
    return image;
}

inline QImage plainPicture(QColor colour, int width = 200, int height = 150)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(colour);
    return image;
}

} // namespace lumen::test

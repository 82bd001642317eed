// The program over the fakes (App), past its first start, with a show of
// pictures made by the test, opened at original size: the windows of picture
// work as the program makes and links them, and the mouse on Picture2 in its
// pixels.
#pragma once

#include "display/PictureBox.h"
#include "start/AppFixture.h"

#include <QApplication>
#include <QImage>
#include <QMouseEvent>
#include <QPainter>

namespace lumen::test {

struct PictureApp : App {
    template <class T> T& form(const char* name) { return *App::form<T>(name); }

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

inline QImage plainPicture(QColor colour, int width = 200, int height = 150)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(colour);
    return image;
}

// A white picture with a black square outline from (20, 20) to (80, 80).
inline QImage framedPicture()
{
    QImage image = plainPicture(Qt::white);
    QPainter(&image).drawRect(20, 20, 60, 60); // a pen of one pixel, black
    return image;
}

} // namespace lumen::test

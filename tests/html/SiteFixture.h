// A site maker on a temporary home, with a list loaded the way the show
// loads one, and what the run said recorded.
#pragma once

#include "html/ButtonIcons.h"
#include "html/SiteMaker.h"
#include "list/CommandWords.h"
#include "list/ListLoader.h"
#include "support/BasicsFixture.h"

#include <QBuffer>
#include <QDir>
#include <QDirIterator>
#include <QImage>

namespace lumen::test {

struct SiteFixture {
    BasicsFixture f;
    SiteMaker maker{f.basics};
    QStringList captions;
    QList<qint32> colours;
    QString total; // FormMain's TextTotal

    SiteFixture()
    {
        maker.setCaption = [this](const QString& c) { captions << c; };
        maker.setMakeButtonColor = [this](qint32 c) { colours << c; };
        for (int row = 0; row < kReplaceWords; ++row)
            maker.ReplaceWordTable.set(kColWord, row, defaultReplaceWords()[row]);
        PutCommandToArray(f.basics);
    }

    // Writes the list under C:\show and loads it into ListArray.
    void loadList(const QStringList& lines)
    {
        f.home.writeFile("show/show.lst", lines.join("\r\n").toLocal8Bit());
        QString text;
        const int count = prepareWorkingCopy(f.basics, QStringLiteral("C:\\show\\show.lst"), &text);
        total = QString::number(fillListArray(f.basics, text, count).fileCount);
    }

    static SitePictures builtIns()
    {
        return {builtInButtonPicture(ButtonIcon::Left), builtInButtonPicture(ButtonIcon::Right),
                builtInButtonPicture(ButtonIcon::Head), builtInButtonPicture(ButtonIcon::Tail),
                builtInButtonPicture(ButtonIcon::Oya),  builtInButtonPicture(ButtonIcon::Blank)};
    }

    void run(const SiteSettings& settings) { maker.MakeHTML(settings, builtIns(), total); }

    // Every file under a folder of the home, as paths relative to it, sorted.
    QStringList tree(const QString& folder) const
    {
        QStringList files;
        const QDir base(f.home.native(folder));
        QDirIterator it(base.path(), QDir::Files, QDirIterator::Subdirectories);
        while (it.hasNext())
            files << base.relativeFilePath(it.next());
        files.sort();
        return files;
    }

    static QByteArray png(const QColor& colour, QSize size = QSize(8, 6))
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(colour);
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        image.save(&buffer, "PNG");
        return bytes;
    }
};

} // namespace lumen::test

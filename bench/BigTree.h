// The tree the walking benchmarks list: four levels, 10 + 100 + 1,000
// folders and four more under each of the last 1,000 (5,110 folders), five
// pictures in each folder and the top (25,555 files).
#pragma once

#include <QDir>
#include <QFile>
#include <QString>

namespace lumen::bench {

inline void makeBigTree(const QString& folder, int depth = 0)
{
    constexpr int kBranches = 10;
    constexpr int kFilesPerFolder = 5;
    for (int f = 0; f < kFilesPerFolder; ++f) {
        QFile file(folder + QStringLiteral("/picture%1.jpg").arg(f));
        if (file.open(QIODevice::WriteOnly))
            file.write("x");
    }
    if (depth == 4)
        return;
    const int branches = depth == 3 ? 4 : kBranches;
    for (int b = 0; b < branches; ++b) {
        const QString sub = folder + QStringLiteral("/Folder %1").arg(b);
        QDir().mkdir(sub);
        makeBigTree(sub, depth + 1);
    }
}

} // namespace lumen::bench

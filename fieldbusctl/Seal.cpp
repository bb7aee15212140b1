#include "Seal.h"

#include <QDir>
#include <QFileInfo>

QString Seal::pathOf(const Folder& folder)
{
    const QFileInfo info(QDir::cleanPath(QFileInfo(folder.path).absoluteFilePath()));
    return info.dir().filePath(info.fileName() + QLatin1String(".sha256"));
}

std::optional<Seal::Sums> Seal::of(const Folder& folder, QString& trouble)
{
    FolderReader reader(folder.path);
    Sums sums;
    for (const QString& path : reader.allFiles()) {
        const FoundFile file = reader.digest(path.toUtf8().constData());
        if (file.state != FoundFile::State::Read) {
            trouble = QStringLiteral("%1/%2: %3").arg(folder.path, path, file.trouble());
            return std::nullopt;
        }
        sums[path] = file.bytes;
    }
    return sums;
}

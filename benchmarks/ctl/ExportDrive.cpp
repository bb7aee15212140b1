#include "ExportDrive.h"

#include "WholeFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

bool write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly) &&
           file.write(bytes) == bytes.size();
}

} // namespace

ExportDrive::ExportDrive(int folders)
{
    std::vector<QByteArray> plant;
    for (std::size_t i = 0; i < ExportedFileCount; ++i) {
        const QString path = QLatin1String(PLANT_DIRECTORY) + QLatin1String(KnownFiles::all()[i].controller);
        m_isMade = WholeFile::read(path, plant.emplace_back()) && m_isMade;
    }
    for (int folder = 0; folder < folders; ++folder) {
        const QString name = QStringLiteral("/fidbus_20240318_%1/").arg(folder, 6, 10, QLatin1Char('0'));
        for (std::size_t i = 0; i < ExportedFileCount; ++i) {
            const KnownFile& known = KnownFiles::all()[i];
            const QString path = m_root.path() + name + QLatin1String(known.name);
            m_isMade = write(path, plant[i]) && m_isMade;
            m_files.push_back({path.toStdString(), known.root != nullptr});
        }
    }
}

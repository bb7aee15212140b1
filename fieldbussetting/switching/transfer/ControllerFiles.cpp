#include "ControllerFiles.h"

#include "FieldbusSettingLib.h"
#include "FileLocations.h"
#include "ImportSet.h"
#include "WholeFile.h"

#include <QFile>
#include <QRandomGenerator>
#include <QVector>

namespace {

FieldbusSettingLib* lib()
{
    return FieldbusSettingLib::getInstance();
}

// Whether the largest file could be written to `path`. With bytes that a compressing disk cannot make less.
bool hasRoomAt(const QString& path)
{
    QVector<quint32> block(64 * 1024 / sizeof(quint32));
    QRandomGenerator::global()->fillRange(block.data(), block.size());
    const qint64 size = block.size() * qint64(sizeof(quint32));
    QFile probe(path + QStringLiteral(".probe"));
    bool hasRoom = probe.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    for (qint64 written = 0; hasRoom && written < LargestImportFile; written += size)
        hasRoom = probe.write(reinterpret_cast<const char*>(block.constData()), size) == size;
    probe.remove();
    return hasRoom;
}

// A file that the controller most likely has, to see whether it answers. Each may be missing for itself.
bool isAnyOtherFetched(const QString& controller)
{
    const auto isFetched = [&controller](const char* other) {
        return controller != QLatin1String(other) &&
               lib()->getFileFromCtrl(ControllerFiles::scratchCopy(), QLatin1String(other));
    };
    return isFetched(FileLocations::FieldbusConfigXml) || isFetched(FileLocations::FieldbusXml);
}

} // namespace

QString ControllerFiles::scratchCopy()
{
    return importDirectory() + QStringLiteral("/looked-at");
}

// The controller does not tell a file that it does not have from one that it cannot give now, or that the
// pendant cannot write. A file counts as absent when two series of attempts fail and another file comes
// between them, with room for this one: taken for absent by mistake, it would be removed when the import is
// undone.
ControllerFiles::Fetched ControllerFiles::fetchOrMiss(const QString& path, const QString& controller)
{
    if (lib()->getFileFromCtrl(path, controller))
        return Fetched::Yes;
    if (!hasRoomAt(path))
        return Fetched::NoRoom;
    if (!isAnyOtherFetched(controller))
        return Fetched::Failed;
    return lib()->getFileFromCtrl(path, controller) ? Fetched::Yes : Fetched::Absent;
}

bool ControllerFiles::isThere(const QString& controller, const QString& expected)
{
    return lib()->getFileFromCtrl(scratchCopy(), controller) && WholeFile::areSame(scratchCopy(), expected);
}

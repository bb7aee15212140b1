#include "ControllerCopies.h"

ControllerCopies& ControllerCopies::instance()
{
    static ControllerCopies copies;
    return copies;
}

int ControllerCopies::version(const QString& ctrlPath) const
{
    return m_entries.value(ctrlPath.toLower()).version;
}

int ControllerCopies::version(ConfigFile file) const
{
    return version(FileLocations::of(file).controller);
}

ControllerCopies::Copy ControllerCopies::copy(const QString& ctrlPath) const
{
    return m_entries.value(ctrlPath.toLower()).copy;
}

ControllerCopies::Copy ControllerCopies::copy(ConfigFile file) const
{
    return copy(FileLocations::of(file).controller);
}

bool ControllerCopies::isRead(ConfigFile file) const
{
    const Copy last = copy(file);
    return last.readAt.isValid() && last.recognised;
}

void ControllerCopies::changed(const QString& ctrlPath)
{
    Entry& entry = m_entries[ctrlPath.toLower()];
    ++entry.version;
    entry.copy.isKnown = false;
}

void ControllerCopies::noteRead(const QString& localPath, const QByteArray& bytes, bool recognised)
{
    const QString ctrlPath = FileLocations::controllerPathOf(localPath);
    if (!ctrlPath.isEmpty())
        m_entries[ctrlPath.toLower()].copy = {QDateTime::currentDateTime(), bytes, true, recognised};
}

void ControllerCopies::noteSent(const QString& ctrlPath, const QByteArray* bytes)
{
    Entry& entry = m_entries[ctrlPath.toLower()];
    ++entry.version;
    if (!bytes)
        return;
    entry.copy.bytes = *bytes;
    entry.copy.isKnown = true;
}

void ControllerCopies::forgetReads()
{
    for (Entry& entry : m_entries)
        entry.copy = {};
}

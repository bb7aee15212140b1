#ifndef FIELDBUSCTL_LOADEDFOLDER_H
#define FIELDBUSCTL_LOADEDFOLDER_H

#include "Configuration.h"
#include "Folders.h"

#include <QJsonObject>
#include <QStringList>

/// One configuration in memory: its files, and what they say.
class LoadedFolder
{
public:
    explicit LoadedFolder(const Folder& folder);

    const Folder& folder() const { return m_folder; }
    const Configuration& configuration() const { return m_configuration; }

    /// The bytes of a file; null when it is not there.
    QByteArray bytes(const KnownFile& file) const;
    /// Whether the folder can hold the file: an export lacks those that stay on the controller.
    bool isExpected(const KnownFile& file) const;

    /// What is there and was not read, a line each for people: links, and what the system does not give.
    const QStringList& troubles() const { return m_troubles; }
    /// Whether the system did not give a file.
    bool isIncomplete() const { return m_isIncomplete; }

    /// Path and layout, for JSON.
    QJsonObject json() const;

private:
    Folder m_folder;
    QStringList m_troubles;
    bool m_isIncomplete = false;
    Configuration m_configuration;
};

#endif

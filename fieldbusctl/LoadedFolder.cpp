#include "LoadedFolder.h"

LoadedFolder::LoadedFolder(const Folder& folder)
    : m_folder(folder)
{
    FolderReader reader(folder.path);
    m_configuration = Configuration::from([&](const KnownFile& file) -> std::optional<QByteArray> {
        FoundFile found = Folders::read(reader, folder.layout, file);
        if (found.state == FoundFile::State::Read || found.state == FoundFile::State::TooLarge)
            return std::move(found.bytes);
        if (found.state != FoundFile::State::Missing)
            m_troubles
                << QStringLiteral("%1/%2 %3").arg(folder.path, QLatin1String(file.name), found.trouble());
        m_isIncomplete = m_isIncomplete || found.state == FoundFile::State::Unreadable;
        return std::nullopt;
    });
}

QByteArray LoadedFolder::bytes(const KnownFile& file) const
{
    return m_configuration.presentBytes(file.id);
}

bool LoadedFolder::isExpected(const KnownFile& file) const
{
    return m_folder.layout == Folder::Layout::Controller || file.isExported() || !bytes(file).isNull();
}

QJsonObject LoadedFolder::json() const
{
    return {{"path", m_folder.path},
            {"layout", m_folder.layout == Folder::Layout::Export ? "export" : "controller"}};
}

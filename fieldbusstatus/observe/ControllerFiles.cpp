#include "ControllerFiles.h"

#include "DataAccess.h"
#include "FileCheck.h"
#include "WholeFile.h"

#include <QDir>
#include <QFile>

#include <utility>

namespace {
constexpr int MostTries = 3;
}

ControllerFiles::ControllerFiles(const QString& folder)
    : m_folder(folder)
{
}

void ControllerFiles::want(FileId file)
{
    Copy& copy = m_copies[static_cast<std::size_t>(file)];
    m_wanted += copy.isWanted ? 0 : 1;
    copy.isWanted = true;
    copy.tries = 0;
    copy.doubtful.reset();
}

void ControllerFiles::wantAll()
{
    for (const KnownFile& file : KnownFiles::all())
        want(file.id);
    m_next = 0;
}

std::optional<ControllerFiles::Step> ControllerFiles::step()
{
    if (m_wanted == 0)
        return std::nullopt;
    while (!m_copies[m_next].isWanted)
        m_next = (m_next + 1) % FileCount;
    const KnownFile& file = KnownFiles::all()[m_next];
    m_next = (m_next + 1) % FileCount;
    return take(file, fetch(file));
}

std::optional<QByteArray> ControllerFiles::fetch(const KnownFile& file) const
{
    QDir().mkpath(m_folder);
    const QString local = m_folder + QStringLiteral("/fetched");
    QByteArray content;
    const bool isFetched =
        DataAccess::GetFileFromController2TPU(QLatin1String(file.controller), local, false) &&
        WholeFile::read(local, content);
    QFile::remove(local);
    return isFetched ? std::optional<QByteArray>(std::move(content)) : std::nullopt;
}

std::optional<ControllerFiles::Step> ControllerFiles::take(const KnownFile& file,
                                                           std::optional<QByteArray> fetched)
{
    Copy& copy = m_copies[static_cast<std::size_t>(file.id)];
    const bool isLast = ++copy.tries >= MostTries;
    const bool isSure =
        fetched && (fetched == copy.bytes || fetched == copy.doubtful || !FileCheck::faultOf(file, *fetched));
    if (!isSure && !isLast) {
        copy.doubtful = std::move(fetched);
        return std::nullopt;
    }
    copy.isWanted = false;
    copy.doubtful.reset();
    --m_wanted;
    copy.isFailed = !fetched;
    if (!fetched || fetched == copy.bytes)
        return Step{file.id, false, copy.bytes};
    return Step{file.id, true, std::exchange(copy.bytes, std::move(fetched))};
}

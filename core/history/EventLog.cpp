#include "EventLog.h"

#include "JsonLines.h"

#include <QFile>
#include <QFileInfo>

namespace {

// Where the last whole line ends.
qint64 endOfLines(QFile& file)
{
    constexpr qint64 BlockBytes = 4096;
    for (qint64 end = file.size(); end > 0;) {
        const qint64 begin = qMax(qint64(0), end - BlockBytes);
        if (!file.seek(begin))
            return -1;
        const QByteArray block = file.read(end - begin);
        if (block.size() != end - begin)
            return -1;
        const int feed = block.lastIndexOf('\n');
        if (feed >= 0)
            return begin + feed + 1;
        end = begin;
    }
    return 0;
}

} // namespace

EventLog::EventLog(QString path, qint64 mostBytes, WholeFile::Sync sync)
    : m_path(std::move(path))
    , m_mostBytes(mostBytes)
    , m_sync(sync)
{
}

std::vector<QJsonObject> EventLog::events() const
{
    QByteArray content;
    WholeFile::read(m_path, content);
    std::vector<QJsonObject> all = JsonLines::read(content);
    all.insert(all.end(), m_waiting.begin(), m_waiting.end());
    return all;
}

bool EventLog::append(const QJsonObject& event)
{
    if (m_waiting.size() == MostWaiting)
        m_waiting.erase(m_waiting.begin());
    m_waiting.push_back(event);
    QByteArray lines;
    for (const QJsonObject& waiting : m_waiting)
        lines += JsonLines::line(waiting);
    if ((QFileInfo(m_path).size() + lines.size() > m_mostBytes && !halve()) || !write(lines))
        return false;
    m_waiting.clear();
    return true;
}

// What was written of it goes again when it cannot be written as a whole.
bool EventLog::write(const QByteArray& lines) const
{
    QFile file(m_path);
    if (!file.open(QIODevice::ReadWrite | QIODevice::Unbuffered))
        return false;
    const qint64 end = endOfLines(file);
    if (end < 0 || (end != file.size() && !file.resize(end)) || !file.seek(end))
        return false;
    if (file.write(lines) == lines.size() && WholeFile::writeThrough(file.handle(), m_sync))
        return true;
    file.resize(end);
    return false;
}

bool EventLog::halve() const
{
    QByteArray content;
    if (!WholeFile::read(m_path, content))
        return !QFileInfo::exists(m_path);
    const int feed = content.indexOf('\n', qMax(0, content.size() - static_cast<int>(m_mostBytes / 2)));
    return WholeFile::replace(m_path, feed < 0 ? QByteArray() : content.mid(feed + 1), m_sync);
}

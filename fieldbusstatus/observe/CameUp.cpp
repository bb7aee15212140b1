#include "CameUp.h"

#include "WholeFile.h"

#include <QDataStream>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>

#include <cmath>

namespace {

constexpr quint32 Format = 1;
constexpr double MsPerSecond = 1000.0;

// A controller that was restarted meanwhile has lost more time than this; clocks that drift apart over a
// weekend may have, too, and the files of now count then.
constexpr double ToleranceSeconds = 3.0;

double now()
{
    return static_cast<double>(QDateTime::currentMSecsSinceEpoch()) / MsPerSecond;
}

} // namespace

CameUp::CameUp(const QString& folder)
    : m_file(folder + QStringLiteral("/came-up"))
{
}

CameUp::Files CameUp::kept(double clock) const
{
    QByteArray bytes;
    if (!WholeFile::read(m_file, bytes))
        return {};
    QDataStream stream(bytes);
    stream.setVersion(QDataStream::Qt_5_15);
    quint32 format = 0;
    double clockThen = 0.0;
    double then = 0.0;
    Files files;
    stream >> format;
    if (format != Format)
        return {};
    stream >> clockThen >> then >> files;
    const bool isSameRun =
        clock >= clockThen && std::abs((now() - then) - (clock - clockThen)) <= ToleranceSeconds;
    return stream.status() == QDataStream::Ok && isSameRun ? files : Files();
}

void CameUp::keep(const Files& files, double clock) const
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_5_15);
    stream << Format << clock << now() << files;
    QDir().mkpath(QFileInfo(m_file).path());
    WholeFile::replace(m_file, bytes);
}

#include "SupportBundle.h"

#include "Configuration.h"
#include "ConfigurationFindings.h"
#include "DataAccess.h"
#include "Report.h"
#include "RunningState.h"
#include "SysSettingApi.h"
#include "WholeFile.h"
#include "ZelFunctions.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>

#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr int FetchAttempts = 5;
constexpr unsigned BetweenAttemptsMs = 100;
constexpr int FilesBeside = 3; // report, history, checksums
constexpr int NameTries = 16;
constexpr unsigned BetweenNamesMs = 250; // a name changes with the second

std::optional<QByteArray> fetch(const KnownFile& file, const QString& local)
{
    QByteArray bytes;
    const bool isFetched =
        DataAccess::GetFileFromController2TPU(QLatin1String(file.controller), local, false) &&
        WholeFile::read(local, bytes);
    QFile::remove(local);
    return isFetched ? std::optional<QByteArray>(bytes) : std::nullopt;
}

// A file, or the folder that names it.
bool isOnDisk(const QString& path)
{
    const int descriptor = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0)
        return false;
    const bool written = WholeFile::writeThrough(descriptor, ::fsync);
    ::close(descriptor);
    return written;
}

} // namespace

SupportBundle::SupportBundle(QString drive, QString folder, Step step)
    : m_drive(std::move(drive))
    , m_folder(std::move(folder))
    , m_step(std::move(step))
{
}

bool SupportBundle::isWanted()
{
    return m_step(++m_steps, 2 * static_cast<int>(ExportedFileCount) + FilesBeside);
}

// Without the drive its mount point is a folder of the pendant, which must not be filled.
bool SupportBundle::isDriveThere() const
{
    QString path = m_drive; // a copy: the host fills in an empty one
    return !path.isEmpty() && ZelMountFloppy(path) == 0;
}

// A transfer that went wrong does not say so.
std::optional<QByteArray> SupportBundle::fetchTwice(const KnownFile& file) const
{
    const QString local = m_folder + QStringLiteral("/bundled");
    for (int attempt = 0; attempt < FetchAttempts; ++attempt) {
        if (attempt > 0)
            SysSettingApi::delay_MSec(BetweenAttemptsMs);
        const std::optional<QByteArray> once = fetch(file, local);
        if (once && once == fetch(file, local))
            return once;
    }
    return std::nullopt;
}

SupportBundle::Result SupportBundle::fetchAll()
{
    for (std::size_t i = 0; i < m_files.size(); ++i) {
        const KnownFile& file = KnownFiles::all()[i];
        m_subject = QLatin1String(file.name);
        if (!isWanted())
            return Result::Unwanted;
        if (!isDriveThere())
            return Result::DriveGone;
        const std::optional<QByteArray> bytes = fetchTwice(file);
        if (!bytes)
            return Result::NotFetched;
        // An import would leave it out.
        if (bytes->size() > KnownFiles::MostBytes)
            return Result::TooLarge;
        m_files[i] = bytes->isNull() ? QByteArray("") : *bytes;
    }
    return Result::Done;
}

SupportBundle::Result SupportBundle::makeFolder()
{
    for (int attempt = 0; attempt < NameTries; ++attempt) {
        if (attempt > 0)
            SysSettingApi::delay_MSec(BetweenNamesMs);
        // Digits that every pendant and computer reads, whatever the language is set to.
        m_name = QStringLiteral("fidbus_") +
                 QLocale::c().toString(QDateTime::currentDateTime(), QStringLiteral("yyyyMMdd_hhmmss"));
        m_subject = m_name;
        const QFileInfo target(m_drive + QLatin1Char('/') + m_name);
        if (!isDriveThere())
            return Result::DriveGone;
        if (target.exists() || target.isSymLink())
            continue;
        if (!QDir().mkdir(target.filePath()))
            return Result::DriveFailed;
        return Result::Done;
    }
    return Result::DriveFailed;
}

SupportBundle::Result SupportBundle::write(const QString& name, const QByteArray& bytes)
{
    m_subject = name;
    if (!isWanted())
        return Result::Unwanted;
    if (!isDriveThere())
        return Result::DriveGone;
    const QString local = m_folder + QStringLiteral("/bundled");
    const QString target = m_drive + QLatin1Char('/') + name;
    if (!WholeFile::replace(local, bytes))
        return Result::LocalFailed;
    const QString folder = QFileInfo(target).path();
    const bool isCopied = QDir().mkpath(folder) && !QFileInfo(target).isSymLink() &&
                          ZelFileCopy(local, target, false) != 0 && isOnDisk(target) && isOnDisk(folder);
    QByteArray back;
    const bool isThere = isCopied && WholeFile::read(target, back) && back == bytes;
    QFile::remove(local);
    if (isThere)
        return Result::Done;
    return isDriveThere() ? Result::DriveFailed : Result::DriveGone;
}

SupportBundle::Result SupportBundle::run(const Configuration& known, const RunningState& running,
                                         const QByteArray& history)
{
    QDir().mkpath(m_folder);
    Result result = fetchAll();
    if (result == Result::Done)
        result = makeFolder();
    Checksums::Sums sums;
    for (std::size_t i = 0; i < m_files.size() && result == Result::Done; ++i) {
        const QString name = QLatin1String(KnownFiles::all()[i].name);
        sums[name] = Checksums::of(m_files[i]);
        result = write(m_name + QLatin1Char('/') + name, m_files[i]);
    }
    if (result != Result::Done)
        return result;
    const Configuration configuration =
        Configuration::from([&](const KnownFile& file) -> std::optional<QByteArray> {
            if (file.isExported())
                return m_files[static_cast<std::size_t>(file.id)];
            const QByteArray bytes = known.presentBytes(file.id);
            return bytes.isNull() ? std::nullopt : std::optional<QByteArray>(bytes);
        });
    const QByteArray report = reportOf(m_name, configuration, findingsOf(configuration, &running), {}, sums);
    const std::pair<const char*, QByteArray> beside[] = {
        {".html", report}, {".history.jsonl", history}, {".sha256", Checksums::written(m_name, sums)}};
    for (const auto& [suffix, bytes] : beside) {
        if (result == Result::Done)
            result = write(m_name + QLatin1String(suffix), bytes);
    }
    return result;
}

#include "UsbDrive.h"

#include "LocalFile.h"
#include "ZelFunctions.h"

#include <QDir>
#include <QFileInfo>

namespace {

QString absolute(const QString& path)
{
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

} // namespace

UsbDrive& UsbDrive::instance()
{
    static UsbDrive drive;
    return drive;
}

void UsbDrive::insert(const QString& path)
{
    m_path = absolute(path);
    m_inserted = true;
    emit changed();
}

void UsbDrive::pullOut()
{
    if (!m_inserted)
        return;
    m_inserted = false;
    emit changed();
}

bool UsbDrive::isReachable(const QString& path) const
{
    return m_inserted && absolute(path) == m_path && QFileInfo(m_path).isDir();
}

bool UsbDrive::holds(const QString& path) const
{
    if (m_path.isEmpty())
        return false;
    const QString wanted = absolute(path);
    return wanted == m_path ||
           wanted.startsWith(m_path.endsWith(QLatin1Char('/')) ? m_path : m_path + QLatin1Char('/'));
}

bool UsbDrive::mayRead(const QString& path) const
{
    return m_inserted || !holds(path);
}

bool UsbDrive::mayWrite(const QString& path) const
{
    return !holds(path) || (m_inserted && !m_readOnly && !m_full && m_copiesLeft != 0);
}

void UsbDrive::countCopy()
{
    if (m_copiesLeft > 0)
        --m_copiesLeft;
}

QString ZelGetUSBDrives()
{
    const UsbDrive& drive = UsbDrive::instance();
    return drive.isReachable(drive.path()) ? drive.path() : QString();
}

int ZelMountFloppy(QString& path)
{
    const UsbDrive& drive = UsbDrive::instance();
    if (path.isEmpty() && drive.isInserted())
        path = drive.path();
    return !path.isEmpty() && drive.isReachable(path) ? 0 : -1;
}

int ZelFileCopy(const QString& source, const QString& target, bool overwrite)
{
    UsbDrive& drive = UsbDrive::instance();
    QByteArray content;
    if (!drive.mayRead(source) || !drive.mayWrite(target) || (!overwrite && QFileInfo::exists(target)) ||
        !readLocalFile(source, content) || !replaceLocalFile(target, content))
        return 0;
    // Drives that wear out accept what they do not keep.
    QByteArray kept;
    if (!readLocalFile(target, kept) || kept != content)
        return 0;
    if (drive.holds(target))
        drive.countCopy();
    return 1;
}

#include "WorkDirectory.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace {
// Deeper folders are made by the applications, one level each.
constexpr const char* Folders[] = {"bin", "Application/fieldbusSetting", "Application/Setup",
                                   "Application/fidbus/im-export"};

QString ownRoot(const QString& controller)
{
    // By the program's name alone: with the organisation's it would lie one folder deeper.
    QString root = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QLatin1Char('/') +
                   QCoreApplication::applicationName();
    if (!controller.isEmpty()) {
        const QByteArray hash = QCryptographicHash::hash(controller.toUtf8(), QCryptographicHash::Sha1);
        root += QLatin1Char('-') + QString::fromLatin1(hash.toHex().left(8));
    }
    return root;
}
} // namespace

WorkDirectory::WorkDirectory(const QString& root, const QString& controller)
    : m_root(QDir(root.isEmpty() ? ownRoot(controller) : root).absolutePath())
{
}

bool WorkDirectory::enter()
{
    const QDir tree(m_root);
    for (const char* folder : Folders) {
        const QString path = tree.filePath(QString::fromLatin1(folder));
        if (!QDir().mkpath(path)) {
            m_error = tr("The folder %1 cannot be made.").arg(QDir::toNativeSeparators(path));
            return false;
        }
        if (!QFileInfo(path).isWritable()) {
            m_error = tr("The folder %1 cannot be written to.").arg(QDir::toNativeSeparators(path));
            return false;
        }
    }
    const QString bin = tree.filePath(QStringLiteral("bin"));
    if (QDir::setCurrent(bin))
        return true;
    m_error = tr("The folder %1 cannot be entered.").arg(QDir::toNativeSeparators(bin));
    return false;
}

QString WorkDirectory::controllerStore() const
{
    return QDir(m_root).filePath(QStringLiteral("controller"));
}

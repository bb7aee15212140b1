#ifndef CONTROLLER_FILESTORE_H
#define CONTROLLER_FILESTORE_H

#include <QByteArray>
#include <QString>
#include <QStringList>

/// The controller's file system in a folder. Names are found whatever their case, as on the controller.
/// Nothing outside the folder can be reached: a path is walked name by name, and one that is not a plain
/// name, or leads through a link, is refused.
class FileStore
{
public:
    /// An empty or missing folder is filled with the factory files.
    explicit FileStore(const QString& directory);

    /// Why the folder cannot be used; empty when it can.
    QString error() const { return m_error; }
    QString directory() const { return m_root; }

    /// False (and `content` untouched) when there is no such file.
    bool read(const QString& path, QByteArray& content) const;
    /// Replaces the file in one step. Missing folders are made, below the controller's two trees only.
    bool write(const QString& path, const QByteArray& content);
    bool remove(const QString& path);
    bool exists(const QString& path) const { return !find(path).isEmpty(); }

    /// Puts every factory file back; false when one could not be written.
    bool restoreFactory();
    /// The factory file of a controller path (spelled as in the factory set); empty when there is none.
    static QByteArray factoryFile(const QString& path);
    /// Controller paths of all factory files.
    static QStringList factoryFiles();

private:
    QString find(const QString& path) const;

    QString m_root;
    QString m_error;
};

#endif

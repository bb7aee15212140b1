#ifndef TESTS_CONFIGFOLDERS_H
#define TESTS_CONFIGFOLDERS_H

#include "KnownFiles.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

/// Configurations on disk that are made from the factory files, and the tool that looks at them.
class ConfigFolders
{
public:
    struct Outcome
    {
        int code = -1; ///< -1: it crashed
        QByteArray out;
        QByteArray err;
    };

    QString path(const QString& name) const { return m_root.filePath(name); }

    static QByteArray read(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    static bool write(const QString& path, const QByteArray& bytes)
    {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
    }
    /// Where the factory has a file; the controller's file system does not regard the case.
    static QString controllerPath(const KnownFile& file)
    {
        return QString(file.controller).replace("/FA/", "/fa/");
    }
    static QByteArray plant(const KnownFile& file)
    {
        return read(QLatin1String(PLANT_DIRECTORY) + controllerPath(file));
    }

    /// An export as a pendant writes it, or a copy of the controller's files.
    bool makeExport(const QString& name) const { return make(name, true); }
    bool makeController(const QString& name) const { return make(name, false); }

    /// Replaces the first `from` of a file; false when it is not there.
    bool edit(const QString& file, const QByteArray& from, const QByteArray& to) const
    {
        QByteArray bytes = read(path(file));
        const int at = bytes.indexOf(from);
        return at >= 0 && write(path(file), bytes.replace(at, from.size(), to));
    }

    /// Runs the tool in the folder above all of them.
    Outcome run(const QStringList& arguments, const QString& program = QStringLiteral(FIELDBUSCTL)) const
    {
        QProcess process;
        process.setWorkingDirectory(m_root.path());
        process.start(program, arguments);
        process.closeWriteChannel();
        if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit)
            return {-1, process.readAllStandardOutput(), process.readAllStandardError()};
        return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
    }

private:
    bool make(const QString& name, bool isExport) const
    {
        bool isMade = true;
        for (const KnownFile& file : KnownFiles::all()) {
            const QString target = isExport ? '/' + QString(file.name) : controllerPath(file);
            if (file.isExported() || !isExport)
                isMade = write(path(name) + target, plant(file)) && isMade;
        }
        return isMade;
    }

    QTemporaryDir m_root;
};

#endif

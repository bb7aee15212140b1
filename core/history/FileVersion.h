#ifndef FILEVERSION_H
#define FILEVERSION_H

#include <QByteArray>
#include <QDateTime>
#include <QJsonObject>
#include <QString>

#include <optional>

/// One replacement of a controller's file by this pendant: what the controller held before, and what was
/// sent.
struct FileVersion
{
    enum class Act {
        Saved,        ///< on a page
        Imported,     ///< from a USB drive
        ImportUndone, ///< brought back after an import that failed
        PutBack       ///< a former version that the operator brought back
    };
    /// What is kept of either side.
    enum class Content {
        Kept,   ///< its bytes are in the store
        Absent, ///< there was no such file, or it was removed
        Lost    ///< it could not be had, or not be written to the disk
    };
    struct Side
    {
        Content content = Content::Lost;
        QByteArray hash; ///< SHA-1 in hex; empty where it is not known
    };

    qint64 number = 0; ///< from 1, grows from one to the next
    qint64 group = 0;  ///< number of the first one of the same act: an import is one change of many files
    QDateTime time;    ///< when it was sent, UTC
    QString file;      ///< path on the controller, whose file system ignores case
    Act act = Act::Saved;
    Side former;
    Side sent;
    bool hasFailed = false; ///< the transfer said so; what it has left behind is not known

    QJsonObject toJson() const;
    /// Nothing when it is none.
    static std::optional<FileVersion> fromJson(const QJsonObject& object);
};

#endif

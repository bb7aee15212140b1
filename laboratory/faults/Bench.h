#ifndef LAB_BENCH_H
#define LAB_BENCH_H

#include "MemoryLink.h"

#include <QString>

/// A controller whose files lie in a directory: another machine, which no fault of the pendant's disk meets.
class DirectoryLink : public MemoryLink
{
public:
    explicit DirectoryLink(const QString& directory);

    bool storeFile(const QString& ctrlPath, const QByteArray& content) override;
    bool removeFile(const QString& ctrlPath) override;

private:
    QString m_directory;
};

/// One place for one experiment: a pendant's working tree with a drive in it, and beside it the controller's
/// files.
class Bench
{
public:
    explicit Bench(QString directory);

    QString path() const { return m_directory; }
    /// All that is the pendant's: what faults meet.
    QString pendant() const { return m_directory + QStringLiteral("/pendant"); }
    QString drive() const { return pendant() + QStringLiteral("/usb"); }
    QString controller() const { return m_directory + QStringLiteral("/controller"); }

    /// A fresh pendant with a controller from the factory.
    bool make(const QString& plantDirectory) const;
    /// Exchanges what is there for a copy of `other`.
    bool copyFrom(const Bench& other) const;
    /// Makes it the pendant and the controller of this process, which is fresh: it has read nothing.
    void enter() const;

    /// The bytes of a file below the bench, null without one.
    QByteArray file(const QString& name) const;
    QByteArray controllerFile(const QString& ctrlPath) const;
    /// Paths below `folder` of every file and link.
    static QStringList filesBelow(const QString& folder);

private:
    QString m_directory;
};

#endif

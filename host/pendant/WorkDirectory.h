#ifndef PENDANT_WORKDIRECTORY_H
#define PENDANT_WORKDIRECTORY_H

#include <QCoreApplication>
#include <QString>

/// The directory tree that the pendant works in. Applications name their files relative to its bin/
/// ("../Application/fieldbusSetting"), so the pendant runs with bin/ as its current directory.
class WorkDirectory
{
    Q_DECLARE_TR_FUNCTIONS(WorkDirectory)

public:
    /// Without a `root`: below the user's data folder, another one for each `controller` that is named, so
    /// that two pendants with two controllers do not share it.
    explicit WorkDirectory(const QString& root = QString(), const QString& controller = QString());

    /// Makes what is missing and changes into bin/; false leaves the reason in `error()`.
    bool enter();
    QString error() const { return m_error; }

    QString root() const { return m_root; }
    /// Where the simulated controller keeps its files unless it is told otherwise.
    QString controllerStore() const;

private:
    QString m_root;
    QString m_error;
};

#endif

#ifndef PENDANT_APPLICATIONINFO_H
#define PENDANT_APPLICATIONINFO_H

#include <QCoreApplication>
#include <QMap>
#include <QString>
#include <QStringList>

#include <vector>

class QJsonObject;

/// A page of an application that is reached from outside of it: the slot of one of its objects, which takes
/// one number.
struct ApplicationShortcut
{
    QString id;
    QString object; ///< object name; it is there while the application is open
    QString slot;   ///< name without arguments
    int argument = 0;
};

/// How an application says on which page it is, and is brought there again: a property that holds the number
/// of the page, and the slot that takes it.
struct ApplicationPage
{
    QString object; ///< object name; empty: it does not say
    QString property;
    QString slot; ///< name without arguments
};

/// What the pendant knows of an application before its library is loaded, from a description file: a JSON
/// object with "class", "library", "name" and, when they differ from the defaults here, the rest.
struct ApplicationInfo
{
    Q_DECLARE_TR_FUNCTIONS(ApplicationInfo)

public:
    QString className;            ///< by which the application asks for its page id
    QString library;              ///< file; relative ones lie beside the description or beside the program
    QString name;                 ///< of the application, in English or the only language that it has
    QMap<QString, QString> names; ///< for each language ("en", "zh", "zh_CN", ...); may be empty
    QString icon = QStringLiteral(":/host/application.png");
    int order = 0;               ///< of the tiles; equal ones by name
    bool resident = false;       ///< its data is made when the pendant starts and lives as long
    bool needsController = true; ///< does not open while the controller is down
    std::vector<ApplicationShortcut> shortcuts;
    ApplicationPage page;

    /// Below the tile, in the language of the pendant.
    QString shownName() const;

    /// A library without a description: called by its file, "libNAME.so".
    static ApplicationInfo ofLibrary(const QString& file);
    /// Reads a description; false leaves the reason in `problem`.
    bool read(const QString& file, QString& problem);

private:
    void take(const QJsonObject& object, const QString& folder);
};

/// The applications of a pendant in the order of their tiles.
class InstalledApplications
{
public:
    /// Reads every description "*.json" in `folder`; one that cannot be read is told in `problems`.
    void addFolder(const QString& folder);
    /// Adds a description in place of the application of the same class name, or a library: that of the
    /// application which its file is named after, or of a new one.
    void addFile(const QString& file);
    void add(const ApplicationInfo& info);

    const std::vector<ApplicationInfo>& all() const { return m_all; }
    const QStringList& problems() const { return m_problems; }

private:
    std::vector<ApplicationInfo>::iterator find(const QString& className);

    std::vector<ApplicationInfo> m_all;
    QStringList m_problems;
};

#endif

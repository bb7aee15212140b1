#include "ApplicationInfo.h"

#include "LocalFile.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>

#include <algorithm>
#include <tuple>

namespace {
// Resources, and names that the loader of libraries has to find, stay as they are.
QString fileOf(const QString& name, const QString& folder)
{
    for (const QString& place : {folder, QCoreApplication::applicationDirPath()}) {
        const QString file = QDir(place).filePath(name);
        if (!name.isEmpty() && QFileInfo::exists(file))
            return QDir::cleanPath(file);
    }
    return name;
}
} // namespace

QString ApplicationInfo::shownName() const
{
    const QString locale = QLocale().name();
    return names.value(locale, names.value(locale.section(QLatin1Char('_'), 0, 0), name));
}

ApplicationInfo ApplicationInfo::ofLibrary(const QString& file)
{
    ApplicationInfo info;
    info.className = QFileInfo(file).completeBaseName();
    if (info.className.startsWith(QLatin1String("lib")))
        info.className.remove(0, 3);
    info.name = info.className;
    info.library = file;
    return info;
}

bool ApplicationInfo::read(const QString& file, QString& problem)
{
    QByteArray bytes;
    QJsonParseError error;
    if (!readLocalFile(file, bytes)) {
        problem = tr("%1 cannot be read.").arg(QDir::toNativeSeparators(file));
        return false;
    }
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
    take(document.object(), QFileInfo(file).absolutePath());
    if (error.error != QJsonParseError::NoError)
        problem = tr("%1: %2").arg(QDir::toNativeSeparators(file), error.errorString());
    else if (className.isEmpty() || library.isEmpty() || name.isEmpty())
        problem = tr("%1 does not tell class, library and name of an application.")
                      .arg(QDir::toNativeSeparators(file));
    return problem.isEmpty();
}

void ApplicationInfo::take(const QJsonObject& object, const QString& folder)
{
    const auto value = [&object](const char* key) { return object[QLatin1String(key)]; };
    className = value("class").toString();
    library = fileOf(value("library").toString(), folder);
    // A text, or an object with a text for each language, of which English has to be there.
    const QJsonObject texts = value("name").toObject();
    for (auto text = texts.begin(); text != texts.end(); ++text)
        names[text.key()] = text.value().toString();
    name = value("name").toString(names.value(QStringLiteral("en")));
    const QJsonObject place = value("page").toObject();
    page = {place[QStringLiteral("object")].toString(), place[QStringLiteral("property")].toString(),
            place[QStringLiteral("slot")].toString()};
    icon = fileOf(value("icon").toString(icon), folder);
    order = value("order").toInt();
    resident = value("resident").toBool();
    needsController = value("needsController").toBool(true);
    for (const QJsonValue& entry : value("shortcuts").toArray()) {
        const QJsonObject shortcut = entry.toObject();
        shortcuts.push_back(
            {shortcut[QStringLiteral("id")].toString(), shortcut[QStringLiteral("object")].toString(),
             shortcut[QStringLiteral("slot")].toString(), shortcut[QStringLiteral("argument")].toInt()});
    }
}

void InstalledApplications::addFolder(const QString& folder)
{
    const QStringList files = QDir(folder).entryList({QStringLiteral("*.json")}, QDir::Files, QDir::Name);
    for (const QString& file : files)
        addFile(QDir(folder).filePath(file));
}

void InstalledApplications::addFile(const QString& file)
{
    if (QFileInfo(file).suffix() != QLatin1String("json")) {
        const ApplicationInfo bare = ApplicationInfo::ofLibrary(file);
        const auto known = find(bare.className);
        if (known == m_all.end())
            add(bare);
        else
            known->library = file;
        return;
    }
    ApplicationInfo info;
    QString problem;
    if (info.read(file, problem))
        add(info);
    else
        m_problems.append(problem);
}

void InstalledApplications::add(const ApplicationInfo& info)
{
    const auto known = find(info.className);
    if (known != m_all.end())
        m_all.erase(known);
    const auto before = [](const ApplicationInfo& one, const ApplicationInfo& other) {
        return std::tie(one.order, one.name) < std::tie(other.order, other.name);
    };
    m_all.insert(std::upper_bound(m_all.begin(), m_all.end(), info, before), info);
}

std::vector<ApplicationInfo>::iterator InstalledApplications::find(const QString& className)
{
    return std::find_if(m_all.begin(), m_all.end(),
                        [&className](const ApplicationInfo& info) { return info.className == className; });
}

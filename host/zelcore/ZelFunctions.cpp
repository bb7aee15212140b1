#include "ZelFunctions.h"

#include "TouchCombo.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QLocale>
#include <QStringList>
#include <QWidget>

namespace {

// Sheets live in resources, which do not change while the pendant runs.
const QString& sheet(const QString& name)
{
    static QHash<QString, QString> sheets;
    const auto known = sheets.constFind(name);
    if (known != sheets.constEnd())
        return *known;
    QFile file(QStringLiteral(":/style/%1.qss").arg(name));
    QString text;
    if (file.open(QIODevice::ReadOnly))
        text = QString::fromUtf8(file.readAll());
    return *sheets.insert(name, text);
}

} // namespace

// For a pendant in zh_CN the variant of "path" is "path.zh_CN", else "path.zh": the first that exists, file
// or directory. `mode` tells the pendant's editions apart, and the desktop is one edition.
QString ZelGetLocalizedFileName(const QString& path, int /*mode*/)
{
    const QString locale = QLocale().name();
    const QStringList variants{path + QLatin1Char('.') + locale,
                               path + QLatin1Char('.') + locale.section(QLatin1Char('_'), 0, 0)};
    for (const QString& variant : variants) {
        if (!path.isEmpty() && QFileInfo::exists(variant))
            return variant;
    }
    return path;
}

void ZelSetUIStyleSheet(QWidget* widget, const QString& key)
{
    if (!widget)
        return;
    QString text = sheet(QStringLiteral("base"));
    const QString& own = sheet(key);
    if (!own.isEmpty()) {
        if (!text.isEmpty())
            text += QLatin1Char('\n');
        text += own;
    }
    // Fonts of the language, where it needs other ones.
    text += sheet(QStringLiteral("language/") + QLocale().name());
    // Setting a sheet repolishes every child, also when it is the same one.
    if (text != widget->styleSheet())
        widget->setStyleSheet(text);
    fitComboLists(widget);
}

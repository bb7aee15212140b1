#include "Options.h"

#include "LogInDialog.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>

namespace {
// The parser knows no option with a value that may be left out.
QStringList withTourDirectory(QStringList arguments)
{
    const int index = arguments.indexOf(QStringLiteral("--tour"));
    if (index < 0)
        return arguments;
    const bool named = index + 1 < arguments.size() && !arguments[index + 1].startsWith(QLatin1Char('-'));
    arguments[index] += QLatin1Char('=') + (named ? arguments.takeAt(index + 1) : QStringLiteral("tour"));
    return arguments;
}

QString absolute(const QString& path)
{
    return path.isEmpty() ? path : QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}
} // namespace

Options Options::parse(const QStringList& arguments, const QStringList& faultNames)
{
    const struct
    {
        const char* name;
        QString text;
        const char* value;
    } table[] = {
        {"tour", tr("Press every button, save a picture of every page in DIR (default: tour), and end."),
         "DIR"},
        {"panel", tr("Open the window that drives the simulated controller."), nullptr},
        {"controller", tr("Folder of the simulated controller's files; an empty one is filled."), "DIR"},
        {"workdir",
         tr("Folder that the pendant works in (default: in the user's data folder; the tour's own)."), "DIR"},
        {"plugin", tr("Library of the application."), "FILE"},
        {"usb", tr("Folder that stands for a USB drive."), "DIR"},
        {"fault",
         tr("Let the controller fail: a name, how often (default: always) and what is hit. Names: %1.")
             .arg(faultNames.join(QStringLiteral(", "))),
         "NAME[:N[:TARGET]]"},
        {"user-level", tr("User level at the start, 0 to %1.").arg(LogInDialog::HighestLevel), "N"},
        {"time-scale", tr("How much faster than real time the pendant and the controller wait."), "X"},
        {"mtcp-port",
         tr("TCP port of the controller's Modbus slave (default: 1502, any free one for the tour)."), "N"},
        {"help", tr("Tell all options."), nullptr},
    };

    QCommandLineParser parser;
    parser.setApplicationDescription(tr("The pendant on a desktop, with a simulated robot controller."));
    for (const auto& row : table) {
        QCommandLineOption option(QLatin1String(row.name), row.text);
        if (row.value)
            option.setValueName(QLatin1String(row.value));
        parser.addOption(option);
    }

    Options options;
    const bool understood = parser.parse(withTourDirectory(arguments));
    options.helpText = parser.helpText();
    if (!understood || !parser.positionalArguments().isEmpty()) {
        options.problem =
            understood ? tr("Unexpected argument \"%1\".").arg(parser.positionalArguments().constFirst())
                       : parser.errorText();
        return options;
    }

    options.help = parser.isSet(QStringLiteral("help"));
    options.tour = parser.isSet(QStringLiteral("tour"));
    options.panel = parser.isSet(QStringLiteral("panel"));
    options.faults = parser.values(QStringLiteral("fault"));

    const struct
    {
        const char* name;
        QString& path;
    } paths[] = {{"tour", options.tourDirectory},
                 {"controller", options.controllerStore},
                 {"workdir", options.workDirectory},
                 {"plugin", options.plugin},
                 {"usb", options.usb}};
    for (const auto& row : paths)
        row.path = absolute(parser.value(QLatin1String(row.name)));
    if (options.plugin.isEmpty())
        options.plugin =
            QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("libfieldbussetting.so"));

    int userLevel = 0;
    const struct
    {
        const char* name;
        int minimum;
        int maximum;
        int& number;
    } numbers[] = {{"user-level", 0, LogInDialog::HighestLevel, userLevel},
                   {"mtcp-port", 1, 65535, options.mtcpPort}};
    for (const auto& row : numbers) {
        const QString name = QLatin1String(row.name);
        bool ok = true;
        if (parser.isSet(name))
            row.number = parser.value(name).toInt(&ok);
        if (parser.isSet(name) && (!ok || row.number < row.minimum || row.number > row.maximum))
            options.problem =
                tr("--%1 takes a number from %2 to %3.").arg(name).arg(row.minimum).arg(row.maximum);
    }
    if (parser.isSet(QStringLiteral("user-level")))
        options.userLevel = userLevel;
    if (parser.isSet(QStringLiteral("time-scale"))) {
        options.timeScale = parser.value(QStringLiteral("time-scale")).toDouble();
        // Negated, so that "nan" does not pass.
        if (!(options.timeScale > 0.0 && options.timeScale <= 1000.0))
            options.problem = tr("--time-scale takes a number above 0, up to 1000.");
    }
    return options;
}

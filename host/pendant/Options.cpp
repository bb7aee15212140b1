#include "Options.h"

#include "Languages.h"
#include "LogInDialog.h"
#include "PendantWindow.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <vector>

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

QString languageCodes()
{
    QStringList codes;
    for (const Languages::Language& language : Languages::all())
        codes << QLatin1String(language.code);
    return codes.join(QStringLiteral(", "));
}

QString takeLanguage(const QCommandLineParser& parser, QString& language)
{
    language = parser.value(QStringLiteral("language"));
    return language.isEmpty() || Languages::indexOf(language) >= 0
               ? QString()
               : Options::tr("--language takes one of %1.").arg(languageCodes());
}

struct Row
{
    const char* name;
    QString text;
    const char* value; ///< null: a switch
};

std::vector<Row> rows(const QStringList& faultNames)
{
    return {
        {"tour",
         Options::tr("Press every button, save a picture of every page in DIR (default: tour), and end."),
         "DIR"},
        {"panel", Options::tr("Open the window that drives the simulated controller."), nullptr},
        {"controller", Options::tr("Folder of the simulated controller's files; an empty one is filled."),
         "DIR"},
        {"workdir",
         Options::tr(
             "Folder that the pendant works in (default: in the user's data folder; the tour's own)."),
         "DIR"},
        {"application",
         Options::tr("Another application: its description, or its library, which replaces an installed one "
                     "of the same name."),
         "FILE"},
        {"usb", Options::tr("Folder that stands for a USB drive."), "DIR"},
        {"fault",
         Options::tr(
             "Let the controller fail: a name, how often (default: always) and what is hit. Names: %1.")
             .arg(faultNames.join(QStringLiteral(", "))),
         "NAME[:N[:TARGET]]"},
        {"scenario",
         Options::tr("Play a file of times and actions; docs/simulated-controller.md tells them."), "FILE"},
        {"user-level", Options::tr("User level at the start, 0 to %1.").arg(LogInDialog::HighestLevel), "N"},
        {"time-scale", Options::tr("How much faster than real time the pendant and the controller wait."),
         "X"},
        {"mtcp-port",
         Options::tr("TCP port of the controller's Modbus slave (default: 1502, any free one for the tour)."),
         "N"},
        {"scale", Options::tr("How large the pendant is drawn, 1 to 4 (default: 1)."), "X"},
        {"size", Options::tr("Size of the screen that the pendant fills, for example 800x600."), "WxH"},
        {"language", Options::tr("Language of the pendant: %1 (default: en).").arg(languageCodes()), "CODE"},
        {"verbose", Options::tr("Write debug lines, with times."), nullptr},
        {"version", Options::tr("Tell the version."), nullptr},
        {"help", Options::tr("Tell all options."), nullptr},
    };
}

void addRows(QCommandLineParser& parser, const QStringList& faultNames)
{
    for (const Row& row : rows(faultNames)) {
        QCommandLineOption option(QLatin1String(row.name), row.text);
        if (row.value)
            option.setValueName(QLatin1String(row.value));
        parser.addOption(option);
    }
}

/// Empty when the option is not there, or its value a number in the range, ends included.
template <typename Number>
QString takeNumber(const QCommandLineParser& parser, const char* name, Number minimum, Number maximum,
                   std::optional<Number>& number)
{
    const QString option = QLatin1String(name);
    if (!parser.isSet(option))
        return {};
    bool ok = false;
    const double value = parser.value(option).toDouble(&ok);
    // Negated, so that "nan" does not pass.
    if (!ok || !(value >= minimum && value <= maximum) || static_cast<Number>(value) != value)
        return Options::tr("--%1 takes a number from %2 to %3.").arg(option).arg(minimum).arg(maximum);
    number = static_cast<Number>(value);
    return {};
}

QString takeSize(const QCommandLineParser& parser, QSize& size)
{
    if (!parser.isSet(QStringLiteral("size")))
        return {};
    const QRegularExpression form(QStringLiteral("^([1-9][0-9]{2,3})x([1-9][0-9]{2,3})$"));
    const QRegularExpressionMatch match = form.match(parser.value(QStringLiteral("size")));
    size = QSize(match.captured(1).toInt(), match.captured(2).toInt());
    return match.hasMatch() ? QString() : Options::tr("--size takes a width and a height, as 800x600.");
}
} // namespace

Options Options::parse(const QStringList& arguments, const QStringList& faultNames)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(tr("The pendant on a desktop, with a simulated robot controller."));
    addRows(parser, faultNames);

    Options options;
    const bool understood = parser.parse(withTourDirectory(arguments));
    if (QCoreApplication::instance())
        options.helpText = parser.helpText();
    options.take(parser);
    if (!understood)
        options.problem = parser.errorText();
    else if (!parser.positionalArguments().isEmpty())
        options.problem = tr("Unexpected argument \"%1\".").arg(parser.positionalArguments().constFirst());
    return options;
}

void Options::take(const QCommandLineParser& parser)
{
    const struct
    {
        const char* name;
        bool& on;
    } switches[] = {
        {"help", help}, {"version", version}, {"tour", tour}, {"panel", panel}, {"verbose", verbose}};
    for (const auto& row : switches)
        row.on = parser.isSet(QLatin1String(row.name));
    faults = parser.values(QStringLiteral("fault"));
    takePaths(parser);

    const bool isDrive = usb.isEmpty() || QFileInfo(usb).isDir();
    const QString problems[] = {isDrive ? QString() : tr("--usb takes a folder, and %1 is none.").arg(usb),
                                takeNumber(parser, "user-level", 0, LogInDialog::HighestLevel, userLevel),
                                takeNumber(parser, "mtcp-port", 1, 65535, mtcpPort),
                                takeNumber(parser, "time-scale", 0.001, 1000.0, timeScale),
                                takeNumber(parser, "scale", 1.0, 4.0, scale),
                                takeLanguage(parser, language),
                                takeSize(parser, size)};
    for (const QString& found : problems) {
        if (!found.isEmpty())
            problem = found;
    }
}

QString Options::versionText()
{
    return QStringLiteral("fieldbus-pendant " FIELDBUS_VERSION);
}

double Options::drawingScale() const
{
    const QSize drawn = PendantWindow::screenSize();
    const double fitting =
        std::min(double(size.width()) / drawn.width(), double(size.height()) / drawn.height());
    // Qt does not paint whole what is drawn smaller than 1.
    return scale ? *scale : std::max(1.0, fitting);
}

void Options::takePaths(const QCommandLineParser& parser)
{
    const struct
    {
        const char* name;
        QString& path;
    } paths[] = {{"tour", tourDirectory},
                 {"controller", controllerStore},
                 {"workdir", workDirectory},
                 {"usb", usb},
                 {"scenario", scenario}};
    for (const auto& row : paths)
        row.path = absolute(parser.value(QLatin1String(row.name)));
    for (const QString& file : parser.values(QStringLiteral("application")))
        applications.append(absolute(file));
}

#ifndef PENDANT_OPTIONS_H
#define PENDANT_OPTIONS_H

#include <QCoreApplication>
#include <QSize>
#include <QStringList>

#include <optional>

class QCommandLineParser;

/// What the command line asks for. Paths are absolute: the program changes its directory later.
struct Options
{
    Q_DECLARE_TR_FUNCTIONS(Options)

public:
    bool tour = false;
    QString tourDirectory;
    bool panel = false;
    QString controllerStore;  ///< empty: in the work directory
    QString workDirectory;    ///< empty: below the user's data folder; for the tour, a scratch folder
    QStringList applications; ///< descriptions or libraries, beside those that are installed
    QString usb;              ///< empty: no drive
    QString scenario;         ///< empty: none is played
    QStringList faults;       ///< as `Faults::setFromText` takes them
    std::optional<int> userLevel;
    std::optional<double> timeScale;
    std::optional<int> mtcpPort; ///< none: the controller's own choice
    std::optional<double> scale; ///< how large the pendant is drawn
    QSize size;                  ///< of the screen that the pendant fills; empty: as large as it is drawn
    QString language;            ///< as `Languages` calls it; empty: English
    bool verbose = false;

    bool help = false;
    bool version = false;
    QString helpText;
    QString problem; ///< empty when the command line makes sense

    /// `faultNames` are told by the help, which there is with an application object only.
    static Options parse(const QStringList& arguments, const QStringList& faultNames);
    /// How large the pendant has to be drawn; 1 when nothing is said of it. It has to be known before there
    /// is an application object.
    double drawingScale() const;
    /// Name and version of the program.
    static QString versionText();

private:
    void take(const QCommandLineParser& parser);
    void takePaths(const QCommandLineParser& parser);
};

#endif

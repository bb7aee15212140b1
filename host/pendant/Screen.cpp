#include "Screen.h"

#include "Options.h"

#include <QDir>
#include <QFile>
#include <QLibraryInfo>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {
constexpr auto Platform = "QT_QPA_PLATFORM";
constexpr auto ScaleFactor = "QT_SCALE_FACTOR";

bool hasWaylandPlugin()
{
    const QDir plugins(QLibraryInfo::location(QLibraryInfo::PluginsPath) + QStringLiteral("/platforms"));
    return !plugins.entryList({QStringLiteral("libqwayland-*")}, QDir::Files).isEmpty();
}

// Without a name the compositor listens on its first socket. A socket may outlive its compositor, and Qt
// aborts then.
bool waylandAnswers()
{
    if (!qEnvironmentVariableIsEmpty("WAYLAND_SOCKET"))
        return true; // a connection that is there already
    const QString name = qEnvironmentVariable("WAYLAND_DISPLAY");
    const QByteArray path =
        QFile::encodeName(QDir(qEnvironmentVariable("XDG_RUNTIME_DIR"))
                              .filePath(name.isEmpty() ? QStringLiteral("wayland-0") : name));
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    qstrncpy(address.sun_path, path.constData(), sizeof address.sun_path);
    const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const bool answers = ::connect(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
    ::close(socket);
    return answers;
}
} // namespace

Screen::Screen(int argc, char** argv)
{
    for (int i = 0; i < argc; ++i)
        m_arguments.append(QString::fromLocal8Bit(argv[i]));
}

QString Screen::prepare(const Options& options) const
{
    // Qt does not paint whole what is drawn smaller than 1.
    if (options.drawingScale() != 1.0 || qgetenv(ScaleFactor).toDouble() < 1.0)
        qputenv(ScaleFactor, QByteArray::number(options.drawingScale()));

    if (!qEnvironmentVariableIsEmpty(Platform) || m_arguments.contains(QLatin1String("-platform")) ||
        m_arguments.contains(QLatin1String("--platform")))
        return {};
    if (options.tour || options.help || options.version || !options.problem.isEmpty()) {
        qputenv(Platform, "offscreen");
        return {};
    }
    if (!qEnvironmentVariableIsEmpty("DISPLAY"))
        return {};
    if (!waylandAnswers())
        return tr("There is no display. --tour needs none.");
    if (!hasWaylandPlugin())
        return tr("The display is Wayland's, and Qt's part for it is missing (package qtwayland5).");
    qputenv(Platform, "wayland");
    return {};
}

#include "SysSettingApi.h"

#include "ControllerLink.h"
#include "CurrentLink.h"
#include "IdleCounter.h"
#include "PendantPower.h"
#include "TimeScale.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QThread>
#include <QTimer>

#include <pugixml.hpp>

#include <cmath>

namespace {

constexpr auto NetPortsPath = "/application/network/netports.xml";

// Exit code of a waiting loop that reached its time; any other one says that the program ends.
constexpr int WaitIsOver = 0x0DE1A7;

// A timer counts milliseconds in an int; a wait beyond that sleeps more than once.
constexpr qint64 LongestSleep = 3600000;

int idleCalls = 0;

} // namespace

int idleServiceCalls()
{
    return idleCalls;
}

SysSettingApi* SysSettingApi::getInstance()
{
    static SysSettingApi api;
    return &api;
}

void SysSettingApi::sysSettingLibIdle()
{
    ++idleCalls;
}

void SysSettingApi::delay_MSec(unsigned msec)
{
    const auto wait = static_cast<qint64>(std::llround(msec / timeScale()));
    if (!QCoreApplication::instance()) {
        QThread::msleep(wait);
        return;
    }
    QElapsedTimer elapsed;
    elapsed.start();
    QCoreApplication::processEvents();

    // A loop that sleeps until something happens. Waits nest: while an inner one runs, an outer one that
    // reaches its time is only marked as over and returns after it.
    QEventLoop loop;
    QTimer timer;
    timer.setSingleShot(true);
    timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer, &QTimer::timeout, &loop, [&loop] { loop.exit(WaitIsOver); });
    for (qint64 left = wait - elapsed.elapsed(); left > 0; left = wait - elapsed.elapsed()) {
        timer.start(static_cast<int>(qMin(left, LongestSleep)));
        if (loop.exec() != WaitIsOver)
            return;
    }
}

void SysSettingApi::rebootRde(bool /*save*/, bool /*wait*/)
{
    // The simulated program state is always kept, and the controller goes down on a later turn anyway.
    if (ControllerLink* const link = currentLink())
        link->requestRestart();
}

void SysSettingApi::rebootTpu(bool /*save*/)
{
    PendantPower::instance().requestRestart();
}

void SysSettingApi::set_bswrsdet(bool requested)
{
    ControllerLink* const link = currentLink();
    if (requested && link)
        link->requestRestart();
}

NetworkAddresses SysSettingApi::getIpAddress()
{
    NetworkAddresses addresses;
    ControllerLink* const link = currentLink();
    QByteArray content;
    pugi::xml_document document;
    if (!link || !link->fetchFile(QLatin1String(NetPortsPath), content) ||
        !document.load_buffer(content.constData(), content.size()))
        return addresses;

    const struct
    {
        const char* port;
        QString& ip;
        QString& netmask;
    } ports[] = {{"ETH2", addresses.eth2Ip, addresses.eth2Netmask},
                 {"ETH3", addresses.eth3Ip, addresses.eth3Netmask}};
    for (const auto& port : ports) {
        const pugi::xml_node node =
            document.child("NetPorts").find_child_by_attribute("Port", "name", port.port);
        port.ip = QString::fromUtf8(node.attribute("ip").value()).trimmed();
        port.netmask = QString::fromUtf8(node.attribute("netmask").value()).trimmed();
    }
    return addresses;
}

bool SysSettingApi::removeRemoteFile(const QString& ctrlPath)
{
    ControllerLink* const link = currentLink();
    return link && link->removeFile(ctrlPath);
}

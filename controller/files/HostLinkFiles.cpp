#include "HostLinkFiles.h"

#include "ControllerXml.h"

namespace {

// Of the protocol. The page sets no limits, so that what is beyond them arrives here.
constexpr int HighestNode = 254;
constexpr int LastDmWord = 32767;

// Not a number, or none that a port can have: 0.
quint16 portOf(pugi::xml_node element)
{
    return QString::fromUtf8(element.text().get()).toUShort();
}

} // namespace

MesServerSettings readMesServer(const QByteArray& tcpServerConfigXml)
{
    pugi::xml_document document;
    return {portOf(ControllerXml::load(tcpServerConfigXml, "TcpServerConfig", document).child("Port"))};
}

FinsClientSettings readFinsClient(const QByteArray& finsTcpConfigXml)
{
    pugi::xml_document document;
    const pugi::xml_node root = ControllerXml::load(finsTcpConfigXml, "ClientConfig", document);
    FinsClientSettings settings;
    settings.server = QHostAddress(QString::fromUtf8(root.child("ServerIP").text().get()).trimmed());
    settings.port = portOf(root.child("ServerPort"));
    settings.clientNode = root.child("ClientNode").text().as_int();
    settings.readAddress = root.child("ReadDmAddress").text().as_int();
    settings.autoConnect = root.child("AutoConnect").text().as_int() == 1;
    if (!root)
        settings.complaint = QStringLiteral("no settings");
    else if (settings.server.isNull())
        settings.complaint = QStringLiteral("the server has no address");
    // A simulated robot is no reason to talk to a real PLC.
    else if (!settings.server.isLoopback())
        settings.complaint = QStringLiteral("the server is not on this machine");
    else if (settings.port == 0)
        settings.complaint = QStringLiteral("the server has no port");
    else if (settings.clientNode < 0 || settings.clientNode > HighestNode)
        settings.complaint = QStringLiteral("no such node: %1").arg(settings.clientNode);
    else if (settings.readAddress < 0 || settings.readAddress > LastDmWord)
        settings.complaint = QStringLiteral("no such DM word: %1").arg(settings.readAddress);
    return settings;
}

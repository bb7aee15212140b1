#ifndef CONTROLLER_HOSTLINKFILES_H
#define CONTROLLER_HOSTLINKFILES_H

#include <QByteArray>
#include <QHostAddress>
#include <QString>

/// What the controller takes from "TcpServerConfig.xml".
struct MesServerSettings
{
    quint16 port = 0; ///< 0: the file says nothing that is a port
};

/// What the controller takes from "FinsTcpConfig.xml".
struct FinsClientSettings
{
    QHostAddress server; ///< null when the file says nothing that is an address
    quint16 port = 0;    ///< 0: the file says nothing that is a port
    int clientNode = 0;  ///< 0 to 254; 0 lets the server give one
    int readAddress = 0; ///< first DM word, 0 to 32767
    bool autoConnect = false;
    QString complaint; ///< what makes it impossible to connect; empty when nothing does
};

/// A file that cannot be read counts as one that says nothing.
MesServerSettings readMesServer(const QByteArray& tcpServerConfigXml);
FinsClientSettings readFinsClient(const QByteArray& finsTcpConfigXml);

#endif

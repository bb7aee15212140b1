#ifndef CONTROLLER_PCAP_H
#define CONTROLLER_PCAP_H

#include "FrameLog.h"

/// The frames as a capture file (pcap, raw IPv4) that network analysers open. Each frame is one TCP segment
/// between two ports of 127.0.0.1; the handshakes of the connections are not in it.
QByteArray pcapOf(const QVector<LoggedFrame>& frames);

#endif

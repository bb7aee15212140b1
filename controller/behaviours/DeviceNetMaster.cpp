#include "DeviceNetMaster.h"

#include "ControllerParts.h"

#include <QRegularExpression>

namespace {

constexpr auto ScanListFile = "/fa/dnmst0.cfg";
constexpr auto Status = "ifidbus.dnm_status";
constexpr auto ErrorCode = "ifidbus.dnm_errorcode";
constexpr auto SaveConfig = "ifidbus.dnm_save_config";
constexpr auto SlaveNumber = "ifidbus.dnm_slave_num";
constexpr auto LinkState = "ifidbus.dnm_link_state";

constexpr int TakeMs = 300;

// MAC IDs of the devices below the header, as they stand in the comments that begin their blocks.
QVector<int> macIdsOf(const QByteArray& file)
{
    static const QRegularExpression device(QStringLiteral("^;   Device .* MAC ID[ \\t]*(\\S*)"));
    QVector<int> macIds;
    bool isBelowHeader = false;
    for (const QByteArray& line : file.split('\n')) {
        isBelowHeader = isBelowHeader || line.contains("===================");
        const QRegularExpressionMatch match = device.match(QString::fromLatin1(line));
        if (!isBelowHeader || !match.hasMatch() || macIds.size() == DeviceNetMaster::MaxDevices)
            continue;
        bool isNumber = false;
        const int macId = match.captured(1).toInt(&isNumber);
        macIds.append(isNumber ? macId : -1);
    }
    return macIds;
}

} // namespace

// Of the plant's devices the one with MAC ID 20 is out, so that a fault is to be seen.
DeviceNetMaster::DeviceNetMaster(ControllerParts& controllerParts)
    : Behaviour(controllerParts)
    , m_network({5, 9, 14, 33})
{
}

void DeviceNetMaster::setOnNetwork(int macId, bool on)
{
    if (macId < 1 || macId > HighestMacId)
        return;
    if (on)
        m_network.insert(macId);
    else
        m_network.remove(macId);
}

void DeviceNetMaster::restarted()
{
    readScanList();
    parts().variables.set(QLatin1String(SlaveNumber), m_scanList.size());
    parts().variables.set(QLatin1String(SaveConfig), 0.0);
}

void DeviceNetMaster::wentDown()
{
    for (int device = 0; device < MaxDevices; ++device) {
        parts().variables.set(QLatin1String(Status), device, 0.0);
        parts().variables.set(QLatin1String(ErrorCode), device, NoError);
    }
}

void DeviceNetMaster::fileStored(const QString& path)
{
    if (path.compare(QLatin1String(ScanListFile), Qt::CaseInsensitive) != 0 ||
        parts().variables.value(QLatin1String(SaveConfig)) == 0.0)
        return;
    later(QLatin1String(ScanListFile), TakeMs, [this] {
        readScanList();
        ++m_listsTaken;
        parts().variables.set(QLatin1String(SaveConfig), 0.0);
    });
}

// A file that is gone leaves the list as it was.
void DeviceNetMaster::readScanList()
{
    QByteArray file;
    if (parts().files.read(QLatin1String(ScanListFile), file))
        m_scanList = macIdsOf(file);
}

DeviceNetMaster::Error DeviceNetMaster::errorOf(int device) const
{
    const int macId = m_scanList.at(device);
    if (parts().variables.value(QLatin1String(LinkState)) == 0.0)
        return NoLink;
    if (macId < 1 || macId > HighestMacId)
        return InvalidMacId;
    if (m_scanList.indexOf(macId) < device)
        return DuplicateMacId;
    return isOnNetwork(macId) ? NoError : NotOnNetwork;
}

void DeviceNetMaster::tick()
{
    const int asked = static_cast<int>(parts().variables.value(QLatin1String(SlaveNumber)));
    const int scanned = parts().roles.isOn("DeviceNetMaster") ? qMin(asked, m_scanList.size()) : 0;
    for (int device = 0; device < MaxDevices; ++device) {
        const Error error = device < scanned ? errorOf(device) : NoError;
        const bool connected = device < scanned && error == NoError;
        parts().variables.set(QLatin1String(Status), device, connected ? 1.0 : 0.0);
        parts().variables.set(QLatin1String(ErrorCode), device, error);
    }
}

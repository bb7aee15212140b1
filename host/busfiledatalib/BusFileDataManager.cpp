#include "BusFileDataManager.h"

#include "BusFileService.h"
#include "ControllerLink.h"
#include "CurrentLink.h"
#include "Ipv4Text.h"
#include "XmlBytes.h"

#include <algorithm>

int g_lastBusType = -1;

namespace {

constexpr auto SlavePath = "/fa/fbslave.cfgx";
constexpr auto DescriptionPath = "/application/fidbus/pfs_description.xml";
constexpr auto ProfiSafeStatus = "io_man.profisafe_status";

// The process data of a ProfiSAFE device are 16 elements of 8 bits.
constexpr quint32 MaxBitNumber = 127;

BusFileService& service()
{
    return BusFileService::instance();
}

bool fetchXml(const char* path, const char* root, pugi::xml_document& document)
{
    ControllerLink* const link = currentLink();
    QByteArray bytes;
    return link && link->fetchFile(QLatin1String(path), bytes) && loadXml(bytes, root, document);
}

// The byte order as the controller spells it, empty when it is none.
QString byteOrder(const QString& text)
{
    for (const char* order : {"littleEndian", "bigEndian"}) {
        if (text.trimmed().compare(QLatin1String(order), Qt::CaseInsensitive) == 0)
            return QLatin1String(order);
    }
    return {};
}

QMap<int, QString> readBits(const pugi::xml_node& block)
{
    QMap<int, QString> bits;
    for (const pugi::xml_node& bit : block.children("Bit")) {
        quint32 number = 0;
        if (readNumber(bit.attribute("number"), MaxBitNumber, number))
            bits.insert(static_cast<int>(number), QString::fromUtf8(bit.attribute("text").value()));
    }
    return bits;
}

} // namespace

BusFileDataManager* BusFileDataManager::getInstance()
{
    static BusFileDataManager manager;
    return &manager;
}

void BusFileDataManager::attach(BusObserver* observer)
{
    service().attach(observer);
}

void BusFileDataManager::detach(BusObserver* observer)
{
    service().detach(observer);
}

bool BusFileDataManager::isFuncInfoNotified(const QString& key) const
{
    if (key == QLatin1String("fieldbus"))
        return service().isNotified(BusFileService::FieldbusXml);
    return key == QLatin1String("fieldbusCfg") && service().isNotified(BusFileService::FieldbusCfg);
}

void BusFileDataManager::emitGetFieldXml()
{
    service().fetch(BusFileService::FieldbusXml);
}

void BusFileDataManager::emitGetFieldbusCfg()
{
    service().fetch(BusFileService::FieldbusCfg);
}

std::vector<BusName> BusFileDataManager::getBusNameList(bool listed, bool onlyEnabled) const
{
    std::vector<BusName> names;
    if (listed) {
        std::copy_if(service().config.roles().begin(), service().config.roles().end(),
                     std::back_inserter(names),
                     [onlyEnabled](const BusName& role) { return role.enabled || !onlyEnabled; });
    }
    return names;
}

QMap<QString, BusName> BusFileDataManager::getAllBusName() const
{
    QMap<QString, BusName> roles;
    for (const BusName& role : service().config.roles())
        roles.insert(role.name, role);
    return roles;
}

void BusFileDataManager::setBusInfo(const QMap<QString, BusName>& roles)
{
    service().config.setRoles(roles);
}

bool BusFileDataManager::isOpenFreeBus() const
{
    return service().mode() == BusMappingFile::Free;
}

void BusFileDataManager::writeSendFieldbusXml()
{
    service().send(BusFileService::FieldbusXml);
}

std::vector<BusAddrNumInfo> BusFileDataManager::getBusNumAndAddr() const
{
    return service().mapping.buses(service().mode());
}

void BusFileDataManager::setBusNumAndAddr(const std::vector<BusAddrNumInfo>& buses)
{
    service().mapping.setBuses(service().mode(), buses);
}

void BusFileDataManager::writeSendFieldbusCfg()
{
    service().send(BusFileService::FieldbusCfg);
}

int BusFileDataManager::checkProfiSAFEStatus() const
{
    ControllerLink* const link = currentLink();
    const QString name = QLatin1String(ProfiSafeStatus);
    if (!link || !link->bindVariable(name, ControllerLink::VariableType::Int, 1))
        return 0;
    return link->readVariable(name) == 1.0 ? 1 : 0;
}

bool BusFileDataManager::getAndReadPfsDesc(QMap<int, QString>& outputs, QMap<int, QString>& inputs)
{
    pugi::xml_document document;
    if (!fetchXml(DescriptionPath, "ProfiSafe", document))
        return false;
    outputs = readBits(document.child("ProfiSafe").child("Output"));
    inputs = readBits(document.child("ProfiSafe").child("Input"));
    return true;
}

bool BusFileDataManager::getAndReadFbslave(QString& endian)
{
    pugi::xml_document document;
    if (!fetchXml(SlavePath, "FbSlave", document))
        return false;
    const QString order =
        byteOrder(QString::fromUtf8(document.child("FbSlave").child("Endian").text().get()));
    if (order.isEmpty())
        return false;
    endian = order;
    return true;
}

bool BusFileDataManager::writeAndSendFbslave(const QString& endian)
{
    // The file is fetched for every write: it holds more than the byte order, and others may have changed it.
    pugi::xml_document document;
    const QString order = byteOrder(endian);
    if (order.isEmpty() || !fetchXml(SlavePath, "FbSlave", document))
        return false;
    pugi::xml_node slave = document.child("FbSlave");
    pugi::xml_node node = slave.child("Endian");
    if (!node)
        node = slave.append_child("Endian");
    return node.text().set(order.toLatin1().constData()) &&
           currentLink()->storeFile(QLatin1String(SlavePath), saveXml(document));
}

int BusFileDataManager::getPerformanceValue(int bus, int current, bool on)
{
    return service().performanceValue(bus, current, on);
}

bool BusFileDataManager::isRebootRde() const
{
    const ControllerLink* const link = currentLink();
    return link && link->isRestartAllowed();
}

bool BusFileDataManager::checkIPv4Format(const QString& text)
{
    return isIpv4(text, LeadingZeros::Refused);
}

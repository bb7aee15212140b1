#include "ModbusServerPartner.h"

#include "ControllerParts.h"

namespace {
constexpr int Registers = 10000;
} // namespace

ModbusServerPartner::ModbusServerPartner(ControllerParts& controllerParts)
    : Partner(controllerParts, "modbus-server", DefaultPort)
    , m_server(
          controllerParts, {{0, Registers, true}}, UnitId,
          AnswerFaults{Faults::ModbusSilent, Faults::ModbusSlow, Faults::ModbusDrops, Faults::ModbusGarbage})
{
}

bool ModbusServerPartner::start()
{
    const QString why = m_server.listen(port());
    if (!why.isEmpty()) {
        note(QStringLiteral("port %1: %2").arg(port()).arg(why));
        return false;
    }
    note(QStringLiteral("port %1: listens").arg(m_server.port()));
    if (!changeSettings("/application/fidbus/mtcpMaster/mtcp_master.xml", "MtcpMasterCommunication", "Group",
                        {{"SlaveIp", "127.0.0.1"},
                         {"SlavePort", QByteArray::number(m_server.port())},
                         {"SlaveId", QByteArray::number(UnitId)}}))
        note(QStringLiteral("the robot has no settings that could name it"));
    ask("ifidbus.mbc_save_enable");
    invite();
    return true;
}

void ModbusServerPartner::invite()
{
    ask("ifidbus.mbc_open");
}

QString ModbusServerPartner::state() const
{
    return isRunning()
               ? tr("serves 127.0.0.1:%1, %n client(s)", nullptr, m_server.clientCount()).arg(m_server.port())
               : tr("off");
}

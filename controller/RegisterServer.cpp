#include "RegisterServer.h"

#include <QScopedValueRollback>
#include <QTcpServer>
#include <QTcpSocket>

#include <algorithm>
#include <functional>

namespace {

class ClientObserver : public QModbusTcpConnectionObserver
{
public:
    explicit ClientObserver(std::function<void()> came)
        : m_came(std::move(came))
    {
    }
    bool acceptNewConnection(QTcpSocket* /*client*/) override
    {
        m_came();
        return true;
    }

private:
    std::function<void()> m_came;
};

} // namespace

RegisterServer::RegisterServer(const std::vector<RegisterBlock>& blocks, int unit)
{
    setServerAddress(unit);
    for (const RegisterBlock& block : blocks) {
        const auto end = static_cast<std::size_t>(block.first) + static_cast<std::size_t>(block.count);
        m_access.resize(std::max(m_access.size(), end), None);
        std::fill_n(m_access.begin() + block.first, block.count, block.writable ? ReadAndWrite : Read);
    }
    if (!m_access.empty()) {
        const QVector<quint16> values(static_cast<int>(m_access.size()), 0);
        setMap({{QModbusDataUnit::HoldingRegisters, {QModbusDataUnit::HoldingRegisters, 0, values}}});
    }
    const auto count = [this](int difference) {
        m_clients += difference;
        emit clientCountChanged();
    };
    installConnectionObserver(new ClientObserver([count] { count(1); })); // is owned by the server
    connect(this, &QModbusTcpServer::modbusClientDisconnected, this, [count] { count(-1); });
}

RegisterServer::~RegisterServer()
{
    disconnect(this, &QModbusTcpServer::modbusClientDisconnected, this, nullptr);
    // While the server is whole: what it keeps for a client it gives back only when the socket goes first.
    qDeleteAll(findChildren<QTcpSocket*>());
}

bool RegisterServer::listen(int port)
{
    setConnectionParameter(NetworkAddressParameter, QStringLiteral("127.0.0.1"));
    setConnectionParameter(NetworkPortParameter, port);
    return connectDevice();
}

int RegisterServer::port() const
{
    const auto* listener = findChild<QTcpServer*>();
    return listener && listener->isListening() ? listener->serverPort() : 0;
}

QModbusResponse RegisterServer::processRequest(const QModbusPdu& request)
{
    const QScopedValueRollback<bool> answering(m_answering, true);
    return QModbusTcpServer::processRequest(request);
}

bool RegisterServer::readData(QModbusDataUnit* unit) const
{
    return (!unit || allows(*unit, Read)) && QModbusTcpServer::readData(unit);
}

bool RegisterServer::writeData(const QModbusDataUnit& unit)
{
    return allows(unit, m_answering ? ReadAndWrite : Read) && QModbusTcpServer::writeData(unit);
}

bool RegisterServer::allows(const QModbusDataUnit& unit, Access wanted) const
{
    const int first = unit.startAddress();
    const int end = first + static_cast<int>(unit.valueCount());
    return unit.registerType() == QModbusDataUnit::HoldingRegisters && first >= 0 &&
           end <= static_cast<int>(m_access.size()) &&
           std::all_of(m_access.begin() + first, m_access.begin() + end,
                       [wanted](Access access) { return access >= wanted; });
}

#ifndef CONTROLLER_REGISTERSERVER_H
#define CONTROLLER_REGISTERSERVER_H

#include "ModbusFiles.h"

#include <QModbusTcpServer>

#include <vector>

/// A Modbus TCP server on this machine's loopback interface that serves blocks of holding registers. What
/// lies between the blocks is answered with "illegal data address", a write to a block that is not writable
/// is refused.
class RegisterServer : public QModbusTcpServer
{
    Q_OBJECT

public:
    /// Answers requests to unit id `unit` only. All registers are 0.
    RegisterServer(const std::vector<RegisterBlock>& blocks, int unit);
    ~RegisterServer() override;

    /// Serves on `port`, 0 for any free one; false when it cannot.
    bool listen(int port);
    /// The port that is served, 0 when none is.
    int port() const;
    int clientCount() const { return m_clients; }

signals:
    void clientCountChanged();

protected:
    QModbusResponse processRequest(const QModbusPdu& request) override;
    bool readData(QModbusDataUnit* unit) const override;
    bool writeData(const QModbusDataUnit& unit) override;

private:
    enum Access : quint8 { None, Read, ReadAndWrite };
    bool allows(const QModbusDataUnit& unit, Access wanted) const;

    std::vector<Access> m_access; ///< by address
    int m_clients = 0;
    bool m_answering = false;
};

#endif

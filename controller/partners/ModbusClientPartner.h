#ifndef CONTROLLER_MODBUSCLIENTPARTNER_H
#define CONTROLLER_MODBUSCLIENTPARTNER_H

#include "CallingPartner.h"
#include "ModbusFiles.h"

#include <QMap>

class ModbusSlave;

/// A PLC that polls all mapped registers of the robot's Modbus TCP slave, again and again.
class ModbusClientPartner : public CallingPartner
{
    Q_OBJECT

public:
    ModbusClientPartner(ControllerParts& parts, const ModbusSlave& slave);

    struct Row
    {
        int number; ///< of the register, from 40001 on
        QString name;
        QString value; ///< empty as long as it was not read
    };
    /// The variables that are mapped, with what was read last.
    std::vector<Row> rows() const;

    bool start() override;

protected:
    int robotPort() const override;
    void attend(bool isNew) override;

private:
    void loadMapping();
    void askNext();
    void take(const QByteArray& bytes);

    const ModbusSlave& m_slave;
    std::vector<MappedVariable> m_variables;
    std::vector<std::pair<int, int>> m_requests; ///< address and count
    std::size_t m_next = 0;                      ///< all of them are answered when it is behind the last
    quint16 m_transaction = 0;
    QMap<int, quint16> m_values; ///< by address
};

#endif

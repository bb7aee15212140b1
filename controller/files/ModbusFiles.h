#ifndef CONTROLLER_MODBUSFILES_H
#define CONTROLLER_MODBUSFILES_H

#include <QByteArray>
#include <QHostAddress>
#include <QString>

#include <optional>
#include <vector>

/// Holding registers are numbered from 40001 on; on the wire the first has the address 0.
constexpr int FirstHoldingRegister = 40001;
constexpr int LastHoldingRegister = FirstHoldingRegister + 0xffff;

/// A block of registers of the Modbus TCP slave.
struct RegisterBlock
{
    int first;     ///< address on the wire
    int count;     ///< at least 1
    bool writable; ///< by clients; the controller itself writes them all
};

/// The blocks that "fieldbus_config.xml" maps in the mode ("free" or "fixed"); what cannot be read, and what
/// lies outside the holding registers, is none.
std::vector<RegisterBlock> readRegisterBlocks(const QByteArray& mappingXml, const char* mode);

/// A variable of the robot that the Modbus TCP slave maps; 16 Bools share a register, and are one entry.
struct MappedVariable
{
    enum Type { Bool, Int, Float };
    int address; ///< of its first register, on the wire
    Type type;
    QString name; ///< "mtcp_ro_i[3]", with the operator's text behind it when there is one
};

/// The variables in the blocks of `readRegisterBlocks`, with the texts of "user_description.xml".
std::vector<MappedVariable> readMappedVariables(const QByteArray& mappingXml, const QByteArray& textsXml,
                                                const char* mode);

/// The one slave that the Modbus TCP master talks to.
struct MasterSettings
{
    QHostAddress address;
    quint16 port = 0;
    int unit = 0;
    int timeoutMs = 0; ///< for a connection, and for an answer
    int aliveMs = 0;   ///< between two looks at an idle connection; 0: none
};

/// The settings in "mtcp_master.xml"; none when they make no sense.
std::optional<MasterSettings> readMasterSettings(const QByteArray& masterXml);

#endif

#ifndef MAPPINGMODEL_H
#define MAPPINGMODEL_H

#include "MappingChecks.h"
#include "MappingLayout.h"

#include <vector>

/// The quantities and addresses of all buses as the I/O mapping page shows and edits them. Knows no widget.
class MappingModel
{
public:
    enum Column { TypeColumn, Quantity, Byte, StartAddress, EndAddress, BusVariable, ColumnCount };

    struct Row
    {
        enum Kind {
            Total,   ///< the sum of a Modbus TCP slave's block, with the block's address
            User,    ///< variables whose quantity may be edited
            System,  ///< variables that the robot needs
            Reserved ///< a placeholder
        };
        Kind kind = Reserved;
        MappedType type = MappedBool;
        bool isHidden = false;
        const char* typeText = "";              ///< of the first cell, not translated yet
        std::array<QString, ColumnCount> cells; ///< the first one empty
    };

    /// What a press on a cell in edit mode asks for: to be entered on the keyboard, which shows `value` first
    /// and takes what lies in `range`, or refused with a message.
    struct Press
    {
        enum Kind { Nothing, EnterQuantity, EnterStart };
        Kind kind = Nothing;
        double value = 0.0;
        Mapping::ByteRange range;
        Mapping::Refusal refusal;
    };

    /// What became of an entry. A refused one has changed nothing.
    struct Entry
    {
        Mapping::Refusal refusal;
        bool movedSlaveBlock = false; ///< an address of the free Modbus TCP slave is another one now
    };

    void load(const Mapping::Buses& buses, Mapping::Mode mode);

    bool isFree() const { return m_mode == MappingConfig::Free; }
    Mapping::Mode mode() const { return m_mode; }
    const Mapping::Buses& buses() const { return m_buses; }
    const MappingBus& recordOf(Mapping::Bus bus) const;

    /// The rows of a table, hidden ones too; always the same number for one table.
    std::vector<Row> rowsOf(int number) const;

    Press pressed(int number, const Row& row, int column) const;

    Entry enterQuantity(int number, MappedType type, double value);
    /// The first register of a Modbus TCP block.
    Entry enterStart(int number, double value);

    Mapping::Refusal saveRefusal(const QStringList& busNames) const
    {
        return Mapping::saveRefusal(m_buses, busNames, m_mode);
    }

private:
    const MappingArea& shownArea(int number) const;
    Press pressedQuantity(int number, const Row& row) const;
    Press pressedStart(int number) const;
    /// Lays a block out that begins at `start`, checks it, and keeps it when it may be.
    Entry take(int number, MappingBus changed, quint32 start, Mapping::Entered entered);

    Mapping::Buses m_buses;
    Mapping::Mode m_mode = MappingConfig::Fixed;
};

#endif

#ifndef DEVICENETSCANLIST_H
#define DEVICENETSCANLIST_H

#include "DeviceNetMasterFile.h"

#include <bitset>

/// The DeviceNet master's record while it is edited: its devices as the rows of a table, and what may stand
/// in a cell. A cell that was never given a value shows "--".
class DeviceNetScanList
{
public:
    enum Column { DeviceId, MacId, In, Out, Vendor, Product, Revision, CfgFlag, Connect, ColumnCount };
    /// What became of a value.
    enum class Verdict { Stored, DuplicateMacId, TooManyInputs, TooManyOutputs };

    /// What the keyboard lets through for a column; both ends belong to it.
    struct Range
    {
        double minimum;
        double maximum;
        bool isHexadecimal;
    };
    static bool isEditable(int column) { return column > DeviceId && column < Connect; }
    /// Of an editable column.
    static Range rangeOf(int column);

    /// Takes over a record that was read.
    void load(const DeviceNetMasterConfig& config);
    const DeviceNetMasterConfig& record() const { return m_record; }
    /// The master's own settings may be changed at will; the devices only through the operations below.
    DeviceNetMasterConfig& settings() { return m_record; }

    int count() const { return m_record.count; }
    bool isFull() const { return m_record.count == DeviceNetMasterConfig::MaxDevices; }
    /// Appends a device without values; nothing when the list is full.
    void append();
    /// Removes the last device and what was entered for it; nothing when there is none.
    void removeLast();

    /// What the cell shows; empty in the connection column.
    QString text(int row, int column) const;
    /// The cell's value for the keyboard, 0 without one. Editable columns only.
    double number(int row, int column) const;
    /// Stores the integer part of `value` in an editable cell, unless the MAC ID is another device's or the
    /// bytes of all devices would be more than the bus has. A refused value changes nothing.
    Verdict set(int row, int column, double value);
    /// Whether every cell of every device has a value.
    bool isComplete() const;

private:
    using Device = DeviceNetMasterDevice;
    bool isTaken(int macId, int exceptRow) const;
    bool fits(int Device::*bytes, int limitBits, int row, int value) const;

    DeviceNetMasterConfig m_record;
    std::array<std::bitset<ColumnCount>, DeviceNetMasterConfig::MaxDevices>
        m_missing; ///< cells without value
};

#endif

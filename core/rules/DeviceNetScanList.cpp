#include "DeviceNetScanList.h"

#include "FieldRanges.h"

#include <algorithm>

namespace {

using Device = DeviceNetMasterDevice;

constexpr int BitsInByte = 8;

struct Cell
{
    int Device::*member; // null: the configuration flag, which is text
    FieldRange range;
};

template <int Device::*Member>
constexpr Cell cellFor()
{
    return {Member, RangeOf<Member>};
}

// In the order of the editable columns.
constexpr Cell Cells[] = {
    cellFor<&Device::MAC_ID>(),
    cellFor<&Device::inputBytes>(),
    cellFor<&Device::outputBytes>(),
    cellFor<&Device::VENDOR_ID>(),
    cellFor<&Device::PROD_CODE>(),
    cellFor<&Device::REVISION>(),
    {nullptr, RangeOf<&Device::CFG_FLAG>},
};
static_assert(std::size(Cells) == DeviceNetScanList::Connect - DeviceNetScanList::MacId);

const Cell& cellOf(int column)
{
    return Cells[column - DeviceNetScanList::MacId];
}

// What a new device does not have yet: MAC ID to revision. The flag begins as 0x00.
constexpr unsigned EnteredCells = (1U << DeviceNetScanList::CfgFlag) - (1U << DeviceNetScanList::MacId);

constexpr int NoMacId = -1; // a block of the file that names none

QString flagText(int flag)
{
    return QStringLiteral("0x%1").arg(flag, 2, 16, QLatin1Char('0'));
}

} // namespace

DeviceNetScanList::Range DeviceNetScanList::rangeOf(int column)
{
    const Cell& edited = cellOf(column);
    return {edited.range.least, edited.range.most, edited.member == nullptr};
}

void DeviceNetScanList::load(const DeviceNetMasterConfig& config)
{
    m_record = config;
    m_missing = {};
    for (std::size_t row = 0; row < m_missing.size(); ++row)
        m_missing[row].set(MacId, m_record.devices[row].MAC_ID == NoMacId);
}

void DeviceNetScanList::append()
{
    if (isFull())
        return;
    const auto row = static_cast<std::size_t>(m_record.count++);
    m_record.devices[row] = {};
    m_missing[row] = EnteredCells;
}

void DeviceNetScanList::removeLast()
{
    if (m_record.count == 0)
        return;
    m_record.devices[static_cast<std::size_t>(--m_record.count)] = {};
}

QString DeviceNetScanList::text(int row, int column) const
{
    if (column == DeviceId)
        return QString::number(row + 1);
    if (!isEditable(column))
        return {};
    const auto index = static_cast<std::size_t>(row);
    if (m_missing[index].test(static_cast<std::size_t>(column)))
        return QStringLiteral("--");
    const Device& device = m_record.devices[index];
    const Cell& cell = cellOf(column);
    return cell.member ? QString::number(device.*cell.member) : device.CFG_FLAG;
}

double DeviceNetScanList::number(int row, int column) const
{
    return static_cast<double>(
        text(row, column).toLongLong(nullptr, rangeOf(column).isHexadecimal ? 16 : 10));
}

bool DeviceNetScanList::isTaken(int macId, int exceptRow) const
{
    for (int row = 0; row < count(); ++row) {
        if (row != exceptRow && m_record.devices[static_cast<std::size_t>(row)].MAC_ID == macId)
            return true;
    }
    return false;
}

bool DeviceNetScanList::fits(int Device::*bytes, int limitBits, int row, int value) const
{
    int sum = value;
    for (int other = 0; other < count(); ++other) {
        if (other != row)
            sum += m_record.devices[static_cast<std::size_t>(other)].*bytes;
    }
    return sum <= limitBits / BitsInByte;
}

DeviceNetScanList::Verdict DeviceNetScanList::set(int row, int column, double value)
{
    const Cell& cell = cellOf(column);
    const int number = static_cast<int>(qBound(cell.range.least, value, cell.range.most));
    if (column == MacId && isTaken(number, row))
        return Verdict::DuplicateMacId;
    if (column == In && !fits(&Device::inputBytes, m_record.inputLimitBits, row, number))
        return Verdict::TooManyInputs;
    if (column == Out && !fits(&Device::outputBytes, m_record.outputLimitBits, row, number))
        return Verdict::TooManyOutputs;
    const auto index = static_cast<std::size_t>(row);
    if (cell.member)
        m_record.devices[index].*cell.member = number;
    else
        m_record.devices[index].CFG_FLAG = flagText(number);
    m_missing[index].reset(static_cast<std::size_t>(column));
    return Verdict::Stored;
}

bool DeviceNetScanList::isComplete() const
{
    return std::all_of(m_missing.begin(), m_missing.begin() + count(),
                       [](const auto& missing) { return missing.none(); });
}

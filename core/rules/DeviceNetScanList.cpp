#include "DeviceNetScanList.h"

#include <algorithm>

namespace {

using Device = DeviceNetMasterDevice;

constexpr double MostBytes = 64;
constexpr double LargestIdentity = 65535;
constexpr double LargestFlag = 0xffff;
constexpr int BitsInByte = 8;

struct Cell
{
    int Device::*member; // null: the configuration flag, which is text
    double minimum;
    double maximum;
};

// In the order of the editable columns.
constexpr Cell Cells[] = {
    {&Device::MAC_ID, 1, 63},
    {&Device::inputBytes, 0, MostBytes},
    {&Device::outputBytes, 0, MostBytes},
    {&Device::VENDOR_ID, -LargestIdentity, LargestIdentity},
    {&Device::PROD_CODE, -LargestIdentity, LargestIdentity},
    {&Device::REVISION, -LargestIdentity, LargestIdentity},
    {nullptr, 0, LargestFlag},
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
    const Cell& cell = cellOf(column);
    return {cell.minimum, cell.maximum, cell.member == nullptr};
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
    const int number = static_cast<int>(qBound(cell.minimum, value, cell.maximum));
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

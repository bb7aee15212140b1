#include "FrameFields.h"

#include "FinsFrame.h"
#include "ModbusFrame.h"

namespace {

constexpr int Rest = 0;
constexpr int HexUpTo = 4; // longer fields are shown as text

// A field of a layout. Of `Rest` bytes it takes all that are left, `step` at a time.
struct Part
{
    const char* name;
    int size;
    int step = 0;
};
using Layout = std::vector<Part>;

class Walk
{
public:
    explicit Walk(const QByteArray& bytes)
        : m_bytes(bytes)
    {
    }

    void take(const Layout& layout)
    {
        for (const Part& part : layout) {
            if (part.size != Rest)
                take(part.name, part.size);
            for (int number = 0; part.size == Rest && m_at < m_bytes.size(); ++number)
                take(QStringLiteral("%1 %2").arg(QLatin1String(part.name)).arg(number), part.step);
        }
    }
    /// Fewer bytes than that are taken under the same name.
    void take(const QString& name, int size)
    {
        const QByteArray bytes = m_bytes.mid(m_at, size);
        if (bytes.isEmpty())
            return;
        m_fields.push_back({m_at, bytes.size(), name, valueOf(bytes)});
        m_at += bytes.size();
    }
    void take(const char* name, int size) { take(QString::fromLatin1(name), size); }
    std::vector<FrameField> finish()
    {
        take("data", m_bytes.size());
        return std::move(m_fields);
    }

private:
    static QString valueOf(const QByteArray& bytes)
    {
        if (bytes.size() > HexUpTo || bytes == "FINS")
            return QString::fromLatin1(bytes.left(80)).simplified();
        const quint32 value = bytes.toHex().toUInt(nullptr, 16);
        return QStringLiteral("0x%1 (%2)").arg(value, 2 * bytes.size(), 16, QLatin1Char('0')).arg(value);
    }

    const QByteArray& m_bytes;
    int m_at = 0;
    std::vector<FrameField> m_fields;
};

const Layout FinsHeader = {{"magic", 4}, {"length", 4}, {"command", 4}, {"error code", 4}};
const Layout FinsNodes = {{"client node", 4}, {"server node", 4}};
const Layout FinsMessage = {
    {"ICF: information control", 1}, {"RSV: reserved", 1},         {"GCT: gateway count", 1},
    {"DNA: destination network", 1}, {"DA1: destination node", 1}, {"DA2: destination unit", 1},
    {"SNA: source network", 1},      {"SA1: source node", 1},      {"SA2: source unit", 1},
    {"SID: service number", 1},      {"MRC: main request", 1},     {"SRC: sub-request", 1}};
const Layout FinsRequest = {{"memory area", 1}, {"address", 2}, {"bit", 1}, {"count", 2}, {"word", Rest, 2}};
const Layout FinsResponse = {{"end code", 2}, {"word", Rest, 2}};
constexpr int FinsIcf = 16;
constexpr quint8 FinsIsResponse = 0x40;

std::vector<FrameField> finsFields(const QByteArray& bytes)
{
    Walk walk(bytes);
    walk.take(FinsHeader);
    if (bytes.size() > FinsIcf) {
        const quint32 command = FinsFrame::numberAt(bytes, 8);
        if (command == FinsFrame::ClientNode || command == FinsFrame::ServerNode) {
            walk.take(FinsNodes);
        } else if (command == FinsFrame::Message) {
            walk.take(FinsMessage);
            const bool isResponse = (static_cast<quint8>(bytes.at(FinsIcf)) & FinsIsResponse) != 0;
            walk.take(isResponse ? FinsResponse : FinsRequest);
        }
    }
    return walk.finish();
}

const Layout ModbusHeader = {
    {"transaction", 2}, {"protocol", 2}, {"length", 2}, {"unit", 1}, {"function", 1}};

// What follows the function code: functions, in the request, in the answer.
struct ModbusLayout
{
    std::vector<int> functions;
    Layout request;
    Layout answer;
};
const std::vector<ModbusLayout> ModbusLayouts = {
    {{1, 2}, {{"address", 2}, {"count", 2}}, {{"bytes", 1}, {"bits", Rest, 1}}},
    {{3, 4}, {{"address", 2}, {"count", 2}}, {{"bytes", 1}, {"register", Rest, 2}}},
    {{5, 6}, {{"address", 2}, {"value", 2}}, {{"address", 2}, {"value", 2}}},
    {{15}, {{"address", 2}, {"count", 2}, {"bytes", 1}, {"bits", Rest, 1}}, {{"address", 2}, {"count", 2}}},
    {{16},
     {{"address", 2}, {"count", 2}, {"bytes", 1}, {"register", Rest, 2}},
     {{"address", 2}, {"count", 2}}},
    {{23},
     {{"read address", 2},
      {"read count", 2},
      {"write address", 2},
      {"write count", 2},
      {"bytes", 1},
      {"register", Rest, 2}},
     {{"bytes", 1}, {"register", Rest, 2}}},
};
constexpr int ModbusFunction = 7;

// The controller's slave answers what it received; its master asks.
bool isModbusRequest(const LoggedFrame& frame)
{
    return frame.received == frame.isServer;
}

std::vector<FrameField> modbusFields(const LoggedFrame& frame)
{
    Walk walk(frame.bytes);
    walk.take(ModbusHeader);
    if (frame.bytes.size() > ModbusFunction) {
        const auto function = static_cast<quint8>(frame.bytes.at(ModbusFunction));
        if ((function & ModbusFrame::ExceptionBit) != 0)
            walk.take("exception", 1);
        for (const ModbusLayout& layout : ModbusLayouts) {
            for (const int known : layout.functions) {
                if (known == function)
                    walk.take(isModbusRequest(frame) ? layout.request : layout.answer);
            }
        }
    }
    return walk.finish();
}

} // namespace

std::vector<FrameField> fieldsOf(const LoggedFrame& frame)
{
    switch (frame.wire) {
    case Wire::Fins:
        return finsFields(frame.bytes);
    case Wire::Modbus:
        return modbusFields(frame);
    default:
        break;
    }
    Walk walk(frame.bytes);
    walk.take("text", frame.bytes.size());
    return walk.finish();
}

namespace {

// "0x0064 (100)" as 100.
QString shortly(const QString& value)
{
    const int open = value.indexOf(QLatin1Char('('));
    return value.startsWith(QLatin1String("0x")) && open >= 0 ? value.mid(open + 1).chopped(1) : value;
}

} // namespace

QString summaryOf(const LoggedFrame& frame)
{
    // The head is the same in all frames; what makes the difference follows it.
    constexpr int Head = 4;
    constexpr int Told = 4;
    const std::vector<FrameField> fields = fieldsOf(frame);
    std::size_t first = frame.wire == Wire::Mes ? 0 : Head;
    for (std::size_t i = first; i < fields.size(); ++i) {
        if (fields[i].name.startsWith(QLatin1String("MRC")))
            first = i;
    }
    QStringList words;
    for (std::size_t i = first; i < fields.size() && words.size() < Told; ++i)
        words << fields[i].name + QLatin1Char(' ') + shortly(fields[i].value);
    return words.join(QStringLiteral(", "));
}

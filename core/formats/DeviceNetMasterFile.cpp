#include "DeviceNetMasterFile.h"

#include "AsciiText.h"
#include "TextTemplate.h"

#include <algorithm>
#include <variant>

// docs/dnmst0-layout.md describes the file.
namespace {

using Device = DeviceNetMasterDevice;
using Master = DeviceNetMasterConfig;

/// A line of a keyword and a value.
template <typename Record>
struct Field
{
    std::string_view keyword;
    std::variant<int Record::*, QString Record::*> member;
};

constexpr Field<Master> SettingFields[] = {
    {"WS_ID", &Master::WS_ID},
    {"BAUDRATE", &Master::BAUDRATE},
    {"ENDIAN", &Master::ENDIAN},
    {"PACHET_RATIO", &Master::PACHET_RATIO},
};

constexpr Field<Device> InputFields[] = {
    {"VENDOR_ID", &Device::VENDOR_ID},
    {"PROD_CODE", &Device::PROD_CODE},
    {"REVISION", &Device::REVISION},
    {"CFG_FLAG", &Device::CFG_FLAG},
    {"NODE_STATUS_REG", &Device::NODE_STATUS_REG},
};

/// Inputs or outputs of a device: the heading, the line "keyword, first register, registers, bytes", the
/// fields below it, and the list of the registers when there are any.
struct Direction
{
    const char* heading;
    std::string_view blockKeyword;
    int Device::*firstRegister;
    int Device::*bytes;
    const Field<Device>* fieldsBegin;
    const Field<Device>* fieldsEnd;
    const char* registersLine;
};

constexpr Direction Directions[] = {
    {";**************** I N P U T ***********", "BLOCK_TO_RBX", &Device::BLOCK_TO_RBX, &Device::inputBytes,
     std::begin(InputFields), std::end(InputFields), "O-0   INP_W_8    "},
    {";***************** O U T P U T *********", "BLOCK_FROM_RBX", &Device::BLOCK_FROM_RBX,
     &Device::outputBytes, nullptr, nullptr, "O-0   OUT_w_8    "},
};

constexpr std::size_t BlockBytesWord = 3; // behind keyword, first register and registers

// The first line with the marker ends the header; the rule of every device block carries it.
constexpr std::string_view Marker = "===================";
constexpr const char* Rule = ";======================================";
constexpr std::string_view DevicePrefix = ";   Device";
constexpr std::string_view MacIdKeyword = "MAC ID";

template <typename Record>
void readValue(Record& record, std::string_view keyword, int Record::*member, std::string_view word)
{
    record.kept.read(keyword, word, record.*member);
}

template <typename Record>
void readValue(Record& record, std::string_view /*keyword*/, QString Record::*member, std::string_view word)
{
    record.*member = AsciiText::text(word);
}

template <typename Record>
QByteArray written(const Record& record, std::string_view keyword, int Record::*member)
{
    return record.kept.written(keyword, record.*member);
}

template <typename Record>
QByteArray written(const Record& record, std::string_view /*keyword*/, QString Record::*member)
{
    return AsciiText::bytes(record.*member);
}

template <typename Record>
QByteArray written(const Field<Record>& field, const Record& record)
{
    return AsciiText::raw(field.keyword) + ' ' +
           std::visit([&](auto member) { return written(record, field.keyword, member); }, field.member);
}

// With any white space behind the word, or the index at once; another word that begins so is prose.
bool beginsDevice(std::string_view line)
{
    if (line.size() <= DevicePrefix.size() || line.substr(0, DevicePrefix.size()) != DevicePrefix)
        return false;
    const char next = line[DevicePrefix.size()];
    return AsciiText::parts(AsciiText::Between::WhiteSpace, next) || (next >= '0' && next <= '9');
}

/// What a line says: a comment ends it, and one that is commented out says nothing. Most lines are comments
/// or lists of registers, so that no more than the keyword is looked for before it is known.
class Statement
{
public:
    explicit Statement(std::string_view line)
        : m_text(line.substr(0, line.find(';')))
        , m_keyword(AsciiText::firstWord(m_text, AsciiText::Between::WhiteSpace))
    {
    }

    std::string_view keyword() const { return m_keyword; }
    /// With the keyword.
    AsciiText::Words words() const { return {m_text, AsciiText::Between::WhiteSpace}; }

private:
    std::string_view m_text;
    std::string_view m_keyword;
};

template <typename Record>
const Field<Record>* fieldOf(const Field<Record>* begin, const Field<Record>* end, std::string_view keyword)
{
    const auto* found =
        std::find_if(begin, end, [keyword](const Field<Record>& field) { return field.keyword == keyword; });
    return found == end ? nullptr : found;
}

const Field<Master>* settingOf(const Statement& statement)
{
    return fieldOf(std::begin(SettingFields), std::end(SettingFields), statement.keyword());
}

template <typename Record>
void readField(const Field<Record>* field, const Statement& statement, Record& record)
{
    if (!field)
        return;
    const std::string_view value = statement.words()[1];
    if (!value.empty())
        std::visit([&](auto member) { readValue(record, field->keyword, member, value); }, field->member);
}

void readBlock(const Direction& direction, const AsciiText::Words& words, Device& device)
{
    if (words.size() < 2)
        return;
    AsciiText::readNumber(words[1], device.*direction.firstRegister);
    if (words.size() > BlockBytesWord)
        device.kept.read(direction.blockKeyword, words[BlockBytesWord], device.*direction.bytes);
    device.*direction.bytes = qBound(0, device.*direction.bytes, Device::MostBytes);
}

void readDeviceLine(const Statement& statement, Device& device)
{
    for (const Direction& direction : Directions) {
        if (statement.keyword() == direction.blockKeyword)
            readBlock(direction, statement.words(), device);
        readField(fieldOf(direction.fieldsBegin, direction.fieldsEnd, statement.keyword()), statement,
                  device);
    }
}

/// Takes a file line by line: settings up to the first device, then the devices' blocks.
class Reader
{
public:
    explicit Reader(Master& record)
        : m_record(record)
    {
    }

    void operator()(std::string_view line)
    {
        m_isBelowHeader = m_isBelowHeader || TextTemplate::contains(line, Marker);
        // Blocks in a header are the controller's prose: they come through a write as they are, and must not
        // appear a second time.
        if (m_isBelowHeader && beginsDevice(line)) {
            const std::size_t macId = line.find(MacIdKeyword);
            if (macId != std::string_view::npos) {
                begin(line.substr(macId + MacIdKeyword.size()));
                return;
            }
        }
        const Statement statement(line);
        if (statement.keyword().empty())
            return;
        if (m_device) {
            readDeviceLine(statement, *m_device);
            m_hasOutputs = m_hasOutputs || statement.keyword() == Directions[1].blockKeyword;
        } else {
            readField(settingOf(statement), statement, m_record);
        }
    }

    /// The last device has its outputs, which stand at the end of its block.
    bool isWhole() const { return !m_device || m_hasOutputs; }

private:
    void begin(std::string_view macId)
    {
        m_hasOutputs = false;
        if (m_record.count < Master::MaxDevices)
            m_device = &m_record.devices[static_cast<std::size_t>(m_record.count++)];
        else
            m_device = &m_record.further.emplace_back();
        const std::string_view word = AsciiText::firstWord(macId, AsciiText::Between::WhiteSpace);
        if (!word.empty())
            m_device->kept.read(MacIdKeyword, word, m_device->MAC_ID);
    }

    Master& m_record;
    Device* m_device = nullptr;
    bool m_isBelowHeader = false;
    bool m_hasOutputs = false;
};

// Without marker and setting it may be any file, or noise: a write would keep that as the header.
bool isScanList(const QByteArray& content)
{
    bool found = false;
    TextTemplate::forEachLine(content, [&found](std::string_view line, std::string_view /*end*/) {
        found = TextTemplate::contains(line, Marker) || settingOf(Statement(line));
        return !found;
    });
    return found;
}

QByteArray rewrittenHeader(const QByteArray& content, const Master& record)
{
    QByteArray header;
    TextTemplate::forEachLine(content, [&](std::string_view line, std::string_view end) {
        if (TextTemplate::contains(line, Marker))
            return false;
        if (const Field<Master>* setting = settingOf(Statement(line)))
            header.append(written(*setting, record));
        else
            TextTemplate::keep(line, header);
        return TextTemplate::keep(end, header);
    });
    return header;
}

QByteArray lineEndOf(const QByteArray& header)
{
    const int feed = header.indexOf('\n');
    return feed > 0 && header.at(feed - 1) == '\r' ? QByteArray("\r\n") : QByteArray("\n");
}

QByteArray block(const Device& device, int number, const QByteArray& lineEnd)
{
    QByteArray out = Rule + lineEnd + DevicePrefix.data() + ' ' + QByteArray::number(number) + ' ' +
                     MacIdKeyword.data() + ' ' + device.kept.written(MacIdKeyword, device.MAC_ID) + lineEnd;
    for (const Direction& direction : Directions) {
        const int first = device.*direction.firstRegister;
        const int count = Master::registerCount(device.*direction.bytes);
        out += direction.heading + lineEnd + AsciiText::raw(direction.blockKeyword);
        out += ' ' + QByteArray::number(first) + ' ' + QByteArray::number(count) + ' ' +
               device.kept.written(direction.blockKeyword, device.*direction.bytes) + lineEnd;
        for (const Field<Device>* field = direction.fieldsBegin; field != direction.fieldsEnd; ++field)
            out += written(*field, device) + lineEnd;
        if (count == 0)
            continue;
        out += direction.registersLine + QByteArray::number(first);
        for (int next = first + 1; next < first + count; ++next)
            out += ' ' + QByteArray::number(next);
        out += lineEnd;
    }
    return out + Rule + lineEnd;
}

template <typename Record, typename Visit>
void forEachDevice(Record& record, Visit visit)
{
    std::for_each_n(record.devices.begin(), record.count, visit);
    std::for_each(record.further.begin(), record.further.end(), visit);
}

QByteArray blocks(const Master& record, const QByteArray& header)
{
    const QByteArray lineEnd = lineEndOf(header);
    QByteArray out;
    int number = 0;
    forEachDevice(record, [&](const Device& device) { out += block(device, ++number, lineEnd); });
    return out.isEmpty() || header.endsWith('\n') ? out : lineEnd + out;
}

} // namespace

void DeviceNetMasterConfig::layOutRegisters()
{
    count = qBound(0, count, MaxDevices);
    for (const Direction& direction : Directions) {
        int next = FirstRegister;
        forEachDevice(*this, [&](Device& device) {
            int& bytes = device.*direction.bytes;
            bytes = qBound(0, bytes, Device::MostBytes);
            device.*direction.firstRegister = next;
            next += registerCount(bytes);
        });
    }
}

// A keyword that the file lacks leaves its setting as it was; the devices are always those of the file.
bool DeviceNetMasterFile::read(const QByteArray& content, DeviceNetMasterConfig& record, bool* recognised)
{
    if (!isScanList(content))
        return false;
    record.count = 0;
    record.devices = {};
    record.further.clear();
    record.kept.clear();
    Reader reader(record);
    TextTemplate::forEachLine(content, [&reader](std::string_view line, std::string_view) {
        reader(line);
        return true;
    });
    if (recognised)
        *recognised = reader.isWhole();
    return true;
}

// The header is the controller's, and a file without one could not carry the master's own settings: an empty
// copy or noise, as a broken transfer leaves it, must not become a file that is sent.
QByteArray DeviceNetMasterFile::rewritten(const QByteArray& content, DeviceNetMasterConfig record)
{
    const QByteArray header = isScanList(content) ? rewrittenHeader(content, record) : QByteArray();
    if (header.isEmpty())
        return {};
    record.layOutRegisters();
    QByteArray file = header + blocks(record, header);
    // A header without any setting and no device: nobody could read that as a scan list again.
    return isScanList(file) ? file : QByteArray();
}

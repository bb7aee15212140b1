#include "FinsFrame.h"

#include "Wire.h"

#include <QtEndian>

namespace {

constexpr char Magic[] = {'F', 'I', 'N', 'S'};
constexpr int MagicSize = sizeof Magic;
constexpr int NumberSize = sizeof(quint32);
constexpr int LengthOffset = MagicSize;
constexpr int CommandOffset = LengthOffset + NumberSize;
constexpr int ErrorOffset = CommandOffset + NumberSize;
constexpr int HeaderSize = ErrorOffset + NumberSize;
// The length does not count the magic and itself.
constexpr int LeastLength = HeaderSize - CommandOffset;

// Header of a FINS message: ICF, RSV, GCT, DNA, DA1, DA2, SNA, SA1, SA2, SID.
constexpr int MessageHeaderSize = 10;
constexpr quint8 IsCommand = 0x80;
constexpr quint8 IsResponse = 0x40;
constexpr quint8 Gateways = 2;

constexpr char MemoryAreaRead[] = {0x01, 0x01};
constexpr char MemoryAreaWrite[] = {0x01, 0x02};
constexpr int ParametersOffset = MessageHeaderSize + static_cast<int>(sizeof MemoryAreaRead);
constexpr int ParametersSize = 6; // area, address of the first word, bit, count
constexpr int MostWords = 999;
constexpr int UndefinedCommand = 0x0401;
constexpr int WrongArea = 0x1101;
constexpr int WrongLength = 0x1001;
constexpr quint8 DmWords = 0x82;
constexpr int EndCodeOffset = MessageHeaderSize + static_cast<int>(sizeof MemoryAreaRead);
constexpr int WordOffset = EndCodeOffset + 2;
constexpr int ResponseSize = WordOffset + 2;
// Of an end code; the other bits tell of a relay and of the state of the PLC, and are set beside a good
// answer.
constexpr int EndCodeBits = 0x7f3f;

quint8 byteAt(const QByteArray& bytes, int offset)
{
    return static_cast<quint8>(bytes.at(offset));
}

quint16 wordAt(const QByteArray& bytes, int offset)
{
    return qFromBigEndian<quint16>(bytes.constData() + offset);
}

template <std::size_t Size>
QByteArray raw(const quint8 (&bytes)[Size])
{
    return {reinterpret_cast<const char*>(bytes), static_cast<int>(Size)};
}

} // namespace

QByteArray FinsFrame::number(quint32 value)
{
    QByteArray bytes(NumberSize, '\0');
    qToBigEndian(value, bytes.data());
    return bytes;
}

quint32 FinsFrame::numberAt(const QByteArray& bytes, int offset)
{
    return qFromBigEndian<quint32>(bytes.constData() + offset);
}

QByteArray FinsFrame::bytes() const
{
    return QByteArray(Magic, MagicSize) + number(static_cast<quint32>(LeastLength + data.size())) +
           number(command) + number(error) + data;
}

int FinsFrame::sizeOf(const QByteArray& received)
{
    if (!received.startsWith(QByteArray::fromRawData(Magic, qMin(MagicSize, received.size()))))
        return Wire::Garbage;
    if (received.size() < CommandOffset)
        return Wire::Incomplete;
    const quint32 length = numberAt(received, LengthOffset);
    if (length < LeastLength || length > LeastLength + MostData)
        return Wire::Garbage;
    const int size = CommandOffset + static_cast<int>(length);
    return received.size() < size ? Wire::Incomplete : size;
}

FinsFrame FinsFrame::of(const QByteArray& whole)
{
    return {numberAt(whole, CommandOffset), numberAt(whole, ErrorOffset), whole.mid(HeaderSize)};
}

QByteArray FinsWordRead::request() const
{
    const quint8 header[MessageHeaderSize] = {IsCommand, 0, Gateways,   0, serverNode,
                                              0,         0, clientNode, 0, service};
    const quint8 place[] = {
        DmWords, static_cast<quint8>(address >> 8), static_cast<quint8>(address & 0xff), 0 /* bit */, 0,
        1 /* one word */};
    return raw(header) + QByteArray(MemoryAreaRead, sizeof MemoryAreaRead) + raw(place);
}

std::optional<FinsWordRead::Response> FinsWordRead::response(const QByteArray& data) const
{
    if (data.size() < WordOffset || (byteAt(data, 0) & IsResponse) == 0 ||
        byteAt(data, MessageHeaderSize - 1) != service ||
        data.mid(MessageHeaderSize, sizeof MemoryAreaRead) !=
            QByteArray(MemoryAreaRead, sizeof MemoryAreaRead))
        return std::nullopt;
    // Together with an error there is no word.
    const int endCode = wordAt(data, EndCodeOffset) & EndCodeBits;
    if (endCode != 0)
        return Response{endCode, 0};
    if (data.size() != ResponseSize)
        return std::nullopt;
    return Response{0, wordAt(data, WordOffset)};
}

namespace {

// What a command asks for: DM words from `address` on.
struct Asked
{
    QByteArray code;
    int address = 0;
    int count = 0;
    bool reads = false;
    int endCode = 0; ///< why it cannot be done; 0: it can
};

Asked askedOf(const QByteArray& data)
{
    Asked asked;
    asked.code = data.mid(MessageHeaderSize, sizeof MemoryAreaRead);
    asked.reads = asked.code == QByteArray(MemoryAreaRead, sizeof MemoryAreaRead);
    const bool hasParameters = data.size() >= ParametersOffset + ParametersSize;
    if (hasParameters) {
        asked.address = wordAt(data, ParametersOffset + 1);
        asked.count = wordAt(data, ParametersOffset + 4);
    }
    const int size = ParametersOffset + ParametersSize + (asked.reads ? 0 : 2 * asked.count);
    if (!asked.reads && asked.code != QByteArray(MemoryAreaWrite, sizeof MemoryAreaWrite))
        asked.endCode = UndefinedCommand;
    else if (!hasParameters || asked.count > MostWords || data.size() != size)
        asked.endCode = WrongLength;
    else if (byteAt(data, ParametersOffset) != DmWords)
        asked.endCode = WrongArea;
    return asked;
}

} // namespace

QByteArray finsResponse(const QByteArray& data, int endCode, const std::function<quint16(quint16)>& read,
                        const std::function<void(quint16, quint16)>& write)
{
    if (data.size() < ParametersOffset || (byteAt(data, 0) & IsResponse) != 0)
        return {};
    const Asked asked = askedOf(data);
    if (endCode == 0)
        endCode = asked.endCode;
    // Back to where it came from, under the same number.
    const quint8 header[MessageHeaderSize] = {IsCommand | IsResponse,
                                              0,
                                              Gateways,
                                              byteAt(data, 6),
                                              byteAt(data, 7),
                                              byteAt(data, 8),
                                              byteAt(data, 3),
                                              byteAt(data, 4),
                                              byteAt(data, 5),
                                              byteAt(data, 9)};
    QByteArray response = raw(header) + asked.code;
    const auto append = [&response](int word) {
        response += static_cast<char>(word >> 8);
        response += static_cast<char>(word & 0xff);
    };
    append(endCode);
    for (int i = 0; endCode == 0 && i < asked.count; ++i) {
        const auto at = static_cast<quint16>(asked.address + i);
        if (asked.reads)
            append(read(at));
        else
            write(at, wordAt(data, ParametersOffset + ParametersSize + 2 * i));
    }
    return response;
}

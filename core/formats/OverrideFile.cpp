#include "OverrideFile.h"

#include "AsciiText.h"
#include "TextTemplate.h"

#include <algorithm>
#include <string>
#include <utility>

using AsciiText::Between;
using AsciiText::equalsIgnoringCase;
using AsciiText::firstWord;
using AsciiText::Words;
using TextTemplate::contains;
using TextTemplate::containsIgnoringCase;

namespace {

constexpr std::string_view Directive = "ecat_slave";
constexpr std::string_view MasterSlot = " 2 ";

// How the two kinds of devices are told in a line, and what stands before the name in a written one.
struct SlotText
{
    std::string_view slot;
    const char* beforeName;
};

constexpr SlotText textOf(OverrideSlot slot)
{
    return slot == OverrideSlot::Masters ? SlotText{MasterSlot, ";"} : SlotText{" 1 ", " ;"};
}

bool isCommentedDirective(std::string_view word)
{
    return equalsIgnoringCase(word, ";ecat_slave_off");
}

// Prose that only mentions the directive is not one, and never becomes one.
bool isDirective(std::string_view word)
{
    return isCommentedDirective(word) || equalsIgnoringCase(word, "ecat_slave_off");
}

// However it is commented out: more than one semicolon, blanks and tabs behind it. Prose that begins with the
// word has no slot behind it.
bool isSwitchLine(std::string_view line)
{
    const std::size_t begin = line.find_first_not_of("; \t");
    if (begin == std::string_view::npos)
        return false;
    const Words words(line.substr(begin), Between::WhiteSpace);
    return words.size() > 1 && equalsIgnoringCase(words[0], "ecat_slave_off") && words[1].front() >= '0' &&
           words[1].front() <= '9';
}

// A line has many blanks and few digits, so the digit is looked for.
bool hasSlot(std::string_view line, std::string_view slot)
{
    for (std::size_t at = line.find(slot[1]); at != std::string_view::npos; at = line.find(slot[1], at + 1)) {
        if (at > 0 && line.substr(at - 1, slot.size()) == slot)
            return true;
    }
    return false;
}

bool isSelected(std::string_view line, std::string_view slot)
{
    return hasSlot(line, slot) && containsIgnoringCase(line, Directive);
}

void setName(OverrideEntry& entry, std::string_view text)
{
    const std::string_view trimmed = AsciiText::trimmed(text);
    const QByteArray raw = AsciiText::raw(trimmed);
    const bool isUtf8 = AsciiText::isUtf8(trimmed);
    // A name in an unknown encoding is shown as well as can be; what is written back is `foreignName`.
    entry.name = isUtf8 ? QString::fromUtf8(raw).toUpper().trimmed() : QString::fromLatin1(raw).toUpper();
    entry.foreignName = isUtf8 ? QByteArray() : raw;
}

void clearName(OverrideEntry& entry)
{
    entry.name.clear();
    entry.foreignName.clear();
}

QByteArray nameBytes(const OverrideEntry& entry)
{
    return entry.foreignName.isEmpty() ? entry.name.toUtf8() : entry.foreignName;
}

// What is no number leaves the field as it was.
template <typename Number>
void readNumber(OverrideEntry& entry, Number OverrideEntry::*field, std::string_view text)
{
    // A tab may stand before the comment.
    if (!AsciiText::readNumber(AsciiText::trimmed(text), entry.*field))
        entry.understood = false;
}

void readEntry(OverrideEntry& entry, std::string_view line)
{
    const Words tokens(line, Between::Blanks);
    entry.understood = isDirective(tokens[0]) && (tokens.size() == 3 || tokens.size() == 4);
    if (isDirective(tokens[0]))
        entry.off = isCommentedDirective(tokens[0]);
    if (tokens.size() > 1)
        readNumber(entry, &OverrideEntry::slot, tokens[1]);
    if (tokens.size() == 4) {
        readNumber(entry, &OverrideEntry::number, tokens[2]);
        if (contains(tokens[3], ";"))
            setName(entry, tokens[3].substr(1));
        else
            clearName(entry);
    } else if (tokens.size() == 3) {
        const std::size_t semicolon = tokens[2].find(';');
        readNumber(entry, &OverrideEntry::number, tokens[2].substr(0, semicolon));
        clearName(entry);
        if (semicolon != std::string_view::npos)
            setName(entry, tokens[2].substr(semicolon + 1));
    }
}

// Starts from the family's record, so that a line that cannot be understood leaves its entry as it was.
// `look` sees every line.
template <typename Look>
void readEntries(const QByteArray& content, OverrideRecord& record, std::string_view slot, Look look)
{
    record.count = 0;
    QByteArray lines;
    TextTemplate::forEachLine(content, [&](std::string_view line, std::string_view) {
        look(line);
        if (!isSelected(line, slot))
            return true;
        if (record.count < OverrideRecord::MaxEntries)
            readEntry(record.entries[static_cast<std::size_t>(record.count++)], line);
        TextTemplate::keep(line, lines);
        lines.append('\n');
        return true;
    });
    record.knownLines = {lines};
}

// Puts the activation that the entry says on a line, and leaves every other byte of it.
void appendActivated(std::string_view line, bool off, QByteArray& out)
{
    const std::size_t word = line.find_first_not_of(" \t\v\f\r");
    const std::size_t semicolon = line[word] == ';' ? 1 : 0;
    TextTemplate::keep(line.substr(0, word), out);
    if (off)
        out.append(';');
    TextTemplate::keep(line.substr(word + semicolon), out);
}

void appendEntry(const OverrideEntry& entry, const char* beforeName, QByteArray& out)
{
    if (entry.off)
        out.append(';');
    out.append("ECAT_SLAVE_OFF ").append(QByteArray::number(entry.slot)).append(' ');
    out.append(QByteArray::number(entry.number));
    if (!entry.name.isEmpty())
        out.append(beforeName).append(nameBytes(entry));
}

// Rewrites the selected lines with the entries of a record, which were read in the same order.
class RecordWriter
{
public:
    RecordWriter(const OverrideRecord& record, SlotText text)
        : m_record(record)
        , m_text(text)
    {
    }

    bool operator()(std::string_view line, QByteArray& out)
    {
        if (!isSelected(line, m_text.slot) || m_next >= m_record.count)
            return TextTemplate::keep(line, out);
        const OverrideEntry& entry = m_record.entries[static_cast<std::size_t>(m_next++)];
        if (!isDirective(firstWord(line, Between::Blanks)))
            return TextTemplate::keep(line, out);
        if (entry.understood)
            appendEntry(entry, m_text.beforeName, out);
        else
            appendActivated(line, entry.off, out);
        return true;
    }

private:
    const OverrideRecord& m_record;
    SlotText m_text;
    int m_next = 0;
};

bool switchOn(std::string_view line, QByteArray& out)
{
    // In front of the line, also of one that begins with blanks. Prose stays prose.
    if (isSelected(line, MasterSlot) && isSwitchLine(line) &&
        !contains(firstWord(line, Between::Blanks), ";"))
        out.append(';');
    return TextTemplate::keep(line, out);
}

bool switchOff(std::string_view line, QByteArray& out)
{
    const std::size_t slot = line.find(MasterSlot);
    if (!isSelected(line, MasterSlot) || !isSwitchLine(line) || !contains(line.substr(0, slot), ";"))
        return TextTemplate::keep(line, out);
    const std::string_view rest = line.substr(slot + MasterSlot.size());
    out.append("ECAT_SLAVE_OFF 2 ");
    return TextTemplate::keep(rest.substr(0, rest.find(MasterSlot)), out);
}

template <typename Rewriter>
QByteArray edited(const QByteArray& content, Rewriter rewrite)
{
    return TextTemplate::rewritten(content, TextTemplate::LineEnds::Kept, std::move(rewrite));
}

} // namespace

const OverrideEntry* OverrideRecord::anybus() const
{
    const auto* found = std::find_if(entries.begin(), entries.end(), [](const OverrideEntry& entry) {
        return entry.name == QLatin1String("ANYBUS");
    });
    return found == entries.end() ? nullptr : found;
}

void OverrideFile::read(const QByteArray& content, OverrideSlot slot, OverrideRecord& record)
{
    readEntries(content, record, textOf(slot).slot, [](std::string_view) {});
}

void OverrideFile::read(const QByteArray& content, OverrideRecord& record, MasterDevicesInUse& devices)
{
    devices = MasterDevicesInUse();
    readEntries(content, record, textOf(OverrideSlot::SlaveModule).slot, [&devices](std::string_view line) {
        if (hasSlot(line, MasterSlot) && containsIgnoringCase(line, ";ecat_slave")) {
            devices.EIM_DEVICE |= containsIgnoringCase(line, "eim_device");
            devices.PNM_DEVICE |= containsIgnoringCase(line, "pnm_device");
        }
    });
}

bool OverrideFile::isRecognised(const QByteArray& content)
{
    return containsIgnoringCase({content.constData(), static_cast<std::size_t>(content.size())}, Directive);
}

bool OverrideFile::fits(const QByteArray& content, OverrideSlot slot, const OverrideRecord& record)
{
    if (record.knownLines.isEmpty())
        return true;
    OverrideRecord now;
    read(content, slot, now);
    return record.knownLines.contains(now.knownLines.constFirst());
}

QByteArray OverrideFile::rewritten(const QByteArray& content, OverrideSlot slot, const OverrideRecord& record)
{
    return edited(content, RecordWriter(record, textOf(slot)));
}

void OverrideFile::noteWritten(OverrideSlot slot, OverrideRecord& record)
{
    if (record.knownLines.isEmpty())
        return;
    const QByteArray lines = rewritten(record.knownLines.constFirst(), slot, record);
    if (!record.knownLines.contains(lines))
        record.knownLines.append(lines);
}

QByteArray OverrideFile::switched(const QByteArray& content, bool on)
{
    return edited(content, on ? switchOn : switchOff);
}

QByteArray OverrideFile::deviceSwitchedOff(const QByteArray& content, std::string_view device)
{
    return edited(content, [device](std::string_view line, QByteArray& out) {
        if (!contains(line, device) || !containsIgnoringCase(line, ";ecat_slave_off") || !isSwitchLine(line))
            return TextTemplate::keep(line, out);
        std::string packed(line);
        packed.erase(std::remove_if(packed.begin(), packed.end(),
                                    [](char c) { return AsciiText::parts(Between::WhiteSpace, c); }),
                     packed.end());
        const std::size_t slot = packed.find('2');
        if (slot == std::string::npos)
            return TextTemplate::keep(line, out);
        // Only up to the next "2", wherever it stands: a device number that holds one is cut there. This is
        // how the file has always been edited, and it stays so.
        const std::string_view rest = std::string_view(packed).substr(slot + 1);
        out.append("ECAT_SLAVE_OFF 2 ");
        return TextTemplate::keep(rest.substr(0, rest.find('2')), out);
    });
}

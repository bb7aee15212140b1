#include "OverrideFile.h"

#include "AsciiText.h"
#include "ControllerTemplate.h"
#include "FieldbusSettingLib.h"
#include "FileLocations.h"
#include "HandleBusFiles.h"
#include "TextTemplate.h"
#include "WholeFile.h"

#include <QFile>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

using AsciiText::Blanks;
using AsciiText::equalsIgnoringCase;
using AsciiText::firstWord;
using AsciiText::WhiteSpace;
using AsciiText::words;
using TextTemplate::contains;
using TextTemplate::containsIgnoringCase;

namespace {

constexpr std::string_view MasterSlot = " 2 ";
constexpr std::string_view SlaveSlot = " 1 ";

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
    const std::vector<std::string_view> parts = words(line.substr(begin), WhiteSpace);
    return parts.size() > 1 && equalsIgnoringCase(parts[0], "ecat_slave_off") && parts[1].front() >= '0' &&
           parts[1].front() <= '9';
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
    return hasSlot(line, slot) && containsIgnoringCase(line, "ecat_slave");
}

void setName(OverrideEntry& entry, std::string_view text)
{
    const QByteArray raw = AsciiText::raw(AsciiText::trimmed(text));
    const bool isUtf8 = AsciiText::isUtf8(raw);
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
    const std::vector<std::string_view> tokens = words(line, Blanks);
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
// `look` sees every line for as long as it answers true.
template <typename Look>
OverrideRecord readEntries(const QByteArray& content, OverrideRecord record, std::string_view slot, Look look)
{
    record.count = 0;
    TextTemplate::forEachLine(content, [&](std::string_view line, std::string_view) {
        const bool isLooking = look(line);
        if (record.count < OverrideRecord::MaxEntries && isSelected(line, slot))
            readEntry(record.entries[static_cast<std::size_t>(record.count++)], line);
        return isLooking || record.count < OverrideRecord::MaxEntries;
    });
    return record;
}

// Puts the activation that the entry says on a line, and leaves every other byte of it.
void appendActivated(std::string_view line, bool off, QByteArray& out)
{
    const std::size_t word = line.find_first_not_of(WhiteSpace);
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
    RecordWriter(OverrideRecord record, std::string_view slot, const char* beforeName)
        : m_record(std::move(record))
        , m_slot(slot)
        , m_beforeName(beforeName)
    {
    }

    bool operator()(std::string_view line, QByteArray& out)
    {
        if (!isSelected(line, m_slot) || m_next >= m_record.count)
            return TextTemplate::keep(line, out);
        const OverrideEntry& entry = m_record.entries[static_cast<std::size_t>(m_next++)];
        if (!isDirective(firstWord(line, Blanks)))
            return TextTemplate::keep(line, out);
        if (entry.understood)
            appendEntry(entry, m_beforeName, out);
        else
            appendActivated(line, entry.off, out);
        return true;
    }

private:
    // A copy: the library object may be replaced while the template is fetched.
    OverrideRecord m_record;
    std::string_view m_slot;
    const char* m_beforeName;
    int m_next = 0;
};

bool switchOn(std::string_view line, QByteArray& out)
{
    if (!isSelected(line, MasterSlot) || !isSwitchLine(line) || contains(firstWord(line, Blanks), ";"))
        return TextTemplate::keep(line, out);
    appendActivated(line, true, out);
    return true;
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

// The frame of every writer: the controller's present file, line by line, into `path`.
template <typename Rewriter>
bool editOverrideFile(const QString& path, Rewriter rewrite)
{
    const QString temporary = FileLocations::workingDirectory() + QLatin1String("/override_temp.cfg");
    QByteArray content;
    // What an interrupted write has left behind is older than what the controller holds.
    QFile::remove(temporary);
    if (!fetchTemplate(temporary, FileLocations::of(ConfigFile::Override).controller, content))
        return false;
    return WholeFile::replace(
        path, TextTemplate::rewritten(content, TextTemplate::LineEnds::Kept, std::move(rewrite)));
}

} // namespace

const OverrideEntry* OverrideRecord::anybus() const
{
    const auto* found = std::find_if(entries.begin(), entries.end(), [](const OverrideEntry& entry) {
        return entry.name == QLatin1String("ANYBUS");
    });
    return found == entries.end() ? nullptr : found;
}

bool HandleBusFiles::readMasterOverride(const QString& path, OverrideRecord& record)
{
    QByteArray content;
    if (!WholeFile::read(path, content))
        return false;
    record = readEntries(content, record, MasterSlot, [](std::string_view) { return false; });
    return true;
}

bool HandleBusFiles::readEtherCatFile(const QString& path, OverrideRecord& record,
                                      MasterDevicesInUse& devices)
{
    devices = MasterDevicesInUse();
    QByteArray content;
    if (!WholeFile::read(path, content))
        return false;
    const OverrideRecord read = readEntries(content, record, SlaveSlot, [&devices](std::string_view line) {
        if (hasSlot(line, MasterSlot) && containsIgnoringCase(line, ";ecat_slave")) {
            devices.EIM_DEVICE |= containsIgnoringCase(line, "eim_device");
            devices.PNM_DEVICE |= containsIgnoringCase(line, "pnm_device");
        }
        return true;
    });
    const OverrideEntry* anybus = read.anybus();
    FieldbusSettingLib::getInstance()->set_ifidbus_ethcat_enable(anybus && anybus->off);
    record = read;
    return true;
}

bool HandleBusFiles::writeMasterOverride(const QString& path, const OverrideRecord& record, int mode)
{
    switch (static_cast<OverrideMode>(mode)) {
    case OverrideMode::SwitchOn:
        return editOverrideFile(path, switchOn);
    case OverrideMode::SwitchOff:
        return editOverrideFile(path, switchOff);
    case OverrideMode::WriteRecord:
        break;
    }
    return editOverrideFile(path, RecordWriter(record, MasterSlot, ";"));
}

bool HandleBusFiles::writeEtherCatFile(const QString& path, const OverrideRecord& record)
{
    return editOverrideFile(path, RecordWriter(record, SlaveSlot, " ;"));
}

bool HandleBusFiles::writeOverrideFile(const QString& path, const QString& key)
{
    const std::string device = key.toStdString();
    return editOverrideFile(path, [&device](std::string_view line, QByteArray& out) {
        if (!contains(line, device) || !containsIgnoringCase(line, ";ecat_slave_off") || !isSwitchLine(line))
            return TextTemplate::keep(line, out);
        std::string packed;
        for (const std::string_view word : words(line, WhiteSpace))
            packed += word;
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

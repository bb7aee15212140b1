#ifndef OVERRIDEFILE_H
#define OVERRIDEFILE_H

#include <QByteArrayList>
#include <QString>

#include <array>
#include <string_view>

/// A switch-off directive of the controller's override.cfg.
struct OverrideEntry
{
    /// The directive is commented out: the device is in use. The pages show it as "Activate".
    bool off = false;
    qint32 slot = 0;    ///< 1: device of the EtherCAT slave module, 2: device of a master bus
    quint32 number = 0; ///< device number
    QString name;       ///< from the directive's comment, in upper case; empty without one
    /// Whether the line was read word for word. One that was not (a comment with blanks, say) is written
    /// back with nothing but its activation changed.
    bool understood = true;
    /// The name as it stands in the file when that is not UTF-8, else empty: written back byte for byte.
    QByteArray foreignName;
};

/// The directives of one device family: EtherCAT slave, EtherCAT master, EtherNet/IP master or PROFINET
/// master. The file is shared by the four; each has a record of its own.
struct OverrideRecord
{
    static constexpr int MaxEntries = 20;

    std::array<OverrideEntry, MaxEntries> entries;
    int count = 0; ///< entries that the last read found, 0 to MaxEntries
    /// The lines of the family's slot as the file was read, and as this record has been written since: what a
    /// template must have for the entries to be those of its lines. Empty before the first read.
    QByteArrayList knownLines;

    /// The entry named "ANYBUS" (the module of the EtherCAT slave), null when there is none.
    const OverrideEntry* anybus() const;
};

/// Which master devices the override file leaves in use, that is, whose directive is commented out.
struct MasterDevicesInUse
{
    bool EIM_DEVICE = false; ///< EtherNet/IP master
    bool PNM_DEVICE = false; ///< PROFINET master
};

/// The slot of a directive, which tells whose device it is.
enum class OverrideSlot {
    SlaveModule = 1, ///< the EtherCAT slave module
    Masters = 2      ///< a master bus
};

/// What a writer of a master family does to the directives.
enum class OverrideMode {
    WriteRecord = 0, ///< each becomes what the record says
    SwitchOn = 1,    ///< all devices of the bus in use
    SwitchOff = 2    ///< all switched off
};

namespace OverrideFile {

// Any bytes are an override file. What a line does not say leaves its entry as it was.

/// The devices of a slot.
void read(const QByteArray& content, OverrideSlot slot, OverrideRecord& record);
/// The devices of the slave module's slot, and which master devices are in use.
void read(const QByteArray& content, OverrideRecord& record, MasterDevicesInUse& devices);

/// Whether there is any directive; without one it may be noise.
bool isRecognised(const QByteArray& content);

/// Whether the lines of `slot` are those that the record's entries were read from, or that it has been
/// written to since. Entries are told by their position: where this is false they are other devices'. A
/// record that was never read fits any file.
bool fits(const QByteArray& content, OverrideSlot slot, const OverrideRecord& record);

/// The file with each of the record's entries on its line; only for content that `fits`.
QByteArray rewritten(const QByteArray& content, OverrideSlot slot, const OverrideRecord& record);
/// Notes in the record that it is written now, so that what comes of it fits.
void noteWritten(OverrideSlot slot, OverrideRecord& record);

/// The file with all devices of the masters' slot in use or out of use.
QByteArray switched(const QByteArray& content, bool on);
/// Takes the master device that the keyword `device` names ("EIM_DEVICE", "PNM_DEVICE") out of use.
QByteArray deviceSwitchedOff(const QByteArray& content, std::string_view device);

} // namespace OverrideFile

#endif

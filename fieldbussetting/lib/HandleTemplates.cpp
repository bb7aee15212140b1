// The writers that edit the controller's present file: the override file and the slaves' text files.
#include "HandleBusFiles.h"

#include "ControllerTemplate.h"
#include "EipSlaveFile.h"
#include "FileLocations.h"
#include "OverrideFile.h"
#include "PfbSlaveFile.h"
#include "SlaveTextFile.h"
#include "WholeFile.h"

namespace {

template <typename Record>
bool recognisedBy(const QByteArray& content, bool (*read)(const QByteArray&, Record&, bool*))
{
    Record scratch;
    bool recognised = false;
    return read(content, scratch, &recognised) && recognised;
}

// Whether a template holds anything of the record that is written into it.
template <auto Read>
bool isRecognised(const QByteArray& content)
{
    return recognisedBy(content, Read);
}

} // namespace

// The frame of every writer of a text file: the controller's present file, edited, into `path`. What
// `rewrite` holds is its own: the fetch processes events, and the record may change or go meanwhile.
bool HandleBusFiles::edit(const QString& path, const Template& source, const Rewrite& rewrite,
                          const Fits& fits)
{
    m_problem = WriteProblem::NotWritten;
    QByteArray content;
    if (!fetchTemplate(FileLocations::workingDirectory() + QLatin1String(source.temporary), source.controller,
                       source.isRecognised, content))
        return false;
    if (fits && !fits(content)) {
        m_problem = WriteProblem::ChangedOnController;
        return false;
    }
    if (!WholeFile::replace(path, rewrite(content)))
        return false;
    m_problem = WriteProblem::None;
    return true;
}

bool HandleBusFiles::editOverride(const QString& path, const Rewrite& rewrite, const Fits& fits)
{
    return edit(path,
                {FileLocations::TemplateCopy::Override, FileLocations::of(ConfigFile::Override).controller,
                 OverrideFile::isRecognised},
                rewrite, fits);
}

// Of a variant only the byte order is owned.
bool HandleBusFiles::editVariant(const QString& path, const char* temporary, const QString& ctrlPath,
                                 const QString& endian)
{
    return edit(path, {temporary, ctrlPath, nullptr}, [endian](const QByteArray& content) {
        return SlaveTextFile::rewritten(content, endian, {});
    });
}

// The record as it is now: it may be another one when the file has come.
bool HandleBusFiles::editOverride(const QString& path, OverrideSlot slot, OverrideRecord& live)
{
    const OverrideRecord record = live;
    OverrideFile::noteWritten(slot, live);
    return editOverride(
        path,
        [slot, record](const QByteArray& content) { return OverrideFile::rewritten(content, slot, record); },
        [slot, record](const QByteArray& content) { return OverrideFile::fits(content, slot, record); });
}

bool HandleBusFiles::writeMasterOverride(const QString& path, OverrideRecord& record, int mode)
{
    const bool on = mode == static_cast<int>(OverrideMode::SwitchOn);
    if (!on && mode != static_cast<int>(OverrideMode::SwitchOff))
        return editOverride(path, OverrideSlot::Masters, record);
    return editOverride(path,
                        [on](const QByteArray& content) { return OverrideFile::switched(content, on); });
}

bool HandleBusFiles::writeEtherCatFile(const QString& path, OverrideRecord& record)
{
    return editOverride(path, OverrideSlot::SlaveModule, record);
}

bool HandleBusFiles::writeOverrideFile(const QString& path, const QString& key)
{
    return editOverride(path, [device = key.toStdString()](const QByteArray& content) {
        return OverrideFile::deviceSwitchedOff(content, device);
    });
}

bool HandleBusFiles::writePfbCfgFile(const QString& path, const PfbSlaveConfig& record)
{
    return edit(path,
                {FileLocations::TemplateCopy::PfbSlave, FileLocations::of(ConfigFile::PfbSlave).controller,
                 isRecognised<PfbSlaveFile::read>},
                [record](const QByteArray& content) { return PfbSlaveFile::rewritten(content, record); });
}

bool HandleBusFiles::writePfbFreeFixFile(const QString& path, const QString& ctrlPath,
                                         const PfbSlaveConfig& record)
{
    return editVariant(path, FileLocations::TemplateCopy::PfbVariant, ctrlPath, record.ProfibusEndian);
}

bool HandleBusFiles::writeEtherNetFile(const QString& path, const EipSlaveConfig& record)
{
    return edit(path,
                {FileLocations::TemplateCopy::EipSlave, FileLocations::of(ConfigFile::EipSlave).controller,
                 isRecognised<EipSlaveFile::read>},
                [record](const QByteArray& content) { return EipSlaveFile::rewritten(content, record); });
}

bool HandleBusFiles::writeEtherNetDnsFile(const QString& path, const QString& ctrlPath,
                                          const EipSlaveConfig& record)
{
    return editVariant(path, FileLocations::TemplateCopy::EipVariant, ctrlPath, record.EipEndian);
}

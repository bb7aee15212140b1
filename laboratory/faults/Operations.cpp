#include "Operations.h"

#include "ConfigExport.h"
#include "ExportFolders.h"
#include "FieldbusSettingLib.h"
#include "FileLocations.h"
#include "ImportJournal.h"
#include "ImportSet.h"
#include "ImportTransfer.h"
#include "TransferWatch.h"
#include "UnfinishedImport.h"

#include <QDir>
#include <QRegularExpression>

#include <algorithm>

namespace {

using End = Operation::End;

class Nobody : public TransferWatch
{
public:
    bool step() override { return true; }
    bool isWanted() const override { return true; }
};

FieldbusSettingLib* lib()
{
    return FieldbusSettingLib::getInstance();
}

// The files that are made anew hold the time of writing.
QByteArray withoutDate(QByteArray file)
{
    const int begin = file.indexOf("<!-- Date");
    const int end = file.indexOf("-->", begin);
    return begin < 0 || end < 0 ? file : file.remove(begin, end - begin);
}

bool isOneOf(const QByteArray& file, const QByteArray& one, const QByteArray& other)
{
    const QByteArray bare = withoutDate(file);
    return file.isNull() ? one.isNull() || other.isNull()
                         : bare == withoutDate(one) || bare == withoutDate(other);
}

std::string text(const QString& text)
{
    return text.toStdString();
}

// What was sent and what it replaced, in the store of former versions: named by their hash, and of files with
// the time of writing in them another one each second.
bool isVersion(const QString& path)
{
    static const QRegularExpression version(QStringLiteral("/versions/[0-9a-f]{40}\\.bytes$"));
    return version.match(path).hasMatch();
}

// Files of the pendant that are neither of the former ones nor of those of a run without fault.
std::string leftOver(const Bench& bench, const Bench& before, const Bench& reference)
{
    QStringList known = Bench::filesBelow(before.pendant()) + Bench::filesBelow(reference.pendant());
    for (const QString& path : Bench::filesBelow(bench.pendant())) {
        if (!known.contains(path) && !isVersion(path) && !path.endsWith(QLatin1String(".lock")))
            return "left over: " + text(path);
    }
    return {};
}

// A settings page's save: a local copy is written and sent.
struct Save
{
    const char* name;
    ConfigFile file;
    bool (FieldbusSettingLib::*read)(QString);
    void (*edit)(FieldbusSettingLib& lib);
    std::function<bool(const QString& path)> write;
};

template <bool (FieldbusSettingLib::*Write)(QString)>
bool written(const QString& path)
{
    return (lib()->*Write)(path);
}

template <bool (FieldbusSettingLib::*Write)(QString, int)>
bool overrideWritten(const QString& path)
{
    return (lib()->*Write)(path, static_cast<int>(OverrideMode::WriteRecord));
}

const std::vector<Save>& saves()
{
    using Lib = FieldbusSettingLib;
    static const std::vector<Save> all{
        {"save heartbeat.xml", ConfigFile::Heartbeat, &Lib::readHeartbeatDetectionFile,
         [](Lib& l) { l.heartbeat.Mtcp_Timeout += 7; }, written<&Lib::writeHeartbeatDetectionFile>},
        {"save devicenetSlave.xml", ConfigFile::DeviceNetSlave, &Lib::readDeviceNetFile,
         [](Lib& l) { l.deviceNetSlave.Dns_MACID = QStringLiteral("44"); },
         written<&Lib::writeDeviceNetFile>},
        {"save dnmst0.cfg", ConfigFile::DeviceNetMaster, &Lib::readDeviceNetMasterFile,
         [](Lib& l) { l.deviceNetMaster.WS_ID ^= 8; }, written<&Lib::writeDeviceNetMasterFile>},
        {"save mtcp_master.xml", ConfigFile::MtcpMaster, &Lib::readMtcpFile,
         [](Lib& l) { l.mtcpMaster.SlaveId = QStringLiteral("99"); }, written<&Lib::writeMtcpFile>},
        {"save eip_master.xml", ConfigFile::EipMaster, &Lib::readEimXMLFile,
         [](Lib& l) { l.eipMaster.SlaveNum = QStringLiteral("8"); }, written<&Lib::writeEimXMLFile>},
        {"save pfn_master.xml", ConfigFile::PfnMaster, &Lib::readPnmXMLFile,
         [](Lib& l) { l.pfnMaster.SlaveNum = QStringLiteral("8"); }, written<&Lib::writePnmXMLFile>},
        {"save TcpServerConfig.xml", ConfigFile::MesServer, &Lib::readMesSetFile,
         [](Lib& l) { l.mesServer.Port = QStringLiteral("7007"); }, written<&Lib::writeMesSetFile>},
        {"save FinsTcpConfig.xml", ConfigFile::FinsClient, &Lib::readFinsTcpFile,
         [](Lib& l) { l.finsClient.ClientNode = 77; }, written<&Lib::writeFinsTcpFile>},
        {"save pfb.cfg", ConfigFile::PfbSlave, &Lib::readPfbCfgFile,
         [](Lib& l) { l.pfbSlave.ProfibusAddress = QStringLiteral("99"); }, written<&Lib::writePfbCfgFile>},
        {"save dns-1.cfg", ConfigFile::EipSlave, &Lib::readEtherNetFile,
         [](Lib& l) { l.eipSlave.IPADDR = QStringLiteral("10.1.2.3"); }, written<&Lib::writeEtherNetFile>},
        {"save pfb_free.cfg", ConfigFile::PfbFree, nullptr,
         [](Lib& l) { l.pfbSlave.ProfibusEndian = QStringLiteral("LITTLE_ENDIAN"); },
         [](const QString& path) {
             return lib()->writePfbFreeFixFile(path, FileLocations::of(ConfigFile::PfbFree).controller);
         }},
        {"save dns_fixed.cfg", ConfigFile::EipSlaveFixed, nullptr,
         [](Lib& l) { l.eipSlave.EipEndian = QStringLiteral("BIG_ENDIAN"); },
         [](const QString& path) {
             return lib()->writeEtherNetDnsFile(path,
                                                FileLocations::of(ConfigFile::EipSlaveFixed).controller);
         }},
        {"save override.cfg", ConfigFile::Override, &Lib::readEtherCatMFile,
         [](Lib& l) {
             for (OverrideEntry& entry : l.etherCatMasterOverride.entries)
                 entry.off = !entry.off;
         },
         overrideWritten<&Lib::writeEtherCatMFile>},
        {"save Fieldbus.cfg", ConfigFile::BusSwitch, nullptr, [](Lib& l) { l.readFieldbusCfgFromCtr(); },
         [](const QString& path) { return lib()->writeFieldbusCfg(path, false); }},
    };
    return all;
}

Operation operationOf(const Save& save)
{
    const auto begin = [&save] {
        const FileLocation& at = FileLocations::of(save.file);
        if (save.read) {
            lib()->getFileFromCtrl(at.local, at.controller);
            (lib()->*save.read)(at.local);
        }
        save.edit(*lib());
    };
    const auto run = [&save](const Bench& /*bench*/) {
        const FileLocation& at = FileLocations::of(save.file);
        return save.write(at.local) && lib()->sendFileToCtrl(at.local, at.controller);
    };
    const auto check = [&save](const Bench& bench, const Bench& before, const Bench& reference,
                               End end) -> std::string {
        const FileLocation& at = FileLocations::of(save.file);
        const QByteArray wanted = reference.controllerFile(at.controller);
        for (const QString& path : Bench::filesBelow(bench.controller())) {
            if (!isOneOf(bench.controllerFile(path), before.controllerFile(path),
                         reference.controllerFile(path)))
                return "on the controller neither old nor new: " + text(path);
        }
        if (end == End::Done && withoutDate(bench.controllerFile(at.controller)) != withoutDate(wanted))
            return "success was told, and the controller has the former file";
        const QString local = QStringLiteral("pendant/bin/") + at.local;
        if (!isOneOf(bench.file(local), before.file(local), reference.file(local)) &&
            !isOneOf(bench.file(local), before.controllerFile(at.controller), wanted))
            return "the local copy is neither old nor new";
        return leftOver(bench, before, reference);
    };
    return {save.name, [](const Bench& /*bench*/) {}, begin, run, check};
}

QString exportFolder(const Bench& bench)
{
    const std::vector<ExportFolder> folders = exportFoldersOn(bench.drive());
    return folders.empty() ? QString() : folders.front().path;
}

bool isExported(const Bench& bench)
{
    Nobody nobody;
    return ConfigExport(bench.drive(), nobody).run().isDone();
}

std::string checkExport(const Bench& bench, const Bench& before, const Bench& /*reference*/, End end)
{
    for (const QString& path : Bench::filesBelow(before.controller())) {
        if (bench.controllerFile(path) != before.controllerFile(path))
            return "the export changed the controller: " + text(path);
    }
    QStringList names;
    for (const TransferFile& file : FileLocations::transferSet())
        names << QLatin1Char('/') + file.path;
    const QString folder = exportFolder(bench);
    QStringList there = Bench::filesBelow(folder);
    if (end == End::Done) {
        for (const TransferFile& file : FileLocations::transferSet()) {
            const QString path = folder.mid(bench.path().size() + 1) + QLatin1Char('/') + file.path;
            if (bench.file(path) != before.controllerFile(file.controller))
                return "success was told, and the drive has not: " + text(file.path);
        }
    }
    for (const QString& path : there) {
        if (!names.contains(path) && end != End::Killed)
            return "left over on the drive: " + text(path);
    }
    return {};
}

// An export of this controller with other settings in it, which lies on the drive.
void prepareImport(const Bench& bench)
{
    isExported(bench);
    const QString folder = exportFolder(bench);
    for (const char* name :
         {"heartbeat.xml", "fixed/dns_fixed.cfg", "fa/override.cfg", "eipMaster/eip_master.xml"}) {
        QFile file(folder + QLatin1Char('/') + QLatin1String(name));
        if (!file.open(QIODevice::ReadWrite))
            continue;
        QByteArray bytes = file.readAll();
        bytes.replace("500", "650").replace("192.", "193.").replace("20", "21");
        bytes += "\n";
        file.resize(0);
        file.seek(0);
        file.write(bytes);
    }
}

bool isImported(const Bench& bench)
{
    Nobody nobody;
    std::vector<ImportEntry> entries;
    ImportTransfer transfer(entries);
    TransferResult result = copyFromDrive(bench.drive(), exportFolder(bench), nobody, entries);
    if (result.isDone())
        result = transfer.fetchPresent(nobody);
    if (result.isDone())
        result = transfer.seal();
    if (result.isDone())
        result = transfer.confirmPresent(nobody);
    if (result.isDone())
        result = transfer.send(nobody);
    if (result.isDone() && transfer.finish())
        return true;
    if (transfer.isBegun() && !transfer.putBack())
        transfer.leaveUnfinished();
    return false;
}

std::string checkImport(const Bench& bench, const Bench& before, const Bench& reference, End end)
{
    bool isOld = true;
    bool isNew = true;
    for (const QString& path : Bench::filesBelow(reference.controller())) {
        isOld = isOld && bench.controllerFile(path) == before.controllerFile(path);
        isNew = isNew && bench.controllerFile(path) == reference.controllerFile(path);
    }
    if (!isOld && !isNew)
        return "the controller holds a mixture";
    if (end == End::Done && !isNew)
        return "success was told, and the controller has former files";
    for (const QString& path : Bench::filesBelow(bench.pendant())) {
        if (path.contains(QLatin1String(".xml.")) || path.contains(QLatin1String(".cfg.")))
            return "left over: " + text(path);
    }
    return {};
}

// An import that was left in the middle is put back.
void leaveInTheMiddle(const Bench& bench)
{
    prepareImport(bench);
    Nobody nobody;
    // Not deleted: that would put back.
    auto* const entries = new std::vector<ImportEntry>;
    auto* const transfer = new ImportTransfer(*entries);
    copyFromDrive(bench.drive(), exportFolder(bench), nobody, *entries);
    transfer->fetchPresent(nobody);
    transfer->seal();
    transfer->send(nobody);
    transfer->leaveUnfinished();
}

bool isPutBack(const Bench& /*bench*/)
{
    UnfinishedImport unfinished = UnfinishedImport::find();
    if (!unfinished.isReadable)
        return false;
    if (unfinished.entries.empty())
        return true;
    ImportTransfer transfer(unfinished.entries);
    transfer.resume(unfinished.number);
    if (transfer.putBack())
        return true;
    transfer.leaveUnfinished();
    return false;
}

std::string checkPutBack(const Bench& bench, const Bench& before, const Bench& reference, End end)
{
    for (const QString& path : Bench::filesBelow(before.controller())) {
        if (bench.controllerFile(path) != reference.controllerFile(path))
            return "not put back: " + text(path);
    }
    return checkImport(bench, reference, reference, end);
}

} // namespace

const std::vector<Operation>& operations()
{
    static const std::vector<Operation> all = [] {
        std::vector<Operation> made;
        for (const Save& save : saves())
            made.push_back(operationOf(save));
        const auto nothing = [] {};
        made.push_back({"export", [](const Bench& /*bench*/) {}, nothing, isExported, checkExport});
        made.push_back({"import", prepareImport, nothing, isImported, checkImport});
        made.push_back({"recovery of an import", leaveInTheMiddle, nothing, isPutBack, checkPutBack});
        return made;
    }();
    return all;
}

void startAgain()
{
    UnfinishedImport::clearLeftOvers();
    UnfinishedImport unfinished = UnfinishedImport::find();
    if (!unfinished.isReadable || unfinished.entries.empty())
        return;
    ImportTransfer transfer(unfinished.entries);
    transfer.resume(unfinished.number);
    if (!transfer.putBack())
        transfer.leaveUnfinished();
}

#include "Finger.h"
#include "MsgBox.h"
#include "MsgBoxScript.h"
#include "Stations.h"
#include "TourGuide.h"
#include "UsbDrive.h"

#include <QDialog>
#include <QDirIterator>
#include <QProgressBar>
#include <QTableWidget>
#include <QTemporaryDir>

namespace {

/// A drive of the tour's own, in place of one that is inserted.
class ScratchDrive
{
public:
    ScratchDrive()
        : m_former(UsbDrive::instance().isInserted() ? UsbDrive::instance().path() : QString())
    {
        UsbDrive::instance().insert(m_directory.path());
    }
    ~ScratchDrive()
    {
        UsbDrive::instance().pullOut();
        if (!m_former.isEmpty())
            UsbDrive::instance().insert(m_former);
    }
    ScratchDrive(const ScratchDrive&) = delete;
    ScratchDrive& operator=(const ScratchDrive&) = delete;

    QDir directory() const { return {m_directory.path()}; }

private:
    QTemporaryDir m_directory;
    QString m_former;
};

bool copyTree(const QString& source, const QString& target)
{
    bool copied = true;
    QDirIterator files(source, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString from = files.next();
        const QString to = target + from.mid(source.size());
        copied = QDir().mkpath(QFileInfo(to).path()) && QFile::copy(from, to) && copied;
    }
    return copied;
}

bool change(const QString& path, const QByteArray& before, const QByteArray& after)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite))
        return false;
    const QByteArray content = file.readAll().replace(before, after);
    return file.resize(0) && file.seek(0) && file.write(content) == content.size();
}

// Enough of the transfer is done for something to be seen.
bool isUnderWay(QDialog& dialog)
{
    constexpr int Percent = 30;
    const auto* bar = dialog.findChild<QProgressBar*>(QStringLiteral("progressBar"));
    return !bar || bar->value() >= Percent;
}

// What comes after the list of folders, of which the first is chosen, and the transfer from there.
bool isBehindFolders(QDialog& dialog)
{
    auto* folders = dialog.findChild<QTableWidget*>(QStringLiteral("folderTable"));
    if (!folders)
        return dialog.objectName() != QLatin1String("ProgressDialog");
    folders->selectRow(0);
    Finger::press(dialog.findChild<QWidget*>(QStringLiteral("chooseButton")));
    return false;
}

struct Import
{
    const char* picture;
    const char* folder;
    const char* file; // that is changed
    const char* before;
    const char* after;
};

// Folders of another robot, the newest of which is tried: first one that can be imported, then one whose
// switches break a rule, then one with a broken file.
constexpr Import Imports[] = {
    {"usb-preview", "/fidbus_21000101_080000", "/heartbeat.xml", "<Fidbus>", "<Fidbus><!-- other -->"},
    {"usb-rule-broken", "/fidbus_21000102_080000", "/fieldbus.xml", R"("EtherCatMaster" enable="0")",
     R"("EtherCatMaster" enable="1")"},
    {"usb-refused", "/fidbus_21000103_080000", "/fieldbus_config.xml", "</FieldbusConfig>", ""},
};

} // namespace

bool Stations::usb(TourGuide& guide)
{
    const ScratchDrive drive;
    const QString importButton = QStringLiteral("btn_import");
    const auto press = [&guide](const QString& button) {
        return [&guide, button] { return Finger::press(guide.find(button)); };
    };
    if (!guide.openPage(QStringLiteral("busSetting")))
        return false;
    MsgBoxScript::answerNext(MsgBox::Confirmed);
    bool taken =
        guide.reportDialog(QStringLiteral("usb-progress"), press(QStringLiteral("btn_export")), isUnderWay);
    const QStringList exported = drive.directory().entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    if (exported.isEmpty())
        return false;
    const QString source = drive.directory().filePath(exported.constFirst());
    for (const Import& import : Imports) {
        const QString folder = drive.directory().path() + QLatin1String(import.folder);
        taken = copyTree(source, folder) && taken;
        taken = change(folder + QLatin1String(import.file), import.before, import.after) && taken;
        taken = change(folder + QStringLiteral("/fa/pfb.cfg"), "cell 7", "cell 8") && taken;
        taken = QFile::remove(folder + QStringLiteral("/rs232/rs232FileConfig.xml")) && taken;
        taken =
            guide.reportDialog(QLatin1String(import.picture), press(importButton), isBehindFolders) && taken;
    }
    return guide.reportDialog(QStringLiteral("usb-folders"), importButton) && taken;
}

#include "ImportPreviewDialog.h"

#include "TransferTable.h"
#include "ui_ImportPreviewDialog.h"

#include <algorithm>
#include <array>

namespace {

struct StateRow
{
    ImportEntry::State state;
    const char* text;
};

// In the order in which the operator wants to see them.
constexpr std::array<StateRow, 4> States = {
    {{ImportEntry::Different, QT_TRANSLATE_NOOP("ImportPreviewDialog", "different")},
     {ImportEntry::New, QT_TRANSLATE_NOOP("ImportPreviewDialog", "new")},
     {ImportEntry::Missing, QT_TRANSLATE_NOOP("ImportPreviewDialog", "missing")},
     {ImportEntry::Same, QT_TRANSLATE_NOOP("ImportPreviewDialog", "same")}}};

// As ImportEntry::Reason counts.
constexpr std::array<const char*, 3> MissingTexts = {
    QT_TRANSLATE_NOOP("ImportPreviewDialog", "missing"),
    QT_TRANSLATE_NOOP("ImportPreviewDialog", "missing: a link"),
    QT_TRANSLATE_NOOP("ImportPreviewDialog", "missing: too large")};

int count(const std::vector<ImportEntry>& entries, ImportEntry::State state)
{
    return static_cast<int>(std::count_if(
        entries.begin(), entries.end(), [state](const ImportEntry& entry) { return entry.state == state; }));
}

} // namespace

ImportPreviewDialog::ImportPreviewDialog(const QString& folderName, const std::vector<ImportEntry>& entries,
                                         const ImportedRoles& roles, QWidget* parent)
    : ImportDialog(parent)
    , ui(std::make_unique<Ui::ImportPreviewDialog>())
{
    ui->setupUi(this);
    applyStyle();
    ui->label_title->setText(tr("Import of %1").arg(folderName));
    showFiles(entries, roles.brokenRules.empty());
    showRoles(roles);

    const bool possible =
        roles.brokenRules.empty() &&
        std::any_of(entries.begin(), entries.end(), [](const ImportEntry& entry) { return entry.isSent(); });
    ui->importButton->setVisible(possible);
    if (!possible)
        ui->cancelButton->setText(tr("Close"));
    connect(ui->importButton, &QPushButton::clicked, this, &QDialog::accept);
    connect(ui->cancelButton, &QPushButton::clicked, this, &QDialog::reject);
}

ImportPreviewDialog::~ImportPreviewDialog() = default;

void ImportPreviewDialog::showFiles(const std::vector<ImportEntry>& entries, bool possible)
{
    TransferTable::prepare(*ui->fileTable, {tr("File"), tr("State")}, QAbstractItemView::NoSelection);
    QStringList summary;
    for (const StateRow& row : States) {
        summary << tr("%1: %2").arg(tr(row.text)).arg(count(entries, row.state));
        for (const ImportEntry& entry : entries) {
            if (entry.state != row.state)
                continue;
            const bool missing = row.state == ImportEntry::Missing;
            TransferTable::addRow(*ui->fileTable,
                                  {entry.file->name, tr(missing ? MissingTexts[entry.reason] : row.text)},
                                  row.state != ImportEntry::Same);
        }
    }
    const QString outlook =
        count(entries, ImportEntry::Different) + count(entries, ImportEntry::New) == 0
            ? tr("The controller holds these files already.")
            : tr("Different and new files replace those of the controller; the others stay.");
    QStringList lines = {summary.join(QStringLiteral("    "))};
    if (possible)
        lines.prepend(outlook);
    const int missing = count(entries, ImportEntry::Missing);
    if (missing != 0)
        lines.prepend(tr("This is not a whole export: it brings %1 of %2 files.")
                          .arg(static_cast<int>(entries.size()) - missing)
                          .arg(entries.size()));
    ui->label_summary->setText(lines.join(QLatin1Char('\n')));
}

void ImportPreviewDialog::showRoles(const ImportedRoles& roles)
{
    TransferTable::prepare(*ui->roleTable, {tr("Bus switch"), tr("Now"), tr("After")},
                           QAbstractItemView::NoSelection);
    const auto text = [](bool on) { return on ? tr("ON") : tr("OFF"); };
    for (const bool changed : {true, false}) {
        for (const ImportedRole& role : roles.roles) {
            if ((role.now != role.after) == changed)
                TransferTable::addRow(*ui->roleTable, {role.name, text(role.now), text(role.after)}, changed);
        }
    }
    ui->roleTable->setVisible(!roles.roles.empty());

    const bool refused = !roles.brokenRules.empty();
    QStringList notices;
    for (const char* rule : roles.brokenRules)
        notices << QCoreApplication::translate("BusSettingWidget", rule);
    if (refused)
        notices.prepend(tr("This configuration cannot be imported:"));
    if (roles.profinetSlaveSwitchedOff)
        notices << tr(
            "The PROFINET slave cannot be on in this controller: it will be imported switched off.");
    ui->label_notice->setText(notices.join(QLatin1Char('\n')));
    ui->label_notice->setProperty("refused", refused);
    ui->label_notice->setVisible(!notices.isEmpty());
}

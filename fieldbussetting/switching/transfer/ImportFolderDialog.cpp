#include "ImportFolderDialog.h"

#include "FileLocations.h"
#include "TransferTable.h"
#include "ui_ImportFolderDialog.h"

ImportFolderDialog::ImportFolderDialog(const std::vector<ExportFolder>& folders, QWidget* parent)
    : ImportDialog(parent)
    , ui(std::make_unique<Ui::ImportFolderDialog>())
{
    ui->setupUi(this);
    applyStyle();

    TransferTable::prepare(*ui->folderTable, {tr("Date"), tr("Folder"), tr("Files")},
                           QAbstractItemView::SingleSelection);
    const int complete = static_cast<int>(FileLocations::transferSet().size());
    for (const ExportFolder& folder : folders)
        TransferTable::addRow(*ui->folderTable,
                              {folder.written.toString(QStringLiteral("yyyy-MM-dd  hh:mm:ss")), folder.name,
                               tr("%1 of %2").arg(folder.files).arg(complete)});
    connect(ui->folderTable, &QTableWidget::itemSelectionChanged, this,
            [this] { ui->chooseButton->setEnabled(chosen() >= 0); });
    connect(ui->chooseButton, &QPushButton::clicked, this, &QDialog::accept);
    connect(ui->cancelButton, &QPushButton::clicked, this, &QDialog::reject);
}

ImportFolderDialog::~ImportFolderDialog() = default;

int ImportFolderDialog::chosen() const
{
    const QList<QTableWidgetItem*> selected = ui->folderTable->selectedItems();
    return selected.isEmpty() ? -1 : selected.constFirst()->row();
}

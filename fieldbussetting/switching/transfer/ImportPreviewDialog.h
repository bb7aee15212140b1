#ifndef IMPORTPREVIEWDIALOG_H
#define IMPORTPREVIEWDIALOG_H

#include "ImportDialog.h"
#include "ImportRoles.h"

#include <memory>

namespace Ui {
class ImportPreviewDialog;
}

/// Shows what an import would change: file by file, and the bus switches. Accepted when the operator wants
/// it; where a rule would be broken, or nothing would change, only leaving is offered.
class ImportPreviewDialog : public ImportDialog
{
    Q_OBJECT

public:
    ImportPreviewDialog(const QString& folderName, const std::vector<ImportEntry>& entries,
                        const ImportedRoles& roles, QWidget* parent);
    ~ImportPreviewDialog() override;

private:
    void showFiles(const std::vector<ImportEntry>& entries, bool possible);
    void showRoles(const ImportedRoles& roles);

    std::unique_ptr<Ui::ImportPreviewDialog> ui;
};

#endif

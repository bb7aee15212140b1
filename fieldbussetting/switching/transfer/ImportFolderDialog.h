#ifndef IMPORTFOLDERDIALOG_H
#define IMPORTFOLDERDIALOG_H

#include "ExportFolders.h"
#include "ImportDialog.h"

#include <memory>

namespace Ui {
class ImportFolderDialog;
}

/// Lets the operator choose one of the export folders on the drive. Accepted only with one chosen.
class ImportFolderDialog : public ImportDialog
{
    Q_OBJECT

public:
    ImportFolderDialog(const std::vector<ExportFolder>& folders, QWidget* parent);
    ~ImportFolderDialog() override;

    /// Position of the chosen folder in the list; -1 when none is.
    int chosen() const;

private:
    std::unique_ptr<Ui::ImportFolderDialog> ui;
};

#endif

#ifndef CHANGESPAGE_H
#define CHANGESPAGE_H

#include "FileChanges.h"
#include "PutBack.h"
#include "RowTable.h"
#include "StatusBox.h"
#include "StatusPage.h"

class QLabel;
class QPushButton;

/// What this pendant has sent, the newest first, and the button that brings the former files of one change
/// back.
class ChangesPage : public StatusPage
{
    Q_OBJECT

public:
    explicit ChangesPage(const StatusContext& context);

protected:
    void showState() override;
    int version() const override;

private:
    void choose(int index);
    void showChosen();
    const FileChanges::Change* chosen() const;
    RowTable::Row rowOf(const FileChanges::Change& change, int index) const;
    // The page may be gone after each of these.
    void putBack();
    void putBackConfirmed(const FileChanges::Change& change);
    bool isRobotAtRest();
    void tellResult(PutBack::Result result, const PutBack& work);
    void offerRestart();

    RowTable* m_table;
    QLabel* m_detail;
    QPushButton* m_putBack;
    std::vector<FileChanges::Change> m_changes;
    qint64 m_chosen = 0; ///< group; 0 none
    bool m_isBusy = false;
};

#endif

#ifndef TESTS_STATUSTEST_H
#define TESTS_STATUSTEST_H

#include "KnownFiles.h"
#include "PendantFixture.h"
#include "Rows.h"
#include "Traffic.h"

#include <QTableWidget>

/// A test of the fieldbus status on a pendant that has the fieldbus settings as well: a fresh one a row.
class StatusTest : public QObject, public PendantFixture
{
public:
    StatusTest()
        : PendantFixture(Later)
    {
        descriptions = QStringList{"fieldbusstatus.json", "fieldbussetting.json"};
    }

protected:
    void restartAt(double timeScale)
    {
        stop();
        start(timeScale);
    }

    /// Whether the files were read and no more are to come.
    bool isRead() const { return text("label_contact").startsWith("Read from the controller"); }
    bool show()
    {
        window().openApplication("fieldbusstatus");
        return QTest::qWaitFor([this] { return isRead(); }, 20000) && settle();
    }
    /// Presses Refresh and waits until everything was fetched again.
    bool refresh()
    {
        const int before = traffic().count(Traffic::Fetch);
        const auto isDone = [this, before] {
            return traffic().count(Traffic::Fetch) >= before + static_cast<int>(FileCount) && isRead();
        };
        return press("refreshBtn") && QTest::qWaitFor(isDone, 20000) && settle();
    }
    /// Puts a file with `before` replaced onto the controller; false when it is not in it.
    bool edit(const QString& path, const char* before, const char* after)
    {
        const QByteArray bytes = controllerFile(path);
        return bytes.contains(before) && put(path, QByteArray(bytes).replace(before, after));
    }

    /// The rows of a table, the cells joined by "|".
    QStringList rows(const QString& name) const
    {
        QStringList texts;
        const auto* table = find<QTableWidget>(name);
        for (int row = 0; table && row < table->rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < table->columnCount(); ++column)
                cells << (table->item(row, column) ? table->item(row, column)->text() : QString());
            texts << cells.join('|');
        }
        return texts;
    }
    /// State, switched on, runs, link and findings of a role.
    QString overview(const QString& role) const
    {
        for (const QString& row : rows("overviewTable")) {
            const QStringList cells = row.split('|');
            if (cells[1] == role)
                return QStringList{cells[0], cells[2], cells[3], cells[4], cells[6]}.join('|');
        }
        return QStringLiteral("(there is no %1)").arg(role);
    }
    bool openRole(const QString& role)
    {
        const QStringList all = rows("overviewTable");
        for (int row = 0; row < all.size(); ++row) {
            if (all[row].split('|')[1] == role)
                return press("overviewBtn") && pressCell("overviewTable", row, 1) && settle();
        }
        return false;
    }
    /// Codes on the page of the findings, the first first.
    QStringList codes() const
    {
        QStringList found;
        for (const QString& row : rows("findingsTable"))
            found << row.section('|', 0, 0);
        return found;
    }
};

#endif

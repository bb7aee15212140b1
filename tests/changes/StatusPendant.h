#ifndef TESTS_STATUSPENDANT_H
#define TESTS_STATUSPENDANT_H

#include "ApplicationSlot.h"
#include "FieldbusSettingLib.h"
#include "PendantFixture.h"
#include "UsbDrive.h"
#include "UserSession.h"

#include <QLabel>
#include <QPushButton>
#include <QTableWidget>

/// A pendant with both applications; the status is followed from its start.
class StatusPendant : public PendantFixture
{
public:
    StatusPendant()
        : PendantFixture(Later)
    {
        descriptions << QStringLiteral("fieldbusstatus.json");
        start(200.0);
    }
    ~StatusPendant()
    {
        MsgBoxScript::onShown({});
        UsbDrive::instance().setFull(false);
        UsbDrive::instance().setReadOnly(false);
        UsbDrive::instance().failAfterCopies(-1);
        stop();
    }

    /// Sends a file on the road that every page of the settings takes.
    bool send(const QString& path, const QByteArray& content)
    {
        const QString local = QStringLiteral("../Application/fieldbusSetting/sent");
        QDir().mkpath(QFileInfo(local).path());
        QFile file(local);
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            return false;
        file.close();
        return FieldbusSettingLib::getInstance()->sendFileToCtrl(local, path);
    }

    QWidget* page() const { return find(QStringLiteral("StatusMain")); }
    bool openStatus(const QString& tab)
    {
        window().openApplication(QStringLiteral("fieldbusstatus"));
        return QTest::qWaitFor([this] { return page() && page()->isVisible(); }, 10000) && press(tab);
    }
    /// The texts of a table row by row, cells parted by " | ".
    QStringList rows(const QString& name) const
    {
        QStringList texts;
        const auto* table = find<QTableWidget>(name);
        for (int row = 0; table && row < table->rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < table->columnCount(); ++column)
                cells << (table->item(row, column) ? table->item(row, column)->text() : QString());
            texts << cells.join(QStringLiteral(" | "));
        }
        return texts;
    }
    QString versions() const { return QStringLiteral("../Application/fidbus/versions"); }
};

#endif

#ifndef DEVICENETSLAVERSETTING_H
#define DEVICENETSLAVERSETTING_H

#include "FormFields.h"
#include "PageBase.h"
#include "Poll.h"
#include "StatusLight.h"

#include <memory>
#include <optional>

namespace Ui {
class DeviceNetSlaverSetting;
}

/// The page of the DeviceNet slave role: MAC ID, baud rate and a light for its link. A save is complete when
/// the controller has acknowledged the file.
class DeviceNetSlaverSetting : public PageBase
{
    Q_OBJECT

public:
    DeviceNetSlaverSetting();
    ~DeviceNetSlaverSetting() override;

    void refreshStatus() override;

private slots:
    void on_btn_save_clicked();
    void slotCheckMACIDFormat(const QString& text);
    /// A poll of the handshake, while one runs.
    void getFileSaveStatus();

protected:
    std::vector<PageFile> files() const override;
    void fill() override;

private:
    void beginHandshake();
    void endHandshake(bool taken);

    std::unique_ptr<Ui::DeviceNetSlaverSetting> ui;
    FormFields m_fields;
    std::optional<StatusLight> m_light;
    Poll m_handshake;
    QString m_acceptedMacId; ///< comes back when another one is refused
    bool m_firstSave = true;
};

#endif

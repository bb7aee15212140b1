#ifndef MTCPMASTERSETTING_H
#define MTCPMASTERSETTING_H

#include "PageBase.h"
#include "StatusLight.h"

#include <memory>
#include <optional>

namespace Ui {
class MtcpMasterSetting;
}

/// The page of the controller's Modbus TCP master: address, port and unit id of the one slave that it talks
/// to, time-out and byte orders, and whether it connects by itself or when it is asked.
class MtcpMasterSetting : public PageBase
{
    Q_OBJECT

public:
    MtcpMasterSetting();
    ~MtcpMasterSetting() override;

    void refreshStatus() override;

protected:
    std::vector<PageFile> files() const override;
    void fill() override;

private slots:
    void on_btn_save_clicked();
    /// Puts the last good address back when `text` is none.
    void slotCheckIpFormat(const QString& text);
    /// Puts the last good port back when `text` is the port of another service.
    void slotCheckPortEffect(const QString& text);
    void on_btn_connect_clicked();
    void on_cBox_autoCon_clicked(bool checked);

private:
    void prepareFields();
    void fillFromRecord();
    MtcpMasterConfig entered() const;

    std::unique_ptr<Ui::MtcpMasterSetting> ui;
    std::optional<StatusLight> m_connection;
    MtcpMasterConfig m_saved; ///< what the controller has, as far as this page knows
    QString m_goodIp;
    QString m_goodPort;
};

#endif

#ifndef FINSTCPSETTINGWIDGET_H
#define FINSTCPSETTINGWIDGET_H

#include "PageBase.h"
#include "StatusLight.h"

#include <memory>
#include <optional>

namespace Ui {
class FinsTcpSettingWidget;
}

/// The page of the controller's FINS TCP client, which reads from and writes to the DM area of a PLC: its
/// settings, switching it on and off, its connection and error state.
///
/// The page fetches its file while it is constructed, so the constructor may wait and show boxes.
class FinsTcpSettingWidget : public PageBase
{
    Q_OBJECT

public:
    FinsTcpSettingWidget();
    ~FinsTcpSettingWidget() override;

    void refreshStatus() override;

private slots:
    void on_interfaceCB_currentIndexChanged(int index);
    void on_saveFinsButton_clicked();
    void on_enable_checkBox_clicked();
    void changeBtnEnableStatus();

private:
    void showError(bool error);
    void fillFromRecord();
    void storeToRecord();

    std::unique_ptr<Ui::FinsTcpSettingWidget> ui;
    // As last seen.
    bool m_enabled = false;
    bool m_error = false;
    bool m_connected = false;
    std::optional<StatusLight> m_connection;
};

#endif

#ifndef FINSTCPSETTINGWIDGET_H
#define FINSTCPSETTINGWIDGET_H

#include "FormFields.h"
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
/// The page fetches its file before it is shown, without blocking input.
class FinsTcpSettingWidget : public PageBase
{
    Q_OBJECT

public:
    FinsTcpSettingWidget();
    ~FinsTcpSettingWidget() override;

    void refreshStatus() override;
    void prepare() override;

private slots:
    void on_interfaceCB_currentIndexChanged(int index);
    void on_saveFinsButton_clicked();
    void on_enable_checkBox_clicked();
    void changeBtnEnableStatus();

protected:
    std::vector<PageFile> files() const override;
    void fill() override { m_fields.show(); }

private:
    void showError(bool error);

    std::unique_ptr<Ui::FinsTcpSettingWidget> ui;
    FormFields m_fields;
    // As last seen.
    bool m_enabled = false;
    bool m_error = false;
    bool m_connected = false;
    std::optional<StatusLight> m_connection;
};

#endif

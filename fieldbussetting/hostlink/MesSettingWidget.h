#ifndef MESSETTINGWIDGET_H
#define MESSETTINGWIDGET_H

#include "FormFields.h"
#include "PageBase.h"
#include "StatusLight.h"

#include <memory>
#include <optional>

namespace Ui {
class MesSettingWidget;
}

/// The page of the controller's TCP server for a manufacturing execution system: its settings, starting and
/// stopping it ("monitor"), and whether a client is connected. The settings are locked while it runs.
class MesSettingWidget : public PageBase
{
    Q_OBJECT

public:
    MesSettingWidget();
    ~MesSettingWidget() override;

    void refreshStatus() override;

private slots:
    void on_saveButton_clicked();
    void on_monitorButton_clicked();
    void on_localPortIpCB_currentIndexChanged(int index);

protected:
    std::vector<PageFile> files() const override;
    void fill() override;

private:
    void showServerState();

    std::unique_ptr<Ui::MesSettingWidget> ui;
    FormFields m_fields;
    bool m_active = false; // as last seen
    std::optional<StatusLight> m_connected;
};

#endif

#ifndef PFB_PFNSETTINGWIDGET_H
#define PFB_PFNSETTINGWIDGET_H

#include "FormFields.h"
#include "TextFileSlave.h"

#include <memory>
#include <optional>

namespace Ui {
class Pfb_PfnSettingWidget;
}

/// The page of the PROFINET (or PROFIBUS) slave on the fieldbus module. While ProfiSAFE is present that role
/// owns the module: the settings are hidden and the driver file is not touched.
class Pfb_PfnSettingWidget : public PageBase
{
    Q_OBJECT

public:
    Pfb_PfnSettingWidget();
    ~Pfb_PfnSettingWidget() override;

    void setFreeConfiguration(bool open) override { m_slave->setFreeConfiguration(open); }
    void refreshStatus() override { m_slave->refreshStatus(); }

protected:
    void beginLoad() override;
    std::vector<PageFile> files() const override;
    void fill() override;
    void showEvent(QShowEvent* event) override;

private slots:
    void on_saveBt_clicked();
    void on_cBox_clicked(bool checked);

private:
    std::unique_ptr<Ui::Pfb_PfnSettingWidget> ui;
    std::optional<TextFileSlave> m_slave;
    FormFields m_fields;
    bool m_profisafeActive = false;
};

#endif

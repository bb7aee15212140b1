#ifndef PFB_PFNSETTINGWIDGET_H
#define PFB_PFNSETTINGWIDGET_H

#include "TextFileSlavePage.h"

#include <memory>

namespace Ui {
class Pfb_PfnSettingWidget;
}

/// The page of the PROFINET (or PROFIBUS) slave on the fieldbus module. While ProfiSAFE is present that role
/// owns the module: the settings are hidden and the driver file is not touched.
class Pfb_PfnSettingWidget : public TextFileSlavePage
{
    Q_OBJECT

public:
    Pfb_PfnSettingWidget();
    ~Pfb_PfnSettingWidget() override;

private slots:
    void on_saveBt_clicked();
    void slotGetFileToUi();
    void on_cBox_clicked(bool checked);

private:
    static const Role& role();
    void fillFromRecord();

    std::unique_ptr<Ui::Pfb_PfnSettingWidget> ui;
    bool m_profisafeActive = false;
};

#endif

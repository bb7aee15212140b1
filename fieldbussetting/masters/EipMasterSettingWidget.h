#ifndef EIPMASTERSETTINGWIDGET_H
#define EIPMASTERSETTINGWIDGET_H

#include "MasterTablePage.h"

/// The page of the EtherNet/IP master.
class EipMasterSettingWidget : public MasterTablePage
{
    Q_OBJECT

public:
    EipMasterSettingWidget();

private slots:
    void on_saveBt_EipM_clicked();
    // Two underscores: the name of the check box ends in one.
    void on_dynalm_checkbox__clicked(); // NOLINT(bugprone-reserved-identifier)

private:
    static const Master& master();
};

#endif

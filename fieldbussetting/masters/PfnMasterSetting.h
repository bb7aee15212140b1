#ifndef PFNMASTERSETTING_H
#define PFNMASTERSETTING_H

#include "MasterTablePage.h"

/// The page of the PROFINET master.
class PfnMasterSetting : public MasterTablePage
{
    Q_OBJECT

public:
    PfnMasterSetting();

private slots:
    void on_btn_save_clicked();
    void on_dynalm_checkbox_clicked();

private:
    static const Master& master();
};

#endif

#ifndef ECATMASTERSETTINGWIDGET_H
#define ECATMASTERSETTINGWIDGET_H

#include "FunctionTable.h"

#include <memory>
#include <optional>

namespace Ui {
class EcatMasterSettingWidget;
}

/// The page of the EtherCAT master: which of its functions in the override file are active.
class EcatMasterSettingWidget : public PageBase
{
    Q_OBJECT

public:
    EcatMasterSettingWidget();
    ~EcatMasterSettingWidget() override;

protected:
    std::vector<PageFile> files() const override { return {m_functions->file()}; }
    void fill() override { m_functions->fill(); }

private slots:
    void on_btn_reset_clicked() { m_functions->reset(); }
    void on_saveBt_Ecat_clicked() { m_functions->save(); }

private:
    std::unique_ptr<Ui::EcatMasterSettingWidget> ui;
    std::optional<FunctionTable> m_functions;
};

#endif

#ifndef ETHERCATSETTINGWIDGET_H
#define ETHERCATSETTINGWIDGET_H

#include "FunctionTable.h"

#include <memory>
#include <optional>

namespace Ui {
class EtherCatSettingWidget;
}

/// The page of the EtherCAT slave. With the EtherCAT module in the controller's slave slot it offers the
/// byte order of the module's process data; otherwise the functions of the override file.
class EtherCatSettingWidget : public PageBase
{
    Q_OBJECT

public:
    EtherCatSettingWidget();
    ~EtherCatSettingWidget() override;

protected:
    void beginLoad() override;
    std::vector<PageFile> files() const override;
    void fill() override;

private slots:
    void on_btn_reset_clicked() { m_functions->reset(); }
    void on_saveBt_Ecat_clicked() { m_functions->save(); }
    void on_btn_saveFbECAT_clicked();
    /// The fifth function is switched at once, without a save.
    void BtnsClicxkedSlot();

private:
    void showByteOrder();

    std::unique_ptr<Ui::EtherCatSettingWidget> ui;
    std::optional<FunctionTable> m_functions;
    bool m_isModule = false; ///< the face: the module's, or the functions'
    /// As last read or saved: "littleEndian" or "bigEndian", empty before. A reading may outlive the page.
    const std::shared_ptr<QString> m_endian = std::make_shared<QString>();
};

#endif

#ifndef MTCPSLAVESETTING_H
#define MTCPSLAVESETTING_H

#include "PageBase.h"
#include "PerformanceBox.h"

#include <memory>
#include <optional>

namespace Ui {
class MtcpSlaveSetting;
}

/// The page of the Modbus TCP slave. It has no file: its one setting is the communication performance.
class MtcpSlaveSetting : public PageBase
{
    Q_OBJECT

public:
    MtcpSlaveSetting();
    ~MtcpSlaveSetting() override;

protected:
    void showEvent(QShowEvent* event) override;

private slots:
    void on_cBox_clicked(bool checked);

private:
    std::unique_ptr<Ui::MtcpSlaveSetting> ui;
    std::optional<PerformanceBox> m_performanceBox;
};

#endif

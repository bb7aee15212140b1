#ifndef HEARTBEATDETECTIONWIDGET_H
#define HEARTBEATDETECTIONWIDGET_H

#include "PageBase.h"
#include "StatusLight.h"

#include <memory>
#include <vector>

class QCheckBox;
class QTouchLineEdit;

namespace Ui {
class HeartbeatDetectionWidget;
}

/// The page of the connection watchdog: per bus role a switch, a time-out in seconds and a light.
class HeartbeatDetectionWidget : public PageBase
{
    Q_OBJECT

public:
    HeartbeatDetectionWidget();
    ~HeartbeatDetectionWidget() override;

    void refreshStatus() override;

protected:
    std::vector<PageFile> files() const override;
    void fill() override;

private slots:
    void on_saveButton_clicked();

private:
    void buildRows();
    void storeToRecord();

    std::unique_ptr<Ui::HeartbeatDetectionWidget> ui;
    // One entry a bus role, in the order of HeartbeatConfig::fields().
    std::vector<QCheckBox*> m_switches;
    std::vector<QTouchLineEdit*> m_timeouts;
    std::vector<StatusLight> m_lights;
};

#endif

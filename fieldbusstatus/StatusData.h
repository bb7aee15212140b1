#ifndef STATUSDATA_H
#define STATUSDATA_H

#include "BaseZelCustomData.h"
#include "ControllerWatch.h"
#include "HistoryRecorder.h"

#include <QPointer>

class StatusMain;

/// Data side of the application. It follows the controller from the moment the pendant starts, also while the
/// application is not shown, and keeps what is known of it over the openings.
class StatusData : public QObject, public BaseZelCustomData
{
    Q_OBJECT

public:
    StatusData();
    ~StatusData() override;

    /// The application's page, made when there is none; it belongs to the widget that shows it.
    QWidget* getCentralWidget() override;
    QWidget* currentCentralWidget() override;
    StatusMain* mainPage() const;

    ControllerWatch& watch() { return m_watch; }

public slots:
    /// The host's idle tick, at all times.
    void slotIdle();

private:
    ControllerWatch m_watch;
    HistoryRecorder m_history;
    QPointer<StatusMain> m_main;
};

#endif

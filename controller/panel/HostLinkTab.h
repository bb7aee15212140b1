#ifndef CONTROLLER_PANEL_HOSTLINKTAB_H
#define CONTROLLER_PANEL_HOSTLINKTAB_H

#include "FinsPageAccess.h"
#include "PanelTab.h"

class QLabel;
class QPushButton;

/// The links to other computers: what the MES server and the FINS client do, and the way to the page that the
/// pendant's menu does not offer.
class HostLinkTab : public PanelTab
{
    Q_OBJECT

public:
    HostLinkTab(SimulatedController& simulated, FinsPageAccess finsPage, QWidget* parent = nullptr);

    void refresh() override;

private:
    QString mesState() const;
    QString finsState() const;

    FinsPageAccess m_finsPage;
    QLabel* m_mes;
    QLabel* m_fins;
    QLabel* m_word;
    QPushButton* m_showFinsPage;
};

#endif

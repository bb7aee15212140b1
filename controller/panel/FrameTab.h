#ifndef CONTROLLER_PANEL_FRAMETAB_H
#define CONTROLLER_PANEL_FRAMETAB_H

#include "FrameLog.h"
#include "PanelTab.h"

class QCheckBox;
class QComboBox;
class QTableWidget;

/// The last frames of the links, every byte of the chosen one named. They can be saved as a capture file.
class FrameTab : public PanelTab
{
    Q_OBJECT

public:
    explicit FrameTab(SimulatedController& simulated, QWidget* parent = nullptr);

    void refresh() override;
    /// Saves what is shown as a capture file; false when it cannot be written.
    bool save(const QString& path) const;

private:
    QLayout* makeButtons();
    void fill();
    void show(const LoggedFrame& frame);
    void askAndSave();

    QComboBox* m_filter;
    QCheckBox* m_pause;
    QTableWidget* m_frames;
    QTableWidget* m_fields;
    QVector<LoggedFrame> m_taken; ///< stands still during a pause
    QVector<LoggedFrame> m_shown; ///< a row each
};

#endif

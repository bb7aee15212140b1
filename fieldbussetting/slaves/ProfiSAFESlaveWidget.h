#ifndef PROFISAFESLAVEWIDGET_H
#define PROFISAFESLAVEWIDGET_H

#include "PageBase.h"
#include "StatusLight.h"

#include <QMap>

#include <array>
#include <memory>
#include <vector>

class QAbstractButton;

namespace Ui {
class ProfiSAFESlaveWidget;
}

/// The page of the ProfiSAFE slave: its feed voltage, its process data bit by bit, and two commands.
class ProfiSAFESlaveWidget : public PageBase
{
    Q_OBJECT

public:
    ProfiSAFESlaveWidget();
    ~ProfiSAFESlaveWidget() override;

    void refreshStatus() override;

protected:
    void showEvent(QShowEvent* event) override;

private slots:
    void on_btn_emgReset_clicked();
    void on_btn_errorConfir_clicked();
    void slotGetDescData();

private:
    static constexpr int ElementCount = 16; // of the process data

    // A value of the command word and the button that gives it.
    struct Command
    {
        QAbstractButton* button;
        int value;
        bool pending; // given, and not seen carried out yet
    };
    // Half of the process data and its columns of the table.
    struct Block
    {
        int firstColumn;
        QMap<int, QString> descriptions; // of the bits
        std::vector<StatusLight> lights; // by row, which is the bit
    };

    void buildTable();
    void buildRow(Block& block, int row);
    void showDescriptions(const Block& block);
    void give(Command& command);
    void refreshCommands();
    void refreshVoltage();
    void refreshProcessData();
    void showChangedBits(int element, unsigned changed, unsigned value);

    std::unique_ptr<Ui::ProfiSAFESlaveWidget> ui;
    Command m_errorConfirmation{};
    Command m_emergencyReset{};
    std::array<Block, 2> m_blocks;                 // outputs, inputs
    std::array<int, ElementCount> m_processData{}; // as last shown
    int m_feedVoltage = 0;
    bool m_descriptionsLoaded = false;
    bool m_firstRefresh = true;
};

#endif

#include "LogTab.h"

#include "SimulatedController.h"

#include <QPlainTextEdit>
#include <QPushButton>
#include <QTime>
#include <QVBoxLayout>

namespace {
constexpr int MaxLines = 5000;
} // namespace

LogTab::LogTab(SimulatedController& simulated, QWidget* parent)
    : PanelTab(simulated, parent)
{
    auto* log = new QPlainTextEdit;
    log->setObjectName(QStringLiteral("trafficLog"));
    log->setReadOnly(true);
    log->setMaximumBlockCount(MaxLines);
    connect(&controller().traffic(), &Traffic::logged, log, [log](const QString& line) {
        log->appendPlainText(QTime::currentTime().toString(QStringLiteral("hh:mm:ss.zzz  ")) + line);
    });
    connect(&controller(), &SimulatedController::stateChanged, log, [this, log] {
        log->appendPlainText(QTime::currentTime().toString(QStringLiteral("hh:mm:ss.zzz  ")) +
                             (controller().isUp() ? tr("controller up") : tr("controller down")));
    });
    auto* clear = new QPushButton(tr("Clear"));
    clear->setObjectName(QStringLiteral("clearLog"));
    connect(clear, &QPushButton::clicked, log, &QPlainTextEdit::clear);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(log);
    layout->addWidget(clear, 0, Qt::AlignRight);
}

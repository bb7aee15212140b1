#include "SwitchBoard.h"

#include "BusFileDataManager.h"
#include "ServiceFiles.h"
#include "SwitchRules.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QSignalBlocker>

#include <algorithm>

using namespace BusSwitches;

namespace {
constexpr int SwitchColumns = 2;
constexpr QSize IconSize(44, 24); // that of the pictures
} // namespace

SwitchBoard::SwitchBoard(QWidget* page)
{
    for (int i = 0; i < Count; ++i) {
        m_combos[i] = new QComboBox(page);
        m_combos[i]->setObjectName(QLatin1String(rows()[i].objectName));
        m_combos[i]->setIconSize(IconSize);
        m_combos[i]->addItem(QIcon(QStringLiteral(":/image/switch_off.png")), tr("OFF"));
        m_combos[i]->addItem(QIcon(QStringLiteral(":/image/switch_on.png")), tr("ON"));
    }
    takeRunning();
    // Until it is known that the controller has them.
    combo(EipSlave)->setEnabled(false);
    combo(PfnSlave)->setEnabled(false);
}

void SwitchBoard::takeRunning()
{
    const int reading = ServiceFiles::readings(ConfigFile::BusRoles);
    if (reading == m_reading)
        return;
    m_reading = reading;
    BusFileDataManager* service = BusFileDataManager::getInstance();
    const std::vector<BusName> running = service->getBusNameList(true, true);
    for (int i = 0; i < Count; ++i)
        m_running[i] = std::any_of(running.begin(), running.end(), [i](const BusName& bus) {
            return bus.name == QLatin1String(rows()[i].busName());
        });
    m_running[FreeBus] = service->isOpenFreeBus();
}

void SwitchBoard::layOut(QGridLayout* layout)
{
    // The first one stands alone, so that slave and master of a bus stand side by side.
    int cell = 0;
    for (int i = 0; i < Count; ++i) {
        auto* label = new QLabel(tr(rows()[i].label), layout->parentWidget());
        label->setWordWrap(true);
        label->setBuddy(m_combos[i]);
        m_labels[i] = label;
        const int column = cell % SwitchColumns * (SwitchColumns + 1);
        layout->addWidget(label, cell / SwitchColumns, column);
        layout->addWidget(m_combos[i], cell / SwitchColumns, column + 1);
        cell += i == Mes ? SwitchColumns : 1;
    }
}

bool SwitchBoard::isOn(Switch which) const
{
    return combo(which)->isEnabled() ? combo(which)->currentIndex() != Off : runs(which);
}

RoleTable::States SwitchBoard::switchedOn() const
{
    RoleTable::States on{};
    for (int i = 0; i < Count; ++i)
        on[static_cast<std::size_t>(rows()[i].role)] = isOn(static_cast<Switch>(i));
    return on;
}

QString SwitchBoard::choices() const
{
    QString on;
    for (int i = 0; i < Count; ++i)
        on += QLatin1Char(isOn(static_cast<Switch>(i)) ? '1' : '0');
    return on;
}

void SwitchBoard::setToRunning(Switch which) const
{
    combo(which)->setCurrentIndex(runs(which) ? On : Off);
}

void SwitchBoard::setProfisafePresent(bool present)
{
    m_profisafePresent = present;
    combo(EtherCatMaster)->setEnabled(!present);
    combo(EipMaster)->setEnabled(!present);
}

void SwitchBoard::showRunning(bool overrideRead)
{
    // Those of the second list warn about what they lack, and count their change. The PROFINET slave's switch
    // is in neither: the idle tick sets it, once.
    for (const Switch which :
         {Mes, EtherCatMaster, DeviceNetSlave, MtcpMaster, EtherCatSlave, DeviceNetMaster, FreeBus}) {
        const QSignalBlocker blocker(combo(which));
        setToRunning(which);
    }
    // Set back without being counted, so that setting them again is a change, and wants its command.
    m_changed[DeviceNetSlave] = m_changed[DeviceNetMaster] = false;
    for (const Switch which : {EipSlave, EipMaster, PfnMaster})
        setToRunning(which);
    // Not before it is set: what is loaded counts as no change.
    combo(EipSlave)->setEnabled(true);
    combo(EtherCatSlave)->setEnabled(overrideRead);
    if (!overrideRead)
        combo(EtherCatSlave)->setCurrentIndex(Off);
}

void SwitchBoard::showProfinetSlave()
{
    combo(PfnSlave)->setEnabled(true);
    const QSignalBlocker blocker(combo(PfnSlave));
    if (runs(PfnSlave))
        combo(PfnSlave)->setCurrentIndex(On);
}

// A label is touched only when it changes: that lays out and paints.
int SwitchBoard::markDifferences() const
{
    int differences = 0;
    for (int i = 0; i < Count; ++i) {
        const bool isMarked = differs(static_cast<Switch>(i));
        differences += isMarked ? 1 : 0;
        QLabel* label = m_labels[i];
        if (label->property("differs").toBool() == isMarked)
            continue;
        const QString text = tr(rows()[i].label);
        label->setProperty("differs", isMarked);
        label->setText(isMarked ? tr("%1 \u25CF").arg(text) : text);
    }
    return differences;
}

void SwitchBoard::toggleChanged(Switch which)
{
    if (combo(which)->isEnabled())
        m_changed[which] = !m_changed[which];
}

bool SwitchBoard::isCommandWanted(Switch which) const
{
    return combo(which)->isEnabled() && m_changed[which];
}

const char* SwitchBoard::freeConfigurationObjection(Switch which) const
{
    return SwitchRules::freeConfigurationObjection(rows()[which].role, switchedOn(), m_profisafePresent);
}

#include "PerformanceBox.h"

#include "BusFileDataManager.h"
#include "FieldbusSettingLib.h"

#include <QCheckBox>
#include <QSignalBlocker>

namespace {
constexpr int NotAllowed = -1;
constexpr int NoBus = -1;
} // namespace

PerformanceBox::PerformanceBox(QCheckBox* box, int bus)
    : m_box(box)
    , m_bus(bus)
{
}

void PerformanceBox::load()
{
    const int word = FieldbusSettingLib::getInstance()->get_ifidbus_performance_switch();
    const QSignalBlocker blocker(m_box);
    m_box->setChecked((word & (1 << m_bus)) != 0);
}

void PerformanceBox::clicked(bool checked)
{
    FieldbusSettingLib* lib = FieldbusSettingLib::getInstance();
    const int value = BusFileDataManager::getInstance()->getPerformanceValue(
        m_bus, lib->get_ifidbus_performance_switch(), checked);
    if (value != NotAllowed)
        lib->set_ifidbus_performance_switch(value);
    else if (checked)
        m_box->setChecked(false);
}

// The service remembers the last loser only, for all pages together; the page that has seen it clears it.
void PerformanceBox::pageShown()
{
    if (!m_box->isChecked() || g_lastBusType != m_bus)
        return;
    m_box->setChecked(false);
    g_lastBusType = NoBus;
}

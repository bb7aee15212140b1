#include "FunctionTable.h"

#include <QCheckBox>

FunctionTable::FunctionTable(PageBase* page, QTableWidget* table, const Section& section)
    : m_page(page)
    , m_section(section)
    , m_devices(table)
{
}

void FunctionTable::fill()
{
    m_devices.fill(record());
    m_devices.watch(m_page->edits());
}

void FunctionTable::save()
{
    if (!m_page->isReadyToSave() || !m_page->mayBeSaved(m_section.saveWhen) ||
        !m_page->confirmed(m_page->translated(QT_TRANSLATE_NOOP("PageBase", "Are you sure to save?"))))
        return;
    m_devices.storeFlags(record());
    if (m_page->writeAndSend(ConfigFile::Override, m_section.write) == Outcome::Done)
        m_page->offerRestart(Restart::Way::WhenAllowed);
}

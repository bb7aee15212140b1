#include "StatusData.h"

#include "FileChanges.h"
#include "StatusMain.h"
#include "WorkFolder.h"

StatusData::StatusData()
    : m_watch(WorkFolder::path())
    , m_history(m_watch, WorkFolder::path(), FileChanges::store())
{
}

StatusData::~StatusData()
{
    delete m_main;
}

QWidget* StatusData::getCentralWidget()
{
    if (!m_main)
        m_main = new StatusMain({m_watch, m_history});
    return m_main;
}

QWidget* StatusData::currentCentralWidget()
{
    return m_main;
}

StatusMain* StatusData::mainPage() const
{
    return m_main;
}

void StatusData::slotIdle()
{
    m_watch.tick();
    m_history.tick();
}

#include "TextFileSlavePage.h"

#include "EndianNames.h"

#include <QComboBox>

TextFileSlavePage::TextFileSlavePage(const Role& role)
    : PageBase(role.className)
    , m_role(role)
{
}

void TextFileSlavePage::bind(QLabel* light, QCheckBox* performanceBox, QComboBox* endianBox)
{
    m_light.emplace(light);
    m_performanceBox.emplace(performanceBox, m_role.bus);
    for (const char* name : EndianNames)
        endianBox->addItem(QLatin1String(name));
}

void TextFileSlavePage::refreshStatus()
{
    m_light->show((lib()->get_ifidbus_commun_state() & (1 << m_role.bus)) != 0);
}

void TextFileSlavePage::showEvent(QShowEvent* event)
{
    m_performanceBox->pageShown();
    PageBase::showEvent(event);
}

void TextFileSlavePage::showEndian(QComboBox* endianBox, const QString& name)
{
    endianBox->setCurrentIndex(qMax(0, endianBox->findText(name)));
}

Outcome TextFileSlavePage::load()
{
    return fetchAndRead(m_role.driverFile, plain(m_role.read));
}

void TextFileSlavePage::saveFiles()
{
    if (writeAndSend(m_role.driverFile, plain(m_role.write)) != Outcome::Done)
        return;
    const ConfigFile variant = m_freeConfiguration ? m_role.freeVariant : m_role.fixedVariant;
    const auto writeVariant = [this, variant](const QString& localPath) {
        return (lib()->*m_role.writeVariant)(localPath, FileLocations::of(variant).controller);
    };
    if (writeAndSend(variant, writeVariant) == Outcome::Done)
        offerRestart(Restart::Way::AtOnce);
}

#include "TextFileSlave.h"

#include "EndianNames.h"

#include <QComboBox>

TextFileSlave::TextFileSlave(PageBase* page, const Role& role, QLabel* light, QCheckBox* performanceBox,
                             QComboBox* endianBox)
    : m_page(page)
    , m_role(role)
    , m_light(light, StatusLight::Face::Enabled)
    , m_performanceBox(performanceBox, role.bus)
{
    for (const char* name : EndianNames)
        endianBox->addItem(QLatin1String(name));
}

void TextFileSlave::refreshStatus()
{
    m_light.show((PageBase::lib()->get_ifidbus_commun_state() & (1 << m_role.bus)) != 0);
}

void TextFileSlave::save()
{
    const ConfigFile variant = m_freeConfiguration ? m_role.freeVariant : m_role.fixedVariant;
    m_page->alsoSends(variant);
    if (m_page->writeAndSend(m_role.driverFile, PageBase::plain(m_role.write)) != Outcome::Done)
        return;
    const auto writeVariant = [write = m_role.writeVariant, variant](const QString& localPath) {
        return (PageBase::lib()->*write)(localPath, FileLocations::of(variant).controller);
    };
    if (m_page->writeAndSend(variant, writeVariant) == Outcome::Done)
        m_page->offerRestart(Restart::Way::AtOnce);
}

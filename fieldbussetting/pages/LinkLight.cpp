#include "LinkLight.h"

#include "StatusLight.h"

#include <QLabel>

LinkLight::LinkLight(QLabel* label)
    : m_label(label)
{
    m_label->setFixedSize(StatusLight::Size, StatusLight::Size);
    m_label->setEnabled(false);
}

void LinkLight::show(bool linked)
{
    if (linked == m_linked)
        return;
    m_linked = linked;
    m_label->setEnabled(linked);
}

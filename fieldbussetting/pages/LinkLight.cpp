#include "LinkLight.h"

#include <QLabel>

LinkLight::LinkLight(QLabel* label, int size)
    : m_label(label)
{
    m_label->setFixedSize(size, size);
    m_label->setEnabled(false);
}

void LinkLight::show(bool linked)
{
    if (linked == m_linked)
        return;
    m_linked = linked;
    m_label->setEnabled(linked);
}

#include "StatusLight.h"

#include <QLabel>

namespace {

// In the order of StatusLight::State.
constexpr const char* Styles[] = {
    "border-image: url(:/image/C0_Done_Grey.png);",
    "border-image: url(:/image/C0_Done_Green.png);",
    "border-image: url(:/image/C0_Done_Red.png);",
    "border-image: url(:/image/C0_Done_warning.png);",
};

constexpr const char* GreyAgain = "border-image: url(:/image/C0_Done_Grey.png)";

} // namespace

StatusLight::StatusLight(QLabel* label, Face face, int size)
    : m_label(label)
    , m_face(face)
    , m_state(face == Face::Enabled ? Red : Grey)
{
    m_label->setFixedSize(size, size);
    if (m_face == Face::Enabled)
        m_label->setEnabled(false);
    else
        m_label->setStyleSheet(QLatin1String(Styles[m_state]));
}

void StatusLight::show(State state)
{
    if (state == m_state)
        return;
    m_state = state;
    if (m_face == Face::Enabled)
        m_label->setEnabled(state == Green);
    else if (m_face == Face::ImageGreyAgain && state == Grey)
        m_label->setStyleSheet(QLatin1String(GreyAgain));
    else
        m_label->setStyleSheet(QLatin1String(Styles[state]));
}

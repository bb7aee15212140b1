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

} // namespace

StatusLight::StatusLight(QLabel* label)
    : m_label(label)
{
    m_label->setFixedSize(Size, Size);
    m_label->setStyleSheet(QLatin1String(Styles[Grey]));
}

void StatusLight::show(State state)
{
    if (state == m_state)
        return;
    m_state = state;
    m_label->setStyleSheet(QLatin1String(Styles[state]));
}

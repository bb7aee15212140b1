#ifndef LINKLIGHT_H
#define LINKLIGHT_H

#include "StatusLight.h"

class QLabel;

/// A light whose style sheet shows green while its label is enabled and red while it is disabled. The label
/// is touched only when the state changes; it starts disabled.
class LinkLight
{
public:
    /// `size` in pixels.
    explicit LinkLight(QLabel* label, int size = StatusLight::Size);
    void show(bool linked);

private:
    QLabel* m_label;
    bool m_linked = false;
};

#endif

#ifndef LINKLIGHT_H
#define LINKLIGHT_H

class QLabel;

/// A light whose style sheet shows green while its label is enabled and red while it is disabled. The label
/// is touched only when the state changes; it starts disabled.
class LinkLight
{
public:
    explicit LinkLight(QLabel* label);
    void show(bool linked);

private:
    QLabel* m_label;
    bool m_linked = false;
};

#endif

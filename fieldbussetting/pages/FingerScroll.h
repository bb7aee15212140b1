#ifndef FINGERSCROLL_H
#define FINGERSCROLL_H

class QAbstractScrollArea;

/// Lets a finger that is drawn over the area scroll it, beside its scroll bar. A short press still reaches
/// what lies under it.
void scrollByFinger(QAbstractScrollArea* area);

#endif

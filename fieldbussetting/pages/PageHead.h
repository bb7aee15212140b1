#ifndef PAGEHEAD_H
#define PAGEHEAD_H

#include "Provenance.h"

#include <QWidget>

class QLabel;

/// The title of a page with what the operator has to know of its contents: a dot while they are edited and
/// not saved, and the line that says where they came from.
class PageHead : public QWidget
{
    Q_OBJECT

public:
    /// Takes the place of `title` in the layout of its page, and the title into itself.
    explicit PageHead(QLabel* title);

    void showProvenance(const Provenance& provenance);
    void showEdited(bool edited);

private:
    QLabel* m_dot;
    QLabel* m_sign;
    QLabel* m_line;
};

#endif

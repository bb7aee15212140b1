#include "TouchCombo.h"

#include <QComboBox>
#include <QStyledItemDelegate>

void fitComboLists(QWidget* root)
{
    const QList<QComboBox*> combos = root->findChildren<QComboBox*>();
    for (QComboBox* combo : combos)
        if (!qobject_cast<QStyledItemDelegate*>(combo->itemDelegate()))
            combo->setItemDelegate(new QStyledItemDelegate(combo));
}

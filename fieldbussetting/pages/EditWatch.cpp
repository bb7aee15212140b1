#include "EditWatch.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>

#include <algorithm>
#include <utility>

void EditWatch::add(QWidget* field)
{
    std::function<QString()> value;
    if (auto* edit = qobject_cast<QLineEdit*>(field)) {
        value = [edit] { return edit->text(); };
        connect(edit, &QLineEdit::textChanged, this, &EditWatch::check);
    } else if (auto* combo = qobject_cast<QComboBox*>(field)) {
        value = [combo] { return QString::number(combo->currentIndex()); };
        connect(combo, qOverload<int>(&QComboBox::currentIndexChanged), this, &EditWatch::check);
    } else if (auto* button = qobject_cast<QAbstractButton*>(field)) {
        value = [button] { return QString::number(button->isChecked()); };
        connect(button, &QAbstractButton::toggled, this, &EditWatch::check);
    } else {
        return;
    }
    // Those that were made anew leave their predecessors behind.
    const auto isGone = [](const Watched& watched) { return !watched.isThere(); };
    m_watched.erase(std::remove_if(m_watched.begin(), m_watched.end(), isGone), m_watched.end());
    const QString settled = value();
    m_watched.push_back({field, std::move(value), true, settled});
}

void EditWatch::add(std::function<QString()> value)
{
    const QString settled = value();
    m_watched.push_back({nullptr, std::move(value), false, settled});
}

void EditWatch::settle()
{
    for (Watched& watched : m_watched) {
        if (watched.isThere())
            watched.settled = watched.value();
    }
    m_paused = false;
    setEdited(false);
}

void EditWatch::resume()
{
    m_paused = false;
    check();
}

void EditWatch::check()
{
    if (m_paused)
        return;
    setEdited(std::any_of(m_watched.begin(), m_watched.end(), [](const Watched& watched) {
        return watched.isThere() && watched.value() != watched.settled;
    }));
}

void EditWatch::setEdited(bool edited)
{
    if (edited == m_edited)
        return;
    m_edited = edited;
    emit changed(edited);
}

#ifndef EDITWATCH_H
#define EDITWATCH_H

#include <QObject>
#include <QPointer>
#include <QString>

#include <functional>
#include <vector>

/// Knows whether what the operator can change on a form differs from what stood there when it was settled:
/// when it was filled, or saved.
class EditWatch : public QObject
{
    Q_OBJECT

public:
    /// Watches a line edit, a combo box or a check box, for as long as it exists. It counts as settled.
    void add(QWidget* field);
    /// Watches a value that no field holds; whoever changes it calls `check`.
    void add(std::function<QString()> value);

    /// From here on changes are not looked at, until it is settled.
    void pause() { m_paused = true; }
    /// What stands there now is not edited.
    void settle();
    /// What stands there now may be.
    void resume();
    /// Looks whether something changed.
    void check();
    bool isEdited() const { return m_edited; }

signals:
    void changed(bool edited);

private:
    struct Watched
    {
        QPointer<QWidget> field; // null when it is gone, or there never was one
        std::function<QString()> value;
        bool hasField;
        QString settled;

        bool isThere() const { return !hasField || field; }
    };
    void setEdited(bool edited);

    std::vector<Watched> m_watched;
    bool m_paused = false;
    bool m_edited = false;
};

#endif

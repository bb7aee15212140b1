#ifndef HOST_NUMERICKEYBOARD_H
#define HOST_NUMERICKEYBOARD_H

#include "FieldHints.h"
#include "NumericEntry.h"

#include <QDialog>

#include <optional>

class QGridLayout;
class QLabel;
class QLayout;
class QPushButton;

/// The modal numeric keyboard, for fingers and for a hardware keyboard. A value that may not be taken is
/// refused here: the reason is shown and what was typed stays.
class NumericKeyboard : public QDialog
{
    Q_OBJECT

public:
    NumericKeyboard(NumericEntry entry, const FieldHints& hints, QWidget* parent);

    /// What the keyboard was confirmed with.
    struct Answer
    {
        NumericEntry entry;
        bool goOn; ///< to the next field
    };
    /// Opens the keyboard for `owner`. Nothing when it was cancelled, or when `owner` or the window behind
    /// died meanwhile.
    static std::optional<Answer> ask(QObject* owner, const NumericEntry& entry, const FieldHints& hints);

    const NumericEntry& entry() const { return m_entry; }
    QString caption() const { return m_hints.caption; }
    QString unit() const { return m_hints.unit; }
    /// Why the last confirmation was refused; empty when it was not.
    QString refusal() const { return m_refusal; }
    /// The button of a key; null when it is not offered.
    QPushButton* button(char key) const;

    void accept() override;

protected:
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QLabel* label(const char* name, const QString& text);
    QLayout* entryLine();
    void prepareHint();
    void addKeys(QGridLayout* grid);
    QLayout* closingKeys();
    void acceptAndGoOn();
    QString hintText() const;
    void press(char key);
    void refresh();

    NumericEntry m_entry;
    FieldHints m_hints;
    bool m_goesOn = false;
    QString m_refusal;
    QLabel* m_display;
    QLabel* m_hint;
};

#endif

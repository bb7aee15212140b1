#ifndef ZELCORE_QTOUCHLINEEDIT_H
#define ZELCORE_QTOUCHLINEEDIT_H

#include <QLineEdit>

/// Line edit for gloves: a press (or Return on a hardware keyboard) opens the numeric keyboard that fits
/// its cast. The text changes only when the keyboard is confirmed, or through `setText`.
class QTouchLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    /// What is entered. The numbers are the host's; the gaps are kinds that no application here uses.
    enum Cast {
        CastText = 0,        ///< any text, on the hardware keyboard
        CastUnsigned = 1,    ///< whole number from 0
        CastReal = 2,        ///< number with decimals
        CastHexadecimal = 3, ///< whole number in base 16
        CastIpAddress = 4,   ///< IPv4 address, dotted
        CastInteger = 6      ///< whole number
    };

    explicit QTouchLineEdit(QWidget* parent = nullptr);

    /// `decimals`: digits after the point of a real number; -1 leaves them free.
    void setCast(int cast, int decimals = -1);
    int cast() const { return m_cast; }
    int decimals() const { return m_decimals; }
    /// Both ends belong to the range. Without a call any number that the cast allows is accepted.
    void setValueRange(double minimum, double maximum);

signals:
    /// The operator confirmed `text` on the keyboard; emitted after the edit shows it.
    void valueSetted(QString text);

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void openKeyboard();

    int m_cast = CastText;
    int m_decimals = -1;
    bool m_ranged = false;
    double m_minimum = 0.0;
    double m_maximum = 0.0;
};

#endif

#ifndef HOST_NUMERICENTRY_H
#define HOST_NUMERICENTRY_H

#include <QCoreApplication>
#include <QString>

/// What is typed on a numeric keyboard, without the keyboard: what a key does to the text, and whether the
/// text is a value that may be taken.
///
/// A key is a character: '0' to '9', 'A' to 'F' in base 16, '.', '-', and `Backspace` and `Clear`.
class NumericEntry
{
    Q_DECLARE_TR_FUNCTIONS(NumericEntry)

public:
    enum class Kind { Decimal, Hexadecimal, Real, IpAddress };

    static constexpr char Backspace = '\b';
    static constexpr char Clear = '\x7f';

    /// `decimals`: digits after the point of a real number, -1 for any number of them.
    explicit NumericEntry(Kind kind, int decimals = -1);

    /// Both ends belong to the range; the ends may come in any order. Without a call: 32 bits without sign
    /// in base 16, 32 bits with sign in base 10, +-1e9 for reals.
    void setRange(double minimum, double maximum);
    /// Takes the value that is to be changed. It is marked: the first key replaces it; only backspace
    /// changes it instead, so that the end of an address can be put right.
    void setText(const QString& text);
    /// The same with a number, written as the kind writes it; a number that is not finite gives no text.
    void setNumber(double value);

    Kind kind() const { return m_kind; }
    double minimum() const { return m_minimum; }
    double maximum() const { return m_maximum; }
    /// What was typed so far.
    QString text() const { return m_text; }
    bool isMarked() const { return m_marked; }

    /// Whether the key makes sense for this kind and range at all.
    bool offers(char key) const;
    /// Applies a key; false when it changes nothing.
    bool press(char key);

    /// Empty when the text is a value that may be taken, else the reason in words.
    QString refusal() const;
    /// The value of the text; 0 when there is none. Rounded to the decimals of the entry.
    double value() const;
    /// The value as it is to be written: no leading zeros, reals with exactly their decimals.
    QString result() const;
    /// What may be entered, in words.
    QString rangeText() const;

private:
    bool parse(double& value) const;
    QString numberText(double value) const;
    void pressDigit(char key);
    void pressPoint();
    void pressSign();

    Kind m_kind;
    int m_decimals;
    double m_minimum;
    double m_maximum;
    QString m_text;
    bool m_marked = false;
};

#endif

#include "NumericEntry.h"

#include "Ipv4Text.h"

#include <QLocale>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <tuple>

namespace {
// A double keeps 15 digits, so no more can be typed.
constexpr int MostDigits = 15;
constexpr int Octets = 4;
constexpr int OctetDigits = 3;
constexpr double RealLimit = 1e9;
constexpr double HexadecimalLimit = 0x1p62; // fits 64 bits with sign

bool isOneOf(char key, const char* keys)
{
    return key != '\0' && std::strchr(keys, key) != nullptr;
}

// Everything up to the digits that the next key belongs to: the sign, or the octets before.
int startOfDigits(const QString& text, bool isAddress)
{
    return isAddress ? text.lastIndexOf(QLatin1Char('.')) + 1 : text.startsWith(QLatin1Char('-')) ? 1 : 0;
}
} // namespace

NumericEntry::NumericEntry(Kind kind, int decimals)
    : m_kind(kind)
    , m_decimals(decimals)
    , m_minimum(kind == Kind::Hexadecimal ? 0.0
                : kind == Kind::Real      ? -RealLimit
                                          : std::numeric_limits<qint32>::min())
    , m_maximum(kind == Kind::Hexadecimal ? std::numeric_limits<quint32>::max()
                : kind == Kind::Real      ? RealLimit
                                          : std::numeric_limits<qint32>::max())
{
}

void NumericEntry::setRange(double minimum, double maximum)
{
    if (std::isnan(minimum) || std::isnan(maximum))
        return;
    std::tie(m_minimum, m_maximum) = std::minmax({minimum, maximum});
}

void NumericEntry::setText(const QString& text)
{
    m_text = text.trimmed();
    m_marked = !m_text.isEmpty();
}

void NumericEntry::setNumber(double value)
{
    setText(std::isfinite(value) ? numberText(value) : QString());
}

bool NumericEntry::offers(char key) const
{
    switch (key) {
    case Backspace:
    case Clear:
        return true;
    case '.':
        return m_kind == Kind::IpAddress || (m_kind == Kind::Real && m_decimals != 0);
    case '-':
        return m_kind != Kind::IpAddress && m_minimum < 0.0;
    default:
        return isOneOf(key, m_kind == Kind::Hexadecimal ? "0123456789ABCDEF" : "0123456789");
    }
}

bool NumericEntry::press(char key)
{
    if (!offers(key))
        return false;
    const QString before = m_text;
    const bool wasMarked = m_marked;
    m_marked = false;
    if (key == Clear) {
        m_text.clear();
    } else if (key == Backspace) {
        m_text.chop(1);
    } else {
        if (wasMarked)
            m_text.clear();
        if (key == '-')
            pressSign();
        else if (key == '.')
            pressPoint();
        else
            pressDigit(key);
    }
    return wasMarked || m_text != before;
}

void NumericEntry::pressDigit(char key)
{
    const bool address = m_kind == Kind::IpAddress;
    const int start = startOfDigits(m_text, address);
    const QString digits = m_text.mid(start);
    const int point = address ? -1 : digits.indexOf(QLatin1Char('.'));
    if (digits.size() - (point < 0 ? 0 : 1) >= (address ? OctetDigits : MostDigits))
        return;
    if (point >= 0 && m_decimals >= 0 && digits.size() - point - 1 >= m_decimals)
        return;
    // A zero in front of a digit would say nothing, and in an address it could be read as base 8.
    if (digits == QLatin1String("0"))
        m_text.chop(1);
    m_text.append(QLatin1Char(key));
}

void NumericEntry::pressPoint()
{
    if (m_kind == Kind::IpAddress) {
        const bool octetIsOpen = !m_text.isEmpty() && !m_text.endsWith(QLatin1Char('.'));
        if (octetIsOpen && m_text.count(QLatin1Char('.')) < Octets - 1)
            m_text.append(QLatin1Char('.'));
        return;
    }
    if (m_text.contains(QLatin1Char('.')))
        return;
    if (startOfDigits(m_text, false) == m_text.size())
        m_text.append(QLatin1Char('0'));
    m_text.append(QLatin1Char('.'));
}

void NumericEntry::pressSign()
{
    if (m_text.startsWith(QLatin1Char('-')))
        m_text.remove(0, 1);
    else
        m_text.prepend(QLatin1Char('-'));
}

QString NumericEntry::refusal() const
{
    if (m_text.isEmpty())
        return tr("Nothing was entered.");
    if (m_kind == Kind::IpAddress)
        // `result` writes it without leading zeros.
        return isIpv4(m_text, LeadingZeros::Allowed)
                   ? QString()
                   : tr("An address is four numbers from 0 to 255 with points between.");
    double number = 0.0;
    if (!parse(number))
        return tr("This is not a number.");
    if (number < m_minimum)
        return tr("Too small: at least %1.").arg(numberText(m_minimum));
    if (number > m_maximum)
        return tr("Too large: at most %1.").arg(numberText(m_maximum));
    return {};
}

double NumericEntry::value() const
{
    double number = 0.0;
    return parse(number) ? number : 0.0;
}

QString NumericEntry::result() const
{
    if (m_kind != Kind::IpAddress)
        return m_kind == Kind::Real && m_decimals >= 0 ? QString::number(value(), 'f', m_decimals)
                                                       : numberText(value());
    QStringList octets = m_text.split(QLatin1Char('.'));
    for (QString& octet : octets)
        octet = QString::number(octet.toInt());
    return octets.join(QLatin1Char('.'));
}

QString NumericEntry::rangeText() const
{
    return m_kind == Kind::IpAddress ? tr("0.0.0.0 to 255.255.255.255")
                                     : tr("%1 to %2").arg(numberText(m_minimum), numberText(m_maximum));
}

// Takes what is in the text now, which need not have been typed: an old value may be anything.
bool NumericEntry::parse(double& value) const
{
    bool ok = false;
    double number = 0.0;
    if (m_kind == Kind::Hexadecimal)
        number = static_cast<double>(m_text.toLongLong(&ok, 16));
    else
        number = m_text.toDouble(&ok);
    if (!ok || !std::isfinite(number))
        return false;
    if (m_kind == Kind::Real && m_decimals >= 0)
        number = QString::number(number, 'f', m_decimals).toDouble();
    else if (m_kind == Kind::Decimal && number != std::trunc(number))
        return false;
    // No "-0".
    value = number == 0.0 ? 0.0 : number;
    return true;
}

QString NumericEntry::numberText(double value) const
{
    switch (m_kind) {
    case Kind::Hexadecimal: {
        const auto magnitude =
            static_cast<qulonglong>(std::min(std::trunc(std::abs(value)), HexadecimalLimit));
        const QString digits = QString::number(magnitude, 16).toUpper();
        return value < 0.0 && magnitude != 0 ? QLatin1Char('-') + digits : digits;
    }
    case Kind::Real:
        return QString::number(value, 'f', QLocale::FloatingPointShortest);
    default:
        return QString::number(std::trunc(value) + 0.0, 'f', 0);
    }
}

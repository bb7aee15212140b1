#include "NumericEntry.h"
#include "Rows.h"

#include <QtTest>

#include <limits>

using Kind = NumericEntry::Kind;
Q_DECLARE_METATYPE(NumericEntry::Kind)

namespace {
constexpr double Free = std::numeric_limits<double>::quiet_NaN(); // no range set
} // namespace

using KeysRows = Rows<Kind, int, double, QString, QByteArray, QString>;
using AcceptanceRows = Rows<Kind, int, double, double, QString, QString>;
using NumberRows = Rows<Kind, double, QString>;

/// The numeric keyboard's rules: what keys make of a text, and which texts are values.
class NumericEntryTest : public QObject
{
    Q_OBJECT

private slots:
    void keys_data()
    {
        const KeysRows row;

        row("first digit replaces", Kind::Decimal, -1, -9.0, "125", "7", "7");
        row("first point replaces", Kind::Real, 3, 0.0, "1.25", ".5", "0.5");
        row("first backspace edits", Kind::Decimal, -1, 0.0, "125", "\b7", "127");
        row("first sign replaces", Kind::Decimal, -1, -999.0, "125", "-7", "-7");
        row("sign twice", Kind::Decimal, -1, -999.0, "", "12--", "12");
        row("no sign without negatives", Kind::Decimal, -1, 0.0, "", "-12", "12");
        row("clear", Kind::Decimal, -1, 0.0, "125", "\x7f", "");
        row("leading zeros", Kind::Decimal, -1, 0.0, "", "0007", "7");
        row("zero stays before point", Kind::Real, -1, 0.0, "", "00.07", "0.07");
        row("no point in whole numbers", Kind::Decimal, -1, 0.0, "", "1.5", "15");
        row("one point", Kind::Real, -1, 0.0, "", "1.2.3", "1.23");
        row("no more decimals", Kind::Real, 3, 0.0, "", "1.23456", "1.234");
        row("no more than 15 digits", Kind::Decimal, -1, 0.0, "", "1234567890123456789", "123456789012345");
        row("letters in base 16", Kind::Hexadecimal, -1, 0.0, "1F", "0A0G", "A0");
        row("address", Kind::IpAddress, -1, 0.0, "10.0.0.1", "192.168.1.10", "192.168.1.10");
        row("address, octet of three digits", Kind::IpAddress, -1, 0.0, "", "1921.1680.0.1", "192.168.0.1");
        row("address, leading zeros", Kind::IpAddress, -1, 0.0, "", "010.001.0.00", "10.1.0.0");
        row("address, empty octets", Kind::IpAddress, -1, 0.0, "", ".1..2.", "1.2.");
        row("address, fifth octet", Kind::IpAddress, -1, 0.0, "", "1.2.3.4.5", "1.2.3.45");
    }

    void keys()
    {
        const auto [kind, decimals, minimum, old, keys, text] = KeysRows::current();

        NumericEntry entry(kind, decimals);
        entry.setRange(minimum, 1e15);
        entry.setText(old);
        for (const char key : keys)
            entry.press(key);
        QCOMPARE(entry.text(), text);
    }

    void acceptance_data()
    {
        const AcceptanceRows row;

        row("lower end", Kind::Decimal, -1, 1, 63, "1", "1");
        row("upper end", Kind::Decimal, -1, 1, 63, "63", "63");
        row("above", Kind::Decimal, -1, 1, 63, "64", "");
        row("ends the other way round", Kind::Decimal, -1, 63, 1, "2", "2");
        row("nothing", Kind::Decimal, -1, 0, 63, "", "");
        row("sign alone", Kind::Decimal, -1, -63, 63, "-", "");
        row("no minus zero", Kind::Decimal, -1, -63, 63, "-0", "0");
        row("old value with a zero in front", Kind::Decimal, -1, 0, 63, "007", "7");
        row("old value not whole", Kind::Decimal, -1, 0, 63, "7.5", "");
        row("32 bits by default", Kind::Decimal, -1, Free, Free, "2147483647", "2147483647");
        row("more than 32 bits", Kind::Decimal, -1, Free, Free, "2147483648", "");
        row("decimals are filled up", Kind::Real, 3, 0.1, 10, "5", "5.000");
        row("point at the end", Kind::Real, 3, 0.1, 10, "5.", "5.000");
        row("real lower end", Kind::Real, 3, 0.1, 10, "0.1", "0.100");
        row("real above", Kind::Real, 3, 0.1, 10, "10.001", "");
        row("old value is rounded", Kind::Real, 3, 0.1, 10, "1.23456", "1.235");
        row("rounding leaves the range", Kind::Real, 0, 0, 9.6, "9.55", "");
        row("free decimals, never an exponent", Kind::Real, -1, Free, Free, "0.00001", "0.00001");
        row("no minus zero with decimals", Kind::Real, 2, -1, 1, "-0.001", "0.00");
        row("not a number", Kind::Real, -1, Free, Free, "nan", "");
        row("exponent beyond doubles", Kind::Real, -1, Free, Free, "1e400", "");
        row("base 16", Kind::Hexadecimal, -1, 0, 65535, "fFfF", "FFFF");
        row("base 16 with prefix", Kind::Hexadecimal, -1, 0, 65535, "0x00", "0");
        row("base 16 beyond 64 bits", Kind::Hexadecimal, -1, Free, Free, "FFFFFFFFFFFFFFFFF", "");
        row("address", Kind::IpAddress, -1, Free, Free, "192.168.1.255", "192.168.1.255");
        row("address, zeros in front", Kind::IpAddress, -1, Free, Free, "192.168.001.010", "192.168.1.10");
        row("address, octet too large", Kind::IpAddress, -1, Free, Free, "192.168.1.256", "");
        row("address, three octets", Kind::IpAddress, -1, Free, Free, "192.168.1", "");
        row("address, sign", Kind::IpAddress, -1, Free, Free, "1.2.3.-4", "");
    }

    void acceptance()
    {
        const auto [kind, decimals, minimum, maximum, text, result] = AcceptanceRows::current();

        NumericEntry entry(kind, decimals);
        entry.setRange(minimum, maximum);
        entry.setText(text);
        QVERIFY2(entry.refusal().isEmpty() == !result.isEmpty(), qPrintable(entry.refusal()));
        if (!result.isEmpty())
            QCOMPARE(entry.result(), result);
    }

    void number_data()
    {
        const NumberRows row;

        row("no exponent", Kind::Decimal, 1e12, "1000000000000");
        row("base 16 negative", Kind::Hexadecimal, -31.0, "-1F");
        row("not finite", Kind::Decimal, std::numeric_limits<double>::infinity(), "");
    }

    void number()
    {
        const auto [kind, number, text] = NumberRows::current();
        NumericEntry entry(kind);
        entry.setNumber(number);
        QCOMPARE(entry.text(), text);
    }
};

QTEST_APPLESS_MAIN(NumericEntryTest)
#include "tst_numericentry.moc"

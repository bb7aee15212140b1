#ifndef KEPTNUMBERS_H
#define KEPTNUMBERS_H

#include <QByteArray>

#include <string_view>
#include <vector>

/// Numbers of a file that are spelled otherwise than they are written here ("0x2A", "2.0", "007", a word).
/// Each is written back byte for byte for as long as nobody has changed its value.
class KeptNumbers
{
public:
    /// Sets `value` to what `word` says: decimal, "0x" and hexadecimal, or a whole number with a point. What
    /// is none of them leaves it as it was. `key` tells the record's numbers apart.
    void read(std::string_view key, std::string_view word, int& value);
    /// The same for a value that was read by other rules.
    void note(std::string_view key, std::string_view word, int value);
    /// What stands for `value` in the file.
    QByteArray written(std::string_view key, int value) const;
    void clear() { m_kept.clear(); }

private:
    struct Kept
    {
        QByteArray key;
        int value;
        QByteArray word;
    };
    std::vector<Kept> m_kept; ///< few or none
};

#endif

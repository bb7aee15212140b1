#include "Checksums.h"

#include <QCryptographicHash>

namespace {

constexpr int SumSize = 64; // hexadecimal digits

// A name with a line end or a backslash is written as sha256sum does: those as \n, \r and \\, and a backslash
// before the line.
QByteArray escaped(const QByteArray& name)
{
    QByteArray out = name;
    return out.replace('\\', "\\\\").replace('\n', "\\n").replace('\r', "\\r");
}

QByteArray unescaped(const QByteArray& name)
{
    QByteArray out;
    for (int i = 0; i < name.size(); ++i) {
        if (name[i] != '\\' || i + 1 == name.size()) {
            out += name[i];
            continue;
        }
        ++i;
        out += name[i] == 'n' ? '\n' : name[i] == 'r' ? '\r' : name[i];
    }
    return out;
}

bool isSum(const QByteArray& word)
{
    return word.size() == SumSize && QByteArray::fromHex(word).toHex() == word;
}

} // namespace

QByteArray Checksums::of(const QByteArray& bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
}

QByteArray Checksums::written(const QString& name, const Sums& sums)
{
    QByteArray out;
    for (const auto& [path, sum] : sums) {
        const QByteArray full = (name + QLatin1Char('/') + path).toUtf8();
        const QByteArray safe = escaped(full);
        out += (safe == full ? QByteArray() : QByteArray("\\")) + sum + "  " + safe + '\n';
    }
    return out;
}

std::optional<Checksums::Sums> Checksums::read(const QByteArray& bytes, const QString& name)
{
    Sums sums;
    const QByteArray folder = name.toUtf8() + '/';
    for (QByteArray line : bytes.split('\n')) {
        if (line.isEmpty())
            continue;
        const bool isEscaped = line.startsWith('\\');
        line = line.mid(isEscaped ? 1 : 0);
        // Two blanks, or a blank and an asterisk: text and binary mode are the same here.
        const QByteArray path = isEscaped ? unescaped(line.mid(SumSize + 2)) : line.mid(SumSize + 2);
        if (!isSum(line.left(SumSize)) || line.mid(SumSize, 1) != " " || !path.startsWith(folder))
            return std::nullopt;
        sums[QString::fromUtf8(path.mid(folder.size()))] = line.left(SumSize);
    }
    return sums;
}

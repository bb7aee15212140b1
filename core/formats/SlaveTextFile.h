#ifndef SLAVETEXTFILE_H
#define SLAVETEXTFILE_H

#include <QByteArray>
#include <QString>

#include <string_view>
#include <vector>

/// What the driver files of the PROFIBUS and EtherNet/IP slaves share: one keyword a line, comments from a
/// semicolon on, and the byte order on a line of its own after RUN_ALWAYS.
namespace SlaveTextFile {

/// A line that a writer owns: every line with the keyword, commented out or not, becomes `written`.
struct OwnedLine
{
    std::string_view keyword;
    QByteArray written;
};

/// Sets `endian` when the trimmed line is an endian name and nothing else, and says so.
bool readEndian(std::string_view line, QString& endian);

/// The file with the byte order and the owned lines replaced and every line
/// trimmed. The first keyword that a line carries decides. Without RUN_ALWAYS the file gets no byte order.
QByteArray rewritten(const QByteArray& content, const QString& endian,
                     const std::vector<OwnedLine>& ownedLines);

} // namespace SlaveTextFile

#endif

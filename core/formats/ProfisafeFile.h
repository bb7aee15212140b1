#ifndef PROFISAFEFILE_H
#define PROFISAFEFILE_H

#include <QByteArray>
#include <QMap>
#include <QString>

/// Record of pfs_description.xml, the texts of the ProfiSAFE bits. Bits without a text are reserved.
struct ProfisafeDescription
{
    static constexpr int MostBit = 127; ///< 16 elements of 8 bits

    QMap<int, QString> outputs; ///< by bit, 0 to MostBit
    QMap<int, QString> inputs;
};

/// The pendant only reads the file.
namespace ProfisafeFile {

/// An entry with another number is passed over; of two with one number the last counts. False (and
/// `description` untouched) when the bytes are not well-formed or have another root.
bool read(const QByteArray& bytes, ProfisafeDescription& description);

} // namespace ProfisafeFile

#endif

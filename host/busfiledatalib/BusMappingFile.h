#ifndef HOST_BUSMAPPINGFILE_H
#define HOST_BUSMAPPINGFILE_H

#include "BusFileData.h"

#include <QByteArray>

#include <array>
#include <vector>

/// What "fieldbus_config.xml" says: quantities and addresses of every bus, for the free and for the fixed
/// configuration side by side. Everything else in the file survives a write.
class BusMappingFile
{
public:
    enum Mode { Free, Fixed };

    /// Takes a file over; false (not well formed, or a quantity or address that is no number) leaves what was
    /// there.
    bool parse(const QByteArray& bytes);
    /// The file with the quantities as they are now; empty when no file was taken over.
    QByteArray toBytes() const;

    /// All ten buses in a fixed order, all 0 where the file says nothing; empty before a file was taken over.
    const std::vector<BusAddrNumInfo>& buses(Mode mode) const { return m_buses[mode]; }
    /// Replaces the buses that are named; the others stay.
    void setBuses(Mode mode, const std::vector<BusAddrNumInfo>& buses);

private:
    QByteArray m_source;
    std::array<std::vector<BusAddrNumInfo>, 2> m_buses;
};

#endif

#ifndef MASTERTABLEFILE_H
#define MASTERTABLEFILE_H

#include <QByteArray>
#include <QString>

#include <array>

namespace pugi {
class xml_document;
}

/// Record of eip_master.xml and of pfn_master.xml: which slaves the EtherNet/IP or the PROFINET master
/// serves. Named as the elements of the files.
struct MasterSlaveTable
{
    QString SlaveNum; ///< number of slaves, 0 to 9 on the page

    bool FixSlave1 = false; ///< slave 1 is a fixed slave
    bool FixSlave2 = false;
    bool FixSlave3 = false;
    bool FixSlave4 = false;
    bool FixSlave5 = false;
    bool FixSlave6 = false;
    bool FixSlave7 = false;
    bool FixSlave8 = false;
    bool FixSlave9 = false;

    bool DynSlave1 = false; ///< slave 1 is a dynamic slave
    bool DynSlave2 = false;
    bool DynSlave3 = false;
    bool DynSlave4 = false;
    bool DynSlave5 = false;
    bool DynSlave6 = false;
    bool DynSlave7 = false;
    bool DynSlave8 = false;
    bool DynSlave9 = false;

    QString DisableTimeout; ///< whole number, 0 to 999999 on the page
    QString EnableTimeout;  ///< as DisableTimeout

    /// A slave position: its two flags.
    struct Position
    {
        const char* fixedElement;
        bool MasterSlaveTable::*fixed;
        const char* dynamicElement;
        bool MasterSlaveTable::*dynamic;
    };

    static constexpr int PositionCount = 9;
    /// The slave positions in order; the index is that of the controller's status variables.
    static const std::array<Position, PositionCount>& positions();
};

/// Root elements: what tells the two files apart.
namespace MasterTableRoot {
constexpr const char* EtherNetIp = "EipMasterCommunication";
constexpr const char* Profinet = "PfnMasterCommunication";
} // namespace MasterTableRoot

namespace MasterTableFile {

/// False, and the record as it was, when `content` is no XML; `root` as in MasterTableRoot.
/// `recognised`: whether any of its elements is there.
bool read(const QByteArray& content, const char* root, MasterSlaveTable& record, bool* recognised = nullptr);
/// From a document that is parsed already.
void readFrom(const pugi::xml_document& document, const char* root, MasterSlaveTable& record,
              bool* recognised = nullptr);

/// A new file with the record and the time of writing.
QByteArray written(const char* root, const MasterSlaveTable& record);

} // namespace MasterTableFile

#endif

#include "MasterTableFile.h"

#include "XmlRecord.h"

namespace {

constexpr const char* GroupElement = "Group";

constexpr XmlRecord::Field<MasterSlaveTable> Texts[] = {
    {"SlaveNum", &MasterSlaveTable::SlaveNum},
    {"DisableTimeout", &MasterSlaveTable::DisableTimeout},
    {"EnableTimeout", &MasterSlaveTable::EnableTimeout},
};

using Position = MasterSlaveTable::Position;

struct FlagGroup
{
    const char* element;
    const char* Position::*flagElement;
    bool MasterSlaveTable::*Position::*flag;
};

constexpr FlagGroup FlagGroups[] = {
    {"SlaveFixed", &Position::fixedElement, &Position::fixed},
    {"SlaveDynamic", &Position::dynamicElement, &Position::dynamic},
};

} // namespace

#define SLAVE_POSITION(number)                                                                               \
    Position                                                                                                 \
    {                                                                                                        \
        "FixSlave" #number, &MasterSlaveTable::FixSlave##number, "DynSlave" #number,                         \
            &MasterSlaveTable::DynSlave##number                                                              \
    }

const std::array<Position, MasterSlaveTable::PositionCount>& MasterSlaveTable::positions()
{
    static constexpr std::array<Position, PositionCount> table = {
        SLAVE_POSITION(1), SLAVE_POSITION(2), SLAVE_POSITION(3), SLAVE_POSITION(4), SLAVE_POSITION(5),
        SLAVE_POSITION(6), SLAVE_POSITION(7), SLAVE_POSITION(8), SLAVE_POSITION(9),
    };
    return table;
}

#undef SLAVE_POSITION

bool MasterTableFile::read(const QByteArray& content, const char* root, MasterSlaveTable& record,
                           bool* recognised)
{
    pugi::xml_document document;
    if (!XmlFile::load(content, document))
        return false;
    readFrom(document, root, record, recognised);
    return true;
}

void MasterTableFile::readFrom(const pugi::xml_document& document, const char* root, MasterSlaveTable& record,
                               bool* recognised)
{
    const pugi::xml_node group = document.child(root).child(GroupElement);
    XmlRecord::read(group, Texts, record);
    if (recognised)
        *recognised = !group.empty();
    for (const FlagGroup& flags : FlagGroups) {
        const pugi::xml_node node = group.child(flags.element);
        for (const Position& position : MasterSlaveTable::positions())
            XmlRecord::readValue(node.child(position.*flags.flagElement), record.*(position.*flags.flag));
    }
}

QByteArray MasterTableFile::written(const char* root, const MasterSlaveTable& record)
{
    pugi::xml_document document;
    XmlFile::appendPrologue(document);
    pugi::xml_node group = document.append_child(root).append_child(GroupElement);
    XmlRecord::append(group, Texts, record);
    for (const FlagGroup& flags : FlagGroups) {
        const pugi::xml_node node = group.append_child(flags.element);
        for (const Position& position : MasterSlaveTable::positions())
            XmlFile::appendText(node, position.*flags.flagElement,
                                XmlRecord::writtenValue(record.*(position.*flags.flag)));
    }
    return XmlFile::bytes(document);
}

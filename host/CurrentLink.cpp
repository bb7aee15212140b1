#include "CurrentLink.h"

#include "zelcore/VariableTable.h"

ControllerLink* currentLink()
{
    return VariableTable::instance().link();
}

void setCurrentLink(ControllerLink* link)
{
    VariableTable::instance().connectTo(link);
}

#include "VariableContext.h"

#include "ZelFunctions.h"

VariableContext& VariableContext::instance()
{
    static VariableContext context;
    return context;
}

void ZelSwitchWidgetVariablesContext()
{
    emit VariableContext::instance().switched();
}

#include "BaseZelCustomData.h"

#include <QByteArray>
#include <QString>

BaseZelCustomData::BaseZelCustomData() = default;

BaseZelCustomData::~BaseZelCustomData() = default;

// Applications of the desktop have no project data; there is nothing that could be misunderstood.
bool BaseZelCustomData::ParseBinData(const QByteArray& /*data*/)
{
    return true;
}

int BaseZelCustomData::getWidgetDataType() const
{
    return 0;
}

QString BaseZelCustomData::getWidgetDataClassName() const
{
    return QStringLiteral("BaseZelCustomData");
}

// The widget that is shown belongs to one application and is not copied.
void BaseZelCustomData::copy(const BaseZelCustomData& other)
{
    variableContext = other.variableContext;
}

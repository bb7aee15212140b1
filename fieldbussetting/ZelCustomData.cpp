#include "ZelCustomData.h"

#include "FbMainWidget.h"

#include <utility>

namespace {
FbMainWidget* theMenuPage = nullptr;
} // namespace

ZelCustomData::~ZelCustomData()
{
    deleteMenuPage();
}

QWidget* ZelCustomData::getCentralWidget()
{
    if (!theMenuPage)
        theMenuPage = new FbMainWidget;
    return theMenuPage;
}

QWidget* ZelCustomData::currentCentralWidget()
{
    return theMenuPage;
}

FbMainWidget* ZelCustomData::menuPage()
{
    return theMenuPage;
}

void ZelCustomData::deleteMenuPage()
{
    delete std::exchange(theMenuPage, nullptr);
}

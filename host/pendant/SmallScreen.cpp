#include "SmallScreen.h"

#include "PendantWindow.h"
#include "ZelFunctions.h"

SmallScreen::SmallScreen(PendantWindow& pendant)
{
    setWindowTitle(pendant.windowTitle());
    setFrameShape(QFrame::NoFrame);
    ZelSetUIStyleSheet(this, QStringLiteral("host"));
    setWidget(&pendant);
}

SmallScreen::~SmallScreen()
{
    takeWidget();
}

bool SmallScreen::isNeeded(QSize room)
{
    const QSize drawn = PendantWindow::screenSize();
    return room.width() < drawn.width() || room.height() < drawn.height();
}

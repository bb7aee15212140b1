#include "TouchScreen.h"

#include "DialogShade.h"
#include "FingerScroll.h"
#include "PressGuard.h"

void TouchScreen::watch(QObject* application)
{
    new PressGuard(application);
    new DialogShade(application);
    new FingerScroll(application);
}

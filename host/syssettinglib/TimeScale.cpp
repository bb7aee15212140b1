#include "TimeScale.h"

namespace {
double currentScale = 1.0;
} // namespace

double timeScale()
{
    return currentScale;
}

void setTimeScale(double scale)
{
    if (scale > 0.0)
        currentScale = scale;
}

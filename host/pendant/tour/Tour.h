#ifndef PENDANT_TOUR_H
#define PENDANT_TOUR_H

#include "TourGuide.h"

/// Walks through everything that the pendant shows, as an operator would, takes a picture of each stop in
/// `directory` and prints a line for it. 0 when every stop was reached and every page loaded.
int makeTour(const TourGuide::Subject& subject, const QString& directory);

#endif

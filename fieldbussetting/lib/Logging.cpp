#include "Logging.h"

Q_LOGGING_CATEGORY(fieldbusLog, "fieldbussetting")

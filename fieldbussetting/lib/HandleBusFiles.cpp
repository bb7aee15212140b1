#include "HandleBusFiles.h"

HandleBusFiles* HandleBusFiles::getInstance()
{
    static HandleBusFiles instance;
    return &instance;
}

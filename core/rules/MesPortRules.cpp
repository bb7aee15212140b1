#include "MesPortRules.h"

const char* conflictingService(int port)
{
    static constexpr struct
    {
        int port;
        const char* service;
    } taken[] = {
        {502, "Modbus-Tcp"}, {2222, "Ethernet/IP"}, {44818, "Ethernet/IP"}, {8000, "BCC"}, {8100, "BCC"}};
    for (const auto& row : taken) {
        if (row.port == port)
            return row.service;
    }
    return nullptr;
}

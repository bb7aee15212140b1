// Tells which links of a robot are watched, and for how long they may be silent: heartbeat FILE
#include <FieldbusSettingLib.h>

#include <cstdio>

int main(int argc, char* argv[])
{
    FieldbusSettingLib* lib = FieldbusSettingLib::getInstance();
    if (argc != 2 || !lib->readHeartbeatDetectionFile(QString::fromLocal8Bit(argv[1]))) {
        std::fputs("usage: heartbeat HEARTBEAT.XML\n", stderr);
        return 2;
    }
    const HeartbeatConfig& watches = lib->heartbeat;
    std::printf("Modbus TCP slave: %s, %.3f s\n", watches.Mtcp_Nod_Switch ? "watched" : "not watched",
                watches.Mtcp_Timeout);
    std::printf("EtherNet/IP slave: %s, %.3f s\n", watches.Eip_Nod_Switch ? "watched" : "not watched",
                watches.Eip_Timeout);
    return 0;
}

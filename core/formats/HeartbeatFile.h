#ifndef HEARTBEATFILE_H
#define HEARTBEATFILE_H

#include <QByteArray>
#include <QString>

#include <array>

namespace pugi {
class xml_document;
}

/// Record of heartbeat.xml: per bus role whether the controller watches the connection, and after what
/// time-out in seconds it reports the loss. Fields are named as the elements of the file.
struct HeartbeatConfig
{
    bool Mtcp_Nod_Switch = false;
    bool Ethcat_Nod_Switch = false;
    bool Pfnet_Nod_Switch = false;
    bool Eip_Nod_Switch = false;
    bool Ecm_Nod_Switch = false;
    bool Dns_Nod_Switch = false;
    bool Mbc_Nod_Switch = false;
    bool Eim_Nod_Switch = false;
    bool Pnm_Nod_Switch = false;
    bool Dnm_Nod_Switch = false;

    double Mtcp_Timeout = 0.0;
    double Ethcat_Timeout = 0.0;
    double Pfnet_Timeout = 0.0;
    double Eip_Timeout = 0.0;
    double Ecm_Timeout = 0.0;
    double Dns_Timeout = 0.0;
    double Mbc_Timeout = 0.0;
    double Eim_Timeout = 0.0;
    double Pnm_Timeout = 0.0;
    double Dnm_Timeout = 0.0;

    /// One bus role: its element names and where they meet the record.
    struct Field
    {
        const char* bus;
        const char* switchElement;
        bool HeartbeatConfig::*nodSwitch;
        const char* timeoutElement;
        double HeartbeatConfig::*timeout;
    };

    static constexpr int BusCount = 10;
    /// The bus roles in the order of the file, which is also the order of the page's rows.
    static const std::array<Field, BusCount>& fields();

    /// A time-out as it is shown and written: fixed notation, three decimals. What is not finite, as a
    /// damaged file can bring it, is shown and written as 0.
    static QString timeoutText(double seconds);
};

namespace HeartbeatFile {

/// False when `content` is no XML; the record is then as after construction, not as it was.
/// `recognised`: whether any of its elements is there.
bool read(const QByteArray& content, HeartbeatConfig& record, bool* recognised = nullptr);
/// From a document that is parsed already.
void readFrom(const pugi::xml_document& document, HeartbeatConfig& record, bool* recognised = nullptr);

/// A new file with the record and the time of writing.
QByteArray written(const HeartbeatConfig& record);

} // namespace HeartbeatFile

#endif

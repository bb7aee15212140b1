#ifndef FINDINGCODES_H
#define FINDINGCODES_H

#include <QString>

#include <vector>

enum class FindingSeverity { Information, Warning, Error };

/// The kinds of findings. A number is never used for another kind: people and programs keep it.
enum class FindingCode {
    // Files
    FileMissing = 101,
    FileEmpty = 102,
    FileNotXml = 103,
    FileOtherRoot = 104,
    FileIncomplete = 105,
    FileTooLarge = 106,
    FileNotText = 107,
    UnknownElement = 108,
    UnknownRole = 109,
    RoleListedTwice = 110,
    SwitchFileDiffers = 111,
    // Roles
    MastersTogether = 201,
    DeviceNetTogether = 202,
    NeedsFreeConfiguration = 203,
    NoDevice = 204,
    DeviceUsedTwice = 205,
    DeviceWithoutRole = 206,
    ModbusSlaveOff = 207,
    MastersShareCard = 208,
    // Network
    AddressOfNoPort = 301,
    MaskOfNoPort = 302,
    PortsInOneNet = 303,
    PortAddressTwice = 304,
    ServerIsRobot = 305,
    ServerIsLoopback = 306,
    NoAddress = 307,
    ServerOutOfReach = 308,
    NoMask = 309,
    PortTaken = 310,
    PortSharedByLinks = 311,
    NoTcpPort = 312,
    HostPortWithoutAddress = 313,
    FinsNodeIsServers = 320,
    FinsNodeOutside = 321,
    FinsNodeNotOwn = 322,
    FinsAreaOutside = 323,
    FinsAreasSame = 324,
    // DeviceNet
    MacIdTwice = 401,
    MacIdIsScanners = 402,
    MacIdOutside = 403,
    SlaveMacIdOdd = 404,
    SlaveMacIdOutside = 405,
    BaudRateOutside = 406,
    InputsAboveMapping = 408,
    OutputsAboveMapping = 409,
    RegistersBeyondArea = 410,
    RegistersOverlap = 411,
    DeviceWithoutData = 412,
    DeviceTooLarge = 414,
    ScanListEmpty = 415,
    // Mapping
    QuantityAboveLimit = 501,
    BoolsNotMultiple = 502,
    BytesOutside = 503,
    SmallBytesOutside = 504,
    BytesNotMultiple = 505,
    RowsOverlap = 506,
    EndBeforeStart = 507,
    RowOfOtherLength = 508,
    BlocksOverlap = 509,
    RegistersOutside = 510,
    RowsWithoutRole = 511,
    RoleWithoutRows = 512,
    // Byte order
    EndianDiffersFromFree = 601,
    EndianDiffersFromFixed = 602,
    EndianUnknown = 603,
    // Watches
    WatchOfNothing = 701,
    WatchWithoutTime = 702,
    WatchShorterThanScan = 703,
    WatchShorterThanTimeOut = 704,
    NotWatched = 705,
    WatchNoTime = 706,
    // Values
    ValueOutside = 801,
    ValueNoNumber = 802,
    SlaveCountOutside = 803,
    PositionBothWays = 804,
    PositionBeyondCount = 805,
    // What runs
    LinkDown = 901,
    ModuleMissing = 902,
    ModuleOther = 903,
    PartnerRefused = 904,
    NoPartner = 905,
    ServerNotListening = 906,
    DeviceNotOnNetwork = 907,
    RunningMacIdTwice = 908,
    DeviceFault = 909,
    PositionDown = 910,
    RestartPending = 911,
    AnnouncementNotTaken = 912,
    MappingRejected = 913,
    CommandNotTaken = 914,
    WatchAboutToTrip = 915,
    WatchTripped = 916,
    SettingsPending = 917,
    BusTypeRefused = 918
};

/// "FB101".
QString textOf(FindingCode code);

struct FindingKind
{
    FindingCode code;
    FindingSeverity severity;
    bool isAlsoWhenOff;   ///< keeps its severity when its role is off
    const char* cause;    ///< with places for what differs from one to the next
    const char* evidence; ///< which facts are shown
    const char* next;     ///< what a person can do
};

/// The catalogue, by rising code. Its texts are of the translation context "Findings".
const std::vector<FindingKind>& findingKinds();
const FindingKind& kindOf(FindingCode code);

#endif

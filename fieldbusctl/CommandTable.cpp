#include "CheckCommand.h"
#include "Command.h"
#include "DiffCommand.h"
#include "FleetCommand.h"
#include "IolistCommand.h"
#include "ReportCommand.h"
#include "SealCommand.h"
#include "ShowCommand.h"
#include "VerifyCommand.h"

namespace {

template <typename Kind>
std::unique_ptr<Command> made()
{
    return std::make_unique<Kind>();
}

} // namespace

const std::vector<CommandRow>& commandTable()
{
    static const std::vector<CommandRow> rows = {
        {"show", "show the roles that are on, with settings, mapping and heartbeat",
         "  fieldbusctl show /media/usb\n"
         "  fieldbusctl show fidbus_20240318_074211 --role EtherNetIPSlave\n",
         made<ShowCommand>},
        {"check", "say what is wrong with configurations, and what to do about it",
         "  fieldbusctl check /media/usb\n"
         "  fieldbusctl check --quiet --fail-on error robots/*\n",
         made<CheckCommand>},
        {"diff", "say what differs between two configurations",
         "  fieldbusctl diff fidbus_20240318_074211 fidbus_20240402_161530\n"
         "  fieldbusctl diff cell7 /media/usb --json\n",
         made<DiffCommand>},
        {"iolist", "list the variables and where they lie on the bus",
         "  fieldbusctl iolist /media/usb --role EtherNetIPSlave --expand --csv > eip.csv\n"
         "  fieldbusctl iolist cell7 --mode fixed\n",
         made<IolistCommand>},
        {"report", "write a configuration on one page", "  fieldbusctl report /media/usb -o cell7.html\n",
         made<ReportCommand>},
        {"seal", "write the checksums of a folder beside it",
         "  fieldbusctl seal /media/usb\n"
         "  cd /media/usb && sha256sum -c fidbus_20240318_074211.sha256\n",
         made<SealCommand>},
        {"verify", "say which files were changed, lost or added since a folder was sealed",
         "  fieldbusctl verify /media/usb/fidbus_20240318_074211\n"
         "  fieldbusctl verify --all /media/usb\n",
         made<VerifyCommand>},
        {"fleet", "compare many robots in a table",
         "  fieldbusctl fleet robots/*\n"
         "  fieldbusctl fleet --all /media/usb --json\n",
         made<FleetCommand>},
    };
    return rows;
}

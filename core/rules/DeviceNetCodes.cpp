#include "DeviceNetCodes.h"

#include <QCoreApplication>

namespace DeviceNetCodes {

namespace {

struct Meaning
{
    int code;
    const char* text;
};
constexpr Meaning Meanings[] = {
    {None, QT_TRANSLATE_NOOP("DeviceNetCodes", "no fault")},
    {NoLink, QT_TRANSLATE_NOOP("DeviceNetCodes", "the network has no link")},
    {NotOnNetwork, QT_TRANSLATE_NOOP("DeviceNetCodes", "no answer on the network")},
    {MacIdTaken, QT_TRANSLATE_NOOP("DeviceNetCodes", "another device has its MAC ID")},
    {MacIdInvalid, QT_TRANSLATE_NOOP("DeviceNetCodes", "its MAC ID is none from 1 to 63")},
};

} // namespace

MarkedText textOf(int code)
{
    for (const Meaning& meaning : Meanings) {
        if (meaning.code == code)
            return {meaning.text, {}};
    }
    return {QT_TRANSLATE_NOOP("DeviceNetCodes", "code %1 of the master's manual"), {QString::number(code)}};
}

} // namespace DeviceNetCodes

#ifndef FIELDBUSCTL_FINDINGTONE_H
#define FIELDBUSCTL_FINDINGTONE_H

#include "Console.h"
#include "Finding.h"

namespace FindingText {

inline Console::Tone toneOf(FindingSeverity severity)
{
    switch (severity) {
    case FindingSeverity::Error:
        return Console::Tone::Bad;
    case FindingSeverity::Warning:
        return Console::Tone::Warning;
    case FindingSeverity::Information:
        break;
    }
    return Console::Tone::Faint;
}

} // namespace FindingText

#endif

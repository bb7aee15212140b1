#include "DevicesInUse.h"

namespace {

enum class Directive { None, SwitchesOff, BehindSemicolon };

Directive directiveOf(const QByteArray& line, const QByteArray& device)
{
    const QByteArray upper = line.trimmed().toUpper();
    const QByteArray directive = upper.startsWith(';') ? upper.mid(1).trimmed() : upper;
    if (!directive.startsWith("ECAT_SLAVE_OFF") || !directive.contains(device))
        return Directive::None;
    return directive.size() == upper.size() ? Directive::SwitchesOff : Directive::BehindSemicolon;
}

} // namespace

bool isDeviceInUse(const QByteArray& overrideCfg, const QByteArray& name)
{
    bool inUse = false;
    for (const QByteArray& line : overrideCfg.split('\n')) {
        const Directive directive = directiveOf(line, name);
        if (directive == Directive::SwitchesOff)
            return false;
        inUse = inUse || directive == Directive::BehindSemicolon;
    }
    return inUse;
}

QByteArray withDeviceInUse(const QByteArray& overrideCfg, const QByteArray& name)
{
    QList<QByteArray> lines = overrideCfg.split('\n');
    for (QByteArray& line : lines) {
        if (directiveOf(line, name) == Directive::SwitchesOff)
            line.prepend(';');
    }
    return lines.join('\n');
}

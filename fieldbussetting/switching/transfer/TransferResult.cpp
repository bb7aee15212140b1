#include "TransferResult.h"

#include <QCoreApplication>

namespace {

// By TransferResult::Code. Nothing where there is nobody to tell.
constexpr const char* Reasons[] = {
    nullptr,
    QT_TRANSLATE_NOOP("UsbImport", "The USB drive was removed."),
    QT_TRANSLATE_NOOP("UsbImport", "The file %1 could not be read."),
    QT_TRANSLATE_NOOP("UsbImport", "The file %1 could not be fetched from the controller."),
    QT_TRANSLATE_NOOP("UsbImport", "The file %1 of the pendant could not be written."),
    QT_TRANSLATE_NOOP("UsbImport", "The file %1 of the controller has changed meanwhile."),
    QT_TRANSLATE_NOOP("UsbImport", "The file %1 could not be sent to the controller."),
    QT_TRANSLATE_NOOP("UsbImport", "Please turn off the servo first!"),
    QT_TRANSLATE_NOOP("UsbImport", "The pendant's copy of %1 has changed meanwhile."),
    nullptr,
};
static_assert(std::size(Reasons) == TransferResult::Unwanted + 1, "a row a code");

} // namespace

QString TransferResult::reason() const
{
    return QCoreApplication::translate("UsbImport", Reasons[code]).replace(QLatin1String("%1"), file);
}

#include "ControllerTemplate.h"

#include "ControllerCopies.h"
#include "FieldbusSettingLib.h"
#include "FormerFiles.h"
#include "Logging.h"
#include "WholeFile.h"

#include <QFile>

namespace {

bool fetch(const QString& temporary, const QString& ctrlPath, QByteArray& content)
{
    QFile::remove(temporary);
    const bool fetched = FieldbusSettingLib::getInstance()->getFileFromCtrl(temporary, ctrlPath) &&
                         WholeFile::read(temporary, content);
    QFile::remove(temporary);
    return fetched;
}

// What a transfer that broke off leaves of a file.
bool isPieceOf(const QByteArray& content, const QByteArray& whole)
{
    return content.size() < whole.size() && whole.startsWith(content);
}

} // namespace

bool fetchTemplate(const QString& temporary, const QString& ctrlPath, bool (*isRecognised)(const QByteArray&),
                   QByteArray& content)
{
    if (!fetch(temporary, ctrlPath, content))
        return false;
    const ControllerCopies::Copy known = ControllerCopies::instance().copy(ctrlPath);
    QByteArray again;
    if ((known.isKnown && content == known.bytes) ||
        (!content.isEmpty() && fetch(temporary, ctrlPath, again) && again == content &&
         !(known.isKnown && (isPieceOf(content, known.bytes) || (isRecognised && !isRecognised(content)))))) {
        FormerFiles::instance().saw(ctrlPath, content);
        return true;
    }
    qCDebug(fieldbusLog) << "Could not rely on" << ctrlPath << "as it came";
    return false;
}

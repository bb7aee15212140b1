#include "ControllerTemplate.h"

#include "FieldbusSettingLib.h"
#include "WholeFile.h"

#include <QFile>

bool fetchTemplate(const QString& temporary, const QString& ctrlPath, QByteArray& content)
{
    FieldbusSettingLib::getInstance()->getFileFromCtrl(temporary, ctrlPath);
    const bool read = WholeFile::read(temporary, content);
    QFile::remove(temporary);
    return read;
}

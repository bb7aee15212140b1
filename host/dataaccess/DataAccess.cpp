#include "DataAccess.h"

#include "ControllerLink.h"
#include "CurrentLink.h"
#include "LocalFile.h"
#include "UserSession.h"

int DataAccess::getUserLevel()
{
    return UserSession::instance().userLevel();
}

bool DataAccess::isRobotRunning()
{
    const ControllerLink* const link = currentLink();
    return link && link->isRobotRunning();
}

bool DataAccess::isServoOn()
{
    const ControllerLink* const link = currentLink();
    return link && link->isServoOn();
}

// A transfer from the desktop's controller is over before a progress display could be painted, so the flag
// that asks for one is not looked at.
bool DataAccess::GetFileFromController2TPU(const QString& ctrlPath, const QString& localPath, bool /*flag*/)
{
    ControllerLink* const link = currentLink();
    QByteArray content;
    return link && link->fetchFile(ctrlPath, content) && replaceLocalFile(localPath, content);
}

bool DataAccess::SendFileFromTPU2Controller(const QString& localPath, const QString& ctrlPath, bool /*flag*/)
{
    ControllerLink* const link = currentLink();
    QByteArray content;
    return link && readLocalFile(localPath, content) && link->storeFile(ctrlPath, content);
}

#include "TransferUnderWay.h"

#include "ImportSet.h"

#include <QDir>

namespace {
const TransferUnderWay* underWay = nullptr;
} // namespace

TransferUnderWay::TransferUnderWay(QWidget* page)
    : m_page(page)
    , m_lock(importDirectory() + QStringLiteral(".lock"))
{
    // However long it takes; one of a pendant that was ended counts no more.
    m_lock.setStaleLockTime(0);
    QDir().mkpath(QFileInfo(importDirectory()).path());
    m_lock.tryLock();
    underWay = this;
}

TransferUnderWay::~TransferUnderWay()
{
    underWay = nullptr;
}

const TransferUnderWay* TransferUnderWay::current()
{
    return underWay;
}

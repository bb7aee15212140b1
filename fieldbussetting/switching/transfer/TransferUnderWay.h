#ifndef TRANSFERUNDERWAY_H
#define TRANSFERUNDERWAY_H

#include <QLockFile>
#include <QPointer>
#include <QWidget>

/// The one export or import of the process, from its first box to its last. It may outlast its page: what was
/// sent is put back all the same, and a page that is opened meanwhile finds it still there.
class TransferUnderWay
{
public:
    /// `page` begins one; none may be under way in this process.
    explicit TransferUnderWay(QWidget* page);
    ~TransferUnderWay();
    TransferUnderWay(const TransferUnderWay&) = delete;
    TransferUnderWay& operator=(const TransferUnderWay&) = delete;

    /// The one of the process; null when there is none.
    static const TransferUnderWay* current();
    /// False when another pendant on the same directories is at work: nothing may be carried then.
    bool isAlone() const { return m_lock.isLocked(); }
    /// Whether the page that began it is still there.
    bool hasPage() const { return !m_page.isNull(); }

private:
    QPointer<QWidget> m_page;
    QLockFile m_lock;
};

#endif

#ifndef MAPPINGSAVE_H
#define MAPPINGSAVE_H

#include "PageBase.h"
#include "Poll.h"
#include "WaitNotice.h"

#include <QCoreApplication>

#include <optional>

struct BusAddrNumInfo;

/// What the save of the I/O mapping asks of its page, beyond the steps of every page.
class MappingSaveHost
{
public:
    /// The page shows again what it has, and no cell can be edited.
    virtual void leaveEditing() = 0;
    /// What was saved is not running yet: it must not be edited before the robot has restarted.
    virtual void forbidEditing() = 0;

protected:
    ~MappingSaveHost() = default;
};

/// The save of the I/O mapping: from its confirmation over the service's sending and the controller's
/// acknowledgement to the restart. The controller has 15 s to acknowledge.
class MappingSave
{
    Q_DECLARE_TR_FUNCTIONS(ConfigWidget)

public:
    /// `page` and `host` are the page that this is a member of.
    MappingSave(PageBase& page, MappingSaveHost& host);

    bool isUnderWay() const { return m_busy.has_value(); }

    // The page may be gone after each of these.
    void begin(const std::vector<BusAddrNumInfo>& quantities);
    /// The service has sent a file, or could not.
    void sent(const QString& path, bool success);
    /// Looks for the acknowledgement, and asks for the restart when it is there.
    void lookForAcknowledgement();
    /// Another half second without it.
    void tick() { m_patience.ask(); }

    /// Changes bits of "ifidbus.xml_update_state", in one write; the others are left as they are.
    static void changeUpdateBits(int dropped, int added);

private:
    void endWaiting();
    void giveUp();
    void tellEnd(MsgBox::Kind kind, const QString& text);
    void restartController();

    PageBase& m_page;
    MappingSaveHost& m_host;
    std::optional<PageBase::Busy> m_busy; // until the operator was told how it ended
    WaitNotice m_notice;
    Poll m_patience;
    bool m_waiting = false; // for the controller's acknowledgement
};

#endif

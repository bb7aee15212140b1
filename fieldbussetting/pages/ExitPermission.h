#ifndef EXITPERMISSION_H
#define EXITPERMISSION_H

/// Whether the operator may leave the application: process-wide, given at the start. A page takes the
/// permission away while its save and restart are pending; the menu page's exit button follows it.
///
/// It comes back at the latest when the object goes, so that a page that is closed in the middle of a save
/// does not leave the next session of the application without a way out.
class ExitPermission
{
public:
    ExitPermission() = default;
    ~ExitPermission() { give(); }
    ExitPermission(const ExitPermission&) = delete;
    ExitPermission& operator=(const ExitPermission&) = delete;

    void withdraw();
    void give();

    static bool isGiven();

private:
    bool m_withdrawn = false;
};

#endif

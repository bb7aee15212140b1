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

    /// Takes the permission away; again has no effect.
    void withdraw();
    /// Gives back what this object has taken away, and nothing that another one has.
    void give();

    /// Whether no object holds the permission back.
    static bool isGiven();

private:
    bool m_withdrawn = false;
};

#endif

#ifndef TRANSFERHOST_H
#define TRANSFERHOST_H

struct RoleConditions;

/// What export and import ask of the page that has their buttons, beyond the steps of every page.
class TransferHost
{
public:
    virtual RoleConditions roleConditions() const = 0;
    /// An import, or putting one back, has changed the controller's files. What the page shows is not what
    /// they hold: it must not be saved over them before the page is made anew.
    virtual void holdSave() = 0;

protected:
    ~TransferHost() = default;
};

#endif

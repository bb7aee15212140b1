#ifndef TRANSFERHOST_H
#define TRANSFERHOST_H

struct RoleConditions;

/// What export and import ask of the page that has their buttons, beyond the steps of every page.
class TransferHost
{
public:
    virtual RoleConditions roleConditions() const = 0;

protected:
    ~TransferHost() = default;
};

#endif

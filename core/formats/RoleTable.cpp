#include "RoleTable.h"

namespace RoleTable {

namespace {

constexpr bool standsById()
{
    for (std::size_t i = 0; i < Roles.size(); ++i) {
        if (static_cast<std::size_t>(Roles[i].id) != i)
            return false;
    }
    return true;
}
static_assert(standsById(), "the row of a role stands at its id");

} // namespace

const RoleInfo* named(const QString& name)
{
    for (const RoleInfo& role : Roles) {
        if (name == QLatin1String(role.name))
            return &role;
    }
    return nullptr;
}

} // namespace RoleTable

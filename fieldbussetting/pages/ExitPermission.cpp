#include "ExitPermission.h"

namespace {
int withdrawals = 0;
} // namespace

void ExitPermission::withdraw()
{
    withdrawals += m_withdrawn ? 0 : 1;
    m_withdrawn = true;
}

void ExitPermission::give()
{
    withdrawals -= m_withdrawn ? 1 : 0;
    m_withdrawn = false;
}

bool ExitPermission::isGiven()
{
    return withdrawals == 0;
}

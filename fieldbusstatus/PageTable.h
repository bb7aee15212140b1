#ifndef PAGETABLE_H
#define PAGETABLE_H

#include <array>

class StatusPage;
struct StatusContext;

/// The only list of the application's pages: a tab each, in their order. The first is shown at the start.
namespace PageTable {

struct Entry
{
    const char* button;  ///< object name of its tab
    const char* caption; ///< of the tab, of the translation context "StatusMain"
    StatusPage* (*create)(const StatusContext& context);
};

constexpr std::size_t Count = 5;
const std::array<Entry, Count>& entries();

} // namespace PageTable

#endif

#ifndef PAGEREGISTRY_H
#define PAGEREGISTRY_H

#include <array>

class PageBase;

/// The only list of the application's pages.
namespace PageRegistry {

constexpr int PageCount = 16;

/// When a menu button is to be seen.
enum class Shown {
    Always,        ///< whatever is switched on
    WhenOn,        ///< while its bus is switched on
    WithProfisafe, ///< while the controller has a ProfiSAFE device
    Never          ///< the page has no button
};

struct Entry
{
    int id;              ///< identifies the page in the menu's button group
    const char* button;  ///< object name of its menu button, null without one
    const char* caption; ///< of the button
    int gridRow;         ///< of the button
    Shown shown;
    const char* busName;   ///< bus that shows the button, null for none
    PageBase* (*create)(); ///< makes the page
    bool blocksInput;      ///< the page asks for input to be blocked during its long operations
    bool needsFreeMode;    ///< the page is told whether free bus configuration is on
};

/// By id: the entry of id n stands at position n.
const std::array<Entry, PageCount>& entries();

/// Ids in the order in which the visible pages get their idle tick. Pages that are not listed have none.
const std::array<int, 13>& idleOrder();

/// Id of the page that is shown first.
constexpr int StartPage = 5;

} // namespace PageRegistry

#endif

#ifndef SERVICEFILES_H
#define SERVICEFILES_H

/// The files of the bus file data service. It holds what it has read, and would write that back with the next
/// save of any page.
namespace ServiceFiles {

/// How often files of the controller were changed below the service by an import, or by putting one back: a
/// page that was made at a lower version shows former ones.
int version();

/// Raises the version, and lets the service read its files anew. Also to be called when no page is left: the
/// next one shows what the service holds. Events are processed; any page may be gone afterwards.
void readAnew();

} // namespace ServiceFiles

#endif

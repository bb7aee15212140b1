#ifndef OUTSIDEMARK_H
#define OUTSIDEMARK_H

class QString;
class QWidget;

/// The look of a field that shows a value which could not be entered there.
namespace OutsideMark {

/// `value` is what the record holds, for a field that shows something else in its place.
void show(QWidget* field, bool isOutside, const QString& value);

} // namespace OutsideMark

#endif

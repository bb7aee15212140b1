#ifndef OUTSIDEMARK_H
#define OUTSIDEMARK_H

class QLineEdit;
class QString;
class QWidget;

/// The look of a field that shows a value which could not be entered there.
namespace OutsideMark {

/// `value` is what the record holds, for a field that shows something else in its place.
void show(QWidget* field, bool isOutside, const QString& value);
/// From here on `edit` is marked while it holds anything but a number from `least` to `most`; both belong to
/// the range.
void follow(QLineEdit* edit, double least, double most);

} // namespace OutsideMark

#endif

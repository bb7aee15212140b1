#ifndef FITCAPTION_H
#define FITCAPTION_H

class QAbstractButton;
class QHeaderView;
class QString;

/// Captions that have to do with the room they are given, in every language: set in two lines at most, then
/// narrower, and never smaller.
namespace FitCaption {

/// Sets `text` on the button; `width` in pixels is what is left for it inside the button.
void setText(QAbstractButton* button, const QString& text, int width);
/// Of all columns of a table widget, at their present widths.
void fit(QHeaderView* header);

} // namespace FitCaption

#endif

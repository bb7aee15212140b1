#ifndef HOST_TOUCHCOMBO_H
#define HOST_TOUCHCOMBO_H

class QWidget;

/// Lets the lists of all combo boxes in `root` follow the style sheet, so that their rows are as high as a
/// finger. Without it Qt draws them with a delegate that knows no style sheet.
void fitComboLists(QWidget* root);

#endif

#ifndef HOST_DIALOGSHADE_H
#define HOST_DIALOGSHADE_H

#include <QObject>

class QWidget;

/// Dims the window behind every dialog while the dialog is shown, those that applications make included.
class DialogShade : public QObject
{
    Q_OBJECT

public:
    /// Watches the whole application from now on.
    explicit DialogShade(QObject* parent);

    bool eventFilter(QObject* watched, QEvent* event) override;

    /// The window that a dialog of `parent` belongs to: the one of `parent`, else the active one; may be
    /// null.
    static QWidget* windowOf(const QWidget* parent);
};

#endif

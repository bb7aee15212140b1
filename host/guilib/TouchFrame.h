#ifndef HOST_TOUCHFRAME_H
#define HOST_TOUCHFRAME_H

#include <QObject>
#include <QPointer>

class QDialog;
class QWidget;

/// What all dialogs of the pendant have in common: no frame of a window manager, the host's look, a place
/// in the middle of the window they belong to, and a shade over that window while they are shown.
class TouchFrame : public QObject
{
    Q_OBJECT

public:
    /// Becomes a child of `dialog`.
    explicit TouchFrame(QDialog* dialog);
    ~TouchFrame() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

    /// The window that a dialog of `parent` belongs to: the one of `parent`, else the active one; may be
    /// null.
    static QWidget* windowOf(const QWidget* parent);

private:
    void cover();

    QDialog* m_dialog;
    QPointer<QWidget> m_shade;
};

#endif

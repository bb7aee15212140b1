#ifndef TRANSFERPROGRESS_H
#define TRANSFERPROGRESS_H

#include "TransferWatch.h"

#include <QPointer>

class ProgressDialog;
class QWidget;

/// Shows the steps of an export or import on the page's progress dialog. The dialog is the page's child: when
/// it is gone, so is the page, and the transfer is no longer wanted.
///
/// The dialog is hidden at the latest when this object goes.
class TransferProgress : public TransferWatch
{
public:
    static constexpr int Full = 100; ///< end of the bar's range

    /// Opens the dialog of `page` at 0 and lets it paint: events are processed. `steps` of them would fill
    /// the bar.
    TransferProgress(QWidget& page, const QString& text, int steps = Full);
    ~TransferProgress() override;
    TransferProgress(const TransferProgress&) = delete;
    TransferProgress& operator=(const TransferProgress&) = delete;

    bool step() override;
    bool isWanted() const override;

    void setValue(int value);
    void close();
    /// Leaves the dialog on the screen as it is, without holding anything up.
    void leaveOpen();

private:
    QPointer<ProgressDialog> m_dialog;
    int m_steps;
    int m_counter = 0;
    bool m_leftOpen = false;
};

#endif

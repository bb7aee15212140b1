#include "SupportPage.h"

#include "ControllerWatch.h"
#include "HistoryRecorder.h"
#include "StatusBox.h"
#include "SysSettingApi.h"
#include "TransferLock.h"
#include "WholeFile.h"
#include "WorkFolder.h"
#include "ZelFunctions.h"

#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

#include <optional>

using Result = SupportBundle::Result;

namespace {

constexpr unsigned PaintMs = 5;

QString textOf(Result result, const QString& subject)
{
    switch (result) {
    case Result::Done:
        return SupportPage::tr("The support bundle %1 is on the USB drive.").arg(subject);
    case Result::NotFetched:
        return SupportPage::tr("The controller does not give %1. Nothing was written to the drive.")
            .arg(subject);
    case Result::TooLarge:
        return SupportPage::tr("%1 is larger than any configuration file. Nothing was written to the drive.")
            .arg(subject);
    case Result::DriveGone:
        return SupportPage::tr("The USB drive was pulled out at %1. What is on it is not complete.")
            .arg(subject);
    case Result::DriveFailed:
        return SupportPage::tr("The USB drive does not take %1: it is full, write-protected or damaged.\n"
                               "What is on it is not complete.")
            .arg(subject);
    case Result::LocalFailed:
        return SupportPage::tr(
                   "The pendant's own disk does not take %1. What is on the drive is not complete.")
            .arg(subject);
    case Result::Unwanted:
        break;
    }
    return {};
}

} // namespace

SupportPage::SupportPage(const StatusContext& pageContext)
    : StatusPage("SupportPage", pageContext)
    , m_progress(new QLabel(this))
    , m_write(new QPushButton(tr("Write to the USB drive"), this))
{
    setTitle(tr("Support bundle"));
    auto* what =
        new QLabel(tr("Writes onto a USB drive: all configuration files of the controller, as an export "
                      "does, and beside them a report with the findings, the history and checksums. "
                      "Nothing is changed on the controller."),
                   this);
    what->setWordWrap(true);
    m_progress->setObjectName(QStringLiteral("label_progress"));
    m_progress->setWordWrap(true);
    m_write->setObjectName(QStringLiteral("writeBundleBtn"));
    m_write->setMinimumSize(280, 48);
    connect(m_write, &QPushButton::clicked, this, &SupportPage::write);
    contents()->addWidget(what);
    contents()->addWidget(m_write, 0, Qt::AlignLeft);
    contents()->addWidget(m_progress);
    contents()->addStretch(1);
}

void SupportPage::write()
{
    const QPointer<SupportPage> self(this);
    const QString drive = ZelGetUSBDrives();
    if (drive.isEmpty()) {
        StatusBox::show(this, MsgBox::Error, tr("No device found!"));
        return;
    }
    std::optional<TransferLock> lock(std::in_place);
    if (!lock->isHeld()) {
        StatusBox::showHeldUp(this);
        return;
    }
    m_write->setEnabled(false);
    SupportBundle bundle(drive, WorkFolder::path(), [self](int step, int steps) {
        if (self)
            self->m_progress->setText(tr("%1 of %2").arg(step).arg(steps));
        SysSettingApi::delay_MSec(PaintMs);
        return !self.isNull();
    });
    // The context is the resident data's, which outlives the page.
    const Configuration known = watch().configuration();
    const RunningState running = watch().running();
    QByteArray history;
    WholeFile::read(context().history.path(), history);
    const Result result = bundle.run(known, running, history);
    lock.reset();
    if (!self)
        return;
    m_write->setEnabled(true);
    const QString text = textOf(result, result == Result::Done ? bundle.name() : bundle.subject());
    m_progress->setText(text);
    StatusBox::show(this, result == Result::Done ? MsgBox::Information : MsgBox::Error, text);
}

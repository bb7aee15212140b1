#include "TransferProgress.h"

#include "FieldbusSettingLib.h"
#include "ProgressDialog.h"

namespace {

constexpr unsigned StepMs = 5; // in which the dialog paints
// Where it lies on the pendant's screen.
constexpr int Left = 320;
constexpr int Top = 330;

void letPaint()
{
    FieldbusSettingLib::getInstance()->delay_MSec(StepMs);
}

} // namespace

TransferProgress::TransferProgress(QWidget& page, const QString& text, int steps)
    : m_dialog(&ProgressDialog::of(page))
    , m_steps(steps)
{
    m_dialog->setBlocking(true);
    m_dialog->setText(text);
    m_dialog->setRange(0, Full);
    m_dialog->move(Left, Top);
    m_dialog->setValue(m_counter);
    m_dialog->show();
    letPaint();
}

TransferProgress::~TransferProgress()
{
    if (m_dialog && !m_leftOpen)
        m_dialog->hide();
}

bool TransferProgress::step()
{
    letPaint();
    ++m_counter;
    setValue(m_counter * Full / m_steps);
    return isWanted();
}

bool TransferProgress::isWanted() const
{
    return !m_dialog.isNull();
}

void TransferProgress::setValue(int value)
{
    if (m_dialog)
        m_dialog->setValue(value);
}

void TransferProgress::close()
{
    if (m_dialog)
        m_dialog->close();
}

void TransferProgress::leaveOpen()
{
    m_leftOpen = true;
    if (!m_dialog)
        return;
    m_dialog->setBlocking(false);
    m_dialog->show();
}

#include "HostLinkTab.h"

#include "FinsClient.h"
#include "MesServer.h"
#include "SimulatedController.h"

#include <QFormLayout>
#include <QLabel>
#include <QPushButton>

#include <utility>

HostLinkTab::HostLinkTab(SimulatedController& simulated, FinsPageAccess finsPage, QWidget* parent)
    : PanelTab(simulated, parent)
    , m_finsPage(std::move(finsPage))
    , m_mes(new QLabel)
    , m_fins(new QLabel)
    , m_word(new QLabel)
    , m_showFinsPage(new QPushButton(tr("Show its page")))
{
    m_showFinsPage->setObjectName(QStringLiteral("showFinsPage"));
    connect(m_showFinsPage, &QPushButton::clicked, this, [this] { m_finsPage.show(); });
    auto* form = new QFormLayout(this);
    form->addRow(tr("MES server"), m_mes);
    form->addRow(tr("FINS client"), m_fins);
    form->addRow(tr("DM word read"), m_word);
    form->addRow(tr("No menu button"), m_showFinsPage);
    refresh();
}

void HostLinkTab::refresh()
{
    const auto& fins = controller().behaviour<FinsClient>();
    m_mes->setText(mesState());
    m_fins->setText(finsState());
    m_word->setText(fins.state() == FinsClient::State::Reading
                        ? tr("%1 (%2 times)").arg(fins.word()).arg(fins.wordsRead())
                        : QStringLiteral("-"));
    m_showFinsPage->setEnabled(m_finsPage.show && m_finsPage.isAtHand && m_finsPage.isAtHand());
}

QString HostLinkTab::mesState() const
{
    const auto& mes = controller().behaviour<MesServer>();
    if (mes.port() != 0)
        return tr("listens at 127.0.0.1:%1, %n client(s)", nullptr, mes.clients()).arg(mes.port());
    return mes.complaint().isEmpty() ? tr("stopped") : tr("could not be started: %1").arg(mes.complaint());
}

QString HostLinkTab::finsState() const
{
    const auto& fins = controller().behaviour<FinsClient>();
    switch (fins.state()) {
    case FinsClient::State::Off:
        return tr("off");
    case FinsClient::State::Connecting:
    case FinsClient::State::Greeting:
        return tr("connecting");
    case FinsClient::State::Reading:
        return tr("connected");
    case FinsClient::State::Failed:
        break;
    }
    return tr("failed: %1").arg(fins.complaint());
}

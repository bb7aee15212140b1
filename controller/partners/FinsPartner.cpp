#include "FinsPartner.h"

#include "ControllerParts.h"
#include "FinsFrame.h"

namespace {
constexpr quint32 FreeNode = 239; // what a client gets that asks for any
} // namespace

FinsPartner::FinsPartner(ControllerParts& controllerParts)
    : Partner(controllerParts, "fins", DefaultPort)
    , m_server(
          controllerParts, Wire::Fins, [this](const QByteArray& frame) { return answer(frame); },
          AnswerFaults{Faults::FinsSilent, Faults::FinsSlow, Faults::FinsDrops, Faults::FinsGarbage})
{
}

bool FinsPartner::start()
{
    const QString why = m_server.listen(port());
    if (!why.isEmpty()) {
        note(QStringLiteral("port %1: %2").arg(port()).arg(why));
        return false;
    }
    note(QStringLiteral("port %1: listens").arg(servedPort()));
    if (!changeSettings("/application/finstcp/FinsTcpConfig.xml", "ClientConfig", "",
                        {{"ServerIP", "127.0.0.1"}, {"ServerPort", QByteArray::number(servedPort())}}))
        note(QStringLiteral("the robot has no settings that could name it"));
    ask("ifins_tcp.bupdate_cfg");
    invite();
    return true;
}

void FinsPartner::invite()
{
    ask("ifins_tcp.enable");
}

QString FinsPartner::state() const
{
    return isRunning()
               ? tr("serves 127.0.0.1:%1, %n client(s)", nullptr, m_server.clientCount()).arg(servedPort())
               : tr("off");
}

QByteArray FinsPartner::answer(const QByteArray& bytes)
{
    FinsFrame frame = FinsFrame::of(bytes);
    if (frame.command == FinsFrame::ClientNode && frame.data.size() == 4) {
        const quint32 asked = FinsFrame::numberAt(frame.data, 0);
        const auto error =
            static_cast<quint32>(parts().faults.strikesWith(Faults::FinsErrorCode).value_or(0));
        return FinsFrame{FinsFrame::ServerNode, error,
                         FinsFrame::number(asked == 0 ? FreeNode : asked) +
                             FinsFrame::number(static_cast<quint32>(m_node))}
            .bytes();
    }
    if (frame.command != FinsFrame::Message)
        return {};
    const QByteArray response = finsResponse(
        frame.data, parts().faults.strikesWith(Faults::FinsEndCode).value_or(0),
        [this](quint16 address) { return word(address); },
        [this](quint16 address, quint16 value) { setWord(address, value); });
    return response.isEmpty() ? QByteArray() : FinsFrame{FinsFrame::Message, 0, response}.bytes();
}

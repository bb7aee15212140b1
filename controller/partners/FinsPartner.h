#ifndef CONTROLLER_FINSPARTNER_H
#define CONTROLLER_FINSPARTNER_H

#include "FrameServer.h"
#include "Partner.h"

/// A PLC: a FINS server with a memory of DM words, 0 where nothing was written.
class FinsPartner : public Partner
{
    Q_OBJECT

public:
    static constexpr int DefaultPort = 9600; ///< of the protocol

    explicit FinsPartner(ControllerParts& parts);

    /// Its own node, 1 to 254. 1 at the start.
    int node() const { return m_node; }
    void setNode(int node) { m_node = node; }
    quint16 word(int address) const { return m_words.value(address); }
    void setWord(int address, quint16 value) { m_words.insert(address, value); }
    /// The words that were ever written, by address.
    const QMap<int, quint16>& words() const { return m_words; }

    bool start() override;
    void stop() override { m_server.close(); }
    void invite() override;
    bool isRunning() const override { return m_server.isListening(); }
    QString state() const override;
    /// The port that it serves, 0 when none.
    int servedPort() const { return m_server.port(); }

private:
    QByteArray answer(const QByteArray& frame);

    FrameServer m_server;
    QMap<int, quint16> m_words;
    int m_node = 1;
};

#endif

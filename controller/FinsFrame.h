#ifndef CONTROLLER_FINSFRAME_H
#define CONTROLLER_FINSFRAME_H

#include <QByteArray>

#include <optional>

/// Frames of FINS over TCP: "FINS", length of what follows it, command, error code (four bytes each, the
/// highest first), data.
struct FinsFrame
{
    enum Command : quint32 {
        ClientNode = 0, ///< client to server: 4 bytes with its node, 0 asks for one
        ServerNode = 1, ///< the answer: 4 bytes with the client's node, 4 with the server's
        Message = 2     ///< a FINS command or its response
    };

    /// Data beyond that no frame of this protocol carries.
    static constexpr int MostData = 2048;

    quint32 command = 0;
    quint32 error = 0;
    QByteArray data;

    QByteArray bytes() const;

    enum class Taken { Whole, Incomplete, Garbage };
    /// Takes the first frame off `received`, which stays as it is unless the frame is whole. Garbage: no
    /// frame begins like this, whatever may follow.
    static Taken take(QByteArray& received, FinsFrame& frame);

    /// Four bytes, the highest first.
    static QByteArray number(quint32 value);
    /// The number at `offset`, which must lie four bytes before the end.
    static quint32 numberAt(const QByteArray& bytes, int offset);
};

/// A request for one DM word and the response to it.
struct FinsWordRead
{
    quint8 serverNode = 0;
    quint8 clientNode = 0;
    quint8 service = 0; ///< comes back in the response, so that it is not taken for another one
    quint16 address = 0;

    QByteArray request() const;

    struct Response
    {
        int endCode = 0; ///< 0: done; else why not
        quint16 word = 0;
    };
    /// Nothing when `data` is no response to this request.
    std::optional<Response> response(const QByteArray& data) const;
};

#endif

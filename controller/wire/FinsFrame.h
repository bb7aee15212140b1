#ifndef CONTROLLER_FINSFRAME_H
#define CONTROLLER_FINSFRAME_H

#include <QByteArray>

#include <functional>
#include <optional>

/// Frames of FINS over TCP: "FINS", length of what follows it, command, error code (four bytes each, the
/// highest first), data.
struct FinsFrame
{
    enum Command : quint32 {
        ClientNode = 0,  ///< client to server: 4 bytes with its node, 0 asks for one
        ServerNode = 1,  ///< the answer: 4 bytes with the client's node, 4 with the server's
        Message = 2,     ///< a FINS command or its response
        Refusal = 3,     ///< a message could not be passed on; the error code says why
        Confirmation = 6 ///< looks whether the connection stands; is thrown away
    };

    /// Data beyond that no frame of this protocol carries.
    static constexpr int MostData = 2048;

    quint32 command = 0;
    quint32 error = 0;
    QByteArray data;

    QByteArray bytes() const;

    /// As `Wire::sizeOf`.
    static int sizeOf(const QByteArray& received);
    /// `whole` is one frame by `sizeOf`.
    static FinsFrame of(const QByteArray& whole);
    /// Whether the error code means anything in this kind of frame.
    bool hasError() const { return error != 0 && command != Message && command != Confirmation; }

    /// Four bytes, the highest first.
    static QByteArray number(quint32 value);
    /// The number at `offset`, which must lie four bytes before the end.
    static quint32 numberAt(const QByteArray& bytes, int offset);
};

/// What a PLC makes of a FINS command: the response to `data`, whose DM words are read by `read` and written
/// by `write`. What is no command on DM words gets an end code, and so does every other while `endCode` is
/// not 0. Empty when `data` is no command at all.
QByteArray finsResponse(const QByteArray& data, int endCode, const std::function<quint16(quint16)>& read,
                        const std::function<void(quint16, quint16)>& write);

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

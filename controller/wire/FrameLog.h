#ifndef CONTROLLER_FRAMELOG_H
#define CONTROLLER_FRAMELOG_H

#include "Wire.h"

#include <QDateTime>
#include <QObject>
#include <QVector>

/// A frame that the controller sent or received.
struct LoggedFrame
{
    QDateTime time;
    Wire::Id wire;
    bool received;
    bool isServer; ///< the controller is the one that was called
    quint16 controllerPort;
    quint16 partnerPort;
    QByteArray bytes; ///< may be no frame at all
};

/// The last frames of all connections of the controller.
class FrameLog : public QObject
{
    Q_OBJECT

public:
    static constexpr int MostFrames = 200;

    void add(const LoggedFrame& frame)
    {
        if (m_frames.size() == MostFrames)
            m_frames.removeFirst();
        m_frames.append(frame);
        emit added();
    }
    void clear() { m_frames.clear(); }
    /// The oldest first.
    const QVector<LoggedFrame>& frames() const { return m_frames; }

signals:
    void added();

private:
    QVector<LoggedFrame> m_frames;
};

#endif

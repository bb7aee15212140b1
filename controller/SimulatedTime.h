#ifndef CONTROLLER_SIMULATEDTIME_H
#define CONTROLLER_SIMULATEDTIME_H

/// How fast the controller lives.
class SimulatedTime
{
public:
    double scale() const { return m_scale; }
    /// A scale that is not above 0 is ignored.
    void setScale(double scale)
    {
        if (scale > 0.0)
            m_scale = scale;
    }
    /// Real milliseconds that `msec` of the controller take, at least 1 unless there is nothing to wait for.
    int real(int msec) const
    {
        const int scaled = static_cast<int>(msec / m_scale);
        return msec > 0 && scaled == 0 ? 1 : scaled;
    }

private:
    double m_scale = 1.0;
};

#endif

#ifndef PERFORMANCEBOX_H
#define PERFORMANCEBOX_H

class QCheckBox;

/// The check box by which a slave role takes the communication performance, which one role at a time may
/// hold. `bus` is the number of the role's bit in the performance word: 0 Modbus TCP, 2 EtherNet/IP,
/// 3 PROFINET.
class PerformanceBox
{
public:
    PerformanceBox(QCheckBox* box, int bus);

    /// Shows what the controller's performance word says.
    void load();
    /// The operator ticked or unticked the box. A change that is not allowed unticks it without a word.
    void clicked(bool checked);
    /// To be called whenever the page is shown: unticks the box when another role took the performance since.
    void pageShown();

private:
    QCheckBox* m_box;
    int m_bus;
};

#endif

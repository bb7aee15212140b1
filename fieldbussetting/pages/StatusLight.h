#ifndef STATUSLIGHT_H
#define STATUSLIGHT_H

class QLabel;

/// Shows one of four states on a label by its border image. The label is touched only when the state
/// changes: Qt parses a style sheet anew even when it is equal to the one that is set.
class StatusLight
{
public:
    enum State { Grey, Green, Red, Warning };
    static constexpr int Size = 36; ///< of a light on any page, in pixels

    /// Takes over a label that the form shows grey, and gives it the size of a light.
    explicit StatusLight(QLabel* label);

    void show(State state);
    QLabel* label() const { return m_label; }

private:
    QLabel* m_label;
    State m_state = Grey;
};

#endif

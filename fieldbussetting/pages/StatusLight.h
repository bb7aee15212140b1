#ifndef STATUSLIGHT_H
#define STATUSLIGHT_H

class QLabel;

/// A light on a label. The label is touched only when the state changes: Qt parses a style sheet anew even
/// when it is equal to the one that is set.
class StatusLight
{
public:
    enum State { Grey, Green, Red, Warning };
    /// How the label shows the state.
    enum class Face {
        Image, ///< by its border image; it begins grey
        /// The same; grey again its style sheet ends without the semicolon. That of the heartbeat page has
        /// always read so.
        ImageGreyAgain,
        Enabled ///< the page's style sheet shows it green while it is enabled, else red; it begins red
    };
    static constexpr int Size = 36; ///< of a light on any page, in pixels

    /// Takes over a label of the form and gives it the size of a light, in pixels.
    explicit StatusLight(QLabel* label, Face face = Face::Image, int size = Size);

    void show(State state);
    /// Of something that is there or not.
    void show(bool linked) { show(linked ? Green : Red); }
    QLabel* label() const { return m_label; }

private:
    QLabel* m_label;
    Face m_face;
    State m_state;
};

#endif

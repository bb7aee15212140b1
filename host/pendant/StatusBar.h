#ifndef PENDANT_STATUSBAR_H
#define PENDANT_STATUSBAR_H

#include <QFrame>

class QPushButton;
class StatusItem;

/// The strip above the pendant's applications: who is logged in (and the button to change it), the robot
/// and its controller, the USB drive, the language.
class StatusBar : public QFrame
{
    Q_OBJECT

public:
    static constexpr int Height = 88;

    explicit StatusBar(QWidget* parent = nullptr);

    /// Reads all states anew.
    void refresh();

signals:
    void logInRequested();
    void languageRequested();

protected:
    void changeEvent(QEvent* event) override;

private:
    QPushButton* m_logIn;
    QPushButton* m_language;
    StatusItem* m_program;
    StatusItem* m_servo;
    StatusItem* m_controller;
    StatusItem* m_usb;
};

#endif

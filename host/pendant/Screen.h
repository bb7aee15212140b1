#ifndef PENDANT_SCREEN_H
#define PENDANT_SCREEN_H

#include <QCoreApplication>
#include <QStringList>

struct Options;

/// The screen that the program draws on. What is said here has to be said before there is an application
/// object.
class Screen
{
    Q_DECLARE_TR_FUNCTIONS(Screen)

public:
    /// Keeps the arguments as they came.
    Screen(int argc, char** argv);

    QStringList arguments() const { return m_arguments; }
    /// Chooses the window system and how large the pendant is drawn. Why there is nothing to draw on, else
    /// empty.
    QString prepare(const Options& options) const;

private:
    QStringList m_arguments;
};

#endif

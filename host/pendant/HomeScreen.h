#ifndef PENDANT_HOMESCREEN_H
#define PENDANT_HOMESCREEN_H

#include <QWidget>

class QLabel;
class QToolButton;

/// What the pendant shows when no application is open: a tile for each application, and why one is not
/// there or was closed.
class HomeScreen : public QWidget
{
    Q_OBJECT

public:
    explicit HomeScreen(QWidget* parent = nullptr);

    /// A text below the tiles; an empty one takes it away.
    void setNotice(const QString& text);
    QString notice() const;

signals:
    void tilePressed();

private:
    QToolButton* m_tile;
    QLabel* m_notice;
};

#endif

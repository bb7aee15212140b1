#ifndef PENDANT_HOMESCREEN_H
#define PENDANT_HOMESCREEN_H

#include "ApplicationInfo.h"

#include <QWidget>

#include <vector>

class QGridLayout;
class QLabel;
class QPushButton;
class QToolButton;

/// What the pendant shows when no application is open: a tile for each application, and why one is not
/// there or was closed.
class HomeScreen : public QWidget
{
    Q_OBJECT

public:
    explicit HomeScreen(const std::vector<ApplicationInfo>& applications, QWidget* parent = nullptr);

    /// Object name of an application's tile.
    static QString tileName(const QString& className);

    /// A text below the tiles; an empty one takes it away.
    void setNotice(const QString& text);
    QString notice() const;

signals:
    void tilePressed(const QString& className);
    /// The pendant is to be closed and reopened.
    void restartPressed();

protected:
    void changeEvent(QEvent* event) override;

private:
    struct Tile
    {
        QToolButton* button;
        ApplicationInfo application;
    };

    void addTile(QGridLayout* grid, const ApplicationInfo& application);
    /// Says everything anew, also at the tiles which applications have to wait for the controller.
    void refresh();

    std::vector<Tile> m_tiles;
    QLabel* m_title;
    QLabel* m_notice;
    QPushButton* m_restart;
};

#endif

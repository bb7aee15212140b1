// An application with nothing in it but a journal of what the pendant does to it, kept as a property of the
// program so that it outlives the application. PARTS picks the functions it exports.
#include "BaseZelCustomData.h"
#include "DataAccess.h"
#include "DesktopApi.h"
#include "ZelBaseWidget.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QPushButton>
#include <QStringList>
#include <QTimer>
#include <QVBoxLayout>
#include <QVariant>

#include <memory>

#ifndef PARTS
#define PARTS 2
#endif

namespace {
constexpr int WaitMs = 200;

void note(const QString& entry)
{
    QStringList journal = qApp->property("journal").toStringList();
    journal.append(entry);
    qApp->setProperty("journal", journal);
}

void closeApplication(bool forced)
{
    DesktopApi::closeApplication(DesktopApi::pageIdFromClassName(QStringLiteral("fieldbussetting")), forced);
}

class Data : public QObject, public BaseZelCustomData
{
    Q_OBJECT

public:
    Data() { note(QStringLiteral("data made")); }
    ~Data() override { note(QStringLiteral("data deleted")); }
    QWidget* getCentralWidget() override { return nullptr; }
    QWidget* currentCentralWidget() override { return nullptr; }

private slots:
    void slotIdle() { qApp->setProperty("dataTicks", qApp->property("dataTicks").toInt() + 1); }
};

class TestApplication : public ZelBaseWidget
{
    Q_OBJECT

public:
    TestApplication(BaseZelCustomData* ownData, QWidget* parent)
        : ZelBaseWidget(ownData, parent, Qt::FramelessWindowHint)
    {
        note(QStringLiteral("widget made"));
        auto* layout = new QVBoxLayout(this);
        const struct
        {
            const char* name;
            void (TestApplication::*press)();
        } buttons[] = {{"closeButton", &TestApplication::closeSelf},
                       {"loopButton", &TestApplication::waitInLoop},
                       {"eventsButton", &TestApplication::waitByEvents}};
        for (const auto& row : buttons) {
            auto* button = new QPushButton(QLatin1String(row.name), this);
            button->setObjectName(QLatin1String(row.name));
            connect(button, &QPushButton::clicked, this, row.press);
            layout->addWidget(button);
        }
    }
    ~TestApplication() override { note(QStringLiteral("widget deleted")); }

    bool setUsedVars(int context, bool used) override
    {
        note(QStringLiteral("variables %1 %2").arg(context).arg(used));
        return true;
    }

private slots:
    void slotIdle()
    {
        ++*m_ticks;
        setProperty("ticks", *m_ticks);
        setProperty("marker", idleMarker);
        idleMarker = 0;
    }

    void slotUserLevel()
    {
        if (DataAccess::getUserLevel() < 3)
            closeApplication(true);
    }

private:
    // What is on the heap tells a sanitizer when a slot goes on after its widget was deleted.
    void noteEnd() const { note(*m_ticks < 0 ? QString() : QStringLiteral("slot ended")); }

    void closeSelf()
    {
        closeApplication(false);
        noteEnd();
    }

    void waitInLoop()
    {
        QEventLoop loop;
        QTimer::singleShot(WaitMs, &loop, &QEventLoop::quit);
        loop.exec();
        noteEnd();
    }

    void waitByEvents()
    {
        QElapsedTimer elapsed;
        elapsed.start();
        while (elapsed.elapsed() < WaitMs)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        noteEnd();
    }

    std::unique_ptr<int> m_ticks = std::make_unique<int>(0);
};
} // namespace

#if PARTS >= 1
extern "C" Q_DECL_EXPORT BaseZelCustomData* CreateZelCustomData()
{
    return new Data;
}
#endif

#if PARTS >= 2
extern "C" Q_DECL_EXPORT QWidget* CreateZelCustomWidget(BaseZelCustomData* data, QWidget* parent)
{
    if (qApp->property("refuseWidget").toBool())
        return nullptr;
    return new TestApplication(data, parent);
}
#endif

#include "TestPlugin.moc"

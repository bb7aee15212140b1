#ifndef TESTS_LONECONTROLLER_H
#define TESTS_LONECONTROLLER_H

#include "SimulatedController.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <memory>

/// A controller without a pendant, whose only file is the one under test.
class LoneController
{
public:
    LoneController(const QString& path, const QByteArray& content, double timeScale)
    {
        // A folder that is not empty is not filled with the factory files, which takes its time.
        const QString target = m_directory.path() + path;
        QDir().mkpath(target.section('/', 0, -2));
        QFile file(target);
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("no scratch file");
        file.close();
        m_controller = std::make_unique<SimulatedController>(m_directory.path());
        m_controller->setTimeScale(timeScale);
    }

    SimulatedController& controller() { return *m_controller; }
    double value(const QString& name) const { return m_controller->readVariable(name); }
    void set(const QString& name, bool on) { m_controller->writeVariable(name, 0, on ? 1.0 : 0.0); }

private:
    QTemporaryDir m_directory;
    std::unique_ptr<SimulatedController> m_controller;
};

#endif

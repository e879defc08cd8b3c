#pragma once

#include "platform/display.h"
#include "platform/scenes.h"

#include <QEventLoop>
#include <QProcess>
#include <QTimer>

namespace corvane::test {

/// One of the scenes in a process of its own: what it printed, and how it ended.
struct Scene {
    explicit Scene(const char *name,
                   QProcessEnvironment environment = QProcessEnvironment::systemEnvironment())
    {
        environment.insert(QLatin1String(sceneVariable), QLatin1String(name));
        process.setProcessEnvironment(environment);
        process.start(QCoreApplication::applicationFilePath(), QStringList());
    }
    ~Scene()
    {
        process.kill();
        process.waitForFinished();
    }
    bool waitFor(const char *text)
    {
        return eventually([&] {
            output += process.readAllStandardOutput();
            return output.contains(text);
        });
    }
    /// The same, without a rest between events: for those whom the scene waits for.
    bool serveUntil(const char *text)
    {
        QEventLoop loop;
        QTimer::singleShot(e2e::patience, &loop, &QEventLoop::quit);
        QObject::connect(&process, &QProcess::readyReadStandardOutput, &loop, [&] {
            output += process.readAllStandardOutput();
            if (output.contains(text))
                loop.quit();
        });
        loop.exec();
        return output.contains(text);
    }
    bool waitForEnd() const
    {
        return eventually([&] { return process.state() == QProcess::NotRunning; });
    }

    QProcess process;
    QByteArray output;
};

} // namespace corvane::test

#include "Instance.h"

#include "MainWindow.h"

#include <QApplication>
#include <QDir>
#include <QLocalServer>
#include <QLocalSocket>

#include <unistd.h>

namespace KestoDraw {

namespace {

// A message is the paths, one a line; no drawing's path is longer than this.
constexpr qint64 kMaxMessageBytes = qint64(1) << 20;
constexpr int kWaitMs = 2000;

} // namespace

QString Instance::UserName()
{
    return QStringLiteral("kestodraw-%1").arg(getuid());
}

bool Instance::Forward(const QStringList& paths, const QString& name)
{
    QLocalSocket socket;
    socket.connectToServer(name);
    if (!socket.waitForConnected(kWaitMs))
        return false;
    QStringList absolute;
    for (const QString& path : paths)
        absolute << QDir::current().absoluteFilePath(path);
    socket.write(absolute.join(QLatin1Char('\n')).toUtf8());
    socket.disconnectFromServer();
    return socket.state() == QLocalSocket::UnconnectedState || socket.waitForDisconnected(kWaitMs);
}

Instance::Instance(const QString& name) : m_server(std::make_unique<QLocalServer>())
{
    m_server->setSocketOptions(QLocalServer::UserAccessOption);
    if (!m_server->listen(name) && m_server->serverError() == QAbstractSocket::AddressInUseError) {
        QLocalServer::removeServer(name); // left by a kestodraw that stopped without closing
        m_server->listen(name);
    }
    connect(m_server.get(), &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket* socket = m_server->nextPendingConnection()) {
            socket->setReadBufferSize(kMaxMessageBytes + 1); // more is no message of ours
            connect(socket, &QLocalSocket::disconnected, socket, [socket] {
                socket->deleteLater();
                if (socket->bytesAvailable() > kMaxMessageBytes)
                    return;
                const QStringList paths =
                    QString::fromUtf8(socket->readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
                if (!paths.isEmpty()) {
                    MainWindow::OpenEach(paths);
                    return;
                }
                // Started again without a drawing: a window of this one comes forward.
                for (QWidget* widget : QApplication::topLevelWidgets())
                    if (auto* window = qobject_cast<MainWindow*>(widget); window && window->isVisible()) {
                        MainWindow::Bring(window);
                        return;
                    }
            });
        }
    });
}

Instance::~Instance() = default;

bool Instance::Listening() const
{
    return m_server->isListening();
}

} // namespace KestoDraw

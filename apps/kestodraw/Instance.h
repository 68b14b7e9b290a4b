#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>

class QLocalServer;

namespace KestoDraw {

// One kestodraw a user: the first one started listens on a local socket of the user's; a later
// start hands it the drawings it was asked to open (a double-click in a file manager) and ends,
// and the first opens them, each in a window of its own or by bringing forward the window that
// shows it already (MainWindow::OpenEach).
class Instance : public QObject {
    Q_OBJECT
public:
    // The socket's name for this user.
    static QString UserName();

    // Hands paths (made absolute) to the kestodraw listening on name; false when none is.
    static bool Forward(const QStringList& paths, const QString& name = UserName());

    // Listens on name, replacing a socket that a kestodraw which stopped left behind.
    explicit Instance(const QString& name = UserName());
    ~Instance() override;
    bool Listening() const;

private:
    std::unique_ptr<QLocalServer> m_server;
};

} // namespace KestoDraw

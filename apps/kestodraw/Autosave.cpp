#include "Autosave.h"

#include "DocumentFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <cerrno>
#include <chrono>
#include <utility>

#include <signal.h>

namespace KestoDraw {

namespace {

// Whether the kestodraw that wrote a copy still runs: a process of that number exists, is no
// zombie waiting to be reaped, and (where /proc tells) is a kestodraw, not a later process that
// was given the same number.
bool Running(qint64 pid)
{
    if (pid <= 0 || (::kill(static_cast<pid_t>(pid), 0) != 0 && errno != EPERM))
        return false;
    QFile stat(QStringLiteral("/proc/%1/stat").arg(pid));
    if (!stat.open(QIODevice::ReadOnly))
        return true;
    // "pid (name) state ...": the name may hold spaces and brackets, the state follows the last ')'.
    const QByteArray line = stat.readAll();
    const qsizetype close = line.lastIndexOf(')');
    const qsizetype open = line.indexOf('(');
    if (close < 0 || open < 0 || close + 2 >= line.size())
        return true;
    return line.at(close + 2) != 'Z' && line.mid(open + 1, close - open - 1) == "kestodraw";
}

} // namespace

QString Autosave::Folder()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation) + QStringLiteral("/autosave");
}

Autosave::Autosave(const Document& document, QObject* parent)
    : QObject(parent), m_document(document),
      m_path(Folder() + QStringLiteral("/%1-%2.kdraw").arg(QCoreApplication::applicationPid()).arg(++s_windows))
{
    m_timer.setSingleShot(true);
    // At the minute's end what came meanwhile is written, and a new minute starts; with nothing
    // new the timer stops, and the next change is written at once.
    connect(&m_timer, &QTimer::timeout, this, [this] {
        if (m_pending) {
            WriteInBackground();
            m_timer.start(kIntervalMs);
        }
    });
}

Autosave::~Autosave()
{
    Finish();
    if (m_written)
        QFile::remove(m_path);
}

void Autosave::Changed(bool saved)
{
    if (saved) {
        // The user's file holds it all: nothing to recover.
        Finish(); // so that no write under way brings the copy back
        m_pending = false;
        m_timer.stop();
        if (std::exchange(m_written, false))
            QFile::remove(m_path);
        return;
    }
    m_pending = true;
    // The first change after a quiet minute is written at once; later ones a minute after.
    if (!m_timer.isActive()) {
        WriteInBackground();
        m_timer.start(kIntervalMs);
    }
}

void Autosave::Finish()
{
    if (m_writing.valid() && !m_writing.get())
        m_pending = true;
}

void Autosave::WriteInBackground()
{
    using namespace std::chrono_literals;
    if (m_writing.valid() && m_writing.wait_for(0s) != std::future_status::ready)
        return;
    Finish();
    if (!m_pending)
        return;
    QDir().mkpath(Folder());
    m_pending = false;
    m_written = true;
    // A copy of the drawing shares its fills, which never change: the write reads them alone.
    m_writing = std::async(std::launch::async, [document = m_document, path = m_path] {
        return DocumentFile::Save(document, path, nullptr);
    });
}

bool Autosave::WriteNow()
{
    Finish();
    if (!m_pending)
        return true;
    QDir().mkpath(Folder());
    if (!DocumentFile::Save(m_document, m_path, nullptr))
        return false;
    m_pending = false;
    m_written = true;
    return true;
}

QStringList Autosave::Orphans()
{
    QFileInfoList copies = QDir(Folder()).entryInfoList({QStringLiteral("*.kdraw")}, QDir::Files, QDir::Time);
    QStringList orphans;
    for (const QFileInfo& copy : copies) {
        // "pid-n", the n-th window of process pid (or "pid", as copies were named once).
        bool number = false;
        const qint64 pid = copy.completeBaseName().section('-', 0, 0).toLongLong(&number);
        if (number && pid != QCoreApplication::applicationPid() && !Running(pid))
            orphans << copy.absoluteFilePath();
    }
    return orphans;
}

} // namespace KestoDraw

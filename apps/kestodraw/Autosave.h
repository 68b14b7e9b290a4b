#pragma once

#include "Document.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <future>

namespace KestoDraw {

// Keeps a copy of the drawing being edited in the user's data folder, so that a crash or a power
// loss costs at most a minute of work: the copy is written a minute after the last, or at once
// for the first change after a quiet minute, never into the user's own file. A clean exit
// removes it; a copy left by a process that is gone is what a later start offers to recover.
// One file per window of a running process (autosave/<pid>-<window>.kdraw). The copies the timer
// asks for are written on a thread of their own, so that a slow disk never holds up the window.
class Autosave : public QObject {
    Q_OBJECT
public:
    static constexpr int kIntervalMs = 60'000;

    // document is read when a copy is written.
    explicit Autosave(const Document& document, QObject* parent = nullptr);
    // A clean exit: the copy goes.
    ~Autosave() override;

    // The drawing changed (or came back to the state last saved, when saved is true).
    void Changed(bool saved);
    // Writes the copy now, on this thread, if there are changes it does not hold; false when
    // writing failed.
    bool WriteNow();
    const QString& FilePath() const { return m_path; }

    // Copies left by kestodraw processes that are no longer running, newest first.
    static QStringList Orphans();
    // The folder the copies live in.
    static QString Folder();

private:
    // Starts writing what the copy does not hold yet on a thread of its own, unless the write
    // before is still under way (then it waits for the next minute).
    void WriteInBackground();
    // Waits for the write under way, if any; one that failed leaves its changes pending.
    void Finish();

    // Windows of this process so far: each window's copy is named by the process and its number.
    static inline int s_windows = 0;

    const Document& m_document;
    QString m_path;
    QTimer m_timer;
    bool m_pending = false;
    bool m_written = false; // the copy on disk may exist
    std::future<bool> m_writing;
};

} // namespace KestoDraw

#pragma once

#include <QMetaObject>
#include <QObject>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>

namespace KestoDraw {

// Builds, on a worker thread of its own, the latest of what it is asked for, so that a picture
// slow to make never holds up the window: a frame waits a little for it and meanwhile shows the
// one built before. Asking for something else stops the build under way at its next check.
template <class Key, class Result>
class LatestBuild {
public:
    // Asked between pieces of a build with the share done (0..1); false: stop there.
    using Going = std::function<bool(double done)>;
    // Builds the result for a key; nothing when going stopped it.
    using Build = std::function<std::optional<Result>(const Key&, const Going&)>;
    struct Built {
        Key key;
        Result result;
    };

    // ready is called on owner's thread when a result built in the background can be shown.
    LatestBuild(QObject* owner, std::function<void()> ready, Build build)
        : m_owner(owner), m_ready(std::move(ready)), m_build(std::move(build)), m_worker([this] { Work(); })
    {
    }
    ~LatestBuild()
    {
        {
            const std::lock_guard lock(m_lock);
            m_quit = true;
            if (m_running)
                m_running->stop = true;
        }
        m_changed.notify_all();
        m_worker.join();
    }
    LatestBuild(const LatestBuild&) = delete;
    LatestBuild& operator=(const LatestBuild&) = delete;

    // What is shown: the result last taken, or null before the first.
    const Built* Shown() const { return m_shown ? &*m_shown : nullptr; }

    // Has the result for the key that matches accepts built (make gives that key) unless it is
    // shown or being built already, and waits at most wait for it (for ever when nullopt).
    // Answers whether it is shown now.
    template <class Matches, class Make>
    bool Prepare(const Matches& matches, const Make& make, std::optional<std::chrono::milliseconds> wait)
    {
        std::unique_lock lock(m_lock);
        TakeBuilt();
        if (m_shown && matches(m_shown->key))
            return true;
        if (!m_job || !matches(m_job->key)) {
            if (m_running)
                m_running->stop = true;
            m_job = std::make_shared<Job>(make());
            m_changed.notify_all();
        }
        const auto built = [&] { return m_built && matches(m_built->key); };
        if (wait)
            m_changed.wait_for(lock, *wait, built);
        else
            m_changed.wait(lock, built);
        TakeBuilt();
        return m_shown && matches(m_shown->key);
    }

    // The share done, 0..1, of the build asked for and not yet shown; nothing when none is.
    std::optional<double> Progress() const
    {
        const std::lock_guard lock(m_lock);
        if (!m_job)
            return std::nullopt;
        return m_job->done.load();
    }

private:
    struct Job {
        explicit Job(Key k) : key(std::move(k)) {}
        Key key;
        std::atomic<bool> stop = false;
        std::atomic<double> done = 0;
    };

    void TakeBuilt() // with m_lock held
    {
        if (m_built) {
            m_shown = std::move(m_built);
            m_built.reset();
        }
    }

    void Work()
    {
        for (;;) {
            std::shared_ptr<Job> job;
            {
                std::unique_lock lock(m_lock);
                m_changed.wait(lock, [&] { return m_quit || (m_job && m_job != m_running); });
                if (m_quit)
                    return;
                job = m_running = m_job;
            }
            std::optional<Result> result = m_build(job->key, [&job](double done) {
                job->done = done;
                return !job->stop;
            });
            {
                const std::lock_guard lock(m_lock);
                m_running.reset();
                if (m_job != job || !result)
                    continue; // something else is wanted now
                m_built.emplace(Built{std::move(job->key), std::move(*result)});
                m_job.reset();
                // Posted before a frame waiting for the result can take it, so that whoever
                // sees it has the call queued.
                QMetaObject::invokeMethod(m_owner, m_ready, Qt::QueuedConnection);
            }
            m_changed.notify_all();
        }
    }

    QObject* m_owner;
    std::function<void()> m_ready;
    Build m_build;
    std::optional<Built> m_shown;

    mutable std::mutex m_lock;
    std::condition_variable m_changed;
    std::shared_ptr<Job> m_job;     // asked for and not yet built
    std::shared_ptr<Job> m_running; // the one the worker builds
    std::optional<Built> m_built;   // built and not yet shown
    bool m_quit = false;
    std::thread m_worker; // last: it starts once the rest is ready
};

} // namespace KestoDraw

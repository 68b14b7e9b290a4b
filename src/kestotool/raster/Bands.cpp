#include "kestotool/raster/Bands.h"

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace KestoRaster {

namespace {

// Below this many pixels a frame is rendered before threads would have started on it.
constexpr long long kLeastPixelsForThreads = 1 << 16;
// Bands per thread: enough that a thread that started late still finds work.
constexpr int kBandsPerThread = 4;

std::atomic<int> g_threads = 0;

// One call's bands: each thread that takes part claims the next band until none is left.
struct Job {
    std::function<void(int)> band;
    int bands = 0;
    int helpers = 0; // workers that may take part besides the caller
    std::atomic<int> next = 0;
    std::atomic<int> joined = 0;
    int finished = 0; // under the pool's lock
};

// Worker threads, started on the first call that needs them and kept for the process. A small
// pool of standard threads does it: a call hands out a few dozen bands of a frame that takes
// milliseconds, so a work-stealing scheduler would have nothing to balance.
class Pool {
public:
    static Pool& Get()
    {
        static Pool pool;
        return pool;
    }

    void Run(const std::shared_ptr<Job>& job)
    {
        {
            const std::lock_guard lock(m_lock);
            Grow(job->helpers);
            m_jobs.push_back(job);
        }
        m_wake.notify_all();
        Work(*job);
        std::unique_lock lock(m_lock);
        m_done.wait(lock, [&] { return job->finished == job->bands; });
        std::erase(m_jobs, job);
    }

    ~Pool()
    {
        {
            const std::lock_guard lock(m_lock);
            m_stopping = true;
        }
        m_wake.notify_all();
        for (std::thread& t : m_workers)
            t.join();
    }

private:
    // Renders bands of the job until none is left to claim.
    void Work(Job& job)
    {
        int done = 0;
        for (int b = job.next++; b < job.bands; b = job.next++) {
            job.band(b);
            ++done;
        }
        if (done) {
            const std::lock_guard lock(m_lock);
            job.finished += done;
        }
        m_done.notify_all();
    }

    void Grow(int helpers)
    {
        while (static_cast<int>(m_workers.size()) < helpers)
            m_workers.emplace_back([this] { Serve(); });
    }

    void Serve()
    {
        std::unique_lock lock(m_lock);
        for (;;) {
            // The job is taken by the same look that woke us: a caller claims bands without the
            // lock, so a second look could find its last band gone.
            std::shared_ptr<Job> job;
            m_wake.wait(lock, [&] { return m_stopping || (job = Open()) != nullptr; });
            if (m_stopping)
                return;
            ++job->joined;
            lock.unlock();
            Work(*job);
            lock.lock();
        }
    }

    // A job with bands left to claim and room for one more helper.
    std::shared_ptr<Job> Open() const
    {
        for (const std::shared_ptr<Job>& job : m_jobs)
            if (job->next < job->bands && job->joined < job->helpers)
                return job;
        return nullptr;
    }

    std::mutex m_lock;
    std::condition_variable m_wake;
    std::condition_variable m_done;
    std::deque<std::shared_ptr<Job>> m_jobs;
    std::vector<std::thread> m_workers;
    bool m_stopping = false;
};

} // namespace

void SetRenderThreads(int count)
{
    g_threads = std::max(count, 0);
}

int RenderThreads()
{
    const int set = g_threads;
    return set > 0 ? set : static_cast<int>(std::max(1u, std::thread::hardware_concurrency()));
}

void RenderInBands(const PreparedPaint& paint, const Target& target, const Clip& clip)
{
    const Clip inside{std::max(clip.x0, 0), std::max(clip.y0, 0), std::min(clip.x1, target.width),
                      std::min(clip.y1, target.height)};
    const int threads = RenderThreads();
    const int rows = inside.y1 - inside.y0;
    if (threads <= 1 || rows < 2 || inside.x1 <= inside.x0 ||
        static_cast<long long>(rows) * (inside.x1 - inside.x0) < kLeastPixelsForThreads) {
        Render(paint, target, clip);
        return;
    }
    const int bands = std::min(rows, threads * kBandsPerThread);
    auto job = std::make_shared<Job>();
    job->bands = bands;
    job->helpers = threads - 1;
    job->band = [&, bands, rows](int b) {
        const int y0 = inside.y0 + static_cast<int>(static_cast<long long>(rows) * b / bands);
        const int y1 = inside.y0 + static_cast<int>(static_cast<long long>(rows) * (b + 1) / bands);
        Render(paint, target, {inside.x0, y0, inside.x1, y1});
    };
    Pool::Get().Run(job);
}

} // namespace KestoRaster

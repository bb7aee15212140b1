#ifndef FIELDBUSCTL_ORDEREDPOOL_H
#define FIELDBUSCTL_ORDEREDPOOL_H

#include <condition_variable>
#include <map>
#include <mutex>
#include <thread>
#include <vector>

/// Work on many things with several threads; the results are used in order by the thread that calls, as they
/// come. Workers wait when they are far ahead, so that what is held in memory does not grow with the number
/// of things.
template <typename Result>
class OrderedPool
{
public:
    /// `jobs` threads; 0: as many as the machine has cores.
    explicit OrderedPool(unsigned jobs)
        : m_jobs(jobs != 0 ? jobs : std::max(1u, std::thread::hardware_concurrency()))
    {
    }

    /// `work(i)` in any thread, `use(i, result)` here, for i from 0 to `count` - 1.
    template <typename Work, typename Use>
    void run(std::size_t count, Work work, Use use)
    {
        std::vector<std::thread> threads;
        for (std::size_t i = 0; i < std::min<std::size_t>(m_jobs, count); ++i)
            threads.emplace_back([&] { labour(count, work); });
        for (std::size_t i = 0; i < count; ++i)
            use(i, take(i));
        for (std::thread& thread : threads)
            thread.join();
    }

private:
    template <typename Work>
    void labour(std::size_t count, Work& work)
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        while (m_next < count) {
            const std::size_t mine = m_next++;
            m_changed.wait(lock, [&] { return mine < m_used + Ahead * m_jobs; });
            lock.unlock();
            Result result = work(mine);
            lock.lock();
            m_results.emplace(mine, std::move(result));
            m_changed.notify_all();
        }
    }

    Result take(std::size_t index)
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_changed.wait(lock, [&] { return m_results.count(index) != 0; });
        Result result = std::move(m_results.at(index));
        m_results.erase(index);
        m_used = index + 1;
        m_changed.notify_all();
        return result;
    }

    static constexpr std::size_t Ahead = 8; // results a thread

    const std::size_t m_jobs;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::map<std::size_t, Result> m_results;
    std::size_t m_next = 0;
    std::size_t m_used = 0;
};

#endif

#ifndef FIELDBUSCTL_ORDEREDPOOL_H
#define FIELDBUSCTL_ORDEREDPOOL_H

#include <algorithm>
#include <condition_variable>
#include <map>
#include <mutex>
#include <thread>
#include <vector>

/// Work on many things with several threads; the results are used in order by the thread that calls, as they
/// come. Workers wait when they are far ahead, so that what is held in memory does not grow with the number
/// of things. Of many things each worker takes several in a row: handing them over costs as much as looking
/// at a small one.
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
        const std::size_t inARow = std::clamp<std::size_t>(count / (m_jobs * Shares), 1, MostInARow);
        std::vector<std::thread> threads;
        for (std::size_t i = 0; i < std::min(m_jobs, count); ++i)
            threads.emplace_back([&] { labour(count, inARow, work); });
        for (std::size_t first = 0; first < count; first += inARow) {
            std::vector<Result> results = take(first);
            for (std::size_t i = 0; i < results.size(); ++i)
                use(first + i, std::move(results[i]));
        }
        for (std::thread& thread : threads)
            thread.join();
    }

private:
    template <typename Work>
    void labour(std::size_t count, std::size_t inARow, Work& work)
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        while (m_next < count) {
            const std::size_t first = m_next;
            m_next += inARow;
            m_changed.wait(lock, [&] { return first <= m_used + Ahead * m_jobs * inARow; });
            lock.unlock();
            std::vector<Result> results;
            for (std::size_t i = first; i < std::min(first + inARow, count); ++i)
                results.push_back(work(i));
            lock.lock();
            m_results.emplace(first, std::move(results));
            m_changed.notify_all();
        }
    }

    std::vector<Result> take(std::size_t first)
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_changed.wait(lock, [&] { return m_results.count(first) != 0; });
        std::vector<Result> results = std::move(m_results.at(first));
        m_results.erase(first);
        m_used = first;
        m_changed.notify_all();
        return results;
    }

    static constexpr std::size_t Shares = 16;     // of a thread, so that all end at about the same time
    static constexpr std::size_t MostInARow = 16; // things
    static constexpr std::size_t Ahead = 2;       // rows a thread

    const std::size_t m_jobs;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::map<std::size_t, std::vector<Result>> m_results; ///< by the first of a row
    std::size_t m_next = 0;
    std::size_t m_used = 0; ///< the row that is in use
};

#endif

#pragma once

#include <future>
#include <map>
#include <string>
#include <thread>
#include <utility>
#include <vector>

/// Reads files on a thread of its own, while its owner does what does not need them yet; a T is what becomes of a file.
/// start() comes once, then take(). The reader runs beside the main thread: it leaves alone what belongs to that, which
/// is GL, the sound library and the log, and reports in the T what it has to say. Going, it waits for one file at most.
template <class T>
class ReadAhead {
public:
    using Reader = T (*)(const std::string& path);

    explicit ReadAhead(Reader ownReader) : read(ownReader) {}

    /// Begin to read these files, in this order.
    void start(const std::vector<std::string>& paths)
    {
        std::vector<std::packaged_task<T()>> tasks;
        for (const std::string& path : paths) {
            tasks.emplace_back([reader = read, path] { return reader(path); });
            results[path] = tasks.back().get_future();
        }
        thread = std::jthread([queue = std::move(tasks)](const std::stop_token& stop) mutable {
            for (auto task = queue.begin(); task != queue.end() && !stop.stop_requested(); ++task) (*task)();
        });
    }

    /// Return what has become of a file, once it is there. A file that was not asked for, or that was taken before, is
    /// read now.
    T take(const std::string& path)
    {
        auto result = results.extract(path);
        return result ? result.mapped().get() : read(path);
    }

private:
    Reader read;
    std::map<std::string, std::future<T>> results; // of the files that nobody has taken
    std::jthread thread;
};

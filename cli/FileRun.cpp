#include "cli/FileRun.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <condition_variable>
#include <exception>
#include <map>
#include <mutex>
#include <optional>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

#include "cli/ExitCodes.h"
#include "cli/Interrupt.h"
#include "cli/Streams.h"
#include "cli/Teller.h"

namespace kestrel::cli {

namespace {

// Files are handed out in groups, so that jobs seldom wait for each other.
constexpr std::size_t kMostInGroup = 16;
constexpr std::size_t kGroupsEachJob = 4;
// No job is ahead of the slowest by more groups than this for each job: what came of them waits.
constexpr std::size_t kGroupsAhead = 2;

struct Group {
    std::size_t number = 0;
    std::vector<std::string> files;
};

class FileRun {
  public:
    FileRun(FileNames& names, const RunOptions& options, const FileWork& work)
        : names_(names),
          work_(work),
          isAmongOthers_(names.Count() != 1),
          ahead_(options.jobs * kGroupsAhead),
          groupSize_(GroupSize(names.Count(), options.jobs)),
          teller_(Progress(options.progress && isatty(STDERR_FILENO) == 1, names.Count())) {}

    void Work() {
        while (const auto group = TakeGroup())
            Deliver(group->number, WorkOn(*group));
    }

    // Once no job works any more.
    Result<void> Finish();

  private:
    static std::size_t GroupSize(std::optional<std::size_t> count, std::size_t jobs) {
        if (!count) return kMostInGroup;
        return std::clamp<std::size_t>(*count / (jobs * kGroupsEachJob), 1, kMostInGroup);
    }

    bool IsStopped() const { return failure_ || IsInterrupted(); }
    std::optional<Group> TakeGroup();
    std::vector<Report> WorkOn(const Group& group) const;
    void Deliver(std::size_t number, std::vector<Report> reports);
    void Stop(const Error& failure);

    FileNames& names_;
    const FileWork& work_;
    bool isAmongOthers_;
    std::size_t ahead_;
    std::size_t groupSize_;
    Teller teller_;

    std::mutex taking_;      // names_ and what is taken of it
    std::size_t taken_ = 0;  // groups

    std::mutex telling_;  // all below
    std::condition_variable told_;
    std::size_t next_ = 0;  // the group to be told
    std::map<std::size_t, std::vector<Report>> ready_;
    bool isTelling_ = false;
    std::optional<Error> failure_;
};

std::optional<Group> FileRun::TakeGroup() {
    const std::lock_guard taking(taking_);
    {
        std::unique_lock telling(telling_);
        told_.wait(telling, [this] { return taken_ < next_ + ahead_ || IsStopped(); });
        if (IsStopped()) return std::nullopt;
    }
    Group group{taken_, {}};
    if (auto read = names_.Take(groupSize_, group.files); !read) Stop(read.error());
    if (group.files.empty()) return std::nullopt;
    ++taken_;
    return group;
}

std::vector<Report> FileRun::WorkOn(const Group& group) const {
    std::vector<Report> reports;
    reports.reserve(group.files.size());
    for (const std::string& file : group.files) {
        if (IsInterrupted()) break;
        Report& report = reports.emplace_back();
        try {
            report.Add(work_({file, isAmongOthers_}, report));
        } catch (const std::exception& error) {
            report.Add(FailureOf(file, {ENOMEM, error.what()}));
        }
    }
    return reports;
}

// Who brings the next group to be told tells it, and those after it that others brought meanwhile.
void FileRun::Deliver(std::size_t number, std::vector<Report> reports) {
    std::unique_lock telling(telling_);
    ready_.emplace(number, std::move(reports));
    if (isTelling_) return;
    isTelling_ = true;
    for (auto first = ready_.begin(); first != ready_.end() && first->first == next_;
         first = ready_.begin()) {
        std::vector<Report> group = std::move(first->second);
        ready_.erase(first);
        telling.unlock();
        const Result<void> written = teller_.Tell(std::move(group));
        telling.lock();
        ++next_;
        if (!written && !failure_) failure_ = written.error();
        told_.notify_all();
    }
    isTelling_ = false;
}

void FileRun::Stop(const Error& failure) {
    const std::lock_guard telling(telling_);
    if (!failure_) failure_ = failure;
    told_.notify_all();
}

std::string Summary(const Totals& totals, std::optional<std::size_t> count) {
    std::string files = std::to_string(count.value_or(totals.files)) + " files";
    return std::to_string(totals.failed) + " of " + files + " failed";
}

Result<void> FileRun::Finish() {
    const Result<void> written = teller_.Finish();
    if (!written && !failure_) failure_ = written.error();
    const Totals& totals = teller_.Told();
    const auto count = names_.Count();
    if (failure_) return tl::unexpected(*failure_);
    if (IsInterrupted() && totals.files != count) {
        std::string done = "interrupted: " + std::to_string(totals.files - totals.failed);
        if (count) done.append(" of ").append(std::to_string(*count));
        done += " files done";
        if (totals.failed > 0) done.append(", ").append(std::to_string(totals.failed)) += " failed";
        return Fail(kInterrupted, done);
    }
    if (totals.failed == 0) return {};
    // The lines before have told all of a single file.
    return Fail(EIO, totals.files > 1 ? Summary(totals, count) : "");
}

}  // namespace

Result<void> RunFiles(FileNames& names, const RunOptions& options, const FileWork& work) {
    // A single file is as well done with when the program ends at once.
    if (names.Count() != 1) WatchForInterrupt();
    FileRun run(names, options, work);
    std::vector<std::jthread> others;
    const std::size_t most = std::min(options.jobs, names.Count().value_or(options.jobs));
    try {
        while (others.size() + 1 < most)
            others.emplace_back([&run] { run.Work(); });
    } catch (const std::system_error&) {
        // The system gives no more threads: those that are there do it all.
    }
    run.Work();
    others.clear();
    return run.Finish();
}

}  // namespace kestrel::cli

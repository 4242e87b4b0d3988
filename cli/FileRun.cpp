#include "cli/FileRun.h"

#include <sys/resource.h>
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
// So many groups may wait for one that takes long, beside those in work.
constexpr std::size_t kGroupsWaiting = 16;

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
          ahead_(options.jobs + kGroupsWaiting),
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

Result<void> FileRun::Finish() {
    const Result<void> written = teller_.Finish();
    if (!written && !failure_) failure_ = written.error();
    const Totals& totals = teller_.Told();
    const auto count = names_.Count();
    if (failure_) return tl::unexpected(*failure_);
    if (IsInterrupted() && totals.files != count) {
        return Fail(kInterrupted, "interrupted: " + FilesText(totals.files - totals.failed, count) +
                                      " done" + FailedText(totals));
    }
    if (totals.failed == 0) return {};
    // The lines before have told all of a single file.
    if (totals.files == 1) return Fail(EIO, "");
    return Fail(EIO, FilesText(totals.failed, totals.files) + " failed");
}

// Each replacement is open until it is in place: no more jobs than the open files are enough for.
std::size_t MostJobs() {
    constexpr std::size_t kOthers =
        32 + Teller::kMostWaiting + kGroupsWaiting * kMostInGroup + kMostInGroup;
    rlimit limit{};
    if (getrlimit(RLIMIT_NOFILE, &limit) < 0) return 1;
    limit.rlim_cur = limit.rlim_max;
    setrlimit(RLIMIT_NOFILE, &limit);
    return static_cast<std::size_t>(std::max<rlim_t>(limit.rlim_max, kOthers) - kOthers) /
               kMostInGroup +
           1;
}

}  // namespace

Result<void> RunFiles(FileNames& names, const RunOptions& options, const FileWork& work) {
    // A single file is as well done with when the program ends at once.
    if (names.Count() != 1) WatchForInterrupt();
    RunOptions possible = options;
    const std::size_t files = std::max<std::size_t>(names.Count().value_or(options.jobs), 1);
    possible.jobs = std::min({options.jobs, files, MostJobs()});
    FileRun run(names, possible, work);
    std::vector<std::jthread> others;
    try {
        while (others.size() + 1 < possible.jobs)
            others.emplace_back([&run] { run.Work(); });
    } catch (const std::system_error&) {
        // The system gives no more threads: those that are there do it all.
    }
    run.Work();
    others.clear();
    return run.Finish();
}

}  // namespace kestrel::cli

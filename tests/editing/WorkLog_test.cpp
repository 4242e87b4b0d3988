#include "editing/WorkLog.h"

#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include <atomic>
#include <csignal>
#include <thread>

#include "document/JournalFolder.h"
#include "document/JournalRecords.h"
#include "editing/WorkRecords.h"
#include "tests/editing/RandomWalk.h"
#include "tests/system/TemporaryFolder.h"

namespace kestrel::editing {
namespace {

constexpr document::JournalLimits kQuickly{.betweenSyncs = std::chrono::milliseconds{1}};
constexpr document::JournalLimits kRewritten{
    .rewriteAbove = 15000, .keep = 3000, .betweenSyncs = std::chrono::milliseconds{1}};

// What is to be brought back: the pictures whole, the present one at `at`.
struct State {
    Work work;
    std::vector<PackedPicture> pictures;
    std::size_t at = 0;
};

// A walk, and what is to be brought back after its last two steps.
class Model : public test::EditorRecorder {
  public:
    Model(unsigned seed, std::size_t lastStep) : last(lastStep), walk(editor, *this, seed) {
        while (steps < last)
            Go(walk);
    }
    static void Go(test::RandomWalk& walk) { walk.Below(30) == 0 ? walk.FileStep() : walk.Step(); }

    void Did(HistoryAct act, const PictureDifference& /*change*/) override {
        if (act == HistoryAct::Back) --now.at;
        if (act == HistoryAct::Forward) ++now.at;
        if (act == HistoryAct::Cleared) now.pictures.clear();
        if (act != HistoryAct::Recorded && act != HistoryAct::RedoCleared) return;
        now.pictures.resize(std::min(now.pictures.size(), now.at + 1));
        if (act == HistoryAct::RedoCleared) return;
        now.at = now.pictures.size();
        now.pictures.push_back(Pack(editor.Document().Planes()));
    }
    void StepEnded(const Editor& /*editor*/) override {
        isTold = isTold || editor.Document().Modified;
        if (++steps > last || steps + 1 < last) return;
        now.work = editor.CurrentWork();
        states.push_back(isTold ? now : State{});
    }

    std::size_t last;
    std::size_t steps = 0;
    // There is no journal before the first change.
    bool isTold = false;
    State now;
    std::vector<State> states;
    Editor editor{Views(), 0};
    test::RandomWalk walk;
};

// How far the process that is to be killed has come, in its steps.
struct Progress {
    std::atomic<std::size_t> begun;
    std::atomic<std::size_t> done;
};

class KilledLog : public WorkLog {
  public:
    KilledLog(const std::string& folder, document::JournalLimits limits, Progress& progress)
        : WorkLog(folder, limits), progress_(progress) {}
    void StepEnded(const Editor& editor) override {
        ++progress_.begun;
        WorkLog::StepEnded(editor);
        ++progress_.done;
    }

  private:
    Progress& progress_;
};

class WorkLogTest : public system::TemporaryFolder {
  protected:
    ReplayedWork ReplayNewest() {
        const auto ended = document::JournalFolder(folder_).Ended();
        return ended.empty() ? ReplayedWork{} : Replay(*ended.front().Content());
    }

    // Undo and redo of what was brought back give the pictures, back to the first unless the
    // journal was shortened.
    static void ExpectPictures(ReplayedWork replayed, const State& state, bool shortened) {
        if (state.pictures.empty()) return;
        replayed.work.floating.reset();
        replayed.work.planes = state.pictures[state.at];
        test::EditorRecorder views;
        Editor editor(views.Views(), 0);
        editor.Restore(replayed.work, std::move(replayed.history));
        std::size_t at = state.at;
        const auto expect = [&] {
            ASSERT_EQ(Pack(editor.Document().Planes()), state.pictures.at(at)) << at;
        };
        for (; editor.CanUndo(); expect()) {
            editor.PopUndoSnapshot();
            --at;
        }
        EXPECT_TRUE(at == 0 || shortened);
        for (; editor.CanRedo(); expect()) {
            editor.PopRedoSnapshot();
            ++at;
        }
        EXPECT_TRUE(at + 1 == state.pictures.size() || shortened);
    }

    // Kills an editor in the midst of a walk, and compares what its journal tells.
    void KillAndReplay(unsigned seed, document::JournalLimits limits, bool shortened) {
        void* const shared = mmap(nullptr, sizeof(Progress), PROT_READ | PROT_WRITE,
                                  MAP_SHARED | MAP_ANONYMOUS, -1, 0);
        auto& progress = *new (shared) Progress{};
        const pid_t child = fork();
        if (child == 0) {
            test::EditorRecorder views;
            KilledLog log(folder_, limits, progress);
            Editor editor(views.Views(log), 0);
            for (test::RandomWalk walk(editor, views, seed);;)
                Model::Go(walk);
        }
        while (progress.begun == 0)
            std::this_thread::yield();
        std::this_thread::sleep_for(std::chrono::microseconds(std::mt19937(seed)() % 20000));
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);

        const Model model(seed, progress.begun);
        const ReplayedWork replayed = ReplayNewest();
        const bool wasWriting = progress.begun > progress.done;
        const auto tells = [&](const State& state) {
            return replayed.work == state.work &&
                   replayed.history.RedoSteps().size() <= state.pictures.size() - state.at &&
                   (shortened || replayed.history.UndoSteps().size() == state.at);
        };
        const bool isLast = tells(model.states.back());
        EXPECT_TRUE(isLast || (wasWriting && tells(model.states.front())));
        ExpectPictures(replayed, isLast ? model.states.back() : model.states.front(), shortened);
        munmap(shared, sizeof(Progress));
        for (const std::string& name : Names())
            std::filesystem::remove(Path(name));
    }
    void Kill(unsigned times) {
        for (unsigned seed = 0; seed < times && !HasFailure(); ++seed) {
            SCOPED_TRACE(seed);
            const bool shortened = seed % 3 == 2;
            KillAndReplay(seed, shortened ? kRewritten : kQuickly, shortened);
        }
    }
};

TEST_F(WorkLogTest, SurvivesBeingKilledAtAnyMoment) {
    Kill(15);
}

// As many moments as one has patience for: --gtest_also_run_disabled_tests.
TEST_F(WorkLogTest, DISABLED_SurvivesBeingKilledAtManyMoments) {
    Kill(300);
}

// Notes what there was to be brought back at each size of the journal.
class NotingLog : public WorkLog {
  public:
    explicit NotingLog(const std::string& folder) : WorkLog(folder, kQuickly), folder_(folder) {}
    void StepEnded(const Editor& editor) override {
        WorkLog::StepEnded(editor);
        for (const auto& file : std::filesystem::directory_iterator(folder_))
            told.insert_or_assign(file.file_size(), editor.CurrentWork());
    }
    std::map<std::size_t, Work> told{{0, {}}};

  private:
    std::string folder_;
};

// Steps of every kind, most of them small.
void MakeSteps(Editor& editor, int strokes) {
    editor.Tools().SelectTool(ToolId::Pencil);
    for (int i = 0; i < strokes; ++i) {
        if (i % 8 == 0) editor.Wells().SetPenColor(Button::Left, 1U + static_cast<unsigned>(i));
        editor.PicMain_MouseDown(Button::Left, 5 + i % 32 * 10, 5);
        editor.PicMain_MouseUp(Button::Left, 5 + i % 32 * 10, 15);
    }
    editor.PopUndoSnapshot();
    editor.PopRedoSnapshot();
    editor.FloatSelection(gdi::IconPlanes(2, 3));
    editor.Selected().MoveBy(3, -1);
    editor.EditTarget(Leaves::Entry).Planes().SetOpaque(1, 1, 0xABCDEF);
    editor.Wells().SetTransparent(Button::Left);
    editor.Selected().DropSelection();
}

TEST_F(WorkLogTest, TellsAStateBeforeTheByteWhereItIsTornOrDamaged) {
    NotingLog log(folder_);
    test::EditorRecorder views;
    Editor editor(views.Views(log), 0);
    MakeSteps(editor, 42);
    ASSERT_GE(log.told.size(), 50U);
    const std::string path = Path(*Names().begin());
    const std::string text = system::ContentOf(path);
    std::vector<std::uint8_t> journal(text.begin(), text.end());
    for (std::size_t at = 0; at < journal.size() && !HasFailure(); ++at) {
        const Work& before = std::prev(log.told.upper_bound(at))->second;
        EXPECT_TRUE(Replay(std::span(journal).first(at)).work == before) << at;
        journal[at] ^= 0x55;
        EXPECT_TRUE(Replay(journal).work == before) << at;
        journal[at] ^= 0x55;
    }
}

// Where there is no folder, or no room after the first steps, nobody notices.
TEST_F(WorkLogTest, KeepsWhatHasRoom) {
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    const rlimit little{2000, limit.rlim_max};
    setrlimit(RLIMIT_FSIZE, &little);
    for (const auto& [folder, saved] :
         {std::pair{folder_, false}, {"/dev/null", false}, {"", false}, {folder_, true}}) {
        test::EditorRecorder views;
        WorkLog log(folder);
        Editor editor(views.Views(log), 0);
        MakeSteps(editor, 1);
        EXPECT_EQ(log.Keeps(), folder == folder_);
        MakeSteps(editor, 100);
        EXPECT_FALSE(log.Keeps());
        editor.Document().Modified = !saved;
        editor.EndStep();
    }
    setrlimit(RLIMIT_FSIZE, &limit);
    EXPECT_EQ(document::JournalFolder(folder_).Ended().size(), 1U) << "what was saved is not told";
    EXPECT_GT(ReplayNewest().history.UndoSteps().size(), 10U);
}

}  // namespace
}  // namespace kestrel::editing
